// What the detail ledger by cost item does to the objects of its host: order, statements, faults.
#include "frame/Text.h"
#include "goods/ClsOutDetailInfo.h"
#include "goods/DetailFilter.h"
#include "goods/DetailStatements.h"
#include "goods/GoodsClauses.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr const char* kWhere = "IA_EnSubsidiary.iYear = N'2008' And IA_EnSubsidiary.cInvCode = N'A'";
constexpr const char* kTable = "Tempdb..[LSZMACHINE7]";
constexpr const char* kMethod = "Select * FROM AccInformation where cSysID= N'CA' and cName= N'iCyFtMethod'";

std::vector<FakeField> Filter(const char* costItem, const char* from = "1月", const char* to = "12月")
{
    std::vector<FakeField> fields = {{"IA_EnSubsidiary.iYear", "2008"},
                                     {"IA_EnSubsidiary.iMonth", from, to},
                                     {"CostItem", costItem},
                                     {"IA_EnSubsidiary.cInvCode", "A"}};
    for (int i = 1; i <= 10; ++i)
        fields.push_back({"IA_EnSubsidiary.cFree" + std::to_string(i), ""});
    return fields;
}

// The months of the lines are 3 and 5.
void Prepare(RecordingHost& host, const std::vector<FakeField>& fields, const std::string& token = kWhere,
             const char* method = "1")
{
    host.Answers().sql = "tempdb..result";
    host.Answers().texts = {{"Orvo.IA.CHHSSQL.05360", "期初余额"},
                            {"Orvo.IA.CHHSSQL.00676", "月合计"},
                            {"Orvo.IA.CHHSSQL.00675", "累计"}};
    host.SetParameter("CA", "iCyFtMethod", method);
    host.Script().rows[SelectMonths(kTable)] = {{"iMonth"}, {{3}, {5}}};
    host.SetFilter(fields);
    host.Filter()->whereByToken[0] = token;
}

std::vector<std::string> Texts(RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        texts.push_back(sent.sql);
    return texts;
}

// The line of the result's select list that begins with the quantities.
std::string Measures(const char* costItem, const char* method)
{
    RecordingHost host;
    Prepare(host, Filter(costItem), kWhere, method);
    ClsOutDetailInfo().GETSQL(*host.EarlyArgument());
    for (const std::string& line : Split(Texts(host).back(), "\r\n"))
        if (line.starts_with("R_Qty,"))
            return line;
    return "";
}

}  // namespace

TEST(ClsOutDetailInfo, SendsTheStatementsOfItsScenarios)
{
    Rows found = {{"cInvCode"}, {{"A"}}};
    for (int i = 1; i <= 10; ++i) {
        found.fields.push_back("cfree" + std::to_string(i));
        found.rows[0].push_back(i == 1 ? Value("红") : Value(""));
    }
    std::vector<FakeField> allKeys = Filter("3", "3月", "7月");
    allKeys.push_back({"Ia_Ensubsidiary.cBustype", "委托代销"});
    allKeys.push_back({"IA_EnSubsidiary.cWhCode", "01"});

    const struct {
        const char* name;
        std::vector<FakeField> filter;
        std::string token;
        const char *method, *language;
        bool hasFreeItem;
    } cases[] = {
        {"all-items", Filter("0"), kWhere, "1", "zh-CN", false},
        {"all-items-without-differences", Filter("0"), kWhere, "0", "en-US", false},
        {"every-key", allKeys, std::string(kWhere) + " And IA_EnSubsidiary.cWhCode = N'01'", "1", "zh-CN",
         true},
        {"from-a-month-on", Filter("1", "3月", ""), kWhere, "1", "zh-CN", false},
        {"no-condition-left", {{"IA_EnSubsidiary.iYear", "2008"}, {"CostItem", "7"}}, "", "", "", false},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, c.filter, c.token, c.method);
        host.Answers().langId = c.language;
        if (c.hasFreeItem)
            host.Script().rows[SelectFreeItems("A", "2008")] = found;
        ClsOutDetailInfo report;
        report.GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("goods-cost-ledger/") + c.name);
        ExpectScenario(host, "ClsOutDetailInfo", std::string("goods-cost-ledger/") + c.name);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set") << c.name;
        EXPECT_EQ(report.sarn_tmpTable(), "tempdb..result");
        EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos);
    }
}

