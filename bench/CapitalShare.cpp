// The capital share over a generated account: the report itself, the same passes written by hand in DuckDB
// SQL, and the best single DuckDB query that gives the same rows; in one process, on one database, in turn.
// The whole command, from its start to its end, is measured at last.
#include "DemoAccount.h"
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/Instance.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/ReportRun.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using namespace kavelin;

constexpr const char* kLedger =
    R"sql("account"."main"."IA_Subsidiary" s
    left join "account"."main"."Inventory" i on i."cInvCode" = s."cInvCode"
    left join "account"."main"."ComputationUnit" u on i."cComUnitCode" = u."cComUnitCode")sql";

constexpr const char* kAmount =
    R"sql(case when s."bRdFlag" = 1
         then coalesce(s."iAInPrice", 0) + coalesce(s."iDebitDifCost", 0) - coalesce(s."iCreditDifCost", 0)
         else 0 end
  - case when s."bRdFlag" = 0
         then coalesce(s."iAOutPrice", 0) + coalesce(s."iCreditDifCost", 0) - coalesce(s."iDebitDifCost", 0)
         else 0 end)sql";

constexpr const char* kCondition =
    R"sql(s."iYear" = 2008 and s."cVouType" <> '33' and (s."cBusType" not like '直运%' or s."cBusType" is null)
    and (s."cWhCode" in (select "cWhCode" from "account"."main"."Warehouse" where "bInCost") or s."cWhCode" is null))sql";

// The report's passes, each as a DuckDB user would write it. `place` is the database of the work tables.
void RunPasses(embedded::Session& session, const std::string& place)
{
    const auto table = [&](const char* name) { return place + ".main." + name; };
    const std::string rows = table("bench_rows");
    const std::string sums = table("bench_sums");
    const std::string ranked = table("bench_ranked");
    const std::string result = table("bench_result");

    for (const std::string& name : {rows, sums, ranked, result})
        session.Run("drop table if exists " + name);
    session.Run(fmt::format(
        R"sql(create table {} as
select s."cInvCode", i."cInvAddCode", i."cInvName", i."cInvStd", u."cComUnitName", i."cInvCCode", {} as amount,
       s."dKeepDate", s."cWhCode"
  from {} where {})sql",
        rows, kAmount, kLedger, kCondition));
    session.Run("select sum(amount) from " + rows);
    session.Run(fmt::format(
        R"sql(create table {0} as
select "cInvCode", "cInvAddCode", "cInvName", "cInvStd", "cComUnitName", "cInvCCode",
       cast(sum(amount) as decimal(38,2)) as amount,
       case when cast((select sum(amount) from {1}) as double) = 0 then 0
            else cast(sum(amount) / cast((select sum(amount) from {1}) as double) * 100 as decimal(38,2)) end as share
  from {1} group by all)sql",
        sums, rows));
    session.Run(fmt::format(
        "create table {} as select row_number() over (order by share desc) as place, * from {} order by 1",
        ranked, sums));
    session.Run("select amount from " + ranked);
    session.Run(fmt::format(
        R"sql(update {0} set share = 100 - (select sum(share) from {0} where "cInvCode" <>
    (select "cInvCode" from {0} order by share desc limit 1))
 where "cInvCode" = (select "cInvCode" from {0} order by share desc limit 1))sql",
        ranked));
    session.Run(fmt::format("create table {} as select * from {}", result, ranked));
    for (const std::string& name : {rows, sums, ranked, result})
        session.Run("drop table " + name);
}

embedded::Result RunBestQuery(embedded::Session& session)
{
    return session.Run(fmt::format(
        R"sql(with sums as (
    select s."cInvCode", sum({}) as amount from "account"."main"."IA_Subsidiary" s where {} group by 1),
shares as (
    select *, cast(amount / cast(sum(amount) over () as double) * 100 as decimal(38,2)) as share from sums),
ranked as (
    select row_number() over (order by share desc) as place, sum(share) over () as total, * from shares)
select place, r."cInvCode", i."cInvAddCode", i."cInvName", i."cInvStd", u."cComUnitName", i."cInvCCode",
       cast(amount as decimal(38,2)) as amount, case when place = 1 then share + 100 - total else share end as share
  from ranked r
       left join "account"."main"."Inventory" i on i."cInvCode" = r."cInvCode"
       left join "account"."main"."ComputationUnit" u on u."cComUnitCode" = i."cComUnitCode"
 order by place)sql",
        kAmount, kCondition));
}

// Rows and sums of a result, so that nobody is fast by being wrong.
std::string Fingerprint(std::int64_t rows, const Value& amount, const Value& share)
{
    return fmt::format("{} rows, amount {}, shares {}", rows, ToText(amount), ToText(share));
}

std::string FingerprintOfReport(host::ReportRun& run)
{
    const auto rows =
        run.Account().OpenRecordset("select count(*), sum(资金占用额), sum(所占比重) from " + run.TableName(),
                                    CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return Fingerprint(ToInt32(rows->Field(0)), rows->Field(1), rows->Field(2));
}

std::string FingerprintOfBestQuery(embedded::Session& session)
{
    auto result = RunBestQuery(session);
    const int amountColumn = 7;
    const int shareColumn = 8;
    Int128 amount = 0;
    Int128 share = 0;
    for (std::int64_t row = 0; row < result.RowCount(); ++row) {
        amount += result.Get(row, amountColumn).As<Decimal>()->Unscaled();
        share += result.Get(row, shareColumn).As<Decimal>()->Unscaled();
    }
    return Fingerprint(result.RowCount(), Decimal(amount, 2), Decimal(share, 2));
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 9;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-capital-share [LINES [ROUNDS]]\n");
        return 2;
    }
    const std::filesystem::path path = bench::DemoAccount(lines);

    std::vector<bench::Contender> contenders;
    {
        host::Flags flags;
        flags.account = path.string();
        flags.year = 2008;
        const host::Config config = host::Config::Load(flags);
        host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource());
        const host::FilterInput noFilter(host::TemplateOf("capital-share"), host::ValuePolicy::Checked);
        const host::Report& report = host::FindReport("capital-share");

        const auto account = embedded::OpenAccount(path.string());
        embedded::Session session(account->Shared()->Duck());

        run.Run(report, noFilter);
        const std::string ofReport = FingerprintOfReport(run);
        const std::string ofQuery = FingerprintOfBestQuery(session);
        fmt::print("report: {}\nquery:  {}\n\n", ofReport, ofQuery);
        if (ofReport != ofQuery) {
            fmt::print(stderr, "The two don't agree.\n");
            return 1;
        }

        contenders.push_back({"report", [&] { run.Run(report, noFilter); }});
        contenders.push_back(
            {"same passes by hand, work tables in memory", [&] { RunPasses(session, "work"); }});
        contenders.push_back(
            {"same passes by hand, work tables in the file", [&] { RunPasses(session, "account"); }});
        contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
        bench::MeasureInTurn(contenders, rounds);
    }
    const std::string command = fmt::format("{} run capital-share --account {} --format csv > /dev/null",
                                            KAVELIN_PROGRAM, path.string());
    std::vector<bench::Contender> whole;
    whole.push_back({"whole command", [&] {
                         if (std::system(command.c_str()) != 0)
                             std::exit(1);
                     }});
    bench::MeasureInTurn(whole, rounds);

    contenders.push_back(whole.front());
    bench::PrintTable(contenders);
}
