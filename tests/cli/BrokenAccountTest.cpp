// Accounts, files and machines as they should not be: one clear message, and the account is as it was.
#include "cli/Process.h"
#include "embedded/EmbeddedAccount.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>

namespace kavelin::cli {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class BrokenAccount : public testing::Test {
  protected:
    BrokenAccount()
    {
        Made({"account", "create", "a.kavelin"});
        fs::create_directory(At("rows"));
        Write("rows/Person.csv", "cPersonCode,cPersonName\nP1,Anna\nP2,Bo\n");
        Made({"account", "load", "a.kavelin", "rows"});
        dicBefore = Exported("a.kavelin");
    }

    fs::path At(const std::string& name) const { return objProgram.Folder() / name; }
    void Write(const std::string& file, const std::string& text) const { objProgram.Write(file, text); }

    Outcome Run(const std::vector<std::string>& arguments, RunOptions options = {}) const
    {
        return objProgram.Run(arguments, std::move(options));
    }

    void Made(const std::vector<std::string>& arguments) const
    {
        const Outcome outcome = Run(arguments);
        ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    }

    // Every table's rows, by the name of its file.
    std::map<std::string, std::string> Exported(const std::string& account) const
    {
        fs::remove_all(At("exported"));
        const Outcome outcome = Run({"account", "export", account, "exported"});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
        std::map<std::string, std::string> rows;
        for (const auto& entry : fs::directory_iterator(At("exported"))) {
            const std::string name = entry.path().filename().string();
            rows[name] = objProgram.Read("exported/" + name);
        }
        return rows;
    }

