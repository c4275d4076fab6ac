#include "embedded/engine/TableAppender.h"

#include "embedded/engine/BulkLoad.h"
#include "embedded/engine/LoadValues.h"
#include "embedded/write/Quote.h"
#include "frame/Text.h"

#include <duckdb.h>

#include <optional>

namespace kavelin::embedded {

// Where a column's values come from, and where in the chunk they go.
struct TableAppender::Column {
    std::optional<std::size_t> source;  // position in the row
    Value otherwise = Value::Null();    // without a source
    std::int64_t nextNumber = 0;        // of an identity without a source
    std::int64_t numberStep = 0;        // 0: not numbered

    duckdb_type storage = DUCKDB_TYPE_INVALID;
    duckdb_vector vector = nullptr;
    void* data = nullptr;
    std::uint64_t* validity = nullptr;  // made when the first null of a chunk comes
};

struct TableAppender::Handles {
    duckdb_appender appender = nullptr;
    duckdb_data_chunk chunk = nullptr;
    idx_t used = 0;

    ~Handles()
    {
        if (chunk != nullptr)
            duckdb_destroy_data_chunk(&chunk);
        if (appender != nullptr)
            duckdb_appender_destroy(&appender);
    }

    void Check(duckdb_state state) const
    {
        if (state == DuckDBSuccess)
            return;
        const char* message = duckdb_appender_error(appender);
        throw DuckError(message != nullptr ? message : "DuckDB did not take the rows.");
    }
};

namespace {

// The parts of "account"."main"."x".
std::string DatabaseOfName(const std::string& duckName)
{
    return duckName.substr(1, duckName.find('"', 1) - 1);
}

DatabaseError UnknownColumn(const ObjectInfo& table, const std::string& column)
{
    DatabaseError::Details details;
    details.lngNumber = 207;
    details.strSqlState = "42S22";
    details.strMessage = "Invalid column name '" + column + "' of table " + table.name + '.';
    return DatabaseError(details);
}

Value DefaultOf(Session& session, const ColumnInfo& column)
{
    return column.defaultSql ? session.Run("SELECT " + *column.defaultSql).Get(0, 0) : Value::Null();
}

std::int64_t HighestNumber(Session& session, const ObjectInfo& table, const ColumnInfo& column)
{
    Result highest =
        session.Run("SELECT CAST(max(" + QuoteName(column.name) + ") AS BIGINT) FROM " + table.duckName);
    const Value number = highest.Get(0, 0);
    return number.IsNull() ? 0 : *number.As<std::int64_t>();
}

// The type of the values as they lie in memory, which for a DECIMAL depends on its precision.
duckdb_type StorageOf(duckdb_logical_type type)
{
    const duckdb_type id = duckdb_get_type_id(type);
    return id == DUCKDB_TYPE_DECIMAL ? duckdb_decimal_internal_type(type) : id;
}

template <class T>
void Store(void* data, idx_t row, T value)
{
    static_cast<T*>(data)[row] = value;
}

void StoreInteger(void* data, duckdb_type storage, idx_t row, Int128 value)
{
    switch (storage) {
        case DUCKDB_TYPE_UTINYINT: Store(data, row, static_cast<std::uint8_t>(value)); break;
        case DUCKDB_TYPE_SMALLINT: Store(data, row, static_cast<std::int16_t>(value)); break;
        case DUCKDB_TYPE_INTEGER: Store(data, row, static_cast<std::int32_t>(value)); break;
        case DUCKDB_TYPE_BIGINT: Store(data, row, static_cast<std::int64_t>(value)); break;
        case DUCKDB_TYPE_HUGEINT:
            Store(data, row,
                  duckdb_hugeint{static_cast<std::uint64_t>(value), static_cast<std::int64_t>(value >> 64)});
            break;
        default: throw DuckError("A column of the table is not stored as its type tells.");
    }
}

}  // namespace

TableAppender::TableAppender(Session& session, const ObjectInfo& table,
                             const std::vector<std::string>& columns)
    : objTable(table), intGiven(columns.size()), objHandles(std::make_unique<Handles>())
{
    for (const ColumnInfo& info : table.columns) {
        Column& column = objColumns.emplace_back();
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (EqualsNoCase(columns[i], info.name))
                column.source = i;
        if (column.source)
            continue;
        if (info.identity) {
            column.numberStep = 1;
            column.nextNumber = HighestNumber(session, table, info) + 1;
        } else {
            column.otherwise = DefaultOf(session, info);
        }
    }
    for (const std::string& name : columns) {
        bool known = false;
        for (const ColumnInfo& info : table.columns)
            known = known || EqualsNoCase(name, info.name);
        if (!known)
            throw UnknownColumn(table, name);
    }

    objHandles->Check(duckdb_appender_create_ext(session.Native(), DatabaseOfName(table.duckName).c_str(),
                                                 "main", table.name.c_str(), &objHandles->appender));
    std::vector<duckdb_logical_type> types;
    for (std::size_t i = 0; i < objColumns.size(); ++i) {
        types.push_back(duckdb_appender_column_type(objHandles->appender, i));
        objColumns[i].storage = StorageOf(types.back());
    }
    objHandles->chunk = duckdb_create_data_chunk(types.data(), types.size());
    for (duckdb_logical_type& type : types)
        duckdb_destroy_logical_type(&type);
    Flush();
}

TableAppender::~TableAppender() = default;

void TableAppender::Append(std::span<const Value> row)
{
    ++lngRows;
    WriteRow(row);
    if (++objHandles->used == duckdb_vector_size())
        Flush();
}

void TableAppender::WriteRow(std::span<const Value> row)
{
    const auto refuse = [&](int number, const std::string& column, const std::string& message) {
        DatabaseError::Details details;
        details.lngNumber = number;
        details.strMessage = "Table " + objTable.name + ", row " + std::to_string(lngRows) +
                             (column.empty() ? "" : ", column " + column) + ": " + message;
        throw BulkLoadError(details, objTable.name, column, lngRows);
    };
    if (row.size() != intGiven)
        refuse(213, "",
               "the row has " + std::to_string(row.size()) + " values, " + std::to_string(intGiven) +
                   " are wanted.");

    const idx_t at = objHandles->used;
    for (std::size_t i = 0; i < objColumns.size(); ++i) {
        Column& column = objColumns[i];
        ColumnInfo& info = objTable.columns[i];
        Value number;
        if (column.numberStep != 0) {
            number = Value(column.nextNumber);
            column.nextNumber += column.numberStep;
        }
        const Value& value = column.numberStep != 0 ? number
                             : column.source        ? row[*column.source]
                                                    : column.otherwise;
        if (value.IsNull() || value.IsEmpty()) {
            if (!info.nullable)
                refuse(515, info.name, "the column takes no NULL.");
            if (column.validity == nullptr) {
                duckdb_vector_ensure_validity_writable(column.vector);
                column.validity = duckdb_vector_get_validity(column.vector);
            }
            duckdb_validity_set_row_invalid(column.validity, at);
            continue;
        }
        try {
            switch (info.type.kind) {
                case TypeKind::Bit: Store(column.data, at, AsBit(value, info.type)); break;
                case TypeKind::Float: Store(column.data, at, AsFloat(value, info.type)); break;
                case TypeKind::Datetime: Store(column.data, at, AsMicroseconds(value, info.type)); break;
                case TypeKind::Money:
                case TypeKind::Decimal:
                    StoreInteger(column.data, column.storage, at, AsUnscaled(value, info.type));
                    break;
                case TypeKind::Varchar:
                case TypeKind::Nvarchar: {
                    const std::string_view text = AsText(value, info.type, info.facts, strBuffer);
                    duckdb_vector_assign_string_element_len(column.vector, at, text.data(), text.size());
                    break;
                }
                default: StoreInteger(column.data, column.storage, at, AsInteger(value, info.type));
            }
        } catch (const BadValue& bad) {
            refuse(bad.Number(), info.name, bad.what());
        }
    }
}

// Hands the chunk over and begins it anew.
void TableAppender::Flush()
{
    Handles& handles = *objHandles;
    if (handles.used > 0) {
        duckdb_data_chunk_set_size(handles.chunk, handles.used);
        handles.Check(duckdb_append_data_chunk(handles.appender, handles.chunk));
        duckdb_data_chunk_reset(handles.chunk);
        handles.used = 0;
    }
    for (std::size_t i = 0; i < objColumns.size(); ++i) {
        Column& column = objColumns[i];
        column.vector = duckdb_data_chunk_get_vector(handles.chunk, i);
        column.data = duckdb_vector_get_data(column.vector);
        column.validity = nullptr;
    }
}

ObjectInfo TableAppender::Finish()
{
    Flush();
    objHandles->Check(duckdb_appender_close(objHandles->appender));
    return objTable;
}

}  // namespace kavelin::embedded
