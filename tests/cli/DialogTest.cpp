// A report's dialog from the command line: its fields as they open, what they offer, and its refusals.
#include "cli/Demo.h"
#include "cli/Process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace kavelin::cli {
namespace {

using nlohmann::json;

class DialogCommandTest : public testing::Test {
  protected:
    Outcome OnDemo(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--account", DemoAccount()});
        return objProgram.Run(arguments);
    }

    json RowsOf(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--format", "json"});
        const Outcome outcome = OnDemo(arguments);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
        return json::parse(outcome.out);
    }

    json FieldOf(std::vector<std::string> arguments, const std::string& key) const
    {
        arguments.insert(arguments.begin(), "fields");
        for (const json& row : RowsOf(arguments))
            if (row.at("key") == key)
                return row;
        ADD_FAILURE() << "no field " << key;
        return {};
    }

    // One line on stderr, nothing on stdout, that exit code.
    void ExpectRefusal(const std::vector<std::string>& arguments, int exitCode, const std::string& line) const
    {
        const Outcome outcome = OnDemo(arguments);
        EXPECT_EQ(outcome.exitCode, exitCode) << line;
        EXPECT_EQ(outcome.out, "") << line;
        EXPECT_EQ(outcome.err, line + "\n");
    }

    Program objProgram;
};

TEST_F(DialogCommandTest, FieldsShowsADialogAsItOpens)
{
    json month = FieldOf({"estimate-balance", "--language", "en-US"}, "ia_subsidiary.iMonth");
    EXPECT_EQ(month.at("kind"), "month");
    EXPECT_EQ(month.at("value"), "12月");
    EXPECT_EQ(month.at("offers").get<std::string>().find("1月 (Month 1), 2月 (Month 2)"), 0u) << month;

    EXPECT_EQ(FieldOf({"estimate-balance"}, "ia_subsidiary.iyear").at("value"), "2008");
    EXPECT_EQ(FieldOf({"journal"}, "cWhCode").at("offers"), "5 rows");
    EXPECT_EQ(FieldOf({"journal"}, "vouEstate").at("takes"), "several");
    EXPECT_EQ(FieldOf({"standard-cost-journal"}, "cDepCode").at("locked"), "locked");
    EXPECT_EQ(FieldOf({"goods-summary"}, "iYear").at("takes"), "mandatory");
    EXPECT_EQ(FieldOf({"area-table"}, "IADataTable").at("kind"), "text");
    EXPECT_EQ(FieldOf({"abc"}, "inclua").at("offers"), "是, 否");
    EXPECT_EQ(FieldOf({"abc", "--language", "en-US"}, "inclua").at("offers"), "是 (Yes), 否 (No)");

    const Outcome table = OnDemo({"fields", "journal"});
    EXPECT_NE(table.out.find("单据状态"), std::string::npos) << table.out;
    EXPECT_EQ(table.out.find("Posting state"), std::string::npos) << table.out;
}

TEST_F(DialogCommandTest, FieldsShowsWhatAChosenValueMakesOfTheOthers)
{
    EXPECT_EQ(FieldOf({"goods-summary", "--set", "DispatchList.cDLCode=FH-0801-0001"}, "rdrecord32.cCode")
                  .at("locked"),
              "locked");
    const auto rows = [&](const std::string& setting) {
        return FieldOf({"standard-cost-journal", "--set", setting}, "cInvCode")
            .at("offers")
            .get<std::string>();
    };
    EXPECT_NE(rows("cInvCCode=0201"), rows("cInvCCode="));
}

TEST_F(DialogCommandTest, FieldsShowsTheTemplateWhereThereIsNoAccount)
{
    const Outcome outcome = objProgram.Run({"fields", "stock-summary", "--format", "csv"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_TRUE(outcome.out.starts_with("key,名称,caption,kind,takes,list,default\r\n")) << outcome.out;
    EXPECT_NE(outcome.out.find("vouEstate,"), std::string::npos);
}

TEST_F(DialogCommandTest, LookupListsWhatAReferenceFieldOffers)
{
    const json warehouses = RowsOf({"lookup", "journal", "cWhCode"});
    EXPECT_EQ(warehouses,
              json::parse(objProgram
                              .Run({"query",
                                    "select cWhCode as [仓库编码], cWhName as [仓库名称] from Warehouse"
                                    " where bInCost = 1 order by cWhCode",
                                    "--format", "json", "--account", DemoAccount()})
                              .out));
    EXPECT_EQ(RowsOf({"lookup", "journal", "cwhcode", "02"}), json::array({warehouses.at(1)}));
    EXPECT_EQ(RowsOf({"lookup", "journal", "cWhCode", "成品"}), json::array({warehouses.at(1)}));
    EXPECT_EQ(RowsOf({"lookup", "journal", "cWhCode", "%"}), json::array());
    EXPECT_EQ(RowsOf({"lookup", "journal", "cWhCode", "'"}), json::array());
    EXPECT_TRUE(
        RowsOf({"lookup", "journal", "cWhCode", "--language", "en-US"}).at(0).contains("Warehouse code"));
    EXPECT_EQ(RowsOf({"lookup", "journal", "vouEstate", "未"}).at(0).at("value"), "未记账单据");
}

TEST_F(DialogCommandTest, LookupReadsPageByPageAndSaysWhenThereIsMore)
{
    const json all = RowsOf({"lookup", "journal", "Inventory.cInvCode", "--page-size", "10000"});
    ASSERT_GT(all.size(), 50u);
    const Outcome first = OnDemo({"lookup", "journal", "Inventory.cInvCode", "--format", "json"});
    EXPECT_EQ(json::parse(first.out).size(), 50u);
    EXPECT_EQ(first.err, "There are more: --page 2\n");
    const Outcome second =
        OnDemo({"lookup", "journal", "Inventory.cInvCode", "--format", "json", "--page", "2"});
    EXPECT_EQ(json::parse(second.out).at(0), all.at(50));
    EXPECT_EQ(second.err, "");
}

TEST_F(DialogCommandTest, LookupOfAFieldThatOffersNothingIsWrongUse)
{
    ExpectRefusal({"lookup", "journal", "PzNoID"}, 2,
                  "kavelin: PzNoID offers no list: it takes a whole number from 1.");
}

TEST_F(DialogCommandTest, ARestrictedUserIsOfferedHisWarehousesAndDepartments)
{
    const std::string account = (objProgram.Folder() / "invoices.kavelin").string();
    ASSERT_EQ(
        objProgram.Run({"demo", "--profile", "invoices", "--lines", "2000", "--account", account}).exitCode,
        0);
    const auto count = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--account", account, "--format", "json"});
        return json::parse(objProgram.Run(arguments).out).size();
    };
    EXPECT_EQ(count({"lookup", "journal", "cWhCode"}), 5u);
    EXPECT_EQ(count({"lookup", "journal", "cWhCode", "--user", "anna"}), 2u);
    EXPECT_EQ(count({"lookup", "journal", "cDepCode"}), 4u);
    EXPECT_EQ(count({"lookup", "journal", "cDepCode", "--user", "anna"}), 2u);
}

TEST_F(DialogCommandTest, ARunGoesThroughTheDialog)
{
    // By itself the journal shows the month of the login.
    const json rows = RowsOf({"run", "journal", "--columns", "记账日期"});
    ASSERT_FALSE(rows.empty());
    for (const json& row : rows)
        EXPECT_EQ(row.at("记账日期").get<std::string>().substr(0, 7), "2008-12");
    EXPECT_GT(RowsOf({"run", "journal", "--columns", "记账日期", "--set", "iMonth="}).size(), rows.size());

    ExpectRefusal({"run", "standard-cost-journal", "--set", "cDepCode=0301"}, 2,
                  "kavelin: cDepCode: the dialog has locked this field (部门).");
    ExpectRefusal(
        {"run", "journal", "--set", "NoSub.cBusType=x", "--values", "checked", "--set", "iMonth=1999-01"}, 2,
        "kavelin: iMonth: the dialog doesn't offer 1999.01, but 2008.01, 2008.02, 2008.03, 2008.04, 2008.05, "
        "2008.06, 2008.07, 2008.08, 2008.09, 2008.10, 2008.11, 2008.12 and 12 more.");
    ExpectRefusal(
        {"open", "journal", "--row", "1", "--set", "iMonth=2008.03", "--set", "dKeepDate=2008-03-01"}, 2,
        "kavelin: iMonth and dKeepDate both tell the days; give one of them.");
}

TEST_F(DialogCommandTest, ACheckThatRefusesShowsItsMessageAndIsExitCode1)
{
    ExpectRefusal({"run", "goods-summary", "--set", "iUnitNumber=12345"}, 1,
                  "辅计量单位序号不正确，最多四位。\nkavelin: The filter of goods-summary was not accepted.");
    ExpectRefusal({"run", "goods-summary", "--set", "iUnitNumber=12345", "--language", "en-US"}, 1,
                  "The unit number is wrong; four characters at most.\n"
                  "kavelin: The filter of goods-summary was not accepted.");
    ExpectRefusal({"run", "goods-summary", "--set", "iYear="}, 2,
                  "kavelin: goods-summary needs iYear (会计年度): an accounting year, YYYY.");
}

TEST_F(DialogCommandTest, AJournalWithoutAnOpenMonthIsOneLine)
{
    ASSERT_EQ(objProgram.Run({"account", "create", "books.kavelin"}).exitCode, 0);
    for (const std::string command : {"run", "fields"}) {
        const Outcome outcome = objProgram.Run({command, "journal", "--account", "books.kavelin"});
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "kavelin: The account has no month that is open for inventory accounting.\n");
    }
}

}  // namespace
}  // namespace kavelin::cli
