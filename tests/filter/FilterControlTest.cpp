// The six callbacks: what they do for every dialog, the views, and what an error leaves behind.
#include "filter/AccountMonths.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kConnecting =
    "new Connection #1\n"
    "#1.CursorLocation = 3\n"
    "RawFilter.Login\n"
    "Login.VosDbName\n"
    "#1.ConnectionString = 'account database'\n"
    "#1.ConnectionTimeout = 0\n"
    "#1.CommandTimeout = 0\n"
    "#1.Open user='' password='' options=-1\n"
    "new ResourceObject\n"
    "ResourceObject.SetLogin\n"
    "Login.Year\n"
    "Login.Month\n"
    "Login.Year\n"
    "RawFilter.FilterID\n";

// A field of every name that some dialog works on.
const std::vector<FakeField> kFields = {{"iMonth"},
                                        {"cWhCode", "01"},
                                        {"ia_subsidiary.imonth", ""},
                                        {"rdGrade"},
                                        {"DispatchList.cDLCode", "1"},
                                        {"bOutJust", "是"}};

}  // namespace

TEST(AnUnknownDialog, ConnectsAndIsLeftAlone)
{
    for (const char* identity : {"ia[__]流水账", "IA[__]区域", ""}) {
        RecordingHost host;
        Dialog dialog(host, identity, kFields);
        dialog.Open();
        EXPECT_EQ(host.Events().Text(), kConnecting) << identity;
        dialog.Change("iMonth");
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n");
        EXPECT_FALSE(dialog.Click());
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n");
        EXPECT_EQ(dialog.FirstView(), "untouched");
        EXPECT_EQ(dialog.ViewAfter("rdGrade"), "untouched");
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n");
    }
}

TEST(TheDialogOfVoucherPosting, OpensAndClosesWithoutEffect)
{
    RecordingHost host;
    Dialog dialog(host, kVoucherPosting, kFields);
    dialog.Open();
    EXPECT_EQ(host.Events().Text(), kConnecting);
    EXPECT_FALSE(dialog.Click());
    EXPECT_EQ(dialog.FirstView(), "untouched");
}

TEST(FilterInit, KeepsLoginConnectionAndPeriod)
{
    const struct {
        int month;
        const char* period;
    } cases[] = {{7, "2008.07"}, {12, "2008.12"}};
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().month = c.month;
        Dialog dialog(host, kCostItem, {});
        dialog.Open();
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
        EXPECT_EQ(ModPub().gobjLogin, dialog.Filter().login);
        EXPECT_EQ(ModPub().gstrCurrentPeriod, c.period);
    }
}

TEST(FilterInit, GivesNothing)
{
    RecordingHost host;
    Dialog dialog(host, "unknown", {});
    EXPECT_TRUE(clsFilterControl().CallBack_FilterInit(dialog.Filter()).IsEmpty());
    bool cancel = true;
    EXPECT_TRUE(clsFilterControl().CallBack_FilterClick(dialog.Filter(), cancel).IsEmpty());
    EXPECT_FALSE(cancel) << "without a check the dialog closes";
}

TEST(ASecondFilterInit, MakesANewConnectionAndLeavesTheOldOneOpen)
{
    RecordingHost host;
    Dialog dialog(host, kCostItem, {});
    dialog.Open();
    const auto first = ModPub().gcnnAccount;
    dialog.Open();
    EXPECT_NE(ModPub().gcnnAccount, first);
    EXPECT_EQ(StateOf(first), "open");
    EXPECT_EQ(host.Events().Text().find("Close"), std::string::npos);
}

TEST(FilterClick, LetsDialogsWithoutACheckClose)
{
    for (const std::string_view identity : {kCapitalShare, kStandardCost}) {
        RecordingHost host;
        Dialog dialog(host, identity, kFields);
        EXPECT_FALSE(dialog.Click()) << identity;
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n") << identity;
    }
}

