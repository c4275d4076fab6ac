#include "frame/DataPermission.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

constexpr std::string_view kNoRight = "Null";

bool IsOn(const char* name)
{
    return ToUpper(ToText(GetAccInfoValue("IA", name))) == "TRUE";
}

std::string WarehouseClause(const std::string& field, bool forWrite, bool noCostLimit)
{
    if (IsOn("bWarehouseCheck")) {
        const std::string list = GetWarehouseAuth(forWrite);
        return list.empty() ? ""
                            : " ((" + field + " IN (Select cWhCode From Warehouse Where bInCost = 1) and " +
                                  field + " IN (" + list + ")) or " + field + " is null)";
    }
    return noCostLimit ? ""
                       : " ((" + field + " IN (Select cWhCode From Warehouse Where bInCost = 1))  or " +
                             field + " is null) ";
}

std::string DepartmentClause(const std::string& field, bool forWrite)
{
    const std::string list = IsOn("bDepartmentCheck") ? GetDepartmentAuth(forWrite) : "";
    return list.empty() ? "" : "(" + field + " IN (" + list + ") or " + field + " is null)";
}

std::string InventoryClause(const std::string& field, bool forWrite)
{
    const std::string list = IsOn("bInventoryCheck") ? GetInventoryAuth(forWrite) : "";
    return list.empty() ? "" : " isnull(" + field + ", N'') IN (" + list + ")";
}

std::string OperatorClause(const std::string& field, bool forWrite)
{
    const std::string list = IsOn("bOperatorCheck") ? GetUserAuth(forWrite) : "";
    if (list == kNoRight)
        return "(" + field + " is null)";
    return list.empty() ? "" : field + " IN (" + list + ")";
}

std::string WriteOr(bool forWrite, const char* readAction)
{
    return forWrite ? "W" : readAction;
}

// Gives gobjAuth back, whatever happens.
struct AuthGuard {
    ~AuthGuard() { ModPub().gobjAuth.reset(); }
};

std::string AskForList(const std::string& object, const std::string& rule, const std::string& action)
{
    const AuthGuard guard;
    ModPubState& state = ModPub();
    LoginContext& login = Existing(state.gobjLogin);
    state.gobjAuth = login.AuthService();
    if (!state.gobjAuth) {
        state.gobjAuth = CurrentPlatform().CreateAuthService();
        const std::string connectionText = login.ConnectionText();
        state.gobjAuth->Initialise(connectionText, login.UserId());
    }

    if (rule == "103")
        return "";
    const std::string answer = rule.empty() ? state.gobjAuth->GetList(object, rule, action)
                                            : state.gobjAuth->GetList("djmb", rule, action);
    return answer.find("1=2") != std::string::npos ? std::string(kNoRight) : answer;
}

}  // namespace

std::string GetDataPermissionClause(const std::string& strField, std::string_view strKind, bool blnForWrite,
                                    bool blnNoCostLimit)
{
    if (strKind == "仓库")
        return WarehouseClause(strField, blnForWrite, blnNoCostLimit);
    if (strKind == "部门")
        return DepartmentClause(strField, blnForWrite);
    if (strKind == "存货")
        return InventoryClause(strField, blnForWrite);
    if (strKind == "操作员")
        return OperatorClause(strField, blnForWrite);
    return "";
}

std::string GetWarehouseAuth(bool blnForWrite)
{
    return GetAuthClause("Warehouse", "", WriteOr(blnForWrite, ""));
}

std::string GetDepartmentAuth(bool blnForWrite)
{
    return GetAuthClause("Department", "", WriteOr(blnForWrite, ""));
}

std::string GetInventoryAuth(bool blnForWrite)
{
    return GetAuthClause("Inventory", "", WriteOr(blnForWrite, ""));
}

std::string GetUserAuth(bool blnForWrite)
{
    return GetAuthClause("User", "", WriteOr(blnForWrite, "R"));
}

std::string GetAuthClause(const std::string& strObject, const std::string& strRule,
                          const std::string& strAction)
{
    try {
        return IsAuthSwitchedOn(strObject) ? AskForList(strObject, strRule, strAction) : "";
    } catch (...) {
        return "";
    }
}

bool IsAuthSwitchedOn(const std::string& strKind)
{
    const std::string kind = ToLower(strKind);
    const char* name = kind == "warehouse"    ? "bWarehouseCheck"
                       : kind == "department" ? "bDepartmentCheck"
                       : kind == "inventory"  ? "bInventoryCheck"
                                              : nullptr;
    return !name || ToLower(ToText(GetAccInfoValue("IA", name))) == "true";
}

}  // namespace kavelin
