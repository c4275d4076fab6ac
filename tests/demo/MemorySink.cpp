#include "demo/MemorySink.h"

#include "demo/CompanyRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace kavelin::demo {

namespace {

// Exact, unlike ToText: a double with all its digits.
std::string ExactText(const Value& value)
{
    if (const double* number = value.As<double>()) {
        char text[64];
        return std::string(text, std::to_chars(text, text + sizeof text, *number).ptr);
    }
    return value.IsNull() ? std::string("NULL") : ToText(value);
}

}  // namespace

const Value& MemoryTable::At(std::size_t row, std::string_view column) const
{
    const auto found = std::ranges::find(columns, column);
    if (found == columns.end())
        throw std::out_of_range("no column " + std::string(column));
    return rows.at(row).at(static_cast<std::size_t>(found - columns.begin()));
}

std::string MemoryTable::Text(std::size_t row, std::string_view column) const
{
    const Value& value = At(row, column);
    return value.IsNull() ? std::string() : ToText(value);
}

std::int64_t MemoryTable::Number(std::size_t row, std::string_view column) const
{
    const Value& value = At(row, column);
    return value.IsNull() ? 0 : static_cast<std::int64_t>(ToDouble(value));
}

std::int64_t MemoryTable::Hundredths(std::size_t row, std::string_view column) const
{
    const Value& value = At(row, column);
    return value.IsNull() ? 0 : std::llround(ToDouble(value) * 100);
}

void MemoryTable::Add(std::span<const Value> row)
{
    ASSERT_EQ(row.size(), columns.size());
    rows.emplace_back(row.begin(), row.end());
}

RowTable& MemorySink::Open(std::string_view table, std::span<const std::string_view> columns)
{
    const auto [entry, isNew] = tables.try_emplace(std::string(table));
    EXPECT_TRUE(isNew) << table << " is opened twice";
    entry->second.columns.assign(columns.begin(), columns.end());
    return entry->second;
}

std::uint64_t MemorySink::Hash() const
{
    std::uint64_t hash = 0xCBF29CE484222325u;  // FNV-1a
    const auto add = [&](std::string_view text) {
        for (const char character : text)
            hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3u;
        hash = (hash ^ 0xFFu) * 0x100000001B3u;
    };
    for (const auto& [name, table] : tables) {
        add(name);
        for (const std::string& column : table.columns)
            add(column);
        for (const auto& row : table.rows)
            for (const Value& value : row) {
                add(std::to_string(value.Get().index()));
                add(ExactText(value));
            }
    }
    return hash;
}

MemorySink Generate(const Profile& profile, std::int64_t lines, std::uint64_t seed)
{
    MemorySink sink;
    GenerateCompany(profile, lines, seed, sink, {});
    return sink;
}

}  // namespace kavelin::demo
