#include "demo/Company.h"

#include "demo/ItemFamilies.h"

#include <algorithm>
#include <array>

namespace kavelin::demo {

namespace {

constexpr Warehouse kWarehouses[] = {
    {"01", "原材料库", "0401", kMovingAverage, true},
    {"02", "产成品库", "0402", kMovingAverage, true},
    {"03", "辅料库", "0401", kPlannedPrice, true},
    {"04", "代保管库", "0402", kMovingAverage, false},
};

constexpr Party kVendors[] = {
    {"V001", "江南特钢有限公司", "江南特钢", "01"},
    {"V002", "华峰金属材料有限公司", "华峰金属", "01"},
    {"V003", "东海铜业股份有限公司", "东海铜业", "01"},
    {"V004", "新光化工有限公司", "新光化工", "01"},
    {"V005", "恒固标准件厂", "恒固", "02"},
    {"V006", "北岭轴承有限公司", "北岭轴承", "02"},
    {"V007", "正源电机有限公司", "正源电机", "02"},
    {"V008", "联通达电气有限公司", "联通达", "02"},
    {"V009", "润科油品经营部", "润科", "03"},
    {"V010", "安信劳保用品商行", "安信", "03"},
};

constexpr Party kCustomers[] = {
    {"C001", "滨江自来水公司", "滨江水司", "01"},
    {"C002", "城东污水处理厂", "城东污水", "01"},
    {"C003", "金桥建设集团", "金桥建设", "02"},
    {"C004", "宏达机电设备有限公司", "宏达机电", "02"},
    {"C005", "南山热电厂", "南山热电", "01"},
    {"C006", "远洋船舶修造有限公司", "远洋船修", "02"},
    {"C007", "绿源农业灌溉公司", "绿源", "02"},
    {"C008", "西部石化工程公司", "西部石化", "02"},
    {"C009", "Harbour Pump Trading Ltd", "Harbour", "03"},
};

constexpr std::string_view kColours[] = {"蓝", "灰", "红"};

struct Named {
    std::string_view code, name;
};

constexpr Named kInventoryClasses[] = {
    {"01", "原材料"},     {"0101", "钢材"},     {"0102", "有色金属"}, {"0103", "化工原料"}, {"02", "外购件"},
    {"0201", "紧固件"},   {"0202", "轴承密封"}, {"0203", "电气元件"}, {"03", "辅料"},       {"0301", "油品"},
    {"0302", "劳保焊材"}, {"04", "产成品"},     {"0401", "水泵"},     {"0402", "阀门"},     {"05", "服务"},
};

constexpr Named kDepartments[] = {
    {"01", "采购部"}, {"02", "生产部"},   {"0201", "一车间"}, {"0202", "二车间"}, {"03", "销售部"},
    {"04", "仓储部"}, {"0401", "材料组"}, {"0402", "成品组"}, {"05", "财务部"},
};

// One character for the direction, two for the kind, as the parameter cDispLevel says.
constexpr Named kRdStyles[] = {
    {"1", "入库"}, {"101", "采购入库"}, {"102", "产成品入库"}, {"103", "其他入库"}, {"104", "盘盈入库"},
    {"2", "出库"}, {"201", "材料领用"}, {"202", "销售出库"},   {"203", "其他出库"}, {"204", "盘亏出库"},
};

constexpr Named kVendorClasses[] = {{"01", "材料供应商"}, {"02", "配件供应商"}, {"03", "辅料供应商"}};
constexpr Named kCustomerClasses[] = {{"01", "市政客户"}, {"02", "工程客户"}, {"03", "海外客户"}};

constexpr Named kPersons[] = {
    {"P01", "陈建国"}, {"P02", "李秀英"}, {"P03", "王志强"}, {"P04", "张敏"},
    {"P05", "刘洋"},   {"P06", "赵丽华"}, {"P07", "周伟"},   {"P08", "吴芳"},
};

struct UnitGroup {
    std::string_view code;
    std::int32_t type;  // 1 fixed rates, 2 floating rates
};

constexpr UnitGroup kUnitGroups[] = {{"01", 1}, {"02", 1}, {"03", 1}, {"04", 2}, {"05", 1}, {"06", 1}};

struct Unit {
    std::string_view code, name, group;
    std::int32_t number;  // within the group, 0 is the main unit
    double rate;          // in main units
};

constexpr Unit kUnits[] = {
    {"KG", "千克", "01", 0, 1},   {"T", "吨", "01", 1, 1000},    {"M", "米", "02", 0, 1},
    {"ROLL", "卷", "02", 1, 100}, {"PCS", "个", "03", 0, 1},     {"BOX", "盒", "03", 1, 100},
    {"L", "升", "04", 0, 1},      {"BARREL", "桶", "04", 1, 20}, {"PAIR", "双", "05", 0, 1},
    {"DOZEN", "打", "05", 1, 12}, {"SET", "台", "06", 0, 1},
};

std::string_view WarehouseOf(std::string_view itemClass)
{
    if (itemClass.starts_with("03"))
        return "03";
    return itemClass.starts_with("04") ? "02" : "01";
}

std::string ThreeDigits(std::int64_t number)
{
    std::string digits = std::to_string(number);
    return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

// The first of a family is as the table says; each further one is another model of it, dearer and rarer.
Item MakeItem(const ItemFamily& family, std::int64_t variant)
{
    const bool counted = family.unit == "PCS" || family.unit == "SET" || family.unit == "PAIR";

    Item item;
    item.code = std::string(family.code) + "-" + ThreeDigits(variant + 1);
    item.name = std::string(family.name);
    if (variant > 0)
        item.name += " " + std::to_string(variant + 1) + "型";
    item.model = family.model;
    item.itemClass = family.itemClass;
    item.unit = family.unit;
    item.price = family.price + family.price * (variant % 7) / 10;
    item.step = counted ? 100 : 10;
    item.lot = std::max<std::int64_t>(family.lot * 100 * 3 / (3 + variant), 10 * item.step);
    item.lot -= item.lot % item.step;
    item.weight = static_cast<int>(std::max<std::int64_t>(family.weight * 12 / (12 + variant), 1));
    item.supply = family.itemClass.starts_with("04") ? Supply::Made : Supply::Bought;
    item.kept = family.kept;
    item.warehouse = WarehouseOf(family.itemClass);
    return item;
}

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
    sink.BeginTable(table, columns);
    for (const Named& row : rows)
        sink.AddRow(std::array<Value, 2>{row.code, row.name});
}

void WriteItems(const Company& company, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {
        "cInvCode",    "cInvCCode",   "cInvName",     "cInvAddCode",    "cInvStd",    "cInvDefine1",
        "cInvDefine2", "iInvWeight",  "cComUnitCode", "cSTComUnitCode", "cGroupCode", "cValueType",
        "bCheckFree1", "bCheckBatch", "iid",          "bPurchase",      "bSale",      "bComsume",
        "bService",    "bInvType",    "iInvSPrice"};
    sink.BeginTable("Inventory", kColumns);

    std::int32_t number = 1000;
    for (const Item& item : company.items) {
        ++number;
        const bool made = item.supply == Supply::Made;
        const Unit& unit = UnitOf(item.unit);
        const Unit* stockUnit = FindUnit(unit.group, 1);
        // Every fifth item has no second code.
        const Value secondCode =
            number % 5 == 0 ? Value::Null() : Value("69" + std::to_string(40000000 + number));
        const Value shelfLife = item.kept == Kept::Batches ? Value("12个月") : Value::Null();
        sink.AddRow(std::array<Value, std::size(kColumns)>{item.code,
                                                           item.itemClass,
                                                           item.name,
                                                           secondCode,
                                                           item.model,
                                                           made ? "本厂" : "外购",
                                                           shelfLife,
                                                           made ? 36.5 : 1.0,
                                                           item.unit,
                                                           stockUnit ? stockUnit->code : unit.code,
                                                           unit.group,
                                                           ValuationOf(item.warehouse),
                                                           item.kept == Kept::Colours,
                                                           item.kept == Kept::Batches,
                                                           std::to_string(number),
                                                           !made,
                                                           made || item.itemClass == "0202",
                                                           !made,
                                                           false,
                                                           false,
                                                           static_cast<double>(item.price) / 100.0});
    }

    const Value null = Value::Null();
    sink.AddRow(std::array<Value, std::size(kColumns)>{
        "SRV-01-001", "05",  "运输服务", null, null, null, null,  null, "SET", null, "06",
        null,         false, false,      null, true, true, false, true, true,  null});
}

void WriteUnits(RowSink& sink)
{
    static constexpr std::string_view kGroupColumns[] = {"cGroupCode", "iGroupType"};
    sink.BeginTable("ComputationGroup", kGroupColumns);
    for (const UnitGroup& group : kUnitGroups)
        sink.AddRow(std::array<Value, 2>{group.code, group.type});

    static constexpr std::string_view kUnitColumns[] = {"cComUnitCode", "cComUnitName", "cGroupCode",
                                                        "iNumber",      "bMainUnit",    "iChangRate"};
    sink.BeginTable("ComputationUnit", kUnitColumns);
    for (const Unit& unit : kUnits)
        sink.AddRow(
            std::array<Value, 6>{unit.code, unit.name, unit.group, unit.number, unit.number == 0, unit.rate});
}

void WriteParties(RowSink& sink)
{
    static constexpr std::string_view kVendorColumns[] = {"cVenCode", "cVenName", "cVCCode"};
    sink.BeginTable("Vendor", kVendorColumns);
    for (const Party& vendor : kVendors)
        sink.AddRow(std::array<Value, 3>{vendor.code, vendor.name, vendor.partyClass});

    static constexpr std::string_view kCustomerColumns[] = {"cCusCode", "cCusName", "cCusAbbName", "cCCCode"};
    sink.BeginTable("Customer", kCustomerColumns);
    for (const Party& customer : kCustomers)
        sink.AddRow(
            std::array<Value, 4>{customer.code, customer.name, customer.shortName, customer.partyClass});
}

void WriteWarehouses(RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {"cWhCode", "cWhName", "cDepCode", "bInCost",
                                                    "cWhValueStyle"};
    sink.BeginTable("Warehouse", kColumns);
    for (const Warehouse& warehouse : kWarehouses)
        sink.AddRow(std::array<Value, 5>{warehouse.code, warehouse.name, warehouse.department,
                                         warehouse.inCost, warehouse.valuation});
}

void WritePeriods(RowSink& sink)
{
    using namespace std::chrono;

    static constexpr std::string_view kColumns[] = {"cAcc_ID", "iYear", "iID", "dBegin", "dEnd", "bIsDelete"};
    sink.BeginTable("VosSystem..UA_Period", kColumns);
    const auto add = [&](int year, int month) {
        const year_month_day first{std::chrono::year(year) / month / 1};
        const year_month_day last{std::chrono::year(year) / month / std::chrono::last};
        sink.AddRow(std::array<Value, 6>{"001", year, month, DateTime(sys_days(first)),
                                         DateTime(sys_days(last)), false});
    };
    for (int year = 2007; year <= 2009; ++year)
        for (int month = 1; month <= 12; ++month)
            add(year, month);
    add(9999, 12);
}

}  // namespace

std::span<const Warehouse> Warehouses()
{
    return kWarehouses;
}

std::span<const Party> Vendors()
{
    return kVendors;
}

std::span<const Party> Customers()
{
    return kCustomers;
}

std::span<const std::string_view> Colours()
{
    return kColours;
}

std::string_view ValuationOf(std::string_view warehouse)
{
    return std::ranges::find(kWarehouses, warehouse, &Warehouse::code)->valuation;
}

Company MakeCompany(std::int64_t lines)
{
    const std::span<const ItemFamily> families = ItemFamilies();
    const auto familyCount = static_cast<std::int64_t>(families.size());
    const std::int64_t itemCount = familyCount + std::max<std::int64_t>(lines - 6000, 0) / 1050;

    Company company;
    for (std::int64_t i = 0; i < itemCount; ++i)
        company.items.push_back(
            MakeItem(families[static_cast<std::size_t>(i % familyCount)], i / familyCount));
    return company;
}

void WriteMasterData(const Company& company, RowSink& sink)
{
    WritePeriods(sink);
    WriteNamed(sink, "InventoryClass", "cInvCCode", "cInvCName", kInventoryClasses);
    WriteItems(company, sink);
    WriteUnits(sink);
    WriteWarehouses(sink);
    WriteNamed(sink, "Department", "cDepCode", "cDepName", kDepartments);
    WriteNamed(sink, "Person", "cPersonCode", "cPersonName", kPersons);
    WriteNamed(sink, "Rd_Style", "cRdCode", "cRdName", kRdStyles);
    WriteNamed(sink, "VendorClass", "cVCCode", "cVCName", kVendorClasses);
    WriteNamed(sink, "CustomerClass", "cCCCode", "cCCName", kCustomerClasses);
    WriteParties(sink);
}

}  // namespace kavelin::demo
