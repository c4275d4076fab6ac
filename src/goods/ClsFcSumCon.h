// The goods-in-transit template: the ledger of goods in transit, voucher by voucher, summed by every attribute
// that a report may want, with opening, receipts, issues and closing balance. No report of the library asks for
// it; it is where the reading of that ledger is told in full.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "goods/TemplateFilter.h"

#include <string>

namespace kavelin {

class ClsFcSumCon {
  public:
    // Makes the table `sTableName` of tempdb on gcnnAccount, which the caller opened; a table of that name goes
    // first. Changes LngGrouptoken of the filter's items. Errors go to the caller and leave the work table;
    // those of dropping a table are shown to the user.
    void CreateNewTemplate(ReportFilterObject& objFilter, const std::string& sTableName);

  private:
    TemplateChoices objChoices;
};

}  // namespace kavelin
