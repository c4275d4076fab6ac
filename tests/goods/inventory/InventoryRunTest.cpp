// What the summary by cost item does to the objects of its host: order, statements, faults.
#include "goods/ClsFCInventory.h"
#include "goods/GoodsClauses.h"
#include "goods/InventoryStatements.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr const char* kYearWhere = "IA_EnSubsidiary.iYear = N'2008'";
constexpr const char* kMethod = "Select * FROM AccInformation where cSysID= N'CA' and cName= N'iCyFtMethod'";

void Prepare(RecordingHost& host, const std::vector<FakeField>& fields, const std::string& token = kYearWhere,
             const char* method = "1")
{
    host.Answers().sql = "tempdb..result";
    host.SetParameter("CA", "iCyFtMethod", method);
    host.SetFilter(fields);
    host.Filter()->whereByToken[0] = token;
}

const std::vector<FakeField> kYear = {{"IA_EnSubsidiary.iYear", "2008"}};

std::vector<FakeField> OfItem(const char* costItem)
{
    return {{"IA_EnSubsidiary.iYear", "2008"}, {"CostItem", costItem}};
}

std::vector<std::string> Texts(RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        texts.push_back(sent.sql);
    return texts;
}

// The columns of the result's select list behind `ipzid`, up to the source line.
std::string CostColumnsShown(const char* costItem, const char* method)
{
    RecordingHost host;
    Prepare(host, OfItem(costItem), kYearWhere, method);
    ClsFCInventory().GETSQL(*host.EarlyArgument());
    const std::string result = Texts(host).back();
    const std::string begin = "ia_ensubsidiary.ipzid,\r\n";
    const std::size_t from = result.find(begin) + begin.size();
    return result.substr(from, result.find("a.iSrcID,a.cSRcVoutype") - from);
}

}  // namespace

TEST(ClsFCInventory, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        std::vector<FakeField> filter;
        const char* token;
        const char* method;
    } cases[] = {
        {"all-items", kYear, kYearWhere, "1"},
        {"all-items-without-differences", kYear, kYearWhere, "0"},
        {"every-key",
         {{"IA_EnSubsidiary.iYear", "2008"},
          {"CostItem", "3"},
          {"Ia_Ensubsidiary.cBustype", "委托代销"},
          {"d.cCode", "C1", "C2", true},
          {"b.cDLCode", "D1", "D2", true},
          {"iUnitNumber", "1"},
          {"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31", true},
          {"Ia_Ensubsidiary.dKeepDate", "2008-07-01", "2008-07-31", true},
          {"Inventory.cInvCCode", "01"}},
         "IA_EnSubsidiary.iYear = N'2008' And d.cCode >= N'C1' And d.cCode <= N'C2' And b.cDLCode >= N'D1'"
         " And b.cDLCode <= N'D2' And Inventory.cInvCCode Like N'01%'",
         "1"},
        {"no-condition-left", {{"IA_EnSubsidiary.iYear", "2008"}, {"CostItem", "7"}}, "", ""},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, c.filter, c.token, c.method);
        ClsFCInventory report;
        report.GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("goods-cost-summary/") + c.name);
        ExpectScenario(host, "ClsFCInventory", std::string("goods-cost-summary/") + c.name);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << c.name;
        EXPECT_EQ(report.sarn_tmpTable(), "tempdb..result");
        EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos);
    }
}

TEST(ClsFCInventory, TakesItsStepsInOrder)
{
    RecordingHost host;
    Prepare(host, kYear);
    ClsFCInventory().GETSQL(*host.EarlyArgument());
    const std::string name = "FCSFCItem" + Machine().MachineName() + "7", table = "Tempdb..[" + name + "]";
    const std::string opening = std::string(kYearWhere) + " and  ( ia_ensubsidiary.imonth  = 0 ) ";
    EXPECT_EQ(Texts(host), (std::vector<std::string>{
                               DropGoodsWorkTable(name),
                               CreateInventoryTable(table),
                               InsertInventoryOpening(table, 0, opening),
                               InsertInventoryMovement(table, 0, std::string(kYearWhere) + " and 1 = 1 "),
                               UpdateInventoryEnd(table),
                               UpdateInventoryTotals(table),
                               SelectInventorySums(table),
                               kMethod,
                               SelectInventoryResult("tempdb..result", "2008", ChosenCostColumns("0", true)),
                           }));
}

TEST(ClsFCInventory, ShowsTheChosenColumnsOfEachPrefixInTurn)
{
    EXPECT_EQ(CostColumnsShown("1", "1"),
              "Q_Qty,Q_Total_StanCost,Q_Total_Dif,Q_Total_RealCost,\r\n"
              "R_Qty,R_Total_StanCost,R_Total_Dif,R_Total_RealCost,\r\n"
              "D_Qty,D_Total_StanCost,D_Total_Dif,D_Total_RealCost,\r\n"
              "E_Qty,E_Total_StanCost,E_Total_Dif,E_Total_RealCost,\r\n");
    EXPECT_EQ(CostColumnsShown("2", "1"),
              "Q_Qty,Q_M_StanCost,Q_M_PrcDif,Q_M_QuaDif,Q_M_RealCost,\r\n"
              "R_Qty,R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost,\r\n"
              "D_Qty,D_M_StanCost,D_M_PrcDif,D_M_QuaDif,D_M_RealCost,\r\n"
              "E_Qty,E_M_StanCost,E_M_PrcDif,E_M_QuaDif,E_M_RealCost,\r\n");
    EXPECT_EQ(CostColumnsShown("6", "0"),
              "Q_Qty,Q_Omp_StanCost,Q_Omp_RealCost,\r\nR_Qty,R_Omp_StanCost,R_Omp_RealCost,\r\n"
              "D_Qty,D_Omp_StanCost,D_Omp_RealCost,\r\nE_Qty,E_Omp_StanCost,E_Omp_RealCost,\r\n");
    const std::string all = CostColumnsShown("0", "1");
    EXPECT_EQ(
        all.substr(0, all.find("Q_ManuFix_StanCost")),
        "Q_Qty,Q_Total_StanCost,Q_Total_Dif,Q_Total_RealCost,Q_M_StanCost,Q_M_PrcDif,Q_M_QuaDif,"
        "Q_M_RealCost,Q_Labor_StanCost,Q_Labor_PrcDif,Q_Labor_QuaDif,Q_Labor_SemiDif,Q_Labor_RealCost,");
    EXPECT_EQ(std::ranges::count(all, ','), 4 * 27);
    EXPECT_EQ(all.find("Unit"), std::string::npos);
}

