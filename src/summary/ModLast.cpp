#include "summary/ModLast.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "frame/Text.h"
#include "summary/EstimatePasses.h"
#include "summary/EstimateReversals.h"
#include "summary/EstimateSource.h"
#include "summary/EstimateTable.h"

#include <span>

namespace kavelin {

namespace {

constexpr const char* kConsigned = "N'受托代销'";

void Execute(const std::string& sql)
{
    Existing(ModPub().gcnnAccount).Execute(sql);
}

bool HasBusTypes(const EstimateRun& run)
{
    return !Trim(run.strBusTypes).empty();
}

void Insert(const EstimateRun& run, std::span<const EstimateStatement> pass, CalMethod calMethod)
{
    for (const EstimateStatement& statement : pass)
        Execute(InsertEstimates(run, statement, calMethod));
}

void UpdateMoneyFromSource(const EstimateRun& run, CalMethod calMethod)
{
    Execute(UpdateReceiptMoney(run, calMethod));
    Execute(UpdateVendorManagedMoney(run, calMethod));
}

void PassMonthReverse(const EstimateRun& run)
{
    if (HasBusTypes(run))
        Insert(run, MonthReversal(), CalMethod::Reversal);
}

void PassArrivalReverse(const EstimateRun& run)
{
    if (HasBusTypes(run))
        Insert(run, ArrivalReversal(), CalMethod::Reversal);
}

void PassOpenSettlement(EstimateRun& run)
{
    if (!HasBusTypes(run))
        return;
    run.strValueStyle = ToText(GetAccInfoValue("IA", "cValueStyle"));
    ReversalTables tables;
    tables.strBroughtBack = GetClientTableName("IA_tempAcc1");
    tables.strNotBroughtBack = GetClientTableName("IA_tempAcc2");
    const auto drop = [&] {
        Execute(DropWorkTable(tables.strBroughtBack));
        Execute(DropWorkTable(tables.strNotBroughtBack));
    };

    drop();
    Execute(SelectBroughtBack(run, tables));
    Execute(SelectNotBroughtBack(run, tables));
    Execute(InsertNotBroughtBack(run, tables));
    drop();
}

void PassConsignment(EstimateRun run)
{
    if (!run.blnEntrust)
        return;
    run.strBusTypes = kConsigned;
    Insert(run, Consignment(), CalMethod::Consignment);
    UpdateMoneyFromSource(run, CalMethod::Consignment);
}

void PassArrivalDifference(const EstimateRun& run)
{
    if (!HasBusTypes(run))
        return;
    Insert(run, ArrivalDifference(), CalMethod::ArrivalDifference);
    UpdateMoneyFromSource(run, CalMethod::Unused);  // finds no line: these keep the money of the ledger
}

}  // namespace

void CreateZgTable(const EstimateRun& run)
{
    const std::string digits = ToText(GetAccInfoValue("AA", "iStrsQuanDecDgt"));
    Execute(DropWorkTable(run.strZgTable));
    Execute(CreateWorkTable(run, digits));
}

void FillZgTable(EstimateRun& run, const std::string& cEstimate)
{
    if (EqualsNoCase(cEstimate, "月初回冲")) {
        PassMonthReverse(run);
        PassOpenSettlement(run);
        PassConsignment(run);
    } else if (EqualsNoCase(cEstimate, "单到回冲")) {
        PassArrivalReverse(run);
        PassOpenSettlement(run);
        PassConsignment(run);
    } else if (EqualsNoCase(cEstimate, "单到补差")) {
        // Here consignment is settled as the other types are.
        if (run.blnEntrust)
            run.strBusTypes += (run.strBusTypes.empty() ? "" : ", ") + std::string(kConsigned);
        PassArrivalDifference(run);
    }
}

void FinishZgTable(const EstimateRun& run)
{
    Execute(DropWorkTable(run.strZgSumTable));
    Execute(UpdateClosing(run));
    Execute(UpdateIssue(run));
    Execute(SelectDocumentLines(run));
    Execute(DeleteWithoutQuantity(run));
}

void DropZgTables(const EstimateRun& run)
{
    Execute(DropWorkTable(run.strZgTable));
    Execute(DropWorkTable(run.strZgSumTable));
}

}  // namespace kavelin
