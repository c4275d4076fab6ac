// The ABC analysis and the charts, as a user runs them.
#include "cli/Demo.h"
#include "cli/Process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>

namespace kavelin::cli {
namespace {

using nlohmann::json;

class AbcCommands : public testing::Test {
  protected:
    Outcome OnDemo(std::vector<std::string> arguments, RunOptions options = {}) const
    {
        arguments.insert(arguments.end(), {"--account", DemoAccount()});
        return objProgram.Run(arguments, std::move(options));
    }

    // The threshold of that key as the program shows it.
    std::string Threshold(const std::string& key) const
    {
        for (const json& row : json::parse(objProgram.Run({"abc-options", "--format", "json"}).out))
            if (row.at("key") == key)
                return row.at("percent");
        return "none";
    }

    Program objProgram;
};

TEST_F(AbcCommands, OptionsAreShownWithTheirMeaningAndChanged)
{
    const Outcome first = objProgram.Run({"abc-options", "--format", "csv"});
    ASSERT_EQ(first.exitCode, 0) << first.err;
    EXPECT_TRUE(first.out.starts_with("key,percent,meaning\r\nM1,100,成本比重上限（%）\r\nM2,70,"))
        << first.out;
    EXPECT_NE(
        objProgram.Run({"abc-options", "--language", "en-US"}).out.find("Class A from a share of money"),
        std::string::npos);

    const Outcome changed = objProgram.Run({"abc-options", "--set", "m2=60", "--set", "N3=45.5"});
    EXPECT_EQ(changed.exitCode, 0) << changed.err;
    EXPECT_EQ(Threshold("M2") + " " + Threshold("N3") + " " + Threshold("M3"), "60 45.5 10");
}

TEST_F(AbcCommands, OptionsThatTheFormRefusesAreNotWritten)
{
    const struct {
        const char *value, *language, *message;
    } cases[] = {
        {"M2=10", "zh-CN", "成本比重设置不正确，请修改！"},
        {"M2=101", "zh-CN", "成本比重设置不正确，请修改！"},
        {"N2=50", "zh-CN", "实物量比重设置不正确，请修改！"},
        {"M3=0", "en-US", "The shares of money are not in order"},
        {"N3=20", "en-US", "The shares of quantity are not in order"},
    };
    for (const auto& c : cases) {
        const Outcome outcome = objProgram.Run({"abc-options", "--set", c.value, "--language", c.language});
        EXPECT_EQ(outcome.exitCode, 1) << c.value;
        EXPECT_EQ(outcome.out, "") << c.value;
        EXPECT_NE(outcome.err.find(c.message), std::string::npos) << outcome.err;
    }
    EXPECT_EQ(Threshold("M2") + Threshold("M3") + Threshold("N2") + Threshold("N3"), "70102050");
}

TEST_F(AbcCommands, OptionsThatAreNoneAreRefused)
{
    // Of the last four the form reads a number at the beginning, or none where it tests none.
    for (const char* value : {"M5=10", "M2", "M2=", "M2=viel", "M2=70%", "M2=6.5.2", "M1=-", "N4=1-2"}) {
        const Outcome outcome = objProgram.Run({"abc-options", "--set", value});
        EXPECT_EQ(outcome.exitCode, 2) << value << outcome.err;
        EXPECT_EQ(Threshold("M1") + Threshold("M2") + Threshold("N4"), "10070100") << value;
    }
}

TEST_F(AbcCommands, ActionsLeaveOneClassOfTheReport)
{
    ASSERT_EQ(
        objProgram
            .Run({"abc-options", "--set", "M2=4", "--set", "M3=1.5", "--set", "N2=2.5", "--set", "N3=4"})
            .exitCode,
        0);
    const auto classes = [](const Outcome& outcome) {
        std::set<std::string> names;
        for (const json& row : json::parse(outcome.out))
            names.insert(row.at("分析_ABC类别"));
        return names;
    };
    const std::vector<std::string> june = {"--set", "iperiod=6", "--format", "json"};
    const auto run = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), june.begin(), june.end());
        return OnDemo(arguments);
    };
    EXPECT_EQ(classes(run({"run", "abc"})), (std::set<std::string>{"A", "B", "C"}));
    EXPECT_EQ(classes(run({"open", "abc", "--action", "ActA"})), std::set<std::string>{"A"});
    EXPECT_EQ(classes(run({"open", "abc", "--action", "actb"})), std::set<std::string>{"B"});
    EXPECT_EQ(classes(run({"open", "abc", "--action", "ActC"})), std::set<std::string>{"C"});
    EXPECT_EQ(classes(run({"open", "abc"})), std::set<std::string>{"A"});
    EXPECT_EQ(classes(run({"open", "abc", "--action", "ActB", "--set", "inclub=否"})),
              std::set<std::string>{});
}

