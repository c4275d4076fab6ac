// Filter of the goods-in-transit summary, alone.
#include "frame/Errors.h"
#include "goods/GoodsClauses.h"
#include "goods/GoodsSumFilter.h"
#include "support/FakeFilter.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kavelin::test {

namespace {

const std::string kToken = "IA_EnSubsidiary.iYear = 2008";

struct Read {
    GoodsSumConditions conditions;
    std::vector<std::int32_t> tokens;
};

Read ReadFilter(const std::vector<FakeField>& fields, const std::string& token = kToken)
{
    FakeFilter filter(std::make_shared<EventLog>(), fields);
    filter.whereByToken[0] = token;
    Read read;
    ReadGoodsFilter(filter, read.conditions);
    read.tokens = filter.Tokens();
    return read;
}

}  // namespace

TEST(ReadGoodsFilter, PutsTheConditionsOfTheFilterBeforeItsOwn)
{
    const GoodsSumConditions conditions = ReadFilter({}).conditions;
    EXPECT_EQ(conditions.strOpenWhere, kToken + " and  ( ia_ensubsidiary.imonth  = 0 ) ");
    EXPECT_EQ(conditions.strMoveWhere, kToken + " and 1 = 1 ");
    EXPECT_EQ(conditions.lngUnitNumber, 0);
    EXPECT_EQ(conditions.strYear, "");
}

TEST(ReadGoodsFilter, LeavesBothWheresEmptyWhereTheFilterWordsNothing)
{
    const GoodsSumConditions conditions =
        ReadFilter({{"Inventory.cInvCCode", "01"}, {"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"}},
                   "")
            .conditions;
    EXPECT_EQ(conditions.strOpenWhere, "");
    EXPECT_EQ(conditions.strMoveWhere, "");
}

TEST(ReadGoodsFilter, MarksWhatItReadsAndLeavesTheYearAndAllOthersToTheFilter)
{
    const Read read = ReadFilter({{"Inventory.cInvCCode", "01"},
                                  {"ia_ensubsidiary.CBUSTYPE", "全部"},
                                  {"IUNITNUMBER", "2"},
                                  {"ia_ensubsidiary.dvoudate", "2008-07-01"},
                                  {"ia_ensubsidiary.dkeepdate", "", ""},
                                  {"IYEAR", "2008"},
                                  {"IsMerge", "是"},
                                  {"DispatchList.cDLCode", "D1", "D2"}});
    EXPECT_EQ(read.tokens, (std::vector<std::int32_t>{1, 1, 1, 1, 1, 0, 0, 0}));
    EXPECT_EQ(read.conditions.strYear, "2008");
    EXPECT_EQ(read.conditions.lngUnitNumber, 2);
}

TEST(ReadGoodsFilter, MatchesInventoryClassesByTheirBeginningAlsoAnEmptyOne)
{
    for (const char* value : {"0101", ""}) {
        const GoodsSumConditions conditions = ReadFilter({{"Inventory.cInvCCode", value}}).conditions;
        const std::string clause = std::string(" and Inventory.cInvCCode Like N'") + value + "%'";
        EXPECT_EQ(conditions.strOpenWhere, kToken + " and  ( ia_ensubsidiary.imonth  = 0 ) " + clause);
        EXPECT_EQ(conditions.strMoveWhere, kToken + " and 1 = 1 " + clause);
    }
}

TEST(ReadGoodsFilter, LimitsThreeBusinessTypesAndNoOther)
{
    const struct {
        Value value;
        const char* clause;
    } cases[] = {
        {"委托代销", " and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') "},
        {"普通销售", "  and (Ia_Ensubsidiary.cBustype= N'普通销售') "},
        {"分期收款", "  and (Ia_Ensubsidiary.cBustype= N'分期收款') "},
        {"全部", " "},
        {"委托", " "},
        {"", " "},
        {Value::Null(), " "},
    };
    for (const auto& c : cases) {
        const GoodsSumConditions conditions = ReadFilter({{"Ia_Ensubsidiary.cBustype", c.value}}).conditions;
        EXPECT_EQ(conditions.strOpenWhere, kToken + c.clause + " and  ( ia_ensubsidiary.imonth  = 0 ) ");
        EXPECT_EQ(conditions.strMoveWhere, kToken + c.clause + " and 1 = 1 ");
    }
}

TEST(ReadGoodsFilter, AppendsEachBusinessTypeToThoseBefore)
{
    EXPECT_EQ(ReadFilter({{"Ia_Ensubsidiary.cBustype", "普通销售"}, {"Ia_Ensubsidiary.cBustype", "全部"}})
                  .conditions.strMoveWhere,
              kToken + "  and (Ia_Ensubsidiary.cBustype= N'普通销售')   and 1 = 1 ");
}

