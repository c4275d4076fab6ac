#include "journal/WtCodes.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"

namespace kavelin {

std::int32_t ReadAssUnitNo(const Value& varValue)
{
    constexpr std::size_t kTooLong = 9;
    const std::string text = FilterText(varValue);
    return text.empty() || Length(text) >= kTooLong ? 0 : ToInt32(Value(text));
}

}  // namespace kavelin
