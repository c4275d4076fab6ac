#include "frame/PermissionColumns.h"

#include "frame/DataPermission.h"
#include "frame/Errors.h"

namespace kavelin {

namespace {

// clang-format off
constexpr PermissionColumn kWtInfo[] = {
    {"NoSub.cWhCode",           "仓库"},
    {"NoSub.cAccDep",           "部门"},
    {" INVENTORY.iid",          "存货"},
};
constexpr PermissionColumn kStaCostacc[] = {
    {"cWhCode",                 "仓库"},
    {"cAccDep",                 "部门"},
};
constexpr PermissionColumn kIaAnalysis[] = {
    {"cWhCode",                 "仓库"},
    {"cAccDep",                 "部门"},
    {"iid",                     "存货"},
};
constexpr PermissionColumn kProPortion[] = {
    {"IA_Subsidiary.cWhCode",   "仓库"},
    {" Inventory.iid",          "存货"},
};
constexpr PermissionColumn kLastRep[] = {
    {"Ia_subsidiary.cWhCode",   "仓库"},
    {"Ia_subsidiary.caccdep",   "部门"},
    {" Inventory.iid",          "存货"},
};
constexpr PermissionColumn kCinTurnRep[] = {
    {"Ia_subsidiary.cWhCode",   "仓库", true},
    {"Ia_subsidiary.cDepCode",  "部门"},
    {" Inventory.iid",          "存货"},
};
constexpr PermissionColumn kSumCon[] = {
    {"Ia_Ensubsidiary.cWhCode", "仓库"},
    {"Ia_Ensubsidiary.cAccDep", "部门"},
    {" Inventory.iid",          "存货"},
};
constexpr PermissionColumn kAbc[] = {
    {"Ia_Summary.cWhCode",      "仓库", false, false, "按仓库核算"},
    {"Ia_Summary.cDepCode",     "部门", false, false, "按部门核算"},
    {" Inventory.iid",          "存货"},
};
constexpr PermissionColumn kSfcReport[] = {
    {"cWhCode",                 "仓库"},
    {"cdepcode",                "部门"},
    {" inventory.iid ",         "存货"},
};
constexpr PermissionColumn kSfcReportUnposted[] = {
    {"cWhCode",                 "仓库"},
    {"cdepcode",                "部门"},
    {" iid ",                   "存货"},
};
constexpr PermissionColumn kFilterControl[] = {
    {"WareHouse.cWhCode",       "仓库", false, true},
    {"WareHouse.cDepCode",      "部门", false, true},
};
// clang-format on

struct Report {
    std::string_view name;
    std::span<const PermissionColumn> columns;
};

constexpr Report kReports[] = {
    {"ClsWtInfo", kWtInfo},
    {"clsStaCostacc", kStaCostacc},
    {"clsIaAnalysis", kIaAnalysis},
    {"clsProPortion", kProPortion},
    {"clsLastRep", kLastRep},
    {"clsCinTurnRep", kCinTurnRep},
    {"ClsFcSumCon", kSumCon},
    {"clsSFCSumCon", kSumCon},
    {"ClsABC", kAbc},
    {"clsIASFCReport", kSfcReport},
    {"clsIASFCReport unposted", kSfcReportUnposted},
    {"clsFilterControl", kFilterControl},
};

}  // namespace

std::span<const PermissionColumn> PermissionColumnsOf(std::string_view report)
{
    for (const Report& candidate : kReports)
        if (candidate.name == report)
            return candidate.columns;
    throw Error("No permission columns are known of " + std::string(report) + ".");
}

std::string BuildPermissionClauses(std::span<const PermissionColumn> columns, std::string_view strValueStyle)
{
    std::string clauses;
    for (const PermissionColumn& column : columns) {
        if (!column.valueStyle.empty() && column.valueStyle != strValueStyle)
            continue;
        const std::string clause = GetDataPermissionClause(std::string(column.field), column.kind,
                                                           column.forWrite, column.noCostLimit);
        if (!clause.empty())
            clauses += " and " + clause;
    }
    return clauses;
}

}  // namespace kavelin
