// The inventory journal: ledger rows and documents that are not posted yet, one row a line. The report to
// read first: filter walk (WtFilter), statements (Wt...), the run (ModWtInfo), and the drill-down from a row
// to its document or accounting voucher.
#pragma once

#include "frame/Frame.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"
#include "journal/WtFilter.h"

#include <string>

namespace kavelin {

class ClsWtInfo {
  public:
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // Always empty: the name of the result table is in sarn_tmpTable.
    std::string TempTablename() const { return ""; }

    // The whole report. Errors of the call's argument and of the connection go to the host, all others end
    // the report quietly.
    void GETSQL(ReportCallArgs& e);
    void GetSqlForOld(LateBound& e);

    // Makes the result table on gcnnAccount; for the frame. "" for a run that came to its end, also after
    // errors that were shown to the user; " " for any other failure.
    std::string MoveDataDetail();

    // Opens the document or the accounting voucher behind a row. Never fails. The two differ in one voucher
    // type.
    void Execute(DrillDownArgs& e);
    void ExecuteForOld(LateBound& e);

  private:
    FrameContext objFrame;
    WtConditions objConditions;
};

}  // namespace kavelin
