// From a row of the journal to its document or accounting voucher.
#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/host/ConnectionObject.h"
#include "journal/ClsWtInfo.h"
#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kDirectPurchase = "直运采购";

Cells Row(const std::string& vouType, const std::string& busType = "普通采购")
{
    return {{"cVouType", vouType}, {"单据号", " DJ-7 "}, {"业务类型", busType},
            {"ID", "70"},          {"AutoID", "71"},     {"cPzID", "IA0000000001"}};
}

void Prepare(RecordingHost& host, const std::string& language = "zh-CN")
{
    ModPub().gstrLanguage = language;
    host.SetParameter("AA", "cSysVersion", "工业");
    host.SetParameter("IA", "cValueStyle", "按仓库核算");
}

void Execute(RecordingHost& host, const std::string& action, const Cells& cells)
{
    ClsWtInfo().Execute(*host.EarlyRowArgument(action, cells));
}

void ExecuteForOld(RecordingHost& host, const std::string& action, const Cells& cells)
{
    ClsWtInfo().ExecuteForOld(*host.LateRowArgument(action, cells));
}

// The call that showed the document.
std::string ShownBy(const std::function<void(RecordingHost&, const std::string&, const Cells&)>& entry,
                    const Cells& cells, const std::string& language = "zh-CN")
{
    RecordingHost host;
    Prepare(host, language);
    entry(host, "ActWtInfo", cells);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    return LinesOf(host, {"Corvane.clsUniVch.Show"});
}

constexpr std::string_view kYear =
    "Select iYear From IA_SubSidiary Where cPzID = N'IA0000000001'"
    " and imonth <>0 order by iyear";
constexpr std::string_view kTransitYear =
    "Select iYear From IA_ENSubSidiary Where cPzID = N'IA0000000001'"
    " and imonth <>0 order by iyear";

}  // namespace

// ---- the source document

