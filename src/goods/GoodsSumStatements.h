// The statements of the goods-in-transit summary, in the order in which they run. `strTable` is the work table as
// statements name it. Prefixes of its columns: Q_ opening, R_ received, D_ dispatched, E_ end balance.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin {

// The empty work table, with the ledger's types.
std::string CreateGoodsSumTable(const std::string& strTable);

// The opening of each source line. An empty `strWhere` takes all lines.
std::string InsertGoodsOpening(const std::string& strTable, const std::string& strWhere,
                               std::int32_t lngUnitNumber);

// What each source line received and dispatched in months other than 0; `strWhere` as above.
std::string InsertGoodsMovement(const std::string& strTable, const std::string& strWhere,
                                std::int32_t lngUnitNumber);

// The end balance that each row gives by itself.
std::string UpdateGoodsEnd(const std::string& strTable);

// One row a source line, in #IA_EnFCSPHZB.
std::string SelectGoodsSums(const std::string& strTable);

// The result: the sums with the attributes of the line of that year that put the goods in transit.
std::string SelectGoodsResult(const std::string& strResult, const std::string& strYear,
                              std::int32_t lngUnitNumber);

}  // namespace kavelin
