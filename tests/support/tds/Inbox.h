// What a client has sent and has no answer to yet.
#pragma once

#include "support/tds/Packets.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace kavelin::test::tds {

// A thread of its own fills it, so that the wish to stop a statement is heard while the statement runs.
class Inbox {
  public:
    void Push(Message message);
    void End();  // nothing more comes

    // Waits for the next message; nothing if none comes any more.
    std::optional<Message> Pop();

    // Whether the client wants the running statement stopped, or is gone.
    bool Interrupted();

    // Waits that long, less if interrupted.
    void WaitInterrupted(std::chrono::milliseconds time);

  private:
    bool IsInterrupted() const;

    std::mutex objMutex;
    std::condition_variable objChanged;
    std::deque<Message> lstMessages;
    bool blnEnded = false;
};

}  // namespace kavelin::test::tds
