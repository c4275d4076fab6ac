#include "embedded/engine/AccountFiles.h"

#include "embedded/engine/Databases.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/write/Quote.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace kavelin::embedded {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".kavelin";

// A sequence, because it is in no list of tables; its comment is the version of what the file holds.
constexpr std::string_view kMark = "kavelin_account";
constexpr std::string_view kVersion = "1";

fs::path PathOf(const std::string& text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string TextOf(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

// Asking for permissions tells little (access lists, mounts, the superuser), so a file is made and removed.
bool CanWriteIn(const fs::path& folder)
{
    const fs::path probe = folder / ".kavelin-probe";
    const bool made = std::ofstream(probe, std::ios::app).good();
    std::error_code ignored;
    fs::remove(probe, ignored);
    return made;
}

bool CanWriteFile(const fs::path& file)
{
    return std::ofstream(file, std::ios::in | std::ios::out | std::ios::binary).good();
}

ConnectionError NoAccount(const std::string& path)
{
    return Refusal("The file '" + path + "' is no account.");
}

void Attach(Session& session, const std::string& path, std::string_view name)
{
    session.Run("ATTACH " + QuoteText(path) + " AS " + QuoteName(name) + " (TYPE duckdb, READ_WRITE)");
}

// Attaches a file that is there, or tells why it cannot be.
void Open(Session& session, const std::string& path, std::string_view name)
{
    try {
        Attach(session, path, name);
    } catch (const DuckError& error) {
        const std::string message = error.what();
        if (message.find("Could not set lock on file") != std::string::npos)
            throw Refusal("The account '" + path + "' is in use by another program.");
        if (message.find("not a valid DuckDB database file") != std::string::npos ||
            message.find("IO Error") == std::string::npos)
            throw NoAccount(path);
        throw Refusal("The account '" + path + "' cannot be opened: " + WordsOf(error));
    }
}

void CheckMark(Session& session, const std::string& path, std::string_view name)
{
    Result marks =
        session.Run("SELECT comment FROM duckdb_sequences() WHERE database_name = " + QuoteText(name) +
                    " AND sequence_name = " + QuoteText(kMark));
    if (marks.RowCount() != 1)
        throw NoAccount(path);
    const Value version = marks.Get(0, 0);
    if (version != Value(kVersion))
        throw Refusal("The account '" + path + "' was made by another version of this program.");
}

void MakeFile(Session& session, const std::string& path, std::string_view name)
{
    Attach(session, path, name);
    const std::string mark = DuckNameIn(name, kMark);
    session.Run("CREATE SEQUENCE " + mark);
    session.Run("COMMENT ON SEQUENCE " + mark + " IS " + QuoteText(kVersion));
}

}  // namespace

std::string SystemFileOf(const std::string& accountPath)
{
    std::string stem = accountPath;
    if (stem.ends_with(kEnding))
        stem.resize(stem.size() - kEnding.size());
    return stem + ".system" + std::string(kEnding);
}

std::string CheckedAccountPath(const std::string& path)
{
    if (path.empty())
        throw Refusal("The connection string names no account.");
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(PathOf(path), error);
    if (error)
        throw Refusal("The account '" + path + "' cannot be reached: " + error.message());
    if (fs::is_directory(canonical, error))
        throw Refusal("'" + path + "' is a folder, not an account.");
    // Attaching would make a file that is missing.
    for (const std::string& file : {TextOf(canonical), SystemFileOf(TextOf(canonical))}) {
        const fs::file_status status = fs::status(PathOf(file), error);
        if (!fs::exists(status))
            throw Refusal("There is no account '" + path + "': the file '" + file + "' is missing.");
        if (!fs::is_regular_file(status))
            throw NoAccount(file);
    }
    return TextOf(canonical);
}

void AttachAccount(Session& session, const std::string& accountPath)
{
    const std::string systemPath = SystemFileOf(accountPath);
    if (!CanWriteFile(PathOf(accountPath)) || !CanWriteFile(PathOf(systemPath)) ||
        !CanWriteIn(PathOf(accountPath).parent_path()))
        throw Refusal("The account '" + accountPath +
                      "' cannot be written; its folder must be writable too.");
    Open(session, accountPath, kAccountName);
    CheckMark(session, accountPath, kAccountName);
    Open(session, systemPath, kSystemName);
    CheckMark(session, systemPath, kSystemName);
}

void RemoveAccountFiles(const std::string& path)
{
    std::error_code ignored;
    for (const std::string& file : {path, SystemFileOf(path)})
        for (const char* ending : {".wal", ""})
            fs::remove(PathOf(file + ending), ignored);
}

void CheckNewAccountPath(const std::string& path)
{
    std::error_code error;
    for (const std::string& file : {path, SystemFileOf(path)})
        if (fs::exists(fs::symlink_status(PathOf(file), error)))
            throw Refusal("The file '" + file + "' is there already.");
    const fs::path folder = fs::absolute(PathOf(path), error).parent_path();
    if (!fs::is_directory(folder, error))
        throw Refusal("There is no folder '" + TextOf(folder) + "' for the account.");
    if (!CanWriteIn(folder))
        throw Refusal("The account '" + path + "' cannot be made: its folder cannot be written.");
}

void CreateAccountFiles(const std::string& path)
{
    CheckNewAccountPath(path);
    const std::string systemPath = SystemFileOf(path);
    try {
        DuckDatabase database;
        Session session(database);
        MakeFile(session, path, kAccountName);
        MakeFile(session, systemPath, kSystemName);
    } catch (const DuckError& failure) {
        RemoveAccountFiles(path);
        throw Refusal("The account '" + path + "' cannot be made: " + WordsOf(failure));
    }
}

}  // namespace kavelin::embedded
