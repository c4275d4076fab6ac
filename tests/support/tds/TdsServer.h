// An SQL Server look-alike: it speaks the Tabular Data Stream protocol on 127.0.0.1 and runs the batches that
// come on an embedded account. With it, drivers, adapters and programs that are made for a server are tested
// where none is.
//
// A client needs protocol 7.2 to 7.4 and no encryption, and sends batches or prepared statements without
// parameters: no other procedures, no bulk load, no transactions. Names without a database always mean the
// account, whatever database the session is in. A batch ends at its first error.
#pragma once

#include "support/tds/Faults.h"
#include "support/tds/LoginMessage.h"
#include "support/tds/OwnAnswers.h"
#include "support/tds/ServerOptions.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

class TdsServer {
  public:
    // Begins to serve at once. Throws Error if the port is taken or the account cannot be opened. The account
    // stays open, so tables of tempdb outlive the sessions.
    explicit TdsServer(ServerOptions options);
    ~TdsServer();
    TdsServer(const TdsServer&) = delete;
    TdsServer& operator=(const TdsServer&) = delete;

    std::uint16_t Port() const;

    // Ends all sessions, waits for their threads and closes the account. Twice is no error.
    void Stop();

    void Order(Fault fault);
    void ClearFaults();

    // The result of that batch from now on, without regard to letter case and the number of blanks: for types
    // and values that no embedded account gives.
    void Answer(std::string_view batch, OwnResult result);

    // What came, in order: batches as they stood, logins with their passwords. Also those that failed.
    std::vector<std::string> Batches() const;
    std::vector<LoginMessage> Logins() const;

    const ServerOptions& Options() const;

  private:
    class Listener;
    std::unique_ptr<Listener> objListener;
};

}  // namespace kavelin::test::tds
