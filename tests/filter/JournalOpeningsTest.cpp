// What the opening of the journals and of the price analysis does to their fields, key by key.
#include "filter/AccountMonths.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// Rows of the open months, as the account's driver hands them over.
void SetOpenMonths(RecordingHost& host)
{
    host.Script().rows[SelectOpenMonths("001")] = {{"iyear", "iid"}, {{2007, 12}, {2008, 1}, {2008, 2}}};
}

constexpr const char* kMonths = "2007.12{#}2008.01{#}2008.02{##}2007.12{#}2008.01{#}2008.02";

constexpr const char* kCosted =
    " AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or WareHouse.cWhCode "
    "is null)  ORDER BY WareHouse.cWhCode";

const std::string kBusinessTypes =
    "普通采购,委外加工,受托代销,普通销售,委托代销,分期收款,直运采购,直运销售,出口发票,直运出口发票,领料,"
    "假退料,限额领料,直接供应,配比出库,委外发料,委外倒冲,委外盘点补差,生产倒冲,生产盘点补差,成品入库,"
    "调拨入库,调拨出库,组装入库,组装出库,拆卸入库,拆卸出库,转换入库,转换出库,盘盈入库,盘亏出库,降级入库,"
    "不合格品,其他入库,其他出库,签回损失,备件领用,委外发料,服务配件领用,一般贸易进口,进料加工,配件出库,"
    "配件退库";

const std::string kWarehousesOfJournal =
    std::string(
        "SELECT distinct WareHouse.cWhCode as [<IA.FltField 仓库编码>],WareHouse.cWhName as "
        "[<IA.FltField 仓库名称>] FROM WareHouse where isnull(warehouse.bincost,0)<>0  ") +
    kCosted;

const std::string kDepartmentsOfJournal =
    "SELECT Distinct Department.cDepCode as [<IA.FltField 部门编码>],Department.cDepName as [<IA.FltField "
    "部门名称>] FROM WareHouse  inner join Department ON Department.cDepCode = WareHouse.cDepCode where "
    "isnull(warehouse.bincost,0)<>0  ORDER BY Department.cDepCode";

// A lookup of voucher types with these conditions on their codes.
std::string VoucherTypes(const std::string& conditions)
{
    return "select cVouchType as [<IA.FltField 单据编码>] ,EnumName  As [<IA.FltField 单据类型>] from VouchType "
           "inner join aa_enum on cVouchName=EnumCode where LocaleID='zh-CN' and "
           "EnumType='IA.BillforVch' " +
           conditions +
           " Union select '01','<IA.BillforVch 采购入库单(报销记账)>'  Union select '011','<IA.BillforVch "
           "采购入库单(暂估记账)>'  Union select '30','<IA.BillforVch 蓝字回冲单(报销)>'  Union select "
           "'301','<IA.BillforVch 蓝字回冲单(暂估)>'  Union select '70','<IA.BillforVch "
           "代管挂账确认单(报销记账)>'  Union select '701','<IA.BillforVch 代管挂账确认单(暂估记账)>' Order By "
           "[<IA.FltField 单据编码>]";
}

const std::string kIndustrialTypes =
    " and cvouchtype in "
    "('05','06','08','09','10','11','20','21','22','25','24','26','27','28','29','32','35','EX26','EX27')";

const std::string kOtherTypes =
    " and cvouchtype in "
    "('05','06','08','09','20','21','22','24','25','26','27','28','29','32','35','EX26','EX27')";

const std::string kPriceTypes =
    " and cvouchtype in ('05','06','08','09','10','11','24','26','27','28','29','32','EX26','EX27')";

}  // namespace

TEST(InitFilterJournal, PreparesItsFields)
{
    RecordingHost host;
    SetOpenMonths(host);
    for (const std::string_view identity : {kJournal, kPriceAnalysis}) {
        const std::string types =
            VoucherTypes(identity == kJournal ? kOtherTypes : kOtherTypes + kPriceTypes);
        ExpectChanges(
            host, {
                      {identity,
                       {"iMonth"},
                       {std::string("SetFieldRangeList iMonth, ") + kMonths, "iMonth.varValue = 2008.07",
                        "iMonth.varValue2 = 2008.07"}},
                      {identity,
                       {"iMonth", "2008.01", "2008.02"},
                       {std::string("SetFieldRangeList iMonth, ") + kMonths}},
                      {identity,
                       {"avgPrice"},
                       {std::string("SetFieldRangeList avgPrice, ") + kMonths, "avgPrice.varValue = 2008.07",
                        "avgPrice.varValue2 = 2008.07"}},
                      {identity, {"vouEstate"}, {"vouEstate.ListSource = 已记账单据,未记账单据"}},
                      {identity,
                       {"cDepCode"},
                       {"SetFieldLocked cDepCode, False", "cDepCode.ListSource = " + kDepartmentsOfJournal}},
                      {identity,
                       {"cWhCode"},
                       {"SetFieldLocked cWhCode, False", "cWhCode.ListSource = " + kWarehousesOfJournal}},
                      {identity, {"NoSub.cBusType"}, {"NoSub.cBusType.ListSource = " + kBusinessTypes}},
                      {identity, {"cVouType"}, {"cVouType.ListSource = " + types}},
                      {identity, {"cwhcode"}, {}},
                      {identity, {"imonth"}, {}},
                      {identity, {"cBusType"}, {}},
                  });
    }
}

