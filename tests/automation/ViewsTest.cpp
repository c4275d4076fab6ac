// Each member of each view, by the name and with the arguments that the host's object sees.
#include "automation/Views.h"

#include "automation/HostView.h"
#include "automation/ScriptedObject.h"
#include "frame/Errors.h"
#include "frame/host/ConnectionObject.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kavelin::test {

using namespace automation;

namespace {

using Lines = ScriptedObject::Lines;

Variant Held(HostObjectPtr object)
{
    return object;
}

// What the object behind a view was asked while `use` called the view.
template <class T>
Lines Asked(const std::shared_ptr<ScriptedObject>& object, const std::function<void(T&)>& use)
{
    use(*As<T>(Held(object), "it"));
    return object->TakeLines();
}

std::string TextOfError(const std::function<void()>& call)
{
    try {
        call();
        return "no error";
    } catch (const Error& error) {
        return error.what();
    }
}

constexpr auto kDay = std::chrono::sys_days(std::chrono::year(2008) / 7 / 31);

}  // namespace

TEST(AView, IsMadeOnlyOfALateBoundObject)
{
    const auto login = Scripted("login");
    const auto view = As<LoginContext>(Held(login), "Login");
    EXPECT_EQ(As<LoginContext>(Held(view), "Login"), view) << "a view is of its interface already";
    EXPECT_EQ(Unwrapped(view), HostObjectPtr(login));
    EXPECT_EQ(LateBoundOf(view), login);
    EXPECT_EQ(As<LateBound>(Held(login), "it"), login);

    const char* refused = "The host gave something else than asked for as Login.";
    for (const Variant& wrong : {Variant(Value("text")), Variant(Value()), Variant(HostObjectPtr())})
        EXPECT_EQ(TextOfError([&] { As<LoginContext>(wrong, "Login"); }), refused);
    EXPECT_EQ(TextOfError([&] { As<LateBound>(Variant(HostObjectPtr()), "Login"); }), refused);
}

TEST(AView, LooksThroughAnotherViewOfTheSameObject)
{
    const auto e = Scripted("e", {{"Login", Held(Scripted("login"))}});
    const auto asDrillDown = As<DrillDownArgs>(Held(As<ReportCallArgs>(Held(e), "e")), "e");
    EXPECT_EQ(LateBoundOf(asDrillDown), e);
}

TEST(ReportCallArgsView, ReadsItsMembersOnceEach)
{
    const auto source = Scripted("source", {{"sql", Value("result")}});
    const auto e = Scripted("e", {{"DataSource", Held(source)},
                                  {"Login", Held(Scripted("login"))},
                                  {"RawFilter", Held(Scripted("filter"))},
                                  {"Args", Held(Scripted("args"))},
                                  {"LangID", Value("en-US")},
                                  {"ObjreportManager", Held(source)}});
    EXPECT_EQ(Asked<ReportCallArgs>(e,
                                    [&](ReportCallArgs& view) {
                                        const auto data = view.DataSource();
                                        data->SetType(2);
                                        EXPECT_EQ(data->sql(), "result");
                                        EXPECT_TRUE(view.Login() && view.RawFilter() && view.Args());
                                        EXPECT_EQ(view.LangID(), "en-US");
                                        EXPECT_EQ(view.Get("ObjreportManager"), Held(source));
                                        view.Put("Other", Value(1));
                                        view.Call("More", {Value("x")});
                                    }),
              (Lines{"get DataSource", "get Login", "get RawFilter", "get Args", "get LangID",
                     "get ObjreportManager", "put Other = 1", "call More('x')"}));
    EXPECT_EQ(source->TakeLines(), (Lines{"put Type = 2", "get sql"}));
}

TEST(DrillDownArgsView, ReadsTheRowAndItsCells)
{
    const auto row = Scripted("row", {{"GetData", Value(71)}});
    const auto e = Scripted("e", {{"RelateData", Held(row)}, {"Action", Value("Vouch")}});
    EXPECT_EQ(Asked<DrillDownArgs>(e,
                                   [&](DrillDownArgs& view) {
                                       EXPECT_EQ(view.Action(), "Vouch");
                                       const auto cells = view.RelateData();
                                       EXPECT_EQ(cells->GetData("AutoID"), "71");
                                       row->answers["GetData"] = Value::Null();
                                       EXPECT_EQ(cells->GetData("单据号"), "") << "a null cell";
                                   }),
              (Lines{"get Action", "get RelateData"}));
    EXPECT_EQ(row->TakeLines(), (Lines{"call GetData('AutoID')", "call GetData('单据号')"}));
}

