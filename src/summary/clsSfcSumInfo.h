// Receipt-issue-balance summary: the object that the host creates. It adds the frame to clsSFCSumCon.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"

#include <string>

namespace kavelin {

class clsSfcSumInfo {
  public:
    // Set by the host; nothing here reads them.
    HostObjectPtr ObjreportManager;
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;

    // The result table; the frame stores DataSource.sql in it.
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // Always empty: the host knows the table's name.
    std::string TempTablename() const { return {}; }

    // Makes the result table; for the frame. False after any error, of which nobody is told; the table is
    // then missing or as far as it got. True also where the filter can't be read: its message was shown, and
    // there is no table.
    bool MoveDataDetail();

    // The whole report. Errors of the call's argument and of the connections go to the host. A success closes
    // gcnnAccount; gcnnSystem stays open, and so does everything after a failure.
    void GETSQL(ReportCallArgs& e);

  private:
    FrameContext objFrame;
};

}  // namespace kavelin
