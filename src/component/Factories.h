// Makes late-bound objects of the public classes that this build holds, a function a class.
#pragma once

#include "frame/host/HostObject.h"

#include <memory>

namespace kavelin {

std::shared_ptr<LateBound> CreateProPortion();
std::shared_ptr<LateBound> CreateAreaStockReport();
std::shared_ptr<LateBound> CreateBusiness();
std::shared_ptr<LateBound> CreateWtInfo();
std::shared_ptr<LateBound> CreateStaCostacc();

}  // namespace kavelin
