// What the estimate balance does to the objects of its host: order, statements, faults.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "summary/EstimatePasses.h"
#include "summary/clsLastRep.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr const char* kMonthReversal = "月初回冲";
constexpr const char* kArrivalReversal = "单到回冲";
constexpr const char* kArrivalDifference = "单到补差";

struct Scenario {
    const char* name = "";
    const char* method = "";
    const char* edition = "商业";
    const char* busTypes = "";
    const char* language = "zh-CN";
    const char* valueStyle = "按仓库核算";
    const char* disZero = "是";
    const char* freeOnly = "否";
    const char* vouTypes = "";  // as the filter words it
    bool permissions = false;
};

void Prepare(RecordingHost& host, const Scenario& s)
{
    host.Answers().sql = "tempdb..estimate";
    host.Answers().langId = s.language;
    host.SetParameter("AA", "cSysVersion", s.edition);
    host.SetParameter("OM", "dOMFirstDate", "2008-01-01");
    host.SetParameter("AA", "iStrsQuanDecDgt", "4");
    host.SetParameter("IA", "cEstimate", s.method);
    host.SetParameter("IA", "cValueStyle", s.valueStyle);
    if (s.permissions) {
        for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
            host.SetParameter("IA", name, "TRUE");
        host.Answers().lists = {{"Warehouse", "'01','02'"}, {"Department", "'1'"}, {"Inventory", "'A'"}};
    }
    host.SetFilter({{"ia_subsidiary.iyear", "2008"},
                    {"ia_subsidiary.iMonth", "7月"},
                    {"ia_subsidiary.cBusType", s.busTypes},
                    {"bDispCheckFreeOnly", s.freeOnly},
                    {"bDisZero", s.disZero}});
    host.Filter()->whereByToken = {{1, "(ia_subsidiary.iyear = 2008)"}, {2, s.vouTypes}};
}

std::vector<std::string> Texts(const RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        texts.push_back(sent.sql);
    return texts;
}

std::vector<std::string> StatementsOf(const Scenario& scenario)
{
    RecordingHost host;
    Prepare(host, scenario);
    clsLastRep().GETSQL(*host.LateArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing");
    return Texts(host);
}

bool IsParameterRead(const std::string& sql)
{
    return sql.starts_with("Select * FROM AccInformation");
}

std::size_t Count(const std::vector<std::string>& texts, std::string_view piece)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(texts, [&](const std::string& text) { return text.find(piece) != text.npos; }));
}

// How many lines the passes insert into the work table, by the closing method that they write.
std::string Inserts(const std::vector<std::string>& texts)
{
    std::string methods;
    for (const std::string& text : texts)
        if (text.starts_with("insert into [Ia_ZgTmpTable"))
            methods += text.substr(text.find("\r\n from") - 1, 1);
    return methods;
}

constexpr Scenario kScenarios[] = {
    {.name = "month-reversal", .method = kMonthReversal},
    {.name = "month-reversal-industrial", .method = kMonthReversal, .edition = "工业"},
    {.name = "arrival-reversal", .method = kArrivalReversal},
    {.name = "arrival-reversal-industrial",
     .method = kArrivalReversal,
     .edition = "工业",
     .valueStyle = "按部门核算"},
    {.name = "arrival-difference", .method = kArrivalDifference},
    {.name = "arrival-difference-industrial", .method = kArrivalDifference, .edition = "工业"},
    {.name = "consignment-only", .method = kArrivalReversal, .busTypes = "受托代销"},
    {.name = "consignment-only-by-difference", .method = kArrivalDifference, .busTypes = "受托代销"},
    {.name = "one-type",
     .method = kMonthReversal,
     .busTypes = "一般贸易进口",
     .language = "en-US",
     .valueStyle = "按存货核算",
     .disZero = "否",
     .freeOnly = "是",
     .vouTypes = "ia_subsidiary.cVouType = N'70'"},
    {.name = "permissions", .method = kArrivalDifference, .edition = "工业", .permissions = true},
    {.name = "unknown-method", .method = "unknown"},
};

}  // namespace

TEST(clsLastRep, SendsTheStatementsOfItsScenarios)
{
    for (const Scenario& scenario : kScenarios) {
        RecordingHost host;
        Prepare(host, scenario);
        clsLastRep().GETSQL(*host.LateArgument());
        ExpectStatements(host.Sent(), std::string("estimate-balance/") + scenario.name);
        ExpectScenario(host, "clsLastRep", std::string("estimate-balance/") + scenario.name);
    }
}

