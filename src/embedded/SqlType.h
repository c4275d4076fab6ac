// T-SQL's types as the embedded account knows them.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin::embedded {

// From the lowest to the highest in T-SQL's precedence: where two meet, the lower is converted.
enum class TypeKind : std::uint8_t {
    Null,  // of a bare NULL, which takes the type of what it meets
    Varchar,
    Nvarchar,
    Bit,
    Tinyint,
    Smallint,
    Int,
    Bigint,
    Money,
    Decimal,
    Float,
    Datetime,
};

constexpr int kMaxLength = -1;  // nvarchar(max)

struct SqlType {
    TypeKind kind = TypeKind::Null;
    int length = 0;     // text: characters, or kMaxLength
    int precision = 0;  // decimal
    int scale = 0;      // decimal

    bool operator==(const SqlType&) const = default;

    bool IsText() const { return kind == TypeKind::Varchar || kind == TypeKind::Nvarchar; }
    bool IsInteger() const { return kind >= TypeKind::Bit && kind <= TypeKind::Bigint; }
    bool IsNumber() const { return kind >= TypeKind::Bit && kind <= TypeKind::Float; }
};

// `decimal(38,6)`, `nvarchar(30)`, `int`: as T-SQL writes it.
std::string ToText(const SqlType& type);

}  // namespace kavelin::embedded
