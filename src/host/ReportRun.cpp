#include "host/ReportRun.h"

#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "frame/Value.h"
#include "host/HostCallArgs.h"
#include "host/HostErrors.h"
#include "host/HostFilter.h"
#include "host/HostMachine.h"
#include "host/HostRowArgs.h"

#include <chrono>
#include <utility>

namespace kavelin::host {

namespace {

AccountingPeriod Today()
{
    const auto day = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    const std::chrono::year_month_day date(day);
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month()))};
}

AccountingPeriod PeriodOf(const AccountLogin& login, Connection& connection)
{
    if (login.year != 0 && login.month != 0)
        return {login.year, login.month};
    AccountingPeriod period = LatestPeriod(connection, login.accountId, login.year).value_or(Today());
    if (login.year != 0)
        period.year = login.year;
    if (login.month != 0)
        period.month = login.month;
    return period;
}

// Takes the thread's platform away again, and with it what a report left open.
class PlatformUse {
  public:
    explicit PlatformUse(std::shared_ptr<Platform> platform) { UsePlatform(std::move(platform)); }
    ~PlatformUse() { UsePlatform(nullptr); }
    PlatformUse(const PlatformUse&) = delete;
    PlatformUse& operator=(const PlatformUse&) = delete;
};

bool TableExists(Connection& connection, const std::string& table)
{
    const auto rows =
        connection.OpenRecordset("select name from sysobjects where name = N'" + table + "' and xtype = 'U'",
                                 CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return !rows->Eof();
}

}  // namespace

ReportRun::ReportRun(AccountLogin login, ConnectionSource connections, MessageSink onMessage)
    : objConnections(std::move(connections)),
      cnnHost(OpenLogin(login, objConnections, "host")),
      objOnMessage(std::move(onMessage))
{
    const AccountingPeriod period = PeriodOf(login, *cnnHost);
    objLogin =
        std::make_shared<HostLogin>(LoginSettings{login.ConnectionText(), login.accountId, login.user,
                                                  login.password, login.language, period.year, period.month},
                                    std::make_shared<HostAuthService>(login.users, login.user));

    const auto show = [this](const ShownMessage& message) {
        lstMessages.push_back(message);
        if (objOnMessage)
            objOnMessage(message);
    };
    const auto open = [this](const std::string& title, Recordset& rows) {
        if (objOnShow)
            objOnShow(title, rows);
    };
    objPlatform = std::make_shared<HostPlatform>(PlatformSettings{objConnections, show, login.accountId,
                                                                  login.language, std::move(login.users),
                                                                  std::move(login.settingsFile), open});
}

ReportRun::~ReportRun()
{
    DropResultQuiet();
}

void ReportRun::Run(const Report& report, const FilterInput& input)
{
    Run(report, input, [](LateBound&) {});
}

void ReportRun::RunAndOpen(const Report& report, const FilterInput& input, std::int64_t row,
                           const std::string& action, ViewerSink onShow)
{
    objOnShow = std::move(onShow);
    Run(report, input, [&](LateBound& object) { OpenRow(object, row, action); });
    objOnShow = nullptr;
}

void ReportRun::OpenRow(LateBound& report, std::int64_t row, const std::string& action)
{
    const auto rows = OpenResult();
    if (row < 1 || row > rows->RecordCount())
        throw UsageError("The result has no row " + std::to_string(row) + "; it has " +
                         std::to_string(rows->RecordCount()) + ".");
    for (std::int64_t before = 1; before < row; ++before)
        rows->MoveNext();
    const auto argument = std::make_shared<HostRowArgs>(objLogin, action, std::make_shared<HostRow>(*rows));
    rows->Close();
    report.Call("Execute", {std::static_pointer_cast<LateBound>(argument)});
}

void ReportRun::Run(const Report& report, const FilterInput& input, const Afterwards& afterwards)
{
    DropResultQuiet();
    lstMessages.clear();
    objReport = &report;
    strTable = "KavelinResult_" + HexDigits(RandomGuid());

    const auto filter =
        std::make_shared<HostFilter>(std::string(report.filterId), input.Template(), objLogin);
    filter->Fill(input);
    const auto call = std::make_shared<HostCallArgs>(strTable, filter, objLogin->LanguageRegion());

    const PlatformUse use(objPlatform);
    const auto object = CreateObject("Kavelin." + std::string(report.className));
    object->Call("GETSQL", {HostObjectPtr(call)});
    if (!TableExists(*cnnHost, strTable))
        throw ReportError(lstMessages.empty() ? "The report failed without a message and left no result."
                                              : "The report failed: " + lstMessages.back().text);
    afterwards(*object);
}

std::unique_ptr<Recordset> ReportRun::OpenResult()
{
    if (strTable.empty())
        throw Error("No report has run.");
    const std::string order =
        objReport->orderBy.empty() ? "" : " order by " + std::string(objReport->orderBy);
    return cnnHost->OpenRecordset("select * from " + strTable + order, CursorLocation::Client,
                                  CursorType::Static, LockType::ReadOnly);
}

void ReportRun::DropResultQuiet() noexcept
{
    if (strTable.empty())
        return;
    try {
        objConnections.Resume();
        cnnHost->Execute("drop table " + strTable);
    } catch (const std::exception&) {
        // The report may have failed before it made the table.
    }
    strTable.clear();
}

}  // namespace kavelin::host
