// The recorders are trusted by all other tests, so what they refuse and keep is tested too.
#include "frame/Errors.h"
#include "support/GoldenFile.h"
#include "support/RecordingHost.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <unistd.h>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <sstream>

namespace kavelin::test {

namespace {

// Sets a variable of the environment for the length of a test.
class Setting {
  public:
    Setting(const char* name, const std::string& value) : strName(name)
    {
        if (const char* before = std::getenv(name))
            strBefore = before;
        ::setenv(name, value.c_str(), 1);
    }
    ~Setting()
    {
        if (strBefore)
            ::setenv(strName, strBefore->c_str(), 1);
        else
            ::unsetenv(strName);
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

  private:
    const char* strName;
    std::optional<std::string> strBefore;
};

std::filesystem::path NewFile(const std::string& name)
{
    const auto file = std::filesystem::path(testing::TempDir()) / (name + std::to_string(::getpid()));
    std::filesystem::remove(file);
    return file;
}

}  // namespace

TEST(LogText, NumbersTheStatementsAndNamesTheirConnections)
{
    EXPECT_EQ(LogText({{2, "select 1\r\n  from t "}, {1, ""}}), "-- 1 #2\nselect 1\n  from t \n-- 2 #1\n\n");
    EXPECT_EQ(LogText({}), "");
}

TEST(LogText, RefusesALineEndThatIsNotWhole)
{
    for (const char* sql : {"a\nb", "a\rb", "a\r", "a\n", "\r\r\n", "a\r\n\n"})
        EXPECT_THROW(LogText({{1, sql}}), std::logic_error);
}

TEST(ExpectFile, WritesTheFileWhenAskedToAndComparesOtherwise)
{
    const auto file = NewFile("golden");
    {
        const Setting rewrite("KAVELIN_REWRITE", "1");
        ExpectFile("one\ntwo\n", file);
    }
    const Setting compare("KAVELIN_REWRITE", "0");
    EXPECT_EQ(ReadFile(file), "one\ntwo\n");
    ExpectFile("one\ntwo\n", file);
    static std::filesystem::path compared;
    compared = file;
    EXPECT_NONFATAL_FAILURE(ExpectFile("one\nthree\n", compared), "line 2\n  wanted: two\n  given:  three");
    EXPECT_NONFATAL_FAILURE(ExpectFile("one\n", compared), "given:  (no more lines)");
    EXPECT_NONFATAL_FAILURE(ExpectFile("one\ntwo", compared), "only the end of the last line differs");
    std::filesystem::remove(file);
}

TEST(ARecordingConnection, AppendsWhatItSendsToTheSqlLog)
{
    const auto file = NewFile("sql-log");
    const Setting log("KAVELIN_SQL_LOG", file.string());
    RecordingHost host;
    const auto connection = host.OpenAccount();
    host.Script().failures["broken"] = "incorrect syntax";
    host.Script().rows["rows"] = {{"a"}, {{1}, {2}}};
    connection->Execute("update 仓库");
    connection->OpenRecordset("rows", CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    EXPECT_THROW(connection->Execute("broken"), DatabaseError);

    std::istringstream lines(ReadFile(file));
    std::vector<nlohmann::json> records;
    for (std::string line; std::getline(lines, line);)
        records.push_back(nlohmann::json::parse(line));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0]["sql"], "update 仓库");
    EXPECT_EQ(records[0]["connection"], "#1");
    EXPECT_TRUE(records[0]["rows"].is_null());
    EXPECT_TRUE(records[0]["error"].is_null());
    EXPECT_TRUE(records[0]["ms"].is_number());
    EXPECT_EQ(records[1]["rows"], 2);
    EXPECT_EQ(records[2]["error"], "incorrect syntax");
    std::filesystem::remove(file);
}

TEST(ARecordingConnection, RefusesStatementsWhileItIsClosed)
{
    RecordingHost host;
    const auto connection = host.OpenAccount();
    connection->Close();
    EXPECT_THROW(connection->Execute("select 1"), DatabaseError);
    EXPECT_EQ(host.Sent().size(), 1U);
}

TEST(AnEventLog, FailsOnceAtTheEventThatWasAskedFor)
{
    EventLog log;
    log.Add("one");
    log.FailAt(2);
    log.Add("two");
    EXPECT_THROW(log.Add("three"), PlannedFailure);
    log.Add("four");
    log.FailAt("five");
    EXPECT_THROW(log.Add("five"), PlannedFailure);
    log.Add("five");
    EXPECT_EQ(log.Text(), "one\ntwo\nthree\nfour\nfive\nfive\n");
}

}  // namespace kavelin::test
