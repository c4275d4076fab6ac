// The summary of receipts, issues and balances of a year, posted and unposted: the report itself, the same
// passes written by hand in DuckDB SQL, and the best single DuckDB query that gives the same rows; in one
// process, on one database, in turn.
#include "DemoAccount.h"
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/Instance.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/ReportRun.h"

#include <fmt/core.h>

#include <cstdlib>
#include <string>

namespace {

using namespace kavelin;

constexpr const char* kFirst = "timestamp '2008-01-01'";
constexpr const char* kLast = "timestamp '2008-12-31'";
constexpr const char* kPool = "work.main.bench_pool";

// The pool's columns. All amounts of a line have their place, most of them 0.
struct PoolColumn {
    const char *name, *type;
};

constexpr PoolColumn kColumns[] = {
    {"item", "varchar"},
    {"class", "varchar"},
    {"free1", "varchar"},
    {"free2", "varchar"},
    {"free3", "varchar"},
    {"free4", "varchar"},
    {"free5", "varchar"},
    {"free6", "varchar"},
    {"free7", "varchar"},
    {"free8", "varchar"},
    {"free9", "varchar"},
    {"free10", "varchar"},
    {"code", "varchar"},
    {"name", "varchar"},
    {"model", "varchar"},
    {"unit", "varchar"},
    {"weight", "double"},
    {"qcQuantity", "double"},
    {"qcPrice", "decimal(20,2)"},
    {"qcDif", "decimal(20,2)"},
    {"inQuantity", "double"},
    {"inPrice", "decimal(20,2)"},
    {"inDif", "decimal(20,2)"},
    {"outQuantity", "double"},
    {"outPrice", "decimal(20,2)"},
    {"outDif", "decimal(20,2)"},
    {"id", "integer"},
    {"bacc", "integer"},
    {"business", "varchar"},
    {"warehouse", "varchar"},
    {"rd", "varchar"},
    {"type", "varchar"},
    {"direction", "varchar"},
    {"unitCode", "varchar"},
    {"unitGroup", "varchar"},
    {"number", "integer"},
    {"rdName", "varchar"},
    {"rate", "double"},
    {"warehouseName", "varchar"},
    {"secondUnit", "varchar"},
};

std::string ColumnList(bool withTypes)
{
    std::string list;
    for (const PoolColumn& column : kColumns)
        list += (list.empty() ? "" : ", ") + std::string(column.name) +
                (withTypes ? " " + std::string(column.type) : "");
    return "(" + list + ")";
}

// What a pass selects: amounts, number and state differ, the rest is the same.
struct Lines {
    std::string balances;                          // the nine
    std::string id = "null";                       // of a document's line
    std::string bacc = "0";                        // 1 for a document
    std::string names = "null, null, null, null";  // class, rate, warehouse, second unit
    std::string head = "l";                        // alias that has class, warehouse and business
};

std::string Columns(const Lines& lines)
{
    std::string free;
    for (int number = 1; number <= 10; ++number)
        free += fmt::format(", l.cFree{}", number);
    return "l.cInvCode, i.cInvCCode" + free +
           ", i.cInvAddCode, i.cInvName, i.cInvStd, u.cComUnitName, i.iInvWeight, " + lines.balances + ", " +
           lines.id +
           fmt::format(", {0}, {1}.cBusType, {1}.cWhCode, left({1}.cRdCode, 3), {1}.cVouType", lines.bacc,
                       lines.head) +
           ", case when l.bRdFlag = 0 then '发出' else '收入' end, u.cComUnitCode, u.cGroupCode, u.iNumber, " +
           lines.names;
}

constexpr const char* kItemAndUnit =
    " left join account.main.Inventory i on i.cInvCode = l.cInvCode"
    " left join account.main.ComputationUnit u on u.cComUnitCode = i.cComUnitCode";
constexpr const char* kCosting = " (select cWhCode from account.main.Warehouse where bInCost)";

constexpr const char* kOpening =
    "coalesce(l.iAInQuantity, 0) - coalesce(l.iAOutQuantity, 0),"
    " cast(coalesce(l.iAInPrice, 0) - coalesce(l.iAOutPrice, 0) as decimal(20,2)),"
    " cast(coalesce(l.iDebitDifCost, 0) - coalesce(l.iCreditDifCost, 0) as decimal(20,2)), 0, 0, 0, 0, 0, 0";
constexpr const char* kMovement =
    "0, 0, 0,"
    " case when l.bRdFlag = 1 then coalesce(l.iAInQuantity, 0) else 0 end,"
    " case when l.bRdFlag = 1 then cast(coalesce(l.iAInPrice, 0) as decimal(20,2)) else 0 end,"
    " case when l.bRdFlag = 1 then coalesce(l.iDebitDifCost, 0) - coalesce(l.iCreditDifCost, 0) else 0 end,"
    " case when l.bRdFlag = 0 then coalesce(l.iAOutQuantity, 0) else 0 end,"
    " case when l.bRdFlag = 0 then cast(coalesce(l.iAOutPrice, 0) as decimal(20,2)) else 0 end,"
    " case when l.bRdFlag = 0 then coalesce(l.iCreditDifCost, 0) - coalesce(l.iDebitDifCost, 0) else 0 end";

std::string Document(const std::string& difference)
{
    return "0, 0, 0,"
           " case when l.bRdFlag = 1 then coalesce(l.iQuantity, 0) else 0 end,"
           " case when l.bRdFlag = 1 then cast(coalesce(l.iPrice, 0) as decimal(20,2)) else 0 end,"
           " case when l.bRdFlag = 1 then " +
           difference +
           " else 0 end,"
           " case when l.bRdFlag = 0 then coalesce(l.iQuantity, 0) else 0 end,"
           " case when l.bRdFlag = 0 then cast(coalesce(l.iPrice, 0) as decimal(20,2)) else 0 end,"
           " case when l.bRdFlag = 0 then " +
           difference + " else 0 end";
}

std::string FromLedger()
{
    return std::string(" from account.main.IA_Subsidiary l") + kItemAndUnit;
}

std::string FromDocuments()
{
    return std::string(
               " from account.main.Demo_DocumentLine l"
               " join account.main.Demo_Document h on h.DocID = l.DocID") +
           kItemAndUnit;
}

std::string OfLedger(const std::string& dates)
{
    return std::string(" where l.cVouType <> '33' and (l.cWhCode in") + kCosting +
           " or l.cWhCode is null) and " + dates;
}

std::string OfDocuments(const std::string& kind)
{
    return std::string(" where coalesce(l.cAccounter, '') = '' and (h.cWhCode in") + kCosting +
           " or h.cWhCode is null)" +
           fmt::format(" and (h.dVouDate >= {0} or h.dVouDate < {0}) and h.dVouDate <= {1} and {2}", kFirst,
                       kLast, kind);
}

std::string Before()
{
    return fmt::format("(l.dKeepDate < {} or l.iMonth = 0)", kFirst);
}

std::string Within()
{
    return fmt::format("l.dKeepDate >= {} and l.iMonth <> 0 and l.dKeepDate <= {}", kFirst, kLast);
}

constexpr const char* kDispatches = "h.Kind = 'DISP' and coalesce(h.cBusType, '') <> '普通销售'";

std::string Insert(const Lines& lines, const std::string& from, const std::string& where)
{
    return std::string("insert into ") + kPool + " select " + Columns(lines) + from + where;
}

Lines Documents(const std::string& difference)
{
    return {.balances = Document(difference), .id = "l.LineID", .bacc = "1", .head = "h"};
}

// The report's passes, each as a DuckDB user would write it.
void RunPasses(embedded::Session& session)
{
    const std::string pool = kPool;
    session.Run("drop table if exists " + pool);
    session.Run("create table " + pool + ColumnList(true));
    session.Run(Insert({.balances = kOpening}, FromLedger(), OfLedger(Before())));
    session.Run(Insert({.balances = kMovement}, FromLedger(), OfLedger(Within())));
    session.Run(Insert(Documents("coalesce(l.iDif, 0)"), FromDocuments(), OfDocuments("h.Kind = 'RD'")));
    session.Run(Insert(Documents("0"), FromDocuments(), OfDocuments("h.Kind = 'JUST'")));
    session.Run(
        "delete from " + pool +
        " p using account.main.Demo_DocumentLine s join account.main.Demo_Document h on h.DocID = s.DocID"
        " join account.main.Demo_DocumentLine x on x.iDLsID = s.iDLsID"
        " join account.main.Demo_Document xh on xh.DocID = x.DocID"
        " where s.LineID = p.id and h.Kind = 'RD' and xh.Kind = 'SALE'"
        " and coalesce(h.cSource, '') not in ('出口销货单', '出口退货单') and coalesce(x.cAccounter, '') <> ''");
    session.Run(
        "delete from " + pool +
        " p using account.main.Demo_DocumentLine s join account.main.Demo_Document h on h.DocID = s.DocID"
        " join account.main.Demo_DocumentLine c on c.LineID = s.iDLsID"
        " join account.main.Demo_Document ch on ch.DocID = c.DocID"
        " join account.main.Demo_DocumentLine x on x.cGuidSource = c.cGuid"
        " join account.main.Demo_Document xh on xh.DocID = x.DocID"
        " where s.LineID = p.id and h.Kind = 'RD' and ch.Kind = 'EXCON' and xh.Kind = 'EXINV'"
        " and coalesce(h.cSource, '') in ('出口销货单', '出口退货单') and coalesce(x.cAccounter, '') <> ''");
    session.Run(Insert(Documents("coalesce(l.iDif, 0)"), FromDocuments(), OfDocuments("h.Kind = 'VMI'")));
    session.Run(Insert(Documents("0"), FromDocuments(), OfDocuments(kDispatches)));
    session.Run("delete from " + pool +
                " where left(business, 2) = '分期' and type not in ('05', '06', '5', '6')");
    session.Run("delete from " + pool +
                " where left(business, 2) = '委托' and type in ('09', '11', '32', '26', '27', '28', '29')");
    session.Run("delete from " + pool + " where left(business, 2) = '直运'");
    session.Run("update " + pool +
                " p set rdName = r.cRdName from account.main.Rd_Style r where r.cRdCode = p.rd");
    session.Run(
        "update " + pool +
        " p set warehouseName = w.cWhName from account.main.Warehouse w where w.cWhCode = p.warehouse");
}

// Of stock issues: neither the invoice nor the export invoice of the same sale is posted.
constexpr const char* kNotPosted =
    " and not (h.Kind = 'RD' and exists(from account.main.Demo_DocumentLine x"
    " join account.main.Demo_Document xh on xh.DocID = x.DocID"
    " where x.iDLsID = l.iDLsID and xh.Kind = 'SALE' and coalesce(x.cAccounter, '') <> ''"
    " and coalesce(h.cSource, '') not in ('出口销货单', '出口退货单')))"
    " and not (h.Kind = 'RD' and exists(from account.main.Demo_DocumentLine c"
    " join account.main.Demo_DocumentLine x on x.cGuidSource = c.cGuid"
    " where c.LineID = l.iDLsID and coalesce(x.cAccounter, '') <> ''"
    " and coalesce(h.cSource, '') in ('出口销货单', '出口退货单')))";

// The four rules of the passes as conditions, the names as joins.
void RunBestQuery(embedded::Session& session)
{
    const auto names = [](const char* head) {
        return fmt::format(
            " left join account.main.Rd_Style r on r.cRdCode = left({0}.cRdCode, 3)"
            " left join account.main.Warehouse w on w.cWhCode = {0}.cWhCode",
            head);
    };
    const auto counted = [](const char* head) {
        return fmt::format(
            " and coalesce(left({0}.cBusType, 2), '') <> '直运'"
            " and not (coalesce(left({0}.cBusType, 2), '') = '分期'"
            " and {0}.cVouType not in ('05', '06', '5', '6'))"
            " and not (coalesce(left({0}.cBusType, 2), '') = '委托'"
            " and {0}.cVouType in ('09', '11', '32', '26', '27', '28', '29'))",
            head);
    };
    const std::string filled = "r.cRdName, null, w.cWhName, null";
    const std::string difference = "case when h.Kind in ('RD', 'VMI') then coalesce(l.iDif, 0) else 0 end";
    Lines documents = Documents(difference);
    documents.names = filled;

    session.Run("drop table if exists work.main.bench_best");
    session.Run(
        "create table work.main.bench_best as select " + Columns({.balances = kOpening, .names = filled}) +
        FromLedger() + names("l") + OfLedger(Before()) + counted("l") + " union all select " +
        Columns({.balances = kMovement, .names = filled}) + FromLedger() + names("l") + OfLedger(Within()) +
        counted("l") + " union all select " + Columns(documents) + FromDocuments() + names("h") +
        OfDocuments(std::string("(h.Kind in ('RD', 'JUST', 'VMI') or ") + kDispatches + ")") + counted("h") +
        kNotPosted);
}

std::string FingerprintOfReport(host::ReportRun& run)
{
    const auto rows = run.Account().OpenRecordset(
        "select count(*), sum(QcPrice), sum(InPrice), sum(OutPrice), sum(bacc), count(crdname),"
        " count(cwhname) from " +
            run.TableName(),
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    std::string text;
    for (int field = 0; field < rows->FieldCount(); ++field)
        text += ToText(rows->Field(field)) + " ";
    return text;
}

std::string FingerprintOf(embedded::Session& session, const std::string& table)
{
    auto rows = session.Run(
        "select count(*), sum(qcPrice), sum(inPrice), sum(outPrice), cast(sum(bacc) as int),"
        " count(rdName), count(warehouseName) from " +
        table + " as pool" + ColumnList(false));
    std::string text;
    for (int field = 0; field < 7; ++field)
        text += ToText(rows.Get(0, field)) + " ";
    return text;
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 5;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-stock-summary [LINES [ROUNDS]]\n");
        return 2;
    }
    host::Flags flags;
    flags.account = bench::DemoAccount(lines).string();
    const host::Config config = host::Config::Load(flags);
    host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource());
    const host::Report& report = host::FindReport("stock-summary");
    host::FilterInput year(host::TemplateOf("stock-summary"), host::ValuePolicy::Checked);
    year.Set("dVouDate", "2008-01-01..2008-12-31");
    year.Set("vouEstate", "已记账单据,未记账单据");

    const auto account = embedded::OpenAccount(*flags.account);
    embedded::Session session(account->Shared()->Duck());
    run.Run(report, year);
    RunPasses(session);
    RunBestQuery(session);
    const std::string ofReport = FingerprintOfReport(run);
    const std::string ofPasses = FingerprintOf(session, kPool);
    const std::string ofQuery = FingerprintOf(session, "work.main.bench_best");
    fmt::print("report: {}\npasses: {}\nquery:  {}\n\n", ofReport, ofPasses, ofQuery);
    if (ofReport != ofPasses || ofReport != ofQuery) {
        fmt::print(stderr, "They don't agree.\n");
        return 1;
    }

    std::vector<bench::Contender> contenders;
    contenders.push_back({"report", [&] { run.Run(report, year); }});
    contenders.push_back({"same passes by hand", [&] { RunPasses(session); }});
    contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
    bench::MeasureInTurn(contenders, rounds);
    bench::PrintTable(contenders);
}
