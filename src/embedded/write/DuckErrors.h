// DuckDB's messages as SQL Server's.
#pragma once

#include <string>
#include <string_view>

namespace kavelin::embedded {

struct SqlMessage {
    int number = 0;  // 0: nothing that SQL Server has a number for
    std::string text;
};

// Of a failed step of a plan: the numbers and texts that the plan itself raises, DuckDB's overflows, its
// refusal of a subquery of two rows, duplicate keys. Any other message comes back without DuckDB's
// "Conversion Error: ", without the piece of the statement behind it, and with number 0.
SqlMessage SqlErrorOfDuck(std::string_view message);

}  // namespace kavelin::embedded
