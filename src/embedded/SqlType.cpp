#include "embedded/SqlType.h"

namespace kavelin::embedded {

namespace {

std::string WithLength(const char* name, int length)
{
    return std::string(name) + "(" + (length == kMaxLength ? "max" : std::to_string(length)) + ")";
}

}  // namespace

std::string ToText(const SqlType& type)
{
    switch (type.kind) {
        case TypeKind::Null: return "null";
        case TypeKind::Varchar: return WithLength("varchar", type.length);
        case TypeKind::Nvarchar: return WithLength("nvarchar", type.length);
        case TypeKind::Bit: return "bit";
        case TypeKind::Tinyint: return "tinyint";
        case TypeKind::Smallint: return "smallint";
        case TypeKind::Int: return "int";
        case TypeKind::Bigint: return "bigint";
        case TypeKind::Money: return "money";
        case TypeKind::Decimal:
            return "decimal(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
        case TypeKind::Float: return "float";
        case TypeKind::Datetime: return "datetime";
    }
    return {};
}

}  // namespace kavelin::embedded
