#include "host/HostFilter.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/FieldCondition.h"
#include "host/FieldValues.h"
#include "host/NamedObjects.h"

#include <algorithm>

namespace kavelin::host {

namespace {

constexpr std::string_view kSecondBox = "__2";
constexpr std::string_view kEntrySeparator = "{#}";  // of a paired list
constexpr std::string_view kBoxSeparator = "{##}";

class HostFilterList : public FilterList {
  public:
    explicit HostFilterList(std::vector<std::shared_ptr<HostFilterItem>> items) : lstItems(std::move(items))
    {
    }

    std::int32_t Count() override { return static_cast<std::int32_t>(lstItems.size()); }

    std::shared_ptr<FilterItem> Item(std::int32_t position) override
    {
        if (position < 1 || position > Count())
            throw Error("The filter has no item " + std::to_string(position) + ".");
        return lstItems[static_cast<std::size_t>(position - 1)];
    }

    std::shared_ptr<FilterItem> Item(std::string_view key) override
    {
        const auto found =
            std::ranges::find_if(lstItems, [&](const auto& item) { return EqualsNoCase(item->Name(), key); });
        return found == lstItems.end() ? nullptr : *found;
    }

  private:
    std::vector<std::shared_ptr<HostFilterItem>> lstItems;
};

}  // namespace

HostFilter::HostFilter(std::string filterId, const FilterTemplate& filter,
                       std::shared_ptr<LoginContext> login)
    : strFilterId(std::move(filterId)),
      objLogin(std::move(login)),
      objContextArgs(std::make_shared<HostNamedValues>())
{
    const std::string language = objLogin ? objLogin->LanguageRegion() : std::string(kChinese);
    for (const FilterField& field : filter.fields)
        if (!field.argument)
            lstItems.push_back(std::make_shared<HostFilterItem>(field, language));
}

void HostFilter::Fill(const FilterInput& input)
{
    for (const FieldInput& given : input.Fields())
        Fill(given);
}

void HostFilter::Fill(const FieldInput& given)
{
    const std::string value =
        given.field->range ? given.from : JoinTexts(given.values, std::string(1, given.field->separator));
    if (given.field->argument) {
        objContextArgs->Add(Value(value), given.field->key);
        return;
    }
    HostFilterItem& item = *Find(given.field->key);
    item.SetvarValue(value);
    item.SetvarValue2(given.to);
}

std::shared_ptr<kavelin::FilterList> HostFilter::FilterList()
{
    return std::make_shared<HostFilterList>(lstItems);
}

HostFilterItem* HostFilter::Find(std::string_view key) const
{
    const auto found =
        std::ranges::find_if(lstItems, [&](const auto& item) { return EqualsNoCase(item->Name(), key); });
    return found == lstItems.end() ? nullptr : found->get();
}

HostFilter::Box HostFilter::FindBox(const std::string& controlKey) const
{
    for (const auto& item : lstItems) {
        if (EqualsNoCase(item->ControlKey(), controlKey))
            return {item.get(), false};
        if (EqualsNoCase(item->ControlKey() + std::string(kSecondBox), controlKey))
            return {item.get(), true};
    }
    return {Find(controlKey), false};
}

FieldState* HostFilter::State(const std::string& controlKey) const
{
    const Box box = FindBox(controlKey);
    if (!box.item)
        return nullptr;
    return box.second ? &box.item->secondState : &box.item->state;
}

Value HostFilter::GetFieldValue(const std::string& key)
{
    const Box box = FindBox(key);
    if (!box.item)
        return "";
    return box.second ? box.item->varValue2() : box.item->varValue();
}

void HostFilter::SetFieldValue(const std::string& key, const Value& value)
{
    const Box box = FindBox(key);
    if (!box.item)
        return;
    if (box.second)
        box.item->SetvarValue2(value);
    else
        box.item->SetvarValue(value);
}

void HostFilter::SetFieldRefCondition(const std::string& key, const std::string&,
                                      const std::string& condition)
{
    if (FieldState* state = State(key))
        state->condition = condition;
}

void HostFilter::SetFieldFlag(const std::string& key, bool flag)
{
    if (FieldState* state = State(key))
        state->flag = flag;
}

void HostFilter::SetFieldLocked(const std::string& key, bool locked)
{
    if (FieldState* state = State(key))
        state->locked = locked;
}

void HostFilter::RefreshFieldList(const std::string& key, const std::string& enumType,
                                  const std::string& list)
{
    if (const Box box = FindBox(key); box.item) {
        box.item->state.listEnumType = enumType;
        box.item->SetListSource(list);
    }
}

void HostFilter::SetFieldRangeList(const std::string& key, const std::string& list)
{
    const Box box = FindBox(key);
    if (!box.item)
        return;
    const std::vector<std::string> boxes = Split(list, kBoxSeparator);
    box.item->state.range = Split(boxes.front(), kEntrySeparator);
    box.item->secondState.range = Split(boxes.back(), kEntrySeparator);
}

std::string HostFilter::GetWhereWithToken(std::int32_t token)
{
    std::vector<std::string> conditions;
    for (const auto& item : lstItems)
        if (item->GroupToken() == token)
            if (std::string condition = FieldCondition(item->Field(), item->From(), item->To());
                !condition.empty())
                conditions.push_back(std::move(condition));
    return JoinTexts(conditions, " and ");
}

}  // namespace kavelin::host
