// The rows behind the area table: a sample of the ledger, with an item and a warehouse that nobody knows,
// and the area that a user has chosen from it.
#pragma once

#include "demo/LedgerLine.h"
#include "demo/RowSink.h"

#include <array>
#include <vector>

namespace kavelin::demo {

class AreaSample {
  public:
    // Takes the line into the sample if it is one of those wanted.
    void Look(const LedgerLine& line);

    // ia_data_subsidiary and ia_accountarea.
    void Write(RowSink& sink) const;

  private:
    static constexpr std::size_t kColumnCount = 9;
    std::vector<std::array<Value, kColumnCount>> arrRows;
};

}  // namespace kavelin::demo
