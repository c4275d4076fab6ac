#include "embedded/bind/RunningSums.h"

#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/BoundWalk.h"
#include "embedded/bind/TypeRules.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

namespace kavelin::embedded {

namespace {

constexpr SqlType kBigint{TypeKind::Bigint, 0, 0, 0};

// --- what an expression holds ------------------------------------------------------------------

void VisitAll(BoundExprPtr& expression, const std::function<void(BoundExprPtr&)>& visit)
{
    visit(expression);
    ForEachOperand(*expression, [&](BoundExprPtr& operand) { VisitAll(operand, visit); });
}

struct Contents {
    bool ofFirst = false, ofSecond = false, ofOthers = false;  // columns
    bool queries = false;
    bool canFail = false;  // divides, or makes something else of a text
};

Contents ContentsOf(BoundExprPtr& expression, int first, int second)
{
    Contents contents;
    VisitAll(expression, [&](BoundExprPtr& each) {
        if (const auto* column = std::get_if<BoundColumn>(&each->node))
            (column->source == first    ? contents.ofFirst
             : column->source == second ? contents.ofSecond
                                        : contents.ofOthers) = true;
        contents.queries = contents.queries || QueryWithin(*each);
        const auto* conversion = std::get_if<BoundConversion>(&each->node);
        const auto* arithmetic = std::get_if<BoundArithmetic>(&each->node);
        if ((conversion && conversion->operand->type.IsText() && !each->type.IsText()) ||
            (arithmetic && arithmetic->op == ArithmeticOp::Divide))
            contents.canFail = true;
    });
    return contents;
}

// The conditions of a chain of AND.
void AddConjuncts(BoundExprPtr& condition, std::vector<BoundExprPtr*>& conjuncts)
{
    if (!condition)
        return;
    auto* logical = std::get_if<BoundLogical>(&condition->node);
    if (!logical || logical->op != LogicalOp::And) {
        conjuncts.push_back(&condition);
        return;
    }
    AddConjuncts(logical->left, conjuncts);
    AddConjuncts(logical->right, conjuncts);
}

struct ColumnPair {
    const BoundExpr *left, *right;
    ComparisonOp op;
    const BoundColumn& Left() const { return std::get<BoundColumn>(left->node); }
    const BoundColumn& Right() const { return std::get<BoundColumn>(right->node); }
};

// A comparison of one column of two sources.
std::optional<ColumnPair> AsColumnPair(const BoundExpr& condition)
{
    const auto* comparison = std::get_if<BoundComparison>(&condition.node);
    if (!comparison)
        return std::nullopt;
    const auto* left = std::get_if<BoundColumn>(&comparison->left->node);
    const auto* right = std::get_if<BoundColumn>(&comparison->right->node);
    if (!left || !right || left->column != right->column || left->source == right->source)
        return std::nullopt;
    return ColumnPair{comparison->left.get(), comparison->right.get(), comparison->op};
}

// --- the shape ---------------------------------------------------------------------------------

struct Shape {
    int before = 0;  // the source whose rows are summed up, `b`
    int row = 0;     // the source up to whose rows they are, `a`; of the scope around in a subquery
    const BoundExpr* order = nullptr;     // `b.ino`
    const BoundExpr* rowOrder = nullptr;  // `a.ino`
    std::vector<ColumnPair> partition;    // `b.c = a.c`
    std::vector<BoundExprPtr*> ofRow;     // conditions on `a` alone
};

bool IsSameTable(const Source& a, const Source& b)
{
    return a.object && b.object && a.object->kind == ObjectKind::Table &&
           a.object->duckName == b.object->duckName;
}

const Source* FindSource(int number, const Scope* scope)
{
    for (; scope; scope = scope->Outer())
        for (const Source& source : scope->Sources())
            if (source.number == number)
                return &source;
    return nullptr;
}

// The conditions of WHERE, and of ON where two tables are joined; nothing if FROM is of another kind.
std::optional<std::vector<BoundExprPtr*>> ConditionsOf(BoundSelect& select)
{
    const auto isTable = [](const BoundSourcePtr& source) {
        return std::holds_alternative<BoundTable>(source->node);
    };
    std::vector<BoundExprPtr*> conjuncts;
    AddConjuncts(select.where, conjuncts);
    if (std::ranges::all_of(select.from, isTable))
        return conjuncts;
    auto* join = std::get_if<BoundJoin>(&select.from.front()->node);
    if (select.from.size() != 1 || !join || join->kind != JoinKind::Inner || !isTable(join->left) ||
        !isTable(join->right))
        return std::nullopt;
    AddConjuncts(join->on, conjuncts);
    return conjuncts;
}

// Finds `b.ino <= a.ino`, where `b` is of this scope, and `a` too or of one around it.
bool SetOrder(Shape& shape, const std::vector<BoundExprPtr*>& conjuncts, const Scope& scope)
{
    for (BoundExprPtr* conjunct : conjuncts) {
        const auto pair = AsColumnPair(**conjunct);
        if (!pair || (pair->op != ComparisonOp::LessOrEqual && pair->op != ComparisonOp::GreaterOrEqual))
            continue;
        if (shape.order)
            return false;
        const bool ascending = pair->op == ComparisonOp::LessOrEqual;
        shape.order = ascending ? pair->left : pair->right;
        shape.rowOrder = ascending ? pair->right : pair->left;
    }
    if (!shape.order || shape.order->type.IsText())
        return false;
    shape.before = std::get<BoundColumn>(shape.order->node).source;
    shape.row = std::get<BoundColumn>(shape.rowOrder->node).source;
    const Source* before = FindSource(shape.before, &scope);
    const Source* row = FindSource(shape.row, &scope);
    const bool twoHere = scope.Sources().size() == 2 && scope.Holds(shape.row);
    const bool oneHere = scope.Sources().size() == 1 && !scope.Holds(shape.row);
    return before && row && scope.Holds(shape.before) && (twoHere || oneHere) && IsSameTable(*before, *row);
}

std::optional<Shape> ShapeOf(BoundSelect& select, const Scope& scope)
{
    if (!select.grouped || !select.composable || scope.Sources().empty() || scope.Sources().size() > 2)
        return std::nullopt;
    const auto conjuncts = ConditionsOf(select);
    Shape shape;
    if (!conjuncts || !SetOrder(shape, *conjuncts, scope))
        return std::nullopt;
    for (BoundExprPtr* conjunct : *conjuncts) {
        const Contents contents = ContentsOf(*conjunct, shape.before, shape.row);
        if (contents.ofFirst && contents.ofSecond) {
            auto pair = AsColumnPair(**conjunct);
            if (!pair)
                return std::nullopt;
            if (pair->Left().source != shape.before)
                std::swap(pair->left, pair->right);
            if (pair->op == ComparisonOp::Equal)
                shape.partition.push_back(*pair);
            else if (pair->left != shape.order)
                return std::nullopt;
        } else {
            if (contents.ofFirst || contents.queries || contents.canFail || contents.ofOthers)
                return std::nullopt;
            shape.ofRow.push_back(conjunct);
        }
    }
    return shape;
}

// The aggregates of the list, HAVING and ORDER BY; nothing if there are none or one is no sum over `b`.
std::optional<std::vector<BoundExprPtr*>> AggregatesOf(BoundSelect& select, std::vector<BoundOrder>& orderBy,
                                                       const Shape& shape)
{
    std::vector<BoundExprPtr*> aggregates;
    bool fits = true;
    const auto visit = [&](BoundExprPtr& expression) {
        auto* aggregate = std::get_if<BoundAggregate>(&expression->node);
        if (!aggregate)
            return;
        aggregates.push_back(&expression);
        fits = fits && !aggregate->distinct && aggregate->kind != AggregateKind::Avg;
        if (!aggregate->argument)
            return;
        const Contents contents = ContentsOf(aggregate->argument, shape.before, shape.row);
        const bool chooses = aggregate->kind == AggregateKind::Min || aggregate->kind == AggregateKind::Max;
        // Where rows `a` are left out, rows `b` behind the last of them are never looked at.
        fits = fits && !contents.ofSecond && !contents.ofOthers && !contents.queries &&
               !(contents.canFail && !shape.ofRow.empty()) &&
               !(chooses && aggregate->argument->type.IsText());
    };
    for (BoundItem& item : select.items)
        VisitAll(item.expression, visit);
    if (select.having)
        VisitAll(select.having, visit);
    for (BoundOrder& order : orderBy)
        if (order.expression)
            VisitAll(order.expression, visit);
    if (aggregates.empty() || !fits)
        return std::nullopt;
    return aggregates;
}

bool KeysAreOfRow(BoundSelect& select, const Shape& shape)
{
    return std::ranges::all_of(select.groupBy, [&](BoundExprPtr& key) {
        const Contents contents = ContentsOf(key, shape.before, shape.row);
        return !contents.ofFirst && !contents.ofOthers;
    });
}

// --- what takes its place ----------------------------------------------------------------------

BoundExprPtr CopyColumn(const BoundExpr& column)
{
    return MakeBound(std::get<BoundColumn>(column.node), column.type, column.nullable, column.place,
                     column.facts);
}

BoundExprPtr And(BoundExprPtr left, BoundExprPtr right)
{
    if (!left)
        return right;
    const Place place = right->place;
    return MakeCondition(BoundLogical{LogicalOp::And, std::move(left), std::move(right)}, place);
}

// Wide enough for every sum up to a row: the statement's own type counts for the group's.
SqlType WindowType(const BoundExpr& aggregate)
{
    const auto& node = std::get<BoundAggregate>(aggregate.node);
    if (node.kind == AggregateKind::Min || node.kind == AggregateKind::Max ||
        aggregate.type.kind == TypeKind::Float)
        return aggregate.type;
    if (aggregate.type.kind == TypeKind::Money)
        return {TypeKind::Decimal, 0, 38, 4};
    return aggregate.type.IsInteger() ? kBigint : aggregate.type;
}

// Builds the derived table of the windows, `v`: columns c0 c1 ... of the table, w0 w1 ... of the aggregates.
class Windows {
  public:
    Windows(const Shape& shape, int number) : objShape(shape), lngNumber(number) {}

