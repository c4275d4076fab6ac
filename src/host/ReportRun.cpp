#include "host/ReportRun.h"

#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/Dialog.h"
#include "host/FieldValues.h"
#include "host/HostErrors.h"
#include "host/HostMachine.h"
#include "host/HostRowArgs.h"
#include "host/LocalText.h"

#include <exception>
#include <utility>

namespace kavelin::host {

namespace {

bool TableExists(Connection& connection, const std::string& table)
{
    const auto rows =
        connection.OpenRecordset("select name from sysobjects where name = N'" + table + "' and xtype = 'U'",
                                 CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return !rows->Eof();
}

// "会计年度 2008  ·  会计月份 6月". Lists and flags tell how to show something, not of what, unless a list must be
// chosen from, as the price with which others are compared. A report that was told nothing is about the login's year.
std::string SubjectOf(const HostFilter& filter, LoginContext& login)
{
    const std::string language = login.LanguageRegion();
    std::string subject;
    for (const auto& item : filter.Items()) {
        const FilterField& field = item->Field();
        std::string value = item->Shown();
        if (value.empty() || field.kind == FieldKind::Flag ||
            (field.kind == FieldKind::List && !field.mandatory))
            continue;
        if (const std::string caption = item->CaptionOf(value);
            field.kind == FieldKind::List && !caption.empty())
            value = caption;
        if (language == kEnglish && field.kind == FieldKind::Month)
            value = ReplaceAll(value, kMonthSign, "");
        subject += (subject.empty() ? "" : "  ·  ") + field.caption.In(language) + " " + value;
    }
    return subject.empty() ? LocalText{"会计年度 ", "Accounting year "}.In(language) + login.Year() : subject;
}

}  // namespace

ReportRun::ReportRun(AccountLogin login, ConnectionSource connections, MessageSink onMessage)
    : objSession(std::move(login), connections.With(objFailed), std::move(onMessage))
{
}

ReportRun::~ReportRun()
{
    DropResultQuiet();
}

void ReportRun::Run(const Report& report, const FilterInput& input)
{
    Run(report, input, [](LateBound&) {});
}

void ReportRun::RunAndOpen(const Report& report, const FilterInput& input, std::int64_t row,
                           const std::string& action, ViewerSink onShow)
{
    objSession.SetViewer(std::move(onShow));
    Run(report, input, [&](LateBound& object) { OpenRow(object, row, action); });
    objSession.SetViewer(nullptr);
}

void ReportRun::RunAndDrawAgain(const Report& report, const FilterInput& input, const std::string& action)
{
    Run(report, input, [&](LateBound& object) { DrawAgain(object, action); });
}

void ReportRun::DrawAgain(LateBound& report, const std::string& action)
{
    // The report passes every error of a command over, those of the drawing among them.
    bool drawn = false;
    std::exception_ptr failure;
    objDraw = [&] {
        drawn = true;
        try {
            // A report may look for its old result in tempdb, where this host has none.
            Account().Execute("drop table " + strTable);
            report.Call("GETSQL", {HostObjectPtr(objCall)});
        } catch (...) {
            failure = std::current_exception();
        }
    };
    const auto argument = std::make_shared<HostRowArgs>(objSession.Login(), action, nullptr, objManager);
    report.Call("Execute", {std::static_pointer_cast<LateBound>(argument)});
    objDraw = nullptr;
    if (failure)
        std::rethrow_exception(failure);
    if (!drawn)
        throw Error("The command " + action + " doesn't draw the report again.");
    ExpectWholeResult();
}

void ReportRun::OpenRow(LateBound& report, std::int64_t row, const std::string& action)
{
    const auto rows = OpenResult();
    if (row < 1 || row > rows->RecordCount())
        throw UsageError("The result has no row " + std::to_string(row) + "; it has " +
                         std::to_string(rows->RecordCount()) + ".");
    for (std::int64_t before = 1; before < row; ++before)
        rows->MoveNext();
    const auto argument = std::make_shared<HostRowArgs>(objSession.Login(), action,
                                                        std::make_shared<HostRow>(*rows), objManager);
    rows->Close();
    report.Call("Execute", {std::static_pointer_cast<LateBound>(argument)});
}

std::shared_ptr<LateBound> ReportRun::MakeResult(const Report& report,
                                                 const std::shared_ptr<HostFilter>& filter)
{
    if (report.entry == ReportEntry::Template) {
        const auto object = CreateGoodsTemplate();
        object->Call("CreateNewTemplate", {HostObjectPtr(filter), Value(strTable)});
        return object;
    }
    const auto object = CreateObject("Kavelin." + std::string(report.className));
    objCall =
        std::make_shared<HostCallArgs>(strTable, filter, objSession.Login()->LanguageRegion(), objManager);
    object->Call("GETSQL", {HostObjectPtr(objCall)});
    return object;
}

void ReportRun::Run(const Report& report, const FilterInput& input, const Afterwards& afterwards)
{
    DropResultQuiet();
    objSession.ForgetMessages();

    Dialog dialog(objSession, report);
    dialog.Set(input);
    dialog.Accept();

    objReport = &report;
    strSubject = SubjectOf(*dialog.Filter(), *objSession.Login());
    strTable = "KavelinResult_" + HexDigits(RandomGuid());
    objManager = std::make_shared<ReportManager>(report.table.names, [this] {
        if (objDraw)
            objDraw();
    });
    objFailed->Forget();  // what a dialog's lookups could not read is none of the report's
    const std::shared_ptr<LateBound> object = MakeResult(report, dialog.Filter());
    ExpectWholeResult();
    afterwards(*object);
    objCall.reset();
}

void ReportRun::ExpectWholeResult()
{
    // Nothing behind a loss was done, also where the report told of it and ended normally.
    if (const std::optional<std::string> loss = objFailed->Loss())
        throw ReportError("The report failed: " + *loss);
    const std::optional<std::string> failed = objFailed->First();
    const bool told = !Messages().empty();
    if (TableExists(Account(), strTable) && (told || !failed))
        return;
    if (told)
        throw ReportError("The report failed: " + Messages().back().text);
    if (failed)
        throw ReportError("The report failed: " + *failed);
    throw ReportError("The report failed without a message and left no result.");
}

std::unique_ptr<Recordset> ReportRun::OpenResult()
{
    if (strTable.empty())
        throw Error("No report has run.");
    const std::string order =
        objReport->orderBy.empty() ? "" : " order by " + std::string(objReport->orderBy);
    return Account().OpenRecordset("select * from " + strTable + order, CursorLocation::Client,
                                   CursorType::Static, LockType::ReadOnly);
}

void ReportRun::DropResultQuiet() noexcept
{
    if (strTable.empty())
        return;
    try {
        objSession.Connections().Resume();
        Account().Execute("drop table " + strTable);
    } catch (const std::exception&) {
        // The report may have failed before it made the table.
    }
    strTable.clear();
}

}  // namespace kavelin::host
