#include "host/HostConnection.h"

#include "database/odbc/ConnectionText.h"
#include "database/odbc/OdbcConnection.h"
#include "embedded/EmbeddedAccount.h"
#include "frame/Errors.h"
#include "frame/Text.h"

#include <atomic>
#include <utility>

namespace kavelin::host {

namespace {

constexpr std::string_view kEmbeddedKey = "Embedded Account";

DatabaseError::Details NotConnected(std::string message)
{
    DatabaseError::Details details;
    details.strMessage = std::move(message);
    details.strSqlState = "08001";
    return details;
}

bool HasKey(std::string_view connectionString, std::string_view key)
{
    for (const std::string& part : Split(connectionString, ";"))
        if (EqualsNoCase(Trim(std::string_view(part).substr(0, part.find('='))), key))
            return true;
    return false;
}

// A connection of the engine that the string names, not open yet.
std::shared_ptr<Connection> EngineFor(const std::string& connectionString)
{
    if (HasKey(connectionString, kEmbeddedKey))
        return embedded::NewConnection();
    odbc::ConnectionText::Parse(connectionString);  // tells what is wrong with a string that is none
    if (!odbc::NamesServer(connectionString))
        throw ConnectionError(NotConnected(
            "The connection string names neither an embedded account (Embedded Account=PATH) nor a server "
            "(Provider=...;Data Source=HOST;..., or ODBC's Driver=... or DSN=...)."));
    return odbc::NewConnection();
}

// Keeps the settings until Open tells which engine they are for.
class PickedConnection : public Connection {
  public:
    void SetCursorLocation(CursorLocation location) override { enmLocation = location; }
    void SetConnectionString(const std::string& text) override { strConnection = text; }
    void SetConnectionTimeout(std::int32_t seconds) override { lngConnectionTimeout = seconds; }
    void SetCommandTimeout(std::int32_t seconds) override { lngCommandTimeout = seconds; }

    void Open(const std::string& user, const std::string& password, std::int32_t options) override
    {
        std::shared_ptr<Connection> picked = EngineFor(strConnection);
        picked->SetCursorLocation(enmLocation);
        picked->SetConnectionString(strConnection);
        picked->SetConnectionTimeout(lngConnectionTimeout);
        picked->SetCommandTimeout(lngCommandTimeout);
        // Beside the string, a password is written as the driver reads it; drivers differ in their quotes.
        picked->Open(user, password.empty() ? odbc::PasswordOf(strConnection) : password, options);
        cnnPicked = std::move(picked);
    }

    void Close() override
    {
        if (cnnPicked)
            cnnPicked->Close();
    }

    ConnectionState State() const override
    {
        return cnnPicked ? cnnPicked->State() : ConnectionState::Closed;
    }

    std::int64_t Execute(const std::string& sql) override { return Required().Execute(sql); }

    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override
    {
        return Required().OpenRecordset(sql, location, type, lock);
    }

    void Cancel() noexcept override
    {
        if (cnnPicked)
            cnnPicked->Cancel();
    }

  private:
    Connection& Required()
    {
        if (!cnnPicked)
            throw ConnectionError(NotConnected("The connection is not open."));
        return *cnnPicked;
    }

    CursorLocation enmLocation = CursorLocation::Client;
    std::string strConnection;
    std::int32_t lngConnectionTimeout = 0;
    std::int32_t lngCommandTimeout = 0;
    std::shared_ptr<Connection> cnnPicked;
};

}  // namespace

std::shared_ptr<Connection> CreateConnection()
{
    return std::make_shared<PickedConnection>();
}

bool IsEmbedded(std::string_view connectionString)
{
    return HasKey(connectionString, kEmbeddedKey);
}

std::string EmbeddedConnectionString(const std::string& path)
{
    const bool bare = path.find_first_of(";'\"") == std::string::npos && Trim(path) == path;
    const std::string value = bare ? path : "\"" + ReplaceAll(path, "\"", "\"\"") + "\"";
    return std::string(kEmbeddedKey) + "=" + value;
}

std::string EmbeddedConnectionString(const std::string& path, std::string_view language)
{
    return EmbeddedConnectionString(path) + ";Locale=" + std::string(language);
}

std::string WithLocale(const std::string& connectionString, std::string_view language)
{
    if (!IsEmbedded(connectionString) || HasKey(connectionString, "Locale"))
        return connectionString;
    return connectionString + ";Locale=" + std::string(language);
}

ConnectionSource::ConnectionSource(StatementObservers observers, std::shared_ptr<Cancellation> cancellation,
                                   Maker maker)
    : lstObservers(std::move(observers)), objCancellation(std::move(cancellation)), objMaker(std::move(maker))
{
}

ConnectionSource ConnectionSource::With(std::shared_ptr<StatementObserver> observer) const
{
    ConnectionSource more = *this;
    more.lstObservers.push_back(std::move(observer));
    return more;
}

std::shared_ptr<Connection> ConnectionSource::Create(const std::string& purpose) const
{
    static std::atomic<int> count = 0;
    return std::make_shared<LoggingConnection>(objMaker(), purpose + " " + std::to_string(++count),
                                               lstObservers, objCancellation);
}

std::shared_ptr<Connection> ConnectionSource::Open(const std::string& purpose,
                                                   const std::string& connectionString,
                                                   const std::string& password) const
{
    auto connection = Create(purpose);
    connection->SetCursorLocation(CursorLocation::Client);
    connection->SetConnectionString(connectionString);
    connection->SetConnectionTimeout(0);
    connection->SetCommandTimeout(0);
    connection->Open("", password, -1);
    return connection;
}

void ConnectionSource::Resume() const
{
    if (objCancellation)
        objCancellation->Reset();
}

}  // namespace kavelin::host
