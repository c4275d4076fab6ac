#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Conversions.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/TypeRules.h"
#include "frame/Text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>

namespace kavelin::embedded {

namespace {

using Arguments = std::vector<BoundExprPtr>;

constexpr int kLocaleLength = 10;

// --- functions of single values ----------------------------------------------------------------

// isnull(a, b) is of a's type: a longer text in b is cut to it.
BoundExprPtr MakeIsNull(Arguments arguments, Place place, Scope&)
{
    BoundExprPtr& first = arguments[0];
    BoundExprPtr& second = arguments[1];
    if (IsBareNull(*first))
        first =
            Convert(std::move(first), IsBareNull(*second) ? kInt : second->type, ConversionKind::Implicit);
    const SqlType type = first->type;
    const bool sameText = type.IsText() && second->type.IsText();
    const bool fits = sameText && (type.length == kMaxLength ||
                                   (second->type.length != kMaxLength && second->type.length <= type.length));
    const bool cuts = type.IsText() && !fits && !IsBareNull(*second);
    const bool nullable = first->nullable && second->nullable;
    second = Convert(std::move(second), type, cuts ? ConversionKind::Explicit : ConversionKind::Implicit);
    const TextFacts facts = Both(first->facts, second->facts);
    return MakeBound(BoundFunction{BoundFunctionKind::IsNull, std::move(arguments)}, type, nullable, place,
                     facts);
}

// The length of left(x, n): n where it is a literal, never more than x has.
int LeftLength(const SqlType& text, const BoundExpr& count)
{
    const BoundLiteral* literal = AsLiteral(count);
    int length = 0;
    if (!literal || literal->null)
        return text.length;
    const auto read =
        std::from_chars(literal->text.data(), literal->text.data() + literal->text.size(), length);
    if (read.ec != std::errc() || length < 0)
        return text.length;
    length = std::max(1, length);
    return text.length == kMaxLength ? length : std::min(length, text.length);
}

BoundExprPtr MakeLeft(Arguments arguments, Place place, Scope&)
{
    arguments[0] = AsText(std::move(arguments[0]));
    arguments[1] = Convert(std::move(arguments[1]), kInt, ConversionKind::Implicit, BadLiteral::Refuse);
    SqlType type = arguments[0]->type;
    type.length = LeftLength(type, *arguments[1]);
    const TextFacts facts{false, arguments[0]->facts.noCase};
    return MakeBound(BoundFunction{BoundFunctionKind::Left, std::move(arguments)}, type, true, place, facts);
}

template <BoundFunctionKind kind>
BoundExprPtr MakeDatePart(Arguments arguments, Place place, Scope&)
{
    arguments[0] = Convert(std::move(arguments[0]), kDatetime, ConversionKind::Implicit, BadLiteral::Refuse);
    return MakeBound(BoundFunction{kind, std::move(arguments)}, kInt, true, place);
}

BoundExprPtr MakeAbs(Arguments arguments, Place place, Scope&)
{
    const SqlType given = arguments[0]->type;
    if (given.kind == TypeKind::Null || given.kind == TypeKind::Bit || given.IsText())
        arguments[0] = Convert(std::move(arguments[0]), kFloat, ConversionKind::Implicit, BadLiteral::Refuse);
    if (!arguments[0]->type.IsNumber())
        throw SqlError(8116,
                       "Argument data type " + std::string(BaseName(given.kind)) +
                           " is invalid for argument 1 of abs function.",
                       place);
    const SqlType type = arguments[0]->type;
    return MakeBound(BoundFunction{BoundFunctionKind::Abs, std::move(arguments)}, type, true, place);
}

BoundExprPtr MakeObjectId(Arguments arguments, Place place, Scope&)
{
    if (!IsConstant(*arguments[0]) || !arguments[0]->type.IsText())
        throw SqlError(8116, "The embedded engine takes object_id of a text literal only.", place);
    return MakeBound(BoundFunction{BoundFunctionKind::ObjectId, std::move(arguments)}, kInt, true, place);
}

// In a view the language is asked for when the view is read.
BoundExprPtr MakeLocaleId(Arguments arguments, Place place, Scope& scope)
{
    const SqlType type = TextType(true, kLocaleLength);
    TextFacts facts{true, false};
    if (!scope.Context().forView) {
        std::string locale = scope.Context().Objects().LocaleId();
        facts = FactsOf(locale);
        arguments.push_back(MakeBound(BoundLiteral{false, std::move(locale)}, type, false, place, facts));
    }
    return MakeBound(BoundFunction{BoundFunctionKind::LocaleId, std::move(arguments)}, type, true, place,
                     facts);
}

struct KnownFunction {
    std::string_view name;
    bool ofSchema;  // named with dbo in front
    std::size_t arguments;
    BoundExprPtr (*make)(Arguments arguments, Place place, Scope& scope);
};

constexpr KnownFunction kFunctions[] = {
    {"isnull", false, 2, MakeIsNull},
    {"left", false, 2, MakeLeft},
    {"year", false, 1, MakeDatePart<BoundFunctionKind::Year>},
    {"month", false, 1, MakeDatePart<BoundFunctionKind::Month>},
    {"day", false, 1, MakeDatePart<BoundFunctionKind::Day>},
    {"abs", false, 1, MakeAbs},
    {"object_id", false, 1, MakeObjectId},
    {"udf_getlocaleid", true, 0, MakeLocaleId},
};

// --- aggregates --------------------------------------------------------------------------------

struct KnownAggregate {
    std::string_view name;
    AggregateKind kind;
};

constexpr KnownAggregate kAggregates[] = {
    {"sum", AggregateKind::Sum}, {"avg", AggregateKind::Avg},     {"min", AggregateKind::Min},
    {"max", AggregateKind::Max}, {"count", AggregateKind::Count},
};

void CheckAggregateMayStand(const Scope& scope, Place place)
{
    if (scope.insideAggregate)
        throw SqlError(130,
                       "Cannot perform an aggregate function on an expression containing an aggregate or a "
                       "subquery.",
                       place);
    switch (scope.clause) {
        case Clause::List:
        case Clause::Having:
        case Clause::OrderBy: return;
        case Clause::Where:
            throw SqlError(147,
                           "An aggregate may not appear in the WHERE clause unless it is in a subquery "
                           "contained in a HAVING clause or a select list, and the column being aggregated "
                           "is an outer reference.",
                           place);
        case Clause::On:
            throw SqlError(1015,
                           "An aggregate cannot appear in an ON clause unless it is in a subquery contained "
                           "in a HAVING clause or select list, and the column being aggregated is an outer "
                           "reference.",
                           place);
        case Clause::GroupBy:
            throw SqlError(144,
                           "Cannot use an aggregate or a subquery in an expression used for the group by "
                           "list "
                           "of a GROUP BY clause.",
                           place);
        case Clause::Set:
            throw SqlError(157, "An aggregate may not appear in the set list of an UPDATE statement.", place);
        case Clause::Values:
            throw SqlError(10725, "An aggregate may not appear among constant values.", place);
    }
}

void CheckArgumentCount(const FunctionCall& call, std::size_t wanted, Place place)
{
    if (call.arguments.size() != wanted)
        throw SqlError(174,
                       "The " + ToLower(call.function.object.text) + " function requires " +
                           std::to_string(wanted) + " argument(s).",
                       place);
}

BoundExprPtr BindAggregate(const FunctionCall& call, AggregateKind kind, Place place, Scope& scope)
{
    CheckAggregateMayStand(scope, place);
    CheckArgumentCount(call, 1, place);
    scope.hasAggregates = true;
    if (std::holds_alternative<Star>(call.arguments[0]->node)) {
        if (kind != AggregateKind::Count || call.distinct)
            throw SqlError(102, "Incorrect syntax near '*'.", place);
        return MakeBound(BoundAggregate{AggregateKind::CountRows, false, nullptr}, kInt, true, place);
    }
    const std::size_t ownBefore = scope.ownColumns;
    const std::size_t outerBefore = scope.outerColumns;
    const During inside(scope.insideAggregate, true);
    BoundExprPtr argument = BindValue(*call.arguments[0], scope);
    // T-SQL would sum over the rows of the query outside.
    if (scope.outerColumns != outerBefore && scope.ownColumns == ownBefore)
        throw SqlError(8124, "The embedded engine knows no aggregate over columns of an outer query.", place);

    const SqlType type = AggregateType(kind, argument->type, place);
    const TextFacts facts = type.IsText() ? argument->facts : TextFacts{};
    if (argument->type.kind == TypeKind::Null)
        argument->type = kInt;
    return MakeBound(BoundAggregate{kind, call.distinct, std::move(argument)}, type, true, place, facts);
}

[[noreturn]] void RefuseUnknown(const ObjectName& function, Place place)
{
    if (function.schema || function.database) {
        const std::string& first = function.database ? function.database->text : function.schema->text;
        throw SqlError(4121,
                       "Cannot find either column \"" + first +
                           "\" or the user-defined function or aggregate \"" + WrittenName(function) +
                           "\", or the name is ambiguous.",
                       place);
    }
    throw SqlError(195, "'" + function.object.text + "' is not a recognized built-in function name.", place);
}

}  // namespace

BoundExprPtr BindFunction(const FunctionCall& call, Place place, Scope& scope)
{
    const std::string& name = call.function.object.text;
    const bool ofSchema =
        call.function.schema && !call.function.database && EqualsNoCase(call.function.schema->text, "dbo");
    const bool builtIn = !call.function.schema && !call.function.database;
    if (builtIn)
        for (const KnownAggregate& aggregate : kAggregates)
            if (EqualsNoCase(aggregate.name, name))
                return BindAggregate(call, aggregate.kind, place, scope);

    for (const KnownFunction& known : kFunctions) {
        if ((known.ofSchema ? !ofSchema : !builtIn) || !EqualsNoCase(known.name, name))
            continue;
        CheckArgumentCount(call, known.arguments, place);
        if (call.distinct)
            throw SqlError(102, "Incorrect syntax near 'distinct'.", place);
        Arguments arguments;
        for (const ExprPtr& argument : call.arguments)
            arguments.push_back(BindValue(*argument, scope));
        return known.make(std::move(arguments), place, scope);
    }
    RefuseUnknown(call.function, place);
}

BoundCreateFunction BindCreateFunction(const CreateFunctionStatement& create, BindContext& context)
{
    const std::string& name = create.function.object.text;
    const bool known =
        std::any_of(std::begin(kFunctions), std::end(kFunctions), [&](const KnownFunction& function) {
            return function.ofSchema && EqualsNoCase(function.name, name);
        });
    if (!known || DatabaseOf(create.function) != Database::Account)
        throw SqlError(102,
                       "The embedded engine takes the declaration of DBO.UDF_GetLocaleID() only, not of '" +
                           WrittenName(create.function) + "'.",
                       create.function.place);
    ColumnInfo answer;
    answer.name = name;
    answer.type = TypeOf(create.returns, TypeUse::Definition);
    if (answer.type != TextType(true, kLocaleLength))
        throw SqlError(102, "DBO.UDF_GetLocaleID() returns nvarchar(10).", create.returns.place);
    Scope scope(context, nullptr);
    scope.clause = Clause::Values;
    Assign(BindValue(*create.answer, scope), answer);
    return {name};
}

}  // namespace kavelin::embedded
