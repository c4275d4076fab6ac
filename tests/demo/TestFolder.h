// A folder of a test's own, gone with it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

class TestFolder {
  public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return strPath / name; }

    // Names of what lies in the folder, in order.
    std::vector<std::string> Names() const;

  private:
    std::filesystem::path strPath;
};

// Makes the folder of the file as well.
void WriteFile(const std::filesystem::path& file, std::string_view content);
std::string ReadFile(const std::filesystem::path& file);

// The rows of a query on an account, fields between "|", a line a row; null is "NULL".
std::string QueryRows(const std::filesystem::path& account, const std::string& sql);

}  // namespace kavelin::demo
