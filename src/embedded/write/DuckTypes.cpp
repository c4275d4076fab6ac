#include "embedded/write/DuckTypes.h"

namespace kavelin::embedded {

std::string DuckType(const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Varchar:
        case TypeKind::Nvarchar: return "VARCHAR";
        case TypeKind::Bit: return "BOOLEAN";
        case TypeKind::Tinyint: return "UTINYINT";
        case TypeKind::Smallint: return "SMALLINT";
        case TypeKind::Bigint: return "BIGINT";
        case TypeKind::Money: return "DECIMAL(19,4)";
        case TypeKind::Decimal:
            return "DECIMAL(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
        case TypeKind::Float: return "DOUBLE";
        case TypeKind::Datetime: return "TIMESTAMP";
        case TypeKind::Null:
        case TypeKind::Int: break;
    }
    return "INTEGER";
}

bool SameInDuck(const SqlType& a, const SqlType& b)
{
    return a.kind == b.kind
               ? a.kind != TypeKind::Decimal || (a.precision == b.precision && a.scale == b.scale)
               : a.kind != TypeKind::Null && b.kind != TypeKind::Null && DuckType(a) == DuckType(b);
}

int ScaleOf(const SqlType& type)
{
    if (type.kind == TypeKind::Money)
        return 4;
    return type.kind == TypeKind::Decimal ? type.scale : 0;
}

std::string Cast(const std::string& operand, const SqlType& type)
{
    return "CAST(" + operand + " AS " + DuckType(type) + ")";
}

}  // namespace kavelin::embedded
