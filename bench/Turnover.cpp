// The inventory turnover of a year by warehouse and item: the report itself, the same passes written by hand
// in DuckDB SQL, and the best single DuckDB query that gives the same rows; in one process, on one database,
// in turn.
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

// What each pass reads and how it groups.
constexpr const char* kLedger =
    " from account.main.IA_Subsidiary s left join account.main.Inventory i on i.cInvCode = s.cInvCode";
constexpr const char* kGroups = "s.cWhCode, i.cInvCCode, i.cInvCode";
constexpr const char* kGroupBy = " group by s.cWhCode, i.cInvCCode, i.cInvCode";

constexpr const char* kBroughtForward =
    "(s.iMonth = 0 and (s.cVouType = '34' or s.cBusType in ('直运采购', '直运销售')))";

std::string Sum(const std::string& quantity)
{
    return "sum(cast(" + quantity + " as decimal(38,2)))";
}

// DuckDB rounds a number of up to 18 digits far quicker than a longer one.
std::string Cents(const std::string& money)
{
    return "cast(cast(" + money + " as decimal(18,4)) as decimal(18,2))";
}
std::string SumOfMoney(const std::string& money)
{
    return Sum(Cents(money));
}
const std::string kMoney =
    "coalesce(s.iAInPrice, 0) - coalesce(s.iAOutPrice, 0) + coalesce(s.iDebitDifCost, 0)"
    " - coalesce(s.iCreditDifCost, 0)";
const std::string kQuantity = "coalesce(s.iAInQuantity, 0) - coalesce(s.iAOutQuantity, 0)";
const std::string kIssued =
    "coalesce(s.iAOutPrice, 0)"
    " + case when s.bRdFlag = 1 then 0 else coalesce(s.iCreditDifCost, 0) end";

// Stock before a day, or at its end.
std::string StockBefore(const std::string& comparison, const std::string& day)
{
    return " where s.iYear = 2008 and ((s.iMonth <> 0 and s.cVouType <> '33' and s.dKeepDate " + comparison +
           " " + day + ") or " + kBroughtForward + ")";
}
std::string InRange(const std::string& last)
{
    return std::string(" where s.iYear = 2008 and s.dKeepDate >= ") + kFirst + " and s.dKeepDate <= " + last;
}

struct Range {
    std::string last;  // a timestamp
    std::string days;
};

Range RangeOf(embedded::Session& session)
{
    auto row = session.Run(
        "select strftime(max(dKeepDate), '%Y-%m-%d'), date_diff('day', date '2008-01-01',"
        " cast(max(dKeepDate) as date)) + 1 from account.main.IA_Subsidiary where iYear = 2008");
    return {"timestamp '" + ToText(row.Get(0, 0)) + "'", ToText(row.Get(0, 1))};
}

