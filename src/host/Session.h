// A user at work in an account.
#pragma once

#include "frame/Connection.h"
#include "host/AccountLogin.h"
#include "host/HostConnection.h"
#include "host/HostPlatform.h"

#include <memory>
#include <vector>

namespace kavelin::host {

// Opens the account at construction and keeps it open, so that an embedded account stays loaded. For one
// thread.
class Session {
  public:
    // Throws ConnectionError; DatabaseError if the account's periods cannot be read.
    Session(AccountLogin login, ConnectionSource connections, MessageSink onMessage = {});
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The host's own connection, which is open.
    Connection& Account() { return *cnnHost; }
    const ConnectionSource& Connections() const { return objConnections; }

    // With year and month filled in.
    const std::shared_ptr<HostLogin>& Login() const { return objLogin; }

    // What the library gets from outside.
    const std::shared_ptr<Platform>& PlatformOfUser() const { return objPlatform; }

    // What was shown to the user since the messages were forgotten; each has gone to `onMessage` too.
    const std::vector<ShownMessage>& Messages() const { return lstMessages; }
    void ForgetMessages() { lstMessages.clear(); }

    // Who takes what viewers open; nobody at first.
    void SetViewer(ViewerSink onShow) { objOnShow = std::move(onShow); }

  private:
    ConnectionSource objConnections;
    std::shared_ptr<Connection> cnnHost;
    std::shared_ptr<HostLogin> objLogin;
    std::shared_ptr<Platform> objPlatform;
    MessageSink objOnMessage;
    ViewerSink objOnShow;
    std::vector<ShownMessage> lstMessages;
};

// While it lives the library of this thread serves the session; afterwards it has no platform, and whatever
// was left open is closed. At most one on a thread.
class LibraryUse {
  public:
    explicit LibraryUse(const Session& session);
    ~LibraryUse();
    LibraryUse(const LibraryUse&) = delete;
    LibraryUse& operator=(const LibraryUse&) = delete;
};

}  // namespace kavelin::host
