// What the inventory turnover sends, and what it asks of its host.
#include "analysis/TurnoverStatements.h"
#include "analysis/clsCinTurnRep.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kavelin::test {

namespace {

const std::vector<FakeField> kUsual = {{"iYear", "2008"}, {"iPeriod", "2008-03-01", "2008-03-10", true}};

struct Scenario {
    const char* name = "";
    std::vector<FakeField> filter = kUsual;
    bool permissions = false;
    const char* valueStyle = "按存货核算";
    const char* edition = "工业";
    const char* qualifier = "";
    std::string where = {};
    std::string business = {};
};

DateTime Day(int month, int day)
{
    return std::chrono::sys_days(std::chrono::year(2008) / month / day);
}

void Prepare(RecordingHost& host, const Scenario& scenario)
{
    host.Answers().sql = "tempdb..turnover";
    host.Answers().inventoryQualifier = scenario.qualifier;
    host.SetParameter("IA", "cValueStyle", scenario.valueStyle);
    host.SetParameter("AA", "iStrsQuanDecDgt", "4");
    host.SetParameter("AA", "cSysVersion", scenario.edition);
    host.Script().rowsByStart["Select dBegin,dEnd from VosSystem..UA_Period"] = {{"dBegin", "dEnd"},
                                                                                 {{Day(1, 1), Day(12, 31)}}};
    host.Script().rows[SelectLastPostingDate("2008")] = {{"MAXDate"}, {{Day(11, 28)}}};
    host.SetFilter(scenario.filter);
    host.Filter()->where = scenario.where;
    host.Filter()->whereByToken[2] = scenario.business;
    if (scenario.permissions) {
        for (const char* check : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
            host.SetParameter("IA", check, "TRUE");
        host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'A'"}};
    }
}

std::vector<FakeField> And(std::vector<FakeField> fields)
{
    fields.insert(fields.begin(), kUsual.begin(), kUsual.end());
    return fields;
}

// Of the statements, those that hold a text.
std::vector<std::string> With(const RecordingHost& host, const std::string& text)
{
    std::vector<std::string> found;
    for (const SentStatement& sent : host.Sent())
        if (sent.sql.find(text) != std::string::npos)
            found.push_back(sent.sql);
    return found;
}

}  // namespace

TEST(clsCinTurnRep, SendsTheStatementsOfItsScenarios)
{
    const Scenario cases[] = {
        {.name = "usual"},
        {.name = "by-department", .valueStyle = "按部门核算"},
        {.name = "by-warehouse", .valueStyle = "按仓库核算", .edition = "商业"},
        {.name = "by-everything",
         .filter =
             And({{"bGroupDep", "是"}, {"bGroupcWh", "是"}, {"bGroupInvCC", "是"}, {"bGroupcIn", "是"}})},
        {.name = "by-class", .filter = And({{"bGroupcIn", "否"}})},
        {.name = "by-item-without-class", .filter = And({{"bGroupInvCC", "否"}})},
        {.name = "by-nothing", .filter = And({{"bGroupInvCC", "否"}, {"bGroupcIn", "否"}})},
        {.name = "by-quantity", .filter = And({{"disMethod", "按数量"}})},
        {.name = "for-sale", .filter = And({{"invproperty", "销售"}})},
        {.name = "bought", .filter = And({{"invproperty", "采购"}})},
        {.name = "consumed", .filter = And({{"invproperty", "生产领料"}})},
        {.name = "business-types",
         .filter = And({{"ia_subsidiary.cBusType", "普通销售"}}),
         .business = "ia_subsidiary.cBusType = N'普通销售'"},
        {.name = "rest-of-the-filter",
         .filter = And({{"cInvCode", "A"}}),
         .where = "Inventory.cInvCode = N'A'"},
        {.name = "permissions", .permissions = true},
        {.name = "other-database", .qualifier = "Other.."},
    };
    for (const Scenario& scenario : cases) {
        RecordingHost host;
        Prepare(host, scenario);
        clsCinTurnRep().GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("turnover/") + scenario.name);
        ExpectScenario(host, "clsCinTurnRep", std::string("turnover/") + scenario.name);
    }
}

TEST(clsCinTurnRep, LeavesToTheServiceOnlyWhatItDoesNotTakeItself)
{
    RecordingHost host;
    Prepare(host, {.filter = And({{"cInvCode", "A"}, {"IA_SUBSIDIARY.CBUSTYPE", ""}, {"BGROUPDEP", "是"}})});
    clsCinTurnRep().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 1, 0, 2, 1}));
}

