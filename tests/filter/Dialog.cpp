#include "filter/Dialog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

bool IsChange(const std::string& line)
{
    constexpr std::string_view kChanges[] = {"SetField", "RefreshFieldList", "ContextArgs.Add", "Beep",
                                             "ShowMessage"};
    if (line.starts_with("#"))
        return false;
    return line.find(".varValue = ") != line.npos || line.find(".varValue2 = ") != line.npos ||
           line.find(".ListSource = ") != line.npos ||
           std::ranges::any_of(kChanges, [&](std::string_view begin) { return line.starts_with(begin); });
}

std::string WithoutOwner(std::string line)
{
    for (const std::string_view owner : {"RawFilter.", "ResourceObject."})
        if (line.starts_with(owner))
            line.erase(0, owner.size());
    return line;
}

}  // namespace

Dialog::Dialog(RecordingHost& host, std::string_view identity, const std::vector<FakeField>& fields)
    : objHost(host)
{
    host.SetFilter(fields);
    objFilter = host.Filter();
    objFilter->filterId = identity;
    objFilter->login = host.Login();
}

void Dialog::Open()
{
    objHost.Events().Clear();
    objControl.CallBack_FilterInit(Filter());
}

void Dialog::Change(const std::string& key)
{
    objHost.Events().Clear();
    objControl.CallBack_ValueChange(key, Filter());
}

bool Dialog::Click()
{
    objHost.Events().Clear();
    bool cancel = false;
    objControl.CallBack_FilterClick(Filter(), cancel);
    return cancel;
}

std::string Dialog::FirstView()
{
    objHost.Events().Clear();
    Value view = "untouched";
    objControl.CallBack_ReportViewInit(Filter(), view);
    return ToText(view);
}

std::string Dialog::ViewAfter(const std::string& key)
{
    objHost.Events().Clear();
    Value view = "untouched";
    objControl.CallBack_ReportViewChange(key, Filter(), view);
    return ToText(view);
}

void Dialog::Type(const std::string& key, const Value& from, const Value& to)
{
    const auto item = Filter().FilterList()->Item(key);
    item->SetvarValue(from);
    item->SetvarValue2(to);
}

Changes Dialog::Made() const
{
    Changes changes;
    for (const std::string& event : objHost.Events().Lines())
        if (const std::string line = WithoutOwner(event); IsChange(line))
            changes.push_back(line);
    return changes;
}

Changes OpeningOf(RecordingHost& host, std::string_view identity, const FakeField& field)
{
    const Changes always = OpeningOfAll(host, identity);

    Dialog dialog(host, identity, {field});
    dialog.Open();
    Changes changes = dialog.Made();
    if (changes.size() < always.size() || !std::ranges::equal(std::span(changes).last(always.size()), always))
        ADD_FAILURE() << "the end of the opening is not that of every dialog";
    else
        changes.resize(changes.size() - always.size());
    return changes;
}

Changes OpeningOfAll(RecordingHost& host, std::string_view identity)
{
    Dialog empty(host, identity, {});
    empty.Open();
    return empty.Made();
}

void ExpectChanges(RecordingHost& host, const std::vector<FieldCase>& cases)
{
    for (const FieldCase& c : cases)
        EXPECT_EQ(OpeningOf(host, c.identity, c.field), c.changes) << c.identity << " " << c.field.name;
}

}  // namespace kavelin::test
