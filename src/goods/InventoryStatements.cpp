#include "goods/InventoryStatements.h"

#include "frame/Statement.h"
#include "goods/CostItemStatements.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

constexpr std::string_view kPrefixes[] = {"Q", "R", "D", "E"};

constexpr std::string_view kSourceLine = "IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype";

// The last four are there for conditions of the filter.
std::string FromLedger(std::int32_t lngUnitNumber)
{
    return EndLines({" from IA_EnSubsidiary"}) + JoinGoodsLookups() + JoinCostSources() +
           EndLines({
               " left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode",
               JoinGoodsUnit(lngUnitNumber),
               "left join DispatchLists a on a.iDLsID = IA_EnSubsidiary.iSrcID"
               " and IA_EnSubsidiary.cSrcVouType in ('05','06','5','6')",
               "left join DispatchList b on a.dlid = b.DLID",
               "left join rdrecords32 c on c.AutoID = IA_EnSubsidiary.iSrcID"
               " and  IA_EnSubsidiary.cSrcVouType in ('3201')",
               "left join rdrecord32 d on c.id = d.id",
           });
}

// Sums of a period over the lines of a direction; the quantity doesn't look at it.
std::vector<std::string> MovementSums(const CostSide& side)
{
    std::vector<std::string> sums = {
        "sum(" + std::string(side.quantity) + ") as " + QuantityName(side.prefix),
    };
    for (const CostColumn& column : CostItems())
        sums.push_back("sum(case when IA_EnSubsidiary.bRdFlag=" + std::string(side.flag) + " then " +
                       LineAmount(column) + " else null end) as " + AmountName(side.prefix, column));
    return sums;
}

// "E_Qty=(isnull(Q_Qty,0)+isnull(R_Qty,0)-isnull(D_Qty,0))" for the quantity and each amount of the items.
std::vector<std::string> EndBalances()
{
    const auto opening = FilledColumns("Q"), received = FilledColumns("R");
    const auto dispatched = FilledColumns("D"), end = FilledColumns("E");
    std::vector<std::string> balances;
    for (std::size_t i = 0; i < end.size(); ++i)
        balances.push_back(end[i] + "=(" + SumOf({opening[i], received[i]}) + "-isnull(" + dispatched[i] +
                           ",0))");
    return balances;
}

// Of a dispatch note its number stands in the first column, of a sales issue in the second.
constexpr std::string_view kDocumentNumbers[] = {
    "case when ia_ensubsidiary.cvoutype=N'3201' then cast(null as nvarchar(30))"
    " else ia_ensubsidiary.cvoucode end as cDLCode",
    "case when ia_ensubsidiary.cvoutype=N'3201' then ia_ensubsidiary.cvoucode"
    " else cast(null as nvarchar(30)) end as cCode",
};

std::string SelectAttributes()
{
    return EndLines({
        "select " + std::string(kDocumentNumbers[0]) + ",",
        std::string(kDocumentNumbers[1]) + ",",
        "ia_ensubsidiary.cWhCode,w.cWhName,inventory.cInvCCode,ic.cInvCName,",
        "ia_ensubsidiary.cInvCode,inventory.cInvName,inventory.cInvAddCode,AA_Enum.EnumName,"
        "ia_ensubsidiary.cVouType,",
        "inventory.cInvStd,inventory.cComUnitCode,ia_ensubsidiary.cBusType,ia_ensubsidiary.cRdCode,r.cRdName,",
        "cc.cCCCode,cc.cCCName,ia_ensubsidiary.cCusCode,c.cCusName,ia_ensubsidiary.cAccDep,d.cDepName,",
        "ia_ensubsidiary.dKeepDate,ia_ensubsidiary.dvoudate as dOutDate,ia_ensubsidiary.dtAudit,"
        "ia_ensubsidiary.cAccounter,",
        "ia_ensubsidiary.cItem_class,ia_ensubsidiary.cItemCName,ia_ensubsidiary.cItemCode,"
        "ia_ensubsidiary.cName,",
        Numbered(1, 16, "ia_ensubsidiary.cDefine{},"),
        Numbered(22, 37, "ia_ensubsidiary.cDefine{},"),
        Numbered(1, 16, "inventory.cInvDefine{},"),
        Numbered(1, 10, "ia_ensubsidiary.cFree{},"),
        "ia_ensubsidiary.cMemo,ia_ensubsidiary.ipzid,",
    });
}

// The quantity and the amounts that were chosen, of each prefix in turn; without any nothing at all.
std::string ChosenColumns(const std::vector<CostColumn>& chosen)
{
    if (chosen.empty())
        return "";
    std::string text;
    for (const std::string_view prefix : kPrefixes) {
        std::string names = QuantityName(prefix) + ",";
        for (const CostColumn& column : chosen)
            names += AmountName(prefix, column) + ",";
        text += EndLines({names});
    }
    return text;
}