TEST(clsLastRep, ReadsSendsAndClosesInItsOrder)
{
    RecordingHost host;
    Prepare(host, {.method = "unknown", .edition = "工业"});
    clsLastRep report;
    report.GETSQL(*host.LateArgument());

    std::string order;
    for (const std::string& line : host.Events().Lines()) {
        if (line.starts_with("late ") || line.starts_with("new ") || line.ends_with(".Close") ||
            line.find("GetWhereWithToken") != line.npos)
            order += line + "\n";
        else if (line.find(".OpenRecordset") != line.npos || line.find(".Execute") != line.npos)
            order += line.substr(0, line.find("⏎")) + "\n";
    }
    const auto read = [](int set, const std::string& system, const std::string& name) {
        const std::string number = "@" + std::to_string(set);
        return "#1.OpenRecordset " + number +
               " location=3 type=0 lock=1 Select * FROM AccInformation where " + "cSysID= N'" + system +
               "' and cName= N'" + name + "'\n" + number + ".Close\n";
    };
    const auto drop = [](const std::string& table) {
        return "#1.Execute If Exists (select ID From sysobjects Where id = object_id('" + table +
               "') And Xtype = 'U' ) Drop Table [" + table + "]\n";
    };
    const std::string work = "Ia_ZgTmpTableMACHINE7";
    const std::string sums = "Ia_ZgSumTmpTableMACHINE7";
    EXPECT_EQ(
        order,
        "late e.RawFilter\n"
        "new Connection #1\n"
        "late e.Login\n"
        "late e.DataSource\n"
        "late DataSource.Type = 2\n"
        "late e.LangID\n"
        "late DataSource.sql\n" +
            read(1, "AA", "cSysVersion") + read(2, "OM", "dOMFirstDate") + read(3, "AA", "cSysVersion") +
            "RawFilter.GetWhereWithToken 1\n"
            "RawFilter.GetWhereWithToken 2\n" +
            read(4, "IA", "bWarehouseCheck") + read(5, "IA", "bDepartmentCheck") +
            read(6, "IA", "bInventoryCheck") + "new MachineInfo\nnew ClientNumber\nnew ClientNumber\n" +
            read(7, "AA", "iStrsQuanDecDgt") + drop(work) +
            "#1.Execute select top 0 Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cVouType,\n" +
            read(8, "IA", "cEstimate") + drop(sums) + "#1.Execute update [" + work +
            "]\n#1.Execute update [" + work + "]\n#1.Execute select min(AutoID) as AutoID,ID,cVouType,\n" +
            "#1.Execute delete from [" + sums +
            "] where QcQuantity=0 and InQuantity=0 and outQuantity=0 and QmQuantity=0\n" +
            "#1.Execute If Exists (select ID From sysobjects Where id = object_id('tempdb..estimate'))"
            " Drop Table tempdb..estimate\n"
            "#1.Execute select\n"
            "#1.Execute delete from tempdb..estimate where isnull(QcQuantity,0)=0 and isnull(QcMoney,0)=0"
            " and isnull(InQuantity,0)=0 and isnull(InMoney,0)=0 and isnull(Outquantity,0)=0"
            " and isnull(OutMoney,0)=0\n" +
            drop(work) + drop(sums) + "#1.Close\n");
    EXPECT_EQ(report.TempTablename(), "tempdb..estimate");
}

TEST(clsLastRep, DoesTheSameForAHostOfTheOlderKind)
{
    RecordingHost host;
    Prepare(host, kScenarios[0]);
    clsLastRep report;
    report.GetSqlForOld(*host.LateArgument());
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=closed gcnnSystem=nothing gobjLogin=set");
    EXPECT_NE(host.Events().Text().find("late DataSource.Typecode = 2\n"), std::string::npos);
    EXPECT_EQ(report.ObjreportManager(), host.ReportManager());
    EXPECT_EQ(Texts(host), StatementsOf(kScenarios[0]));
}

