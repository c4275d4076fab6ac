// All generated rows of the demo company.
#pragma once

#include "demo/DemoCompany.h"
#include "demo/RowSink.h"

#include <cstdint>

namespace kavelin::demo {

// Throws Error for fewer than MinimumLines() lines and for more than a ledger can number.
void CheckLines(std::int64_t lines);

// Gives every table of the demo company, but those whose rows are written out in data/rows, to the sink.
// `lines` as CheckLines wants them.
void GenerateCompany(const Profile& profile, std::int64_t lines, std::uint64_t seed, RowSink& sink,
                     const Progress& progress);

}  // namespace kavelin::demo
