// A report from its values to rows on stdout or in a file.
#pragma once

#include "cli/OutputFlags.h"
#include "host/FilterInput.h"
#include "host/ReportRun.h"
#include "host/Reports.h"

namespace kavelin::cli {

// Finishes the target. Throws what the report and the output throw; the result table is gone in any case.
void RunReport(const host::Report& report, const host::FilterInput& input, const host::AccountLogin& login,
               RowsTarget& target, bool showSql);

}  // namespace kavelin::cli
