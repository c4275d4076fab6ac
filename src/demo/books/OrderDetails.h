// What some documents tell beyond their business: contract, memo, the line of the order, the work centre. As with
// user fields, ledger rows show what their document shows, so all of it follows from identifiers alone. Each is
// Null where the document has none.
#pragma once

#include "demo/books/Document.h"
#include "frame/Value.h"

#include <cstdint>
#include <string_view>

namespace kavelin::demo {

Value BusinessNumber(const Document& document);  // cBusCode
Value ContractCode(const Document& document);    // strContractCode
Value Memo(const Document& document);            // cMemo

// Of orders of that kind the line behind the document's line: iProOrderIDs, iSaleOrderIDs, iExRowNo.
Value OrderLine(const Document& document, std::int32_t line, std::string_view prefix);

// Of production.
Value OperationLine(const Document& document, std::int32_t line);  // cWorkProCodeDis
Value WorkCentre(const Document& document);                        // cWorkCenterName
Value ProductionBatch(const Document& document);                   // cProCode

// Of what is made for one customer's demand.
Value DemandCode(const Document& document);
Value DemandMemo(const Document& document);

}  // namespace kavelin::demo
