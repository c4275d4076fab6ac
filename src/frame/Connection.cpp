#include "frame/Connection.h"

#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin {

Value Recordset::Field(std::string_view name) const
{
    for (int field = 0; field < FieldCount(); ++field)
        if (EqualsNoCase(FieldName(field), name))
            return Field(field);
    throw Error("The record set has no field " + std::string(name) + ".");
}

}  // namespace kavelin
