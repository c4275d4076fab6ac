// The statements of the goods-in-transit template, in the order in which they run.
#pragma once

#include "goods/TemplateJoins.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kavelin {

// What the statements of one pass have in common.
struct TemplateRun {
    std::string strTable;  // the work table, as statements name it
    std::string strColumns;
    std::string strWhere;
    std::string strPermission;
    std::int32_t lngUnitNumber = 0;
};

// The group's lines as a new work table.
std::string SelectTemplateRows(const TemplateRun& run, const VoucherGroup& group);

// The group's lines into the work table; `select` is the word as the pass spells it.
std::string InsertTemplateRows(const TemplateRun& run, const VoucherGroup& group, const std::string& select);

// A row of the work table, whose fields tell how it is summed.
std::string SelectTemplateSample(const std::string& strTable);

// How the work table is summed: by measures, which the last three characters of their names tell, and grouped by
// all other columns.
struct TemplateSums {
    std::string strSelect;
    std::string strGroupBy;
    std::string strHaving;
};
TemplateSums BuildSums(const std::vector<std::string>& fields);

// The result: a row for each group with a quantity or an amount.
std::string SelectTemplateResult(const TemplateSums& sums, const std::string& strResult,
                                 const std::string& strTable);

}  // namespace kavelin
