// What the detail ledger by cost item gives on a small account. The arithmetic of the rows stands beside each case.
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/EmbeddedConnection.h"
#include "frame/Text.h"
#include "goods/ClsFCInventory.h"
#include "goods/ClsOutDetailInfo.h"
#include "goods/CostAccount.h"
#include "goods/DetailStatements.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kWhere = "IA_EnSubsidiary.iYear = N'2008' And IA_EnSubsidiary.cInvCode = N'A'";
constexpr const char* kWorkTable = "tempdb..[LSZMACHINE7]";

class CostLedger : public testing::Test {
  protected:
    CostLedger()
    {
        host.Answers().sql = "tempdb..ledger";
        host.Answers().texts = {{"Orvo.IA.CHHSSQL.05360", "期初余额"},
                                {"Orvo.IA.CHHSSQL.00676", "月合计"},
                                {"Orvo.IA.CHHSSQL.00675", "累计"}};
        host.Run("insert into AccInformation (cSysID, cName, cValue) values ('CA', 'iCyFtMethod', '1')");
    }

    // Item A brings 10 for 80 into the year. In February 5 come for 40, in March 4 go for 32 and an adjustment
    // adds 1 of material, in May 3 go for 24.
    void AddYear()
    {
        host.AddLine({.quantity = "10", .month = "0", .keepDate = "'2008-01-01'"}, {"50,20,5,3,2", ""});
        host.AddLine({.source = 2, .quantity = "5", .month = "2", .keepDate = "'2008-02-05'"},
                     {"25,10,2.5,1.5,1", ""});
        host.AddLine({.document = 3,
                      .type = "'26'",
                      .in = false,
                      .quantity = "4",
                      .month = "3",
                      .keepDate = "'2008-03-06'"},
                     {"20,8,2,1.2,0.8", ""});
        host.AddLine({.document = 4, .type = "'65'", .month = "3", .keepDate = "'2008-03-31'"},
                     {"1,0,0,0,0", ""});
        host.AddLine({.document = 5,
                      .type = "'26'",
                      .in = false,
                      .quantity = "3",
                      .month = "5",
                      .keepDate = "'2008-05-08'"},
                     {"15,6,1.5,0.9,0.6", ""});
    }

    // Runs the report on item A; `months` are those of the filter.
    void Run(const char* from = "1月", const char* to = "12月", std::vector<FakeField> fields = {},
             const std::string& token = kWhere)
    {
        host.Run(
            "if exists (select * from tempdb..sysobjects where name = 'ledger') drop table tempdb..ledger");
        fields.push_back({"IA_EnSubsidiary.iYear", "2008"});
        fields.push_back({"IA_EnSubsidiary.iMonth", from, to});
        fields.push_back({"IA_EnSubsidiary.cInvCode", "A"});
        for (int i = 1; i <= 10; ++i)
            fields.push_back({"IA_EnSubsidiary.cFree" + std::to_string(i), ""});
        host.SetFilter(fields);
        host.Filter()->whereByToken[0] = token;
        ClsOutDetailInfo().GETSQL(*host.EarlyArgument());
        ASSERT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set")
            << host.Events().Text();
    }

    // The rows of `columns` as the ledger shows them, without their names.
    std::string Rows(const std::string& columns, const std::string& where = "1=1")
    {
        const std::string rows =
            host.Query("select " + columns + " from tempdb..ledger where " + where + " order by imonth, ino");
        return rows.substr(rows.find('\n') + 1);
    }

    CostAccount host;
};

}  // namespace

