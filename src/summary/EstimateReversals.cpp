#include "summary/EstimateReversals.h"

#include "frame/Statement.h"
#include "summary/EstimatePasses.h"
#include "summary/EstimateTable.h"

#include <string_view>

namespace kavelin {

namespace {

// What was taken out and not brought back. A reversal's quantity is negative.
constexpr std::string_view kNotBroughtBack =
    "-1*IA_Subsidiary.[iAInQuantity]-isnull(IA_tempAccSummary.[iAInQuantity],0)";

// What the account values by, besides the item.
std::string SamePlace(const std::string& valueStyle)
{
    if (valueStyle == "按仓库核算")
        return " and Ia_Summary.cWhCode=IA_Subsidiary.cWhCode";
    if (valueStyle == "按部门核算")
        return " and Ia_Summary.cDepCode=IA_Subsidiary.cDepCode";
    return "";
}

// Lines whose costing key has a row in the monthly summary, for the joins of inventory and warehouse.
std::string JoinSummary(const EstimateRun& run)
{
    const std::string method =
        run.strValueStyle == "按存货核算" ? "inventory.cValueType" : "warehouse.cWhValueStyle";
    return JoinLines({
               "",
               " inner join Ia_Summary on Ia_Summary.cInvCode=IA_Subsidiary.cInvCode"
               " and isnull(Ia_Summary.iDirect,0)=0 and Ia_Summary.iMonth=" +
                   run.strMonth + SamePlace(run.strValueStyle),
               " and Ia_Summary.iMonth=IA_Subsidiary.iMonth and Ia_Summary.iYear=IA_Subsidiary.iYear",
               " ",
           }) +
           Numbered(1, 10,
                    "and (Ia_Summary.cFree{}=IA_Subsidiary.cFree{} or isnull(Ia_Summary.cFree{},N'')=N'') ") +
           JoinLines({
               "",
               " and isnull(Ia_Summary.cbatchia,N'')=case when isnull(inventory.bCheckBatch,0)=1 and " +
                   method,
               " in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')"
               " then IA_Subsidiary.cbatchia else N'' end",
               " and isnull(Ia_Summary.iPeriod,0)=0",
           });
}

std::string LinesOfType(const EstimateRun& run, std::string_view type)
{
    return " where cVouType='" + std::string(type) + "' and (" + OnSourceType(run.strVouCond) +
           ") and IA_Subsidiary.iYear=" + run.strYear + " and IA_Subsidiary.iMonth=" + run.strMonth;
}

// A money column of the reversal, for the quantity that was not brought back.
std::string ShareOf(std::string_view money)
{
    return "isnull(cast([" + std::string(money) + "]*(" + std::string(kNotBroughtBack) +
           ")/IA_Subsidiary.[iAInQuantity] as decimal(34,2)),0)";
}

}  // namespace

std::string SelectBroughtBack(const EstimateRun& run, const ReversalTables& tables)
{
    return JoinLines({
        "select IA_Subsidiary.ID,IA_Subsidiary.cSrcVouType,sum(isnull(iAInQuantity,0)) as iAInQuantity,",
        " sum(isnull(iAOutQuantity,0)) as iAOutQuantity,sum(isnull(imaterialfee,0)) as iAMaterialfee",
        " into [" + tables.strBroughtBack + "] from IA_Subsidiary",
        " left join Inventory on Inventory.cInvCode=IA_Subsidiary.cInvCode",
        " left join Warehouse on Warehouse.cWhCode=IA_Subsidiary.cWhCode" + JoinSummary(run),
        LinesOfType(run, "30"),
        " group by IA_Subsidiary.id,IA_Subsidiary.cSrcVouType,IA_Subsidiary.cVouType,"
        "IA_Subsidiary.cDepCode,IA_Subsidiary.cWhcode,IA_Subsidiary.cInvCode",
    });
}

std::string SelectNotBroughtBack(const EstimateRun& run, const ReversalTables& tables)
{
    const std::string quantity(kNotBroughtBack);
    return JoinLines({
        "select IA_Subsidiary.AutoID,IA_Subsidiary.id,IA_Subsidiary.cSrcVouType,sum(" + quantity +
            ") as iAInQuantity,",
        " sum(cast(-1*[iAInPrice]-isnull(IA_tempAccSummary.[iAInQuantity],0)*isnull(IA_Subsidiary.iInCost,0)"
        " as decimal(34,2))",
        " +" + ShareOf("iDebitDifCost"),
        " -" + ShareOf("iCreditDifCost") + ") as iainprice,",
        " sum(cast(-1*isnull(imaterialfee,0)-isnull(IA_tempAccSummary.[iAMaterialfee],0) as decimal(34,2)))"
        " as iMaterialfee",
        " into [" + tables.strNotBroughtBack + "] from IA_Subsidiary" + JoinMasters() + JoinSummary(run),
        " left join [" + tables.strBroughtBack + "] IA_tempAccSummary",
        " on IA_tempAccSummary.id=IA_Subsidiary.id"
        " and IA_tempAccSummary.cSrcVoutype=IA_Subsidiary.cSrcVoutype",
        LinesOfType(run, "24"),
        " and IA_Subsidiary.cBusType in (" + run.strBusTypes + ") and " + quantity + "<>0 " + run.strWhere,
        " group by IA_Subsidiary.AutoID,IA_Subsidiary.id,IA_Subsidiary.cSrcVouType",
        " having sum(isnull(-1*IA_subsidiary.iAInQuantity,0)) <> 0",
    });
}

std::string InsertNotBroughtBack(const EstimateRun& run, const ReversalTables& tables)
{
    return JoinLines({
        "insert into [" + run.strZgTable + "] (AutoID,ID,cVouType,QmQuantity,Qmmoney,CalMethod)",
        "select ia_subsidiary.AutoID,ia_subsidiary.ID,ia_subsidiary.cSrcVouType,",
        " cast(ia_subsidiary.IaInquantity as decimal(34,8)),(iainprice-iMaterialfee)," +
            NumberOf(CalMethod::Reversal),
        " from [" + tables.strNotBroughtBack + "] ia_subsidiary",
    });
}

}  // namespace kavelin
