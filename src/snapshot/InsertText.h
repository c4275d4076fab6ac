// Insert statements of many rows.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::snapshot {

// Collects rows until they are worth a statement.
class InsertText {
  public:
    InsertText(std::string_view table, std::span<const std::string> columns);

    // Constants in the order of the columns.
    void Add(std::span<const std::string> constants);

    // A server takes 1,000 rows a statement, and needs long to compile one of very many constants.
    bool IsFull() const;
    bool IsEmpty() const { return lngRows == 0; }

    // The statement; the rows are gone then.
    std::string Take();

  private:
    std::string strHead;
    std::string strRows;
    std::size_t lngRows = 0;
    std::size_t lngConstants = 0;
};

}  // namespace kavelin::snapshot