TEST_F(AbcCommands, TheOptionsStandBehindAnActionToo)
{
    const Outcome options = objProgram.Run({"open", "abc", "--action", "ActOption", "--format", "csv"});
    EXPECT_EQ(options.exitCode, 0) << options.err;
    EXPECT_EQ(options.out, objProgram.Run({"abc-options", "--format", "csv"}).out);

    const Outcome changed = objProgram.Run({"open", "abc", "--action", "ActOption", "--set", "M2=60"});
    EXPECT_EQ(changed.exitCode, 2);
    EXPECT_EQ(
        changed.err,
        "kavelin: ActOption shows the thresholds of the classes and takes no filter. abc-options --set changes"
        " them.\n");
}

TEST_F(AbcCommands, ActionsAreForTheWholeReport)
{
    const Outcome row = OnDemo({"open", "abc", "--action", "ActA", "--row", "1"});
    EXPECT_EQ(row.exitCode, 2);
    EXPECT_NE(row.err.find("takes no --row"), std::string::npos) << row.err;
    const Outcome unknown = OnDemo({"open", "abc", "--action", "ActD"});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_NE(unknown.err.find("doesn't draw the report again"), std::string::npos) << unknown.err;
    EXPECT_NE(objProgram.Run({"open", "abc", "--help"}).out.find("ActOption   the thresholds"),
              std::string::npos);
}

TEST_F(AbcCommands, ChartsAreWrittenBesideTheRows)
{
    const std::vector<std::vector<std::string>> reports = {
        {"abc"}, {"turnover"}, {"capital-share"}, {"price-analysis", "--set", "iMonth=2008.07"}};
    for (const std::vector<std::string>& report : reports)
        for (const std::string language : {"zh-CN", "en-US"}) {
            std::vector<std::string> arguments = {"run"};
            arguments.insert(arguments.end(), report.begin(), report.end());
            arguments.insert(arguments.end(),
                             {"--chart", "chart.svg", "--format", "csv", "--language", language});
            const Outcome outcome = OnDemo(arguments);
            ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
            EXPECT_FALSE(outcome.out.empty());
            const std::string svg = objProgram.Read("chart.svg");
            EXPECT_TRUE(svg.starts_with("<?xml")) << report.front();
            EXPECT_NE(svg.find("<rect"), std::string::npos);
            EXPECT_NE(svg.find("2008"), std::string::npos) << "of when";
            EXPECT_EQ(svg.find("Accounting year") != svg.npos || svg.find("Month") != svg.npos,
                      language == "en-US");
        }
    EXPECT_EQ(objProgram.Files(), std::vector<std::string>{"chart.svg"});
}

TEST_F(AbcCommands, AReportWithoutAChartSaysSo)
{
    const Outcome outcome = OnDemo({"run", "journal", "--chart", "chart.svg"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "kavelin: There is no chart of journal.\n");
    EXPECT_TRUE(objProgram.Files().empty());
}

TEST_F(AbcCommands, ATurnoverShowsNoColumnsThatHoldNothing)
{
    const auto heading = [this](std::vector<std::string> more) {
        more.insert(more.begin(), {"run", "turnover"});
        const Outcome outcome = OnDemo(more);
        return outcome.out.substr(0, outcome.out.find('\n'));
    };
    const std::string usual = heading({});
    EXPECT_NE(usual.find("仓库_名称"), std::string::npos) << usual;
    EXPECT_EQ(usual.find("部门_名称"), std::string::npos) << usual;
    EXPECT_NE(usual.find("分析_出库成本"), std::string::npos) << usual;

    const std::string byClass =
        heading({"--set", "bgroupcin=否", "--set", "dismethod=按数量", "--set", "bgroupdep=是"});
    EXPECT_NE(byClass.find("部门_名称"), std::string::npos) << byClass;
    EXPECT_NE(byClass.find("存货_分类"), std::string::npos) << byClass;
    EXPECT_EQ(byClass.find("存货_编码"), std::string::npos) << byClass;
    EXPECT_EQ(byClass.find("分析_出库成本"), std::string::npos) << byClass;
}

TEST_F(AbcCommands, TerminalsShowBarsAndColoursAndFilesDoNot)
{
    RunOptions terminal;
    terminal.outputTerminal = true;
    terminal.environment["TERM"] = "xterm-256color";
    const std::vector<std::string> shares = {"run", "capital-share", "--columns", "cinvcode,所占比重"};
    EXPECT_NE(OnDemo(shares, terminal).out.find("\x1b[94m████████"), std::string::npos);
    EXPECT_EQ(OnDemo(shares).out.find("█"), std::string::npos);
    EXPECT_NE(
        OnDemo({"run", "abc", "--columns", "存货_编码,分析_ABC类别"}, terminal).out.find("\x1b[90mC\x1b[0m"),
        std::string::npos);
}

}  // namespace
}  // namespace kavelin::cli
