// Exact quotients of decimals, which DuckDB would give as DOUBLE.
#pragma once

#include <string>

namespace kavelin::embedded {

struct ScaledText {
    std::string text;
    int scale = 0;
};

// The quotient cut, not rounded, at `scale`; a DECIMAL(38, scale). NULL where the divisor is 0, so that a
// caller who wants an error guards the divisor.
//   CAST(CAST(a * 10^s1 AS HUGEINT) * 10^(s + s2 - s1) // CAST(b * 10^s2 AS HUGEINT) AS DECIMAL(38,0))
//     * CAST('0.00..1' AS DECIMAL(s,s))
std::string WriteQuotient(const ScaledText& dividend, const ScaledText& divisor, int scale);

}  // namespace kavelin::embedded
