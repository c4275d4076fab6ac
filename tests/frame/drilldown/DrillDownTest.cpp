// What a report's rules change on the way from a row to what stands behind it. The rules of the reports
// themselves are tested with the reports.
#include "frame/drilldown/DrillDown.h"
#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr DrillAction kActions[] = {
    {"Open", DrillTarget::Document},
    {"Voucher", DrillTarget::Voucher},
};
constexpr ViewerType kViewerTypes[] = {{"01", "Direct", "25"}};
constexpr std::string_view kOwnTypes[] = {"66", "21", "x1"};
constexpr DocumentKind kOwnKinds[] = {
    {kOwnTypes, ViewerCall::RunCommand, &DocumentRow::autoId, {"Show:", "!"}},
};

DrillDownRules Rules()
{
    return {
        .actions = kActions,
        .otherwise = DrillTarget::DifferenceVoucher,
        .document = {"type", "code", "business", "id", "line"},
        .viewerTypes = kViewerTypes,
        .voucherCell = "voucher",
        .voucherYears = LedgerVoucherYears(),
        .differenceCell = "difference",
        .differenceBusTypeCell = "business",
        .differenceYears = LedgerVoucherYears(),
    };
}

void Open(RecordingHost& host, const DrillDownRules& rules, const std::string& action,
          const std::string& type = "05", const std::string& business = "Ordinary")
{
    ModPub().gstrLanguage = "zh-CN";
    const auto argument = host.EarlyRowArgument(action, {{"type", type},
                                                         {"code", "C"},
                                                         {"business", business},
                                                         {"id", "70"},
                                                         {"line", "71"},
                                                         {"voucher", "V"},
                                                         {"difference", "D"}});
    EarlyRowArguments row(*argument);
    DrillDown(rules, row);
}

// "Document", "Voucher" or "Difference".
std::string Reached(const DrillDownRules& rules, const std::string& action)
{
    RecordingHost host;
    Open(host, rules, action);
    if (!LinesOf(host, {"new Corvane"}).empty())
        return "Document";
    return LinesOf(host, {"RelateData.GetData voucher"}).empty() ? "Difference" : "Voucher";
}

std::string ShownAs(const DrillDownRules& rules, const std::string& type, const std::string& business)
{
    RecordingHost host;
    Open(host, rules, "Open", type, business);
    return LinesOf(host, {"Corvane.clsUniVch.Show", "VosPortalProxy.Business.Run"});
}

}  // namespace

TEST(DrillDownRules, CompareWithoutRegardToCaseUnlessTheySayOtherwise)
{
    DrillDownRules rules = Rules();
    for (const char* action : {"Open", "open", "OPEN"})
        EXPECT_EQ(Reached(rules, action), "Document") << action;
    EXPECT_EQ(Reached(rules, "voucher"), "Voucher");
    EXPECT_EQ(Reached(rules, "Other"), "Difference");
    EXPECT_EQ(ShownAs(rules, "01", "DIRECT"),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '25', '70', nothing, Login)\n");

    rules.exact = true;
    EXPECT_EQ(Reached(rules, "Open"), "Document");
    EXPECT_EQ(Reached(rules, "open"), "Difference");
    EXPECT_EQ(ShownAs(rules, "01", "Direct"),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '25', '70', nothing, Login)\n");
    EXPECT_EQ(ShownAs(rules, "01", "DIRECT"),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '01', '70', nothing, Login)\n");
}

TEST(DrillDownRules, FindTheirOwnKindsOfDocumentsBeforeTheOrdinaryOnes)
{
    DrillDownRules rules = Rules();
    rules.ownKinds = kOwnKinds;
    constexpr DrillTarget document[] = {DrillTarget::Document};
    rules.makesPortal = document;
    const std::string command = "VosPortalProxy.Business.RunCommand('Show:71!')\n";
    EXPECT_EQ(ShownAs(rules, "66", ""), command);
    EXPECT_EQ(ShownAs(rules, "21", ""), command) << "otherwise shown by its number";
    EXPECT_EQ(ShownAs(rules, "X1", ""), command);
    EXPECT_EQ(ShownAs(rules, "20", ""),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', '20', 'C', nothing, Login)\n");

    rules.exact = true;
    EXPECT_EQ(ShownAs(rules, "X1", ""),
              "Corvane.clsUniVch.ShowVoucher(connection #1, '', 'X1', '70', nothing, Login)\n");
}

TEST(DrillDownRules, MakeAPortalOnTheWaysTheyNameIfTheHostGaveNone)
{
    constexpr DrillTarget voucher[] = {DrillTarget::Voucher};
    DrillDownRules rules = Rules();
    rules.makesPortal = voucher;
    const std::string made =
        "new VosPortalProxy.Business\nTessel.clsPub.g_business = VosPortalProxy.Business\n";
    for (const auto& [action, lines] : {std::pair("Voucher", made), std::pair("Other", std::string())}) {
        RecordingHost host;
        Open(host, rules, action);
        EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}), lines) << action;
    }

    RecordingHost host;
    ModPub().gobjBusiness =
        std::make_shared<RecordingObject>(std::make_shared<EventLog>(), "the portal", CallActions{});
    Open(host, rules, "Voucher");
    EXPECT_EQ(LinesOf(host, {"new VosPortal", "Tessel.clsPub.g_business"}),
              "Tessel.clsPub.g_business = the portal\n");
}

}  // namespace kavelin::test
