#include "host/Dialog.h"

#include "component/Component.h"
#include "frame/DataPermission.h"
#include "frame/ModPub.h"
#include "frame/Text.h"
#include "host/FieldValues.h"
#include "host/HostErrors.h"
#include "host/PeriodDates.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace kavelin::host {

namespace {

constexpr std::size_t kNamedChoices = 12;  // in a message; the months of a year fit

std::shared_ptr<LateBound> ControlOf(const Report& report)
{
    return report.filterId.empty() ? nullptr : CreateObject("Kavelin.clsFilterControl");
}

// What a dialog's opening does, for a template that has none: its lookups and its run work on that connection.
void OpenAccountOfLibrary(const std::shared_ptr<HostLogin>& login)
{
    ModPubState& state = ModPub();
    state.gcnnAccount = CurrentPlatform().CreateConnection();
    state.gcnnAccount->SetCursorLocation(CursorLocation::Client);
    state.gcnnAccount->SetConnectionString(login->VosDbName());
    state.gcnnAccount->SetConnectionTimeout(0);
    state.gcnnAccount->SetCommandTimeout(0);
    state.gcnnAccount->Open("", "", -1);
    state.gobjLogin = login;
}

std::string Named(const std::vector<Choice>& choices)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(choices.size(), kNamedChoices); ++i)
        text += (i == 0 ? "" : ", ") + choices[i].value;
    return choices.size() > kNamedChoices
               ? fmt::format("{} and {} more", text, choices.size() - kNamedChoices)
               : text;
}

// The entry that the value names by itself or by its caption.
std::string Offered(const FilterField& field, const std::vector<Choice>& choices, const std::string& value)
{
    if (value.empty() || choices.empty())
        return value;
    for (const Choice& choice : choices)
        if (EqualsNoCase(choice.value, value))
            return choice.value;
    for (const Choice& choice : choices)
        if (EqualsNoCase(choice.caption, value))
            return choice.value;
    std::vector<std::string> names;
    for (const Choice& choice : choices)
        names.push_back(choice.value);
    throw UsageError(fmt::format("{}: the dialog doesn't offer {}, but {}.{}", field.key, value,
                                 Named(choices), DidYouMean(value, names)));
}

// The given values as the field's lists hold them.
FieldInput Offered(const FieldInput& given, const HostFilterItem& item)
{
    FieldInput offered = given;
    offered.from = Offered(*given.field, item.Choices(false), given.from);
    offered.to = Offered(*given.field, item.Choices(true), given.to);
    for (std::string& value : offered.values)
        value = Offered(*given.field, item.Choices(false), value);
    return offered;
}

bool Matches(const Choice& choice, std::string_view text)
{
    const std::string part = ToLower(text);
    return ToLower(choice.value).starts_with(part) || ToLower(choice.caption).find(part) != std::string::npos;
}

}  // namespace

Dialog::Dialog(Session& session, const Report& report) : Dialog(session, report, ControlOf(report)) {}

Dialog::Dialog(Session& session, const Report& report, std::shared_ptr<LateBound> control)
    : objSession(session),
      objReport(report),
      objUse(session),
      objTemplate(TemplateOf(report.name)),
      objControl(std::move(control)),
      objFilter(std::make_shared<HostFilter>(std::string(report.filterId), objTemplate, session.Login()))
{
    objFilter->Fill(FilterInput(objTemplate, ValuePolicy::Checked));
    Open();
}

void Dialog::Open()
{
    if (objReport.entry == ReportEntry::Template)
        OpenAccountOfLibrary(objSession.Login());
    if (!objControl)
        return;
    objControl->Call("CallBack_FilterInit", {HostObjectPtr(objFilter)});
    std::vector<Variant> arguments = {HostObjectPtr(objFilter), Value(strView)};
    objControl->CallByReference("CallBack_ReportViewInit", arguments);
    strView = ToText(ValueOf(arguments[1], "ReturnViewClass"));
}

void Dialog::Set(const FilterInput& input)
{
    struct Taken {
        const HostFilterItem* item;
        std::string value;
    };
    std::vector<Taken> taken;
    for (const FieldInput& given : input.Fields()) {
        if (!given.given)
            continue;
        SetField(given, input.Policy());
        lstGiven.push_back(given.field->key);
        if (const HostFilterItem* item = objFilter->Find(given.field->key))
            taken.push_back({item, item->Shown()});
    }
    for (const Taken& one : taken)
        if (one.item->Shown() != one.value)
            throw UsageError(
                fmt::format("{}: {} doesn't go with the other values; the dialog has made \"{}\" of it.",
                            one.item->Field().key, one.value, one.item->Shown()));
}

