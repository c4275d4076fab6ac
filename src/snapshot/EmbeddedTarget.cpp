#include "snapshot/CopyTarget.h"

#include "embedded/engine/BulkLoad.h"

#include <utility>

namespace kavelin::snapshot {

namespace {

class BulkWriter : public RowWriter {
  public:
    BulkWriter(const embedded::EmbeddedAccount& account, const SchemaObject& table, const Columns& columns)
        : objLoad(account)
    {
        std::vector<std::string> names;
        for (const embedded::ColumnInfo* column : columns)
            names.push_back(column->name);
        objTable = &objLoad.Open(table.name, names);
    }

    void Append(std::span<const Value> row) override
    {
        try {
            objTable->Append(row);
        } catch (const embedded::BulkLoadError& error) {
            if (error.Column().empty())
                throw;
            // "Table T, row 5, column C: what is wrong": the copy knows the row by its key.
            const std::string message = error.what();
            const std::string place = "column " + error.Column() + ": ";
            const std::size_t at = message.find(place);
            throw BadCell(error.Column(), at == message.npos ? message : message.substr(at + place.size()));
        }
    }

    void Finish() override { objLoad.Commit(); }

  private:
    embedded::BulkLoad objLoad;
    embedded::BulkTable* objTable = nullptr;
};

class Embedded : public CopyTarget {
  public:
    Embedded(std::shared_ptr<Connection> connection, std::shared_ptr<embedded::EmbeddedAccount> account)
        : cnnAccount(std::move(connection)), objAccount(std::move(account))
    {
    }

    Connection& Account() override { return *cnnAccount; }

    std::unique_ptr<RowWriter> Open(const SchemaObject& table, const Columns& columns) override
    {
        return std::make_unique<BulkWriter>(*objAccount, table, columns);
    }

    bool MayDropViews() const override { return true; }

  private:
    std::shared_ptr<Connection> cnnAccount;
    std::shared_ptr<embedded::EmbeddedAccount> objAccount;
};

}  // namespace

std::unique_ptr<CopyTarget> EmbeddedTarget(std::shared_ptr<Connection> connection,
                                           std::shared_ptr<embedded::EmbeddedAccount> account)
{
    return std::make_unique<Embedded>(std::move(connection), std::move(account));
}

}  // namespace kavelin::snapshot
