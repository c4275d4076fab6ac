#include "embedded/write/Quotient.h"

namespace kavelin::embedded {

namespace {

std::string PowerOfTen(int exponent)
{
    return "1" + std::string(static_cast<std::size_t>(exponent), '0');
}

// The digits without the point.
std::string Unscaled(const ScaledText& number)
{
    if (number.scale == 0)
        return "CAST(" + number.text + " AS HUGEINT)";
    return "CAST(" + number.text + " * " + PowerOfTen(number.scale) + " AS HUGEINT)";
}

std::string Times(const std::string& number, int exponent)
{
    return exponent == 0 ? number : number + " * CAST(" + PowerOfTen(exponent) + " AS HUGEINT)";
}

}  // namespace

std::string WriteQuotient(const ScaledText& dividend, const ScaledText& divisor, int scale)
{
    const int shift = scale + divisor.scale - dividend.scale;
    const std::string above = Times(Unscaled(dividend), shift > 0 ? shift : 0);
    const std::string below = Times(Unscaled(divisor), shift < 0 ? -shift : 0);
    const std::string digits = "CAST((" + above + ") // (" + below + ") AS DECIMAL(38,0))";
    if (scale == 0)
        return digits;
    const std::string width = std::to_string(scale);
    return "(" + digits + " * CAST('0." + std::string(static_cast<std::size_t>(scale) - 1, '0') +
           "1' AS DECIMAL(" + width + "," + width + ")))";
}

}  // namespace kavelin::embedded
