#include "host/HostPlatform.h"

#include "frame/Errors.h"
#include "frame/IdentifierText.h"
#include "frame/ModPub.h"
#include "host/HostMachine.h"
#include "support/RecordingConnection.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kavelin::host {
namespace {

using test::ConnectionScript;
using test::EventLog;
using test::RecordingConnection;

class HostPlatformTest : public testing::Test {
  protected:
    HostPlatformTest()
        : strFolder(std::filesystem::temp_directory_path() /
                    ("kavelin-platform-" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(strFolder);
        const ConnectionSource connections(
            {}, nullptr, [this] { return std::make_shared<RecordingConnection>(objEvents, objScript); });
        objPlatform = std::make_unique<HostPlatform>(
            PlatformSettings{connections,
                             [this](const ShownMessage& message) { lstShown.push_back(message); },
                             "0'1",
                             "zh-CN",
                             {},
                             strFolder / "config/settings.json"});
    }
    ~HostPlatformTest() override { std::filesystem::remove_all(strFolder); }

    std::filesystem::path strFolder;
    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
    std::vector<ShownMessage> lstShown;
    std::unique_ptr<HostPlatform> objPlatform;
};

std::shared_ptr<HostLogin> LoginIn(const std::string& language)
{
    return std::make_shared<HostLogin>(
        LoginSettings{"Embedded Account=x", "001", "anna", "", language, 2008, 7}, nullptr);
}

TEST_F(HostPlatformTest, ShowsTextsInTheLanguageOfTheLogin)
{
    const auto resources = objPlatform->CreateResourceObject();
    EXPECT_EQ(resources->GetResString("Orvo.IA.CHHSSQL.12528"), "出库");
    EXPECT_EQ(resources->GetEnumName("IA.BusType", "普通采购"), "普通采购");
    resources->SetLogin(LoginIn("en-US"));
    EXPECT_EQ(resources->GetResString("orvo.ia.chhssql.12528"), "Issue");
    EXPECT_EQ(resources->GetEnumName("ia.bustype", "普通采购"), "Ordinary purchase");
    EXPECT_EQ(resources->GetEnumName("IA.Month", "12月"), "Month 12");
}

TEST_F(HostPlatformTest, FindsTheCodeOfAShownText)
{
    const auto resources = objPlatform->CreateResourceObject();
    EXPECT_EQ(resources->GetEnumCode("IA.BusType", "普通采购"), "普通采购");
    resources->SetLogin(LoginIn("en-US"));
    EXPECT_EQ(resources->GetEnumCode("ia.bustype", "ordinary purchase"), "普通采购");
    EXPECT_EQ(resources->GetEnumCode("IA.BusType", "Consignment sale"), "委托代销");
    EXPECT_EQ(resources->GetEnumCode("IA.BusType", "none of them"), "none of them");
    EXPECT_EQ(resources->GetEnumCode("IA.None", "x"), "x");
}

TEST_F(HostPlatformTest, ShowsWhatHasNoTextAsItIsAskedFor)
{
    const auto resources = objPlatform->CreateResourceObject();
    EXPECT_EQ(resources->GetResString("Orvo.IA.none"), "Orvo.IA.none");
    EXPECT_EQ(resources->GetEnumName("IA.None", "x"), "x");
    EXPECT_EQ(resources->GetEnumName("IA.BusType", "x"), "x");
}

TEST_F(HostPlatformTest, HandsMessagesToTheHost)
{
    objPlatform->CreateResourceObject()->ShowMessage("careful", kWarning);
    EXPECT_EQ(lstShown, (std::vector<ShownMessage>{{"careful", kWarning}}));
}

TEST_F(HostPlatformTest, GivesIdentifiersThatNobodyElseHas)
{
    const std::string machine = objPlatform->CreateMachineInfo()->MachineName();
    EXPECT_EQ(machine, IdentifierText(machine));
    EXPECT_FALSE(machine.empty());

    std::set<std::int32_t> numbers;
    std::set<std::string> guids;
    for (int i = 0; i < 100; ++i) {
        const auto client = objPlatform->CreateClientNumber();
        EXPECT_EQ(ToInt32(client->Number()), ToInt32(client->Number()));
        EXPECT_GE(ToInt32(client->Number()), 0);
        numbers.insert(ToInt32(client->Number()));
        guids.insert(HexDigits(objPlatform->CreateGuid()));
    }
    EXPECT_EQ(numbers.size(), 100u);
    EXPECT_EQ(guids.size(), 100u);
    for (const std::string& guid : guids) {
        EXPECT_EQ(guid.size(), 32u);
        EXPECT_EQ(guid[12], '4') << "version";
        EXPECT_NE(std::string("89AB").find(guid[16]), std::string::npos) << "variant";
    }
}

TEST_F(HostPlatformTest, KeepsSettingsOfTheUser)
{
    const auto store = objPlatform->CreateSettingsStore();
    EXPECT_EQ(store->Read("存货核算", "ABCOption872", "M1", "80"), "80");
    store->Write("存货核算", "ABCOption872", "M1", "70");
    store->Write("存货核算", "abcoption872", "m2", "");
    EXPECT_EQ(objPlatform->CreateSettingsStore()->Read("存货核算", "ABCOPTION872", "m1", "80"), "70");
    EXPECT_EQ(store->Read("存货核算", "ABCOption872", "M2", "20"), "");
    EXPECT_EQ(store->Read("存货核算", "Other", "M1", "1"), "1");
}

TEST_F(HostPlatformTest, RefusesASettingsFileThatIsNone)
{
    std::filesystem::create_directories(strFolder / "config");
    std::ofstream(strFolder / "config/settings.json") << "not json";
    EXPECT_THROW(objPlatform->CreateSettingsStore()->Read("a", "b", "c", ""), Error);
    EXPECT_THROW(objPlatform->CreateSettingsStore()->Write("a", "b", "c", ""), Error);
    std::ifstream file(strFolder / "config/settings.json");
    std::string content;
    std::getline(file, content);
    EXPECT_EQ(content, "not json");
}

TEST_F(HostPlatformTest, ReadsXml)
{
    const auto document = objPlatform->CreateXmlDocument();
    ASSERT_TRUE(
        document->loadXML("<?xml version='1.0'?><!-- c --><top a='1'>\n <b> x&lt;<i>y </i></b><c/></top>"));
    const auto root = document->documentElement();
    EXPECT_EQ(root->nodeName(), "top");
    EXPECT_EQ(root->getAttribute("a"), Value("1"));
    EXPECT_TRUE(root->getAttribute("z").IsNull());
    ASSERT_EQ(root->childNodes().size(), 2u);
    EXPECT_EQ(root->childNodes()[0]->text(), "x<y");
    EXPECT_EQ(root->childNodes()[0]->childNodes()[0]->nodeName(), "#text");
    EXPECT_EQ(root->childNodes()[1]->nodeName(), "c");
}

TEST_F(HostPlatformTest, ReplacesTheReferencesOfXml)
{
    const auto document = objPlatform->CreateXmlDocument();
    ASSERT_TRUE(
        document->loadXML("<a b='&quot;&#60;&apos;'>&#x4E2D;&amp;lt;&gt;<![CDATA[&c<]]><!-- & --></a>"));
    EXPECT_EQ(document->documentElement()->text(), "中&lt;>&c<");
    EXPECT_EQ(document->documentElement()->getAttribute("b"), Value("\"<'"));
}

TEST_F(HostPlatformTest, RefusesXmlThatIsNotWellFormed)
{
    for (const char* text :
         {"", "text", "<a>", "<a></b>", "<a/><b/>", "<a/>text", "<a>b&c</a>", "<a>b&c;</a>", "<a>&#0;</a>",
          "<a>&#x;</a>", "<a>&</a>", "<a>]]></a>", "<a>\x01</a>", "<a b='<'/>", "<a b='c&d'/>", "<a/>&",
          "<a b='&lt'/>", "<a b='' b=''/>"}) {
        const auto document = objPlatform->CreateXmlDocument();
        EXPECT_FALSE(document->loadXML(text)) << text;
        EXPECT_EQ(document->documentElement(), nullptr) << text;
    }
}

TEST_F(HostPlatformTest, MakesTheObjectsOfTheSuiteByName)
{
    for (const char* name :
         {"Corvane.clsUniVch", "Tessel.clsPub", "Brannic.clsPZ", "VosPortalProxy.Business", "tessel.CLSPUB"})
        EXPECT_NE(objPlatform->CreateObject(name), nullptr) << name;
    for (const char* name : {"", "clsPub", "Tessel.clsOther"})
        EXPECT_THROW(objPlatform->CreateObject(name), Error) << name;
}

TEST_F(HostPlatformTest, LogsInOnTheLastDayOfTheMonth)
{
    const struct {
        int year, month;
        const char* day;
    } cases[] = {
        {2008, 7, "2008-07-31"}, {2008, 2, "2008-02-29"}, {2007, 2, "2007-02-28"}, {2008, 12, "2008-12-31"}};
    for (const auto& c : cases)
        EXPECT_EQ(
            FormatDate(
                HostLogin(LoginSettings{"", "001", "anna", "", "zh-CN", c.year, c.month}, nullptr).Date()),
            c.day);
}

// The texts of the statements are those that the account answers, so a change of one fails here.
constexpr const char* kPeriods =
    " from VosSystem..UA_Period where cAcc_ID = N'0''1' and iYear <> 9999 and isnull(bIsDelete, 0) = 0";

TEST_F(HostPlatformTest, ServesFiscalMonthsFromTheAccount)
{
    objScript->rows["select min(iID), max(iID)" + std::string(kPeriods) + " and iYear = 2008"] = {
        {"a", "b"}, {{Value(2), Value(12)}}};
    objScript->rows["select min(iID), max(iID)" + std::string(kPeriods) + " and iYear = 2031"] = {
        {"a", "b"}, {{Value::Null(), Value::Null()}}};
    objScript->rows["select distinct iYear" + std::string(kPeriods) + " order by iYear"] = {
        {"iYear"}, {{Value(2007)}, {Value(2008)}}};

    RecordingConnection account(objEvents, objScript);
    account.Open("", "", -1);
    const auto ledger = objPlatform->CreateLedgerPub();
    EXPECT_EQ(ledger->GetYearMonthRange("2008", account), std::pair(2, 12));
    EXPECT_EQ(ledger->GetAccountYears("2008", account), (std::vector<std::string>{"2007", "2008"}));
    EXPECT_THROW(ledger->GetYearMonthRange("2031", account), Error);
    EXPECT_THROW(ledger->GetYearMonthRange("2008 or 1=1", account), Error);
}

TEST_F(HostPlatformTest, ServesTheValueStyleOfAYear)
{
    const std::string select =
        "select cValue, cDefault from AccInformation where cSysID = N'IA' and cName = N'cValueStyle'";
    const struct {
        Value value, byDefault;
        std::string style;
    } cases[] = {{"按仓库核算", Value::Null(), "按仓库核算"},
                 {"", "按存货核算", "按存货核算"},
                 {Value::Null(), Value::Null(), ""}};
    for (const auto& c : cases) {
        objScript->rows[select] = {{"cValue", "cDefault"}, {{c.value, c.byDefault}}};
        const auto login = objPlatform->CreateLedgerLogin();
        login->Initialise("Embedded Account=x", ";PWD=secret", false, false);
        const auto params = objPlatform->CreateLedgerParams();
        objPlatform->CreateLedgerPub()->GetAccountYearParams(*login, "2008", *params);
        EXPECT_EQ(params->ValueStyle(), c.style);
    }
    EXPECT_NE(objEvents->Text().find("password='secret'"), std::string::npos);
}

TEST(HostAuthService, AnswersWithTheListsOfTheUser)
{
    UserRights anna;
    anna.warehouses = std::vector<std::string>{"01", "O'Brien"};
    anna.operators = std::vector<std::string>();
    HostAuthService service({{"Anna", anna}}, "anna");
    EXPECT_EQ(service.GetList("warehouse", "", "W"), "N'01',N'O''Brien'");
    EXPECT_EQ(service.GetList("User", "", "R"), "1=2");
    EXPECT_EQ(service.GetList("Department", "", ""), "");
    EXPECT_EQ(service.GetList("djmb", "7", ""), "");
    service.Initialise("Embedded Account=x", "otto");
    EXPECT_EQ(service.GetList("Warehouse", "", ""), "");
}

TEST(HostLogin, ReachesTheSystemDatabaseByTheSameConnectionString)
{
    const auto login = LoginIn("zh-CN");
    const auto connect = ObjectOf<LateBound>(login->SystemDatabase()->Get("dbconnect"), "DbConnect");
    EXPECT_EQ(ValueOf(connect->Get("ConnectionString"), "text"), Value("Embedded Account=x"));
    EXPECT_EQ(login->Year(), "2008");
    EXPECT_EQ(login->Month(), 7);
}

}  // namespace
}  // namespace kavelin::host
