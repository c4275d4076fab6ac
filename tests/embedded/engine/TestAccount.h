// An account of its own for a test, in a folder that goes with it.
#pragma once

#include "embedded/EmbeddedAccount.h"

#include <filesystem>
#include <memory>
#include <string>

namespace kavelin::embedded {

class TestFolder {
  public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::string File(const std::string& name) const { return (objPath / name).string(); }

  private:
    std::filesystem::path objPath;
};

class TestAccount {
  public:
    // An empty account; nothing of it is open.
    TestAccount();

    std::string Path() const { return objFolder.File("test.kavelin"); }
    const TestFolder& Folder() const { return objFolder; }
    std::unique_ptr<EmbeddedConnection> Connect() const;

  private:
    TestFolder objFolder;
};

// Each row on a line, the values as ShowValue gives them with " | " between.
std::string ShowRows(Recordset& rows);
std::string ShowRows(EmbeddedConnection& connection, const std::string& sql);

// NULL, (empty), 1 and 0 for a bit, a decimal with all its digits, a date without its time if it has none; a
// text that begins or ends with a blank, or holds a bar, in double quotes.
std::string ShowValue(const Value& value);

}  // namespace kavelin::embedded
