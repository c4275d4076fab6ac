#include "host/HostFilter.h"

#include "frame/Decimal.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/NamedObjects.h"

#include <algorithm>

namespace kavelin::host {

namespace {

constexpr std::string_view kSecondBox = "__2";

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

std::string Join(const std::vector<std::string>& texts, std::string_view separator)
{
    std::string result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0)
            result += separator;
        result += texts[i];
    }
    return result;
}

std::string TextLiteral(std::string_view text)
{
    return "N'" + ReplaceAll(text, "'", "''") + "'";
}

// A number stands bare, whatever else is set in a number field stands as a text.
std::string Literal(const FilterField& field, const std::string& text)
{
    return field.kind == FieldKind::Number && Decimal::FromText(text) ? text : TextLiteral(text);
}

// Letters of the pattern language stand for themselves within brackets.
std::string PrefixTest(const std::string& column, std::string_view prefix)
{
    std::string pattern;
    for (const char letter : prefix) {
        if (letter == '%' || letter == '_' || letter == '[')
            pattern += std::string("[") + letter + "]";
        else
            pattern += letter;
    }
    return column + " like " + TextLiteral(pattern + "%");
}

std::string RangeTest(const FilterField& field, const std::string& from, const std::string& to)
{
    const bool prefix = field.match == FieldMatch::Prefix;
    if (prefix && from == to)
        return PrefixTest(field.column, from);

    std::vector<std::string> tests;
    if (!from.empty())
        tests.push_back(field.column + " >= " + Literal(field, from));
    if (!to.empty()) {
        const std::string below = field.column + " <= " + Literal(field, to);
        // The last class of the range with its sub-classes, which sort behind it.
        tests.push_back(prefix ? "(" + below + " or " + PrefixTest(field.column, to) + ")" : below);
    }
    return Join(tests, " and ");
}

std::string ListTest(const FilterField& field, const std::vector<std::string>& values)
{
    std::vector<std::string> tests;
    if (field.match == FieldMatch::Prefix) {
        for (const std::string& value : values)
            tests.push_back(PrefixTest(field.column, value));
        return tests.size() == 1 ? tests[0] : "(" + Join(tests, " or ") + ")";
    }
    for (const std::string& value : values)
        tests.push_back(Literal(field, value));
    return tests.size() == 1 ? field.column + " = " + tests[0]
                             : field.column + " in (" + Join(tests, ", ") + ")";
}

}  // namespace

HostFilterItem::HostFilterItem(FilterField field) : objField(std::move(field))
{
    std::vector<std::string> entries;
    for (const ListEntry& entry : objField.entries)
        entries.push_back(entry.value);
    strListSource = Join(entries, ",");
}

std::string HostFilterItem::Condition() const
{
    const std::string from = ToText(varFrom);
    const std::string to = ToText(varTo);
    if (objField.column.empty() || (from.empty() && to.empty()))
        return "";
    if (objField.range)
        return RangeTest(objField, from, to);

    std::vector<std::string> values;
    if (objField.multiple) {
        for (std::string& value : Split(from, std::string(1, objField.separator)))
            if (!value.empty())
                values.push_back(std::move(value));
    } else if (!from.empty()) {
        values.push_back(from);
    }
    return values.empty() ? "" : ListTest(objField, values);
}

HostFilter::HostFilter(std::string filterId, const FilterTemplate& filter,
                       std::shared_ptr<LoginContext> login)
    : strFilterId(std::move(filterId)),
      objLogin(std::move(login)),
      objContextArgs(std::make_shared<HostNamedValues>())
{
    for (const FilterField& field : filter.fields)
        if (!field.argument)
            lstItems.push_back(std::make_shared<HostFilterItem>(field));
}

void HostFilter::Fill(const FilterInput& input)
{
    for (const FieldInput& given : input.Fields()) {
        const std::string value =
            given.field->range ? given.from : Join(given.values, std::string(1, given.field->separator));
        if (given.field->argument) {
            objContextArgs->Add(Value(value), given.field->key);
            continue;
        }
        const Box box = Find(given.field->key);
        box.item->SetvarValue(value);
        box.item->SetvarValue2(given.to);
    }
}

std::shared_ptr<kavelin::FilterList> HostFilter::FilterList()
{
    return std::make_shared<HostFilterList>(lstItems);
}

HostFilter::Box HostFilter::Find(const std::string& key)
{
    for (const auto& item : lstItems) {
        if (EqualsNoCase(item->ControlKey(), key))
            return {item.get(), false};
        if (EqualsNoCase(item->ControlKey() + std::string(kSecondBox), key))
            return {item.get(), true};
    }
    throw Error("The filter has no field " + key + ".");
}

FieldState& HostFilter::State(const std::string& key)
{
    const Box box = Find(key);
    return box.second ? box.item->secondState : box.item->state;
}

Value HostFilter::GetFieldValue(const std::string& key)
{
    const Box box = Find(key);
    return box.second ? box.item->varValue2() : box.item->varValue();
}

void HostFilter::SetFieldValue(const std::string& key, const Value& value)
{
    const Box box = Find(key);
    if (box.second)
        box.item->SetvarValue2(value);
    else
        box.item->SetvarValue(value);
}

void HostFilter::SetFieldRefCondition(const std::string& key, const std::string&,
                                      const std::string& condition)
{
    State(key).condition = condition;
}

void HostFilter::SetFieldFlag(const std::string& key, bool flag)
{
    State(key).flag = flag;
}

void HostFilter::SetFieldLocked(const std::string& key, bool locked)
{
    State(key).locked = locked;
}

void HostFilter::RefreshFieldList(const std::string& key, const std::string& enumType,
                                  const std::string& list)
{
    FieldState& state = State(key);
    state.listEnumType = enumType;
    state.list = list;
}

void HostFilter::SetFieldRangeList(const std::string& key, const std::string& list)
{
    State(key).rangeList = list;
}

std::string HostFilter::GetWhereWithToken(std::int32_t token)
{
    std::vector<std::string> conditions;
    for (const auto& item : lstItems)
        if (item->GroupToken() == token)
            if (std::string condition = item->Condition(); !condition.empty())
                conditions.push_back(std::move(condition));
    return Join(conditions, " and ");
}

const FieldState& HostFilter::StateOf(const std::string& key)
{
    return State(key);
}

}  // namespace kavelin::host
