// The detail ledger of goods in transit by cost item: for one inventory an opening row, each ledger line with
// the balance up to it, and behind the lines of a month its total and the total of all months so far.
#pragma once

#include "frame/Frame.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"

#include <string>

namespace kavelin {

class ClsOutDetailInfo {
  public:
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Errors of the call's argument and of the connection go to the host, all others end
    // the report quietly.
    void GETSQL(ReportCallArgs& e);

    // Makes the result table on gcnnAccount; for the frame. "" for success, " " for any error, of which
    // nobody is told. The work table stays behind either way.
    std::string MoveDataDetail();

    // Opens the document, the accounting voucher or the difference voucher behind a row. Never fails.
    void Execute(DrillDownArgs& e);

  private:
    void Run();

    FrameContext objFrame;
};

}  // namespace kavelin
