// Receipts and issues of the ledger rows of an area. The rows were selected elsewhere: the host names a
// table of ledger rows and a table of the row numbers that make up the area.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"

namespace kavelin {

class clsAreaStockReport {
  public:
    // Runs one statement and closes gcnnAccount. Any failure goes to the host, and the connection stays open.
    void GETSQL(ReportCallArgs& e);

  private:
    FrameContext objFrame;
};

}  // namespace kavelin
