#include "goods/TemplateStatements.h"

#include "frame/Text.h"

#include <algorithm>
#include <string_view>

namespace kavelin {

namespace {

std::string SelectRows(const TemplateRun& run, const VoucherGroup& group, const std::string& select,
                       const std::string& into)
{
    return select + run.strColumns + into + JoinTemplate(group.joins, run.lngUnitNumber) + run.strWhere +
           std::string(group.condition) + " And Not Ia_Ensubsidiary.cAccounter Is Null" + run.strPermission;
}

enum class Measure { Pieces, Quantity, Amount };

struct MeasureName {
    std::string_view ending;
    Measure measure;
    std::string_view sign;  // in the closing balance
};

// clang-format off
constexpr MeasureName kMeasures[] = {
    {"金额入", Measure::Amount,   "+"},
    {"件数入", Measure::Pieces,   "+"},
    {"数量入", Measure::Quantity, "+"},
    {"金额出", Measure::Amount,   "-"},
    {"件数出", Measure::Pieces,   "-"},
    {"数量出", Measure::Quantity, "-"},
};
// clang-format on

// The name without its direction.
std::string ResultName(const std::string& name)
{
    return Left(name, Length(name) - 1);
}

std::string SumColumn(const std::string& name, Measure measure)
{
    if (measure == Measure::Amount)
        return ",cast( Sum(" + name + ") as decimal(38,2)) As " + ResultName(name);
    return ", Sum(" + name + ") As " + ResultName(name);
}

std::string IsNotZero(const std::string& name, Measure measure)
{
    if (measure == Measure::Amount)
        return " cast( Sum(" + name + ") as decimal(38,2)) <> 0";
    return " cast( Sum(" + name + ") as decimal(38,8)) <> 0";
}

}  // namespace

std::string SelectTemplateRows(const TemplateRun& run, const VoucherGroup& group)
{
    return SelectRows(run, group, "select ", " into " + run.strTable);
}

std::string InsertTemplateRows(const TemplateRun& run, const VoucherGroup& group, const std::string& select)
{
    return "Insert Into " + run.strTable + SelectRows(run, group, select, "");
}

std::string SelectTemplateSample(const std::string& strTable)
{
    return "Select Top 1 * From " + strTable;
}

TemplateSums BuildSums(const std::vector<std::string>& fields)
{
    TemplateSums sums;
    std::string pieces = "0", quantity = "0", amount = "0";
    for (const std::string& name : fields) {
        const auto found = std::ranges::find(kMeasures, Right(name, 3), &MeasureName::ending);
        if (found == std::end(kMeasures)) {
            sums.strSelect += (sums.strSelect.empty() ? "" : ", ") + name;
            sums.strGroupBy += (sums.strGroupBy.empty() ? " Group By " : ", ") + name;
            continue;
        }
        const Measure measure = found->measure;
        std::string& closing = measure == Measure::Amount   ? amount
                               : measure == Measure::Pieces ? pieces
                                                            : quantity;
        closing += std::string(found->sign) + name;
        sums.strSelect += SumColumn(name, measure);
        if (measure != Measure::Pieces)
            sums.strHaving += (sums.strHaving.empty() ? "" : " or") + IsNotZero(name, measure);
    }
    if (!sums.strHaving.empty())
        sums.strHaving = " Having " + sums.strHaving;
    sums.strSelect += ",Sum(" + pieces + ") As 结存_件数" + ", Sum(" + quantity +
                      ") As 结存_数量, cast(Sum(" + amount + ") as decimal(38,2)) As 结存_金额";
    return sums;
}

std::string SelectTemplateResult(const TemplateSums& sums, const std::string& strResult,
                                 const std::string& strTable)
{
    return "select " + sums.strSelect + " Into " + strResult + " From " + strTable + sums.strGroupBy +
           sums.strHaving;
}

}  // namespace kavelin
