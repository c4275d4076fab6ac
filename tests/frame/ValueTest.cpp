#include "frame/Value.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace kavelin::test {

namespace {

DateTime Moment(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0)
{
    using namespace std::chrono;
    return sys_days(
               year_month_day{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)}) +
           hours(hour) + minutes(minute) + seconds(second);
}

Value Exact(std::string_view text)
{
    return *Decimal::FromText(text);
}

}  // namespace

TEST(Value, TellsEmptyNullAndEmptyTextApart)
{
    EXPECT_TRUE(Value().IsEmpty());
    EXPECT_FALSE(Value().IsNull());
    EXPECT_TRUE(Value::Null().IsNull());
    EXPECT_FALSE(Value("").IsEmpty());
    EXPECT_TRUE(Value("").IsText());
    EXPECT_FALSE(Value() == Value(""));
    EXPECT_FALSE(Value() == Value::Null());
}

TEST(Value, OfATextLiteralIsTextAndNotABoolean)
{
    EXPECT_TRUE(Value("1").IsText());
    EXPECT_EQ(*Value("1").As<std::string>(), "1");
}

TEST(ToText, GivesTheDefaultTextOfEachType)
{
    const struct {
        Value value;
        std::string_view text;
    } cases[] = {
        {Value(), ""},
        {"", ""},
        {" as it is ", " as it is "},
        {true, "True"},
        {false, "False"},
        {0, "0"},
        {-17, "-17"},
        {std::int64_t{9000000000}, "9000000000"},
        {3.0, "3"},
        {-3.0, "-3"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {2.5, "2.5"},
        {1.0 / 3.0, "0.333333333333333"},
        {123456789012345.0, "123456789012345"},
        {1e15, "1E+15"},
        {0.00001, "1E-05"},
        {Exact("12.50"), "12.5"},
        {Exact("12.00"), "12"},
        {Exact("100"), "100"},
        {Exact("-0.05"), "-0.05"},
        {Exact("0.00"), "0"},
        {Moment(2008, 7, 31), "2008-07-31"},
        {Moment(2008, 7, 31, 14, 30), "2008-07-31 14:30:00"},
        {Moment(2008, 7, 1, 0, 0, 9), "2008-07-01 00:00:09"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ToText(c.value), c.text);
}

TEST(ToDouble, TakesATextThatIsANumberAsAWhole)
{
    const struct {
        Value value;
        double number;
    } cases[] = {
        {Value(), 0},
        {true, -1},
        {false, 0},
        {7, 7},
        {Exact("1.25"), 1.25},
        {"12", 12},
        {" 12.5 ", 12.5},
        {"-3", -3},
        {"+3", 3},
        {".5", 0.5},
        {"5.", 5},
        {"1e3", 1000},
        {"1d3", 1000},
        {"1E-2", 0.01},
        {"1,234", 1234},
        {"1,234.5", 1234.5},
        {Moment(1899, 12, 31), 1},
        {Moment(1900, 1, 1, 12), 2.5},
        {Moment(1899, 12, 29, 6), -1.25},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(ToDouble(c.value), c.number) << ToText(c.value);
}

TEST(ToDouble, RefusesNullAndATextThatIsNoNumber)
{
    const Value cases[] = {Value::Null(), "",     " ",   "abc",      "12abc",     "1.5.2",
                           "1e",          "+-5",  "++5", "--5",      "1 2",       "inf",
                           "nan",         "0x10", ",",   "12,5.0,1", "2008-07-31"};
    for (const Value& value : cases)
        EXPECT_THROW(ToDouble(value), ConversionError) << (value.IsNull() ? "null" : ToText(value));
}

TEST(ToInt32, RoundsHalvesToTheEvenNumber)
{
    const struct {
        Value value;
        std::int32_t number;
    } cases[] = {
        {0.5, 0},   {1.5, 2},   {2.5, 2},          {3.5, 4},   {-0.5, 0},
        {-1.5, -2}, {-2.5, -2}, {2.4, 2},          {2.6, 3},   {2.5000001, 3},
        {"2.5", 2}, {"3.5", 4}, {Exact("4.5"), 4}, {true, -1}, {Value(), 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ToInt32(c.value), c.number) << ToText(c.value);
}

TEST(ToWholeNumbers, RefuseWhatTheirBitsCannotHold)
{
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_THROW(ToInt16(32768), OverflowError);
    EXPECT_THROW(ToInt16("32767.5"), OverflowError);
    EXPECT_THROW(ToInt16(-32769), OverflowError);
    EXPECT_EQ(ToByte(255), 255);
    EXPECT_THROW(ToByte(256), OverflowError);
    EXPECT_THROW(ToByte(-1), OverflowError);
    EXPECT_THROW(ToByte(true), OverflowError);
    EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
    EXPECT_THROW(ToInt32(2147483648.0), OverflowError);
    EXPECT_THROW(ToInt32(-2147483649.0), OverflowError);
    EXPECT_THROW(ToInt32("1e300"), OverflowError);
}

TEST(ToBoolean, TakesNumbersAndTheTwoWords)
{
    for (const Value& value :
         {Value(true), Value(1), Value(-0.1), Value("True"), Value("TRUE"), Value("-1"), Value("2")})
        EXPECT_TRUE(ToBoolean(value)) << ToText(value);
    for (const Value& value :
         {Value(), Value(false), Value(0), Value(0.0), Value("false"), Value("0"), Value(Exact("0.00"))})
        EXPECT_FALSE(ToBoolean(value)) << ToText(value);
    for (const Value& value : {Value::Null(), Value(""), Value("yes"), Value("是")})
        EXPECT_THROW(ToBoolean(value), ConversionError);
}

TEST(IsDate, KnowsYearMonthAndDayInThisOrder)
{
    for (const char* text :
         {"2008-07-31", "2008-7-1", "2008/7/31", "2008.07.31", "2008年7月31日", "2008年07月01日",
          " 2008-07-31 ", "2008-07-31 14:30", "2008-07-31 14:30:59", "2008-07-31   9:5", "2008年7月31日 9:05",
          "2008-02-29", "14:30", "0:00:00", "1899-12-30", "9999-12-31"})
        EXPECT_TRUE(IsDate(text)) << text;
    for (const char* text : {"",
                             " ",
                             "abc",
                             "2008",
                             "2008-07",
                             "2008-13-01",
                             "2008-00-01",
                             "2008-02-30",
                             "2007-02-29",
                             "2008-07-32",
                             "2008-07/31",
                             "2008年7月31",
                             "2008年7-31日",
                             "08-07-31",
                             "2008-07-31x",
                             "2008-07-31 25:00",
                             "2008-07-31 14:60",
                             "2008-07-31 14:30:60",
                             "2008-07-31 14",
                             "2008-07-3114:30",
                             "24:00",
                             "20080731",
                             "2008-007-01",
                             "31-07-2008"})
        EXPECT_FALSE(IsDate(text)) << text;
    EXPECT_TRUE(IsDate(Moment(2008, 7, 31)));
    for (const Value& value : {Value(), Value::Null(), Value(39660), Value(true)})
        EXPECT_FALSE(IsDate(value));
}

TEST(ToDate, ReadsWhatIsDateTellsAndDayNumbers)
{
    const struct {
        Value value;
        DateTime date;
    } cases[] = {
        {"2008-07-31", Moment(2008, 7, 31)},
        {"2008年7月31日", Moment(2008, 7, 31)},
        {"2008/7/31 14:30", Moment(2008, 7, 31, 14, 30)},
        {"14:30", Moment(1899, 12, 30, 14, 30)},
        {Moment(2008, 7, 31, 1), Moment(2008, 7, 31, 1)},
        {0, Moment(1899, 12, 30)},
        {39660, Moment(2008, 7, 31)},
        {2.5, Moment(1900, 1, 1, 12)},
        {-1.25, Moment(1899, 12, 29, 6)},
        {Value(), Moment(1899, 12, 30)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ToDate(c.value), c.date) << ToText(c.value);
    EXPECT_THROW(ToDate("abc"), ConversionError);
    EXPECT_THROW(ToDate(Value::Null()), ConversionError);
    EXPECT_THROW(ToDate("39660"), ConversionError);
    EXPECT_THROW(ToDate(3e6), OverflowError);
    EXPECT_THROW(ToDate(-7e5), OverflowError);
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatIsNoPartOfANumber)
{
    const struct {
        std::string_view text;
        double number;
    } cases[] = {
        {"", 0},       {"abc", 0},       {"12abc", 12}, {"1.5.2", 1.5},  {" 1 2 3 x", 123}, {"-5", -5},
        {"- 5", -5},   {"+5", 5},        {"+-5", -5},   {".5kg", 0.5},   {".", 0},          {"-", 0},
        {"1e3", 1000}, {"1d2", 100},     {"1e", 1},     {"12 days", 12}, {"inf", 0},        {"nan", 0},
        {"12月", 12},  {"\t7\r\n8", 78}, {"0x10", 0},   {"1,234", 1},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(LeadingNumber(c.text), c.number) << c.text;
}

TEST(FormatDate, LeavesTheTimeOfDayOut)
{
    EXPECT_EQ(FormatDate(Moment(2008, 7, 31, 23, 59, 59)), "2008-07-31");
    EXPECT_EQ(FormatDate(Moment(123, 1, 2)), "0123-01-02");
    EXPECT_EQ(MonthOf(Moment(2008, 12, 31, 23, 59, 59)), 12);
}

}  // namespace kavelin::test
