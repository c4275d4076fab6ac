#include "capi/LateConnection.h"

#include "component/Dispatch.h"
#include "frame/Value.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace kavelin::capi {

namespace {

using Arguments = std::vector<Variant>;

constexpr std::int32_t kNoOptions = -1;

std::string TextArgument(const Arguments& arguments, std::size_t position, std::string_view member)
{
    return position < arguments.size() ? ToText(ValueOf(arguments[position], member)) : "";
}

int NumberArgument(const Arguments& arguments, std::string_view member)
{
    return ToInt32(ValueOf(arguments[0], member));
}

Dispatch ReadProperty(std::string_view name, std::function<Value()> read)
{
    Dispatch property{.name = name};
    property.get = [read = std::move(read)] { return Variant(read()); };
    return property;
}

Dispatch Action(std::string_view name, std::function<void()> act)
{
    return Method(name, 0, [act = std::move(act)](const Arguments&) -> Variant { return act(), Value(); });
}

Value FieldOf(const Recordset& rows, const Value& which)
{
    const auto* name = which.As<std::string>();
    return name ? rows.Field(std::string_view(*name)) : rows.Field(ToInt32(which));
}

std::shared_ptr<LateBound> LateRecordset(std::shared_ptr<Recordset> recordset)
{
    Recordset& rows = *recordset;
    return MakeLateBound(
        std::move(recordset),
        {
            ReadProperty("EOF", [&rows] { return Value(rows.Eof()); }),
            ReadProperty("RecordCount", [&rows] { return Value(rows.RecordCount()); }),
            ReadProperty("FieldCount", [&rows] { return Value(rows.FieldCount()); }),
            Action("MoveNext", [&rows] { rows.MoveNext(); }),
            Action("MoveFirst", [&rows] { rows.MoveFirst(); }),
            Action("Close", [&rows] { rows.Close(); }),
            Method("Field", 1,
                   [&rows](const Arguments& which) { return FieldOf(rows, ValueOf(which[0], "Field")); }),
            Method("FieldName", 1,
                   [&rows](const Arguments& which) -> Variant {
                       return Value(rows.FieldName(NumberArgument(which, "FieldName")));
                   }),
            Method("FieldType", 1,
                   [&rows](const Arguments& which) -> Variant {
                       return Value(rows.FieldType(NumberArgument(which, "FieldType")));
                   }),
        });
}

Dispatch OpenMethod(Connection& connection)
{
    Dispatch open = Method("Open", 3, [&connection](const Arguments& arguments) -> Variant {
        connection.SetCursorLocation(CursorLocation::Client);
        connection.SetConnectionString(TextArgument(arguments, 0, "Open"));
        connection.SetConnectionTimeout(0);
        connection.SetCommandTimeout(0);
        connection.Open(TextArgument(arguments, 1, "Open"), TextArgument(arguments, 2, "Open"), kNoOptions);
        return Value();
    });
    open.optional = 2;
    return open;
}

std::shared_ptr<LateBound> Members(const std::shared_ptr<Connection>& shared)
{
    Connection& connection = *shared;
    return MakeLateBound(
        shared,
        {
            OpenMethod(connection),
            Action("Close", [&connection] { connection.Close(); }),
            ReadProperty("State", [&connection] { return Value(static_cast<int>(connection.State())); }),
            Method("Execute", 1,
                   [&connection](const Arguments& arguments) -> Variant {
                       return Value(connection.Execute(TextArgument(arguments, 0, "Execute")));
                   }),
            Method("OpenRecordset", 1,
                   [&connection](const Arguments& arguments) -> Variant {
                       std::shared_ptr<Recordset> rows = connection.OpenRecordset(
                           TextArgument(arguments, 0, "OpenRecordset"), CursorLocation::Client,
                           CursorType::Static, LockType::ReadOnly);
                       return LateRecordset(std::move(rows));
                   }),
        });
}

}  // namespace

LateConnection::LateConnection(std::shared_ptr<kavelin::Connection> connection)
    : ConnectionObject(std::move(connection)), objMembers(Members(Connection()))
{
}

}  // namespace kavelin::capi
