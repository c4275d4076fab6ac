#include "embedded/engine/EmbeddedRecordset.h"

#include "frame/Errors.h"

namespace kavelin::embedded {

EmbeddedRecordset::EmbeddedRecordset(SharedRows rows, CursorType type)
    : objRows(std::move(rows)), objType(type)
{
}

RowSet& EmbeddedRecordset::Rows() const
{
    if (!*objRows)
        throw Error("The record set is closed.");
    return **objRows;
}

const ResultColumn& EmbeddedRecordset::ColumnAt(int field) const
{
    const std::vector<ResultColumn>& columns = Rows().columns;
    if (field < 0 || field >= static_cast<int>(columns.size()))
        throw Error("The record set has no field " + std::to_string(field) + ".");
    return columns[static_cast<std::size_t>(field)];
}

bool EmbeddedRecordset::Eof() const
{
    return lngRow >= Rows().RowCount();
}

void EmbeddedRecordset::MoveNext()
{
    if (Eof())
        throw Error("The record set stands at its end.");
    ++lngRow;
}

void EmbeddedRecordset::MoveFirst()
{
    if (objType != CursorType::Static)
        throw Error("A forward-only record set cannot go back to its first row.");
    Rows();
    lngRow = 0;
}

std::int64_t EmbeddedRecordset::RecordCount() const
{
    const std::int64_t count = Rows().RowCount();
    return objType == CursorType::Static ? count : -1;
}

int EmbeddedRecordset::FieldCount() const
{
    return static_cast<int>(Rows().columns.size());
}

std::string EmbeddedRecordset::FieldName(int field) const
{
    return ColumnAt(field).name;
}

std::string EmbeddedRecordset::FieldType(int field) const
{
    return ToText(ColumnAt(field).type);
}

Value EmbeddedRecordset::Field(int field) const
{
    ColumnAt(field);
    if (Eof())
        throw Error("The record set has no current row.");
    return Rows().rows->Get(lngRow, field);
}

void EmbeddedRecordset::Close()
{
    objRows->reset();
}

}  // namespace kavelin::embedded