TEST(clsCinTurnRep, BeginsWithTheYearWhereTheDateIsMissingOrTooEarly)
{
    for (const Value& from : {Value(""), Value("2007-12-31"), Value("2008-01-01")}) {
        RecordingHost host;
        Prepare(host, {.filter = {{"iYear", "2008"}, {"iPeriod", from, "2008-03-10", true}}});
        clsCinTurnRep().GETSQL(*host.EarlyArgument());
        EXPECT_EQ(With(host, "dKeepDate >= '2008-01-01' and dKeepDate <= '2008-03-10'").size(), 2u);
    }
}

TEST(clsCinTurnRep, EndsWithTheLastPostingWhereNoDateIsGivenAndWithTheYearWhereNothingIsPosted)
{
    RecordingHost host;
    Prepare(host, {.filter = {{"iYear", "2008"}, {"iPeriod", "2008-03-01", "", true}}});
    clsCinTurnRep().GETSQL(*host.EarlyArgument());
    EXPECT_EQ(With(host, "dKeepDate <= '2008-11-28'").size(), 2u);

    RecordingHost empty;
    Prepare(empty, {.filter = {{"iYear", "2008"}, {"iPeriod", "2008-03-01", "", true}}});
    empty.Script().rows[SelectLastPostingDate("2008")] = {{"MAXDate"}, {{Value::Null()}}};
    clsCinTurnRep().GETSQL(*empty.EarlyArgument());
    EXPECT_EQ(With(empty, "dKeepDate <= '2008-12-31'").size(), 2u);
}

TEST(clsCinTurnRep, SendsTheSameStatementsWhenAnOlderHostCalls)
{
    const auto statements = [](bool isOlder) {
        RecordingHost host;
        Prepare(host, {});
        clsCinTurnRep report;
        if (isOlder)
            report.GetSqlForOld(*host.LateArgument());
        else
            report.GETSQL(*host.EarlyArgument());
        EXPECT_EQ(report.TempTablename(), "tempdb..turnover");
        std::string text;
        for (const SentStatement& sent : host.Sent())
            text += sent.sql + "\n";
        return text;
    };
    EXPECT_EQ(statements(true), statements(false));
}

TEST(clsCinTurnRep, FailsOnARangeBeforeItsYear)
{
    RecordingHost host;
    Prepare(host, {.filter = {{"iPeriod", "2008-03-01", "2008-03-10", true}, {"iYear", "2008"}}});
    EXPECT_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument()), Error);
}

TEST(TurnoverStatements, LimitTheMonthsBesideTheDates)
{
    TurnoverRun run;
    run.strWhere = " And x=1";
    run.strDateFrom = "2008-03-01";
    run.strDateTo = "2008-11-10";
    ComposeTurnoverRun(run);
    EXPECT_EQ(run.strDateClause, " And x=1 and dKeepDate >= '2008-03-01' and dKeepDate <= '2008-11-10'");
    EXPECT_EQ(run.strMonthClause, " And x=1 and imonth >= 3 and imonth <= 11");
}

TEST(clsCinTurnRep, StopsAtEachStatementThatFailsUnlessItOnlyDropsATable)
{
    RecordingHost whole;
    Prepare(whole, {});
    clsCinTurnRep().GETSQL(*whole.EarlyArgument());
    const std::size_t statements = whole.Sent().size();
    ASSERT_EQ(statements, 28u);

    for (std::size_t k = 1; k <= statements; ++k) {
        RecordingHost host;
        Prepare(host, {});
        host.Script().failAtStatement = k;
        if (whole.Sent()[k - 1].sql.starts_with("drop table ")) {
            EXPECT_NO_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument())) << k;
            EXPECT_EQ(host.Sent().size(), statements) << k;
            continue;
        }
        EXPECT_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument()), DatabaseError) << k;
        EXPECT_EQ(host.Sent().size(), k);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=open gobjLogin=set") << k;
    }
}

TEST(clsCinTurnRep, LetsEveryFailureOfTheHostsObjectsReachTheHostUnlessItOnlyDropsATable)
{
    const Scenario scenario = {.filter = And({{"ia_subsidiary.cBusType", "普通销售"}}),
                               .business = "ia_subsidiary.cBusType = N'普通销售'"};
    RecordingHost whole;
    Prepare(whole, scenario);
    whole.Events().Clear();
    clsCinTurnRep().GETSQL(*whole.EarlyArgument());
    const std::vector<std::string> steps = whole.Events().Lines();
    ASSERT_GT(steps.size(), 80u);

    std::size_t passedOver = 0;
    for (std::size_t k = 1; k <= steps.size(); ++k) {
        RecordingHost host;
        Prepare(host, scenario);
        host.Events().Clear();
        host.Events().FailAt(k);
        if (steps[k - 1].starts_with("#1.Execute drop table ")) {
            EXPECT_NO_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument())) << steps[k - 1];
            ++passedOver;
        } else {
            EXPECT_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument()), PlannedFailure) << steps[k - 1];
            EXPECT_EQ(host.Events().Lines().size(), k) << steps[k - 1];
        }
    }
    EXPECT_EQ(passedOver, 9u);
}

