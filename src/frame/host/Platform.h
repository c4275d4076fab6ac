// Everything that reaches the library from outside, in one object.
//
// Whoever embeds the library implements this class and hands it in with UsePlatform, once a thread,
// before the first report. The library makes nothing by itself: no connection, no GUID, no message.
#pragma once

#include "frame/Connection.h"
#include "frame/host/Form.h"
#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"
#include "frame/host/SuiteObjects.h"

#include <memory>
#include <string>

namespace kavelin {

class Platform {
  public:
    virtual ~Platform() = default;

    // A connection that is not open yet.
    virtual std::shared_ptr<Connection> CreateConnection() = 0;

    virtual std::shared_ptr<ResourceObject> CreateResourceObject() = 0;
    virtual std::shared_ptr<AuthService> CreateAuthService() = 0;
    virtual std::shared_ptr<LedgerLogin> CreateLedgerLogin() = 0;
    virtual std::shared_ptr<LedgerPub> CreateLedgerPub() = 0;
    virtual std::shared_ptr<LedgerParams> CreateLedgerParams() = 0;
    virtual std::shared_ptr<MachineInfo> CreateMachineInfo() = 0;
    virtual std::shared_ptr<ClientNumber> CreateClientNumber() = 0;
    virtual std::shared_ptr<SettingsStore> CreateSettingsStore() = 0;
    virtual std::shared_ptr<XmlDocument> CreateXmlDocument() = 0;
    virtual std::shared_ptr<FormHost> CreateFormHost() = 0;

    virtual Guid CreateGuid() = 0;

    // The sound that goes with a message to the user; nothing where there is none.
    virtual void Beep() = 0;

    // An object of the suite by its name, such as "Corvane.clsUniVch". Throws Error if there is none.
    virtual std::shared_ptr<LateBound> CreateObject(const std::string& name) = 0;
};

}  // namespace kavelin
