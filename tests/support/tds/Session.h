// The conversation with one client, from its first packet to its last.
#pragma once

#include "frame/Connection.h"
#include "support/tds/Inbox.h"
#include "support/tds/LoginMessage.h"
#include "support/tds/OwnAnswers.h"
#include "support/tds/Packets.h"
#include "support/tds/ProcedureCall.h"
#include "support/tds/ServerState.h"
#include "support/tds/Tokens.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace kavelin::test::tds {

class Session {
  public:
    Session(int handle, ServerState& state);

    // To the end of the conversation, whoever ends it. Throws nothing that a client's doing may cause.
    void Run();

    // Ends it from another thread.
    void Drop() noexcept { objSocket.Drop(); }

  private:
    bool Welcome();  // whether the client is let in
    bool LogIn(const LoginMessage& login);
    void RefuseLogin(const LoginMessage& login, std::int32_t number, int severity, const std::string& text);
    void OpenAccount();
    void ReadOn();
    void Converse();
    void AnswerMessage(const Message& message);

    void AnswerBatch(const std::string& batch);
    void AnswerCall(const ProcedureCall& call);
    bool RunBatch(const std::string& batch, Follows follows);  // as BatchRun::Run

    ServerState& objState;
    Socket objSocket;
    Answer objAnswer;
    Inbox objInbox;
    SessionSettings objSettings;
    std::map<std::int32_t, std::string> dicPrepared;
    std::int32_t lngLastHandle = 0;
    std::shared_ptr<Connection> cnnAccount;
};

}  // namespace kavelin::test::tds
