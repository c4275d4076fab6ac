// Keeps the portal for the reports whose rows open vouchers in it.
#pragma once

#include "frame/host/HostObject.h"

#include <memory>

namespace kavelin {

class ClsBusiness {
  public:
    // The host calls it before such a report; nothing else is needed.
    void Init(std::shared_ptr<LateBound> oBusiness);
};

}  // namespace kavelin