TEST(LoginView, ReadsEachMemberByItsName)
{
    const auto system = Scripted("system");
    const auto login = Scripted("login", {{"VosDbName", Value("db")},
                                          {"AccountId", Value("001")},
                                          {"Year", Value(2008)},
                                          {"Month", Value("7")},
                                          {"Date", Value("2008-07-31")},
                                          {"Password", Value("p")},
                                          {"UserId", Value("u")},
                                          {"ConnectionText", Value("c")},
                                          {"LanguageRegion", Value("zh-CN")},
                                          {"SystemDatabase", Held(system)},
                                          {"AuthService", Held(Scripted("service"))}});
    EXPECT_EQ(Asked<LoginContext>(login,
                                  [&](LoginContext& view) {
                                      EXPECT_EQ(view.VosDbName(), "db");
                                      EXPECT_EQ(view.AccountId(), "001");
                                      EXPECT_EQ(view.Year(), "2008") << "a number is read as text";
                                      EXPECT_EQ(view.Month(), 7) << "a text is read as a number";
                                      EXPECT_EQ(view.Date(), DateTime(kDay));
                                      EXPECT_EQ(view.Password(), "p");
                                      EXPECT_EQ(view.UserId(), "u");
                                      EXPECT_EQ(view.ConnectionText(), "c");
                                      EXPECT_EQ(view.LanguageRegion(), "zh-CN");
                                      EXPECT_EQ(view.SystemDatabase(), system);
                                      EXPECT_TRUE(view.AuthService());
                                  }),
              (Lines{"get VosDbName", "get AccountId", "get Year", "get Month", "get Date", "get Password",
                     "get UserId", "get ConnectionText", "get LanguageRegion", "get SystemDatabase",
                     "get AuthService"}));
    for (const Variant& nothing : {Variant(HostObjectPtr()), Variant(Value()), Variant(Value::Null())}) {
        login->answers["AuthService"] = nothing;
        EXPECT_FALSE(As<LoginContext>(Held(login), "Login")->AuthService());
    }
}

TEST(AuthServiceView, AsksForListsWithObjectRuleAndAction)
{
    const auto service = Scripted("service", {{"GetList", Value("'01'")}});
    EXPECT_EQ(Asked<AuthService>(service,
                                 [](AuthService& view) {
                                     view.Initialise("text", "user");
                                     EXPECT_EQ(view.GetList("Warehouse", "", "W"), "'01'");
                                 }),
              (Lines{"call Initialise('text', 'user')", "call GetList('Warehouse', '', 'W')"}));
}

TEST(FilterView, CallsEachMemberByItsName)
{
    const auto filter = Scripted("filter", {{"FilterID", Value("IA[__]流水账")},
                                            {"Login", Held(Scripted("login"))},
                                            {"FilterList", Held(Scripted("list"))},
                                            {"ContextArgs", Held(Scripted("args"))},
                                            {"GetFieldValue", Value(5)},
                                            {"GetWhereWithToken", Value("a=1")}});
    EXPECT_EQ(
        Asked<ReportFilterObject>(filter,
                                  [](ReportFilterObject& view) {
                                      EXPECT_EQ(view.FilterID(), "IA[__]流水账");
                                      EXPECT_TRUE(view.Login() && view.FilterList() && view.ContextArgs());
                                      EXPECT_EQ(view.GetFieldValue("iYear"), Value(5));
                                      view.SetFieldValue("iYear", Value::Null());
                                      view.SetFieldRefCondition("cInvCode", "", "x=1");
                                      view.SetFieldFlag("cWhCode", false);
                                      view.SetFieldLocked("cWhCode", true);
                                      view.RefreshFieldList("iMonth", "IA.Month", "1月,");
                                      view.SetFieldRangeList("iMonth", "a{##}a");
                                      EXPECT_EQ(view.GetWhereWithToken(2), "a=1");
                                  }),
        (Lines{"get FilterID", "get Login", "get FilterList", "get ContextArgs",
               "call GetFieldValue('iYear')", "call SetFieldValue('iYear', null)",
               "call SetFieldRefCondition('cInvCode', '', 'x=1')", "call SetFieldFlag('cWhCode', False)",
               "call SetFieldLocked('cWhCode', True)", "call RefreshFieldList('iMonth', 'IA.Month', '1月,')",
               "call SetFieldRangeList('iMonth', 'a{##}a')", "call GetWhereWithToken(2)"}));
}

