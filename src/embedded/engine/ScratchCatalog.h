// A catalogue that follows plans without anything being run: what a batch makes is there for the statements
// behind it.
#pragma once

#include "embedded/engine/SharedCatalog.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin::embedded {

class ScratchCatalog {
  public:
    // Begins with the objects of an account and the tables of a connection as they stand.
    ScratchCatalog(SharedCatalog::Snapshot objects, ObjectMap own, std::string locale)
        : objObjects(std::make_shared<const SharedCatalog::Snapshot>(std::move(objects))),
          dicOwn(std::move(own)),
          strLocale(std::move(locale))
    {
    }

    // Holds until the next Apply.
    CatalogView View(bool intoFile = false) const
    {
        return CatalogView(objObjects, dicOwn, strLocale, intoFile);
    }

    void Apply(const std::vector<CatalogChange>& changes)
    {
        auto next = std::make_shared<SharedCatalog::Snapshot>(*objObjects);
        for (const CatalogChange& change : changes)
            ApplyChange(DatabaseOf(change) == Database::Connection
                            ? dicOwn
                            : (*next)[static_cast<std::size_t>(DatabaseOf(change))],
                        change);
        objObjects = std::move(next);
    }

  private:
    std::shared_ptr<const SharedCatalog::Snapshot> objObjects;
    ObjectMap dicOwn;
    std::string strLocale;
};

}  // namespace kavelin::embedded