TEST(ADocumentOfTheJournal, IsOpenedStepByStep)
{
    RecordingHost host;
    Prepare(host);
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_EQ(host.Events().Text(),
              "new Connection #1\n"
              "e.Login\n"
              "#1.CursorLocation = 3\n"
              "Login.VosDbName\n"
              "#1.ConnectionString = 'account database'\n"
              "#1.ConnectionTimeout = 0\n"
              "#1.CommandTimeout = 0\n"
              "#1.Open user='' password='' options=-1\n"
              "e.Action\n"
              "e.RelateData\n"
              "RelateData.GetData cVouType\n"
              "RelateData.GetData 单据号\n"
              "RelateData.GetData 业务类型\n"
              "RelateData.GetData ID\n"
              "RelateData.GetData AutoID\n"
              "new Corvane.clsUniVch\n"
              "#1.OpenRecordset @1 location=3 type=0 lock=1 Select * FROM AccInformation where cSysID= N'AA'"
              " and cName= N'cSysVersion'\n"
              "@1.Field cvalue\n"
              "@1.Close\n"
              "Corvane.clsUniVch.Init(connection #1, '工业', Login)\n"
              "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '08', '70', nothing, Login)\n"
              "#1.Close\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
}

TEST(ADocumentOfTheJournal, IsShownByItsVoucherType)
{
    const struct {
        const char *vouType, *call;
    } cases[] = {
        {"22", "ShowCostJustVouch(connection #1, 'DJ-7', nothing, '工业', True)"},
        {"21", "ShowVoucher(connection #1, '工业', '21', ' DJ-7 ', nothing, Login)"},
        {"20", "ShowVoucher(connection #1, '工业', '20', ' DJ-7 ', nothing, Login)"},
        {"24", "ShowVoucher(connection #1, '工业', '24', '71', nothing, Login)"},
        {"30", "ShowVoucher(connection #1, '工业', '30', '71', nothing, Login)"},
        {"35", "ShowDifVouchs(connection #1, False, '按仓库核算', ' DJ-7 ')"},
        {"01", "ShowVoucher(connection #1, '工业', '01', '70', nothing, Login)"},
        {"70", "ShowVoucher(connection #1, '工业', '70', '70', nothing, Login)"},
        {"ex26", "ShowVoucher(connection #1, '工业', 'ex26', '70', nothing, Login)"},
        {"", "ShowVoucher(connection #1, '工业', '', '70', nothing, Login)"},
    };
    for (const auto& c : cases)
        for (const auto& entry : {Execute, ExecuteForOld})
            EXPECT_EQ(ShownBy(entry, Row(c.vouType)), std::string("Corvane.clsUniVch.") + c.call + "\n");
}

TEST(ADocumentOfTheJournal, OfDirectPurchasesHasAnotherTypeForTheViewer)
{
    const struct {
        const char *vouType, *busType, *byExecute, *byExecuteForOld;
    } cases[] = {
        {"01", kDirectPurchase, "25", "25"}, {"02", kDirectPurchase, "2501", "02"},
        {"03", kDirectPurchase, "03", "03"}, {"01", "普通采购", "01", "01"},
        {"02", "普通采购", "02", "02"},      {"21", kDirectPurchase, "21", "21"},
    };
    for (const auto& c : cases) {
        const std::string key = std::string(c.vouType) == "21" ? " DJ-7 " : "70";
        const auto shown = [&](const char* type) {
            return std::string("Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '") + type + "', '" +
                   key + "', nothing, Login)\n";
        };
        EXPECT_EQ(ShownBy(Execute, Row(c.vouType, c.busType)), shown(c.byExecute));
        EXPECT_EQ(ShownBy(ExecuteForOld, Row(c.vouType, c.busType)), shown(c.byExecuteForOld));
    }
}

TEST(ADocumentOfTheJournal, HasItsBusinessTypeTurnedBackIntoTheCodeInOtherLanguages)
{
    RecordingHost host;
    Prepare(host, "en-US");
    host.Answers().codes["Direct purchase"] = kDirectPurchase;
    Execute(host, "ActWtInfo", Row("01", "Direct purchase"));
    EXPECT_EQ(LinesOf(host, {"ResourceObject.", "Corvane.clsUniVch.Show"}),
              "ResourceObject.GetEnumCode IA.BusType, Direct purchase\n"
              "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '25', '70', nothing, Login)\n");

    for (const char* language : {"zh-CN", "en-US", "ZH-CN", ""}) {
        RecordingHost other;
        Prepare(other, language);
        Execute(other, "ActWtInfo", Row("01", kDirectPurchase));
        EXPECT_EQ(LinesOf(other, {"ResourceObject."}).empty(), language == std::string("zh-CN")) << language;
    }
}

TEST(ADocumentOfTheJournal, IsOfTheIndustrialEditionOnlyIfTheAccountIs)
{
    for (const char* edition : {"商业", ""}) {
        RecordingHost host;
        Prepare(host);
        host.SetParameter("AA", "cSysVersion", edition);
        Execute(host, "ActWtInfo", Row("35"));
        EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show"}),
                  "Corvane.clsUniVch.ShowDifVouchs(connection #1, True, '按仓库核算', ' DJ-7 ')\n");
    }
}

TEST(ADocumentOfTheJournal, IsAskedForByAnActionWithoutRegardToCase)
{
    for (const char* action : {"ActWtInfo", "actwtinfo", "ACTWTINFO"}) {
        RecordingHost host;
        Prepare(host);
        Execute(host, action, Row("08"));
        EXPECT_NE(SuiteLines(host).find("Corvane"), std::string::npos) << action;
    }
    for (const char* action : {"", "Vouch", "DifPZ", "ActWtInfo "}) {
        RecordingHost host;
        Prepare(host);
        Execute(host, action, Row("08"));
        EXPECT_EQ(SuiteLines(host).find("Corvane"), std::string::npos) << action;
        EXPECT_NE(SuiteLines(host).find("Brannic.clsPZ.StartUpPz("), std::string::npos) << action;
    }
}