TEST(FilterListView, FindsItemsByPositionAndKey)
{
    const auto list = Scripted("list", {{"Count", Value(3)}, {"Item", Held(Scripted("item"))}});
    EXPECT_EQ(Asked<FilterList>(list,
                                [&](FilterList& view) {
                                    EXPECT_EQ(view.Count(), 3);
                                    EXPECT_TRUE(view.Item(2));
                                    EXPECT_TRUE(view.Item("cNo"));
                                    list->answers["Item"] = HostObjectPtr();
                                    EXPECT_FALSE(view.Item("none")) << "a key that no item has";
                                    EXPECT_THROW(view.Item(4), Error);
                                }),
              (Lines{"get Count", "call Item(2)", "call Item('cNo')", "call Item('none')", "call Item(4)"}));
}

TEST(FilterItemView, ReadsAndWritesItsMembers)
{
    const auto item = Scripted("item", {{"Name", Value("cNo")},
                                        {"ControlKey", Value("key")},
                                        {"varValue", Value(DateTime(kDay))},
                                        {"varValue2", Value()},
                                        {"RangeInput", Value(-1)},
                                        {"IsMultSel", Value(false)},
                                        {"ListSource", Value("a,b")}});
    EXPECT_EQ(Asked<FilterItem>(item,
                                [](FilterItem& view) {
                                    EXPECT_EQ(view.Name(), "cNo");
                                    EXPECT_EQ(view.ControlKey(), "key");
                                    EXPECT_EQ(view.varValue(), Value(DateTime(kDay)));
                                    EXPECT_TRUE(view.varValue2().IsEmpty());
                                    EXPECT_TRUE(view.RangeInput());
                                    EXPECT_FALSE(view.IsMultSel());
                                    EXPECT_EQ(view.ListSource(), "a,b");
                                    view.SetvarValue(Value("x"));
                                    view.SetvarValue2(Value(2));
                                    view.SetListSource("c");
                                    view.SetLngGrouptoken(1);
                                }),
              (Lines{"get Name", "get ControlKey", "get varValue", "get varValue2", "get RangeInput",
                     "get IsMultSel", "get ListSource", "put varValue = 'x'", "put varValue2 = 2",
                     "put ListSource = 'c'", "put LngGrouptoken = 1"}));
}

TEST(NamedValuesView, TakesKeysAndPositions)
{
    const auto args = Scripted("args", {{"Count", Value(1)}, {"Item", Value("1")}});
    EXPECT_EQ(Asked<NamedValues>(args,
                                 [](NamedValues& view) {
                                     EXPECT_EQ(view.Count(), 1);
                                     EXPECT_EQ(view.Item("ABC"), Variant(Value("1")));
                                     EXPECT_EQ(view.Item(1), Variant(Value("1")));
                                     view.Add(Value("cross"), "ViewClass");
                                 }),
              (Lines{"get Count", "call Item('ABC')", "call Item(1)", "call Add('cross', 'ViewClass')"}));
}

TEST(ResourceView, IsHandedTheHostsOwnLogin)
{
    const auto resources = Scripted(
        "resources",
        {{"GetResString", Value("shown")}, {"GetEnumName", Value("name")}, {"GetEnumCode", Value("code")}});
    const auto login = As<LoginContext>(Held(Scripted("Tom")), "Login");
    EXPECT_EQ(
        Asked<ResourceObject>(resources,
                              [&](ResourceObject& view) {
                                  view.SetLogin(login);
                                  EXPECT_EQ(view.GetResString("key"), "shown");
                                  EXPECT_EQ(view.GetEnumName("IA.Month", "1"), "name");
                                  EXPECT_EQ(view.GetEnumCode("IA.BusType", "text"), "code");
                                  view.ShowMessage("hello", kWarning);
                                  view.Unload();
                              }),
        (Lines{"put Login = Tom", "call GetResString('key')", "call GetEnumName('IA.Month', '1')",
               "call GetEnumCode('IA.BusType', 'text')", "call ShowMessage('hello', 48)", "call Unload()"}));
}

TEST(SmallViews, AskForOneThingEach)
{
    const auto machine = Scripted("machine", {{"MachineName", Value("PC1")}});
    EXPECT_EQ(Asked<MachineInfo>(machine, [](MachineInfo& view) { EXPECT_EQ(view.MachineName(), "PC1"); }),
              (Lines{"get MachineName"}));
    const auto client = Scripted("client", {{"[DISPID=1]", Value(7)}});
    EXPECT_EQ(Asked<ClientNumber>(client, [](ClientNumber& view) { EXPECT_EQ(view.Number(), Value(7)); }),
              (Lines{"call [DISPID=1]()"}));
    const auto settings = Scripted("settings", {{"Read", Value("70")}});
    EXPECT_EQ(Asked<SettingsStore>(settings,
                                   [](SettingsStore& view) {
                                       EXPECT_EQ(view.Read("a", "s", "M2", "70"), "70");
                                       view.Write("a", "s", "M2", "65");
                                   }),
              (Lines{"call Read('a', 's', 'M2', '70')", "call Write('a', 's', 'M2', '65')"}));
}

