#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Binder.h"
#include "embedded/bind/BoundBuild.h"
#include "embedded/bind/Facts.h"
#include "frame/Text.h"

namespace kavelin::embedded {

namespace {

// Notes in every scope between, that a column of `home` was named.
void NoteColumn(Scope& scope, Scope& home)
{
    for (Scope* each = &scope; each != &home; each = each->Outer())
        ++each->outerColumns;
    ++home.ownColumns;
}

[[noreturn]] void RefuseUnknown(const ColumnRef& column, Place place, const Scope& scope)
{
    if (column.table)
        throw SqlError(4104,
                       "The multi-part identifier \"" + WrittenName(*column.table) + "." +
                           column.column.text + "\" could not be bound.",
                       place);
    if (scope.clause == Clause::Values)
        throw SqlError(128,
                       "The name \"" + column.column.text +
                           "\" is not permitted in this context. Valid expressions are constants, constant "
                           "expressions, and (in some contexts) variables. Column names are not "
                           "permitted.",
                       place);
    throw SqlError(207, "Invalid column name '" + column.column.text + "'.", place);
}

}  // namespace

BoundExprPtr ColumnOf(const Source& source, const ColumnInfo& column, Place place, const Scope& scope)
{
    const BindContext& context = scope.Context();
    const TextFacts facts = !source.object || !column.type.IsText() ? column.facts
                            : context.assumedFacts                  ? *context.assumedFacts
                                                                    : FactsNow(column, context.Objects());
    return MakeBound(BoundColumn{source.number, column.name}, column.type, column.nullable || source.missing,
                     place, facts);
}

// A name is looked up in the scope where it stands, then in those around it, and means the first it finds.
BoundExprPtr BindColumn(const ColumnRef& column, Place place, Scope& scope)
{
    const std::string name = ToLower(column.column.text);
    for (Scope* home = &scope; home; home = home->Outer()) {
        const Scope::Found found = column.table ? home->Find(*column.table, name) : home->Find(name);
        if (found.ambiguous)
            throw SqlError(209, "Ambiguous column name '" + column.column.text + "'.", place);
        if (found.column) {
            NoteColumn(scope, *home);
            return ColumnOf(*found.source, *found.column, place, scope);
        }
        if (found.source)
            throw SqlError(207, "Invalid column name '" + column.column.text + "'.", place);
    }
    RefuseUnknown(column, place, scope);
}

}  // namespace kavelin::embedded
