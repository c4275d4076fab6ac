// The filter of the detail ledger by cost item: items in, conditions out.
#include "frame/Text.h"
#include "goods/DetailFilter.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kFreeStart = " and 1=1 ";

struct Walk {
    DetailConditions conditions;
    std::vector<std::int32_t> tokens;
};

Walk Read(RecordingHost& host, const std::vector<FakeField>& fields, const std::string& token = "T")
{
    host.OpenAccount();
    host.SetFilter(fields);
    host.Filter()->whereByToken[0] = token;
    const DetailConditions conditions = ReadDetailFilter(*host.Filter());
    return {conditions, host.Filter()->Tokens()};
}

Walk Read(const std::vector<FakeField>& fields, const std::string& token = "T")
{
    RecordingHost host;
    return Read(host, fields, token);
}

// A filter on an item with ten free items, of which the user filled in the one of `filled`.
std::vector<FakeField> OfItem(int filled = 0)
{
    std::vector<FakeField> fields = {{"IA_EnSubsidiary.iYear", "2008"}, {"IA_EnSubsidiary.cInvCode", "A"}};
    for (int i = 1; i <= 10; ++i)
        fields.push_back({"IA_EnSubsidiary.cFree" + std::to_string(i), i == filled ? "X" : ""});
    return fields;
}

// The ledger has a first combination of free items: these, from the first on.
void SetFound(RecordingHost& host, const std::vector<Value>& values)
{
    Rows rows = {{"cInvCode"}, {{"A"}}};
    for (std::size_t i = 0; i < 10; ++i) {
        rows.fields.push_back("cfree" + std::to_string(i + 1));
        rows.rows[0].push_back(i < values.size() ? values[i] : Value(""));
    }
    host.Script().rows[SelectFreeItems("A", "2008")] = rows;
}

}  // namespace

TEST(ReadDetailFilter, LeavesYearInventoryAndUnknownKeysToTheFilter)
{
    const std::vector<std::pair<const char*, std::int32_t>> keys = {
        {"IA_EnSubsidiary.iYear", 0},
        {"IA_EnSubsidiary.iMonth", 1},
        {"CostItem", 1},
        {"Ia_Ensubsidiary.cBustype", 1},
        {"IA_EnSubsidiary.cInvCode", 0},
        {"IA_EnSubsidiary.cFree1", 0},
        {"IA_EnSubsidiary.cWhCode", 0},
        {"Ia_Ensubsidiary.dVouDate", 0},
        {"iUnitNumber", 0},
        {"ia_ensubsidiary.IMONTH", 1},
        {"COSTITEM", 1},
        {"IA_ENSUBSIDIARY.CBUSTYPE", 1},
    };
    for (const auto& [key, token] : keys)
        EXPECT_EQ(Read({{key, ""}}).tokens, std::vector<std::int32_t>{token}) << key;
}

TEST(ReadDetailFilter, HasNoMonthsWithoutTheirItem)
{
    const DetailConditions read = Read({{"IA_EnSubsidiary.iYear", "2008"}}).conditions;
    EXPECT_EQ(read.strOpenWhere, "T and  ( ia_ensubsidiary.imonth  = 0 )  and 1=1 ");
    EXPECT_EQ(read.strMoveWhere, "T and 1 = 1  and 1=1 ");
    EXPECT_EQ(read.strResultMonths, " and 1=1 ");
    EXPECT_EQ(read.strYear, "2008");
    EXPECT_EQ(read.strCostItem, "0");
}

TEST(ReadDetailFilter, LimitsByTheDigitsOfTheMonths)
{
    const struct {
        const char *from, *to, *opening, *months;
    } cases[] = {
        {"3月", "12月", "3", " And {} Between N'3' And '12' "},
        {" 3 月", "7月", "3", " And {} Between N'3' And '7' "},
        {"10月", "", "10", " And {} >= N'10'"},
        {"月", "7月", "", " And {}  <= N'7'"},
        {"月", "月", "", ""},
    };
    for (const auto& c : cases) {
        const DetailConditions read = Read({{"IA_EnSubsidiary.iMonth", c.from, c.to}}).conditions;
        const auto months = [&](const char* column) { return ReplaceAll(c.months, "{}", column); };
        EXPECT_EQ(read.strOpenWhere, "T and  ( ia_ensubsidiary.imonth  = 0  or IA_EnSubsidiary.imonth < '" +
                                         std::string(c.opening) + "')  and 1=1 ");
        EXPECT_EQ(read.strMoveWhere, "T and 1 = 1 " + months("IA_EnSubsidiary.imonth") + kFreeStart);
        EXPECT_EQ(read.strResultMonths, " and 1=1 " + months("a.imonth"));
    }
}

