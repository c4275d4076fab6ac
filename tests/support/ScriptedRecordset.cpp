#include "support/ScriptedRecordset.h"

#include <stdexcept>

namespace kavelin::test {

void ScriptedRecordset::MoveNext()
{
    if (Eof())
        throw std::logic_error("MoveNext behind the last row");
    ++lngRow;
}

void ScriptedRecordset::MoveFirst()
{
    if (objType == CursorType::ForwardOnly)
        throw std::logic_error("MoveFirst on a forward-only record set");
    lngRow = 0;
}

std::int64_t ScriptedRecordset::RecordCount() const
{
    return objType == CursorType::ForwardOnly ? -1 : static_cast<std::int64_t>(objRows.rows.size());
}

std::string ScriptedRecordset::FieldType(int /*field*/) const
{
    return "nvarchar(max)";
}

Value ScriptedRecordset::Field(int field) const
{
    if (Eof())
        throw std::logic_error("a field is read where there is no row");
    return objRows.rows[lngRow].at(static_cast<std::size_t>(field));
}

}  // namespace kavelin::test
