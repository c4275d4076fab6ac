// Sales of one kind on their way through their documents: goods are dispatched, an issue note follows where
// one is written, then the invoice or several of them.
//
// The goods leave the shelf at once, the ledger follows with the document that posts the sale. Goods that
// come back are put on the shelf only when the ledger has them, so that it never holds less than the shelf.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/SaleKind.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <vector>

namespace kavelin::demo {

enum class Invoicing { Whole, InParts, OnePartOnly, Never };

// How a sale is meant to go.
struct SalePlan {
    Invoicing invoicing = Invoicing::Whole;
    bool back = false;          // goods of an earlier sale come back
    bool otherInvoice = false;  // an invoice or credit note of the other type
    bool invoiceFirst = false;  // before the issue note, where nothing speaks against it
};

struct SaleLine {
    const Place* place = nullptr;
    std::int64_t quantity = 0;  // negative for goods that come back
    std::int64_t open = 0;      // not yet invoiced
    std::int32_t dispatchLine = 0, issueLine = 0, invoiceLine = 0;
};

struct Sale {
    const SaleTypes* types = nullptr;
    SalePlan plan;
    Document head;  // its latest document
    std::vector<SaleLine> lines;
    bool issued = false;  // its issue note is written, or it gets none
    bool posted = false;  // by its dispatch or issue note
    int parts = 1;        // invoices still to come
};

// One of the customers that buy in this way.
const Party* CustomerOf(Random& random, const SaleKind& kind);

class SaleChain {
  public:
    SaleChain(Business& business, const SaleKind& kind) : objBusiness(business), objKind(kind) {}

    // Whether there is a sale that goods could come back from.
    bool HasSold() const { return !arrSold.empty(); }

    // A dispatch note. Of goods of an earlier sale if the plan says so and there is one, else of goods in
    // stock. Does nothing without any.
    void Begin(std::chrono::sys_days day, SalePlan plan);

    // The next document of the sale that is longest due; false if none is.
    bool Continue(std::chrono::sys_days day);

    // Takes a sale on that has its documents up to here.
    void Await(Sale sale, std::chrono::sys_days due);

  private:
    Sale ChooseGoods(int month);
    bool ChooseReturns(Sale& sale);
    void WriteDispatch(std::chrono::sys_days day, Sale sale);
    void WriteIssue(std::chrono::sys_days day, Sale sale);
    void WriteInvoice(std::chrono::sys_days day, Sale sale);
    void AwaitInvoice(std::chrono::sys_days day, Sale sale);

    // The next document of the sale.
    Document Write(const DocumentType& type, std::chrono::sys_days day, Sale& sale);
    bool MayPost(std::chrono::sys_days day, std::size_t rows);
    // Posts a line with what it takes out of stock, and into transit if the kind says so.
    void Post(const Document& document, std::int32_t line, const SaleLine& goods, std::int64_t quantity,
              std::chrono::sys_days day);
    // Posts what an invoice line takes out of transit.
    void PostOut(const Document& document, const Sale& sale, const SaleLine& line, std::int64_t quantity,
                 std::chrono::sys_days day);
    void Remember(const Sale& sale);

    Business& objBusiness;
    SaleKind objKind;
    std::multimap<std::chrono::sys_days, Sale> dicDue;
    std::vector<Sale> arrSold;  // some that goods may come back from
};

}  // namespace kavelin::demo
