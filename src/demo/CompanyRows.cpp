#include "demo/CompanyRows.h"

#include "demo/Company.h"
#include "demo/Ledger.h"
#include "demo/LedgerLine.h"
#include "demo/Stock.h"
#include "frame/Errors.h"

#include <string>

namespace kavelin::demo {

namespace {

constexpr std::int64_t kMinimumLines = 600;
constexpr std::int64_t kMaximumLines = 1'000'000'000;

}  // namespace

std::int64_t MinimumLines()
{
    return kMinimumLines;
}

void CheckLines(std::int64_t lines)
{
    if (lines < kMinimumLines || lines > kMaximumLines)
        throw Error("A demo ledger has " + std::to_string(kMinimumLines) + " to " +
                    std::to_string(kMaximumLines) + " lines, not " + std::to_string(lines) + ".");
}

void GenerateCompany(std::int64_t lines, std::uint64_t seed, RowSink& sink, const Progress& progress)
{
    CheckLines(lines);
    const Company company = MakeCompany(lines);
    WriteMasterData(company, sink);
    std::vector<Place> places = MakePlaces(company);
    WriteLedger(places, lines, seed, sink, progress);
    WriteSummary(places, kLedgerYear, sink);
    sink.Finish();
}

}  // namespace kavelin::demo
