// Thresholds of the ABC analysis: settings of the user, not of the account.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kavelin {

constexpr std::string_view kAbcApplication = "存货核算";
constexpr std::string_view kAbcSection = "ABCOption872";

// A setting, the box of the options form that shows it, and its percentage where nobody has set one.
struct AbcOption {
    std::string_view key, field, byDefault;
};

// clang-format off
constexpr AbcOption kAbcOptions[] = {
    {"M1", "Edit1", "100"},  // money: top of the scale
    {"M2", "Edit2", "70"},   // share from which class A starts
    {"M3", "Edit3", "10"},   // share from which class B starts
    {"M4", "Edit4", "0"},    // bottom
    {"N1", "Edit5", "0"},    // quantity: bottom of the scale
    {"N2", "Edit6", "20"},   // share from which class B starts
    {"N3", "Edit7", "50"},   // share from which class C starts
    {"N4", "Edit8", "100"},  // top
};
// clang-format on

// Shares as statements hold them: "0.7" for 70 per cent.
struct AbcThresholds {
    std::array<std::string, 4> strMoneyRate;  // M1 to M4
    std::array<std::string, 4> strNumRate;    // N1 to N4
};

// Reads the settings. The first that is no number has all eight written with their defaults. Throws
// ConversionError if it is none even then.
AbcThresholds ReadAbcThresholds();

}  // namespace kavelin
