#include "demo/events/Estimates.h"

#include "demo/events/Office.h"

#include <algorithm>
#include <iterator>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr int kLinesOfAnInvoice = 4;
constexpr sys_days kNever{year(9999) / January / 1};

constexpr int kNeverPercent = 4;
constexpr int kInPartsPercent = 24;
constexpr int kAsEstimatedPercent = 15;

}  // namespace

void Estimates::Receive(const Document& document, const LineEntry& entry, sys_days day)
{
    constexpr int kEstimate = 1;
    const bool posted = objBusiness.books.CanPost();
    const std::int32_t line = demo::Receive(objBusiness, document, entry, day, kEstimate);
    if (posted)
        Add(document, line, entry, day);
}

void Estimates::Add(const Document& receipt, std::int32_t line, const LineEntry& entry, sys_days day)
{
    Random& random = objBusiness.random;
    Line open;
    open.receipt = receipt;
    open.number = line;
    open.place = entry.place;
    open.quantity = entry.quantity;
    open.cost = entry.amount;
    open.materialFee = entry.materialFee;
    open.processFee = entry.processFee;

    // The first few show every course that things may take.
    const std::int32_t number = lngAdded++;
    const bool shown = number < 4;
    open.inParts = shown ? number == 0 : random.Chance(kInPartsPercent);
    open.asEstimated = shown ? number == 1 : random.Chance(kAsEstimatedPercent);
    if (shown ? number == 2 : random.Chance(kNeverPercent))
        dicLines[kNever].push_back(open);
    else
        Wait(open, day, false);
}

void Estimates::BringForward(const DocumentType& type, const Party& vendor, const Place& place,
                             int materialPercent)
{
    const sys_days day =
        sys_days(year(kLedgerYear - 1) / December / 17) + days(objBusiness.random.Between(0, 4));
    const std::int64_t onHand = objBusiness.stock.OnHand(place);
    const std::int64_t quantity =
        std::min(PartOfLot(objBusiness.random, place, 10, 40), WholeSteps(*place.item, onHand));
    if (quantity == 0 || !objBusiness.books.CanPost())
        return;

    LineEntry entry;
    entry.place = &place;
    entry.quantity = quantity;
    entry.amount = PurchaseCost(objBusiness.random, place, quantity, 0);
    entry.materialFee = entry.amount * materialPercent / 100;
    entry.processFee = materialPercent == 0 ? 0 : entry.amount - entry.materialFee;

    Document head = HeadOf(objBusiness, type, day, place, kPurchasingDepartment);
    head.vendor = &vendor;
    head.order = objBusiness.books.NewOrder();
    const Document document = objBusiness.books.NewDocument(head);
    const std::int32_t line = objBusiness.books.AddLine(document, entry);

    StockEntry row = RowOf(document, line, place, day);
    row.sourceType = type.voucherType;
    row.flag = 1;
    row.quantity = quantity;
    row.cost = entry.amount;
    row.materialFee = entry.materialFee;
    row.processFee = entry.processFee;
    row.revaluesOnly = true;
    objBusiness.books.Post(row);
    Add(document, line, entry, sys_days(year(kLedgerYear - 1) / December / 31));
}

// When the invoice of the line comes, or after a part the next one.
void Estimates::Wait(Line line, sys_days day, bool furtherPart)
{
    sys_days due = day + days(objBusiness.random.Between(4, 45));
    // The report adds up reversals by month: a line is reversed once a month at most. At the start of the
    // month it is reversed whether its invoice comes or not, but not yet in the month of receipt.
    const bool waitsForMonth = objMethod == EstimateMethod::ArrivalReversal ? furtherPart
                               : objMethod == EstimateMethod::MonthReversal ? !line.takenOut
                                                                            : false;
    if (waitsForMonth)
        due = std::max(due, FirstOfNextMonth(day));
    dicLines[due].push_back(line);
}

void Estimates::BeginMonth(sys_days day)
{
    if (objMethod != EstimateMethod::MonthReversal)
        return;
    for (auto& [due, lines] : dicLines)
        for (Line& line : lines) {
            if (!objBusiness.books.CanPost())
                return;
            TakeOut(line, day);
            line.takenOut = true;
        }
}

void Estimates::EndMonth(sys_days day)
{
    for (auto& [due, lines] : dicLines)
        for (Line& line : lines) {
            if (!line.takenOut || !objBusiness.books.CanPost())
                continue;
            BringBack(line, day);
            line.takenOut = false;
        }
}

