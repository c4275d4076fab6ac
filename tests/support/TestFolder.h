// A folder of a test's own, gone with it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

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

// Makes the folder of the file as well. ReadFile of support/GoldenFile.h is its counterpart.
void WriteFile(const std::filesystem::path& file, std::string_view content);

}  // namespace kavelin::test
