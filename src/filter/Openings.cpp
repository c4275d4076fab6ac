#include "filter/Openings.h"

#include "filter/CostingBasis.h"
#include "filter/OpeningSteps.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

// Business types of the journals. One stands in it twice.
const std::string kBusinessTypes =
    "普通采购,委外加工,受托代销,普通销售,委托代销,分期收款,直运采购,直运销售,出口发票,直运出口发票,领料,假退料,限额领料,直接供应,配比出库,"
    "委外发料,委外倒冲,委外盘点补差,生产倒冲,生产盘点补差,成品入库,调拨入库,调拨出库,组装入库,组装出库,拆卸入库,拆卸出库,转换入库,转换出库,"
    "盘盈入库,盘亏出库,降级入库,不合格品,其他入库,其他出库,签回损失,备件领用,委外发料,服务配件领用,一般贸易进口,进料加工,配件出库,配件退库";

constexpr const char* kSigns = "大于零,小于零,等于零";

// The user fields of the summary: field `n` of a family is entry `n + plus` of the user's dictionary.
constexpr struct {
    const char* family;
    int first;
    int last;
    int plus;
} kUserFields[] = {
    {"cfree", 1, 2, 19},      {"cfree", 3, 10, 25},       //
    {"cInvDefine", 1, 3, 16}, {"cInvDefine", 4, 10, 48},  //
    {"cdefine", 1, 3, 0},     {"cdefine", 8, 10, 0},      //
    {"cdefine", 11, 14, 25},  {"cdefine", 22, 25, 0},     //
    {"cdefine", 28, 33, 14},
};

void LimitUserFields(ReportFilterObject& filter)
{
    for (const auto& fields : kUserFields)
        for (int number = fields.first; number <= fields.last; ++number)
            filter.SetFieldRefCondition(fields.family + std::to_string(number), "",
                                        " cid = " + std::to_string(number + fields.plus) + " ");
}

}  // namespace

// clang-format off
void InitFilterJournal(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"iMonth",         {OpenMonths}},
        {"avgPrice",       {OpenMonths}},
        {"vouEstate",      {List("已记账单据,未记账单据")}},
        {"cDepCode",       {Unlock, LookUp(kJournalDepartments)}},
        {"cWhCode",        {Unlock, LookUp(kJournalWarehouses)}},
        {"NoSub.cBusType", {List(kBusinessTypes)}},
        {"cVouType",       {LookUpVoucherTypes(kVoucherTypes)}},
    };
    ModPub().gstrLanguage = Existing(ModPub().gobjLogin).LanguageRegion();
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
}

void InitFilterStandardCost(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"cDepCode", {Unlock, LookUpOfWarehouse(kJournalDepartments)}},
        {"cWhCode",  {Unlock, LookUp(kJournalWarehouses)}},
        {"cBusType", {List(kBusinessTypes)}},
        {"cVouType", {LookUpVoucherTypes(kVoucherTypesOfStandardCost)}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
    filter.SetFieldLocked("cDepCode", true);
}

void InitFilterStockSummary(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"cwhcode",      {LookUp(kSummaryWarehouses)}},
        {"vouEstate",    {List("已记账单据,未记账单据,直运单据")}},
        {"cItemCode",    {}},
        {"EndNum",       {List(kSigns)}},
        {"EndPrice",     {List(kSigns)}},
        {"incompareout", {List("入库大于出库,入库等于出库,入库小于出库")}},
        {"busEstate",    {List("所有业务,发生业务,出库未入库,入库未出库,未发生")}},
        {"rdGrade",      {SetValue("0")}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
    LimitUserFields(filter);
}

void InitFilterGoodsSummary(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"Ia_Ensubsidiary.cBustype", {DefaultText("IA.Bustype", "分期收款"),
                                      ListByParameter("IA", "bsaletype", "发出商品",
                                                      "分期收款,委托代销,普通销售,全部",
                                                      "分期收款,委托代销,全部")}},
        {"Ia_Ensubsidiary.cDepCode", {ClearFlag, ClearFlagOfSecondBox}},
        {"iYear",                    {Years}},
        {"DispatchList.cDLCode",     {LockOtherWhileFilled("rdrecord32.cCode")}},
        {"rdrecord32.cCode",         {LockOtherWhileFilled("DispatchList.cDLCode")}},
        {"IsMerge",                  {Default(kNo)}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
}

void InitFilterCostItem(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"IA_EnSubsidiary.iYear", {Years}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
}

void InitFilterDetailLedger(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"IA_EnSubsidiary.iYear",  {YearsThatLead}},
        {"IA_EnSubsidiary.iMonth", {MonthPairOfYear}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
}

void InitFilterEstimate(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"ia_subsidiary.cWhCode",  {ClearFlag, LookUp(kWarehouses)}},
        {"ia_subsidiary.cDepCode", {ClearFlag, LookUp(kDepartments)}},
        {"ia_subsidiary.cBusType", {ListByParameter("AA", "cSysVersion", "工业",
                                                    "普通采购,委外加工,一般贸易进口,进料加工",
                                                    "普通采购,受托代销,一般贸易进口,进料加工")}},
        {"ia_subsidiary.iMonth",   {MonthsOfYear}},
        {"ia_subsidiary.iyear",    {YearsThatLead}},
        {"ia_subsidiary.cVouType", {List("01,70")}},
        {"bDispCheckFreeOnly",     {Default(kNo)}},
        {"bDisZero",               {Default(kYes)}},
    };
    PrepareFields({filter, state}, KeyMatch::Exact, fields);
}

void InitFilterTurnover(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"cwhcode",   {ClearFlag, LookUp(kWarehouses)}},
        {"cdepcode",  {ClearFlag, LookUp(kDepartments)}},
        {"iyear",     {Years}},
        {"bgroupdep", {ClearFlag}},
    };
    PrepareFields({filter, state}, KeyMatch::AnyCase, fields);
}

void InitFilterABC(ReportFilterObject& filter, DialogState& state)
{
    static const std::vector<OpeningField> fields = {
        {"cwhcode",  {ClearFlag, LookUp(kWarehouses)}},
        {"cdepcode", {ClearFlag, LookUp(kDepartments)}},
        {"iyear",    {YearsThatLead}},
        {"iperiod",  {MonthsOfYear}},
        {"inclua",   {Default(kYes)}},
        {"inclub",   {Default(kYes)}},
        {"incluc",   {Default(kYes)}},
    };
    PrepareFields({filter, state}, KeyMatch::AnyCase, fields);
    SettleCostingBasis(filter, state.strCurYear);
    filter.ContextArgs()->Add(Value("1"), "ABC");
}
// clang-format on

}  // namespace kavelin
