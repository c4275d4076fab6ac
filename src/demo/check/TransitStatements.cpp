#include "demo/check/TransitStatements.h"

#include "frame/Statement.h"

namespace kavelin::demo {

std::string CountTransitSources()
{
    return "select count(*) from (select distinct iYear, cSrcVouType, iSrcID from IA_EnSubsidiary"
           " where cAccounter is not null) x";
}

std::string TransitBalancesThatCross()
{
    return JoinLines({
        "select top 11 iYear, cSrcVouType, iSrcID, min(balance) as least, max(balance) as most",
        "  from (select a.iYear, a.cSrcVouType, a.iSrcID, a.AutoID,",
        "               cast(sum(isnull(b.iAInQuantity, 0) - isnull(b.iAOutQuantity, 0)) as decimal(20,4))",
        "                 as balance",
        "          from IA_EnSubsidiary a",
        "               inner join IA_EnSubsidiary b on b.iYear = a.iYear and b.iSrcID = a.iSrcID",
        "                 and b.cSrcVouType = a.cSrcVouType and b.AutoID <= a.AutoID",
        "         where a.cAccounter is not null and b.cAccounter is not null",
        "         group by a.iYear, a.cSrcVouType, a.iSrcID, a.AutoID) x",
        " group by iYear, cSrcVouType, iSrcID",
        "having min(balance) < 0 and max(balance) > 0",
        " order by iYear, cSrcVouType, iSrcID",
    });
}

std::string TakenOutOfNothing()
{
    return JoinLines({
        "select top 11 a.AutoID, a.cVouType, a.inid, a.cSrcVouType, a.iSrcID",
        "  from IA_EnSubsidiary a",
        "       left join (select distinct iYear, cVouType, inid from IA_EnSubsidiary",
        "                   where bRdFlag = 1 and inid = iSrcID and cVouType = cSrcVouType",
        "                     and cAccounter is not null) s",
        "         on s.iYear = a.iYear and s.inid = a.iSrcID and s.cVouType = a.cSrcVouType",
        " where a.cAccounter is not null and s.inid is null",
        " order by a.AutoID",
    });
}

std::string AmountsWithoutGoods()
{
    return JoinLines({
        "select top 11 iYear, cSrcVouType, iSrcID, sum(isnull(iAInPrice, 0) - isnull(iAOutPrice, 0)) as amount",
        "  from IA_EnSubsidiary",
        " where cAccounter is not null",
        " group by iYear, cSrcVouType, iSrcID",
        "having cast(sum(isnull(iAInQuantity, 0) - isnull(iAOutQuantity, 0)) as decimal(20,4)) = 0",
        "   and sum(isnull(iAInPrice, 0) - isnull(iAOutPrice, 0)) <> 0",
        " order by iYear, cSrcVouType, iSrcID",
    });
}

}  // namespace kavelin::demo
