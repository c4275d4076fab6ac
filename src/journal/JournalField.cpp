#include "journal/JournalField.h"

#include "frame/FilterWalk.h"

namespace kavelin {

namespace {

std::string Range(const std::string& before, const JournalField& field, const std::string& quote)
{
    std::string where;
    if (!field.from.empty())
        where += before + field.name + ">= " + quote + field.from + "'";
    if (!field.to.empty())
        where += before + field.name + "<= " + quote + field.to + "'";
    return where;
}

}  // namespace

JournalField ReadJournalField(FilterItem& item, std::int32_t token)
{
    item.SetLngGrouptoken(token);
    JournalField field;
    field.name = item.Name();
    field.from = FilterText(item.varValue());
    field.to = FilterText(item.varValue2());
    field.range = item.RangeInput();
    field.several = item.IsMultSel();
    return field;
}

std::string CompareField(const std::string& before, const JournalField& field)
{
    if (field.from.empty() && field.to.empty())
        return "";
    return field.range ? Range(before, field, "N'") : before + field.name + "= N'" + field.from + "'";
}

std::string CompareDates(const std::string& before, const JournalField& field)
{
    return Range(before, field, "'");
}

}  // namespace kavelin