// A row is shown if anything of it is not zero.
std::string HasBalance(std::string_view prefix)
{
    std::string condition = QuantityName(prefix) + "<>0";
    for (const CostColumn& total : CostTotals())
        condition += " or " + AmountName(prefix, total) + "<>0";
    return condition;
}

}  // namespace

std::string CreateInventoryTable(const std::string& table)
{
    std::vector<std::string> columns = {
        "IA_EnSubsidiary.iSrcID",
        "IA_EnSubsidiary.cSRcVoutype",
        "IA_EnSubsidiary.dKeepDate",
    };
    const auto typed = [&](std::string_view type, const std::string& name) {
        columns.push_back(std::string(type) + " as " + name);
    };
    for (const std::string_view prefix : kPrefixes) {
        typed(kQuantityType, QuantityName(prefix));
        for (const CostColumn& column : CostColumns()) {
            typed(kPerUnitType, PerUnitName(prefix, column));
            typed(column.type, AmountName(prefix, column));
        }
    }
    Append(columns, {
                        "cast(IA_EnSubsidiary.iMonth as int) as iMonth",
                        "cast(IA_EnSubsidiary.iYear as int) as iYear",
                    });

    return EndLines({"select top 0"}) + ListLines(columns) +
           JoinLines({
               " into " + table,
               " from IA_EnSubsidiary",
               "Where 1 = 2",
           });
}

std::string InsertInventoryOpening(const std::string& table, std::int32_t lngUnitNumber,
                                   const std::string& where)
{
    return EndLines({
               "insert into " + table + "(isrcid,csrcvoutype," + JoinNames(FilledColumns("Q")) + ")",
               "select " + std::string(kSourceLine) + ",",
           }) +
           ListLines(OpeningSums("Q")) + FromLedger(lngUnitNumber) +
           (where.empty() ? "" : EndLines({"Where " + where})) + "group by " + std::string(kSourceLine);
}

std::string InsertInventoryMovement(const std::string& table, std::int32_t lngUnitNumber,
                                    const std::string& where)
{
    std::vector<std::string> names, sums;
    for (const CostSide& side : CostSides()) {
        Append(names, FilledColumns(side.prefix));
        Append(sums, MovementSums(side));
    }

    return EndLines({
               "insert into " + table + "(" + "iSrcID,cSRcVoutype," + JoinNames(names) + ")",
               "select " + std::string(kSourceLine) + ",",
           }) +
           ListLines(sums) + FromLedger(lngUnitNumber) +
           EndLines(
               {"where 1 = 1 and IA_EnSubsidiary.imonth <> 0 " + (where.empty() ? "" : " and " + where)}) +
           "group by " + std::string(kSourceLine);
}

std::string UpdateInventoryEnd(const std::string& table)
{
    return EndLines({"update " + table + " set"}) + ListLines(EndBalances());
}

std::string UpdateInventoryTotals(const std::string& table)
{
    std::vector<std::string> totals;
    for (const std::string_view prefix : kPrefixes)
        Append(totals, TotalsOf(prefix));
    return EndLines({"update " + table + "  set "}) + ListLines(totals);
}

std::string SelectInventorySums(const std::string& table)
{
    std::vector<std::string> sums;
    for (const std::string_view prefix : kPrefixes) {
        sums.push_back("sum(" + QuantityName(prefix) + ") as " + QuantityName(prefix));
        for (const CostColumn& column : CostColumns())
            sums.push_back("sum(" + AmountName(prefix, column) + ") as " + AmountName(prefix, column));
    }

    return EndLines({"select isrcid,csrcvoutype,"}) + ListLines(sums) +
           JoinLines({
               " into #IA_EnFCSPHZB ",
               " from  " + table + " a",
               " group by a.isrcid,a.csrcvoutype",
           });
}

std::string SelectInventoryResult(const std::string& result, const std::string& year,
                                  const std::vector<CostColumn>& chosen)
{
    return SelectAttributes() + ChosenColumns(chosen) +
           EndLines({
               "a.iSrcID,a.cSRcVoutype",
               " into " + result,
               "from #IA_EnFCSPHZB a",
               "left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid"
               " and a.csrcvoutype = ia_ensubsidiary.cvoutype "
               " and ia_ensubsidiary.iyear = " +
                   year,
           }) +
           JoinShortRdStyle() + JoinShortLookups() + JoinVoucherName(kDatabaseLocale) +
           JoinLines({
               " where (" + HasBalance("Q") + ") ",
               " or( " + HasBalance("R") + ") ",
               " or( " + HasBalance("D") + ") ",
               " or( " + HasBalance("E") + ") ",
           });
}

}  // namespace kavelin
