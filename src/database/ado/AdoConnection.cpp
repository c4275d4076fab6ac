#include "database/ado/AdoConnection.h"

#include "database/ado/AdoErrors.h"
#include "database/ado/AdoRecordset.h"
#include "frame/Guards.h"

namespace kavelin::ado {

namespace {

constexpr std::int32_t kText = 1;          // the command is a statement
constexpr std::int32_t kUnspecified = -1;  // of the options of a record set
constexpr std::int64_t kChangesNothing = -1;

// An object, null for nothing and for a value.
std::shared_ptr<LateBound> ObjectIn(const Variant& answer)
{
    const auto* object = std::get_if<HostObjectPtr>(&answer);
    return object ? std::dynamic_pointer_cast<LateBound>(*object) : nullptr;
}

std::int64_t RowsIn(const Variant& affected)
{
    const Value& rows = ValueOf(affected, "RecordsAffected");
    return rows.IsEmpty() || rows.IsNull() ? kChangesNothing : ToInt32(rows);
}

// Goes through the results behind the first one. A statement of the batch that fails tells so only when its
// result is asked for. Gives the rows that the last one changed.
std::int64_t Drain(std::shared_ptr<LateBound> result, std::int64_t affected)
{
    while (result) {
        std::vector<Variant> arguments = {Value()};
        result = ObjectIn(result->CallByReference("NextRecordset", arguments));
        if (result)
            affected = RowsIn(arguments[0]);
    }
    return affected;
}

}  // namespace

AdoConnection::AdoConnection(std::shared_ptr<LateBound> connection, RecordsetMaker makeRecordset)
    : objConnection(std::move(connection)), objMakeRecordset(std::move(makeRecordset))
{
}

std::shared_ptr<AdoConnection> AdoConnection::Over(std::shared_ptr<LateBound> connection) const
{
    return std::make_shared<AdoConnection>(std::move(connection), objMakeRecordset);
}

void AdoConnection::SetCursorLocation(CursorLocation location)
{
    objConnection->Put("CursorLocation", Value(static_cast<std::int32_t>(location)));
}

void AdoConnection::SetConnectionString(const std::string& text)
{
    objConnection->Put("ConnectionString", Value(text));
}

void AdoConnection::SetConnectionTimeout(std::int32_t seconds)
{
    objConnection->Put("ConnectionTimeout", Value(seconds));
}

void AdoConnection::SetCommandTimeout(std::int32_t seconds)
{
    objConnection->Put("CommandTimeout", Value(seconds));
}

void AdoConnection::Open(const std::string& user, const std::string& password, std::int32_t options)
{
    // The first argument would replace the connection string.
    Translated<ConnectionError>(*objConnection, "", [&] {
        return objConnection->Call("Open", {Value(""), Value(user), Value(password), Value(options)});
    });
}

void AdoConnection::Close()
{
    if (State() == ConnectionState::Open)
        Translated<DatabaseError>(*objConnection, "", [&] { return objConnection->Call("Close", {}); });
}

ConnectionState AdoConnection::State() const
{
    return IsOpen(*objConnection) ? ConnectionState::Open : ConnectionState::Closed;
}

std::int64_t AdoConnection::Execute(const std::string& sql)
{
    return Translated<DatabaseError>(*objConnection, sql, [&] {
        std::vector<Variant> arguments = {Value(sql), Value(), Value(kText)};
        const Variant first = objConnection->CallByReference("Execute", arguments);
        return Drain(ObjectIn(first), RowsIn(arguments[1]));
    });
}

std::unique_ptr<Recordset> AdoConnection::OpenRecordset(const std::string& sql, CursorLocation location,
                                                        CursorType type, LockType lock)
{
    const auto recordset = objMakeRecordset();
    Translated<DatabaseError>(*objConnection, sql, [&] {
        recordset->Put("CursorLocation", Value(static_cast<std::int32_t>(location)));
        return recordset->Call(
            "Open", {Value(sql), HostObjectPtr(objConnection), Value(static_cast<std::int32_t>(type)),
                     Value(static_cast<std::int32_t>(lock)), Value(kUnspecified)});
    });
    return std::make_unique<AdoRecordset>(recordset, objConnection);
}

void AdoConnection::Cancel() noexcept
{
    IgnoreErrors([&] { objConnection->Call("Cancel", {}); });
}

}  // namespace kavelin::ado
