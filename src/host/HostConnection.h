// Connections by connection string: which engine serves an account is known only when it is opened.
#pragma once

#include "frame/Connection.h"
#include "host/StatementLog.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin::host {

// A connection that picks its engine by its connection string at Open:
//   Embedded Account=PATH;Locale=zh-CN                     an embedded account
//   Provider=...;Data Source=tcp:HOST,1433;...             a server
//   Driver=...;Server=HOST;... or DSN=...                  a server, as ODBC names it
// Anything else fails with ConnectionError.
std::shared_ptr<Connection> CreateConnection();

// Whether the connection string is that of an embedded account.
bool IsEmbedded(std::string_view connectionString);

// "Embedded Account=PATH;Locale=...", the path quoted where it must be.
std::string EmbeddedConnectionString(const std::string& path, std::string_view language);
std::string EmbeddedConnectionString(const std::string& path);  // without Locale

// The connection string of an embedded account with that Locale, unless it names one; any other as it is.
std::string WithLocale(const std::string& connectionString, std::string_view language);

// Makes the connections of one run: each wrapped so that the observers see its statements and the
// cancellation stops them, each with a name of its own.
class ConnectionSource {
  public:
    using Maker = std::function<std::shared_ptr<Connection>()>;

    explicit ConnectionSource(StatementObservers observers = {},
                              std::shared_ptr<Cancellation> cancellation = nullptr,
                              Maker maker = CreateConnection);

    // The same with one more observer.
    ConnectionSource With(std::shared_ptr<StatementObserver> observer) const;

    // Not open yet. `purpose` begins its name in the log: "report 3".
    std::shared_ptr<Connection> Create(const std::string& purpose) const;

    // Open, with a client-side cursor and without time-outs. Throws ConnectionError.
    std::shared_ptr<Connection> Open(const std::string& purpose, const std::string& connectionString,
                                     const std::string& password) const;

    // Lets statements begin again after a cancellation, for the cleaning up.
    void Resume() const;

  private:
    StatementObservers lstObservers;
    std::shared_ptr<Cancellation> objCancellation;
    Maker objMaker;
};

}  // namespace kavelin::host
