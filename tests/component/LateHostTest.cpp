// Hosts whose objects are late-bound only: what happens to them is what happens to those of a C++ host.
#include "component/Component.h"
#include "component/late/LateMirror.h"
#include "component/late/MirroredHost.h"
#include "component/late/ScenarioReader.h"
#include "frame/Errors.h"
#include "frame/host/ConnectionObject.h"
#include "support/GoldenFile.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <set>

namespace kavelin::test {

namespace {

const std::filesystem::path kScenarios = std::filesystem::path(KAVELIN_TESTS_DIR) / "scenarios";

std::vector<std::filesystem::path> ScenarioFiles()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kScenarios))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    return files;
}

// Whether the scenarios of the class hand in an argument that is late-bound in C++ too, and say so in their
// lines.
bool IsLate(const std::string& className)
{
    return className == "clsLastRep" || className == "ClsABC";
}

// A dialog's opening is its scenario; every other class is a report.
constexpr std::string_view kDialogs = "clsFilterControl";

// How an object goes to the library: as it is, or late-bound.
using Pass = std::function<Variant(HostObjectPtr)>;

// Prepares a host and calls the library.
using Steps = std::function<void(RecordingHost&, const Pass&)>;

// What happened to the host's objects, and how the call ended. The event of that number fails, 0 for none.
struct Played {
    std::string events;
    std::string end;
    std::size_t count;
};

template <class Host>
Played Play(const Steps& run, const Pass& pass, std::size_t failing)
{
    Host host;
    host.Events().FailWithErrors();
    if (failing != 0)
        host.Events().FailAt(failing);
    Played played;
    try {
        run(host, pass);
        played.end = "returned, " + ConnectionsLeft();
    } catch (const Error& error) {
        played.end = error.what();
    }
    played.events = host.Events().Text();
    played.count = host.Events().Lines().size();
    return played;
}

Played PlayEarly(const Steps& run, std::size_t failing = 0)
{
    return Play<RecordingHost>(
        run, [](HostObjectPtr object) { return Variant(object); }, failing);
}

Played PlayLate(const Steps& run, std::size_t failing = 0)
{
    return Play<MirroredHost>(
        run, [](HostObjectPtr object) { return Mirrored(Variant(object)); }, failing);
}

// Expects that a host in C++ and a late-bound one see the same. Gives what they see.
Played ExpectTheSame(const Steps& run, std::size_t failing = 0)
{
    const Played early = PlayEarly(run, failing);
    const Played late = PlayLate(run, failing);
    EXPECT_EQ(late.events, early.events) << "failing: " << failing;
    EXPECT_EQ(late.end, early.end) << "failing: " << failing;
    return early;
}

void ExpectTheSameWhicheverEventFails(const Steps& run)
{
    const std::size_t count = ExpectTheSame(run).count;
    EXPECT_GT(count, 10u);
    for (std::size_t failing = 1; failing <= count && !testing::Test::HasFailure(); ++failing)
        ExpectTheSame(run, failing);
}

Steps Scenario(const std::string& name, const char* entry)
{
    return [=](RecordingHost& host, const Pass& pass) {
        const auto report = CreateObject("Kavelin." + PlayScenario(kScenarios / (name + ".txt"), host));
        const bool old = std::string_view(entry) == "GetSqlForOld";
        report->Call(entry, {pass(old ? HostObjectPtr(host.LateArgument()) : host.EarlyArgument())});
    };
}

Steps DrillDown(const char* className, const char* entry, const std::string& action, const Cells& cells)
{
    return [=](RecordingHost& host, const Pass& pass) {
        host.SetParameter("AA", "cSysVersion", "工业");
        host.SetParameter("IA", "cValueStyle", "按仓库核算");
        const bool old = std::string_view(entry) == "ExecuteForOld";
        const HostObjectPtr e = old ? HostObjectPtr(host.LateRowArgument(action, cells))
                                    : HostObjectPtr(host.EarlyRowArgument(action, cells));
        CreateObject(std::string("Kavelin.") + className)->Call(entry, {pass(e)});
    };
}

