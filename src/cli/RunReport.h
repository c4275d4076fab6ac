// A report from its values to rows on stdout or in a file.
#pragma once

#include "cli/OutputFlags.h"
#include "cli/Work.h"
#include "host/FilterInput.h"
#include "host/ReportRun.h"
#include "host/Reports.h"
#include "host/definition/ReportDefinition.h"
#include "host/output/OutputFile.h"

namespace kavelin::cli {

struct ReportTask {
    bool showSql = false;
    const host::ReportView* view =
        nullptr;                        // what the report's definition makes of the result; null: the result
    host::OutputFile* chart = nullptr;  // takes the report's picture, which must have one; null: none
};

// Finishes the target and the chart. Throws what the report and the output throw; the result table is gone in
// any case.
void RunReport(const host::Report& report, const host::FilterInput& input, const host::AccountLogin& login,
               RowsTarget& target, const ReportTask& task = {});

// The rows of the latest run as the report's table shows them.
void WriteResult(const host::Report& report, host::ReportRun& run, RowsTarget& target, const Work& work);

}  // namespace kavelin::cli
