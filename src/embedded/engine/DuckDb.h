// DuckDB's C API as objects: a database, a session on it, the rows that a statement gave.
//
// Nothing of T-SQL is known here, and DuckDB's header stays in the .cpp.
#pragma once

#include "frame/Errors.h"
#include "frame/Value.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

struct _duckdb_connection;

namespace kavelin::embedded {

// What DuckDB says, with its own prefix in front ("Catalog Error: ...").
class DuckError : public Error {
    using Error::Error;
};

// The rows of one statement, kept by the result itself: whatever runs afterwards does not change them. Must
// not outlive the session's database.
class Result {
  public:
    struct Content;

    explicit Result(std::unique_ptr<Content> content);
    Result(Result&&) noexcept;
    Result& operator=(Result&&) noexcept;
    ~Result();

    std::int64_t RowCount() const;
    std::int64_t RowsChanged() const;  // by an insert, update or delete

    // Rows and columns count from 0. BOOLEAN gives bool, integers std::int64_t, DECIMAL and HUGEINT a
    // Decimal, DOUBLE double, TIMESTAMP a DateTime, VARCHAR text. Throws DuckError for another type.
    // Reading row after row is cheap, jumping about is not.
    Value Get(std::int64_t row, int column);

  private:
    void Seek(std::int64_t row);

    std::unique_ptr<Content> objContent;
};

// A database in memory, to which files are attached.
class DuckDatabase {
  public:
    DuckDatabase();
    ~DuckDatabase();
    DuckDatabase(const DuckDatabase&) = delete;
    DuckDatabase& operator=(const DuckDatabase&) = delete;

  private:
    friend class Session;
    struct Handle;
    std::unique_ptr<Handle> objHandle;
};

// One connection to a database. For one thread at a time, but for Interrupt.
class Session {
  public:
    // `database` must outlive the session.
    explicit Session(DuckDatabase& database);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Runs one DuckDB statement to its end. Throws DuckError.
    Result Run(const std::string& sql);

    // Stops what runs; it throws DuckError with "INTERRUPT Error". From any thread. Until Resume is called,
    // whatever is run next stops as well, so that an interrupt between two statements is not lost.
    void Interrupt() noexcept;
    void Resume() noexcept { blnInterrupted = false; }
    bool Interrupted() const noexcept { return blnInterrupted; }

    // For the appender.
    _duckdb_connection* Native() const { return objNative; }

  private:
    _duckdb_connection* objNative = nullptr;
    std::atomic<bool> blnInterrupted = false;
};

// A transaction on a session, rolled back unless it was committed.
class Transaction {
  public:
    explicit Transaction(Session& session);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Throws DuckError; the transaction is then rolled back.
    void Commit();

  private:
    Session& objSession;
    bool blnOpen = true;
};

}  // namespace kavelin::embedded
