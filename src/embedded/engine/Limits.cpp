#include "embedded/engine/Limits.h"

#include "embedded/engine/EngineErrors.h"
#include "frame/Text.h"

#include <charconv>
#include <cstdlib>

namespace kavelin::embedded {

namespace {

struct Limit {
    std::string_view key;
    const char* variable;
    std::optional<std::int64_t> Limits::*value;
    std::int64_t least, most;
};

constexpr std::int64_t kMostMegabytes = 1 << 30;

constexpr Limit kLimits[] = {
    {"Memory", "KAVELIN_MEMORY", &Limits::memory, 1, kMostMegabytes},
    {"Spill", "KAVELIN_SPILL", &Limits::spill, 0, kMostMegabytes},
    {"Threads", "KAVELIN_THREADS", &Limits::threads, 1, 1024},
};

std::int64_t ReadNumber(const Limit& limit, std::string_view source, std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < limit.least ||
        number > limit.most)
        throw Refusal(std::string(source) + " takes a whole number from " + std::to_string(limit.least) +
                      " to " + std::to_string(limit.most) + '.');
    return number;
}

}  // namespace

Limits Limits::OfEnvironment()
{
    Limits limits;
    for (const Limit& limit : kLimits) {
        const char* text = std::getenv(limit.variable);
        if (text != nullptr && *text != '\0')
            limits.*limit.value = ReadNumber(limit, limit.variable, text);
    }
    return limits;
}

bool Limits::Take(std::string_view key, std::string_view value)
{
    for (const Limit& limit : kLimits) {
        if (!EqualsNoCase(key, limit.key))
            continue;
        this->*limit.value = ReadNumber(limit, limit.key, value);
        return true;
    }
    return false;
}

Limits Limits::Or(const Limits& other) const
{
    Limits both = *this;
    for (const Limit& limit : kLimits)
        if (!(both.*limit.value))
            both.*limit.value = other.*limit.value;
    return both;
}

}  // namespace kavelin::embedded
