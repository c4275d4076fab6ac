// What the summary by cost item gives on a small account. The arithmetic of the rows stands beside each case.
#include "goods/ClsFCInventory.h"
#include "goods/CostAccount.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kYearWhere = "IA_EnSubsidiary.iYear = N'2008'";
constexpr const char* kWorkTable = "tempdb..[FCSFCItemMACHINE7]";

constexpr const char* kTotals =
    "iSrcID,Q_Qty,Q_Total_StanCost,Q_Total_Dif,Q_Total_RealCost,R_Qty,R_Total_StanCost,R_Total_Dif,"
    "R_Total_RealCost,D_Qty,D_Total_StanCost,D_Total_Dif,D_Total_RealCost,E_Qty,E_Total_StanCost,E_Total_Dif,"
    "E_Total_RealCost";

class CostSummary : public testing::Test {
  protected:
    CostSummary()
    {
        host.Answers().sql = "tempdb..costs";
        host.Run("insert into AccInformation (cSysID, cName, cValue) values ('CA', 'iCyFtMethod', '1')");
    }

    // Runs the report on the year and `fields`.
    void Run(std::vector<FakeField> fields = {}, const std::string& token = kYearWhere)
    {
        host.Run(
            "if exists (select * from tempdb..sysobjects where name = 'costs') drop table tempdb..costs");
        fields.push_back({"IA_EnSubsidiary.iYear", "2008"});
        host.SetFilter(fields);
        host.Filter()->whereByToken[0] = token;
        ClsFCInventory().GETSQL(*host.EarlyArgument());
        ASSERT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set")
            << host.Events().Text();
    }

    // The rows of `columns` without their names.
    std::string Rows(const std::string& columns)
    {
        const std::string rows =
            host.Query("select " + columns + " from tempdb..costs order by iSrcID, cSRcVoutype");
        return rows.substr(rows.find('\n') + 1);
    }

    // The names of the columns behind `ipzid`.
    std::string CostNames()
    {
        const std::string rows = host.Query("select top 0 * from tempdb..costs");
        const std::string begin = ",ipzid,";
        return rows.substr(rows.find(begin) + begin.size());
    }

    CostAccount host;
};

const std::vector<FakeField> kJuly = {{"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"}};

}  // namespace

// Dispatched: 10 of standard 50+20+5+3+2 = 80, differences 1-2 +3+4-5 +6+7+8 -1-1-1 +2+2 = 23, real 103. Invoiced
// 4 of them: standard 20+8+2+1+1 = 32, no differences. Left: 6 of 48, 23, 71.
TEST_F(CostSummary, SplitsWhatComesAndGoesIntoStandardDifferencesAndReal)
{
    host.AddLine({.quantity = "10", .amount = "103"}, {"50,20,5,3,2", "1,-2, 3,4,-5, 6,7,8, -1,-1,-1, 2,2"});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "4", .amount = "32"},
                 {"20,8,2,1,1", ""});
    Run();
    EXPECT_EQ(Rows(kTotals),
              "1,,0.0000,0.0000,0.0000,10,80.0000,23.0000,103.0000,4,32.0000,0.0000,32.0000,"
              "6,48.0000,23.0000,71.0000\n");
    EXPECT_EQ(Rows("R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost"), "50.0000,1.0000,-2.0000,49.0000\n");
    EXPECT_EQ(Rows("R_Labor_StanCost,R_Labor_PrcDif,R_Labor_QuaDif,R_Labor_SemiDif,R_Labor_RealCost"),
              "20.0000,3.0000,4.0000,-5.0000,22.0000\n");
    EXPECT_EQ(
        Rows("R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost"),
        "5.0000,6.0000,7.0000,8.0000,26.0000\n");
    EXPECT_EQ(
        Rows("R_ManuVar_StanCost,R_ManuVar_PrcDif,R_ManuVar_QuaDif,R_ManuVar_SemiDif,R_ManuVar_RealCost"),
        "3.0000,-1.0000,-1.0000,-1.0000,0.0000\n");
    EXPECT_EQ(Rows("R_Omp_StanCost,R_Omp_Dif,R_Omp_SemiDif,R_Omp_RealCost"), "2.0000,2.0000,2.0000,6\n");
    EXPECT_EQ(Rows("D_M_StanCost,D_M_PrcDif,D_M_RealCost,E_M_StanCost,E_M_PrcDif,E_M_QuaDif,E_M_RealCost"),
              "20.0000,,20.0000,30.0000,1.0000,-2.0000,29.0000\n");
    EXPECT_EQ(Rows("E_Omp_StanCost,E_Omp_Dif,E_Omp_SemiDif,E_Omp_RealCost"), "1.0000,2.0000,2.0000,5\n");
}

