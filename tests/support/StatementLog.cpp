#include "support/StatementLog.h"

#include "support/GoldenFile.h"

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <unistd.h>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace kavelin::test {

namespace {

std::string WithLineFeeds(const std::string& sql)
{
    std::string text;
    for (std::size_t i = 0; i < sql.size(); ++i) {
        if (sql[i] == '\n')
            throw std::logic_error("a LF without a CR in: " + sql);
        if (sql[i] == '\r') {
            if (i + 1 == sql.size() || sql[i + 1] != '\n')
                throw std::logic_error("a CR without a LF in: " + sql);
            ++i;
        }
        text += sql[i];
    }
    return text;
}

}  // namespace

std::string LogText(const std::vector<SentStatement>& statements)
{
    std::string text;
    int number = 0;
    for (const SentStatement& statement : statements)
        text += "-- " + std::to_string(++number) + " #" + std::to_string(statement.connection) + "\n" +
                WithLineFeeds(statement.sql) + "\n";
    return text;
}

void ExpectStatements(const std::vector<SentStatement>& statements, const std::string& name)
{
    ExpectFile(LogText(statements),
               std::filesystem::path(KAVELIN_TESTS_DIR) / "statements" / (name + ".sql"));
}

void AppendToSqlLog(const SentStatement& statement, double milliseconds, std::int64_t rows,
                    const std::string& error)
{
    const char* path = std::getenv("KAVELIN_SQL_LOG");
    if (!path || !*path)
        return;
    nlohmann::ordered_json line = {
        {"sql", statement.sql},
        {"connection", "#" + std::to_string(statement.connection)},
        {"ms", milliseconds},
        {"rows", rows < 0 ? nlohmann::ordered_json() : nlohmann::ordered_json(rows)},
        {"error", error.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(error)},
    };
    const std::string text = line.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";

    // One write at the end of the file: several test programs share it.
    const int file = ::open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    const bool written =
        file >= 0 && ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    if (file >= 0)
        ::close(file);
    if (!written)
        throw std::runtime_error(std::string("cannot append to ") + path);
}

}  // namespace kavelin::test
