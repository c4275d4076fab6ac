#include "component/Component.h"

#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

constexpr std::string_view kPrefix = "Kavelin.";

const PublicClass* Find(std::string_view progId)
{
    for (const PublicClass& publicClass : PublicClasses())
        if (EqualsNoCase(progId, std::string(kPrefix) + std::string(publicClass.name)))
            return &publicClass;
    return nullptr;
}

}  // namespace

std::shared_ptr<LateBound> CreateObject(std::string_view progId)
{
    const PublicClass* found = Find(progId);
    if (!found)
        throw Error("There is no public class " + std::string(progId) + ".");
    if (!found->create)
        throw Error("This build doesn't hold the class " + std::string(progId) + ".");
    return found->create();
}

bool CanCreate(std::string_view progId)
{
    const PublicClass* found = Find(progId);
    return found && found->create;
}

}  // namespace kavelin
