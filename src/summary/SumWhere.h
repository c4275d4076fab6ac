// Conditions of the summary's statements.
#pragma once

#include "summary/clsIASFCReport.h"

#include <string>

namespace kavelin {

// The days of a run as "2008-07-31", empty where there is no date.
struct SumPeriod {
    std::string strModuleStart;  // the parameter dIAStartDate as it stands
    std::string strStart;
    std::string strEnd;
};

// The period that the arguments ask for. It begins on the day on which the module starts if it would begin
// before it or has no beginning.
SumPeriod PeriodOf(const SumArguments& arguments, const std::string& moduleStart);

// Where clauses on the ledger for opening balances and for movement, and on the views of documents. They ask
// for the user's permissions on gcnnAccount. Without a first day the two of the ledger leave their date
// condition empty, which the server refuses.
struct LedgerWheres {
    std::string strOpening, strMovement;
};
LedgerWheres BuildLedgerWheres(const SumArguments& arguments, const SumPeriod& period);
std::string BuildUnpostedWhere(const SumArguments& arguments, const SumPeriod& period);

}  // namespace kavelin
