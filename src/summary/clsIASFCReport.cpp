#include "summary/clsIASFCReport.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "frame/Text.h"
#include "summary/SumPool.h"
#include "summary/SumSteps.h"
#include "summary/SumWhere.h"

#include <memory>
#include <span>

namespace kavelin {

namespace {

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

// The length of a receipt-issue class code of that many levels, 0 for all. The account keeps a digit for each
// level.
std::int16_t ReadRdLength(Connection& connection, std::int16_t intRdGrade)
{
    const auto rows = Open(connection, "Select cValue from AccInformation Where cName= N'cDispLevel'");
    const std::string levels = ToText(rows->Field(0));
    rows->Close();
    if (intRdGrade < 0)
        throw Error("A receipt-issue class has no negative number of levels.");
    return SumDigits(intRdGrade == 0 ? levels : Left(levels, static_cast<std::size_t>(intRdGrade)));
}

void Run(Connection& connection, std::span<const SumStep> steps, const SumSettings& settings,
         const SumPool& pool, const std::string& where)
{
    for (const SumStep& step : steps)
        if (step.applies(settings))
            connection.Execute(step.statement(pool, where, step));
}

void ReadLedger(Connection& connection, const SumArguments& arguments, const SumPeriod& period,
                const SumPool& pool)
{
    const LedgerWheres wheres = BuildLedgerWheres(arguments, period);
    connection.Execute(InsertOpening(pool, wheres.strOpening));
    connection.Execute(InsertMovement(pool, wheres.strMovement));
}

void ReadDocuments(Connection& connection, const SumArguments& arguments, const SumPeriod& period,
                   const SumPool& pool)
{
    const std::string where = BuildUnpostedWhere(arguments, period);
    const auto style = Open(connection, SelectSumSetting("cEnDispAccountStyle"));
    const auto saleType = Open(connection, SelectSumSetting("bSaleType"));
    Run(connection, UnpostedSumSteps(), {arguments.bytDirect == 1, saleType.get(), style.get()}, pool, where);
    saleType->Close();
    style->Close();
}

}  // namespace

Value clsIASFCReport::GetSum(const SumArguments& arguments)
{
    Connection& connection = Existing(ModPub().gcnnAccount);
    SumPool pool = {.strTable = tmpTable, .strIssueText = {}, .strReceiptText = {}};
    connection.Execute(DropPool(pool));

    const SumPeriod period = PeriodOf(arguments, ToText(GetAccInfoValue("IA", "dIAStartDate")));
    pool.lngRdLength = ReadRdLength(connection, arguments.intRdGrade);
    connection.Execute(CreatePool(pool));
    pool.strIssueText = Resources().GetResString("Orvo.IA.CHHSSQL.12528");
    pool.strReceiptText = Resources().GetResString("Orvo.IA.CHHSSQL.13500");

    if (arguments.bAccount)
        ReadLedger(connection, arguments, period, pool);
    if (arguments.BUnAccount)
        ReadDocuments(connection, arguments, period, pool);
    Run(connection, ClosingSumSteps(), {.blnDirect = arguments.bytDirect == 1}, pool, "");

    connection.Execute(UpdateClassNames(pool));
    connection.Execute(UpdateWarehouseNames(pool));
    if (arguments.cAssComUnitNum != 0)
        connection.Execute(UpdateSecondUnit(pool, arguments.cAssComUnitNum));
    if (arguments.bytFree == 1)
        connection.Execute(ClearUnusedFreeItems(pool));
    return {};
}

}  // namespace kavelin
