// The journal of a generated ledger, all posted rows: the report itself, the same passes written by hand in DuckDB
// SQL, and the best single DuckDB query that gives the same rows; in one process, on one database, in turn.
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

// `piece` for each number, "{0}" in it replaced.
std::string Numbered(int first, int last, const char* piece)
{
    std::string text;
    for (int number = first; number <= last; ++number)
        text += fmt::format(fmt::runtime(piece), number);
    return text;
}

std::string UserFields()
{
    return Numbered(1, 16, ", l.cDefine{0}") + Numbered(22, 37, ", l.cDefine{0}") +
           Numbered(1, 16, ", i.cInvDefine{0}") + Numbered(1, 10, ", l.cFree{0}");
}

constexpr const char* kPlanned = "w.cWhValueStyle in ('计划价法', '售价法')";

// The columns of the journal. `voucher` is what stands as the number of the accounting voucher.
std::string Columns(const std::string& voucher)
{
    const std::string unit = "case when l.cVouType in ('20', '21') then null else {} end";
    return "l.dVouDate, l.cVouCode, l.dKeepDate, l.cAccounter, " + voucher +
           " as voucher, l.cPZdigest, l.cBusType, l.cBusCode, w.cWhCode, w.cWhName, d.cDepName, r.cRdName, c.cCCCode,"
           " c.cCusCode, c.cCusName, v.cVCCode, v.cVenCode, v.cVenName, l.cHandler, l.strContractCode,"
           " l.cProOrderCode, cast(l.iProOrderIDs as varchar) as orderLine, l.cWorkProCodeDis, l.cWorkCenterName,"
           " l.cSaleOrderCode, cast(l.iSaleOrderIDs as varchar) as saleLine, l.exoCode,"
           " cast(l.iExRowNo as varchar) as exportLine, l.cEntrustOrderCode, l.cPurOrderCode, l.cImOrderCode,"
           " l.cItem_class, l.cItemCName, l.cItemCode, l.cName, i.cInvCCode, i.cInvCode, i.cInvName, i.cInvAddCode,"
           " i.cInvStd, l.cBatchIA, l.cProCode, u1.cComUnitName as unit, coalesce(u2.cComUnitName, '') as second,"
           " u2.iChangRate, l.iAInQuantity, " +
           fmt::format(fmt::runtime(unit), "l.iInCost") + " as inCost, l.iAInPrice, l.iAOutQuantity, " +
           fmt::format(fmt::runtime(unit), "l.iOutCost") + " as outCost, l.iAOutPrice, case when " +
           kPlanned + " then p.fInvRCost end as plan, case when " + kPlanned +
           " then case when l.bFlag = 0 then p.fInvRCost * l.iAOutQuantity else p.fInvRCost * l.iAInQuantity end end as"
           " planned, l.iDebitDifCost, l.iCreditDifCost" +
           UserFields() +
           ", l.cMemo, cast(l.AutoID as varchar) as AutoID, cast(l.iPZID as varchar) as ID, l.bRdFlag <> 0 as bRdFlag,"
           " l.cVouType, l.cPZID, l.cDemandCode, l.cDemandMemo, l.iMaterialFee, l.iProcessFee, e.EnumName";
}

std::string From()
{
    return " from account.main.IA_Subsidiary l"
           " join account.main.Inventory i on i.cInvCode = l.cInvCode"
           " left join account.main.Vendor v on v.cVenCode = l.cVenCode"
           " left join account.main.Customer c on c.cCusCode = l.cCusCode"
           " left join account.main.Warehouse w on w.cWhCode = l.cWhCode"
           " left join account.main.Department d on d.cDepCode = l.cAccDep"
           " left join account.main.Rd_Style r on r.cRdCode = l.cRdCode"
           " left join account.main.AA_Enum e on e.EnumType = 'IA.costsource' and e.EnumCode = l.costsource"
           " and e.LocaleID = 'zh-CN'"
           " left join account.main.Demo_PlannedPrice p on p.cInvCode = l.cInvCode" +
           Numbered(1, 10,
                    " and (not i.bCheckFree{0} or coalesce(p.cFree{0}, '') = coalesce(l.cFree{0}, ''))") +
           " left join account.main.ComputationUnit u1 on u1.cComUnitCode = i.cComUnitCode"
           " left join account.main.ComputationUnit u2 on u2.cComUnitCode = i.cSTComUnitCode";
}

constexpr const char* kCondition =
    " where l.cVouType not in ('33', '34') and (l.cWhCode in (select cWhCode from account.main.Warehouse where bInCost)"
    " or l.cWhCode is null) and l.dKeepDate >= timestamp '2008-01-01' and l.iMonth <> 0";
constexpr const char* kOrdinary =
    " and left(coalesce(l.cBusType, ''), 2) <> '直运' and not (l.cVouType = '20' and coalesce(l.iAInPrice, 0) = 0"
    " and coalesce(l.iDebitDifCost, 0) = 0 and coalesce(l.iCreditDifCost, 0) = 0)";
