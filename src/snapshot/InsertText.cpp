#include "snapshot/InsertText.h"

#include <utility>

namespace kavelin::snapshot {

namespace {

constexpr std::size_t kRows = 1000;
constexpr std::size_t kConstants = 12'000;
constexpr std::size_t kBytes = 256 * 1024;

}  // namespace

InsertText::InsertText(std::string_view table, std::span<const std::string> columns)
    : strHead("insert into " + std::string(table) + " (")
{
    for (const std::string& column : columns)
        strHead += (&column == columns.data() ? "" : ", ") + column;
    strHead += ") values";
}

void InsertText::Add(std::span<const std::string> constants)
{
    strRows += lngRows == 0 ? "\r\n(" : ",\r\n(";
    for (const std::string& constant : constants) {
        if (&constant != constants.data())
            strRows += ", ";
        strRows += constant;
    }
    strRows += ')';
    ++lngRows;
    lngConstants += constants.size();
}

bool InsertText::IsFull() const
{
    return lngRows >= kRows || lngConstants >= kConstants || strRows.size() >= kBytes;
}

std::string InsertText::Take()
{
    lngRows = 0;
    lngConstants = 0;
    return strHead + std::exchange(strRows, {});
}

}  // namespace kavelin::snapshot
