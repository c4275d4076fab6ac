#include "demo/Stock.h"

#include "demo/RowValues.h"
#include "frame/Decimal.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

struct Batch {
    std::string_view code;
    int firstMonth;
};

constexpr Batch kBatches[] = {{"P0712", 0}, {"P0803", 3}, {"P0806", 6}, {"P0809", 9}};

// `whole` times `part` by `total`, rounded half away from zero. `total` is positive.
std::int64_t Share(std::int64_t whole, std::int64_t part, std::int64_t total)
{
    const Int128 product = static_cast<Int128>(whole) * part;
    const Int128 half = total / 2;
    return static_cast<std::int64_t>((product < 0 ? product - half : product + half) / total);
}

// What `quantity` of the place's goods is worth as it stands.
Movement Worth(const Place& place, std::int64_t quantity)
{
    Movement worth;
    worth.quantity = quantity;
    if (quantity == place.quantity) {
        worth.amount = place.amount;
    } else if (place.IsPlanned()) {
        worth.amount = std::min(AmountOf(quantity, place.item->price), place.amount);
    } else {
        worth.amount = Share(place.amount, quantity, place.quantity);
    }
    if (place.IsPlanned()) {
        const std::int64_t difference = Share(place.difference, quantity, place.quantity);
        worth.debitDifference = std::max<std::int64_t>(difference, 0);
        worth.creditDifference = std::max<std::int64_t>(-difference, 0);
    }
    return worth;
}

void Book(Place& place, int month, const Movement& movement)
{
    const std::int64_t sign = movement.receipt ? 1 : -1;
    place.quantity += sign * movement.quantity;
    place.amount += sign * movement.amount;
    // On either side the difference account gets the debit and gives the credit.
    const std::int64_t difference = movement.debitDifference - movement.creditDifference;
    place.difference += difference;

    MonthTotals& totals = place.months[static_cast<std::size_t>(month)];
    (movement.receipt ? totals.inQuantity : totals.outQuantity) += movement.quantity;
    (movement.receipt ? totals.inAmount : totals.outAmount) += movement.amount;
    totals.difference += difference;
}

void AddPlaces(std::vector<Place>& places, const Item& item, std::string_view warehouse, std::int64_t lot,
               int weight)
{
    Place place;
    place.item = &item;
    place.warehouse = warehouse;
    place.lot = std::max(lot - lot % item.step, 10 * item.step);
    place.weight = weight;

    switch (item.kept) {
        case Kept::Nothing: places.push_back(place); break;
        case Kept::Colours:
            for (const std::string_view colour : Colours()) {
                place.colour = colour;
                places.push_back(place);
            }
            break;
        case Kept::Batches:
            for (const Batch& batch : kBatches) {
                place.batch = batch.code;
                place.firstMonth = batch.firstMonth;
                places.push_back(place);
            }
            break;
    }
}

}  // namespace

std::vector<Place> MakePlaces(const Company& company)
{
    std::vector<Place> places;
    int number = 0;
    for (const Item& item : company.items) {
        ++number;
        const int weight = number % 13 == 0 ? 0 : item.weight;  // some items lie idle
        AddPlaces(places, item, item.warehouse, item.lot, weight);
        if (item.itemClass == "0202")  // spare parts are sold as well
            AddPlaces(places, item, "02", item.lot / 3, (weight + 2) / 3);
        if (number % 8 == 0)
            AddPlaces(places, item, "04", item.lot / 5, (weight + 4) / 5);
    }
    return places;
}

std::int64_t AmountOf(std::int64_t quantity, std::int64_t price)
{
    return Share(quantity, price, 100);
}

Movement Receive(Place& place, int month, std::int64_t quantity, std::int64_t cost)
{
    Movement movement;
    movement.quantity = quantity;
    movement.amount = place.IsPlanned() ? AmountOf(quantity, place.item->price) : cost;
    movement.debitDifference = std::max<std::int64_t>(cost - movement.amount, 0);
    movement.creditDifference = std::max<std::int64_t>(movement.amount - cost, 0);
    Book(place, month, movement);
    return movement;
}

Movement Issue(Place& place, int month, std::int64_t quantity)
{
    Movement movement = Worth(place, quantity);
    movement.receipt = false;
    std::swap(movement.debitDifference, movement.creditDifference);
    Book(place, month, movement);
    return movement;
}

Movement SendBack(Place& place, int month, std::int64_t quantity)
{
    Movement movement = Worth(place, quantity);
    movement.quantity = -movement.quantity;
    movement.amount = -movement.amount;
    std::swap(movement.debitDifference, movement.creditDifference);
    Book(place, month, movement);
    return movement;
}

Movement TakeBack(Place& place, int month, std::int64_t quantity)
{
    Movement movement = Worth(place, quantity);
    movement.receipt = false;
    movement.quantity = -movement.quantity;
    movement.amount = -movement.amount;
    Book(place, month, movement);
    return movement;
}

void WriteSummary(const std::vector<Place>& places, int year, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {
        "AutoID", "iYear",   "iMonth", "cInvCode", "cWhCode", "cFree1",  "cFree2",   "cFree3",  "cFree4",
        "cFree5", "cFree6",  "cFree7", "cFree8",   "cFree9",  "cFree10", "cBatchIA", "iDirect", "iPeriod",
        "iINum",  "iIMoney", "iONum",  "iOMoney",  "iNum",    "iMoney",  "iDif"};
    sink.BeginTable("IA_Summary", kColumns);

    std::int64_t number = 0;
    for (const Place& place : places) {
        MonthTotals end;  // the balance, as receipts
        for (std::int32_t month = 0; month <= 12; ++month) {
            const MonthTotals& totals = place.months[static_cast<std::size_t>(month)];
            end.inQuantity += totals.inQuantity - totals.outQuantity;
            end.inAmount += totals.inAmount - totals.outAmount;
            end.difference += totals.difference;

            // An opening is a balance and no movement.
            const MonthTotals moved = month == 0 ? MonthTotals{} : totals;
            sink.AddRow(std::array<Value, std::size(kColumns)>{++number,
                                                               year,
                                                               month,
                                                               place.item->code,
                                                               place.warehouse,
                                                               place.colour,
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               "",
                                                               place.batch,
                                                               0,
                                                               0,
                                                               Quantity(moved.inQuantity),
                                                               Money(moved.inAmount),
                                                               Quantity(moved.outQuantity),
                                                               Money(moved.outAmount),
                                                               Quantity(end.inQuantity),
                                                               Money(end.inAmount),
                                                               Money(end.difference)});
        }
    }
}

}  // namespace kavelin::demo
