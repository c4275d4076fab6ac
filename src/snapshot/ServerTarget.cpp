#include "snapshot/CopyTarget.h"

#include "embedded/engine/LoadValues.h"
#include "frame/Guards.h"
#include "snapshot/InsertText.h"
#include "snapshot/Literal.h"

#include <algorithm>
#include <utility>

namespace kavelin::snapshot {

namespace {

std::vector<std::string> NamesOf(const Columns& columns)
{
    std::vector<std::string> names;
    for (const embedded::ColumnInfo* column : columns)
        names.push_back(column->name);
    return names;
}

// While it lives, the connection gives the table's identity its numbers itself.
class IdentityInsert {
  public:
    IdentityInsert(Connection& connection, std::string table)
        : cnnAccount(connection), strTable(std::move(table))
    {
        cnnAccount.Execute("set identity_insert " + strTable + " on");
    }
    ~IdentityInsert()
    {
        // Nothing can be done here about a connection that is lost; the setting went with it.
        IgnoreErrors([&] { cnnAccount.Execute("set identity_insert " + strTable + " off"); });
    }
    IdentityInsert(const IdentityInsert&) = delete;
    IdentityInsert& operator=(const IdentityInsert&) = delete;

  private:
    Connection& cnnAccount;
    std::string strTable;
};

class InsertWriter : public RowWriter {
  public:
    InsertWriter(Connection& connection, const SchemaObject& table, const Columns& columns)
        : cnnAccount(connection), arrColumns(columns), objText(table.name, NamesOf(columns))
    {
        if (std::ranges::any_of(columns, [](const auto* column) { return column->identity; }))
            objIdentity = std::make_unique<IdentityInsert>(connection, table.name);
        arrConstants.resize(columns.size());
    }

    void Append(std::span<const Value> row) override
    {
        for (std::size_t i = 0; i < row.size(); ++i)
            arrConstants[i] = Constant(row[i], *arrColumns[i]);
        objText.Add(arrConstants);
        if (objText.IsFull())
            cnnAccount.Execute(objText.Take());
    }

    void Finish() override
    {
        if (!objText.IsEmpty())
            cnnAccount.Execute(objText.Take());
        objIdentity.reset();
    }

  private:
    static std::string Constant(const Value& value, const embedded::ColumnInfo& column)
    {
        if ((value.IsNull() || value.IsEmpty()) && !column.nullable)
            throw BadCell(column.name, "the column takes no NULL.");
        try {
            return Literal(ValueFor(value, column.type));
        } catch (const embedded::BadValue& bad) {
            throw BadCell(column.name, bad.what());
        }
    }

    Connection& cnnAccount;
    Columns arrColumns;
    InsertText objText;
    std::unique_ptr<IdentityInsert> objIdentity;  // null for a table that numbers nothing
    std::vector<std::string> arrConstants;
};

class Server : public CopyTarget {
  public:
    explicit Server(std::shared_ptr<Connection> connection) : cnnAccount(std::move(connection)) {}

    Connection& Account() override { return *cnnAccount; }

    std::unique_ptr<RowWriter> Open(const SchemaObject& table, const Columns& columns) override
    {
        return std::make_unique<InsertWriter>(*cnnAccount, table, columns);
    }

    bool MayDropViews() const override { return false; }

  private:
    std::shared_ptr<Connection> cnnAccount;
};

}  // namespace

std::unique_ptr<CopyTarget> ServerTarget(std::shared_ptr<Connection> connection)
{
    return std::make_unique<Server>(std::move(connection));
}

}  // namespace kavelin::snapshot