TEST(ReadDetailFilter, ChoosesAllMonthsWhereNoneIsChosenAndTellsTheFilter)
{
    for (const char* to : {"", "3月"}) {
        RecordingHost host;
        const DetailConditions read = Read(host, {{"IA_EnSubsidiary.iMonth", "", to}}).conditions;
        EXPECT_EQ(host.Filter()->From("IA_EnSubsidiary.iMonth"), Value("1月"));
        EXPECT_EQ(host.Filter()->To("IA_EnSubsidiary.iMonth"), Value("12月"));
        EXPECT_EQ(read.strMoveWhere,
                  "T and 1 = 1  And IA_EnSubsidiary.imonth Between N'1' And '12'  and 1=1 ");
        EXPECT_NE(read.strOpenWhere.find(" or IA_EnSubsidiary.imonth < '1')"), std::string::npos);
    }
}

TEST(ReadDetailFilter, LimitsByTheBusinessTypeAndReadsTheCostItem)
{
    const DetailConditions read =
        Read({{"Ia_Ensubsidiary.cBustype", "普通销售"}, {"CostItem", "5"}}).conditions;
    const std::string business = "  and (Ia_Ensubsidiary.cBustype= N'普通销售') ";
    EXPECT_EQ(read.strOpenWhere, "T" + business + " and  ( ia_ensubsidiary.imonth  = 0 )  and 1=1 ");
    EXPECT_EQ(read.strMoveWhere, "T" + business + " and 1 = 1  and 1=1 ");
    EXPECT_EQ(read.strCostItem, "5");
    EXPECT_EQ(Read({{"CostItem", ""}}).conditions.strCostItem, "0");
}

TEST(ReadDetailFilter, MakesNoConditionsOnLinesOfAFilterThatLeavesNothing)
{
    const DetailConditions read = Read({{"IA_EnSubsidiary.iMonth", "3月", "7月"}}, "").conditions;
    EXPECT_EQ(read.strOpenWhere, "");
    EXPECT_EQ(read.strMoveWhere, "");
    EXPECT_EQ(read.strResultMonths, " and 1=1  And a.imonth Between N'3' And '7' ");
}

TEST(ReadDetailFilter, AsksForFreeItemsOfAChosenInventoryOnly)
{
    RecordingHost none;
    Read(none, {{"IA_EnSubsidiary.iYear", "2008"}, {"IA_EnSubsidiary.cInvCode", ""}});
    EXPECT_TRUE(none.Sent().empty());

    RecordingHost host;
    Read(host, OfItem());
    ASSERT_EQ(host.Sent().size(), 1u);
    EXPECT_EQ(host.Sent()[0].sql, SelectFreeItems("A", "2008"));
}

TEST(ReadDetailFilter, KnowsTheYearWhereverItStandsAmongTheItems)
{
    RecordingHost host;
    Read(host, {{"IA_EnSubsidiary.cInvCode", "A"}, {"IA_EnSubsidiary.iYear", "2008"}});
    EXPECT_EQ(host.Sent()[0].sql, SelectFreeItems("A", "2008"));
}

TEST(ReadDetailFilter, TakesTheFirstCombinationFoundForFreeItemsLeftEmpty)
{
    RecordingHost host;
    SetFound(host, {"红", "", Value::Null(), "大"});
    const DetailConditions read = Read(host, OfItem()).conditions;
    EXPECT_EQ(read.strOpenWhere,
              "T and  ( ia_ensubsidiary.imonth  = 0 )  and 1=1  and cfree1=N'红' and cfree4=N'大'");
    EXPECT_EQ(read.strMoveWhere, "T and 1 = 1  and 1=1  and cfree1=N'红' and cfree4=N'大'");
}

TEST(ReadDetailFilter, LeavesAFreeItemThatTheUserFilledInToTheFilter)
{
    RecordingHost host;
    SetFound(host, {"红", "小"});
    EXPECT_EQ(Read(host, OfItem(1)).conditions.strMoveWhere, "T and 1 = 1  and 1=1  and cfree2=N'小'");
}

TEST(ReadDetailFilter, LimitsNothingWhereTheLedgerHasNoLineOfTheInventory)
{
    RecordingHost host;
    EXPECT_EQ(Read(host, OfItem()).conditions.strMoveWhere, "T and 1 = 1  and 1=1 ");
    EXPECT_EQ(host.Events().Text().find("GetFieldValue"), std::string::npos);
}

// It looks like a slip, and it is wanted: the flag, which is 0 or 1, is compared with the item's number.
TEST(SelectFreeItems, ComparesTheFlagOfAFreeItemWithItsNumber)
{
    const std::string sql = SelectFreeItems("A", "2008");
    EXPECT_TRUE(
        sql.starts_with("select top 1 a.cInvCode,\r\n"
                        "case when b.bCheckFree1 = 1 then a.cFree1 else N'' end as cfree1,"
                        "case when b.bCheckFree2 = 2 then a.cFree2 else N'' end as cfree2,"))
        << sql;
    EXPECT_NE(sql.find("where a.cInvCode ='A' and a.iYear =2008\r\ngroup by a.cInvCode ,\r\n"
                       "case when b.bCheckFree1 = 1 then a.cFree1 else N'' end,"),
              std::string::npos)
        << sql;
    EXPECT_TRUE(sql.ends_with("case when b.bCheckFree10 = 10 then a.cFree10 else N'' end")) << sql;
}

}  // namespace kavelin::test
