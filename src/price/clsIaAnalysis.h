// Price analysis: the unit price of ledger lines and of monthly balances beside a base price that the user
// names, and their ratio and deviation in per cent.
#pragma once

#include "frame/Frame.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"

#include <string>

namespace kavelin {

class clsIaAnalysis {
  public:
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Errors of the call's argument and of the connection go to the host, all others end
    // the report quietly.
    void GETSQL(ReportCallArgs& e);

    // Makes the result table on gcnnAccount; for the frame. "" for a run that came to its end, " " after any
    // error.
    std::string MoveDataDetail();

    // Opens the document or the accounting voucher behind a row. Never fails.
    void Execute(DrillDownArgs& e);

  private:
    FrameContext objFrame;
};

}  // namespace kavelin
