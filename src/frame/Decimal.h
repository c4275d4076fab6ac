// An exact decimal number of up to 38 digits, as databases hand them over.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kavelin {

__extension__ typedef __int128 Int128;

class Decimal {
  public:
    Decimal() = default;

    // `unscaled` divided by ten to the power of `scale`; scale 0 to 38.
    Decimal(Int128 unscaled, int scale) : intUnscaled(unscaled), lngScale(scale) {}

    // From "-12.50", which keeps the scale 2. Nothing if the text is no plain decimal number or has more
    // than 38 digits.
    static std::optional<Decimal> FromText(std::string_view text);

    Int128 Unscaled() const { return intUnscaled; }
    int Scale() const { return lngScale; }

    // With all digits of the scale: "12.50", "-0.05", "0.00".
    std::string ToText() const;

    // Nearest binary number.
    double ToDouble() const;

    // By value: 1.5 equals 1.50.
    friend bool operator==(const Decimal& a, const Decimal& b) { return (a <=> b) == 0; }
    friend std::strong_ordering operator<=>(const Decimal& a, const Decimal& b);

  private:
    Int128 intUnscaled = 0;
    int lngScale = 0;
};

}  // namespace kavelin
