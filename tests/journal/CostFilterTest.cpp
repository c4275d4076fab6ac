#include "journal/CostFilter.h"

#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// As a user sees it whose rights are not checked.
const std::string kStart =
    " cVouType not in (N'33',N'34',N'35')"
    " and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))"
    "  or cWhCode is null) ";

CostConditions Translate(RecordingHost& host, const std::vector<FakeField>& fields)
{
    host.OpenAccount();
    ModPub().gobjLogin = host.Login();
    host.SetFilter(fields);
    CostConditions conditions;
    TranslateCostFilter(*host.Filter(), conditions);
    return conditions;
}

std::string WhereOf(const std::vector<FakeField>& fields)
{
    RecordingHost host;
    const std::string where = Translate(host, fields).strWhere;
    EXPECT_TRUE(where.starts_with(kStart)) << where;
    return where.substr(std::min(where.size(), kStart.size()));
}

constexpr bool kRange = true;
constexpr bool kSeveral = true;

}  // namespace

TEST(TranslateCostFilter, BeginsWithTheTypesThatAreNeverShownAndTheUsersRights)
{
    EXPECT_EQ(WhereOf({}), "");

    RecordingHost host;
    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        host.SetParameter("IA", name, "True");
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'1001'"}};
    EXPECT_EQ(Translate(host, {}).strWhere,
              " cVouType not in (N'33',N'34',N'35')"
              " and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1)"
              " and cWhCode IN ('01')) or cWhCode is null)"
              " and (cAccDep IN ('03') or cAccDep is null)");
}

