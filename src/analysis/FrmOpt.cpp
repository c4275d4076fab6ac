#include "analysis/FrmOpt.h"

#include "analysis/AbcOptions.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"

#include <algorithm>
#include <iterator>

namespace kavelin {

namespace {

constexpr std::string_view kOk = "Command1";
constexpr std::string_view kCancel = "Command2";

// Captions by control, in the order of the boxes.
constexpr std::string_view kLabels[] = {
    "Orvo.IA.chhssql.ABC.M1", "Orvo.IA.chhssql.ABC.M2", "Orvo.IA.chhssql.ABC.M3", "Orvo.IA.chhssql.ABC.M4",
    "Orvo.IA.chhssql.ABC.N1", "Orvo.IA.chhssql.ABC.N2", "Orvo.IA.chhssql.ABC.N3", "Orvo.IA.chhssql.ABC.N4",
};
static_assert(std::size(kLabels) == std::size(kAbcOptions));
constexpr std::string_view kCaptions[][2] = {
    {kOk, "Orvo.IA.chhssql.ABC.Command1"},
    {kCancel, "Orvo.IA.chhssql.ABC.Command2"},
};

// The boxes that are meant for input, in the order in which Enter leads through them.
constexpr std::string_view kInputFields[] = {"Edit2", "Edit3", "Edit6", "Edit7"};

constexpr int kNoIcon = 0;

// A pair of shares that a user may set. One scale falls from A to C and the other rises.
struct Check {
    std::string_view higher, lower, message;
    int icon;
};
constexpr Check kChecks[] = {
    {"Edit2", "Edit3", "成本比重设置不正确，请修改！", kInformation},
    {"Edit7", "Edit6", "实物量比重设置不正确，请修改！", kNoIcon},
};

bool IsForInput(std::string_view field)
{
    return std::find(std::begin(kInputFields), std::end(kInputFields), field) != std::end(kInputFields);
}

}  // namespace

FrmOpt::FrmOpt(std::shared_ptr<FormHost> host) : objHost(std::move(host))
{
    const auto settings = CurrentPlatform().CreateSettingsStore();
    ResourceObject& resources = Resources();
    for (std::size_t i = 0; i < std::size(kAbcOptions); ++i) {
        const AbcOption& option = kAbcOptions[i];
        lstFields.push_back({std::string(option.field), resources.GetResString(std::string(kLabels[i])),
                             settings->Read(std::string(kAbcApplication), std::string(kAbcSection),
                                            std::string(option.key), std::string(option.byDefault)),
                             IsForInput(option.field)});
    }
    for (const auto& [command, key] : kCaptions)
        lstCommands.push_back({std::string(command), resources.GetResString(std::string(key))});
}

std::string FrmOpt::Title() const
{
    return "ABC分类控制比";
}

std::string FrmOpt::FieldAfter(std::string_view field) const
{
    const auto* const found = std::find(std::begin(kInputFields), std::end(kInputFields), field);
    if (found == std::end(kInputFields) || std::next(found) == std::end(kInputFields))
        return "";
    return std::string(*std::next(found));
}

bool FrmOpt::Click(std::string_view command)
{
    if (command == kOk)
        return Accept();
    if (command == kCancel)
        return true;
    throw Error("The form has no command " + std::string(command) + ".");
}

void FrmOpt::Unload()
{
    Resources().Unload();
}

double FrmOpt::NumberIn(std::string_view field) const
{
    for (const FormField& candidate : lstFields)
        if (candidate.name == field)
            return LeadingNumber(candidate.text);
    throw Error("The form has no field " + std::string(field) + ".");
}

bool FrmOpt::Accept()
{
    for (const Check& check : kChecks) {
        const double higher = NumberIn(check.higher);
        const double lower = NumberIn(check.lower);
        if (lower >= higher || higher > 100 || lower > 100 || higher == 0 || lower == 0) {
            objHost->ShowMessage(std::string(check.message), check.icon, "提示！");
            return false;
        }
    }
    const auto settings = CurrentPlatform().CreateSettingsStore();
    for (std::size_t i = 0; i < std::size(kAbcOptions); ++i)
        settings->Write(std::string(kAbcApplication), std::string(kAbcSection),
                        std::string(kAbcOptions[i].key), lstFields[i].text);
    return true;
}

}  // namespace kavelin