TEST(InitFilterJournal, OffersTheVoucherTypesOfTheEditionInTheLanguageOfTheLogin)
{
    RecordingHost host;
    host.SetParameter("AA", "cSysVersion", "工业");
    ExpectChanges(host,
                  {{kJournal, {"cVouType"}, {"cVouType.ListSource = " + VoucherTypes(kIndustrialTypes)}}});
    EXPECT_EQ(ModPub().gstrLanguage, "zh-CN");

    host.Answers().langId = "en-US";
    const Changes english = OpeningOf(host, kJournal, {"cVouType"});
    ASSERT_EQ(english.size(), 1U);
    EXPECT_NE(english[0].find("LocaleID='en-US'"), std::string::npos);
}

TEST(InitFilterPriceAnalysis, OffersTheIntersectionOfBothConditionsAndTheTypesShownInTwoParts)
{
    RecordingHost host;
    host.SetParameter("AA", "cSysVersion", "工业");
    ExpectChanges(host, {{kPriceAnalysis,
                          {"cVouType"},
                          {"cVouType.ListSource = " + VoucherTypes(kIndustrialTypes + kPriceTypes)}}});
}

TEST(InitFilterStandardCost, PreparesItsFieldsAndLeavesTheDepartmentLocked)
{
    RecordingHost host;
    EXPECT_EQ(OpeningOfAll(host, kStandardCost), Changes{"SetFieldLocked cDepCode, True"});

    ModPub().gstrLanguage = "zh-CN";
    const std::string types = ReplaceAll(kOtherTypes, ",'35'", "");
    ExpectChanges(host,
                  {
                      {kStandardCost,
                       {"cWhCode"},
                       {"SetFieldLocked cWhCode, False", "cWhCode.ListSource = " + kWarehousesOfJournal}},
                      {kStandardCost,
                       {"cDepCode"},
                       {"SetFieldLocked cDepCode, False", "cDepCode.ListSource = " + kDepartmentsOfJournal}},
                      {kStandardCost, {"cBusType"}, {"cBusType.ListSource = " + kBusinessTypes}},
                      {kStandardCost, {"cVouType"}, {"cVouType.ListSource = " + VoucherTypes(types)}},
                      {kStandardCost, {"NoSub.cBusType"}, {}},
                      {kStandardCost, {"cdepcode"}, {}},
                      {kStandardCost, {"vouEstate"}, {}},
                  });
    host.SetParameter("AA", "cSysVersion", "工业");
    ExpectChanges(host,
                  {{kStandardCost,
                    {"cVouType"},
                    {"cVouType.ListSource = " + VoucherTypes(ReplaceAll(kIndustrialTypes, ",'35'", ""))}}});
}

TEST(InitFilterStandardCost, TakesTheLanguageAsItStands)
{
    RecordingHost host;
    host.Answers().langId = "en-US";
    ModPub().gstrLanguage = "of an earlier dialog";
    Dialog dialog(host, kStandardCost, {{"cVouType"}});
    dialog.Open();
    EXPECT_EQ(ModPub().gstrLanguage, "of an earlier dialog");
    EXPECT_NE(dialog.Filter().ListSource("cVouType").find("LocaleID='of an earlier dialog'"),
              std::string::npos);
}

TEST(InitFilterStandardCost, LimitsTheDepartmentsToTheWarehouseWhereverItStands)
{
    for (const bool warehouseFirst : {true, false}) {
        RecordingHost host;
        host.SetParameter("IA", "bDepartmentCheck", "True");
        host.Answers().lists["Department"] = "'D1','D2'";
        std::vector<FakeField> fields = {{"cWhCode", "W1"}, {"cDepCode"}};
        if (!warehouseFirst)
            std::swap(fields[0], fields[1]);
        Dialog dialog(host, kStandardCost, fields);
        dialog.Open();
        EXPECT_EQ(dialog.Filter().ListSource("cDepCode"),
                  "SELECT Distinct Department.cDepCode as [<IA.FltField 部门编码>],Department.cDepName as "
                  "[<IA.FltField 部门名称>] FROM WareHouse  inner join Department ON Department.cDepCode = "
                  "WareHouse.cDepCode where isnull(warehouse.bincost,0)<>0  and  WareHouse.cWhCode='W1'  AND "
                  "(WareHouse.cDepCode IN ('D1','D2') or WareHouse.cDepCode is null) ORDER BY "
                  "Department.cDepCode");
    }
}

}  // namespace kavelin::test
