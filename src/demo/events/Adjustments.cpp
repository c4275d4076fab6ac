#include "demo/events/Adjustments.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kAdjustment = DocumentKind::Adjustment;
constexpr DocumentType kReceipts = {kAdjustment, "20", "20", "", kRdAdjustmentIn,  "TR", "", "", "调整", true};
constexpr DocumentType kIssues   = {kAdjustment, "21", "21", "", kRdAdjustmentOut, "TC", "", "", "调整", false};

struct Kind {
    const DocumentType& type;
    bool nothing;  // an adjustment of nothing, as the recalculation of costs leaves it
    int weight;
};

constexpr Kind kKinds[] = {{kReceipts, false, 55}, {kIssues, false, 35}, {kReceipts, true, 10}};
// clang-format on

class Adjustments : public Activity {
  public:
    explicit Adjustments(Business& business) : Activity(business), objRota(kKinds) {}

    int Weight() const override { return 1; }

    void Act(sys_days day) override
    {
        Random& random = objBusiness.random;
        const Kind& kind = kKinds[objRota.Next(random)];
        const Place* first = PickOwn(objBusiness, "", Supply::Bought, MonthNumber(day), true);
        if (first == nullptr)
            return;
        std::vector<const Place*> places = {first};
        for (int more = LineCount(random) / 2; more > 0; --more)
            AddOther(places,
                     PickOwn(objBusiness, first->warehouse->code, Supply::Bought, MonthNumber(day), true));

        const Document document = objBusiness.books.NewDocument(
            HeadOf(objBusiness, kind.type, day, *first, first->warehouse->department));
        const bool posted = !IsHeldBack(random, day);
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.amount = kind.nothing ? 0 : SomeAmount(*place);
            const std::int32_t line = objBusiness.books.AddLine(document, entry);
            if (!posted || !objBusiness.books.CanPost())
                continue;
            StockEntry row = RowOf(document, line, *place, day);
            row.cost = entry.amount;
            objBusiness.books.Post(row);
        }
    }

  private:
    // Small beside what the goods are worth, up or down, never 0.
    std::int64_t SomeAmount(const Place& place)
    {
        const std::int64_t worth = AmountOf(objBusiness.stock.OnHand(place), place.item->price);
        const std::int64_t amount = 1 + worth * objBusiness.random.Between(1, 15) / 1000;
        return objBusiness.random.Chance(50) ? amount : -amount;
    }

    Rota objRota;
};

}  // namespace

std::unique_ptr<Activity> MakeAdjustments(Business& business)
{
    return std::make_unique<Adjustments>(business);
}

}  // namespace kavelin::demo
