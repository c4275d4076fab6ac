#include "embedded/engine/DuckDb.h"

#include <duckdb.h>

#include <vector>

namespace kavelin::embedded {

namespace {

struct Column {
    duckdb_type type;      // of the values as they lie in memory
    int scale = 0;         // of a DECIMAL
    bool decimal = false;  // a DECIMAL, kept in integers of `type`
};

Column DescribeColumn(duckdb_result& result, idx_t index)
{
    Column column;
    duckdb_logical_type logical = duckdb_column_logical_type(&result, index);
    column.type = duckdb_get_type_id(logical);
    if (column.type == DUCKDB_TYPE_DECIMAL) {
        column.decimal = true;
        column.scale = duckdb_decimal_scale(logical);
        column.type = duckdb_decimal_internal_type(logical);
    }
    duckdb_destroy_logical_type(&logical);
    return column;
}

Int128 ToInt128(duckdb_hugeint value)
{
    return (static_cast<Int128>(value.upper) << 64) | static_cast<Int128>(value.lower);
}

// T-SQL's datetime ends at milliseconds; DuckDB keeps microseconds.
DateTime ToDateTime(std::int64_t microseconds)
{
    return DateTime(std::chrono::floor<std::chrono::milliseconds>(std::chrono::microseconds(microseconds)));
}

// One statement on its way through prepare, pending and execute, given back whatever happens.
struct Run {
    duckdb_prepared_statement prepared = nullptr;
    duckdb_pending_result pending = nullptr;

    ~Run()
    {
        if (pending != nullptr)
            duckdb_destroy_pending(&pending);
        if (prepared != nullptr)
            duckdb_destroy_prepare(&prepared);
    }
};

std::string TextOr(const char* text, const char* fallback)
{
    return text != nullptr ? text : fallback;
}

}  // namespace

// --- Result ------------------------------------------------------------------------------------

struct Result::Content {
    duckdb_result result{};
    std::vector<Column> columns;
    std::int64_t rowCount = 0;

    // The chunk that holds the row last asked for.
    duckdb_data_chunk chunk = nullptr;
    idx_t chunkIndex = 0;
    std::int64_t firstRow = 0;
    std::int64_t endRow = 0;
    std::vector<duckdb_vector> vectors;

    ~Content()
    {
        if (chunk != nullptr)
            duckdb_destroy_data_chunk(&chunk);
        duckdb_destroy_result(&result);
    }

