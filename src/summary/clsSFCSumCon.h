// Conditions of the receipt-issue-balance summary as a public object: its properties are those of
// SumConditions, set one by one or out of a filter.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "summary/SumConditions.h"

#include <string>

namespace kavelin {

class clsSFCSumCon : public SumConditions {
  public:
    // Drops the table `sTableName`, takes the filter's values into the properties and has clsIASFCReport make
    // the table by all properties, also those that were set before. A filter that can't be read is shown to
    // the user and leaves no table; a table that can't be dropped is shown, and the rest follows. Errors of
    // the engine go to the caller.
    void CreateNewTemplate(ReportFilterObject& objFilter, const std::string& sTableName);

    // The two that follow belong to a summary of goods in transit; this one has no use for them, and they are
    // not among the members that a host reaches by name.

    // What the user may see of that ledger, each clause after " and ".
    static std::string BuildPermissionWhere();

    // The select list that sums the columns of `strSql` into a closing balance, by the last three characters
    // of their names, and in `strGroupBy` the clause for all other columns. Received and closing money have
    // two decimals, issued money six.
    static std::string BuildSumSelect(const std::string& strSql, std::string& strGroupBy);
};

}  // namespace kavelin
