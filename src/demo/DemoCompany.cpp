#include "demo/DemoCompany.h"

#include "demo/CompanyRows.h"
#include "demo/NewAccount.h"
#include "demo/RowSink.h"
#include "demo/Scripts.h"
#include "embedded/engine/BulkLoad.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::demo {

namespace {

class AccountTable : public RowTable {
  public:
    explicit AccountTable(embedded::BulkTable& table) : objTable(table) {}
    void Add(std::span<const Value> row) override { objTable.Append(row); }

  private:
    embedded::BulkTable& objTable;
};

class AccountSink : public RowSink {
  public:
    explicit AccountSink(const embedded::EmbeddedAccount& account) : objLoad(account) {}

    RowTable& Open(std::string_view table, std::span<const std::string_view> columns) override
    {
        embedded::BulkTable& opened =
            objLoad.Open(std::string(table), std::vector<std::string>(columns.begin(), columns.end()));
        return *lstTables.emplace_back(std::make_unique<AccountTable>(opened));
    }

    void Finish() override { objLoad.Commit(); }

  private:
    embedded::BulkLoad objLoad;
    std::vector<std::unique_ptr<AccountTable>> lstTables;
};

}  // namespace

void MakeDemoAccount(const std::filesystem::path& account, const Profile& profile, std::int64_t lines,
                     std::uint64_t seed, const Progress& progress)
{
    CheckLines(lines);
    MakeWhole(account, [&](const std::filesystem::path& path) {
        NewAccount files(path);
        const std::shared_ptr<Connection> connection = ConnectTo(path);
        RunScripts(*connection, "rows");
        connection->Close();
        {
            AccountSink sink(files.Account());
            GenerateCompany(profile, lines, seed, sink, progress);
        }
        files.Keep();
    });
}

}  // namespace kavelin::demo
