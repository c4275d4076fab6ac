// The filter of the estimate balance, by itself.
#include "summary/EstimateFilter.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kIndustrial = "工业";
constexpr const char* kCommercial = "商业";

EstimateConditions Translate(const std::vector<FakeField>& fields, const std::string& edition = kIndustrial)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetParameter("AA", "cSysVersion", edition);
    host.SetFilter(fields);
    EstimateConditions conditions;
    TranslateEstimateFilter(*host.Filter(), conditions);
    return conditions;
}

}  // namespace

TEST(TheEstimateFilter, TakesTheUnitBehindTheMonthAway)
{
    const struct {
        const char *value, *month;
    } cases[] = {
        {"7月", "7"}, {"12月", "12"}, {"7 月", "7"}, {" 3月", "3"}, {"11", "1"}, {"7", ""}, {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Translate({{"ia_subsidiary.iMonth", c.value}}).strMonth, c.month) << c.value;
}

TEST(TheEstimateFilter, TakesTheYearAsItStands)
{
    EXPECT_EQ(Translate({{"ia_subsidiary.iyear", "2008"}}).strYear, "2008");
    EXPECT_EQ(Translate({{"ia_subsidiary.iyear", Value(2009)}}).strYear, "2009");
}

TEST(TheEstimateFilter, ReadsTheBusinessTypesOfTheEdition)
{
    const struct {
        const char *edition, *value, *types;
        bool entrust;
    } cases[] = {
        {kCommercial, "", "N'普通采购',N'一般贸易进口',N'进料加工'", true},
        {kCommercial, "普通采购", "N'普通采购'", false},
        {kCommercial, "一般贸易进口", "N'一般贸易进口'", false},
        {kCommercial, "进料加工", "N'进料加工'", false},
        {kCommercial, "受托代销", "", true},
        {kCommercial, "委外加工", "", false},
        {kCommercial, "普通采购,受托代销", "N'普通采购'", true},
        {kCommercial, "进料加工,一般贸易进口", "N'一般贸易进口', N'进料加工'", false},
        {kCommercial, "普通采购,受托代销,一般贸易进口,进料加工", "N'普通采购', N'一般贸易进口', N'进料加工'",
         true},
        {kCommercial, "nothing of that", "", false},

        {kIndustrial, "", "N'普通采购',N'委外加工',N'一般贸易进口',N'进料加工'", false},
        {kIndustrial, "普通采购", "N'普通采购'", false},
        {kIndustrial, "委外加工", "N'委外加工'", false},
        {kIndustrial, "一般贸易进口", "N'一般贸易进口'", false},
        {kIndustrial, "进料加工", "N'进料加工'", false},
        {kIndustrial, "受托代销", "", false},
        {kIndustrial, "普通采购,受托代销", "N'普通采购'", false},
        {kIndustrial, "进料加工,委外加工", "N'委外加工', N'进料加工'", false},
        {kIndustrial, "普通采购,委外加工,一般贸易进口,进料加工",
         "N'普通采购', N'委外加工', N'一般贸易进口', N'进料加工'", false},
    };
    for (const auto& c : cases) {
        const EstimateConditions conditions = Translate({{"ia_subsidiary.cBusType", c.value}}, c.edition);
        EXPECT_EQ(conditions.strBusTypes, c.types) << c.edition << " " << c.value;
        EXPECT_EQ(conditions.blnEntrust, c.entrust) << c.edition << " " << c.value;
    }
}

TEST(TheEstimateFilter, HasNoBusinessTypesWithoutTheirItemAndDoesNotAskForTheEdition)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetFilter({{"ia_subsidiary.iyear", "2008"}});
    EstimateConditions conditions;
    TranslateEstimateFilter(*host.Filter(), conditions);
    EXPECT_EQ(conditions.strBusTypes, "");
    EXPECT_FALSE(conditions.blnEntrust);
    EXPECT_TRUE(host.Sent().empty());
}

