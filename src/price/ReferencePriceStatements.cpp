#include "price/ReferencePriceStatements.h"

#include "frame/Statement.h"

#include <algorithm>

namespace kavelin {

namespace {

constexpr std::string_view kMethods = "(N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')";

// ---- columns of a key of the table `t`

std::string KeyColumns(const CostingKey& key)
{
    return "t.cInvCode,t.cBatchia " + std::string(key.strKeyColumns);
}

// Where a free item may be null, that is the same as an empty one.
std::string NotNullFree()
{
    return Numbered(1, 10, ",isnull(t.cFree{},N'') as cfree{} ");
}

std::string GroupByNotNullFree()
{
    return Numbered(1, 10, ",isnull(t.cFree{},N'') ");
}

std::string Free()
{
    return Numbered(1, 10, ",t.cfree{} ");
}

// ---- tables that meet in an update

// The table to update with what tells whether its batches count.
std::string From(const std::string& strTable, const CostingKey& key)
{
    return "  from  " + strTable + " t  left join Inventory ON Inventory.cInvCode = t.cInvCode  " +
           std::string(key.strWarehouseJoin);
}

struct AverageKind {
    double number;
    std::string_view expression, rows;
};

constexpr AverageKind kAverageKinds[] = {
    {1, " avg(iIMoney/iINum)  ", "iINum <> 0 "},
    {2, " avg(iOMoney/iONum) ", "iONum <> 0 "},
    {3, " avg(iMoney/iNum) ", "iNum <> 0 "},
};

AverageKind AverageKindOf(double number)
{
    const auto kind =
        std::ranges::find_if(kAverageKinds, [&](const AverageKind& k) { return k.number == number; });
    return kind == std::end(kAverageKinds) ? AverageKind{} : *kind;
}

}  // namespace

std::string SelectKeys(const PriceTables& tables)
{
    return JoinLines({
        "select " + KeyColumns(tables.key) + NotNullFree(),
        " into " + tables.strKeyTable + " from " + tables.strWorkTable + " t ",
        " group by " + KeyColumns(tables.key) + Free(),
    });
}

std::string CopyLedger()
{
    return "select * into #IA_v_Subsidiary  from  IA_v_Subsidiary ";
}

std::string ClearBatchesOfOtherItems()
{
    return "update #IA_v_Subsidiary set cBatchia = null where  isnull(bCheckBatch,0)=0 and cBatchia is not null ";
}

std::string ClearBatchesOfOtherMethods(const CostingKey& key)
{
    return "update #IA_v_Subsidiary set cBatchia = case when isnull(bCheckBatch,0)=1 and  " +
           std::string(key.strLedgerMethod) + " in " + std::string(kMethods) +
           "  then IsNull(cbatchia, N'') else N'' end  ";
}

std::string SelectLastLines(const CostingKey& key, const LastCost& last)
{
    return JoinLines({
        "SELECT max(autoid) as autoid," + KeyColumns(key) + NotNullFree(),
        " into " + std::string(last.strLines) + " from #IA_v_Subsidiary t ",
        " where isnull(" + std::string(last.strCost) + ",0) <> 0 ",
        " group by " + KeyColumns(key) + GroupByNotNullFree(),
    });
}

std::string SelectLastCosts(const CostingKey& key, const LastCost& last)
{
    return JoinLines({
        "select t.autoid,t." + std::string(last.strCost) + "," + KeyColumns(key) + NotNullFree(),
        " into " + std::string(last.strCosts) + " from " + std::string(last.strLines) + " b ",
        " left join #IA_v_Subsidiary t on t.autoid = b.autoid ",
    });
}

std::string AddLastCosts(const PriceTables& tables)
{
    return "alter table " + tables.strKeyTable +
           " add iInCost decimal(38, 6) null , iOutCost decimal(38, 6) null";
}

std::string UpdateLastCosts(const PriceTables& tables, const LastCost& last)
{
    const std::string cost(last.strCost);

    return JoinLines({
        "update  t set " + cost + " = isnull(s." + cost + ",0)" + From(tables.strKeyTable, tables.key),
        "  inner join " + std::string(last.strCosts) + "  s on t.cinvCode = s.cinvCode  " +
            KeyJoins(tables.key),
    });
}

std::string SelectSummary(const PriceTables& tables, const std::string& strRange)
{
    return JoinLines({
        "select " + KeyColumns(tables.key),
        ",sum(iIMoney) as iIMoney, sum(iOMoney) as iOMoney ,sum(iINum) as iINum ,sum(iONum) as iONum,"
        "Sum(iNum) as iNum,sum(iMoney) as iMoney" +
            Free(),
        " into #Summary" + From(tables.strKeyTable, tables.key),
        "  inner join  IA_Summary  s  on  ISNULL(s.iDirect,0) <> 1 and  t.cinvCode = s.cinvCode  " +
            KeyJoins(tables.key),
        " where 1 = 1 " + strRange,
        " group by " + KeyColumns(tables.key) + Free(),
    });
}

std::string AddAverage(const PriceTables& tables)
{
    return "alter table " + tables.strKeyTable + " add AvgPrice decimal(38, 6) null";
}

std::string SelectAverages(const CostingKey& key, double dblAvgKind)
{
    const AverageKind kind = AverageKindOf(dblAvgKind);

    return JoinLines({
        " SELECT " + std::string(kind.expression) + " as AvgPrice,cInvCode,cBatchia " +
            std::string(key.strKeyColumns) + Free(),
        " into #Total  FROM  #Summary  t where " + std::string(kind.rows),
        " group by " + KeyColumns(key) + Free(),
    });
}

std::string UpdateAverages(const PriceTables& tables)
{
    return JoinLines({
        "  update t set AvgPrice = s.AvgPrice " + From(tables.strKeyTable, tables.key),
        "  inner join  #Total  s  on t.cinvCode = s.cinvCode " + KeyJoins(tables.key),
    });
}

std::string UpdateRowPrices(const PriceTables& tables)
{
    return JoinLines({
        " update t set ExPrice = isnull(s.iOutCost,0) , InPrice = isnull(s.iInCost,0) ,"
        "AvgPrice = isnull(s.AvgPrice,0) " +
            From(tables.strWorkTable, tables.key),
        "  inner join  " + tables.strKeyTable + " s  on t.cinvCode = s.cinvCode " + KeyJoinsBack(tables.key),
    });
}

std::string AtOpening(const std::string& strYear)
{
    return " and s.iyear =  " + strYear + "  and s.iMonth  = 0   ";
}

std::string BeforeMonth(const std::string& strYear, const std::string& strMonth)
{
    return " and s.iyear = " + strYear + " and s.iMonth  = " + strMonth + " - 1   ";
}

std::string SelectBalances(const PriceTables& tables, const std::string& strBalanceRow)
{
    return JoinLines({
        "select  t.cInvCode,t.cBatchia  " + std::string(tables.key.strKeyColumns) +
            "  ,max(s.iMoney)  AS iMoney ,max(s.iNum)  AS iNum " + Free(),
        " into #QC" + From(tables.strKeyTable, tables.key),
        " inner join  IA_V_Summary s  on t.cinvCode = s.cinvCode " + KeyJoins(tables.key),
        strBalanceRow + "GROUP BY " + KeyColumns(tables.key) + Free(),
    });
}

std::string UpdateBalancePrices(const PriceTables& tables)
{
    return JoinLines({
        "update t set Balanceunit = s.iMoney/s.iNum" + From(tables.strWorkTable, tables.key),
        "   left join  #QC  s  on t.cinvCode = s.cinvCode " + KeyJoinsBack(tables.key) + " and s.iNum <> 0 ",
    });
}

std::string DropLedgerTables()
{
    return "drop table #IA_v_Subsidiary, #InPrices_Befor, #ioutprice_Befor, #iInprice, #ioutprice";
}

std::string DropSummaryTables()
{
    return "drop table #QC, #Total, #Summary";
}

}  // namespace kavelin
