// Engine of the receipt-issue-balance summary. It makes the pool: one line for each ledger line and each line
// of a document not yet posted, with its share of opening balance, receipts or issues, and with what a report
// groups by. Conditions on balances and on business are the reader's to apply: the pool never depends on
// them.
#pragma once

#include "frame/Value.h"

#include <cstdint>
#include <string>

namespace kavelin {

// The arguments of GetSum, in the order of its interface. Those that are "not used" belong to the interface
// and change nothing.
struct SumArguments {
    std::string strInvCCode = {};  // class, with its sub-classes
    std::string strInvStart = {};  // lowest and highest inventory code
    std::string strInvEnd = {};
    Value varDateStart = {};  // not before the day on which the module starts, which is the default
    Value varDateEnd = {};
    std::string strWhDepCode = {};        // warehouses, as the list of an IN
    bool bAccount = false;                // read the ledger
    bool BUnAccount = false;              // read documents that are not posted
    std::int16_t iEndbz = 0;              // not used
    std::int16_t iEndbzPrice = 0;         // not used
    std::int16_t BFsbz = 0;               // not used
    std::string strCompareQuantity = {};  // not used
    // What follows may be left out.
    std::int16_t intInvCGrade = 0;    // not used
    bool blnUpGrade = false;          // not used
    std::int16_t intRdGrade = 0;      // levels of the receipt-issue class to keep; 0 keeps all
    bool blnWhSum = false;            // not used
    std::uint8_t bytFree = 0;         // 1: clear the free items that an item does not keep
    std::uint8_t bytDirect = 0;       // 1: read direct business
    std::string strDefineSub = {};    // further conditions, " 1=1 " for none
    std::string strDefineRec = {};    // not used
    std::string strDefineSal = {};    // not used
    std::string itemCls = {};         // project class
    std::string itemCode = {};        // project
    std::int16_t cAssComUnitNum = 0;  // number of the second unit; 0 for none
    std::int32_t nCount = 0;          // not used
};

class clsIASFCReport {
  public:
    std::string tmpTable;  // the pool's name

    // The same by another name.
    const std::string& sTable() const { return tmpTable; }
    void SetsTable(const std::string& table) { tmpTable = table; }

    // Makes the pool on gcnnAccount and gives an empty value. A pool of that name is dropped first. Any
    // failure goes to the caller, among them a missing or unreadable parameter of the account; the pool is
    // then as far as it got.
    Value GetSum(const SumArguments& arguments);
};

}  // namespace kavelin
