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
    std::string_view action;  // of the host
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

// The first three are members of the viewer, the last one of the portal.
enum class ViewerCall { ShowVoucher, ShowCostJustVouch, ShowDifVouchs, RunCommand };

// A command of the portal around the key of a document.
struct PortalCommand {
    std::string_view before, behind;
};

// How documents of some voucher types are shown.
struct DocumentKind {
    std::span<const std::string_view> vouTypes;  // none for all others
    ViewerCall call;
    std::string DocumentRow::*key;
    PortalCommand command = {};  // of RunCommand
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
    std::span<const DocumentKind> ownKinds = {};  // found before the ordinary ones, which all reports share
    std::span<const ViewerType> viewerTypes;      // for documents that the viewer opens by their identity
    std::string_view voucherCell;
    std::span<const YearQuery> voucherYears;  // the first with a row tells the year
    std::string_view differenceCell = {}, differenceBusTypeCell = {};
    std::span<const YearQuery> differenceYears = {};
    std::span<const DrillTarget> makesPortal = {};  // on the way to these, if the host gave none
    bool exact = false;  // actions, voucher types and business types are compared with regard to case
};

// Where the year of a voucher of the inventory stands, for most reports.
std::span<const YearQuery> LedgerVoucherYears();

// Opens what the argument asks for. On the way gcnnAccount and gobjLogin are those of the argument, or what
// the viewer put in their place. At the end the connection is closed and gcnnAccount is nothing; a row
// without a voucher ends with a message instead, and the connection stays open.
void DrillDown(const DrillDownRules& rules, RowArguments& e);

}  // namespace kavelin
