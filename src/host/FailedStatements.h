// Statements of reports that failed, also those whose failure a report passes over without a word.
#pragma once

#include "host/StatementLog.h"

#include <optional>
#include <string>

namespace kavelin::host {

// Drops don't count: reports drop tables that may not be there.
class FailedStatements : public StatementObserver {
  public:
    void Ended(const StatementRecord& record) override;

    // The message of the first failure since Forget.
    const std::optional<std::string>& First() const { return strFirst; }
    // The message of the failure with which the connection was lost since Forget, of whatever statement.
    const std::optional<std::string>& Loss() const { return strLoss; }
    void Forget()
    {
        strFirst.reset();
        strLoss.reset();
    }

  private:
    std::optional<std::string> strFirst;
    std::optional<std::string> strLoss;
};

}  // namespace kavelin::host
