// What the statements of one run of the estimate balance are made from.
#pragma once

#include <string>

namespace kavelin {

struct EstimateRun {
    std::string strZgTable;     // work table: a line for each ledger line and pass that found it
    std::string strZgSumTable;  // its sums, a line for each document line
    std::string strVouCond;     // on the voucher types, of Ia_Subsidiary.cVouType
    std::string strValueStyle;  // the account's cValueStyle; read where it is needed

    std::string strYear;
    std::string strMonth;
    std::string strWhere;     // stands behind every condition on the ledger; begins with "and "
    std::string strBusTypes;  // quoted list
    bool blnEntrust = false;  // with consignment
    bool bOM = false;         // the account has outsourcing; no step acts on it
};

// How the balance of a line in the work table is closed, as the line holds it.
enum class CalMethod {
    Reversal = 0,           // opening, receipts and closing are known, the issue follows
    Unused = 1,             // no pass writes it
    Consignment = 2,        // the closing follows
    ArrivalDifference = 3,  // the closing follows
};

inline std::string NumberOf(CalMethod calMethod)
{
    return std::to_string(static_cast<int>(calMethod));
}

}  // namespace kavelin
