#include "host/StatementLog.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <ostream>
#include <utility>

namespace kavelin::host {

namespace {

// The class of the SQLSTATEs of a connection that is gone.
constexpr std::string_view kConnectionStates = "08";

}  // namespace

void Cancellation::Cancel() noexcept
{
    const std::lock_guard lock(objMutex);
    blnCancelled = true;
    for (Connection* connection : lstRunning)
        connection->Cancel();
}

bool Cancellation::IsCancelled() const
{
    const std::lock_guard lock(objMutex);
    return blnCancelled;
}

void Cancellation::Reset()
{
    const std::lock_guard lock(objMutex);
    blnCancelled = false;
}

void Cancellation::Enter(Connection& connection, const std::string& sql)
{
    const std::lock_guard lock(objMutex);
    if (blnCancelled) {
        DatabaseError::Details details;
        details.strMessage = "The run was interrupted.";
        details.strSqlState = "HY008";
        details.strStatement = sql;
        throw CancelledError(details);
    }
    lstRunning.push_back(&connection);
}

void Cancellation::Leave(Connection& connection)
{
    const std::lock_guard lock(objMutex);
    lstRunning.erase(std::ranges::find(lstRunning, &connection));
}

LoggingConnection::LoggingConnection(std::shared_ptr<Connection> inner, std::string name,
                                     StatementObservers observers, std::shared_ptr<Cancellation> cancellation)
    : cnnInner(std::move(inner)),
      strName(std::move(name)),
      lstObservers(std::move(observers)),
      objCancellation(std::move(cancellation))
{
}

// Runs a statement between the calls of the observers; `rows` counts what it gave.
template <class Run, class Rows>
auto LoggingConnection::Watched(const std::string& sql, Run run, Rows rows)
{
    using Clock = std::chrono::steady_clock;

    if (objCancellation)
        objCancellation->Enter(*cnnInner, sql);
    struct Leaving {
        LoggingConnection& connection;
        ~Leaving()
        {
            if (connection.objCancellation)
                connection.objCancellation->Leave(*connection.cnnInner);
        }
    } leaving{*this};

    for (const auto& observer : lstObservers)
        observer->Begins(sql, strName);

    StatementRecord record{.sql = sql, .connection = strName};
    std::exception_ptr failure;
    decltype(run()) result{};
    const auto begin = Clock::now();
    try {
        result = run();
    } catch (const DatabaseError& e) {
        record.error = e.what();
        record.connectionLost = e.Get().strSqlState.starts_with(kConnectionStates);
        failure = std::current_exception();
    } catch (const std::exception& e) {
        record.error = e.what();
        failure = std::current_exception();
    }
    record.milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
    if (!failure && !lstObservers.empty())
        record.rows = rows(result);

    for (const auto& observer : lstObservers)
        observer->Ended(record);
    if (failure)
        std::rethrow_exception(failure);
    return result;
}

std::int64_t LoggingConnection::Execute(const std::string& sql)
{
    return Watched(
        sql, [&] { return cnnInner->Execute(sql); }, [](std::int64_t changed) { return changed; });
}

std::unique_ptr<Recordset> LoggingConnection::OpenRecordset(const std::string& sql, CursorLocation location,
                                                            CursorType type, LockType lock)
{
    return Watched(
        sql, [&] { return cnnInner->OpenRecordset(sql, location, type, lock); },
        [](const std::unique_ptr<Recordset>& rows) { return rows->RecordCount(); });
}

StatementLogFile::StatementLogFile(const std::string& path) : strPath(path)
{
    lngFile = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (lngFile < 0)
        throw Error("The statement log " + path + " cannot be written: " + std::strerror(errno) + ".");
}

StatementLogFile::~StatementLogFile()
{
    ::close(lngFile);
}

void StatementLogFile::Ended(const StatementRecord& record)
{
    using nlohmann::ordered_json;

    const ordered_json line = {
        {"sql", record.sql},
        {"connection", record.connection},
        {"ms", record.milliseconds},
        {"rows", record.rows < 0 ? ordered_json() : ordered_json(record.rows)},
        {"error", record.error ? ordered_json(*record.error) : ordered_json()},
    };
    const std::string text = line.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    if (::write(lngFile, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw Error("The statement log " + strPath + " cannot be written: " + std::strerror(errno) + ".");
}

void StatementPrinter::Begins(const std::string& sql, const std::string& connection)
{
    *objOut << "-- " << ++lngCount << ", " << connection << "\n" << ReplaceAll(sql, "\r\n", "\n") << "\n";
    objOut->flush();
}

std::shared_ptr<StatementObserver> LogFromEnvironment()
{
    const char* path = std::getenv("KAVELIN_SQL_LOG");
    return path && *path ? std::make_shared<StatementLogFile>(path) : nullptr;
}

namespace {

// The words of the statement outside of texts, as they are written.
std::vector<std::string> WordsOf(std::string_view sql)
{
    constexpr std::string_view separators = " \t\r\n(),;=<>+";
    std::vector<std::string> words;
    std::string word;
    bool inText = false;
    for (const char letter : sql) {
        if (letter == '\'')
            inText = !inText;
        if (!inText && letter != '\'' && separators.find(letter) == std::string_view::npos) {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    if (!word.empty())
        words.push_back(word);
    return words;
}

}  // namespace

std::string DescribeStatement(std::string_view sql)
{
    const std::vector<std::string> words = WordsOf(sql);
    const auto after = [&](std::string_view first, std::string_view second) -> std::string {
        for (std::size_t i = 0; i + 1 < words.size(); ++i) {
            if (!EqualsNoCase(words[i], first))
                continue;
            if (second.empty())
                return words[i + 1];
            if (EqualsNoCase(words[i + 1], second) && i + 2 < words.size())
                return words[i + 2];
        }
        return "";
    };
    const std::string verb = words.empty() ? "" : ToLower(words.front());

    const std::pair<std::string, std::string> actions[] = {
        {"drop table ", after("drop", "table")},
        {"create table ", after("create", "table")},
        {"select into ", verb == "select" ? after("into", "") : ""},
        {"insert into ", verb == "insert" ? after("into", "") : ""},
        {"update ", verb == "update" ? after("update", "") : ""},
        {"delete from ", verb == "delete" ? after("from", "") : ""},
        {"read ", verb == "select" ? after("from", "") : ""},
    };
    for (const auto& [action, name] : actions)
        if (!name.empty())
            return action + name;

    std::string beginning;
    for (const std::string& word : words)
        beginning += (beginning.empty() ? "" : " ") + word;
    return Left(beginning, 60);
}

}  // namespace kavelin::host
