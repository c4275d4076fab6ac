#include "embedded/engine/SqlTestFile.h"

#include <fstream>
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

SqlBlock ReadHead(const std::string& text, const std::string& path, int line)
{
    for (const Head& head : kHeads) {
        const std::string word = head.word;
        if (text == word || text.starts_with(word + ' '))
            return {head.kind, line, text.size() > word.size() ? text.substr(word.size() + 1) : "", "", {}};
    }
    throw std::runtime_error(path + ':' + std::to_string(line) + ": no block begins with " + text);
}

}  // namespace

std::vector<SqlBlock> ReadSqlTestFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(path + " cannot be read");
    std::vector<SqlBlock> blocks;
    std::string text;
    bool open = false, inRows = false;
    for (int line = 1; std::getline(file, text); ++line) {
        if (text.empty()) {
            open = inRows = false;
        } else if (!open) {
            if (text.starts_with('#'))
                continue;
            blocks.push_back(ReadHead(text, path, line));
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
