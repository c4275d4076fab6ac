#include "embedded/engine/BulkLoad.h"

#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/engine/Instance.h"
#include "embedded/engine/TableAppender.h"
#include "frame/Text.h"

#include <array>
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
auto WithDatabaseErrors(Action&& action)
{
    try {
        return action();
    } catch (const DuckError& error) {
        throw DatabaseError(DetailsOf(error, {}, {}));
    }
}

}  // namespace

struct BulkLoad::Load {
    struct Side {
        Session session;
        Transaction transaction;

        explicit Side(DuckDatabase& database) : session(database), transaction(session) {}
    };

    std::shared_ptr<Instance> instance;
    std::array<std::unique_ptr<Side>, 3> sides;  // by Database; null while nothing was loaded there
    ObjectMap loaded;                            // with the facts as they are now, by DuckDB's name
    std::unique_ptr<TableAppender> appender;

    void FinishTable()
    {
        if (!appender)
            return;
        const auto table = std::make_shared<const ObjectInfo>(appender->Finish());
        appender.reset();
        loaded[table->duckName] = table;
    }
};

BulkLoad::BulkLoad(const EmbeddedAccount& account) : objLoad(std::make_unique<Load>())
{
    objLoad->instance = account.Shared();
    WithDatabaseErrors([&] { objLoad->instance->Flush(); });
}

BulkLoad::~BulkLoad() = default;

void BulkLoad::Begin(const std::string& table, const std::vector<std::string>& columns)
{
    WithDatabaseErrors([&] {
        objLoad->FinishTable();
        const TableName wanted = ReadTableName(table);
        const auto snapshot = objLoad->instance->Objects().Current();
        const ObjectMap& objects = (*snapshot)[static_cast<std::size_t>(wanted.database)];
        const auto found = objects.find(wanted.name);
        if (found == objects.end() || found->second->kind != ObjectKind::Table)
            throw UnknownTable(table);
        const auto before = objLoad->loaded.find(found->second->duckName);
        const ObjectInfo& info = before != objLoad->loaded.end() ? *before->second : *found->second;

        std::unique_ptr<Load::Side>& side = objLoad->sides[static_cast<std::size_t>(wanted.database)];
        if (!side)
            side = std::make_unique<Load::Side>(objLoad->instance->Duck());
        objLoad->appender = std::make_unique<TableAppender>(side->session, info, columns);
    });
}

void BulkLoad::Append(std::span<const Value> row)
{
    if (!objLoad->appender)
        throw Error("A row came before a table was begun.");
    WithDatabaseErrors([&] { objLoad->appender->Append(row); });
}

void BulkLoad::Commit()
{
    WithDatabaseErrors([&] {
        objLoad->FinishTable();
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