// Brought forward 10 for 80 + 23, of month 0 whatever its date: 4 of standard 32 go out in July.
TEST_F(CostSummary, BringsALineOfMonthZeroIntoTheOpening)
{
    host.AddLine({.quantity = "10", .month = "0"}, {"50,20,5,3,2", "1,-2, 3,4,-5, 6,7,8, -1,-1,-1, 2,2"});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "4"}, {"20,8,2,1,1", ""});
    Run(kJuly);
    EXPECT_EQ(Rows(kTotals),
              "1,10,80.0000,23.0000,103.0000,,0.0000,0.0000,0.0000,4,32.0000,0.0000,32.0000,"
              "6,48.0000,23.0000,71.0000\n");
}

// June: 10 in for 80, 3 out for 24, so July opens with 7 for 56, of material 50 - 15 = 35. July: 2 out for 16.
TEST_F(CostSummary, SubtractsIssuesOfRealMonthsBeforeThePeriodInTheOpening)
{
    host.AddLine({.quantity = "10", .month = "6", .date = "'2008-06-10'"},
                 {"50,20,5,3,2", "0,4, 0,0,0, 0,0,0, 0,0,0, 0,0"});
    host.AddLine(
        {.document = 2, .type = "'26'", .in = false, .quantity = "3", .month = "6", .date = "'2008-06-20'"},
        {"15,6,1.5,0.9,0.6", "0,1, 0,0,0, 0,0,0, 0,0,0, 0,0"});
    host.AddLine({.document = 3, .type = "'26'", .in = false, .quantity = "2"}, {"10,4,1,0.6,0.4", ""});
    Run(kJuly);
    EXPECT_EQ(Rows(kTotals),
              "1,7,56.0000,3.0000,59.0000,,0.0000,0.0000,0.0000,2,16.0000,0.0000,16.0000,"
              "5,40.0000,3.0000,43.0000\n");
    EXPECT_EQ(Rows("Q_M_StanCost,Q_M_QuaDif,Q_M_RealCost"), "35.0000,3.0000,38.0000\n");
}

// A line without a month is none of the opening's and none of the period's; one behind the period neither.
TEST_F(CostSummary, LeavesOutLinesWithoutAMonthAndBehindThePeriod)
{
    host.AddLine({.quantity = "10", .month = "null"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "10", .month = "8", .date = "'2008-08-01'"}, {"50,20,5,3,2", ""});
    Run(kJuly);
    EXPECT_EQ(Rows(kTotals), "");
}

// The second line has neither standard costs nor differences: 10 + 5 in quantity, its costs are null; where all
// lines have none the sums are null, and the end and the totals take them as 0.
TEST_F(CostSummary, CountsALineWithoutCostsInTheQuantities)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.document = 2, .quantity = "5"});
    host.AddLine({.source = 3, .quantity = "7"});
    Run();
    EXPECT_EQ(Rows("iSrcID,R_Qty,R_M_StanCost,R_M_PrcDif,R_M_RealCost,E_Qty,E_M_StanCost,R_Total_StanCost,"
                   "E_Total_RealCost"),
              "1,15,50.0000,,50.0000,15,50.0000,80.0000,80.0000\n"
              "3,7,,,0.0000,7,0.0000,0.0000,0.0000\n");
}

