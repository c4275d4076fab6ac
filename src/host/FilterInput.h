// The values that a user gives for a report, from the command line, a file or a page, checked as they come.
#pragma once

#include "host/FilterTemplate.h"
#include "host/ValueGate.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// What one field was given. A range field holds `from` and `to`, which are equal if one value was given;
// any other field holds its value in `values`, a multiple selection all of them, in the order given.
struct FieldInput {
    const FilterField* field = nullptr;
    bool given = false;  // by the user, if only to take the default away
    std::vector<std::string> values;
    std::string from;
    std::string to;
};

class FilterInput {
  public:
    // Starts with the template's defaults. The template must outlive the input.
    FilterInput(const FilterTemplate& filter, ValuePolicy policy);

    // "KEY=VALUE", for a range also "KEY=FROM..TO" where either end may be missing; in a field that is no
    // range, ".." is part of the value. A second value of a multiple selection is added, of another field
    // it replaces the first; the first value given always replaces the default. A value of a multiple
    // selection that is joined by commas is split at its commas, as the report will do. An empty value sets
    // nothing, which takes a default away. Throws UsageError.
    void Set(std::string_view assignment);

    // The same with the parts apart.
    void Set(std::string_view key, std::string_view value);
    void SetRange(std::string_view key, std::string_view from, std::string_view to);

    // A JSON object: key -> value, [value, ...] or {"from": value, "to": value}; numbers and Booleans may
    // stand for their texts, null sets nothing. `source` names the file in messages. Throws UsageError;
    // fields before the faulty one are then set.
    void SetFromJson(std::string_view json, std::string_view source);

    // Throws UsageError, with the nearest key if there is one, for a key that no field has.
    void RequireKey(std::string_view key) const { Find(key); }

    const FilterTemplate& Template() const { return *objTemplate; }
    ValuePolicy Policy() const { return enmPolicy; }

    // One entry a field, in the template's order; a field without a value has empty texts.
    const std::vector<FieldInput>& Fields() const { return lstFields; }

  private:
    std::size_t Find(std::string_view key) const;
    void Begin(std::size_t position);
    void Take(std::size_t position, std::string_view value);
    void TakeRange(std::size_t position, std::string_view from, std::string_view to);

    const FilterTemplate* objTemplate;
    ValuePolicy enmPolicy;
    std::vector<FieldInput> lstFields;
};

}  // namespace kavelin::host
