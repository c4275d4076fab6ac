// Proves that the books of an account reconcile: the ledgers with the monthly summary, with the documents and
// with the master data.
//
//   for (const CheckResult& result : CheckAccount(connection))
//       if (!result.Passed()) ...
#pragma once

#include "frame/Connection.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

struct Counted {
    std::int64_t count;
    std::string what;  // "costing keys", or "costing key" for one
};

struct CheckResult {
    std::string_view name;   // for scripts: "balance"
    std::string_view claim;  // "opening + receipts - issues = closing"
    std::vector<Counted> counted;

    // The first kShownDifferences rows that break the claim, with their keys.
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> differences;
    bool more = false;  // there are further ones

    bool Passed() const { return differences.empty(); }
};

inline constexpr std::size_t kShownDifferences = 10;

// Told what is checked next. An error that it throws stops the checks.
using CheckProgress = std::function<void(std::string_view claim)>;

// All checks, in a fixed order. They read the account and leave nothing in it but work tables of the
// connection (`#`), which are dropped at the end. Throws DatabaseError, also for an account that lacks one of
// the tables.
std::vector<CheckResult> CheckAccount(Connection& connection, const CheckProgress& progress = {});

}  // namespace kavelin::demo
