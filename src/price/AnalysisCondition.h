// The condition text: what the filter of the price analysis asks of the calculation, in one XML document.
//
// The class knows the filter, the module knows the tables, and this text is all that goes between them:
//   <condition><ShowType> 1 </ShowType><iMonth> 2008.07 </iMonth>...</condition>
// Values stand in it as they are. One that holds XML of its own, such as a lone "<", makes a text that is no
// document.
#pragma once

#include "frame/host/SuiteObjects.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin {

// As the filter gives them; months are "2008.07".
struct ConditionValues {
    std::string strShowType;       // "1" lines, "2" summary rows, anything else both
    std::string strMonth;          // the month to show
    bool blnVoucherLevel = false;  // some condition asks for what only a line has
    std::string strBasePrice;      // kind of the base price, 1 to 5
    std::string strAvgFrom, strAvgTo;
    std::string strAvgKind;   // kind of the average, 1 to 3
    double dblDiffRatio = 0;  // smallest deviation to show in per cent, 0 for all rows
};

// As the calculation needs them.
struct AnalysisCondition {
    std::string strShowType;
    std::int16_t intYear = 0;
    std::string strMonth;  // two digits
    bool blnVoucherLevel = false;
    double dblBasePrice = 0;      // kind of the base price, 0 where there is no number
    std::string strAvgRange;      // " and  ( s.iYear >=  ...", empty for all months
    double dblAvgKind = 0;        // kind of the average, 0 where there is no number
    std::string strOutputFilter;  // " where abs(DiffRatio) >= 10", empty for all rows
};

struct YearAndMonth {
    std::string year, month;
};

// The two parts of "2008.07". Throws Error for a text without a point.
YearAndMonth SplitMonth(std::string_view text);

std::string WriteCondition(const ConditionValues& values);

// Reads the children of the document's root; those of other names are passed over. Throws Error without a
// month, ConversionError for a month or a deviation that is no number.
AnalysisCondition ReadCondition(XmlNode& root);

}  // namespace kavelin