TEST(clsLastRep, RunsThePassesOfTheMethod)
{
    const struct {
        const char *method, *edition, *busTypes, *inserts;
    } cases[] = {
        // three of the pass, one of open settlements, four of consignment
        {kMonthReversal, "商业", "", "00002222"},
        {kArrivalReversal, "商业", "", "00002222"},
        {kMonthReversal, "商业", "一般贸易进口", "0000"},
        {kArrivalReversal, "工业", "", "0000"},
        // no pass but that of consignment
        {kMonthReversal, "商业", "受托代销", "2222"},
        {kArrivalReversal, "商业", "受托代销", "2222"},
        // consignment goes the way of the other types
        {kArrivalDifference, "商业", "", "333333"},
        {kArrivalDifference, "商业", "受托代销", "333333"},
        {kArrivalDifference, "工业", "", "333333"},
        {kArrivalDifference, "工业", "受托代销", ""},
        {kMonthReversal, "工业", "受托代销", ""},
        {"单到补差 ", "商业", "", ""},
        {"", "商业", "", ""},
    };
    for (const auto& c : cases) {
        const auto texts = StatementsOf({.method = c.method, .edition = c.edition, .busTypes = c.busTypes});
        EXPECT_EQ(Inserts(texts), c.inserts) << c.method << " " << c.edition << " " << c.busTypes;
        EXPECT_EQ(Count(texts, "Rdrecords01 Rdrecords"),
                  std::string(c.inserts).find_first_of("23") != std::string::npos)
            << c.method << " " << c.edition << " " << c.busTypes;
    }
}

TEST(clsLastRep, AddsConsignmentToTheTypesOfADifference)
{
    const std::string types = "Ia_Subsidiary.cBusType in (";
    EXPECT_EQ(Count(StatementsOf({.method = kArrivalDifference}),
                    types + "N'普通采购',N'一般贸易进口',N'进料加工', N'受托代销')"),
              2u);
    EXPECT_EQ(
        Count(StatementsOf({.method = kArrivalDifference, .busTypes = "受托代销"}), types + "N'受托代销')"),
        2u);
    EXPECT_EQ(
        Count(StatementsOf({.method = kArrivalDifference, .busTypes = "普通采购"}), types + "N'普通采购')"),
        2u);
}

// An account that does not value by warehouse or department joins by neither; one that values by item takes
// the item's method.
TEST(clsLastRep, JoinsTheMonthlySummaryByWhatTheAccountValuesBy)
{
    const struct {
        const char *style, *place, *method;
    } cases[] = {
        {"按仓库核算", "Ia_Summary.cWhCode=IA_Subsidiary.cWhCode", "warehouse.cWhValueStyle"},
        {"按部门核算", "Ia_Summary.cDepCode=IA_Subsidiary.cDepCode", "warehouse.cWhValueStyle"},
        {"按存货核算", "", "inventory.cValueType"},
        {"", "", "warehouse.cWhValueStyle"},
    };
    for (const auto& c : cases) {
        const auto texts = StatementsOf({.method = kArrivalReversal, .valueStyle = c.style});
        for (const char* place :
             {"Ia_Summary.cWhCode=IA_Subsidiary.cWhCode", "Ia_Summary.cDepCode=IA_Subsidiary.cDepCode"})
            EXPECT_EQ(Count(texts, place), std::string(place) == c.place ? 2u : 0u) << c.style;
        for (const char* method : {"warehouse.cWhValueStyle", "inventory.cValueType"})
            EXPECT_EQ(Count(texts, std::string(method) + "\r\n in ("),
                      std::string(method) == c.method ? 2u : 0u)
                << c.style;
    }
}

// What was brought back of a document line is not filtered: it only lessens what a filtered line took out.
// What is inserted from that was filtered before.
TEST(clsLastRep, PutsTheFilterBehindEveryStatementOnTheLedgerButTwo)
{
    for (const char* method : {kMonthReversal, kArrivalReversal, kArrivalDifference})
        for (const std::string& text : StatementsOf({.method = method})) {
            const bool filtered = text.find(
                                      "and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN"
                                      " (Select cWhCode From Warehouse Where bInCost = 1))") != text.npos;
            const bool pass =
                text.starts_with("insert into [Ia_ZgTmpTable") && text.find("IA_tempAcc2") == text.npos;
            EXPECT_EQ(filtered, pass || text.find("into [IA_tempAcc2") != text.npos) << text;
        }
}

