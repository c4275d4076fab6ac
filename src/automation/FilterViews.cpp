// Views of the filter and its parts.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

class NamedValuesView : public NamedValues, public HostView {
  public:
    using HostView::HostView;

    std::int32_t Count() override { return ReadNumber("Count"); }
    Variant Item(std::string_view key) override { return Call("Item", {Value(key)}); }
    Variant Item(std::int32_t position) override { return Call("Item", {Value(position)}); }
    void Add(const Variant& value, std::string_view key) override { Call("Add", {value, Value(key)}); }
};

class FilterItemView : public FilterItem, public HostView {
  public:
    using HostView::HostView;

    std::string Name() override { return ReadText("Name"); }
    std::string ControlKey() override { return ReadText("ControlKey"); }
    Value varValue() override { return ReadValue("varValue"); }
    void SetvarValue(const Value& value) override { Write("varValue", value); }
    Value varValue2() override { return ReadValue("varValue2"); }
    void SetvarValue2(const Value& value) override { Write("varValue2", value); }
    bool RangeInput() override { return ReadBoolean("RangeInput"); }
    bool IsMultSel() override { return ReadBoolean("IsMultSel"); }
    std::string ListSource() override { return ReadText("ListSource"); }
    void SetListSource(const std::string& source) override { Write("ListSource", Value(source)); }
    void SetLngGrouptoken(std::int32_t token) override { Write("LngGrouptoken", Value(token)); }
};

class FilterListView : public FilterList, public HostView {
  public:
    using HostView::HostView;

    std::int32_t Count() override { return ReadNumber("Count"); }
    std::shared_ptr<FilterItem> Item(std::int32_t position) override
    {
        return As<FilterItem>(Call("Item", {Value(position)}), Named("Item"));
    }
    std::shared_ptr<FilterItem> Item(std::string_view key) override
    {
        const Variant item = Call("Item", {Value(key)});
        return IsNothing(item) ? nullptr : As<FilterItem>(item, Named("Item"));
    }
};

class FilterView : public ReportFilterObject, public HostView {
  public:
    using HostView::HostView;

    std::string FilterID() override { return ReadText("FilterID"); }
    std::shared_ptr<LoginContext> Login() override { return ReadObject<LoginContext>("Login"); }
    std::shared_ptr<kavelin::FilterList> FilterList() override
    {
        return ReadObject<kavelin::FilterList>("FilterList");
    }
    std::shared_ptr<NamedValues> ContextArgs() override { return ReadObject<NamedValues>("ContextArgs"); }

    Value GetFieldValue(const std::string& key) override
    {
        return CallForValue("GetFieldValue", {Value(key)});
    }
    void SetFieldValue(const std::string& key, const Value& value) override
    {
        Call("SetFieldValue", {Value(key), value});
    }
    void SetFieldRefCondition(const std::string& key, const std::string& text,
                              const std::string& condition) override
    {
        Call("SetFieldRefCondition", {Value(key), Value(text), Value(condition)});
    }
    void SetFieldFlag(const std::string& key, bool flag) override
    {
        Call("SetFieldFlag", {Value(key), Value(flag)});
    }
    void SetFieldLocked(const std::string& key, bool locked) override
    {
        Call("SetFieldLocked", {Value(key), Value(locked)});
    }
    void RefreshFieldList(const std::string& key, const std::string& enumType,
                          const std::string& list) override
    {
        Call("RefreshFieldList", {Value(key), Value(enumType), Value(list)});
    }
    void SetFieldRangeList(const std::string& key, const std::string& list) override
    {
        Call("SetFieldRangeList", {Value(key), Value(list)});
    }
    std::string GetWhereWithToken(std::int32_t token) override
    {
        return CallForText("GetWhereWithToken", {Value(token)});
    }
};

}  // namespace

template <>
std::shared_ptr<NamedValues> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<NamedValuesView>(std::move(object), "Args");
}

template <>
std::shared_ptr<FilterItem> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<FilterItemView>(std::move(object), "Item");
}

template <>
std::shared_ptr<FilterList> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<FilterListView>(std::move(object), "FilterList");
}

template <>
std::shared_ptr<ReportFilterObject> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<FilterView>(std::move(object), "RawFilter");
}

}  // namespace kavelin::automation
