// Goods in transit, summed up by source line and split into cost items: opening, received, dispatched and end
// balance, each with standard cost, differences and real cost. For accounts on standard cost.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"

#include <string>

namespace kavelin {

class ClsFCInventory {
  public:
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Errors of the call's argument and of the connection go to the host, all others end
    // the report quietly.
    void GETSQL(ReportCallArgs& e);

    // Makes the result table on gcnnAccount; for the frame. "" for success, " " for any error, of which
    // nobody is told. The work table stays behind either way.
    std::string MoveDataDetail();

  private:
    void Run();

    FrameContext objFrame;
};

}  // namespace kavelin