TEST(clsLastRep, RestrictsItemsByAQueryOfTheirOwn)
{
    const auto texts = StatementsOf({.method = kMonthReversal, .busTypes = "普通采购", .permissions = true});
    EXPECT_EQ(Count(texts,
                    "and (ia_subsidiary.iyear = 2008)"
                    " and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1)"
                    " and Ia_subsidiary.cWhCode IN ('01','02')) or Ia_subsidiary.cWhCode is null)"
                    " and (Ia_subsidiary.caccdep IN ('1') or Ia_subsidiary.caccdep is null)"
                    " and ia_subsidiary.cinvcode in (select cinvcode from inventory where "
                    " isnull( Inventory.iid, N'') IN ('A'))"),
              4u);
}

TEST(clsLastRep, ShowsOnlyTheFreeItemsThatAreKeptIfAsked)
{
    const std::string kept =
        " Case When Inventory.bCheckFree1 =1 Then Ia_Subsidiary.cFree1 Else N'' End As N'cFree1',"
        " Case When Inventory.bCheckFree2 =1 Then Ia_Subsidiary.cFree2 Else N'' End As N'cFree2',";
    EXPECT_EQ(Count(StatementsOf({.method = "", .freeOnly = "是"}), kept), 1u);
    const auto all = StatementsOf({.method = "", .freeOnly = "否"});
    EXPECT_EQ(Count(all, "bCheckFree"), 0u);
    EXPECT_EQ(Count(all, " Ia_Subsidiary.cFree1, Ia_Subsidiary.cFree2,"), 1u);
}

TEST(clsLastRep, LeavesLinesWithoutMoneyOutIfAsked)
{
    EXPECT_EQ(Count(StatementsOf({.method = "", .disZero = "否"}), "where Ia_Sub.QmMoney <> 0 "), 1u);
    EXPECT_EQ(Count(StatementsOf({.method = "", .disZero = "是"}), "QmMoney <> 0"), 0u);
}

TEST(clsLastRep, TranslatesBusinessTypesInEveryOtherLanguage)
{
    for (const char* language : {"zh-CN", "ZH-cn"})
        EXPECT_EQ(Count(StatementsOf({.method = "", .language = language}), "IA.BusType"), 0u);
    for (const char* language : {"en-US", "zh-TW", ""})
        EXPECT_EQ(Count(StatementsOf({.method = "", .language = language}),
                        std::string("AA.EnumType='IA.BusType' and AA.LocaleID=N'") + language + "'"),
                  1u);
}

TEST(clsLastRep, AsksAnIndustrialAccountForItsOutsourcingWhichChangesNothing)
{
    const auto without = [](const std::vector<std::string>& texts) {
        std::vector<std::string> statements;
        std::ranges::remove_copy_if(texts, std::back_inserter(statements), IsParameterRead);
        return statements;
    };
    RecordingHost host;
    Prepare(host, {.method = kArrivalReversal, .edition = "工业"});
    host.SetParameter("OM", "dOMFirstDate", "");
    clsLastRep().GETSQL(*host.LateArgument());
    EXPECT_EQ(Count(Texts(host), "dOMFirstDate"), 1u);
    EXPECT_EQ(without(Texts(host)), without(StatementsOf({.method = kArrivalReversal, .edition = "工业"})));
    EXPECT_EQ(Count(StatementsOf({.method = kArrivalReversal}), "dOMFirstDate"), 0u);
}

TEST(clsLastRep, KeepsAChoiceOfVoucherTypesOnTheSourceTypeToo)
{
    EXPECT_EQ(OnSourceType(" ia_subsidiary.cVouType in (N'01',N'70') "),
              " ia_subsidiary.cSRcVoutype in (N'01',N'70') ");
    EXPECT_EQ(OnSourceType("(ia_subsidiary.cVouType = N'01' or ia_subsidiary.cVouType = N'70')"),
              "(ia_subsidiary.cSRcVoutype = N'01' or ia_subsidiary.cSRcVoutype = N'70')");
    EXPECT_EQ(OnSourceType("ia_subsidiary.cvoutype = N'01'"), "ia_subsidiary.cvoutype = N'01'");
}

TEST(Createsql, MakesTheReportFromAnySumsAndIsAlwaysFalse)
{
    for (const bool bOM : {false, true}) {
        RecordingHost host;
        host.OpenAccount();
        clsLastRep report;
        report.SetTempTablename("Report");
        EXPECT_FALSE(report.Createsql("Sums", bOM));
        ASSERT_EQ(host.Sent().size(), 3u);
        EXPECT_NE(host.Sent()[1].sql.find("From [Sums] Ia_Sub inner join"), std::string::npos);
    }
}

