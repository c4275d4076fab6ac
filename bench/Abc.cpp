// The ABC analysis of a month: the report itself, the same passes written by hand in DuckDB SQL, and the best
// single DuckDB query that gives the same rows; in one process, on one database, in turn.
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

constexpr const char* kMonth = "6";
const std::string kRows =
    " from account.main.IA_Summary s left join account.main.Inventory i on i.cInvCode = s.cInvCode";
const std::string kCondition =
    std::string(" s.iYear = 2008 and s.iMonth = ") + kMonth +
    " and (s.cWhCode in (select cWhCode from account.main.Warehouse where bInCost) or s.cWhCode is null)";
const std::string kMoney = "coalesce(s.iMoney, 0) + coalesce(s.iDif, 0)";

const std::string kByQuantity =
    "case when quantityShare < 0 then '' when quantityShare < 0.2 then 'A'"
    " when quantityShare < 0.5 then 'B' else 'C' end";
const std::string kByMoney =
    "case when moneyShare < 0 then '' when moneyShare < 0.1 then 'C'"
    " when moneyShare < 0.7 then 'B' else 'A' end";
const std::string kClass =
    "case when byQuantity = 'B' or byMoney = 'B' then 'B'"
    " when byQuantity = 'C' or byMoney = 'C' then 'C' else 'A' end";

std::string ResultOf(const std::string& table)
{
    return "select i.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd, u.cComUnitName, quantity, quantityShare,"
           " money, moneyShare, class, 1 as number from " +
           table +
           " r left join account.main.Inventory i on i.cInvCode = r.cInvCode"
           " left join account.main.ComputationUnit u on u.cComUnitCode = i.cComUnitCode";
}

// The report's passes, each as a DuckDB user would write it.
void RunPasses(embedded::Session& session)
{
    const std::string table = "work.main.bench_abc_";
    for (const char* name : {"items", "shares", "passes"})
        session.Run("drop table if exists " + table + name);
    auto quantity =
        session.Run("select coalesce(sum(s.iNum), 0)" + kRows + " where s.iNum > 0 and" + kCondition);
    auto money = session.Run("select coalesce(sum(" + kMoney + "), 0)" + kRows + " where " + kMoney +
                             " > 0 and" + kCondition);
    session.Run("create table " + table + "items as select distinct s.cInvCode, i.cInvCCode" + kRows +
                " where not i.bService and not i.bInvType and" + kCondition);
    session.Run(
        "create table " + table + "shares as select s.cInvCode, sum(s.iNum) as quantity, sum(" + kMoney +
        ") as money, cast(0 as decimal(32,4)) as quantityShare, cast(0 as decimal(32,4)) as moneyShare,"
        " '' as byQuantity, '' as byMoney, '' as class" +
        kRows + " where " + kCondition + " group by all");
    session.Run("update " + table +
                "shares set quantityShare = case when quantity > 0 then quantity / cast(" +
                ToText(quantity.Get(0, 0)) +
                " as double) else 0 end, moneyShare = case when money > 0 then money /"
                " cast(" +
                ToText(money.Get(0, 0)) + " as double) else 0 end");
    for (const std::string share : {"quantityShare", "moneyShare"}) {
        const std::string largest =
            "(select cInvCode from " + table + "shares order by " + share + " desc, cInvCode limit 1)";
        session.Run("update " + table + "shares set " + share + " = 1 - (select coalesce(sum(" + share +
                    "), 0) from " + table + "shares where cInvCode <> " + largest +
                    ") where cInvCode = " + largest);
    }
    session.Run("update " + table + "shares set byQuantity = " + kByQuantity + ", byMoney = " + kByMoney);
    session.Run("update " + table + "shares set class = " + kClass);
    session.Run("create table " + table + "passes as " + ResultOf(table + "shares"));
    for (const char* name : {"items", "shares"})
        session.Run("drop table " + table + name);
}

