#include "demo/events/DirectTrade.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"
#include "demo/events/SaleActivity.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// clang-format off
constexpr auto kPurchase = DocumentKind::PurchaseInvoice;
constexpr auto kSale = DocumentKind::SaleInvoice;
constexpr auto kExport = DocumentKind::ExportInvoice;
constexpr std::string_view kIn = "直运采购";
constexpr std::string_view kOut = "直运销售";
constexpr std::string_view kRdIn = kRdDirectPurchase;
constexpr std::string_view kRdOut = kRdDirectSale;
constexpr DocumentType kPurchases  = {kPurchase, "01",   "25",   kIn,  kRdIn,  "ZC", "PO", "", "自动", true};
constexpr DocumentType kSentBack   = {kPurchase, "02",   "25",   kIn,  kRdIn,  "ZT", "PO", "", "自动", true};
constexpr DocumentType kSales      = {kSale,     "26",   "26",   kOut, kRdOut, "ZX", "SO", "", "自动", false};
constexpr DocumentType kCredits    = {kSale,     "27",   "27",   kOut, kRdOut, "ZH", "SO", "", "自动", false};
constexpr DocumentType kSoldAbroad = {kExport,   "EX26", "EX26", kOut, kRdOut, "ZE", "EX", "", "自动", false};
// clang-format on

struct Way {
    bool abroad;     // where the company exports
    bool comesBack;  // in part
    int weight;
};

constexpr Way kWays[] = {{false, true, 20}, {true, false, 20}, {false, false, 60}};

struct Goods {
    const Item* item = nullptr;
    std::int64_t quantity = 0;
    std::int64_t cost = 0;
};

// What is bought for one customer, until its last document is written.
struct Deal {
    const DocumentType* next = nullptr;
    Document head;
    std::vector<Goods> goods;
    bool comesBack = false;  // in part, behind the sale
    bool posted = false;     // its latest document
};

class DirectTrade : public Activity {
  public:
    explicit DirectTrade(Business& business) : Activity(business), objRota(kWays) {}

    int Weight() const override { return WeightOf(objBusiness.profile, objBusiness.profile.direct ? 2 : 0); }

    void Act(sys_days day) override
    {
        const auto first = dicDue.begin();
        if (first == dicDue.end() || first->first > day) {
            Buy(day);
            return;
        }
        Deal deal = std::move(first->second);
        dicDue.erase(first);
        Write(deal, day);
        GoOn(std::move(deal), day);
    }

  private:
    void Buy(sys_days day)
    {
        Random& random = objBusiness.random;
        const Way& way = kWays[objRota.Next(random)];
        const bool abroad = way.abroad && objBusiness.profile.exports;

        Deal deal;
        deal.goods = ChooseGoods(MonthNumber(day));
        if (deal.goods.empty())
            return;
        deal.comesBack = way.comesBack;
        deal.head.department = deal.head.accountingDepartment = kSalesDepartment;
        const auto persons = Persons();
        const Person& person = persons[static_cast<std::size_t>(
            random.Between(0, static_cast<std::int64_t>(persons.size()) - 1))];
        deal.head.person = person.code;
        deal.head.handler = person.name;
        deal.head.day = DocumentDay(random, day);
        deal.head.order = objBusiness.books.NewOrder();
        deal.head.vendor = VendorOf(random, deal.goods.front().item->itemClass);
        deal.head.customer = OneOfClass(random, Customers(), abroad ? kExportCustomers : "02");
        deal.posted = true;

        deal.next = &kPurchases;
        Write(deal, day);
        deal.next = abroad ? &kSoldAbroad : &kSales;
        Await(std::move(deal), day);
    }

    // Things that are bought and keep neither colours nor batches, which only a place could tell.
    std::vector<Goods> ChooseGoods(int month)
    {
        Random& random = objBusiness.random;
        std::vector<const Place*> places;
        for (int more = (LineCount(random) + 1) / 2; more > 0; --more) {
            const Place* place = PickOwn(objBusiness, "", Supply::Bought, month, false);
            if (place != nullptr && place->item->kept == Kept::Nothing)
                AddOther(places, place);
        }
        std::vector<Goods> goods;
        for (const Place* place : places) {
            const std::int64_t quantity = PartOfLot(random, *place, 20, 80);
            goods.push_back({place->item, quantity, PurchaseCost(random, *place, quantity, month)});
        }
        return goods;
    }

    // The next document, posted if the one before it is.
    void Write(Deal& deal, sys_days day)
    {
        const DocumentType& type = *deal.next;
        Document head = deal.head;
        head.type = &type;
        if (head.id != 0)
            head.day = std::max(head.day, DocumentDay(objBusiness.random, day));
        (type.receipt ? head.customer : head.vendor) = nullptr;
        const Document document = objBusiness.books.NewDocument(head);

        deal.posted = deal.posted && !IsHeldBack(objBusiness.random, day) &&
                      objBusiness.books.CanPost(static_cast<int>(deal.goods.size()));
        for (const Goods& goods : deal.goods) {
            LineEntry entry;
            entry.item = goods.item;
            entry.quantity = goods.quantity;
            entry.amount = goods.cost;
            const std::int32_t line = objBusiness.books.AddLine(document, entry);
            if (!deal.posted)
                continue;
            StockEntry row;
            row.voucherType = type.ledgerType;
            row.document = document;
            row.line = line;
            row.item = goods.item;
            row.day = day;
            row.receipt = type.receipt;
            row.quantity = goods.quantity;
            row.cost = goods.cost;
            objBusiness.books.Post(row);
        }
        deal.head.id = document.id;
        deal.head.day = document.day;
    }

    // What follows the document just written.
    void GoOn(Deal deal, sys_days day)
    {
        if (deal.next == &kCredits) {
            deal.next = &kSentBack;
        } else if (deal.comesBack && deal.next != &kSentBack) {
            deal.next = &kCredits;
            for (Goods& goods : deal.goods) {
                const std::int64_t part =
                    std::max(WholeSteps(*goods.item, goods.quantity / 3), goods.item->step);
                goods = {goods.item, -part, -Share(goods.cost, part, goods.quantity)};
            }
        } else {
            return;
        }
        Await(std::move(deal), day);
    }

    void Await(Deal deal, sys_days day)
    {
        dicDue.emplace(day + days(objBusiness.random.Between(1, 9)), std::move(deal));
    }

    Rota objRota;
    std::multimap<sys_days, Deal> dicDue;
};

}  // namespace

std::unique_ptr<Activity> MakeDirectTrade(Business& business)
{
    return std::make_unique<DirectTrade>(business);
}

}  // namespace kavelin::demo
