#include "database/odbc/OdbcRecordset.h"

#include "frame/Errors.h"

namespace kavelin::odbc {

const ResultRows& OdbcRecordset::Rows() const
{
    if (!objRows)
        throw Error("The record set is closed.");
    return *objRows;
}

std::size_t OdbcRecordset::IndexOf(int field) const
{
    if (field < 0 || field >= FieldCount())
        throw Error("The record set has no field " + std::to_string(field) + ".");
    return static_cast<std::size_t>(field);
}

bool OdbcRecordset::Eof() const
{
    return lngRow >= Rows().count;
}

void OdbcRecordset::MoveNext()
{
    if (Eof())
        throw Error("The record set stands at its end.");
    ++lngRow;
}

void OdbcRecordset::MoveFirst()
{
    if (enmType != CursorType::Static)
        throw Error("A forward-only record set cannot go back to its first row.");
    Rows();
    lngRow = 0;
}

std::int64_t OdbcRecordset::RecordCount() const
{
    const std::size_t count = Rows().count;
    return enmType == CursorType::Static ? static_cast<std::int64_t>(count) : -1;
}

int OdbcRecordset::FieldCount() const
{
    return static_cast<int>(Rows().plans.size());
}

std::string OdbcRecordset::FieldName(int field) const
{
    return Rows().plans[IndexOf(field)].name;
}

std::string OdbcRecordset::FieldType(int field) const
{
    return Rows().plans[IndexOf(field)].type;
}

Value OdbcRecordset::Field(int field) const
{
    const std::size_t index = IndexOf(field);
    if (Eof())
        throw Error("The record set has no current row.");
    return Rows().columns[index].Get(lngRow);
}

void OdbcRecordset::Close()
{
    objRows.reset();
}

}  // namespace kavelin::odbc
