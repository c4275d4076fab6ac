// The values of one column, packed.
#pragma once

#include "database/odbc/ColumnPlan.h"
#include "frame/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::odbc {

// A hundred thousand rows of a hundred columns take some hundred megabytes this way, and several times that
// as values of their own. Each row is added by the function that its storage names.
class ResultColumn {
  public:
    explicit ResultColumn(Storage storage) : enmStorage(storage) {}

    void AddNull();
    void AddWhole(std::int64_t whole);  // bits and integers
    void AddReal(double real);
    void AddDecimal(const Decimal& decimal);
    void AddDate(DateTime date);
    void AddText(std::string_view text);  // binary data as well, already written out

    Value Get(std::size_t row) const;

  private:
    Storage enmStorage;
    std::vector<bool> lstNulls;
    std::vector<std::int64_t> lstWhole;  // dates as milliseconds among them
    std::vector<double> lstReal;
    std::vector<Int128> lstUnscaled;
    std::vector<std::uint8_t> lstScales;
    std::string strTexts;
    std::vector<std::size_t> lstEnds;  // of each row's text within strTexts
};

}  // namespace kavelin::odbc
