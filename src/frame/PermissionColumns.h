// The columns by which each report is restricted to what its user may see, in the order of its clauses.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

struct PermissionColumn {
    std::string_view field;  // as the report's statement knows it; a leading blank is part of the text
    std::string_view kind;   // of GetDataPermissionClause
    bool noCostLimit = false;
    bool forWrite = false;
    std::string_view valueStyle = {};  // only in an account that values this way; empty: in every account
};

// Of a report by its class; clsIASFCReport has a second set, "clsIASFCReport unposted". Throws Error for a
// class that has none.
std::span<const PermissionColumn> PermissionColumnsOf(std::string_view report);

// " and " and the piece, for each column that has one, in order. `strValueStyle` is the account's
// cValueStyle, for reports that need it.
std::string BuildPermissionClauses(std::span<const PermissionColumn> columns,
                                   std::string_view strValueStyle = {});

}  // namespace kavelin
