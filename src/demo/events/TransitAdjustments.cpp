#include "demo/events/TransitAdjustments.h"

#include "demo/company/RdStyles.h"
#include "demo/events/Office.h"

namespace kavelin::demo {

namespace {

// An adjustment takes over the business of the goods that it adjusts.
constexpr DocumentType DebitOf(std::string_view business)
{
    return {DocumentKind::Adjustment, "65", "65", business, kRdAdjustmentIn, "FJ", "", "", "调整", true};
}

constexpr DocumentType CreditOf(std::string_view business)
{
    return {DocumentKind::Adjustment, "66", "66", business, kRdAdjustmentOut, "FD", "", "", "调整", false};
}

struct Types {
    std::string_view business;
    DocumentType debit, credit;
};

constexpr Types TypesOf(std::string_view business)
{
    return {business, DebitOf(business), CreditOf(business)};
}

constexpr Types kTypes[] = {TypesOf("普通销售"), TypesOf("委托代销"), TypesOf("委托"), TypesOf("分期收款")};

const Types& TypesFor(const Document& document)
{
    for (const Types& types : kTypes)
        if (types.business == document.type->businessType)
            return types;
    return kTypes[0];
}

struct Side {
    bool debit;
    int weight;
};

constexpr Side kSides[] = {{true, 55}, {false, 45}};

class TransitAdjustments : public Activity {
  public:
    explicit TransitAdjustments(Business& business) : Activity(business), objRota(kSides) {}

    int Weight() const override { return 1; }

    void Act(std::chrono::sys_days day) override
    {
        const TransitLine* line = PickOpen();
        if (line == nullptr || !objBusiness.books.CanPost())
            return;
        const std::int64_t quantity = objBusiness.books.QuantityInTransit(line->sourceType, line->sourceLine);
        const std::int64_t worth = AmountOf(quantity, line->place->item->price);
        const Types& types = TypesFor(line->document);
        const bool debit = kSides[objRota.Next(objBusiness.random)].debit;

        Document document = line->document;
        document.type = debit ? &types.debit : &types.credit;
        document.day = DocumentDay(objBusiness.random, day);
        document = objBusiness.books.NewDocument(document);

        LineEntry entry;
        entry.place = line->place;
        // Little beside what the goods are worth, so that several credits don't use it up.
        entry.amount = 1 + worth * objBusiness.random.Between(2, 15) / 1000;

        TransitEntry row;
        row.voucherType = document.type->ledgerType;
        row.sourceType = line->sourceType;
        row.sourceLine = line->sourceLine;
        row.document = document;
        row.line = objBusiness.books.AddLine(document, entry);
        row.place = line->place;
        row.day = day;
        row.in = debit;
        row.cost = entry.amount;
        objBusiness.books.PostTransit(row);
    }

  private:
    // Null if nothing that is still in transit was found in a few tries.
    const TransitLine* PickOpen()
    {
        for (int tries = 0; tries < 12; ++tries) {
            const TransitLine* line = objBusiness.transit.Pick(objBusiness.random);
            if (line != nullptr &&
                objBusiness.books.QuantityInTransit(line->sourceType, line->sourceLine) > 0)
                return line;
        }
        return nullptr;
    }

    Rota objRota;
};

}  // namespace

std::unique_ptr<Activity> MakeTransitAdjustments(Business& business)
{
    return std::make_unique<TransitAdjustments>(business);
}

}  // namespace kavelin::demo
