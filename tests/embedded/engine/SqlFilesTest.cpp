// Runs the files of tests/embedded/sql, each as a test of its name.
#include "embedded/engine/SqlTestFile.h"
#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <stdexcept>

namespace kavelin::embedded {

namespace {

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
            Fail(block, Told(error));
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

    // "102 at 2:8 near 'x'": the number, the place if it matters, and what the message holds.
    void ExpectError(const SqlBlock& block)
    {
        static const std::regex kExpected("([0-9]+)(?: at ([0-9]+:[0-9]+))?(?: (.*))?");
        std::smatch expected;
        if (!std::regex_match(block.argument, expected, kExpected))
            throw std::runtime_error(strPath + ':' + std::to_string(block.line) + ": no error number");
        try {
            Current().Execute(block.sql);
            Fail(block, "no error");
        } catch (const DatabaseError& error) {
            const DatabaseError::Details& info = error.Get();
            const std::string place = std::to_string(info.lngLine) + ':' + std::to_string(info.lngColumn);
            const bool fits = std::to_string(info.lngNumber) == expected[1] &&
                              (!expected[2].matched || place == expected[2]) &&
                              std::string(error.what()).find(expected[3]) != std::string::npos;
            if (!fits)
                Fail(block, Told(error));
        }
    }

    static std::string Told(const DatabaseError& error)
    {
        return "error " + std::to_string(error.Get().lngNumber) + " at " +
               std::to_string(error.Get().lngLine) + ':' + std::to_string(error.Get().lngColumn) + ' ' +
               error.what();
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
        ADD_FAILURE_AT(strPath.c_str(), block.line) << Joined(block.marks, " ") << '\n'
                                                    << block.sql << "\ncame\n"
                                                    << came;
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
    Runner runner(GetParam());
    for (const SqlBlock& block : ReadSqlTestFile(GetParam()))
        runner.Run(block);
}

INSTANTIATE_TEST_SUITE_P(Embedded, SqlFiles, ::testing::ValuesIn(SqlTestFiles()), [](const auto& file) {
    std::string name = std::filesystem::path(file.param).stem().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

}  // namespace

}  // namespace kavelin::embedded
