#include "price/CostingKey.h"

#include "frame/Statement.h"

#include <algorithm>

namespace kavelin {

namespace {

// Where a batch doesn't count, a test compares a value with itself.
constexpr std::string_view kBatchByInventory =
    "and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1"
    " and inventory.cValueType in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') "
    " then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end    ";

constexpr std::string_view kBatchByWarehouse =
    "and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1"
    " and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') "
    " then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end    ";

constexpr std::string_view kBatchBackByInventory =
    "  and IsNull(s.cbatchia, N'') = case when isnull(Inventory.bCheckBatch,0)=1 and "
    "  inventory.cValueType "
    "   in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') "
    " then IsNull(t.cbatchia, N'') else IsNull(s.cbatchia, N'') end   ";

constexpr std::string_view kBatchBackByWarehouse =
    "  and IsNull(s.cbatchia, N'') = case when isnull(Inventory.bCheckBatch,0)=1 and "
    "warehouse.cWhValueStyle"
    "   in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') "
    " then IsNull(t.cbatchia, N'') else IsNull(s.cbatchia, N'') end   ";

constexpr std::string_view kWarehouseJoin = " left join Warehouse  On Warehouse.cWhCode = t.cWhCode";

// clang-format off
constexpr CostingKey kKeys[] = {
    // columns, their equality, the warehouse, the method, the batch both ways
    {"按存货核算",
     "", "",
     "", "cValueType", kBatchByInventory, kBatchBackByInventory},
    {"按部门核算",
     ",t.cWhCode,t.cDepCode ", " and t.cDepCode = s.cDepCode ",
     kWarehouseJoin, "cWhValueStyle", kBatchByWarehouse, kBatchBackByWarehouse},
    {"",
     ",t.cWhCode ", " and t.cWhCode = s.cWhCode",
     kWarehouseJoin, "cWhValueStyle", kBatchByWarehouse, kBatchBackByWarehouse},
};
// clang-format on

std::string FreeJoin()
{
    return Numbered(1, 10, " and  ISNULL(t.cFree{},N'') = ISNULL(s.cfree{},N'') ");
}

}  // namespace

const CostingKey& CostingKeyOf(std::string_view strValueStyle)
{
    return *std::ranges::find_if(kKeys, [&](const CostingKey& key) {
        return key.strValueStyle.empty() || key.strValueStyle == strValueStyle;
    });
}

std::string KeyJoins(const CostingKey& key)
{
    return std::string(key.strBatchJoin) + std::string(key.strKeyJoin) + FreeJoin();
}

std::string KeyJoinsBack(const CostingKey& key)
{
    return std::string(key.strBatchJoinBack) + std::string(key.strKeyJoin) + FreeJoin();
}

}  // namespace kavelin
