// From a row of the standard-cost journal to its document, its voucher or the voucher of its differences.
#include "journal/clsStaCostacc.h"
#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

Cells Row(const std::string& vouType, const std::string& busType = "普通采购")
{
    return {{"CvouType", vouType},
            {"cvoucode", "DJ-7"},
            {"cbustype", busType},
            {"iPzid", "70"},
            {"ID", "71"},
            {"cpzid", "IA0000000001"},
            {"cdifpzid", "CA02"},
            {"AutoID", "another column"},
            {"单据号", "another column"}};
}

void Execute(RecordingHost& host, const std::string& action, const Cells& cells)
{
    ModPub().gstrLanguage = "zh-CN";
    clsStaCostacc().Execute(*host.EarlyRowArgument(action, cells));
}

constexpr std::string_view kYear =
    "Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_subsidiary b on a.ia_autoid = b.autoid"
    " Where cDifPzID = N'CA02' ";
constexpr std::string_view kTransitYear =
    "Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_ensubsidiary b on a.ia_autoid = b.autoid"
    " Where cDifPzID = N'CA02' ";
constexpr std::string_view kSign =
    "select top 1 coutsign from GL_accvouch where (coutsysname=N'CA' and"
    " coutno_id=N'CA02' and (iflag is null or iflag=2))";

}  // namespace

TEST(ADocumentOfTheStandardCostJournal, IsShownByItsVoucherType)
{
    const struct {
        const char *vouType, *busType, *call;
    } cases[] = {
        {"22", "", "ShowCostJustVouch(connection #1, 'DJ-7', nothing, '', True)"},
        {"21", "", "ShowVoucher(connection #1, '', '21', 'DJ-7', nothing, Login)"},
        {"20", "", "ShowVoucher(connection #1, '', '20', 'DJ-7', nothing, Login)"},
        {"24", "", "ShowVoucher(connection #1, '', '24', '71', nothing, Login)"},
        {"30", "", "ShowVoucher(connection #1, '', '30', '71', nothing, Login)"},
        {"35", "", "ShowDifVouchs(connection #1, True, '', 'DJ-7')"},
        {"08", "", "ShowVoucher(connection #1, '', '08', '70', nothing, Login)"},
        {"01", "直运采购", "ShowVoucher(connection #1, '', '25', '70', nothing, Login)"},
        {"02", "直运采购", "ShowVoucher(connection #1, '', '02', '70', nothing, Login)"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Execute(host, "Vouch", Row(c.vouType, c.busType));
        EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show"}),
                  std::string("Corvane.clsUniVch.") + c.call + "\n");
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    }
}

TEST(ADocumentOfTheStandardCostJournal, HasTheCellsOfItsOwnColumns)
{
    RecordingHost host;
    Execute(host, "vouch", Row("08"));
    EXPECT_EQ(LinesOf(host, {"RelateData."}),
              "RelateData.GetData CvouType\nRelateData.GetData cvoucode\nRelateData.GetData cbustype\n"
              "RelateData.GetData iPzid\nRelateData.GetData ID\n");
}

TEST(ADocumentOfTheStandardCostJournal, HasEmptyTextsForTheCellsThatItsTableLacks)
{
    RecordingHost host;
    Execute(host, "Vouch", {{"cvoucode", "DJ-7"}, {"cbustype", "普通采购"}});
    EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show"}),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '', '', nothing, Login)\n");
}

TEST(AVoucherOfTheStandardCostJournal, IsOpenedByAnyOtherAction)
{
    for (const char* action : {"", "PZ", "ActWtInfo"}) {
        RecordingHost host;
        Answer(host,
               "Select iYear From IA_SubSidiary Where cPzID = N'IA0000000001' and imonth <>0 order by iyear",
               2008);
        Execute(host, action, Row("08"));
        EXPECT_EQ(LinesOf(host, {"RelateData."}), "RelateData.GetData cpzid\n") << action;
        EXPECT_EQ(
            SuiteLines(host),
            "new Tessel.clsPub\n"
            "new Brannic.clsPZ\n"
            "new VosPortalProxy.Business\n"
            "Tessel.clsPub.g_business = VosPortalProxy.Business\n"
            "Tessel.clsPub.oLogin = Login\n"
            "Tessel.clsPub.InitPubs2('IA', SystemDatabase, LedgerLogin, '001', 2008, 'demo', 2008-07-31,"
            " 'login password')\n"
            "Brannic.clsPZ.zzLogin = Login\n"
            "Brannic.clsPZ.zzSys = Tessel.clsPub\n"
            "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, '存货核算', 'IA0000000001',"
            " 2008)\n")
            << action;
    }
}

TEST(AVoucherOfTheStandardCostJournal, MakesThePortalOnceAndKeepsIt)
{
    for (const char* action : {"", "DifPZ"}) {
        RecordingHost host;
        Execute(host, action, Row("08"));
        const auto made = ModPub().gobjBusiness;
        ASSERT_NE(made, nullptr);
        Execute(host, action, Row("08"));
        EXPECT_EQ(ModPub().gobjBusiness, made);
        EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}),
                  "new VosPortalProxy.Business\n"
                  "Tessel.clsPub.g_business = VosPortalProxy.Business\n"
                  "Tessel.clsPub.g_business = VosPortalProxy.Business\n");
    }
}