TEST(TheEstimateFilter, ReadsTheTwoAnswersYesAndTakesEverythingElseForNo)
{
    for (const char* value : {"是", "否", "", "Yes", "是的"}) {
        const bool yes = std::string(value) == "是";
        const EstimateConditions conditions = Translate({{"bDisZero", value}, {"bDispCheckFreeOnly", value}});
        EXPECT_EQ(conditions.blnDisZero, yes) << value;
        EXPECT_EQ(conditions.blnFreeOnly, yes) << value;
    }
    EXPECT_TRUE(Translate({}).blnDisZero);
    EXPECT_FALSE(Translate({}).blnFreeOnly);
}

TEST(TheEstimateFilter, FindsKeysInAnyLetterCase)
{
    const EstimateConditions conditions = Translate({{"IA_SUBSIDIARY.IYEAR", "2008"},
                                                     {"ia_subsidiary.imonth", "7月"},
                                                     {"Ia_Subsidiary.cbustype", "进料加工"},
                                                     {"bdiszero", "否"},
                                                     {"BDISPCHECKFREEONLY", "是"}});
    EXPECT_EQ(conditions.strYear, "2008");
    EXPECT_EQ(conditions.strMonth, "7");
    EXPECT_EQ(conditions.strBusTypes, "N'进料加工'");
    EXPECT_FALSE(conditions.blnDisZero);
    EXPECT_TRUE(conditions.blnFreeOnly);
}

TEST(TheEstimateFilter, LeavesTheRestToTheFilterInTwoGroups)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetFilter({{"ia_subsidiary.iyear", "2008"},
                    {"ia_subsidiary.iMonth", "7月"},
                    {"ia_subsidiary.cVouType", "01"},
                    {"ia_subsidiary.cBusType", ""},
                    {"bDisZero", "是"},
                    {"bDispCheckFreeOnly", "否"},
                    {"ia_subsidiary.cWhCode", "01"},
                    {"Inventory.cInvCCode", "01"}});
    host.Filter()->whereByToken = {{1, "of group 1"}, {2, "of group 2"}};
    host.Filter()->where = "of any other group";
    EstimateConditions conditions;
    TranslateEstimateFilter(*host.Filter(), conditions);
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 0, 2, 0, 0, 0, 1, 1}));
    EXPECT_EQ(conditions.strGroupWhere, "of group 1");
    EXPECT_EQ(conditions.strVouCond, "of group 2");
}

TEST(TheEstimateFilter, CoversReceiptsAndVendorManagedStockWithoutAChoiceOfVoucherTypes)
{
    EXPECT_EQ(Translate({{"ia_subsidiary.cVouType", ""}}).strVouCond,
              " ia_subsidiary.cVouType in (N'01',N'70') ");
    EXPECT_EQ(Translate({}).strVouCond, " ia_subsidiary.cVouType in (N'01',N'70') ");
}

TEST(TheEstimateFilter, BeginsAnewButForYearAndMonth)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetParameter("AA", "cSysVersion", kCommercial);
    EstimateConditions conditions;
    host.SetFilter({{"ia_subsidiary.iyear", "2008"},
                    {"ia_subsidiary.iMonth", "7月"},
                    {"ia_subsidiary.cBusType", ""},
                    {"bDisZero", "否"},
                    {"bDispCheckFreeOnly", "是"}});
    TranslateEstimateFilter(*host.Filter(), conditions);
    host.SetFilter({});
    TranslateEstimateFilter(*host.Filter(), conditions);
    EXPECT_EQ(conditions.strYear, "2008");
    EXPECT_EQ(conditions.strMonth, "7");
    EXPECT_EQ(conditions.strBusTypes, "");
    EXPECT_FALSE(conditions.blnEntrust);
    EXPECT_TRUE(conditions.blnDisZero);
    EXPECT_FALSE(conditions.blnFreeOnly);
}

}  // namespace kavelin::test
