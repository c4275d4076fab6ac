// Lists of voucher types and business types, as the filters of the reports hand them over and their statements
// need them.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// Parts of `strList`, which stand between tab characters, each trimmed and in single quotes, joined by ",".
// An empty list stays empty.
std::string QuoteCodeList(const std::string& strList);

// The same for business types as the dialog shows them: each is turned into its code and written N'code'.
std::string QuoteBusTypes(const std::string& strList);

// QuoteBusTypes, and whoever chooses 委托代销 gets its short form 委托 as well.
std::string QuoteBusTypeList(const std::string& strList);

// The forms in which statements ask for a list of voucher types. The types 01, 30 and 70 have two halves in
// the ledger, told apart by bFlag; the dialog's pseudo codes 011, 301 and 701 stand for the estimated ones.
struct VouTypes {
    std::string strMain;     // list for the ledger: without halves, with the codes that belong together
    std::string strFlagged;  // conditions on single halves, joined by OR
    std::string strPlain;    // list for the documents, which have no halves
};

// `strVouTypes` is a list of QuoteCodeList. Both halves of a type together are the type without a test of
// bFlag.
VouTypes SplitVouTypes(const std::string& strVouTypes);

}  // namespace kavelin
