// The journal of an account on standard cost: ledger rows with what they should cost, by how much each cost
// element differs, and the accounts of both. A view of the account holds them; the report copies what its
// filter lets through. Documents that are not posted have no part in it.
#pragma once

#include "frame/Frame.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"
#include "journal/CostFilter.h"

#include <cstdint>
#include <string>

namespace kavelin {

class clsStaCostacc {
  public:
    const std::string& sarn_tmpTable() const { return objFrame.strTable; }
    void SetTempTable(const std::string& table) { objFrame.strTable = table; }

    // The whole report. Errors of the call's argument and of the connection go to the host, all others end
    // the report quietly.
    void GETSQL(ReportCallArgs& e);
    void GetSqlForOld(LateBound& e);

    // Makes the result table on gcnnAccount; for the frame. "" for a run that came to its end, also after
    // errors that were shown to the user; " " for any other failure.
    std::string MoveDataDetail();

    // Makes `WtTableName` with the rows that meet `sConditionWhere`; a table of that name goes first. The
    // lists of voucher and business types are quoted, or empty for all. The other arguments have no part in
    // it. Errors are shown to the user; False if the rows or their vouchers are not all there.
    bool CreateCostInfoTable(bool bAccounted, bool bUnAccounted, const std::string& WtTableName,
                             const std::string& sConditionWhere, const std::string& sVouTypeWhere,
                             const std::string& sBusTypeWhere, const std::string& sLang,
                             std::int32_t m_cAssunitNo);

    // Opens the document, the accounting voucher or the difference voucher behind a row. Never fails.
    void Execute(DrillDownArgs& e);

  private:
    FrameContext objFrame;
    CostConditions objConditions;
};

}  // namespace kavelin
