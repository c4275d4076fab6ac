#include "price/AnalysisFilter.h"

#include "frame/Errors.h"
#include "price/AnalysisCondition.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// As a user sees it whose rights are not checked.
const std::string kStart =
    " and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or cWhCode is null) ";

AnalysisConditions Read(RecordingHost& host, const std::vector<FakeField>& fields)
{
    host.OpenAccount();
    host.SetFilter(fields);
    return ReadAnalysisFilter(*host.Filter());
}

AnalysisConditions Read(const std::vector<FakeField>& fields)
{
    RecordingHost host;
    return Read(host, fields);
}

std::string WhereOf(const std::vector<FakeField>& fields)
{
    const std::string where = Read(fields).strWhere;
    EXPECT_TRUE(where.starts_with(kStart)) << where;
    return where.substr(std::min(where.size(), kStart.size()));
}

bool AsksForVouchers(const FakeField& field)
{
    return Read({field}).strConditionXml.find("<isJc> 1 </isJc>") != std::string::npos;
}

constexpr bool kRange = true;
constexpr bool kSeveral = true;

}  // namespace

TEST(ReadAnalysisFilter, BeginsWithTheUsersRights)
{
    EXPECT_EQ(WhereOf({}), "");

    RecordingHost host;
    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        host.SetParameter("IA", name, "True");
    ModPub().gobjLogin = host.Login();
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'1001'"}};
    EXPECT_EQ(Read(host, {}).strWhere,
              " and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1)"
              " and cWhCode IN ('01')) or cWhCode is null)"
              " and (cAccDep IN ('03') or cAccDep is null)"
              " and  isnull(iid, N'') IN ('1001')");
}

