// Runs of the summary on a host, for its tests.
#pragma once

#include "support/RecordingHost.h"

#include <optional>
#include <string>
#include <vector>

namespace kavelin::test {

// Parameters of the account; an empty optional is a row that is missing.
struct SummaryAccount {
    std::string start = "2008-01-01";
    std::optional<std::string> levels = "223";
    std::optional<std::string> saleType = "true";
    std::optional<std::string> entrustedStyle = "销售发票";
};

// Has the made-up connections answer with these parameters; also names the result table and the directions.
void Prepare(RecordingHost& host, const SummaryAccount& account, const std::vector<FakeField>& fields);

// The texts that were sent, without the reads of parameters by which permissions and the start are asked for.
std::vector<std::string> StatementsOf(const RecordingHost& host);

// What each statement does, a word each: "drop", "create", "opening", "movement", "+VIEW" for documents, with
// "(direct)" behind it where only direct business is read, "-RULE" for a delete, "classes", "warehouses",
// "unit", "free", "?cDispLevel" for a parameter that is read.
std::string StepsOf(const RecordingHost& host);

}  // namespace kavelin::test