TEST(AVoucherOfTheStandardCostJournal, IsOpenedWithoutAPortalWhereThereIsNone)
{
    RecordingHost host;
    host.Answers().missingObjects = {"VosPortalProxy.Business"};
    Execute(host, "", Row("08"));
    EXPECT_EQ(LinesOf(host, {"Tessel.clsPub.g_business"}), "");
    EXPECT_EQ(
        LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
        "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, '存货核算', 'IA0000000001', 0)\n");
}

TEST(ADifferenceVoucher, IsOpenedStepByStep)
{
    RecordingHost host;
    Answer(host, std::string(kYear), 2007);
    Answer(host, std::string(kSign), "成本管理");
    Execute(host, "DifPZ", Row("08"));
    EXPECT_EQ(LinesOf(host, {"RelateData."}), "RelateData.GetData cdifpzid\nRelateData.GetData cbustype\n");
    EXPECT_EQ(VoucherQueries(host), "#2 " + std::string(kYear) + "\n#2 " + std::string(kSign) + "\n");
    EXPECT_EQ(SuiteLines(host),
              "new Tessel.clsPub\n"
              "new Brannic.clsPZ\n"
              "new VosPortalProxy.Business\n"
              "Tessel.clsPub.g_business = VosPortalProxy.Business\n"
              "Tessel.clsPub.oLogin = Login\n"
              "Tessel.clsPub.InitPubs2('IA', SystemDatabase, LedgerLogin, '001', 2007, 'demo', 2008-07-31,"
              " 'login password')\n"
              "Brannic.clsPZ.zzLogin = Login\n"
              "Brannic.clsPZ.zzSys = Tessel.clsPub\n"
              "Brannic.clsPZ.StartUpPz('CA', 'CA0603', 3, 'CN', 'CA', nothing, '成本管理', 'CA02', 2007)\n");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
}

TEST(ADifferenceVoucher, OfADifferenceAdjustmentIsOneOfTheInventory)
{
    RecordingHost host;
    Answer(host, std::string(kYear), 2008);
    Execute(host, "difpz", Row("08", "差异调整"));
    EXPECT_EQ(LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
              "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, '存货核算', 'CA02', 2008)\n");
    EXPECT_EQ(VoucherQueries(host), "#2 " + std::string(kYear) + "\n#2 " + std::string(kSign) + "\n");
}

TEST(ADifferenceVoucher, HasTheYearOfItsLedgerRowInEitherLedger)
{
    const struct {
        bool inLedger, inTransit;
        const char* year;
    } cases[] = {{true, true, "2006"}, {true, false, "2006"}, {false, true, "2007"}, {false, false, "0"}};
    for (const auto& c : cases) {
        RecordingHost host;
        if (c.inLedger)
            Answer(host, std::string(kYear), 2006);
        if (c.inTransit)
            Answer(host, std::string(kTransitYear), 2007);
        Execute(host, "DifPZ", Row("08"));
        EXPECT_EQ(VoucherQueries(host), "#2 " + std::string(kYear) + "\n" +
                                            (c.inLedger ? "" : "#2 " + std::string(kTransitYear) + "\n") +
                                            "#2 " + std::string(kSign) + "\n");
        EXPECT_EQ(
            LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
            std::string("Brannic.clsPZ.StartUpPz('CA', 'CA0603', 3, 'CN', 'CA', nothing, '', 'CA02', ") +
                c.year + ")\n");
    }
}

TEST(ADifferenceVoucher, ThatIsMissingIsToldAndLeavesTheConnectionOpen)
{
    for (const char* action : {"DifPZ", "PZ"}) {
        RecordingHost host;
        Execute(host, action, {{"cbustype", "差异调整"}, {"cdifpzid", ""}, {"cpzid", ""}});
        EXPECT_EQ(LinesOf(host, {"ResourceObject."}),
                  "ResourceObject.GetResString Orvo.IA.CHHSSQL.02787\n"
                  "ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.02787>, 48\n");
        EXPECT_EQ(SuiteLines(host) + LinesOf(host, {"#1.Close"}), "");
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    }
}

TEST(ADifferenceVoucher, PassesEachFailingStepOver)
{
    const std::string portal = "Tessel.clsPub.g_business", pub = "Tessel.clsPub.oLogin";
    const std::string init = "Tessel.clsPub.InitPubs2", login = "Brannic.clsPZ.zzLogin";
    const std::string sys = "Brannic.clsPZ.zzSys", start = "Brannic.clsPZ.StartUpPz", close = "#1.Close";
    const std::set<std::string> all = {portal, pub, init, login, sys, start, close};
    ExpectEachFailureIsPassedOver(
        [](RecordingHost& host) {
            Answer(host, std::string(kTransitYear), 2008);
            Answer(host, std::string(kSign), "成本管理");
            Execute(host, "DifPZ", Row("08"));
        },
        {all.begin(), all.end()},
        {
            {"new Connection", {close}},
            {"#1.Open ", {close}},
            {"e.Login", {init}},
            {"e.RelateData", all},
            {"RelateData.GetData cdifpzid", all},
            {"Login.SystemDatabase", {init}},
            {"Login.AccountId", {init}},
            {"Login.UserId", {init}},
            {"Login.Date", {init}},
            {"Login.Date\nLogin.Password", {init}},
            {"new Tessel", {portal, pub, init}},
            {"new Brannic", {login, sys, start}},
            {"new VosPortalProxy", {portal}},
        });
}

}  // namespace kavelin::test
