#include "demo/events/ConsignmentIn.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Estimates.h"
#include "demo/events/Office.h"

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kStock = DocumentKind::Stock;
constexpr DocumentType kReceived = {kStock, "01", "01", "受托代销", kRdConsigned, "DX", "PO", "", "手工", true};
constexpr DocumentType kCarried  = {kStock, "01", "33", "受托代销", kRdConsigned, "DX", "PO", "", "手工", true};
// clang-format on

constexpr std::string_view kSalesWarehouse = "02";
constexpr int kBroughtForward = 3;
constexpr int kSettlePercent = 50;

class ConsignmentIn : public Activity {
  public:
    explicit ConsignmentIn(Business& business)
        // What is owed for goods sold is a difference whatever the account does with purchases.
        : Activity(business), objEstimates(business, EstimateMethod::ArrivalDifference)
    {
    }

    int Weight() const override { return 2; }

    void OpenYear() override
    {
        for (int i = 0; i < kBroughtForward; ++i)
            if (const Place* place = PickOwn(objBusiness, kSalesWarehouse, Supply::Bought, 1, true))
                objEstimates.BringForward(kCarried, *OneOfClass(objBusiness.random, Vendors(), kConsigning),
                                          *place);
    }

    void Act(sys_days day) override
    {
        if (objBusiness.random.Chance(kSettlePercent) && objEstimates.Settle(day))
            return;
        Random& random = objBusiness.random;
        const int month = MonthNumber(day);
        std::vector<const Place*> places;
        for (int lines = LineCount(random); lines > 0; --lines)
            AddOther(places, PickScarce(objBusiness, kSalesWarehouse, Supply::Bought, month));
        if (places.empty() || IsPlenty(objBusiness.stock, *places.front()))
            return;

        Document head = HeadOf(objBusiness, kReceived, day, *places.front(), kPurchasingDepartment);
        head.vendor = OneOfClass(random, Vendors(), kConsigning);
        head.order = objBusiness.books.NewOrder();
        const Document document = objBusiness.books.NewDocument(head);
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, 20, 80);
            entry.amount = PurchaseCost(random, *place, entry.quantity, month);
            objEstimates.Receive(document, entry, day);
        }
    }

  private:
    Estimates objEstimates;
};

}  // namespace

std::unique_ptr<Activity> MakeConsignmentIn(Business& business)
{
    return std::make_unique<ConsignmentIn>(business);
}

}  // namespace kavelin::demo
