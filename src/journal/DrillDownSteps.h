// Steps that every drill-down takes.
#pragma once

#include "frame/RowArguments.h"
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

}  // namespace kavelin
