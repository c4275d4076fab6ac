// What all openings do, in order, and how a year leads the months behind it.
#include "filter/AccountMonths.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Text.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kavelin::test {

namespace {

// Rows of the open months, as the account's driver hands them over.
void SetOpenMonths(RecordingHost& host)
{
    host.Script().rows[SelectOpenMonths("001")] = {{"iyear", "iid"}, {{2007, 12}, {2008, 1}, {2008, 2}}};
}

}  // namespace

TEST(ARestoredYear, LeadsOnlyTheMonthsThatFollowIt)
{
    const struct {
        std::string_view identity;
        const char* year;
        const char* month;
    } cases[] = {
        {kEstimate, "ia_subsidiary.iyear", "ia_subsidiary.iMonth"},
        {kDetailLedger, "IA_EnSubsidiary.iYear", "IA_EnSubsidiary.iMonth"},
        {kAbc, "iYear", "iPeriod"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().year = "2009";
        host.Answers().yearMonths = {{"2008", {4, 9}}, {"2009", {1, 5}}};
        Dialog led(host, c.identity, {{c.year, "2008"}, {c.month}});
        led.Open();
        EXPECT_EQ(led.Filter().ListSource(c.month), "4月,5月,6月,7月,8月,9月,") << c.identity;
        EXPECT_EQ(led.Filter().From(c.month), Value("7月")) << c.identity << ": the login's month";

        Dialog before(host, c.identity, {{c.month}, {c.year, "2008"}});
        before.Open();
        EXPECT_EQ(before.Filter().ListSource(c.month), "1月,2月,3月,4月,5月,") << c.identity;
        EXPECT_EQ(before.Filter().From(c.month), Value("5月")) << c.identity << ": the last of 2009";
    }
}

TEST(AMonthWithoutItsYear, FindsTheMonthsOfTheLoginsYearAllTheSame)
{
    RecordingHost host;
    Dialog dialog(host, kEstimate, {{"ia_subsidiary.iMonth"}});
    dialog.Open();
    EXPECT_EQ(dialog.Filter().From("ia_subsidiary.iMonth"), Value("7月"));
}

TEST(Openings, DoAllTheyDoInOrder)
{
    const struct {
        const char* name;
        std::string_view identity;
        std::vector<FakeField> fields;
    } cases[] = {
        {"journal",
         kJournal,
         {{"dVouDate"},
          {"iMonth"},
          {"vouEstate"},
          {"cDepCode"},
          {"cWhCode"},
          {"NoSub.cBusType"},
          {"cVouType"}}},
        {"price-analysis", kPriceAnalysis, {{"avgPrice"}, {"cVouType"}}},
        {"standard-cost", kStandardCost, {{"cWhCode", "01"}, {"cDepCode"}, {"cBusType"}, {"cVouType"}}},
        {"stock-summary",
         kStockSummary,
         {{"cwhcode"},
          {"vouEstate"},
          {"cItemCode"},
          {"EndNum"},
          {"EndPrice"},
          {"incompareout"},
          {"busEstate"},
          {"rdGrade"}}},
        {"goods-summary",
         kGoodsSummary,
         {{"Ia_Ensubsidiary.cBustype"},
          {"Ia_Ensubsidiary.cDepCode"},
          {"iYear"},
          {"DispatchList.cDLCode"},
          {"rdrecord32.cCode"},
          {"IsMerge"}}},
        {"cost-item", kCostItem, {{"IA_EnSubsidiary.iYear"}}},
        {"detail-ledger", kDetailLedger, {{"IA_EnSubsidiary.iYear"}, {"IA_EnSubsidiary.iMonth"}}},
        {"estimate",
         kEstimate,
         {{"ia_subsidiary.iyear", "2009"},
          {"ia_subsidiary.iMonth"},
          {"ia_subsidiary.cWhCode"},
          {"ia_subsidiary.cDepCode"},
          {"ia_subsidiary.cBusType"},
          {"ia_subsidiary.cVouType"},
          {"bDispCheckFreeOnly"},
          {"bDisZero"}}},
        {"turnover", kTurnover, {{"cWhCode"}, {"cDepCode"}, {"iYear"}, {"bGroupDep"}}},
        {"capital-share", kCapitalShare, {{"cWhCode"}, {"iYear"}}},
        {"abc",
         kAbc,
         {{"iYear"}, {"iPeriod"}, {"cWhCode"}, {"cDepCode"}, {"IncluA"}, {"IncluB"}, {"IncluC"}}},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        SetOpenMonths(host);
        host.Answers().accountYears = {"2008", "2009"};
        Dialog dialog(host, c.identity, c.fields);
        dialog.Open();
        ExpectFile(
            ReplaceAll(host.Events().Text(), "\r\n", "⏎"),
            std::filesystem::path(KAVELIN_TESTS_DIR) / "filter/openings" / (std::string(c.name) + ".txt"));
    }
}

}  // namespace kavelin::test
