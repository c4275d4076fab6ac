#include "embedded/engine/Instance.h"

#include "embedded/engine/AccountFiles.h"
#include "embedded/engine/ColumnText.h"
#include "embedded/engine/Databases.h"
#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"

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
    std::shared_ptr<Instance> Find(const std::string& path)
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
        std::shared_ptr<Instance> made(new Instance(path), [this, path](Instance* instance) {
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

using PrimaryKeys = std::map<std::string, std::string>;  // table, its key columns as a list

PrimaryKeys ReadWorkKeys(Session& session)
{
    Result rows = session.Run(
        "SELECT table_name, unnest(constraint_column_names) FROM duckdb_constraints()"
        " WHERE database_name = 'work' AND constraint_type = 'PRIMARY KEY'");
    PrimaryKeys keys;
    for (std::int64_t row = 0; row < rows.RowCount(); ++row) {
        std::string& list = keys[*rows.Get(row, 0).As<std::string>()];
        list += (list.empty() ? "" : ", ") + QuoteName(*rows.Get(row, 1).As<std::string>());
    }
    return keys;
}

std::string CreateTable(const ObjectInfo& table, const PrimaryKeys& keys)
{
    std::string columns;
    for (const ColumnInfo& column : table.columns) {
        columns += (columns.empty() ? "" : ", ") + QuoteName(column.name) + ' ' + DuckType(column.type);
        if (column.defaultSql)
            columns += " DEFAULT " + *column.defaultSql;
    }
    if (const auto key = keys.find(table.name); key != keys.end())
        columns += ", PRIMARY KEY (" + key->second + ')';
    return "CREATE TABLE " + table.duckName + " (" + columns + ')';
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

std::shared_ptr<Instance> Instance::Of(const std::string& path)
{
    return TheRegistry().Find(CheckedAccountPath(path));
}

Instance::Instance(const std::string& path) : strPath(path)
{
    Session session(objDuck);
    for (const char* setting : {
             "SET GLOBAL autoinstall_known_extensions = false",
             "SET GLOBAL autoload_known_extensions = false",
             // T-SQL puts NULL first, and last in descending order.
             "SET GLOBAL default_null_order = 'nulls_first_on_asc_last_on_desc'",
         })
        session.Run(setting);
    session.Run("SET GLOBAL temp_directory = " + QuoteText(path + ".spill"));
    AttachAccount(session, path);
    for (const std::string_view name : {kTempdbName, kWorkName})
        session.Run("ATTACH ':memory:' AS " + QuoteName(name));
    for (const std::string& view : MakeSysObjects())
        session.Run(view);
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
    const PrimaryKeys keys = ReadWorkKeys(session);
    std::vector<std::string> leftBehind;
    {
        Transaction transaction(session);
        for (ObjectInfo& table : tables) {
            leftBehind.push_back(table.duckName);
            table.duckName = DuckNameIn(kAccountName, table.name);
            session.Run(CreateTable(table, keys));
            session.Run("INSERT INTO " + table.duckName + " SELECT * FROM " + leftBehind.back());
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
