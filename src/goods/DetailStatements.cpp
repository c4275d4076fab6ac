#include "goods/DetailStatements.h"

#include "frame/Statement.h"
#include "goods/CostItemStatements.h"
#include "goods/DetailColumns.h"

#include <span>

namespace kavelin {

namespace {

using Prefixes = std::span<const std::string_view>;

constexpr std::string_view kAll[] = {"R", "D", "E"};
constexpr Prefixes kMovement = Prefixes(kAll).first(2);
constexpr Prefixes kEnd = Prefixes(kAll).last(1);

// The opening has no month but 0.
constexpr std::string_view kBehindOpening = " where imonth<>0 ";

// ---- lists of columns

std::vector<std::string> MovementColumns()
{
    std::vector<std::string> names;
    for (const std::string_view prefix : kMovement)
        Append(names, FilledColumns(prefix));
    return names;
}

// What a line received, or dispatched: the quantity as it stands, the amounts by the direction.
std::vector<std::string> LineAmounts(const CostSide& side)
{
    std::vector<std::string> amounts = {
        std::string(side.quantity) + " as " + QuantityName(side.prefix),
    };
    for (const CostColumn& column : CostItems())
        amounts.push_back("(case when IA_EnSubsidiary.bRdFlag=" + std::string(side.flag) + " then " +
                          LineAmount(column) + " else null end)as " + AmountName(side.prefix, column));
    return amounts;
}

std::string MovementSums()
{
    std::string sums;
    for (const std::string_view prefix : kMovement) {
        std::string line;
        for (const std::string& name : FilledColumns(prefix))
            line += "SUM(" + name + ")as " + name + ",";
        sums += EndLines({line});
    }
    return sums;
}

// ---- what is per unit, and totals

// Null where there is no quantity.
std::string PerUnit(std::string_view prefix, const CostColumn& column)
{
    const std::string quantity = QuantityName(prefix);
    return "case when isnull(" + quantity + ",0) = 0 then null else " + AmountName(prefix, column) + "/" +
           quantity + " end";
}

std::string SetItemUnits(const std::string& table, Prefixes prefixes)
{
    std::vector<std::string> pieces;
    for (const std::string_view prefix : prefixes)
        for (const CostColumn& column : CostItems())
            pieces.push_back(PerUnitName(prefix, column) + "=" + PerUnit(prefix, column));
    return EndLines({"update " + table + " set "}) + ListLines(pieces);
}

std::string SetTotals(const std::string& table, Prefixes prefixes)
{
    std::vector<std::string> pieces;
    for (const std::string_view prefix : prefixes)
        Append(pieces, TotalsOf(prefix));
    return EndLines({"update " + table + " set "}) + ListLines(pieces);
}

// The ledger's rows have 0 where there is no quantity, the opening null.
std::string SetTotalUnits(const std::string& table, Prefixes prefixes, bool zeroIfNone)
{
    std::vector<std::string> pieces;
    for (const std::string_view prefix : prefixes)
        for (const CostColumn& column : CostTotals()) {
            const std::string perUnit = PerUnit(prefix, column);
            pieces.push_back(PerUnitName(prefix, column) + "=" +
                             (zeroIfNone ? "ISNULL(" + perUnit + ",0)" : perUnit));
        }
    return EndLines({"update " + table + " set "}) + ListLines(pieces);
}

// ---- sources

constexpr std::string_view kJoinProject =
    "left join NE_FitemssEx_View n on IA_EnSubsidiary.cItemCode= n.citem_class";

std::string FromLedger()
{
    return EndLines({"from IA_EnSubsidiary"});
}

std::string JoinProjectAndCosts()
{
    return EndLines({kJoinProject}) + JoinCostSources();
}

// The source line of a row `a` in the year, for its document's number.
std::string JoinSourceLine(const std::string& year)
{
    return EndLines({
        "left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid"
        " and a.csrcvoutype = ia_ensubsidiary.cvoutype",
        " and ia_ensubsidiary.iyear = " + year,
    });
}

// ---- the columns of the result

// In the totals what is per unit stands before all amounts, in an item before its own.
std::vector<std::string> ChosenNames(std::string_view prefix, const std::vector<CostColumn>& chosen)
{
    std::vector<std::string> totalUnits, others;
    for (const CostColumn& column : chosen) {
        (column.item == CostItem::Total ? totalUnits : others).push_back(PerUnitName(prefix, column));
        others.push_back(AmountName(prefix, column));
    }
    Append(totalUnits, others);
    return totalUnits;
}

}  // namespace

std::string CreateDetailTable(const std::string& table)
{
    std::vector<std::string> columns;
    for (const std::string_view prefix : kAll)
        columns.push_back(std::string(kQuantityType) + " as " + QuantityName(prefix));
    for (const CostColumn& column : CostColumns()) {
        for (const std::string_view prefix : kAll)
            columns.push_back(std::string(kPerUnitType) + " as " + PerUnitName(prefix, column));
        for (const std::string_view prefix : kAll)
            columns.push_back(std::string(column.type) + " as " + AmountName(prefix, column));
    }
    Append(columns, {
                        "cast(null as nvarchar(110)) as cPZNo",
                        "cast(null as nvarchar(110)) as cDifPZNo",
                        "IA_EnSubsidiary.imonth",
                        "IA_EnSubsidiary.iyear",
                    });

    // The ledger is joined like the lookups, so that no column forbids the nulls of an opening or a total.
    return EndLines({"select top 0 identity(int,1,1) as ino,"}) + DetailTypes() + ListLines(columns) +
           EndLines({
               " into " + table,
               "from (select 1 as one) nothing left join IA_EnSubsidiary on 1=2",
           }) +
           JoinShortRdStyle() + JoinShortLookups() + EndLines({kJoinProject}) +
           JoinVoucherName(kDatabaseLocale) + "where 1=2";
}

std::string InsertDetailOpening(const std::string& table, const std::string& caption,
                                const std::string& where)
{
    std::vector<std::string> sums = OpeningSums("E");
    sums.emplace_back("0 imonth");

    return EndLines({
               "insert into " + table + "(flag,dKeepDate," + JoinNames(FilledColumns("E")) + ",imonth)",
               "select 0 flag,N'" + caption + "',",
           }) +
           ListLines(sums) + FromLedger() + JoinShortLookups() + JoinProjectAndCosts() +
           JoinVoucherName(kDatabaseLocale) + (where.empty() ? "" : " where " + where);
}

std::string UpdateOpeningUnits(const std::string& table)
{
    return SetItemUnits(table, kEnd);
}

std::string UpdateOpeningTotals(const std::string& table)
{
    return SetTotals(table, kEnd);
}

std::string UpdateOpeningTotalUnits(const std::string& table)
{
    return SetTotalUnits(table, kEnd, false);
}

std::string InsertDetailLines(const std::string& table, const std::string& language, const std::string& where)
{
    std::vector<std::string> amounts;
    for (const CostSide& side : CostSides())
        Append(amounts, LineAmounts(side));
    Append(amounts, {"IA_EnSubsidiary.imonth", "IA_EnSubsidiary.iyear"});

    return EndLines({
               "insert into " + table + "(flag," + DetailNames() + JoinNames(MovementColumns()) +
                   ",imonth,iyear)",
               " select 1 flag," + DetailValues(),
           }) +
           ListLines(amounts) + FromLedger() + JoinShortRdStyle() + JoinShortLookups() +
           JoinProjectAndCosts() + JoinVoucherName(" aa_enum.LocaleId=N'" + language + "'") +
           JoinLines({
               " where 1 = 1 and IA_EnSubsidiary.imonth <> 0 " + (where.empty() ? "" : " and " + where),
               " order by IA_EnSubsidiary.autoid ",
           });
}

std::string UpdateRunningBalance(const std::string& table)
{
    const auto received = FilledColumns("R"), dispatched = FilledColumns("D"), end = FilledColumns("E");
    std::vector<std::string> balances, sums;
    for (std::size_t i = 0; i < end.size(); ++i) {
        const std::string sum = "isum" + (i == 0 ? "" : std::to_string(2 * i));
        balances.push_back(end[i] + "=c." + sum);
        sums.push_back("sum(isnull(b." + end[i] + ",0)+isnull(b." + received[i] + ",0)-isnull(b." +
                       dispatched[i] + ",0)) as " + sum);
    }

    return EndLines({"update a set "}) + ListLines(balances) +
           EndLines({
               "from " + table + " a",
               "inner join (select a.ino,",
           }) +
           ListLines(sums) +
           JoinLines({
               "from " + table + " a," + table + " b",
               "where b.ino <=a.ino",
               "group by a.ino) c on a.ino=c.ino",
           });
}

std::string UpdateLineUnits(const std::string& table)
{
    return SetItemUnits(table, kAll);
}

std::string UpdateLineTotals(const std::string& table)
{
    return SetTotals(table, kAll) + std::string(kBehindOpening);
}

std::string UpdateLineTotalUnits(const std::string& table)
{
    return SetTotalUnits(table, kAll, true) + std::string(kBehindOpening);
}

std::string InsertMonthRows(const std::string& table, const std::string& caption)
{
    return EndLines({
               "insert into " + table + "(flag,dKeepDate," + JoinNames(MovementColumns()) + ",imonth)",
               "select 2 flag,cast(imonth as nvarchar(4)) +N' " + caption + " ' ,",
           }) +
           MovementSums() +
           JoinLines({
               "imonth",
               "from " + table,
               " where imonth>0 ",
               "group by iMonth",
               "order by iMonth",
           });
}

std::string SelectMonths(const std::string& table)
{
    return "select iMonth  from " + table + " where iMonth<>0 and flag='2' " + "order by iMonth ";
}

std::string InsertRunningRow(const std::string& table, const std::string& caption, const std::string& month)
{
    return EndLines({
               "insert into " + table + "(flag,dKeepDate," + JoinNames(MovementColumns()) + ",imonth)",
               "select 3 flag,N' " + caption + " ',",
           }) +
           MovementSums() +
           JoinLines({
               month + " as imonth",
               "from " + table,
               "where imonth<>0 AND flag='2' and iMonth <=" + month,
           });
}

std::string UpdateMonthUnits(const std::string& table)
{
    return SetItemUnits(table, kMovement) + std::string(kBehindOpening);
}

std::string UpdateMonthTotals(const std::string& table)
{
    return SetTotals(table, kMovement) + std::string(kBehindOpening);
}

std::string UpdateMonthTotalUnits(const std::string& table)
{
    return SetTotalUnits(table, kMovement, true) + std::string(kBehindOpening);
}

std::string UpdateDetailVoucher(const std::string& table)
{
    return "update a set cPZNo =b.csign + cast(b.ino_id as nvarchar(100))  from " + table +
           " a "
           " inner join gl_accvouch b on a.cpzid = b.coutno_id ";
}

std::string UpdateDetailDifVoucher(const std::string& table)
{
    return "update a set cDifPZNo =b.csign + cast(b.ino_id as nvarchar(100))  from " + table +
           " a "
           " inner join gl_accvouch b on a.cDifPZid = b.coutno_id ";
}

std::string SelectDetailResult(const std::string& table, const std::string& result, const std::string& year,
                               const std::string& months, const std::vector<CostColumn>& chosen)
{
    std::vector<std::string> measures = {"R_Qty", "D_Qty", "E_Qty"};
    for (const std::string_view prefix : kAll)
        Append(measures, ChosenNames(prefix, chosen));

    return EndLines({
               "select a.ino, " + DetailAttributes(),
               "a.cPZNo,a.cDifPZNo,ia_ensubsidiary.cvoucode as cBusCode,a.imonth,a.iyear,",
               JoinNames(measures),
               " into " + result,
               "from " + table + " a ",
           }) +
           JoinSourceLine(year) +
           EndLines({
               "left join (select distinct a.imonth from " + table + " a ",
           }) +
           JoinSourceLine(year) +
           JoinLines({
               " where a.iMonth<>0  " + months + ") b on b.iMonth =a.imonth",
               "where a.imonth=0 or (a.imonth<>0  " + months + " )",
               "or (a.flag=2 and b.iMonth =a.iMonth) or (a.flag=3 and b.iMonth =a.iMonth)",
               "order by a.imonth,a.ino",
           });
}

}  // namespace kavelin
