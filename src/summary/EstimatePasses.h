// The passes that fill the work table from the ledger. Each pass is a table of statements, in running order.
//
// How the methods book a receipt of 100 pieces, estimated at 1,000 in March, whose invoice of 30 pieces at
// 330 comes in May (`e` is an estimate line, bFlag 1):
//
//   month-start reversal   March 01e +100 1,000   April, May ... 24e -100 -1,000, later 30e +100 1,000;
//                                                 in May 30 +30 330, 30e +70 700
//   arrival reversal       March 01e +100 1,000   May 24e -100 -1,000, 30 +30 330, 30e +70 700
//   arrival difference     March 01e +100 1,000   May 20 with the difference 30, and a settlement of 30
//                                                 pieces at 330
#pragma once

#include "summary/EstimateRun.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// Inserts a line for each ledger line that it finds.
struct EstimateStatement {
    std::string_view fills;    // columns of the work table: a quantity, and a money where that is read
    std::string_view vouType;  // the type of the document that was estimated
    std::string_view quantity;
    std::string_view money;                                                // empty where money is not read
    std::string (*lines)(const EstimateRun& run, std::string_view month);  // joins and condition
    std::string_view month;         // how the month of what is looked at compares with that of the run
    std::string_view further = {};  // condition on the ledger line
};

std::span<const EstimateStatement> MonthReversal();
std::span<const EstimateStatement> ArrivalReversal();
std::span<const EstimateStatement> ArrivalDifference();

// For a run whose only business type is consignment.
std::span<const EstimateStatement> Consignment();

std::string InsertEstimates(const EstimateRun& run, const EstimateStatement& statement, CalMethod calMethod);

// The condition on voucher types, put on the type of the document that a line goes back to.
std::string OnSourceType(const std::string& strVouCond);

}  // namespace kavelin
