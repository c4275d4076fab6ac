#include "embedded/bind/BindTarget.h"

#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "embedded/bind/Facts.h"
#include "embedded/bind/Scope.h"

namespace kavelin::embedded {

const ObjectInfo& NeedTable(const ObjectName& name, const BindContext& context)
{
    const ObjectInfo& object = NeedObject(name, context);
    if (object.kind == ObjectKind::View)
        throw SqlError(4406,
                       "The embedded engine does not change rows through the view '" + object.name + "'.",
                       name.place);
    return object;
}

void FactsLost::Store(std::string_view column, const TextFacts& facts)
{
    for (std::size_t i = 0; i < objTable.columns.size(); ++i) {
        const ColumnInfo& stored = objTable.columns[i];
        if (stored.name != column || !stored.type.IsText() || !Weakens(stored.facts, facts))
            continue;
        if (!objWeakened)
            objWeakened = objTable;
        TextFacts& kept = objWeakened->columns[i].facts;
        kept = Both(kept, facts);
    }
}

}  // namespace kavelin::embedded
