#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"
#include "embedded/write/Quotient.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"
#include "frame/Text.h"

namespace kavelin::embedded {

namespace {

// The parts of `database.schema.[object]`, without brackets and leading blanks.
std::vector<std::string> PartsOfName(std::string_view name)
{
    std::vector<std::string> parts(1);
    bool bracketed = false;
    for (std::size_t at = 0; at < name.size(); ++at) {
        std::string& part = parts.back();
        const char c = name[at];
        if (bracketed && c == ']') {
            bracketed = name.substr(at + 1, 1) == "]";  // doubled it is one
            if (bracketed)
                part += name[++at];
        } else if (bracketed) {
            part += c;
        } else if (c == '[') {
            bracketed = true;
        } else if (c == '.') {
            parts.emplace_back();
        } else if (c != ' ' || !part.empty()) {
            part += c;
        }
    }
    return parts;
}

// The identifier of an object of that name: `tempdb..x`, `VosSystem.dbo.x`, `dbo.x`, `[x]`, x, which is of the
// account; NULL of a database or schema that there is not.
std::string ObjectIdentifier(std::string_view name)
{
    const std::vector<std::string> parts = PartsOfName(name);
    const auto part = [&](std::size_t fromBehind) {
        return parts.size() > fromBehind ? Trim(parts[parts.size() - 1 - fromBehind]) : std::string_view();
    };
    const std::string_view schema = part(1);
    const std::string_view database = part(2);
    std::string_view view = R"("work"."main"."sysobjects")";
    if (EqualsNoCase(database, "tempdb"))
        view = R"("tempdb"."main"."sysobjects")";
    else if (EqualsNoCase(database, "vossystem"))
        view = R"("work"."main"."sysobjects_system")";
    else if (!database.empty())
        return "CAST(NULL AS INTEGER)";
    if (parts.size() > 3 || !(schema.empty() || EqualsNoCase(schema, "dbo")))
        return "CAST(NULL AS INTEGER)";
    return "(SELECT \"id\" FROM " + std::string(view) +
           " WHERE lower(\"name\") = " + FoldLiteral(parts.back(), CaseForm::Lower, true) + ")";
}

const char* DatePart(BoundFunctionKind kind)
{
    if (kind == BoundFunctionKind::Year)
        return "year(";
    return kind == BoundFunctionKind::Month ? "month(" : "day(";
}

}  // namespace

std::string Writer::Function(const BoundFunction& function, const BoundExpr& node, Fit fit)
{
    const auto argument = [&](std::size_t index) -> const BoundExpr& {
        return *function.arguments.at(index);
    };
    switch (function.kind) {
        case BoundFunctionKind::IsNull:
            if (!argument(0).nullable)
                return Value(argument(0), fit);
            return "coalesce(" + Value(argument(0), fit) + ", " + Value(argument(1), fit) + ")";
        case BoundFunctionKind::Left:
            return "left(" + Value(argument(0)) + ", " + Value(argument(1), Fit::Loose) + ")";
        case BoundFunctionKind::Year:
        case BoundFunctionKind::Month:
        case BoundFunctionKind::Day: {
            const std::string part = DatePart(function.kind) + Value(argument(0)) + ")";
            return fit == Fit::Loose ? part : Cast(part, {.kind = TypeKind::Int});
        }
        case BoundFunctionKind::Abs: return "abs(" + Value(argument(0), fit) + ")";
        case BoundFunctionKind::ObjectId: {
            const BoundLiteral* name = ConstantText(argument(0));
            if (!name)
                throw SqlError(102, "The embedded account takes object_id of a constant name only.",
                               node.place);
            return ObjectIdentifier(name->text);
        }
        case BoundFunctionKind::LocaleId: break;
    }
    return function.arguments.empty() ? "CAST(getvariable('kavelin_locale') AS VARCHAR)" : Value(argument(0));
}

std::string Writer::Aggregate(const BoundAggregate& aggregate, const BoundExpr& node, Fit fit)
{
    const auto sized = [&](const std::string& text) {
        return fit == Fit::Loose ? text : Cast(text, node.type);
    };
    if (aggregate.kind == AggregateKind::CountRows)
        return sized(Grouped("count(*)", "sum"));

    const BoundExpr& argument = *aggregate.argument;
    const bool text = argument.type.IsText();
    const std::string open = aggregate.distinct ? "(DISTINCT " : "(";
    switch (aggregate.kind) {
        case AggregateKind::Count:
            return sized(Grouped(
                "count" + open +
                    (text && aggregate.distinct ? Folded(argument) : Value(argument, Fit::Loose)) + ")",
                "sum"));
        case AggregateKind::Min:
        case AggregateKind::Max: {
            const bool least = aggregate.kind == AggregateKind::Min;
            if (text && !IsFolded(argument.facts)) {
                const std::string best = least ? "arg_min(" : "arg_max(";
                const std::string written = best + Value(argument) + ", " + Folded(argument) + ")";
                if (!objState.parts)
                    return written;
                const std::string part = objState.parts->Aggregate(written);
                return best + part + ", " + FoldAlone(part, argument.facts) + ")";
            }
            const std::string name = least ? "min" : "max";
            return Grouped(name + "(" + Value(argument, fit) + ")", name);
        }
        case AggregateKind::Sum: {
            const std::string sum = Grouped("sum" + open + Value(argument, Fit::Loose) + ")", "sum");
            const bool natural = node.type.kind == TypeKind::Float ||
                                 (node.type.kind == TypeKind::Decimal && node.type.precision == 38 &&
                                  node.type.scale == ScaleOf(argument.type));
            return natural ? sum : sized(sum);
        }
        case AggregateKind::Avg:
        case AggregateKind::CountRows: break;
    }

    const bool isFloat = node.type.kind == TypeKind::Float;
    if (isFloat && !objState.parts)
        return "avg" + open + Value(argument) + ")";
    // DuckDB's avg() is a DOUBLE; T-SQL's is the exact quotient, cut.
    const std::string values = open + Value(argument, isFloat ? Fit::Exact : Fit::Loose) + ")";
    const std::string sum = Grouped("sum" + values, "sum");
    const std::string count = Grouped("count" + values, "sum");
    if (isFloat)
        return "(" + sum + " / " + count + ")";
    if (node.type.IsInteger())
        return sized("(" + sum + " // " + count + ")");
    return sized(WriteQuotient({sum, ScaleOf(argument.type)}, {count, 0}, ScaleOf(node.type)));
}

// RANGE takes in the rows that tie with the last, where ROWS would end at any one of them.
std::string Writer::Running(const BoundRunning& running, const BoundExpr& node, Fit fit)
{
    std::vector<std::string> partition;
    for (const BoundExprPtr& key : running.partition)
        partition.push_back(key->type.IsText() ? Folded(*key) : Value(*key, Fit::Loose));
    const auto& aggregate = std::get<BoundAggregate>(running.aggregate->node);
    const std::string text = Aggregate(aggregate, *running.aggregate, Fit::Loose) + " OVER (" +
                             (partition.empty() ? "" : "PARTITION BY " + Join(partition, ", ") + " ") +
                             "ORDER BY " + Value(*running.order, Fit::Loose) +
                             " RANGE BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW)";
    return fit == Fit::Loose ? text : Cast(text, node.type);
}

}  // namespace kavelin::embedded
