// How values stand in a filter.
#pragma once

#include "host/FilterTemplate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

inline constexpr std::string_view kMonthSign = "月";

// The forms in which a user writes a year, a month or a month of a year, as the one in which filters hold
// them:
//   "2008", "2008年"                        -> "2008"
//   "7", "07", "7月"                        -> "7月"
//   "2008.7", "2008-07", "2008/7", "2008年7月" -> "2008.07"
// Nothing for a text that is none.
std::optional<std::string> YearText(std::string_view text);
std::optional<std::string> MonthText(std::string_view text);
std::optional<std::string> PeriodText(std::string_view text);

// The values in the text of a field: of a multiple selection those between its separators, without empty
// ones.
std::vector<std::string> ValuesOf(const FilterField& field, const std::string& text);

std::string JoinTexts(const std::vector<std::string>& texts, std::string_view separator);

}  // namespace kavelin::host
