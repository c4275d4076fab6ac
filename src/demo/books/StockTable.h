// The rows of IA_Subsidiary.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/StockRow.h"
#include "frame/Value.h"

#include <cstdint>
#include <memory>

namespace kavelin::demo {

// A row of the ledger with what it gets when it is written.
struct StockLine {
    std::int32_t autoId;
    int month;
    const StockRow& row;
    const Document& head;
    Value voucher;  // cPZID
};

class StockTable {
  public:
    // The sink outlives the table.
    explicit StockTable(RowSink& sink);
    ~StockTable();

    void Write(const StockLine& line);

  private:
    class Writer;
    std::unique_ptr<Writer> objWriter;
};

}  // namespace kavelin::demo
