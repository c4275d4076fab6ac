// The objects that a copy knows: those that the scripts of the schema make, with what T-SQL says of them.
#pragma once

#include "embedded/Catalog.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::snapshot {

enum class SchemaKind { Table, View, Function };

struct SchemaObject {
    SchemaKind kind = SchemaKind::Table;
    std::string name;       // as statements write it: "VosSystem..UA_Period", "dbo.UDF_GetLocaleID"
    std::string bareName;   // as sysobjects lists it: "UA_Period"
    bool inSystem = false;  // in the database VosSystem
    std::vector<embedded::ColumnInfo> columns;
    std::vector<std::string> key;         // the primary key; the first column where there is none
    std::vector<std::string> statements;  // that make it and its indexes, in order
    std::vector<std::string> standsOn;    // of a view: the tables below it, by name
};

// All of them, each behind those that it needs.
const std::vector<SchemaObject>& Schema();

// The object of that name, with or without "VosSystem..", in any case; null if there is none.
const SchemaObject* FindInSchema(std::string_view name);

// The statement that makes a table with the columns of a view: what a view shows can lie in it.
std::string CreateTableLike(const SchemaObject& view);

}  // namespace kavelin::snapshot
