#include "demo/events/Production.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"

#include <algorithm>
#include <array>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kStock = DocumentKind::Stock;
constexpr DocumentType kRequisition = {kStock, "11", "11", "领料", kRdMaterial, "LL", "MO", "", "自动", false};
constexpr DocumentType kQuota = {kStock, "11", "11", "限额领料", kRdMaterial, "LL", "MO", "", "自动", false};
constexpr DocumentType kKit = {kStock, "11", "11", "配比出库", kRdMaterial, "LL", "MO", "", "自动", false};
constexpr DocumentType kBackflush = {kStock, "11", "11", "生产倒冲", kRdMaterial, "LL", "MO", "", "自动", false};
constexpr DocumentType kFinished = {kStock, "10", "10", "成品入库", kRdFinished, "CP", "MO", "", "手工", true};
constexpr DocumentType kUnused = {kStock, "11", "11", "假退料", kRdMaterial, "LL", "MO", "", "自动", false};

struct Kind {
    const DocumentType& type;
    int weight;
};

constexpr Kind kKinds[] = {{kRequisition, 44}, {kFinished, 38}, {kQuota, 10}, {kKit, 4}, {kBackflush, 4}};
// clang-format on

constexpr std::string_view kMaterials = "01";
constexpr std::string_view kAuxiliaries = "03";
constexpr std::string_view kWorkshops[] = {"0201", "0202"};

class Production : public Activity {
  public:
    explicit Production(Business& business) : Activity(business), objRota(kKinds) {}

    int Weight() const override { return 14; }

    // Material that the workshops still have at the end of the month is given back on paper and issued again
    // on the first of the next.
    void EndMonth(sys_days day) override
    {
        Random& random = objBusiness.random;
        const std::int64_t places = 3 + static_cast<std::int64_t>(objBusiness.company.items.size()) / 40;
        for (std::int64_t i = 0; i < places; ++i) {
            const Place* place = PickOwn(objBusiness, kMaterials, Supply::Bought, MonthNumber(day), false);
            if (place == nullptr || !objBusiness.books.CanPost())
                continue;
            Unused unused;
            unused.place = place;
            unused.quantity = PartOfLot(random, *place, 2, 12);
            unused.head = HeadOf(objBusiness, kUnused, day, *place, Workshop());
            unused.head.day = day;
            unused.head.order = ProductionOrder();
            const Document document = objBusiness.books.NewDocument(unused.head);
            Issue(objBusiness, document, *place, -unused.quantity, day);
            arrUnused.push_back(unused);
        }
    }

    void BeginMonth(sys_days day) override
    {
        for (Unused& unused : arrUnused) {
            const std::int64_t onHand = objBusiness.stock.OnHand(*unused.place);
            const std::int64_t quantity = std::min(unused.quantity, WholeSteps(*unused.place->item, onHand));
            if (quantity == 0)
                continue;
            unused.head.day = day;
            const Document document = objBusiness.books.NewDocument(unused.head);
            Issue(objBusiness, document, *unused.place, quantity, day);
        }
        arrUnused.clear();
    }

    void Act(sys_days day) override
    {
        const DocumentType& type = kKinds[objRota.Next(objBusiness.random)].type;
        if (&type != &kFinished)
            IssueMaterials(type, day);
        else if (!ReceiveFinished(day))
            IssueMaterials(kRequisition, day);
    }

  private:
    struct Unused {
        Document head;
        const Place* place;
        std::int64_t quantity;
    };

    std::string_view Workshop() { return kWorkshops[objBusiness.random.Between(0, 1)]; }

    // One of those that are being worked on.
    std::int32_t ProductionOrder()
    {
        std::int32_t& order = arrOrders[static_cast<std::size_t>(
            objBusiness.random.Between(0, static_cast<std::int64_t>(arrOrders.size()) - 1))];
        if (order == 0 || objBusiness.random.Chance(20))
            order = objBusiness.books.NewOrder();
        return order;
    }

    void IssueMaterials(const DocumentType& type, sys_days day)
    {
        Random& random = objBusiness.random;
        const std::string_view warehouse = random.Chance(70) ? kMaterials : kAuxiliaries;
        std::vector<const Place*> places;
        for (int lines = LineCount(random); lines > 0; --lines)
            AddOther(places, PickOwn(objBusiness, warehouse, Supply::Bought, MonthNumber(day), true));
        if (places.empty())
            return;

        Document head = HeadOf(objBusiness, type, day, *places.front(), Workshop());
        head.order = ProductionOrder();
        const Document document = objBusiness.books.NewDocument(head);
        const bool posted = !IsHeldBack(random, day);
        for (const Place* place : places)
            Issue(objBusiness, document, *place, objBusiness.stock.SomeOf(random, *place), day, posted);
    }

    // False where there is plenty of all that was looked at.
    bool ReceiveFinished(sys_days day)
    {
        Random& random = objBusiness.random;
        const Place* first = PickScarce(objBusiness, "", Supply::Made, MonthNumber(day));
        if (first == nullptr || IsPlenty(objBusiness.stock, *first))
            return false;
        std::vector<const Place*> places = {first};
        for (int more = LineCount(random) - 1; more > 0; --more)
            AddOther(places, PickScarce(objBusiness, first->warehouse->code, Supply::Made, MonthNumber(day)));

        Document head = HeadOf(objBusiness, kFinished, day, *first, Workshop());
        head.order = ProductionOrder();
        const Document document = objBusiness.books.NewDocument(head);
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, 30, 120);
            entry.amount = AmountOf(entry.quantity, place->item->price * random.Between(970, 1035) / 1000);
            Receive(objBusiness, document, entry, day);
        }
        return true;
    }

    Rota objRota;
    std::array<std::int32_t, 8> arrOrders{};
    std::vector<Unused> arrUnused;
};

}  // namespace

std::unique_ptr<Activity> MakeProduction(Business& business)
{
    return std::make_unique<Production>(business);
}

}  // namespace kavelin::demo
