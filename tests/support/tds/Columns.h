// The types that travel: how a result tells them, and how their values stand in a row.
#pragma once

#include "frame/Value.h"
#include "support/tds/Wire.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

enum class WireType : std::uint8_t {
    Text = 0x23,
    Guid = 0x24,
    Integer = 0x26,
    Date = 0x28,
    Datetime2 = 0x2A,
    Ntext = 0x63,
    Bit = 0x68,
    Decimal = 0x6A,
    Float = 0x6D,
    Money = 0x6E,
    Datetime = 0x6F,
    Varbinary = 0xA5,
    Varchar = 0xA7,
    Binary = 0xAD,
    Char = 0xAF,
    Nvarchar = 0xE7,
    Nchar = 0xEF,
};

struct ColumnType {
    WireType wire{};
    int length = 0;  // in bytes; kWithoutLimit for (max)
    int precision = 0;
    int scale = 0;
};
constexpr int kWithoutLimit = -1;
constexpr std::uint16_t kLongLength = 0xFFFF;  // where two bytes tell a length: no limit, or a null

bool IsText(WireType wire);         // but for the old ones
bool IsOldText(WireType wire);      // the types for long texts from before (max)
bool HasLongLength(WireType wire);  // two bytes tell a value's length, not one

// The server's collation, Chinese_PRC_CI_AS, as the protocol writes it; texts without N are of code page 936.
constexpr std::string_view kCollation{"\x04\x08\xD0\x00\x00", 5};

// Of T-SQL's name of a type, such as "decimal(38,2)" or "nvarchar(max)". Throws Error for one that the server
// does not send.
ColumnType TypeOf(std::string_view name);

struct Column {
    std::string name;
    ColumnType type;
};

// The tokens of a result's head and of one of its rows. A value must be null or of the kind that the embedded
// account gives for the type; GUIDs and binary values are texts, "6F9619FF-8B86-D011-B42D-00C04FC964FF" and
// "0x01AF". Throws Error for any other, and nothing is put on then.
void AppendColumns(Bytes& bytes, const std::vector<Column>& columns);
void AppendRow(Bytes& bytes, const std::vector<Column>& columns, const std::vector<Value>& values);

}  // namespace kavelin::test::tds
