#include "analysis/AbcOptions.h"

#include "frame/Errors.h"
#include "frame/ModPub.h"

#include <cstddef>
#include <iterator>

namespace kavelin {

namespace {

std::string ReadShare(SettingsStore& settings, const AbcOption& option)
{
    const std::string percentage =
        settings.Read(std::string(kAbcApplication), std::string(kAbcSection), std::string(option.key), "");
    return ToText(ToDouble(percentage) / 100);
}

void WriteDefaults(SettingsStore& settings)
{
    for (const AbcOption& option : kAbcOptions)
        settings.Write(std::string(kAbcApplication), std::string(kAbcSection), std::string(option.key),
                       std::string(option.byDefault));
}

}  // namespace

AbcThresholds ReadAbcThresholds()
{
    const auto settings = CurrentPlatform().CreateSettingsStore();
    AbcThresholds thresholds;
    for (std::size_t i = 0; i < std::size(kAbcOptions); ++i) {
        std::string& share = i < 4 ? thresholds.strMoneyRate[i] : thresholds.strNumRate[i - 4];
        try {
            share = ReadShare(*settings, kAbcOptions[i]);
        } catch (const ConversionError&) {
            WriteDefaults(*settings);
            share = ReadShare(*settings, kAbcOptions[i]);
        }
    }
    return thresholds;
}

}  // namespace kavelin
