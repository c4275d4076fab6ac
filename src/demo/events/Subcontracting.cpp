#include "demo/events/Subcontracting.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Estimates.h"
#include "demo/events/Office.h"

#include <deque>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kStock = DocumentKind::Stock;
constexpr DocumentType kSent = {kStock, "11", "11", "委外发料", kRdToSubcontractor, "WF", "OM", "", "自动", false};
constexpr DocumentType kReceived = {kStock, "01", "01", "委外加工", kRdSubcontracted, "WJ", "OM", "", "手工", true};
constexpr DocumentType kCarried = {kStock, "01", "33", "委外加工", kRdSubcontracted, "WJ", "OM", "", "手工", true};
// clang-format on

constexpr std::string_view kMaterials = "01";  // the warehouse on both sides
constexpr int kBroughtForward = 3;
constexpr int kSettlePercent = 40;
constexpr int kEstimatedPercent = 75;
constexpr std::size_t kEstimated = 0;  // of what objPricing tells

class Subcontracting : public Activity {
  public:
    explicit Subcontracting(Business& business)
        : Activity(business),
          objEstimates(business, business.profile.estimate),
          objPricing({kEstimatedPercent, 100 - kEstimatedPercent})
    {
    }

    int Weight() const override { return 1; }

    void OpenYear() override
    {
        for (int i = 0; i < kBroughtForward; ++i)
            if (const Place* place = PickOwn(objBusiness, kMaterials, Supply::Bought, 1, true))
                objEstimates.BringForward(
                    kCarried, *OneOfClass(objBusiness.random, Vendors(), kSubcontractors), *place, 70);
    }

    void BeginMonth(sys_days day) override { objEstimates.BeginMonth(day); }
    void EndMonth(sys_days day) override { objEstimates.EndMonth(day); }

    void Act(sys_days day) override
    {
        if (objBusiness.random.Chance(kSettlePercent) && objEstimates.Settle(day))
            return;
        if (!arrJobs.empty() && arrJobs.front().due <= day)
            TakeBack(day);
        else
            SendOut(day);
    }

  private:
    struct Job {
        std::int32_t order;
        const Party* vendor;
        sys_days due;
    };

    void SendOut(sys_days day)
    {
        Random& random = objBusiness.random;
        const int month = MonthNumber(day);
        std::vector<const Place*> places;
        for (int lines = LineCount(random); lines > 0; --lines)
            AddOther(places, PickOwn(objBusiness, kMaterials, Supply::Bought, month, true));
        if (places.empty())
            return;

        Document head = HeadOf(objBusiness, kSent, day, *places.front(), kPurchasingDepartment);
        head.vendor = OneOfClass(random, Vendors(), kSubcontractors);
        head.order = objBusiness.books.NewOrder();
        const Document document = objBusiness.books.NewDocument(head);
        const bool posted = !IsHeldBack(random, day);
        for (const Place* place : places)
            Issue(objBusiness, document, *place, objBusiness.stock.SomeOf(random, *place), day, posted);
        arrJobs.push_back({head.order, head.vendor, day + days(random.Between(3, 18))});
    }

    void TakeBack(sys_days day)
    {
        Random& random = objBusiness.random;
        const int month = MonthNumber(day);
        const Job job = arrJobs.front();
        arrJobs.pop_front();
        std::vector<const Place*> places;
        for (int lines = LineCount(random); lines > 0; --lines)
            AddOther(places, PickScarce(objBusiness, kMaterials, Supply::Bought, month));
        if (places.empty())
            return;

        Document head = HeadOf(objBusiness, kReceived, day, *places.front(), kPurchasingDepartment);
        head.vendor = job.vendor;
        head.order = job.order;
        const Document document = objBusiness.books.NewDocument(head);
        for (const Place* place : places) {
            const bool estimated = objPricing.Next(random) == kEstimated;
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, 20, 60);
            entry.amount = PurchaseCost(random, *place, entry.quantity, month);
            entry.materialFee = entry.amount * random.Between(60, 80) / 100;
            entry.processFee = entry.amount - entry.materialFee;
            if (estimated)
                objEstimates.Receive(document, entry, day);
            else
                Receive(objBusiness, document, entry, day);
        }
    }

    Estimates objEstimates;
    Rota objPricing;
    std::deque<Job> arrJobs;  // materials are out; ordered by the day of sending
};

}  // namespace

std::unique_ptr<Activity> MakeSubcontracting(Business& business)
{
    return std::make_unique<Subcontracting>(business);
}

}  // namespace kavelin::demo
