#include "journal/DrillDownSteps.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

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

}  // namespace kavelin
