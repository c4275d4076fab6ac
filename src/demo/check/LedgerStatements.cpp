#include "demo/check/LedgerStatements.h"

#include "frame/Statement.h"

namespace kavelin::demo {

namespace {

// Rows of direct business never lie in stock.
constexpr std::string_view kDirect = "left(isnull(a.cBusType, N''), 2) = N'直运'";
constexpr std::string_view kNotDirect = "left(isnull(a.cBusType, N''), 2) <> N'直运'";

// A row shown beyond the ten tells that there are more.
constexpr std::string_view kSelect = "select top 11 ";

std::string KeyNames(const CheckFacts& facts)
{
    std::string names = "iYear, cInvCode";
    if (facts.blnByWarehouse)
        names += ", cWhCode";
    if (facts.blnByDepartment)
        names += ", cDepCode";
    for (const int number : facts.arrFreeItems)
        names += ", cFree" + std::to_string(number);
    return names + ", cBatchIA";
}

// The columns of KeyNames from a ledger row `a` with its item `i` and warehouse `w`.
std::string KeyOfLedgerRow(const CheckFacts& facts)
{
    std::string key = "a.iYear, a.cInvCode";
    if (facts.blnByWarehouse)
        key += ", isnull(a.cWhCode, N'') as cWhCode";
    if (facts.blnByDepartment)
        key += ", isnull(a.cDepCode, N'') as cDepCode";
    for (const int number : facts.arrFreeItems) {
        const std::string free = "cFree" + std::to_string(number);
        key += ", case when i.bCheckFree" + std::to_string(number) + " = 1 then isnull(a." + free +
               ", N'') else N'' end as " + free;
    }
    const std::string method =
        facts.blnByWarehouse || facts.blnByDepartment ? "w.cWhValueStyle" : "i.cValueType";
    return key + ", case when i.bCheckBatch = 1 and " + method +
           " in (N'全月平均法', N'移动平均法', N'先进先出法', N'后进先出法')"
           " then isnull(a.cBatchIA, N'') else N'' end as cBatchIA";
}

std::string KeyOfSummaryRow(const CheckFacts& facts)
{
    std::string key = "iYear, cInvCode";
    if (facts.blnByWarehouse)
        key += ", isnull(cWhCode, N'') as cWhCode";
    if (facts.blnByDepartment)
        key += ", isnull(cDepCode, N'') as cDepCode";
    for (const int number : facts.arrFreeItems)
        key += ", isnull(cFree" + std::to_string(number) + ", N'') as cFree" + std::to_string(number);
    return key + ", isnull(cBatchIA, N'') as cBatchIA";
}

}  // namespace

std::string GatherLedger(const CheckFacts& facts)
{
    return JoinLines({
        "select " + KeyNames(facts) + ", iMonth,",
        "       sum(inQuantity) as inQuantity, sum(inAmount) as inAmount,",
        "       sum(outQuantity) as outQuantity, sum(outAmount) as outAmount, sum(difference) as difference",
        "  into #CheckLedger",
        "  from (select " + KeyOfLedgerRow(facts) + ", a.iMonth,",
        "               isnull(a.iAInQuantity, 0) as inQuantity, isnull(a.iAInPrice, 0) as inAmount,",
        "               isnull(a.iAOutQuantity, 0) as outQuantity, isnull(a.iAOutPrice, 0) as outAmount,",
        "               isnull(a.iDebitDifCost, 0) - isnull(a.iCreditDifCost, 0) as difference",
        "          from IA_Subsidiary a",
        "               left join Inventory i on i.cInvCode = a.cInvCode",
        "               left join Warehouse w on w.cWhCode = a.cWhCode",
        "         where a.cVouType <> N'33' and " + std::string(kNotDirect) + ") x",
        " group by " + KeyNames(facts) + ", iMonth",
    });
}

std::string GatherSummary(const CheckFacts& facts)
{
    return JoinLines({
        "select " + KeyOfSummaryRow(facts) + ", iMonth,",
        "       isnull(iINum, 0) as inQuantity, isnull(iIMoney, 0) as inAmount,",
        "       isnull(iONum, 0) as outQuantity, isnull(iOMoney, 0) as outAmount,",
        "       isnull(iNum, 0) as quantity, isnull(iMoney, 0) as amount, isnull(iDif, 0) as difference",
        "  into #CheckSummary",
        "  from IA_Summary",
        " where isnull(iDirect, 0) = 0 and isnull(iPeriod, 0) = 0",
    });
}

std::string CountCostingKeys(const CheckFacts& facts)
{
    return "select count(*) from (select distinct " + KeyNames(facts) + " from #CheckSummary) x";
}

std::string BrokenBalances(const CheckFacts& facts)
{
    const std::string names = KeyNames(facts);
    return JoinLines({
        std::string(kSelect) + names + ", iMonth, cast(sum(quantity) as decimal(20,4)) as quantity,",
        "       sum(amount) as amount",
        "  from (select " + names + ", iMonth, quantity - inQuantity + outQuantity as quantity,",
        "               amount - inAmount + outAmount as amount",
        "          from #CheckSummary where iMonth > 0",
        "        union all",
        "        select " + names + ", iMonth + 1, 0 - quantity, 0 - amount",
        "          from #CheckSummary where iMonth < (select max(iMonth) from #CheckSummary)) x",
        " group by " + names + ", iMonth",
        "having cast(sum(quantity) as decimal(20,4)) <> 0 or sum(amount) <> 0",
        " order by " + names + ", iMonth",
    });
}

std::string SummaryDifferences(const CheckFacts& facts)
{
    const std::string names = KeyNames(facts);
    return JoinLines({
        std::string(kSelect) + names + ", iMonth, cast(sum(inQuantity) as decimal(20,4)) as inQuantity,",
        "       sum(inAmount) as inAmount, cast(sum(outQuantity) as decimal(20,4)) as outQuantity,",
        "       sum(outAmount) as outAmount, sum(difference) as difference",
        "  from (select " + names + ", iMonth, inQuantity, inAmount, outQuantity, outAmount, difference",
        "          from #CheckLedger where iMonth > 0",
        // An opening is a balance and no movement.
        "        union all",
        "        select " + names +
            ", iMonth, inQuantity - outQuantity, inAmount - outAmount, 0, 0, difference",
        "          from #CheckLedger where iMonth = 0",
        "        union all",
        "        select " + names + ", iMonth, 0 - quantity, 0 - amount, 0, 0, 0 - difference",
        "          from #CheckSummary where iMonth = 0",
        "        union all",
        "        select " + names + ", iMonth, 0 - inQuantity, 0 - inAmount, 0 - outQuantity, 0 - outAmount,",
        "               0 - difference",
        "          from #CheckSummary where iMonth > 0",
        // The summary tells where the differences stand, the ledger how they moved.
        "        union all",
        "        select " + names + ", iMonth + 1, 0, 0, 0, 0, difference",
        "          from #CheckSummary where iMonth < (select max(iMonth) from #CheckSummary)) x",
        " group by " + names + ", iMonth",
        "having cast(sum(inQuantity) as decimal(20,4)) <> 0 or sum(inAmount) <> 0",
        "    or cast(sum(outQuantity) as decimal(20,4)) <> 0 or sum(outAmount) <> 0 or sum(difference) <> 0",
        " order by " + names + ", iMonth",
    });
}

std::string SummaryRowsMissingOrDouble(const CheckFacts& facts)
{
    const std::string names = KeyNames(facts);
    return JoinLines({
        std::string(kSelect) + names + ", iMonth, sum(summaryRows) as summaryRows",
        "  from (select " + names + ", iMonth, 0 as summaryRows from #CheckLedger",
        "        union all",
        "        select " + names + ", iMonth, 1 from #CheckSummary) x",
        " group by " + names + ", iMonth",
        "having sum(summaryRows) <> 1",
        " order by " + names + ", iMonth",
    });
}

std::string MonthsLeftOut(const CheckFacts& facts)
{
    const std::string names = KeyNames(facts);
    return JoinLines({
        std::string(kSelect) + names + ", min(iMonth) as firstMonth, max(iMonth) as lastMonth,",
        "       count(*) as summaryRows",
        "  from #CheckSummary",
        " group by " + names,
        "having count(*) <> max(iMonth) - min(iMonth) + 1",
        "    or max(iMonth) <> (select max(iMonth) from #CheckSummary)",
        " order by " + names,
    });
}

std::string DirectDifferences()
{
    return JoinLines({
        std::string(kSelect) +
            "iYear, cInvCode, iMonth, cast(sum(inQuantity) as decimal(20,4)) as inQuantity,",
        "       sum(inAmount) as inAmount, cast(sum(outQuantity) as decimal(20,4)) as outQuantity,",
        "       sum(outAmount) as outAmount",
        "  from (select a.iYear, a.cInvCode, a.iMonth,",
        "               isnull(a.iAInQuantity, 0) as inQuantity, isnull(a.iAInPrice, 0) as inAmount,",
        "               isnull(a.iAOutQuantity, 0) as outQuantity, isnull(a.iAOutPrice, 0) as outAmount",
        "          from IA_Subsidiary a",
        "         where " + std::string(kDirect),
        "        union all",
        "        select iYear, cInvCode, iMonth, 0 - isnull(iINum, 0), 0 - isnull(iIMoney, 0),",
        "               0 - isnull(iONum, 0), 0 - isnull(iOMoney, 0)",
        "          from IA_Summary",
        "         where isnull(iDirect, 0) <> 0 and isnull(iPeriod, 0) = 0) x",
        " group by iYear, cInvCode, iMonth",
        "having cast(sum(inQuantity) as decimal(20,4)) <> 0 or sum(inAmount) <> 0",
        "    or cast(sum(outQuantity) as decimal(20,4)) <> 0 or sum(outAmount) <> 0",
        " order by iYear, cInvCode, iMonth",
    });
}

std::string CountDirectMonths()
{
    return JoinLines({
        "select count(*)",
        "  from (select distinct a.iYear, a.cInvCode, a.iMonth from IA_Subsidiary a where " +
            std::string(kDirect) + ") x",
    });
}

}  // namespace kavelin::demo