constexpr const char* kDirect = " and left(coalesce(l.cBusType, ''), 2) = '直运'";
constexpr const char* kOrder = " order by coalesce(l.bakID, l.AutoID)";

// The report's passes, each as a DuckDB user would write it.
void RunPasses(embedded::Session& session)
{
    const std::string table = "work.main.bench_journal";
    session.Run("drop table if exists " + table);
    session.Run("create table " + table + " as select " + Columns("cast(null as varchar)") + From() +
                " limit 0");
    session.Run("insert into " + table + " select " + Columns("null") + From() + kCondition + kOrdinary +
                kOrder);
    session.Run("insert into " + table + " select " + Columns("null") + From() + kCondition + kDirect +
                kOrder);
    session.Run(
        "update " + table +
        " j set voucher = cast(g.iNo_ID as varchar) from account.main.gl_AccVouch g where g.cOutNo_ID = j.cPZID");
    session.Run("delete from " + table + " where coalesce(voucher, '') <> '' and '' <> ''");
    session.Run("update " + table +
                " j set voucher = g.cSign || cast(g.iNo_ID as varchar) from account.main.gl_AccVouch g"
                " where g.cOutNo_ID = j.cPZID");
    session.Run("update " + table +
                " set iProcessFee = null, iMaterialFee = null where coalesce(cBusType, '') <> '委外加工'");
}

void RunBestQuery(embedded::Session& session)
{
    session.Run("drop table if exists work.main.bench_best");
    session.Run("create table work.main.bench_best as select " +
                Columns("g.cSign || cast(g.iNo_ID as varchar)") + From() +
                " left join account.main.gl_AccVouch g on g.cOutNo_ID = l.cPZID" + kCondition +
                " and (left(coalesce(l.cBusType, ''), 2) = '直运' or (true" + kOrdinary + "))" + kOrder);
}

std::string FingerprintOfReport(host::ReportRun& run)
{
    const auto rows = run.Account().OpenRecordset(
        "select count(*), sum(收入金额), sum(发出金额), count(凭证号) from " + run.TableName(),
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return fmt::format("{} rows, in {}, out {}, {} with vouchers", ToText(rows->Field(0)),
                       ToText(rows->Field(1)), ToText(rows->Field(2)), ToText(rows->Field(3)));
}

std::string FingerprintOf(embedded::Session& session, const std::string& table)
{
    auto rows = session.Run(
        "select count(*), cast(sum(iAInPrice) as decimal(38,4)), cast(sum(iAOutPrice) as"
        " decimal(38,4)), count(voucher) from work.main." +
        table);
    return fmt::format("{} rows, in {}, out {}, {} with vouchers", ToText(rows.Get(0, 0)),
                       ToText(rows.Get(0, 1)), ToText(rows.Get(0, 2)), ToText(rows.Get(0, 3)));
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const std::int64_t lines = argumentCount > 1 ? std::atoll(arguments[1]) : 1'000'000;
    const int rounds = argumentCount > 2 ? std::atoi(arguments[2]) : 5;
    if (lines <= 0 || rounds <= 0) {
        fmt::print(stderr, "bench-journal [LINES [ROUNDS]]\n");
        return 2;
    }
    host::Flags flags;
    flags.account = bench::DemoAccount(lines).string();
    const host::Config config = host::Config::Load(flags);
    host::ReportRun run(host::LoginFor(config, *config.Account()), host::ConnectionSource());
    host::FilterInput posted(host::TemplateOf("journal"), host::ValuePolicy::Checked);
    posted.Set("vouEstate", "已记账单据");
    posted.Set("iMonth", "");  // all of them
    const host::Report& report = host::FindReport("journal");

    const auto account = embedded::OpenAccount(*flags.account);
    embedded::Session session(account->Shared()->Duck());
    run.Run(report, posted);
    RunPasses(session);
    RunBestQuery(session);
    const std::string ofReport = FingerprintOfReport(run);
    const std::string ofPasses = FingerprintOf(session, "bench_journal");
    const std::string ofQuery = FingerprintOf(session, "bench_best");
    fmt::print("report: {}\npasses: {}\nquery:  {}\n\n", ofReport, ofPasses, ofQuery);
    if (ofReport != ofPasses || ofReport != ofQuery) {
        fmt::print(stderr, "They don't agree.\n");
        return 1;
    }

    std::vector<bench::Contender> contenders;
    contenders.push_back({"report", [&] { run.Run(report, posted); }});
    contenders.push_back({"same passes by hand", [&] { RunPasses(session); }});
    contenders.push_back({"best single query by hand", [&] { RunBestQuery(session); }});
    bench::MeasureInTurn(contenders, rounds);
    bench::PrintTable(contenders);
}
