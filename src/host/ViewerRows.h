// The rows that stand behind a document or an accounting voucher in the account.
#pragma once

#include "frame/Connection.h"
#include "host/LocalText.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

struct ViewerRows {
    LocalText title;
    std::unique_ptr<Recordset> rows;
};

// What a document is looked up by: its identity, its number within its voucher type, or a row of the ledger.
enum class DocumentKey { Identity, Number, LedgerRow };

// Head and lines of the document in a demo's tables of documents; its rows of the ledger where it is not in
// them. Nothing if it is nowhere. Throws DatabaseError.
std::vector<ViewerRows> FindDocument(Connection& account, std::string_view vouType, DocumentKey by,
                                     std::string_view key);

// The voucher, and the rows of both ledgers that it was made from in that year, also those whose cost
// differences it books. Nothing if it is nowhere. Throws DatabaseError.
std::vector<ViewerRows> FindVoucher(Connection& account, std::string_view id, std::int32_t year);

}  // namespace kavelin::host