TEST(ADocumentOfTheJournal, IsReachedByNameWhenTheArgumentIsLateBound)
{
    RecordingHost host;
    Prepare(host);
    ExecuteForOld(host, "ActWtInfo", Row("08"));
    EXPECT_EQ(LinesOf(host, {"late "}),
              "late e.Login\nlate e.Action\nlate e.RelateData\nlate RelateData.GetData cVouType\n"
              "late RelateData.GetData 单据号\nlate RelateData.GetData 业务类型\nlate RelateData.GetData ID\n"
              "late RelateData.GetData AutoID\n");
}

TEST(ADocumentOfTheJournal, HasEmptyTextsForCellsThatTheRowLacks)
{
    EXPECT_EQ(ShownBy(Execute, {}),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '', '', nothing, Login)\n");
    EXPECT_EQ(ShownBy(ExecuteForOld, {{"cVouType", "24"}}),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '24', '', nothing, Login)\n");
}

TEST(TheViewer, MayReplaceConnectionAndLogin)
{
    RecordingHost host;
    Prepare(host);
    const auto connection = std::make_shared<RecordingConnection>(std::make_shared<EventLog>(),
                                                                  std::make_shared<ConnectionScript>());
    connection->Open("", "", -1);
    const auto login = host.Login("OtherLogin");
    host.Answers().callActions["Corvane.clsUniVch.Init"] = [&](std::vector<Variant>& arguments) {
        arguments[0] = HostObjectPtr(std::make_shared<ConnectionObject>(connection));
        arguments[2] = HostObjectPtr(login);
        throw Error("The viewer fails after it has replaced them.");
    };
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_NE(SuiteLines(host).find("ShowVoucher(connection #1, '工业', '08', '70', nothing, OtherLogin)"),
              std::string::npos);
    EXPECT_EQ(ModPub().gobjLogin, login);
    EXPECT_EQ(StateOf(connection), "closed");
    EXPECT_EQ(LinesOf(host, {"#1.Close"}), "") << "the first connection is the viewer's now";
}

TEST(TheViewer, MayReplaceThemInEveryCall)
{
    const struct {
        const char *vouType, *member;
        bool hasLogin;
    } cases[] = {
        {"08", "Corvane.clsUniVch.ShowVoucher", true},
        {"22", "Corvane.clsUniVch.ShowCostJustVouch", false},
        {"35", "Corvane.clsUniVch.ShowDifVouchs", false},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host);
        const auto other = host.Login("OtherLogin");
        host.Answers().callActions[c.member] = [&](std::vector<Variant>& arguments) {
            arguments.front() = HostObjectPtr();
            if (c.hasLogin)
                arguments.back() = HostObjectPtr(other);
        };
        Execute(host, "ActWtInfo", Row(c.vouType));
        EXPECT_EQ(LinesOf(host, {"#1.Close"}), "") << c.member << " gave no connection back";
        EXPECT_EQ(ModPub().gobjLogin == other, c.hasLogin) << c.member;
    }
}

TEST(TheViewer, ThatPutsSomethingElseThereChangesNothing)
{
    RecordingHost host;
    Prepare(host);
    host.Answers().callActions["Corvane.clsUniVch.Init"] = [](std::vector<Variant>& arguments) {
        arguments[0] = Value("no connection");
        arguments[2] = Value(7);
    };
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_NE(SuiteLines(host).find("ShowVoucher(connection #1, '工业', '08', '70', nothing, Login)"),
              std::string::npos);
    EXPECT_EQ(LinesOf(host, {"#1.Close"}), "#1.Close\n");
}

TEST(TheViewer, ThatCannotBeMadeShowsNothing)
{
    RecordingHost host;
    Prepare(host);
    host.Answers().missingObjects = {"Corvane.clsUniVch"};
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_EQ(SuiteLines(host), "new Corvane.clsUniVch\n");
    EXPECT_EQ(LinesOf(host, {"ResourceObject.", "#1.Close"}), "#1.Close\n");
}

// ---- the accounting voucher

