// What a change of one field does to others.
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// What the change of the field does in an open dialog.
Changes After(RecordingHost& host, std::string_view identity, const std::vector<FakeField>& fields,
              const std::string& key)
{
    Dialog dialog(host, identity, fields);
    dialog.Open();
    // Openings fill fields: the test's own values count.
    for (const FakeField& field : fields)
        dialog.Type(field.name, field.from, field.to);
    dialog.Change(key);
    return dialog.Made();
}

}  // namespace

TEST(OnChangeJournal, ReadsTheValueAndDoesNothing)
{
    RecordingHost host;
    Dialog dialog(host, kJournal, {{"cWhCode", "01"}});
    dialog.Change("cWhCode");
    EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\nRawFilter.GetFieldValue cWhCode\n");
}

TEST(DialogsWithoutARule, ReadNothing)
{
    for (const std::string_view identity : {kPriceAnalysis, kTurnover, kStockSummary, kCapitalShare}) {
        RecordingHost host;
        Dialog dialog(host, identity, {{"iyear", "2008"}, {"cWhCode", "01"}});
        dialog.Change("iyear");
        EXPECT_EQ(host.Events().Text(), "RawFilter.FilterID\n") << identity;
    }
}

TEST(OnChangeStandardCost, NarrowsTheLookupBesideAndLetsItGo)
{
    const struct {
        const char* key;
        const char* set;
        const char* cleared;
    } cases[] = {
        {"cInvCCode", "SetFieldRefCondition cInvCode, ,  #FN[cInvCCode]='01'",
         "SetFieldRefCondition cInvCode, , "},
        {"cCCCode", "SetFieldRefCondition cCusCode, ,  #FN[cCCCode]='01'",
         "SetFieldRefCondition cCusCode, , "},
        {"cVCCode", "SetFieldRefCondition cVenCode, ,  #FN[cVCCode]='01'",
         "SetFieldRefCondition cVenCode, , "},
        {"cWhCode",
         "SetFieldRefCondition cDepCode, , fld1 in (select cDepCode    from Warehouse  where  cWhCode='01')",
         "SetFieldRefCondition cDepCode, , "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        EXPECT_EQ(After(host, kStandardCost, {{c.key, "01"}}, c.key), (Changes{c.set}));
        EXPECT_EQ(After(host, kStandardCost, {{c.key, ""}}, c.key), (Changes{c.cleared}));
        EXPECT_EQ(After(host, kStandardCost, {{c.key, Value::Null()}}, c.key), (Changes{c.cleared}));
    }
}

TEST(OnChangeStandardCost, ComparesKeysExactly)
{
    for (const char* key : {"cinvccode", "cwhcode", "cDepCode", "dKeepDate"}) {
        RecordingHost host;
        EXPECT_EQ(After(host, kStandardCost, {{key, "01"}}, key), Changes{}) << key;
    }
}

TEST(OnChangeEstimate, NarrowsByAPrefixAlsoByAnEmptyOne)
{
    RecordingHost host;
    for (const char* key : {"Inventory.cInvCCode", "inventory.cinvccode"}) {
        EXPECT_EQ(After(host, kEstimate, {{key, "01"}}, key),
                  (Changes{"SetFieldRefCondition ia_subsidiary.cInvCode, , #FN[cinvCCode] like N'01%'"}));
        EXPECT_EQ(After(host, kEstimate, {{key, ""}}, key),
                  (Changes{"SetFieldRefCondition ia_subsidiary.cInvCode, , #FN[cinvCCode] like N'%'"}));
    }
    EXPECT_EQ(After(host, kEstimate, {{"Vendor.cVCCode", "02"}}, "Vendor.cVCCode"),
              (Changes{"SetFieldRefCondition ia_subsidiary.cVenCode, , #FN[cVCCode] like N'02%'"}));
    EXPECT_EQ(After(host, kEstimate, {{"Vendor.cVCCode", ""}}, "vendor.cvccode"),
              (Changes{"SetFieldRefCondition ia_subsidiary.cVenCode, , #FN[cVCCode] like N'%'"}));
    EXPECT_EQ(After(host, kEstimate, {{"ia_subsidiary.cWhCode", "01"}}, "ia_subsidiary.cWhCode"), Changes{});
}

TEST(AChangeOfYear, BringsItsMonthsAndResetsTheMonth)
{
    const struct {
        int month;         // of the login
        const char* left;  // in the month's field
    } cases[] = {{7, "7月"}, {6, "6月"}, {9, "9月"}, {5, "6月"}, {10, "6月"}};
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().month = c.month;
        host.Answers().yearMonths["2007"] = {6, 9};
        const std::string list = "6月,7月,8月,9月,";
        const std::string value = c.left;

        EXPECT_EQ(After(host, kEstimate, {{"ia_subsidiary.iyear", "2007"}, {"ia_subsidiary.iMonth", "8月"}},
                        "IA_Subsidiary.iYear"),
                  (Changes{"ia_subsidiary.iMonth.ListSource = " + list,
                           "RefreshFieldList ia_subsidiary.iMonth, IA.Month, " + list,
                           "SetFieldValue ia_subsidiary.iMonth, " + value}))
            << c.month;
        EXPECT_EQ(After(host, kDetailLedger,
                        {{"IA_EnSubsidiary.iMonth", "8月", "9月"}, {"IA_EnSubsidiary.iYear", "2007"}},
                        "IA_EnSubsidiary.iYear"),
                  (Changes{"IA_EnSubsidiary.iMonth.ListSource = " + list,
                           "RefreshFieldList ia_ensubsidiary.iMonth, IA.Month, " + list,
                           "SetFieldValue ia_ensubsidiary.iMonth, " + value,
                           "SetFieldValue ia_ensubsidiary.iMonth__2, " + value}))
            << c.month;
        host.Answers().valueStyle = "按部门核算";
        EXPECT_EQ(After(host, kAbc, {{"iYear", "2007"}, {"iPeriod", "8月"}}, "IYEAR"),
                  (Changes{"iPeriod.ListSource = " + list, "RefreshFieldList iPeriod, IA.Oth, " + list,
                           "SetFieldValue iPeriod, " + value, "SetFieldValue cDepCode, ",
                           "SetFieldLocked cDepCode, False", "SetFieldValue cWhCode, ",
                           "SetFieldLocked cWhCode, True"}))
            << c.month;
    }
}

