# Finds DuckDB's C header and shared library and makes the target DuckDB::DuckDB.
#
# Looked for in this order: the folder in DuckDB_ROOT (or the environment variable of that name), the
# system, the packages that package-lock.json pins. DuckDB_INCLUDE_DIR and DuckDB_LIBRARY can be given too.

set(_duckdb_npm ${Kavelin_SOURCE_DIR}/node_modules)

find_path(DuckDB_INCLUDE_DIR duckdb.h
          HINTS ${_duckdb_npm}/duckdb/src/duckdb/src/include)
find_library(DuckDB_LIBRARY duckdb
             HINTS ${_duckdb_npm}/@duckdb/node-bindings-linux-x64)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(DuckDB REQUIRED_VARS DuckDB_LIBRARY DuckDB_INCLUDE_DIR
    REASON_FAILURE_MESSAGE "Run ./run build, which installs the pinned packages, or set DuckDB_ROOT.")

if(DuckDB_FOUND AND NOT TARGET DuckDB::DuckDB)
    add_library(DuckDB::DuckDB SHARED IMPORTED)
    set_target_properties(DuckDB::DuckDB PROPERTIES
        IMPORTED_LOCATION ${DuckDB_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${DuckDB_INCLUDE_DIR})
endif()
mark_as_advanced(DuckDB_INCLUDE_DIR DuckDB_LIBRARY)
