#include "demo/Ledger.h"

#include "demo/AreaSample.h"
#include "demo/LedgerLine.h"
#include "demo/Random.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <numeric>
#include <optional>
#include <string>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr int kLinesPerDocument = 4;
constexpr int kOpenEstimates = 6;

// How busy the months are beside one another.
constexpr std::array<std::int64_t, 12> kMonthWeights = {7, 5, 9, 8, 8, 9, 8, 8, 9, 8, 9, 10};

// Every so many movements comes one that is out of the ordinary, so that small ledgers have them too.
constexpr std::int64_t kDirectEvery = 41;
constexpr std::int64_t kReturnEvery = 61;
constexpr std::int64_t kOddEvery = 17;

constexpr const LineKind* kOddReceipts[] = {&kinds::kOtherReceipt, &kinds::kSurplus, &kinds::kBareReceipt};
constexpr const LineKind* kOddIssues[] = {&kinds::kOtherIssue, &kinds::kShortage, &kinds::kBareIssue};

constexpr std::string_view kHandlers[] = {"陈建国", "王志强", "张敏", "刘洋", "赵丽华"};
constexpr std::string_view kProjects[] = {"P-01", "P-02", "P-03"};

std::vector<sys_days> WorkingDays(unsigned monthNumber)
{
    const year_month_day_last last{year(kLedgerYear), month_day_last(month(monthNumber))};
    std::vector<sys_days> days;
    for (sys_days day = sys_days(last.year() / last.month() / 1); day <= sys_days(last);
         day += std::chrono::days(1))
        if (const weekday of(day); of != Saturday && of != Sunday)
            days.push_back(day);
    return days;
}

// The lines of each month, which together are `movements`.
std::array<std::int64_t, 12> SpreadOverMonths(std::int64_t movements)
{
    const std::int64_t all = std::accumulate(kMonthWeights.begin(), kMonthWeights.end(), std::int64_t{0});
    std::array<std::int64_t, 12> lines{};
    std::int64_t weights = 0;
    std::int64_t given = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        weights += kMonthWeights[i];
        const std::int64_t upToHere = movements * weights / all;
        lines[i] = upToHere - given;
        given = upToHere;
    }
    return lines;
}

class LedgerMaker {
  public:
    LedgerMaker(std::vector<Place>& places, std::int64_t lines, std::uint64_t seed, RowSink& sink,
                const Progress& progress)
        : arrPlaces(places), lngLines(lines), objRandom(seed), objSink(sink), objProgress(progress)
    {
        std::int64_t sum = 0;
        for (const Place& place : places)
            arrWeights.push_back(sum += place.weight);
    }

    void Run()
    {
        BeginLedger(objSink);
        datPosting = datDocument = sys_days(year(kLedgerYear) / January / 1);
        WriteOpenings();

        const std::array<std::int64_t, 12> perMonth = SpreadOverMonths(lngLines - lngWritten);
        for (std::size_t i = 0; i < perMonth.size(); ++i)
            WriteMonth(static_cast<int>(i) + 1, perMonth[i]);

        if (objProgress)
            objProgress(lngWritten, lngLines);
        objArea.Write(objSink);
    }

  private:
    struct OpenDocument {
        Document head;
        sys_days day;
        std::string_view warehouse;
        int lines = 0;
    };

    struct DirectPurchase {
        const Item* item;
        std::int64_t quantity, amount;
    };

    void WriteOpenings()
    {
        lngMonth = 0;
        int number = 0;
        for (Place& place : arrPlaces) {
            // Some places begin empty; later batches don't exist yet.
            if (place.firstMonth > 0 || ++number % 9 == 0)
                continue;
            const std::int64_t quantity = PartOfLot(place, 50, 150);
            const std::int64_t cost = AmountOf(quantity, PurchasePrice(*place.item));
            Write(kinds::kOpening, *place.item, &place, Receive(place, lngMonth, quantity, cost));
        }
        // Goods received before the start whose invoice is still to come. The openings hold them already,
        // so they change no balance.
        for (std::size_t i = 0; i < kOpenEstimates; ++i) {
            const Place& place = arrPlaces[i * 7 % arrPlaces.size()];
            Movement estimate;
            estimate.quantity = PartOfLot(place, 10, 30);
            estimate.amount = AmountOf(estimate.quantity, place.item->price);
            Write(kinds::kOpenEstimate, *place.item, &place, estimate);
        }
    }