TEST(ReadAnalysisFilter, ComparesEachKindOfField)
{
    const struct {
        FakeField field;
        std::string_view where;
        bool voucherLevel;
    } cases[] = {
        {{"iMonth", "2008.07"}, " and iYear =  2008 and  iMonth = 07", false},
        {{"iMonth", ""}, "", false},

        {{"dVouDate", "2008-07-01", "2008-07-31", kRange},
         " And dVouDate>= N'2008-07-01' And dVouDate<= N'2008-07-31'",
         true},
        {{"dKeepDate", "2008-07-01"}, " And dKeepDate>= N'2008-07-01'", true},
        {{"dKeepDate", "", "2008-07-31"}, " And dKeepDate<= N'2008-07-31'", true},
        {{"dVouDate"}, "", false},

        {{"cCCCode", "01\t02"}, " and cCCCode in ('01','02') ", true},
        {{"cVCCode", "01"}, " and cVCCode in ('01') ", true},
        {{"cCusCode", "K1", "K9", kRange}, " And cCusCode>= N'K1' And cCusCode<= N'K9'", true},
        {{"cVenCode", "", "V9", kRange}, " And cVenCode<= N'V9'", true},
        {{"cAccDep", " 03 \t04"}, " and cAccDep in ('03','04') ", true},
        {{"cAccDep", "", "04"}, "", false},

        {{"cInvCCode", "01\t02", "", false, kSeveral}, " And cInvCCode in ('01','02') ", false},
        {{"cInvCode", "A", "B", kRange}, " And cInvCode>= N'A' And cInvCode<= N'B'", false},
        {{"cInvCode", "A", "B", kRange, kSeveral}, " And cInvCode in ('A') ", false},
        {{"cDepCode", "03"}, " And cDepCode= N'03'", false},
        {{"cDepCode", "", "03"}, " And cDepCode= N''", false},
        {{"cWhCode", "01\t02", "", false, kSeveral}, " And cWhCode in ('01','02') ", false},
        {{"cWhCode", "", "", false, kSeveral}, "", false},
        {{"cWhCode", "01"}, " And cWhCode= N'01'", false},
        {{"cWhCode", "", "02", kRange}, " And cWhCode<= N'02'", false},

        {{"cRdCode", "11\t12"}, " And cRdCode in ('11','12') ", true},
        {{"cRdCode", "", "12", kRange}, "", false},
        {{"cproordercode", "P1", "P2"}, " And cproordercode>= N'P1' And cproordercode<= N'P2'", true},

        {{"cinvdefine1", "x"}, " And inventory.cinvdefine1= N'x'", true},
        {{"cinvdefine1", "x", "y", kRange},
         " And inventory.cinvdefine1>= N'x' And inventory.cinvdefine1<= N'y'",
         true},
        {{"cinvdefine1"}, "", false},
        {{"cdefine1", "x"}, " And cdefine1>= N'x'", true},
        {{"cdefine22", "x", "y"}, " And cdefine22>= N'x' And cdefine22<= N'y'", true},
        {{"cDefine1", "x"}, " And cDefine1= N'x'", false},
        {{"cInvDefine1", "x"}, " And cInvDefine1= N'x'", false},

        {{"cFree1", "x", "y", kRange}, " And cFree1>= N'x' And cFree1<= N'y'", false},
        {{"cFree1", "", "y"}, " And cFree1= N''", false},
        {{"cinvcode", "A\tB", "", false, kSeveral}, " And cinvcode= N'A\tB'", false},
        {{"other", "O'Neil"}, " And other= N'O'Neil'", false},
        {{"Ia_Ensubsidiary.cDepCode", "03"}, " And Ia_Ensubsidiary.cDepCode= N'03'", false},
        {{"other", Value::Null(), Value::Null(), kRange}, "", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(WhereOf({c.field}), c.where) << c.field.name;
        EXPECT_EQ(AsksForVouchers(c.field), c.voucherLevel) << c.field.name << c.where;
    }
}

TEST(ReadAnalysisFilter, KeepsListsOfTypesApartAndAsksForVouchersByThem)
{
    RecordingHost host;
    const AnalysisConditions conditions =
        Read(host, {{"cVouType", "01\t011\t 32 "}, {"cBusType", "普通采购\t 委托代销 "}});
    EXPECT_EQ(conditions.strWhere, kStart);
    EXPECT_EQ(conditions.strVouTypes, "'01','011','32'");
    EXPECT_EQ(conditions.strBusTypes, "N'code of 普通采购',N'code of 委托代销 '");

    for (const char* key : {"cVouType", "cBusType"}) {
        EXPECT_TRUE(AsksForVouchers({key, "01"})) << key;
        EXPECT_FALSE(AsksForVouchers({key, ""})) << key;
    }
}

TEST(ReadAnalysisFilter, WritesTheSettingsIntoTheConditionText)
{
    ConditionValues values;
    values.strShowType = "1";
    values.strMonth = "2008.07";
    values.strBasePrice = "4";
    values.strAvgFrom = "2008.01";
    values.strAvgTo = "2008.06";
    values.strAvgKind = "2";
    values.dblDiffRatio = 7.25;
    const AnalysisConditions conditions = Read({{"iMonth", "2008.07"},
                                                {"ShowType", "1"},
                                                {"Base Price", "4"},
                                                {"avgPrice", "2008.01", "2008.06", kRange},
                                                {"avgPrices", "2"},
                                                {"DiffRatio", "7.250"}});
    EXPECT_EQ(conditions.strConditionXml, WriteCondition(values));
    EXPECT_EQ(conditions.strWhere, kStart + " and iYear =  2008 and  iMonth = 07");
}

TEST(ReadAnalysisFilter, KnowsItsKeysByTheirLettersCase)
{
    const AnalysisConditions conditions = Read({{"showtype", "1"}, {"base price", "4"}});
    EXPECT_EQ(conditions.strConditionXml, WriteCondition({}));
    EXPECT_EQ(conditions.strWhere, kStart + " And showtype= N'1' And base price= N'4'");
}

TEST(ReadAnalysisFilter, LeavesTheBatchToTheFiltersOwnWhere)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetFilter({{"cBatchia", "P1"}, {"cWhCode", "01"}, {"iMonth", "2008.07"}, {"other"}});
    host.Filter()->whereByToken = {{0, "never asked"}, {1, "cBatchia = 'P1'"}};
    const AnalysisConditions conditions = ReadAnalysisFilter(*host.Filter());
    EXPECT_EQ(conditions.strWhere, kStart +
                                       " And cWhCode= N'01' and iYear =  2008 and  iMonth = 07"
                                       " AND cBatchia = 'P1'");
    EXPECT_EQ(host.Filter()->Tokens(), (std::vector<std::int32_t>{1, 0, 0, 0}));
    EXPECT_NE(conditions.strConditionXml.find("<isJc> 0 </isJc>"), std::string::npos);
}

TEST(ReadAnalysisFilter, ReadsEachItemWhole)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetFilter({{"ShowType", "1"}});
    host.Events().Clear();
    ReadAnalysisFilter(*host.Filter());
    const std::string events = host.Events().Text();
    EXPECT_NE(events.find("ShowType.LngGrouptoken = 0\nShowType.Name\nShowType.varValue\nShowType.varValue2\n"
                          "ShowType.RangeInput\nShowType.IsMultSel\nRawFilter.GetWhereWithToken 1\n"),
              std::string::npos)
        << events;
}

TEST(ReadAnalysisFilter, FailsForAMonthWithoutAYearAndADeviationThatIsNoNumber)
{
    EXPECT_THROW(Read({{"iMonth", "7月"}}), Error);
    EXPECT_THROW(Read({{"DiffRatio", "ten"}}), ConversionError);
}

TEST(BuildBusTypeList, TrimsEachPieceOnItsLeftOnly)
{
    RecordingHost host;
    EXPECT_EQ(BuildBusTypeList(""), "");
    EXPECT_EQ(BuildBusTypeList("  领料\t 普通采购 "), "N'code of 领料',N'code of 普通采购 '");
}

TEST(BuildBusTypeList, FindsBothStoredFormsOfConsignmentSales)
{
    RecordingHost host;
    host.Answers().codes = {{"Consignment sale", "委托代销"}, {"Ordinary sale", "普通销售"}};
    EXPECT_EQ(BuildBusTypeList("Ordinary sale\tConsignment sale"), "N'普通销售',N'委托代销',N'委托'");
}

}  // namespace kavelin::test
