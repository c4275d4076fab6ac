// What the ABC analysis sends, and what it asks of its host.
#include "analysis/AbcFilter.h"
#include "analysis/AbcOptions.h"
#include "analysis/ClsABC.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/RecordingHost.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::vector<FakeField> kDialog = {
    {"iYear", "2008"}, {"iPeriod", "7月"}, {"incluA", "是"}, {"incluB", "是"}, {"incluC", "是"}};

struct Scenario {
    const char* name;
    std::vector<FakeField> filter;
    Value quantity = 10;
    Value money = 100;
    bool permissions = false;
    const char* valueStyle = "按仓库核算";
    const char* qualifier = "";
    std::string where = {};
};

void Prepare(RecordingHost& host, const Scenario& scenario)
{
    host.Answers().args["ABC"] = "1";
    host.Answers().sql = "tempdb..abc";
    host.Answers().valueStyle = scenario.valueStyle;
    host.Answers().inventoryQualifier = scenario.qualifier;
    for (const AbcOption& option : kAbcOptions)
        host.Answers().settings["存货核算, ABCOption872, " + std::string(option.key)] = option.byDefault;
    host.SetFilter(scenario.filter);
    host.Filter()->where = scenario.where;
    if (scenario.permissions) {
        for (const char* check : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
            host.SetParameter("IA", check, "TRUE");
        host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'A'"}};
    }
    host.Script().rowsByStart["select sum(isnull(IA_summary.iNum,0)) as nums"] = {{"nums"},
                                                                                  {{scenario.quantity}}};
    host.Script().rowsByStart["select sum(isnull(IA_summary.iMoney,0)) as nums"] = {
        {"nums", "moneys"}, {{scenario.money, Value::Null()}}};
}

// The statement that sums the quantities: it holds the conditions of all others.
std::string Total(const RecordingHost& host)
{
    for (const SentStatement& sent : host.Sent())
        if (sent.sql.find("as nums") != std::string::npos)
            return sent.sql;
    return "";
}

}  // namespace

TEST(ClsABC, SendsTheStatementsOfItsScenarios)
{
    const Scenario cases[] = {
        {.name = "usual", .filter = kDialog},
        {.name = "no-quantity", .filter = kDialog, .quantity = Value::Null()},
        {.name = "no-money", .filter = kDialog, .money = 0},
        {.name = "nothing", .filter = kDialog, .quantity = -5, .money = -1},
        {.name = "by-warehouse", .filter = kDialog, .permissions = true},
        {.name = "by-department", .filter = kDialog, .permissions = true, .valueStyle = "按部门核算"},
        {.name = "by-item", .filter = kDialog, .permissions = true, .valueStyle = "按存货核算"},
        {.name = "other-database", .filter = kDialog, .qualifier = "Other.."},
        {.name = "rest-of-the-filter", .filter = kDialog, .where = "IA_Summary.cWhCode = N'01'"},
        {.name = "without-class-c",
         .filter =
             {{"iYear", "2008"}, {"iPeriod", "12月"}, {"incluA", "是"}, {"incluB", "是"}, {"incluC", "否"}}},
    };
    for (const Scenario& scenario : cases) {
        RecordingHost host;
        Prepare(host, scenario);
        ClsABC().GETSQL(*host.LateArgument());
        ExpectStatements(host.Sent(), std::string("abc/") + scenario.name);
        ExpectScenario(host, "ClsABC", std::string("abc/") + scenario.name);
    }
}

TEST(ClsABC, LeavesToTheServiceOnlyWhatItDoesNotTakeItself)
{
    RecordingHost host;
    Prepare(host, {.name = "",
                   .filter = {{"iYear", "2008"}, {"cWhCode", "01"}, {"IPERIOD", "7月"}, {"INCLUA", "是"}}});
    ClsABC().GETSQL(*host.LateArgument());
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 0, 1, 1}));
}

TEST(ClsABC, TakesTheLoginsMonthAndYearWithoutADialog)
{
    RecordingHost host;
    Prepare(host, {.name = "", .filter = {{"iYear", "2007"}, {"iPeriod", "3月"}}});
    host.Answers().args.clear();
    ClsABC().GETSQL(*host.LateArgument());
    EXPECT_NE(Total(host).find("imonth=7 And IA_summary.iyear =2008"), std::string::npos) << Total(host);
}

