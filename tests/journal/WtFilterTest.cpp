#include "journal/WtFilter.h"

#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

const std::string kStart =
    " NoSub.cVouType not in (N'33',N'34')"
    " and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))"
    "  or NoSub.cWhCode is null) ";

WtConditions Translate(RecordingHost& host, const std::vector<FakeField>& fields,
                       const std::string& left = "")
{
    host.OpenAccount();
    ModPub().gobjLogin = host.Login();
    host.SetFilter(fields);
    host.Filter()->where = left;
    WtConditions conditions;
    TranslateWtFilter(*host.Filter(), conditions);
    return conditions;
}

std::string WhereOf(const std::vector<FakeField>& fields)
{
    RecordingHost host;
    const std::string where = Translate(host, fields).strWhere;
    EXPECT_TRUE(where.starts_with(kStart)) << where;
    return where.substr(kStart.size());
}

// Of a library that has no text for anything.
class NoTexts : public ResourceObject {
  public:
    void SetLogin(std::shared_ptr<LoginContext> /*login*/) override {}
    std::string GetResString(const std::string& /*key*/) override { return ""; }
    std::string GetEnumName(const std::string& /*type*/, const std::string& /*code*/) override { return ""; }
    std::string GetEnumCode(const std::string& /*type*/, const std::string& text) override { return text; }
    void ShowMessage(const std::string& /*text*/, int /*icon*/) override {}
    void Unload() override {}
};

constexpr bool kRange = true;
constexpr bool kSeveral = true;

}  // namespace

TEST(TranslateWtFilter, BeginsWithTheTypesThatAreNeverShownAndTheUsersRights)
{
    EXPECT_EQ(WhereOf({}), "");
}

TEST(TranslateWtFilter, AddsRightsOnWarehouseDepartmentAndInventory)
{
    RecordingHost host;
    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        host.SetParameter("IA", name, "True");
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'1001'"}};
    EXPECT_EQ(Translate(host, {}).strWhere,
              " NoSub.cVouType not in (N'33',N'34')"
              " and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1)"
              " and NoSub.cWhCode IN ('01')) or NoSub.cWhCode is null)"
              " and (NoSub.cAccDep IN ('03') or NoSub.cAccDep is null)"
              " and  isnull( INVENTORY.iid, N'') IN ('1001')");
}

TEST(TranslateWtFilter, ComparesEachKindOfField)
{
    const struct {
        FakeField field;
        const char* wanted;
    } cases[] = {
        {{"dVouDate", "2008-01-01", "2008-03-31", kRange},
         " And NoSub.dVouDate>= '2008-01-01' And NoSub.dVouDate<= '2008-03-31'"},
        {{"DKEEPDATE", "2008-01-01"}, " And NoSub.DKEEPDATE>= '2008-01-01'"},
        {{"dKeepDate", "", "2008-03-31"}, " And NoSub.dKeepDate<= '2008-03-31'"},
        {{"dKeepDate"}, ""},
        {{"cWhCode", "01", "03", kRange}, " And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'03'"},
        {{"cWhCode", "01"}, " And NoSub.cWhCode= N'01'"},
        {{"cWhCode", "01\t02", "", !kRange, kSeveral}, " And NoSub.cWhCode in ('01','02') "},
        {{"cWhCode", "", "", !kRange, kSeveral}, ""},
        {{"cinvdefine3", "x"}, " And inventory.cinvdefine3= N'x'"},
        {{"CInvDefine12", "a", "b", kRange},
         " And inventory.CInvDefine12>= N'a' And inventory.CInvDefine12<= N'b'"},
        {{"cDefine7", "1.5", "", kRange}, " And NoSub.cDefine7>= N'1.5'"},
        {{"cHandler", "", "x", kRange}, " And NoSub.cHandler<= N'x'"},
        {{"cVouCode", "CG-1"}, " And NoSub.cVouCode= N'CG-1'"},
        {{"cVouCode", "", "CG-9"}, " And NoSub.cVouCode= N''"},
        {{"iMonth", "2008.07"}, " And NoSub.iMonth= N'2008.07'"},
        {{"cMemo", "a'b"}, " And NoSub.cMemo= N'a'b'"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WhereOf({c.field}), c.wanted) << c.field.name;
}

TEST(TranslateWtFilter, LeavesItsKeysToTheFilterAndPutsTheirTextInFront)
{
    RecordingHost host;
    const WtConditions conditions = Translate(host,
                                              {{"Inventory.cInvCCode", "01"},
                                               {"customer.cCCCode", "01"},
                                               {"Vendor.cVCCode", "01"},
                                               {"Customer.cCusCode", "C"},
                                               {"Vendor.cVenCode", "V"},
                                               {"Inventory.cInvCode", "A"},
                                               {"cBatchia", "P"},
                                               {"NoSub.cRdCode", "101"},
                                               {"cDepCode", "03"}},
                                              "Inventory.cInvCCode like N'01%'");
    EXPECT_EQ(conditions.strWhere,
              "Inventory.cInvCCode like N'01%' AND " + kStart + " And NoSub.cDepCode= N'03'");
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 1, 1, 1, 1, 1, 1, 1, 0}));
}

