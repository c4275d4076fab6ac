#include "frame/drilldown/DrillDownDocument.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/drilldown/DrillDownSteps.h"
#include "frame/host/ConnectionObject.h"

#include <algorithm>

namespace kavelin {

namespace {

constexpr std::string_view kIndustrial = "工业";  // edition of an account

DocumentRow ReadRow(const DocumentCells& cells, RowArguments& e)
{
    DocumentRow row;
    row.vouType = ReadCell(e, cells.vouType);
    row.vouCode = ReadCell(e, cells.vouCode);
    row.busType = ReadCell(e, cells.busType);
    row.id = ReadCell(e, cells.id);
    row.autoId = ReadCell(e, cells.autoId);
    // The row shows the business type in the user's language; the viewer wants its code.
    if (ModPub().gstrLanguage != "zh-CN")
        IgnoreErrors([&] { row.busType = Resources().GetEnumCode("IA.BusType", row.busType); });
    return row;
}

constexpr std::string_view kCostAdjustment[] = {"22"};
constexpr std::string_view kAdjustments[] = {"21", "20"};
constexpr std::string_view kSettlements[] = {"24", "30"};
constexpr std::string_view kDifferences[] = {"35"};

// clang-format off
constexpr DocumentKind kOrdinaryKinds[] = {
    // types          call                           key
    {kCostAdjustment, ViewerCall::ShowCostJustVouch, &DocumentRow::vouCode},
    {kAdjustments,    ViewerCall::ShowVoucher,       &DocumentRow::vouCode},
    {kSettlements,    ViewerCall::ShowVoucher,       &DocumentRow::autoId },
    {kDifferences,    ViewerCall::ShowDifVouchs,     &DocumentRow::vouCode},
    {{},              ViewerCall::ShowVoucher,       &DocumentRow::id     },
};
// clang-format on

const DocumentKind& KindOf(const DrillDownRules& rules, const std::string& vouType)
{
    const auto isOf = [&](const DocumentKind& kind) {
        return kind.vouTypes.empty() || std::ranges::any_of(kind.vouTypes, [&](std::string_view type) {
                   return SameText(rules, vouType, type);
               });
    };
    const auto own = std::ranges::find_if(rules.ownKinds, isOf);
    return own != rules.ownKinds.end() ? *own : *std::ranges::find_if(kOrdinaryKinds, isOf);
}

// ---- what goes to the viewer by reference, and comes back

Variant AccountArgument()
{
    const auto& connection = ModPub().gcnnAccount;
    return connection ? std::make_shared<ConnectionObject>(connection) : HostObjectPtr();
}

Variant LoginArgument()
{
    return HostObjectPtr(ModPub().gobjLogin);
}

bool IsNothing(const Variant& argument)
{
    const auto* object = std::get_if<HostObjectPtr>(&argument);
    return object && !*object;
}

void TakeAccount(const Variant& argument)
{
    ModPub().gcnnAccount =
        IsNothing(argument) ? nullptr : ObjectOf<ConnectionObject>(argument, "connection")->Connection();
}

void TakeLogin(const Variant& argument)
{
    ModPub().gobjLogin = IsNothing(argument) ? nullptr : ObjectOf<LoginContext>(argument, "login");
}

// Calls the viewer with the connection as the first argument and, if `withLogin`, the login as the last, and
// takes back what it put in their place.
void CallViewer(const std::shared_ptr<LateBound>& viewer, std::string_view member,
                std::vector<Variant> arguments, bool withLogin)
{
    arguments.insert(arguments.begin(), AccountArgument());
    if (withLogin)
        arguments.push_back(LoginArgument());
    IgnoreErrors([&] { Existing(viewer).CallByReference(member, arguments); });
    IgnoreErrors([&] { TakeAccount(arguments.front()); });
    if (withLogin)
        IgnoreErrors([&] { TakeLogin(arguments.back()); });
}

void RunCommand(const DrillDownRules& rules, const std::string& command)
{
    const auto portal = FindPortal(rules, DrillTarget::Document);
    IgnoreErrors([&] { Existing(portal).Call("RunCommand", {Value(command)}); });
}

std::string TypeForViewer(const DrillDownRules& rules, const DocumentKind& kind, const DocumentRow& row)
{
    if (kind.vouTypes.empty())
        for (const ViewerType& type : rules.viewerTypes)
            if (SameText(rules, row.vouType, type.vouType) && SameText(rules, row.busType, type.busType))
                return std::string(type.shownAs);
    return row.vouType;
}

}  // namespace

void OpenDocument(const DrillDownRules& rules, RowArguments& e)
{
    const DocumentRow row = ReadRow(rules.document, e);

    const auto viewer = CreateQuiet("Corvane.clsUniVch");
    const std::string edition = ReadParameterQuiet("AA", "cSysVersion");
    CallViewer(viewer, "Init", {Value(edition)}, true);

    const DocumentKind& kind = KindOf(rules, row.vouType);
    const std::string& key = row.*kind.key;
    const Variant nothing = HostObjectPtr();
    switch (kind.call) {
        case ViewerCall::ShowVoucher:
            CallViewer(viewer, "ShowVoucher",
                       {Value(edition), Value(TypeForViewer(rules, kind, row)), Value(key), nothing}, true);
            break;
        case ViewerCall::ShowCostJustVouch:
            CallViewer(viewer, "ShowCostJustVouch", {Value(Trim(key)), nothing, Value(edition), Value(true)},
                       false);
            break;
        case ViewerCall::ShowDifVouchs:
            CallViewer(
                viewer, "ShowDifVouchs",
                {Value(edition != kIndustrial), Value(ReadParameterQuiet("IA", "cValueStyle")), Value(key)},
                false);
            break;
        case ViewerCall::RunCommand:
            RunCommand(rules, std::string(kind.command.before) + key + std::string(kind.command.behind));
            break;
    }
}

}  // namespace kavelin