TEST(ClsABC, TakesTheDialogsMonthWhenAnOlderHostCalls)
{
    RecordingHost host;
    Prepare(host, {.name = "", .filter = {{"iYear", "2007"}, {"iPeriod", "3月"}}});
    host.Answers().args.clear();
    ClsABC().GetSqlForOld(*host.LateArgument());
    EXPECT_NE(Total(host).find("imonth=3 And IA_summary.iyear =2007"), std::string::npos) << Total(host);
}

TEST(ClsABC, TakesTheLoginsYearForAnEmptyOneThatComesFromADialog)
{
    RecordingHost host;
    Prepare(host, {.name = "", .filter = {{"iYear", ""}, {"iPeriod", "3月"}}});
    host.Filter()->ContextArgs()->Add(Value("1"), "ABC");
    ClsABC().GETSQL(*host.LateArgument());
    EXPECT_NE(Total(host).find("imonth=3 And IA_summary.iyear =2008"), std::string::npos) << Total(host);
}

TEST(ClsABC, StopsAtEachStatementThatFailsWithTheConnectionOpen)
{
    RecordingHost whole;
    Prepare(whole, {.name = "", .filter = kDialog});
    ClsABC().GETSQL(*whole.LateArgument());
    const std::size_t statements = whole.Sent().size();
    ASSERT_EQ(statements, 15u);

    for (std::size_t k = 1; k <= statements; ++k) {
        RecordingHost host;
        Prepare(host, {.name = "", .filter = kDialog});
        host.Script().failAtStatement = k;
        ClsABC report;
        const bool quiet = whole.Sent()[k - 1].sql.starts_with("drop table ");
        if (quiet) {
            EXPECT_NO_THROW(report.GETSQL(*host.LateArgument())) << k;
            EXPECT_EQ(host.Sent().size(), statements) << k;
            continue;
        }
        EXPECT_THROW(report.GETSQL(*host.LateArgument()), DatabaseError) << k;
        EXPECT_EQ(host.Sent().size(), k);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set") << k;
    }
}

TEST(ClsABC, LetsEveryFailureOfTheHostsObjectsReachTheHostUnlessItOnlyDropsATable)
{
    RecordingHost whole;
    Prepare(whole, {.name = "", .filter = kDialog});
    whole.Events().Clear();
    ClsABC().GETSQL(*whole.LateArgument());
    const std::vector<std::string> steps = whole.Events().Lines();
    ASSERT_GT(steps.size(), 50u);

    std::size_t passedOver = 0;
    for (std::size_t k = 1; k <= steps.size(); ++k) {
        RecordingHost host;
        Prepare(host, {.name = "", .filter = kDialog});
        host.Events().Clear();
        host.Events().FailAt(k);
        if (steps[k - 1].starts_with("#1.Execute drop table ")) {
            EXPECT_NO_THROW(ClsABC().GETSQL(*host.LateArgument())) << steps[k - 1];
            ++passedOver;
        } else {
            EXPECT_THROW(ClsABC().GETSQL(*host.LateArgument()), PlannedFailure) << steps[k - 1];
            EXPECT_EQ(host.Events().Lines().size(), k) << steps[k - 1];
        }
    }
    EXPECT_EQ(passedOver, 2u);
}

// --- the report's own page ---------------------------------------------------------------------------

namespace {

// What the report shows, by the last statement that fills its table: "AB" for two classes.
std::string ShownClasses(const RecordingHost& host)
{
    std::string classes, statement;
    for (const SentStatement& sent : host.Sent())
        if (sent.sql.find("inAbc") != std::string::npos)
            statement = sent.sql;
    for (const char* letter : {"A", "B", "C"})
        if (statement.find(std::string(" or type=N'") + letter + "' ") != std::string::npos)
            classes += letter;
    return classes;
}

class Manager : public LateBound {
  public:
    explicit Manager(EventLog& events) : objEvents(events) {}

    Variant Get(std::string_view member) override
    {
        objEvents.Add("FltArgs." + std::string(member));
        return HostObjectPtr(std::make_shared<Manager>(objEvents));
    }
    void Put(std::string_view, const Variant&) override { throw Error("nothing is put here"); }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        objEvents.Add(std::string(member) + (arguments.empty() ? "" : " " + Shown(arguments[0])));
        return HostObjectPtr(std::make_shared<Manager>(objEvents));
    }

  private:
    EventLog& objEvents;
};

}  // namespace