TEST(TranslateWtFilter, CollectsTypesVoucherAndUnit)
{
    RecordingHost host;
    const WtConditions conditions = Translate(host, {{"cVouType", "01\t08"},
                                                     {"nosub.cbustype", "Ordinary"},
                                                     {"PzNoID", "17"},
                                                     {"edtCAssComUnitNum", "2"}});
    EXPECT_EQ(conditions.strVouTypes, "'01','08'");
    EXPECT_EQ(conditions.strBusTypes, "N'code of Ordinary'");
    EXPECT_EQ(conditions.strPzNoID, "17");
    EXPECT_EQ(conditions.lngAssUnitNo, 2);
    EXPECT_EQ(conditions.strWhere, kStart);
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{0, 0, 0, 0}));
}

TEST(TranslateWtFilter, KnowsTheStatesInTheDialogsLanguageAndInChinese)
{
    const struct {
        const char* states;
        bool posted, unposted;
    } cases[] = {
        {"已记账单据", true, false},
        {"未记账单据", false, true},
        {"已记账单据,未记账单据", true, true},
        {"<IA.RepWt 已记账单据>", true, false},
        {"<IA.RepWt 已记账单据>\t<IA.RepWt 未记账单据>", true, true},
        {"something else", false, false},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        const WtConditions conditions = Translate(host, {{"vouEstate", c.states}});
        EXPECT_EQ(conditions.blnAccounted, c.posted) << c.states;
        EXPECT_EQ(conditions.blnUnAccounted, c.unposted) << c.states;
    }
}

// A missing text is found in every value: whoever asks for posted documents would see the others too.
TEST(TranslateWtFilter, KnowsAStateWithoutATextByTheChineseOneOnly)
{
    const struct {
        const char* states;
        bool posted, unposted;
    } cases[] = {
        {"已记账单据", true, false},
        {"未记账单据", false, true},
        {"已记账单据,未记账单据", true, true},
        {"Posted documents", false, false},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.OpenAccount();
        ModPub().gobjRes = std::make_shared<NoTexts>();
        host.SetFilter({{"vouEstate", c.states}});
        WtConditions conditions;
        TranslateWtFilter(*host.Filter(), conditions);
        EXPECT_EQ(conditions.blnAccounted, c.posted) << c.states;
        EXPECT_EQ(conditions.blnUnAccounted, c.unposted) << c.states;
    }
}

TEST(TranslateWtFilter, LeavesBothFlagsAsTheyWereWithoutAState)
{
    for (const bool before : {false, true}) {
        RecordingHost host;
        host.OpenAccount();
        host.SetFilter({{"vouEstate", ""}});
        WtConditions conditions;
        conditions.blnAccounted = conditions.blnUnAccounted = before;
        TranslateWtFilter(*host.Filter(), conditions);
        EXPECT_EQ(conditions.blnAccounted, before);
        EXPECT_EQ(conditions.blnUnAccounted, before);
    }
}

TEST(TranslateWtFilter, BeginsItsListsAnewAtEveryCall)
{
    RecordingHost host;
    host.OpenAccount();
    WtConditions conditions;
    host.SetFilter({{"cVouType", "01"}, {"NoSub.cBusType", "Ordinary"}, {"cDepCode", "03"}});
    TranslateWtFilter(*host.Filter(), conditions);
    host.SetFilter({});
    TranslateWtFilter(*host.Filter(), conditions);
    EXPECT_EQ(conditions.strVouTypes, "");
    EXPECT_EQ(conditions.strBusTypes, "");
    EXPECT_EQ(conditions.strWhere, kStart);
}

TEST(TranslateWtFilter, ShowsAnErrorAndReturnsWithWhatItHas)
{
    RecordingHost host;
    const WtConditions conditions =
        Translate(host, {{"cDepCode", "03"}, {"edtCAssComUnitNum", "two"}, {"cHandler", "x"}});
    EXPECT_EQ(conditions.strWhere, kStart + " And NoSub.cDepCode= N'03'");
    EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage "), std::string::npos);
}

}  // namespace kavelin::test
