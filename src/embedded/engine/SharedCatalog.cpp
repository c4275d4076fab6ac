#include "embedded/engine/SharedCatalog.h"

#include "embedded/engine/Databases.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

// Of what is known of the texts of `column`, leaves what was known before too.
void WeakenFacts(ColumnInfo& column, const ObjectInfo& before)
{
    for (const ColumnInfo& old : before.columns) {
        if (!EqualsNoCase(old.name, column.name) || !old.type.IsText())
            continue;
        column.facts = Both(column.facts, old.facts);
    }
}

void Apply(ObjectMap& objects, const TableMade& made)
{
    objects[made.object.name] = std::make_shared<const ObjectInfo>(made.object);
}

void Apply(ObjectMap& objects, const TableDropped& dropped)
{
    objects.erase(dropped.name);
}

void Apply(ObjectMap& objects, const ColumnsChanged& changed)
{
    const auto found = objects.find(changed.name);
    if (found == objects.end())
        return;
    ObjectInfo object = *found->second;
    object.columns = changed.columns;
    for (ColumnInfo& column : object.columns)
        WeakenFacts(column, *found->second);
    found->second = std::make_shared<const ObjectInfo>(std::move(object));
}

}  // namespace

void ApplyChange(ObjectMap& objects, const CatalogChange& change)
{
    std::visit([&](const auto& kind) { Apply(objects, kind); }, change);
}

Database DatabaseOf(const CatalogChange& change)
{
    struct Visitor {
        Database operator()(const TableMade& made) const { return made.object.database; }
        Database operator()(const TableDropped& dropped) const { return dropped.database; }
        Database operator()(const ColumnsChanged& changed) const { return changed.database; }
    };
    return std::visit(Visitor{}, change);
}

std::shared_ptr<const SharedCatalog::Snapshot> SharedCatalog::Current() const
{
    const std::lock_guard lock(objMutex);
    return objCurrent;
}

void SharedCatalog::Apply(const std::vector<CatalogChange>& changes)
{
    const auto isOwn = [](const CatalogChange& change) { return DatabaseOf(change) == Database::Connection; };
    if (std::all_of(changes.begin(), changes.end(), isOwn))
        return;
    const std::lock_guard lock(objMutex);
    auto next = std::make_shared<Snapshot>(*objCurrent);
    for (const CatalogChange& change : changes)
        if (!isOwn(change))
            ApplyChange((*next)[static_cast<std::size_t>(DatabaseOf(change))], change);
    objCurrent = std::move(next);
}

CatalogView::CatalogView(std::shared_ptr<const SharedCatalog::Snapshot> snapshot, const ObjectMap& own,
                         std::string locale, bool intoFile, std::optional<IdentityInsert> identityInsert)
    : objSnapshot(std::move(snapshot)),
      dicOwn(own),
      strLocale(std::move(locale)),
      blnIntoFile(intoFile),
      objIdentityInsert(std::move(identityInsert))
{
}

const ObjectInfo* CatalogView::Find(Database database, std::string_view name) const
{
    if (EqualsNoCase(name, kSysObjects) && database != Database::Connection)
        return &SysObjectsOf(database);
    const ObjectMap& objects =
        database == Database::Connection ? dicOwn : (*objSnapshot)[static_cast<std::size_t>(database)];
    const auto found = objects.find(name);
    return found == objects.end() ? nullptr : found->second.get();
}

std::string CatalogView::DuckNameForNew(Database database, std::string_view name) const
{
    return DuckNameIn(blnIntoFile && database == Database::Account ? kAccountName : HomeOfNew(database),
                      name);
}

}  // namespace kavelin::embedded