// ---- the ledger library

TEST(LedgerLoginView, GivesAConnectionOverTheHostsObject)
{
    const auto connection = Scripted("connection", {{"State", Value(1)}});
    const auto login = Scripted("login", {{"DbConnection", Held(connection)}});
    EXPECT_EQ(Asked<LedgerLogin>(login,
                                 [](LedgerLogin& view) {
                                     view.Initialise("text", ";PWD=p", false, true);
                                     EXPECT_EQ(view.DbConnection()->State(), ConnectionState::Open);
                                 }),
              (Lines{"call Initialise('text', ';PWD=p', False, True)", "get DbConnection"}));
    login->answers["DbConnection"] = Value("text");
    EXPECT_EQ(TextOfError([&] { As<LedgerLogin>(Held(login), "login")->DbConnection(); }),
              "The host gave something else than asked for as LedgerLogin.DbConnection.");
}

TEST(LedgerPubView, HandsOutTheHostsOwnObjectsAndTakesMonthsByReference)
{
    const auto connection = Scripted("connection");
    const auto ledger = Scripted("ledger", {{"DbConnection", Held(connection)}});
    const auto login = As<LedgerLogin>(Held(ledger), "login");
    const auto params = As<LedgerParams>(Held(Scripted("params")), "params");
    const auto account = login->DbConnection();
    const auto years = Scripted("years", {{"Count", Value(2)}, {"Item", Value("2008")}});
    const auto pub = Scripted("pub", {{"Reload", Value(true)}, {"GetAccountYears", Held(years)}});
    pub->actions["GetYearMonthRange"] = [](std::vector<Variant>& arguments) {
        arguments[2] = Value(2);
        arguments[3] = Value("11");
    };
    EXPECT_EQ(
        Asked<LedgerPub>(
            pub,
            [&](LedgerPub& view) {
                view.SetLogin(login);
                EXPECT_TRUE(view.Reload("", ""));
                EXPECT_EQ(view.GetYearMonthRange("2008", *account), std::pair(2, 11));
                EXPECT_EQ(view.GetAccountYears("2008", *account), (std::vector<std::string>{"2008", "2008"}));
                view.GetAccountYearParams(*login, "2008", *params);
            }),
        (Lines{"put Login = ledger", "call Reload('', '')",
               "call GetYearMonthRange('2008', connection, 0, 0)", "call GetAccountYears('2008', connection)",
               "call GetAccountYearParams(ledger, '2008', params)"}));
    EXPECT_EQ(years->TakeLines(), (Lines{"get Count", "call Item('1')", "call Item('2')"}));

    pub->answers.erase("Reload");
    EXPECT_FALSE(As<LedgerPub>(Held(pub), "pub")->Reload("", "")) << "a method without a result";
}

// A host without ADO has connections of the library: they come and go in an object of their own.
TEST(LedgerViews, TakeAndGiveConnectionsOfTheLibrary)
{
    RecordingHost host;
    const auto account = host.OpenAccount();
    const auto login =
        Scripted("login", {{"DbConnection", Held(std::make_shared<ConnectionObject>(account))}});
    EXPECT_EQ(As<LedgerLogin>(Held(login), "login")->DbConnection(), account);

    std::vector<Variant> given;
    const auto pub = Scripted("pub");
    pub->actions["GetYearMonthRange"] = [&](std::vector<Variant>& arguments) { given = arguments; };
    const auto view = As<LedgerPub>(Held(pub), "pub");
    EXPECT_EQ(view->GetYearMonthRange("2008", *account), std::pair(0, 0));
    EXPECT_EQ(ObjectOf<ConnectionObject>(given.at(1), "connection")->Connection(), account);
    const auto another = std::make_shared<ConnectionObject>(host.OpenSystem());
    view->GetYearMonthRange("2008", *another->Connection());
    EXPECT_EQ(given.at(1), Variant(HostObjectPtr())) << "not the account's";
}