TEST(TranslateCostFilter, ComparesEachKindOfField)
{
    const struct {
        FakeField field;
        std::string_view where;
    } cases[] = {
        {{"dVouDate", "2008-01-01", "2008-03-31", kRange},
         " And   dVouDate>= '2008-01-01' And   dVouDate<= '2008-03-31'"},
        {{"dKeepDate", "2008-01-01"}, " And   dKeepDate>= '2008-01-01'"},
        {{"DKEEPDATE", "", "2008-03-31"}, " And   DKEEPDATE<= '2008-03-31'"},

        {{"cInvCCode", "01", "02", kRange}, " And   cInvCCode>= N'01' And   cInvCCode<= N'02'"},
        {{"cInvCCode", "01"}, " And   cInvCCode Like N'01%'"},
        {{"cCCCode", "01"}, " And   cCCCode Like N'01%'"},
        {{"cVCCode", "01"}, " And   cVCCode Like N'01%'"},
        {{"cVCCode", "", "02", kRange}, " And   cVCCode<= N'02'"},
        {{"cVCCode", "", "02"}, " And   cVCCode Like N'%'"},

        {{"CcCusCode", "K1", "K2", kRange}, " And CcCusCode>= N'K1' And CcCusCode<= N'K2'"},
        {{"CcCusCode", "K1"}, " And CcCusCode= N'K1'"},
        {{"cVenCode", "V1", "", kRange}, " And cVenCode>= N'V1'"},
        {{"cVenCode", "V1"}, " And cVenCode= N'V1'"},

        {{"cInvCode", "A\tB", "", false, kSeveral}, " And cInvCode in ('A','B')"},
        {{"cInvCode", "A", "B", kRange}, " And cInvCode>= N'A' And cInvCode<= N'B'"},
        {{"cInvCode", "A"}, " And cInvCode= N'A'"},
        {{"cInvCode", "", "", false, kSeveral}, ""},

        {{"cWhCode", "01\t 02 ", "", false, kSeveral}, " And   cWhCode in ('01','02')"},
        {{"cWhCode", "01", "02", kRange}, " And   cWhCode>= N'01' And   cWhCode<= N'02'"},
        {{"cWhCode", "01"}, " And   cWhCode= N'01'"},

        {{"cRdCode", "1", "2", kRange}, " And cRdCode>= N'1' And cRdCode<= N'2'"},
        {{"cRdCode", "1"}, " And cRdCode= N'1'"},
        {{"cInvDefine1", "x", "y", kRange}, " And cInvDefine1>= N'x' And cInvDefine1<= N'y'"},
        {{"cInvDefine1", "x"}, " And cInvDefine1= N'x'"},

        {{"cDepCode", "03"}, " And cDepCode= N'03'"},
        {{"cDepCode", "", "03"}, " And cDepCode= N''"},
        {{"cDepCode", "O'Neil"}, " And cDepCode= N'O'Neil'"},
        {{"cDepCode"}, ""},
        {{"cDepCode", Value::Null(), Value::Null(), kRange}, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WhereOf({c.field}), c.where) << c.field.name;
}

TEST(TranslateCostFilter, KeepsListsOfTypesApart)
{
    RecordingHost host;
    const CostConditions conditions =
        Translate(host, {{"cVouType", "01\t011\t 32 "}, {"cBusType", "普通采购\t委托代销"}});
    EXPECT_EQ(conditions.strWhere, kStart);
    EXPECT_EQ(conditions.strVouTypes, "'01','011','32'");
    EXPECT_EQ(conditions.strBusTypes, "N'code of 普通采购',N'code of 委托代销'");
}

TEST(TranslateCostFilter, DoesNotWidenABusinessTypeByItsShortForm)
{
    RecordingHost host;
    host.Answers().codes["委托代销"] = "委托代销";
    EXPECT_EQ(Translate(host, {{"cBusType", "委托代销"}}).strBusTypes, "N'委托代销'");
}

TEST(TranslateCostFilter, ReadsTheUnitNumberAsTheJournalDoes)
{
    const struct {
        const char* text;
        int number;
    } cases[] = {{"", 0}, {"2", 2}, {"12345678", 12345678}, {"123456789", 0}};
    for (const auto& c : cases) {
        RecordingHost host;
        EXPECT_EQ(Translate(host, {{"edtCAssComUnitNum", c.text}}).lngAssUnitNo, c.number) << c.text;
    }
}

TEST(TranslateCostFilter, DoesNotReadTheStateOfDocumentsNorTheVouchersNumber)
{
    EXPECT_EQ(WhereOf({{"vouEstate", "已记账单据,未记账单据"}, {"PzNoID", "7"}}), "");
}

TEST(TranslateCostFilter, StoresAToken1InEachItemAnd3InThoseThatItLeaves)
{
    RecordingHost host;
    Translate(host, {{"cpzid", "a"},
                     {"cWorkCenterCode", "b"},
                     {"ccostcentercode", "c"},
                     {"cdifpzid", "d"},
                     {"cWhCode", "01"},
                     {"vouEstate", "x"},
                     {"other"}});
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{3, 3, 3, 3, 1, 1, 1}));
}

TEST(TranslateCostFilter, PutsWhatTheFilterWordsBehindItsOwn)
{
    const struct {
        const char *two, *three, *where;
    } cases[] = {
        {"", "", " And cRdCode= N'1'"},
        {"a=2", "", " And cRdCode= N'1' AND a=2"},
        {"", "b=3", " And cRdCode= N'1' AND b=3"},
        {"a=2", "b=3", " And cRdCode= N'1' AND a=2 AND b=3"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.OpenAccount();
        host.SetFilter({{"cRdCode", "1"}});
        host.Filter()->whereByToken = {{1, "never asked"}, {2, c.two}, {3, c.three}};
        CostConditions conditions;
        TranslateCostFilter(*host.Filter(), conditions);
        EXPECT_EQ(conditions.strWhere, kStart + c.where);
    }
}

TEST(TranslateCostFilter, ShowsAnErrorAndReturnsWithWhatItHas)
{
    RecordingHost host;
    const CostConditions conditions =
        Translate(host, {{"cWhCode", "01"}, {"edtCAssComUnitNum", "two"}, {"cRdCode", "1"}});
    EXPECT_EQ(conditions.strWhere, kStart + " And   cWhCode= N'01'");
    EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage "), std::string::npos);
    EXPECT_EQ(host.Events().Text().find("GetWhereWithToken"), std::string::npos);
}

}  // namespace kavelin::test
