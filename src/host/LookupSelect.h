// A lookup's SELECT, taken apart as far as it takes to search it, to put further conditions on it and to read
// it page by page:
//
//   SELECT WareHouse.cWhCode as [仓库编码] ,WareHouse.cWhName as [仓库名称]  FROM WareHouse
//    ORDER BY WareHouse.cWhCode
//
// becomes
//
//   select top 21 Lookup.[仓库编码], Lookup.[仓库名称]
//     from (SELECT WareHouse.cWhCode as [仓库编码] ,WareHouse.cWhName as [仓库名称]  FROM WareHouse) Lookup
//    where Lookup.[仓库编码] like N'01%' order by Lookup.[仓库编码], Lookup.[仓库名称]
//
// The order stands outside, since a server takes none within a derived table.
#pragma once

#include "host/LookupTemplate.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

class LookupSelect {
  public:
    // A SELECT as the callbacks of a dialog set it: its captions are the names of its columns. Throws Error
    // if it has no FROM, a column without a name, or an order by what it doesn't select.
    explicit LookupSelect(const std::string& select);

    // That of a template, with captions in the language. `condition` limits it beside its own "where"; empty:
    // not at all.
    LookupSelect(const LookupTemplate& lookup, const std::string& condition, std::string_view language);

    // Captions of the columns that a user sees; the first is the code's.
    std::vector<std::string> Captions() const;

    // The condition of SetFieldRefCondition in terms of this lookup: "#FN[column]" is the column of that
    // name, "fld1" the first. What stands in quotes stays. Throws Error for a column that the lookup doesn't
    // have.
    std::string Resolve(const std::string& condition) const;

    // What a user types, as a condition: the beginning of the code, or a part of the name. Empty for an empty
    // text.
    std::string Search(std::string_view text) const;

    // The shown columns of the first `rows` rows that the conditions let through; empty conditions don't
    // count. Rows that the lookup's own order leaves equal are ordered by what is shown, so that no row is
    // lost or seen twice between two pages.
    std::string Select(std::size_t rows, const std::vector<std::string>& conditions) const;

    // The number of all of them.
    std::string SelectCount(const std::vector<std::string>& conditions) const;

  private:
    struct Column {
        std::string name;        // of the derived table
        std::string expression;  // behind it
        std::string caption;
        bool hidden = false;
    };
    struct Order {
        std::size_t column;
        bool descending;
    };

    std::string Named(const Column& column) const;  // "Lookup.[name]"
    std::string Source(const std::vector<std::string>& conditions) const;
    const Column& Find(std::string_view name) const;
    Order FindOrder(std::string_view term) const;
    std::vector<const Column*> Shown() const;

    std::string strBody;  // without the order
    std::vector<Column> lstColumns;
    std::vector<Order> lstOrder;
};

}  // namespace kavelin::host
