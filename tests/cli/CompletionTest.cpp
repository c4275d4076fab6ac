// The bash script is run in bash; the other two are read, since their shells need not be installed.
#include "cli/Process.h"
#include "host/Reports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

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

std::string Sorted(std::vector<std::string> words)
{
    std::ranges::sort(words);
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

// The commands that the general help lists.
std::vector<std::string> Commands(const std::string& help)
{
    std::istringstream lines(help.substr(help.find("\nCommands:\n") + 11));
    std::vector<std::string> commands;
    for (std::string line; std::getline(lines, line) && line.starts_with("  ");)
        commands.push_back(line.substr(2, line.find(' ', 2) - 2));
    return commands;
}

TEST(Completion, BashOffersWhatMayFollow)
{
    const Program program;
    const Outcome script = program.Run({"completion", "bash"});
    ASSERT_EQ(script.exitCode, 0);
    program.Write("kavelin.bash", script.out);

    std::vector<std::string> names;
    for (const host::Report& report : host::AllReports())
        names.emplace_back(report.name);
    const std::string reports = Sorted(names);
    const std::string commands = Sorted(Commands(program.Run({"--help"}).out));

    // `words` as bash breaks them, the last one at the cursor.
    const struct {
        std::string_view words;
        std::string offered;
    } cases[] = {
        {"kavelin ''", commands},
        {"kavelin r", "reports run"},
        {"kavelin --v", "--version"},
        {"kavelin account ''", "check copy create export load"},
        {"kavelin run ''", reports},
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
        {"kavelin lookup cap", "capital-share"},
        {"kavelin lookup capital-share cw", "cwhcode"},
        {"kavelin lookup capital-share cwhcode ''", ""},
        {"kavelin lookup capital-share cwhcode 0 --page", "--page --page-size"},
        {"kavelin run stock-summary --gr", "--group"},
        {"kavelin run stock-summary --group ''", "business class document free item rd warehouse"},
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
        for (const char* word : {"demo",        "reports",  "fields",        "lookup",     "account",
                                 "create",      "load",     "export",        "query",      "completion",
                                 "format",      "show-sql", "capital-share", "area-table", "cinvccode",
                                 "IAAreeTable", "zh-CN",    "abc-options",   "chart",      "ActOption"})
            EXPECT_NE(script.out.find(word), std::string::npos) << shell << " lacks " << word;
    }
}

}  // namespace
}  // namespace kavelin::cli