// Opening 10 for 80. February: 15 for 120. March: 11 for 88, then 89. May: 8 for 65. Each month is followed by its
// total and by what all months up to it have come to: 5 for 40; 4 for 32 and 1 of adjustment; 7 for 56.
TEST_F(CostLedger, ListsTheLinesWithTheirRunningBalanceBetweenOpeningAndTotals)
{
    AddYear();
    Run();
    EXPECT_EQ(Rows("flag,dKeepDate,R_Qty,R_Total_RealCost,D_Qty,D_Total_RealCost,E_Qty,E_Total_RealCost"),
              "0,期初余额,,,,,10,80.0000\n"
              "1,2008-02-05,5,40.0000,,0.0000,15,120.0000\n"
              "2,2 月合计 ,5,40.0000,,0.0000,,\n"
              "3, 累计 ,5,40.0000,,0.0000,,\n"
              "1,2008-03-06,,0.0000,4,32.0000,11,88.0000\n"
              "1,2008-03-31,,1.0000,,0.0000,11,89.0000\n"
              "2,3 月合计 ,,1.0000,4,32.0000,,\n"
              "3, 累计 ,5,41.0000,4,32.0000,,\n"
              "1,2008-05-08,,0.0000,3,24.0000,8,65.0000\n"
              "2,5 月合计 ,,0.0000,3,24.0000,,\n"
              "3, 累计 ,5,41.0000,7,56.0000,,\n");
    EXPECT_EQ(Rows("imonth,iyear", "flag <> 1"), "0,\n2,\n2,\n3,\n3,\n5,\n5,\n");
}

// In February 25 / 5 = 5 a unit of material, 40 / 5 = 8 in all; behind it 75 / 15 = 5 and 120 / 15 = 8. Behind the
// adjustment 56 / 11 of material. Total rows: 40 / 5 and 32 / 4.
TEST_F(CostLedger, GivesWhatIsPerUnit)
{
    AddYear();
    Run();
    EXPECT_EQ(Rows("flag,imonth,R_M_UnitStanCost,R_Total_UnitCost,D_Total_UnitRealCost,E_M_UnitStanCost,"
                   "E_Total_UnitCost"),
              "0,0,,,,5,8\n"
              "1,2,5,8,0,5,8\n"
              "2,2,5,8,0,,\n"
              "3,2,5,8,0,,\n"
              "1,3,,0,8,5,8\n"
              "1,3,,0,0,5.09090909090909,8.09090909090909\n"
              "2,3,,0,8,,\n"
              "3,3,5.2,8.2,8,,\n"
              "1,5,,0,8,5.125,8.125\n"
              "2,5,,0,8,,\n"
              "3,5,5.2,8.2,8,,\n");
}

// It looks like a slip, and it is wanted: without a quantity an item's cost per unit is null, a total's 0.
TEST_F(CostLedger, HasNoUnitCostOfAnItemAndAZeroOneOfATotalWithoutAQuantity)
{
    AddYear();
    Run();
    EXPECT_EQ(Rows("R_Qty,R_M_StanCost,R_M_UnitStanCost,R_Total_StanCost,R_Total_UnitCost,R_Total_UnitDif",
                   "dKeepDate = '2008-03-31'"),
              ",1.0000,,1.0000,0,0\n");
}

// March to April: what came before is in the opening, 10 + 5 for 120, and May is not there.
TEST_F(CostLedger, TakesLinesBeforeTheChosenMonthsIntoTheOpening)
{
    AddYear();
    Run("3月", "4月");
    EXPECT_EQ(Rows("flag,dKeepDate,R_Qty,R_Total_RealCost,D_Qty,D_Total_RealCost,E_Qty,E_Total_RealCost"),
              "0,期初余额,,,,,15,120.0000\n"
              "1,2008-03-06,,0.0000,4,32.0000,11,88.0000\n"
              "1,2008-03-31,,1.0000,,0.0000,11,89.0000\n"
              "2,3 月合计 ,,1.0000,4,32.0000,,\n"
              "3, 累计 ,,1.0000,4,32.0000,,\n");
}

TEST_F(CostLedger, RunsFromAMonthToTheEndOfTheYearWithoutASecondOne)
{
    AddYear();
    Run("5月", "");
    EXPECT_EQ(Rows("flag,dKeepDate,E_Qty,E_Total_RealCost"),
              "0,期初余额,11,89.0000\n1,2008-05-08,8,65.0000\n2,5 月合计 ,,\n3, 累计 ,,\n");
}

TEST_F(CostLedger, RunsOverTheWholeYearWithoutMonths)
{
    AddYear();
    Run();
    const std::string whole = Rows("*");
    Run("", "");
    EXPECT_EQ(Rows("*"), whole);
}

