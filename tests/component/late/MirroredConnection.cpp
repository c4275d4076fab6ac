// Recording connections and record sets, shaped like ADO's.
#include "component/late/MirroredInterfaces.h"
#include "frame/Connection.h"
#include "frame/host/ConnectionObject.h"

namespace kavelin::test {

namespace {

using Arguments = std::vector<Variant>;

std::int32_t NumberIn(const Variant& value)
{
    return ToInt32(ValueOf(value, "a number"));
}

std::string TextIn(const Variant& value)
{
    return ToText(ValueOf(value, "a text"));
}

Variant Execute(Connection& connection, Arguments& arguments)
{
    constexpr std::int32_t kText = 1;
    if (arguments.size() != 3 || NumberIn(arguments[2]) != kText)
        throw std::logic_error("Execute was called with other arguments");
    arguments[1] = Value(connection.Execute(TextIn(arguments[0])));
    return HostObjectPtr();
}

MirroredMembers ConnectionMembers(const std::shared_ptr<Connection>& connection)
{
    return {
        {"CursorLocation",
         {.put =
              [=](const Variant& location) {
                  connection->SetCursorLocation(static_cast<CursorLocation>(NumberIn(location)));
              }}},
        {"ConnectionString",
         {.put = [=](const Variant& text) { connection->SetConnectionString(TextIn(text)); }}},
        {"ConnectionTimeout",
         {.put = [=](const Variant& seconds) { connection->SetConnectionTimeout(NumberIn(seconds)); }}},
        {"CommandTimeout",
         {.put = [=](const Variant& seconds) { connection->SetCommandTimeout(NumberIn(seconds)); }}},
        {"State", {.get = [=] { return Value(connection->State() == ConnectionState::Open ? 1 : 0); }}},
        {"Open",
         {.call =
              [=](Arguments& a) {
                  if (!TextIn(a.at(0)).empty())
                      throw std::logic_error("Open replaced the connection string");
                  connection->Open(TextIn(a.at(1)), TextIn(a.at(2)), NumberIn(a.at(3)));
                  return Value();
              }}},
        {"Close", {.call = [=](Arguments&) { return connection->Close(), Value(); }}},
        {"Execute", {.call = [=](Arguments& a) { return Execute(*connection, a); }}},
    };
}

struct OpenRows {
    CursorLocation location = CursorLocation::Server;
    std::shared_ptr<Recordset> rows;
};

HostObjectPtr FieldMirror(const std::shared_ptr<Recordset>& rows, int field)
{
    return std::make_shared<LateMirror>(nullptr, "Field",
                                        MirroredMembers{
                                            {"Name", {.get = [=] { return Value(rows->FieldName(field)); }}},
                                            {"Value", {.get = [=] { return rows->Field(field); }}},
                                        });
}

HostObjectPtr FieldsMirror(const std::shared_ptr<Recordset>& rows)
{
    return std::make_shared<LateMirror>(
        nullptr, "Fields",
        MirroredMembers{
            {"Count", {.get = [=] { return Value(rows->FieldCount()); }}},
            {"Item", {.call = [=](Arguments& a) { return FieldMirror(rows, NumberIn(a.at(0))); }}},
        });
}

Variant OpenRecordset(OpenRows& set, const Arguments& arguments)
{
    constexpr std::int32_t kUnspecified = -1;
    if (arguments.size() != 5 || NumberIn(arguments[4]) != kUnspecified)
        throw std::logic_error("Open was called with other arguments");
    const auto held = ObjectOf<ConnectionObject>(Recorded(arguments[1]), "the connection");
    set.rows = held->Connection()->OpenRecordset(TextIn(arguments[0]), set.location,
                                                 static_cast<CursorType>(NumberIn(arguments[2])),
                                                 static_cast<LockType>(NumberIn(arguments[3])));
    return Value();
}

}  // namespace

std::shared_ptr<LateMirror> MirrorOfConnection(const HostObjectPtr& recording)
{
    const auto held = std::dynamic_pointer_cast<ConnectionObject>(recording);
    return held ? std::make_shared<LateMirror>(recording, "Connection", ConnectionMembers(held->Connection()))
                : nullptr;
}

std::shared_ptr<LateBound> MirroredRecordset()
{
    const auto set = std::make_shared<OpenRows>();
    return std::make_shared<LateMirror>(
        nullptr, "Recordset",
        MirroredMembers{
            {"CursorLocation",
             {.put = [=](const Variant& v) { set->location = static_cast<CursorLocation>(NumberIn(v)); }}},
            {"Open", {.call = [=](Arguments& a) { return OpenRecordset(*set, a); }}},
            {"EOF", {.get = [=] { return Value(set->rows->Eof()); }}},
            {"RecordCount", {.get = [=] { return Value(set->rows->RecordCount()); }}},
            {"MoveNext", {.call = [=](Arguments&) { return set->rows->MoveNext(), Value(); }}},
            {"MoveFirst", {.call = [=](Arguments&) { return set->rows->MoveFirst(), Value(); }}},
            {"Fields", {.get = [=] { return FieldsMirror(set->rows); }}},
            {"Close", {.call = [=](Arguments&) { return set->rows->Close(), Value(); }}},
        });
}

}  // namespace kavelin::test
