// Reports run by the host on a real embedded account.
#include "embedded/EmbeddedAccount.h"
#include "frame/Value.h"
#include "host/FilterTemplate.h"
#include "host/ReportRun.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {
namespace {

struct CountingObserver : StatementObserver {
    void Begins(const std::string&, const std::string& connection) override
    {
        ofReport += connection.rfind("report ", 0) == 0;
    }
    int ofReport = 0;
};

// The ledger: 700 of A come and 100 go, 300 of B come, and 100 of C into warehouse 02.
constexpr const char* kAccount[] = {
    "create table VosSystem..UA_Period (cAcc_ID nvarchar(10) not null, iYear smallint not null,"
    " iID tinyint not null, dBegin datetime not null, dEnd datetime not null, bIsDelete bit not null)",
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvAddCode nvarchar(60) null,"
    " cInvName nvarchar(255) null, cInvStd nvarchar(255) null, cInvCCode nvarchar(24) null,"
    " cComUnitCode nvarchar(35) null, iid nvarchar(60) null)",
    "create table ComputationUnit (cComunitCode nvarchar(35) not null, cComUnitName nvarchar(20) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null, bInCost bit null)",
    "create table IA_Subsidiary (cInvCode nvarchar(60) null, cWhCode nvarchar(10) null,"
    " iYear smallint null, cVouType nvarchar(4) null, cBusType nvarchar(60) null, bRdFlag tinyint null,"
    " iAInPrice money null, iAOutPrice money null, iDebitDifCost money null,"
    " iCreditDifCost money null, dKeepDate datetime null)",

    "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd, bIsDelete) values"
    " (N'001', 2008, 12, '2008-12-01', '2008-12-31', 0), (N'001', 2008, 11, '2008-11-01', '2008-11-30', 0),"
    " (N'001', 9999, 1, '2099-01-01', '2099-01-31', 0)",
    "insert into AccInformation (cSysID, cName, cValue) values (N'IA', N'bWarehouseCheck', N'TRUE')",
    "insert into ComputationUnit (cComunitCode, cComUnitName) values (N'1', N'个')",
    "insert into Warehouse (cWhCode, cWhName, bInCost) values (N'01', N'一', 1), (N'02', N'二', 1)",
    "insert into Inventory (cInvCode, cInvName, cInvCCode, cComUnitCode, iid) values"
    " (N'A', N'甲', N'01', N'1', N'A'), (N'B', N'乙', N'01', N'1', N'B'), (N'C', N'丙', N'02', N'1', N'C')",
    "insert into IA_Subsidiary (cInvCode, cWhCode, iYear, cVouType, bRdFlag, iAInPrice, iAOutPrice,"
    " dKeepDate) values (N'A', N'01', 2008, N'01', 1, 700, null, '2008-03-01'),"
    " (N'A', N'01', 2008, N'32', 0, null, 100, '2008-04-01'),"
    " (N'B', N'01', 2008, N'01', 1, 300, null, '2008-05-01'),"
    " (N'C', N'02', 2008, N'01', 1, 100, null, '2008-06-01')",
};

// What is sent goes into the statement log of the test run.
ConnectionSource Connections(StatementObservers observers = {})
{
    if (auto log = LogFromEnvironment())
        observers.push_back(std::move(log));
    return ConnectionSource(std::move(observers));
}

class EmbeddedRunTest : public testing::Test {
  protected:
    EmbeddedRunTest()
        : strFolder(std::filesystem::temp_directory_path() / ("kavelin-run-" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(strFolder);
        std::filesystem::create_directories(strFolder);
        const std::string path = (strFolder / "test.kavelin").string();
        embedded::CreateAccount(path);
        objLogin.connectionString = EmbeddedConnectionString(path, "zh-CN");

        const auto account = Connections().Open("setup", objLogin.connectionString, "");
        for (const char* statement : kAccount)
            account->Execute(statement);
        account->Close();
    }
    ~EmbeddedRunTest() override { std::filesystem::remove_all(strFolder); }

    // Item, amount and share of every row, a line a row.
    static std::string Print(Recordset& rows)
    {
        std::string text;
        for (; !rows.Eof(); rows.MoveNext())
            text += ToText(rows.Field("cNo")) + " " + ToText(rows.Field("cInvCode")) + " " +
                    ToText(rows.Field("资金占用额")) + " " + ToText(rows.Field("所占比重")) + "\n";
        return text;
    }

    std::string RunCapitalShare(std::initializer_list<std::string_view> assignments)
    {
        ReportRun run(objLogin, Connections());
        FilterInput input(TemplateOf("capital-share"), ValuePolicy::Checked);
        for (const std::string_view assignment : assignments)
            input.Set(assignment);
        run.Run(FindReport("capital-share"), input);
        return Print(*run.OpenResult());
    }

    std::filesystem::path strFolder;
    AccountLogin objLogin;
};

TEST_F(EmbeddedRunTest, LogsInToTheLatestMonthThatIsNoSentinel)
{
    ReportRun run(objLogin, Connections());
    EXPECT_EQ(run.Login().Year(), "2008");
    EXPECT_EQ(run.Login().Month(), 12);
}

TEST_F(EmbeddedRunTest, RunsTheCapitalShare)
{
    // 700 - 100 = 600 of 1,000; 300; 100.
    EXPECT_EQ(RunCapitalShare({}), "1 A 600 60\n2 B 300 30\n3 C 100 10\n");
}

TEST_F(EmbeddedRunTest, HandsTheFilterToTheReport)
{
    EXPECT_EQ(RunCapitalShare({"imonth=2008-05-01..", "cno=1"}), "1 B 300 75\n");
    EXPECT_EQ(RunCapitalShare({"cinvcode=A..B"}), "1 A 600 66.67\n2 B 300 33.33\n");
}

TEST_F(EmbeddedRunTest, LimitsAUserToHisWarehouses)
{
    objLogin.users["demo"].warehouses = std::vector<std::string>{"02"};
    EXPECT_EQ(RunCapitalShare({}), "1 C 100 100\n");
    objLogin.user = "other";
    EXPECT_EQ(RunCapitalShare({"cno=1"}), "1 A 600 60\n");
}

TEST_F(EmbeddedRunTest, TakesRightsFromTheAccountUnlessTheSettingsNameTheUser)
{
    const auto account = Connections().Open("setup", objLogin.connectionString, "");
    account->Execute(
        "create table Demo_UserRight (cUser nvarchar(60) not null, cKind nvarchar(20) not null,"
        " cCode nvarchar(60) not null)");
    account->Execute(
        "insert into Demo_UserRight (cUser, cKind, cCode) values (N'Anna', N'Warehouse', N'02'),"
        " (N'Anna', N'Colour', N'red')");
    account->Close();

    EXPECT_EQ(RunCapitalShare({"cno=1"}), "1 A 600 60\n");
    objLogin.user = "anna";
    EXPECT_EQ(RunCapitalShare({}), "1 C 100 100\n");
    objLogin.users["ANNA"].departments = std::vector<std::string>{"D"};
    EXPECT_EQ(RunCapitalShare({"cno=1"}), "1 A 600 60\n");
}

TEST_F(EmbeddedRunTest, SpeaksTheAccountsLanguageIfNobodyChoseOne)
{
    const std::string path = (strFolder / "test.kavelin").string();
    const auto account = Connections().Open("setup", objLogin.connectionString, "");
    account->Execute(
        "create table Demo_Profile (cName nvarchar(30) not null, cValue nvarchar(255) not null)");
    account->Execute("insert into Demo_Profile (cName, cValue) values (N'language', N'en-US')");
    account->Close();

    objLogin.connectionString = EmbeddedConnectionString(path);
    EXPECT_EQ(ReportRun(objLogin, Connections()).Login().LanguageRegion(), "zh-CN");
    objLogin.languageByDefault = true;
    ReportRun run(objLogin, Connections());
    EXPECT_EQ(run.Login().LanguageRegion(), "en-US");
    const auto rows =
        run.Account().OpenRecordset("select 1 where dbo.UDF_GetLocaleID() = N'en-US'", CursorLocation::Client,
                                    CursorType::Static, LockType::ReadOnly);
    EXPECT_FALSE(rows->Eof());
}

TEST_F(EmbeddedRunTest, SendsAsManyStatementsAsTheTableOfReportsTells)
{
    const auto observer = std::make_shared<CountingObserver>();
    ReportRun run(objLogin, Connections({observer}));
    // A permission that is switched on is asked for twice.
    run.Account().Execute("update AccInformation set cValue = N'FALSE'");
    const Report& report = FindReport("capital-share");
    run.Run(report, FilterInput(TemplateOf("capital-share"), ValuePolicy::Checked));
    EXPECT_EQ(observer->ofReport, report.statements);
}

TEST_F(EmbeddedRunTest, LeavesNoResultTableBehind)
{
    std::string table;
    {
        ReportRun run(objLogin, Connections());
        run.Run(FindReport("capital-share"), FilterInput(TemplateOf("capital-share"), ValuePolicy::Checked));
        table = run.TableName();
    }
    const auto account = Connections().Open("check", objLogin.connectionString, "");
    const auto rows = account->OpenRecordset("select name from sysobjects where name = N'" + table + "'",
                                             CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(rows->RecordCount(), 0);
}

TEST_F(EmbeddedRunTest, RunsTheAreaTableOnTheAccountsOwnTables)
{
    ReportRun run(objLogin, Connections());
    run.Account().Execute(
        "create table ia_data_subsidiary (autoid int null, cinvcode nvarchar(60) null,"
        " cwhcode nvarchar(10) null, cbatchia nvarchar(60) null, brdflag tinyint null,"
        " iquantity float null, iprice money null, iunitcost float null,"
        " cfree1 nvarchar(20) null, cfree2 nvarchar(20) null, cfree3 nvarchar(20) null,"
        " cfree4 nvarchar(20) null, cfree5 nvarchar(20) null, cfree6 nvarchar(20) null,"
        " cfree7 nvarchar(20) null, cfree8 nvarchar(20) null, cfree9 nvarchar(20) null,"
        " cfree10 nvarchar(20) null)");
    run.Account().Execute("create table ia_accountarea (autoid int null)");
    run.Account().Execute("drop table Warehouse");
    run.Account().Execute(
        "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null)");
    run.Account().Execute(
        "insert into ia_data_subsidiary (autoid, cinvcode, cwhcode, brdflag, iquantity)"
        " values (1, N'A', N'01', 1, 5)");
    run.Account().Execute("insert into ia_accountarea (autoid) values (1), (1)");
    run.Run(FindReport("area-table"), FilterInput(TemplateOf("area-table"), ValuePolicy::Checked));
    const auto rows = run.OpenResult();
    ASSERT_EQ(rows->RecordCount(), 1);
    EXPECT_EQ(ToText(rows->Field("cinvcode")), "A");
    EXPECT_EQ(ToText(rows->Field("iinquantity")), "5");
}

}  // namespace
}  // namespace kavelin::host
