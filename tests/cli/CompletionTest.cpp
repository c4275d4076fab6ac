// The bash script is run in bash; the other two are read, since their shells need not be installed.
#include "cli/Process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

namespace kavelin::cli {
namespace {

std::string Shell(const std::string& command)
{
    std::string text;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::array<char, 4096> buffer;
    while (const std::size_t count = fread(buffer.data(), 1, buffer.size(), pipe.get()))
        text.append(buffer.data(), count);
    return text;
}

TEST(Completion, BashOffersWhatMayFollow)
{
    const Program program;
    const Outcome script = program.Run({"completion", "bash"});
    ASSERT_EQ(script.exitCode, 0);
    program.Write("kavelin.bash", script.out);

    // `words` as bash breaks them, the last one at the cursor.
    const struct {
        std::string_view words, offered;
    } cases[] = {
        {"kavelin ''", "account completion demo fields open query reports run"},
        {"kavelin r", "reports run"},
        {"kavelin --v", "--version"},
        {"kavelin account ''", "check create export load"},
        {"kavelin run ''", "area-table capital-share journal standard-cost-journal"},
        {"kavelin run cap", "capital-share"},
        {"kavelin run capital-share ''", ""},
        {"kavelin run capital-share --f", "--filter --format"},
        {"kavelin run capital-share --set ''", "cNo= cinvccode= cinvcode= cwhcode= imonth="},
        {"kavelin run capital-share --set cw", "cwhcode="},
        {"kavelin run capital-share --set cNo = 1", ""},
        {"kavelin run capital-share --set cNo = 1 --format ''", "csv json table"},
        {"kavelin run --format csv cap", "capital-share"},
        {"kavelin run area-table --set IAA", "IAAreeTable="},
        {"kavelin fields are", "area-table"},
        {"kavelin completion z", "zsh"},
        {"kavelin run --language en", "en-US"},
        {"kavelin query --lim", ""},
        {"kavelin demo --l", "--lines --list-profiles"},
        {"kavelin demo --profile s", "shop"},
        {"kavelin demo --profile in", "industry invoices"},
        {"kavelin account check --format ''", "json table"},
    };
    for (const auto& c : cases) {
        const std::string offered = Shell(
            "cd '" + program.Folder().string() +
            "' && bash -c '. ./kavelin.bash; eval \"COMP_WORDS=($0)\"; "
            "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kavelin 2>&1; printf \"%s\\n\" \"${COMPREPLY[@]}\" | "
            "LC_ALL=C sort' \"" +
            std::string(c.words) + "\"");
        std::istringstream lines(offered);
        std::string joined;
        for (std::string line; std::getline(lines, line);)
            joined += (joined.empty() ? "" : " ") + line;
        EXPECT_EQ(joined, c.offered) << c.words;
    }
}

TEST(Completion, EveryShellKnowsCommandsOptionsReportsAndKeys)
{
    const Program program;
    for (const char* shell : {"bash", "zsh", "fish"}) {
        const Outcome script = program.Run({"completion", shell});
        EXPECT_EQ(script.exitCode, 0);
        EXPECT_EQ(script.err, "");
        for (const char* word :
             {"demo", "reports", "fields", "account", "create", "load", "export", "query", "completion",
              "format", "show-sql", "capital-share", "area-table", "cinvccode", "IAAreeTable", "zh-CN"})
            EXPECT_NE(script.out.find(word), std::string::npos) << shell << " lacks " << word;
    }
}

}  // namespace
}  // namespace kavelin::cli