// 10 + 5 - 4 - 3 = 8 for 65 behind the opening of June.
TEST_F(CostLedger, ShowsTheOpeningAloneWhereTheMonthsHaveNoLines)
{
    AddYear();
    Run("6月", "12月");
    EXPECT_EQ(Rows("flag,dKeepDate,imonth,E_Qty,E_Total_RealCost"), "0,期初余额,0,8,65.0000\n");
}

// Of no line at all the sums are null; the balance over the opening takes them as 0, the total was 0 before.
TEST_F(CostLedger, OpensWithZeroWhereNothingWasBroughtForward)
{
    host.AddLine({.quantity = "5", .month = "2"}, {"25,10,2.5,1.5,1", ""});
    Run();
    EXPECT_EQ(Rows("flag,E_Qty,E_M_StanCost,E_Total_RealCost,E_M_UnitStanCost,E_Total_UnitCost"),
              "0,0,0.0000,0.0000,,\n1,5,25.0000,40.0000,5,8\n2,,,,,\n3,,,,,\n");
}

// Differences: received 1-2 of material, 3+4-5 of labour, 6+7+8 fixed, -3 variable, 4 outside: 23. Real 103.
TEST_F(CostLedger, SplitsALineIntoStandardDifferencesAndReal)
{
    host.AddLine({.quantity = "10", .month = "2"}, {"50,20,5,3,2", "1,-2, 3,4,-5, 6,7,8, -1,-1,-1, 2,2"});
    host.AddLine({.document = 2, .type = "'26'", .in = false, .quantity = "4", .month = "2"},
                 {"20,8,2,1,1", "0,-1, 0,0,0, 0,0,0, 0,0,0, 0,0"});
    Run();
    EXPECT_EQ(Rows("R_Total_StanCost,R_Total_Dif,R_Total_RealCost,R_Total_UnitDif,R_ManuFix_SemiDif,"
                   "R_ManuFix_UnitSemiDif,R_Omp_RealCost,D_Total_RealCost,E_Total_RealCost,E_M_QuaDif,"
                   "E_Omp_RealCost",
                   "flag = 1"),
              "80.0000,23.0000,103.0000,2.3,8.0000,0.8,6,0.0000,103.0000,-2.0000,6\n"
              "0.0000,0.0000,0.0000,0,,,,31.0000,72.0000,-1.0000,5\n");
}

// A line of month 0 dated within the months, and one without a month: the first is an opening, the second nothing.
TEST_F(CostLedger, GoesByTheMonthAndNotByTheDate)
{
    host.AddLine({.quantity = "10", .month = "0", .date = "'2008-03-10'"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "7", .month = "null", .date = "'2008-03-11'"}, {"1,1,1,1,1", ""});
    host.AddLine({.source = 3, .quantity = "5", .month = "3", .date = "'2007-12-31'"},
                 {"25,10,2.5,1.5,1", ""});
    Run("3月", "3月");
    EXPECT_EQ(Rows("flag,R_Qty,E_Qty,E_Total_StanCost"), "0,,10,80.0000\n1,5,15,120.0000\n2,5,,\n3,5,,\n");
}

TEST_F(CostLedger, KeepsTheOrderOfTheLedgerWithinAMonthAndOfTheMonths)
{
    host.AddLine({.source = 1, .quantity = "1", .month = "5"}, {"1,0,0,0,0", ""});
    host.AddLine({.source = 2, .quantity = "2", .month = "2"}, {"2,0,0,0,0", ""});
    host.AddLine({.source = 3, .quantity = "4", .month = "2"}, {"4,0,0,0,0", ""});
    Run();
    // The balance runs in the order of the ledger, not of the months.
    EXPECT_EQ(Rows("ino,flag,imonth,iSrcID,R_Qty,E_Qty"),
              "1,0,0,,,0\n"
              "3,1,2,2,2,3\n"
              "4,1,2,3,4,7\n"
              "5,2,2,,6,\n"
              "7,3,2,,6,\n"
              "2,1,5,1,1,1\n"
              "6,2,5,,1,\n"
              "8,3,5,,7,\n");
}

// Costs of a line without any are null, as amounts of nothing; the quantity counts.
TEST_F(CostLedger, CountsALineWithoutCostsInTheQuantities)
{
    host.AddLine({.quantity = "10", .month = "2"});
    Run();
    EXPECT_EQ(Rows("R_Qty,R_M_StanCost,R_M_RealCost,R_Total_StanCost,E_Qty,E_M_StanCost,E_Total_StanCost",
                   "flag=1"),
              "10,,0.0000,0.0000,10,0.0000,0.0000\n");
}