    // One line of the program's, with `part` in it, and nothing of what lies beneath the account.
    static void ExpectRefusal(const Outcome& outcome, int exitCode, const std::string& part)
    {
        EXPECT_EQ(outcome.exitCode, exitCode) << outcome.err;
        EXPECT_NE(outcome.err.find(part), std::string::npos) << outcome.err;
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        for (const char* word : {"DuckDB", "duckdb", "IO Error", "Catalog Error", "basic_", "what()"})
            EXPECT_EQ(outcome.err.find(word), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }

    void ExpectAsBefore() const { EXPECT_EQ(Exported("a.kavelin"), dicBefore); }

    Program objProgram;
    std::map<std::string, std::string> dicBefore;
};

TEST_F(BrokenAccount, AFileThatIsNoneIsRefusedAndLeftAsItIs)
{
    const std::string whole = objProgram.Read("a.kavelin");
    const struct {
        std::string name, content, message;
    } cases[] = {
        {"text", "Dear diary,\n", "' is no account."},
        {"picture", "\x89PNG\r\n\x1a\n\0\0\0\rIHDR"s, "' is no account."},
        {"empty", "", "' is no account."},
        {"other", "SQLite format 3\0"s + std::string(8176, '\0'), "' is no account."},
        {"begun", whole.substr(0, 5000), "damaged"},
        {"short", whole.substr(0, whole.size() - 262144), "damaged"},
    };
    for (const auto& c : cases) {
        const std::string file = c.name + ".kavelin";
        Write(file, c.content);
        fs::copy_file(At("a.system.kavelin"), At(c.name + ".system.kavelin"));
        const std::vector<std::string> commands[] = {
            {"query", "--account", file, "select 1"},
            {"run", "capital-share", "--account", file},
            {"account", "load", file, "rows"},
            {"account", "export", file, "out"},
        };
        for (const auto& command : commands)
            ExpectRefusal(Run(command), 3, c.message);
        ExpectRefusal(Run({"account", "create", file}), 3, "is there already");
        EXPECT_EQ(objProgram.Read(file), c.content) << file;
    }
}

TEST_F(BrokenAccount, WithoutItsSystemDatabaseIsRefused)
{
    fs::rename(At("a.system.kavelin"), At("elsewhere"));
    ExpectRefusal(Run({"query", "--account", "a.kavelin", "select 1"}), 3, "a.system.kavelin' is missing");
    Write("a.system.kavelin", "Dear diary,\n");
    ExpectRefusal(Run({"query", "--account", "a.kavelin", "select 1"}), 3, "a.system.kavelin' is no account");
    fs::rename(At("elsewhere"), At("a.system.kavelin"));
    ExpectAsBefore();
}

TEST_F(BrokenAccount, RowsThatAreCutOffOrWrongLoadNothing)
{
    const std::string head = "cPersonCode,cPersonName\n";
    const struct {
        std::string file, content, message;
    } cases[] = {
        {"Persn.csv", head, "Persn.csv: the account has no table 'Persn'."},
        {"Person.csv", "cPersonCode,cAge\nP3,4\n",
         "Person.csv, line 1: the table Person has no column 'cAge'."},
        {"Person.csv", head + "P3,C\nP4", "Person.csv, line 3: 1 field stands where"},
        {"Person.csv", head + "P3,C,D\n", "Person.csv, line 2: 3 fields stand where"},
        {"Person.csv", head + "P3,\"Cae", "Person.csv, line 2: the field that begins with a quote"},
        {"Person.csv", head + "P3,\xE8\x9E\x9D\nP4,\xE8\x9E", "Person.csv, line 3, column cPersonName: "},
        {"Person.csv", head + "P3,C\0\n"s, "Person.csv, line 2: a NUL stands there"},
        {"Person.csv", "", "Person.csv, line 1: the line with the column names is missing."},
        {"Person.csv", head + "P1,Again\n", "Person.csv: Violation of PRIMARY KEY constraint."},
    };
    for (const auto& c : cases) {
        fs::remove_all(At("wrong"));
        fs::create_directory(At("wrong"));
        Write("wrong/Department.csv", "cDepCode\n99\n");
        Write("wrong/" + c.file, c.content);
        ExpectRefusal(Run({"account", "load", "a.kavelin", "wrong"}), 1, c.message);
    }
    ExpectAsBefore();
}

TEST_F(BrokenAccount, IsNotOpenedWhileAnotherProgramHasIt)
{
    {
        const auto held = embedded::OpenAccount(At("a.kavelin").string());
        const std::vector<std::string> commands[] = {
            {"query", "--account", "a.kavelin", "select 1"},
            {"run", "capital-share", "--account", "a.kavelin"},
            {"account", "load", "a.kavelin", "rows"},
            {"account", "export", "a.kavelin", "out"},
        };
        for (const auto& command : commands)
            ExpectRefusal(Run(command), 3, "is in use by another program");
    }
    ExpectAsBefore();
}

TEST_F(BrokenAccount, HasAllRowsOrNoneOfALoadThatIsKilled)
{
    fs::create_directory(At("many"));
    {
        std::ofstream file(At("many/Person.csv"));
        file << "cPersonCode,cPersonName\n";
        for (int i = 0; i < 400000; ++i)
            file << 'Q' << i << ",name " << i << '\n';
    }
    for (const int after : {30, 150, 400, 700}) {
        RunOptions options;
        options.killAfter = std::chrono::milliseconds(after);
        const Outcome outcome = Run({"account", "load", "a.kavelin", "many"}, options);
        if (outcome.exitCode == 0)
            break;  // a fast machine
        EXPECT_EQ(outcome.exitCode, 128 + 9) << outcome.err;
        auto rows = Exported("a.kavelin");
        const auto loaded = std::ranges::count(rows["Person.csv"], '\n') - 3;
        if (loaded == 400000)
            break;  // it was just done
        EXPECT_EQ(loaded, 0);
        EXPECT_TRUE(rows == dicBefore);
    }
}

TEST_F(BrokenAccount, KeepsItsRowsWhenAStatementIsKilled)
{
    // The last statement would take days.
    std::string batch =
        "select 1 as a into Work update Person set cPersonName = 'X' select count(*) from Person a";
    for (int i = 0; i < 60; ++i)
        batch += ", Person p" + std::to_string(i);
    RunOptions options;
    options.killAfter = std::chrono::milliseconds(1500);
    EXPECT_EQ(Run({"query", "--account", "a.kavelin", batch}, options).exitCode, 128 + 9);

    // What was done is kept, as on a server; the tables in memory are gone.
    auto rows = Exported("a.kavelin");
    EXPECT_EQ(rows["Person.csv"], "cPersonCode,cPersonName\r\nP1,X\r\nP2,X\r\n");
    rows["Person.csv"] = dicBefore["Person.csv"];
    EXPECT_EQ(rows, dicBefore);
    EXPECT_EQ(Run({"query", "--account", "a.kavelin", "select * from Work"}).exitCode, 1);
}

TEST_F(BrokenAccount, IsAsBeforeWhenTheMemoryIsTooSmall)
{
    RunOptions options;
    options.environment = {{"KAVELIN_MEMORY", "40"}, {"KAVELIN_SPILL", "0"}, {"KAVELIN_THREADS", "1"}};
    const Outcome outcome =
        Run({"query", "--account", "a.kavelin",
             "create table D (d int) insert into D values (0), (1), (2), (3), (4), (5), (6), (7), (8), (9) "
             "select a.d as a, cast(b.d as nvarchar(10)) + N'" +
                 std::string(200, 'x') + "' as c into Wide from D a, D b, D c, D d, D e, D f"},
            options);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_NE(outcome.err.find("insufficient system memory"), std::string::npos) << outcome.err;
    EXPECT_EQ(Run({"query", "--account", "a.kavelin", "select * from Wide"}).exitCode, 1);
    ExpectAsBefore();
}

TEST_F(BrokenAccount, LimitsThatAreNoNumbersAreRefused)
{
    RunOptions options;
    options.environment = {{"KAVELIN_MEMORY", "much"}};
    ExpectRefusal(Run({"query", "--account", "a.kavelin", "select 1"}, options), 3,
                  "KAVELIN_MEMORY takes a whole number");
    ExpectRefusal(Run({"query", "--account", "Embedded Account=a.kavelin;Threads=0", "select 1"}), 3,
                  "Threads takes a whole number");
}

}  // namespace
}  // namespace kavelin::cli