TEST(Createsql, LetsItsFailuresThrough)
{
    for (std::size_t k = 1; k <= 3; ++k) {
        RecordingHost host;
        host.OpenAccount();
        host.Script().failAtStatement = k;
        clsLastRep report;
        report.SetTempTablename("Report");
        EXPECT_THROW(report.Createsql("Sums", false), DatabaseError);
        EXPECT_EQ(host.Sent().size(), k);
    }
}

// A failure of the first read is an error of the call. Later ones end the run without a word: the connection
// stays open, the work tables stay. Two kinds of failure don't end it: that of the authorisation's own read of
// a switch, which lifts the restriction, and that of the business types' translation.
TEST(clsLastRep, EndsQuietlyAtEachStatementThatFailsBehindItsFirstReads)
{
    for (const char* method : {kMonthReversal, kArrivalReversal, kArrivalDifference}) {
        const Scenario scenario = {.method = method, .language = "en-US", .permissions = true};
        const auto texts = StatementsOf(scenario);
        ASSERT_GT(texts.size(), 20u);
        for (std::size_t k = 1; k <= texts.size(); ++k) {
            RecordingHost host;
            Prepare(host, scenario);
            host.Script().failAtStatement = k;
            clsLastRep report;
            if (k == 1) {
                EXPECT_THROW(report.GETSQL(*host.LateArgument()), DatabaseError) << texts[k - 1];
            } else {
                EXPECT_NO_THROW(report.GETSQL(*host.LateArgument())) << texts[k - 1];
            }
            const bool readAgain =
                texts[k - 1].find("Check'") != std::string::npos && texts[k - 1] == texts[k - 2];
            const bool passedOver = readAgain || texts[k - 1].starts_with("Update tempdb..estimate");
            EXPECT_EQ(host.Sent().size(), passedOver ? texts.size() : k) << texts[k - 1];
            EXPECT_EQ(ConnectionsLeft(), passedOver
                                             ? "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing"
                                             : "gcnnAccount=open gcnnSystem=nothing gobjLogin=set")
                << texts[k - 1];
            EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos) << texts[k - 1];
        }
    }
}

TEST(clsLastRep, RaisesAFailureOfBothReadsThatComeFirstInAnIndustrialAccount)
{
    for (std::size_t k = 1; k <= 3; ++k) {
        RecordingHost host;
        Prepare(host, {.method = kArrivalReversal, .edition = "工业"});
        host.Script().failAtStatement = k;
        if (k < 3)
            EXPECT_THROW(clsLastRep().GETSQL(*host.LateArgument()), DatabaseError) << k;
        else
            EXPECT_NO_THROW(clsLastRep().GETSQL(*host.LateArgument()));
    }
}

// Of the host's objects too: what fails in the frame or in the first reads is an error of the call.
TEST(clsLastRep, LetsFaultsOfTheHostsObjectsThroughInItsFrameOnly)
{
    const Scenario scenario = {.method = kArrivalDifference, .permissions = true};
    RecordingHost whole;
    Prepare(whole, scenario);
    clsLastRep().GETSQL(*whole.LateArgument());
    const std::vector<std::string> events = whole.Events().Lines();
    const auto behind = std::ranges::find(events, "RawFilter.FilterList") - events.begin();

    for (std::size_t step = 1; step < events.size(); ++step) {  // the last one closes the connection
        RecordingHost host;
        Prepare(host, scenario);
        host.Events().FailAt(step);
        if (step <= static_cast<std::size_t>(behind))
            EXPECT_THROW(clsLastRep().GETSQL(*host.LateArgument()), PlannedFailure) << events[step - 1];
        else
            EXPECT_NO_THROW(clsLastRep().GETSQL(*host.LateArgument())) << events[step - 1];
        EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos) << events[step - 1];
    }
}

TEST(clsLastRep, CanBeCalledAgain)
{
    RecordingHost host;
    Prepare(host, kScenarios[0]);
    clsLastRep report;
    report.GETSQL(*host.LateArgument());
    const std::size_t first = host.Sent().size();
    report.GETSQL(*host.LateArgument());
    ASSERT_EQ(host.Sent().size(), 2 * first);
    for (std::size_t i = 0; i < first; ++i)
        EXPECT_EQ(host.Sent()[first + i].sql, host.Sent()[i].sql);
}

}  // namespace kavelin::test
