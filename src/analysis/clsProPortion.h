// Capital share: how much capital each inventory item ties up over a range of dates, and its share of
// the total. The smallest whole report: frame, filter walk, a chain of work tables, a result for the host.
//
// Its work tables are plain tables of the account under fixed names, which the account database shows to
// others too. So one run at a time is at work in an account: a second one drops the tables of the first.
#pragma once

#include "frame/Frame.h"
#include "frame/host/ReportCallArgs.h"

#include <memory>
#include <string>

namespace kavelin {

class clsProPortion {
  public:
    // Set by the host; nothing here reads them.
    HostObjectPtr ObjreportManager;
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;

    // The result table; the frame stores DataSource.sql in it.
    const std::string& TempTablename() const { return objFrame.strTable; }
    void SetTempTablename(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Any failure goes to the host; the work tables and the connections then stay.
    void GETSQL(ReportCallArgs& e);

    // Makes the result table on the report's own connection; for the frame. True.
    bool MoveDataDetail();

  private:
    FrameContext objFrame;
};

}  // namespace kavelin
