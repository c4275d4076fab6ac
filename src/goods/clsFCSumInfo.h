// Goods-in-transit summary: for each line that put goods in transit its opening, what it received and dispatched,
// and its end balance, in pieces, quantity and amount.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"
#include "goods/GoodsSumFilter.h"

#include <string>

namespace kavelin {

class clsFCSumInfo {
  public:
    // Set by the host; nothing here reads them.
    HostObjectPtr ObjreportManager;
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;

    // The result table that the host named.
    const std::string& TempTablename() const { return objFrame.strTable; }

    // The whole report. Errors of the call's argument and of the connection go to the host. Errors of statements
    // are shown to the user, all others pass; the result table may then be missing.
    void GETSQL(ReportCallArgs& e);
    void GetSqlForOld(LateBound& e);

    // Makes the result table on gcnnAccount; for the frame. True for a run that came to its end, also after
    // errors that were shown to the user. The work table stays until the next run.
    bool MoveDataDetail();

    // Takes any text and gives "".
    std::string GetViewFilter(const std::string& strFilter);

  private:
    FrameContext objFrame;
    GoodsSumConditions objConditions;
};

}  // namespace kavelin
