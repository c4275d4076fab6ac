#include "demo/FieldValue.h"

#include "frame/Decimal.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace kavelin::demo {
namespace {

using embedded::SqlType;
using embedded::TypeKind;

constexpr SqlType kDecimal52{TypeKind::Decimal, 0, 5, 2};

SqlType Of(TypeKind kind)
{
    return SqlType{kind, 20, 0, 0};
}

CsvField Field(const std::string& text)
{
    return {text, text.empty()};
}

DateTime At(int year, unsigned month, unsigned day, std::chrono::milliseconds time = {})
{
    return DateTime(std::chrono::sys_days(std::chrono::year(year) / month / day)) + time;
}

TEST(FieldValue, ReadsEachType)
{
    using namespace std::chrono_literals;
    const struct {
        std::string text;
        SqlType type;
        Value value;
    } cases[] = {
        {"text", Of(TypeKind::Nvarchar), "text"},
        {"", Of(TypeKind::Nvarchar), ""},
        {" 1 ", Of(TypeKind::Varchar), " 1 "},
        {"一二三四五六七八九十一二三四五六七八九十", Of(TypeKind::Nvarchar),
         "一二三四五六七八九十一二三四五六七八九十"},
        {"1", Of(TypeKind::Bit), true},
        {"False", Of(TypeKind::Bit), false},
        {"255", Of(TypeKind::Tinyint), 255},
        {"-32768", Of(TypeKind::Smallint), -32768},
        {"2147483647", Of(TypeKind::Int), 2147483647},
        {"-9223372036854775808", Of(TypeKind::Bigint), std::numeric_limits<std::int64_t>::min()},
        {"-922337203685477.5807", Of(TypeKind::Money), *Decimal::FromText("-922337203685477.5807")},
        {"12.5", Of(TypeKind::Money), *Decimal::FromText("12.5")},
        {"-999.99", kDecimal52, *Decimal::FromText("-999.99")},
        {"0.1", Of(TypeKind::Float), 0.1},
        {"-1.5e-7", Of(TypeKind::Float), -1.5e-7},
        {"2008-02-29", Of(TypeKind::Datetime), At(2008, 2, 29)},
        {"2008-07-31 14:30", Of(TypeKind::Datetime), At(2008, 7, 31, 14h + 30min)},
        {"2008-07-31 14:30:05.250", Of(TypeKind::Datetime), At(2008, 7, 31, 14h + 30min + 5s + 250ms)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ReadField(Field(c.text), c.type), c.value) << c.text << " as " << ToText(c.type);
}

TEST(FieldValue, TakesNothingForNullWhateverTheType)
{
    for (const TypeKind kind :
         {TypeKind::Nvarchar, TypeKind::Bit, TypeKind::Int, TypeKind::Money, TypeKind::Datetime})
        EXPECT_TRUE(ReadField(CsvField{}, Of(kind)).IsNull());
}

TEST(FieldValue, RefusesWhatIsNotOfTheTypeInFull)
{
    const struct {
        std::string text;
        SqlType type;
    } cases[] = {
        {"\xFF", Of(TypeKind::Nvarchar)},
        {std::string(21, 'x'), Of(TypeKind::Nvarchar)},
        {"", Of(TypeKind::Int)},
        {"", Of(TypeKind::Datetime)},
        {"2", Of(TypeKind::Bit)},
        {"yes", Of(TypeKind::Bit)},
        {"256", Of(TypeKind::Tinyint)},
        {"-1", Of(TypeKind::Tinyint)},
        {"32768", Of(TypeKind::Smallint)},
        {"2147483648", Of(TypeKind::Int)},
        {"1.0", Of(TypeKind::Int)},
        {" 1", Of(TypeKind::Int)},
        {"1,000", Of(TypeKind::Int)},
        {"12abc", Of(TypeKind::Int)},
        {"9223372036854775808", Of(TypeKind::Bigint)},
        {"1.23456", Of(TypeKind::Money)},
        {"1e5", Of(TypeKind::Money)},
        {"10000000000000000", Of(TypeKind::Money)},
        {"1000.00", kDecimal52},
        {"1.234", kDecimal52},
        {"nan", Of(TypeKind::Float)},
        {"inf", Of(TypeKind::Float)},
        {"1e999", Of(TypeKind::Float)},
        {"0x10", Of(TypeKind::Float)},
        {"2008-02-30", Of(TypeKind::Datetime)},
        {"2008-13-01", Of(TypeKind::Datetime)},
        {"2008-1-1", Of(TypeKind::Datetime)},
        {"31.07.2008", Of(TypeKind::Datetime)},
        {"1752-12-31", Of(TypeKind::Datetime)},
        {"2008-07-31T14:30", Of(TypeKind::Datetime)},
        {"2008-07-31 24:00", Of(TypeKind::Datetime)},
        {"2008-07-31 14:30:60", Of(TypeKind::Datetime)},
        {"2008-07-31 14:30:00.5", Of(TypeKind::Datetime)},
        {"2008-07-31 ", Of(TypeKind::Datetime)},
        {"2008-07--1", Of(TypeKind::Datetime)},
    };
    for (const auto& c : cases)
        EXPECT_THROW(ReadField(Field(c.text), c.type), ConversionError) << c.text << " as " << ToText(c.type);
}

TEST(FieldValue, SaysWhatItWants)
{
    try {
        ReadField(Field("abc"), Of(TypeKind::Datetime));
        FAIL();
    } catch (const ConversionError& error) {
        EXPECT_STREQ(error.what(), "'abc' is not a date YYYY-MM-DD, or one with a time hh:mm:ss behind it");
    }
}

TEST(FieldValue, CutsALongTextInItsMessage)
{
    try {
        ReadField(Field(std::string(100, '9')), Of(TypeKind::Int));
        FAIL();
    } catch (const ConversionError& error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("'" + std::string(40, '9') + "...' is not"))
            << error.what();
    }
}

}  // namespace
}  // namespace kavelin::demo