TEST(FilterClick, HandsTheViewOverWhateverTheCheckSays)
{
    RecordingHost host;
    Dialog dialog(host, kStockSummary, {{"vouEstate", ""}, {"rdGrade", "1"}});
    host.OpenAccount();
    EXPECT_EQ(dialog.FirstView(), "cross");
    EXPECT_TRUE(dialog.Click());
    EXPECT_EQ(dialog.Made(),
              (Changes{"ShowMessage <Orvo.IA.Orvo70.0414>, 64", "ContextArgs.Add cross, ViewClass"}));
    dialog.Type("vouEstate", "已记账单据");
    dialog.Type("rdGrade", "0");
    EXPECT_EQ(dialog.ViewAfter("rdGrade"), "ordin");
    EXPECT_FALSE(dialog.Click());
    EXPECT_EQ(dialog.Made(), (Changes{"ContextArgs.Add ordin, ViewClass"}));
}

TEST(FilterClick, HandsNoViewOverInOtherDialogs)
{
    for (const std::string_view identity : {kJournal, kAbc, kStandardCost, kEstimate}) {
        RecordingHost host;
        Dialog dialog(host, identity, {{"rdGrade", "1"}});
        EXPECT_FALSE(dialog.Click());
        EXPECT_EQ(dialog.Made(), Changes{}) << identity;
    }
}

TEST(TheSummary, ShowsTheOrdinaryViewForZeroAndTheCrossViewForAnyOtherNumber)
{
    const struct {
        Value selected;
        const char* view;
    } cases[] = {{"0", "ordin"},  {"2", "cross"},   {"", "ordin"},       {"abc", "ordin"},  {" 0 ", "ordin"},
                 {"-1", "cross"}, {"0.5", "cross"}, {Value(3), "cross"}, {Value(), "ordin"}};
    for (const auto& c : cases) {
        RecordingHost host;
        Dialog dialog(host, kStockSummary, {{"cWhCode", "5"}, {"rdGrade", c.selected}});
        EXPECT_EQ(dialog.FirstView(), c.view) << ToText(c.selected);
        EXPECT_EQ(dialog.ViewAfter("RDGRADE"), c.view) << ToText(c.selected);
        EXPECT_EQ(dialog.Made(), Changes{});
    }
}

TEST(TheSummary, KeepsItsViewAtAChangeOfAnotherField)
{
    RecordingHost host;
    Dialog dialog(host, kStockSummary, {{"cWhCode", "0"}, {"rdGrade", "2"}});
    host.OpenAccount();
    EXPECT_EQ(dialog.FirstView(), "cross");
    EXPECT_EQ(dialog.ViewAfter("cWhCode"), "untouched");
    dialog.Click();
    EXPECT_EQ(dialog.Made(), (Changes{"ContextArgs.Add cross, ViewClass"}));
}

TEST(TheStandardCostJournal, ShowsIncomeByTheMethodOfTheCostModule)
{
    const struct {
        const char* method;
        const char* view;
    } cases[] = {{"0", "Income_Standard_Cost_Pro"},
                 {"1", "Income_Standard_Cost"},
                 {"00", "Income_Standard_Cost"},
                 {"", "Income_Standard_Cost"}};
    for (const auto& c : cases) {
        RecordingHost host;
        host.SetParameter("CA", "iCyFtMethod", c.method);
        Dialog dialog(host, kStandardCost, {});
        host.OpenAccount();
        EXPECT_EQ(dialog.FirstView(), c.view) << c.method;
        EXPECT_EQ(dialog.ViewAfter("whatever"), c.view) << c.method;
    }
    RecordingHost without;
    Dialog dialog(without, kStandardCost, {});
    without.OpenAccount();
    EXPECT_EQ(dialog.FirstView(), "Income_Standard_Cost") << "an account without the parameter";
}

TEST(OtherReports, HaveNoViews)
{
    for (const std::string_view identity :
         {kJournal, kPriceAnalysis, kTurnover, kAbc, kGoodsSummary, kEstimate, kCapitalShare, kDetailLedger,
          kCostItem, kVoucherPosting}) {
        RecordingHost host;
        Dialog dialog(host, identity, {{"rdGrade", "2"}});
        EXPECT_EQ(dialog.FirstView(), "untouched") << identity;
        EXPECT_EQ(dialog.ViewAfter("rdGrade"), "untouched") << identity;
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n") << identity;
    }
}

