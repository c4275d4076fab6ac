#include "demo/events/VendorManaged.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Estimates.h"
#include "demo/events/Office.h"

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kVmi = DocumentKind::VendorManaged;
constexpr DocumentType kConfirmed = {kVmi, "70", "70", "普通采购", kRdVendorManaged, "DG", "PO", "", "手工", true};
constexpr DocumentType kCarried   = {kVmi, "70", "33", "普通采购", kRdVendorManaged, "DG", "PO", "", "手工", true};
// clang-format on

constexpr std::string_view kVendorsGoods = "04";  // the warehouse; not the company's own
constexpr int kBroughtForward = 2;
constexpr int kSettlePercent = 40;
constexpr int kEstimatedPercent = 60;
constexpr std::size_t kEstimated = 0;  // of what objPricing tells

class VendorManaged : public Activity {
  public:
    explicit VendorManaged(Business& business)
        : Activity(business),
          objEstimates(business, business.profile.estimate),
          objPricing({kEstimatedPercent, 100 - kEstimatedPercent})
    {
    }

    int Weight() const override { return 1; }

    void OpenYear() override
    {
        for (int i = 0; i < kBroughtForward; ++i)
            if (const Place* place = WhereUsed(1))
                objEstimates.BringForward(kCarried,
                                          *OneOfClass(objBusiness.random, Vendors(), kVendorManaged), *place);
    }

    void BeginMonth(sys_days day) override { objEstimates.BeginMonth(day); }
    void EndMonth(sys_days day) override { objEstimates.EndMonth(day); }

    void Act(sys_days day) override
    {
        if (objBusiness.random.Chance(kSettlePercent) && objEstimates.Settle(day))
            return;
        Random& random = objBusiness.random;
        const int month = MonthNumber(day);
        const Place* first = WhereUsed(month);
        if (first == nullptr || IsPlenty(objBusiness.stock, *first))
            return;
        std::vector<const Place*> places = {first};
        for (int more = LineCount(random) - 1; more > 0; --more)
            if (const Place* place = WhereUsed(month);
                place != nullptr && place->warehouse == first->warehouse)
                AddOther(places, place);

        Document head = HeadOf(objBusiness, kConfirmed, day, *first, kPurchasingDepartment);
        head.vendor = OneOfClass(random, Vendors(), kVendorManaged);
        head.order = objBusiness.books.NewOrder();
        const Document document = objBusiness.books.NewDocument(head);
        const bool estimated = objPricing.Next(random) == kEstimated;
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, 10, 60);
            entry.amount = PurchaseCost(random, *place, entry.quantity, month);
            if (estimated)
                objEstimates.Receive(document, entry, day);
            else
                Receive(objBusiness, document, entry, day);
        }
    }

  private:
    // Goods that vendors keep here become the company's own where they belong. Null if none were found.
    const Place* WhereUsed(int month)
    {
        const Place* kept =
            objBusiness.stock.Pick(objBusiness.random, kVendorsGoods, Supply::Bought, month, false);
        if (kept == nullptr)
            return nullptr;
        const Place* own = objBusiness.stock.Sibling(*kept, kept->item->warehouse);
        return own != nullptr && own->warehouse->inCost ? own : nullptr;
    }

    Estimates objEstimates;
    Rota objPricing;
};

}  // namespace

std::unique_ptr<Activity> MakeVendorManaged(Business& business)
{
    return std::make_unique<VendorManaged>(business);
}

}  // namespace kavelin::demo
