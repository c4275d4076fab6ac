#include "demo/CompanyRows.h"

#include "demo/Random.h"
#include "demo/Simulation.h"
#include "demo/books/Books.h"
#include "demo/company/Company.h"
#include "demo/company/Stockroom.h"
#include "demo/profiles/ProfileRows.h"
#include "frame/Errors.h"

#include <string>

namespace kavelin::demo {

namespace {

constexpr std::int64_t kMinimumLines = 2000;
// Documents have several lines for each of the ledger; all of them are numbered in 32 bits.
constexpr std::int64_t kMaximumLines = 200'000'000;

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

void GenerateCompany(const Profile& profile, std::int64_t lines, std::uint64_t seed, RowSink& sink,
                     const Progress& progress)
{
    CheckLines(lines);
    const Company company = MakeCompany(lines, profile);
    WriteProfile(profile, company, lines, seed, sink);
    WriteMasterData(company, sink);
    Stockroom stock(company);
    Random random(seed);
    Books books(profile, company, stock, lines, sink);
    Business business{profile, company, stock, books, random};
    PlayYear(business, lines, progress);
    sink.Finish();
}

}  // namespace kavelin::demo
