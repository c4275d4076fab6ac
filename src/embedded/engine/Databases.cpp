#include "embedded/engine/Databases.h"

#include "embedded/engine/DuckDb.h"
#include "embedded/write/Quote.h"

namespace kavelin::embedded {

namespace {

ObjectInfo DescribeSysObjects(Database database, std::string_view home, std::string_view viewName)
{
    const auto text = [](int length) {
        SqlType type;
        type.kind = TypeKind::Nvarchar;
        type.length = length;
        return type;
    };
    SqlType integer;
    integer.kind = TypeKind::Int;

    ObjectInfo object;
    object.database = database;
    object.kind = ObjectKind::View;
    object.name = kSysObjects;
    object.duckName = DuckNameIn(home, viewName);
    object.columns = {{"name", text(128), false, false, std::nullopt, {}},
                      {"id", integer, false, false, std::nullopt, {}},
                      {"xtype", text(2), false, false, std::nullopt, {true, true}}};
    return object;
}

std::string MakeView(Database database, const std::string& databases)
{
    return "CREATE VIEW " + SysObjectsOf(database).duckName +
           " AS SELECT table_name AS \"name\", CAST(table_oid AS INTEGER) AS \"id\", 'U' AS \"xtype\""
           " FROM duckdb_tables() WHERE database_name IN (" +
           databases +
           ") AND NOT internal"
           " UNION ALL SELECT view_name, CAST(view_oid AS INTEGER), 'V'"
           " FROM duckdb_views() WHERE database_name IN (" +
           databases +
           ") AND NOT internal"
           " AND view_name NOT IN ('sysobjects', 'sysobjects_system')";
}

}  // namespace

std::string DuckNameIn(std::string_view database, std::string_view name)
{
    return QuoteName(database) + ".\"main\"." + QuoteName(name);
}

std::string_view HomeOfNew(Database database)
{
    switch (database) {
        case Database::Account: return kWorkName;
        case Database::System: return kSystemName;
        case Database::Tempdb: return kTempdbName;
        case Database::Connection: break;
    }
    return "temp";
}

const ObjectInfo& SysObjectsOf(Database database)
{
    static const ObjectInfo account = DescribeSysObjects(Database::Account, kWorkName, kSysObjects);
    static const ObjectInfo tempdb = DescribeSysObjects(Database::Tempdb, kTempdbName, kSysObjects);
    // Not in the system database's own file, which holds nothing but what its scripts made.
    static const ObjectInfo system = DescribeSysObjects(Database::System, kWorkName, "sysobjects_system");
    return database == Database::Tempdb ? tempdb : database == Database::System ? system : account;
}

std::vector<std::string> MakeSysObjects()
{
    return {MakeView(Database::Account, "'account', 'work'"), MakeView(Database::Tempdb, "'tempdb'"),
            MakeView(Database::System, "'vossystem'")};
}

}  // namespace kavelin::embedded
