// The master data as rows.
#include "demo/company/Company.h"
#include "demo/company/RdStyles.h"
#include "frame/Value.h"

#include <algorithm>
#include <array>

namespace kavelin::demo {

namespace {

struct Named {
    std::string_view code, name;
};

constexpr Named kInventoryClasses[] = {
    {"01", "原材料"},       {"0101", "钢材"},       {"0102", "有色金属"}, {"0103", "化工原料"},
    {"010301", "橡塑板材"}, {"010302", "特种涂料"}, {"0104", "铸件"},     {"010401", "铸铁件"},
    {"010402", "铸钢件"},   {"02", "外购件"},       {"0201", "紧固件"},   {"020101", "高强紧固件"},
    {"0202", "轴承密封"},   {"020201", "油封"},     {"020202", "垫片"},   {"0203", "电气元件"},
    {"020301", "仪表"},     {"03", "辅料"},         {"0301", "油品"},     {"030101", "胶粘剂"},
    {"0302", "劳保焊材"},   {"030201", "劳保服装"}, {"0303", "包装物"},   {"030301", "木质包装"},
    {"04", "产成品"},       {"0401", "水泵"},       {"040101", "自吸泵"}, {"040102", "民用泵"},
    {"0402", "阀门"},       {"040201", "蝶阀"},     {"040202", "民用阀"}, {"05", "服务"},
};

constexpr Named kDepartments[] = {
    {"01", "采购部"},   {"02", "生产部"},   {"0201", "一车间"}, {"0202", "二车间"},
    {"03", "销售部"},   {"0301", "门市部"}, {"0302", "卖场"},   {"04", "仓储部"},
    {"0401", "材料组"}, {"0402", "成品组"}, {"0403", "辅料组"}, {"05", "财务部"},
};

constexpr Named kRdStyles[] = {
    {"1", "入库"},
    {kRdPurchase, "采购入库"},
    {kRdFinished, "产成品入库"},
    {kRdOtherIn, "其他入库"},
    {kRdCountSurplus, "盘盈入库"},
    {kRdSubcontracted, "委外加工入库"},
    {kRdConsigned, "受托代销入库"},
    {kRdVendorManaged, "代管挂账入库"},
    {kRdTransferIn, "调拨入库"},
    {kRdAssemblyIn, "组装入库"},
    {kRdDisassemblyIn, "拆卸入库"},
    {kRdConversionIn, "转换入库"},
    {kRdAdjustmentIn, "入库调整"},
    {kRdDirectPurchase, "直运采购"},
    {kRdPurchaseReturn, "采购退货"},
    {kRdImport, "进口采购入库"},
    {"2", "出库"},
    {kRdMaterial, "材料领用"},
    {kRdSale, "销售出库"},
    {kRdOtherOut, "其他出库"},
    {kRdCountShortage, "盘亏出库"},
    {kRdToSubcontractor, "委外发料"},
    {kRdEntrusted, "委托代销出库"},
    {kRdInstalment, "分期收款出库"},
    {kRdTransferOut, "调拨出库"},
    {kRdAssemblyOut, "组装出库"},
    {kRdDisassemblyOut, "拆卸出库"},
    {kRdConversionOut, "转换出库"},
    {kRdAdjustmentOut, "出库调整"},
    {kRdDirectSale, "直运销售"},
    {kRdSaleReturn, "销售退货"},
    {kRdExport, "出口销售"},
    {kRdSpareParts, "备件领用"},
};

constexpr Named kVendorClasses[] = {
    {"01", "材料供应商"},
    {"02", "配件供应商"},
    {"03", "辅料供应商"},
    {kConsigning, "受托代销供应商"},
    {kSubcontractors, "委外加工商"},
    {kVendorManaged, "代管供应商"},
    {kImporters, "境外供应商"},
};

constexpr Named kCustomerClasses[] = {
    {"01", "市政客户"}, {"02", "工程客户"}, {kExportCustomers, "海外客户"}, {kAgents, "代销商"}};

struct UnitGroup {
    std::string_view code;
    std::int32_t type;  // 1 fixed rates, 2 floating rates
};

constexpr UnitGroup kUnitGroups[] = {{"01", 1}, {"02", 1}, {"03", 1}, {"04", 2},
                                     {"05", 1}, {"06", 1}, {"07", 2}};

struct Unit {
    std::string_view code, name, group;
    std::int32_t number;  // within the group, 0 is the main unit
    double rate;          // in main units
};

constexpr Unit kUnits[] = {
    {"KG", "千克", "01", 0, 1},    {"T", "吨", "01", 1, 1000},      {"BAG", "袋", "01", 2, 25},
    {"M", "米", "02", 0, 1},       {"ROLL", "卷", "02", 1, 100},    {"PCS", "个", "03", 0, 1},
    {"BOX", "盒", "03", 1, 100},   {"CARTON", "箱", "03", 2, 1000}, {"L", "升", "04", 0, 1},
    {"BARREL", "桶", "04", 1, 20}, {"PAIR", "双", "05", 0, 1},      {"DOZEN", "打", "05", 1, 12},
    {"SET", "台", "06", 0, 1},     {"M2", "平方米", "07", 0, 1},    {"SHEET", "张", "07", 1, 1.44},
};

const Unit* FindUnit(std::string_view group, std::int32_t number)
{
    const auto found = std::ranges::find_if(
        kUnits, [&](const Unit& unit) { return unit.group == group && unit.number == number; });
    return found == std::end(kUnits) ? nullptr : &*found;
}

const Unit& UnitOf(std::string_view code)
{
    return *std::ranges::find(kUnits, code, &Unit::code);
}

void WriteNamed(RowSink& sink, std::string_view table, std::string_view code, std::string_view name,
                std::span<const Named> rows)
{
    const std::string_view columns[] = {code, name};
    RowTable& out = sink.Open(table, columns);
    for (const Named& row : rows)
        out.Add(std::array<Value, 2>{row.code, row.name});
}

void WriteItems(const Company& company, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {
        "cInvCode",       "cInvCCode",   "cInvName",    "cInvAddCode", "cInvStd",     "cInvDefine1",
        "cInvDefine2",    "cInvDefine3", "cInvDefine4", "cInvDefine5", "iInvWeight",  "cComUnitCode",
        "cSTComUnitCode", "cGroupCode",  "cValueType",  "bCheckFree1", "bCheckBatch", "iid",
        "bPurchase",      "bSale",       "bComsume",    "bService",    "bInvType",    "iInvSPrice"};
    constexpr std::string_view kBuyers[] = {"陈建国", "李秀英"};
    constexpr std::string_view kSafety[] = {"一般", "易燃", "贵重"};
    using Row = std::array<Value, std::size(kColumns)>;
    RowTable& out = sink.Open("Inventory", kColumns);

    const Value null = Value::Null();
    std::size_t number = 0;
    for (const Item& item : company.items) {
        ++number;
        const bool made = item.supply == Supply::Made;
        const bool sold = item.itemClass.starts_with("04") || item.itemClass.starts_with("0202");
        const Unit& unit = UnitOf(item.unit);
        const Unit* stockUnit = FindUnit(unit.group, 1);
        // Every fifth item has no second code.
        const Value secondCode = number % 5 == 0 ? null : Value("69" + std::to_string(40001000 + number));
        const std::string_view safety = item.itemClass.starts_with("0103") ? kSafety[1]
                                        : item.price >= 100'000            ? kSafety[2]
                                                                           : kSafety[0];
        out.Add(Row{item.code,
                    item.itemClass,
                    item.name,
                    secondCode,
                    item.model,
                    made ? "本厂" : "外购",
                    item.kept == Kept::Batches ? Value("12个月") : null,
                    safety,
                    made ? null : Value(kBuyers[number % 2]),
                    number % 3 == 0 ? Value("TH-" + item.code) : null,
                    made ? 36.5 : 1.0,
                    item.unit,
                    stockUnit ? stockUnit->code : unit.code,
                    unit.group,
                    item.valuation,
                    item.kept == Kept::Colours,
                    item.kept == Kept::Batches,
                    item.id,
                    !made,
                    sold,
                    !item.itemClass.starts_with("04"),
                    false,
                    false,
                    static_cast<double>(item.price) / 100.0});
    }
    out.Add(Row{"SRV-01-001", "05", "运输服务", null,  null,  null, null, null, null,  null, null, "SET",
                null,         "06", null,       false, false, null, true, true, false, true, true, null});
}

void WriteUnits(RowSink& sink)
{
    static constexpr std::string_view kGroupColumns[] = {"cGroupCode", "iGroupType"};
    RowTable& groups = sink.Open("ComputationGroup", kGroupColumns);
    for (const UnitGroup& group : kUnitGroups)
        groups.Add(std::array<Value, 2>{group.code, group.type});

    static constexpr std::string_view kUnitColumns[] = {"cComUnitCode", "cComUnitName", "cGroupCode",
                                                        "iNumber",      "bMainUnit",    "iChangRate"};
    RowTable& units = sink.Open("ComputationUnit", kUnitColumns);
    for (const Unit& unit : kUnits)
        units.Add(
            std::array<Value, 6>{unit.code, unit.name, unit.group, unit.number, unit.number == 0, unit.rate});
}

void WritePartners(RowSink& sink)
{
    static constexpr std::string_view kVendorColumns[] = {"cVenCode", "cVenName", "cVCCode"};
    RowTable& vendors = sink.Open("Vendor", kVendorColumns);
    for (const Party& vendor : Vendors())
        vendors.Add(std::array<Value, 3>{vendor.code, vendor.name, vendor.partyClass});

    static constexpr std::string_view kCustomerColumns[] = {"cCusCode", "cCusName", "cCusAbbName", "cCCCode"};
    RowTable& customers = sink.Open("Customer", kCustomerColumns);
    for (const Party& customer : Customers())
        customers.Add(
            std::array<Value, 4>{customer.code, customer.name, customer.shortName, customer.partyClass});

    static constexpr std::string_view kPersonColumns[] = {"cPersonCode", "cPersonName"};
    RowTable& persons = sink.Open("Person", kPersonColumns);
    for (const Person& person : Persons())
        persons.Add(std::array<Value, 2>{person.code, person.name});
}

void WriteWarehouses(const Company& company, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {"cWhCode", "cWhName", "cDepCode", "bInCost",
                                                    "cWhValueStyle"};
    RowTable& out = sink.Open("Warehouse", kColumns);
    for (const Warehouse& warehouse : company.warehouses)
        out.Add(std::array<Value, 5>{warehouse.code, warehouse.name, warehouse.department, warehouse.inCost,
                                     warehouse.valuation});
}

void WritePeriods(RowSink& sink)
{
    using namespace std::chrono;

    static constexpr std::string_view kColumns[] = {"cAcc_ID", "iYear", "iID", "dBegin", "dEnd", "bIsDelete"};
    RowTable& out = sink.Open("VosSystem..UA_Period", kColumns);
    const auto add = [&](int year, int month) {
        const year_month_day first{std::chrono::year(year) / month / 1};
        const year_month_day last{std::chrono::year(year) / month / std::chrono::last};
        const bool deleted = year == 2007 && month == 6;
        out.Add(std::array<Value, 6>{"001", year, month, DateTime(sys_days(first)), DateTime(sys_days(last)),
                                     deleted});
    };
    for (int year = 2007; year <= 2009; ++year)
        for (int month = 1; month <= 12; ++month)
            add(year, month);
    add(9999, 12);
}

}  // namespace

void WriteMasterData(const Company& company, RowSink& sink)
{
    WritePeriods(sink);
    WriteNamed(sink, "InventoryClass", "cInvCCode", "cInvCName", kInventoryClasses);
    WriteItems(company, sink);
    WriteUnits(sink);
    WriteWarehouses(company, sink);
    WriteNamed(sink, "Department", "cDepCode", "cDepName", kDepartments);
    WriteNamed(sink, "Rd_Style", "cRdCode", "cRdName", kRdStyles);
    WriteNamed(sink, "VendorClass", "cVCCode", "cVCName", kVendorClasses);
    WriteNamed(sink, "CustomerClass", "cCCCode", "cCCName", kCustomerClasses);
    WritePartners(sink);
}

}  // namespace kavelin::demo