TEST(AVoucherOfTheJournal, IsOpenedStepByStep)
{
    RecordingHost host;
    Prepare(host);
    Answer(host, std::string(kYear), 2008);
    Execute(host, "ActPZ", Row("08"));
    EXPECT_EQ(
        host.Events().Text(),
        "new Connection #1\n"
        "e.Login\n"
        "#1.CursorLocation = 3\n"
        "Login.VosDbName\n"
        "#1.ConnectionString = 'account database'\n"
        "#1.ConnectionTimeout = 0\n"
        "#1.CommandTimeout = 0\n"
        "#1.Open user='' password='' options=-1\n"
        "e.Action\n"
        "e.RelateData\n"
        "RelateData.GetData cPzID\n"
        "new LedgerLogin\n"
        "Login.ConnectionText\n"
        "Login.Password\n"
        "LedgerLogin.Initialise 'connection text', ';PWD=login password', False, False\n"
        "LedgerLogin.DbConnection\n"
        "#2.Open user='' password='' options=-1\n"
        "#2.OpenRecordset @1 location=3 type=0 lock=1 " +
            std::string(kYear) +
            "\n"
            "@1.Field first\n"
            "@1.Close\n"
            "new Tessel.clsPub\n"
            "new Brannic.clsPZ\n"
            "Tessel.clsPub.oLogin = Login\n"
            "Login.SystemDatabase\n"
            "Login.AccountId\n"
            "Login.UserId\n"
            "Login.Date\n"
            "Login.Password\n"
            "Tessel.clsPub.InitPubs2('IA', SystemDatabase, LedgerLogin, '001', 2008, 'demo', 2008-07-31,"
            " 'login password')\n"
            "Brannic.clsPZ.zzLogin = Login\n"
            "Brannic.clsPZ.zzSys = Tessel.clsPub\n"
            "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, '存货核算', 'IA0000000001',"
            " 2008)\n"
            "#1.Close\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
}

TEST(AVoucherOfTheJournal, IsLookedForInBothLedgers)
{
    const struct {
        bool inLedger, inTransit;
        const char* year;
    } cases[] = {{true, true, "2007"}, {true, false, "2007"}, {false, true, "2008"}, {false, false, "0"}};
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host);
        if (c.inLedger)
            Answer(host, std::string(kYear), 2007);
        if (c.inTransit)
            Answer(host, std::string(kTransitYear), 2008);
        Execute(host, "", Row("08"));
        EXPECT_EQ(VoucherQueries(host), "#2 " + std::string(kYear) + "\n" +
                                            (c.inLedger ? "" : "#2 " + std::string(kTransitYear) + "\n"));
        EXPECT_NE(SuiteLines(host).find(std::string("'IA0000000001', ") + c.year + ")"), std::string::npos);
        EXPECT_NE(SuiteLines(host).find(std::string("'001', ") + c.year + ", 'demo'"), std::string::npos);
    }
}

TEST(AVoucherOfTheJournal, WhoseYearIsNoNumberOfSixteenBitsHasTheYear0)
{
    for (const Value& year : {Value::Null(), Value("x"), Value(70000)}) {
        RecordingHost host;
        Prepare(host);
        Answer(host, std::string(kYear), year);
        Execute(host, "", Row("08"));
        EXPECT_NE(SuiteLines(host).find("'IA0000000001', 0)"), std::string::npos);
    }
}

TEST(AVoucherOfTheJournal, OfPurchasesIsKnownByItsFirstLetters)
{
    const struct {
        const char* id;
        bool ofPurchases;
    } cases[] = {{"PU0001", true}, {"pu0001", true},  {"  Pu0001 ", true},
                 {"P", false},     {"IAPU01", false}, {" IA ", false}};
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host);
        Execute(host, "", {{"cPzID", c.id}});
        EXPECT_EQ(
            LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
            c.ofPurchases
                ? std::string("Brannic.clsPZ.StartUpPz('PU', 'PU0101', 3, 'CN', 'PU', nothing, 'PU', '") +
                      c.id + "', 0)\n"
                : std::string("Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing,"
                              " '存货核算', '") +
                      c.id + "', 0)\n");
    }
}

