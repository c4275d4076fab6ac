#include "support/FakeFilter.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <stdexcept>

namespace kavelin::test {

namespace {

std::string ShownValue(const Value& value)
{
    return value.IsNull() ? "null" : ToText(value);
}

}  // namespace

class FakeFilter::Item : public FilterItem {
  public:
    Item(std::shared_ptr<EventLog> events, FakeField field)
        : objEvents(std::move(events)), objField(std::move(field))
    {
    }

    std::string Name() override { return Read("Name"), objField.name; }
    std::string ControlKey() override { return Read("ControlKey"), Control(); }
    Value varValue() override { return Read("varValue"), objField.from; }
    void SetvarValue(const Value& value) override
    {
        Read("varValue = " + ShownValue(value));
        objField.from = value;
    }
    Value varValue2() override { return Read("varValue2"), objField.to; }
    void SetvarValue2(const Value& value) override
    {
        Read("varValue2 = " + ShownValue(value));
        objField.to = value;
    }
    bool RangeInput() override { return Read("RangeInput"), objField.rangeInput; }
    bool IsMultSel() override { return Read("IsMultSel"), objField.multiple; }
    std::string ListSource() override { return Read("ListSource"), strListSource; }
    void SetListSource(const std::string& source) override
    {
        Read("ListSource = " + source);
        strListSource = source;
    }
    void SetLngGrouptoken(std::int32_t token) override
    {
        Read("LngGrouptoken = " + std::to_string(token));
        lngToken = token;
    }

    const std::string& Key() const { return objField.name; }
    const std::string& Control() const
    {
        return objField.controlKey.empty() ? objField.name : objField.controlKey;
    }
    const FakeField& Content() const { return objField; }
    const std::string& Source() const { return strListSource; }
    // Of the box that `key` addresses; nothing if that is another item's.
    void Store(const std::string& key, const Value& value)
    {
        if (EqualsNoCase(key, Control()))
            objField.from = value;
        if (EqualsNoCase(key, Control() + "__2"))
            objField.to = value;
    }
    std::int32_t Token() const { return lngToken; }

  private:
    void Read(const std::string& member) { objEvents->Add(objField.name + "." + member); }

    std::shared_ptr<EventLog> objEvents;
    FakeField objField;
    std::string strListSource;
    std::int32_t lngToken = -1;
};

class FakeFilter::List : public kavelin::FilterList {
  public:
    List(std::shared_ptr<EventLog> events, std::vector<std::shared_ptr<FakeFilter::Item>> items)
        : objEvents(std::move(events)), lstItems(std::move(items))
    {
    }

    std::int32_t Count() override
    {
        objEvents->Add("FilterList.Count");
        return static_cast<std::int32_t>(lstItems.size());
    }
    std::shared_ptr<FilterItem> Item(std::int32_t position) override
    {
        objEvents->Add("FilterList.Item " + std::to_string(position));
        return lstItems.at(static_cast<std::size_t>(position) - 1);
    }
    std::shared_ptr<FilterItem> Item(std::string_view key) override
    {
        objEvents->Add("FilterList.Item " + std::string(key));
        for (const auto& item : lstItems)
            if (EqualsNoCase(item->Key(), key))
                return item;
        return nullptr;
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::vector<std::shared_ptr<FakeFilter::Item>> lstItems;
};

class FakeFilter::Arguments : public NamedValues {
  public:
    Arguments(std::shared_ptr<EventLog> events, std::vector<std::pair<std::string, Value>>& entries)
        : objEvents(std::move(events)), lstEntries(entries)
    {
    }

