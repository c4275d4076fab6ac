#include "demo/events/Openings.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kStock = DocumentKind::Stock;
constexpr DocumentType kOpening = {kStock, "34", "34", "", "", "", "", "", "手工", true};
constexpr DocumentType kOldReceipt = {kStock, "01", "01", "普通采购", kRdPurchase, "CG", "PO", "", "手工", true};
constexpr DocumentType kOldIssue = {kStock, "11", "11", "领料", kRdMaterial, "LL", "MO", "", "自动", false};
constexpr DocumentType kOldOtherIssue = {kStock, "09", "09", "其他出库", kRdOtherOut, "QC", "", "", "自动", false};
// clang-format on

constexpr int kEmptyEvery = 9;
constexpr int kOldDocuments = 4;

class Openings : public Activity {
  public:
    explicit Openings(Business& business) : Activity(business) {}

    int Weight() const override { return 0; }

    void OpenYear() override
    {
        int number = 0;
        for (const Place& place : objBusiness.stock.Places()) {
            // Some places begin empty; later batches don't exist yet.
            if (place.firstMonth > 0 || !place.warehouse->inCost || ++number % kEmptyEvery == 0)
                continue;
            Open(place);
        }
        if (objBusiness.profile.earlyDocuments)
            for (int i = 0; i < kOldDocuments; ++i)
                WriteOldDocuments(sys_days(year(kLedgerYear - 1) / December / 24) + days(i));
    }

    void Act(sys_days) override {}

  private:
    void Open(const Place& place)
    {
        Random& random = objBusiness.random;
        if (!objBusiness.books.CanPost())
            return;
        Document head;
        head.type = &kOpening;
        head.day = sys_days(year(kLedgerYear) / January / 1);
        head.warehouse = place.warehouse->code;
        head.department = head.accountingDepartment = place.warehouse->department;

        StockEntry row = RowOf(head, 0, place, head.day);
        row.quantity = PartOfLot(random, place, 50, 150);
        row.cost = PurchaseCost(random, place, *row.quantity, 0);
        objBusiness.stock.Put(place, *row.quantity);
        objBusiness.books.Post(row);
    }

    // Documents that were never posted: they are older than the books. What comes in goes out again, so that
    // no later issue draws on goods that the ledger doesn't know.
    void WriteOldDocuments(sys_days day)
    {
        const Place* place = PickOwn(objBusiness, "01", Supply::Bought, 1, true);
        if (place == nullptr)
            return;
        LineEntry entry;
        entry.place = place;
        entry.quantity = PartOfLot(objBusiness.random, *place, 10, 30);
        entry.amount = PurchaseCost(objBusiness.random, *place, entry.quantity, 0);
        Document receipt = HeadOf(objBusiness, kOldReceipt, day, *place, kPurchasingDepartment);
        receipt.vendor = VendorOf(objBusiness.random, place->item->itemClass);
        objBusiness.books.AddLine(objBusiness.books.NewDocument(receipt), entry);

        entry.amount = 0;
        const DocumentType& type = objBusiness.random.Chance(50) ? kOldIssue : kOldOtherIssue;
        const Document issue = HeadOf(objBusiness, type, day, *place, "0201");
        objBusiness.books.AddLine(objBusiness.books.NewDocument(issue), entry);
    }
};

}  // namespace

std::unique_ptr<Activity> MakeOpenings(Business& business)
{
    return std::make_unique<Openings>(business);
}

}  // namespace kavelin::demo
