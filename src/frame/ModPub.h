// The state that all reports of a thread share. It lives as long as the thread; a failed report leaves
// its connection in it, and the next call replaces what it finds.
#pragma once

#include "frame/Connection.h"
#include "frame/Text.h"
#include "frame/host/LoginContext.h"
#include "frame/host/Platform.h"
#include "frame/host/SuiteObjects.h"

#include <map>
#include <memory>
#include <string>

namespace kavelin {

struct ModPubState {
    std::shared_ptr<Platform> gobjPlatform;  // see UsePlatform

    std::shared_ptr<Connection> gcnnAccount;  // account database; every frame
    std::shared_ptr<Connection> gcnnSystem;   // system database; clsSfcSumInfo and clsCinTurnRep only
    std::shared_ptr<LoginContext> gobjLogin;  // of the latest call
    std::string gstrLanguage;                 // LangID of the latest call that read it

    std::shared_ptr<MachineInfo> gobjMachineInfo;
    std::shared_ptr<LateBound> gobjBusiness;  // the portal; ClsBusiness.Init
    std::shared_ptr<ResourceObject> gobjRes;
    std::shared_ptr<AuthService> gobjAuth;  // only while a list is asked for

    std::shared_ptr<LedgerLogin> gobjLedgerLogin;
    std::shared_ptr<LedgerPub> gobjLedgerPub;
    std::shared_ptr<LedgerParams> gobjLedgerParams;

    std::string gstrCurrentPeriod;                                // "2008.07"
    std::map<std::string, std::string, LessNoCase> gdicAccMonth;  // open fiscal months
};

// The calling thread's copy.
ModPubState& ModPub();

// Gives the calling thread its platform and forgets all other state of the thread.
void UsePlatform(std::shared_ptr<Platform> platform);

// The calling thread's platform. Throws Error if it has none.
Platform& CurrentPlatform();

// Made at first use and kept.
ResourceObject& Resources();
MachineInfo& Machine();

}  // namespace kavelin