TEST(ClsFCInventory, ShowsNoDifferenceWithoutTheMethod1)
{
    for (const char* method : {"0", "2", "", "True"})
        for (const char* costItem : {"0", "1", "2", "3", "4", "5", "6"})
            EXPECT_EQ(CostColumnsShown(costItem, method).find("Dif"), std::string::npos)
                << costItem << " " << method;
}

TEST(ClsFCInventory, ShowsNeitherCostNorQuantityForACostItemThatThereIsNot)
{
    for (const char* costItem : {"7", "-1", "0.5"}) {
        EXPECT_EQ(CostColumnsShown(costItem, "1"), "") << costItem;
        RecordingHost host;
        Prepare(host, OfItem(costItem));
        ClsFCInventory().GETSQL(*host.EarlyArgument());
        EXPECT_NE(Texts(host).back().find("ia_ensubsidiary.ipzid,\r\na.iSrcID,a.cSRcVoutype\r\n into"),
                  std::string::npos)
            << "no second comma is left behind";
        EXPECT_NE(Texts(host).back().find(" or( E_Qty<>0 or E_Total_StanCost<>0"), std::string::npos)
            << "rows are still chosen by all columns";
    }
}

// It looks like a slip, and it is wanted.
TEST(ClsFCInventory, SumsQuantitiesWithoutATestOfTheDirection)
{
    const std::string movement = InsertInventoryMovement("T", 0, "");
    EXPECT_NE(movement.find("\r\nsum(IA_EnSubsidiary.iAInQuantity) as R_Qty,\r\n"), std::string::npos);
    EXPECT_NE(movement.find("\r\nsum(IA_EnSubsidiary.iAOutQuantity) as D_Qty,\r\n"), std::string::npos);
    EXPECT_NE(movement.find("sum(case when IA_EnSubsidiary.bRdFlag=1 then s.fInvStdPrice else null end)"),
              std::string::npos);
}

TEST(ClsFCInventory, NamesTheWorkTableAsTheSummaryDoes)
{
    RecordingHost host;
    Prepare(host, kYear);
    ClsFCInventory().GETSQL(*host.EarlyArgument());
    EXPECT_NE(Texts(host)[1].find(" into Tempdb..[FCSFCItem" + Machine().MachineName() + "7]\r\n"),
              std::string::npos);
}

TEST(ClsFCInventory, BeginsAnewInEveryCall)
{
    RecordingHost host;
    Prepare(host, OfItem("3"));
    ClsFCInventory report;
    report.GETSQL(*host.EarlyArgument());
    Prepare(host, kYear);
    host.Script().sent.clear();
    report.GETSQL(*host.EarlyArgument());
    RecordingHost other;
    Prepare(other, kYear);
    ClsFCInventory().GETSQL(*other.EarlyArgument());
    EXPECT_EQ(Texts(host), Texts(other));
}

// ---- failures

TEST(ClsFCInventory, EndsQuietlyAtTheStatementThatFailsAndLeavesTheConnectionOpen)
{
    RecordingHost whole;
    Prepare(whole, kYear);
    ClsFCInventory().GETSQL(*whole.EarlyArgument());

    for (std::size_t number = 1; number <= whole.Sent().size(); ++number) {
        RecordingHost host;
        Prepare(host, kYear);
        host.Script().failAtStatement = number;
        EXPECT_NO_THROW(ClsFCInventory().GETSQL(*host.EarlyArgument())) << number;
        EXPECT_EQ(host.Sent().size(), number) << "nothing runs behind it";
        EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos) << number;
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set") << number;
    }
}

TEST(ClsFCInventory, GivesABlankForAnErrorAndNothingForASuccess)
{
    RecordingHost host;
    Prepare(host, OfItem("材料"));
    ClsFCInventory report;
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), " ") << "the cost item is no number";

    Prepare(host, kYear);
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), "");
}

TEST(ClsFCInventory, LeavesFaultsOfTheFrameToTheHostAndTrapsAllOthers)
{
    RecordingHost whole;
    Prepare(whole, OfItem("2"));
    ClsFCInventory().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> events = whole.Events().Lines();
    const auto frame = static_cast<std::size_t>(std::ranges::find(events, "e.LangID") - events.begin()) + 1;
    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        Prepare(host, OfItem("2"));
        host.Events().FailWithErrors();
        host.Events().FailAt(step);
        const std::string& event = events[step - 1];
        if (step <= frame || event == "#1.Close")
            EXPECT_THROW(ClsFCInventory().GETSQL(*host.EarlyArgument()), std::exception) << event;
        else
            EXPECT_NO_THROW(ClsFCInventory().GETSQL(*host.EarlyArgument())) << event;
    }
}

}  // namespace kavelin::test
