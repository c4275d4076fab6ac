// The price analysis of one month of a generated ledger: the report itself, the same passes written by hand in
// DuckDB SQL, and the best single DuckDB query that gives the same rows; in one process, on one database, in turn.
#include "DemoAccount.h"
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/Instance.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/ReportRun.h"

#include <fmt/core.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace kavelin;

// `piece` for each number, "{0}" in it replaced.
std::string Numbered(int first, int last, const char* piece)
{
    std::string text;
    for (int number = first; number <= last; ++number)
        text += fmt::format(fmt::runtime(piece), number);
    return text;
}

std::string Free(const char* piece = ", cFree{0}")
{
    return Numbered(1, 10, piece);
}

constexpr const char* kMethods = "('全月平均法', '移动平均法', '先进先出法', '后进先出法')";

// ---- the ledger with its names, as the account has it

std::string LedgerView()
{
    return "create or replace view work.main.bench_ledger as"
           " select l.AutoID, l.iPZID, l.cPZID, l.iYear, l.iMonth, strftime(l.dVouDate, '%Y-%m-%d') as dVouDate,"
           " l.cVouCode, l.cWhCode, w.cWhName, l.cAccDep, e.cDepName as cAccDepName, i.cInvCCode, ic.cInvCName,"
           " l.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd, l.cVouType, t.cVouchName, l.cBusType, r.cRdName,"
           " c.cCCCode, cc.cCCName, l.cCusCode, c.cCusName, v.cVCCode, vc.cVCName, l.cVenCode, v.cVenName, l.cDepCode,"
           " d.cDepName, l.dKeepDate, l.cItem_class, l.cItemCName, l.cItemCode, l.cName, l.cProOrderCode, l.iInCost,"
           " l.iOutCost, l.cBatchIA, l.iAInPrice, l.iAOutPrice, l.iAInQuantity, l.iAOutQuantity, w.cWhValueStyle,"
           " i.cValueType, coalesce(i.bCheckBatch, false) as bCheckBatch, w.bInCost" +
           Numbered(1, 16, ", l.cDefine{0}") + Numbered(22, 37, ", l.cDefine{0}") +
           Numbered(1, 16, ", i.cInvDefine{0}") + Free(", l.cFree{0}") +
           " from account.main.IA_Subsidiary l"
           " left join account.main.Inventory i on i.cInvCode = l.cInvCode"
           " left join account.main.InventoryClass ic on ic.cInvCCode = i.cInvCCode"
           " left join account.main.Warehouse w on w.cWhCode = l.cWhCode"
           " left join account.main.Department d on d.cDepCode = l.cDepCode"
           " left join account.main.Department e on e.cDepCode = l.cAccDep"
           " left join account.main.Rd_Style r on r.cRdCode = l.cRdCode"
           " left join account.main.Customer c on c.cCusCode = l.cCusCode"
           " left join account.main.CustomerClass cc on cc.cCCCode = c.cCCCode"
           " left join account.main.Vendor v on v.cVenCode = l.cVenCode"
           " left join account.main.VendorClass vc on vc.cVCCode = v.cVCCode"
           " left join account.main.VouchType t on t.cVouchType = l.cVouType";
}

constexpr const char* kShown =
    " where iYear = 2008 and iMonth = 7 and cVouType <> '33' and left(cBusType, 2) <> '直运'"
    " and (bInCost or cWhCode is null)";

constexpr const char* kShownOfLines =
    " where l.iYear = 2008 and l.iMonth = 7 and l.cVouType <> '33' and left(l.cBusType, 2) <> '直运'"
    " and (l.bInCost or l.cWhCode is null)";

// The batch is part of a key where item and warehouse ask for it.
std::string BatchJoin()
{
    return fmt::format(
        " and (not (coalesce(i.bCheckBatch, false) and coalesce(w.cWhValueStyle, '') in {})"
        " or coalesce(t.cBatchIA, '') = coalesce(s.cBatchIA, ''))",
        kMethods);
}

std::string KeyJoin()
{
    return "t.cInvCode = s.cInvCode and t.cWhCode = s.cWhCode" + BatchJoin() +
           Free(" and coalesce(t.cFree{0}, '') = coalesce(s.cFree{0}, '')");
}

// ---- the report's passes, each as a DuckDB user would write it

constexpr const char* kWorkTables[] = {"bench_work",     "bench_keys",   "bench_copy", "bench_last_in",
                                       "bench_last_out", "bench_in",     "bench_out",  "bench_summary",
                                       "bench_total",    "bench_balance"};

