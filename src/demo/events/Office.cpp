#include "demo/events/Office.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr int kLatenessPercent = 25;
constexpr int kHeldBackPercent = 5;
constexpr int kProjectPercent = 12;

template <class T>
const T& OneOf(Random& random, std::span<const T> choices)
{
    return choices[static_cast<std::size_t>(
        random.Between(0, static_cast<std::int64_t>(choices.size()) - 1))];
}

bool IsWorkingDay(sys_days day)
{
    const weekday of(day);
    return of != Saturday && of != Sunday;
}

}  // namespace

int MonthNumber(sys_days day)
{
    return static_cast<int>(static_cast<unsigned>(year_month_day(day).month()));
}

sys_days FirstOfNextMonth(sys_days day)
{
    const year_month_day date(day);
    return sys_days((date.year() / date.month() + months(1)) / 1);
}

sys_days DocumentDay(Random& random, sys_days posting)
{
    if (!random.Chance(kLatenessPercent))
        return posting;
    const sys_days day = posting - days(random.Between(1, 3));
    return MonthNumber(day) == MonthNumber(posting) && IsWorkingDay(day) ? day : posting;
}

Document HeadOf(Business& business, const DocumentType& type, sys_days posting, const Place& place,
                std::string_view department)
{
    Random& random = business.random;
    Document head;
    head.type = &type;
    head.day = DocumentDay(random, posting);
    head.warehouse = place.warehouse->code;
    head.accountingDepartment = place.warehouse->department;
    head.department =
        business.profile.valueStyle == ValueStyle::ByDepartment ? head.accountingDepartment : department;
    head.handler = OneOf(random, Persons()).name;
    head.person = OneOf(random, Persons()).code;
    if (random.Chance(kProjectPercent))
        head.project = OneOf(random, Projects()).code;
    return head;
}

const Party* OneOfClass(Random& random, std::span<const Party> parties, std::string_view partyClass)
{
    const std::span<const Party> suited = OfClass(parties, partyClass);
    return &OneOf(random, suited.empty() ? parties : suited);
}

const Party* VendorOf(Random& random, std::string_view itemClass)
{
    // Finished goods that are bought come from whoever sells parts.
    const std::string_view kind = itemClass.substr(0, 2);
    return OneOfClass(random, Vendors(), kind == "04" ? "02" : kind);
}

int LineCount(Random& random)
{
    static constexpr int kCounts[] = {1, 1, 1, 2, 2, 2, 3, 3, 4, 6};
    return OneOf(random, std::span<const int>(kCounts));
}

std::int64_t WholeSteps(const Item& item, std::int64_t quantity)
{
    return quantity - quantity % item.step;
}

std::int64_t PartOfLot(Random& random, const Place& place, int least, int most)
{
    const std::int64_t quantity = place.lot * random.Between(least, most) / 100;
    return std::max(WholeSteps(*place.item, quantity), place.item->step);
}

std::int64_t PurchaseCost(Random& random, const Place& place, std::int64_t quantity, int month)
{
    const std::int64_t perMille = 1000 + 4 * month + random.Between(-80, 80);
    const std::int64_t price = std::max<std::int64_t>(place.item->price * perMille / 1000, 1);
    return AmountOf(quantity, price);
}

bool IsHeldBack(Random& random, sys_days day)
{
    return MonthNumber(day) == 12 && random.Chance(kHeldBackPercent);
}

bool IsLedgerEnding(const Books& books, int rows)
{
    return books.CanPost() && !books.CanPost(rows);
}

const Place* PickOwn(Business& business, std::string_view warehouse, Supply supply, int month, bool stocked)
{
    constexpr int kTries = 4;
    for (int i = 0; i < kTries; ++i) {
        const Place* place = business.stock.Pick(business.random, warehouse, supply, month, stocked);
        if (place == nullptr || place->warehouse->inCost)
            return place;
    }
    return nullptr;
}

const Place* PickScarce(Business& business, std::string_view warehouse, Supply supply, int month)
{
    constexpr int kLooks = 5;
    const Place* scarcest = nullptr;
    std::int64_t least = 0;
    for (int i = 0; i < kLooks; ++i) {
        const Place* place = PickOwn(business, warehouse, supply, month, false);
        if (place == nullptr)
            continue;
        const std::int64_t perMille =
            Share(business.stock.OnHand(*place), 1000, std::max<std::int64_t>(place->lot, 1));
        if (scarcest == nullptr || perMille < least) {
            scarcest = place;
            least = perMille;
        }
    }
    return scarcest;
}

bool IsPlenty(const Stockroom& stock, const Place& place)
{
    constexpr int kLots = 4;
    return stock.OnHand(place) > kLots * place.lot;
}

bool AddOther(std::vector<const Place*>& places, const Place* place)
{
    if (place == nullptr || std::ranges::find(places, place) != places.end())
        return false;
    places.push_back(place);
    return true;
}

StockEntry RowOf(const Document& document, std::int32_t line, const Place& place, sys_days posting)
{
    StockEntry row;
    row.voucherType = document.type->ledgerType;
    row.document = document;
    row.line = line;
    row.place = &place;
    row.day = posting;
    row.receipt = document.type->receipt;
    return row;
}

std::int32_t Receive(Business& business, const Document& document, const LineEntry& entry, sys_days posting,
                     int flag)
{
    const Place& place = *entry.place;
    const std::int32_t line = business.books.AddLine(document, entry);
    if (entry.quantity < 0)
        business.stock.Take(place, -entry.quantity);
    else
        business.stock.Put(place, entry.quantity);

    if (business.books.CanPost()) {
        StockEntry row = RowOf(document, line, place, posting);
        row.flag = flag;
        row.quantity = entry.quantity;
        row.cost = entry.amount;
        row.materialFee = entry.materialFee;
        row.processFee = entry.processFee;
        business.books.Post(row);
    }
    return line;
}

std::int32_t Issue(Business& business, const Document& document, const Place& place, std::int64_t quantity,
                   sys_days posting, bool posted)
{
    LineEntry entry;
    entry.place = &place;
    entry.quantity = quantity;
    const std::int32_t line = business.books.AddLine(document, entry);
    if (quantity < 0)
        business.stock.Put(place, -quantity);
    else
        business.stock.Take(place, quantity);

    if (posted && business.books.CanPost()) {
        StockEntry row = RowOf(document, line, place, posting);
        row.quantity = quantity;
        business.books.Post(row);
    }
    return line;
}

Rota::Rota(const std::vector<int>& weights)
{
    for (const int weight : weights)
        Add(weight);
}

void Rota::Add(int weight)
{
    arrSums.push_back((arrSums.empty() ? 0 : arrSums.back()) + weight);
}

std::size_t Rota::Next(Random& random)
{
    while (intTurns < 2 * arrSums.size()) {
        const std::size_t kind = intTurns++ % arrSums.size();
        if (arrSums[kind] > (kind == 0 ? 0 : arrSums[kind - 1]))
            return kind;
    }
    const auto at = static_cast<int>(random.Between(0, arrSums.back() - 1));
    return static_cast<std::size_t>(std::ranges::upper_bound(arrSums, at) - arrSums.begin());
}

}  // namespace kavelin::demo