void RunBestQuery(embedded::Session& session)
{
    const auto shared = [](const std::string& value) {
        return "cast(case when " + value + " > 0 then " + value + " / cast(" + value +
               "Total as double) else 0 end as"
               " decimal(32,4))";
    };
    session.Run("drop table if exists work.main.bench_abc_best");
    session.Run(
        "create table work.main.bench_abc_best as with sums as (select s.cInvCode, sum(s.iNum) as quantity, sum(" +
        kMoney + ") as money, sum(s.iNum) filter (where s.iNum > 0) as quantityAbove, sum(" + kMoney +
        ") filter (where " + kMoney + " > 0) as moneyAbove from account.main.IA_Summary s where " +
        kCondition +
        " group by all),"
        " totals as (select *, sum(quantityAbove) over () as quantityTotal, sum(moneyAbove) over () as moneyTotal"
        " from sums),"
        " rounded as (select *, " +
        shared("quantity") + " as quantityPart, " + shared("money") +
        " as moneyPart from totals),"
        " ranked as (select *, row_number() over (order by quantityPart desc, cInvCode) as quantityRank,"
        " row_number() over (order by moneyPart desc, cInvCode) as moneyRank, sum(quantityPart) over () as quantitySum,"
        " sum(moneyPart) over () as moneySum from rounded),"
        " shares as (select cInvCode, quantity, money,"
        " case when quantityRank = 1 then quantityPart + 1 - quantitySum else quantityPart end as quantityShare,"
        " case when moneyRank = 1 then moneyPart + 1 - moneySum else moneyPart end as moneyShare from ranked),"
        " grades as (select *, " +
        kByQuantity + " as byQuantity, " + kByMoney +
        " as byMoney from shares),"
        " classes as (select *, " +
        kClass + " as class from grades) " + ResultOf("classes"));
}

std::string Fingerprint(const Value& rows, const Value& quantity, const Value& quantityShares,
                        const Value& money, const Value& moneyShares, const Value& classes)
{
    return fmt::format("{} rows, quantity {}, shares {}, money {}, shares {}, {} of class C", ToText(rows),
                       ToText(quantity), ToText(quantityShares), ToText(money), ToText(moneyShares),
                       ToText(classes));
}

std::string FingerprintOfReport(host::ReportRun& run)
{
    const auto rows = run.Account().OpenRecordset(
        "select count(*), cast(sum(分析_数量) as decimal(38,2)), sum(分析_数量比例), cast(sum(分析_金额) as decimal(38,2)),"
        " sum(分析_金额比例), sum(case when 分析_ABC类别 = 'C' then 1 else 0 end) from " +
            run.TableName(),
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return Fingerprint(rows->Field(0), rows->Field(1), rows->Field(2), rows->Field(3), rows->Field(4),
                       rows->Field(5));
}

std::string FingerprintOf(embedded::Session& session, const std::string& table)
{
    auto rows = session.Run(
        "select count(*), cast(sum(quantity) as decimal(38,2)), sum(quantityShare),"
        " cast(sum(money) as decimal(38,2)), sum(moneyShare), cast(count(*) filter"
        " (where class = 'C') as integer) from work.main.bench_abc_" +
        table);
    return Fingerprint(rows.Get(0, 0), rows.Get(0, 1), rows.Get(0, 2), rows.Get(0, 3), rows.Get(0, 4),
                       rows.Get(0, 5));
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 15;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-abc [LINES [ROUNDS]]\n");
        return 2;
    }
    host::Flags flags;
    flags.account = bench::DemoAccount(lines).string();
    flags.year = 2008;
    const host::Config config = host::Config::Load(flags);
    host::AccountLogin login = host::LoginFor(config, *config.Account());
    login.settingsFile = flags.account.value() + ".settings.json";  // the thresholds are those by default
    host::ReportRun run(std::move(login), host::ConnectionSource());
    host::FilterInput month(host::TemplateOf("abc"), host::ValuePolicy::Checked);
    month.Set("iperiod", std::string(kMonth) + "月");
    const host::Report& report = host::FindReport("abc");

    const auto account = embedded::OpenAccount(*flags.account);
    embedded::Session session(account->Shared()->Duck());
    run.Run(report, month);
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
    contenders.push_back({"report", [&] { run.Run(report, month); }});
    contenders.push_back({"same passes by hand", [&] { RunPasses(session); }});
    contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
    bench::MeasureInTurn(contenders, rounds);
    bench::PrintTable(contenders);
}
