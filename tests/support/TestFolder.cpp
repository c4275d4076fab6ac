#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <fstream>

namespace kavelin::test {

TestFolder::TestFolder()
{
    static int count = 0;
    strPath = std::filesystem::path(testing::TempDir()) /
              ("kavelin-test-" + std::to_string(getpid()) + "-" + std::to_string(++count));
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

}  // namespace kavelin::test