// It looks like a slip, and it is wanted: an issue that carries a quantity in, 4, adds it to what was received,
// while its costs are those of an issue.
TEST_F(CostSummary, SumsTheQuantityColumnsWithoutATestOfTheDirection)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "3"}, {"15,6,1.5,0.9,0.6", ""});
    host.Run("update IA_EnSubsidiary set iAInQuantity = 4 where inid = 2");
    Run();
    EXPECT_EQ(Rows("R_Qty,R_Total_StanCost,D_Qty,D_Total_StanCost,E_Qty,E_Total_StanCost"),
              "14,80.0000,3,24.0000,11,56.0000\n");
}

// An adjustment has an amount and no quantity.
TEST_F(CostSummary, AddsAdjustmentsOfCostsAlone)
{
    host.AddLine({.quantity = "10", .month = "0"}, {"50,20,5,3,2", ""});
    host.AddLine({.document = 2, .type = "'66'"}, {"1,0,0,0,0", "0.5,0, 0,0,0, 0,0,0, 0,0,0, 0,0"});
    Run();
    EXPECT_EQ(Rows("Q_Qty,R_Qty,E_Qty,R_Total_StanCost,R_Total_Dif,E_Total_StanCost,E_Total_RealCost"),
              "10,,10,1.0000,0.5000,81.0000,81.5000\n");
}

// The rows of the work table hold the opening and the movement of a source line apart; only their sums are the
// whole.
TEST_F(CostSummary, HasPartialEndBalancesInTheWorkTable)
{
    host.AddLine({.quantity = "10", .month = "0"}, {"50,20,5,3,2", ""});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "4"}, {"20,8,2,1,1", ""});
    Run();
    EXPECT_EQ(host.Query(std::string("select E_Qty,E_Total_StanCost from ") + kWorkTable + " order by E_Qty"),
              "E_Qty,E_Total_StanCost\n-4,-32.0000\n10,80.0000\n");
    EXPECT_EQ(Rows("E_Qty,E_Total_StanCost"), "6,48.0000\n");
}

TEST_F(CostSummary, FillsNothingPerUnit)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", "1,-2, 3,4,-5, 6,7,8, -1,-1,-1, 2,2"});
    Run();
    EXPECT_EQ(host.Query(std::string("select R_Total_UnitCost,R_M_UnitPrcDif,E_Omp_UnitRealCost from ") +
                         kWorkTable),
              "R_Total_UnitCost,R_M_UnitPrcDif,E_Omp_UnitRealCost\n,,\n");
}

// The real cost of outsourced processing is a float like a unit cost, all other amounts are money. It looks like
// a slip, and it is wanted.
TEST_F(CostSummary, HasTheRealCostOfOutsourcedProcessingAsAFloat)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", "0,0, 0,0,0, 0,0,0, 0,0,0, 0.25,0"});
    Run();
    EXPECT_EQ(Rows("R_Omp_StanCost,R_Omp_RealCost,E_Omp_RealCost,R_ManuVar_RealCost,R_Total_RealCost"),
              "2.0000,2.25,2.25,3.0000,80.2500\n");
}

TEST_F(CostSummary, HasOneRowForEachSourceLine)
{
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 1, .sourceType = "'3201'", .type = "'3201'", .quantity = "20"},
                 {"1,0,0,0,0", ""});
    host.AddLine({.source = 2, .quantity = "30"}, {"2,0,0,0,0", ""});
    Run();
    EXPECT_EQ(Rows("iSrcID,cSRcVoutype,cDLCode,cCode,R_Qty,R_Total_StanCost"),
              "1,05,D1,,10,80.0000\n"
              "1,3201,,D1,20,1.0000\n"
              "2,05,D2,,30,2.0000\n");
}

