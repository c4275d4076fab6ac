#include "demo/SchemaAccount.h"

#include "demo/Scripts.h"
#include "embedded/EmbeddedAccount.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

namespace kavelin::demo {

SchemaAccount::SchemaAccount(const std::string& locale)
    : objAccount(objFolder / "schema.kavelin"), objConnection(embedded::NewConnection())
{
    objConnection->SetConnectionString("Embedded Account=" + objAccount.Account().Path() +
                                       ";Locale=" + locale);
    objConnection->Open("", "", 0);
    RunScripts(*objConnection, "rows");
}

std::vector<std::string> SchemaAccount::Rows(const std::string& sql)
{
    const std::unique_ptr<Recordset> rows =
        objConnection->OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    std::vector<std::string> texts;
    for (; !rows->Eof(); rows->MoveNext()) {
        std::string text;
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            text += (field > 0 ? "|" : "") + (value.IsNull() ? std::string("NULL") : ToText(value));
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

std::string SchemaAccount::Single(const std::string& sql)
{
    const std::vector<std::string> rows = Rows(sql);
    EXPECT_EQ(rows.size(), 1u) << sql;
    return rows.empty() ? std::string() : rows.front();
}

}  // namespace kavelin::demo
