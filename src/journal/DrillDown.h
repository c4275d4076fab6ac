// From a row of a report to the document or the accounting voucher behind it, which the suite's viewers show.
//
// The way is the same for every report; what differs is a DrillDownRules. Nothing on it fails for the host:
// each step has a guard of its own, and the next one runs with what there is, so a cell that the row lacks
// reads as empty and a viewer that can't be made shows nothing.
#pragma once

#include "frame/RowArguments.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

enum class DrillTarget { Document, Voucher, DifferenceVoucher };

struct DrillAction {
    std::string_view action;  // of the host, without regard to case
    DrillTarget target;
};

// Names of the cells that lead to a document.
struct DocumentCells {
    std::string_view vouType, vouCode, busType;
    std::string_view id;      // identity of the document
    std::string_view autoId;  // of the row
};

// What stood in them.
struct DocumentRow {
    std::string vouType, vouCode, busType, id, autoId;
};

enum class ViewerCall { ShowVoucher, ShowCostJustVouch, ShowDifVouchs };

// How the viewer shows documents of some voucher types.
struct DocumentKind {
    std::span<const std::string_view> vouTypes;  // without regard to case; none for all others
    ViewerCall call;
    std::string DocumentRow::*key;
};

// A document that the viewer knows under another voucher type if it is of that business type.
struct ViewerType {
    std::string_view vouType, busType, shownAs;
};

// Where the year of a voucher stands: a statement around the voucher's identity, the year in its first field.
struct YearQuery {
    std::string_view before, behind;
};

struct DrillDownRules {
    std::span<const DrillAction> actions;
    DrillTarget otherwise;  // of any other action
    DocumentCells document;
    std::span<const DocumentKind> documentKinds;  // ends with the kind of all others
    std::span<const ViewerType> viewerTypes;      // for the kind of all other voucher types
    std::string_view voucherCell;
    std::span<const YearQuery> voucherYears;  // the first with a row tells the year
    std::string_view differenceCell = {}, differenceBusTypeCell = {};
    std::span<const YearQuery> differenceYears = {};
    bool makesPortal = false;  // if the host gave none
};

// Tables that most reports share.
std::span<const DocumentKind> OrdinaryDocumentKinds();
std::span<const YearQuery> LedgerVoucherYears();

// Opens what the argument asks for. On the way gcnnAccount and gobjLogin are those of the argument, or what
// the viewer put in their place. At the end the connection is closed and gcnnAccount is nothing; a row
// without a voucher ends with a message instead, and the connection stays open.
void DrillDown(const DrillDownRules& rules, RowArguments& e);

}  // namespace kavelin
