// What is counted and summed of a table, so that two tables can be compared that lie in different databases.
#pragma once

#include "embedded/SqlType.h"
#include "frame/Connection.h"
#include "frame/Decimal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::snapshot {

enum class SumKind {
    None,         // texts and dates: their values are counted only
    Exact,        // whole numbers, money and decimals
    Approximate,  // floats, whose sum depends on the order in which it is built
};

struct FigureColumn {
    std::string name;
    SumKind sum = SumKind::None;
    int scale = 0;  // of an exact sum
};

// The sum that a copy of a column of `sourceType`, as T-SQL names it, into one of `type` allows.
FigureColumn FigureColumnFor(const std::string& name, std::string_view sourceType,
                             const embedded::SqlType& type);

struct ColumnFigures {
    std::int64_t values = 0;     // that are not null
    Decimal exactSum;            // 0 without values
    double approximateSum = 0;   // likewise
    double sumOfMagnitudes = 0;  // likewise; tells how many digits of the sum are sure
};

struct TableFigures {
    std::int64_t rows = 0;
    std::vector<ColumnFigures> columns;  // in the order in which they were asked for
};

// One row: the rows, then of each column its values and its sum; of an approximate one the sum of the
// magnitudes behind it.
std::string SelectFigures(const std::string& table, const std::vector<FigureColumn>& columns,
                          const std::string& condition);

// Throws DatabaseError.
TableFigures ReadFigures(Connection& connection, const std::string& table,
                         const std::vector<FigureColumn>& columns, const std::string& condition);

struct Difference {
    std::string table, what;  // "rows", "values of iYear", "sum of iAInPrice"
    std::string source, target;
};

// Where the two differ; approximate sums may do so by what the order of adding can change.
std::vector<Difference> Differences(const std::string& table, const std::vector<FigureColumn>& columns,
                                    const TableFigures& source, const TableFigures& target);

}  // namespace kavelin::snapshot