// Everything came and went: it moved, so it shows. What never moved at all doesn't.
TEST_F(CostSummary, ShowsARowIfAnythingOfItIsNotZero)
{
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 1, .document = 2, .type = "'26'", .in = false, .quantity = "10"},
                 {"50,20,5,3,2", ""});
    host.AddLine({.source = 3, .quantity = "0"}, {"0,0,0,0,0", ""});
    host.AddLine({.source = 4}, {"", "0,0, 1,-1,0, 0,0,0, 0,0,0, 0,0"});
    host.AddLine({.source = 5}, {"", "0,0, 1,0,0, 0,0,0, 0,0,0, 0,0"});
    Run();
    EXPECT_EQ(Rows("iSrcID,R_Qty,D_Qty,E_Qty,E_Total_StanCost,E_Total_Dif"),
              "1,10,10,0,0.0000,0.0000\n"
              "5,,,0,0.0000,1.0000\n");
}

TEST_F(CostSummary, HasTheAttributesOfTheSourceLineInThatYear)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", ""});
    host.Run(
        "update IA_EnSubsidiary set iPZID = 70, cMemo = N'说明', cItem_class = '98', cItemCode = 'X',"
        " cDefine22 = N'甲', cFree2 = N'红', dtAudit = '2008-07-12'");
    Run();
    EXPECT_EQ(Rows("cDLCode,cCode,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,EnumName,"
                   "cVouType,cInvStd,cComUnitCode,cBusType,cRdCode,cRdName"),
              "D1,,01,成品库,0101,水泵,A,甲泵,A-1,发货单,05,DN50,kg,普通销售,202,销售出库\n");
    EXPECT_EQ(
        Rows("cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName,dKeepDate,dOutDate,dtAudit,cAccounter,"
             "cItem_class,cItemCode,cDefine22,cInvDefine1,cFree2,cMemo,ipzid"),
        "01,内销,K1,客户甲公司,03,销售部,2008-07-11,2008-07-10,2008-07-12,demo,98,X,甲,红,红,说明,70\n");
}

TEST_F(CostSummary, NamesASalesIssueByTheVoucherType32)
{
    host.AddLine({.sourceType = "'3201'", .type = "'3201'", .quantity = "10"}, {"50,20,5,3,2", ""});
    Run();
    EXPECT_EQ(Rows("EnumName,cVouType"), "销售出库单,3201\n");
}

TEST_F(CostSummary, KeepsARowWhoseSourceLineIsOfAnotherYear)
{
    host.AddLine({.quantity = "10", .year = 2007}, {"50,20,5,3,2", ""});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "4"}, {"20,8,2,1,1", ""});
    Run();
    EXPECT_EQ(Rows("iSrcID,cInvCode,cDLCode,cCode,D_Qty,E_Qty,E_Total_StanCost"), "1,,,,4,-4,-32.0000\n");
}

// A unit with a rate of 0, none at all, a chosen one: nothing here counts pieces, and no row comes twice.
TEST_F(CostSummary, GivesTheSameWhateverUnitIsChosen)
{
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "7", .item = "'B'"}, {"1,0,0,0,0", ""});
    host.AddLine({.source = 3, .quantity = "8", .item = "'C'"}, {"2,0,0,0,0", ""});
    for (const char* unit : {"", "-", "0", "1", "2"}) {
        Run({{"iUnitNumber", unit}});
        EXPECT_EQ(Rows("iSrcID,R_Qty,R_Total_StanCost"), "1,10,80.0000\n2,7,1.0000\n3,8,2.0000\n") << unit;
    }
}

