// What a test orders to go wrong.
#pragma once

#include "support/tds/Tokens.h"

#include <chrono>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

enum class FaultKind {
    Drop,         // the connection ends without an answer
    DropInRows,   // it ends within the rows of the batch's first result, or where that would end
    Delay,        // the answer waits; a cancelled wait ends as a cancelled statement does
    Refuse,       // the batch is not run, the message is its answer
    RefuseLater,  // the batch is run, the message follows its results as that of one more statement
    Remark,       // no fault: the message, of severity 10 or less, comes with each statement's result
};

struct Fault {
    FaultKind kind = FaultKind::Drop;
    std::string text{};     // only batches that have this in them, without regard to case
    int skip = 0;           // so many of these pass before
    bool again = false;     // stays for all that follow, else for one batch
    std::int64_t rows = 0;  // DropInRows: so many are sent
    std::chrono::milliseconds delay{};
    ServerMessage message{};  // Refuse, RefuseLater, Remark
};

// "CREATE TABLE permission denied in database 'NAME'." for each batch with `text` in it.
Fault Denied(std::string text, const std::string& permission, const std::string& database);

// "Invalid object name 'NAME'." for each batch with that name in it.
Fault Missing(const std::string& name);

// "Warning: Null value is eliminated ..." with each statement, as a server warns of sums over nulls.
Fault NullWarnings();

// For all sessions of a server.
class Faults {
  public:
    void Order(Fault fault);
    void Clear();

    // The fault that this batch meets.
    std::optional<Fault> Take(std::string_view batch);

  private:
    std::mutex objMutex;
    std::vector<Fault> lstFaults;
};

}  // namespace kavelin::test::tds