TEST(AVoucherOfTheJournal, ThatIsMissingIsToldAndLeavesTheConnectionOpen)
{
    for (const Cells& cells : {Cells{{"cPzID", ""}}, Cells{}}) {
        for (const auto& entry : {Execute, ExecuteForOld}) {
            RecordingHost host;
            Prepare(host);
            host.Answers().texts["Orvo.IA.CHHSSQL.02787"] = "no voucher";
            entry(host, "ActPZ", cells);
            EXPECT_EQ(LinesOf(host, {"ResourceObject."}),
                      "ResourceObject.GetResString Orvo.IA.CHHSSQL.02787\n"
                      "ResourceObject.ShowMessage no voucher, 48\n");
            EXPECT_EQ(LinesOf(host, {"#1.Close", "new LedgerLogin"}) + SuiteLines(host), "");
            EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
        }
    }
}

TEST(AVoucherOfTheJournal, IsShownInThePortalThatTheHostGave)
{
    RecordingHost host;
    Prepare(host);
    ModPub().gobjBusiness = CurrentPlatform().CreateObject("the portal");
    Execute(host, "", Row("08"));
    EXPECT_EQ(LinesOf(host, {"Tessel.clsPub.g_business", "new VosPortal"}),
              "Tessel.clsPub.g_business = the portal\n");

    RecordingHost without;
    Prepare(without);
    Execute(without, "", Row("08"));
    EXPECT_EQ(LinesOf(without, {"Tessel.clsPub.g_business", "new VosPortal"}), "");
    EXPECT_EQ(ModPub().gobjBusiness, nullptr);
}

TEST(AVoucherOfTheJournal, IsStartedWithAnInitialisedLedgerObjectOfItsOwn)
{
    RecordingHost host;
    Prepare(host);
    ModPub().gobjLedgerLogin = CurrentPlatform().CreateLedgerLogin();
    const auto kept = ModPub().gobjLedgerLogin;
    Execute(host, "", Row("08"));
    EXPECT_EQ(ModPub().gobjLedgerLogin, kept);
    EXPECT_EQ(LinesOf(host, {"new LedgerLogin"}), "new LedgerLogin\nnew LedgerLogin\n");
}

TEST(AVoucherOfTheJournal, WithoutTheLedgersLibraryShowsNothing)
{
    RecordingHost host;
    Prepare(host);
    host.Answers().missingObjects = {"Tessel.clsPub", "Brannic.clsPZ"};
    Execute(host, "", Row("08"));
    EXPECT_EQ(SuiteLines(host), "new Tessel.clsPub\nnew Brannic.clsPZ\n");
    EXPECT_EQ(LinesOf(host, {"ResourceObject.", "#1.Close"}), "#1.Close\n");
}

TEST(ADrillDown, UsesTheLanguageOfTheLatestReportAndNotThatOfItsArgument)
{
    RecordingHost host;
    Prepare(host, "zh-CN");
    host.Answers().langId = "en-US";
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_EQ(LinesOf(host, {"e.LangID", "late e.LangID", "Login.LanguageRegion"}), "");
    EXPECT_EQ(ModPub().gstrLanguage, "zh-CN");
}

TEST(ADrillDown, ReplacesTheConnectionThatAMessageLeftOpen)
{
    RecordingHost host;
    Prepare(host);
    Execute(host, "", {});
    const std::weak_ptr<Connection> left = ModPub().gcnnAccount;
    Execute(host, "ActWtInfo", Row("08"));
    EXPECT_TRUE(left.expired());
    EXPECT_EQ(LinesOf(host, {"#1.Close", "#2.Close"}), "#2.Close\n");
}

