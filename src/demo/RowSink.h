// Where generated rows go: into an account, or into the memory of a test.
#pragma once

#include "frame/Value.h"

#include <span>
#include <string_view>

namespace kavelin::demo {

class RowSink {
  public:
    virtual ~RowSink() = default;

    // The rows that follow belong to `table` and give `columns`, in this order; its other columns get their
    // default, number or NULL. A table begins once.
    virtual void BeginTable(std::string_view table, std::span<const std::string_view> columns) = 0;
    virtual void AddRow(std::span<const Value> row) = 0;

    // Behind the last row of the last table.
    virtual void Finish() = 0;
};

}  // namespace kavelin::demo
