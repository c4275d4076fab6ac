// Texts made out of other texts.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

// `strWhere` without the clause that begins with `strMarker`, of which the first two characters are no part
// of a word "And": what stands before the marker, and what stands behind it from the next "And" on. If the
// marker stands there several times, all from the first to the clause behind the last goes.
std::string StripClause(const std::string& strWhere, std::string_view strMarker);

// A statement on the stock documents made one on those of a single type: the view and the document tables
// that it joins get the code behind their names.
std::string SpecializeRdView(const std::string& strStatement, std::string_view strCode);

}  // namespace kavelin
