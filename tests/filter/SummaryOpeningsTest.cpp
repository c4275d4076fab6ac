// What the opening of the summaries and of the detail ledger does to their fields, key by key.
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kCosted =
    " AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or WareHouse.cWhCode "
    "is null)  ORDER BY WareHouse.cWhCode";

const std::string kWarehousesOfSummary =
    std::string(
        "SELECT distinct WareHouse.cWhCode as [<IA.FltField 仓库编码>] ,WareHouse.cWhName as "
        "[<IA.FltField 仓库名称>]  FROM WareHouse where isnull(bincost,0)<>0  ") +
    kCosted;

}  // namespace

TEST(InitFilterStockSummary, PreparesItsFields)
{
    RecordingHost host;
    ExpectChanges(
        host, {
                  {kStockSummary, {"cwhcode"}, {"cwhcode.ListSource = " + kWarehousesOfSummary}},
                  {kStockSummary, {"vouEstate"}, {"vouEstate.ListSource = 已记账单据,未记账单据,直运单据"}},
                  {kStockSummary, {"cItemCode", "P1"}, {}},
                  {kStockSummary, {"EndNum"}, {"EndNum.ListSource = 大于零,小于零,等于零"}},
                  {kStockSummary, {"EndPrice"}, {"EndPrice.ListSource = 大于零,小于零,等于零"}},
                  {kStockSummary,
                   {"incompareout"},
                   {"incompareout.ListSource = 入库大于出库,入库等于出库,入库小于出库"}},
                  {kStockSummary,
                   {"busEstate"},
                   {"busEstate.ListSource = 所有业务,发生业务,出库未入库,入库未出库,未发生"}},
                  {kStockSummary, {"rdGrade"}, {"rdGrade.varValue = 0"}},
                  {kStockSummary, {"rdGrade", "2"}, {"rdGrade.varValue = 0"}},
                  {kStockSummary, {"cWhCode"}, {}},
                  {kStockSummary, {"rdgrade", "2"}, {}},
              });
}

TEST(InitFilterStockSummary, GivesEveryUserFieldItsDictionary)
{
    const std::pair<const char*, int> fields[] = {
        {"cfree1", 20},      {"cfree2", 21},      {"cfree3", 28},      {"cfree4", 29},
        {"cfree5", 30},      {"cfree6", 31},      {"cfree7", 32},      {"cfree8", 33},
        {"cfree9", 34},      {"cfree10", 35},     {"cInvDefine1", 17}, {"cInvDefine2", 18},
        {"cInvDefine3", 19}, {"cInvDefine4", 52}, {"cInvDefine5", 53}, {"cInvDefine6", 54},
        {"cInvDefine7", 55}, {"cInvDefine8", 56}, {"cInvDefine9", 57}, {"cInvDefine10", 58},
        {"cdefine1", 1},     {"cdefine2", 2},     {"cdefine3", 3},     {"cdefine8", 8},
        {"cdefine9", 9},     {"cdefine10", 10},   {"cdefine11", 36},   {"cdefine12", 37},
        {"cdefine13", 38},   {"cdefine14", 39},   {"cdefine22", 22},   {"cdefine23", 23},
        {"cdefine24", 24},   {"cdefine25", 25},   {"cdefine28", 42},   {"cdefine29", 43},
        {"cdefine30", 44},   {"cdefine31", 45},   {"cdefine32", 46},   {"cdefine33", 47},
    };
    Changes wanted;
    for (const auto& [key, cid] : fields)
        wanted.push_back(std::string("SetFieldRefCondition ") + key + ", ,  cid = " + std::to_string(cid) +
                         " ");
    RecordingHost host;
    EXPECT_EQ(OpeningOfAll(host, kStockSummary), wanted);
}

