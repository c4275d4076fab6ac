// The statements that make and change tables. Nullability, lengths and identity are the catalogue's;
// DuckDB's tables have plain types and defaults.
#pragma once

#include "embedded/Catalog.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

// With its primary key, unless that holds texts: a text may stand there once in whatever case, and DuckDB's
// keys compare bytes. Such a key is the index that CreateKeyIndex makes.
std::string CreateTable(const ObjectInfo& table);
std::optional<std::string> CreateKeyIndex(const ObjectInfo& table);

std::string CreateUniqueIndex(const std::string& duckName, const std::string& index,
                              const std::vector<ColumnInfo>& columns);

// `column` is one of the table's, as it is to be.
std::string AlterColumn(const ObjectInfo& table, std::string_view column);
// The steps of one; rows that are there get its default only where it may not be NULL.
std::vector<std::string> AddColumn(const ObjectInfo& table, std::string_view column);

}  // namespace kavelin::embedded
