// ABC analysis: the items of a month in classes by their share of quantity and of money. A report's own page
// can draw it again for one class only, or change the thresholds.
#pragma once

#include "frame/Frame.h"
#include "frame/RowArguments.h"
#include "frame/host/HostObject.h"

#include <string>

namespace kavelin {

class ClsABC {
  public:
    // Set by the host; nothing here reads them. The frame stores the first.
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;
    HostObjectPtr& ObjreportManager() { return objFrame.objReportManager; }

    // The result table; the frame stores DataSource.sql in it.
    const std::string& TempTablename() const { return objFrame.strTable; }
    void SetTempTablename(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Both take their argument late-bound. Any failure goes to the host; the working tables
    // then stay.
    void GETSQL(LateBound& e);
    void GetSqlForOld(LateBound& e);

    // Makes the result table; for the frame. True.
    bool MoveDataDetail();

    // A command of the report's toolbar: "ActA", "ActB", "ActC" leave one class and draw the report again,
    // "ActOption" shows the thresholds. Every error is passed over.
    void Execute(DrillDownArgs& e);
    void ExecuteForOld(LateBound& e);

  private:
    void Act(RowArguments& arguments, LateBound& e);

    FrameContext objFrame;
    bool blnFromDialog = false;
    bool blnActA = false;
    bool blnActB = false;
    bool blnActC = false;
};

}  // namespace kavelin
