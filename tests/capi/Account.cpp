#include "capi/Account.h"

#include "embedded/EmbeddedAccount.h"

#include <unistd.h>

namespace kavelin::test {

namespace {

std::filesystem::path NewFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "kavelin-capi-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::filesystem::filesystem_error("mkdtemp", name,
                                                std::error_code(errno, std::generic_category()));
    return name;
}

}  // namespace

AccountApi::AccountApi() : objFolder(NewFolder())
{
    const std::string path = (objFolder / "test.kavelin").string();
    embedded::CreateAccount(path);
    strText = "Embedded Account=" + path;
    objConnection = Create("Kavelin.Connection");
    kavelin_value text = kavelin_of_text(strText.c_str());
    EXPECT_EQ(kavelin_call(objConnection, "Open", &text, 1, nullptr), KAVELIN_OK) << Error().text;
}

AccountApi::~AccountApi()
{
    EXPECT_EQ(kavelin_end_thread(), KAVELIN_OK);
    std::error_code ignored;
    std::filesystem::remove_all(objFolder, ignored);
}

void AccountApi::Run(const char* statement)
{
    kavelin_value text = kavelin_of_text(statement);
    EXPECT_EQ(kavelin_call(objConnection, "Execute", &text, 1, nullptr), KAVELIN_OK)
        << statement << ": " << Error().text;
}

std::string AccountApi::Query(const char* select)
{
    kavelin_value text = kavelin_of_text(select);
    Owned rows;
    EXPECT_EQ(kavelin_call(objConnection, "OpenRecordset", &text, 1, rows.Place()), KAVELIN_OK)
        << select << ": " << Error().text;
    std::string all;
    for (;;) {
        Owned end;
        if (kavelin_get(rows->as.object, "EOF", end.Place()) != KAVELIN_OK || end->as.boolean)
            return all;
        all += all.empty() ? "" : " ";
        Owned count;
        EXPECT_EQ(kavelin_get(rows->as.object, "FieldCount", count.Place()), KAVELIN_OK);
        for (std::int64_t i = 0; i < count->as.integer; ++i) {
            kavelin_value number = kavelin_of_integer(i);
            Owned cell;
            Owned shown;
            EXPECT_EQ(kavelin_call(rows->as.object, "Field", &number, 1, cell.Place()), KAVELIN_OK);
            all += i == 0 ? "" : ",";
            if (cell->kind != KAVELIN_NULL && kavelin_to_text(&*cell, shown.Place()) == KAVELIN_OK)
                all += shown.Text();
        }
        EXPECT_EQ(kavelin_call(rows->as.object, "MoveNext", nullptr, 0, nullptr), KAVELIN_OK);
    }
}

}  // namespace kavelin::test