// Cells under the names of every report.
Cells Row(const std::string& vouType)
{
    return {{"cVouType", vouType}, {"单据号", " DJ-7 "}, {"业务类型", "普通采购"}, {"ID", "70"},
            {"AutoID", "71"},      {"cPzID", "IA01"},    {"cvoucode", "DJ-7"},     {"cbustype", "普通采购"},
            {"iPzid", "70"},       {"ccode", "DJ-7"},    {"cAdjPZID", "IA02"}};
}

struct Dialog {
    const char* identity;
    std::vector<FakeField> fields;
    const char* changed;
};

// The callbacks of a dialog from its opening to OK, and what came back by reference.
Steps WholeDialog(const Dialog& dialog)
{
    return [=](RecordingHost& host, const Pass& pass) {
        host.SetParameter("IA", "bWarehouseCheck", "True");
        host.Answers().lists = {{"Warehouse", "'01','02'"}};
        host.Answers().accountYears = {"2007", "2008"};
        host.Script().rowsByStart["select iyear,iid"] = {{"iyear", "iid"}, {{2008, 1}, {2008, 2}}};
        host.SetFilter(dialog.fields);
        host.Filter()->filterId = dialog.identity;
        host.Filter()->login = host.Login();
        const auto control = CreateObject("Kavelin.clsFilterControl");
        const Variant filter = pass(host.Filter());
        const auto note = [&](const char* what, const Variant& value) {
            host.Events().Add(std::string(what) + " " + Shown(value));
        };

        note("FilterInit gave", control->Call("CallBack_FilterInit", {filter}));
        std::vector<Variant> first = {filter, Value("untouched")};
        control->CallByReference("CallBack_ReportViewInit", first);
        note("the first view is", first[1]);
        control->Call("CallBack_ValueChange", {Value(dialog.changed), filter});
        std::vector<Variant> view = {Value(dialog.changed), filter, Value("untouched")};
        control->CallByReference("CallBack_ReportViewChange", view);
        note("the view is", view[2]);
        std::vector<Variant> click = {filter, Value(false)};
        control->CallByReference("CallBack_FilterClick", click);
        note("Cancel is", click[1]);
        control->Call("InitAccMonth", {});
    };
}

}  // namespace

TEST(ALateBoundHost, SeesEveryScenarioAsItIsWrittenDown)
{
    std::set<std::string> classes;
    for (const auto& file : ScenarioFiles()) {
        MirroredHost host;
        const std::string name = PlayScenario(file, host);
        const auto object = CreateObject("Kavelin." + name);
        if (name == kDialogs) {
            ModPub().gstrLanguage = host.Answers().langId;
            object->Call("CallBack_FilterInit", {Mirrored(Variant(HostObjectPtr(host.Filter())))});
        } else {
            object->Call("GETSQL", {IsLate(name) ? host.OldCallArgument() : host.CallArgument()});
        }
        EXPECT_EQ(ScenarioText(host, name), ReadFile(file)) << file;
        classes.insert(name);
    }
    std::set<std::string> reports = {std::string(kDialogs)};
    for (const PublicClass& publicClass : PublicClasses())
        for (const Member& member : publicClass.members)
            if (member.name == "GETSQL")
                reports.emplace(publicClass.name);
    EXPECT_EQ(classes, reports) << "a report without a scenario";
}

TEST(ALateBoundHost, GetsTheSameStatementsFromTheCapitalShareAndTheJournal)
{
    for (const char* name : {"capital-share/all-keys", "capital-share/permissions", "journal/both",
                             "journal/unposted", "journal/posted"}) {
        MirroredHost host;
        const auto report =
            CreateObject("Kavelin." + PlayScenario(kScenarios / (std::string(name) + ".txt"), host));
        report->Call("GETSQL", {host.CallArgument()});
        ExpectStatements(host.Sent(), name);
    }
}

