// What a lookup finds by texts that mean something to a database, how its pages join, and values given with
// blanks or not at all.
#include "cli/Demo.h"
#include "cli/Process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace kavelin::cli {
namespace {

using nlohmann::json;

class LookupTest : public testing::Test {
  protected:
    Outcome On(const std::string& account, std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--account", account});
        return objProgram.Run(arguments);
    }

    json RowsOn(const std::string& account, std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--format", "json"});
        const Outcome outcome = On(account, arguments);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
        return json::parse(outcome.out);
    }

    // Refused as wrong use, with that one line.
    void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& line) const
    {
        const Outcome outcome = On(DemoAccount(), arguments);
        EXPECT_EQ(outcome.exitCode, 2) << line;
        EXPECT_EQ(outcome.out, "") << line;
        EXPECT_EQ(outcome.err, "kavelin: " + line + "\n");
    }

    Program objProgram;
};

TEST_F(LookupTest, FindsEachCharacterAsItStands)
{
    ASSERT_EQ(objProgram.Run({"account", "create", "books.kavelin"}).exitCode, 0);
    for (const char* row :
         {"N'9%1', N'100% of O''Brien'", "N'9_2', null", "N'9[3', N'a]b'", "N'913', N'O_Brien[1]'"})
        ASSERT_EQ(On("books.kavelin", {"query", "insert into Warehouse (cWhCode, cWhName, bInCost) values (" +
                                                    std::string(row) + ", 1)"})
                      .exitCode,
                  0);
    const auto found = [&](const std::string& text) {
        std::string codes;
        for (const json& row : RowsOn("books.kavelin", {"lookup", "stock-summary", "cwhcode", text}))
            codes += row.at("仓库编码").get<std::string>() + " ";
        return codes;
    };
    EXPECT_EQ(found("9"), "9%1 913 9[3 9_2 ") << "a row without a name is found by its code";
    EXPECT_EQ(found("9%"), "9%1 ");
    EXPECT_EQ(found("9_"), "9_2 ");
    EXPECT_EQ(found("9["), "9[3 ");
    EXPECT_EQ(found("%"), "9%1 ");
    EXPECT_EQ(found("_"), "913 ");
    EXPECT_EQ(found("["), "913 ");
    EXPECT_EQ(found("[1]"), "913 ");
    EXPECT_EQ(found("]"), "913 9[3 ");
    EXPECT_EQ(found("'"), "9%1 ");
    EXPECT_EQ(found("o'b"), "9%1 ");
    EXPECT_EQ(found("' or '1' = '1"), "");
    EXPECT_EQ(found(" 913 "), "913 ");
}

TEST_F(LookupTest, SaysWhenNothingIsFound)
{
    const Outcome none =
        objProgram.Run({"lookup", "journal", "cWhCode", "no such", "--account", DemoAccount()});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_EQ(none.err, "Nothing found.\n");
    const Outcome some = objProgram.Run({"lookup", "journal", "cWhCode", "--account", DemoAccount()});
    EXPECT_EQ(some.err.find("Nothing found."), std::string::npos);
}

// Batches of several items are rows of equal codes.
TEST_F(LookupTest, GivesEveryRowOnceOverItsPages)
{
    const std::vector<std::string> lookup = {"lookup", "journal", "cBatchia", "--page-size"};
    const auto page = [&](const std::string& size, int number) {
        std::vector<std::string> arguments = lookup;
        arguments.insert(arguments.end(), {size, "--page", std::to_string(number)});
        return RowsOn(DemoAccount(), arguments);
    };
    const json all = page("10000", 1);
    ASSERT_GT(all.size(), 5u);
    EXPECT_EQ(all.at(0).at("批号"), all.at(1).at("批号"));
    json joined = json::array();
    for (int number = 1; joined.size() < all.size(); ++number) {
        const json rows = page("3", number);
        ASSERT_FALSE(rows.empty());
        joined.insert(joined.end(), rows.begin(), rows.end());
    }
    EXPECT_EQ(joined, all);
}

TEST_F(LookupTest, IsNarrowedByAClassThatStandsThereWithBlanks)
{
    const auto items = [&](const std::string& itemClass) {
        return RowsOn(DemoAccount(), {"lookup", "standard-cost-journal", "cInvCode", "--set", itemClass});
    };
    EXPECT_FALSE(items("cInvCCode=0201").empty());
    EXPECT_EQ(items("cInvCCode= 0201 "), items("cInvCCode=0201"));
    EXPECT_EQ(items("cInvCCode=  "), items("cInvCCode="));
}

TEST_F(LookupTest, ARunTakesSeveralCodesAlsoWithBlanksBetweenThem)
{
    const auto rows = [&](const std::string& warehouses) {
        return RowsOn(DemoAccount(), {"run", "turnover", "--set", "iperiod=2008-01-01..2008-12-31", "--set",
                                      "cwhcode=" + warehouses});
    };
    EXPECT_NE(rows("01"), rows("01,02"));
    EXPECT_EQ(rows("01, 02"), rows("01,02"));
}

TEST_F(LookupTest, AClearedFieldWithoutWhichTheDialogCannotGoOnIsNamed)
{
    const std::string year = "Type mismatch: \"\" is no number; it takes an accounting year, YYYY.";
    ExpectRefusal({"run", "estimate-balance", "--set", "ia_subsidiary.iyear="},
                  "ia_subsidiary.iyear: " + year);
    ExpectRefusal({"run", "abc", "--set", "iyear="}, "iyear: " + year);
    ExpectRefusal({"lookup", "abc", "cinvcode", "--set", "iyear="}, "iyear: " + year);
    ExpectRefusal(
        {"run", "price-analysis", "--set", "avgPrice="},
        "price-analysis needs avgPrice (平均价格期间): a month of a year, YYYY.MM, or a range FROM..TO.");
}

}  // namespace
}  // namespace kavelin::cli
