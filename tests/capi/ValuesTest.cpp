// Values of every kind on their way into the library and out again.
#include "capi/CHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace kavelin::test {

namespace {

class Values : public CApi {
  protected:
    // The value once through the library, to the host's object and back.
    kavelin_status Pass(const kavelin_value& value, Owned& result)
    {
        kavelin_value argument = value;
        return kavelin_call(Host(Echo()), "Echo", &argument, 1, result.Place());
    }

    std::string PassText(const std::string& text)
    {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_bytes(text.data(), text.size()), result), KAVELIN_OK) << Error().text;
        EXPECT_EQ(result->as.text.bytes[result->as.text.length], '\0');
        return result.Text();
    }

    std::string PassDecimal(const char* digits)
    {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_decimal(digits), result), KAVELIN_OK) << Error().text;
        EXPECT_EQ(result->kind, KAVELIN_DECIMAL);
        return result.Text();
    }

    std::string Refused(const kavelin_value& value)
    {
        Owned result;
        const std::string told = Told(Pass(value, result));
        EXPECT_EQ(result->kind, KAVELIN_EMPTY);
        return told;
    }

    std::string TextOf(const kavelin_value& value)
    {
        Owned text;
        EXPECT_EQ(kavelin_to_text(&value, text.Place()), KAVELIN_OK) << Error().text;
        return text.Text();
    }
};

}  // namespace

TEST_F(Values, KeepWhetherTheyAreEmptyOrNull)
{
    for (const kavelin_value& value : {kavelin_empty(), kavelin_null()}) {
        Owned result;
        EXPECT_EQ(Pass(value, result), KAVELIN_OK);
        EXPECT_EQ(result->kind, value.kind);
    }
}

TEST_F(Values, KeepBooleans)
{
    for (const int content : {0, 1}) {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_boolean(content), result), KAVELIN_OK);
        EXPECT_EQ(result->kind, KAVELIN_BOOLEAN);
        EXPECT_EQ(result->as.boolean, content);
    }
}

TEST_F(Values, TakeEveryOtherNumberForTrue)
{
    kavelin_value value = kavelin_of_boolean(1);
    value.as.boolean = -1;
    Owned result;
    EXPECT_EQ(Pass(value, result), KAVELIN_OK);
    EXPECT_EQ(result->as.boolean, 1);
}

TEST_F(Values, KeepIntegersOf64Bits)
{
    for (const std::int64_t content : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1},
                                       std::int64_t{0}, std::numeric_limits<std::int64_t>::max()}) {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_integer(content), result), KAVELIN_OK);
        EXPECT_EQ(result->kind, KAVELIN_INTEGER);
        EXPECT_EQ(result->as.integer, content);
    }
}

TEST_F(Values, KeepDoublesToTheLastBit)
{
    for (const double content : {0.1, -0.0, 1e308, std::nextafter(1.0, 2.0)}) {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_double(content), result), KAVELIN_OK);
        EXPECT_EQ(result->kind, KAVELIN_DOUBLE);
        EXPECT_EQ(result->as.number, content);
        EXPECT_EQ(std::signbit(result->as.number), std::signbit(content));
    }
}

TEST_F(Values, KeepDecimalsOf38DigitsAndTheirScale)
{
    for (const char* digits :
         {"99999999999999999999999999999999999999", "-99999999999999999999999999999999999999",
          "0.00000000000000000000000000000000000001", "12.50", "-0.05", "0"})
        EXPECT_EQ(PassDecimal(digits), digits);
}

TEST_F(Values, RefuseDecimalsThatAreNone)
{
    for (const char* digits : {"", "abc", "1e5", "1,5", "999999999999999999999999999999999999999"})
        EXPECT_EQ(Refused(kavelin_of_decimal(digits)),
                  "20 Kavelin: \"" + std::string(digits) + "\" is no decimal number of up to 38 digits.");
}

TEST_F(Values, KeepDatesWithTheirTimeOfDay)
{
    constexpr std::int64_t kFirst = -62135596800000;  // 0001-01-01
    constexpr std::int64_t kLast = 253402300799999;   // 9999-12-31 23:59:59.999
    for (const std::int64_t date :
         {kFirst, std::int64_t{-1}, std::int64_t{0}, std::int64_t{1217462399123}, kLast}) {
        Owned result;
        EXPECT_EQ(Pass(kavelin_of_date(date), result), KAVELIN_OK);
        EXPECT_EQ(result->kind, KAVELIN_DATE);
        EXPECT_EQ(result->as.date, date);
    }
    for (const std::int64_t date : {kFirst - 1, kLast + 1, std::numeric_limits<std::int64_t>::min()})
        EXPECT_EQ(Refused(kavelin_of_date(date)), "20 Kavelin: A date lies outside of the years 1 to 9999.");
}

