#include "frame/FilterWalk.h"

#include "frame/Text.h"

namespace kavelin {

std::string FilterText(const Value& value)
{
    return value.IsNull() ? "" : ToText(value);
}

std::string MonthDigits(std::string_view month)
{
    const std::size_t length = Length(month);
    return std::string(Trim(Left(month, length == 0 ? 0 : length - 1)));
}

}  // namespace kavelin