// --- the host's format -------------------------------------------------------------------------------

namespace {

// A column, or anything else with named members.
class Members : public LateBound {
  public:
    std::map<std::string, Variant, LessNoCase> values;
    std::function<Variant(std::string_view, const std::vector<Variant>&)> call;

    Variant Get(std::string_view member) override { return values.at(std::string(member)); }
    void Put(std::string_view member, const Variant& value) override { values[std::string(member)] = value; }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        return call(member, arguments);
    }
};

struct Format {
    explicit Format(const std::vector<std::string>& expressions)
    {
        for (const std::string& expression : expressions) {
            auto column = std::make_shared<Members>();
            column->values["Expression"] = Value(expression);
            columns.push_back(column);
        }
        auto cols = std::make_shared<Members>();
        cols->values["Count"] = Value(static_cast<std::int32_t>(columns.size()));
        cols->call = [this](std::string_view member, const std::vector<Variant>& arguments) -> Variant {
            EXPECT_EQ(member, "Item");
            return HostObjectPtr(
                columns.at(static_cast<std::size_t>(ToInt32(ValueOf(arguments.at(0), "position"))) - 1));
        };
        auto format = std::make_shared<Members>();
        format->values["cols"] = HostObjectPtr(cols);
        manager->call = [format](std::string_view member, const std::vector<Variant>& arguments) -> Variant {
            EXPECT_EQ(member, "ReportFormatByName");
            EXPECT_EQ(ToText(ValueOf(arguments.at(0), "name")), "存货周转率分析");
            return HostObjectPtr(format);
        };
    }

    // The columns that were taken out.
    std::string Hidden() const
    {
        std::string hidden;
        for (const auto& column : columns)
            if (column->values.contains("colVisible")) {
                EXPECT_EQ(column->values.at("colVisible"), Variant(Value(false)));
                EXPECT_EQ(column->values.at("Col"), Variant(Value(0)));
                hidden += ToText(ValueOf(column->values.at("Expression"), "Expression")) + " ";
            }
        return hidden;
    }

    std::vector<std::shared_ptr<Members>> columns;
    std::shared_ptr<Members> manager = std::make_shared<Members>();
};

}  // namespace

TEST(clsCinTurnRep, TakesColumnsOutOfTheViewThatItsGroupingLeavesEmpty)
{
    const std::vector<std::string> columns = {"起始日期",      "部门_编码",     "部门_名称",    "仓库_编码",
                                              "仓库_名称",     "存货_分类",     "存货_编码",    "存货_名称",
                                              "分析_平均库存", "分析_出库成本", "分析_出库数量"};
    const struct {
        std::vector<FakeField> filter;
        const char* hidden;
    } cases[] = {
        {kUsual, "部门_编码 部门_名称 仓库_编码 仓库_名称 "},
        {And({{"bGroupDep", "是"}, {"bGroupcWh", "是"}}), ""},
        {And({{"bGroupcWh", "是"}, {"bGroupInvCC", "否"}}), "部门_编码 部门_名称 存货_分类 "},
        {And({{"bGroupDep", "是"}, {"bGroupcWh", "是"}, {"bGroupcIn", "否"}}), "存货_编码 存货_名称 "},
        {And({{"bGroupDep", "是"}, {"bGroupcWh", "是"}, {"disMethod", "按数量"}}), "分析_出库成本 "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, {.filter = c.filter});
        const Format format(columns);
        clsCinTurnRep report;
        report.SetTempTablename("tempdb..turnover");
        host.SetReportManager(format.manager);
        report.GETSQL(*host.EarlyArgument());
        EXPECT_EQ(format.Hidden(), c.hidden);
    }
}

TEST(clsCinTurnRep, NeedsNoFormatOfItsReport)
{
    RecordingHost host;
    Prepare(host, {});
    const auto manager = std::make_shared<Members>();
    manager->call = [](std::string_view, const std::vector<Variant>&) -> Variant { return HostObjectPtr(); };
    host.SetReportManager(manager);
    EXPECT_NO_THROW(clsCinTurnRep().GETSQL(*host.EarlyArgument()));
    EXPECT_TRUE(host.Sent().back().sql.starts_with("drop table ")) << "goes on to the end";
}

}  // namespace kavelin::test
