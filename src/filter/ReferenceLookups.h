// SELECT texts of the reference lookups: what a field offers to that user.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// A caption in the language of the login: a code of an enumeration.
struct Caption {
    std::string_view enumType;
    std::string_view code;
};

// A lookup of warehouses or departments. The texts of the dialogs differ a little, and stay as they are:
//   SELECT code as [caption] ,name as [caption] FROM ... where ... AND (permission) ORDER BY code
struct ReferenceLookup {
    std::string_view kind;  // of the data permission: "仓库" or "部门"

    std::string_view selectCode;  // up to the caption of the code
    Caption codeCaption;
    std::string_view selectName;  // from there to the caption of the name
    Caption nameCaption;
    std::string from;  // from there to the costing condition, both included
    std::string_view orderBy;
};

extern const ReferenceLookup kWarehouses;          // ABC, turnover, capital share, estimate balance
extern const ReferenceLookup kDepartments;         // the same
extern const ReferenceLookup kJournalWarehouses;   // journal, price analysis, standard-cost journal
extern const ReferenceLookup kJournalDepartments;  // the same
extern const ReferenceLookup kSummaryWarehouses;   // receipt-issue-balance summary

// The text of a lookup, limited to what the user may write. `condition` stands in front of the permission.
std::string SelectReferences(const ReferenceLookup& lookup, const std::string& condition = "");

// Conditions on the codes of voucher types.
struct VoucherTypeLists {
    std::string_view industrial;  // in an account of the industrial edition
    std::string_view other;       // in any other
};

extern const VoucherTypeLists kVoucherTypes;
extern const VoucherTypeLists kVoucherTypesOfStandardCost;   // without outsourcing receipts
extern const std::string_view kVoucherTypesOfPriceAnalysis;  // on top of kVoucherTypes

// The lookup of voucher types, in the language of gstrLanguage. Types that are shown in two parts by the way
// they are posted stand in it whatever the lists say.
std::string SelectVoucherTypes(const VoucherTypeLists& lists, std::string_view furtherCondition);

}  // namespace kavelin