    // v's column for a column of the row.
    BoundExprPtr Column(const BoundExpr& column)
    {
        const std::string& name = std::get<BoundColumn>(column.node).column;
        auto found = std::ranges::find(objColumns, name, &Passed::name);
        if (found == objColumns.end()) {
            BoundExprPtr passed = CopyColumn(column);
            std::get<BoundColumn>(passed->node).source = objShape.before;
            const std::string alias = "c" + std::to_string(objColumns.size());
            objItems.push_back({alias, std::move(passed)});
            found = objColumns.insert(objColumns.end(), {name, alias});
        }
        return MakeBound(BoundColumn{lngNumber, found->alias}, column.type, column.nullable, column.place,
                         column.facts);
    }

    // v's column for an aggregate over the rows `b`, and how rows `v` are aggregated again: where `summed`
    // those of a group, else those of one and the same place in the order. There may be none, unless they are
    // `grouped`; a count is 0 then, not null.
    BoundExprPtr Again(BoundExprPtr aggregate, bool summed, bool grouped)
    {
        const SqlType type = aggregate->type;
        const Place place = aggregate->place;
        const bool nullable = aggregate->nullable;
        AggregateKind kind = std::get<BoundAggregate>(aggregate->node).kind;
        const bool counts = kind == AggregateKind::Count || kind == AggregateKind::CountRows;
        if (!summed && kind != AggregateKind::Min)
            kind = AggregateKind::Max;
        else if (counts)
            kind = AggregateKind::Sum;
        BoundExprPtr again = MakeBound(BoundAggregate{kind, false, Window(std::move(aggregate))}, type,
                                       nullable || counts, place);
        if (!counts || grouped)
            return again;
        std::vector<BoundExprPtr> arguments;
        arguments.push_back(std::move(again));
        arguments.push_back(MakeBound(BoundLiteral{false, "0"}, type, false, place));
        return MakeBound(BoundFunction{BoundFunctionKind::IsNull, std::move(arguments)}, type, nullable,
                         place);
    }