TEST(ALateBoundHostOfTheOlderKind, SeesWhatOneInCppSees)
{
    std::set<std::string> classes;
    for (const auto& file : ScenarioFiles()) {
        const std::string name = std::filesystem::relative(file, kScenarios).replace_extension().string();
        RecordingHost host;
        const std::string className = PlayScenario(file, host);
        for (const PublicClass& publicClass : PublicClasses())
            for (const Member& member : publicClass.members)
                if (publicClass.name == className && member.name == "GetSqlForOld") {
                    ExpectTheSame(Scenario(name, "GetSqlForOld"));
                    classes.insert(className);
                }
    }
    EXPECT_GE(classes.size(), 4u);
}

TEST(ALateBoundHost, SeesTheSameWhicheverOfItsObjectsFails)
{
    ExpectTheSameWhicheverEventFails(Scenario("capital-share/permissions", "GETSQL"));
    ExpectTheSameWhicheverEventFails(Scenario("turnover/permissions", "GETSQL"));
    ExpectTheSameWhicheverEventFails(Scenario("journal/posted", "GETSQL"));
    ExpectTheSameWhicheverEventFails(Scenario("journal/posted", "GetSqlForOld"));
}

TEST(ALateBoundHost, IsToldOfADocumentAsOneInCppIs)
{
    for (const char* type : {"22", "20", "24", "35", "01"}) {
        const Played shown = ExpectTheSame(DrillDown("ClsWtInfo", "Execute", "ActWtInfo", Row(type)));
        EXPECT_NE(shown.events.find("Corvane.clsUniVch.Init(connection #1, '工业', Login)"),
                  std::string::npos);
        ExpectTheSame(DrillDown("ClsWtInfo", "ExecuteForOld", "ActWtInfo", Row(type)));
        ExpectTheSame(DrillDown("clsStaCostacc", "Execute", "ActWtInfo", Row(type)));
        ExpectTheSame(DrillDown("clsIaAnalysis", "Execute", "Vouch", Row(type)));
        ExpectTheSame(DrillDown("ClsOutDetailInfo", "Execute", "Vouch", Row(type)));
    }
    ExpectTheSameWhicheverEventFails(DrillDown("ClsWtInfo", "Execute", "ActWtInfo", Row("01")));
}

TEST(ALateBoundHost, IsToldOfAVoucherAsOneInCppIs)
{
    const Played shown = ExpectTheSame(DrillDown("ClsWtInfo", "Execute", "ActVoucher", Row("01")));
    EXPECT_NE(shown.events.find("Tessel.clsPub.InitPubs2('IA', SystemDatabase, LedgerLogin, "),
              std::string::npos)
        << shown.events;
    EXPECT_NE(shown.events.find("Brannic.clsPZ.zzSys = Tessel.clsPub"), std::string::npos);
    ExpectTheSame(DrillDown("ClsWtInfo", "ExecuteForOld", "ActVoucher", Row("01")));
    ExpectTheSame(DrillDown("clsStaCostacc", "Execute", "ActVoucher", Row("01")));
    ExpectTheSame(DrillDown("clsIaAnalysis", "Execute", "ActVoucher", Row("01")));
    ExpectTheSame(DrillDown("ClsWtInfo", "Execute", "ActVoucher", {{"cPzID", ""}}));
    ExpectTheSameWhicheverEventFails(DrillDown("clsIaAnalysis", "Execute", "ActVoucher", Row("01")));
}

// A viewer may put another connection and another login in the place of those it was given.
TEST(ALateBoundHost, MayReplaceConnectionAndLoginInAViewer)
{
    const Steps run = [](RecordingHost& host, const Pass& pass) {
        host.Answers().callActions["Corvane.clsUniVch.Init"] = [&host](std::vector<Variant>& arguments) {
            arguments[0] =
                HostObjectPtr(std::make_shared<ConnectionObject>(std::make_shared<RecordingConnection>(
                    std::shared_ptr<EventLog>(&host.Events(), [](auto*) {}),
                    std::shared_ptr<ConnectionScript>(&host.Script(), [](auto*) {}))));
            arguments[2] = HostObjectPtr(host.Login("Another"));
        };
        DrillDown("ClsWtInfo", "Execute", "ActWtInfo", Row("01"))(host, pass);
    };
    const Played shown = ExpectTheSame(run);
    EXPECT_NE(shown.events.find("ShowVoucher(connection #2, '工业', '01', '70', nothing, Another)"),
              std::string::npos)
        << shown.events;
}

