// What the price analysis does to the objects of its host: order, statements, faults.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "price/AnalysisResultStatements.h"
#include "price/ReferencePriceStatements.h"
#include "price/clsIaAnalysis.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr bool kRange = true;
constexpr bool kSeveral = true;

struct Scenario {
    const char* name;
    const char* valueStyle;
    const char* language;
    std::vector<FakeField> filter;
};

const std::vector<Scenario>& Scenarios()
{
    static const std::vector<Scenario> kScenarios = {
        {"by-warehouse",
         "按仓库核算",
         "zh-CN",
         {{"iMonth", "2008.07"},
          {"ShowType", "1"},
          {"Base Price", "3"},
          {"avgPrice", "2008.04", "2008.06", kRange},
          {"avgPrices", "1"}}},
        {"by-department",
         "按部门核算",
         "zh-CN",
         {{"iMonth", "2008.04"},
          {"ShowType", "0"},
          {"Base Price", "4"},
          {"avgPrice", "2008.02", "2008.02", kRange},
          {"avgPrices", "2"},
          {"DiffRatio", "10"}}},
        {"by-inventory-first-month",
         "按存货核算",
         "en-US",
         {{"iMonth", "2008.01"}, {"ShowType", "2"}, {"Base Price", "5"}, {"avgPrices", "3"}}},
        {"vouchers-have-no-summary",
         "按仓库核算",
         "zh-CN",
         {{"iMonth", "2008.07"},
          {"ShowType", "2"},
          {"Base Price", "2"},
          {"avgPrices", "1"},
          {"cVouType", "08"}}},
        {"all-keys",
         "按存货核算",
         "en-US",
         {{"iMonth", "2008.12"},
          {"ShowType", ""},
          {"Base Price", "1"},
          {"avgPrice", "2008.01", "2008.12", kRange},
          {"avgPrices", "3"},
          {"DiffRatio", "0.5"},
          {"cVouType", "01\t011\t30\t32"},
          {"cBusType", "普通采购\t委托代销"},
          {"dVouDate", "2008-12-01", "2008-12-31", kRange},
          {"dKeepDate", "2008-12-01", "2008-12-31", kRange},
          {"cCCCode", "01\t02"},
          {"cVCCode", "01"},
          {"cCusCode", "K1", "K2", kRange},
          {"cVenCode", "V1\tV2"},
          {"cAccDep", "03"},
          {"cInvCCode", "01\t02", "", false, kSeveral},
          {"cInvCode", "A", "B", kRange},
          {"cDepCode", "03"},
          {"cBatchia", "P1"},
          {"cWhCode", "01\t02", "", false, kSeveral},
          {"cRdCode", "11\t12"},
          {"cproordercode", "M1", "M2", kRange},
          {"cdefine1", "x", "y"},
          {"cFree1", "red"}}},
    };
    return kScenarios;
}

void Prepare(RecordingHost& host, const Scenario& scenario)
{
    host.Answers().sql = "tempdb..analysis";
    host.Answers().langId = scenario.language;
    host.Answers().guid = {0xAB, 0xCD};
    host.Answers().codes = {{"委托代销", "委托代销"}, {"普通采购", "普通采购"}};
    host.SetParameter("IA", "cValueStyle", scenario.valueStyle);
    host.SetParameter("IA", "dIAStartDate", "2008-01-01");
    host.SetParameter("AA", "iExchRateDecDgt", "4");
    host.SetFilter(scenario.filter);
    host.Filter()->whereByToken[1] = std::string(scenario.name) == "all-keys" ? "cBatchia= N'P1'" : "";
}

void Analyse(RecordingHost& host, const Scenario& scenario)
{
    Prepare(host, scenario);
    clsIaAnalysis().GETSQL(*host.EarlyArgument());
}

std::vector<std::string> TextsOf(const RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        texts.push_back(sent.sql);
    return texts;
}

bool Sent(const RecordingHost& host, std::string_view part)
{
    return std::ranges::any_of(
        host.Sent(), [&](const SentStatement& sent) { return sent.sql.find(part) != sent.sql.npos; });
}

bool ShowsAMessage(RecordingHost& host)
{
    return host.Events().Text().find("ShowMessage") != std::string::npos;
}

// The run of a filter with these fields beside what every run needs.
void RunWith(RecordingHost& host, const std::vector<FakeField>& fields)
{
    Scenario scenario = {"", "按仓库核算", "zh-CN", {{"iMonth", "2008.07"}, {"Base Price", "1"}}};
    scenario.filter.push_back({"avgPrices", "1"});
    scenario.filter.insert(scenario.filter.end(), fields.begin(), fields.end());
    Analyse(host, scenario);
}

