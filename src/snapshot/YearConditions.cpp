#include "snapshot/YearConditions.h"

#include "embedded/Catalog.h"
#include "frame/Text.h"
#include "snapshot/Literal.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>

namespace kavelin::snapshot {

namespace {

constexpr std::string_view kYears = "iYear between {from} and {to}";
constexpr std::string_view kOfStock = " in (select AutoID from IA_Subsidiary where {years})";
constexpr std::string_view kOfTransit = " in (select AutoID from IA_EnSubsidiary where {years})";

// Lines that are open, or that a ledger row of the years goes back to.
constexpr std::string_view kOpenOrNamed =
    "(isnull(cAccounter, N'') = N''"
    " or LineID in (select ID from IA_Subsidiary where {years} and ID is not null)"
    " or LineID in (select inid from IA_EnSubsidiary where {years})"
    " or LineID in (select iSrcID from IA_EnSubsidiary where {years})"
    " or LineID in (select OutID from IA_EnSubsidiary where {years} and OutID is not null)"
    " or LineID in (select iDLsID from IA_EnSubsidiary where {years} and iDLsID is not null))";
constexpr std::string_view kDated = "dVouDate >= {first} and dVouDate < {end}";

struct Rule {
    std::string_view table;
    std::string condition;
};

// {years}, {dated} and {open} stand for the conditions above.
const Rule kRules[] = {
    {"VosSystem..UA_Period", "iYear <= {to}"},
    {"IA_Subsidiary", "{years}"},
    {"IA_EnSubsidiary", "{years}"},
    {"IA_Summary", "{years}"},
    {"IA_EnSubsidiary_STSub", "iIAEnSubID" + std::string(kOfTransit)},
    {"pl_co_EnSubsidiary", "iIASubID" + std::string(kOfTransit)},
    {"pl_co_SubSidiary", "ia_autoid" + std::string(kOfStock)},
    {"Demo_SubsidiaryStd", "AutoID" + std::string(kOfStock)},
    {"Demo_Document", "{dated} or DocID in (select DocID from Demo_DocumentLine where {open})"},
    {"Demo_DocumentLine", "DocID in (select DocID from Demo_Document where {dated}) or {open}"},
};

bool HasColumn(const SchemaObject& object, std::string_view name)
{
    return std::ranges::any_of(object.columns,
                               [&](const auto& column) { return EqualsNoCase(column.name, name); });
}

std::string Filled(std::string text, const YearSpan& span)
{
    text = ReplaceAll(text, "{open}", kOpenOrNamed);
    text = ReplaceAll(text, "{dated}", kDated);
    text = ReplaceAll(text, "{years}", kYears);
    text = ReplaceAll(text, "{from}", std::to_string(span.from));
    text = ReplaceAll(text, "{to}", std::to_string(span.to));
    text = ReplaceAll(text, "{first}", span.firstDay);
    return ReplaceAll(text, "{end}", span.endDay);
}

DateTime FirstOfYear(int year)
{
    return std::chrono::sys_days(std::chrono::year(year) / 1 / 1);
}

}  // namespace

YearSpan SpanOf(Connection& connection, const std::string& accountId, int from, int to, bool hasPeriods)
{
    YearSpan span{from, to, Literal(FirstOfYear(from)), Literal(FirstOfYear(to + 1))};
    if (!hasPeriods)
        return span;
    const auto days =
        connection.OpenRecordset(fmt::format("select min(dBegin), max(dEnd) from VosSystem..UA_Period"
                                             " where cAcc_ID = {} and iYear between {} and {}",
                                             Literal(accountId), from, to),
                                 CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
    if (const Value first = days->Field(0); !first.IsNull())
        span.firstDay = Literal(first);
    if (const Value last = days->Field(1); !last.IsNull())
        span.endDay = Literal(ToDate(last) + std::chrono::days(1));
    return span;
}

std::string YearCondition(const SchemaObject& object, const YearSpan& span)
{
    for (const Rule& rule : kRules)
        if (EqualsNoCase(rule.table, object.name))
            return Filled(rule.condition, span);
    // Rows that a view shows: those of documents have a date and, where posted ones are among them, by whom.
    if (object.kind == SchemaKind::View && HasColumn(object, "dVouDate") && HasColumn(object, "cAccounter"))
        return Filled("isnull(cAccounter, N'') = N'' or {dated}", span);
    return "";
}

}  // namespace kavelin::snapshot
