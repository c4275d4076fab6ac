#include "price/AnalysisResultStatements.h"

#include "frame/Statement.h"
#include "price/AnalysisColumns.h"

#include <algorithm>
#include <string_view>

namespace kavelin {

namespace {

struct BasePriceKind {
    double number;
    std::string_view expression;
};

// clang-format off
constexpr BasePriceKind kBasePriceKinds[] = {
    {1, "ReferenceCost"    },
    {2, "isnull(ExPrice,0)"},
    {3, "isnull(InPrice,0)"},
    {4, "AvgPrice"         },
    {5, "Balanceunit"      },
};
// clang-format on

std::string_view BasePriceOf(double number)
{
    const auto kind =
        std::ranges::find_if(kBasePriceKinds, [&](const BasePriceKind& k) { return k.number == number; });
    return kind == std::end(kBasePriceKinds) ? "" : kind->expression;
}

}  // namespace

std::string UpdateReferenceCosts(const std::string& strWorkTable)
{
    return "update t  set ReferenceCost = isnull(iInvSPrice,0)  from  " + strWorkTable +
           " t inner join Inventory  i on t.cinvCode = i.cinvCode ";
}

std::string UpdateBasePrices(const std::string& strWorkTable, double dblBasePrice)
{
    return "update " + strWorkTable + "  set BasePrice = " + std::string(BasePriceOf(dblBasePrice));
}

std::array<std::string, 4> UpdateRatios(const std::string& strWorkTable)
{
    const std::string update = "update " + strWorkTable;

    return {
        update +
            " set Ratio = (case when isnull(BasePrice,0) = 0 then 1 else  Price/BasePrice end ) * 100 ,"
            " DiffRatio = (Case when isnull(BasePrice,0) = 0 then 0 else (Price/BasePrice - 1) end) *100 ",
        update + " set Ratio = 100 , DiffRatio = 0  where isnull(BasePrice,0) = 0 and isnull(Price,0) <> 0 ",
        update + " set Ratio = 0 , DiffRatio = -100 where isnull(BasePrice,0) <> 0 and isnull(Price,0) = 0 ",
        update + " set Ratio = 0 , DiffRatio = 0 where isnull(BasePrice,0) = 0 and isnull(Price,0) = 0 ",
    };
}

std::string InsertResult(const std::string& strTable, const std::string& strWorkTable,
                         const std::string& strOutputFilter)
{
    return JoinLines({
        " insert into " + strTable + " (" + ShownColumns() + ")",
        " Select " + ShownColumns(),
        "  from " + strWorkTable + strOutputFilter + "  order by dVouDate ",
    });
}

std::string TranslateBusTypes(const std::string& strTable, const std::string& strLanguage)
{
    return JoinLines({
        "Update " + strTable + " set cBusType=AA.EnumName from " + strTable + " Wt inner join aa_enum AA on ",
        " Wt.cBusType=AA.EnumCode where AA.EnumType='IA.BusType' and AA.LocaleID='" + strLanguage + "'",
    });
}

std::string TranslateVouTypes(const std::string& strTable, const std::string& strLanguage)
{
    return JoinLines({
        "Update " + strTable + " set cVouTypeName=AA.EnumName from " + strTable +
            " Wt left join aa_enum AA on ",
        " Wt.cVouTypeName=AA.EnumCode where AA.enumtype=N'ia.VchType' and AA.LocaleID='" + strLanguage + "'",
    });
}

}  // namespace kavelin
