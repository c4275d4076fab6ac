// T-SQL compares texts without regard to case and trailing blanks, DuckDB byte by byte. What is compared
// is therefore the folded form, lower(rtrim(x)), less what is known not to be needed.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/bind/BoundTree.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

enum class CaseForm { AsIs, Lower, Upper };  // Upper: of literals beside values without small letters

// The form in which the texts of one comparison meet. `ordered`: they are asked for their order, not only
// for being equal.
CaseForm CommonCase(const std::vector<const BoundExpr*>& sides, bool ordered);

// The literal that a text expression is, seen through conversions that only rename its type, or null.
const BoundLiteral* ConstantText(const BoundExpr& expression);

// `written` in the form, without trailing blanks.
std::string FoldText(const std::string& written, const TextFacts& facts, CaseForm form);

// A literal in the form. `trimmed`: without its trailing blanks, which LIKE keeps.
std::string FoldLiteral(std::string_view text, CaseForm form, bool trimmed);

// For GROUP BY, DISTINCT, ORDER BY, MIN, MAX: texts of one expression among themselves.
std::string FoldAlone(const std::string& written, const TextFacts& facts);

// Whether equal texts of that kind are equal bytes.
inline bool IsFolded(const TextFacts& facts)
{
    return facts.noCase && facts.noTrailingBlanks;
}

// Whether a text may hold letters that have another case form, and whether they are all of ASCII.
struct Letters {
    bool cased = false;
    bool onlyAscii = true;
};
Letters LettersOf(std::string_view text);

}  // namespace kavelin::embedded