TEST_F(Values, KeepTextsOfAllPlanesAndWithANul)
{
    using namespace std::string_literals;
    for (const std::string& text : {""s, "钢板 2mm"s, "𠮷🙂"s, "a\0b\0"s, std::string(1 << 20, 'x')})
        EXPECT_EQ(PassText(text), text);
}

TEST_F(Values, TakeATextWithoutBytesForTheEmptyOne)
{
    Owned result;
    EXPECT_EQ(Pass(kavelin_of_text(nullptr), result), KAVELIN_OK);
    EXPECT_EQ(result.Text(), "");
}

TEST_F(Values, RefuseTextsThatAreNoUtf8)
{
    for (const char* bytes : {"\xFF", "a\xC3", "\xED\xA0\x80", "\xC0\x80", "\xF5\x80\x80\x80"})
        EXPECT_EQ(Refused(kavelin_of_text(bytes)), "20 Kavelin: A text is no UTF-8.");
    EXPECT_EQ(PassText("\xEF\xBF\xBD"), "\xEF\xBF\xBD");  // the replacement character is a character
    EXPECT_EQ(Refused(kavelin_of_bytes(nullptr, 3)), "20 Kavelin: A text has a length and no bytes.");
}

TEST_F(Values, RefuseAKindThatThereIsNot)
{
    kavelin_value value = kavelin_empty();
    value.kind = 99;
    EXPECT_EQ(Refused(value), "20 Kavelin: There is no kind of value 99.");
}

TEST_F(Values, KeepObjectsByTheirHandle)
{
    const kavelin_object object = Host({});
    Owned result;
    EXPECT_EQ(Pass(kavelin_of_object(object), result), KAVELIN_OK);
    EXPECT_EQ(result->kind, KAVELIN_OBJECT);
    EXPECT_EQ(result->as.object, object);
    EXPECT_EQ(result->owned, 1);
}

TEST_F(Values, KeepThatThereIsNoObject)
{
    Owned result;
    EXPECT_EQ(Pass(kavelin_of_object(0), result), KAVELIN_OK);
    EXPECT_EQ(result->kind, KAVELIN_OBJECT);
    EXPECT_EQ(result->as.object, 0u);
}

TEST_F(Values, AreCopiedWithAllThatTheyHold)
{
    std::string text = "铜线";
    const kavelin_value value = kavelin_of_bytes(text.data(), text.size());
    Owned copy;
    ASSERT_EQ(kavelin_copy(&value, copy.Place()), KAVELIN_OK);
    text.assign(text.size(), '?');
    EXPECT_EQ(copy.Text(), "铜线");

    bool released = false;
    const kavelin_object object = Host({.released = [&] { released = true; }});
    Owned another;
    const kavelin_value held = kavelin_of_object(object);
    ASSERT_EQ(kavelin_copy(&held, another.Place()), KAVELIN_OK);
    EXPECT_EQ(kavelin_release(object), KAVELIN_OK);
    EXPECT_FALSE(released);
    kavelin_clear(another.Place());
    EXPECT_TRUE(released);
}

TEST_F(Values, ClearedAreEmptyAndMayBeClearedAgain)
{
    const kavelin_value value = kavelin_of_text("a");
    kavelin_value copy = kavelin_empty();
    ASSERT_EQ(kavelin_copy(&value, &copy), KAVELIN_OK);
    kavelin_clear(&copy);
    EXPECT_EQ(copy.kind, KAVELIN_EMPTY);
    kavelin_clear(&copy);
    kavelin_clear(nullptr);

    kavelin_value borrowed = kavelin_of_text("literal");
    kavelin_clear(&borrowed);
    EXPECT_EQ(borrowed.kind, KAVELIN_EMPTY);
}

TEST_F(Values, BecomeTextByTheRulesOfTheLibrary)
{
    EXPECT_EQ(TextOf(kavelin_empty()), "");
    EXPECT_EQ(TextOf(kavelin_of_boolean(1)), "True");
    EXPECT_EQ(TextOf(kavelin_of_integer(-7)), "-7");
    EXPECT_EQ(TextOf(kavelin_of_double(2.5)), "2.5");
    EXPECT_EQ(TextOf(kavelin_of_decimal("12.50")), "12.5");
    EXPECT_EQ(TextOf(kavelin_of_date(1217462400000)), "2008-07-31");
    EXPECT_EQ(TextOf(kavelin_of_date(1217514600000)), "2008-07-31 14:30:00");
    EXPECT_EQ(TextOf(kavelin_of_text("螺丝")), "螺丝");
}

TEST_F(Values, ThatAreNullOrAnObjectAreNoText)
{
    Owned text;
    const kavelin_value null = kavelin_null();
    EXPECT_EQ(kavelin_to_text(&null, text.Place()), KAVELIN_CONVERSION);
    const kavelin_value object = kavelin_of_object(Host({}));
    EXPECT_EQ(Told(kavelin_to_text(&object, text.Place())), "2 Kavelin: An object is no text.");
    EXPECT_EQ(text->kind, KAVELIN_EMPTY);
}

}  // namespace kavelin::test
