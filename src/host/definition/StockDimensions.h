// By what the stock summary's pool can be grouped.
#pragma once

#include "host/definition/ReportDefinition.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// The names, "item" first.
std::vector<std::string_view> StockDimensions();

// The pool's columns of the dimensions in `groups`, which are separated by commas; empty stands for "item". Each
// column once. Throws UsageError for a name that is no dimension.
std::vector<ViewColumn> StockGroupColumns(std::string_view groups);

// The columns as a SELECT shows them and as it groups by them. Null and the empty text are one group, whose
// text is empty.
std::string ShowColumns(const std::vector<ViewColumn>& columns);
std::string GroupByColumns(const std::vector<ViewColumn>& columns);
std::string OrderByColumns(const std::vector<ViewColumn>& columns);

// Without the free items that no line of the pool has.
std::vector<ViewColumn> WithoutUnusedFreeItems(Connection& account, const std::string& table,
                                               std::vector<ViewColumn> columns);

}  // namespace kavelin::host
