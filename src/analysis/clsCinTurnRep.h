// Inventory turnover: for a range of dates and a grouping of one's choice, stock at both ends, average stock,
// issues, how often the stock turned over and in how many days.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"

#include <string>

namespace kavelin {

class clsCinTurnRep {
  public:
    // Set by the host; nothing here reads them.
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;

    // Asked for the report's format, of which columns without content are taken out.
    HostObjectPtr& ObjreportManager() { return objFrame.objReportManager; }

    // The result table; the frame stores DataSource.sql in it.
    const std::string& TempTablename() const { return objFrame.strTable; }
    void SetTempTablename(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Any failure goes to the host; the working tables then stay until their next use.
    void GETSQL(ReportCallArgs& e);
    void GetSqlForOld(LateBound& e);

    // Makes the result table; for the frame. True.
    bool MoveDataDetail();

  private:
    FrameContext objFrame;
};

}  // namespace kavelin