    // `v.ino = a.ino`, and the same for the partition.
    BoundExprPtr SamePlace()
    {
        BoundExprPtr same = Equal(*objShape.rowOrder);
        for (const ColumnPair& pair : objShape.partition)
            same = And(std::move(same), Equal(*pair.right));
        return same;
    }

    // Rows without a place in the order or the partition meet no row at all, themselves included.
    BoundSourcePtr Finish(const std::string& duckName)
    {
        BoundSelect inner;
        inner.items = std::move(objItems);
        inner.from.push_back(Source(BoundTable{objShape.before, duckName}));
        inner.where = NotNull(*objShape.order);
        for (const ColumnPair& pair : objShape.partition)
            inner.where = And(std::move(inner.where), NotNull(*pair.left));
        auto query = std::make_unique<BoundQuery>();
        query->selects.push_back(std::move(inner));
        return Source(BoundDerived{lngNumber, std::move(query)});
    }

  private:
    struct Passed {
        std::string name, alias;
    };

    static BoundSourcePtr Source(std::variant<BoundTable, BoundDerived, BoundJoin> node)
    {
        auto source = std::make_unique<BoundSource>();
        source->node = std::move(node);
        return source;
    }

    static BoundExprPtr NotNull(const BoundExpr& column)
    {
        return MakeCondition(BoundNullTest{CopyColumn(column), true}, column.place);
    }

