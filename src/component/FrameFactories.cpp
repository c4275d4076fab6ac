// The late-bound object by which a host hands over its portal.
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/ClsBusiness.h"

#include <utility>
#include <vector>

namespace kavelin {

std::shared_ptr<LateBound> CreateBusiness()
{
    std::vector<Dispatch> dispatch = {
        Method("Init", 1,
               [](const std::vector<Variant>& arguments) {
                   ClsBusiness().Init(automation::As<LateBound>(arguments[0], "oBusiness"));
                   return Variant(Value());
               }),
    };
    return MakeLateBound(nullptr, std::move(dispatch));
}

}  // namespace kavelin
