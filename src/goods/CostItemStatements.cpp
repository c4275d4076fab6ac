#include "goods/CostItemStatements.h"

#include "frame/Statement.h"
#include "goods/CostItemColumns.h"

namespace kavelin {

namespace {

constexpr CostSide kSides[] = {
    {"R", "1", "IA_EnSubsidiary.iAInQuantity"},
    {"D", "0", "IA_EnSubsidiary.iAOutQuantity"},
};

std::string Signed(const std::string& in, const std::string& out)
{
    return "SUM(case when IA_EnSubsidiary.bRdFlag=1 then " + in + " else -1*" + out + " end)";
}

}  // namespace

std::span<const CostSide> CostSides()
{
    return kSides;
}

std::string ListLines(const std::vector<std::string>& pieces)
{
    std::string text;
    for (const std::string& piece : pieces)
        text += EndLines({&piece == &pieces.back() ? piece : piece + ","});
    return text;
}

std::string JoinNames(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ",") + name;
    return text;
}

void Append(std::vector<std::string>& pieces, const std::vector<std::string>& more)
{
    pieces.insert(pieces.end(), more.begin(), more.end());
}

std::vector<std::string> FilledColumns(std::string_view prefix)
{
    std::vector<std::string> names = {QuantityName(prefix)};
    for (const CostColumn& column : CostItems())
        names.push_back(AmountName(prefix, column));
    return names;
}

std::vector<std::string> OpeningSums(std::string_view prefix)
{
    std::vector<std::string> sums = {
        "SUM(case when IA_EnSubsidiary.bRdFlag=1 then IA_EnSubsidiary.iAInQuantity"
        " else -1*IA_EnSubsidiary.iAoutQuantity  end) as " +
            QuantityName(prefix),
    };
    for (const CostColumn& column : CostItems()) {
        const std::string amount = LineAmount(column);
        sums.push_back(Signed(amount, amount) + " as " + AmountName(prefix, column));
    }
    return sums;
}

std::vector<std::string> TotalsOf(std::string_view prefix)
{
    std::vector<std::string> totals;
    for (const CostColumn& total : CostTotals())
        totals.push_back(AmountName(prefix, total) + "=(" + TotalAmount(prefix, total) + ")");
    return totals;
}

std::string JoinShortRdStyle()
{
    return EndLines({"left join Rd_Style r on IA_EnSubsidiary.cRdCode=r.cRdCode"});
}

std::string JoinShortLookups()
{
    return EndLines({
        "left join Warehouse w on IA_EnSubsidiary.cWhCode=w.cWhCode",
        "left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode",
        "left join InventoryClass ic on inventory.cInvCCode=ic.cInvCCode",
        "left join Customer c on IA_EnSubsidiary.cCusCode=c.cCusCode",
        "left join CustomerClass cc on c.cCCCode=cc.cCCCode",
        "left join Department d on IA_EnSubsidiary.cAccDep=d.cDepCode",
    });
}

std::string JoinCostSources()
{
    return EndLines({
        "left join IA_EnSubsidiary_STSub s on IA_EnSubsidiary.AutoID = s.iIAEnSubID",
        "left join pl_CO_EnSubsidiary p on IA_EnSubsidiary .AutoID = p.iIASubID",
    });
}

std::string JoinVoucherName(std::string_view locale)
{
    return EndLines({
        "left join VouchType on VouchType.cVouchType="
        "case when IA_EnSubsidiary.cvoutype=N'3201' then N'32' else IA_EnSubsidiary.cvoutype end",
        "left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype' and " +
            std::string(locale),
    });
}

}  // namespace kavelin
