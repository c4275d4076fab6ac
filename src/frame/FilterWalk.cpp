#include "frame/FilterWalk.h"

namespace kavelin {

std::string FilterText(const Value& value)
{
    return value.IsNull() ? "" : ToText(value);
}

}  // namespace kavelin
