// The databases of an account as DuckDB has them attached, and the `sysobjects` of each.
//
//   account    the account's file
//   vossystem  the system database, a file beside it
//   tempdb     in memory
//   work       in memory: where the account's new tables begin, see Instance::Flush
#pragma once

#include "embedded/Catalog.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

inline constexpr std::string_view kAccountName = "account";
inline constexpr std::string_view kSystemName = "vossystem";
inline constexpr std::string_view kTempdbName = "tempdb";
inline constexpr std::string_view kWorkName = "work";

inline constexpr std::string_view kSysObjects = "sysobjects";

// "account"."main"."IA_Subsidiary"
std::string DuckNameIn(std::string_view database, std::string_view name);

// The DuckDB database in which a new object is made. The connection's own are in "temp".
std::string_view HomeOfNew(Database database);

// sysobjects(name nvarchar(128), id int, xtype nvarchar(2)): a view that lists a database. That of the
// account lists the tables that are still in memory with those of the file.
const ObjectInfo& SysObjectsOf(Database database);

// DuckDB's statements that make those views.
std::vector<std::string> MakeSysObjects();

}  // namespace kavelin::embedded
