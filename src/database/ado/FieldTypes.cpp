#include "database/ado/FieldTypes.h"

#include <string_view>

namespace kavelin::ado {

namespace {

enum class Suffix { None, PrecisionAndScale, Characters, Bytes };

struct TypeRow {
    std::int32_t type;
    std::string_view name;
    Suffix suffix = Suffix::None;
    bool large = false;  // always of any size
};

// clang-format off
constexpr TypeRow kTypes[] = {
    {2,   "smallint"},
    {3,   "int"},
    {4,   "real"},
    {5,   "float"},
    {6,   "money"},
    {7,   "datetime"},
    {11,  "bit"},
    {14,  "decimal",          Suffix::PrecisionAndScale},
    {17,  "tinyint"},
    {20,  "bigint"},
    {72,  "uniqueidentifier"},
    {128, "binary",           Suffix::Bytes},
    {129, "char",             Suffix::Bytes},
    {130, "nchar",            Suffix::Characters},
    {131, "decimal",          Suffix::PrecisionAndScale},
    {133, "date"},
    {134, "time"},
    {135, "datetime"},
    {200, "varchar",          Suffix::Bytes},
    {201, "varchar",          Suffix::Bytes,      true},
    {202, "nvarchar",         Suffix::Characters},
    {203, "nvarchar",         Suffix::Characters, true},
    {204, "varbinary",        Suffix::Bytes},
    {205, "varbinary",        Suffix::Bytes,      true},
};
// clang-format on

constexpr std::int32_t kMostBytes = 8000;
constexpr std::int32_t kMostCharacters = 4000;

std::string SuffixOf(const TypeRow& row, const FieldShape& field)
{
    if (row.suffix == Suffix::None)
        return "";
    if (row.suffix == Suffix::PrecisionAndScale)
        return "(" + std::to_string(field.precision) + "," + std::to_string(field.scale) + ")";
    const std::int32_t most = row.suffix == Suffix::Characters ? kMostCharacters : kMostBytes;
    const bool any = row.large || field.size < 1 || field.size > most;
    return "(" + (any ? "max" : std::to_string(field.size)) + ")";
}

}  // namespace

std::string TypeName(const FieldShape& field)
{
    for (const TypeRow& row : kTypes)
        if (row.type == field.type)
            return std::string(row.name) + SuffixOf(row, field);
    return "sql_variant";
}

}  // namespace kavelin::ado
