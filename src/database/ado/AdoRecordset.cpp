#include "database/ado/AdoRecordset.h"

#include "database/ado/AdoErrors.h"
#include "database/ado/FieldTypes.h"
#include "frame/Guards.h"

#include <utility>

namespace kavelin::ado {

bool IsOpen(LateBound& object)
{
    constexpr std::int32_t kOpen = 1;
    return (ToInt32(ValueOf(object.Get("State"), "State")) & kOpen) != 0;
}

Variant AdoRecordset::Read(LateBound& object, std::string_view member) const
{
    return Translated<DatabaseError>(*objConnection, "", [&] { return object.Get(member); });
}

void AdoRecordset::Call(std::string_view member) const
{
    Translated<DatabaseError>(*objConnection, "", [&] { return Existing(objRecordset).Call(member, {}); });
}

bool AdoRecordset::Eof() const
{
    return ToBoolean(ValueOf(Read(Existing(objRecordset), "EOF"), "EOF"));
}

void AdoRecordset::MoveNext()
{
    Call("MoveNext");
}

void AdoRecordset::MoveFirst()
{
    Call("MoveFirst");
}

std::int64_t AdoRecordset::RecordCount() const
{
    return ToInt32(ValueOf(Read(Existing(objRecordset), "RecordCount"), "RecordCount"));
}

LateBound& AdoRecordset::Fields() const
{
    if (!objFields)
        objFields = ObjectOf<LateBound>(Read(Existing(objRecordset), "Fields"), "Fields");
    return *objFields;
}

std::shared_ptr<LateBound> AdoRecordset::FieldAt(int field) const
{
    LateBound& fields = Fields();
    return Translated<DatabaseError>(*objConnection, "", [&] {
        return ObjectOf<LateBound>(fields.Call("Item", {Value(field)}), "Fields.Item");
    });
}

int AdoRecordset::FieldCount() const
{
    return ToInt32(ValueOf(Read(Fields(), "Count"), "Fields.Count"));
}

std::string AdoRecordset::FieldName(int field) const
{
    return ToText(ValueOf(Read(*FieldAt(field), "Name"), "Field.Name"));
}

std::string AdoRecordset::FieldType(int field) const
{
    const auto object = FieldAt(field);
    const auto number = [&](std::string_view member) {
        return ToInt32(ValueOf(Read(*object, member), member));
    };
    return TypeName({.type = number("Type"),
                     .precision = number("Precision"),
                     .scale = number("NumericScale"),
                     .size = number("DefinedSize")});
}

Value AdoRecordset::Field(int field) const
{
    return ValueOf(Read(*FieldAt(field), "Value"), "Field.Value");
}

void AdoRecordset::Close()
{
    if (!objRecordset)
        return;
    const auto closing = std::exchange(objRecordset, nullptr);
    objFields = nullptr;
    Translated<DatabaseError>(*objConnection, "", [&] { return closing->Call("Close", {}); });
}

}  // namespace kavelin::ado
