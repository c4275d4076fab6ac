// Wrong use, help and lists: what needs no account.
#include "cli/Process.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::cli {
namespace {

std::size_t Lines(const std::string& text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST(Usage, WrongUseIsOneLineOnStderrAndExitCode2)
{
    const struct {
        std::vector<std::string> arguments;
        std::string_view says;
    } cases[] = {
        {{}, "kavelin needs a command. See kavelin --help."},
        {{"runn"}, "kavelin has no command \"runn\". Did you mean run?"},
        {{"account"}, "kavelin account needs a command."},
        {{"account", "craete"}, "kavelin account has no command \"craete\". Did you mean create?"},
        {{"account", "create"}, "account create needs the path of the new account."},
        {{"account", "load", "a.kavelin"}, "account load needs the folder with the CSV files."},
        {{"run"}, "run needs the name of a report."},
        {{"run", "capital-shre"}, "Did you mean capital-share?"},
        {{"run", "nothing-like-it"}, "There is no report \"nothing-like-it\"."},
        {{"run", "capital-share", "--fromat", "csv"},
         "kavelin run has no option --fromat. Did you mean --format?"},
        {{"open"}, "open needs the name of a report."},
        {{"open", "capital-share", "--row", "1"}, "Behind the rows of capital-share is nothing to open."},
        {{"open", "journal"}, "open needs --row"},
        {{"open", "journal", "--row", "0"}, "--row takes a whole number from 1, not \"0\"."},
        {{"open", "jurnal", "--row", "1"}, "Did you mean journal?"},
        {{"run", "capital-share", "twice"}, "takes no further argument \"twice\"."},
        {{"run", "capital-share", "--limit"}, "--limit"},
        {{"run", "capital-share", "--format", "xml"}, "--format takes table, csv or json, not \"xml\"."},
        {{"run", "capital-share", "--values", "any"}, "--values takes checked or legacy, not \"any\"."},
        {{"run", "capital-share", "--language", "fr"}, "--language takes zh-CN or en-US, not \"fr\"."},
        {{"run", "capital-share", "--filter", "none.json"}, "The filter file none.json cannot be read."},
        {{"run", "capital-share"}, "No account is named."},
        {{"fields"}, "fields needs the name of a report."},
        {{"fields", "nothing"}, "There is no report \"nothing\"."},
        {{"fields", "journal", "--set", "iMonht=2008.03"}, "Did you mean iMonth?"},
        {{"lookup"}, "lookup needs the name of a report."},
        {{"lookup", "journal"}, "lookup needs the key of a field. The keys: kavelin fields journal"},
        {{"lookup", "journal", "cWhCod"}, "Did you mean cWhCode?"},
        {{"lookup", "journal", "cWhCode", "--page", "0"}, "--page takes a whole number from 1, not \"0\"."},
        {{"lookup", "journal", "cWhCode", "--page-size", "99999"}, "--page and --page-size end at 10000."},
        {{"lookup", "journal", "cWhCode"}, "No account is named."},
        {{"query"}, "query needs the T-SQL to run"},
        {{"query", "select 1", "--format", "yaml"}, "--format takes table, csv or json, not \"yaml\"."},
        {{"query", "select 1", "--limit", "5"}, "kavelin query has no option --limit."},
        {{"doctor"}, "No account is named."},
        {{"doctor", "--format", "csv"}, "doctor takes --format table or json, not \"csv\"."},
        {{"completion"}, "completion needs the name of a shell"},
        {{"completion", "csh"}, "completion knows bash, zsh and fish, not \"csh\"."},
        {{"demo", "--lines", "many"}, "--lines takes a whole number from"},
        {{"demo", "--lines", "0"}, "--lines takes a whole number from"},
    };
    const Program program;
    for (const auto& c : cases) {
        const Outcome outcome = program.Run(c.arguments);
        EXPECT_EQ(outcome.exitCode, 2) << c.says;
        EXPECT_EQ(outcome.out, "") << c.says;
        EXPECT_NE(outcome.err.find(c.says), std::string::npos) << c.says << " in " << outcome.err;
        EXPECT_TRUE(outcome.err.starts_with("kavelin: ")) << outcome.err;
        EXPECT_EQ(Lines(outcome.err), 1u) << outcome.err;
    }
}

TEST(Usage, APasswordIsNotTakenOnTheCommandLine)
{
    const Program program;
    for (const char* option : {"--password", "--password=geheim", "--pwd", "--passwd=geheim", "--PASSWORD"}) {
        const Outcome outcome = program.Run({"run", "capital-share", option, "geheim"});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_NE(outcome.err.find("environment variable"), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.err.find("geheim"), std::string::npos) << outcome.err;
    }
}

TEST(Usage, HelpGoesToStdoutAndShowsExamplesFirst)
{
    const struct {
        std::vector<std::string> arguments;
        std::string_view holds;
    } cases[] = {
        {{"--help"}, "\nCommands:\n"},
        {{"-h"}, "\nCommands:\n"},
        {{"demo", "--help"}, "--lines N"},
        {{"reports", "--help"}, "Usage: kavelin reports"},
        {{"fields", "--help"}, "Usage: kavelin fields REPORT"},
        {{"lookup", "--help"}, "Usage: kavelin lookup REPORT KEY TEXT"},
        {{"run", "--help"}, "--set KEY=VALUE"},
        {{"account", "--help"}, "export"},
        {{"account", "load", "--help"}, "Usage: kavelin account load PATH FOLDER"},
        {{"query", "--help"}, "--account A"},
        {{"completion", "--help"}, "bash, zsh or fish"},
    };
    const Program program;
    for (const auto& c : cases) {
        const Outcome outcome = program.Run(c.arguments);
        EXPECT_EQ(outcome.exitCode, 0) << c.holds;
        EXPECT_EQ(outcome.err, "");
        EXPECT_NE(outcome.out.find(c.holds), std::string::npos) << outcome.out;
        const std::size_t examples = outcome.out.find("Examples:\n  kavelin ");
        ASSERT_NE(examples, std::string::npos) << outcome.out;
        EXPECT_LT(examples, outcome.out.find("Usage:"));
    }
}

TEST(Usage, HelpOnAReportListsItsKeysInBothLanguages)
{
    const Program program;
    const Outcome outcome = program.Run({"run", "capital-share", "--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    for (const char* text : {"存货资金占用分析", "Capital share", "cinvcode", "存货编码", "Item code",
                             "imonth", "--set imonth=2008-01-01..2008-06-30", "--set cNo=10", "--format"})
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << " in " << outcome.out;
    EXPECT_EQ(program.Run({"run", "--help", "capital-share"}).out, outcome.out);
    EXPECT_EQ(program.Run({"run", "nothing", "--help"}).exitCode, 2);
}

TEST(Usage, VersionIsOneLine)
{
    const Program program;
    const Outcome outcome = program.Run({"--version"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "kavelin " KAVELIN_VERSION "\n");
    EXPECT_EQ(outcome.err, "");
}

TEST(Usage, ReportsListsTheReportsThatRun)
{
    const Program program;
    const Outcome outcome = program.Run({"reports"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    for (const char* text : {"capital-share", "存货资金占用分析", "clsProPortion",
                             "2BEEF300-28F0-4716-9D8A-9F0424174763", "area-table", "clsAreaStockReport"})
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << " in " << outcome.out;
}

TEST(Usage, FieldsListsTheFilterOfAReport)
{
    const Program program;
    const Outcome outcome = program.Run({"fields", "Capital-Share"});
    EXPECT_EQ(outcome.exitCode, 0);
    for (const char* text :
         {"cinvcode", "存货编码", "Item code", "reference", "range", "imonth", "date", "cNo", "number"})
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << " in " << outcome.out;
}

TEST(Usage, RefusedValuesAreRefusedBeforeAnythingIsSent)
{
    const struct {
        std::string set;
        std::string_view says;
    } cases[] = {
        {"cinvcod=1", "Did you mean cinvcode?"},
        {"cNo=ten", "cNo"},
        {"imonth=soon", "imonth"},
        {"cinvcode=a'b", "cinvcode"},
        {"cinvcode=a;b", "cinvcode"},
        {"cinvcode=a--b", "cinvcode"},
        {"cinvcode=a/*b", "cinvcode"},
        {"cinvcode", "cinvcode"},
    };
    const Program program;
    for (const auto& c : cases) {
        // The account is not there: the value is looked at first.
        const Outcome outcome =
            program.Run({"run", "capital-share", "--account", "none.kavelin", "--set", c.set});
        EXPECT_EQ(outcome.exitCode, 2) << c.set << ": " << outcome.err;
        EXPECT_NE(outcome.err.find(c.says), std::string::npos) << outcome.err;
        EXPECT_EQ(Lines(outcome.err), 1u) << outcome.err;
    }
}

}  // namespace
}  // namespace kavelin::cli
