#include "embedded/write/Duck.h"

#include "embedded/write/DuckErrors.h"

#include <duckdb.h>
#include <stdexcept>

namespace kavelin::embedded {

struct Duck::Handles {
    duckdb_database database = nullptr;
    duckdb_connection connection = nullptr;
};

Duck::Duck() : objHandles(std::make_unique<Handles>())
{
    if (duckdb_open(nullptr, &objHandles->database) != DuckDBSuccess ||
        duckdb_connect(objHandles->database, &objHandles->connection) != DuckDBSuccess)
        throw std::runtime_error("DuckDB does not open");
}

Duck::~Duck()
{
    duckdb_disconnect(&objHandles->connection);
    duckdb_close(&objHandles->database);
}

std::string Duck::Run(const std::string& sql)
{
    duckdb_result result;
    std::string text;
    blnFailed = duckdb_query(objHandles->connection, sql.c_str(), &result) != DuckDBSuccess;
    if (blnFailed) {
        const SqlMessage message = SqlErrorOfDuck(duckdb_result_error(&result));
        text = std::to_string(message.number) + " " + message.text;
    } else {
        for (idx_t row = 0; row < duckdb_row_count(&result); ++row) {
            for (idx_t column = 0; column < duckdb_column_count(&result); ++column) {
                char* value = duckdb_value_varchar(&result, column, row);
                text += std::string(column > 0 ? "|" : row > 0 ? ";" : "") + (value ? value : "NULL");
                duckdb_free(value);
            }
        }
    }
    duckdb_destroy_result(&result);
    return text;
}

std::string Duck::Run(const StatementPlan& plan)
{
    std::string answer;
    for (const std::string& step : plan.steps) {
        answer = Run(step);
        if (blnFailed)
            break;
    }
    return answer;
}

}  // namespace kavelin::embedded
