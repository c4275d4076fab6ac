// The conditions of the receipt-issue-balance summary: what its filter says, as typed values. They are the
// public properties of clsSFCSumCon, in the order of its interface.
#pragma once

#include "frame/Errors.h"
#include "frame/Value.h"

#include <array>
#include <cstdint>
#include <string>

namespace kavelin {

// A property with an index, 0 or 1. Any other index throws Error.
template <class T>
class IndexedPair {
  public:
    T& operator()(std::uint8_t Index) { return arrValues[Checked(Index)]; }
    const T& operator()(std::uint8_t Index) const { return arrValues[Checked(Index)]; }

  private:
    static std::uint8_t Checked(std::uint8_t index)
    {
        if (index > 1)
            throw Error("Subscript out of range.");
        return index;
    }

    std::array<T, 2> arrValues{};
};

// "Carried" is said of values that a host may set and read and that change nothing in the summary's table.
struct SumConditions {
    std::string strInvCCode;              // inventory class, with its sub-classes
    std::string strInvCName;              // carried
    IndexedPair<std::string> strInvName;  // carried
    IndexedPair<std::string> strInvCode;  // lowest and highest inventory code
    IndexedPair<Value> varDate;           // first and last day
    std::string strWhCode;                // warehouses as a list of literals, ready for an IN
    std::string strWhStyle;               // carried
    std::int16_t intInvGrade = 0;         // carried
    std::int16_t intRdGrade = 0;          // levels of the receipt-issue class to keep; 0 keeps all
    bool blnWhSum = false;                // carried
    std::uint8_t bytDirect = 0;           // 1: direct business is read
    std::uint8_t bytFree = 0;             // 1: free items that the inventory does not use are cleared
    std::int16_t IntThanZero = 0;         // carried: condition on the closing quantity, 0 to 6
    std::int16_t IntThanZeroA = 0;        // carried: condition on the closing money, 0 to 6
    std::string strReportType;            // carried
    std::int16_t BlnIfOcc = 0;            // carried: condition on the business of the period, 0 to 4
    bool BlnUnAccounted = false;          // unposted documents are read
    bool BlnAccounted = false;            // the posted ledger is read
    std::string strDefineSub;             // further conditions, on the columns of every source
    std::string strDefineRec;             // carried
    std::string strDefineSal;             // carried
    std::string itemCls;                  // project class
    std::string itemCode;                 // project
    std::int16_t cAssComUnitNum = 0;      // number of the second unit in its group; 0 for none
    std::string strCompareQuantity;       // carried: how receipts compare with issues, an operator
};

}  // namespace kavelin