TEST_F(CostSummary, TakesWhatTheFilterAsksFor)
{
    host.AddDocument("DISP", "05", 1, "FH01", 1);
    host.AddDocument("RD", "32", 5, "CK05", 1);
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "20", .item = "'B'", .businessType = "N'委托'"},
                 {"1,0,0,0,0", ""});
    host.AddLine({.source = 3, .quantity = "30", .item = "'B'", .businessType = "N'委托代销'"},
                 {"1,0,0,0,0", ""});
    host.AddLine({.source = 5, .sourceType = "'3201'", .type = "'3201'", .quantity = "50"},
                 {"1,0,0,0,0", ""});
    host.AddLine({.source = 4, .quantity = "40", .year = 2007}, {"1,0,0,0,0", ""});
    const struct {
        std::vector<FakeField> fields;
        std::string token;
        const char* rows;
    } cases[] = {
        {{}, "", "1,10\n2,20\n3,30\n5,50\n"},
        {{{"Ia_Ensubsidiary.cBustype", "委托代销"}}, "", "2,20\n3,30\n"},
        {{{"Ia_Ensubsidiary.cBustype", "普通销售"}}, "", "1,10\n5,50\n"},
        {{{"Ia_Ensubsidiary.cBustype", "分期收款"}}, "", ""},
        {{}, " And Inventory.cInvCCode Like N'02%'", "2,20\n3,30\n"},
        {{}, " And Customer.cCusCode = N'K1' And Rd_Style.cRdCode = N'202'", "1,10\n2,20\n3,30\n5,50\n"},
        {{}, " And b.cDLCode = N'FH01'", "1,10\n"},
        {{}, " And d.cCode = N'CK05'", "5,50\n"},
    };
    for (const auto& c : cases) {
        Run(c.fields, kYearWhere + c.token);
        EXPECT_EQ(Rows("iSrcID,R_Qty"), c.rows) << c.token;
    }
}

// The report's own year chooses attributes only; without any condition all years are summed.
TEST_F(CostSummary, SumsAllYearsWhereTheFilterLeavesNoCondition)
{
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 4, .quantity = "40", .year = 2007}, {"1,0,0,0,0", ""});
    Run({}, "");
    // Both passes read both lines: as an opening and as a movement.
    EXPECT_EQ(Rows("iSrcID,cInvCode,Q_Qty,R_Qty,E_Qty"), "1,A,10,10,20\n4,,40,40,80\n");
}

TEST_F(CostSummary, HasTheCostColumnsThatWereChosen)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", ""});
    Run({{"CostItem", "4"}});
    EXPECT_EQ(
        CostNames(),
        "Q_Qty,Q_ManuFix_StanCost,Q_ManuFix_PrcDif,Q_ManuFix_QuaDif,Q_ManuFix_SemiDif,Q_ManuFix_RealCost,"
        "R_Qty,R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost,"
        "D_Qty,D_ManuFix_StanCost,D_ManuFix_PrcDif,D_ManuFix_QuaDif,D_ManuFix_SemiDif,D_ManuFix_RealCost,"
        "E_Qty,E_ManuFix_StanCost,E_ManuFix_PrcDif,E_ManuFix_QuaDif,E_ManuFix_SemiDif,E_ManuFix_RealCost,"
        "iSrcID,cSRcVoutype\n");

    host.Run("update AccInformation set cValue = '0' where cName = 'iCyFtMethod'");
    Run({{"CostItem", "1"}});
    EXPECT_EQ(CostNames(),
              "Q_Qty,Q_Total_StanCost,Q_Total_RealCost,R_Qty,R_Total_StanCost,R_Total_RealCost,"
              "D_Qty,D_Total_StanCost,D_Total_RealCost,E_Qty,E_Total_StanCost,E_Total_RealCost,"
              "iSrcID,cSRcVoutype\n");
}

// Rows are still chosen by the quantities and totals that the result doesn't show.
TEST_F(CostSummary, HasItsRowsWithoutAnyCostColumnForTheCostItem7)
{
    host.AddLine({.source = 1, .quantity = "10"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "0"}, {"0,0,0,0,0", ""});
    Run({{"CostItem", "7"}});
    EXPECT_EQ(CostNames(), "iSrcID,cSRcVoutype\n");
    EXPECT_EQ(Rows("iSrcID,cInvCode"), "1,A\n");
}

TEST_F(CostSummary, TakesTheWorkTableOfAnEarlierRunAway)
{
    host.AddLine({.quantity = "10"}, {"50,20,5,3,2", ""});
    host.Run(std::string("create table ") + kWorkTable + " (other int)");
    Run();
    Run();
    EXPECT_EQ(Rows("R_Qty,E_Total_StanCost"), "10,80.0000\n");
    EXPECT_EQ(host.Query(std::string("select R_Qty from ") + kWorkTable + " where R_Qty <> 0"),
              "R_Qty\n10\n");
}

}  // namespace kavelin::test
