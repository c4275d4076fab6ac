#include "journal/WtCodes.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(ReadAssUnitNo, CountsNineCharactersOrMoreAsNone)
{
    EXPECT_EQ(ReadAssUnitNo(Value("")), 0);
    EXPECT_EQ(ReadAssUnitNo(Value()), 0);
    EXPECT_EQ(ReadAssUnitNo(Value("2")), 2);
    EXPECT_EQ(ReadAssUnitNo(Value("12345678")), 12345678);
    EXPECT_EQ(ReadAssUnitNo(Value("123456789")), 0);
    EXPECT_THROW(ReadAssUnitNo(Value("x")), ConversionError);
}

}  // namespace kavelin::test
