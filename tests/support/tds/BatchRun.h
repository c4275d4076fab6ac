// A batch on the account: statement by statement, with the faults that a test ordered, into the answer.
#pragma once

#include "frame/Connection.h"
#include "support/tds/Inbox.h"
#include "support/tds/OwnAnswers.h"
#include "support/tds/Packets.h"
#include "support/tds/ServerState.h"
#include "support/tds/Tokens.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavelin::test::tds {

class BatchRun {
  public:
    // All that is handed in must outlive the object.
    BatchRun(ServerState& state, Connection& account, Answer& answer, Inbox& inbox,
             SessionSettings& settings);

    // Whether the answer may end: that of a batch that was stopped ends with the answer to the attention.
    // `follows` tells what is behind the batch in the same answer. Throws ProtocolError where the connection
    // is to end.
    bool Run(const std::string& batch, Follows follows);

  private:
    // A statement with its place.
    struct Piece {
        std::string sql;
        std::int32_t line = 1;  // of the batch, on which it begins
        bool givesRows = false;
        Follows follows = Follows::More;
    };
    static std::vector<Piece> PiecesOf(const std::string& batch, Follows follows);

    void RunStatements(const std::string& batch, const std::optional<Fault>& fault, Follows follows);
    bool RunPiece(const Piece& piece, const std::optional<Fault>& fault);
    void SendRows(const Piece& piece, const std::optional<Fault>& fault);
    void SendOwnResult(const OwnResult& result, Follows follows);

    ServerState& objState;
    Connection& cnnAccount;
    Answer& objAnswer;
    Inbox& objInbox;
    SessionSettings& objSettings;
};

}  // namespace kavelin::test::tds
