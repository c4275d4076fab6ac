// Rows of a table as a list of columns, each with the value that a row has there.
#pragma once

#include "demo/RowSink.h"
#include "frame/Value.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace kavelin::demo {

template <class Row>
struct Column {
    std::string_view name;
    Value (*value)(const Row& row);
};

// Opens the table for the columns; Write gives it a row.
template <class Row, std::size_t Count>
class ColumnWriter {
  public:
    // `columns` is static.
    ColumnWriter(RowSink& sink, std::string_view table, const Column<Row> (&columns)[Count])
        : arrColumns(columns)
    {
        std::array<std::string_view, Count> names;
        for (std::size_t i = 0; i < Count; ++i)
            names[i] = columns[i].name;
        objTable = &sink.Open(table, names);
    }

    void Write(const Row& row)
    {
        for (std::size_t i = 0; i < Count; ++i)
            arrValues[i] = arrColumns[i].value(row);
        objTable->Add(arrValues);
    }

  private:
    const Column<Row> (&arrColumns)[Count];
    std::array<Value, Count> arrValues;
    RowTable* objTable;
};

}  // namespace kavelin::demo
