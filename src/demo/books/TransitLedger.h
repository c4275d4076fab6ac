// The goods-in-transit ledger: the rows of the open month, what each source line has in transit, and
// IA_EnSubsidiary.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/AccountingVouchers.h"
#include "demo/books/CostKeys.h"
#include "demo/books/Documents.h"
#include "demo/books/Entries.h"
#include "demo/books/StandardCosts.h"
#include "demo/books/StockLedger.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kavelin::demo {

class TransitLedger {
  public:
    // All outlive the ledger. `stock` tells what goods cost that leave it.
    struct Companions {
        const CostKeys& keys;
        Documents& documents;
        AccountingVouchers& vouchers;
        StandardCosts& standards;
        const StockLedger& stock;
    };

    TransitLedger(const Companions& companions, RowSink& sink);
    ~TransitLedger();

    void Post(const TransitEntry& entry);
    std::int64_t Quantity(std::int32_t sourceLine) const;

    // Fills the costs of all rows posted since the last Write, those of the stock being known.
    void CostRows();
    // Writes the rows of the month and forgets them, and source lines that have nothing left.
    void Write(int month);

  private:
    class Table;

    struct Row {
        std::string_view voucherType, sourceType, businessType;
        const Place* place = nullptr;
        std::chrono::sys_days day;
        std::int32_t head = 0;
        std::int32_t line = 0;
        std::int32_t sourceLine = 0;
        std::int32_t dispatchLine = 0;
        std::int32_t costOf = kNoRow;
        bool in = true;
        bool known = false;
        bool broughtForward = false;
        bool postsLine = false;
        std::int64_t quantity = 0;  // 0 for an amount alone
        std::int64_t cost = 0;
        std::int64_t leftQuantity = 0;  // at its source line, after the row
        std::int64_t leftAmount = 0;
    };

    struct Source {
        std::int64_t posted = 0;    // quantity, as of the rows posted
        std::int64_t quantity = 0;  // and as of the rows costed
        std::int64_t amount = 0;
    };

    void CostRow(Row& row);
    CostSplit StandardOf(const Row& row) const;

    Companions objWith;
    std::unique_ptr<Table> objTable;
    std::vector<Row> arrRows;
    std::vector<Document> arrHeads;
    std::unordered_map<std::int32_t, Source> dicSources;  // never walked through: its order is nobody's
    std::int32_t lngWritten = 0;
};

}  // namespace kavelin::demo
