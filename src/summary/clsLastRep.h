// Estimate balance: of goods that came before their invoice and were booked at an estimated cost, what was
// open at the start of a month, what came in, what was settled, what is open at its end.
//
// How the ledger tells that depends on the account's method of estimate. Every method fills the same work
// table, whose lines are summed up by document line and become the report.
#pragma once

#include "frame/Frame.h"
#include "frame/host/HostObject.h"
#include "summary/EstimateFilter.h"

#include <string>

namespace kavelin {

class clsLastRep {
  public:
    // Set by the host; nothing here reads them.
    std::string ReportTitle;
    HostObjectPtr ObjLogin;
    std::string mConnectionString;

    // The host's, and GetSqlForOld stores that of its argument.
    HostObjectPtr& ObjreportManager() { return objFrame.objReportManager; }

    // The result table; the frame stores DataSource.sql in it.
    const std::string& TempTablename() const { return objFrame.strTable; }
    void SetTempTablename(const std::string& table) { objFrame.strTable = table; }

    // The whole report. What fails before MoveDataDetail goes to the host.
    void GetSqlForOld(LateBound& e);
    void GETSQL(LateBound& e);

    // Makes the result table; for the frame. A failure behind the first parameters gives false, without a
    // word, and leaves the work tables behind.
    bool MoveDataDetail();

    // Makes the result table from the sums in `sSumTable`; a table of its name goes first. `bOM` is not read.
    // Always false.
    bool Createsql(const std::string& sSumTable, bool bOM);

  private:
    bool LocalizeBusType(const std::string& strTable);

    FrameContext objFrame;
    EstimateConditions objConditions;
};

}  // namespace kavelin
