#include "filter/CostingBasis.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

#include <string_view>

namespace kavelin {

namespace {

// Any other basis locks the field.
constexpr struct {
    const char* key;
    std::string_view openWith;
} kFields[] = {
    {"cDepCode", "按部门核算"},
    {"cWhCode", "按仓库核算"},
};

}  // namespace

void SettleCostingBasis(ReportFilterObject& filter, const std::string& year)
{
    InitLedgerParams(year);
    const std::string basis = Existing(ModPub().gobjLedgerParams).ValueStyle();
    for (const auto& field : kFields) {
        filter.SetFieldValue(field.key, "");
        filter.SetFieldLocked(field.key, basis != field.openWith);
    }
}

}  // namespace kavelin