const std::string kWork = "Tempdb..iA_AnlysisABCD0000000000000000000000000000";
const std::string kKeys = "Tempdb..IA_StypeABCD0000000000000000000000000000";

}  // namespace

TEST(ThePriceAnalysis, SendsTheStatementsOfItsScenarios)
{
    for (const Scenario& scenario : Scenarios()) {
        RecordingHost host;
        Analyse(host, scenario);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
        EXPECT_FALSE(ShowsAMessage(host)) << scenario.name;
        ExpectStatements(host.Sent(), std::string("price-analysis/") + scenario.name);
        ExpectScenario(host, "clsIaAnalysis", std::string("price-analysis/") + scenario.name);
    }
}

TEST(ThePriceAnalysis, FillsByWhatIsToBeShown)
{
    const struct {
        const char* showType;
        bool vouchers, lines, summaries;
    } cases[] = {
        {"1", false, true, false}, {"1", true, true, false},    {"2", false, false, true},
        {"2", true, false, false}, {"0", false, true, true},    {"0", true, true, false},
        {"", false, true, true},   {"both", true, true, false},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        RunWith(host, {{"ShowType", c.showType}, {"cVouType", c.vouchers ? "08" : ""}});
        EXPECT_EQ(Sent(host, " from IA_V_Subsidiary\r\n"), c.lines) << c.showType;
        EXPECT_EQ(Sent(host, " from IA_V_Summary\r\n"), c.summaries) << c.showType;
        EXPECT_TRUE(Sent(host, " insert into tempdb..analysis ")) << c.showType;
    }
}

