// The database as the reports see it. Adapters in database/ and embedded/ implement these two classes;
// nothing else of a database is known above them.
#pragma once

#include "frame/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin {

enum class CursorLocation { Server = 2, Client = 3 };
enum class CursorType { ForwardOnly = 0, Static = 3 };
enum class LockType { Unspecified = -1, ReadOnly = 1 };
enum class ConnectionState { Closed = 0, Open = 1 };

// The rows that a statement gave. Stands on the first row when it is opened. A static set can be counted
// and begun again; a forward-only set gives its rows once. Stays readable while other statements run on
// its connection; its rows are those of the moment when it was opened.
class Recordset {
  public:
    virtual ~Recordset() = default;

    virtual bool Eof() const = 0;
    virtual void MoveNext() = 0;
    virtual void MoveFirst() = 0;                  // static sets only
    virtual std::int64_t RecordCount() const = 0;  // -1 for a forward-only set

    virtual int FieldCount() const = 0;
    virtual std::string FieldName(int field) const = 0;  // fields count from 0; may be empty
    // T-SQL's name of the type: "int", "decimal(38,2)", "nvarchar(60)", "datetime".
    virtual std::string FieldType(int field) const = 0;
    virtual Value Field(int field) const = 0;

    // The field of that name, without regard to case. Throws Error if there is none.
    Value Field(std::string_view name) const;

    // Gives the rows back. Twice is no error.
    virtual void Close() = 0;
};

// One connection. All statements are synchronous. Not for two threads at once, but for Cancel.
class Connection {
  public:
    virtual ~Connection() = default;

    virtual void SetCursorLocation(CursorLocation location) = 0;
    virtual void SetConnectionString(const std::string& text) = 0;
    virtual void SetConnectionTimeout(std::int32_t seconds) = 0;  // 0: wait for ever
    virtual void SetCommandTimeout(std::int32_t seconds) = 0;     // 0: wait for ever

    // Opens with the connection string; user and password override what stands in it, unless empty.
    // Throws ConnectionError.
    virtual void Open(const std::string& user, const std::string& password, std::int32_t options) = 0;

    // Twice is no error.
    virtual void Close() = 0;
    virtual ConnectionState State() const = 0;

    // Runs one batch to its end and gives the number of rows that its last statement changed, -1 if it
    // changes none. Throws DatabaseError; statements before the failing one stay done.
    virtual std::int64_t Execute(const std::string& sql) = 0;

    // Runs one statement that gives rows. Throws DatabaseError.
    virtual std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location,
                                                     CursorType type, LockType lock) = 0;

    // Stops the statement that runs, from any thread; it then fails with CancelledError. Nothing if none runs.
    virtual void Cancel() noexcept = 0;
};

}  // namespace kavelin
