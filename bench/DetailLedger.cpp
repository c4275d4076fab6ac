// The detail ledger by cost item of one inventory with many lines in a year: the whole report, dialog and result
// table included, and within it the statement that runs the balance. The time of a line must not grow with their
// number.
#include "DemoAccount.h"
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/ReportRun.h"
#include "host/StatementLog.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace kavelin;
namespace fs = std::filesystem;

constexpr std::int64_t kDemoLines = 20'000;

// A copy of the demo account in which one inventory has `lines` lines of goods in transit, spread over ten months:
// of ten lines six bring goods in, at standard cost, and four take them out again.
std::string AccountWith(std::int64_t lines)
{
    const fs::path demo = bench::DemoAccount(kDemoLines);
    const fs::path path = fs::path(KAVELIN_BENCH_DATA) / "detail-ledger.kavelin";
    for (const char* ending : {".kavelin", ".system.kavelin"}) {
        fs::remove(fs::path(path).replace_extension(std::string(ending) + ".wal"));
        fs::copy_file(fs::path(demo).replace_extension(ending), fs::path(path).replace_extension(ending),
                      fs::copy_options::overwrite_existing);
    }

    const auto connection = embedded::NewConnection();
    connection->SetConnectionString("Embedded Account=" + path.string());
    connection->Open("", "", 0);
    const std::string number = "900000000 + a.n * 10000 + b.n * 1000 + c.n * 100 + d.n * 10 + e.n";
    const auto ifIn = [](const std::string& in, const std::string& out) {
        return "case when e.n < 6 then " + in + " else " + out + " end";
    };
    connection->Execute("create table Digit (n int)");
    connection->Execute("insert into Digit values (0), (1), (2), (3), (4), (5), (6), (7), (8), (9)");
    connection->Execute("insert into Inventory (cInvCode, cInvName) values (N'BENCH-01', N'BENCH-01')");
    connection->Execute(
        "insert into IA_EnSubsidiary (inid, cVouType, iSrcID, cSrcVouType, iYear, iMonth, dVouDate, dKeepDate,"
        " cAccounter, bRdFlag, iAInQuantity, iAOutQuantity, cInvCode, cWhCode, cBusType) select top " +
        std::to_string(lines) + " " + number + ", '05', " + number +
        ", '05', 2008, b.n + 1, '2008-01-05', '2008-01-05', N'bench', " + ifIn("1", "0") + ", " +
        ifIn("10 + d.n", "null") + ", " + ifIn("null", "4") + ", N'BENCH-01', '01', N'普通销售'" +
        " from Digit a, Digit b, Digit c, Digit d, Digit e");
    connection->Execute(
        "insert into IA_EnSubsidiary_STSub (iIAEnSubID, fInvStdPrice, fLaborStdPrice, fManuFixPrice, fManuVarPrice,"
        " fOmPrice) select AutoID, 50, 20, 5, 3, 2 from IA_EnSubsidiary where cInvCode = N'BENCH-01'");
    connection->Execute("drop table Digit");
    connection->Close();
    return path.string();
}

// Takes the time of the latest statement that joins the ledger with itself.
class BalanceTime : public host::StatementObserver {
  public:
    void Ended(const host::StatementRecord& record) override
    {
        if (record.sql.find("b.ino <=a.ino") != record.sql.npos)
            lstMilliseconds.push_back(record.milliseconds);
    }
    double Milliseconds() const { return bench::Median(lstMilliseconds); }

  private:
    std::vector<double> lstMilliseconds;
};

void Measure(std::int64_t lines, int rounds)
{
    host::Flags flags;
    flags.account = AccountWith(lines);
    const host::Config config = host::Config::Load(flags);
    const auto balance = std::make_shared<BalanceTime>();
    host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource({balance}));
    host::FilterInput input(host::TemplateOf("goods-cost-ledger"), host::ValuePolicy::Checked);
    input.Set("IA_EnSubsidiary.iYear=2008");
    input.Set("IA_EnSubsidiary.iMonth=1月..12月");
    input.Set("IA_EnSubsidiary.cInvCode=BENCH-01");

    std::vector<bench::Contender> contenders;
    contenders.push_back({"", [&] { run.Run(host::FindReport("goods-cost-ledger"), input); }});
    bench::MeasureInTurn(contenders, rounds);
    const auto rows =
        run.Account().OpenRecordset("select count(*) from " + run.TableName() + " where flag = 1",
                                    CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    if (ToInt32(rows->Field(0)) != lines)
        fmt::print(stderr, "{} of {} lines came out\n", ToText(rows->Field(0)), lines);
    const double whole = bench::Median(contenders.front().milliseconds);
    fmt::print("{:>8} {:>12.0f} {:>12.2f} {:>16.0f}\n", lines, whole,
               whole * 1000 / static_cast<double>(lines), balance->Milliseconds());
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const int rounds = argumentCount > 1 ? std::atoi(arguments[1]) : 5;
    if (rounds <= 0) {
        fmt::print(stderr, "bench-detail-ledger [ROUNDS]\n");
        return 2;
    }
    fmt::print("{:>8} {:>12} {:>12} {:>16}\n", "lines", "median ms", "us a line", "its balance ms");
    for (const std::int64_t lines : {10'000, 30'000, 100'000})
        Measure(lines, rounds);
}
