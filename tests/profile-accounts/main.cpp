// Makes the accounts of all profiles in a folder, which is emptied before: once a test run, so that each test copies
// a finished one.
#include "reports/ProfileAccounts.h"

#include <cstdio>
#include <exception>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: profile-accounts FOLDER\n", stderr);
        return 2;
    }
    try {
        std::filesystem::remove_all(argv[1]);
        std::filesystem::create_directories(argv[1]);
        for (const kavelin::demo::Profile& profile : kavelin::demo::Profiles())
            kavelin::test::MakeProfileAccount(argv[1], profile);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "profile-accounts: %s\n", error.what());
        return 1;
    }
    return 0;
}
