#include "embedded/bind/BindSupport.h"

#include "embedded/Plan.h"
#include "embedded/SqlError.h"
#include "embedded/bind/BoundText.h"
#include "frame/Text.h"

#include <vector>

namespace kavelin::embedded {

namespace {

constexpr SqlType kInt{TypeKind::Int, 0, 0, 0};
constexpr SqlType kBit{TypeKind::Bit, 0, 0, 0};
constexpr SqlType kTinyint{TypeKind::Tinyint, 0, 0, 0};
constexpr SqlType kSmallint{TypeKind::Smallint, 0, 0, 0};
constexpr SqlType kFloat{TypeKind::Float, 0, 0, 0};
constexpr SqlType kMoney{TypeKind::Money, 0, 0, 0};
constexpr SqlType kDatetime{TypeKind::Datetime, 0, 0, 0};

SqlType Text(int length)
{
    return {TypeKind::Nvarchar, length, 0, 0};
}

SqlType Decimal(int precision, int scale)
{
    return {TypeKind::Decimal, 0, precision, scale};
}

ColumnInfo Column(const char* name, SqlType type)
{
    ColumnInfo column;
    column.name = name;
    column.type = type;
    return column;
}

ColumnInfo NotNull(ColumnInfo column)
{
    column.nullable = false;
    return column;
}

ColumnInfo Identity(const char* name)
{
    ColumnInfo column = NotNull(Column(name, kInt));
    column.identity = true;
    return column;
}

ColumnInfo Folded(ColumnInfo column)
{
    column.facts = {true, true};
    return column;
}

ColumnInfo Default(ColumnInfo column, const char* value)
{
    column.defaultSql = value;
    return column;
}

class FakeCatalog : public Catalog {
  public:
    FakeCatalog()
    {
        Add(Database::Account, ObjectKind::Table, "Stock",
            {Identity("AutoID"), NotNull(Folded(Column("cInvCode", Text(60)))), Column("cWhCode", Text(10)),
             Column("iMonth", kTinyint), Column("iYear", kSmallint), Column("iPzID", kInt),
             NotNull(Column("bRdFlag", kBit)), Column("iQuantity", kFloat), Column("iPrice", kMoney),
             Column("iCost", Decimal(38, 6)), Column("iRate", Decimal(38, 2)), Column("dKeepDate", kDatetime),
             NotNull(Column("dVouDate", kDatetime)), Column("cMemo", Text(200))});
        Add(Database::Account, ObjectKind::Table, "Item",
            {NotNull(Column("cInvCode", Text(60))), Column("cInvName", Text(255)), Column("bInCost", kBit),
             NotNull(Column("iid", kInt))});
        Add(Database::Account, ObjectKind::View, "VStock",
            {Column("cInvCode", Text(60)), Column("iQuantity", kFloat)});
        Add(Database::Tempdb, ObjectKind::Table, "W",
            {Identity("ino"), Folded(Column("cInvCode", Text(60))),
             Column("cCode", {TypeKind::Varchar, 4, 0, 0}), Column("iNum", Decimal(38, 8)),
             Column("nMoney", kMoney), Column("dDate", kDatetime),
             Default(NotNull(Column("bBatch", kBit)), "false"), NotNull(Column("bFlag", kBit))});
        Add(Database::Tempdb, ObjectKind::Table, "Item", {Column("cInvCode", Text(60))});
        Add(Database::System, ObjectKind::Table, "UA_Period",
            {Column("iYear", kSmallint), Column("iID", kTinyint), Column("dBegin", kDatetime),
             Column("dEnd", kDatetime)});
        Add(Database::Connection, ObjectKind::Table, "#t",
            {Column("id", kInt), Folded(Column("name", Text(20)))});
        const std::vector<ColumnInfo> sysobjects{Column("name", Text(128)), Column("id", kInt),
                                                 Column("xtype", Text(2))};
        Add(Database::Account, ObjectKind::View, "sysobjects", sysobjects);
        Add(Database::Tempdb, ObjectKind::View, "sysobjects", sysobjects);
    }

    const ObjectInfo* Find(Database database, std::string_view name) const override
    {
        for (const ObjectInfo& object : objObjects)
            if (object.database == database && EqualsNoCase(object.name, name))
                return &object;
        return nullptr;
    }

    std::string DuckNameForNew(Database database, std::string_view name) const override
    {
        constexpr const char* databases[] = {"account", "vossystem", "tempdb", "connection"};
        return databases[static_cast<std::size_t>(database)] + std::string(".") + std::string(name);
    }

    std::string LocaleId() const override { return "zh-CN"; }

  private:
    void Add(Database database, ObjectKind kind, const char* name, std::vector<ColumnInfo> columns)
    {
        ObjectInfo object;
        object.database = database;
        object.kind = kind;
        object.name = name;
        object.duckName = DuckNameForNew(database, name);
        object.columns = std::move(columns);
        objObjects.push_back(std::move(object));
    }

    std::vector<ObjectInfo> objObjects;
};

BoundStatement BindLast(std::string_view sql)
{
    const std::vector<StatementPtr> batch = ParseBatch(sql);
    const Statement& last = *batch.back();
    if (const auto* test = std::get_if<IfExistsStatement>(&last.node))
        return BindRows(*test->query, sql, TestCatalog());
    return Bind(last, sql, TestCatalog());
}

// The tree of the only item of a select.
std::string ItemOf(std::string_view expression)
{
    const std::string text = Bound("select " + std::string(expression) + " as x from Stock");
    const std::size_t begin = text.find("x: ");
    if (begin == std::string::npos)
        return text;
    return text.substr(begin + 3, text.find("\nfrom") - begin - 3);
}

}  // namespace

const Catalog& TestCatalog()
{
    static const FakeCatalog catalog;
    return catalog;
}

std::string Bound(std::string_view sql)
{
    try {
        return ToText(BindLast(sql));
    } catch (const SqlError& error) {
        return std::to_string(error.Number()) + ": " + error.what();
    }
}

std::string ErrorOf(std::string_view sql)
{
    try {
        BindLast(sql);
    } catch (const SqlError& error) {
        const Place place = error.Where();
        return std::to_string(error.Number()) + " at [" +
               std::string(sql.substr(place.offset, place.length)) + "]: " + error.what();
    }
    return "";
}

std::string BoundValue(std::string_view expression)
{
    return ItemOf(expression);
}

std::string TypeOfValue(std::string_view expression)
{
    const std::string item = ItemOf(expression);
    const std::string type = item.substr(0, item.find(" = "));
    return type.substr(0, type.find(' '));
}

std::string BoundWhere(std::string_view condition)
{
    const std::string text = Bound("select 1 as x from Stock where " + std::string(condition));
    const std::size_t begin = text.find("\nwhere ");
    return begin == std::string::npos ? text : text.substr(begin + 7);
}

}  // namespace kavelin::embedded
