#include "frame/IdentifierText.h"

namespace kavelin {

std::string IdentifierText(std::string_view name)
{
    std::string text;
    for (const char c : name) {
        const bool allowed = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        text += allowed ? c : '_';
    }
    return text.empty() ? "client" : text;
}

}  // namespace kavelin
