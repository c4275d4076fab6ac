#include "analysis/TurnoverStatements.h"

#include "frame/Statement.h"

#include <string_view>
#include <vector>

namespace kavelin {

namespace {

// Stock at the start of a day, in the ledger's rows: those of real months before it, and of the rows that
// were brought forward the differences and the direct shipments.
std::string StockBefore(std::string_view comparison, const std::string& date)
{
    return "where ((dKeepDate" + std::string(comparison) + "'" + date +
           "' And imonth <> 0 And CvouType <> N'33') OR"
           " (iMonth=0 AND (cVouType=N'34' or cbustype in (N'直运采购',N'直运销售')))) ";
}

constexpr std::string_view kStockMoney =
    "sum(cast(isnull(iAInPrice,0) - isnull(iAOutPrice,0) + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0)"
    " as decimal(38,2)))";

constexpr std::string_view kNoMoney = "cast(0 as decimal(38,2))";

std::string Quantity(const TurnoverRun& run)
{
    return "decimal(38," + run.strQuanDec + ")";
}

std::string NoQuantity(const TurnoverRun& run)
{
    return "cast(0 as " + Quantity(run) + ")";
}

std::string StockQuantity(const TurnoverRun& run)
{
    return "sum(cast(isnull(iAInQuantity,0) - isnull(iAOutQuantity,0) as " + Quantity(run) + "))";
}

std::string FromLedger(const TurnoverRun& run)
{
    return " from IA_Subsidiary left join " + run.strInventory +
           " on IA_Subsidiary.cInvCode = Inventory.cInvCode ";
}

// A working table in the ledger's place. The items' table joins where items are among the group columns.
std::string FromTable(const TurnoverRun& run, const std::string& table)
{
    const std::string from = " from " + table + " IA_Subsidiary ";
    if (!run.groups.blnGroupInv)
        return from;
    return from + "left join " + run.strInventory + " on IA_Subsidiary.cInvCode = Inventory.cInvCode ";
}

std::string GroupBy(const TurnoverRun& run)
{
    return run.strGroupCols.empty() ? "" : " Group By  " + run.strGroupCols;
}

// The issued money: a receipt's row holds none but what it takes back.
std::string IssuedMoney(const TurnoverRun& run)
{
    return run.blnIndustrial ? "sum(cast(case when brdflag=1 then isnull(iAOutPrice,0)"
                               " else isnull(iAOutPrice,0) + isnull(iCreditDifCost,0) end as decimal(38,2)))"
                             : "sum(cast(isnull(iAOutPrice,0) - isnull(iDebitDifCost,0) as decimal(38,2)))";
}

std::string StockOfRows(const TurnoverRun& run, std::string_view measures, const std::string& where)
{
    return JoinLines({
        "insert into " + run.tables.rows,
        " select " + run.strSelectCols + std::string(measures) + "," + NoQuantity(run) + "," +
            std::string(kNoMoney) + "," + NoQuantity(run) + "," + std::string(kNoMoney),
        FromLedger(run),
        where + run.strWhere + GroupBy(run),
    });
}

}  // namespace

TurnoverTables TurnoverTablesOf(const std::string& suffix)
{
    return {
        "tempdb..IA_InvTurnPjkcDetail" + suffix,
        "tempdb..IA_InvTurnPjkc" + suffix,
        "tempdb..IA_InvTurnRate" + suffix,
        "tempdb..IA_InvTurnRateRe" + suffix,
    };
}

void ComposeTurnoverRun(TurnoverRun& run)
{
    std::vector<std::string_view> columns;
    if (run.groups.blnGroupDep)
        columns.push_back("IA_Subsidiary.cDepcode");
    if (run.groups.blnGroupWh)
        columns.push_back("IA_Subsidiary.cWhcode");
    if (run.groups.blnGroupInvClass)
        columns.push_back(run.groups.blnGroupInv ? "INVENTORY.cInvCCode" : "cInvCCode");
    if (run.groups.blnGroupInv)
        columns.push_back("Inventory.cInvCode");

    run.strSelectCols.clear();
    for (const std::string_view column : columns)
        run.strSelectCols += std::string(column) + ",";
    run.strGroupCols =
        run.strSelectCols.substr(0, run.strSelectCols.empty() ? 0 : run.strSelectCols.size() - 1);

    const auto month = [](const std::string& date) { return std::to_string(MonthOf(ToDate(date))); };
    run.strDateClause =
        run.strWhere + " and dKeepDate >= '" + run.strDateFrom + "' and dKeepDate <= '" + run.strDateTo + "'";
    run.strMonthClause =
        run.strWhere + " and imonth >= " + month(run.strDateFrom) + " and imonth <= " + month(run.strDateTo);
}

std::string SelectLastPostingDate(const std::string& year)
{
    return "SELECT MAX(dKeepDate) as MAXDate FROM IA_Subsidiary where iyear=" + year;
}

std::string SelectIssues(const TurnoverRun& run)
{
    // By quantity an estimate's reversal and its return are no issues.
    const std::string types =
        run.blnByAmount ? "" : " and IA_Subsidiary.cVoutype <> N'24' and IA_Subsidiary.cVoutype <> N'30' ";
    const std::string business = run.strBusWhere.empty() ? "" : " AND " + run.strBusWhere;

    return JoinLines({
        " select " + run.strSelectCols,
        std::string(kNoMoney) + " as Qcye," + std::string(kNoMoney) + " as Qmye," + NoQuantity(run) +
            " as PjkcQu," + std::string(kNoMoney) + " as PjkcPr,",
        "sum(cast(isnull(iAOutQuantity,0) as " + Quantity(run) + ")) as jzsl,",
        IssuedMoney(run) + " as jzje",
        " into " + run.tables.rows,
        FromLedger(run),
        " where 1=1 " + run.strDateClause + types + business + GroupBy(run),
    });
}

std::string InsertOpening(const TurnoverRun& run)
{
    return StockOfRows(run, std::string(kStockMoney) + "," + std::string(kNoMoney),
                       StockBefore("<", run.strDateFrom));
}

std::string InsertClosing(const TurnoverRun& run)
{
    return StockOfRows(run, std::string(kNoMoney) + "," + std::string(kStockMoney),
                       StockBefore("<=", run.strDateTo));
}

std::string SelectOpeningWeights(const TurnoverRun& run)
{
    return JoinLines({
        " select " + run.strSelectCols,
        StockQuantity(run) + " as iQuantity,",
        std::string(kStockMoney) + " as iPrice,",
        "cast(" + std::to_string(run.dblDays) + " as decimal(38,2)) as jc,",
        "cast(NULL as datetime) as ddate,",
        NoQuantity(run) + " as Qhj," + std::string(kNoMoney) + " as Phj",
        " into " + run.tables.detail,
        FromLedger(run),
        StockBefore("<", run.strDateFrom) + run.strWhere + GroupBy(run),
    });
}

std::string InsertMovementWeights(const TurnoverRun& run)
{
    return JoinLines({
        "insert into " + run.tables.detail,
        " select " + run.strSelectCols,
        StockQuantity(run) + ",",
        std::string(kStockMoney) + ",",
        "cast(cast('" + run.strDateTo + "' as datetime)-dkeepdate as int)+0.5,",
        "dKeepDate,",
        NoQuantity(run) + "," + std::string(kNoMoney),
        FromLedger(run),
        " where imonth<>0  " + run.strDateClause + " Group By " + run.strSelectCols + "dkeepdate",
    });
}

std::string SelectAverages(const TurnoverRun& run)
{
    const std::string days = "cast(" + std::to_string(run.dblDays) + " as Decimal(38,2))";
    return JoinLines({
        " select " + run.strSelectCols,
        "sum(iQuantity*jc) as Qhj,",
        "sum(iPrice*jc) as Phj,",
        "cast(sum(iQuantity*jc)/" + days + " as " + Quantity(run) + ") as PjkcQu,",
        "cast(sum(iPrice*jc)/" + days + " as decimal(38,2)) as PjkcPr",
        " into " + run.tables.average,
        FromTable(run, run.tables.detail) + GroupBy(run),
    });
}

std::string InsertAverages(const TurnoverRun& run)
{
    return JoinLines({
        "insert into " + run.tables.rows,
        " select " + run.strSelectCols + std::string(kNoMoney) + "," + std::string(kNoMoney) +
            ",sum(PjkcQu),sum(PjkcPr)," + NoQuantity(run) + "," + std::string(kNoMoney),
        FromTable(run, run.tables.average) + GroupBy(run),
    });
}

std::string SelectRates(const TurnoverRun& run)
{
    return JoinLines({
        " select " + run.strSelectCols,
        "sum(Qcye) as Qcye,sum(Qmye) as Qmye,sum(PjkcQu) as PjkcQu,sum(PjkcPr) as PjkcPr,"
        "sum(jzsl) as jzsl,sum(jzje) as jzje,",
        "cast(case when sum(PjkcPr) >0 then sum(jzje)/cast(sum(PjkcPr) as float) else 0 end"
        " as decimal(38,6)) as turnRatePr,",
        "cast(case when sum(PjkcQu) >0 then sum(jzsl)/sum(PjkcQu) else 0 end as " + Quantity(run) +
            ") as turnRateQu,",
        "cast(0 as float) as zzSldays,cast(0 as float) as zzPrdays",
        " into " + run.tables.rates,
        FromTable(run, run.tables.rows) + GroupBy(run),
    });
}

std::string UpdateDays(const TurnoverRun& run)
{
    const std::string days = std::to_string(run.dblDays);
    return JoinLines({
        "update " + run.tables.rates,
        " set zzSldays=case when cast(turnRateQu as " + Quantity(run) + ")>0 then cast(" + days +
            "/turnRateQu as decimal(38,2)) else 0 end,",
        "zzPrdays=case when cast(turnRatePr as decimal(38,2))>0 then cast(" + days +
            "/turnRatePr as decimal(38,2)) else 0 end",
    });
}

std::string SelectTurnover(const TurnoverRun& run, const std::string& table)
{
    const TurnoverGroups& by = run.groups;
    const auto column = [](bool shown, std::string_view source, std::string_view name) {
        return (shown ? std::string(source) : "NULL") + " as [" + std::string(name) + "],";
    };
    const auto measure = [&](std::string_view byAmount, const std::string& byQuantity,
                             std::string_view name) {
        return (run.blnByAmount ? std::string(byAmount) : byQuantity) + " as [" + std::string(name) + "]";
    };
    const std::string quantity = "decimal(32," + run.strQuanDec + ")";
    const std::string_view itemClass = by.blnGroupInv ? "Inventory.cInvCCode" : "inturn.cInvCCode";

    std::string joins;
    if (by.blnGroupWh)
        joins += " Left join Warehouse on Warehouse.cWhcode=inturn.cWhcode ";
    if (by.blnGroupDep)
        joins += " Left join Department on Department.cDepcode=inturn.cDepcode ";
    if (by.blnGroupInv)
        joins +=
            " Left join Inventory on InVentory.cInvcode=inturn.cInvcode "
            " Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode";

    return JoinLines({
        "select N'" + run.strDateFrom + "' as [起始日期],N'" + run.strDateTo + "' as [结束日期],",
        column(by.blnGroupDep, "inturn.cDepcode", "部门_编码") +
            column(by.blnGroupDep, "Department.cDepName", "部门_名称"),
        column(by.blnGroupWh, "inturn.cwhcode", "仓库_编码") +
            column(by.blnGroupWh, "Warehouse.cWhname", "仓库_名称"),
        column(by.blnGroupInvClass, itemClass, "存货_分类"),
        column(by.blnGroupInv, "Inventory.cInvCode", "存货_编码") +
            column(by.blnGroupInv, "Inventory.cInvName", "存货_名称") +
            column(by.blnGroupInv, "Inventory.cInvAddCode", "存货_代码"),
        column(by.blnGroupInv, "Inventory.cInvStd", "存货_规格") +
            column(by.blnGroupInv, "ComputationUnit.CComUnitName", "存货_单位"),
        "inturn.qcye as [分析_期初余额],inturn.qmye as [分析_期末余额],",
        measure("cast(PjkcPr as decimal(32,2))", "cast(PjkcQu as " + quantity + ")", "分析_平均库存") + ",",
        measure("cast(jzje as decimal(32,2))", "cast(0 as float)", "分析_出库成本") + ",",
        measure("cast(0 as float)", "cast(jzsl as " + quantity + ")", "分析_出库数量") + ",",
        measure("turnRatePr", "turnRateQu", "分析_周转率") + "," +
            measure("zzPrdays", "zzSldays", "分析_周转天数"),
        " into " + table,
        " from " + run.tables.rates + " inturn " + joins,
    });
}

}  // namespace kavelin
