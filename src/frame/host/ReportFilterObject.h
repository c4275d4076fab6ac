// The filter of a report: shared by the dialog, which prepares and checks its fields, and the report.
#pragma once

#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin {

// Named arguments that travel with a filter or a call.
class NamedValues : public virtual HostObject {
  public:
    virtual std::int32_t Count() = 0;
    virtual Variant Item(std::string_view key) = 0;   // without regard to case; empty if there is none
    virtual Variant Item(std::int32_t position) = 0;  // from 1
    virtual void Add(const Variant& value, std::string_view key) = 0;
};

// One field.
class FilterItem : public virtual HostObject {
  public:
    virtual std::string Name() = 0;  // the filter key
    virtual std::string
    ControlKey() = 0;  // under which the field operations know it; with "__2" the second box

    // The value, or the "from" value of a range. A multiple selection arrives as one text.
    virtual Value varValue() = 0;
    virtual void SetvarValue(const Value& value) = 0;
    virtual Value varValue2() = 0;  // the "to" value of a range
    virtual void SetvarValue2(const Value& value) = 0;

    virtual bool RangeInput() = 0;  // has two boxes
    virtual bool IsMultSel() = 0;   // several values may be chosen

    // Comma list of a drop-down, or the SELECT text of a reference lookup.
    virtual std::string ListSource() = 0;
    virtual void SetListSource(const std::string& source) = 0;

    // Which call of GetWhereWithToken takes this item up.
    virtual void SetLngGrouptoken(std::int32_t token) = 0;
};

class FilterList : public virtual HostObject {
  public:
    virtual std::int32_t Count() = 0;
    virtual std::shared_ptr<FilterItem> Item(std::int32_t position) = 0;  // from 1
    virtual std::shared_ptr<FilterItem> Item(
        std::string_view key) = 0;  // without regard to case; null if none
};

class ReportFilterObject : public virtual HostObject {
  public:
    virtual std::string FilterID() = 0;
    virtual std::shared_ptr<LoginContext> Login() = 0;
    virtual std::shared_ptr<kavelin::FilterList> FilterList() = 0;
    virtual std::shared_ptr<NamedValues> ContextArgs() = 0;

    virtual Value GetFieldValue(const std::string& key) = 0;
    virtual void SetFieldValue(const std::string& key, const Value& value) = 0;  // "" clears

    // Adds a condition to the field's reference lookup; "" takes it away. `text` is empty in every call.
    virtual void SetFieldRefCondition(const std::string& key, const std::string& text,
                                      const std::string& condition) = 0;
    virtual void SetFieldFlag(const std::string& key, bool flag) = 0;
    virtual void SetFieldLocked(const std::string& key, bool locked) = 0;

    // Replaces the list of an open drop-down; `enumType` is that of its entries.
    virtual void RefreshFieldList(const std::string& key, const std::string& enumType,
                                  const std::string& list) = 0;
    virtual void SetFieldRangeList(const std::string& key, const std::string& list) = 0;

    // A condition over the items of that token, ready to stand in a where; empty if none has a value.
    virtual std::string GetWhereWithToken(std::int32_t token) = 0;
};

}  // namespace kavelin
