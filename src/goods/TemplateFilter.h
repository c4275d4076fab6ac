// Filter of the goods-in-transit template: items in, conditions out. Keys are compared exactly.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin {

// The opening holds lines brought forward or dated before the period, the movement those within it.
enum class TemplatePass { Opening, Movement };

// What the filter asks for beside the where text. Stays with the object: what a filter does not name keeps its
// value.
struct TemplateChoices {
    std::int32_t lngUnitNumber = 0;  // of the auxiliary unit in its group
    std::string strIsMerge;
};

// The pass's where text, from "Where " on. Marks every item that it reads as handled, all others as left to
// the filter, which words them. Reads the account options of the year, of which it uses nothing.
std::string BuildTemplateWhere(ReportFilterObject& objFilter, TemplatePass pass, TemplateChoices& choices);

// The number in the last item of that name; 0 if there is none or it is empty. Throws ConversionError for a text
// that is no number.
std::int32_t GetGrade(ReportFilterObject& objFilter, std::string_view strKey);

}  // namespace kavelin
