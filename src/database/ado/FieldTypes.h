// Types of ADO's fields.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin::ado {

struct FieldShape {
    std::int32_t type = 0;  // of ADO's DataTypeEnum
    std::int32_t precision = 0;
    std::int32_t scale = 0;
    std::int32_t size = 0;  // characters or bytes
};

// T-SQL's name: "decimal(38,6)", "nvarchar(60)", "datetime". Sizes beyond what T-SQL can write are "max"; a type
// that no column of the server has is "sql_variant".
std::string TypeName(const FieldShape& field);

}  // namespace kavelin::ado
