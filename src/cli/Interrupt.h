// Ctrl-C while something runs: the first stops the statement at work, the second ends the program at once.
#pragma once

#include "host/StatementLog.h"

#include <memory>
#include <thread>

namespace kavelin::cli {

// From construction to destruction SIGINT cancels through `cancellation` instead of ending the program.
// At most one at a time. The handler only writes into a pipe; a thread of this object does the rest.
class Interrupt {
  public:
    explicit Interrupt(std::shared_ptr<host::Cancellation> cancellation);
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    // Whether Ctrl-C was pressed since the program began.
    static bool Happened();

  private:
    void Watch();

    std::shared_ptr<host::Cancellation> objCancellation;
    std::thread objWatcher;
};

}  // namespace kavelin::cli
