#include "embedded/engine/SqlTestFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace kavelin::embedded {

namespace {

struct Head {
    const char* word;
    SqlBlockKind kind;
};
// In this order: the first that fits counts.
constexpr Head kHeads[] = {
    {"statement ok", SqlBlockKind::Statement},
    {"statement error", SqlBlockKind::Error},
    {"query", SqlBlockKind::Query},
    {"names", SqlBlockKind::Names},
    {"connection", SqlBlockKind::Connection},
    {"close", SqlBlockKind::Close},
    {"reopen", SqlBlockKind::Reopen},
};

bool HasSql(SqlBlockKind kind)
{
    return kind <= SqlBlockKind::Names;
}

[[noreturn]] void Refuse(const std::string& path, int line, const std::string& what)
{
    throw std::runtime_error(path + ':' + std::to_string(line) + ": " + what);
}

SqlBlock ReadHead(const std::string& text, const std::string& path, int line)
{
    for (const Head& head : kHeads) {
        const std::string word = head.word;
        if (text == word || text.starts_with(word + ' '))
            return {head.kind, line, {}, text.size() > word.size() ? text.substr(word.size() + 1) : "",
                    "",        {}};
    }
    Refuse(path, line, "no block begins with " + text);
}

// The marks that a line of a comment begins with.
std::vector<std::string> ReadMarks(const std::string& comment, const std::string& path, int line)
{
    static const std::regex kMarked("# ((?:[A-Z][0-9]+ )*[A-Z][0-9]+): .*");
    static const std::regex kLooksMarked("# [A-Z][0-9]+\\b.*");
    std::smatch match;
    if (!std::regex_match(comment, match, kMarked)) {
        if (std::regex_match(comment, kLooksMarked))
            Refuse(path, line, "marks end with a colon");
        return {};
    }
    std::istringstream words(match[1]);
    return {std::istream_iterator<std::string>(words), {}};
}

}  // namespace

bool Compares(const SqlBlock& block)
{
    return HasSql(block.kind) && (block.kind != SqlBlockKind::Statement || !block.argument.empty());
}

std::vector<std::string> SqlTestFiles()
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(KAVELIN_TESTS_DIR "/embedded/sql"))
        if (entry.path().extension() == ".test")
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<SqlBlock> ReadSqlTestFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(path + " cannot be read");
    std::vector<SqlBlock> blocks;
    std::vector<std::string> marks;
    std::string text;
    bool open = false, inRows = false, inComment = false;
    for (int line = 1; std::getline(file, text); ++line) {
        if (text.empty()) {
            open = inRows = false;
        } else if (!open) {
            if (text.starts_with('#')) {
                if (!inComment)
                    marks.clear();
                inComment = true;
                for (std::string& mark : ReadMarks(text, path, line))
                    marks.push_back(std::move(mark));
                continue;
            }
            inComment = false;
            blocks.push_back(ReadHead(text, path, line));
            blocks.back().marks = marks;
            open = HasSql(blocks.back().kind);
        } else if (inRows) {
            blocks.back().rows.push_back(text);
        } else if (text == "----") {
            inRows = true;
        } else {
            std::string& sql = blocks.back().sql;
            sql += (sql.empty() ? "" : "\r\n") + text;
        }
    }
    return blocks;
}

}  // namespace kavelin::embedded
