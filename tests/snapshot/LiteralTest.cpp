#include "snapshot/Literal.h"

#include "snapshot/CopyAccounts.h"

#include "embedded/engine/LoadValues.h"

#include <cmath>
#include <limits>

namespace kavelin::snapshot {
namespace {

using namespace std::chrono_literals;
using embedded::SqlType;
using embedded::TypeKind;

DateTime Day(int year, unsigned month, unsigned day)
{
    return std::chrono::sys_days(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day));
}

TEST(Literal, WritesEachKindOfValue)
{
    const struct {
        Value value;
        const char* literal;
    } cases[] = {
        {Value(), "null"},
        {Value::Null(), "null"},
        {Value(true), "1"},
        {Value(false), "0"},
        {Value(-12), "-12"},
        {Value(0.1), "0.1e0"},
        {Value(1e300), "1e+300"},
        {Value(-3.0), "-3e0"},
        {Value(Decimal(-5, 4)), "-0.0005"},
        {Value(Decimal(9223372036854775807, 4)), "922337203685477.5807"},
        {Value(Day(1753, 1, 1)), "'17530101 00:00:00.000'"},
        {Value(Day(1899, 12, 31) + 23h + 59min + 59s + 997ms), "'18991231 23:59:59.997'"},
        {Value(""), "N''"},
        {Value("it's"), "N'it''s'"},
        {Value("汉字 😀 "), "N'汉字 😀 '"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Literal(each.value), each.literal);
}

TEST(Literal, KeepsABackslashAtTheEndOfALine)
{
    EXPECT_EQ(Literal(Value("a\\\r\nb")), "N'a\\'+N'\r\nb'");
    EXPECT_EQ(Literal(Value("a\\\nb")), "N'a\\'+N'\nb'");
    EXPECT_EQ(Literal(Value("c:\\new")), "N'c:\\new'");
}

TEST(Literal, IsReadBackAsTheSameValue)
{
    test::TestFolder folder;
    OpenAccount account(folder / "a.kavelin", OpenAccount::Made::Bare);
    const Value values[] = {Value(0.1),
                            Value(1.0 / 3),
                            Value(-2.2250738585072014e-308),
                            Value(std::numeric_limits<double>::max()),
                            Value(9007199254740993.0),
                            Value(Decimal::FromText("-922337203685477.5808").value()),
                            Value("a\\\r\nb 'quoted' 𠀀😀  "),
                            Value("")};
    for (const Value& value : values) {
        const auto rows = account.Account().OpenRecordset("select " + Literal(value), CursorLocation::Client,
                                                          CursorType::Static, LockType::ReadOnly);
        EXPECT_EQ(rows->Field(0), value) << Literal(value);
    }
}

TEST(ValueFor, GivesWhatTheColumnHolds)
{
    EXPECT_EQ(ValueFor(Value(Decimal(5, 0)), SqlType{TypeKind::Int}), Value(5));
    EXPECT_EQ(ValueFor(Value(1), SqlType{TypeKind::Bit}), Value(true));
    EXPECT_EQ(ValueFor(Value(Decimal(15, 1)), SqlType{TypeKind::Money}), Value(Decimal(15000, 4)));
    EXPECT_EQ(ValueFor(Value("7"), SqlType{TypeKind::Smallint}), Value(7));
    EXPECT_EQ(ValueFor(Value(Decimal(25, 1)), SqlType{TypeKind::Float}), Value(2.5));
    EXPECT_EQ(ValueFor(Value("ab  "), SqlType{TypeKind::Nvarchar, 3}), Value("ab "));
    EXPECT_TRUE(ValueFor(Value(), SqlType{TypeKind::Int}).IsNull());
}

TEST(ValueFor, RefusesWhatTheColumnCannotHold)
{
    EXPECT_THROW(ValueFor(Value("abc"), SqlType{TypeKind::Int}), embedded::BadValue);
    EXPECT_THROW(ValueFor(Value(256), SqlType{TypeKind::Tinyint}), embedded::BadValue);
    EXPECT_THROW(ValueFor(Value("abcd"), SqlType{TypeKind::Nvarchar, 3}), embedded::BadValue);
    EXPECT_THROW(ValueFor(Value(std::nan("")), SqlType{TypeKind::Float}), embedded::BadValue);
    EXPECT_THROW(ValueFor(Value(Day(1752, 12, 31)), SqlType{TypeKind::Datetime}), embedded::BadValue);
}

}  // namespace
}  // namespace kavelin::snapshot
