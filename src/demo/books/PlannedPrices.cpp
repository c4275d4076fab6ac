#include "demo/books/PlannedPrices.h"

#include "demo/books/Valuation.h"

#include <array>
#include <set>
#include <string_view>
#include <utility>

namespace kavelin::demo {

void WritePlannedPrices(const CostKeys& keys, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {"cInvCode", "cFree1", "fInvRCost"};
    RowTable& table = sink.Open("Demo_PlannedPrice", kColumns);

    std::set<std::pair<std::string_view, std::string_view>> written;
    for (const CostKey& key : keys.All())
        if (IsPlanned(key.method) && written.emplace(key.item->code, key.colour).second)
            table.Add(std::array<Value, 3>{key.item->code, key.colour,
                                           static_cast<double>(key.item->price) / 100.0});
}

}  // namespace kavelin::demo
