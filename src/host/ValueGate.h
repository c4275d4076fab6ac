// The gate for values that users give. The reports paste values into their statements as they stand, so
// whatever could end a text or begin a statement is stopped here, before anything is sent.
#pragma once

#include "host/FilterTemplate.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kavelin::host {

enum class ValuePolicy {
    Checked,  // values with an objection are refused
    Legacy,   // they pass, and the log says so
};

constexpr std::size_t kLongestValue = 4000;  // characters

// Why the value cannot be pasted into a statement: "holds a quote (')". Nothing if it can.
std::optional<std::string> Objection(std::string_view value);

// The value as the report takes it: a date as YYYY-MM-DD, a list entry in its own spelling, a flag as 是 or 否,
// years and months as host/FieldValues.h tells, numbers and codes without blanks around them ("01, 02" names
// two warehouses), a text as it is.
// An empty value stays empty: it sets nothing. Throws UsageError, naming the key and what it takes, for a
// value of the wrong kind and for one with an objection, unless the policy lets it through; the log then has
// a warning.
std::string CheckedValue(const FilterField& field, std::string_view value, ValuePolicy policy);

// Edit distance without regard to case, in characters.
std::size_t EditDistance(std::string_view a, std::string_view b);

// " Did you mean X?" for the nearest of `names` to `word`; empty if none is near.
template <class Names>
std::string DidYouMean(std::string_view word, const Names& names);

// What DidYouMean gathers; a name is near up to a third of its length, and at least at distance 1.
class NearMiss {
  public:
    explicit NearMiss(std::string_view word) : strWord(word) {}
    void Try(std::string_view name);
    std::string Suggestion() const;

  private:
    std::string strWord;
    std::string strNearest;
    std::size_t lngDistance = 0;
};

template <class Names>
std::string DidYouMean(std::string_view word, const Names& names)
{
    NearMiss nearest(word);
    for (const auto& name : names)
        nearest.Try(name);
    return nearest.Suggestion();
}

}  // namespace kavelin::host
