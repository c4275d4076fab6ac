// The planned prices, Demo_PlannedPrice.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/CostKeys.h"

namespace kavelin::demo {

// One row an item that some warehouse keeps at planned prices, and a combination of its free items.
void WritePlannedPrices(const CostKeys& keys, RowSink& sink);

}  // namespace kavelin::demo