// `from` joined to the item and warehouse of the table to update.
std::string Update(const std::string& table, const std::string& set, const std::string& from)
{
    return "update work.main." + table + " t set " + set + " from work.main." + from +
           " s join account.main.Inventory i on i.cInvCode = s.cInvCode"
           " join account.main.Warehouse w on w.cWhCode = s.cWhCode where " +
           KeyJoin();
}

void RunPasses(embedded::Session& session)
{
    const auto run = [&](const std::string& sql) { session.Run(sql); };
    run("drop table if exists work.main.bench_result");
    run("create table work.main.bench_work as select *, cast(coalesce(iInCost, iOutCost) as decimal(38,6)) as Price,"
        " cast(0 as decimal(38,6)) as BasePrice, cast(0 as decimal(38,4)) as Ratio, cast(0 as decimal(38,4)) as"
        " DiffRatio, cast(0 as decimal(38,6)) as ReferenceCost, cast(0 as decimal(38,6)) as AvgPrice,"
        " cast(0 as decimal(38,6)) as Balanceunit, cast(iOutCost as decimal(38,6)) as ExPrice,"
        " cast(iInCost as decimal(38,6)) as InPrice from work.main.bench_ledger" +
        std::string(kShown));
    run("create table work.main.bench_keys as select cInvCode, cBatchIA, cWhCode" +
        Free(", coalesce(cFree{0}, '') as cFree{0}") + " from work.main.bench_work group by all");

    run("create table work.main.bench_copy as select * from work.main.bench_ledger");
    run("update work.main.bench_copy set cBatchIA = null where not bCheckBatch and cBatchIA is not null");
    run(
        fmt::format("update work.main.bench_copy set cBatchIA = case when bCheckBatch and cWhValueStyle in {}"
                    " then coalesce(cBatchIA, '') else '' end",
                    kMethods));
    for (const char* side : {"in", "out"}) {
        const std::string cost = fmt::format("i{}Cost", side);
        run(fmt::format(
            "create table work.main.bench_last_{} as select max(AutoID) as AutoID, cInvCode, cBatchIA,"
            " cWhCode{} from work.main.bench_copy where coalesce({}, 0) <> 0 group by all",
            side, Free(", coalesce(cFree{0}, '') as cFree{0}"), cost));
        run(fmt::format(
            "create table work.main.bench_{0} as select c.AutoID, c.{1}, c.cInvCode, c.cBatchIA, c.cWhCode{2}"
            " from work.main.bench_last_{0} l left join work.main.bench_copy c on c.AutoID = l.AutoID",
            side, cost, Free(", c.cFree{0}")));
    }
    run("alter table work.main.bench_keys add column iInCost decimal(38,6)");
    run("alter table work.main.bench_keys add column iOutCost decimal(38,6)");
    run("alter table work.main.bench_keys add column AvgPrice decimal(38,6)");
    run(Update("bench_keys", "iInCost = s.iInCost", "bench_in"));
    run(Update("bench_keys", "iOutCost = s.iOutCost", "bench_out"));

    const std::string keys =
        " from work.main.bench_keys t join account.main.Inventory i on i.cInvCode = t.cInvCode"
        " join account.main.Warehouse w on w.cWhCode = t.cWhCode join account.main.IA_Summary s on ";
    const std::string columns = "t.cInvCode, t.cBatchIA, t.cWhCode" + Free(", t.cFree{0}");
    run("create table work.main.bench_summary as select " + columns +
        ", sum(s.iIMoney) as iIMoney, sum(s.iOMoney) as iOMoney, sum(s.iINum) as iINum, sum(s.iONum) as iONum,"
        " sum(s.iNum) as iNum, sum(s.iMoney) as iMoney" +
        keys + KeyJoin() +
        " where s.iDirect <> 1 and s.iYear = 2008 and s.iMonth between 1 and 6 group by all");
    run("create table work.main.bench_total as select t.*, iIMoney / iINum as price from work.main.bench_summary t"
        " where iINum <> 0");
    run(Update("bench_keys", "AvgPrice = s.price", "bench_total"));
    run(Update("bench_work",
               "ExPrice = coalesce(s.iOutCost, 0), InPrice = coalesce(s.iInCost, 0),"
               " AvgPrice = coalesce(s.AvgPrice, 0)",
               "bench_keys"));
    run("create table work.main.bench_balance as select " + columns +
        ", max(s.iMoney) as iMoney, max(s.iNum) as iNum" + keys + KeyJoin() +
        " where s.iDirect = 0 and s.iPeriod = 0 and s.iYear = 2008 and s.iMonth = 6 group by all");
    run("update work.main.bench_work set Balanceunit = null");
    run(Update("bench_work", "Balanceunit = s.iMoney / s.iNum", "bench_balance") + " and s.iNum <> 0");
    run("update work.main.bench_work t set ReferenceCost = coalesce(i.iInvSPrice, 0) from account.main.Inventory i"
        " where i.cInvCode = t.cInvCode");
    run("update work.main.bench_work set BasePrice = coalesce(InPrice, 0)");
    run("update work.main.bench_work set Ratio = case when coalesce(BasePrice, 0) = 0 then 100 else"
        " Price / BasePrice * 100 end, DiffRatio = case when coalesce(BasePrice, 0) = 0 then 0 else"
        " (Price / BasePrice - 1) * 100 end");
    run("update work.main.bench_work set Ratio = 100, DiffRatio = 0 where coalesce(BasePrice, 0) = 0"
        " and coalesce(Price, 0) <> 0");
    run("update work.main.bench_work set Ratio = 0, DiffRatio = -100 where coalesce(BasePrice, 0) <> 0"
        " and coalesce(Price, 0) = 0");
    run("update work.main.bench_work set Ratio = 0, DiffRatio = 0 where coalesce(BasePrice, 0) = 0"
        " and coalesce(Price, 0) = 0");
    run("create table work.main.bench_result as select * exclude (iYear, iMonth, iInCost, iOutCost, iAInPrice,"
        " iAOutPrice, iAInQuantity, iAOutQuantity, cWhValueStyle, cValueType, bCheckBatch, bInCost)"
        " from work.main.bench_work order by dVouDate");
    for (const char* table : kWorkTables)
        run(fmt::format("drop table work.main.{}", table));
}