TEST(ADrillDown, IsReachedByNameToo)
{
    RecordingHost host;
    Prepare(host);
    const auto report = CreateObject("Kavelin.ClsWtInfo");
    report->Call("Execute", {HostObjectPtr(host.EarlyRowArgument("ActWtInfo", Row("02", kDirectPurchase)))});
    report->Call("ExecuteForOld",
                 {HostObjectPtr(host.LateRowArgument("ActWtInfo", Row("02", kDirectPurchase)))});
    EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show"}),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '2501', '70', nothing, Login)\n"
              "Corvane.clsUniVch.ShowVoucher(connection #2, '工业', '02', '70', nothing, Login)\n");
    EXPECT_THROW(report->Call("Execute", {HostObjectPtr(host.Filter())}), Error) << "no row";
}

// ---- failures

namespace {

const std::string kInit = "Corvane.clsUniVch.Init";
const std::string kShow = "Corvane.clsUniVch.ShowVoucher";
const std::string kClose = "#1.Close";
const std::string kStart = "Brannic.clsPZ.StartUpPz";
const std::string kInitPubs = "Tessel.clsPub.InitPubs2";

}  // namespace

TEST(ADrillDown, PassesEachFailingStepOfADocumentOver)
{
    ExpectEachFailureIsPassedOver(
        [](RecordingHost& host) {
            Prepare(host, "en-US");
            Execute(host, "ActWtInfo", Row("08"));
        },
        {kInit, kShow, kClose},
        {
            {"new Connection", {kClose}},
            {"#1.Open ", {kClose}},
            {"e.Action", {kInit, kShow}},  // without an action the voucher is opened
            {"new Corvane", {kInit, kShow}},
        });
}

TEST(ADrillDown, PassesEachFailingStepOfAVoucherOver)
{
    const std::string pub = "Tessel.clsPub.oLogin", portal = "Tessel.clsPub.g_business";
    const std::string login = "Brannic.clsPZ.zzLogin", sys = "Brannic.clsPZ.zzSys";
    const std::set<std::string> all = {portal, pub, kInitPubs, login, sys, kStart, kClose};
    ExpectEachFailureIsPassedOver(
        [](RecordingHost& host) {
            Prepare(host);
            ModPub().gobjBusiness =
                std::make_shared<RecordingObject>(std::make_shared<EventLog>(), "the portal", CallActions{});
            Answer(host, std::string(kTransitYear), 2008);
            ClsWtInfo().ExecuteForOld(*host.LateRowArgument("ActPZ", Row("08")));
        },
        {all.begin(), all.end()},
        {
            {"new Connection", {kClose}},
            {"#1.Open ", {kClose}},
            {"late e.Login", {kInitPubs}},
            {"late e.RelateData", all},  // without the cell there is no voucher to open
            {"late RelateData.GetData", all},
            {"Login.SystemDatabase", {kInitPubs}},
            {"Login.AccountId", {kInitPubs}},
            {"Login.UserId", {kInitPubs}},
            {"Login.Date", {kInitPubs}},
            {"Login.Date\nLogin.Password", {kInitPubs}},
            {"new Tessel", {portal, pub, kInitPubs}},
            {"new Brannic", {login, sys, kStart}},
        });
}

TEST(ADrillDown, GoesOnToTheSecondLedgerWhenTheFirstCannotBeRead)
{
    RecordingHost host;
    Prepare(host);
    host.Script().failures[std::string(kYear)] = "Invalid object name 'IA_SubSidiary'.";
    Answer(host, std::string(kTransitYear), 2008);
    Execute(host, "", Row("08"));
    EXPECT_NE(SuiteLines(host).find("'IA0000000001', 2008)"), std::string::npos);
}

TEST(ADrillDown, ShowsTheMessageAlsoIfItsTextIsNotFound)
{
    RecordingHost host;
    Prepare(host);
    host.Events().FailWithErrors();
    host.Events().FailAt("ResourceObject.GetResString Orvo.IA.CHHSSQL.02787");
    EXPECT_NO_THROW(Execute(host, "", {}));
    EXPECT_EQ(LinesOf(host, {"ResourceObject.Show"}), "ResourceObject.ShowMessage , 48\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

}  // namespace kavelin::test
