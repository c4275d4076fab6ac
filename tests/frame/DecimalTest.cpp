#include "frame/Decimal.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(Decimal, KeepsTheScaleOfItsText)
{
    for (const char* text :
         {"0", "0.00", "12.50", "-12.50", "-0.05", "0.1", "100", "99999999999999999999999999999999999999",
          "-99999999999999999999999999999999999.999", "0.00000000000000000000000000000000000001"})
        EXPECT_EQ(Decimal::FromText(text)->ToText(), text);
    EXPECT_EQ(Decimal::FromText("12.50")->Scale(), 2);
    EXPECT_EQ(static_cast<long>(Decimal::FromText("-12.50")->Unscaled()), -1250);
}

TEST(Decimal, ReadsPlainDecimalNumbersOnly)
{
    EXPECT_EQ(Decimal::FromText("+5")->ToText(), "5");
    EXPECT_EQ(Decimal::FromText("5.")->ToText(), "5");
    EXPECT_EQ(Decimal::FromText(".5")->ToText(), "0.5");
    EXPECT_EQ(Decimal::FromText("0005")->ToText(), "5");
    for (const char* text :
         {"", "-", ".", "-.", "1.2.3", "1e3", " 1", "1 ", "1,000", "abc", "--1",
          "100000000000000000000000000000000000000", "0.000000000000000000000000000000000000001"})
        EXPECT_FALSE(Decimal::FromText(text)) << text;
}

TEST(Decimal, ComparesByValueWhateverTheScale)
{
    const auto number = [](const char* text) { return *Decimal::FromText(text); };
    EXPECT_EQ(number("1.5"), number("1.50"));
    EXPECT_EQ(number("0"), number("-0.00"));
    EXPECT_LT(number("-1.5"), number("-1.49"));
    EXPECT_LT(number("-0.01"), number("0"));
    EXPECT_LT(number("1.49"), number("1.5"));
    EXPECT_GT(number("2"), number("1.99999999999999999999999999999999999"));
    EXPECT_LT(number("0.00000000000000000000000000000000000001"),
              number("99999999999999999999999999999999999999"));
}

TEST(Decimal, BecomesTheNearestBinaryNumber)
{
    EXPECT_DOUBLE_EQ(Decimal::FromText("-12.50")->ToDouble(), -12.5);
    EXPECT_DOUBLE_EQ(Decimal::FromText("0.1")->ToDouble(), 0.1);
}

}  // namespace kavelin::test