void Dialog::SetField(const FieldInput& given, ValuePolicy policy)
{
    const HostFilterItem* item = objFilter->Find(given.field->key);
    if (!item) {
        objFilter->Fill(given);
        return;
    }
    if (item->state.locked || (item->secondState.locked && !given.to.empty()))
        throw UsageError(fmt::format("{}: the dialog has locked this field ({}).", given.field->key,
                                     given.field->caption.In(objSession.Login()->LanguageRegion())));
    objFilter->Fill(policy == ValuePolicy::Checked ? Offered(given, *item) : given);
    try {
        TellChange(given.field->key);
    } catch (const ConversionError& error) {
        // A year without which there are no months: the rule's error alone doesn't tell which field it means.
        throw UsageError(
            fmt::format("{}: {}; it takes {}.", given.field->key, error.what(), WhatItTakes(*given.field)));
    }
}

void Dialog::TellChange(const std::string& key)
{
    if (!objControl)
        return;
    objControl->Call("CallBack_ValueChange", {Value(key), HostObjectPtr(objFilter)});
    std::vector<Variant> arguments = {Value(key), HostObjectPtr(objFilter), Value(strView)};
    objControl->CallByReference("CallBack_ReportViewChange", arguments);
    strView = ToText(ValueOf(arguments[2], "ReturnViewClass"));
}

void Dialog::Accept()
{
    RequireMandatory();
    if (objControl) {
        std::vector<Variant> arguments = {HostObjectPtr(objFilter), Value(false)};
        objControl->CallByReference("CallBack_FilterClick", arguments);
        if (ToBoolean(ValueOf(arguments[1], "Cancel")))
            throw FilterRefused(fmt::format("The filter of {} was not accepted.", objReport.name));
    }
    PutMonthsAsDates(*objFilter, lstGiven, objSession.Account(), objSession.Login()->AccountId());
}

void Dialog::RequireMandatory() const
{
    for (const auto& item : objFilter->Items()) {
        const FilterField& field = item->Field();
        const bool from = !Trim(item->From()).empty();
        const bool to = !Trim(item->To()).empty();
        if ((field.mandatory && !from && !to) || (field.bothEnds && from != to))
            throw UsageError(fmt::format("{} needs {} ({}): {}.", objReport.name, field.key,
                                         field.caption.In(objSession.Login()->LanguageRegion()),
                                         WhatItTakes(field)));
    }
}

LookupSelect Dialog::LookupOf(const HostFilterItem& item) const
{
    if (const std::string select = item.LookupSelect(); !select.empty())
        return LookupSelect(select);
    const LookupTemplate& lookup = item.Field().lookup;
    const std::string rights =
        lookup.rightsKind.empty()
            ? ""
            : GetDataPermissionClause(lookup.rightsColumn, lookup.rightsKind, false, false);
    return LookupSelect(lookup, rights, objSession.Login()->LanguageRegion());
}

std::int64_t Dialog::LookupCount(const HostFilterItem& item)
{
    const LookupSelect lookup = LookupOf(item);
    const auto rows =
        objSession.Account().OpenRecordset(lookup.SelectCount({lookup.Resolve(item.state.condition)}),
                                           CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return ToInt32(rows->Field(0));
}

OfferedRows Dialog::Offer(const std::string& key, std::string_view text, std::size_t page, std::size_t size)
{
    const HostFilterItem* item = objFilter->Find(key);
    const std::size_t skipped = (page - 1) * size;
    if (item && item->HasLookup())
        return OfferOfLookup(*item, text, skipped, size);

    std::vector<Choice> choices = item ? item->Choices(false) : std::vector<Choice>();
    if (choices.empty())
        throw UsageError(
            fmt::format("{} offers no list: it takes {}.", key, WhatItTakes(*objTemplate.Find(key))));
    std::erase_if(choices, [&](const Choice& choice) { return !Matches(choice, Trim(text)); });
    OfferedRows offered{{"value", "caption"}, {}, choices.size() > skipped + size};
    for (std::size_t row = skipped; row < std::min(choices.size(), skipped + size); ++row)
        offered.rows.push_back({choices[row].value, choices[row].caption});
    return offered;
}

// The row behind the page tells whether there are more.
OfferedRows Dialog::OfferOfLookup(const HostFilterItem& item, std::string_view text, std::size_t skipped,
                                  std::size_t size)
{
    const LookupSelect lookup = LookupOf(item);
    const auto rows = objSession.Account().OpenRecordset(
        lookup.Select(skipped + size + 1, {lookup.Resolve(item.state.condition), lookup.Search(text)}),
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    OfferedRows offered{lookup.Captions(), {}, false};
    for (std::size_t row = 0; !rows->Eof(); rows->MoveNext(), ++row) {
        if (row < skipped)
            continue;
        offered.more = offered.rows.size() == size;
        if (offered.more)
            break;
        offered.rows.emplace_back();
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            offered.rows.back().push_back(value.IsNull() ? "" : ToText(value));
        }
    }
    return offered;
}

}  // namespace kavelin::host
