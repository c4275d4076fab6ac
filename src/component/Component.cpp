#include "component/Component.h"

#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin {

std::shared_ptr<LateBound> CreateObject(std::string_view progId)
{
    for (const PublicClass& publicClass : PublicClasses())
        if (EqualsNoCase(progId, "Kavelin." + std::string(publicClass.name)))
            return publicClass.create();
    throw Error("There is no public class " + std::string(progId) + ".");
}

}  // namespace kavelin
