// The filter object of a report: its items, and the condition that the host words over those that the
// report leaves to it.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavelin::host {

// What the callbacks of a dialog have done to a field, for whoever shows it.
struct FieldState {
    bool locked = false;
    std::optional<bool> flag;  // of SetFieldFlag
    std::string condition;     // of the reference lookup
    std::string listEnumType;  // of the list's entries
    std::string list;          // a refreshed drop-down
    std::string rangeList;     // paired list of a range
};

// An item is also known by its second box: its key and "__2", in the operations on fields.
class HostFilterItem : public FilterItem {
  public:
    explicit HostFilterItem(FilterField field);

    std::string Name() override { return objField.key; }
    std::string ControlKey() override { return objField.key; }
    Value varValue() override { return varFrom; }
    void SetvarValue(const Value& value) override { varFrom = value; }
    Value varValue2() override { return varTo; }
    void SetvarValue2(const Value& value) override { varTo = value; }
    bool RangeInput() override { return objField.range; }
    bool IsMultSel() override { return objField.multiple; }
    std::string ListSource() override { return strListSource; }
    void SetListSource(const std::string& source) override { strListSource = source; }
    void SetLngGrouptoken(std::int32_t token) override { lngGroupToken = token; }

    const FilterField& Field() const { return objField; }
    std::int32_t GroupToken() const { return lngGroupToken; }

    // "column = N'x'" and the like; empty without a value or a column.
    std::string Condition() const;

    FieldState state;        // of the field or its first box
    FieldState secondState;  // of the second box

  private:
    FilterField objField;
    Value varFrom = "";
    Value varTo = "";
    std::string strListSource;
    std::int32_t lngGroupToken = 0;
};

class HostFilter : public ReportFilterObject {
  public:
    // One item a field that is no argument of the call.
    HostFilter(std::string filterId, const FilterTemplate& filter, std::shared_ptr<LoginContext> login);

    // Items take the values of the input, several joined by their field's separator; arguments of the call
    // go into ContextArgs under their keys.
    void Fill(const FilterInput& input);

    std::string FilterID() override { return strFilterId; }
    std::shared_ptr<LoginContext> Login() override { return objLogin; }
    std::shared_ptr<kavelin::FilterList> FilterList() override;
    std::shared_ptr<NamedValues> ContextArgs() override { return objContextArgs; }

    // Each of these throws Error for a key that the filter doesn't have; keys are without regard to case.
    Value GetFieldValue(const std::string& key) override;
    void SetFieldValue(const std::string& key, const Value& value) override;
    void SetFieldRefCondition(const std::string& key, const std::string& text,
                              const std::string& condition) override;
    void SetFieldFlag(const std::string& key, bool flag) override;
    void SetFieldLocked(const std::string& key, bool locked) override;
    void RefreshFieldList(const std::string& key, const std::string& enumType,
                          const std::string& list) override;
    void SetFieldRangeList(const std::string& key, const std::string& list) override;

    // The conditions of the token's items, joined by " and ": a single value by equality, a class by its
    // prefix, a pair by >= and <=, several values by IN. Texts stand as N'...', quotes doubled.
    std::string GetWhereWithToken(std::int32_t token) override;

    // The state of the field or, for a key with "__2", of its second box.
    const FieldState& StateOf(const std::string& key);

  private:
    struct Box {
        HostFilterItem* item;
        bool second;
    };
    Box Find(const std::string& key);
    FieldState& State(const std::string& key);

    std::string strFilterId;
    std::shared_ptr<LoginContext> objLogin;
    std::vector<std::shared_ptr<HostFilterItem>> lstItems;
    std::shared_ptr<NamedValues> objContextArgs;
};

}  // namespace kavelin::host
