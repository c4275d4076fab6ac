#include "reports/StockBook.h"

#include "frame/Text.h"

#include <algorithm>
#include <cstdlib>

namespace kavelin::test {

namespace {

// The costing is that of stock and of nothing else: what lies in a warehouse that takes no part is not counted.
constexpr const char* kUnposted =
    "select l.LineID, h.Kind, h.cVouType, isnull(h.cBusType, N''), convert(nvarchar(10), h.dVouDate, 120),"
    " l.cInvCode, isnull(h.cWhCode, N''), l.bRdFlag, cast(isnull(l.iQuantity, 0) as decimal(20,4)),"
    " isnull(l.iPrice, 0), isnull(l.iDif, 0)"
    " from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID"
    " left join Warehouse w on w.cWhCode = h.cWhCode left join Inventory i on i.cInvCode = l.cInvCode"
    " where isnull(l.cAccounter, N'') = N'' and isnull(w.bInCost, 1) = 1 and ";

constexpr const char* kPostedKinds =
    "select distinct h.Kind, h.cVouType, left(isnull(h.cBusType, N''), 2)"
    " from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID"
    " inner join IA_Subsidiary a on a.ID = l.LineID"
    " and (a.cVouType = h.cVouType or a.cVouType = N'3201' and h.cVouType = N'32'"
    " or a.cVouType = N'25' and h.Kind = N'PUR')"
    " where isnull(l.cAccounter, N'') <> N''";

// Kinds of documents by which goods of a business are posted. Stock documents differ by their type; of the
// others red and blue ones are one kind.
std::string KindKey(const std::string& kind, const std::string& type, const std::string& business)
{
    return kind + " " + (kind == "RD" ? type : "") + " " + business.substr(0, std::string("直运").size());
}

void Put(StockMoves& turnovers, const StockPlace& place, bool receipt, const Stock& amount)
{
    StockMove& turnover = turnovers[place];
    (receipt ? turnover.in : turnover.out).Add(amount);
}

void DropNothing(StockMoves& turnovers)
{
    std::erase_if(turnovers, [](const auto& entry) { return entry.second.IsNothing(); });
}

std::int64_t Cents(const std::string& text)
{
    return TenThousandths(text) / 100;
}

}  // namespace

std::int64_t TenThousandths(const std::string& text)
{
    const std::size_t point = text.find('.');
    const std::string places = point == text.npos ? "" : text.substr(point + 1);
    std::string digits = text.substr(0, point) + (places + "0000").substr(0, 4);
    return std::stoll(digits);
}

void Stock::Add(const Stock& more, int sign)
{
    quantity += sign * more.quantity;
    money += sign * more.money;
    difference += sign * more.difference;
}

Stock StockMove::Closing() const
{
    Stock closing = opening;
    closing.Add(in);
    closing.Add(out, -1);
    return closing;
}

bool IsDirect(const std::string& business)
{
    return business.starts_with("直运");
}

StockBook::StockBook(AccountReport& report, const std::string& condition)
{
    const std::string documents = condition.empty() ? "1=1" : condition;
    const std::string ledger = ReplaceAll(ReplaceAll(documents, "h.", "a."), "l.", "a.");
    strFirstDay =
        report.Table("select cValue from AccInformation where cSysID = N'IA' and cName = N'dIAStartDate'")
            .at(0)
            .at(0);
    for (
        const auto& row : report.Table(
            "select a.cInvCode, isnull(a.cWhCode, N''), a.iMonth, convert(nvarchar(10), a.dKeepDate, 120), a.cVouType,"
            " isnull(a.cBusType, N''), a.bRdFlag, cast(isnull(a.iAInQuantity, 0) as decimal(20,4)),"
            " isnull(a.iAInPrice, 0), cast(isnull(a.iAOutQuantity, 0) as decimal(20,4)), isnull(a.iAOutPrice, 0),"
            " isnull(a.iDebitDifCost, 0), isnull(a.iCreditDifCost, 0)"
            " from IA_Subsidiary a left join Inventory i on i.cInvCode = a.cInvCode where " +
            ledger)) {
        LedgerRow& line = lstLedger.emplace_back();
        line.place = {row[0], row[1]};
        line.month = std::stoi(row[2]);
        line.day = row[3];
        line.type = row[4];
        line.business = row[5];
        line.receipt = row[6] == "1";
        line.amount = {TenThousandths(row[7]), Cents(row[8]), Cents(row[11])};
        line.amount.Add({TenThousandths(row[9]), Cents(row[10]), Cents(row[12])}, -1);
        if (!line.receipt)
            line.amount = {-line.amount.quantity, -line.amount.money, -line.amount.difference};
    }

    std::set<std::string> posted;
    for (const auto& row : report.Table(kPostedKinds))
        posted.insert(KindKey(row[0], row[1], row[2]));
    for (const auto& row : report.Table(kUnposted + documents)) {
        DocumentRow line = {row[0],           row[1],        row[2], row[3], row[4],
                            {row[5], row[6]}, row[7] == "1", {},     false};
        line.isDirect = IsDirect(line.business);
        line.amount = {TenThousandths(row[8]), Cents(row[9]), 0};
        if (line.kind == "RD" || line.kind == "VMI")
            line.amount.difference = Cents(row[10]);
        if (posted.contains(KindKey(line.kind, line.type, line.business)))
            lstDocuments.push_back(line);
    }
}

// Estimates that were open when the books began (33) are a memo and no stock.
StockMoves StockBook::Posted(const Days& days, const std::function<bool(const LedgerRow&)>& counts) const
{
    const std::string from = std::max(days.from, strFirstDay);
    StockMoves turnovers;
    for (const LedgerRow& row : lstLedger) {
        if (row.type == "33" || !counts(row))
            continue;
        if (row.month == 0 || row.day < from)
            turnovers[row.place].opening.Add(row.amount, row.receipt ? 1 : -1);
        else if (days.to.empty() || row.day <= days.to)
            Put(turnovers, row.place, row.receipt, row.amount);
    }
    DropNothing(turnovers);
    return turnovers;
}

std::vector<DocumentRow> StockBook::Unposted(const Days& days,
                                             const std::function<bool(const DocumentRow&)>& counts) const
{
    std::vector<DocumentRow> rows;
    for (const DocumentRow& row : lstDocuments)
        if (counts(row) && (row.day >= days.from || row.day < strFirstDay) &&
            (days.to.empty() || row.day <= days.to))
            rows.push_back(row);
    return rows;
}

void AddDocuments(StockMoves& turnovers, const std::vector<DocumentRow>& documents)
{
    for (const DocumentRow& row : documents)
        Put(turnovers, row.place, row.receipt, row.amount);
    DropNothing(turnovers);
}

StockMoves PoolOf(AccountReport& report, const std::string& condition)
{
    StockMoves turnovers;
    for (
        const auto& row : report.Table(
            "select cInvCode, isnull(cwhcode, N''), cast(sum(QcQuantity) as decimal(20,4)), sum(QcPrice), sum(qcDif),"
            " cast(sum(InQuantity) as decimal(20,4)), sum(InPrice), sum(InDif),"
            " cast(sum(OutQuantity) as decimal(20,4)), sum(OutPrice), sum(OutDif) from {} where " +
            condition + " group by cInvCode, isnull(cwhcode, N'')")) {
        const auto stock = [&](std::size_t at) {
            return Stock{TenThousandths(row[at]), Cents(row[at + 1]), Cents(row[at + 2])};
        };
        turnovers[{row[0], row[1]}] = {stock(2), stock(5), stock(8)};
    }
    DropNothing(turnovers);
    return turnovers;
}

}  // namespace kavelin::test
