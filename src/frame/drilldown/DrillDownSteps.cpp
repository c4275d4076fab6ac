#include "frame/drilldown/DrillDownSteps.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Text.h"

#include <algorithm>

namespace kavelin {

std::string ReadCell(RowArguments& e, std::string_view column)
{
    std::string text;
    IgnoreErrors([&] { text = e.Cell(std::string(column)); });
    return text;
}

std::shared_ptr<LateBound> CreateQuiet(const std::string& name)
{
    std::shared_ptr<LateBound> object;
    IgnoreErrors([&] { object = CurrentPlatform().CreateObject(name); });
    return object;
}

std::string ReadParameterQuiet(const std::string& cSysID, const std::string& cName)
{
    std::string text;
    IgnoreErrors([&] {
        Existing(ModPub().gcnnAccount);
        text = ToText(GetAccInfoValue(cSysID, cName));
    });
    return text;
}

bool SameText(const DrillDownRules& rules, std::string_view a, std::string_view b)
{
    return rules.exact ? a == b : EqualsNoCase(a, b);
}

std::shared_ptr<LateBound> FindPortal(const DrillDownRules& rules, DrillTarget target)
{
    auto& portal = ModPub().gobjBusiness;
    if (!portal && std::ranges::find(rules.makesPortal, target) != rules.makesPortal.end())
        portal = CreateQuiet("VosPortalProxy.Business");
    return portal;
}

}  // namespace kavelin
