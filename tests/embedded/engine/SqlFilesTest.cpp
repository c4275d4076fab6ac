// Runs the files of tests/embedded/sql, each as a test of its name.
#include "embedded/engine/SqlTestFile.h"
#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace kavelin::embedded {

namespace {

const std::filesystem::path kFolder = std::filesystem::path(KAVELIN_TESTS_DIR) / "embedded" / "sql";

std::vector<std::string> Names()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kFolder))
        if (entry.path().extension() == ".test")
            names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string Joined(const std::vector<std::string>& parts, const std::string& between)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : between) + part;
    return text;
}

class Runner {
  public:
    explicit Runner(std::string path) : strPath(std::move(path)) { Use("a"); }

    void Run(const SqlBlock& block)
    {
        try {
            RunBlock(block);
        } catch (const DatabaseError& error) {
            Fail(block, "error " + std::to_string(error.Get().lngNumber) + ": " + error.what() + " (line " +
                            std::to_string(error.Get().lngLine) + ", column " +
                            std::to_string(error.Get().lngColumn) + ')');
        }
    }

  private:
    void RunBlock(const SqlBlock& block)
    {
        switch (block.kind) {
            case SqlBlockKind::Statement: {
                const std::int64_t changed = Current().Execute(block.sql);
                if (!block.argument.empty())
                    Compare(block, block.argument, std::to_string(changed));
                break;
            }
            case SqlBlockKind::Error: ExpectError(block); break;
            case SqlBlockKind::Query: {
                const auto rows = Open(block);
                std::vector<std::string> types;
                for (int field = 0; field < rows->FieldCount(); ++field)
                    types.push_back(rows->FieldType(field));
                Compare(block, block.argument, Joined(types, ", "));
                std::string text = ShowRows(*rows);
                if (!text.empty())
                    text.pop_back();
                Compare(block, Joined(block.rows, "\n"), text);
                break;
            }
            case SqlBlockKind::Names: {
                const auto rows = Open(block);
                std::vector<std::string> names;
                for (int field = 0; field < rows->FieldCount(); ++field)
                    names.push_back(rows->FieldName(field).empty() ? "(none)" : rows->FieldName(field));
                Compare(block, block.argument, Joined(names, ", "));
                break;
            }
            case SqlBlockKind::Connection: Use(block.argument); break;
            case SqlBlockKind::Close:
                Current().Close();
                dicConnections.erase(strCurrent);
                break;
            case SqlBlockKind::Reopen:
                for (const auto& [name, connection] : dicConnections)
                    connection->Close();
                dicConnections.clear();
                Use("a");
                break;
        }
    }

    // "8134 Divide by zero": the number, and what the message holds.
    void ExpectError(const SqlBlock& block)
    {
        const std::size_t blank = block.argument.find(' ');
        const std::string number = block.argument.substr(0, blank);
        const std::string part = blank == std::string::npos ? "" : block.argument.substr(blank + 1);
        try {
            Current().Execute(block.sql);
            Fail(block, "no error");
        } catch (const DatabaseError& error) {
            const bool fits = std::to_string(error.Get().lngNumber) == number &&
                              std::string(error.what()).find(part) != std::string::npos;
            if (!fits)
                Fail(block, "error " + std::to_string(error.Get().lngNumber) + ": " + error.what());
        }
    }

    std::unique_ptr<Recordset> Open(const SqlBlock& block)
    {
        return Current().OpenRecordset(block.sql, CursorLocation::Client, CursorType::Static,
                                       LockType::ReadOnly);
    }

    void Compare(const SqlBlock& block, const std::string& wanted, const std::string& came)
    {
        if (wanted != came)
            Fail(block, came + "\nwanted\n" + wanted);
    }

    void Fail(const SqlBlock& block, const std::string& came)
    {
        ADD_FAILURE_AT(strPath.c_str(), block.line) << block.sql << "\ncame\n" << came;
    }

    void Use(const std::string& name)
    {
        strCurrent = name;
        if (!dicConnections.contains(name))
            dicConnections[name] = objAccount.Connect();
    }

    EmbeddedConnection& Current() { return *dicConnections.at(strCurrent); }

    std::string strPath;
    TestAccount objAccount;
    std::map<std::string, std::unique_ptr<EmbeddedConnection>> dicConnections;
    std::string strCurrent;
};

class SqlFiles : public ::testing::TestWithParam<std::string> {};

TEST_P(SqlFiles, GiveWhatStandsInThem)
{
    const std::string path = (kFolder / (GetParam() + ".test")).string();
    Runner runner(path);
    for (const SqlBlock& block : ReadSqlTestFile(path))
        runner.Run(block);
}

INSTANTIATE_TEST_SUITE_P(Embedded, SqlFiles, ::testing::ValuesIn(Names()), [](const auto& file) {
    std::string name = file.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

}  // namespace

}  // namespace kavelin::embedded
