#include "cli/Work.h"

#include "cli/Messages.h"
#include "cli/Terminal.h"
#include "frame/Errors.h"

#include <iostream>

namespace kavelin::cli {

namespace {

[[noreturn]] void ThrowInterrupted()
{
    DatabaseError::Details details;
    details.strMessage = "Interrupted.";
    throw CancelledError(details);
}

class StoppableRows : public Recordset {
  public:
    StoppableRows(Recordset& rows, const host::Cancellation& cancellation)
        : objRows(rows), objCancellation(cancellation)
    {
    }

    bool Eof() const override { return objRows.Eof(); }
    void MoveNext() override
    {
        if (objCancellation.IsCancelled())
            ThrowInterrupted();
        objRows.MoveNext();
    }
    void MoveFirst() override { objRows.MoveFirst(); }
    std::int64_t RecordCount() const override { return objRows.RecordCount(); }
    int FieldCount() const override { return objRows.FieldCount(); }
    std::string FieldName(int field) const override { return objRows.FieldName(field); }
    std::string FieldType(int field) const override { return objRows.FieldType(field); }
    Value Field(int field) const override { return objRows.Field(field); }
    using Recordset::Field;
    void Close() override { objRows.Close(); }

  private:
    Recordset& objRows;
    const host::Cancellation& objCancellation;
};

}  // namespace

Work::Work(const WorkOptions& options)
    : objCancellation(std::make_shared<host::Cancellation>()), objInterrupt(objCancellation)
{
    if (auto log = host::LogFromEnvironment())
        lstObservers.push_back(std::move(log));
    if (options.showSql) {
        lstObservers.push_back(std::make_shared<host::StatementPrinter>(std::cerr));
    } else if (IsTerminal(Stream::Error)) {
        objProgress = std::make_shared<ProgressLine>(options.statements);
        lstObservers.push_back(objProgress);
    }
}

Work::~Work()
{
    EndProgress();
}

host::ConnectionSource Work::Connections() const
{
    return host::ConnectionSource(lstObservers, objCancellation);
}

host::MessageSink Work::Messages() const
{
    return [progress = objProgress](const host::ShownMessage& message) {
        if (progress)
            progress->Hide();
        Say((message.icon == kWarning ? "Warning: " : "") + message.text);
    };
}

void Work::Show(const std::string& text)
{
    if (objProgress)
        objProgress->Show(text);
}

void Work::HideProgress() const
{
    if (objProgress)
        objProgress->Hide();
}

void Work::EndProgress() const
{
    if (objProgress)
        objProgress->Hide(true);
}

void Work::StopIfInterrupted() const
{
    if (objCancellation->IsCancelled())
        ThrowInterrupted();
}

std::unique_ptr<Recordset> Work::Stoppable(Recordset& rows) const
{
    return std::make_unique<StoppableRows>(rows, *objCancellation);
}

}  // namespace kavelin::cli
