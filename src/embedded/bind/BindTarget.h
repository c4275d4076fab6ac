// Tables that a statement writes to.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/syntax/Tree.h"

#include <optional>
#include <string_view>

namespace kavelin::embedded {

class BindContext;

// The table of that name. Throws SqlError 208, 4406 for a view.
const ObjectInfo& NeedTable(const ObjectName& name, const BindContext& context);

// Collects which facts a table's columns lose by the values that are stored in them.
class FactsLost {
  public:
    explicit FactsLost(const ObjectInfo& table) : objTable(table) {}

    // A value of those facts goes into the column.
    void Store(std::string_view column, const TextFacts& facts);

    // The table as it is afterwards, if it lost any.
    std::optional<ObjectInfo> Weakened() && { return std::move(objWeakened); }

  private:
    const ObjectInfo& objTable;
    std::optional<ObjectInfo> objWeakened;
};

}  // namespace kavelin::embedded