TEST(AFailedConnection, ReachesTheHostAndStopsTheOpening)
{
    RecordingHost host;
    host.Script().failAtOpen = 1;
    Dialog dialog(host, kJournal, {{"iMonth"}});
    EXPECT_THROW(dialog.Open(), ConnectionError);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=closed gcnnSystem=nothing gobjLogin=nothing");
    EXPECT_EQ(host.Events().Lines().back(), "#1.Open user='' password='' options=-1");
}

TEST(AFailedStatement, ReachesTheHostWhicheverItIsAndLeavesWhatWasDone)
{
    const std::pair<std::string_view, std::vector<FakeField>> dialogs[] = {
        {kJournal, {{"vouEstate"}, {"iMonth"}, {"cDepCode"}, {"cWhCode"}, {"cVouType"}}},
        {kStandardCost, {{"cWhCode", "01"}, {"cDepCode"}, {"cVouType"}}},
        {kStockSummary, {{"vouEstate"}, {"cwhcode"}}},
        {kGoodsSummary, {{"IsMerge"}, {"Ia_Ensubsidiary.cBustype"}}},
        {kEstimate,
         {{"bDisZero"}, {"ia_subsidiary.cWhCode"}, {"ia_subsidiary.cDepCode"}, {"ia_subsidiary.cBusType"}}},
        {kTurnover, {{"cWhCode"}, {"cDepCode"}}},
        {kAbc, {{"IncluA"}, {"cWhCode"}, {"cDepCode"}}},
    };
    for (const auto& [identity, fields] : dialogs) {
        const auto open = [&, id = identity, &list = fields](RecordingHost& host) {
            host.Script().rows[SelectOpenMonths("001")] = {{"iyear", "iid"}, {{2008, 1}}};
            Dialog dialog(host, id, list);
            dialog.Open();
            return dialog.Made();
        };
        RecordingHost whole;
        const Changes all = open(whole);
        const std::size_t statements = whole.Sent().size();
        ASSERT_GT(statements, 0U) << identity;
        for (std::size_t k = 1; k <= statements; ++k) {
            RecordingHost host;
            host.Script().failAtStatement = k;
            EXPECT_THROW(open(host), DatabaseError) << identity << " " << k;
            EXPECT_EQ(host.Sent().size(), k) << identity;
            EXPECT_EQ(StateOf(ModPub().gcnnAccount), "open");
            EXPECT_EQ(host.Events().Text().find("ShowMessage"), std::string::npos) << "nothing is shown";
        }
    }
}

TEST(AFailureOfAHostsObject, ReachesTheHostWhereverItHappens)
{
    RecordingHost whole;
    const std::vector<FakeField> fields = {{"iYear"}, {"iPeriod"}, {"cWhCode"}, {"IncluA"}};
    Dialog(whole, kAbc, fields).Open();
    const std::size_t events = whole.Events().Lines().size();
    for (std::size_t k = 1; k <= events; ++k) {
        RecordingHost host;
        Dialog dialog(host, kAbc, fields);
        host.Events().FailAt(k);
        EXPECT_THROW(clsFilterControl().CallBack_FilterInit(dialog.Filter()), PlannedFailure) << k;
        EXPECT_EQ(host.Events().Lines().size(), k);
    }
}

TEST(TheOtherCallbacks, NeedTheConnectionOfFilterInit)
{
    RecordingHost host;
    EXPECT_THROW(clsFilterControl().InitAccMonth(), Error);
    EXPECT_THROW(Dialog(host, kEstimate, {{"ia_subsidiary.iyear", "2008"}}).Change("ia_subsidiary.iyear"),
                 Error);
    EXPECT_THROW(Dialog(host, kStandardCost, {}).FirstView(), Error);
    EXPECT_THROW(Dialog(host, kStockSummary, {{"cinvcode", "A"}}).Click(), Error);
    EXPECT_THROW(Dialog(host, kGoodsSummary, {{"Inventory.cInvStd", "A"}}).Click(), Error);
}

TEST(ADialogThatStaysOpenDuringAReport, FailsWithAnErrorOnceTheReportHasForgottenTheLogin)
{
    RecordingHost host;
    Dialog dialog(host, kEstimate, {{"ia_subsidiary.iyear", "2008"}, {"ia_subsidiary.iMonth"}});
    dialog.Open();
    ModPub().gobjLogin.reset();
    EXPECT_THROW(dialog.Change("ia_subsidiary.iyear"), Error);
}

}  // namespace kavelin::test
