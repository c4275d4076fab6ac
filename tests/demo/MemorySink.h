// Generated rows kept in memory, read by the names of their columns.
#pragma once

#include "demo/RowSink.h"
#include "demo/profiles/Profile.h"
#include "frame/Value.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

struct MemoryTable : RowTable {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;

    void Add(std::span<const Value> row) override;

    // Throws std::out_of_range for a column that was not given.
    const Value& At(std::size_t row, std::string_view column) const;

    // As text; null is empty.
    std::string Text(std::size_t row, std::string_view column) const;

    // As a whole number; null is 0.
    std::int64_t Number(std::size_t row, std::string_view column) const;

    // As hundredths; null is 0. Exact for the amounts and quantities of the generator.
    std::int64_t Hundredths(std::size_t row, std::string_view column) const;
};

class MemorySink : public RowSink {
  public:
    RowTable& Open(std::string_view table, std::span<const std::string_view> columns) override;
    void Finish() override { finished = true; }

    const MemoryTable& Table(std::string_view name) const { return tables.at(std::string(name)); }

    // Of all tables, columns, types and values.
    std::uint64_t Hash() const;

    std::map<std::string, MemoryTable> tables;
    bool finished = false;
};

// The company of that profile, `lines` and `seed`, whole.
MemorySink Generate(const Profile& profile, std::int64_t lines, std::uint64_t seed);

}  // namespace kavelin::demo
