// Every text is run on an account of its own with a few tables.
//
// It gives rows or a DatabaseError in the system's own words, ends in time, and leaves an account that can
// be opened again and holds what the catalogue says.
#include "Check.h"
#include "Tables.h"

#include "embedded/EmbeddedAccount.h"
#include "embedded/Plan.h"
#include "frame/Errors.h"

#include <unistd.h>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <variant>

namespace kavelin::fuzz {

namespace {

using namespace embedded;
namespace fs = std::filesystem;

// What runs longer is cancelled, as a join of many tables may. libFuzzer's own time-out tells of what does
// not end even so.
constexpr std::chrono::milliseconds kPatience{1000};

// DuckDB's error at a value is only found when it is read, so all of them are.
void ReadRows(Recordset& rows)
{
    constexpr std::int64_t kEnough = 1000;
    for (std::int64_t row = 0; row < kEnough && !rows.Eof(); ++row, rows.MoveNext())
        for (int field = 0; field < rows.FieldCount(); ++field)
            rows.Field(field);
}

// Cancels what a connection runs when it takes too long.
class Watch {
  public:
    explicit Watch(EmbeddedConnection& connection)
        : objThread([this, &connection] {
              std::unique_lock lock(objMutex);
              if (!objDone.wait_for(lock, kPatience, [this] { return blnDone; }))
                  connection.Cancel();
          })
    {
    }

    ~Watch()
    {
        {
            const std::lock_guard lock(objMutex);
            blnDone = true;
        }
        objDone.notify_all();
        objThread.join();
    }

  private:
    std::mutex objMutex;
    std::condition_variable objDone;
    bool blnDone = false;
    std::thread objThread;
};

// What a batch may have done to the account, told from its text alone.
struct Traces {
    bool changes = false;  // rows or tables in memory
    bool flushes = false;  // views and indexes, for which all tables go to the file

    void Add(const Statement& statement)
    {
        const auto& node = statement.node;
        if (const auto* test = std::get_if<IfExistsStatement>(&node)) {
            Add(*test->then);
            return;
        }
        const auto* select = std::get_if<SelectStatement>(&node);
        changes = changes || select == nullptr || select->query->selects.front().into.has_value();
        flushes = flushes || std::holds_alternative<CreateViewStatement>(node) ||
                  std::holds_alternative<CreateIndexStatement>(node);
    }
};

Traces TracesOf(const std::string& text)
{
    Traces traces;
    try {
        for (const StatementPtr& statement : ParseBatch(text))
            traces.Add(*statement);
    } catch (const SqlError&) {
        // A batch with an error in its text does nothing at all.
    }
    return traces;
}

class Account {
  public:
    Account()
    {
        strFolder = fs::temp_directory_path() / ("kavelin-fuzz-" + std::to_string(::getpid()));
        Make();
    }

    void Check(const std::string& text)
    {
        Run(text);
        const Traces traces = TracesOf(text);
        if (!traces.changes)
            return;
        RequireSound();
        if (traces.flushes) {
            Close();
            Open();
            RequireSound();
            Close();
            Make();
        } else {
            DropTables();
            MakeTables();
        }
    }

  private:
    void Run(const std::string& text)
    {
        const auto connection = Connect();
        const Watch watch(*connection);
        try {
            ReadRows(*connection->OpenRecordset(text, CursorLocation::Client, CursorType::Static,
                                                LockType::ReadOnly));
        } catch (const CancelledError&) {
        } catch (const DatabaseError& error) {
            const std::string message = error.what();
            RequireOwnWords(message, text);
            Require(error.Get().lngNumber != 0, "an error without a number: " + message);
        }
    }

    // What the catalogue tells of each table, DuckDB tells too.
    void RequireSound()
    {
        for (const Database database : {Database::Account, Database::System, Database::Tempdb})
            for (const ObjectInfo& object : objAccount->Objects(database)) {
                if (object.kind != ObjectKind::Table)
                    continue;
                const std::string select = "select top 3 * from " + FullName(database, object.name);
                try {
                    const auto rows = objIdle->OpenRecordset(select, CursorLocation::Client,
                                                             CursorType::Static, LockType::ReadOnly);
                    Require(rows->FieldCount() == static_cast<int>(object.columns.size()),
                            "other columns than the catalogue's: " + object.name);
                    ReadRows(*rows);
                } catch (const DatabaseError& error) {
                    Require(false, "a damaged table, " + select + ": " + error.what());
                }
            }
    }

    static std::string FullName(Database database, const std::string& name)
    {
        std::string quoted;
        for (const char c : name)
            quoted += c == ']' ? "]]" : std::string(1, c);
        const char* prefix = database == Database::Tempdb   ? "tempdb.."
                             : database == Database::System ? "vossystem.."
                                                            : "";
        return prefix + ('[' + quoted + ']');
    }

    void DropTables()
    {
        for (const Database database : {Database::Account, Database::System, Database::Tempdb})
            for (const ObjectInfo& object : objAccount->Objects(database)) {
                const std::string drop = "drop table " + FullName(database, object.name);
                try {
                    objIdle->Execute(drop);
                } catch (const DatabaseError& error) {
                    Require(false, "a table that cannot be dropped, " + drop + ": " + error.what());
                }
            }
    }

    void MakeTables() { objIdle->Execute(std::string(kTables)); }

    void Make()
    {
        fs::remove_all(strFolder);
        fs::create_directories(strFolder);
        CreateAccount(Path());
        Open();
        MakeTables();
    }

    void Open()
    {
        try {
            objIdle = Connect();  // first, so that its limits are the account's
            objAccount = OpenAccount(Path());
        } catch (const ConnectionError& error) {
            Require(false, std::string("an account that does not open again: ") + error.what());
        }
    }

    void Close()
    {
        if (objIdle)
            objIdle->Close();
        objIdle.reset();
        objAccount.reset();
    }

    std::string Path() const { return (strFolder / "fuzz.kavelin").string(); }

    std::unique_ptr<EmbeddedConnection> Connect() const
    {
        auto connection = NewConnection();
        connection->SetConnectionString("Embedded Account=" + Path() + ";Memory=256;Spill=0;Threads=1");
        connection->Open("", "", 0);
        return connection;
    }

    fs::path strFolder;
    std::shared_ptr<EmbeddedAccount> objAccount;
    std::unique_ptr<EmbeddedConnection> objIdle;  // keeps the account's tables in memory between texts
};

}  // namespace

}  // namespace kavelin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Never destroyed: at the end of the program it is too late to close an account.
    static auto* const account = new kavelin::fuzz::Account;
    if (size <= kavelin::fuzz::kLongestText)
        account->Check(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