// The report's passes, each as a DuckDB user would write it.
void RunPasses(embedded::Session& session)
{
    const auto [last, days] = RangeOf(session);
    const std::string zero = "cast(0 as decimal(38,2))";
    const std::string table = "work.main.bench_turnover_";
    const auto make = [&](const char* name, const std::string& select) {
        session.Run("drop table if exists " + table + name);
        session.Run("create table " + table + name + " as select " + select);
    };
    const auto add = [&](const char* name, const std::string& select) {
        session.Run("insert into " + table + name + " select " + select);
    };
    const std::string groups = std::string(kGroups) + ", ";
    make("rows", groups + zero + " as opening, " + zero + " as closing, " + zero + " as avgQuantity, " +
                     zero + " as avgMoney, " + Sum("coalesce(s.iAOutQuantity, 0)") + " as outQuantity, " +
                     SumOfMoney(kIssued) + " as outMoney" + kLedger + InRange(last) + kGroupBy);
    const std::string rest = ", " + zero + ", " + zero + ", " + zero + ", " + zero;
    add("rows",
        groups + SumOfMoney(kMoney) + ", " + zero + rest + kLedger + StockBefore("<", kFirst) + kGroupBy);
    add("rows",
        groups + zero + ", " + SumOfMoney(kMoney) + rest + kLedger + StockBefore("<=", last) + kGroupBy);

    make("detail", groups + Sum(kQuantity) + " as quantity, " + SumOfMoney(kMoney) + " as money, cast(" +
                       days + " as decimal(38,2)) as days, cast(null as timestamp) as day" + kLedger +
                       StockBefore("<", kFirst) + kGroupBy);
    add("detail", groups + Sum(kQuantity) + ", " + SumOfMoney(kMoney) + ", date_diff('day', s.dKeepDate, " +
                      last + ") + 0.5, s.dKeepDate" + kLedger + InRange(last) + " and s.iMonth <> 0" +
                      kGroupBy + ", s.dKeepDate");
    make("average", "cWhCode, cInvCCode, cInvCode, cast(sum(quantity * days) / " + days +
                        " as decimal(38,2)) as avgQuantity, cast(sum(money * days) / " + days +
                        " as decimal(38,2)) as avgMoney from " + table + "detail group by all");
    add("rows", "cWhCode, cInvCCode, cInvCode, " + zero + ", " + zero + ", avgQuantity, avgMoney, " + zero +
                    ", " + zero + " from " + table + "average");
    make("rates",
         "cWhCode, cInvCCode, cInvCode, sum(opening) as opening, sum(closing) as closing, sum(avgMoney) as"
         " avgMoney, sum(outMoney) as outMoney, cast(case when sum(avgMoney) > 0 then sum(outMoney) /"
         " cast(sum(avgMoney) as double) else 0 end as decimal(38,6)) as rate, cast(case when"
         " sum(avgQuantity) > 0 then sum(outQuantity) / sum(avgQuantity) else 0 end as decimal(38,2)) as"
         " quantityRate, cast(0 as double) as days, cast(0 as double) as quantityDays from " +
             table + "rows group by cWhCode, cInvCCode, cInvCode");
    session.Run(
        "update " + table + "rates set quantityDays = case when quantityRate > 0 then cast(" + days +
        " / quantityRate as decimal(38,2)) else 0 end, days = case when cast(rate as decimal(38,2)) > 0 then"
        " cast(" +
        days + " / rate as decimal(38,2)) else 0 end");
    make("passes",
         "r.cWhCode, w.cWhName, i.cInvCCode, i.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd,"
         " u.cComUnitName, opening, closing, avgMoney, outMoney, rate, days from " +
             table +
             "rates r left join account.main.Warehouse w on w.cWhCode = r.cWhCode"
             " left join account.main.Inventory i on i.cInvCode = r.cInvCode"
             " left join account.main.ComputationUnit u on u.cComUnitCode = i.cComUnitCode");
    for (const char* name : {"rows", "detail", "average", "rates"})
        session.Run("drop table " + table + name);
}

