// From a row of the price analysis to its document or its voucher.
#include "price/clsIaAnalysis.h"
#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

Cells Row(const std::string& vouType, const std::string& busType = "普通采购")
{
    return {{"CvouType", vouType}, {"cvoucode", "DJ-7"}, {"cbustype", busType},
            {"iPzid", "70"},       {"autoID", "71"},     {"cpzid", "IA0000000001"}};
}

void Execute(RecordingHost& host, const std::string& action, const Cells& cells)
{
    ModPub().gstrLanguage = "zh-CN";
    clsIaAnalysis().Execute(*host.EarlyRowArgument(action, cells));
}

std::string Shown(const std::string& vouType, const std::string& busType)
{
    RecordingHost host;
    Execute(host, "Vouch", Row(vouType, busType));
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    return LinesOf(host, {"Corvane.clsUniVch.Show"});
}

constexpr const char* kYear =
    "Select iYear From IA_SubSidiary Where cPzID = N'IA0000000001' and imonth <>0 order by iyear";
constexpr const char* kTransitYear =
    "Select iYear From IA_ENSubSidiary Where cPzID = N'IA0000000001' and imonth <>0 order by iyear";

}  // namespace

TEST(ADocumentOfThePriceAnalysis, IsShownByItsVoucherType)
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
        {"01", "普通采购", "ShowVoucher(connection #1, '', '01', '70', nothing, Login)"},
        {"01", "直运采购", "ShowVoucher(connection #1, '', '25', '70', nothing, Login)"},
        {"02", "直运采购", "ShowVoucher(connection #1, '', '02', '70', nothing, Login)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Shown(c.vouType, c.busType), std::string("Corvane.clsUniVch.") + c.call + "\n");
}

TEST(ADocumentOfThePriceAnalysis, HasTheCellsOfItsOwnColumns)
{
    RecordingHost host;
    Execute(host, "Vouch", Row("08"));
    EXPECT_EQ(LinesOf(host, {"RelateData."}),
              "RelateData.GetData CvouType\nRelateData.GetData cvoucode\nRelateData.GetData cbustype\n"
              "RelateData.GetData iPzid\nRelateData.GetData autoID\n");
}

TEST(ADocumentOfThePriceAnalysis, IsEmptyForASummaryRow)
{
    RecordingHost host;
    Execute(host, "Vouch",
            {{"CvouType", ""}, {"cvoucode", ""}, {"cbustype", ""}, {"iPzid", ""}, {"autoID", "9"}});
    EXPECT_EQ(LinesOf(host, {"Corvane.clsUniVch.Show"}),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '', '', nothing, Login)\n");
}

TEST(AVoucherOfThePriceAnalysis, IsOpenedByAnyActionThatIsNotExactlyVouch)
{
    for (const char* action : {"", "PZ", "ActWtInfo", "vouch", "VOUCH", "Vouch "}) {
        RecordingHost host;
        Answer(host, kYear, 2008);
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

TEST(AVoucherOfThePriceAnalysis, IsLookedForInBothLedgers)
{
    RecordingHost host;
    Execute(host, "", Row("08"));
    EXPECT_EQ(VoucherQueries(host), "#2 " + std::string(kYear) + "\n#2 " + kTransitYear + "\n");
}

TEST(AVoucherOfThePriceAnalysis, KeepsThePortalThatItMade)
{
    RecordingHost host;
    Execute(host, "Vouch", Row("08"));
    EXPECT_EQ(ModPub().gobjBusiness, nullptr) << "a document needs none";
    Execute(host, "", Row("08"));
    const auto made = ModPub().gobjBusiness;
    EXPECT_NE(made, nullptr);
    Execute(host, "", Row("08"));
    EXPECT_EQ(ModPub().gobjBusiness, made);
    EXPECT_EQ(LinesOf(host, {"new VosPortal"}), "new VosPortalProxy.Business\n");
}

TEST(AVoucherOfThePriceAnalysis, ThatIsMissingIsToldAndLeavesTheConnectionOpen)
{
    RecordingHost host;
    Execute(host, "", {{"cpzid", ""}});
    EXPECT_EQ(LinesOf(host, {"ResourceObject."}),
              "ResourceObject.GetResString Orvo.IA.CHHSSQL.02787\n"
              "ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.02787>, 48\n");
    EXPECT_EQ(SuiteLines(host) + LinesOf(host, {"#1.Close"}), "");
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

TEST(ARowOfThePriceAnalysis, IsOpenedWhateverStepFails)
{
    const std::string close = "#1.Close";
    for (const char* action : {"Vouch", ""})
        ExpectEachFailureIsPassedOver([&](RecordingHost& host) { Execute(host, action, Row("08")); }, {close},
                                      {{"new Connection", {close}},
                                       {"#1.Open ", {close}},
                                       {"e.RelateData", {*action ? "" : close}},
                                       {"RelateData.GetData cpzid", {close}}});
}

}  // namespace kavelin::test
