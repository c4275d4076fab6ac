// What the host's viewers show of an embedded account, called as the library calls them and by a report's
// rows.
#include "host/SuiteViewers.h"

#include "embedded/EmbeddedAccount.h"
#include "frame/Errors.h"
#include "frame/Value.h"
#include "frame/host/ConnectionObject.h"
#include "frame/host/SuiteObjects.h"
#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "host/HostLedger.h"
#include "host/ReportRun.h"
#include "support/CostView.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kavelin::host {
namespace {

constexpr const char* kAccount[] = {
    "create table VosSystem..UA_Period (cAcc_ID nvarchar(10) not null, iYear smallint not null,"
    " iID tinyint not null, dBegin datetime not null, dEnd datetime not null, bIsDelete bit not null)",
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, bInCost bit null)",
    "create table gl_AccVouch (cOutNo_ID nvarchar(30) not null, cSign nvarchar(4) null, iNo_ID int null,"
    " cOutSysName nvarchar(10) null, cOutSign nvarchar(80) null, iFlag tinyint null)",
    "create table IA_Subsidiary (AutoID int not null, iPZID int null, iYear smallint not null,"
    " iMonth tinyint null, dVouDate datetime null, cVouType nvarchar(4) not null, cVouCode nvarchar(30) null,"
    " cBusType nvarchar(60) null, bRdFlag tinyint null, cInvCode nvarchar(60) null, iAInQuantity float null,"
    " iAInPrice money null, iAOutQuantity float null, iAOutPrice money null, cPZID nvarchar(30) null)",
    "create table pl_co_SubSidiary (ia_autoid int not null, cDifPZID nvarchar(30) null)",

    "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd, bIsDelete) values"
    " (N'001', 2008, 7, '2008-07-01', '2008-07-31', 0)",
    "insert into AccInformation (cSysID, cName, cValue) values (N'ia', N'dIAFirstDate', N'2008-01-01')",
    "insert into Warehouse (cWhCode, bInCost) values (N'01', 1)",
    "insert into gl_AccVouch (cOutNo_ID, cSign, iNo_ID, cOutSysName, cOutSign) values"
    " (N'IA1', N'记', 12, N'IA', N'存货核算'), (N'CA1', N'转', 3, N'CA', N'成本管理')",
    "insert into IA_Subsidiary (AutoID, iPZID, iYear, iMonth, dVouDate, cVouType, cVouCode, bRdFlag,"
    " cInvCode, iAInQuantity, iAInPrice, cPZID) values"
    " (1, 70, 2008, 2, '2008-02-01', N'10', N'R1', 1, N'A', 10, 110, N'IA1'),"
    " (2, 70, 2008, 2, '2008-02-01', N'10', N'R1', 1, N'B', 5, 50, N'IA1'),"
    " (3, 71, 2008, 3, '2008-03-01', N'20', N'T1', 1, N'A', 0, 7, null),"
    " (4, 72, 2007, 3, '2007-03-01', N'10', N'R0', 1, N'A', 1, 1, N'IA1')",
    "insert into pl_co_SubSidiary (ia_autoid, cDifPZID) values (1, N'CA1'), (4, N'CA1')",
    "insert into V_IA_CostacCount (dKeepDate, cVouCode, cVouType, cBusType, cWhCode, cPZID, cDifPZID) values"
    " ('2008-02-01', N'R1', N'10', N'成品入库', N'01', N'IA1', N'CA1')",
};

constexpr const char* kDocuments[] = {
    "create table Demo_Document (DocID int not null, cVouType nvarchar(4) not null,"
    " cVouCode nvarchar(30) not null, dVouDate datetime null, cBusType nvarchar(60) null,"
    " cWhCode nvarchar(10) null, cDepCode nvarchar(20) null, cRdCode nvarchar(10) null,"
    " cCusCode nvarchar(20) null, cVenCode nvarchar(20) null, cMemo nvarchar(60) null)",
    "create table Demo_DocumentLine (LineID int not null, DocID int not null, cInvCode nvarchar(60) null,"
    " cBatchIA nvarchar(60) null, bRdFlag tinyint null, iQuantity float null, iUnitCost float null,"
    " iPrice money null, cAccounter nvarchar(20) null, dKeepDate datetime null)",
    "insert into Demo_Document (DocID, cVouType, cVouCode) values (70, N'10', N'R1'), (71, N'20', N'T1')",
    "insert into Demo_DocumentLine (LineID, DocID, cInvCode, iQuantity) values (700, 70, N'A', 10),"
    " (701, 70, N'B', 5), (710, 71, N'A', 0)",
};

