#include "host/HostFilterItem.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"
#include "host/FieldValues.h"
#include "host/HostResources.h"

#include <utility>

namespace kavelin::host {

namespace {

// What a flag holds, and the text that is shown for it.
constexpr struct {
    std::string_view value;
    const char* textKey;
} kFlagValues[] = {
    {kYes, "Orvo.IA.CHHSSQL.06653"},
    {kNo, "Orvo.IA.CHHSSQL.06654"},
};

bool IsSelect(std::string_view source)
{
    return EqualsNoCase(Left(Trim(source), 7), "select ");
}

}  // namespace

HostFilterItem::HostFilterItem(FilterField field, std::string language)
    : objField(std::move(field)), strLanguage(std::move(language))
{
    std::vector<std::string> entries;
    for (const ListEntry& entry : objField.entries)
        entries.push_back(entry.value);
    strListSource = JoinTexts(entries, ",");
}

std::string HostFilterItem::Shown() const
{
    if (objField.range)
        return From() == To() ? From() : From() + ".." + To();
    return ReplaceAll(From(), std::string(1, objField.separator), ",");
}

std::vector<Choice> HostFilterItem::Choices(bool second) const
{
    std::vector<std::string> values = (second ? secondState : state).range;
    if (values.empty() && !IsSelect(strListSource))
        values = Split(strListSource, ",");
    std::erase(values, "");
    if (values.empty() && objField.kind == FieldKind::Flag)
        for (const auto& flag : kFlagValues)
            values.emplace_back(flag.value);

    std::vector<Choice> choices;
    for (std::string& value : values) {
        std::string caption = CaptionOf(value);
        choices.push_back({std::move(value), std::move(caption)});
    }
    return choices;
}

std::string HostFilterItem::LookupSelect() const
{
    return IsSelect(strListSource) ? strListSource : "";
}

Value HostFilterItem::Stored(const Value& value) const
{
    if (objField.kind != FieldKind::List || !value.IsText())
        return value;
    std::vector<std::string> values = ValuesOf(objField, ToText(value));
    for (std::string& one : values)
        one = CodeOf(one);
    return JoinTexts(values, std::string(1, objField.separator));
}

std::string HostFilterItem::CodeOf(const std::string& shown) const
{
    for (const ListEntry& entry : objField.entries)
        if (entry.value == shown)
            return shown;
    for (const ListEntry& entry : objField.entries)
        if (EqualsNoCase(entry.value, shown) || EqualsNoCase(entry.caption.In(strLanguage), shown))
            return entry.value;
    return objField.enumType.empty() ? shown
                                     : HostResources(strLanguage, {}).GetEnumCode(objField.enumType, shown);
}

std::string HostFilterItem::CaptionOf(const std::string& value) const
{
    for (const ListEntry& entry : objField.entries)
        if (entry.value == value)
            return entry.caption.In(strLanguage);
    if (objField.kind == FieldKind::Flag)
        for (const auto& flag : kFlagValues)
            if (flag.value == value)
                return HostResources(strLanguage, {}).GetResString(flag.textKey);
    std::string type = state.listEnumType.empty() ? objField.enumType : state.listEnumType;
    if (type.empty() && objField.kind == FieldKind::Month)
        type = "IA.Month";
    return type.empty() ? value : HostResources(strLanguage, {}).GetEnumName(type, value);
}

}  // namespace kavelin::host