    void WriteMonth(int month, std::int64_t lines)
    {
        lngMonth = month;
        const std::vector<sys_days> working = WorkingDays(static_cast<unsigned>(month));
        const auto dayCount = static_cast<std::int64_t>(working.size());
        for (std::int64_t i = 0; i < lines; ++i) {
            const std::int64_t day = i * dayCount / lines;
            datPosting = working[static_cast<std::size_t>(day)];
            // Some documents are posted a working day or two later.
            const std::int64_t delay = std::min(day, std::max<std::int64_t>(objRandom.Between(-3, 2), 0));
            datDocument = working[static_cast<std::size_t>(day - delay)];
            WriteMovement();
        }
    }

    void WriteMovement()
    {
        ++lngMovements;
        Place& place = PickPlace();
        if (lngMovements % kDirectEvery == 0)
            WriteDirect(*place.item);
        else if (lngMovements % kReturnEvery == 0 && place.quantity >= 8 * place.item->step)
            WriteReturn(place);
        else if (place.quantity < place.lot / 4 || (place.quantity < 3 * place.lot && objRandom.Chance(38)))
            WriteReceipt(place);
        else
            WriteIssue(place);
    }

    // Of the places that take part in this month, the often used more often.
    Place& PickPlace()
    {
        const std::int64_t at = objRandom.Between(0, arrWeights.back() - 1);
        auto index = static_cast<std::size_t>(std::ranges::upper_bound(arrWeights, at) - arrWeights.begin());
        while (arrPlaces[index].firstMonth > lngMonth)
            --index;
        return arrPlaces[index];
    }

    void WriteReceipt(Place& place)
    {
        const LineKind* kind = &kinds::kPurchase;
        if (lngMovements % kOddEvery == 0)
            kind = kOddReceipts[intOddReceipts++ % std::size(kOddReceipts)];
        else if (place.item->supply == Supply::Made)
            kind = &kinds::kFinishedGoods;
        else if (objRandom.Chance(6))
            kind = &kinds::kEstimated;

        const std::int64_t quantity = PartOfLot(place, 40, 140);
        const std::int64_t cost = AmountOf(quantity, PurchasePrice(*place.item));
        Write(*kind, *place.item, &place, Receive(place, lngMonth, quantity, cost));
    }

    void WriteIssue(Place& place)
    {
        const bool sold = place.warehouse == "02";
        const LineKind* kind = sold ? &kinds::kSale : &kinds::kRequisition;
        if (lngMovements % kOddEvery == 0 || place.warehouse == "04")
            kind = kOddIssues[intOddIssues++ % std::size(kOddIssues)];

        // Now and then a place is emptied.
        const bool all = objRandom.Chance(3);
        const std::int64_t quantity =
            all ? place.quantity : std::min(PartOfLot(place, 5, 60), place.quantity);
        Write(*kind, *place.item, &place, Issue(place, lngMonth, quantity));
    }

    void WriteReturn(Place& place)
    {
        const std::int64_t quantity = Whole(place, place.quantity / 8);
        if (place.item->supply == Supply::Made)
            Write(kinds::kSale, *place.item, &place, TakeBack(place, lngMonth, quantity));
        else
            Write(kinds::kPurchase, *place.item, &place, SendBack(place, lngMonth, quantity));
    }

    // Goods that go from the vendor to the customer: bought first, sold the next time.
    void WriteDirect(const Item& item)
    {
        Movement movement;
        if (!varDirect) {
            movement.quantity = item.lot / 10 - item.lot / 10 % item.step;
            movement.amount = AmountOf(movement.quantity, PurchasePrice(item));
            varDirect = DirectPurchase{&item, movement.quantity, movement.amount};
            Write(kinds::kDirectPurchase, item, nullptr, movement);
            return;
        }
        movement.receipt = false;
        movement.quantity = varDirect->quantity;
        movement.amount = varDirect->amount;
        const Item& bought = *varDirect->item;
        varDirect.reset();
        Write(kinds::kDirectSale, bought, nullptr, movement);
    }

