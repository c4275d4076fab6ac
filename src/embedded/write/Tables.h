// The statements that make and change tables. Nullability, lengths and identity are the catalogue's;
// DuckDB's tables have plain types and defaults.
#pragma once

#include "embedded/Catalog.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

std::string CreateTable(const ObjectInfo& table, const std::vector<std::string>& primaryKey);

// `column` is one of the table's, as it is to be.
std::string AlterColumn(const ObjectInfo& table, std::string_view column);
std::string AddColumn(const ObjectInfo& table, std::string_view column);

}  // namespace kavelin::embedded
