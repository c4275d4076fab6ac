// From a row of the detail ledger to its document, its voucher or the voucher of its differences.
#include "goods/ClsOutDetailInfo.h"
#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

Cells Row(const std::string& vouType, const std::string& busType = "普通销售")
{
    return {{"cvoutype", vouType}, {"cvoucode", "DJ-7"}, {"cbustype", busType}, {"ipzid", "70"},
            {"autoID", "71"},      {"cPzID", "IA01"},    {"cdifpzid", "CA02"}};
}

void Execute(RecordingHost& host, const std::string& action, const Cells& cells)
{
    ModPub().gstrLanguage = "zh-CN";
    ClsOutDetailInfo().Execute(*host.EarlyRowArgument(action, cells));
}

constexpr const char* kYear =
    "Select iYear From IA_SubSidiary Where cPzID = N'IA01' and imonth <>0 order by iyear";
constexpr const char* kTransitYear =
    "Select iYear From IA_EnSubSidiary Where cPzID = N'IA01' and imonth <>0 order by iyear";
constexpr const char* kDifYear =
    "Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_subsidiary b on a.ia_autoid = b.autoid"
    " Where cDifPzID = N'CA02' ";
constexpr const char* kDifTransitYear =
    "Select top 1 b.iyear From pl_co_ENSubSidiary a inner join ia_ensubsidiary b on a.iIASubID = b.autoid"
    " Where cDifPzID = N'CA02' ";
constexpr const char* kSign =
    "select top 1 coutsign from GL_accvouch where (coutsysname=N'CA' and coutno_id=N'CA02'"
    " and (iflag is null or iflag=2))";

constexpr const char* kCommand =
    "VosPortalProxy.Business.RunCommand('ID:IA0214&&&Name:发出商品贷方调整单&&&SubSysID:IA&&&AuthID:IA1007"
    "&&&CmdLine:\tDJ-7\tV_IA_CreditDifVouchList')\n";

}  // namespace

TEST(ADocumentOfTheDetailLedger, IsShownByItsVoucherType)
{
    const struct {
        const char *vouType, *busType, *call;
    } cases[] = {
        {"22", "", "ShowCostJustVouch(connection #1, 'DJ-7', nothing, '', True)"},
        {"2201", "", "ShowCostJustVouch(connection #1, 'DJ-7', nothing, '', True)"},
        {"21", "", "ShowVoucher(connection #1, '', '21', 'DJ-7', nothing, Login)"},
        {"20", "", "ShowVoucher(connection #1, '', '20', 'DJ-7', nothing, Login)"},
        {"24", "", "ShowVoucher(connection #1, '', '24', '71', nothing, Login)"},
        {"30", "", "ShowVoucher(connection #1, '', '30', '71', nothing, Login)"},
        {"35", "", "ShowDifVouchs(connection #1, True, '', 'DJ-7')"},
        {"05", "", "ShowVoucher(connection #1, '', '05', '70', nothing, Login)"},
        {"26", "", "ShowVoucher(connection #1, '', '26', '70', nothing, Login)"},
        {"65", "", "ShowVoucher(connection #1, '', '65', '70', nothing, Login)"},
        {"01", "直运采购", "ShowVoucher(connection #1, '', '25', '70', nothing, Login)"},
        {"02", "直运采购", "ShowVoucher(connection #1, '', '02', '70', nothing, Login)"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Execute(host, "OutDetailInfo", Row(c.vouType, c.busType));
        EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show", "VosPortal"}),
                  std::string("Corvane.clsUniVch.") + c.call + "\n");
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    }
}

TEST(ADocumentOfTheDetailLedger, HasTheCellsOfItsOwnColumns)
{
    for (const char* action : {"OutDetailInfo", "outdetailinfo", "OUTDETAILINFO"}) {
        RecordingHost host;
        Execute(host, action, Row("05"));
        EXPECT_EQ(LinesOf(host, {"RelateData."}),
                  "RelateData.GetData cvoutype\nRelateData.GetData cvoucode\nRelateData.GetData cbustype\n"
                  "RelateData.GetData ipzid\nRelateData.GetData autoID\n");
    }
}

TEST(ACreditAdjustment, IsShownInTheListOfThePortal)
{
    RecordingHost host;
    Execute(host, "OutDetailInfo", Row("66"));
    EXPECT_EQ(SuiteLines(host),
              "new Corvane.clsUniVch\n"
              "Corvane.clsUniVch.Init(connection #1, '', Login)\n"
              "new VosPortalProxy.Business\n" +
                  std::string(kCommand));
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
}

TEST(ACreditAdjustment, GoesToThePortalThatTheHostGave)
{
    RecordingHost host;
    const auto events = std::make_shared<EventLog>();
    ModPub().gobjBusiness =
        std::make_shared<RecordingObject>(events, "VosPortalProxy.Business", CallActions{});
    Execute(host, "OutDetailInfo", Row("66"));
    EXPECT_EQ(LinesOf(host, {"new VosPortal"}), "");
    EXPECT_EQ(events->Text(), kCommand);
}

TEST(ACreditAdjustment, IsNotShownWhereThereIsNoPortal)
{
    RecordingHost host;
    host.Answers().missingObjects = {"VosPortalProxy.Business"};
    EXPECT_NO_THROW(Execute(host, "OutDetailInfo", Row("66")));
    EXPECT_EQ(LinesOf(host, {"VosPortal", "#1.Close"}), "#1.Close\n");
}

