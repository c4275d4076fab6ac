// Keeps src/host/data/needs.txt: what of an account the reports read, told by their statements.
#include "demo/ObjectCatalogue.h"
#include "frame/Text.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <set>

namespace kavelin::demo {
namespace {

constexpr std::string_view kDialogs = "dialogs";

// The names in a statement, small, and whether it takes all columns of something.
struct Names {
    std::set<std::string> words;
    bool all = false;
};

bool IsNamePart(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '#';
}

Names NamesIn(std::string_view sql)
{
    Names names;
    std::string word, last;  // the one being read, and the last word or sign
    bool inText = false;
    const auto end = [&] {
        if (word.empty())
            return;
        last = ToLower(word);
        names.words.insert(last);
        word.clear();
    };
    for (const char c : sql) {
        if (c == '\'') {
            end();
            inText = !inText;
        } else if (inText) {
            continue;
        } else if (IsNamePart(c)) {
            word += c;
        } else {
            end();
            if (c == '*' && (last == "select" || last == "distinct" || last == "." || last == ","))
                names.all = true;
            if (c != ' ' && c != '\r' && c != '\n' && c != '\t')
                last = std::string(1, c);
        }
    }
    end();
    return names;
}

std::vector<std::string> StatementsOf(const std::filesystem::path& log)
{
    std::vector<std::string> statements;
    for (const std::string& line : Split(test::ReadFile(log), "\n")) {
        if (line.starts_with("-- "))
            statements.emplace_back();
        else if (!statements.empty())
            statements.back() += line + "\n";
    }
    return statements;
}

// All statement logs, by the report that sent them.
std::map<std::string, std::vector<Names>> StatementsByReport()
{
    namespace fs = std::filesystem;
    std::map<std::string, std::vector<Names>> byReport;
    for (const auto& folder : fs::directory_iterator(fs::path(KAVELIN_TESTS_DIR) / "statements")) {
        const std::string name = folder.path().filename().string();
        std::vector<Names>& statements = byReport[name == "filter" ? std::string(kDialogs) : name];
        for (const auto& log : fs::directory_iterator(folder.path()))
            for (const std::string& statement : StatementsOf(log.path()))
                statements.push_back(NamesIn(statement));
    }
    const std::string lookups =
        test::ReadFile(std::string(KAVELIN_SOURCE_DIR) + "/src/host/data/lookups.json");
    for (const std::string& line : Split(ReplaceAll(lookups, "'", ""), "\n  \""))
        byReport[std::string(kDialogs)].push_back(NamesIn(line));
    return byReport;
}

std::string Joined(const auto& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

// Those with a statement that names the object and, unless it is empty, the column.
std::set<std::string> ReportsThatName(const std::string& object, const std::string& column,
                                      const std::map<std::string, std::vector<Names>>& statementsByReport)
{
    std::set<std::string> reports;
    for (const auto& [report, statements] : statementsByReport)
        for (const Names& names : statements)
            if (names.words.contains(ToLower(object)) &&
                (column.empty() || names.all || names.words.contains(ToLower(column))))
                reports.insert(report);
    return reports;
}

std::string Line(const std::string& names, const std::string& reports)
{
    return names + (reports.empty() ? ":" : ": ") + reports + "\n";
}

std::string NeedsOf(const CatalogueObject& object,
                    const std::map<std::string, std::vector<Names>>& statements)
{
    // Columns that the same reports read share a line.
    std::map<std::string, std::vector<std::string>> byReports;
    for (const CatalogueColumn& column : object.columns)
        byReports[Joined(ReportsThatName(object.name, column.name, statements))].push_back(column.name);
    std::string text = Line((object.name == "UA_Period" ? "VosSystem.." : "") + object.name,
                            Joined(ReportsThatName(object.name, "", statements)));
    for (const auto& [reports, columns] : byReports)
        text += "    " + Line(Joined(columns), reports);
    return text;
}

TEST(AccountNeeds, AreWhatTheStatementsOfTheReportsName)
{
    const auto statements = StatementsByReport();
    std::string text =
        "# What the reports read of an account: every table, view or function() with the reports whose\n"
        "# statements name it, below it its columns with the reports whose statements name both. What stands\n"
        "# before no report is read where a user asks for more than usual, such as a filter on a field of his\n"
        "# own. Kept by a test.\n";
    for (const CatalogueObject& object : ReadObjects())
        if (!object.name.starts_with("Demo_"))
            text += NeedsOf(object, statements);
    text += Line("dbo.UDF_GetLocaleID()", Joined(ReportsThatName("UDF_GetLocaleID", "", statements)));
    test::ExpectFile(text, std::string(KAVELIN_SOURCE_DIR) + "/src/host/data/needs.txt");
}

}  // namespace
}  // namespace kavelin::demo
