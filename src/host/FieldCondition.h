// How the filter service words the condition over one field.
#pragma once

#include "host/FilterTemplate.h"

#include <string>
#include <string_view>

namespace kavelin::host {

// A single value by equality, a class by its prefix, a pair by >= and <=, several values by IN; texts stand
// as N'...', quotes doubled, numbers, years and months bare. `from` and `to` are the values as they stand in
// the filter. Empty without a value or a column.
std::string FieldCondition(const FilterField& field, const std::string& from, const std::string& to);

// N'...', quotes doubled.
std::string TextLiteral(std::string_view text);

// The text as a pattern of LIKE stands for itself: its special characters in brackets.
std::string LikePattern(std::string_view text);

}  // namespace kavelin::host
