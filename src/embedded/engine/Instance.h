// One open account: DuckDB in memory with the account's files attached, shared by all its connections in
// this process.
//
// New tables of the account begin in memory, in the database `work`: most are the work and result tables
// of reports, written, read once and dropped, and writing them to the file would cost several times the
// run itself. Flush moves to the file what is to stay.
#pragma once

#include "embedded/engine/DuckDb.h"
#include "embedded/engine/Limits.h"
#include "embedded/engine/SharedCatalog.h"

#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>

namespace kavelin::embedded {

class Instance {
  public:
    // The instance of that account; the one that is open already if there is one. It closes with its last
    // owner. The limits are those of who opens it first, the environment's where they say nothing. Throws
    // ConnectionError.
    static std::shared_ptr<Instance> Of(const std::string& path, const Limits& limits = {});

    // `path` as CheckedAccountPath gives it. For Of; a second instance on one file would damage it.
    Instance(const std::string& path, const Limits& limits);
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    const std::string& Path() const { return strPath; }
    DuckDatabase& Duck() { return objDuck; }
    SharedCatalog& Objects() { return objCatalog; }

    // Held shared while a statement is translated and run, so that no table moves under it.
    std::shared_mutex& Placement() { return objPlacement; }

    // Moves the account's tables that are still in memory to its file. All or none: on a failure they are
    // where they were. Throws DuckError. The caller holds no lock on Placement.
    void Flush();

    void ConnectionOpened();
    // The last one flushes. Throws DuckError, as Flush.
    void ConnectionClosed();

  private:
    void LoadCatalog(Session& session);

    std::string strPath;
    DuckDatabase objDuck;
    SharedCatalog objCatalog;
    std::shared_mutex objPlacement;
    std::mutex objCountMutex;
    int lngConnections = 0;
};

// DuckDB's statement that stores the columns of a table or view in its file.
std::string CommentOn(const ObjectInfo& object);

// Whether the columns have to be stored: those of tables in memory go with them.
bool IsInFile(const ObjectInfo& object);

}  // namespace kavelin::embedded
