#include "database/odbc/OdbcConnection.h"

#include "database/odbc/AdapterErrors.h"
#include "database/odbc/CancelGate.h"
#include "database/odbc/ConnectionText.h"
#include "database/odbc/Link.h"
#include "database/odbc/OdbcRecordset.h"
#include "database/odbc/OdbcText.h"
#include "database/odbc/RowReader.h"
#include "database/odbc/StatementRun.h"

#include <charconv>
#include <optional>
#include <string>

namespace kavelin::odbc {

namespace {

constexpr std::int32_t kUsualConnectionTimeout = 15;

std::int32_t TimeoutIn(const ConnectionText& text)
{
    const std::string value = text.Get(Meaning::ConnectTimeout);
    if (text.IsOdbc() || value.empty())
        return kUsualConnectionTimeout;
    std::int32_t seconds = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seconds);
    if (error != std::errc{} || end != value.data() + value.size() || seconds < 0)
        throw NotConnected("The time-out in the connection string is no number of seconds.");
    return seconds;
}

// Closes a connection that a statement found gone, so that its state tells the truth from then on.
class DropsLostLink {
  public:
    explicit DropsLostLink(std::unique_ptr<Link>& link) : objLink(link) {}
    ~DropsLostLink()
    {
        if (objLink->IsLost())
            objLink.reset();
    }
    DropsLostLink(const DropsLostLink&) = delete;
    DropsLostLink& operator=(const DropsLostLink&) = delete;

  private:
    std::unique_ptr<Link>& objLink;
};

class OdbcConnection : public Connection {
  public:
    void SetCursorLocation(CursorLocation) override {}  // record sets are always the client's
    void SetConnectionString(const std::string& text) override { strConnection = text; }
    void SetConnectionTimeout(std::int32_t seconds) override { lngConnectionTimeout = seconds; }
    void SetCommandTimeout(std::int32_t seconds) override { lngCommandTimeout = seconds; }

    void Open(const std::string& user, const std::string& password, std::int32_t) override
    {
        if (objLink)
            throw ConnectionError(DetailsOf("The connection is open already.", "08002"));
        const ConnectionText text = ConnectionText::Parse(strConnection);
        const DriverChoice driver = text.IsOdbc() ? DriverChoice() : DriverForSqlServer();
        const std::string secret = password.empty() ? text.Get(Meaning::Password) : password;
        objLink = std::make_unique<Link>(OdbcText(text, user, password, driver), secret,
                                         lngConnectionTimeout.value_or(TimeoutIn(text)));
    }

    void Close() override { objLink.reset(); }

    ConnectionState State() const override
    {
        return objLink ? ConnectionState::Open : ConnectionState::Closed;
    }

    std::int64_t Execute(const std::string& sql) override
    {
        std::int64_t changed = -1;
        Run(sql, [&](StatementRun& run) {
            do {
                if (const std::int64_t count = run.RowsChanged(); count >= 0)
                    changed = count;
            } while (run.NextResult());
        });
        return changed;
    }

    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation, CursorType type,
                                             LockType) override
    {
        std::optional<ResultRows> rows;
        Run(sql, [&](StatementRun& run) {
            do {
                if (!rows && run.ColumnCount() > 0)
                    rows = ReadRows(run);
            } while (run.NextResult());
        });
        return std::make_unique<OdbcRecordset>(std::move(rows).value_or(ResultRows{}), type);
    }

    void Cancel() noexcept override { objGate.Cancel(); }

  private:
    // Sends the batch and lets `read` go through its results.
    template <class Read>
    void Run(const std::string& sql, Read read)
    {
        if (!objLink)
            throw DatabaseError(DetailsOf("The connection is not open.", "08003"));
        const DropsLostLink dropping(objLink);  // outlives the statement
        StatementRun run(*objLink, objGate, lngCommandTimeout, sql);
        run.Execute();
        read(run);
    }

    std::string strConnection;
    std::optional<std::int32_t> lngConnectionTimeout;
    std::int32_t lngCommandTimeout = 0;
    std::unique_ptr<Link> objLink;  // null while closed
    CancelGate objGate;
};

}  // namespace

std::shared_ptr<Connection> NewConnection()
{
    return std::make_shared<OdbcConnection>();
}

}  // namespace kavelin::odbc
