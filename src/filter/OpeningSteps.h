// What the opening of a dialog does to a field: the steps of which Openings.cpp makes its tables.
#pragma once

#include "filter/DialogState.h"
#include "filter/KeyMatch.h"
#include "filter/ReferenceLookups.h"
#include "frame/host/ReportFilterObject.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

struct OpenDialog {
    ReportFilterObject& filter;
    DialogState& state;
};

using OpeningStep = std::function<void(OpenDialog& dialog, FilterItem& item)>;

struct OpeningField {
    std::string_view key;
    std::vector<OpeningStep> steps;
};

// Runs the steps of each item that the table names, in the order of the template. Items that it doesn't name
// stay as the template made them.
void PrepareFields(OpenDialog dialog, KeyMatch match, const std::vector<OpeningField>& fields);

// --- values, locks, flags ---

// Gives an empty field the value.
OpeningStep Default(std::string_view value);
// Gives an empty field the text of an enumeration's code.
OpeningStep DefaultText(std::string enumType, std::string code);
OpeningStep SetValue(std::string value);
void Unlock(OpenDialog& dialog, FilterItem& item);
OpeningStep LockOtherWhileFilled(std::string other);
void ClearFlag(OpenDialog& dialog, FilterItem& item);
void ClearFlagOfSecondBox(OpenDialog& dialog, FilterItem& item);

// --- lists ---

OpeningStep List(std::string entries);
// One list in accounts whose parameter has the value, another in all others.
OpeningStep ListByParameter(std::string system, std::string name, std::string value, std::string list,
                            std::string otherwise);

// Pairs of open months over all years; an empty field gets the login's month in both boxes.
void OpenMonths(OpenDialog& dialog, FilterItem& item);

// The accounting years; an empty field gets the login's.
void Years(OpenDialog& dialog, FilterItem& item);
// The same, and a year that is there already leads the months that follow.
void YearsThatLead(OpenDialog& dialog, FilterItem& item);

// The months of the leading year; an empty field gets the login's month, or the year's last where it lacks
// that month.
void MonthsOfYear(OpenDialog& dialog, FilterItem& item);
// The same for a pair.
void MonthPairOfYear(OpenDialog& dialog, FilterItem& item);

// --- reference lookups ---

OpeningStep LookUp(const ReferenceLookup& lookup);
// The departments of the warehouse that the field `cWhCode` holds, of all if it holds none.
OpeningStep LookUpOfWarehouse(const ReferenceLookup& lookup);
OpeningStep LookUpVoucherTypes(const VoucherTypeLists& lists);

}  // namespace kavelin
