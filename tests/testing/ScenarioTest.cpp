// A scenario as a text that hosts of another kind read.
#include "support/Scenario.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// The lines of the text that begin with an entry's name.
std::string Entries(RecordingHost& host, const std::string& entry)
{
    const std::string text = "\n" + ScenarioText(host, "clsProPortion");
    std::string found;
    for (std::size_t at = text.find("\n" + entry); at != text.npos; at = text.find("\n" + entry, at + 1))
        found += text.substr(at + 1, text.find('\n', at + 1) - at);
    return found;
}

}  // namespace

TEST(AScenario, TellsEachKindOfValue)
{
    const DateTime day = std::chrono::sys_days(std::chrono::year(2008) / 7 / 31);
    const struct {
        Value value;
        const char* shown;
    } cases[] = {
        {Value(), "#empty"},
        {Value::Null(), "#null"},
        {true, "#true"},
        {false, "#false"},
        {-5, "#int -5"},
        {1.5, "#double 1.5"},
        {*Decimal::FromText("0.010"), "#decimal 0.01"},
        {day, "#date 2008-07-31"},
        {"", ""},
        {"资金", "资金"},
        {"a|b\\c\r\n\t", "a\\pb\\\\c\\r\\n\\t"},
        {"#int 5", "\\hint 5"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().args["key"] = c.value;
        EXPECT_EQ(Entries(host, "arg|"), std::string("arg|key|") + c.shown + "\n");
    }
}

TEST(AScenario, TellsTheFilterAndItsConditions)
{
    RecordingHost host;
    host.SetFilter({{"cNo", "1"}, {"cWhCode", "01", "02", true}, {"cVouType", "01\t32", {}, false, true}});
    host.Filter()->where = "all";
    host.Filter()->whereByToken[2] = "part";
    EXPECT_EQ(Entries(host, "field|"),
              "field|cNo|1|#empty\n"
              "field|cWhCode|01|02|range\n"
              "field|cVouType|01\\t32|#empty|several\n");
    EXPECT_EQ(Entries(host, "where|"), "where|2|part\nwhere||all\n");
}

TEST(AScenario, TellsTheAnswersToStatements)
{
    RecordingHost host;
    host.Script().rows["select a\r\nfrom t"] = {{"a", "b"}, {{1, "x"}, {Value::Null(), "y"}}};
    host.Script().rowsByStart["select count"] = {{""}, {}};
    EXPECT_EQ(Entries(host, "rows|"), "rows|whole|select a\\r\\nfrom t\nrows|start|select count\n");
    EXPECT_EQ(Entries(host, "columns|"), "columns|a|b\ncolumns|\n");
    EXPECT_EQ(Entries(host, "row|"), "row|#int 1|x\nrow|#null|y\n");
}

TEST(AScenario, TellsEventsWithNumbersInThePlaceOfStatements)
{
    RecordingHost host;
    const auto connection = host.OpenAccount();
    connection->Execute("drop table t");
    connection->OpenRecordset("select 1\r\n", CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    host.Login()->Year();
    const std::string text = ScenarioText(host, "ClsWtInfo");
    EXPECT_EQ(text.substr(text.find("events\n")),
              "events\n"
              "#1.Execute [1]\n"
              "#1.OpenRecordset @1 location=3 type=3 lock=1 [2]\n"
              "Login.Year\n");
    EXPECT_TRUE(text.starts_with("class|ClsWtInfo\n"));
    EXPECT_EQ(text.find("guid|"), text.npos) << "none was made";
}

}  // namespace kavelin::test