    BoundExprPtr Equal(const BoundExpr& ofRow)
    {
        return MakeCondition(BoundComparison{ComparisonOp::Equal, Column(ofRow), CopyColumn(ofRow)},
                             ofRow.place);
    }

    BoundExprPtr Window(BoundExprPtr aggregate)
    {
        const SqlType type = WindowType(*aggregate);
        const Place place = aggregate->place;
        const auto same = [&](const BoundExpr* each) { return SameExpression(*each, *aggregate); };
        const auto found = std::ranges::find_if(objAggregates, same);
        const std::string name = "w" + std::to_string(found - objAggregates.begin());
        if (found == objAggregates.end()) {
            objAggregates.push_back(aggregate.get());
            BoundRunning running{std::move(aggregate), {}, CopyColumn(*objShape.order)};
            for (const ColumnPair& pair : objShape.partition)
                running.partition.push_back(CopyColumn(*pair.left));
            objItems.push_back({name, MakeBound(std::move(running), type, true, place)});
        }
        return MakeBound(BoundColumn{lngNumber, name}, type, true, place);
    }

    const Shape& objShape;
    int lngNumber;
    std::vector<Passed> objColumns;
    std::vector<const BoundExpr*> objAggregates;
    std::vector<BoundItem> objItems;
};

// Every column of the row in `expression` becomes one of the windows'.
void PassColumns(BoundExprPtr& expression, int row, Windows& windows)
{
    VisitAll(expression, [&](BoundExprPtr& each) {
        const auto* column = std::get_if<BoundColumn>(&each->node);
        if (column && column->source == row)
            each = windows.Column(*each);
    });
}

}  // namespace

void UseRunningSums(BoundSelect& select, std::vector<BoundOrder>& orderBy, const Scope& scope)
{
    std::optional<Shape> shape = ShapeOf(select, scope);
    if (!shape || !KeysAreOfRow(select, *shape))
        return;
    const bool joined = scope.Holds(shape->row);
    if (!joined && (!select.groupBy.empty() || select.having))
        return;
    const auto aggregates = AggregatesOf(select, orderBy, *shape);
    if (!aggregates)
        return;

    Windows windows(*shape, scope.Context().NextSource());
    for (BoundExprPtr* aggregate : *aggregates)
        *aggregate = windows.Again(std::move(*aggregate), joined, !select.groupBy.empty());
    BoundExprPtr where;
    for (BoundExprPtr* condition : shape->ofRow) {
        if (joined)
            PassColumns(*condition, shape->row, windows);
        where = And(std::move(where), std::move(*condition));
    }
    if (joined)
        for (BoundExprPtr& key : select.groupBy)
            PassColumns(key, shape->row, windows);
    else
        where = And(std::move(where), windows.SamePlace());

    std::vector<BoundSourcePtr> from;
    from.push_back(windows.Finish(FindSource(shape->before, &scope)->object->duckName));
    select.from = std::move(from);
    select.where = std::move(where);
}

}  // namespace kavelin::embedded
