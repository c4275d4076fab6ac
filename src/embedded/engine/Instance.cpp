#include "embedded/engine/Instance.h"

#include "embedded/engine/AccountFiles.h"
#include "embedded/engine/ColumnText.h"
#include "embedded/engine/Databases.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/engine/Lockdown.h"
#include "embedded/write/Quote.h"
#include "embedded/write/Tables.h"

#include <condition_variable>
#include <map>

namespace kavelin::embedded {

namespace {

bool IsIn(const ObjectInfo& object, std::string_view database)
{
    return object.duckName.starts_with(QuoteName(database) + '.');
}

// The open instances. An entry stays until its instance is wholly closed, so that nobody opens the files a
// second time while they are being closed.
class Registry {
  public:
    std::shared_ptr<Instance> Find(const std::string& path, const Limits& limits)
    {
        std::unique_lock lock(objMutex);
        for (;;) {
            const auto found = dicInstances.find(path);
            if (found == dicInstances.end())
                break;
            if (std::shared_ptr<Instance> open = found->second.lock())
                return open;
            objClosed.wait(lock);
        }
        std::shared_ptr<Instance> made(new Instance(path, limits), [this, path](Instance* instance) {
            delete instance;
            const std::lock_guard erase(objMutex);
            dicInstances.erase(path);
            objClosed.notify_all();
        });
        dicInstances[path] = made;
        return made;
    }

  private:
    std::mutex objMutex;
    std::condition_variable objClosed;
    std::map<std::string, std::weak_ptr<Instance>> dicInstances;
};

Registry& TheRegistry()
{
    // Never destroyed: an account may be closed by an object that outlives main.
    static Registry* const registry = new Registry;
    return *registry;
}

}  // namespace

std::string CommentOn(const ObjectInfo& object)
{
    return std::string("COMMENT ON ") + (object.kind == ObjectKind::View ? "VIEW " : "TABLE ") +
           object.duckName + " IS " + QuoteText(WriteColumns(object.columns));
}

bool IsInFile(const ObjectInfo& object)
{
    return IsIn(object, kAccountName) || IsIn(object, kSystemName);
}

std::shared_ptr<Instance> Instance::Of(const std::string& path, const Limits& limits)
{
    try {
        return TheRegistry().Find(CheckedAccountPath(path), limits.Or(Limits::OfEnvironment()));
    } catch (const DuckError& error) {
        throw Refusal("The account '" + path + "' cannot be opened: " + WordsOf(error));
    }
}

Instance::Instance(const std::string& path, const Limits& limits) : strPath(path)
{
    Session session(objDuck);
    Configure(session, path, limits);
    AttachAccount(session, path);
    ClearSpill(path);
    for (const std::string_view name : {kTempdbName, kWorkName})
        session.Run("ATTACH ':memory:' AS " + QuoteName(name));
    for (const std::string& view : MakeSysObjects())
        session.Run(view);
    LockDown(session);
    LoadCatalog(session);
}

void Instance::LoadCatalog(Session& session)
{
    struct Source {
        Database database;
        std::string_view name;
    };
    for (const Source& source :
         {Source{Database::Account, kAccountName}, Source{Database::System, kSystemName}}) {
        const std::string filter = " WHERE NOT internal AND database_name = " + QuoteText(source.name);
        Result rows = session.Run("SELECT table_name, comment, false FROM duckdb_tables()" + filter +
                                  " UNION ALL SELECT view_name, comment, true FROM duckdb_views()" + filter);
        std::vector<CatalogChange> found;
        for (std::int64_t row = 0; row < rows.RowCount(); ++row) {
            const Value comment = rows.Get(row, 1);
            if (!comment.IsText())
                continue;
            std::optional<std::vector<ColumnInfo>> columns = ReadColumns(*comment.As<std::string>());
            if (!columns)
                continue;
            ObjectInfo object;
            object.database = source.database;
            object.kind = *rows.Get(row, 2).As<bool>() ? ObjectKind::View : ObjectKind::Table;
            object.name = *rows.Get(row, 0).As<std::string>();
            object.duckName = DuckNameIn(source.name, object.name);
            object.columns = std::move(*columns);
            found.push_back(TableMade{std::move(object)});
        }
        objCatalog.Apply(found);
    }
}

void Instance::Flush()
{
    const std::unique_lock lock(objPlacement);
    std::vector<ObjectInfo> tables;
    for (const auto& [name, object] : (*objCatalog.Current())[static_cast<std::size_t>(Database::Account)])
        if (IsIn(*object, kWorkName))
            tables.push_back(*object);
    if (tables.empty())
        return;

    Session session(objDuck);
    std::vector<std::string> leftBehind;
    {
        Transaction transaction(session);
        for (ObjectInfo& table : tables) {
            leftBehind.push_back(table.duckName);
            table.duckName = DuckNameIn(kAccountName, table.name);
            session.Run(CreateTable(table));
            session.Run("INSERT INTO " + table.duckName + " SELECT * FROM " + leftBehind.back());
            if (const std::optional<std::string> index = CreateKeyIndex(table))
                session.Run(*index);
            session.Run(CommentOn(table));
        }
        transaction.Commit();
    }
    // From here on the file counts; what stands in memory is only waste.
    std::vector<CatalogChange> moved;
    for (ObjectInfo& table : tables)
        moved.push_back(TableMade{std::move(table)});
    objCatalog.Apply(moved);
    for (const std::string& duckName : leftBehind)
        session.Run("DROP TABLE " + duckName);
}

void Instance::ConnectionOpened()
{
    const std::lock_guard lock(objCountMutex);
    ++lngConnections;
}

void Instance::ConnectionClosed()
{
    {
        const std::lock_guard lock(objCountMutex);
        if (--lngConnections > 0)
            return;
    }
    Flush();
}

}  // namespace kavelin::embedded
