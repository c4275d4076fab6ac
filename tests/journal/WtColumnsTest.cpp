// How the lists of the journal tell planned prices from others.
#include "journal/WtColumns.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::test {

namespace {

// clang-format off
constexpr const char* kByItem =
    "Inventory.cvaluetype=N'计划价法' or Inventory.cvaluetype=N'售价法'";
constexpr const char* kByDepartment =
    "NoSub.cDepCode =WH.cDepCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法')";
constexpr const char* kByWarehouse =
    "NoSub.cWhCode =WH.cWhCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法')";
// clang-format on
constexpr const char* kEnd = "InvCheckFreeIA870.fInvRCost else cast(null as float) end";

std::string PlannedPrice(const std::string& test)
{
    return "case when " + test + " then " + kEnd;
}

}  // namespace

TEST(PlannedPrices, FollowTheItemWhereStockIsValuedByInventory)
{
    EXPECT_NE(SelectPosted("按存货核算").find(PlannedPrice(kByItem)), std::string::npos);
}

TEST(PlannedPrices, FollowTheWarehouseOfTheDepartmentWhereStockIsValuedByDepartment)
{
    EXPECT_NE(SelectPosted("按部门核算").find(PlannedPrice(kByDepartment)), std::string::npos);
}

TEST(PlannedPrices, FollowTheWarehouseUnderAnyOtherValuation)
{
    for (const char* style : {"按仓库核算", "", "other"})
        EXPECT_NE(SelectPosted(style).find(PlannedPrice(kByWarehouse)), std::string::npos) << style;
}

}  // namespace kavelin::test
