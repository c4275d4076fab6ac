#include "embedded/write/DuckTypes.h"
#include "embedded/write/Quote.h"
#include "embedded/write/Quotient.h"
#include "embedded/write/TextFold.h"
#include "embedded/write/Writer.h"
#include "frame/Text.h"

namespace kavelin::embedded {

namespace {

// The identifier of an object of that name: `tempdb..x`, `VosSystem..x`, `[x]`, x, which is of the account.
std::string ObjectIdentifier(std::string_view name)
{
    std::string_view view = R"("work"."main"."sysobjects")";
    const std::size_t dots = name.find("..");
    if (dots != std::string_view::npos) {
        const std::string_view database = Trim(name.substr(0, dots));
        if (EqualsNoCase(database, "tempdb"))
            view = R"("tempdb"."main"."sysobjects")";
        else if (EqualsNoCase(database, "vossystem"))
            view = R"("work"."main"."sysobjects_system")";
        name.remove_prefix(dots + 2);
    }
    name = Trim(name);
    if (name.size() > 1 && name.front() == '[' && name.back() == ']')
        name = name.substr(1, name.size() - 2);
    return "(SELECT \"id\" FROM " + std::string(view) +
           " WHERE lower(\"name\") = " + FoldLiteral(name, CaseForm::Lower, true) + ")";
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

}  // namespace kavelin::embedded