// One pass over the ledger; amounts are narrow enough for 18 digits.
void RunBestQuery(embedded::Session& session)
{
    const auto [last, days] = RangeOf(session);
    session.Run("drop table if exists work.main.bench_turnover_best");
    session.Run(
        "create table work.main.bench_turnover_best as with lines as (select s.cWhCode, s.cInvCode, s.dKeepDate,"
        " " +
        Cents(kMoney) + " as money, " + Cents(kIssued) + " as issued, " + kBroughtForward +
        " as brought, s.iMonth <> 0 as moved, s.cVouType <> '33' as counts"
        " from account.main.IA_Subsidiary s where s.iYear = 2008),"
        " sums as (select cWhCode, cInvCode,"
        " sum(money) filter (where brought or (moved and counts and dKeepDate < " +
        kFirst +
        ")) as opening,"
        " sum(money) filter (where brought or (moved and counts and dKeepDate <= " +
        last +
        ")) as closing,"
        " sum(issued) filter (where dKeepDate between " +
        kFirst + " and " + last +
        ") as outMoney,"
        " sum(money * (2 * date_diff('day', dKeepDate, " +
        last +
        ") + 1))"
        " filter (where moved and dKeepDate between " +
        kFirst + " and " + last +
        ") as halfDays"
        " from lines group by all),"
        " averages as (select cWhCode, cInvCode, coalesce(opening, 0) as opening, coalesce(closing, 0) as closing,"
        " coalesce(outMoney, 0) as outMoney, cast((coalesce(opening, 0) * " +
        days + " + coalesce(halfDays, 0) / 2) / " + days +
        " as decimal(38,2)) as avgMoney from sums),"
        " rates as (select *, case when avgMoney > 0 then cast(outMoney / cast(avgMoney as double) as decimal(38,6))"
        " else 0 end as rate from averages)"
        " select r.cWhCode, w.cWhName, i.cInvCCode, i.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd,"
        " u.cComUnitName, opening, closing, avgMoney, outMoney, rate,"
        " case when cast(rate as decimal(38,2)) > 0 then round(" +
        days +
        " / rate, 2) else 0 end as days"
        " from rates r left join account.main.Warehouse w on w.cWhCode = r.cWhCode"
        " left join account.main.Inventory i on i.cInvCode = r.cInvCode"
        " left join account.main.ComputationUnit u on u.cComUnitCode = i.cComUnitCode");
}

std::string Fingerprint(const Value& rows, const Value& opening, const Value& closing, const Value& average,
                        const Value& issued, const Value& rates)
{
    return fmt::format("{} rows, opening {}, closing {}, average {}, issued {}, rates {}", ToText(rows),
                       ToText(opening), ToText(closing), ToText(average), ToText(issued), ToText(rates));
}

std::string FingerprintOfReport(host::ReportRun& run)
{
    const auto rows = run.Account().OpenRecordset(
        "select count(*), sum(分析_期初余额), sum(分析_期末余额), sum(分析_平均库存), sum(分析_出库成本),"
        " sum(分析_周转率) from " +
            run.TableName(),
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return Fingerprint(rows->Field(0), rows->Field(1), rows->Field(2), rows->Field(3), rows->Field(4),
                       rows->Field(5));
}

std::string FingerprintOf(embedded::Session& session, const std::string& table)
{
    auto rows = session.Run(
        "select count(*), sum(opening), sum(closing), sum(avgMoney), sum(outMoney), sum(rate)"
        " from work.main.bench_turnover_" +
        table);
    return Fingerprint(rows.Get(0, 0), rows.Get(0, 1), rows.Get(0, 2), rows.Get(0, 3), rows.Get(0, 4),
                       rows.Get(0, 5));
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 9;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-turnover [LINES [ROUNDS]]\n");
        return 2;
    }
    host::Flags flags;
    flags.account = bench::DemoAccount(lines).string();
    flags.year = 2008;
    const host::Config config = host::Config::Load(flags);
    host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource());
    const host::FilterInput wholeYear(host::TemplateOf("turnover"), host::ValuePolicy::Checked);
    const host::Report& report = host::FindReport("turnover");

    const auto account = embedded::OpenAccount(*flags.account);
    embedded::Session session(account->Shared()->Duck());
    run.Run(report, wholeYear);
    RunPasses(session);
    RunBestQuery(session);
    const std::string ofReport = FingerprintOfReport(run);
    const std::string ofPasses = FingerprintOf(session, "passes");
    const std::string ofQuery = FingerprintOf(session, "best");
    fmt::print("report: {}\npasses: {}\nquery:  {}\n\n", ofReport, ofPasses, ofQuery);
    if (ofReport != ofPasses || ofReport != ofQuery) {
        fmt::print(stderr, "They don't agree.\n");
        return 1;
    }

    std::vector<bench::Contender> contenders;
    contenders.push_back({"report", [&] { run.Run(report, wholeYear); }});
    contenders.push_back({"same passes by hand", [&] { RunPasses(session); }});
    contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
    bench::MeasureInTurn(contenders, rounds);
    bench::PrintTable(contenders);
}
