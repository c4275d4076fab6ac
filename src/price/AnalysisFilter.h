// Filter of the price analysis: items in, conditions out.
#pragma once

#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

struct AnalysisConditions {
    std::string strWhere;         // on IA_V_Subsidiary and IA_V_Summary; empty, or begins with " And "
    std::string strConditionXml;  // see AnalysisCondition.h
    std::string strVouTypes;      // quoted list, empty for all
    std::string strBusTypes;      // quoted list, empty for all
};

// Reads the filter. Throws Error for a month without a year, ConversionError for a deviation that is no
// number.
AnalysisConditions ReadAnalysisFilter(ReportFilterObject& objFilter);

// Parts of `strList`, which stand between tab characters, without the blanks in front of them, each turned
// from the shown text into its code and written N'code', joined by ",". Whoever chooses 委托代销 gets its short
// form 委托 as well.
std::string BuildBusTypeList(const std::string& strList);

}  // namespace kavelin
