#include "demo/events/Purchasing.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Estimates.h"
#include "demo/events/Office.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kStock = DocumentKind::Stock;
constexpr DocumentType kOrdinary = {kStock, "01", "01", "普通采购", kRdPurchase, "CG", "PO", "", "手工", true};
constexpr DocumentType kCarried = {kStock, "01", "33", "普通采购", kRdPurchase, "CG", "PO", "", "手工", true};
constexpr DocumentType kReturn = {kStock, "01", "01", "普通采购", kRdPurchaseReturn, "CT", "PO", "", "手工", true};
constexpr DocumentType kImport = {kStock, "01", "01", "一般贸易进口", kRdImport, "JK", "IM", "", "手工", true};
constexpr DocumentType kProcessing = {kStock, "01", "01", "进料加工", kRdImport, "JK", "IM", "", "手工", true};

struct Kind {
    const DocumentType& type;
    bool estimated;
    int weight;
};

constexpr Kind kKinds[] = {
    {kOrdinary,   true,  24}, {kOrdinary,   false, 50}, {kReturn,     false, 8}, {kImport, true, 4},
    {kProcessing, false,  5}, {kProcessing, true,   3}, {kImport,     false, 6},
};
// clang-format on

constexpr int kSettlePercent = 50;

class Purchasing : public Activity {
  public:
    explicit Purchasing(Business& business)
        : Activity(business), objEstimates(business, business.profile.estimate), objRota(kKinds)
    {
    }

    // Sellers buy all that they sell.
    int Weight() const override { return objBusiness.profile.edition == Edition::Commercial ? 9 : 6; }

    void OpenYear() override
    {
        const std::size_t count = 6 + objBusiness.company.items.size() / 10;
        for (std::size_t i = 0; i < count; ++i)
            if (const Place* place = PickOwn(objBusiness, "", Supply::Bought, 1, true))
                objEstimates.BringForward(kCarried, *VendorOf(objBusiness.random, place->item->itemClass),
                                          *place);
    }

    void BeginMonth(sys_days day) override { objEstimates.BeginMonth(day); }
    void EndMonth(sys_days day) override { objEstimates.EndMonth(day); }

    void Act(sys_days day) override
    {
        if (objBusiness.random.Chance(kSettlePercent) && objEstimates.Settle(day))
            return;
        const Kind& kind = kKinds[objRota.Next(objBusiness.random)];
        if (&kind.type == &kReturn)
            SendBack(day);
        else
            Buy(kind, day);
    }

  private:
    void Buy(const Kind& kind, sys_days day)
    {
        Random& random = objBusiness.random;
        const std::vector<const Place*> places = WhatIsWanted(MonthNumber(day));
        if (places.empty())
            return;

        Document head = HeadOf(objBusiness, kind.type, day, *places.front(), kPurchasingDepartment);
        const bool imported = kind.type.rdCode == kRdImport;
        head.vendor = imported ? OneOfClass(random, Vendors(), kImporters)
                               : VendorOf(random, places.front()->item->itemClass);
        head.order = objBusiness.books.NewOrder();
        const Document document = objBusiness.books.NewDocument(head);
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, 40, 140);
            entry.amount = PurchaseCost(random, *place, entry.quantity, MonthNumber(day));
            if (kind.estimated)
                objEstimates.Receive(document, entry, day);
            else
                Receive(objBusiness, document, entry, day);
        }
    }

    // Goods of one warehouse and one kind of vendor; none if all that was looked at is there in plenty.
    std::vector<const Place*> WhatIsWanted(int month)
    {
        std::vector<const Place*> places;
        const Place* scarce = PickScarce(objBusiness, "", Supply::Bought, month);
        if (scarce == nullptr || IsPlenty(objBusiness.stock, *scarce))
            return places;
        places.push_back(scarce);
        const Place& first = *scarce;
        const std::string_view kind = first.item->itemClass.substr(0, 2);
        for (int more = LineCount(objBusiness.random) - 1; more > 0; --more) {
            const Place* place = PickScarce(objBusiness, first.warehouse->code, Supply::Bought, month);
            if (place != nullptr && place->item->itemClass.starts_with(kind))
                AddOther(places, place);
        }
        return places;
    }

    void SendBack(sys_days day)
    {
        Random& random = objBusiness.random;
        const Place* place = PickOwn(objBusiness, "", Supply::Bought, MonthNumber(day), true);
        if (place == nullptr)
            return;
        const std::int64_t onHand = objBusiness.stock.OnHand(*place);
        const std::int64_t quantity =
            std::min(PartOfLot(random, *place, 2, 10), WholeSteps(*place->item, onHand));
        if (quantity == 0)
            return;

        Document head = HeadOf(objBusiness, kReturn, day, *place, kPurchasingDepartment);
        head.vendor = VendorOf(random, place->item->itemClass);
        head.order = objBusiness.books.NewOrder();
        LineEntry entry;
        entry.place = place;
        entry.quantity = -quantity;
        entry.amount = -PurchaseCost(random, *place, quantity, MonthNumber(day));
        Receive(objBusiness, objBusiness.books.NewDocument(head), entry, day);
    }

    Estimates objEstimates;
    Rota objRota;
};

}  // namespace

std::unique_ptr<Activity> MakePurchasing(Business& business)
{
    return std::make_unique<Purchasing>(business);
}

}  // namespace kavelin::demo
