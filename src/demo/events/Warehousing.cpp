#include "demo/events/Warehousing.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr auto kStock = DocumentKind::Stock;

constexpr DocumentType Out(std::string_view businessType, std::string_view rdCode, std::string_view prefix)
{
    return {kStock, "09", "09", businessType, rdCode, prefix, "", "", "自动", false};
}

constexpr DocumentType In(std::string_view businessType, std::string_view rdCode, std::string_view prefix,
                          std::string_view costSource)
{
    return {kStock, "08", "08", businessType, rdCode, prefix, "", "", costSource, true};
}

// clang-format off
constexpr DocumentType kTransferOut    = Out("调拨出库",     kRdTransferOut,    "DB");
constexpr DocumentType kTransferIn     = In("调拨入库",      kRdTransferIn,     "DB", "自动");
constexpr DocumentType kAssemblyOut    = Out("组装出库",     kRdAssemblyOut,    "ZZ");
constexpr DocumentType kAssemblyIn     = In("组装入库",      kRdAssemblyIn,     "ZZ", "自动");
constexpr DocumentType kDisassemblyOut = Out("拆卸出库",     kRdDisassemblyOut, "CX");
constexpr DocumentType kDisassemblyIn  = In("拆卸入库",      kRdDisassemblyIn,  "CX", "自动");
constexpr DocumentType kConversionOut  = Out("转换出库",     kRdConversionOut,  "ZH");
constexpr DocumentType kConversionIn   = In("转换入库",      kRdConversionIn,   "ZH", "自动");

constexpr DocumentType kOtherIn        = In("其他入库",      kRdOtherIn,        "QR", "手工");
constexpr DocumentType kBareIn         = In("",              kRdOtherIn,        "QR", "手工");
constexpr DocumentType kSurplus        = In("盘盈入库",      kRdCountSurplus,   "PY", "手工");
constexpr DocumentType kDowngraded     = In("降级入库",      kRdOtherIn,        "QR", "手工");
constexpr DocumentType kPartsBack      = In("配件退库",      kRdOtherIn,        "QR", "手工");
constexpr DocumentType kOtherOut       = Out("其他出库",     kRdOtherOut,       "QC");
constexpr DocumentType kBareOut        = Out("",             kRdOtherOut,       "QC");
constexpr DocumentType kShortage       = Out("盘亏出库",     kRdCountShortage,  "PK");
constexpr DocumentType kRejected       = Out("不合格品",     kRdOtherOut,       "QC");
constexpr DocumentType kSpares         = Out("备件领用",     kRdSpareParts,     "BJ");
constexpr DocumentType kService        = Out("服务配件领用", kRdSpareParts,     "BJ");
constexpr DocumentType kLost           = Out("签回损失",     kRdOtherOut,       "QC");

// An event: goods go out, come in, or both; then `in` costs what `out` gave.
struct Kind {
    const DocumentType* out;
    const DocumentType* in;
    int least, most;  // quantities, per cent of a lot
    int weight;
};

constexpr Kind kKinds[] = {
    {&kTransferOut,    &kTransferIn,     20, 60, 34},
    {&kOtherOut,       nullptr,           5, 20,  8}, {nullptr, &kOtherIn,    5, 30, 8},
    {&kShortage,       nullptr,           1,  3,  8}, {nullptr, &kSurplus,    1,  3, 8},
    {&kAssemblyOut,    &kAssemblyIn,      5, 20,  5},
    {&kBareOut,        nullptr,           5, 20,  3}, {nullptr, &kBareIn,     5, 20, 3},
    {&kDisassemblyOut, &kDisassemblyIn,   5, 20,  3},
    {&kRejected,       nullptr,           1,  8,  4}, {nullptr, &kDowngraded, 1,  8, 2},
    {&kConversionOut,  &kConversionIn,    5, 20,  3},
    {&kSpares,         nullptr,           2, 10,  5}, {nullptr, &kPartsBack,  1,  4, 2},
    {&kService,        nullptr,           2, 10,  3},
    {&kLost,           nullptr,           1,  3,  1},
};
// clang-format on

