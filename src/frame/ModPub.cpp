#include "frame/ModPub.h"

#include "frame/Errors.h"

namespace kavelin {

ModPubState& ModPub()
{
    thread_local ModPubState state;
    return state;
}

void UsePlatform(std::shared_ptr<Platform> platform)
{
    ModPub() = ModPubState{};
    ModPub().gobjPlatform = std::move(platform);
}

Platform& CurrentPlatform()
{
    if (!ModPub().gobjPlatform)
        throw Error("No platform was handed in on this thread: UsePlatform comes before the first report.");
    return *ModPub().gobjPlatform;
}

ResourceObject& Resources()
{
    if (!ModPub().gobjRes)
        ModPub().gobjRes = CurrentPlatform().CreateResourceObject();
    return *ModPub().gobjRes;
}

MachineInfo& Machine()
{
    if (!ModPub().gobjMachineInfo)
        ModPub().gobjMachineInfo = CurrentPlatform().CreateMachineInfo();
    return *ModPub().gobjMachineInfo;
}

}  // namespace kavelin
