// The where-clause piece by which a report shows a user only the warehouses, departments, inventory
// items and operators that he may see.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// The piece for the column `strField`, or "" where nothing is restricted. `strKind` is "仓库" (warehouse),
// "部门" (department), "存货" (inventory) or "操作员" (operator); any other gives "". With permissions off a
// warehouse column is still limited to warehouses that take part in costing, unless `blnNoCostLimit`.
std::string GetDataPermissionClause(const std::string& strField, std::string_view strKind, bool blnForWrite,
                                    bool blnNoCostLimit);

// The user's codes as the authorisation service lists them, ready for an IN; "" for no restriction, "Null"
// for no right at all.
std::string GetWarehouseAuth(bool blnForWrite);
std::string GetDepartmentAuth(bool blnForWrite);
std::string GetInventoryAuth(bool blnForWrite);
std::string GetUserAuth(bool blnForWrite);

// The list of `strObject`, or of the object "djmb" under a rule. Swallows every error: a service that fails
// restricts nothing.
std::string GetAuthClause(const std::string& strObject, const std::string& strRule,
                          const std::string& strAction);

// Whether the account restricts the authorisation object `strKind`. Operators are always asked for.
bool IsAuthSwitchedOn(const std::string& strKind);

}  // namespace kavelin
