// The reports of one company on a server and in an embedded account, run by run.
#pragma once

#include "demo/profiles/Profile.h"
#include "host/ReportRun.h"
#include "server/ReportCases.h"
#include "server/ScratchDatabase.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace kavelin::test::server {

struct SuiteOptions {
    ServerAccess access;
    std::int64_t lines = 0;        // of each company's ledger
    std::filesystem::path folder;  // for the embedded accounts and the statement logs
    std::function<void(const std::string&)> say;
};

struct SuiteResult {
    std::size_t runs = 0;
    std::size_t statements = 0;  // that the server took
    std::size_t rows = 0;        // of all results
    std::size_t differences = 0;
    std::size_t refusals = 0;  // runs that both sides refused in the same words
};

struct RunDifferences {
    std::vector<std::string> differences;
    std::string refusal;   // with which both sides refused the run; empty if they ran it
    std::size_t rows = 0;  // of the embedded result
};

// Runs the report on both and compares what comes.
RunDifferences CompareRuns(host::ReportRun& server, host::ReportRun& embedded, const ReportCase& each);

// Makes the company of the profile, copies it to the server, runs every report there and here, says each
// difference and drops what it made. Throws what a copy throws.
SuiteResult RunSuite(const demo::Profile& profile, const SuiteOptions& options);

}  // namespace kavelin::test::server
