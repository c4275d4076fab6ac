// The running balance of a detail ledger: every line gets the sums of all lines up to it, in one statement
// that joins the ledger with itself. Over n lines the join meets n * n / 2 pairs; the engine answers with
// windows instead, so the time of a line must not grow with their number.
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using namespace kavelin;

constexpr int kMeasures = 24;  // quantity and 23 amounts

// `piece` for every measure, its number in place of {0}, with `between` them.
std::string ForEachMeasure(const char* piece, const char* between = "")
{
    std::string text;
    for (int k = 1; k <= kMeasures; ++k)
        text += (k == 1 ? "" : between) + fmt::format(fmt::runtime(piece), k);
    return text;
}

// A ledger of `lines` lines, each with an opening, receipts and dispatches of every measure.
void MakeLedger(embedded::EmbeddedConnection& connection, std::int64_t lines)
{
    connection.Execute("create table Detail (ino int identity(1,1), imonth int" +
                       ForEachMeasure(", E_{0} float null, R_{0} float null, D_{0} float null") + ")");
    connection.Execute("create table Digit (n int)");
    connection.Execute("insert into Digit values (0), (1), (2), (3), (4), (5), (6), (7), (8), (9)");
    connection.Execute("insert into Detail (imonth" + ForEachMeasure(", R_{0}, D_{0}") + ") select top " +
                       std::to_string(lines) + " a.n + 1" +
                       ForEachMeasure(", b.n + {0} * 0.37, case when c.n < 5 then c.n * 0.11 end") +
                       " from Digit a, Digit b, Digit c, Digit d, Digit e");
}

// `order` is the condition that b comes no later than a.
std::string Balance(const std::string& order)
{
    return "update Detail set " + ForEachMeasure("E_{0} = s.isum{0}", ", ") +
           " from Detail inner join (select a.ino" +
           ForEachMeasure(", sum(isnull(b.E_{0}, 0) + isnull(b.R_{0}, 0) - isnull(b.D_{0}, 0)) as isum{0}") +
           " from Detail a, Detail b where " + order + " group by a.ino) s on s.ino = Detail.ino";
}

class Ledger {
  public:
    explicit Ledger(std::int64_t lines) : lngLines(lines)
    {
        namespace fs = std::filesystem;
        const fs::path path = fs::path(KAVELIN_BENCH_DATA) / "running-balance.kavelin";
        fs::create_directories(path.parent_path());
        for (const char* ending : {".kavelin", ".system.kavelin", ".kavelin.wal", ".system.kavelin.wal"})
            fs::remove(fs::path(path).replace_extension(ending));
        embedded::CreateAccount(path.string());
        objConnection = embedded::NewConnection();
        objConnection->SetConnectionString("Embedded Account=" + path.string());
        objConnection->Open("", "", 0);
        MakeLedger(*objConnection, lines);
    }

    // Milliseconds of the statement in the middle one of `rounds`.
    double Measure(const std::string& order, int rounds)
    {
        std::vector<bench::Contender> contenders;
        contenders.push_back({"", [&] { lngChanged = objConnection->Execute(Balance(order)); }});
        bench::MeasureInTurn(contenders, rounds);
        if (lngChanged != lngLines)
            fmt::print(stderr, "{} of {} lines were changed\n", lngChanged, lngLines);
        return bench::Median(contenders.front().milliseconds);
    }

  private:
    std::int64_t lngLines;
    std::int64_t lngChanged = 0;
    std::unique_ptr<embedded::EmbeddedConnection> objConnection;
};

void Print(const char* form, std::int64_t lines, double milliseconds)
{
    fmt::print("{:<32} {:>8} {:>12.1f} {:>12.2f}\n", form, lines, milliseconds,
               milliseconds * 1000 / static_cast<double>(lines));
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const int rounds = argumentCount > 1 ? std::atoi(arguments[1]) : 5;
    if (rounds <= 0) {
        fmt::print(stderr, "bench-running-balance [ROUNDS]\n");
        return 2;
    }
    fmt::print("{:<32} {:>8} {:>12} {:>12}\n", "", "lines", "median ms", "us a line");
    for (const std::int64_t lines : {10'000, 30'000, 100'000})
        Print("as the engine answers it", lines, Ledger(lines).Measure("b.ino <= a.ino", rounds));
    // The same condition in words that the engine leaves as they stand.
    for (const std::int64_t lines : {1'000, 3'000, 10'000})
        Print("as the join that it is", lines, Ledger(lines).Measure("not b.ino > a.ino", 1));
}