TEST(ALateBoundHost, DrivesTheDialogsAsOneInCppDoes)
{
    const std::vector<Dialog> dialogs = {
        {"IA[__]流水账", {{"iMonth"}, {"cDepCode"}, {"cWhCode"}, {"cVouType"}}, "cVouType"},
        {"IA[__]存货价格分析", {{"avgPrice", "2008.01", "2008.02"}, {"cDepCode"}}, "avgPrice"},
        {"IA[__]存货周转率分析", {{"cWhCode"}, {"iYear"}}, "iYear"},
        {"IA[__]ABC成本分析", {{"iYear"}, {"iPeriod"}, {"cDepCode"}, {"cWhCode"}}, "iYear"},
        {"IA[__]发出商品汇总表",
         {{"DispatchList.cDLCode", "1"}, {"rdrecord32.cCode"}, {"Ia_Ensubsidiary.cBustype", "全部"}},
         "DispatchList.cDLCode"},
        {"AE8206FE-FE76-4B18-9976-18400D11A2FA",
         {{"ia_subsidiary.iyear"}, {"ia_subsidiary.iMonth"}, {"ia_subsidiary.cWhCode"}},
         "ia_subsidiary.iyear"},
        {"F3D99620-46E3-465E-97C7-ECD73735B108", {{"rdGrade", "2"}, {"vouEstate", "已记账单据"}}, "RDGRADE"},
        {"C921AEDB-0DCD-4185-BCAA-00326BC8504F", {{"cWhCode", "01"}, {"cDepCode"}}, "cWhCode"},
        {"no report", {{"cWhCode"}}, "cWhCode"},
    };
    for (const Dialog& dialog : dialogs) {
        const Played seen = ExpectTheSame(WholeDialog(dialog));
        EXPECT_NE(seen.events.find("Cancel is "), std::string::npos) << dialog.identity << "\n" << seen.end;
    }
    ExpectTheSameWhicheverEventFails(WholeDialog(dialogs[3]));
}

TEST(ALateBoundHost, ShowsTheOptionsOfTheAbcAnalysis)
{
    const Steps run = [](RecordingHost& host, const Pass& pass) {
        host.Answers().useForm = [&host](Form& form) {
            for (FormField& field : form.Fields()) {
                host.Events().Add(field.name + " shows " + field.text);
                if (field.name == "Edit2")
                    field.text = "65";
            }
            for (const FormCommand& command : form.Commands())
                host.Events().Add(command.name + " is called " + command.caption);
            host.Events().Add("behind Edit2 stands " + form.FieldAfter("Edit2"));
            host.Events().Add(form.Click("Command1") ? "it closes" : "it stays");
        };
        DrillDown("ClsABC", "Execute", "ActOption", {})(host, pass);
    };
    const Played shown = ExpectTheSame(run);
    EXPECT_NE(shown.events.find("SettingsStore.Write 存货核算, ABCOption872, M2 = 65\n"), std::string::npos)
        << shown.events;
    EXPECT_NE(shown.events.find("it closes\nResourceObject.Unload\n"), std::string::npos) << shown.events;
}

