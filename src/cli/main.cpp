#include "cli/Program.h"

int main(int argc, char** argv)
{
    return kavelin::cli::RunProgram(argc, argv);
}
