#include "support/tds/Columns.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <algorithm>
#include <charconv>

namespace kavelin::test::tds {

namespace {

constexpr char kColumnsToken = '\x81';
constexpr std::uint16_t kNullable = 0x0009;  // and may be written
constexpr int kMostBytes = 8000;             // of a text or binary with a length

// What stands in the brackets behind a type's name.
enum class Brackets { None, Characters, Units, Precision, Scale };

struct TypeRow {
    std::string_view name;
    WireType wire;
    int length;  // of a value without brackets
    Brackets brackets;
    int precision = 0;
    int scale = 0;
};
constexpr TypeRow kTypes[] = {
    {"null", WireType::Integer, 4, Brackets::None},  // of a bare NULL
    {"bit", WireType::Bit, 1, Brackets::None},
    {"tinyint", WireType::Integer, 1, Brackets::None},
    {"smallint", WireType::Integer, 2, Brackets::None},
    {"int", WireType::Integer, 4, Brackets::None},
    {"bigint", WireType::Integer, 8, Brackets::None},
    {"real", WireType::Float, 4, Brackets::None},
    {"float", WireType::Float, 8, Brackets::None},
    {"smallmoney", WireType::Money, 4, Brackets::None},
    {"money", WireType::Money, 8, Brackets::None},
    {"decimal", WireType::Decimal, 9, Brackets::Precision, 18, 0},
    {"smalldatetime", WireType::Datetime, 4, Brackets::None},
    {"datetime", WireType::Datetime, 8, Brackets::None},
    {"date", WireType::Date, 3, Brackets::None},
    {"datetime2", WireType::Datetime2, 8, Brackets::Scale, 0, 7},
    {"uniqueidentifier", WireType::Guid, 16, Brackets::None},
    {"binary", WireType::Binary, 1, Brackets::Characters},
    {"varbinary", WireType::Varbinary, 1, Brackets::Characters},
    {"char", WireType::Char, 1, Brackets::Characters},
    {"varchar", WireType::Varchar, 1, Brackets::Characters},
    {"nchar", WireType::Nchar, 2, Brackets::Units},
    {"nvarchar", WireType::Nvarchar, 2, Brackets::Units},
    {"text", WireType::Text, 0x7FFFFFFF, Brackets::None},
    {"ntext", WireType::Ntext, 0x7FFFFFFE, Brackets::None},
};

int Number(std::string_view digits)
{
    digits = Trim(digits);
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

int BytesOfDecimal(int precision)
{
    return precision <= 9 ? 5 : precision <= 19 ? 9 : precision <= 28 ? 13 : 17;
}

void AppendType(Bytes& bytes, const ColumnType& type)
{
    bytes += static_cast<char>(type.wire);
    switch (type.wire) {
        case WireType::Date: return;
        case WireType::Datetime2: bytes += static_cast<char>(type.scale); return;
        case WireType::Decimal:
            bytes += static_cast<char>(type.length);
            bytes += static_cast<char>(type.precision);
            bytes += static_cast<char>(type.scale);
            return;
        case WireType::Text:
        case WireType::Ntext:
            Append(bytes, type.length);
            bytes += kCollation;
            bytes += '\0';  // no table is named
            return;
        default: break;
    }
    if (HasLongLength(type.wire))
        Append(bytes, type.length == kWithoutLimit ? kLongLength : static_cast<std::uint16_t>(type.length));
    else
        bytes += static_cast<char>(type.length);
    if (IsText(type.wire))
        bytes += kCollation;
}

}  // namespace

bool IsText(WireType wire)
{
    return wire == WireType::Varchar || wire == WireType::Char || wire == WireType::Nvarchar ||
           wire == WireType::Nchar;
}

bool IsOldText(WireType wire)
{
    return wire == WireType::Text || wire == WireType::Ntext;
}

bool HasLongLength(WireType wire)
{
    return IsText(wire) || wire == WireType::Binary || wire == WireType::Varbinary;
}

ColumnType TypeOf(std::string_view name)
{
    const std::size_t bracket = std::min(name.find('('), name.size());
    const std::string_view word = Trim(name.substr(0, bracket));
    const auto* row =
        std::ranges::find_if(kTypes, [&](const TypeRow& r) { return EqualsNoCase(r.name, word); });
    if (row == std::end(kTypes))
        throw Error("The server does not send the type " + std::string(name) + ".");

    ColumnType type{row->wire, row->length, row->precision, row->scale};
    if (bracket < name.size()) {
        const std::string_view inside = name.substr(bracket + 1, name.rfind(')') - bracket - 1);
        const std::size_t comma = inside.find(',');
        const int first = Number(inside.substr(0, comma));
        switch (row->brackets) {
            case Brackets::None: break;
            case Brackets::Characters:
            case Brackets::Units: {
                // A literal may be longer than any column with a length.
                const int bytes = first * row->length;
                const bool any = EqualsNoCase(Trim(inside), "max") || bytes > kMostBytes;
                type.length = any ? kWithoutLimit : bytes;
                break;
            }
            case Brackets::Precision:
                type.precision = first;
                type.scale = comma == std::string_view::npos ? 0 : Number(inside.substr(comma + 1));
                break;
            case Brackets::Scale: type.scale = first; break;
        }
    }
    if (type.wire == WireType::Decimal)
        type.length = BytesOfDecimal(type.precision);
    return type;
}

void AppendColumns(Bytes& bytes, const std::vector<Column>& columns)
{
    bytes += kColumnsToken;
    Append(bytes, static_cast<std::uint16_t>(columns.size()));
    for (const Column& column : columns) {
        Append(bytes, std::uint32_t{0});  // no type of a user's own
        Append(bytes, kNullable);
        AppendType(bytes, column.type);
        AppendText8(bytes, column.name);
    }
}

}  // namespace kavelin::test::tds