constexpr int kLooks = 60;

class Warehousing : public Activity {
  public:
    explicit Warehousing(Business& business) : Activity(business), objRota(kKinds) {}

    int Weight() const override { return 5; }

    void Act(sys_days day) override
    {
        const Kind& kind = kKinds[objRota.Next(objBusiness.random)];
        if (kind.out == nullptr)
            BringIn(kind, day);
        else if (kind.in == nullptr)
            TakeAway(kind, day);
        else if (kind.in == &kTransferIn)
            Transfer(kind, day);
        else
            Convert(kind, day);
    }

  private:
    // Goods of which `quantity` become `quantityIn` of others.
    struct Passage {
        const Place* from = nullptr;
        const Place* to = nullptr;
        std::int64_t quantity = 0, quantityIn = 0;
    };

    Supply SomeSupply()
    {
        const bool made = objBusiness.profile.edition == Edition::Industrial && objBusiness.random.Chance(40);
        return made ? Supply::Made : Supply::Bought;
    }

    const Place* PickStocked(std::string_view warehouse, sys_days day)
    {
        return PickOwn(objBusiness, warehouse, SomeSupply(), MonthNumber(day), true);
    }

    std::int64_t SomeThere(const Kind& kind, const Place& place)
    {
        return std::min(PartOfLot(objBusiness.random, place, kind.least, kind.most),
                        WholeSteps(*place.item, objBusiness.stock.OnHand(place)));
    }

    void BringIn(const Kind& kind, sys_days day)
    {
        Random& random = objBusiness.random;
        const int month = MonthNumber(day);
        const Supply supply = SomeSupply();
        const Place* first = PickOwn(objBusiness, "", supply, month, false);
        if (first == nullptr)
            return;
        std::vector<const Place*> places = {first};
        for (int more = LineCount(random) - 1; more > 0; --more)
            AddOther(places, PickOwn(objBusiness, first->warehouse->code, supply, month, false));

        const Document document = objBusiness.books.NewDocument(
            HeadOf(objBusiness, *kind.in, day, *first, first->warehouse->department));
        for (const Place* place : places) {
            LineEntry entry;
            entry.place = place;
            entry.quantity = PartOfLot(random, *place, kind.least, kind.most);
            entry.amount = PurchaseCost(random, *place, entry.quantity, month);
            Receive(objBusiness, document, entry, day);
        }
    }

    void TakeAway(const Kind& kind, sys_days day)
    {
        Random& random = objBusiness.random;
        const Place* first = PickStocked("", day);
        if (first == nullptr)
            return;
        std::vector<const Place*> places = {first};
        for (int more = LineCount(random) - 1; more > 0; --more)
            AddOther(places, PickStocked(first->warehouse->code, day));

        const Document document = objBusiness.books.NewDocument(
            HeadOf(objBusiness, *kind.out, day, *first, first->warehouse->department));
        const bool posted = !IsHeldBack(random, day);
        for (const Place* place : places)
            Issue(objBusiness, document, *place, SomeThere(kind, *place), day, posted);
    }

    void Transfer(const Kind& kind, sys_days day)
    {
        std::vector<Passage> passages;
        std::vector<const Place*> places;
        for (int lines = LineCount(objBusiness.random); lines > 0; --lines) {
            Passage passage;
            passage.from = PickStocked(places.empty() ? "" : places.front()->warehouse->code, day);
            if (passage.from == nullptr)
                continue;
            passage.to = places.empty()
                             ? HigherSibling(*passage.from, day)
                             : objBusiness.stock.Sibling(*passage.from, passages.front().to->warehouse->code);
            if (passage.to == nullptr || passage.to->firstMonth > MonthNumber(day) ||
                !AddOther(places, passage.from))
                continue;
            passage.quantity = passage.quantityIn = SomeThere(kind, *passage.from);
            passages.push_back(passage);
        }
        Pass(kind, passages, day);
    }

