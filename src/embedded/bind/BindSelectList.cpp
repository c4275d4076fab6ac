#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/TypeRules.h"

namespace kavelin::embedded {

namespace {

void ExpandSource(const Source& source, Place place, const Scope& scope, std::vector<BoundItem>& items)
{
    for (const ColumnInfo& column : source.Columns())
        items.push_back({column.name, ColumnOf(source, column, place, scope)});
}

void ExpandStar(const Star& star, Place place, const Scope& scope, std::vector<BoundItem>& items)
{
    if (scope.Sources().empty())
        throw SqlError(263, "Must specify table to select from.", place);
    if (!star.table) {
        for (const Source& source : scope.Sources())
            ExpandSource(source, place, scope, items);
        return;
    }
    const std::vector<const Source*> named = scope.Named(*star.table);
    if (named.empty())
        throw SqlError(107,
                       "The column prefix '" + WrittenName(*star.table) +
                           "' does not match with a table name or alias name used in the query.",
                       place);
    for (const Source* source : named)
        ExpandSource(*source, place, scope, items);
}

// The alias, else the name of a column, as it is written here; nothing for other expressions.
std::string ItemName(const SelectItem& item)
{
    if (item.alias)
        return item.alias->text;
    if (const auto* column = std::get_if<ColumnRef>(&WithoutBrackets(*item.expression).node))
        return column->column.text;
    return {};
}

// `identity(int, 1, 1)`: numbers the rows of a select into.
BoundExprPtr BindIdentity(const IdentityExpr& identity, Place place)
{
    const SqlType type = TypeOf(identity.type, TypeUse::Definition);
    if (!type.IsInteger() || type.kind == TypeKind::Bit)
        throw SqlError(
            8107, "IDENTITY column can be of data type int, bigint, smallint or tinyint only here.", place);
    if (identity.seed != 1 || identity.increment != 1)
        throw SqlError(8107, "The embedded engine numbers rows from 1 by 1 only.", place);
    return MakeBound(BoundIdentity{identity.seed, identity.increment}, type, false, place);
}

BoundExprPtr BindItem(const Expr& expression, QueryUse use, Scope& scope)
{
    const auto* identity = std::get_if<IdentityExpr>(&WithoutBrackets(expression).node);
    if (identity && use == QueryUse::Into)
        return BindIdentity(*identity, expression.place);
    return BindValue(expression, scope);
}

}  // namespace

std::vector<BoundItem> BindSelectList(const Select& select, QueryUse use, Scope& scope)
{
    std::vector<BoundItem> items;
    for (const SelectItem& item : select.items) {
        if (const auto* star = std::get_if<Star>(&item.expression->node))
            ExpandStar(*star, item.expression->place, scope, items);
        else
            items.push_back({ItemName(item), BindItem(*item.expression, use, scope)});
    }
    return items;
}

}  // namespace kavelin::embedded