TEST(ClsABC, LeavesOneClassAndHasTheReportDrawnAgain)
{
    RecordingHost host;
    Prepare(host, {.name = "", .filter = kDialog});
    host.Answers().rowObjects["FltArgs"] = std::make_shared<Manager>(host.Events());
    ClsABC report;
    report.GETSQL(*host.LateArgument());
    EXPECT_EQ(ShownClasses(host), "ABC");

    const struct {
        const char *action, *classes;
    } cases[] = {{"ActA", "A"}, {"ACTB", "B"}, {"actc", "C"}};
    for (const auto& c : cases) {
        host.Events().Clear();
        report.Execute(*host.EarlyRowArgument(c.action, {}));
        EXPECT_EQ(host.Events().Text(),
                  "new OrvoClassicReport.ClsFilterArgs\ne.Action\nlate e.FltArgs\nFltArgs.ObjreportManager\n"
                  "ReportListFormByName 'ABC成本分析'\nRefreshList\n");
        report.GETSQL(*host.LateArgument());
        EXPECT_EQ(ShownClasses(host), c.classes);
    }
    ClsABC another;
    another.GETSQL(*host.LateArgument());
    EXPECT_EQ(ShownClasses(host), "ABC");
}

TEST(ClsABC, HidesAClassThatTheFilterLeavesOutWhateverTheAction)
{
    RecordingHost host;
    Prepare(
        host,
        {.name = "",
         .filter = {
             {"iYear", "2008"}, {"iPeriod", "7月"}, {"incluA", "是"}, {"incluB", "否"}, {"incluC", "否"}}});
    ClsABC report;
    report.GETSQL(*host.LateArgument());
    EXPECT_EQ(ShownClasses(host), "A");
    report.Execute(*host.EarlyRowArgument("ActB", {}));
    report.GETSQL(*host.LateArgument());
    EXPECT_EQ(ShownClasses(host), "");
    EXPECT_TRUE(host.Sent()[host.Sent().size() - 3].sql.ends_with(" where 1=2  "));
}

TEST(ClsABC, ShowsTheOptionsWithoutDrawingTheReportAgain)
{
    RecordingHost host;
    Prepare(host, {.name = "", .filter = kDialog});
    host.Answers().rowObjects["FltArgs"] = std::make_shared<Manager>(host.Events());
    host.Answers().useForm = [](Form& form) { EXPECT_TRUE(form.Click("Command2")); };
    host.Events().Clear();
    ClsABC().ExecuteForOld(*host.LateRowArgument("ActOption", {}));
    const std::string events = host.Events().Text();
    EXPECT_NE(events.find("FormHost.ShowModal ABC分类控制比\nResourceObject.Unload\n"), std::string::npos)
        << events;
    EXPECT_EQ(events.find("RefreshList"), std::string::npos) << events;
}

// Each step goes on after an error, as far as it has an object to go on with.
TEST(ClsABC, PassesOverTheFailureOfEachStepOfAnAction)
{
    for (const char* action : {"ActA", "ActOption"}) {
        const auto prepare = [](RecordingHost& host) {
            Prepare(host, {.name = "", .filter = kDialog});
            host.Answers().rowObjects["FltArgs"] = std::make_shared<Manager>(host.Events());
            host.Answers().useForm = [](Form& form) { form.Click("Command1"); };
            host.Events().Clear();
        };
        RecordingHost whole;
        prepare(whole);
        ClsABC().Execute(*whole.EarlyRowArgument(action, {}));
        const std::vector<std::string> steps = whole.Events().Lines();
        for (std::size_t k = 1; k <= steps.size(); ++k) {
            RecordingHost host;
            prepare(host);
            host.Events().FailAt(k);
            EXPECT_NO_THROW(ClsABC().Execute(*host.EarlyRowArgument(action, {}))) << steps[k - 1];
        }
        RecordingHost host;
        prepare(host);
        host.Events().FailAt(1);
        ClsABC().Execute(*host.EarlyRowArgument(action, {}));
        EXPECT_EQ(host.Events().Lines(), steps) << "the object at the beginning is not needed";
    }
}

TEST(ClsABC, PassesOverEveryErrorOfAnAction)
{
    for (const char* action : {"ActA", "ActOption", "unknown"}) {
        RecordingHost host;
        Prepare(host, {.name = "", .filter = kDialog});
        host.Answers().missingObjects = {"OrvoClassicReport.ClsFilterArgs"};
        host.Answers().useForm = [](Form&) { throw Error("the form fails"); };
        EXPECT_NO_THROW(ClsABC().Execute(*host.EarlyRowArgument(action, {}))) << action;
    }
}

}  // namespace kavelin::test
