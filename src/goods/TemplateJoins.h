// How a ledger line of goods in transit reaches its source document: by one of four sets of joins, which depends
// on the kind of voucher.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// On what the source documents are joined. "1=2" keeps the columns of a table in the statement without its rows.
struct JoinSet {
    std::string_view saleLine, sale, dispatchLine, issueLine;
};

// Which templates have a statement.
enum class TemplateForm { Every, Merged, Other };

// One statement of a pass: the vouchers that it takes and how their source is reached.
struct VoucherGroup {
    const JoinSet& joins;
    std::string_view condition;  // on the voucher type, with " And" before it
    TemplateForm form;
};

// In the order in which they run. A merge value of "1" is the form that takes dispatch notes and sale issues apart.
std::span<const VoucherGroup> VoucherGroups();

// Whether the group has a statement in a template of that merge value.
bool Takes(const VoucherGroup& group, std::string_view strIsMerge);

// The source tables with all their joins, a line each with a line end behind it. The auxiliary unit is that of the
// number in its group.
std::string JoinTemplate(const JoinSet& joins, std::int32_t lngUnitNumber);

}  // namespace kavelin
