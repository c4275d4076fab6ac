// Receipts that are in the ledger at an estimated cost until their invoice comes.
//
// What the invoice does to the ledger depends on the account's method. A line of 100 pieces, received in
// March at an estimate of 1,000; in May the invoice comes, 30 pieces at 330; `e` is an estimate row (flag 1):
//
//   ArrivalDifference   March  01e +100  1,000    May  20  the difference 30
//   ArrivalReversal     March  01e +100  1,000    May  24e -100 -1,000, 30 +30 330, 30e +70 700
//   MonthReversal       March  01e +100  1,000    April, May, June ... first day  24e -100 -1,000
//                                                 last day                        30e +100 1,000
//                       In May between the two  30 +30 330; then 70 pieces are brought back and taken out.
#pragma once

#include "demo/events/Activity.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <vector>

namespace kavelin::demo {

class Estimates {
  public:
    // The books get what `method` wants. `business` must outlive the estimates.
    Estimates(Business& business, EstimateMethod method) : objBusiness(business), objMethod(method) {}

    // Receives goods at the estimated cost of the entry; the line then waits for its invoice. While no row can
    // be posted it is a line of the document and no more.
    void Receive(const Document& document, const LineEntry& entry, std::chrono::sys_days day);

    // A receipt of the December before whose invoice has not come: writes the document, notes it in the
    // ledger and waits. The goods are among the openings. `type` has the ledger type 33; of subcontracted
    // work material is `materialPercent` of the cost. Does nothing for a place that holds no goods.
    void BringForward(const DocumentType& type, const Party& vendor, const Place& place,
                      int materialPercent = 0);

    void BeginMonth(std::chrono::sys_days day);
    void EndMonth(std::chrono::sys_days day);

    // Books the invoices of a few lines that are due. False if there was none, or no row left for them.
    bool Settle(std::chrono::sys_days day);

  private:
    struct Line {
        Document receipt;
        std::int32_t number = 0;
        const Place* place = nullptr;
        // What is still open, and its estimate.
        std::int64_t quantity = 0, cost = 0, materialFee = 0, processFee = 0;
        bool inParts = false;
        bool asEstimated = false;  // the invoice tells no other price
        bool takenOut = false;     // by the reversal of this month
    };

    // What one invoice tells about a line.
    struct Invoice {
        std::int64_t quantity, estimate, materialFee, processFee;  // of the estimate
        std::int64_t amount;                                       // with the material fee
    };

    void Add(const Document& receipt, std::int32_t line, const LineEntry& entry, std::chrono::sys_days day);
    bool CanSettle(const Line& line) const;
    Invoice NextInvoice(const Line& line);
    void Book(Line& line, const Invoice& invoice, std::chrono::sys_days day);
    void BookDifference(const Line& line, const Invoice& invoice, std::chrono::sys_days day);
    void BookSettled(const Line& line, const Invoice& invoice, std::chrono::sys_days day);
    // What is open of the line, out of the ledger (24) or back into it (30).
    void TakeOut(const Line& line, std::chrono::sys_days day);
    void BringBack(const Line& line, std::chrono::sys_days day);
    void Wait(Line line, std::chrono::sys_days day, bool furtherPart);

    Business& objBusiness;
    EstimateMethod objMethod;
    // By the day on which the next invoice comes.
    std::map<std::chrono::sys_days, std::vector<Line>> dicLines;
    std::int32_t lngAdded = 0;
};

}  // namespace kavelin::demo
