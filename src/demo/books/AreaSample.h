// The rows behind the area table: a sample of the ledger, with an item and a warehouse that nobody knows, and
// the area that a user has chosen from it.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/StockRow.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kavelin::demo {

class AreaSample {
  public:
    // Takes the row into the sample if it is one of those wanted.
    void Look(std::int32_t autoId, const StockRow& row);

    // ia_data_subsidiary and ia_accountarea.
    void Write(RowSink& sink) const;

  private:
    static constexpr std::size_t kColumnCount = 9;
    std::vector<std::array<Value, kColumnCount>> arrRows;
};

}  // namespace kavelin::demo
