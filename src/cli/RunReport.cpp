#include "cli/RunReport.h"

#include "cli/Work.h"

namespace kavelin::cli {

void RunReport(const host::Report& report, const host::FilterInput& input, const host::AccountLogin& login,
               RowsTarget& target, bool showSql)
{
    Work work({showSql, report.statements});
    host::ReportRun run(login, work.Connections(), work.Messages());
    run.Run(report, input);
    const std::unique_ptr<Recordset> rows = run.OpenResult();
    work.EndProgress();
    target.SetTableColumns(report.tableColumns);
    target.Write(*work.Stoppable(*rows));
    target.Finish();
}

}  // namespace kavelin::cli
