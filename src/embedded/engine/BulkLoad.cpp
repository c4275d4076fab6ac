#include "embedded/engine/BulkLoad.h"

#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/engine/Instance.h"
#include "embedded/engine/TableAppender.h"
#include "frame/Text.h"

#include <array>
#include <map>
#include <optional>

namespace kavelin::embedded {

namespace {

struct TableName {
    Database database;
    std::string name;
};

// `x`, `dbo.x`, `tempdb..x`
TableName ReadTableName(const std::string& text)
{
    const std::vector<std::string> parts = Split(text, ".");
    if (parts.size() == 3 && EqualsNoCase(parts[0], "tempdb"))
        return {Database::Tempdb, parts[2]};
    if (parts.size() == 3 && EqualsNoCase(parts[0], "vossystem"))
        return {Database::System, parts[2]};
    return {Database::Account, parts.back()};
}

DatabaseError UnknownTable(const std::string& table)
{
    DatabaseError::Details details;
    details.lngNumber = 208;
    details.strSqlState = "42S02";
    details.strMessage = "Invalid object name '" + table + "'.";
    return DatabaseError(details);
}

// The statements of a load are DuckDB's own, so its errors have no T-SQL text to point into.
template <class Action>
decltype(auto) WithDatabaseErrors(Action&& action)
{
    try {
        return action();
    } catch (const DuckError& error) {
        throw DatabaseError(DetailsOf(error, {}, {}));
    }
}

// Rows are handed over many at a time, so DuckDB's error tells the table, but no row.
template <class Action>
auto WithTableErrors(const std::string& table, Action&& action)
{
    try {
        return action();
    } catch (const DuckError& error) {
        throw BulkLoadError(DetailsOf(error, {}, {}), table, "", 0);
    }
}

class OpenTable : public BulkTable {
  public:
    // `name` as the load's caller wrote it.
    OpenTable(Session& session, const ObjectInfo& table, const std::vector<std::string>& columns,
              std::string name)
        : objAppender(session, table, columns), strName(std::move(name))
    {
    }

    void Append(std::span<const Value> row) override
    {
        WithTableErrors(strName, [&] { objAppender.Append(row); });
    }

    ObjectInfo Finish()
    {
        return WithTableErrors(strName, [&] { return objAppender.Finish(); });
    }

  private:
    TableAppender objAppender;
    std::string strName;
};

}  // namespace

struct BulkLoad::Load {
    struct Side {
        Session session;
        Transaction transaction;

        explicit Side(DuckDatabase& database) : session(database), transaction(session) {}
    };

    std::shared_ptr<Instance> instance;
    std::array<std::unique_ptr<Side>, 3> sides;  // by Database; null while nothing was loaded there
    ObjectMap loaded;                            // finished, with the facts as they are now, by DuckDB's name
    std::map<std::string, std::unique_ptr<OpenTable>> open;  // by DuckDB's name

    void FinishTable(const std::string& duckName)
    {
        const auto found = open.find(duckName);
        if (found == open.end())
            return;
        loaded[duckName] = std::make_shared<const ObjectInfo>(found->second->Finish());
        open.erase(found);
    }
};

BulkLoad::BulkLoad(const EmbeddedAccount& account) : objLoad(std::make_unique<Load>())
{
    objLoad->instance = account.Shared();
    WithDatabaseErrors([&] { objLoad->instance->Flush(); });
}

BulkLoad::~BulkLoad() = default;

BulkTable& BulkLoad::Open(const std::string& table, const std::vector<std::string>& columns)
{
    return WithDatabaseErrors([&]() -> BulkTable& {
        const TableName wanted = ReadTableName(table);
        const auto snapshot = objLoad->instance->Objects().Current();
        const ObjectMap& objects = (*snapshot)[static_cast<std::size_t>(wanted.database)];
        const auto found = objects.find(wanted.name);
        if (found == objects.end() || found->second->kind != ObjectKind::Table)
            throw UnknownTable(table);
        const std::string& duckName = found->second->duckName;
        objLoad->FinishTable(duckName);
        const auto before = objLoad->loaded.find(duckName);
        const ObjectInfo& info = before != objLoad->loaded.end() ? *before->second : *found->second;

        std::unique_ptr<Load::Side>& side = objLoad->sides[static_cast<std::size_t>(wanted.database)];
        if (!side)
            side = std::make_unique<Load::Side>(objLoad->instance->Duck());
        return *(objLoad->open[duckName] = std::make_unique<OpenTable>(side->session, info, columns, table));
    });
}

void BulkLoad::Commit()
{
    WithDatabaseErrors([&] {
        while (!objLoad->open.empty())
            objLoad->FinishTable(std::string(objLoad->open.begin()->first));
        std::array<std::vector<CatalogChange>, 3> changes;
        for (const auto& [duckName, table] : objLoad->loaded) {
            const auto database = static_cast<std::size_t>(table->database);
            if (IsInFile(*table))
                objLoad->sides[database]->session.Run(CommentOn(*table));
            changes[database].emplace_back(ColumnsChanged{table->database, table->name, table->columns});
        }
        for (std::size_t database = 0; database < changes.size(); ++database) {
            if (!objLoad->sides[database])
                continue;
            objLoad->sides[database]->transaction.Commit();
            objLoad->instance->Objects().Apply(changes[database]);
            objLoad->sides[database].reset();
        }
        objLoad->loaded.clear();
    });
}

}  // namespace kavelin::embedded