    void Load(idx_t index, std::int64_t first)
    {
        if (chunk != nullptr)
            duckdb_destroy_data_chunk(&chunk);
        chunk = duckdb_result_get_chunk(result, index);
        if (chunk == nullptr)
            throw DuckError("The rows of the result ended early.");
        chunkIndex = index;
        firstRow = first;
        endRow = first + static_cast<std::int64_t>(duckdb_data_chunk_get_size(chunk));
        for (std::size_t i = 0; i < columns.size(); ++i)
            vectors[i] = duckdb_data_chunk_get_vector(chunk, i);
    }
};

Result::Result(std::unique_ptr<Content> content) : objContent(std::move(content))
{
    duckdb_result& result = objContent->result;
    for (idx_t i = 0; i < duckdb_column_count(&result); ++i)
        objContent->columns.push_back(DescribeColumn(result, i));
    objContent->vectors.resize(objContent->columns.size());
    objContent->rowCount = static_cast<std::int64_t>(duckdb_row_count(&result));
}

Result::Result(Result&&) noexcept = default;
Result& Result::operator=(Result&&) noexcept = default;
Result::~Result() = default;

std::int64_t Result::RowCount() const
{
    return objContent->rowCount;
}

std::int64_t Result::RowsChanged() const
{
    return static_cast<std::int64_t>(duckdb_rows_changed(&objContent->result));
}

void Result::Seek(std::int64_t row)
{
    Content& content = *objContent;
    if (row < 0 || row >= content.rowCount)
        throw DuckError("There is no such row in the result.");
    if (content.chunk == nullptr || row < content.firstRow)
        content.Load(0, 0);
    while (row >= content.endRow)
        content.Load(content.chunkIndex + 1, content.endRow);
}

Value Result::Get(std::int64_t row, int column)
{
    Seek(row);
    const Column& description = objContent->columns.at(static_cast<std::size_t>(column));
    const duckdb_vector vector = objContent->vectors[static_cast<std::size_t>(column)];
    const auto index = static_cast<idx_t>(row - objContent->firstRow);

    std::uint64_t* validity = duckdb_vector_get_validity(vector);
    if (validity != nullptr && !duckdb_validity_row_is_valid(validity, index))
        return Value::Null();

    const void* data = duckdb_vector_get_data(vector);
    const auto integer = [&](Int128 value) {
        return description.decimal ? Value(Decimal(value, description.scale))
                                   : Value(static_cast<std::int64_t>(value));
    };
    switch (description.type) {
        case DUCKDB_TYPE_BOOLEAN: return Value(static_cast<const bool*>(data)[index]);
        case DUCKDB_TYPE_TINYINT: return integer(static_cast<const std::int8_t*>(data)[index]);
        case DUCKDB_TYPE_UTINYINT: return integer(static_cast<const std::uint8_t*>(data)[index]);
        case DUCKDB_TYPE_SMALLINT: return integer(static_cast<const std::int16_t*>(data)[index]);
        case DUCKDB_TYPE_INTEGER: return integer(static_cast<const std::int32_t*>(data)[index]);
        case DUCKDB_TYPE_BIGINT: return integer(static_cast<const std::int64_t*>(data)[index]);
        case DUCKDB_TYPE_HUGEINT:
            return Value(
                Decimal(ToInt128(static_cast<const duckdb_hugeint*>(data)[index]), description.scale));
        case DUCKDB_TYPE_FLOAT: return Value(static_cast<double>(static_cast<const float*>(data)[index]));
        case DUCKDB_TYPE_DOUBLE: return Value(static_cast<const double*>(data)[index]);
        case DUCKDB_TYPE_TIMESTAMP:
            return Value(ToDateTime(static_cast<const duckdb_timestamp*>(data)[index].micros));
        case DUCKDB_TYPE_VARCHAR: {
            auto text = static_cast<const duckdb_string_t*>(data)[index];
            return Value(std::string(duckdb_string_t_data(&text), duckdb_string_t_length(text)));
        }
        case DUCKDB_TYPE_SQLNULL: return Value::Null();
        default:
            throw DuckError("Column " + std::to_string(column) +
                            " of the result has a type without a value.");
    }
}

// --- DuckDatabase ------------------------------------------------------------------------------

struct DuckDatabase::Handle {
    duckdb_database database = nullptr;
};

DuckDatabase::DuckDatabase() : objHandle(std::make_unique<Handle>())
{
    char* error = nullptr;
    if (duckdb_open_ext(nullptr, &objHandle->database, nullptr, &error) == DuckDBError) {
        const std::string message = TextOr(error, "DuckDB could not be started.");
        duckdb_free(error);
        throw DuckError(message);
    }
}

DuckDatabase::~DuckDatabase()
{
    duckdb_close(&objHandle->database);
}

// --- Session -----------------------------------------------------------------------------------

Session::Session(DuckDatabase& database)
{
    if (duckdb_connect(database.objHandle->database, &objNative) == DuckDBError)
        throw DuckError("DuckDB gave no connection.");
}

Session::~Session()
{
    duckdb_disconnect(&objNative);
}

Result Session::Run(const std::string& sql)
{
    struct Run run;
    if (duckdb_prepare(objNative, sql.c_str(), &run.prepared) == DuckDBError)
        throw DuckError(TextOr(duckdb_prepare_error(run.prepared), "DuckDB refused the statement."));
    if (duckdb_pending_prepared(run.prepared, &run.pending) == DuckDBError)
        throw DuckError(TextOr(duckdb_pending_error(run.pending), "DuckDB did not start the statement."));

    // Starting a statement takes back an interrupt that came before it.
    if (blnInterrupted)
        duckdb_interrupt(objNative);

    auto content = std::make_unique<Result::Content>();
    if (duckdb_execute_pending(run.pending, &content->result) == DuckDBError)
        throw DuckError(TextOr(duckdb_result_error(&content->result), "The statement failed."));
    return Result(std::move(content));
}

void Session::Interrupt() noexcept
{
    blnInterrupted = true;
    duckdb_interrupt(objNative);
}

// --- Transaction -------------------------------------------------------------------------------

Transaction::Transaction(Session& session) : objSession(session)
{
    objSession.Run("BEGIN TRANSACTION");
}

Transaction::~Transaction()
{
    if (!blnOpen)
        return;
    // A roll-back that fails means that there is no transaction any more.
    duckdb_result result;
    duckdb_query(objSession.Native(), "ROLLBACK", &result);
    duckdb_destroy_result(&result);
}

void Transaction::Commit()
{
    objSession.Run("COMMIT");
    blnOpen = false;
}

}  // namespace kavelin::embedded
