#include "frame/ClsBusiness.h"

#include "frame/ModPub.h"

namespace kavelin {

void ClsBusiness::Init(std::shared_ptr<LateBound> oBusiness)
{
    ModPub().gobjBusiness = std::move(oBusiness);
}

}  // namespace kavelin