TEST(ClsOutDetailInfo, TakesItsStepsInOrder)
{
    RecordingHost host;
    Prepare(host, Filter("0"));
    ClsOutDetailInfo().GETSQL(*host.EarlyArgument());
    const std::string where = kWhere;
    EXPECT_EQ(
        Texts(host),
        (std::vector<std::string>{
            SelectFreeItems("A", "2008"),
            DropGoodsWorkTable("LSZMACHINE7"),
            CreateDetailTable(kTable),
            InsertDetailOpening(kTable, "期初余额",
                                where +
                                    " and  ( ia_ensubsidiary.imonth  = 0  or IA_EnSubsidiary.imonth < '1') "
                                    " and 1=1 "),
            UpdateOpeningUnits(kTable),
            UpdateOpeningTotals(kTable),
            UpdateOpeningTotalUnits(kTable),
            InsertDetailLines(
                kTable, "zh-CN",
                where + " and 1 = 1  And IA_EnSubsidiary.imonth Between N'1' And '12'  and 1=1 "),
            UpdateRunningBalance(kTable),
            UpdateLineUnits(kTable),
            UpdateLineTotals(kTable),
            UpdateLineTotalUnits(kTable),
            InsertMonthRows(kTable, "月合计"),
            SelectMonths(kTable),
            InsertRunningRow(kTable, "累计", "3"),
            InsertRunningRow(kTable, "累计", "5"),
            UpdateMonthUnits(kTable),
            UpdateMonthTotals(kTable),
            UpdateMonthTotalUnits(kTable),
            UpdateDetailVoucher(kTable),
            UpdateDetailDifVoucher(kTable),
            kMethod,
            SelectDetailResult(kTable, "tempdb..result", "2008",
                               " and 1=1  And a.imonth Between N'1' And '12' ", ChosenCostColumns("0", true)),
        }));
}

TEST(ClsOutDetailInfo, PutsAnAndBetweenTheMonthsAndTheCondition)
{
    EXPECT_NE(InsertDetailLines("T", "zh-CN", "C")
                  .find("\r\n where 1 = 1 and IA_EnSubsidiary.imonth <> 0  and C\r\n order by"
                        " IA_EnSubsidiary.autoid "),
              std::string::npos);
    EXPECT_NE(InsertDetailLines("T", "zh-CN", "").find("imonth <> 0 \r\n order by"), std::string::npos);
    EXPECT_TRUE(InsertDetailOpening("T", "x", "C").ends_with("\r\n where C"));
    EXPECT_EQ(InsertDetailOpening("T", "x", "").find(" where "), std::string::npos);
}

TEST(ClsOutDetailInfo, NamesTheVoucherTypeOfALineInTheLanguageOfTheCall)
{
    EXPECT_NE(InsertDetailLines("T", "en-US", "").find(" aa_enum.LocaleId=N'en-US'\r\n"), std::string::npos);
    EXPECT_NE(InsertDetailOpening("T", "x", "").find("AA_Enum.LocaleId=DBO.UDF_GetLocaleID()"),
              std::string::npos);
}

TEST(ClsOutDetailInfo, LeavesTheReceiptIssueClassOutOfTheOpening)
{
    EXPECT_EQ(InsertDetailOpening("T", "x", "").find("Rd_Style"), std::string::npos);
    EXPECT_NE(InsertDetailLines("T", "zh-CN", "").find("left join Rd_Style r on"), std::string::npos);
}

// It looks like a slip, and it is wanted.
TEST(ClsOutDetailInfo, TakesTheQuantitiesOfALineWithoutATestOfItsDirection)
{
    const std::string lines = InsertDetailLines("T", "zh-CN", "");
    EXPECT_NE(lines.find("\r\nIA_EnSubsidiary.iAInQuantity as R_Qty,\r\n"), std::string::npos);
    EXPECT_NE(lines.find("\r\nIA_EnSubsidiary.iAOutQuantity as D_Qty,\r\n"), std::string::npos);
    EXPECT_NE(
        lines.find("(case when IA_EnSubsidiary.bRdFlag=1 then s.fInvStdPrice else null end)as R_M_StanCost"),
        std::string::npos);
}

TEST(ClsOutDetailInfo, BalancesTheQuantityAndTheAmountsOfTheItemsInOneStatement)
{
    const std::string balance = UpdateRunningBalance("T");
    EXPECT_NE(balance.find("E_Qty=c.isum,\r\nE_M_StanCost=c.isum2,\r\nE_M_PrcDif=c.isum4,"),
              std::string::npos);
    EXPECT_NE(balance.find("E_Omp_RealCost=c.isum46\r\n"), std::string::npos);
    EXPECT_NE(balance.find("where b.ino <=a.ino\r\n"), std::string::npos);
    EXPECT_EQ(balance.find("Total"), std::string::npos);
}

