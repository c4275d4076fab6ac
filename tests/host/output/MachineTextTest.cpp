#include "host/output/MachineText.h"

#include "FixedRows.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace kavelin::host {
namespace {

TEST(MachineText, HoldsEveryDigitAndNoGrouping)
{
    const struct {
        Value value;
        std::string_view text;
    } cases[] = {
        {Value(std::int64_t{-9223372036854775807}), "-9223372036854775807"},
        {Dec("12.50"), "12.50"},
        {Dec("-0.05"), "-0.05"},
        {Dec("12345678901234567890123456789012345.678"), "12345678901234567890123456789012345.678"},
        {Value(0.1), "0.1"},
        {Value(0.1 + 0.2), "0.30000000000000004"},
        {Value(1234567.0), "1234567"},
        {Value(-0.0), "0"},
        {Value(1e20), "1e+20"},
        {Value(-2.5e-9), "-2.5e-09"},
        {Value(5e-324), "5e-324"},
        {Value(true), "1"},
        {Value(false), "0"},
        {Value("1,5"), "1,5"},
        {Value(), ""},
        {Value::Null(), ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MachineText(c.value), c.text);
}

TEST(MachineText, ShowsTheTimeOfADateOnlyWhereThereIsOne)
{
    EXPECT_EQ(MachineText(Day(2008, 7, 31)), "2008-07-31");
    EXPECT_EQ(MachineText(Day(2008, 7, 31, 14 * 3600 + 30 * 60)), "2008-07-31 14:30:00");
    EXPECT_EQ(MachineText(Day(2008, 7, 31, 0, 3)), "2008-07-31 00:00:00.003");
    EXPECT_EQ(MachineText(Day(1899, 12, 30, 59)), "1899-12-30 00:00:59");
}

TEST(MachineText, RefusesANumberThatIsNotFinite)
{
    EXPECT_THROW(MachineText(Value(std::numeric_limits<double>::quiet_NaN())), Error);
    EXPECT_THROW(MachineText(Value(std::numeric_limits<double>::infinity())), Error);
}

TEST(MachineNames, GiveEachColumnANameOfItsOwn)
{
    const FixedRows rows(
        {{"a", "int"}, {"", "int"}, {"a", "int"}, {"A", "int"}, {"a_2", "int"}, {"a", "int"}}, {});
    EXPECT_EQ(MachineNames(rows), (std::vector<std::string>{"a", "column2", "a_2", "A", "a_2_2", "a_3"}));
}

}  // namespace
}  // namespace kavelin::host
