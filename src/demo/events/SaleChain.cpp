#include "demo/events/SaleChain.h"

#include "demo/events/Office.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

constexpr int kOtherNamePercent = 15;
constexpr int kAtHomePercent = 65;  // of the sales come from the warehouse of finished goods
constexpr std::size_t kSoldKept = 32;

const Place* PickGoods(Business& business, std::string_view warehouse, int month)
{
    return PickOwn(business, warehouse, SoldGoods(business.profile), month, true);
}

// What the next invoice takes of a line: all that is open, or an even part of it in whole steps.
std::int64_t NextPart(const SaleLine& line, int parts)
{
    const std::int64_t part = WholeSteps(*line.place->item, line.open / parts);
    return part == 0 ? line.open : part;
}

const DocumentType& InvoiceOf(const Sale& sale)
{
    if (sale.plan.back)
        return sale.plan.otherInvoice ? sale.types->otherCredit : sale.types->credit;
    return sale.plan.otherInvoice ? sale.types->otherInvoice : sale.types->invoice;
}

int PartsOf(Random& random, Invoicing invoicing)
{
    switch (invoicing) {
        case Invoicing::InParts: return static_cast<int>(random.Between(2, 3));
        case Invoicing::OnePartOnly: return 2;
        case Invoicing::Whole:
        case Invoicing::Never: break;
    }
    return 1;
}

}  // namespace

const Party* CustomerOf(Random& random, const SaleKind& kind)
{
    const std::int64_t last = static_cast<std::int64_t>(kind.customers.size()) - 1;
    return OneOfClass(random, Customers(), kind.customers[static_cast<std::size_t>(random.Between(0, last))]);
}

void SaleChain::Begin(sys_days day, SalePlan plan)
{
    Sale sale;
    plan.back = plan.back && ChooseReturns(sale);
    if (!plan.back)
        sale = ChooseGoods(MonthNumber(day));
    if (sale.lines.empty())
        return;

    sale.plan = plan;
    sale.parts = PartsOf(objBusiness.random, plan.invoicing);
    sale.issued = objKind.posting == SaleDocument::Dispatch;
    WriteDispatch(day, std::move(sale));
}

bool SaleChain::Continue(sys_days day)
{
    const auto first = dicDue.begin();
    if (first == dicDue.end() || first->first > day)
        return false;
    Sale sale = std::move(first->second);
    dicDue.erase(first);

    // Goods can leave transit only when the issue note has brought them there; an issue note of an export
    // names no invoice.
    const bool invoiceFirst = sale.plan.invoiceFirst && !objKind.inTransit &&
                              sale.types->invoice.kind == DocumentKind::SaleInvoice &&
                              sale.lines.front().invoiceLine == 0;
    if (sale.issued || invoiceFirst)
        WriteInvoice(day, std::move(sale));
    else
        WriteIssue(day, std::move(sale));
    return true;
}

void SaleChain::Await(Sale sale, sys_days due)
{
    dicDue.emplace(due, std::move(sale));
}

// Goods of one warehouse, since a document has one.
Sale SaleChain::ChooseGoods(int month)
{
    Random& random = objBusiness.random;
    Sale sale;
    const Place* first = PickGoods(objBusiness, random.Chance(kAtHomePercent) ? "02" : "", month);
    if (first == nullptr)
        return sale;
    std::vector<const Place*> places = {first};
    for (int more = LineCount(random) - 1; more > 0; --more)
        AddOther(places, PickGoods(objBusiness, first->warehouse->code, month));

    for (const Place* place : places)
        if (const std::int64_t quantity = objBusiness.stock.SomeOf(random, *place); quantity > 0)
            sale.lines.push_back({.place = place, .quantity = quantity, .open = quantity});
    return sale;
}

// A part of the goods of a sale that was posted. Each sale is returned from once at most.
bool SaleChain::ChooseReturns(Sale& sale)
{
    if (arrSold.empty())
        return false;
    Random& random = objBusiness.random;
    const auto chosen = arrSold.begin() + random.Between(0, static_cast<std::int64_t>(arrSold.size()) - 1);
    sale = std::move(*chosen);
    arrSold.erase(chosen);

    constexpr std::size_t kMostLines = 2;
    sale.lines.resize(std::min(sale.lines.size(), kMostLines));
    sale.issued = sale.posted = false;
    for (SaleLine& line : sale.lines) {
        const Item& item = *line.place->item;
        const std::int64_t back = WholeSteps(item, line.quantity * random.Between(20, 50) / 100);
        const std::int64_t quantity = -std::min(std::max(back, item.step), line.quantity);
        line = {.place = line.place, .quantity = quantity, .open = quantity};
    }
    return true;
}

void SaleChain::WriteDispatch(sys_days day, Sale sale)
{
    Random& random = objBusiness.random;
    const bool posted = objKind.posting == SaleDocument::Dispatch && MayPost(day, sale.lines.size());
    // While a dispatch note waits to be posted the journal finds it by the usual name of its business alone.
    if (objKind.posting == SaleDocument::Dispatch && !posted)
        sale.types = objKind.types;
    if (sale.types == nullptr)
        sale.types = objKind.byOtherName != nullptr && random.Chance(kOtherNamePercent) ? objKind.byOtherName
                                                                                        : objKind.types;
    if (!sale.plan.back) {
        sale.head =
            HeadOf(objBusiness, sale.types->dispatch, day, *sale.lines.front().place, kSalesDepartment);
        sale.head.customer = CustomerOf(random, objKind);
        sale.head.order = objBusiness.books.NewOrder();
    }

    const Document document =
        Write(sale.plan.back ? sale.types->dispatchBack : sale.types->dispatch, day, sale);
    for (SaleLine& line : sale.lines) {
        LineEntry entry;
        entry.place = line.place;
        entry.quantity = line.quantity;
        line.dispatchLine = objBusiness.books.AddLine(document, entry);
        if (!sale.plan.back)
            objBusiness.stock.Take(*line.place, line.quantity);
        if (posted)
            Post(document, line.dispatchLine, line, line.quantity, day);
    }
    sale.posted = posted;

    if (posted)
        Remember(sale);
    if (sale.issued)
        AwaitInvoice(day, std::move(sale));
    else
        Await(std::move(sale), day + days(random.Between(0, 3)));
}

