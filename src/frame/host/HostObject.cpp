#include "frame/host/HostObject.h"

#include "frame/Errors.h"

#include <string>

namespace kavelin {

void ThrowNotOfKind(std::string_view what)
{
    throw Error("The host gave something else than asked for as " + std::string(what) + ".");
}

const Value& ValueOf(const Variant& answer, std::string_view what)
{
    const auto* value = std::get_if<Value>(&answer);
    if (!value)
        ThrowNotOfKind(what);
    return *value;
}

}  // namespace kavelin
