// One field of a filter, with what the callbacks of a dialog have made of it.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "host/FilterTemplate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// An entry of a drop-down: what a report gets, and what a user sees.
struct Choice {
    std::string value;
    std::string caption;

    bool operator==(const Choice&) const = default;
};

// Of a field, or of the second box of a pair.
struct FieldState {
    bool locked = false;
    std::optional<bool> flag;        // of SetFieldFlag
    std::string condition;           // on the reference lookup
    std::string listEnumType;        // of a refreshed list
    std::vector<std::string> range;  // entries of a paired list
};

// An item is also known by its second box: its control key and "__2", in the operations on fields.
class HostFilterItem : public FilterItem {
  public:
    HostFilterItem(FilterField field, std::string language);

    std::string Name() override { return objField.key; }
    std::string ControlKey() override { return objField.controlKey; }
    Value varValue() override { return varFrom; }
    Value varValue2() override { return varTo; }
    // A list takes a shown text as the entry that is shown so.
    void SetvarValue(const Value& value) override { varFrom = Stored(value); }
    void SetvarValue2(const Value& value) override { varTo = Stored(value); }
    bool RangeInput() override { return objField.range; }
    bool IsMultSel() override { return objField.multiple; }
    std::string ListSource() override { return strListSource; }
    void SetListSource(const std::string& source) override { strListSource = source; }
    void SetLngGrouptoken(std::int32_t token) override { lngGroupToken = token; }

    const FilterField& Field() const { return objField; }
    std::int32_t GroupToken() const { return lngGroupToken; }

    // Both values as texts.
    std::string From() const { return ToText(varFrom); }
    std::string To() const { return ToText(varTo); }

    // The value as a user would write it: "A", "A..B", "A,B"; empty without one.
    std::string Shown() const;

    // The text that stands for one of its values in the reader's language; empty if the value is shown as it is.
    std::string CaptionOf(const std::string& value) const;

    // What the drop-down of the first or the second box offers, a flag its yes and no; nothing for a field that
    // has none.
    std::vector<Choice> Choices(bool second) const;

    bool HasLookup() const { return !LookupSelect().empty() || !objField.lookup.from.empty(); }

    // The SELECT that a callback gave the lookup; empty if none did.
    std::string LookupSelect() const;

    FieldState state;
    FieldState secondState;

  private:
    Value Stored(const Value& value) const;
    std::string CodeOf(const std::string& shown) const;

    FilterField objField;
    std::string strLanguage;
    Value varFrom = "";
    Value varTo = "";
    std::string strListSource;
    std::int32_t lngGroupToken = 0;
};

}  // namespace kavelin::host