    std::int32_t Count() override
    {
        objEvents->Add("ContextArgs.Count");
        return static_cast<std::int32_t>(lstEntries.size());
    }
    Variant Item(std::string_view key) override
    {
        objEvents->Add("ContextArgs.Item " + std::string(key));
        for (const auto& [name, value] : lstEntries)
            if (EqualsNoCase(name, key))
                return value;
        return Value();
    }
    Variant Item(std::int32_t position) override
    {
        objEvents->Add("ContextArgs.Item " + std::to_string(position));
        return lstEntries.at(static_cast<std::size_t>(position) - 1).second;
    }
    void Add(const Variant& value, std::string_view key) override
    {
        const Value& added = ValueOf(value, "an argument");
        objEvents->Add("ContextArgs.Add " + ToText(added) + ", " + std::string(key));
        lstEntries.emplace_back(key, added);
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::vector<std::pair<std::string, Value>>& lstEntries;
};

FakeFilter::FakeFilter(std::shared_ptr<EventLog> events, const std::vector<FakeField>& fields)
    : objEvents(std::move(events)), lstFields(fields)
{
    for (const FakeField& field : fields)
        lstItems.push_back(std::make_shared<Item>(objEvents, field));
}

std::vector<std::int32_t> FakeFilter::Tokens() const
{
    std::vector<std::int32_t> tokens;
    for (const auto& item : lstItems)
        tokens.push_back(item->Token());
    return tokens;
}

const FakeFilter::Item& FakeFilter::Find(const std::string& key) const
{
    for (const auto& item : lstItems)
        if (item->Key() == key)
            return *item;
    throw std::logic_error("the filter has no item " + key);
}

Value FakeFilter::From(const std::string& key) const
{
    return Find(key).Content().from;
}

Value FakeFilter::To(const std::string& key) const
{
    return Find(key).Content().to;
}

std::string FakeFilter::ListSource(const std::string& key) const
{
    return Find(key).Source();
}

std::string FakeFilter::FilterID()
{
    objEvents->Add("RawFilter.FilterID");
    return filterId;
}

std::shared_ptr<LoginContext> FakeFilter::Login()
{
    objEvents->Add("RawFilter.Login");
    return login;
}

std::shared_ptr<kavelin::FilterList> FakeFilter::FilterList()
{
    objEvents->Add("RawFilter.FilterList");
    return std::make_shared<List>(objEvents, lstItems);
}

std::shared_ptr<NamedValues> FakeFilter::ContextArgs()
{
    objEvents->Add("RawFilter.ContextArgs");
    return std::make_shared<Arguments>(objEvents, contextArgs);
}

Value FakeFilter::GetFieldValue(const std::string& key)
{
    objEvents->Add("RawFilter.GetFieldValue " + key);
    for (const auto& item : lstItems)
        if (EqualsNoCase(item->Control(), key))
            return item->Content().from;
    throw Error("The filter has no field " + key + ".");
}

void FakeFilter::SetFieldValue(const std::string& key, const Value& value)
{
    objEvents->Add("RawFilter.SetFieldValue " + key + ", " + ShownValue(value));
    for (const auto& item : lstItems)
        item->Store(key, value);
}

void FakeFilter::SetFieldRefCondition(const std::string& key, const std::string& text,
                                      const std::string& condition)
{
    objEvents->Add("RawFilter.SetFieldRefCondition " + key + ", " + text + ", " + condition);
}

void FakeFilter::SetFieldFlag(const std::string& key, bool flag)
{
    objEvents->Add("RawFilter.SetFieldFlag " + key + ", " + ToText(flag));
}

void FakeFilter::SetFieldLocked(const std::string& key, bool locked)
{
    objEvents->Add("RawFilter.SetFieldLocked " + key + ", " + ToText(locked));
}

void FakeFilter::RefreshFieldList(const std::string& key, const std::string& enumType,
                                  const std::string& list)
{
    objEvents->Add("RawFilter.RefreshFieldList " + key + ", " + enumType + ", " + list);
}

void FakeFilter::SetFieldRangeList(const std::string& key, const std::string& list)
{
    objEvents->Add("RawFilter.SetFieldRangeList " + key + ", " + list);
}

std::string FakeFilter::GetWhereWithToken(std::int32_t token)
{
    objEvents->Add("RawFilter.GetWhereWithToken " + std::to_string(token));
    const auto found = whereByToken.find(token);
    return found == whereByToken.end() ? where : found->second;
}

}  // namespace kavelin::test
