// How the values of a result's column are fetched and kept, and what T-SQL calls its type.
#pragma once

#include <cstddef>
#include <string>

namespace kavelin::odbc {

// A column as the driver describes it.
struct DescribedColumn {
    std::string name;
    int sqlType = 0;       // ODBC's code
    std::string typeName;  // the server's
    std::size_t size = 0;  // characters, bytes or digits
    int digits = 0;        // behind the point
};

enum class Storage { Bit, Integer, Real, Decimal, Date, Text, Binary };

struct ColumnPlan {
    std::string name;
    std::string type;  // T-SQL's: "decimal(38,2)"
    Storage storage = Storage::Text;
    // The longest value in UTF-16 units of text or bytes of binary data; 0: values may be of any length.
    std::size_t longest = 0;
};

// What a driver says of the server behind it.
struct ServerFacts {
    bool isSqlServer = false;  // its type names are T-SQL's, and no value is longer than its column says
};

ColumnPlan PlanFor(const DescribedColumn& column, const ServerFacts& server);

}  // namespace kavelin::odbc