TEST(AChangeOfYear, ReachesBothBoxesOfTheDetailLedgersMonth)
{
    RecordingHost host;
    Dialog dialog(host, kDetailLedger,
                  {{.name = "IA_EnSubsidiary.iYear", .from = "2009"},
                   {.name = "IA_EnSubsidiary.iMonth", .from = "1月", .to = "2月", .rangeInput = true}});
    dialog.Open();
    dialog.Change("IA_EnSubsidiary.iYear");
    EXPECT_EQ(dialog.Filter().From("IA_EnSubsidiary.iMonth"), Value("7月"));
    EXPECT_EQ(dialog.Filter().To("IA_EnSubsidiary.iMonth"), Value("7月"));
}

TEST(AChangeOfYear, AsksForTheYearAsAWholeNumber)
{
    RecordingHost host;
    Dialog dialog(host, kEstimate, {{"ia_subsidiary.iyear", " 2007 "}, {"ia_subsidiary.iMonth"}});
    dialog.Open();
    dialog.Change("ia_subsidiary.iyear");
    EXPECT_NE(host.Events().Text().find("LedgerPub.GetYearMonthRange 2007\n"), std::string::npos);

    const std::pair<std::string_view, const char*> dialogs[] = {
        {kEstimate, "ia_subsidiary.iyear"}, {kDetailLedger, "IA_EnSubsidiary.iYear"}, {kAbc, "iYear"}};
    for (const auto& [identity, key] : dialogs) {
        for (const Value& year : {Value("abc"), Value(""), Value("2008年")}) {
            Dialog other(host, identity,
                         {{key}, {"ia_subsidiary.iMonth"}, {"IA_EnSubsidiary.iMonth"}, {"iPeriod"}});
            other.Open();
            other.Type(key, year);
            EXPECT_THROW(other.Change(key), ConversionError) << key << " " << ToText(year);
            EXPECT_EQ(other.Made(), Changes{}) << key;
        }
    }
}