// A toolbar command draws the report again through the report manager behind the filter.
TEST(ALateBoundHost, DrawsTheAbcAnalysisAgainThroughItsReportManager)
{
    const Steps run = [](RecordingHost& host, const Pass& pass) {
        const auto object = [](const char* name, MirroredMembers members) -> HostObjectPtr {
            return std::make_shared<LateMirror>(nullptr, name, std::move(members));
        };
        const auto form = object(
            "form",
            {{"RefreshList", {.call = [&](auto&) { return host.Events().Add("RefreshList"), Value(); }}}});
        const auto manager = object("manager", {{"ReportListFormByName", {.call = [&](auto& arguments) {
                                                     host.Events().Add("form " + Shown(arguments.at(0)));
                                                     return Variant(form);
                                                 }}}});
        host.Answers().rowObjects["FltArgs"] =
            object("FltArgs", {{"ObjreportManager", {.get = [&] { return Variant(manager); }}}});
        DrillDown("ClsABC", "Execute", "ActA", {})(host, pass);
        DrillDown("ClsABC", "ExecuteForOld", "ActB", {})(host, pass);
    };
    const Played shown = ExpectTheSame(run);
    EXPECT_NE(shown.events.find("late e.FltArgs\nform 'ABC成本分析'\nRefreshList\n"), std::string::npos)
        << shown.events;
}

TEST(ALateBoundHost, HandsItsFilterToTheSummaryAndTheGoodsTemplate)
{
    const auto run = [](const char* scenario, std::shared_ptr<LateBound> (*create)()) -> Steps {
        return [=](RecordingHost& host, const Pass& pass) {
            PlayScenario(kScenarios / scenario, host);
            host.OpenAccount();
            host.OpenSystem();
            ModPub().gobjLogin = host.Login();
            create()->Call("CreateNewTemplate", {pass(host.Filter()), Value("result")});
        };
    };
    const auto summary = [] { return CreateObject("Kavelin.clsSFCSumCon"); };
    for (const Played& played : {ExpectTheSame(run("stock-summary/all-keys.txt", summary)),
                                 ExpectTheSame(run("goods-summary/all-keys.txt", CreateGoodsTemplate))})
        EXPECT_NE(played.events.find("FilterList.Item 2\n"), std::string::npos)
            << played.events << played.end;
}

TEST(ClsBusiness, KeepsALateBoundPortalForTheDrillDowns)
{
    const Steps run = [](RecordingHost& host, const Pass& pass) {
        const auto portal = std::make_shared<RecordingObject>(
            std::shared_ptr<EventLog>(&host.Events(), [](auto*) {}), "Portal", CallActions{});
        CreateObject("Kavelin.ClsBusiness")->Call("Init", {pass(portal)});
        DrillDown("ClsWtInfo", "Execute", "ActVoucher", Row("01"))(host, pass);
    };
    const Played shown = ExpectTheSame(run);
    EXPECT_NE(shown.events.find("Tessel.clsPub.g_business = Portal"), std::string::npos) << shown.events;
}

TEST(ObjectProperties, GiveBackTheHostsOwnObject)
{
    MirroredHost host;
    const auto report = CreateObject("Kavelin.clsProPortion");
    const Variant manager = Mirrored(Variant(host.ReportManager()));
    report->Put("ObjLogin", manager);
    EXPECT_EQ(report->Get("ObjLogin"), manager);
    report->Put("ObjLogin", HostObjectPtr());
    EXPECT_EQ(report->Get("ObjLogin"), Variant(HostObjectPtr()));
    EXPECT_THROW(report->Put("ObjLogin", Value("a text")), Error);
}

TEST(Entries, RefuseWhatIsNoObjectByTheirName)
{
    MirroredHost host;
    const auto report = CreateObject("Kavelin.ClsWtInfo");
    for (const char* entry : {"GETSQL", "GetSqlForOld", "Execute", "ExecuteForOld"})
        for (const Variant& argument : {Variant(Value("text")), Variant(Value()), Variant(HostObjectPtr())})
            try {
                report->Call(entry, {argument});
                ADD_FAILURE() << entry;
            } catch (const Error& error) {
                EXPECT_EQ(std::string(error.what()),
                          "The host gave something else than asked for as " + std::string(entry) + ".");
            }
}

}  // namespace kavelin::test
