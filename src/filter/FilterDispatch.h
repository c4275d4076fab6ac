// Which routines serve the dialog of which report: one table.
#pragma once

#include "filter/DialogState.h"
#include "frame/Value.h"
#include "frame/host/ReportFilterObject.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// Null where a dialog has no such routine; that gaps differ from report to report is wanted.
struct FilterRoutines {
    std::string_view identity;
    void (*open)(ReportFilterObject& filter, DialogState& state);
    bool (*check)(ReportFilterObject& filter, DialogState& state);
    void (*change)(const std::string& sKey, ReportFilterObject& flt);

    // Of reports with more than one view.
    void (*firstView)(ReportFilterObject& flt, DialogState& state, Value& ReturnViewClass) = nullptr;
    void (*viewChange)(const std::string& sKey, ReportFilterObject& flt, DialogState& state,
                       Value& ReturnViewClass) = nullptr;
    bool handsViewOver =
        false;  // OK puts strViewClass under "ViewClass" into ContextArgs, whatever its check says
};

std::span<const FilterRoutines> AllFilterRoutines();

// A row without routines for an identity that the table doesn't have; identities are compared exactly.
const FilterRoutines& RoutinesOf(std::string_view identity);

}  // namespace kavelin
