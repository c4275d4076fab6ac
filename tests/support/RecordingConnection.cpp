#include "support/RecordingConnection.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <chrono>

namespace kavelin::test {

namespace {

Rows ScriptedRows(const ConnectionScript& script, const std::string& sql)
{
    if (const auto whole = script.rows.find(sql); whole != script.rows.end())
        return whole->second;
    for (const auto& [start, rows] : script.rowsByStart)
        if (sql.starts_with(start))
            return rows;
    return {};
}

class RecordingRecordset : public Recordset {
  public:
    RecordingRecordset(std::shared_ptr<EventLog> events, std::unique_ptr<Recordset> inner, int number)
        : objEvents(std::move(events)),
          objInner(std::move(inner)),
          strName("@" + std::to_string(number) + ".")
    {
    }

    bool Eof() const override { return objInner->Eof(); }
    void MoveNext() override
    {
        objEvents->Add(strName + "MoveNext");
        objInner->MoveNext();
    }
    void MoveFirst() override
    {
        objEvents->Add(strName + "MoveFirst");
        objInner->MoveFirst();
    }
    std::int64_t RecordCount() const override
    {
        objEvents->Add(strName + "RecordCount");
        return objInner->RecordCount();
    }
    int FieldCount() const override { return objInner->FieldCount(); }
    std::string FieldName(int field) const override { return objInner->FieldName(field); }
    std::string FieldType(int field) const override { return objInner->FieldType(field); }
    Value Field(int field) const override
    {
        const std::string name = objInner->FieldName(field);
        objEvents->Add(strName + "Field " + (name.empty() ? std::to_string(field) : name));
        return objInner->Field(field);
    }
    void Close() override
    {
        objEvents->Add(strName + "Close");
        objInner->Close();
    }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::unique_ptr<Recordset> objInner;
    std::string strName;
};

std::string OnOneLine(const std::string& sql)
{
    return ReplaceAll(sql, "\r\n", "⏎");
}

}  // namespace

RecordingConnection::RecordingConnection(std::shared_ptr<EventLog> events,
                                         std::shared_ptr<ConnectionScript> script)
    : objEvents(std::move(events)), objScript(std::move(script)), lngNumber(++objScript->connections)
{
    if (objScript->makeInner)
        cnnInner = objScript->makeInner();
}

void RecordingConnection::Note(const std::string& what)
{
    objEvents->Add("#" + std::to_string(lngNumber) + "." + what);
}

void RecordingConnection::SetCursorLocation(CursorLocation location)
{
    Note("CursorLocation = " + std::to_string(static_cast<int>(location)));
    if (cnnInner)
        cnnInner->SetCursorLocation(location);
}

void RecordingConnection::SetConnectionString(const std::string& text)
{
    Note("ConnectionString = '" + text + "'");
    if (cnnInner)
        cnnInner->SetConnectionString(text);
}

void RecordingConnection::SetConnectionTimeout(std::int32_t seconds)
{
    Note("ConnectionTimeout = " + std::to_string(seconds));
    if (cnnInner)
        cnnInner->SetConnectionTimeout(seconds);
}

void RecordingConnection::SetCommandTimeout(std::int32_t seconds)
{
    Note("CommandTimeout = " + std::to_string(seconds));
    if (cnnInner)
        cnnInner->SetCommandTimeout(seconds);
}

void RecordingConnection::Open(const std::string& user, const std::string& password, std::int32_t options)
{
    Note("Open user='" + user + "' password='" + password + "' options=" + std::to_string(options));
    if (objScript->failAtOpen == lngNumber)
        throw ConnectionError(
            {.strMessage = "the server of connection #" + std::to_string(lngNumber) + " can't be reached",
             .strSqlState = "08001",
             .strStatement = {}});
    if (cnnInner)
        cnnInner->Open(user, password, options);
    objState = ConnectionState::Open;
}

void RecordingConnection::Close()
{
    Note("Close");
    if (cnnInner)
        cnnInner->Close();
    objState = ConnectionState::Closed;
}

void RecordingConnection::FailIfPlanned(const std::string& sql) const
{
    const auto failure = objScript->failures.find(sql);
    if (failure != objScript->failures.end())
        throw DatabaseError({.strMessage = failure->second, .strSqlState = {}, .strStatement = sql});
    if (objScript->sent.size() == objScript->failAtStatement)
        throw DatabaseError(
            {.strMessage = "planned failure of statement " + std::to_string(objScript->failAtStatement),
             .strSqlState = {},
             .strStatement = sql});
    if (objState == ConnectionState::Closed)
        throw DatabaseError(
            {.strMessage = "the connection is closed", .strSqlState = {}, .strStatement = sql});
}

template <class Run, class RowCount>
auto RecordingConnection::Send(const std::string& sql, Run run, RowCount rowCount)
{
    const auto start = std::chrono::steady_clock::now();
    const auto milliseconds = [&] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    const SentStatement statement{lngNumber, sql};
    objScript->sent.push_back(statement);
    try {
        FailIfPlanned(sql);
        auto result = run();
        AppendToSqlLog(statement, milliseconds(), rowCount(result), "");
        return result;
    } catch (const Error& error) {
        AppendToSqlLog(statement, milliseconds(), -1, error.what());
        throw;
    }
}

std::int64_t RecordingConnection::Execute(const std::string& sql)
{
    Note("Execute " + OnOneLine(sql));
    return Send(
        sql, [&] { return cnnInner ? cnnInner->Execute(sql) : -1; }, [](std::int64_t rows) { return rows; });
}

std::unique_ptr<Recordset> RecordingConnection::OpenRecordset(const std::string& sql, CursorLocation location,
                                                              CursorType type, LockType lock)
{
    const int number = ++objScript->recordsets;
    Note("OpenRecordset @" + std::to_string(number) + " location=" +
         std::to_string(static_cast<int>(location)) + " type=" + std::to_string(static_cast<int>(type)) +
         " lock=" + std::to_string(static_cast<int>(lock)) + " " + OnOneLine(sql));
    auto rows = Send(
        sql,
        [&]() -> std::unique_ptr<Recordset> {
            if (cnnInner)
                return cnnInner->OpenRecordset(sql, location, type, lock);
            return std::make_unique<ScriptedRecordset>(ScriptedRows(*objScript, sql), type);
        },
        [](const std::unique_ptr<Recordset>& opened) { return opened->RecordCount(); });
    return std::make_unique<RecordingRecordset>(objEvents, std::move(rows), number);
}

void RecordingConnection::Cancel() noexcept
{
    if (cnnInner)
        cnnInner->Cancel();
}

}  // namespace kavelin::test
