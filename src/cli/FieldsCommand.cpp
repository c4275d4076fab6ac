// kavelin fields REPORT
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/ReportFlags.h"
#include "cli/TextRows.h"
#include "cli/Work.h"
#include "frame/Errors.h"
#include "host/Dialog.h"
#include "host/FilterTemplate.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace kavelin::cli {

namespace {

void Append(std::string& text, const std::string& piece)
{
    text += (text.empty() || piece.empty() ? "" : ", ") + piece;
}

// What the kind alone doesn't tell: "range", "several", "mandatory".
std::string Extent(const host::FilterField& field)
{
    std::string text = field.range ? "range" : "";
    Append(text, field.multiple ? "several" : "");
    Append(text, field.mandatory ? "mandatory" : "");
    return text;
}

// Without an account nobody knows what a dialog offers: the fields as they are described.
TextRows Described(const host::Report& report)
{
    std::vector<TextRows::Row> rows;
    for (const host::FilterField& field : host::TemplateOf(report.name).fields) {
        std::string offers;
        for (const host::ListEntry& entry : field.entries)
            Append(offers, entry.value);
        rows.push_back({field.key, field.caption.chinese, field.caption.english,
                        std::string(host::KindName(field.kind)), Extent(field), offers, field.byDefault});
    }
    return {{"key", "名称", "caption", "kind", "takes", "list", "default"}, std::move(rows)};
}

// How many rows a lookup has. A field whose table the account lacks is no reason to hide the others.
std::string RowsOf(host::Dialog& dialog, const host::HostFilterItem& item)
{
    try {
        const std::int64_t rows = dialog.LookupCount(item);
        return fmt::format("{} {}", rows, rows == 1 ? "row" : "rows");
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        return fmt::format("no lookup: {}", error.Get().strMessage);
    }
}

// The entries of a drop-down, or how many rows a lookup has.
std::string Offers(host::Dialog& dialog, const host::HostFilterItem& item)
{
    if (item.HasLookup())
        return RowsOf(dialog, item);
    std::string offers;
    for (const host::Choice& choice : item.Choices(false))
        Append(offers, choice.caption == choice.value ? choice.value
                                                      : fmt::format("{} ({})", choice.value, choice.caption));
    return offers;
}

TextRows Opened(const host::Report& report, host::Dialog& dialog, const std::string& language)
{
    std::vector<TextRows::Row> rows;
    for (const host::FilterField& field : host::TemplateOf(report.name).fields) {
        TextRows::Row row = {field.key, field.caption.In(language), std::string(host::KindName(field.kind)),
                             Extent(field)};
        if (const host::HostFilterItem* item = dialog.Filter()->Find(field.key))
            row.insert(row.end(), {item->Shown(), item->state.locked ? "locked" : "", Offers(dialog, *item)});
        else
            row.insert(row.end(), {field.byDefault, "", ""});
        rows.push_back(std::move(row));
    }
    return {{"key", "caption", "kind", "takes", "value", "locked", "offers"}, std::move(rows)};
}

void ListFields(const CLI::App& command, const ReportFlags& flags)
{
    const host::Report& report = ReportOf(command, flags);
    const host::FilterInput input = InputOf(report, flags.filter);
    RowsTarget target(flags.output);

    if (auto login = LoginIfAny(flags.login)) {
        Work work({.showSql = flags.showSql});
        host::Session session(*login, work.Connections(), work.Messages());
        host::Dialog dialog(session, report);
        dialog.Set(input);
        TextRows rows = Opened(report, dialog, session.Login()->LanguageRegion());
        work.EndProgress();
        target.WriteWhole(rows);
    } else {
        TextRows rows = Described(report);
        target.WriteWhole(rows);
    }
    target.Finish();
}

}  // namespace

void AddFields(CLI::App& program, Action& action)
{
    CLI::App* command =
        AddCommand(program, "fields", "List the fields of a report's filter as its dialog opens",
                   "fields capital-share\n"
                   "fields estimate-balance --account demo.kavelin --language en-US\n"
                   "fields abc --set iyear=2008            # after a change");
    const auto flags = std::make_shared<ReportFlags>();
    AddReportArgument(*command, *flags);
    AddReportFlags(*command, *flags, false);
    OnChosen(*command, action, [flags, command] { ListFields(*command, *flags); });
}

}  // namespace kavelin::cli