class TheHostsViewers : public testing::Test {
  protected:
    TheHostsViewers()
        : strFolder(std::filesystem::temp_directory_path() /
                    ("kavelin-viewers-" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(strFolder);
        std::filesystem::create_directories(strFolder);
        const std::string path = (strFolder / "test.kavelin").string();
        embedded::CreateAccount(path);
        objLogin.connectionString = EmbeddedConnectionString(path, "zh-CN");
        cnnAccount = objConnections.Open("setup", objLogin.connectionString, "");
        cnnAccount->Execute(test::CreateCostView());
        for (const char* statement : kAccount)
            cnnAccount->Execute(statement);
    }
    ~TheHostsViewers() override
    {
        cnnAccount.reset();
        std::filesystem::remove_all(strFolder);
    }

    // Title, and of every row its first fields, a line each.
    ViewerSink Sink()
    {
        return [this](const std::string& title, Recordset& rows) {
            strShown += title + "\n";
            for (; !rows.Eof(); rows.MoveNext())
                strShown += " " + ToText(rows.Field(0)) + " " + ToText(rows.Field(1)) + "\n";
        };
    }

    std::shared_ptr<LateBound> Make(const std::string& name, const std::string& language = "zh-CN")
    {
        return CreateSuiteObject(
            name,
            {Sink(), [this](const ShownMessage& message) { strShown += "! " + message.text + "\n"; },
             language, [this] { return objConnections.Open("portal", objLogin.connectionString, ""); }});
    }

    Variant Account() const { return HostObjectPtr(std::make_shared<ConnectionObject>(cnnAccount)); }

    // Shows the document by the key and gives what was shown.
    std::string Document(const std::string& vouType, const std::string& key,
                         const std::string& language = "zh-CN")
    {
        strShown.clear();
        const auto viewer = Make("Corvane.clsUniVch", language);
        viewer->Call("Init", {Account(), Value("工业"), HostObjectPtr()});
        viewer->Call("ShowVoucher", {Account(), Value("工业"), Value(vouType), Value(key), HostObjectPtr(),
                                     HostObjectPtr()});
        return strShown;
    }

    std::string Voucher(const std::string& id, int year)
    {
        strShown.clear();
        const auto login = std::make_shared<HostLedgerLogin>(objConnections);
        login->Initialise(objLogin.connectionString, ";PWD=", false, false);
        const auto ledger = Make("Tessel.clsPub");
        ledger->Call("InitPubs2", {Value("IA"), HostObjectPtr(), HostObjectPtr(login), Value("001"),
                                   Value(year), Value("demo"), Value(), Value("")});
        const auto viewer = Make("Brannic.clsPZ");
        viewer->Put("zzSys", HostObjectPtr(ledger));
        viewer->Call("StartUpPz", {Value("IA"), Value("*IACXPZ"), Value(3), Value("CN"), Value("IA"),
                                   HostObjectPtr(), Value("存货核算"), Value(id), Value(year)});
        return strShown;
    }

    // Opens row `row` of the standard-cost journal.
    std::string Open(std::int64_t row, const std::string& action)
    {
        strShown.clear();
        ReportRun run(objLogin, objConnections,
                      [this](const ShownMessage& message) { strShown += "! " + message.text + "\n"; });
        const FilterInput input(TemplateOf("standard-cost-journal"), ValuePolicy::Checked);
        run.RunAndOpen(FindReport("standard-cost-journal"), input, row, action, Sink());
        return strShown;
    }

    std::filesystem::path strFolder;
    ConnectionSource objConnections;
    AccountLogin objLogin;
    std::shared_ptr<Connection> cnnAccount;
    std::string strShown;
};

TEST_F(TheHostsViewers, ShowADocumentsRowsOfTheLedgerWhereTheAccountKeepsNoDocuments)
{
    EXPECT_EQ(Document("10", "70"), "存货明细账 10 70\n 1 2008-02-01\n 2 2008-02-01\n");
    EXPECT_EQ(Document("20", "T1"), "存货明细账 20 T1\n 3 2008-03-01\n");
    EXPECT_EQ(Document("30", "2"), "存货明细账 30 2\n 2 2008-02-01\n");
    EXPECT_EQ(Document("10", "70", "en-US"),
              "Rows of the inventory ledger 10 70\n 1 2008-02-01\n 2 2008-02-01\n");
}

TEST_F(TheHostsViewers, ShowADocumentWithItsLines)
{
    for (const char* statement : kDocuments)
        cnnAccount->Execute(statement);
    EXPECT_EQ(Document("10", "70"), "单据 10 70\n 70 10\n单据行 10 70\n 700 A\n 701 B\n");
    EXPECT_EQ(Document("21", "T1"), "! 账套中没有单据 21 T1\n") << "of another type";
    EXPECT_EQ(Document("20", "T1"), "单据 20 T1\n 71 20\n单据行 20 T1\n 710 A\n");
    EXPECT_EQ(Document("10", "72"), "存货明细账 10 72\n 4 2007-03-01\n") << "only in the ledger";

    strShown.clear();
    Make("Corvane.clsUniVch")
        ->Call("ShowCostJustVouch", {Account(), Value("R1"), HostObjectPtr(), Value(""), Value(true)});
    Make("Corvane.clsUniVch")->Call("ShowDifVouchs", {Account(), Value(true), Value(""), Value("R1")});
    EXPECT_EQ(strShown, "! 账套中没有单据 22 R1\n! 账套中没有单据 35 R1\n");
}

TEST_F(TheHostsViewers, TellOfADocumentThatIsNowhere)
{
    EXPECT_EQ(Document("10", "99"), "! 账套中没有单据 10 99\n");
    EXPECT_EQ(Document("10", "99", "en-US"), "! The account has no document 10 99\n");
    EXPECT_EQ(Document("20", "it's"), "! 账套中没有单据 20 it's\n");
}

// As an opening or a total does not.
TEST_F(TheHostsViewers, TellOfARowThatNamesNoDocument)
{
    EXPECT_EQ(Document("", ""), "! 该行没有指明单据。\n");
    EXPECT_EQ(Document("10", "", "en-US"), "! The row names no document.\n");
}

TEST_F(TheHostsViewers, ShowErrorsThatAReportWouldPassOver)
{
    EXPECT_THROW(Document("10", "no number"), Error);
    EXPECT_NE(strShown.find("! "), std::string::npos);
    strShown.clear();
    EXPECT_THROW(Make("Corvane.clsUniVch")->Call("ShowOther", {Account()}), Error);
    EXPECT_THROW(Make("Corvane.clsUniVch")->Call("ShowVoucher", {Account()}), Error);
    EXPECT_THROW(Make("Corvane.clsUniVch")->Call("ShowVoucher", {Value("no connection")}), Error);
    EXPECT_THROW(Make("Brannic.clsPZ")->Call("StartUpPz", {}), Error);
    EXPECT_THROW(Make("Tessel.clsPub")->Call("InitPubs2", {}), Error);
}

TEST_F(TheHostsViewers, ShowADocumentOfThePortalsList)
{
    for (const char* statement : kDocuments)
        cnnAccount->Execute(statement);
    cnnAccount->Execute("update Demo_Document set cVouType = N'66', cVouCode = N'FD-1' where DocID = 71");
    const auto portal = Make("VosPortalProxy.Business");
    const auto run = [&](const std::string& command) {
        strShown.clear();
        try {
            portal->Call("RunCommand", {Value(command)});
        } catch (const Error&) {
            strShown += "failed\n";
        }
        return strShown;
    };
    const std::string before = "ID:IA0214&&&Name:X&&&SubSysID:IA&&&CmdLine:";
    EXPECT_EQ(run(before + "\tFD-1\tV_IA_CreditDifVouchList"),
              "单据 66 FD-1\n 71 66\n单据行 66 FD-1\n 710 A\n");
    EXPECT_EQ(run(before + "\tFD-2\tV_IA_CreditDifVouchList"), "! 账套中没有单据 66 FD-2\n");
    EXPECT_EQ(run(before + "\tFD-1\tV_Other"), "! The portal has no list \"V_Other\".\nfailed\n");
    EXPECT_EQ(run(before + "FD-1"), "! The portal has no list \"\".\nfailed\n");
    EXPECT_EQ(run("ID:IA0214"), "! The portal knows no command without a command line.\nfailed\n");
    EXPECT_THROW(portal->Call("Other", {}), Error);
}

TEST_F(TheHostsViewers, ShowAVoucherWithItsRowsOfTheYear)
{
    EXPECT_EQ(Voucher("IA1", 2008), "凭证 IA1\n 记 12\n存货明细账 IA1\n 1 2008-02-01\n 2 2008-02-01\n");
    EXPECT_EQ(Voucher("IA1", 2007), "凭证 IA1\n 记 12\n存货明细账 IA1\n 4 2007-03-01\n");
    EXPECT_EQ(Voucher("CA1", 2008), "凭证 CA1\n 转 3\n存货明细账 CA1\n 1 2008-02-01\n");
    EXPECT_EQ(Voucher("IA9", 2008), "! 账套中没有凭证 IA9\n");
}

TEST_F(TheHostsViewers, ShowWhatIsBehindARowOfAReport)
{
    // The earliest year of the voucher's rows.
    EXPECT_EQ(Open(1, "Voucher"), "凭证 IA1\n 记 12\n存货明细账 IA1\n 4 2007-03-01\n");
    cnnAccount->Execute("delete from IA_Subsidiary where iYear = 2007");
    EXPECT_EQ(Open(1, "Voucher"), "凭证 IA1\n 记 12\n存货明细账 IA1\n 1 2008-02-01\n 2 2008-02-01\n");
    EXPECT_EQ(Open(1, "DifPZ"), "凭证 CA1\n 转 3\n存货明细账 CA1\n 1 2008-02-01\n");
    EXPECT_THROW(Open(0, "Voucher"), UsageError);
    EXPECT_THROW(Open(2, "Voucher"), UsageError);
}

TEST_F(TheHostsViewers, AreNotAskedWhereARowHasNoVoucher)
{
    cnnAccount->Execute("update V_IA_CostacCount set cPZID = null");
    EXPECT_EQ(Open(1, "Voucher"), "! 该行没有对应的凭证。\n");
}

TEST_F(TheHostsViewers, FindNoDocumentBehindTheStandardCostJournalWhoseRowsLackItsIdentity)
{
    EXPECT_EQ(Open(1, "Vouch"), "! 该行没有指明单据。\n");
}

}  // namespace
}  // namespace kavelin::host
