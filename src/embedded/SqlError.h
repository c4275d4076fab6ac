// An error in the text of a statement or in its meaning.
#pragma once

#include "embedded/syntax/Tree.h"

#include <stdexcept>
#include <string>

namespace kavelin::embedded {

class SqlError : public std::runtime_error {
  public:
    // `number` is SQL Server's (208, 207, 102 ...), `message` is worded as SQL Server words it; what only
    // this engine lacks has its own words. `where` is the text in the batch that caused it.
    SqlError(int number, const std::string& message, Place where)
        : std::runtime_error(message), lngNumber(number), plcWhere(where)
    {
    }

    int Number() const { return lngNumber; }
    Place Where() const { return plcWhere; }

  private:
    int lngNumber;
    Place plcWhere;
};

}  // namespace kavelin::embedded