    void Write(const LineKind& kind, const Item& item, const Place* place, const Movement& movement)
    {
        LedgerLine line;
        line.number = static_cast<std::int32_t>(++lngWritten);
        line.month = lngMonth;
        line.documentDay = datDocument;
        line.postingDay = datPosting;
        line.kind = &kind;
        line.document = &DocumentFor(kind, place ? place->warehouse : std::string_view());
        line.item = &item;
        line.place = place;
        line.movement = movement;
        WriteLine(line, objSink);
        objArea.Look(line);

        if (objProgress && lngWritten % 8192 == 0)
            objProgress(lngWritten, lngLines);
    }

    // The document that is open for such lines, or the next one.
    const Document& DocumentFor(const LineKind& kind, std::string_view warehouse)
    {
        OpenDocument& open = dicDocuments[&kind];
        if (open.lines > 0 && open.lines < kLinesPerDocument && open.day == datDocument &&
            open.warehouse == warehouse) {
            ++open.lines;
            return open.head;
        }
        open.day = datDocument;
        open.warehouse = warehouse;
        open.lines = 1;
        open.head.number = ++lngDocuments;
        open.head.code = NextCode(kind);
        if (kind.partner == Partner::Vendor)
            open.head.partner = OneOf(Vendors()).code;
        else if (kind.partner == Partner::Customer)
            open.head.partner = OneOf(Customers()).code;
        open.head.handler = OneOf(std::span(kHandlers));
        const bool project = &kind == &kinds::kRequisition && objRandom.Chance(15);
        open.head.project = project ? OneOf(std::span(kProjects)) : std::string_view();
        return open.head;
    }

    // CG0803-00017: the kind, year and month, a number that counts through the year.
    std::string NextCode(const LineKind& kind)
    {
        const std::int32_t number = ++dicNumbers[kind.prefix];
        std::string digits = std::to_string(number);
        digits.insert(0, 5 - std::min<std::size_t>(digits.size(), 5), '0');
        const int month = std::max(lngMonth, 1);
        return std::string(kind.prefix) + "08" + (month < 10 ? "0" : "") + std::to_string(month) + "-" +
               digits;
    }

    template <class T, std::size_t Extent>
    const T& OneOf(std::span<const T, Extent> choices)
    {
        return choices[static_cast<std::size_t>(
            objRandom.Between(0, static_cast<std::int64_t>(choices.size()) - 1))];
    }

    std::int64_t Whole(const Place& place, std::int64_t quantity) const
    {
        return std::max(quantity - quantity % place.item->step, place.item->step);
    }

    std::int64_t PartOfLot(const Place& place, std::int64_t leastPercent, std::int64_t mostPercent)
    {
        return Whole(place, place.lot * objRandom.Between(leastPercent, mostPercent) / 100);
    }

    // Around the item's price, dearer towards the end of the year.
    std::int64_t PurchasePrice(const Item& item)
    {
        const std::int64_t perMille = 1000 + lngMonth * 4 + objRandom.Between(-40, 60);
        return std::max<std::int64_t>(item.price * perMille / 1000, 1);
    }

    std::vector<Place>& arrPlaces;
    std::vector<std::int64_t> arrWeights;  // summed up
    std::int64_t lngLines;
    Random objRandom;
    RowSink& objSink;
    const Progress& objProgress;
    AreaSample objArea;

    int lngMonth = 0;
    sys_days datPosting;
    sys_days datDocument;
    std::int64_t lngWritten = 0;
    std::int64_t lngMovements = 0;
    std::size_t intOddReceipts = 0;
    std::size_t intOddIssues = 0;
    std::int32_t lngDocuments = 0;
    std::optional<DirectPurchase> varDirect;  // not sold yet
    std::map<const LineKind*, OpenDocument> dicDocuments;
    std::map<std::string_view, std::int32_t> dicNumbers;
};

}  // namespace

void WriteLedger(std::vector<Place>& places, std::int64_t lines, std::uint64_t seed, RowSink& sink,
                 const Progress& progress)
{
    LedgerMaker(places, lines, seed, sink, progress).Run();
}

}  // namespace kavelin::demo
