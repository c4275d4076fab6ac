#include "cli/RunReport.h"

#include "cli/Work.h"
#include "host/HostSettingsStore.h"
#include "host/chart/ReportChart.h"

namespace kavelin::cli {

namespace {

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& select)
{
    return connection.OpenRecordset(select, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

void WriteView(const host::ReportView& view, host::ReportRun& run, RowsTarget& target, const Work& work)
{
    const host::ViewSelects selects = view.Of(run.Account(), run.TableName());
    const std::unique_ptr<Recordset> rows = Open(run.Account(), selects.rows);
    const std::unique_ptr<Recordset> totals = Open(run.Account(), selects.totals);
    work.EndProgress();
    target.WriteView(*work.Stoppable(*rows), *totals, selects.columns, run.Login().LanguageRegion());
}

void WriteChart(const host::Report& report, host::ReportRun& run, const host::AccountLogin& login,
                host::OutputFile& file)
{
    host::ChartContext context;
    const std::string language = run.Login().LanguageRegion();
    context.language = language;
    context.subtitle = run.Subject();
    host::HostSettingsStore settings(login.settingsFile);
    context.TakeLimits(settings);
    file.Stream() << host::DrawChart(report, *run.OpenResult(), context);
    file.Finish();
}

}  // namespace

void WriteResult(const host::Report& report, host::ReportRun& run, RowsTarget& target, const Work& work)
{
    const std::unique_ptr<Recordset> rows = run.OpenResult();
    work.EndProgress();
    target.SetTableColumns(run.TableColumns());
    target.SetFit(report.table);
    target.SetLines(report.lines);
    target.SetMarks(report.marks);
    target.Write(*work.Stoppable(*rows));
}

void RunReport(const host::Report& report, const host::FilterInput& input, const host::AccountLogin& login,
               RowsTarget& target, const ReportTask& task)
{
    Work work({task.showSql, report.statements});
    host::ReportRun run(login, work.Connections(), work.Messages());
    run.Run(report, input);
    if (task.view)
        WriteView(*task.view, run, target, work);
    else
        WriteResult(report, run, target, work);
    target.Finish();
    if (task.chart)
        WriteChart(report, run, login, *task.chart);
}

}  // namespace kavelin::cli
