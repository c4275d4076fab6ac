#include "support/account/AccountHost.h"

#include "frame/Text.h"
#include "support/GoldenFile.h"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace kavelin::test {

namespace {

std::filesystem::path NewFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "kavelin-test-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("cannot make " + name);
    return name;
}

std::string Quoted(const std::string& text)
{
    const bool plain = !text.empty() && text.find_first_of(",\"\r\n") == std::string::npos;
    return plain ? text : "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

std::string CsvText(const Value& value)
{
    if (value.IsNull())
        return "";
    if (const auto* number = value.As<Decimal>())
        return number->ToText();
    return Quoted(ToText(value));
}

}  // namespace

AccountHost::AccountHost() : objFolder(NewFolder())
{
    const std::string path = (objFolder / "account.kavelin").string();
    embedded::CreateAccount(path);
    objAccount = embedded::OpenAccount(path);

    Answers().vosDbName = "Embedded Account=" + path + ";Locale=zh-CN";
    Answers().systemConnection = Answers().vosDbName;
    Script().makeInner = [] { return embedded::NewConnection(); };

    cnnOutside = embedded::NewConnection();
    cnnOutside->SetConnectionString(Answers().vosDbName);
    cnnOutside->Open("", "", -1);
}

AccountHost::~AccountHost()
{
    UsePlatform(nullptr);  // lets the connections go that a report left open
    cnnOutside.reset();
    objAccount.reset();
    std::error_code ignored;
    std::filesystem::remove_all(objFolder, ignored);
}

void AccountHost::Run(const std::string& sql)
{
    cnnOutside->Execute(sql);
}

bool AccountHost::HasTable(const std::string& name)
{
    const auto rows =
        cnnOutside->OpenRecordset("select name from sysobjects where name = '" + name + "'",
                                  CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return !rows->Eof();
}

std::string AccountHost::Query(const std::string& sql)
{
    const auto rows =
        cnnOutside->OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
    std::string text;
    for (int field = 0; field < rows->FieldCount(); ++field)
        text += (field ? "," : "") + rows->FieldName(field);
    text += "\n";
    for (; !rows->Eof(); rows->MoveNext()) {
        for (int field = 0; field < rows->FieldCount(); ++field)
            text += (field ? "," : "") + CsvText(rows->Field(field));
        text += "\n";
    }
    return text;
}

void AccountHost::ExpectRows(const std::string& sql, const std::string& name)
{
    ExpectFile(Query(sql), std::filesystem::path(KAVELIN_TESTS_DIR) / "results" / (name + ".csv"));
}

}  // namespace kavelin::test