bool Estimates::CanSettle(const Line& line) const
{
    switch (objMethod) {
        case EstimateMethod::ArrivalReversal: return objBusiness.books.CanPost(line.inParts ? 3 : 2);
        case EstimateMethod::MonthReversal: return line.takenOut && objBusiness.books.CanPost();
        case EstimateMethod::ArrivalDifference: return objBusiness.books.CanPost();
    }
    return false;
}

bool Estimates::Settle(sys_days day)
{
    int settled = 0;
    while (settled < kLinesOfAnInvoice && !dicLines.empty() && dicLines.begin()->first <= day) {
        std::vector<Line>& due = dicLines.begin()->second;
        if (!CanSettle(due.back()))
            return settled > 0;
        Line line = due.back();
        due.pop_back();
        if (due.empty())
            dicLines.erase(dicLines.begin());

        Book(line, NextInvoice(line), day);
        if (line.quantity > 0)
            Wait(line, day, true);
        ++settled;
    }
    return settled > 0;
}

Estimates::Invoice Estimates::NextInvoice(const Line& line)
{
    Random& random = objBusiness.random;
    std::int64_t quantity = line.quantity;
    if (line.inParts) {
        const std::int64_t part = WholeSteps(*line.place->item, quantity * random.Between(30, 70) / 100);
        if (part > 0)
            quantity = part;
    }

    Invoice invoice;
    invoice.quantity = quantity;
    invoice.estimate = Share(line.cost, quantity, line.quantity);
    invoice.materialFee = Share(line.materialFee, quantity, line.quantity);
    invoice.processFee = line.processFee == 0 ? 0 : invoice.estimate - invoice.materialFee;
    invoice.amount = invoice.estimate;
    if (!line.asEstimated) {
        // The fee is known; only the rest was estimated.
        const std::int64_t estimated = invoice.estimate - invoice.materialFee;
        invoice.amount += estimated * random.Between(-50, 70) / 1000;
    }
    return invoice;
}

void Estimates::Book(Line& line, const Invoice& invoice, sys_days day)
{
    if (objMethod == EstimateMethod::ArrivalReversal)
        TakeOut(line, day);
    if (objMethod == EstimateMethod::ArrivalDifference)
        BookDifference(line, invoice, day);
    else
        BookSettled(line, invoice, day);

    line.quantity -= invoice.quantity;
    line.cost -= invoice.estimate;
    line.materialFee -= invoice.materialFee;
    line.processFee -= invoice.processFee;
    line.inParts = false;
    if (objMethod == EstimateMethod::ArrivalReversal && line.quantity > 0)
        BringBack(line, day);
}

void Estimates::BookDifference(const Line& line, const Invoice& invoice, sys_days day)
{
    StockEntry row = RowOf(line.receipt, line.number, *line.place, day);
    row.voucherType = "20";
    row.sourceType = line.receipt.type->voucherType;
    row.businessType = "暂估报销";
    row.flag = 2;
    row.cost = invoice.amount - invoice.estimate;
    row.settlement = objBusiness.books.AddSettlement(invoice.quantity, invoice.amount, invoice.materialFee);
    objBusiness.books.Post(row);
}

void Estimates::BookSettled(const Line& line, const Invoice& invoice, sys_days day)
{
    StockEntry row = RowOf(line.receipt, line.number, *line.place, day);
    row.voucherType = "30";
    row.sourceType = line.receipt.type->voucherType;
    row.quantity = invoice.quantity;
    row.cost = invoice.amount;
    row.materialFee = invoice.materialFee;
    row.processFee = line.processFee == 0 ? 0 : invoice.amount - invoice.materialFee;
    row.settlement = objBusiness.books.AddSettlement(invoice.quantity, invoice.amount, invoice.materialFee);
    objBusiness.books.Post(row);
}

void Estimates::TakeOut(const Line& line, sys_days day)
{
    StockEntry row = RowOf(line.receipt, line.number, *line.place, day);
    row.voucherType = "24";
    row.sourceType = line.receipt.type->voucherType;
    row.flag = 1;
    row.quantity = -line.quantity;
    row.cost = -line.cost;
    row.materialFee = -line.materialFee;
    row.processFee = -line.processFee;
    objBusiness.books.Post(row);
}

void Estimates::BringBack(const Line& line, sys_days day)
{
    StockEntry row = RowOf(line.receipt, line.number, *line.place, day);
    row.voucherType = "30";
    row.sourceType = line.receipt.type->voucherType;
    row.flag = 1;
    row.quantity = line.quantity;
    row.cost = line.cost;
    row.materialFee = line.materialFee;
    row.processFee = line.processFee;
    objBusiness.books.Post(row);
}

}  // namespace kavelin::demo
