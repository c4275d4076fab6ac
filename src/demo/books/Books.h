// The books of the demo company: what the events of a day are written into.
//
// Documents are written as they come. What is posted waits until the month is closed: then issues get their
// cost by the valuation of their goods, goods in transit theirs from the issue that sent them, and all rows
// of the month go out in the order of their posting.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/Document.h"
#include "demo/books/Entries.h"
#include "demo/profiles/Profile.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace kavelin::demo {

class Books {
  public:
    // Writes to `sink`, whose tables of documents and ledgers it opens. `lines` is how many rows the
    // inventory ledger may get. All arguments must outlive the books.
    Books(const Profile& profile, const Company& company, const Stockroom& stock, std::int64_t lines,
          RowSink& sink);
    ~Books();
    Books(const Books&) = delete;
    Books& operator=(const Books&) = delete;

    // ---- documents

    // Gives the head its identifier and number, and the department of its warehouse where stock is valued by
    // it; use what comes back. Of `head` type, day and attributes are used.
    Document NewDocument(const Document& head);
    // The same for a number that is one of an order.
    std::int32_t NewOrder();
    // Adds a line; it is unposted unless Post or PostTransit names it before the month is closed. Gives its
    // identifier, unique over all documents. Throws std::logic_error for a document of a closed month.
    std::int32_t AddLine(const Document& document, const LineEntry& entry);

    // ---- ledgers

    // Whether so many more rows may be posted. Once it is false for one row nothing more is posted, and
    // documents stay as they are.
    bool CanPost(int rows = 1) const;
    std::int64_t Posted() const;

    // Into the inventory ledger. If the entry's voucher type is the ledger type of its document, the line
    // counts as posted from this day on, a memo's from the day of its document, and gets the cost of the row,
    // differences included. Gives a number for `costOf`, valid until the month is closed. Throws
    // std::logic_error if no row may be posted, for a line that is posted already, and for one whose document
    // is of a closed month.
    std::int32_t Post(const StockEntry& entry);

    // Into the goods-in-transit ledger. Marks the line as posted likewise, unless the goods go in now: then
    // the row by which they left the stock has done so. Throws std::logic_error as Post does, for goods going
    // out that are not there, and for an adjustment where nothing is.
    void PostTransit(const TransitEntry& entry);

    // What a source line still has in transit, as of the entries posted so far; below 0 for returns.
    std::int64_t QuantityInTransit(std::string_view sourceType, std::int32_t sourceLine) const;

    // A row of Pursettlevouchs; gives its ID for StockEntry::settlement.
    std::int32_t AddSettlement(std::int64_t quantity, std::int64_t price, std::int64_t materialFee);

    // ---- months

    // Opening rows (month 0) are posted before the first month is opened. Months follow one another; throws
    // std::logic_error else.
    void OpenMonth(int month);
    // Costs and writes the month. What the valuation leaves over that goods can't be worth is posted off by
    // issue adjustments, as long as rows may be posted. With `final` false the month goes on and nothing is
    // adjusted.
    void CloseMonth(bool final);

    // Behind the last month: the monthly summary, the planned prices and the sample for the area table.
    void Finish();

  private:
    struct State;
    std::unique_ptr<State> objState;
};

}  // namespace kavelin::demo
