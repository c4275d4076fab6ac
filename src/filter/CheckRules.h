// The rules that a check has for a field: whether the field's value may stand.
#pragma once

#include "filter/DialogState.h"
#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

// What the rules of one check share while it walks the fields.
struct CheckRun {
    ReportFilterObject& filter;
    DialogState& state;
    std::string inventoryClass = {};  // of the fields so far
};

bool HasValue(CheckRun& run, FilterItem& item);

// Price analysis. Throws ConversionError for a month that doesn't begin with a year.
bool StaysInOneYear(CheckRun& run, FilterItem& item);

// Estimate balance. Refuses nothing: an empty year takes the dialog's.
bool TakesTheDialogsYear(CheckRun& run, FilterItem& item);

// Receipt-issue-balance summary. Two of them refuse nothing: they read what others, or other routines, need.
bool RemembersClass(CheckRun& run, FilterItem& item);
bool BothAreInClass(CheckRun& run, FilterItem& item);
bool HasAtMostFourCharacters(CheckRun& run, FilterItem& item);
bool AsksForMoreThanDirectBusiness(CheckRun& run, FilterItem& item);
bool ReadsViewSelector(CheckRun& run, FilterItem& item);

// Goods-in-transit summary. An empty value exists.
bool IsSaleType(CheckRun& run, FilterItem& item);
bool FromModelExists(CheckRun& run, FilterItem& item);
bool ToModelExists(CheckRun& run, FilterItem& item);
bool UnitExists(CheckRun& run, FilterItem& item);
bool IsUnitNumber(CheckRun& run, FilterItem& item);  // four places at most, the sign among them

// Whether the item belongs to the class. Also True for an empty class and for an item that is none.
bool IsInvInClass(const std::string& code, const std::string& inventoryClass);

std::string SelectClassOfItem(const std::string& code);

}  // namespace kavelin