TEST(LedgerParamsView, ReadsTheOptionsOfTheYear)
{
    const auto params = Scripted(
        "params",
        {{"Year", Value("2008")}, {"ValueStyle", Value("按仓库核算")}, {"InventoryQualifier", Value("")}});
    EXPECT_EQ(Asked<LedgerParams>(params,
                                  [](LedgerParams& view) {
                                      EXPECT_EQ(view.Year(), "2008");
                                      EXPECT_EQ(view.ValueStyle(), "按仓库核算");
                                      EXPECT_EQ(view.InventoryQualifier(), "");
                                  }),
              (Lines{"get Year", "get ValueStyle", "get InventoryQualifier"}));
}

// ---- XML

TEST(XmlDocumentView, LoadsBeforeItGoesOn)
{
    const auto child = Scripted("child", {{"nodeName", Value("avgMonth")}, {"text", Value("t")}});
    const auto nodes = Scripted("nodes", {{"length", Value(2)}, {"item", Held(child)}});
    const auto root = Scripted("root", {{"childNodes", Held(nodes)}, {"getAttribute", Value::Null()}});
    const auto document = Scripted("document", {{"loadXML", Value(true)}, {"documentElement", Held(root)}});
    EXPECT_EQ(
        Asked<XmlDocument>(document,
                           [&](XmlDocument& view) {
                               EXPECT_TRUE(view.loadXML("<a/>"));
                               const auto element = view.documentElement();
                               EXPECT_TRUE(element->getAttribute("value").IsNull());
                               const auto children = element->childNodes();
                               ASSERT_EQ(children.size(), 2u);
                               EXPECT_EQ(children[0]->nodeName(), "avgMonth");
                               EXPECT_EQ(children[1]->text(), "t");
                               document->answers["documentElement"] = HostObjectPtr();
                               EXPECT_FALSE(view.documentElement());
                           }),
        (Lines{"put async = False", "call loadXML('<a/>')", "get documentElement", "get documentElement"}));
    EXPECT_EQ(nodes->TakeLines(), (Lines{"get length", "call item(0)", "call item(1)"}));
    EXPECT_EQ(root->TakeLines(), (Lines{"call getAttribute('value')", "get childNodes"}));
}

// ---- failures and wrong answers

TEST(AFailureOfTheHost, TravelsWithItsText)
{
    const auto login = Scripted("login");
    login->failures = {{"Year", "no year today"}};
    EXPECT_EQ(TextOfError([&] { As<LoginContext>(Held(login), "Login")->Year(); }), "no year today");
}

TEST(AWrongAnswer, IsToldByObjectAndMember)
{
    const auto wrong = Scripted("wrong", {{"Year", Held(Scripted("x"))},
                                          {"FilterList", Value("x")},
                                          {"GetList", Held(Scripted("x"))},
                                          {"Item", Value("x")}});
    const std::string refused = "The host gave something else than asked for as ";
    EXPECT_EQ(TextOfError([&] { As<LoginContext>(Held(wrong), "it")->Year(); }), refused + "Login.Year.");
    EXPECT_EQ(TextOfError([&] { As<LoginContext>(Held(wrong), "it")->SystemDatabase(); }),
              refused + "Login.SystemDatabase.");
    EXPECT_EQ(TextOfError([&] { As<ReportFilterObject>(Held(wrong), "it")->FilterList(); }),
              refused + "RawFilter.FilterList.");
    EXPECT_EQ(TextOfError([&] { As<AuthService>(Held(wrong), "it")->GetList("a", "", ""); }),
              refused + "AuthService.GetList.");
    EXPECT_EQ(TextOfError([&] { As<FilterList>(Held(wrong), "it")->Item(1); }), refused + "FilterList.Item.");
}

// ---- entries of older hosts

TEST(AnEntryArgument, GivesLoginAndFilterByTheirInterfaces)
{
    const auto source = Scripted("source");
    const auto e = Scripted("e", {{"Login", Held(Scripted("login"))},
                                  {"RawFilter", Held(Scripted("filter"))},
                                  {"DataSource", Held(source)}});
    const auto view = AsEntryArgument(Held(e), "GetSqlForOld");
    EXPECT_TRUE(std::dynamic_pointer_cast<LoginContext>(std::get<HostObjectPtr>(view->Get("login"))));
    EXPECT_TRUE(
        std::dynamic_pointer_cast<ReportFilterObject>(std::get<HostObjectPtr>(view->Get("RAWFILTER"))));
    EXPECT_EQ(view->Get("DataSource"), Held(source));
    e->answers["Login"] = Value("x");
    EXPECT_EQ(TextOfError([&] { view->Get("Login"); }),
              "The host gave something else than asked for as e.Login.");
}

}  // namespace kavelin::test