TEST(AVoucherOfTheDetailLedger, IsLookedForInBothLedgers)
{
    const struct {
        bool inLedger, inTransit;
        const char* year;
    } cases[] = {{true, true, "2007"}, {true, false, "2007"}, {false, true, "2008"}, {false, false, "0"}};
    for (const auto& c : cases)
        for (const char* action : {"OutDetailPZ", "outdetailpz"}) {
            RecordingHost host;
            if (c.inLedger)
                Answer(host, kYear, 2007);
            if (c.inTransit)
                Answer(host, kTransitYear, 2008);
            Execute(host, action, Row("05"));
            EXPECT_EQ(LinesOf(host, {"RelateData."}), "RelateData.GetData cPzID\n");
            EXPECT_EQ(VoucherQueries(host), std::string("#2 ") + kYear + "\n" +
                                                (c.inLedger ? "" : std::string("#2 ") + kTransitYear + "\n"));
            EXPECT_EQ(LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
                      std::string("Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing,"
                                  " '存货核算', 'IA01', ") +
                          c.year + ")\n");
        }
}

TEST(AVoucherOfTheDetailLedger, OfPurchasesIsKnownByItsFirstLetters)
{
    RecordingHost host;
    Execute(host, "OutDetailPZ", {{"cPzID", "pu01"}});
    EXPECT_EQ(LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
              "Brannic.clsPZ.StartUpPz('PU', 'PU0101', 3, 'CN', 'PU', nothing, 'PU', 'pu01', 0)\n");
}

// Only the difference voucher makes a portal of its own.
TEST(AVoucherOfTheDetailLedger, HasThePortalThatTheHostGaveAndNoOther)
{
    RecordingHost host;
    Execute(host, "OutDetailPZ", Row("05"));
    EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}), "");
    Execute(host, "", Row("05"));
    EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}),
              "new VosPortalProxy.Business\nTessel.clsPub.g_business = VosPortalProxy.Business\n");
    Execute(host, "OutDetailPZ", Row("05"));
    EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}),
              "new VosPortalProxy.Business\nTessel.clsPub.g_business = VosPortalProxy.Business\n"
              "Tessel.clsPub.g_business = VosPortalProxy.Business\n");
}

TEST(ADifferenceVoucherOfTheDetailLedger, IsOpenedByAnyOtherAction)
{
    for (const char* action : {"", "DifPZ", "OutDetail", "OutDetailPZ "}) {
        RecordingHost host;
        Answer(host, kDifYear, 2007);
        Answer(host, kSign, "成本管理");
        Execute(host, action, Row("05"));
        EXPECT_EQ(LinesOf(host, {"RelateData."}),
                  "RelateData.GetData cdifpzid\nRelateData.GetData cbustype\n");
        EXPECT_EQ(VoucherQueries(host), std::string("#2 ") + kDifYear + "\n#2 " + kSign + "\n");
        EXPECT_EQ(
            LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
            "Brannic.clsPZ.StartUpPz('CA', 'CA0603', 3, 'CN', 'CA', nothing, '成本管理', 'CA02', 2007)\n");
    }
}

TEST(ADifferenceVoucherOfTheDetailLedger, HasTheYearOfItsLineInTransitToo)
{
    RecordingHost host;
    Answer(host, kDifTransitYear, 2008);
    Execute(host, "", Row("05", "差异调整"));
    EXPECT_EQ(VoucherQueries(host),
              std::string("#2 ") + kDifYear + "\n#2 " + kDifTransitYear + "\n#2 " + kSign + "\n");
    EXPECT_EQ(LinesOf(host, {"Brannic.clsPZ.StartUpPz"}),
              "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, '存货核算', 'CA02', 2008)\n");
}

TEST(ADifferenceVoucherOfTheDetailLedger, ThatIsMissingIsToldAndLeavesTheConnectionOpen)
{
    for (const char* action : {"DifPZ", "OutDetailPZ"}) {
        RecordingHost host;
        EXPECT_NO_THROW(Execute(host, action, {{"cbustype", "差异调整"}, {"cdifpzid", ""}, {"cPzID", ""}}));
        EXPECT_EQ(LinesOf(host, {"ResourceObject."}),
                  "ResourceObject.GetResString Orvo.IA.CHHSSQL.02787\n"
                  "ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.02787>, 48\n");
        EXPECT_EQ(SuiteLines(host) + LinesOf(host, {"#1.Close"}), "");
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
    }
}

// ---- failures

TEST(ADrillDownOfTheDetailLedger, PassesEachFailingStepOver)
{
    const std::string run = "VosPortalProxy.Business.RunCommand", close = "#1.Close";
    ExpectEachFailureIsPassedOver(
        [](RecordingHost& host) { Execute(host, "OutDetailInfo", Row("66")); }, {run, close},
        {
            {"new Connection", {close}},
            {"#1.Open ", {close}},
            {"e.Action", {run}},  // without an action the difference voucher is opened
            {"e.RelateData", {run}},
            {"RelateData.GetData cvoutype", {run}},
            {"new VosPortalProxy", {run}},
        });
}

}  // namespace kavelin::test
