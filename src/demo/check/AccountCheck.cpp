#include "demo/check/AccountCheck.h"

#include "demo/check/CheckFacts.h"
#include "demo/check/DocumentStatements.h"
#include "demo/check/LedgerStatements.h"
#include "demo/check/LinkStatements.h"
#include "demo/check/TransitStatements.h"
#include "frame/Value.h"

#include <span>

namespace kavelin::demo {

namespace {

using Statement = std::string (*)(const CheckFacts&);

// For a statement that needs to know nothing.
template <std::string (*function)()>
std::string Plain(const CheckFacts&)
{
    return function();
}

std::string CountSummaryRows(const CheckFacts&)
{
    return "select count(*) from #CheckSummary";
}

std::string CountLedgerRows(const CheckFacts&)
{
    return "select count(*) from IA_Subsidiary";
}

std::string CountTransitRows(const CheckFacts&)
{
    return "select count(*) from IA_EnSubsidiary";
}

std::string CountVouchers(const CheckFacts&)
{
    return "select count(*) from gl_AccVouch";
}

struct Count {
    std::string_view one, many;
    Statement statement;  // gives the number
};

struct Check {
    std::string_view name, claim;
    std::vector<Count> counts;
    Statement differences;  // gives no row, or up to kShownDifferences + 1 that break the claim
};

constexpr Statement kWorkTables[] = {GatherLedger, GatherSummary, GatherPostings};
constexpr std::string_view kDropWorkTables[] = {"drop table #CheckLedger", "drop table #CheckSummary",
                                                "drop table #CheckPosting"};

const std::vector<Check>& Checks()
{
    static const Count costingKeys = {"costing key", "costing keys", CountCostingKeys};
    static const Count months = {"month", "months", CountSummaryRows};
    static const Count ledgerRows = {"ledger row", "ledger rows", CountLedgerRows};
    static const Count transitRows = {"row in transit", "rows in transit", CountTransitRows};
    static const Count sources = {"source line", "source lines", Plain<CountTransitSources>};
    static const Count posted = {"posted line", "posted lines", Plain<CountPostedLines>};
    static const Count unposted = {"unposted line", "unposted lines", Plain<CountUnpostedLines>};
    static const Count directMonths = {"month of direct business", "months of direct business",
                                       Plain<CountDirectMonths>};
    static const Count vouchers = {"voucher", "vouchers", CountVouchers};
    static const Count settlements = {"settlement", "settlements", Plain<CountSettlements>};
    static const Count standards = {"standard cost", "standard costs", Plain<CountStandardCosts>};

    static const std::vector<Check> checks = {
        {"balance", "opening + receipts - issues = closing", {costingKeys, months}, BrokenBalances},
        {"summary",
         "the monthly summary says what the ledger says",
         {ledgerRows, months},
         SummaryDifferences},
        {"summary-rows",
         "each month with movements has one summary row",
         {months},
         SummaryRowsMissingOrDouble},
        {"summary-months",
         "no month is left out between the first and the last",
         {costingKeys},
         MonthsLeftOut},
        {"direct", "direct business stands apart in the summary", {directMonths}, Plain<DirectDifferences>},
        {"transit-sign",
         "goods in transit never fall through zero",
         {sources},
         Plain<TransitBalancesThatCross>},
        {"transit-source", "only what went in is taken out", {transitRows}, Plain<TakenOutOfNothing>},
        {"transit-amount", "no amount stays in transit without goods", {sources}, Plain<AmountsWithoutGoods>},
        {"posted", "each posted line stands in its ledger once", {posted}, Plain<PostedLinesNotOnceInLedger>},
        {"unposted", "no unposted line stands in a ledger", {unposted}, Plain<UnpostedLinesInLedger>},
        {"quantities", "documents and ledger tell the same quantities", {posted}, QuantitiesThatDiffer},
        {"journal-views",
         "the journal's views show each unposted line, and no other",
         {unposted},
         Plain<WrongInJournalViews>},
        {"summary-views",
         "so do the views of the summary of receipts and issues",
         {unposted},
         WrongInSummaryViews},
        {"master-data",
         "codes of the ledgers are in the master data",
         {ledgerRows, transitRows},
         Plain<MissingMasterData>},
        {"vouchers", "links lead to accounting vouchers", {vouchers}, Plain<MissingVouchers>},
        {"settlements", "settlements of estimates are there", {settlements}, Plain<MissingSettlements>},
        {"standard-costs",
         "standard cost + differences = actual cost",
         {standards},
         Plain<StandardCostsThatDiffer>},
        {"single-rows", "rows that stand for a key stand alone", {}, Plain<DoubleRows>},
    };
    return checks;
}

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

void ReadDifferences(Recordset& rows, CheckResult& result)
{
    for (int field = 0; field < rows.FieldCount(); ++field)
        result.columns.push_back(rows.FieldName(field));
    for (; !rows.Eof(); rows.MoveNext()) {
        if (result.differences.size() == kShownDifferences) {
            result.more = true;
            return;
        }
        std::vector<std::string>& row = result.differences.emplace_back();
        for (int field = 0; field < rows.FieldCount(); ++field) {
            const Value value = rows.Field(field);
            row.push_back(value.IsNull() ? "" : ToText(value));
        }
    }
}

CheckResult Run(const Check& check, const CheckFacts& facts, Connection& connection)
{
    CheckResult result;
    result.name = check.name;
    result.claim = check.claim;
    for (const Count& count : check.counts) {
        const std::int64_t number = ToInt32(Open(connection, count.statement(facts))->Field(0));
        result.counted.push_back({number, std::string(number == 1 ? count.one : count.many)});
    }
    ReadDifferences(*Open(connection, check.differences(facts)), result);
    return result;
}

}  // namespace

std::vector<CheckResult> CheckAccount(Connection& connection, const CheckProgress& progress)
{
    const auto tell = [&](std::string_view what) {
        if (progress)
            progress(what);
    };
    tell("the ledgers are read");
    const CheckFacts facts = ReadFacts(connection);
    for (const Statement statement : kWorkTables)
        connection.Execute(statement(facts));

    std::vector<CheckResult> results;
    for (const Check& check : Checks()) {
        tell(check.claim);
        results.push_back(Run(check, facts, connection));
    }
    for (const std::string_view statement : kDropWorkTables)
        connection.Execute(std::string(statement));
    return results;
}

}  // namespace kavelin::demo
