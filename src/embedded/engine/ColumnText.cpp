#include "embedded/engine/ColumnText.h"

#include <charconv>

namespace kavelin::embedded {

namespace {

constexpr std::string_view kHeader = "kavelin 1";

struct TypeRow {
    TypeKind kind;
    std::string_view name;
};
constexpr TypeRow kTypes[] = {
    {TypeKind::Varchar, "varchar"}, {TypeKind::Nvarchar, "nvarchar"}, {TypeKind::Bit, "bit"},
    {TypeKind::Tinyint, "tinyint"}, {TypeKind::Smallint, "smallint"}, {TypeKind::Int, "int"},
    {TypeKind::Bigint, "bigint"},   {TypeKind::Money, "money"},       {TypeKind::Decimal, "decimal"},
    {TypeKind::Float, "float"},     {TypeKind::Datetime, "datetime"},
};

const TypeRow& RowOf(TypeKind kind)
{
    for (const TypeRow& row : kTypes)
        if (row.kind == kind)
            return row;
    // A column never has the type of a bare NULL: the binder has made it int.
    return RowOf(TypeKind::Int);
}

std::string WriteType(const SqlType& type)
{
    std::string text(RowOf(type.kind).name);
    if (type.IsText())
        text += '(' + (type.length == kMaxLength ? "max" : std::to_string(type.length)) + ')';
    else if (type.kind == TypeKind::Decimal)
        text += '(' + std::to_string(type.precision) + ',' + std::to_string(type.scale) + ')';
    return text;
}

bool ReadNumber(std::string_view text, int& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size();
}

std::optional<SqlType> ReadType(std::string_view text)
{
    const std::size_t open = text.find('(');
    const std::string_view name = text.substr(0, open);
    SqlType type;
    for (const TypeRow& row : kTypes)
        if (row.name == name)
            type.kind = row.kind;
    if (type.kind == TypeKind::Null)
        return std::nullopt;

    const bool hasNumbers = type.IsText() || type.kind == TypeKind::Decimal;
    if (hasNumbers != (open != std::string_view::npos))
        return std::nullopt;
    if (!hasNumbers)
        return type;
    if (text.back() != ')')
        return std::nullopt;
    const std::string_view numbers = text.substr(open + 1, text.size() - open - 2);
    if (type.IsText()) {
        type.length = kMaxLength;
        if (numbers != "max" && !ReadNumber(numbers, type.length))
            return std::nullopt;
        return type;
    }
    const std::size_t comma = numbers.find(',');
    if (comma == std::string_view::npos || !ReadNumber(numbers.substr(0, comma), type.precision) ||
        !ReadNumber(numbers.substr(comma + 1), type.scale))
        return std::nullopt;
    return type;
}

void AppendField(std::string& line, std::string_view field)
{
    for (const char c : field) {
        switch (c) {
            case '\\': line += "\\\\"; break;
            case '|': line += "\\|"; break;
            case '\n': line += "\\n"; break;
            case '\r': line += "\\r"; break;
            default: line += c;
        }
    }
}

std::vector<std::string> ReadFields(std::string_view line)
{
    std::vector<std::string> fields(1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '|')
            fields.emplace_back();
        else if (line[i] == '\\' && i + 1 < line.size())
            fields.back() += line[++i] == 'n' ? '\n' : line[i] == 'r' ? '\r' : line[i];
        else
            fields.back() += line[i];
    }
    return fields;
}

std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return line;
}

}  // namespace

std::string WriteColumns(const std::vector<ColumnInfo>& columns)
{
    std::string text(kHeader);
    for (const ColumnInfo& column : columns) {
        text += '\n';
        AppendField(text, column.name);
        text += '|' + WriteType(column.type) + '|';
        if (!column.nullable)
            text += 'n';
        if (column.identity)
            text += 'i';
        if (column.facts.noTrailingBlanks)
            text += 'b';
        if (column.facts.noCase)
            text += 'c';
        // `=` in front tells an empty default from none.
        text += '|';
        if (column.defaultSql) {
            text += '=';
            AppendField(text, *column.defaultSql);
        }
        for (const ColumnOrigin& origin : column.origins) {
            text += '|' + std::to_string(static_cast<int>(origin.database)) + '|';
            AppendField(text, origin.object);
            text += '|';
            AppendField(text, origin.column);
        }
    }
    return text;
}

std::optional<std::vector<ColumnInfo>> ReadColumns(std::string_view text)
{
    if (TakeLine(text) != kHeader)
        return std::nullopt;
    std::vector<ColumnInfo> columns;
    while (!text.empty()) {
        const std::vector<std::string> fields = ReadFields(TakeLine(text));
        constexpr std::size_t kOwn = 4, kOfOrigin = 3;
        if (fields.size() < kOwn || (fields.size() - kOwn) % kOfOrigin != 0)
            return std::nullopt;
        const std::optional<SqlType> type = ReadType(fields[1]);
        if (!type)
            return std::nullopt;
        const std::string& marks = fields[2];
        const auto marked = [&](char mark) { return marks.find(mark) != std::string::npos; };
        ColumnInfo column;
        column.name = fields[0];
        column.type = *type;
        column.nullable = !marked('n');
        column.identity = marked('i');
        column.facts = {marked('b'), marked('c')};
        if (!fields[3].empty())
            column.defaultSql = fields[3].substr(1);
        for (std::size_t i = kOwn; i < fields.size(); i += kOfOrigin) {
            int database = 0;
            if (!ReadNumber(fields[i], database) || database < 0 ||
                database > static_cast<int>(Database::Connection))
                return std::nullopt;
            column.origins.push_back({static_cast<Database>(database), fields[i + 1], fields[i + 2]});
        }
        columns.push_back(std::move(column));
    }
    return columns;
}

}  // namespace kavelin::embedded
