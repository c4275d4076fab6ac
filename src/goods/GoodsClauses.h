// What the reports on goods in transit have in common: conditions of the filter keys that they read alike, and
// pieces of their statements.
#pragma once

#include "frame/Value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin {

// The two halves of a condition on IA_EnSubsidiary: lines of the opening and lines of the period. A line
// brought forward and, where the period begins at a date, any line before it belong to the opening.
struct GoodsPeriod {
    std::string strOpening = " ia_ensubsidiary.imonth  = 0 ";  // alternatives, to stand in brackets
    std::string strMovement = " and 1 = 1 ";                   // ready to stand behind a condition
};

// Whether `strKey` is the document date or the posting date.
bool IsGoodsDate(std::string_view strKey);

// Limits the period by that date, either end of which may be empty. A key that is no date changes nothing.
void AddGoodsDates(GoodsPeriod& period, std::string_view strKey, const std::string& strFrom,
                   const std::string& strTo);

// The condition on the business type `strValue`, with " and" before it; a blank for a value that limits nothing.
std::string GoodsBusinessClause(std::string_view strValue);

// The auxiliary unit's number within its group; 0 for an empty value and for "-".
std::int32_t GoodsUnitNumber(const Value& varValue);

// Joins of a ledger line with the lookup tables that the filter may name, from Rd_Style to Department, a
// line each with a line end behind it.
std::string JoinGoodsLookups();

// The unit by whose rate pieces are counted: the item's stock unit, or the unit of that number in its group.
std::string JoinGoodsUnit(std::int32_t lngUnitNumber);

// Drops the work table of that bare name, if tempdb has it.
std::string DropGoodsWorkTable(const std::string& strName);

}  // namespace kavelin
