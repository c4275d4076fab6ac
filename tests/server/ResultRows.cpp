#include "server/ResultRows.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace kavelin::test::server {

namespace {

constexpr double kTolerance = 1e-9;

std::optional<double> NumberOf(const Value& value)
{
    if (const auto* whole = value.As<std::int64_t>())
        return static_cast<double>(*whole);
    if (const auto* real = value.As<double>())
        return *real;
    if (const auto* decimal = value.As<Decimal>())
        return decimal->ToDouble();
    if (const auto* bit = value.As<bool>())
        return *bit ? 1 : 0;
    return std::nullopt;
}

bool AreEqual(const Value& a, const Value& b)
{
    const auto x = NumberOf(a), y = NumberOf(b);
    if (x && y)
        return std::fabs(*x - *y) <= kTolerance * std::max({1.0, std::fabs(*x), std::fabs(*y)});
    return a == b;
}

std::string Shown(const Value& value)
{
    if (value.IsNull() || value.IsEmpty())
        return "NULL";
    if (const auto* decimal = value.As<Decimal>())
        return decimal->ToText();
    if (const auto* real = value.As<double>())
        return fmt::format("{}", *real);
    return value.IsText() ? "'" + ToText(value) + "'" : ToText(value);
}

// Rows that are equal have the same key, but for numbers at the edge of a rounding.
std::string KeyOf(const std::vector<Value>& row)
{
    std::string key;
    for (const Value& value : row) {
        const auto number = NumberOf(value);
        // No minus before a zero that rounding has left.
        key += number ? fmt::format("{:.6g}", std::fabs(*number) < 1e-7 ? 0.0 : *number) : Shown(value);
        key += '|';
    }
    return key;
}

struct Row {
    std::string key;
    const std::vector<Value>* values = nullptr;
    std::size_t number = 0;
};

std::vector<Row> Sorted(const ResultRows& result)
{
    std::vector<Row> rows;
    for (const auto& values : result.rows)
        rows.push_back({KeyOf(values), &values});
    std::ranges::sort(rows, {}, &Row::key);
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].number = i + 1;
    return rows;
}

// Takes the rows out of both that have a partner of the same key.
void DropPartners(std::vector<Row>& a, std::vector<Row>& b)
{
    std::multimap<std::string, std::size_t> waiting;
    for (std::size_t i = 0; i < b.size(); ++i)
        waiting.emplace(b[i].key, i);
    std::vector<bool> taken(b.size(), false);
    std::erase_if(a, [&](const Row& row) {
        const auto partner = waiting.find(row.key);
        if (partner == waiting.end())
            return false;
        taken[partner->second] = true;
        waiting.erase(partner);
        return true;
    });
    std::size_t place = 0;
    std::erase_if(b, [&](const Row&) { return taken[place++]; });
}

std::size_t EqualCells(const Row& a, const Row& b)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < a.values->size(); ++i)
        count += AreEqual((*a.values)[i], (*b.values)[i]) ? 1 : 0;
    return count;
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

std::string Beginning(const std::vector<Value>& row)
{
    constexpr std::size_t kCells = 12;
    std::string text;
    for (std::size_t i = 0; i < std::min(kCells, row.size()); ++i)
        text += (i == 0 ? "" : ", ") + Shown(row[i]);
    return text + (row.size() > kCells ? ", ..." : "");
}

}  // namespace

ResultRows ReadRows(Recordset& rows)
{
    ResultRows result;
    for (int field = 0; field < rows.FieldCount(); ++field)
        result.columns.push_back(rows.FieldName(field));
    for (; !rows.Eof(); rows.MoveNext()) {
        std::vector<Value>& values = result.rows.emplace_back();
        for (int field = 0; field < rows.FieldCount(); ++field)
            values.push_back(rows.Field(field));
    }
    return result;
}

std::vector<std::string> DifferencesOf(const ResultRows& server, const ResultRows& embedded)
{
    if (server.columns != embedded.columns)
        return {"columns: server " + Listed(server.columns) + "; embedded " + Listed(embedded.columns)};

    std::vector<std::string> differences;
    if (server.rows.size() != embedded.rows.size())
        differences.push_back(
            fmt::format("rows: server {}, embedded {}", server.rows.size(), embedded.rows.size()));

    std::vector<Row> left = Sorted(server), right = Sorted(embedded);
    DropPartners(left, right);
    for (const Row& row : left) {
        const auto nearest =
            std::ranges::max_element(right, {}, [&](const Row& other) { return EqualCells(row, other); });
        // A row that shares less than half of its cells is another row.
        if (nearest == right.end() || EqualCells(row, *nearest) * 2 < server.columns.size()) {
            differences.push_back(
                fmt::format("row {}: only on the server: {}", row.number, Beginning(*row.values)));
            continue;
        }
        for (std::size_t i = 0; i < server.columns.size(); ++i)
            if (!AreEqual((*row.values)[i], (*nearest->values)[i]))
                differences.push_back(fmt::format("row {}, column {}: server {}, embedded {}", row.number,
                                                  server.columns[i], Shown((*row.values)[i]),
                                                  Shown((*nearest->values)[i])));
        right.erase(nearest);
    }
    for (const Row& row : right)
        differences.push_back(
            fmt::format("row {}: only in the embedded account: {}", row.number, Beginning(*row.values)));
    return differences;
}

}  // namespace kavelin::test::server