    // The same goods in a warehouse with a higher code, null if they lie in none: the books cost the pools of
    // goods in this order, so that what a pool gives to another is known when that is costed.
    const Place* HigherSibling(const Place& place, sys_days day)
    {
        std::vector<const Place*> siblings;
        for (const Warehouse& warehouse : objBusiness.company.warehouses) {
            if (!warehouse.inCost || warehouse.code <= place.warehouse->code)
                continue;
            const Place* sibling = objBusiness.stock.Sibling(place, warehouse.code);
            if (sibling != nullptr && sibling->firstMonth <= MonthNumber(day))
                siblings.push_back(sibling);
        }
        if (siblings.empty())
            return nullptr;
        return siblings[static_cast<std::size_t>(
            objBusiness.random.Between(0, static_cast<std::int64_t>(siblings.size()) - 1))];
    }

    // One item becomes another, which is worth about as much. The other's pool comes later, however the
    // company values stock: it is further on in the list of items and in a warehouse with a higher code.
    void Convert(const Kind& kind, sys_days day)
    {
        for (int look = 0; look < kLooks; ++look) {
            Passage passage;
            passage.from = PickOwn(objBusiness, "", Supply::Bought, MonthNumber(day), true);
            passage.to = PickOwn(objBusiness, "", SomeSupply(), MonthNumber(day), false);
            if (passage.from == nullptr || passage.to == nullptr || passage.to->item <= passage.from->item ||
                passage.to->warehouse->code <= passage.from->warehouse->code ||
                passage.to->item->warehouses.front() < passage.from->item->warehouses.front())
                continue;
            const Item& item = *passage.from->item;
            const std::int64_t most = SomeThere(kind, *passage.from);
            const std::int64_t worth = AmountOf(most, item.price);
            passage.quantityIn = WholeSteps(*passage.to->item, Share(worth, 100, passage.to->item->price));
            const std::int64_t needed = Share(passage.quantityIn, passage.to->item->price, item.price);
            passage.quantity = std::min(WholeSteps(item, needed), most);
            if (passage.quantityIn == 0 || passage.quantity == 0)
                continue;
            Pass(kind, {passage}, day);
            return;
        }
    }

    void Pass(const Kind& kind, const std::vector<Passage>& passages, sys_days day)
    {
        Books& books = objBusiness.books;
        if (passages.empty() || IsLedgerEnding(books, 2 * static_cast<int>(passages.size())))
            return;
        const Place& from = *passages.front().from;
        const Place& to = *passages.front().to;
        const Document out =
            books.NewDocument(HeadOf(objBusiness, *kind.out, day, from, from.warehouse->department));
        Document head = HeadOf(objBusiness, *kind.in, day, to, to.warehouse->department);
        head.day = out.day;
        const Document in = books.NewDocument(head);
        const bool posted = books.CanPost();

        for (const Passage& passage : passages) {
            LineEntry outEntry;
            outEntry.place = passage.from;
            outEntry.quantity = passage.quantity;
            LineEntry inEntry;
            inEntry.place = passage.to;
            inEntry.quantity = passage.quantityIn;
            // What it costs is told by the ledger; until then the plan stands in.
            inEntry.amount = AmountOf(passage.quantityIn, passage.to->item->price);
            const std::int32_t outLine = books.AddLine(out, outEntry);
            const std::int32_t inLine = books.AddLine(in, inEntry);
            objBusiness.stock.Take(*passage.from, passage.quantity);
            objBusiness.stock.Put(*passage.to, passage.quantityIn);
            if (!posted)
                continue;
            StockEntry outRow = RowOf(out, outLine, *passage.from, day);
            outRow.quantity = passage.quantity;
            StockEntry inRow = RowOf(in, inLine, *passage.to, day);
            inRow.quantity = passage.quantityIn;
            inRow.costOf = books.Post(outRow);
            books.Post(inRow);
        }
    }

    Rota objRota;
};

}  // namespace

std::unique_ptr<Activity> MakeWarehousing(Business& business)
{
    return std::make_unique<Warehousing>(business);
}

}  // namespace kavelin::demo
