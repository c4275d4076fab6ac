// kavelin-tds as a process, with FreeTDS's own client where it is installed.
#include "embedded/EmbeddedAccount.h"
#include "support/GoldenFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/wait.h>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

extern char** environ;  // NOLINT(readability-redundant-declaration): POSIX wants it declared here

namespace kavelin::test::tds {
namespace {

using namespace std::chrono_literals;

class Program {
  public:
    explicit Program(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), KAVELIN_TDS_PROGRAM);
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        EXPECT_EQ(::posix_spawn(&intProcess, KAVELIN_TDS_PROGRAM, nullptr, nullptr, pointers.data(), environ),
                  0);
    }

    ~Program()
    {
        if (intProcess > 0)
            End();
    }

    int End()
    {
        ::kill(intProcess, SIGTERM);
        int status = 0;
        ::waitpid(intProcess, &status, 0);
        intProcess = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

  private:
    pid_t intProcess = 0;
};

std::string WaitFor(const std::filesystem::path& file)
{
    for (int i = 0; i < 500 && !std::filesystem::exists(file); ++i)
        std::this_thread::sleep_for(20ms);
    std::string text = ReadFile(file);
    while (text.ends_with('\n'))
        text.pop_back();
    return text;
}

TEST(TdsProgram, ServesFreeTdsOwnClient)
{
    if (std::system("tsql -C > /dev/null 2>&1") != 0)
        GTEST_SKIP() << "tsql is not installed";
    const TestFolder folder;
    const std::string path = (folder / "a.kavelin").string();
    embedded::CreateAccount(path);

    Program server({"--account", path, "--port-file", (folder / "port").string(), "--batch-file",
                    (folder / "batches").string(), "--user", "li", "--password", "pw", "--deny",
                    "into tempdb"});
    WriteFile(folder / "input",
              "create table T (a int, b nvarchar(20))\ngo\ninsert into T values (7, N'货币')\ngo\n"
              "select a, b from T\ngo\nselect a into tempdb..U from T\ngo\n");
    const std::string client = "TDSVER=7.4 tsql -H 127.0.0.1 -p " + WaitFor(folder / "port") +
                               " -U li -P pw -J UTF-8 -o q < " + (folder / "input").string() + " > " +
                               (folder / "output").string() + " 2>&1";
    EXPECT_EQ(std::system(client.c_str()), 0);
    const std::string output = ReadFile(folder / "output");
    EXPECT_NE(output.find("7\t货币"), std::string::npos) << output;
    EXPECT_NE(output.find("Msg 262"), std::string::npos) << output;

    EXPECT_EQ(server.End(), 0);
    EXPECT_NE(ReadFile(folder / "batches").find("insert into T values (7, N'货币')"), std::string::npos);
}

TEST(TdsProgram, TellsOfAnAccountThatIsNotThere)
{
    const TestFolder folder;
    Program server({"--account", (folder / "none.kavelin").string()});
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(server.End(), 1);
}

}  // namespace
}  // namespace kavelin::test::tds
