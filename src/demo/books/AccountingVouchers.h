// The accounting vouchers that documents lead to, gl_AccVouch.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/Document.h"
#include "frame/Value.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace kavelin::demo {

class AccountingVouchers {
  public:
    // The sink outlives the vouchers.
    explicit AccountingVouchers(RowSink& sink);

    // Vouchers are numbered anew. In month 0 there are none.
    void OpenMonth(int month);

    // The link cPZID of a row of the document in this month: one voucher a document, whose row is written
    // when it is first asked for. Null for the documents, about one in seven, whose voucher is still to be
    // made.
    Value OfCost(const Document& document, std::string_view voucherType);
    // The same of cost differences, cDifPZID; about half of the documents have one.
    Value OfDifferences(const Document& document, std::string_view voucherType);

  private:
    struct Series {
        std::unordered_map<std::int32_t, std::int32_t> numbers;  // by document
        std::int32_t last = 0;
    };

    Value Link(Series& series, std::string_view module, const Document& document,
               std::string_view voucherType);
    void Write(std::string_view link, bool receives, std::string_view voucherType, std::string_view module);

    RowTable& objTable;
    int intMonth = 0;
    Series objCosts;
    Series objDifferences;
    std::array<std::int32_t, 2> arrWords{};  // last number of each voucher word
    std::array<Value, 6> arrRow;
};

}  // namespace kavelin::demo
