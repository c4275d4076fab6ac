#include "embedded/engine/TestAccount.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <random>

namespace kavelin::embedded {

TestFolder::TestFolder()
{
    static std::atomic<int> number = 0;
    const std::string name =
        "kavelin-test-" + std::to_string(std::random_device{}()) + '-' + std::to_string(++number);
    objPath = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(objPath);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(objPath, ignored);
}

TestAccount::TestAccount()
{
    CreateAccount(Path());
}

std::unique_ptr<EmbeddedConnection> TestAccount::Connect() const
{
    auto connection = NewConnection();
    connection->SetConnectionString("Embedded Account=" + Path());
    connection->Open("", "", 0);
    return connection;
}

std::string ShowValue(const Value& value)
{
    if (value.IsNull())
        return "NULL";
    if (const bool* bit = value.As<bool>())
        return *bit ? "1" : "0";
    if (const Decimal* decimal = value.As<Decimal>())
        return decimal->ToText();
    if (const auto* text = value.As<std::string>()) {
        if (text->empty())
            return "(empty)";
        const bool quoted =
            text->front() == ' ' || text->back() == ' ' || text->find('|') != std::string::npos;
        return quoted ? '"' + *text + '"' : *text;
    }
    return ToText(value);
}

std::string ShowRows(Recordset& rows)
{
    std::string text;
    for (; !rows.Eof(); rows.MoveNext()) {
        for (int field = 0; field < rows.FieldCount(); ++field)
            text += (field == 0 ? "" : " | ") + ShowValue(rows.Field(field));
        text += '\n';
    }
    return text;
}

std::string ShowRows(EmbeddedConnection& connection, const std::string& sql)
{
    const auto rows =
        connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return ShowRows(*rows);
}

}  // namespace kavelin::embedded
