#include "demo/Random.h"

#include <gtest/gtest.h>

#include <array>

namespace kavelin::demo {
namespace {

TEST(Random, GivesTheNumbersOfItsPublishedAlgorithm)
{
    Random random(1234567);
    EXPECT_EQ(random.Next(), 6457827717110365317u);
    EXPECT_EQ(random.Next(), 3203168211198807973u);
    EXPECT_EQ(random.Next(), 9817491932198370423u);
}

TEST(Random, ReachesBothEndsAndNothingBeyond)
{
    Random random(1);
    std::array<int, 5> seen{};
    for (int i = 0; i < 5000; ++i) {
        const std::int64_t number = random.Between(-2, 2);
        ASSERT_GE(number, -2);
        ASSERT_LE(number, 2);
        ++seen[static_cast<std::size_t>(number + 2)];
    }
    for (const int count : seen)
        EXPECT_NEAR(count, 1000, 150);
    EXPECT_EQ(random.Between(7, 7), 7);
}

}  // namespace
}  // namespace kavelin::demo
