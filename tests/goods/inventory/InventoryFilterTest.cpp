// The filter of the summary by cost item: items in, conditions out.
#include "goods/InventoryFilter.h"
#include "support/FakeFilter.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kYearWhere = "IA_EnSubsidiary.iYear = N'2008'";

struct Walk {
    InventoryConditions conditions;
    std::vector<std::int32_t> tokens;
};

Walk Read(const std::vector<FakeField>& fields, const std::string& token = kYearWhere)
{
    FakeFilter filter(std::make_shared<EventLog>(), fields);
    filter.whereByToken[0] = token;
    filter.where = "a token that nobody asked for";
    const InventoryConditions conditions = ReadCostFilter(filter);
    return {conditions, filter.Tokens()};
}

}  // namespace

TEST(ReadCostFilter, LeavesYearAndUnknownKeysToTheFilterAndKeepsTheOthers)
{
    const std::vector<std::pair<const char*, std::int32_t>> keys = {
        {"IA_EnSubsidiary.iYear", 0},
        {"CostItem", 1},
        {"Ia_Ensubsidiary.cBustype", 1},
        {"d.cCode", 0},
        {"b.cDLCode", 0},
        {"iUnitNumber", 1},
        {"Ia_Ensubsidiary.dVouDate", 1},
        {"Ia_Ensubsidiary.dKeepDate", 1},
        {"Inventory.cInvCCode", 0},
        {"IA_EnSubsidiary.cInvCode", 0},
        {"ia_ensubsidiary.IYEAR", 0},
        {"COSTITEM", 1},
        {"IA_ENSUBSIDIARY.CBUSTYPE", 1},
        {"IUNITNUMBER", 1},
        {"IA_ENSUBSIDIARY.DVOUDATE", 1},
        {"iYear", 0},
    };
    for (const auto& [key, token] : keys)
        EXPECT_EQ(Read({{key, ""}}).tokens, std::vector<std::int32_t>{token}) << key;
}

TEST(ReadCostFilter, BeginsWithTheLinesBroughtForwardAndTheLinesOfAllMonths)
{
    const InventoryConditions read = Read({{"IA_EnSubsidiary.iYear", "2008"}}).conditions;
    EXPECT_EQ(read.strOpenWhere, std::string(kYearWhere) + " and  ( ia_ensubsidiary.imonth  = 0 ) ");
    EXPECT_EQ(read.strMoveWhere, std::string(kYearWhere) + " and 1 = 1 ");
    EXPECT_EQ(read.strYear, "2008");
    EXPECT_EQ(read.strCostItem, "0");
    EXPECT_EQ(read.lngUnitNumber, 0);
}

TEST(ReadCostFilter, LimitsByDates)
{
    const struct {
        FakeField field;
        const char *opening, *movement;
    } cases[] = {
        {{"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"},
         " or Ia_Ensubsidiary.dVouDate < '2008-07-01'",
         " and Ia_Ensubsidiary.dVouDate Between N'2008-07-01' And N'2008-07-31' "},
        {{"Ia_Ensubsidiary.dVouDate", "2008-07-01", ""},
         " or Ia_Ensubsidiary.dVouDate < '2008-07-01'",
         " And Ia_Ensubsidiary.dVouDate >= N'2008-07-01'"},
        {{"Ia_Ensubsidiary.dVouDate", "", "2008-07-31"},
         "",
         " And Ia_Ensubsidiary.dVouDate <= N'2008-07-31'"},
        {{"Ia_Ensubsidiary.dVouDate", "", ""}, "", ""},
        {{"Ia_Ensubsidiary.dKeepDate", "2008-07-01", ""},
         " or Ia_Ensubsidiary.dKeepDate < '2008-07-01'",
         " And Ia_Ensubsidiary.dKeepDate >= N'2008-07-01'"},
        {{"Ia_Ensubsidiary.dKeepDate", "", "2008-07-31"},
         "",
         " And Ia_Ensubsidiary.dKeepDate <= N'2008-07-31'"},
    };
    for (const auto& c : cases) {
        const InventoryConditions read = Read({c.field}, "T").conditions;
        EXPECT_EQ(read.strOpenWhere, "T and  ( ia_ensubsidiary.imonth  = 0 " + std::string(c.opening) + ") ");
        EXPECT_EQ(read.strMoveWhere, "T and 1 = 1 " + std::string(c.movement));
    }
}

// It looks like a slip, and it is wanted: the document's date has an N before both quotes.
TEST(ReadCostFilter, WritesThePlainSecondQuoteBetweenTwoPostingDates)
{
    EXPECT_EQ(Read({{"Ia_Ensubsidiary.dKeepDate", "2008-07-01", "2008-07-31"}}, "T").conditions.strMoveWhere,
              "T and 1 = 1  And Ia_Ensubsidiary.dKeepDate Between N'2008-07-01' And '2008-07-31' ");
}

TEST(ReadCostFilter, LimitsByTheBusinessType)
{
    const struct {
        const char *value, *clause;
    } cases[] = {
        {"委托代销", " and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') "},
        {"普通销售", "  and (Ia_Ensubsidiary.cBustype= N'普通销售') "},
        {"分期收款", "  and (Ia_Ensubsidiary.cBustype= N'分期收款') "},
        {"全部", " "},
        {"", " "},
    };
    for (const auto& c : cases) {
        const InventoryConditions read = Read({{"Ia_Ensubsidiary.cBustype", c.value}}, "T").conditions;
        EXPECT_EQ(read.strMoveWhere, "T" + std::string(c.clause) + " and 1 = 1 ");
        EXPECT_EQ(read.strOpenWhere, "T" + std::string(c.clause) + " and  ( ia_ensubsidiary.imonth  = 0 ) ");
    }
}

TEST(ReadCostFilter, TakesAnEmptyCostItemForAllItems)
{
    EXPECT_EQ(Read({{"CostItem", ""}}).conditions.strCostItem, "0");
    EXPECT_EQ(Read({{"CostItem", Value::Null()}}).conditions.strCostItem, "0");
    EXPECT_EQ(Read({{"CostItem", "3"}}).conditions.strCostItem, "3");
    EXPECT_EQ(Read({{"CostItem", 3}}).conditions.strCostItem, "3");
}

TEST(ReadCostFilter, ReadsTheUnitsNumber)
{
    EXPECT_EQ(Read({{"iUnitNumber", ""}}).conditions.lngUnitNumber, 0);
    EXPECT_EQ(Read({{"iUnitNumber", "-"}}).conditions.lngUnitNumber, 0);
    EXPECT_EQ(Read({{"iUnitNumber", "2"}}).conditions.lngUnitNumber, 2);
}

TEST(ReadCostFilter, MakesNoConditionsOfAFilterThatLeavesNothing)
{
    const InventoryConditions read =
        Read({{"Ia_Ensubsidiary.cBustype", "普通销售"}, {"Ia_Ensubsidiary.dVouDate", "2008-07-01", ""}}, "")
            .conditions;
    EXPECT_EQ(read.strOpenWhere, "");
    EXPECT_EQ(read.strMoveWhere, "");
}

}  // namespace kavelin::test