void SaleChain::WriteIssue(sys_days day, Sale sale)
{
    const bool posted = objKind.posting == SaleDocument::Issue && MayPost(day, sale.lines.size());
    const Document document = Write(sale.plan.back ? sale.types->issueBack : sale.types->issue, day, sale);
    for (SaleLine& line : sale.lines) {
        LineEntry entry;
        entry.place = line.place;
        entry.quantity = line.quantity;
        entry.dispatchLine = line.dispatchLine;
        entry.invoiceLine = line.invoiceLine;
        line.issueLine = objBusiness.books.AddLine(document, entry);
        if (posted)
            Post(document, line.issueLine, line, line.quantity, day);
    }
    sale.issued = true;
    sale.posted = posted;

    if (posted)
        Remember(sale);
    AwaitInvoice(day, std::move(sale));
}

void SaleChain::WriteInvoice(sys_days day, Sale sale)
{
    const DocumentType& type = InvoiceOf(sale);
    const bool fromStock = objKind.posting == SaleDocument::Invoice && MayPost(day, sale.lines.size());
    const bool fromTransit = objKind.inTransit && sale.posted && MayPost(day, 1);

    const Document document = Write(type, day, sale);
    for (SaleLine& line : sale.lines) {
        const std::int64_t quantity = NextPart(line, sale.parts);
        if (quantity == 0)
            continue;
        LineEntry entry;
        entry.place = line.place;
        entry.quantity = quantity;
        (type.kind == DocumentKind::ExportInvoice ? entry.consignmentLine : entry.dispatchLine) =
            line.dispatchLine;
        line.invoiceLine = objBusiness.books.AddLine(document, entry);
        line.open -= quantity;

        if (fromStock)
            Post(document, line.invoiceLine, line, quantity, day);
        if (fromTransit)
            PostOut(document, sale, line, quantity, day);
    }
    --sale.parts;
    if (fromStock && sale.parts == 0)
        Remember(sale);

    if (!sale.issued)
        Await(std::move(sale), day + days(objBusiness.random.Between(0, 3)));
    else
        AwaitInvoice(day, std::move(sale));
}

// If there is one to come.
void SaleChain::AwaitInvoice(sys_days day, Sale sale)
{
    const bool open = std::ranges::any_of(sale.lines, [](const SaleLine& line) { return line.open != 0; });
    const bool done = sale.plan.invoicing == Invoicing::OnePartOnly && sale.parts < 2;
    if (!open || done || sale.plan.invoicing == Invoicing::Never)
        return;
    const int after = objKind.invoiceAfter;
    Await(std::move(sale), day + days(objBusiness.random.Between(after / 3, after + after / 2)));
}

Document SaleChain::Write(const DocumentType& type, sys_days day, Sale& sale)
{
    const bool first = sale.head.id == 0;
    sale.head.type = &type;
    if (!first)
        sale.head.day = std::max(sale.head.day, DocumentDay(objBusiness.random, day));
    sale.head = objBusiness.books.NewDocument(sale.head);
    return sale.head;
}

bool SaleChain::MayPost(sys_days day, std::size_t rows)
{
    return !IsHeldBack(objBusiness.random, day) && objBusiness.books.CanPost(static_cast<int>(rows));
}

void SaleChain::Post(const Document& document, std::int32_t line, const SaleLine& goods,
                     std::int64_t quantity, sys_days day)
{
    StockEntry row = RowOf(document, line, *goods.place, day);
    row.quantity = quantity;
    const std::int32_t posted = objBusiness.books.Post(row);
    if (quantity < 0)
        objBusiness.stock.Put(*goods.place, -quantity);
    if (!objKind.inTransit)
        return;

    TransitEntry in;
    in.voucherType = in.sourceType = document.type->ledgerType;
    in.sourceLine = in.line = line;
    in.document = document;
    in.dispatchLine = goods.dispatchLine;
    in.place = goods.place;
    in.day = day;
    in.quantity = quantity;
    in.costOf = posted;
    objBusiness.books.PostTransit(in);
    if (quantity > 0)
        objBusiness.transit.Add({document, in.sourceType, line, goods.place});
}

void SaleChain::PostOut(const Document& document, const Sale& sale, const SaleLine& line,
                        std::int64_t quantity, sys_days day)
{
    const bool byIssue = objKind.posting == SaleDocument::Issue;
    const DocumentType& source = byIssue          ? sale.types->issue
                                 : sale.plan.back ? sale.types->dispatchBack
                                                  : sale.types->dispatch;
    TransitEntry out;
    out.voucherType = document.type->ledgerType;
    out.sourceType = source.ledgerType;
    out.sourceLine = byIssue ? line.issueLine : line.dispatchLine;
    out.document = document;
    out.line = line.invoiceLine;
    out.place = line.place;
    out.day = day;
    out.in = false;
    out.quantity = quantity;
    objBusiness.books.PostTransit(out);
}

void SaleChain::Remember(const Sale& sale)
{
    if (sale.plan.back)
        return;
    if (arrSold.size() < kSoldKept)
        arrSold.push_back(sale);
    else
        arrSold[static_cast<std::size_t>(objBusiness.random.Between(0, kSoldKept - 1))] = sale;
}

}  // namespace kavelin::demo