TEST_F(CostLedger, HasTheAttributesOfTheLineAndTheNumberOfItsSource)
{
    host.AddLine({.source = 1, .quantity = "10", .month = "2"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 1, .document = 2, .type = "'26'", .in = false, .quantity = "4", .month = "3"},
                 {"20,8,2,1,1", "0,0, 0,0,0, 0,0,0, 0,0,0, 0,0"});
    host.Run(
        "update IA_EnSubsidiary set iPZID = 70, cPZID = 'IA1', cPZdigest = N'摘要', cMemo = N'说明',"
        " cBusCode = 'other', cHandler = N'张三', cDefine37 = '2008-01-02', cItem_class = '98',"
        " cItemCode = 'X', cFree2 = N'大' where inid = 2");
    host.Run("update pl_co_EnSubsidiary set cDifPZID = 'CA1'");
    host.Run(
        "insert into gl_AccVouch (cOutNo_ID, cSign, iNo_ID) values ('IA1', N'记', 12), ('CA1', N'转', 3)");
    host.Run("insert into VouchType (cVouchType, cVouchName) values ('26', N'销售发票')");
    host.Run(
        "insert into AA_Enum (EnumType, EnumCode, LocaleID, EnumName) values"
        " ('IA.VchType', N'销售发票', 'zh-CN', N'销售发票'), ('IA.VchType', N'销售发票', 'en-US', N'Invoice')");
    Run();
    EXPECT_EQ(Rows("ipzid,iSrcID,cSRcVoutype,cAccounter,dVouDate,dtAudit,cPZID,cDifPZid,cVouCode,cPZdigest,"
                   "cVouchName,cVouType,cBusType,cRdCode,cRdName,cPZNo,cDifPZNo,cBusCode",
                   "cVouType = '26'"),
              "70,1,05,demo,2008-07-10,,IA1,CA1,D2,摘要,销售发票,26,普通销售,202,销售出库,记12,转3,D1\n");
    EXPECT_EQ(
        Rows("cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cComUnitCode,cFree2,"
             "cInvDefine1,cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName,cItem_class,cItemCode,"
             "cDefine37,cHandler,cMemo",
             "cVouType = '26'"),
        "01,成品库,0101,水泵,A,甲泵,A-1,DN50,kg,大,红,01,内销,K1,客户甲公司,03,销售部,98,X,2008-01-02,"
        "张三,说明\n");
    EXPECT_EQ(Rows("cVouCode,cPZNo,cBusCode,cDifPZNo", "cVouType = '05'"), "D1,,D1,\n");
    EXPECT_EQ(Rows("cVouCode,cInvCode,cBusCode", "flag <> 1"), ",,\n,,\n,,\n,,\n,,\n") << "totals have none";

    host.Answers().langId = "en-US";
    Run();
    EXPECT_EQ(Rows("cVouchName", "cVouType = '26'"), "Invoice\n");
}

// Keeping free item 1, the ledger of the stock has 红 first; so a user who names none sees 红 alone.
TEST_F(CostLedger, ShowsTheFirstCombinationOfFreeItemsWhereTheUserLeftThemEmpty)
{
    host.Run("update Inventory set bCheckFree1 = 1, bCheckFree2 = 1 where cInvCode = 'A'");
    host.Run(
        "insert into IA_Subsidiary (cInvCode, iYear, iMonth, cFree1, cFree2, cVouType, bRdFlag, dVouDate,"
        " dKeepDate, ID, cAccounter) values"
        " ('A', 2008, 1, N'红', N'大', '10', 1, '2008-01-05', '2008-01-05', 1, 'demo')");
    host.AddLine({.source = 1, .quantity = "10", .month = "2", .free1 = "N'红'"}, {"50,20,5,3,2", ""});
    host.AddLine({.source = 2, .quantity = "5", .month = "2", .free1 = "N'蓝'"}, {"25,10,2.5,1.5,1", ""});
    Run();
    EXPECT_EQ(Rows("cFree1,R_Qty,E_Qty", "flag=1"), "红,10,10\n") << "of free item 2 nothing is asked";

    const std::vector<FakeField> blue = {{"IA_EnSubsidiary.cFree1", "蓝"}};
    Run("1月", "12月", blue, std::string(kWhere) + " And IA_EnSubsidiary.cFree1 = N'蓝'");
    EXPECT_EQ(Rows("cFree1,R_Qty,E_Qty", "flag=1"), "蓝,5,5\n");
}

