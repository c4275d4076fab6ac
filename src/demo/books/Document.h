// Documents as the events make them and the ledgers refer to them.
//
// All texts are views of data that lives as long as the company. Quantities are whole numbers of hundredths
// of the unit, amounts of cents.
#pragma once

#include "demo/company/Company.h"
#include "demo/company/Stockroom.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin::demo {

enum class DocumentKind {
    Stock,            // RD
    Dispatch,         // DISP
    SaleInvoice,      // SALE
    Consignment,      // EXCON
    ExportInvoice,    // EXINV
    PurchaseInvoice,  // PUR
    Adjustment,       // JUST
    VendorManaged     // VMI
};

// What all documents of a type share: static data of the events.
struct DocumentType {
    DocumentKind kind;
    std::string_view voucherType;   // of the document; empty for an export consignment
    std::string_view ledgerType;    // of the ledger rows that it is posted with: mostly the same
    std::string_view businessType;  // empty for NULL
    std::string_view rdCode;        // receipt-issue class, empty for NULL
    std::string_view prefix;        // of its numbers
    std::string_view orderPrefix;   // of the order behind it: PO, SO, MO, OM, IM, EX; empty for none
    std::string_view source;        // kind of document that it was made from, empty for NULL
    std::string_view costSource;    // 手工, 自动, 结算, 调整; empty for NULL
    bool receipt;                   // bRdFlag of its lines
};

// The head of a document.
struct Document {
    std::int32_t id = 0;
    const DocumentType* type = nullptr;
    std::chrono::sys_days day;
    std::int32_t number = 0;     // within its prefix and month; CodeOf writes it out
    std::int32_t order = 0;      // number of the order, the same in all documents of one business; 0 for none
    std::string_view warehouse;  // empty for direct business
    std::string_view department;
    std::string_view accountingDepartment;
    const Party* customer = nullptr;
    const Party* vendor = nullptr;
    std::string_view person;   // code, empty for none
    std::string_view handler;  // name, empty for none
    std::string_view project;  // code, empty for none
};

// "CG-0803-0042"
std::string CodeOf(const Document& document);

// A line as an event enters it. Either `place` or, for direct business, `item` alone is set.
struct LineEntry {
    const Place* place = nullptr;
    const Item* item = nullptr;
    std::int64_t quantity = 0;
    std::int64_t amount = 0;  // of an issue 0: the ledger tells it when the line is posted
    std::int64_t materialFee = 0;
    std::int64_t processFee = 0;
    std::int32_t dispatchLine = 0;  // iDLsID; 0 is NULL. Of a dispatch line its own identifier, set by Books
    std::int32_t invoiceLine = 0;   // iSBsID of an issue line
    std::int32_t consignmentLine = 0;  // of an export invoice line; gives cGuidSource and iConsignmentAutoID
};

}  // namespace kavelin::demo
