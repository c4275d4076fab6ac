// The inventory ledger: the rows of the open month, their costs, and IA_Subsidiary.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/AccountingVouchers.h"
#include "demo/books/AreaSample.h"
#include "demo/books/CostKeys.h"
#include "demo/books/Documents.h"
#include "demo/books/Entries.h"
#include "demo/books/MonthSummary.h"
#include "demo/books/StandardCosts.h"
#include "demo/books/StockRow.h"
#include "demo/books/StockTable.h"
#include "demo/books/Valuation.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

namespace kavelin::demo {

class StockLedger {
  public:
    // What a row leads to beside itself. All outlive the ledger.
    struct Companions {
        const CostKeys& keys;
        Documents& documents;
        AccountingVouchers& vouchers;
        StandardCosts& standards;
        MonthSummary& summary;
        AreaSample& sample;
    };

    StockLedger(const Companions& companions, RowSink& sink);

    // Numbers count from 0 in each month.
    std::int32_t Post(const StockEntry& entry);
    std::int64_t Posted() const { return lngPosted; }

    // Fills the costs of all rows posted since the last Write.
    void CostRows();
    // What the row cost, differences included. Throws std::logic_error for a row without a cost.
    std::int64_t CostOf(std::int32_t row) const;

    // What the goods of a key are to be worth less, as of the rows costed.
    Balance Excess(std::int32_t key) const;
    // Posts an issue of the amount and difference alone, for the line of a document.
    void PostTakeOff(std::int32_t key, const Balance& excess, const Document& document, std::int32_t line,
                     std::chrono::sys_days day);

    // Writes the rows of the month and forgets them.
    void Write(int month);

  private:
    enum class Turn : std::uint8_t { Waiting, Begun, Done };

    std::int32_t AddRow(StockRow row, const Document& document);
    void SortByKey();
    void CostKeyRows(std::int32_t key);
    std::int64_t CostFromElsewhere(const StockRow& row) const;

    Companions objWith;
    StockTable objTable;
    std::vector<std::unique_ptr<Valuation>> arrValuations;  // by key
    std::vector<StockRow> arrRows;
    std::vector<Document> arrHeads;
    std::int64_t lngPosted = 0;

    // While rows are costed: their numbers, key by key, where those of each key begin, and the place of each
    // row among those of its key.
    std::vector<std::int32_t> arrByKey;
    std::vector<std::int32_t> arrBegin;
    std::vector<std::int32_t> arrPlaceInKey;
    std::vector<Turn> arrTurns;  // by key
};

}  // namespace kavelin::demo