TEST(ClsOutDetailInfo, ShowsWhatIsPerUnitBeforeItsAmount)
{
    EXPECT_EQ(
        Measures("1", "1"),
        "R_Qty,D_Qty,E_Qty,"
        "R_Total_UnitCost,R_Total_UnitDif,R_Total_UnitRealCost,R_Total_StanCost,R_Total_Dif,R_Total_RealCost,"
        "D_Total_UnitCost,D_Total_UnitDif,D_Total_UnitRealCost,D_Total_StanCost,D_Total_Dif,D_Total_RealCost,"
        "E_Total_UnitCost,E_Total_UnitDif,E_Total_UnitRealCost,E_Total_StanCost,E_Total_Dif,E_Total_RealCost");
    EXPECT_EQ(Measures("2", "1"),
              "R_Qty,D_Qty,E_Qty,"
              "R_M_UnitStanCost,R_M_StanCost,R_M_UnitPrcDif,R_M_PrcDif,R_M_UnitQuaDif,R_M_QuaDif,"
              "R_M_UnitRealCost,R_M_RealCost,"
              "D_M_UnitStanCost,D_M_StanCost,D_M_UnitPrcDif,D_M_PrcDif,D_M_UnitQuaDif,D_M_QuaDif,"
              "D_M_UnitRealCost,D_M_RealCost,"
              "E_M_UnitStanCost,E_M_StanCost,E_M_UnitPrcDif,E_M_PrcDif,E_M_UnitQuaDif,E_M_QuaDif,"
              "E_M_UnitRealCost,E_M_RealCost");
    EXPECT_EQ(Measures("6", "0"),
              "R_Qty,D_Qty,E_Qty,"
              "R_Omp_UnitStanCost,R_Omp_StanCost,R_Omp_UnitRealCost,R_Omp_RealCost,"
              "D_Omp_UnitStanCost,D_Omp_StanCost,D_Omp_UnitRealCost,D_Omp_RealCost,"
              "E_Omp_UnitStanCost,E_Omp_StanCost,E_Omp_UnitRealCost,E_Omp_RealCost");
    EXPECT_EQ(Measures("1", "0"),
              "R_Qty,D_Qty,E_Qty,"
              "R_Total_UnitCost,R_Total_UnitRealCost,R_Total_StanCost,R_Total_RealCost,"
              "D_Total_UnitCost,D_Total_UnitRealCost,D_Total_StanCost,D_Total_RealCost,"
              "E_Total_UnitCost,E_Total_UnitRealCost,E_Total_StanCost,E_Total_RealCost");
    const std::string all = Measures("0", "1");
    EXPECT_EQ(std::ranges::count(all, ',') + 1, 3 + 3 * 52);
    EXPECT_LT(all.find("R_Total_UnitCost"), all.find("R_M_UnitStanCost"));
    EXPECT_LT(all.find("R_Omp_RealCost"), all.find("D_Total_UnitCost"));
}

TEST(ClsOutDetailInfo, ShowsQuantitiesAloneForACostItemThatThereIsNot)
{
    for (const char* costItem : {"7", "-1"})
        EXPECT_EQ(Measures(costItem, "1"), "R_Qty,D_Qty,E_Qty") << "no second comma is left behind";
}

TEST(ClsOutDetailInfo, HasTheBusinessNumberOnceInTheResult)
{
    const std::string result = SelectDetailResult("T", "R", "2008", "", {});
    const std::string list = ToLower(result.substr(0, result.find(" into ")));
    EXPECT_EQ(list.find("cbuscode"), list.rfind("cbuscode"));
    EXPECT_NE(list.find("ia_ensubsidiary.cvoucode as cbuscode,"), std::string::npos);
}

TEST(ClsOutDetailInfo, BeginsAnewInEveryCall)
{
    RecordingHost host;
    Prepare(host, Filter("3", "3月", "7月"));
    ClsOutDetailInfo report;
    report.GETSQL(*host.EarlyArgument());
    Prepare(host, Filter("0"));
    host.Script().sent.clear();
    report.GETSQL(*host.EarlyArgument());
    RecordingHost other;
    Prepare(other, Filter("0"));
    ClsOutDetailInfo().GETSQL(*other.EarlyArgument());
    EXPECT_EQ(Texts(host), Texts(other));
}

// ---- failures

TEST(ClsOutDetailInfo, EndsQuietlyAtTheStatementThatFailsAndLeavesTheConnectionOpen)
{
    RecordingHost whole;
    Prepare(whole, Filter("0"));
    ClsOutDetailInfo().GETSQL(*whole.EarlyArgument());

    for (std::size_t number = 1; number <= whole.Sent().size(); ++number) {
        RecordingHost host;
        Prepare(host, Filter("0"));
        host.Script().failAtStatement = number;
        EXPECT_NO_THROW(ClsOutDetailInfo().GETSQL(*host.EarlyArgument())) << number;
        EXPECT_EQ(host.Sent().size(), number) << "nothing runs behind it";
        EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos) << number;
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set") << number;
    }
}

TEST(ClsOutDetailInfo, GivesABlankForAnErrorAndNothingForASuccess)
{
    RecordingHost host;
    Prepare(host, Filter("材料"));
    ClsOutDetailInfo report;
    report.GETSQL(*host.EarlyArgument());
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), " ") << "the cost item is no number";

    Prepare(host, Filter("0"));
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), "");
}

TEST(ClsOutDetailInfo, LeavesFaultsOfTheFrameToTheHostAndTrapsAllOthers)
{
    RecordingHost whole;
    Prepare(whole, Filter("2"));
    ClsOutDetailInfo().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> events = whole.Events().Lines();
    const auto frame = static_cast<std::size_t>(std::ranges::find(events, "e.LangID") - events.begin()) + 1;
    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        Prepare(host, Filter("2"));
        host.Events().FailWithErrors();
        host.Events().FailAt(step);
        const std::string& event = events[step - 1];
        if (step <= frame || event == "#1.Close")
            EXPECT_THROW(ClsOutDetailInfo().GETSQL(*host.EarlyArgument()), std::exception) << event;
        else
            EXPECT_NO_THROW(ClsOutDetailInfo().GETSQL(*host.EarlyArgument())) << event;
    }
}

}  // namespace kavelin::test