TEST(AChangeOfAnotherField, BringsNoMonths)
{
    RecordingHost host;
    EXPECT_EQ(After(host, kAbc, {{"iYear", "2007"}, {"cWhCode", "01"}}, "cWhCode"), Changes{});
    EXPECT_EQ(After(host, kAbc, {{"iYear", "2007"}, {"iPeriod", "1月"}}, "iPeriod"), Changes{});
    EXPECT_EQ(After(host, kDetailLedger, {{"IA_EnSubsidiary.iMonth", "1月"}}, "IA_EnSubsidiary.iMonth"),
              Changes{});
    EXPECT_EQ(After(host, kDetailLedger, {{"iYear", "2007"}}, "iYear"), Changes{});
    EXPECT_EQ(After(host, kEstimate, {{"iYear", "2007"}}, "iYear"), Changes{});
}

TEST(OnChangeABC, AsksForTheCostingBasisOfTheNewYear)
{
    RecordingHost host;
    Dialog dialog(host, kAbc, {{"iYear", "2008"}, {"iPeriod"}, {"cDepCode"}, {"cWhCode"}});
    dialog.Open();
    dialog.Type("iYear", "2006");
    dialog.Type("cDepCode", "D1");
    dialog.Type("cWhCode", "W1");
    dialog.Change("iYear");
    EXPECT_NE(host.Events().Text().find("LedgerPub.GetAccountYearParams 2006\n"), std::string::npos);
    EXPECT_EQ(dialog.Filter().From("cDepCode"), Value(""));
    EXPECT_EQ(dialog.Filter().From("cWhCode"), Value(""));
}

TEST(ALockPair, LocksTheOtherFieldWhileOneIsFilledWhateverChanged)
{
    const struct {
        std::string_view identity;
        const char* first;
        const char* second;
    } dialogs[] = {{kGoodsSummary, "DispatchList.cDLCode", "rdrecord32.cCode"},
                   {kCostItem, "cDLCode", "cCode"}};
    const struct {
        Value from, to;
        const char* locked;
    } values[] = {{"1", "9", "True"},
                  {"1", "", "True"},
                  {"", "9", "True"},
                  {"", "", "False"},
                  {Value::Null(), Value(), "False"}};
    for (const auto& d : dialogs) {
        for (const auto& v : values) {
            for (const char* changed : {d.first, d.second, "IsMerge"}) {
                RecordingHost host;
                const std::string first = d.first, second = d.second;
                EXPECT_EQ(After(host, d.identity, {{first, v.from, v.to}, {"IsMerge"}, {second}}, changed),
                          (Changes{"SetFieldLocked " + second + ", " + v.locked,
                                   "SetFieldLocked " + first + ", False"}));
                EXPECT_EQ(After(host, d.identity, {{second, v.from, v.to}, {first}, {"IsMerge"}}, changed),
                          (Changes{"SetFieldLocked " + first + ", " + v.locked,
                                   "SetFieldLocked " + second + ", False"}))
                    << "in the order of the template";
            }
        }
        RecordingHost host;
        EXPECT_EQ(After(host, d.identity, {{"IsMerge"}, {"cdlcode", "1"}, {"ccode", "1"}}, "cdlcode"),
                  Changes{});
    }
}

TEST(OnChangeVoucherPosting, SetsTheOtherFlagToNoAndLocksItForGood)
{
    RecordingHost host;
    const Changes fromOutJust = {"SetFieldValue bSaleCost, 否", "SetFieldLocked bSaleCost, True"};
    const Changes fromSaleCost = {"SetFieldValue bOutJust, 否", "SetFieldLocked bOutJust, True"};
    EXPECT_EQ(After(host, kVoucherPosting, {{"bOutJust", "是"}, {"bSaleCost", "否"}}, "bOutJust"),
              fromOutJust);
    EXPECT_EQ(After(host, kVoucherPosting, {{"bOutJust", "否"}, {"bSaleCost", "是"}}, "x"), fromSaleCost);
    EXPECT_EQ(After(host, kVoucherPosting, {{"bOutJust", "否"}, {"bSaleCost", ""}}, "bOutJust"), Changes{})
        << "nothing unlocks";
    EXPECT_EQ(After(host, kVoucherPosting, {{"bOutJust", "是"}, {"bSaleCost", "是"}}, "bSaleCost"),
              fromOutJust)
        << "the first in the template wins, as the second is no by then";
    EXPECT_EQ(After(host, kVoucherPosting, {{"boutjust", "是"}, {"bsalecost", "是"}}, "boutjust"), Changes{});
}

}  // namespace kavelin::test