// ---- the same rows in one query

// A key of `l` with its item `i` and warehouse `w`, one column each.
std::string KeyColumns(const char* row)
{
    return fmt::format(
               "{0}.cInvCode, {0}.cWhCode, case when coalesce(i.bCheckBatch, false) and coalesce(w.cWhValueStyle, '')"
               " in {1} then coalesce({0}.cBatchIA, '') else '' end as batch",
               row, kMethods) +
           Numbered(1, 10, fmt::format(", coalesce({}.cFree{{0}}, '') as free{{0}}", row).c_str());
}

std::string UsingKey()
{
    return " using (cInvCode, cWhCode, batch" + Free(", free{0}") + ")";
}

void RunBestQuery(embedded::Session& session)
{
    const std::string joins =
        " join account.main.Inventory i on i.cInvCode = s.cInvCode"
        " join account.main.Warehouse w on w.cWhCode = s.cWhCode";
    session.Run("drop table if exists work.main.bench_best");
    session.Run(
        "create table work.main.bench_best as with costs as (select " + KeyColumns("s") +
        ", arg_max(s.iInCost, s.AutoID) filter (s.iInCost <> 0) as lastIn,"
        " arg_max(s.iOutCost, s.AutoID) filter (s.iOutCost <> 0) as lastOut from account.main.IA_Subsidiary s" +
        joins + " group by all), summary as (select " + KeyColumns("s") +
        ", sum(s.iIMoney) filter (s.iMonth between 1 and 6) / nullif(sum(s.iINum) filter (s.iMonth between 1 and 6), 0)"
        " as average, max(s.iMoney) filter (s.iMonth = 6 and s.iPeriod = 0) / nullif(max(s.iNum) filter (s.iMonth = 6"
        " and s.iPeriod = 0), 0) as balance from account.main.IA_Summary s" +
        joins +
        " where s.iDirect = 0 and s.iYear = 2008 group by all), lines as (select l.*, i.iInvSPrice, " +
        KeyColumns("l").substr(std::string("l.cInvCode, l.cWhCode, ").size()) +
        " from work.main.bench_ledger l left join account.main.Inventory i on i.cInvCode = l.cInvCode"
        " left join account.main.Warehouse w on w.cWhCode = l.cWhCode" +
        kShownOfLines +
        "), prices as (select lines.*, cast(coalesce(iInCost, iOutCost) as decimal(38,6)) as Price,"
        " cast(coalesce(iInvSPrice, 0) as decimal(38,6)) as ReferenceCost,"
        " cast(coalesce(lastOut, 0) as decimal(38,6)) as ExPrice,"
        " cast(coalesce(lastIn, 0) as decimal(38,6)) as InPrice,"
        " cast(coalesce(average, 0) as decimal(38,6)) as AvgPrice, cast(balance as decimal(38,6)) as Balanceunit"
        " from lines left join costs" +
        UsingKey() + " left join summary" + UsingKey() +
        ") select * exclude (iYear, iMonth, iInCost, iOutCost, iAInPrice, iAOutPrice, iAInQuantity, iAOutQuantity,"
        " cWhValueStyle, cValueType, bCheckBatch, bInCost, iInvSPrice, batch" +
        Free(", free{0}") +
        "), InPrice as BasePrice, cast(case when coalesce(Price, 0) = 0 then 0 when InPrice = 0 then 100 else"
        " Price / InPrice * 100 end as decimal(38,4)) as Ratio, cast(case when InPrice = 0 then 0 when"
        " coalesce(Price, 0) = 0 then -100 else (Price / InPrice - 1) * 100 end as decimal(38,4)) as DiffRatio"
        " from prices order by dVouDate");
}

