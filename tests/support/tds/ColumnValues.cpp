// The values of a row, each behind its length.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/tds/Columns.h"

#include <iconv.h>
#include <algorithm>
#include <bit>
#include <charconv>

namespace kavelin::test::tds {

namespace {

constexpr char kRowToken = '\xD1';

template <class T>
const T& Content(const Value& value)
{
    const T* content = value.As<T>();
    if (!content)
        throw Error("A value is not of the kind that its column's type asks for.");
    return *content;
}

void AppendLow(Bytes& bytes, Int128 number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(number >> (8 * i)));
}

Int128 Scaled(const kavelin::Decimal& number, int scale)
{
    if (number.Scale() > scale)
        throw Error("A decimal has more digits behind the point than its column's type.");
    Int128 unscaled = number.Unscaled();
    for (int i = number.Scale(); i < scale; ++i)
        unscaled *= 10;
    return unscaled;
}

Bytes InCodePage936(const std::string& text)
{
    const iconv_t converter = ::iconv_open("CP936", "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw Error("This system does not know code page 936.");
    Bytes bytes;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t begin = position;
        NextCharacter(text, position);
        char* from = const_cast<char*>(text.data()) + begin;
        std::size_t left = position - begin;
        char character[8];
        char* to = character;
        std::size_t room = sizeof character;
        if (::iconv(converter, &from, &left, &to, &room) == static_cast<std::size_t>(-1))
            bytes += '?';
        else
            bytes.append(character, sizeof character - room);
    }
    ::iconv_close(converter);
    return bytes;
}

Bytes FromHexadecimal(std::string_view digits)
{
    Bytes bytes;
    for (; digits.size() >= 2; digits.remove_prefix(2)) {
        unsigned byte = 0;
        std::from_chars(digits.data(), digits.data() + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

// The first three groups of digits are numbers, the others are bytes.
Bytes GuidBytes(const std::string& text)
{
    Bytes bytes = FromHexadecimal(ReplaceAll(text, "-", ""));
    if (bytes.size() != 16)
        throw Error("A text is no GUID.");
    std::reverse(bytes.begin(), bytes.begin() + 4);
    std::reverse(bytes.begin() + 4, bytes.begin() + 6);
    std::reverse(bytes.begin() + 6, bytes.begin() + 8);
    return bytes;
}

struct DayAndTime {
    std::chrono::sys_days day;
    std::chrono::milliseconds time;

    explicit DayAndTime(DateTime moment)
        : day(std::chrono::floor<std::chrono::days>(moment)), time(moment - day)
    {
    }
    std::int32_t DaysSince(int year) const
    {
        using namespace std::chrono;
        return static_cast<std::int32_t>((day - sys_days(std::chrono::year(year) / January / 1)).count());
    }
};

// The time in 300ths of a second; that of a smalldatetime in minutes.
Bytes DatetimeBytes(DateTime moment, int length)
{
    const DayAndTime parts(moment);
    Bytes bytes;
    if (length == 4) {
        Append(bytes, static_cast<std::uint16_t>(parts.DaysSince(1900)));
        Append(bytes, static_cast<std::uint16_t>(parts.time / std::chrono::minutes(1)));
        return bytes;
    }
    Append(bytes, parts.DaysSince(1900));
    Append(bytes, static_cast<std::uint32_t>((parts.time.count() * 3 + 5) / 10));
    return bytes;
}

int BytesOfTime(int scale)
{
    return scale <= 2 ? 3 : scale <= 4 ? 4 : 5;
}

Bytes Datetime2Bytes(DateTime moment, int scale)
{
    const DayAndTime parts(moment);
    Int128 ticks = parts.time.count();
    for (int digits = 3; digits < scale; ++digits)
        ticks *= 10;
    for (int digits = 3; digits > scale; --digits)
        ticks /= 10;
    Bytes bytes;
    AppendLow(bytes, ticks, BytesOfTime(scale));
    AppendLow(bytes, parts.DaysSince(1), 3);
    return bytes;
}

std::int64_t WholeNumber(const Value& value)
{
    if (const bool* truth = value.As<bool>())
        return *truth ? 1 : 0;
    return Content<std::int64_t>(value);
}

// A value that is there, without its length.
Bytes Encoded(const ColumnType& type, const Value& value)
{
    Bytes bytes;
    switch (type.wire) {
        case WireType::Bit:
        case WireType::Integer: AppendLow(bytes, WholeNumber(value), type.length); break;
        case WireType::Float:
            if (type.length == 4)
                Append(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(Content<double>(value))));
            else
                Append(bytes, std::bit_cast<std::uint64_t>(Content<double>(value)));
            break;
        case WireType::Money: {
            const Int128 number = Scaled(Content<kavelin::Decimal>(value), 4);
            if (type.length == 8)
                AppendLow(bytes, number >> 32, 4);  // the high half first
            AppendLow(bytes, number, 4);
            break;
        }
        case WireType::Decimal: {
            const Int128 number = Scaled(Content<kavelin::Decimal>(value), type.scale);
            bytes += number < 0 ? '\0' : '\1';
            AppendLow(bytes, number < 0 ? -number : number, type.length - 1);
            break;
        }
        case WireType::Datetime: bytes = DatetimeBytes(Content<DateTime>(value), type.length); break;
        case WireType::Datetime2: bytes = Datetime2Bytes(Content<DateTime>(value), type.scale); break;
        case WireType::Date:
            AppendLow(bytes, DayAndTime(Content<DateTime>(value)).DaysSince(1), type.length);
            break;
        case WireType::Guid: bytes = GuidBytes(Content<std::string>(value)); break;
        case WireType::Binary:
        case WireType::Varbinary:
            bytes = FromHexadecimal(std::string_view(Content<std::string>(value)).substr(2));
            break;
        case WireType::Text:
        case WireType::Varchar:
        case WireType::Char: bytes = InCodePage936(Content<std::string>(value)); break;
        case WireType::Ntext:
        case WireType::Nvarchar:
        case WireType::Nchar: bytes = ToUtf16(Content<std::string>(value)); break;
    }
    return bytes;
}

// A value without limit comes in pieces, whose lengths stand before each of them.
void AppendInPieces(Bytes& bytes, const Bytes* content)
{
    if (!content) {
        Append(bytes, std::uint64_t{0xFFFFFFFFFFFFFFFF});
        return;
    }
    constexpr std::size_t kPiece = 8000;
    Append(bytes, static_cast<std::uint64_t>(content->size()));
    for (std::size_t begin = 0; begin < content->size(); begin += kPiece) {
        const std::string_view piece = std::string_view(*content).substr(begin, kPiece);
        Append(bytes, static_cast<std::uint32_t>(piece.size()));
        bytes += piece;
    }
    Append(bytes, std::uint32_t{0});
}

// Behind a pointer and a time stamp that nobody reads; a null has no pointer.
void AppendOldText(Bytes& bytes, const Bytes* content)
{
    constexpr std::size_t kPointer = 16, kStamp = 8;
    bytes += static_cast<char>(content ? kPointer : 0);
    if (!content)
        return;
    bytes.append(kPointer + kStamp, '\1');
    Append(bytes, static_cast<std::uint32_t>(content->size()));
    bytes += *content;
}

void AppendValue(Bytes& bytes, const ColumnType& type, const Value& value)
{
    Bytes content;
    if (!value.IsNull())
        content = Encoded(type, value);
    if (type.length == kWithoutLimit) {
        AppendInPieces(bytes, value.IsNull() ? nullptr : &content);
        return;
    }
    if (IsOldText(type.wire)) {
        AppendOldText(bytes, value.IsNull() ? nullptr : &content);
        return;
    }
    if (HasLongLength(type.wire)) {
        if (content.size() > static_cast<std::size_t>(type.length))
            throw Error("A value is longer than its column's type.");
        Append(bytes, value.IsNull() ? kLongLength : static_cast<std::uint16_t>(content.size()));
    } else {
        bytes += static_cast<char>(content.size());  // 0: null
    }
    bytes += content;
}

}  // namespace

void AppendRow(Bytes& bytes, const std::vector<Column>& columns, const std::vector<Value>& values)
{
    Bytes row(1, kRowToken);
    for (std::size_t i = 0; i < columns.size(); ++i)
        AppendValue(row, columns[i].type, values.at(i));
    bytes += row;
}

}  // namespace kavelin::test::tds
