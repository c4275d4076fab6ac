// Where generated rows go: into an account, or into the memory of a test.
#pragma once

#include "frame/Value.h"

#include <span>
#include <string_view>

namespace kavelin::demo {

// A table that takes rows.
class RowTable {
  public:
    virtual ~RowTable() = default;

    // One value a column, in the order of RowSink::Open.
    virtual void Add(std::span<const Value> row) = 0;
};

class RowSink {
  public:
    virtual ~RowSink() = default;

    // Rows of `table` that give `columns`, in this order; its other columns get their default, number or
    // NULL. Any number of tables may be open beside one another, each of them once. The table lives as long
    // as the sink.
    virtual RowTable& Open(std::string_view table, std::span<const std::string_view> columns) = 0;

    // Behind the last row of the last table.
    virtual void Finish() = 0;
};

}  // namespace kavelin::demo