TEST(InitFilterGoodsSummary, PreparesItsFields)
{
    RecordingHost host;
    host.Answers().accountYears = {"2007", "2008", "2009"};
    const std::string list = "Ia_Ensubsidiary.cBustype.ListSource = 分期收款,委托代销,全部";
    ExpectChanges(
        host,
        {
            {kGoodsSummary,
             {"Ia_Ensubsidiary.cBustype"},
             {"Ia_Ensubsidiary.cBustype.varValue = <IA.Bustype 分期收款>", list}},
            {kGoodsSummary, {"Ia_Ensubsidiary.cBustype", "全部"}, {list}},
            {kGoodsSummary,
             {.name = "Ia_Ensubsidiary.cDepCode", .controlKey = "box"},
             {"SetFieldFlag box, False", "SetFieldFlag box__2, False"}},
            {kGoodsSummary, {"iYear"}, {"iYear.ListSource = 2007,2008,2009", "iYear.varValue = 2008"}},
            {kGoodsSummary, {"iYear", "2007"}, {"iYear.ListSource = 2007,2008,2009"}},
            {kGoodsSummary, {"iyear"}, {}},
            {kGoodsSummary, {"DispatchList.cDLCode"}, {"SetFieldLocked rdrecord32.cCode, False"}},
            {kGoodsSummary, {"DispatchList.cDLCode", "1"}, {"SetFieldLocked rdrecord32.cCode, True"}},
            {kGoodsSummary, {"DispatchList.cDLCode", "", "9"}, {"SetFieldLocked rdrecord32.cCode, True"}},
            {kGoodsSummary, {"rdrecord32.cCode"}, {"SetFieldLocked DispatchList.cDLCode, False"}},
            {kGoodsSummary, {"rdrecord32.cCode", "1"}, {"SetFieldLocked DispatchList.cDLCode, True"}},
            {kGoodsSummary, {"rdrecord32.cCode", "", "9"}, {"SetFieldLocked DispatchList.cDLCode, True"}},
            {kGoodsSummary, {"IsMerge"}, {"IsMerge.varValue = 否"}},
            {kGoodsSummary, {"IsMerge", "是"}, {}},
        });
    host.SetParameter("IA", "bsaletype", "发出商品");
    ExpectChanges(host, {{kGoodsSummary,
                          {"Ia_Ensubsidiary.cBustype", "全部"},
                          {"Ia_Ensubsidiary.cBustype.ListSource = 分期收款,委托代销,普通销售,全部"}}});
}

TEST(InitFilterCostItem, OffersTheYears)
{
    RecordingHost host;
    host.Answers().accountYears = {"2008"};
    ExpectChanges(
        host, {
                  {kCostItem,
                   {"IA_EnSubsidiary.iYear"},
                   {"IA_EnSubsidiary.iYear.ListSource = 2008", "IA_EnSubsidiary.iYear.varValue = 2008"}},
                  {kCostItem, {"IA_EnSubsidiary.iYear", "2007"}, {"IA_EnSubsidiary.iYear.ListSource = 2008"}},
                  {kCostItem, {"ia_ensubsidiary.iyear"}, {}},
                  {kCostItem, {"IA_EnSubsidiary.iMonth"}, {}},
              });
}

TEST(InitFilterDetailLedger, OffersYearsAndAPairOfMonths)
{
    RecordingHost host;
    host.Answers().yearMonths["2008"] = {6, 8};
    const std::string list = "IA_EnSubsidiary.iMonth.ListSource = 6月,7月,8月,";
    ExpectChanges(
        host, {
                  {kDetailLedger,
                   {"IA_EnSubsidiary.iYear"},
                   {"IA_EnSubsidiary.iYear.ListSource = ", "IA_EnSubsidiary.iYear.varValue = 2008"}},
                  {kDetailLedger,
                   {"IA_EnSubsidiary.iMonth"},
                   {list, "IA_EnSubsidiary.iMonth.varValue = 7月", "IA_EnSubsidiary.iMonth.varValue2 = 7月"}},
                  {kDetailLedger, {"IA_EnSubsidiary.iMonth", "6月"}, {list}},
                  {kDetailLedger, {"ia_ensubsidiary.imonth"}, {}},
              });
}

}  // namespace kavelin::test
