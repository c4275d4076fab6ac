#include "demo/company/Stockroom.h"

#include "demo/profiles/Profile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>

namespace kavelin::demo {
namespace {

class StockroomTest : public ::testing::Test {
  protected:
    const Company objCompany = MakeCompany(20000, Profiles().front());
    Stockroom objStock{objCompany};
    Random objRandom{7};
};

TEST_F(StockroomTest, HasAPlaceForEachWarehouseAndColourOrBatchOfAnItem)
{
    std::set<std::string> places;
    for (const Place& place : objStock.Places()) {
        EXPECT_EQ(&place, &objStock.Places()[static_cast<std::size_t>(place.index)]);
        EXPECT_EQ(place.colour.empty(), place.item->kept != Kept::Colours);
        EXPECT_EQ(place.batch.empty(), place.item->kept != Kept::Batches);
        EXPECT_EQ(place.lot % place.item->step, 0);
        EXPECT_TRUE(places
                        .insert(place.item->code + "|" + std::string(place.warehouse->code) + "|" +
                                std::string(place.colour) + "|" + std::string(place.batch))
                        .second);
    }
    for (const Item& item : objCompany.items)
        for (const std::string_view warehouse : item.warehouses)
            EXPECT_NE(std::ranges::find_if(objStock.Places(),
                                           [&](const Place& place) {
                                               return place.item == &item &&
                                                      place.warehouse->code == warehouse;
                                           }),
                      objStock.Places().end());
}

TEST_F(StockroomTest, GivesNoMoreThanLiesThere)
{
    const Place& place = objStock.Places().front();
    objStock.Put(place, 500);
    objStock.Take(place, 300);
    EXPECT_EQ(objStock.OnHand(place), 200);
    EXPECT_THROW(objStock.Take(place, 201), std::logic_error);
    EXPECT_EQ(objStock.OnHand(place), 200);
}

TEST_F(StockroomTest, PicksOfTheWarehouseAndMonthAskedFor)
{
    for (int i = 0; i < 500; ++i) {
        const Place* place = objStock.Pick(objRandom, "01", Supply::Bought, 2, false);
        ASSERT_NE(place, nullptr);
        EXPECT_EQ(place->warehouse->code, "01");
        EXPECT_EQ(place->item->supply, Supply::Bought);
        EXPECT_LE(place->firstMonth, 2);
        EXPECT_GT(place->weight, 0);
    }
    EXPECT_EQ(objStock.Pick(objRandom, "no such", Supply::Bought, 2, false), nullptr);
}

TEST_F(StockroomTest, PicksNothingWhereNothingLies)
{
    EXPECT_EQ(objStock.Pick(objRandom, "", Supply::Bought, 1, true), nullptr);
    for (const Place& place : objStock.Places())
        objStock.Put(place, place.item->step);
    EXPECT_NE(objStock.Pick(objRandom, "", Supply::Bought, 1, true), nullptr);
}

TEST_F(StockroomTest, KnowsTheSameGoodsInAnotherWarehouse)
{
    int found = 0;
    for (const Place& place : objStock.Places())
        for (const std::string_view warehouse : place.item->warehouses) {
            const Place* sibling = objStock.Sibling(place, warehouse);
            ASSERT_NE(sibling, nullptr);
            EXPECT_EQ(sibling->item, place.item);
            EXPECT_EQ(sibling->warehouse->code, warehouse);
            EXPECT_EQ(sibling->colour, place.colour);
            EXPECT_EQ(sibling->batch, place.batch);
            ++found;
        }
    EXPECT_GT(found, 0);
    EXPECT_EQ(objStock.Sibling(objStock.Places().front(), "no such"), nullptr);
}

TEST_F(StockroomTest, TakesSomeOfALotInSteps)
{
    const Place& place = objStock.Places().front();
    EXPECT_EQ(objStock.SomeOf(objRandom, place), 0);
    objStock.Put(place, 100 * place.lot);
    for (int i = 0; i < 100; ++i) {
        const std::int64_t some = objStock.SomeOf(objRandom, place);
        EXPECT_EQ(some % place.item->step, 0);
        EXPECT_GE(some, place.item->step);
        EXPECT_LE(some, place.lot);
    }
}

TEST(Share, RoundsHalvesAwayFromZero)
{
    const struct {
        std::int64_t whole, part, total, share;
    } cases[] = {{10, 1, 4, 3},   {-10, 1, 4, -3},
                 {10, -1, 4, -3}, {10, 1, -4, -3},
                 {-10, 1, -4, 3}, {10, 1, 3, 3},
                 {5, 0, 7, 0},    {9'000'000'000'000'000, 1000, 1000, 9'000'000'000'000'000}};
    for (const auto& c : cases)
        EXPECT_EQ(Share(c.whole, c.part, c.total), c.share) << c.whole << " " << c.part << " " << c.total;
    EXPECT_EQ(AmountOf(250, 333), 833);  // 2.5 at 3.33 is 8.325
}

}  // namespace
}  // namespace kavelin::demo
