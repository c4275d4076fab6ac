// Steps that every drill-down takes.
#pragma once

#include "frame/drilldown/DrillDown.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string>
#include <string_view>

namespace kavelin {

// The cell; "" if the row lacks it or can't be read.
std::string ReadCell(RowArguments& e, std::string_view column);

// An object of the suite by its name; null if there is none.
std::shared_ptr<LateBound> CreateQuiet(const std::string& name);

// An account parameter as text; "" if it can't be read.
std::string ReadParameterQuiet(const std::string& cSysID, const std::string& cName);

// Whether two texts are the same in the way in which the report compares them.
bool SameText(const DrillDownRules& rules, std::string_view a, std::string_view b);

// The portal that the host gave, else one that is made and kept if the report makes one on the way to
// `target`; null if there is none.
std::shared_ptr<LateBound> FindPortal(const DrillDownRules& rules, DrillTarget target);

}  // namespace kavelin
