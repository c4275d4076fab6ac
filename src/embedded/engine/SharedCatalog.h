// The tables and views of one account, as all its connections see them.
//
// A reader takes a snapshot and works on it undisturbed; a change makes a new snapshot. So a binder in one
// thread never meets half a change of another.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/Plan.h"
#include "frame/Text.h"

#include <array>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace kavelin::embedded {

using ObjectMap = std::map<std::string, std::shared_ptr<const ObjectInfo>, LessNoCase>;

// Makes `change` to the objects of one database. Facts only ever get weaker by it, whatever the change
// says: another connection may have weakened them since the change was worked out.
void ApplyChange(ObjectMap& objects, const CatalogChange& change);

Database DatabaseOf(const CatalogChange& change);

class SharedCatalog {
  public:
    // By Database::Account, System and Tempdb.
    using Snapshot = std::array<ObjectMap, 3>;

    SharedCatalog() : objCurrent(std::make_shared<Snapshot>()) {}

    std::shared_ptr<const Snapshot> Current() const;

    // Changes of the connection's own tables are none of it and are left out.
    void Apply(const std::vector<CatalogChange>& changes);

  private:
    mutable std::mutex objMutex;
    std::shared_ptr<const Snapshot> objCurrent;
};

// The catalogue of one connection for one statement: the snapshot, the connection's own tables, and
// `sysobjects` in each database.
class CatalogView : public Catalog {
  public:
    // `own` must outlive the view. With `intoFile` new objects of the account are made in its file at once.
    CatalogView(std::shared_ptr<const SharedCatalog::Snapshot> snapshot, const ObjectMap& own,
                std::string locale, bool intoFile, std::optional<IdentityInsert> identityInsert = {});

    const ObjectInfo* Find(Database database, std::string_view name) const override;
    std::string DuckNameForNew(Database database, std::string_view name) const override;
    std::string LocaleId() const override { return strLocale; }
    std::optional<IdentityInsert> IdentityInsertTable() const override { return objIdentityInsert; }

  private:
    std::shared_ptr<const SharedCatalog::Snapshot> objSnapshot;
    const ObjectMap& dicOwn;
    std::string strLocale;
    bool blnIntoFile;
    std::optional<IdentityInsert> objIdentityInsert;
};

}  // namespace kavelin::embedded
