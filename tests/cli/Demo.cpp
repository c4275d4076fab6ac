#include "cli/Demo.h"

#include "cli/Process.h"

#include <stdexcept>

namespace kavelin::cli {

const std::string& DemoAccount()
{
    static const Program program;
    static const std::string path = [] {
        const Outcome made = program.Run({"demo", "--lines", "3000", "--account", "shared.kavelin"});
        if (made.exitCode != 0)
            throw std::runtime_error("The demo account could not be made: " + made.err);
        return (program.Folder() / "shared.kavelin").string();
    }();
    return path;
}

}  // namespace kavelin::cli
