// Where the thread that cancels meets the one whose statement runs.
#pragma once

#include <mutex>

namespace kavelin::odbc {

class CancelGate {
  public:
    // A statement's handle may be cancelled from Enter until Leave.
    void Enter(void* statement);
    void Leave();

    // Cancels the statement that runs, from any thread. Nothing if none runs.
    void Cancel() noexcept;

    // Whether Cancel met the statement that entered last.
    bool IsCancelled() const;

  private:
    mutable std::mutex objMutex;
    void* objStatement = nullptr;
    bool blnCancelled = false;
};

}  // namespace kavelin::odbc