TEST(ThePriceAnalysis, AsksForVoucherTypesInOneCondition)
{
    const struct {
        const char *types, *condition;
    } cases[] = {
        {"08\t32", " And (cVouType in ('08','32','3201'))"},
        {"01\t08", " And (cVouType in ('08') OR  (cVouType='01' and bFlag<>1) )"},
        {"01", " And ( (cVouType='01' and bFlag<>1) )"},
        {"301\t701", " And ( (cVouType='30' and bFlag=1)  OR (cVouType='70' and bFlag=1) )"},
        {"01\t011", " And (cVouType in ('01','011'))"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        RunWith(host, {{"ShowType", "1"}, {"cVouType", c.types}, {"cBusType", "领料"}});
        EXPECT_TRUE(Sent(host, std::string(c.condition) + " And (cBusType in (N'code of 领料'))"))
            << c.condition;
    }
}

TEST(ThePriceAnalysis, TakesTheOpeningForTheStartAndForAnyMonthBeforeIt)
{
    const struct {
        const char *month, *start, *row;
    } cases[] = {
        {"2008.01", "2008-01-01", " and s.iyear =  2008  and s.iMonth  = 0   GROUP BY "},
        {"2008.03", "2008-07-15", " and s.iyear =  2008  and s.iMonth  = 0   GROUP BY "},
        {"2007.12", "2008-01-01", " and s.iyear =  2007  and s.iMonth  = 0   GROUP BY "},
        {"2008.02", "2008-01-31", " and s.iyear = 2008 and s.iMonth  = 02 - 1   GROUP BY "},
        {"2009.01", "2008-01-01", " and s.iyear = 2009 and s.iMonth  = 01 - 1   GROUP BY "},
        {"2008.7", "2008-01-01", " and s.iyear = 2008 and s.iMonth  = 07 - 1   GROUP BY "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host,
                {"", "按仓库核算", "zh-CN", {{"iMonth", c.month}, {"Base Price", "5"}, {"avgPrices", "1"}}});
        host.SetParameter("IA", "dIAStartDate", c.start);
        clsIaAnalysis().GETSQL(*host.EarlyArgument());
        EXPECT_TRUE(Sent(host, c.row)) << c.month << " of an account since " << c.start;
    }
}

TEST(ThePriceAnalysis, FiltersItsOutputOnlyByADeviationOtherThan0)
{
    const struct {
        const char* ratio;
        std::string end;
    } cases[] = {
        {"", "  from " + kWork + "  order by dVouDate "},
        {"0", "  from " + kWork + "  order by dVouDate "},
        {"10", "  from " + kWork + " where abs(DiffRatio) >= 10  order by dVouDate "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        RunWith(host, {{"DiffRatio", c.ratio}});
        EXPECT_TRUE(Sent(host, c.end)) << c.ratio;
    }
}

TEST(ThePriceAnalysis, HasTheScaleOfAnExchangeRateOr2InItsRatios)
{
    const struct {
        Value scale;
        const char* column;
    } cases[] = {
        {"4", "Ratio decimal(38, 4), DiffRatio decimal(38, 4),"},
        {"0", "Ratio decimal(38, 2), DiffRatio decimal(38, 2),"},
        {"", "Ratio decimal(38, 2), DiffRatio decimal(38, 2),"},
        {"many", "Ratio decimal(38, 2), DiffRatio decimal(38, 2),"},
        {"99999", "Ratio decimal(38, 2), DiffRatio decimal(38, 2),"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, Scenarios()[0]);
        host.SetParameter("AA", "iExchRateDecDgt", c.scale);
        clsIaAnalysis().GETSQL(*host.EarlyArgument());
        EXPECT_TRUE(Sent(host, c.column)) << ToText(c.scale);
    }
}

TEST(ThePriceAnalysis, LeavesNamesInChineseAsTheyAreStored)
{
    for (const Scenario& scenario : Scenarios()) {
        RecordingHost host;
        Analyse(host, scenario);
        EXPECT_EQ(Sent(host, "aa_enum"), std::string(scenario.language) != "zh-CN") << scenario.name;
    }
}

TEST(ThePriceAnalysis, EndsQuietlyWithAnEmptyTableIfTheConditionTextIsNoDocument)
{
    for (const char* value : {"a<b", "a&b"}) {
        RecordingHost host;
        RunWith(host, {{"ShowType", value}});
        EXPECT_TRUE(TextsOf(host).back().starts_with("ALTER TABLE tempdb..analysis ")) << value;
        EXPECT_FALSE(ShowsAMessage(host));
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    }
}

TEST(ThePriceAnalysis, FailsWithoutAMonth)
{
    RecordingHost host;
    Scenario scenario = Scenarios()[0];
    scenario.filter.erase(scenario.filter.begin());
    Analyse(host, scenario);
    EXPECT_FALSE(Sent(host, "insert into"));
    EXPECT_FALSE(ShowsAMessage(host));
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

TEST(ThePriceAnalysis, ShowsThatItsTableHasNoNameAndFails)
{
    RecordingHost host;
    Prepare(host, Scenarios()[0]);
    host.Answers().sql = "";
    host.Script().failures["select * into " + kWork + " from   where 1 = 2"] = "syntax";
    clsIaAnalysis().GETSQL(*host.EarlyArgument());
    EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.07860>, 48\n"),
              std::string::npos);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

TEST(ThePriceAnalysis, DropsATableOfItsResultsNameFirst)
{
    RecordingHost host;
    Analyse(host, Scenarios()[0]);
    const auto texts = TextsOf(host);
    const auto place = [&](std::string_view part) {
        return std::ranges::find_if(texts, [&](const std::string& t) { return t.find(part) != t.npos; }) -
               texts.begin();
    };
    EXPECT_LT(place("Drop Table tempdb..[analysis]"), place("CREATE TABLE tempdb..analysis ("));
    EXPECT_LT(place("CREATE TABLE tempdb..analysis ("), place("select * into " + kWork));
}

TEST(ThePriceAnalysis, DropsItsWorkTablesAtTheEnd)
{
    RecordingHost host;
    Analyse(host, Scenarios()[0]);
    const auto texts = TextsOf(host);
    ASSERT_GE(texts.size(), 2U);
    EXPECT_TRUE(texts.at(texts.size() - 2).ends_with(" Drop Table " + kWork));
    EXPECT_TRUE(texts.back().ends_with(" Drop Table " + kKeys));
}

TEST(UpdateBasePrices, NamesThePriceOfEachKind)
{
    const struct {
        double kind;
        const char* expression;
    } cases[] = {
        {1, "ReferenceCost"},
        {2, "isnull(ExPrice,0)"},
        {3, "isnull(InPrice,0)"},
        {4, "AvgPrice"},
        {5, "Balanceunit"},
        {0, ""},
        {6, ""},
        {1.5, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(UpdateBasePrices("W", c.kind), std::string("update W  set BasePrice = ") + c.expression);
}

TEST(SelectAverages, NamesTheSumsOfEachKind)
{
    const CostingKey& key = CostingKeyOf("按存货核算");
    const struct {
        double kind;
        const char *expression, *rows;
    } cases[] = {
        {1, " SELECT  avg(iIMoney/iINum)   as AvgPrice,", " where iINum <> 0 \r\n"},
        {2, " SELECT  avg(iOMoney/iONum)  as AvgPrice,", " where iONum <> 0 \r\n"},
        {3, " SELECT  avg(iMoney/iNum)  as AvgPrice,", " where iNum <> 0 \r\n"},
        {4, " SELECT  as AvgPrice,", " where \r\n"},
    };
    for (const auto& c : cases) {
        const std::string sql = SelectAverages(key, c.kind);
        EXPECT_TRUE(sql.starts_with(c.expression)) << sql;
        EXPECT_NE(sql.find(c.rows), sql.npos) << sql;
    }
}

TEST(CostingKeyOf, IsThatOfWarehousesForAnyOtherSetting)
{
    for (const char* style : {"", "按仓库核算", "anything"})
        EXPECT_EQ(CostingKeyOf(style).strKeyColumns, ",t.cWhCode ") << style;
    EXPECT_EQ(CostingKeyOf("按存货核算").strKeyColumns, "");
    EXPECT_EQ(CostingKeyOf("按部门核算").strKeyColumns, ",t.cWhCode,t.cDepCode ");
}

// ---- failures

namespace {

// What the failure of a statement means for the run.
enum class Outcome { PassedOver, Shown, Ends };

Outcome OutcomeOf(const std::string& sql)
{
    if (sql.find("tempdb..[analysis]") != sql.npos)
        return Outcome::Shown;
    const bool ofTheTable = sql.starts_with("CREATE TABLE tempdb..analysis") ||
                            sql.starts_with("ALTER TABLE tempdb..analysis") ||
                            sql.find("iExchRateDecDgt") != sql.npos;
    return ofTheTable ? Outcome::PassedOver : Outcome::Ends;
}

}  // namespace

TEST(ThePriceAnalysis, EndsAtWhicheverStatementFailsWithoutAMessage)
{
    for (const Scenario& scenario : Scenarios()) {
        RecordingHost whole;
        Analyse(whole, scenario);
        const auto sent = TextsOf(whole);

        for (std::size_t number = 1; number <= sent.size(); ++number) {
            RecordingHost host;
            host.Script().failAtStatement = number;
            EXPECT_NO_THROW(Analyse(host, scenario)) << number;
            const std::string& failed = sent.at(number - 1);
            const Outcome outcome = OutcomeOf(failed);
            EXPECT_EQ(ShowsAMessage(host), outcome == Outcome::Shown) << failed;
            EXPECT_EQ(host.Sent().size(), outcome == Outcome::Ends ? number : sent.size()) << failed;
            EXPECT_EQ(ConnectionsLeft(), outcome == Outcome::Ends
                                             ? "gcnnAccount=open gcnnSystem=nothing gobjLogin=set"
                                             : "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set")
                << failed;
        }
    }
}

TEST(ThePriceAnalysis, LetsNoFaultOfItsFilterThrough)
{
    RecordingHost whole;
    Analyse(whole, Scenarios()[4]);
    const std::vector<std::string> events = whole.Events().Lines();
    const auto read = std::ranges::find(events, "e.LangID");
    ASSERT_NE(read, events.end());
    const auto before = static_cast<std::size_t>(read - events.begin()) + 1;
    const auto closed = std::ranges::find(events, "#1.Close");
    ASSERT_NE(closed, events.end());
    const auto behind = static_cast<std::size_t>(closed - events.begin()) + 1;

    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        Prepare(host, Scenarios()[4]);
        host.Events().FailWithErrors();
        host.Events().FailAt(step);
        const bool traps = step > before && step < behind;
        if (traps)
            EXPECT_NO_THROW(clsIaAnalysis().GETSQL(*host.EarlyArgument())) << events[step - 1];
        else
            EXPECT_THROW(clsIaAnalysis().GETSQL(*host.EarlyArgument()), Error) << events[step - 1];
    }
}

TEST(ThePriceAnalysis, LeavesErrorsOfTheConnectionToTheHost)
{
    RecordingHost host;
    Prepare(host, Scenarios()[0]);
    host.Script().failAtOpen = 1;
    EXPECT_THROW(clsIaAnalysis().GETSQL(*host.EarlyArgument()), ConnectionError);
}

TEST(MoveDataDetail, OfThePriceAnalysisTellsASuccessFromAFailure)
{
    RecordingHost host;
    Prepare(host, Scenarios()[0]);
    clsIaAnalysis report;
    report.GETSQL(*host.EarlyArgument());
    EXPECT_EQ(report.sarn_tmpTable(), "tempdb..analysis");
    host.OpenAccount();
    EXPECT_EQ(report.MoveDataDetail(), "");
    host.OpenAccount();
    host.Script().failAtStatement = host.Sent().size() + 20;
    EXPECT_EQ(report.MoveDataDetail(), " ");
}

}  // namespace kavelin::test
