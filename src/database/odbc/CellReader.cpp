#include "database/odbc/CellReader.h"

#include "database/odbc/Utf16.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <chrono>
#include <cstring>
#include <optional>
#include <string_view>

namespace kavelin::odbc {

namespace {

// A sign, 38 digits and a point take 40; more than that is refused, so its end may be cut.
constexpr std::size_t kDecimalBytes = 64;

template <class T>
T Read(const void* buffer)
{
    T content;
    std::memcpy(&content, buffer, sizeof content);
    return content;
}

DateTime DateOf(const SQL_TIMESTAMP_STRUCT& stamp)
{
    using namespace std::chrono;
    const sys_days day = year(stamp.year) / month(stamp.month) / stamp.day;
    // The server's three hundredths of a second come with as many nines or sixes as the driver likes.
    return day + hours(stamp.hour) + minutes(stamp.minute) + seconds(stamp.second) +
           round<milliseconds>(nanoseconds(stamp.fraction));
}

std::string HexOf(std::string_view bytes)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "0x";
    text.reserve(2 + bytes.size() * 2);
    for (const char byte : bytes) {
        text += kDigits[static_cast<unsigned char>(byte) >> 4];
        text += kDigits[static_cast<unsigned char>(byte) & 0xF];
    }
    return text;
}

std::string TextOf(const void* buffer, std::size_t bytes)
{
    std::u16string text(bytes / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), buffer, text.size() * sizeof(char16_t));
    return FromUtf16(text);
}

}  // namespace

CellForm FormOf(const ColumnPlan& plan)
{
    switch (plan.storage) {
        case Storage::Bit: return {SQL_C_BIT, sizeof(SQLCHAR)};
        case Storage::Integer: return {SQL_C_SBIGINT, sizeof(SQLBIGINT)};
        case Storage::Real: return {SQL_C_DOUBLE, sizeof(SQLDOUBLE)};
        case Storage::Decimal: return {SQL_C_CHAR, kDecimalBytes, 1};
        case Storage::Date: return {SQL_C_TYPE_TIMESTAMP, sizeof(SQL_TIMESTAMP_STRUCT)};
        case Storage::Text:
            return {SQL_C_WCHAR, plan.longest == 0 ? 0 : (plan.longest + 1) * sizeof(char16_t),
                    sizeof(char16_t)};
        case Storage::Binary: break;
    }
    return {SQL_C_BINARY, plan.longest};
}

bool AddCell(ResultColumn& column, const ColumnPlan& plan, const void* buffer, std::size_t bytes)
{
    const std::string_view content(static_cast<const char*>(buffer), bytes);
    switch (plan.storage) {
        case Storage::Bit: column.AddWhole(Read<SQLCHAR>(buffer) != 0); return true;
        case Storage::Integer: column.AddWhole(Read<SQLBIGINT>(buffer)); return true;
        case Storage::Real: column.AddReal(Read<SQLDOUBLE>(buffer)); return true;
        case Storage::Date: column.AddDate(DateOf(Read<SQL_TIMESTAMP_STRUCT>(buffer))); return true;
        case Storage::Text: column.AddText(TextOf(buffer, bytes)); return true;
        case Storage::Binary: column.AddText(HexOf(content)); return true;
        case Storage::Decimal: break;
    }
    const std::optional<Decimal> decimal = Decimal::FromText(content);
    if (decimal)
        column.AddDecimal(*decimal);
    return decimal.has_value();
}

}  // namespace kavelin::odbc
