#include "embedded/engine/EmbeddedConnection.h"

#include "embedded/engine/BatchRunner.h"
#include "embedded/engine/ConnectionString.h"
#include "embedded/engine/EmbeddedRecordset.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/engine/Explain.h"
#include "embedded/engine/Instance.h"
#include "embedded/write/Quote.h"
#include "frame/Errors.h"

#include <mutex>

namespace kavelin::embedded {

struct EmbeddedConnection::CancelGuard {
    std::mutex mutex;
};

struct EmbeddedConnection::Opened {
    std::shared_ptr<Instance> instance;
    Session session;
    ObjectMap own;  // the `#` tables
    std::optional<IdentityInsert> identityInsert;
    std::string locale;
    std::vector<std::weak_ptr<std::optional<RowSet>>> recordsets;

    Opened(std::shared_ptr<Instance> of, std::string language)
        : instance(std::move(of)), session(instance->Duck()), locale(std::move(language))
    {
        // What DBO.UDF_GetLocaleID() answers within a view.
        session.Run("SET VARIABLE kavelin_locale = " + QuoteText(locale));
    }

    BatchResult Run(const std::string& sql, KeepRows keep)
    {
        session.Resume();
        return BatchRunner(*instance, session, own, identityInsert, locale).Run(sql, keep);
    }

    std::unique_ptr<Recordset> Hand(RowSet rows, CursorType type)
    {
        auto shared = std::make_shared<std::optional<RowSet>>(std::move(rows));
        std::erase_if(recordsets, [](const auto& recordset) { return recordset.expired(); });
        recordsets.push_back(shared);
        return std::make_unique<EmbeddedRecordset>(std::move(shared), type);
    }
};

namespace {

DatabaseError::Details NotOpen()
{
    DatabaseError::Details details;
    details.strMessage = "The connection is not open.";
    details.strSqlState = "08003";
    return details;
}

}  // namespace

EmbeddedConnection::EmbeddedConnection() : objGuard(std::make_unique<CancelGuard>()) {}

EmbeddedConnection::~EmbeddedConnection()
{
    try {
        Close();
    } catch (const DatabaseError&) {
        // A destructor throws nothing; who wants to know calls Close.
    }
}

void EmbeddedConnection::SetCursorLocation(CursorLocation) {}

void EmbeddedConnection::SetConnectionString(const std::string& text)
{
    strConnection = text;
}

void EmbeddedConnection::SetConnectionTimeout(std::int32_t) {}

void EmbeddedConnection::SetCommandTimeout(std::int32_t) {}

void EmbeddedConnection::Open(const std::string&, const std::string&, std::int32_t)
{
    if (objOpened)
        throw Refusal("The connection is open already.", "08002");
    ConnectionSettings settings = ReadConnectionString(strConnection);
    std::shared_ptr<Instance> instance = Instance::Of(settings.account, settings.limits);
    auto opened = std::make_unique<Opened>(instance, std::move(settings.locale));
    instance->ConnectionOpened();
    const std::lock_guard lock(objGuard->mutex);
    objOpened = std::move(opened);
}

void EmbeddedConnection::Close()
{
    if (!objOpened)
        return;
    std::unique_ptr<Opened> closing;
    {
        const std::lock_guard lock(objGuard->mutex);
        closing = std::move(objOpened);
    }
    for (const auto& recordset : closing->recordsets)
        if (const SharedRows rows = recordset.lock())
            rows->reset();
    const std::shared_ptr<Instance> instance = closing->instance;
    closing.reset();
    try {
        instance->ConnectionClosed();
    } catch (const DuckError& error) {
        DatabaseError::Details details = DetailsOf(error, {}, {});
        details.strMessage = "The new tables could not be stored in the account. " + details.strMessage;
        throw DatabaseError(details);
    }
}

ConnectionState EmbeddedConnection::State() const
{
    return objOpened ? ConnectionState::Open : ConnectionState::Closed;
}

EmbeddedConnection::Opened& EmbeddedConnection::Required() const
{
    if (!objOpened)
        throw DatabaseError(NotOpen());
    return *objOpened;
}

std::int64_t EmbeddedConnection::Execute(const std::string& sql)
{
    return Required().Run(sql, KeepRows::No).rowsChanged;
}

std::unique_ptr<Recordset> EmbeddedConnection::OpenRecordset(const std::string& sql, CursorLocation,
                                                             CursorType type, LockType)
{
    Opened& opened = Required();
    BatchResult result = opened.Run(sql, KeepRows::Yes);
    return opened.Hand(std::move(result.rows).value_or(RowSet{}), type);
}

std::string EmbeddedConnection::Explain(const std::string& sql)
{
    Opened& opened = Required();
    try {
        return embedded::Explain(sql, {*opened.instance->Objects().Current(), opened.own, opened.locale});
    } catch (const SqlError& error) {
        throw DatabaseError(DetailsOf(error, sql));
    }
}

void EmbeddedConnection::Cancel() noexcept
{
    const std::lock_guard lock(objGuard->mutex);
    if (objOpened)
        objOpened->session.Interrupt();
}

}  // namespace kavelin::embedded
