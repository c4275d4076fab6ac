#include "demo/DemoCompany.h"

#include "demo/CompanyRows.h"
#include "demo/NewAccount.h"
#include "demo/RowSink.h"
#include "demo/Scripts.h"
#include "embedded/engine/BulkLoad.h"

#include <string>
#include <vector>

namespace kavelin::demo {

namespace {

class AccountSink : public RowSink {
  public:
    explicit AccountSink(const embedded::EmbeddedAccount& account) : objLoad(account) {}

    void BeginTable(std::string_view table, std::span<const std::string_view> columns) override
    {
        objLoad.Begin(std::string(table), std::vector<std::string>(columns.begin(), columns.end()));
    }

    void AddRow(std::span<const Value> row) override { objLoad.Append(row); }

    void Finish() override { objLoad.Commit(); }

  private:
    embedded::BulkLoad objLoad;
};

}  // namespace

void MakeDemoAccount(const std::filesystem::path& account, std::int64_t lines, std::uint64_t seed,
                     const Progress& progress)
{
    CheckLines(lines);

    NewAccount files(account);
    const std::shared_ptr<Connection> connection = ConnectTo(account);
    RunScripts(*connection, "rows");
    connection->Close();
    {
        AccountSink sink(files.Account());
        GenerateCompany(lines, seed, sink, progress);
    }
    files.Keep();
}

}  // namespace kavelin::demo
