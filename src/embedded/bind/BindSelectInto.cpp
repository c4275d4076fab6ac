#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"
#include "frame/Text.h"

#include <algorithm>
#include <string>

namespace kavelin::embedded {

namespace {

SqlError ColumnNameError(const std::string& column, std::size_t, const std::string& table, Place place)
{
    if (column.empty())
        return SqlError(1038,
                        "An object or column name is missing or empty. For SELECT INTO statements, verify "
                        "each column has a name. For other statements, look for empty alias names. Aliases "
                        "defined as \"\" or [] are not allowed. Change the alias to a valid name.",
                        place);
    return SqlError(2705,
                    "Column names in each table must be unique. Column name '" + column + "' in table '" +
                        table + "' is specified more than once.",
                    place);
}

// The table whose plain columns pass their identity on: the only source of an ungrouped select.
const ObjectInfo* PassesIdentityOn(const Query& query, const BoundQuery& bound, const BindContext& context)
{
    const Select& select = query.selects.front();
    if (query.selects.size() != 1 || bound.selects.front().grouped || select.from.size() != 1)
        return nullptr;
    const auto* named = std::get_if<NamedTable>(&select.from.front()->node);
    const ObjectInfo* object = named ? FindObject(named->name, context) : nullptr;
    return object && object->kind == ObjectKind::Table ? object : nullptr;
}

// The items that are that table's identity column.
std::vector<std::size_t> InheritedIdentities(const ObjectInfo& table, const BoundSelect& select)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const auto* column = std::get_if<BoundColumn>(&select.items[i].expression->node);
        if (column && std::any_of(table.columns.begin(), table.columns.end(), [&](const ColumnInfo& each) {
                return each.identity && each.name == column->column;
            }))
            found.push_back(i);
    }
    return found;
}

std::vector<std::size_t> NumberedItems(const BoundSelect& select)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < select.items.size(); ++i)
        if (std::holds_alternative<BoundIdentity>(select.items[i].expression->node))
            found.push_back(i);
    return found;
}

void MarkIdentity(ObjectInfo& made, const Query& query, const BoundQuery& bound, const BindContext& context,
                  Place place)
{
    const BoundSelect& select = bound.selects.front();
    const std::vector<std::size_t> numbered = NumberedItems(select);
    const ObjectInfo* table = PassesIdentityOn(query, bound, context);
    const std::vector<std::size_t> inherited =
        table ? InheritedIdentities(*table, select) : std::vector<std::size_t>{};

    if (numbered.size() > 1)
        throw SqlError(8109,
                       "Attempting to add multiple identity columns to table '" + made.name +
                           "' using the SELECT INTO statement.",
                       place);
    if (!numbered.empty() && (select.distinct || query.selects.size() > 1))
        throw SqlError(8108, "The embedded engine does not number the rows of DISTINCT and UNION.", place);
    if (!numbered.empty() && inherited.size() == 1)
        throw SqlError(8108,
                       "Cannot add identity column, using the SELECT INTO statement, to table '" + made.name +
                           "', which already has column '" + made.columns[inherited.front()].name +
                           "' that inherits the identity property.",
                       place);
    for (const std::size_t item : numbered)
        made.columns[item].identity = true;
    // A column that is listed twice is an identity in neither place.
    if (inherited.size() == 1)
        made.columns[inherited.front()].identity = true;
}

}  // namespace

BoundSelectInto BindSelectInto(const Query& query, BindContext& context)
{
    const ObjectName& into = *query.selects.front().into;
    BoundSelectInto bound;
    bound.query = BindQuery(query, QueryUse::Into, context, nullptr);
    bound.made = NewObject(into, ObjectKind::Table, context);
    bound.made.columns = NamedColumns(*bound.query, bound.made.name, into.place, ColumnNameError);
    MarkIdentity(bound.made, query, *bound.query, context, into.place);
    return bound;
}

}  // namespace kavelin::embedded
