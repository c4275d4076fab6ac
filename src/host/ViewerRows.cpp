#include "host/ViewerRows.h"

#include "frame/Text.h"

#include <utility>

namespace kavelin::host {

namespace {

const LocalText kDocument = {"单据", "Document"};
const LocalText kLines = {"单据行", "Lines of the document"};
const LocalText kLedger = {"存货明细账", "Rows of the inventory ledger"};
const LocalText kTransit = {"发出商品明细账", "Rows of the goods-in-transit ledger"};
const LocalText kVoucher = {"凭证", "Accounting voucher"};

std::string Literal(std::string_view text)
{
    return "N'" + ReplaceAll(text, "'", "''") + "'";
}

// ---- statements

const std::string kLedgerColumns =
    "a.AutoID, a.dVouDate, a.cVouType, a.cVouCode, a.cBusType, a.bRdFlag, a.cInvCode,"
    " a.iAInQuantity, a.iAInPrice, a.iAOutQuantity, a.iAOutPrice, a.cPZID";

std::string SelectHead(std::string_view where)
{
    return "select DocID, cVouType, cVouCode, dVouDate, cBusType, cWhCode, cDepCode, cRdCode, cCusCode,"
           " cVenCode, cMemo from Demo_Document where " +
           std::string(where);
}

std::string SelectLines(const std::string& document)
{
    return "select LineID, cInvCode, cBatchIA, bRdFlag, iQuantity, iUnitCost, iPrice, cAccounter, dKeepDate"
           " from Demo_DocumentLine where DocID = " +
           document + " order by LineID";
}

std::string SelectLedgerRows(const std::string& from, const std::string& where)
{
    return "select " + kLedgerColumns + " from " + from + " where " + where + " order by a.AutoID";
}

std::string SelectVoucher(std::string_view id)
{
    return "select cSign, iNo_ID, cOutNo_ID, cOutSysName, cOutSign from gl_AccVouch where cOutNo_ID = " +
           Literal(id);
}

// ---- reading

std::unique_ptr<Recordset> Read(Connection& account, const std::string& sql)
{
    return account.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

bool HasTable(Connection& account, const std::string& name)
{
    return !Read(account, "select name from sysobjects where name = " + Literal(name))->Eof();
}

// Reads on if the account has the table.
class Finder {
  public:
    explicit Finder(Connection& account) : cnnAccount(account) {}

    // Whether there were rows; they are kept then.
    bool Find(const LocalText& title, const std::string& table, const std::string& sql)
    {
        if (!HasTable(cnnAccount, table))
            return false;
        auto rows = Read(cnnAccount, sql);
        if (rows->Eof())
            return false;
        lstFound.push_back({title, std::move(rows)});
        return true;
    }

    Recordset& Last() { return *lstFound.back().rows; }
    std::vector<ViewerRows> Take() { return std::move(lstFound); }

  private:
    Connection& cnnAccount;
    std::vector<ViewerRows> lstFound;
};

struct Where {
    std::string document;  // empty: its lines are not looked up among documents
    std::string ledger;
};

Where WhereIs(std::string_view vouType, DocumentKey by, std::string_view key)
{
    const std::string number = "cVouType = " + Literal(vouType) + " and cVouCode = " + Literal(key);
    switch (by) {
        case DocumentKey::Identity: return {"DocID = " + Literal(key), "a.iPZID = " + Literal(key)};
        case DocumentKey::Number: return {number, number};
        case DocumentKey::LedgerRow: break;
    }
    return {"", "a.AutoID = " + Literal(key)};
}

struct Ledger {
    LocalText title;
    std::string table;
    std::string differences;     // table of cost differences
    std::string differencesRow;  // in which this column names the ledger's row
};

const Ledger kLedgers[] = {
    {kLedger, "IA_Subsidiary", "pl_co_SubSidiary", "ia_autoid"},
    {kTransit, "IA_EnSubsidiary", "pl_co_EnSubsidiary", "iIASubID"},
};

}  // namespace

std::vector<ViewerRows> FindDocument(Connection& account, std::string_view vouType, DocumentKey by,
                                     std::string_view key)
{
    const Where where = WhereIs(vouType, by, key);
    Finder finder(account);
    if (!where.document.empty() && finder.Find(kDocument, "Demo_Document", SelectHead(where.document)))
        finder.Find(kLines, "Demo_DocumentLine", SelectLines(ToText(finder.Last().Field("DocID"))));
    else
        finder.Find(kLedger, "IA_Subsidiary", SelectLedgerRows("IA_Subsidiary a", where.ledger));
    return finder.Take();
}

std::vector<ViewerRows> FindVoucher(Connection& account, std::string_view id, std::int32_t year)
{
    Finder finder(account);
    finder.Find(kVoucher, "gl_AccVouch", SelectVoucher(id));
    const std::string inYear = " and a.iYear = " + std::to_string(year);
    for (const Ledger& ledger : kLedgers) {
        finder.Find(ledger.title, ledger.table,
                    SelectLedgerRows(ledger.table + " a", "a.cPZID = " + Literal(id) + inYear));
        finder.Find(ledger.title, ledger.differences,
                    SelectLedgerRows(ledger.table + " a inner join " + ledger.differences + " p on p." +
                                         ledger.differencesRow + " = a.AutoID",
                                     "p.cDifPZID = " + Literal(id) + inYear));
    }
    return finder.Take();
}

}  // namespace kavelin::host
