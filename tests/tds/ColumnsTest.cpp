#include "frame/Errors.h"
#include "support/tds/Columns.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

using namespace std::string_view_literals;

// The row of one value, without its token, in hexadecimal.
std::string RowOf(std::string_view type, const Value& value)
{
    Bytes bytes;
    AppendRow(bytes, {{"a", TypeOf(type)}}, {value});
    std::string text;
    for (const char byte : bytes.substr(1)) {
        constexpr char kDigits[] = "0123456789ABCDEF";
        text += kDigits[static_cast<unsigned char>(byte) >> 4];
        text += kDigits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

DateTime At(int year, unsigned month, unsigned day, std::chrono::milliseconds time = {})
{
    using namespace std::chrono;
    return sys_days(std::chrono::year(year) / month / day) + time;
}

TEST(TypeOf, ReadsLengthsInBytes)
{
    EXPECT_EQ(TypeOf("nvarchar(60)").length, 120);
    EXPECT_EQ(TypeOf("varchar(60)").length, 60);
    EXPECT_EQ(TypeOf("NVARCHAR(MAX)").length, kWithoutLimit);
    EXPECT_EQ(TypeOf("char").length, 1);
}

TEST(TypeOf, GivesADecimalTheBytesOfItsPrecision)
{
    const struct {
        std::string_view name;
        int length, scale;
    } cases[] = {
        {"decimal(9,2)", 5, 2}, {"decimal(10,0)", 9, 0}, {"decimal(20)", 13, 0}, {"decimal(38, 20)", 17, 20}};
    for (const auto& c : cases) {
        EXPECT_EQ(TypeOf(c.name).length, c.length) << c.name;
        EXPECT_EQ(TypeOf(c.name).scale, c.scale) << c.name;
    }
}

TEST(TypeOf, RefusesWhatItDoesNotKnow)
{
    EXPECT_THROW(TypeOf("geography"), Error);
}

TEST(AppendRow, WritesNullByTheLengthOfItsType)
{
    EXPECT_EQ(RowOf("int", Value::Null()), "00");
    EXPECT_EQ(RowOf("decimal(38,2)", Value::Null()), "00");
    EXPECT_EQ(RowOf("nvarchar(10)", Value::Null()), "FFFF");
    EXPECT_EQ(RowOf("nvarchar(max)", Value::Null()), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(RowOf("ntext", Value::Null()), "00");
}

TEST(AppendRow, WritesNumbers)
{
    EXPECT_EQ(RowOf("bit", true), "0101");
    EXPECT_EQ(RowOf("tinyint", std::int64_t{255}), "01FF");
    EXPECT_EQ(RowOf("smallint", std::int64_t{-2}), "02FEFF");
    EXPECT_EQ(RowOf("bigint", std::int64_t{1} << 40), "080000000000010000");
    EXPECT_EQ(RowOf("float", 1.0), "08000000000000F03F");
    EXPECT_EQ(RowOf("real", 1.0), "040000803F");
}

TEST(AppendRow, WritesADecimalAsSignAndDigits)
{
    EXPECT_EQ(RowOf("decimal(9,2)", Decimal(-1250, 2)), "0500E2040000");
    EXPECT_EQ(RowOf("decimal(9,2)", Decimal(5, 0)), "0501F4010000");
    EXPECT_THROW(RowOf("decimal(9,2)", Decimal(1, 3)), Error);
}

TEST(AppendRow, WritesTheHighHalfOfMoneyFirst)
{
    EXPECT_EQ(RowOf("money", Decimal(-1, 4)), "08FFFFFFFFFFFFFFFF");
    EXPECT_EQ(RowOf("money", Decimal(Int128{1} << 32, 4)), "080100000000000000");
    EXPECT_EQ(RowOf("smallmoney", Decimal(125, 2)), "04D4300000");
}

TEST(AppendRow, WritesDaysAndTimesFromTheirTypesFirstDay)
{
    using namespace std::chrono_literals;
    EXPECT_EQ(RowOf("datetime", At(1900, 1, 2, 1000ms)), "08010000002C010000");
    EXPECT_EQ(RowOf("datetime", At(1753, 1, 1)),
              "08"
              "462EFFFF"
              "00000000");
    EXPECT_EQ(RowOf("smalldatetime", At(1900, 1, 2, 60000ms)), "0401000100");
    EXPECT_EQ(RowOf("date", At(1, 1, 2)), "03010000");
    EXPECT_EQ(RowOf("datetime2(3)", At(1, 1, 2, 7ms)), "0707000000010000");
    EXPECT_EQ(RowOf("datetime2(7)", At(1, 1, 2, 1ms)), "081027000000010000");
}

TEST(AppendRow, WritesTextWithoutNInTheServersCodePage)
{
    EXPECT_EQ(RowOf("varchar(10)", "货a😀"), "0400BBF5613F");
    EXPECT_EQ(RowOf("nvarchar(10)", "货a"), "0400278D6100");
}

TEST(AppendRow, RefusesAValueThatItsTypeHasNoRoomFor)
{
    EXPECT_THROW(RowOf("nvarchar(2)", "abc"), Error);
    EXPECT_THROW(RowOf("int", "1"), Error);
}

TEST(AppendRow, WritesTextWithoutLimitInPieces)
{
    EXPECT_EQ(RowOf("nvarchar(max)", "a"),
              "0200000000000000"
              "02000000"
              "6100"
              "00000000");
    EXPECT_EQ(RowOf("nvarchar(max)", ""),
              "0000000000000000"
              "00000000");
}

TEST(AppendRow, TurnsTheFirstGroupsOfAGuid)
{
    EXPECT_EQ(RowOf("uniqueidentifier", "6F9619FF-8B86-D011-B42D-00C04FC964FF"),
              "10FF19966F868B11D0B42D00C04FC964FF");
}

TEST(AppendRow, WritesBinaryValues)
{
    EXPECT_EQ(RowOf("varbinary(4)", "0x01AF"), "020001AF");
}

}  // namespace
}  // namespace kavelin::test::tds