// The second quote of two posting dates is a plain one, that of two document dates is not.
TEST(ReadGoodsFilter, OpensWithTheDaysBeforeThePeriodAndMovesWithin)
{
    const struct {
        const char *key, *from, *to, *opening, *movement;
    } cases[] = {
        {"Ia_Ensubsidiary.dVouDate", "F", "T", " or Ia_Ensubsidiary.dVouDate < 'F'",
         " and Ia_Ensubsidiary.dVouDate Between N'F' And N'T' "},
        {"Ia_Ensubsidiary.dVouDate", "F", "", " or Ia_Ensubsidiary.dVouDate < 'F'",
         " And Ia_Ensubsidiary.dVouDate >= N'F'"},
        {"Ia_Ensubsidiary.dVouDate", "", "T", "", " And Ia_Ensubsidiary.dVouDate <= N'T'"},
        {"Ia_Ensubsidiary.dVouDate", "", "", "", ""},
        {"Ia_Ensubsidiary.dKeepDate", "F", "T", " or Ia_Ensubsidiary.dKeepDate < 'F'",
         " And Ia_Ensubsidiary.dKeepDate Between N'F' And 'T' "},
        {"Ia_Ensubsidiary.dKeepDate", "F", "", " or Ia_Ensubsidiary.dKeepDate < 'F'",
         " And Ia_Ensubsidiary.dKeepDate >= N'F'"},
        {"Ia_Ensubsidiary.dKeepDate", "", "T", "", " And Ia_Ensubsidiary.dKeepDate <= N'T'"},
        {"Ia_Ensubsidiary.dKeepDate", "", "", "", ""},
    };
    for (const auto& c : cases) {
        const GoodsSumConditions conditions = ReadFilter({{c.key, c.from, c.to}}).conditions;
        EXPECT_EQ(conditions.strOpenWhere,
                  kToken + " and  ( ia_ensubsidiary.imonth  = 0 " + c.opening + ") ");
        EXPECT_EQ(conditions.strMoveWhere, kToken + " and 1 = 1 " + c.movement);
    }
}

TEST(ReadGoodsFilter, TakesDatesAsTheHostGivesThem)
{
    const DateTime day = std::chrono::sys_days(std::chrono::year(2008) / 7 / 1);
    EXPECT_EQ(ReadFilter({{"Ia_Ensubsidiary.dVouDate", day}}).conditions.strMoveWhere,
              kToken + " and 1 = 1  And Ia_Ensubsidiary.dVouDate >= N'2008-07-01'");
}

TEST(ReadGoodsFilter, CountsAnEmptyUnitNumberAndADashAsNone)
{
    const struct {
        Value value;
        std::int32_t number;
    } cases[] = {{"", 0}, {"-", 0}, {Value::Null(), 0}, {Value(), 0}, {"3", 3}, {2, 2}};
    for (const auto& c : cases)
        EXPECT_EQ(ReadFilter({{"iUnitNumber", c.value}}).conditions.lngUnitNumber, c.number);
    EXPECT_THROW(ReadFilter({{"iUnitNumber", "box"}}), ConversionError);
}

TEST(ReadGoodsFilter, KeepsYearAndUnitOfAnEarlierFilterThatNamedThem)
{
    GoodsSumConditions conditions;
    FakeFilter first(std::make_shared<EventLog>(), {{"iYear", "2008"}, {"iUnitNumber", "2"}});
    ReadGoodsFilter(first, conditions);
    FakeFilter second(std::make_shared<EventLog>(), {});
    ReadGoodsFilter(second, conditions);
    EXPECT_EQ(conditions.strYear, "2008");
    EXPECT_EQ(conditions.lngUnitNumber, 2);
    EXPECT_EQ(conditions.strMoveWhere, "");
}

TEST(JoinGoodsUnit, TakesTheStockUnitUnlessANumberIsChosen)
{
    EXPECT_EQ(JoinGoodsUnit(0),
              "Left join ComputationUnit on Inventory.cSTComUnitCode=ComputationUnit.cComunitcode ");
    EXPECT_EQ(JoinGoodsUnit(2),
              "Left join ComputationUnit on  Inventory.cGroupCode=ComputationUnit.cGroupcode"
              " and ComputationUnit.bmainunit=0 and ComputationUnit.inumber=2");
}

}  // namespace kavelin::test
