#include "snapshot/TableFigures.h"

#include "frame/Errors.h"
#include "frame/Statement.h"
#include "frame/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavelin::snapshot {

namespace {

using embedded::TypeKind;

// Of the sum of the magnitudes: a double has 16 digits, and adding millions of them costs a few.
constexpr double kTolerance = 1e-11;

SumKind SumOf(std::string_view typeName)
{
    constexpr std::array<std::string_view, 8> kExact = {"bit",    "tinyint", "smallint",   "int",
                                                        "bigint", "money",   "smallmoney", "decimal"};
    const std::string_view name = typeName.substr(0, typeName.find('('));
    if (EqualsNoCase(name, "float") || EqualsNoCase(name, "real"))
        return SumKind::Approximate;
    const bool exact = EqualsNoCase(name, "numeric") ||
                       std::ranges::any_of(kExact, [&](auto each) { return EqualsNoCase(each, name); });
    return exact ? SumKind::Exact : SumKind::None;
}

Decimal ToDecimal(const Value& value)
{
    if (value.IsNull())
        return {};
    if (const auto* decimal = value.As<Decimal>())
        return *decimal;
    if (const auto* whole = value.As<std::int64_t>())
        return Decimal(*whole, 0);
    throw Error("The database gave no exact number as a sum, but " + ToText(value) + ".");
}

double ToNumber(const Value& value)
{
    return value.IsNull() ? 0 : ToDouble(value);
}

std::int64_t ToCount(const Value& value)
{
    return static_cast<std::int64_t>(ToDecimal(value).Unscaled());
}

bool SameSums(const ColumnFigures& a, const ColumnFigures& b)
{
    const double allowed = kTolerance * std::max(a.sumOfMagnitudes, b.sumOfMagnitudes);
    return std::fabs(a.approximateSum - b.approximateSum) <= allowed &&
           std::fabs(a.sumOfMagnitudes - b.sumOfMagnitudes) <= allowed;
}

// A float's sum with all its digits: a difference may lie in the last ones.
std::string Shown(double number)
{
    return fmt::format("{}", number);
}

}  // namespace

FigureColumn FigureColumnFor(const std::string& name, std::string_view sourceType,
                             const embedded::SqlType& type)
{
    const SumKind ofSource = SumOf(sourceType);
    const SumKind ofTarget = SumOf(ToText(type));
    FigureColumn column{name};
    if (ofSource == SumKind::None || ofTarget == SumKind::None)
        return column;
    column.sum = std::max(ofSource, ofTarget);
    column.scale = type.kind == TypeKind::Money ? 4 : type.scale;
    return column;
}

std::string SelectFigures(const std::string& table, const std::vector<FigureColumn>& columns,
                          const std::string& condition)
{
    std::string figures = "count(*)";
    for (const FigureColumn& column : columns) {
        figures += fmt::format(",\r\n       count({})", column.name);
        if (column.sum == SumKind::Exact)
            figures += fmt::format(", sum(cast({} as decimal(38,{})))", column.name, column.scale);
        if (column.sum == SumKind::Approximate)
            figures += fmt::format(", sum(cast({0} as float)), sum(abs(cast({0} as float)))", column.name);
    }
    return JoinLines({
        "select " + figures,
        "  from " + table + (condition.empty() ? "" : " where " + condition),
    });
}

TableFigures ReadFigures(Connection& connection, const std::string& table,
                         const std::vector<FigureColumn>& columns, const std::string& condition)
{
    const auto row =
        connection.OpenRecordset(SelectFigures(table, columns, condition), CursorLocation::Client,
                                 CursorType::ForwardOnly, LockType::ReadOnly);
    TableFigures figures;
    int field = 0;
    figures.rows = ToCount(row->Field(field++));
    for (const FigureColumn& column : columns) {
        ColumnFigures& each = figures.columns.emplace_back();
        each.values = ToCount(row->Field(field++));
        if (column.sum == SumKind::Exact)
            each.exactSum = ToDecimal(row->Field(field++));
        if (column.sum == SumKind::Approximate) {
            each.approximateSum = ToNumber(row->Field(field++));
            each.sumOfMagnitudes = ToNumber(row->Field(field++));
        }
    }
    return figures;
}

std::vector<Difference> Differences(const std::string& table, const std::vector<FigureColumn>& columns,
                                    const TableFigures& source, const TableFigures& target)
{
    std::vector<Difference> differences;
    const auto add = [&](const std::string& what, const std::string& ofSource, const std::string& ofTarget) {
        differences.push_back({table, what, ofSource, ofTarget});
    };
    if (source.rows != target.rows)
        add("rows", std::to_string(source.rows), std::to_string(target.rows));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const ColumnFigures& a = source.columns[i];
        const ColumnFigures& b = target.columns[i];
        if (a.values != b.values)
            add("values of " + columns[i].name, std::to_string(a.values), std::to_string(b.values));
        if (a.exactSum != b.exactSum)
            add("sum of " + columns[i].name, a.exactSum.ToText(), b.exactSum.ToText());
        if (!SameSums(a, b))
            add("sum of " + columns[i].name, Shown(a.approximateSum), Shown(b.approximateSum));
    }
    return differences;
}

}  // namespace kavelin::snapshot
