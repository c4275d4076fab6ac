// The embedded account: a company's account database in two files, on which T-SQL runs without a server.
//
// A connection is made by NewConnection and opened with `Embedded Account=PATH;Locale=zh-CN`. All connections
// of a process to one account share one database, whose tempdb ends with it. New tables are kept in memory
// until the last connection closes; a host that opens connection after connection holds an EmbeddedAccount
// meanwhile, which keeps the database open between them. One process at a time has an account open. All of
// an account must be closed before main ends: what DuckDB keeps for the thread is gone then.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/engine/EmbeddedConnection.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::embedded {

class Instance;

class EmbeddedAccount {
  public:
    explicit EmbeddedAccount(std::shared_ptr<Instance> instance) : objInstance(std::move(instance)) {}

    // Moves all tables that are still in memory to the account's file, all or none. Waits for the
    // statements that run. Throws DatabaseError.
    void Flush();

    // The tables and views of one database as they stand now, by name; none for Database::Connection.
    std::vector<ObjectInfo> Objects(Database database) const;

    // The account's file, in full.
    const std::string& Path() const;

    // For the engine's own loaders.
    const std::shared_ptr<Instance>& Shared() const { return objInstance; }

  private:
    std::shared_ptr<Instance> objInstance;
};

// Opens the account and keeps it open while the handle lives. Throws ConnectionError: no such file, a folder,
// a folder that cannot be written, no account, in use by another program.
std::shared_ptr<EmbeddedAccount> OpenAccount(const std::string& path);

// Makes a new account without tables: `path` and the system database `NAME.system.kavelin` beside it. Throws
// ConnectionError if one of the files is there or cannot be made.
void CreateAccount(const std::string& path);

// A connection that is not open yet.
std::unique_ptr<EmbeddedConnection> NewConnection();

}  // namespace kavelin::embedded
