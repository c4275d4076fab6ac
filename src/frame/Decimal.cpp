#include "frame/Decimal.h"

#include <algorithm>
#include <charconv>

namespace kavelin {

namespace {

constexpr int kMostDigits = 38;

Int128 PowerOfTen(int exponent)
{
    Int128 power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

}  // namespace

std::optional<Decimal> Decimal::FromText(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);

    Int128 unscaled = 0;
    int scale = 0;
    int digits = 0;
    bool seenDigit = false;
    bool seenPoint = false;
    for (const char c : text) {
        if (c == '.' && !seenPoint) {
            seenPoint = true;
            continue;
        }
        if (c < '0' || c > '9')
            return std::nullopt;
        seenDigit = true;
        if (digits > 0 || c != '0')
            ++digits;
        scale += seenPoint;
        if (digits > kMostDigits || scale > kMostDigits)
            return std::nullopt;
        unscaled = unscaled * 10 + (c - '0');
    }
    if (!seenDigit)
        return std::nullopt;
    return Decimal(negative ? -unscaled : unscaled, scale);
}

std::string Decimal::ToText() const
{
    const bool negative = intUnscaled < 0;
    Int128 rest = negative ? -intUnscaled : intUnscaled;
    std::string digits;
    for (int position = 0; rest != 0 || position <= lngScale; ++position) {
        if (position == lngScale && lngScale > 0)
            digits += '.';
        digits += static_cast<char>('0' + static_cast<int>(rest % 10));
        rest /= 10;
    }
    if (negative)
        digits += '-';
    std::reverse(digits.begin(), digits.end());
    return digits;
}

double Decimal::ToDouble() const
{
    const std::string text = ToText();
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::strong_ordering operator<=>(const Decimal& a, const Decimal& b)
{
    if ((a.intUnscaled < 0) != (b.intUnscaled < 0))
        return a.intUnscaled < 0 ? std::strong_ordering::less : std::strong_ordering::greater;

    // Whole parts first, then the fractions brought to one scale: nothing can overflow.
    const Int128 powerA = PowerOfTen(a.lngScale);
    const Int128 powerB = PowerOfTen(b.lngScale);
    const auto compare = [](Int128 x, Int128 y) {
        return x < y   ? std::strong_ordering::less
               : x > y ? std::strong_ordering::greater
                       : std::strong_ordering::equal;
    };
    const auto whole = compare(a.intUnscaled / powerA, b.intUnscaled / powerB);
    if (whole != std::strong_ordering::equal)
        return whole;
    const int scale = std::max(a.lngScale, b.lngScale);
    return compare(a.intUnscaled % powerA * PowerOfTen(scale - a.lngScale),
                   b.intUnscaled % powerB * PowerOfTen(scale - b.lngScale));
}

}  // namespace kavelin
