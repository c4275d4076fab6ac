#include "demo/events/TransitOpenings.h"

#include "demo/events/EntrustedSales.h"
#include "demo/events/InstalmentSales.h"
#include "demo/events/Office.h"
#include "demo/events/SaleChain.h"
#include "demo/events/Sales.h"

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr std::size_t kItemsForASale = 6;  // a larger company comes with more
constexpr std::size_t kLeastOfAKind = 4;

// How goods brought forward are invoiced in the year.
struct Way {
    Invoicing invoicing;
    int weight;
};

constexpr Way kWays[] = {{Invoicing::Whole, 5}, {Invoicing::InParts, 3}, {Invoicing::Never, 2}};

class TransitOpenings : public Activity {
  public:
    explicit TransitOpenings(Business& business) : Activity(business), objRota(kWays)
    {
        for (const SaleKind& kind : {OrdinaryKind(business.profile), EntrustedKind(business.profile),
                                     InstalmentKind(business.profile)})
            if (kind.inTransit && kind.share > 0) {
                arrKinds.push_back(kind);
                arrChains.emplace_back(business, kind);
            }
    }

    int Weight() const override { return arrKinds.empty() ? 0 : 1; }

    void OpenYear() override
    {
        const std::size_t sales = arrKinds.empty()
                                      ? 0
                                      : std::max(kLeastOfAKind * arrKinds.size(),
                                                 objBusiness.company.items.size() / kItemsForASale);
        for (std::size_t i = 0; i < sales; ++i)
            BringForward(i % arrKinds.size());
    }

    void Act(sys_days day) override
    {
        for (SaleChain& chain : arrChains)
            if (chain.Continue(day))
                return;
    }

  private:
    // A sale of November or December that was posted then and not yet invoiced.
    void BringForward(std::size_t kindNumber)
    {
        const SaleKind& kind = arrKinds[kindNumber];
        Random& random = objBusiness.random;
        const Place* place = PickOwn(objBusiness, "02", SoldGoods(objBusiness.profile), 1, false);
        if (place == nullptr)
            return;
        const sys_days monday = sys_days(year(kLedgerYear - 1) / November / 5);
        const sys_days day = monday + weeks(random.Between(0, 6)) + days(random.Between(0, 4));

        Sale sale;
        sale.types = kind.types;
        sale.issued = sale.posted = true;
        sale.head = HeadOf(objBusiness, sale.types->dispatch, day, *place, kSalesDepartment);
        sale.head.customer = CustomerOf(random, kind);
        sale.head.order = objBusiness.books.NewOrder();
        const std::int64_t quantity = PartOfLot(random, *place, 15, 60);
        sale.lines.push_back({.place = place, .quantity = quantity, .open = quantity});
        WriteDocuments(sale, kind.posting);
        Post(sale, day);
        Settle(kindNumber, std::move(sale));
    }

    // The dispatch note and, where that posts the sale, the issue note.
    void WriteDocuments(Sale& sale, SaleDocument posting)
    {
        SaleLine& line = sale.lines.front();
        LineEntry entry;
        entry.place = line.place;
        entry.quantity = line.quantity;
        sale.head = objBusiness.books.NewDocument(sale.head);
        line.dispatchLine = objBusiness.books.AddLine(sale.head, entry);
        if (posting == SaleDocument::Issue) {
            sale.head.type = &sale.types->issue;
            sale.head = objBusiness.books.NewDocument(sale.head);
            entry.dispatchLine = line.dispatchLine;
            line.issueLine = objBusiness.books.AddLine(sale.head, entry);
        }
    }

    void Post(const Sale& sale, sys_days day)
    {
        const SaleLine& line = sale.lines.front();
        TransitEntry row;
        row.voucherType = row.sourceType = sale.head.type->ledgerType;
        row.line = row.sourceLine = line.issueLine != 0 ? line.issueLine : line.dispatchLine;
        row.document = sale.head;
        row.dispatchLine = line.dispatchLine;
        row.place = line.place;
        row.day = day;
        row.quantity = line.quantity;
        row.cost =
            AmountOf(line.quantity, line.place->item->price * objBusiness.random.Between(90, 104) / 100);
        row.broughtForward = true;
        objBusiness.books.PostTransit(row);
        objBusiness.transit.Add({sale.head, row.sourceType, row.sourceLine, line.place});
    }

    void Settle(std::size_t kindNumber, Sale sale)
    {
        sale.plan.invoicing = kWays[objRota.Next(objBusiness.random)].invoicing;
        if (sale.plan.invoicing == Invoicing::Never)
            return;
        sale.parts = sale.plan.invoicing == Invoicing::Whole ? 1 : 2;
        const sys_days due =
            sys_days(year(kLedgerYear) / January / 8) + days(objBusiness.random.Between(0, 120));
        arrChains[kindNumber].Await(std::move(sale), due);
    }

    std::vector<SaleKind> arrKinds;
    std::deque<SaleChain> arrChains;  // one a kind
    Rota objRota;
};

}  // namespace

std::unique_ptr<Activity> MakeTransitOpenings(Business& business)
{
    return std::make_unique<TransitOpenings>(business);
}

}  // namespace kavelin::demo
