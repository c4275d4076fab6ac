#include "analysis/ModCinTurn.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

// Days from the first to the last, both counted; a range without a day counts as one.
long DaysOf(const std::string& first, const std::string& last)
{
    const auto range = std::chrono::floor<std::chrono::days>(ToDate(last)) -
                       std::chrono::floor<std::chrono::days>(ToDate(first));
    const long days = static_cast<long>(range.count()) + 1;
    return days == 0 ? 1 : days;
}

void Replace(const std::string& table, const std::string& select)
{
    Connection& account = Existing(ModPub().gcnnAccount);
    DropTableQuiet(account, table);
    account.Execute(select);
}

}  // namespace

void ComputeTurnover(TurnoverRun& run)
{
    run.blnIndustrial = EqualsNoCase(ToText(GetAccInfoValue("AA", "cSysVersion")), "工业");
    run.strQuanDec = std::to_string(ToInt16(GetAccInfoValue("AA", "iStrsQuanDecDgt")));
    run.strInventory = Existing(ModPub().gobjLedgerParams).InventoryQualifier() + "Inventory";
    run.dblDays = DaysOf(run.strDateFrom, run.strDateTo);
    ComposeTurnoverRun(run);
    Connection& account = Existing(ModPub().gcnnAccount);

    Replace(run.tables.rows, SelectIssues(run));
    account.Execute(InsertOpening(run));
    account.Execute(InsertClosing(run));

    Replace(run.tables.detail, SelectOpeningWeights(run));
    account.Execute(InsertMovementWeights(run));
    Replace(run.tables.average, SelectAverages(run));
    account.Execute(InsertAverages(run));

    Replace(run.tables.rates, SelectRates(run));
    account.Execute(UpdateDays(run));
}

}  // namespace kavelin