// ---- whether they agree

constexpr const char* kSums =
    "select cast(count(*) as float), cast(sum(Price) as float), cast(sum(BasePrice) as float),"
    " cast(sum(Ratio) as float), cast(sum(DiffRatio) as float), cast(sum(ExPrice) as float),"
    " cast(sum(AvgPrice) as float), cast(sum(Balanceunit) as float), cast(count(Balanceunit) as float) from ";

std::vector<double> SumsOfReport(host::ReportRun& run)
{
    const auto rows = run.Account().OpenRecordset(kSums + run.TableName(), CursorLocation::Client,
                                                  CursorType::Static, LockType::ReadOnly);
    std::vector<double> sums;
    for (int field = 0; field < rows->FieldCount(); ++field)
        sums.push_back(ToDouble(rows->Field(field)));
    return sums;
}

std::vector<double> SumsOf(embedded::Session& session, const std::string& table)
{
    std::string sql = kSums + ("work.main." + table);
    for (std::size_t at = 0; (at = sql.find("float", at)) != sql.npos;)
        sql.replace(at, 5, "double");
    auto rows = session.Run(sql);
    std::vector<double> sums;
    for (int field = 0; field < 9; ++field)
        sums.push_back(ToDouble(rows.Get(0, field)));
    return sums;
}

// Rows are the same; the last digits of prices may not be.
bool Agree(const std::vector<double>& a, const std::vector<double>& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::fabs(a[i] - b[i]) > 1e-4 * (1 + std::fabs(a[i])))
            return false;
    return true;
}

void Print(const char* name, const std::vector<double>& sums)
{
    fmt::print("{:8}", name);
    for (const double sum : sums)
        fmt::print(" {:.4f}", sum);
    fmt::print("\n");
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 5;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-price-analysis [LINES [ROUNDS]]\n");
        return 2;
    }
    host::Flags flags;
    flags.account = bench::DemoAccount(lines).string();
    const host::Config config = host::Config::Load(flags);
    host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource());
    host::FilterInput july(host::TemplateOf("price-analysis"), host::ValuePolicy::Checked);
    for (const char* setting :
         {"iMonth=2008.07", "ShowType=1", "Base Price=3", "avgPrices=1", "avgPrice=2008.01..2008.06"})
        july.Set(setting);
    const host::Report& report = host::FindReport("price-analysis");

    const auto account = embedded::OpenAccount(*flags.account);
    embedded::Session session(account->Shared()->Duck());
    session.Run(LedgerView());
    run.Run(report, july);
    RunPasses(session);
    RunBestQuery(session);
    const std::vector<double> ofReport = SumsOfReport(run);
    const std::vector<double> ofPasses = SumsOf(session, "bench_result");
    const std::vector<double> ofQuery = SumsOf(session, "bench_best");
    Print("report:", ofReport);
    Print("passes:", ofPasses);
    Print("query:", ofQuery);
    if (!Agree(ofReport, ofPasses) || !Agree(ofReport, ofQuery)) {
        fmt::print(stderr, "They don't agree.\n");
        return 1;
    }

    std::vector<bench::Contender> contenders;
    contenders.push_back({"report", [&] { run.Run(report, july); }});
    contenders.push_back({"same passes by hand", [&] { RunPasses(session); }});
    contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
    bench::MeasureInTurn(contenders, rounds);
    bench::PrintTable(contenders);
}
