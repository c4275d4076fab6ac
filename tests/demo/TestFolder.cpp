#include "demo/TestFolder.h"

#include "demo/NewAccount.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace kavelin::demo {

TestFolder::TestFolder()
{
    static int count = 0;
    strPath = std::filesystem::path(testing::TempDir()) /
              ("kavelin-demo-" + std::to_string(getpid()) + "-" + std::to_string(++count));
    std::filesystem::create_directories(strPath);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(strPath, ignored);
}

std::vector<std::string> TestFolder::Names() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(strPath))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

void WriteFile(const std::filesystem::path& file, std::string_view content)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream input(file, std::ios::binary);
    EXPECT_TRUE(input) << file;
    return std::string(std::istreambuf_iterator<char>(input), {});
}

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
