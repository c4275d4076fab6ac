// Document lines that put goods in transit lately: what an adjustment of goods in transit finds to adjust.
#pragma once

#include "demo/Random.h"
#include "demo/books/Document.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::demo {

struct TransitLine {
    Document document;
    std::string_view sourceType;  // voucher type and line that the goods-in-transit ledger knows it by
    std::int32_t sourceLine = 0;
    const Place* place = nullptr;
};

class TransitLines {
  public:
    // Forgets the oldest beyond some dozens.
    void Add(TransitLine line)
    {
        constexpr std::size_t kKept = 64;
        if (arrLines.size() < kKept)
            arrLines.push_back(std::move(line));
        else
            arrLines[intOldest++ % kKept] = std::move(line);
    }

    // Null if there is none. What it names may have left transit meanwhile.
    const TransitLine* Pick(Random& random) const
    {
        if (arrLines.empty())
            return nullptr;
        return &arrLines[static_cast<std::size_t>(
            random.Between(0, static_cast<std::int64_t>(arrLines.size()) - 1))];
    }

  private:
    std::vector<TransitLine> arrLines;
    std::size_t intOldest = 0;
};

}  // namespace kavelin::demo
