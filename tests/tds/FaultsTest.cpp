#include "support/tds/Faults.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

TEST(Faults, MeetBatchesWithTheirTextInAnyCase)
{
    Faults faults;
    faults.Order({.text = "Into TEMPDB"});
    EXPECT_FALSE(faults.Take("select a from T"));
    EXPECT_TRUE(faults.Take("select a into tempdb..U from T"));
}

TEST(Faults, MeetOneBatchOnly)
{
    Faults faults;
    faults.Order({});
    EXPECT_TRUE(faults.Take("select 1"));
    EXPECT_FALSE(faults.Take("select 1"));
}

TEST(Faults, LetSomeBatchesPass)
{
    Faults faults;
    faults.Order({.skip = 2});
    EXPECT_FALSE(faults.Take("1"));
    EXPECT_FALSE(faults.Take("2"));
    EXPECT_TRUE(faults.Take("3"));
}

TEST(Faults, StayWhereTheyAreToComeAgain)
{
    Faults faults;
    faults.Order(Missing("Inventory"));
    for (int i = 0; i < 3; ++i) {
        const auto fault = faults.Take("select * from inventory");
        ASSERT_TRUE(fault);
        EXPECT_EQ(fault->message.number, 208);
        EXPECT_EQ(fault->message.text, "Invalid object name 'Inventory'.");
    }
    faults.Clear();
    EXPECT_FALSE(faults.Take("select * from inventory"));
}

TEST(Faults, DenyAsAServerDoes)
{
    const Fault fault = Denied("create table", "CREATE TABLE", "Account_001");
    EXPECT_EQ(fault.message.number, 262);
    EXPECT_EQ(fault.message.severity, 14);
    EXPECT_EQ(fault.message.text, "CREATE TABLE permission denied in database 'Account_001'.");
}

}  // namespace
}  // namespace kavelin::test::tds