TEST_F(CostLedger, HasTheCostColumnsThatWereChosen)
{
    AddYear();
    const struct {
        const char *costItem, *last;
    } cases[] = {{"0", "E_Omp_UnitRealCost,E_Omp_RealCost"},
                 {"1", "E_Total_StanCost,E_Total_Dif,E_Total_RealCost"},
                 {"2", "E_M_UnitRealCost,E_M_RealCost"},
                 {"3", "E_Labor_UnitRealCost,E_Labor_RealCost"},
                 {"4", "E_ManuFix_UnitRealCost,E_ManuFix_RealCost"},
                 {"5", "E_ManuVar_UnitRealCost,E_ManuVar_RealCost"},
                 {"6", "E_Omp_UnitRealCost,E_Omp_RealCost"},
                 {"7", "imonth,iyear,R_Qty,D_Qty,E_Qty"}};
    for (const auto& c : cases) {
        Run("1月", "12月", {{"CostItem", c.costItem}});
        EXPECT_TRUE(
            host.Query("select top 0 * from tempdb..ledger").ends_with("," + std::string(c.last) + "\n"))
            << c.costItem;
        EXPECT_EQ(Rows("E_Qty", "flag < 2"), "10\n15\n11\n11\n8\n") << c.costItem;
    }
}

// The year's lines alone: without the filter's condition the lines of all years and items would be balanced.
TEST_F(CostLedger, TakesWhatTheFilterAsksFor)
{
    AddYear();
    host.AddLine({.source = 9, .quantity = "100", .month = "2", .item = "'B'"}, {"1,0,0,0,0", ""});
    host.AddLine({.source = 10, .quantity = "200", .month = "2", .businessType = "N'委托'"},
                 {"1,0,0,0,0", ""});
    Run("1月", "12月", {{"Ia_Ensubsidiary.cBustype", "委托代销"}});
    EXPECT_EQ(Rows("flag,R_Qty,E_Qty"), "0,,0\n1,200,200\n2,200,\n3,200,\n");
}

// The last balance of the ledger is the end balance of the summary over the same item.
TEST_F(CostLedger, EndsWithTheEndBalanceOfTheSummary)
{
    AddYear();
    Run();
    host.Answers().sql = "tempdb..costs";
    host.SetFilter({{"IA_EnSubsidiary.iYear", "2008"}});
    host.Filter()->whereByToken[0] = kWhere;
    ClsFCInventory().GETSQL(*host.EarlyArgument());
    const std::string summary =
        host.Query("select sum(E_Qty) as Qty, sum(E_Total_RealCost) as Cost from tempdb..costs");
    EXPECT_EQ(summary, "Qty,Cost\n8,65.0000\n");
    EXPECT_EQ(Rows("E_Qty,E_Total_RealCost", "ino = 5"), "8,65.0000\n");
}

// As it is written, the balance of n lines is a join of n squared pairs.
TEST_F(CostLedger, HasItsBalanceAnsweredByWindows)
{
    AddYear();
    Run();
    const auto connection = embedded::NewConnection();
    connection->SetConnectionString(host.Answers().vosDbName);
    connection->Open("", "", -1);
    const std::string plan = ToLower(connection->Explain(UpdateRunningBalance(kWorkTable)));
    EXPECT_NE(plan.find(" over (order by "), std::string::npos) << plan;
    EXPECT_EQ(plan.find("<="), std::string::npos) << plan;
}

TEST_F(CostLedger, TakesTheWorkTableOfAnEarlierRunAwayAndLeavesItsOwn)
{
    AddYear();
    host.Run(std::string("create table ") + kWorkTable + " (other int)");
    Run();
    Run();
    EXPECT_EQ(host.Query(std::string("select count(*) as n from ") + kWorkTable), "n\n11\n");
}

}  // namespace kavelin::test
