// One line on a terminal that tells what runs, once a run takes over a second:
//
//   statement 2 of 14: select into ia_ProPortionRpt_temp1 (1.4 s)
#pragma once

#include "host/StatementLog.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace kavelin::cli {

class ProgressLine : public host::StatementObserver {
  public:
    // `statements`: how many a usual run sends, 0 if nobody knows.
    explicit ProgressLine(int statements);
    ~ProgressLine() override;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Begins(const std::string& sql, const std::string& connection) override;

    // Another text than that of a statement: "3,000 of 6,000 ledger lines".
    void Show(std::string text);

    // Takes the line away before something else is written to the terminal. It comes back with the next
    // statement if `forGood` is false.
    void Hide(bool forGood = false);

  private:
    using Clock = std::chrono::steady_clock;

    void Run();
    void Draw();
    void Erase();

    const Clock::time_point datBegin = Clock::now();
    int lngStatements = 0;
    int lngStatement = 0;
    std::string strText;
    bool blnDrawn = false;
    bool blnEnd = false;
    std::mutex objMutex;
    std::condition_variable objEnded;
    std::thread objTicker;
};

}  // namespace kavelin::cli
