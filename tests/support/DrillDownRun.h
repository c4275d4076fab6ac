// Runs of a drill-down on a recording host, and what they left in its log.
#pragma once

#include "support/RecordingHost.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

// The lines that begin with one of the texts, each with LF behind it.
std::string LinesOf(RecordingHost& host, const std::vector<std::string_view>& beginnings);

// What the suite was asked: objects made by name, and the members of them.
std::string SuiteLines(RecordingHost& host);

// Statements that look for a year or a sign, each with LF behind it.
std::string VoucherQueries(RecordingHost& host);

// The row that a statement gives.
void Answer(RecordingHost& host, const std::string& sql, const Value& first);

// The lines that are lost where the line `failing` fails.
struct LostLines {
    std::string_view failing;  // begins so, or so with the line before it and LF
    std::set<std::string> lost;
};

// Lets each event of a run fail once and expects that nothing is thrown and that the lines in `markers` are
// there nevertheless, but those that `exceptions` take out.
void ExpectEachFailureIsPassedOver(const std::function<void(RecordingHost&)>& run,
                                   const std::vector<std::string>& markers,
                                   const std::vector<LostLines>& exceptions);

}  // namespace kavelin::test
