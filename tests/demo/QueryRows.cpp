#include "demo/QueryRows.h"

#include "demo/NewAccount.h"

#include <memory>

namespace kavelin::demo {

std::string QueryRows(const std::filesystem::path& account, const std::string& sql)
{
    const std::shared_ptr<Connection> connection = ConnectTo(account);
    const std::unique_ptr<Recordset> rows =
        connection->OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    std::string text;
    for (; !rows->Eof(); rows->MoveNext()) {
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            text += (field > 0 ? "|" : "") + (value.IsNull() ? std::string("NULL") : ToText(value));
        }
        text += '\n';
    }
    connection->Close();
    return text;
}

}  // namespace kavelin::demo
