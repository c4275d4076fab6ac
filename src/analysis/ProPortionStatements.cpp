#include "analysis/ProPortionStatements.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

// Receipts count plus and issues minus. The two differences swap their parts: a debit difference raises a
// receipt and lowers an issue.
constexpr std::string_view kSignedAmount =
    " case when brdflag = 1 then (isnull(iaInPrice,0) + IsNull(iDebitdifCost, 0) - IsNull(iCreditdifCost, 0)) else 0 end"
    " - case when brdflag =0 then (isnull(IAOutPrice,0) + iSNull(iCreditdifcost,0) - ISNULL(iDebitdifcost,0))else 0 end"
    " as 资金占用额 , ";

constexpr std::string_view kShare =
    " Case cast((select sum(资金占用额) from ia_ProPortionRpt_temp1 ) as float) when 0 then 0  "
    " else convert(decimal(38,2),((sum(资金占用额)/cast((select sum(资金占用额) from ia_ProPortionRpt_temp1 ) as float)*100) ))"
    " end as 所占比重   ";

}  // namespace

std::string DropIfExists(std::string_view table)
{
    const std::string name(table);
    return "if exists (SELECT name FROM sysobjects WHERE name = '" + name + "' And xtype = 'U') Drop Table " +
           name;
}

std::string SelectLedgerRows(const std::string& year, const std::string& range, const std::string& permission)
{
    return EndLines({
               "select  IA_Subsidiary.cinvcode, Inventory.cInvAddCode ,Inventory.cInvName ,Inventory.cInvStd , ",
               " ComputationUnit.CComUnitName , Inventory.cInvCCode, ",
               kSignedAmount,
               " IA_Subsidiary.dkeepDate , IA_Subsidiary.cWhCode ",
               " into ia_ProPortionRpt_temp1 From IA_Subsidiary ",
               " left join Inventory on Inventory.cInvCode = IA_Subsidiary.cInvCode ",
               " Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode ",
           }) +
           " where iyear=" + year +
           " and cVouType<>'33' and (cbustype not like '直运%' or cBusType is null )And " + range + "  " +
           permission;
}

std::string SelectGrandTotal()
{
    return "select sum(资金占用额) from ia_ProPortionRpt_temp1";
}

std::string SelectItemSums()
{
    return JoinLines({
        "select  cinvcode, cInvAddCode ,cInvName ,cInvStd , ",
        " CComUnitName , cInvCCode, ",
        " CONVERT(decimal(38,2), sum(资金占用额) ) as  资金占用额 , ",
        kShare,
        " into ia_ProPortionRpt_temp2 From ia_ProPortionRpt_temp1 ",
        " group by cinvcode,cInvAddCode ,cInvName ,cInvStd,CComUnitName , cInvCCode",
    });
}

std::string SelectRankedItems()
{
    return "select IDENTITY(int, 1, 1) as cNo,* into ia_ProPortionRpt_temp from ia_ProPortionRpt_temp2"
           " order by 所占比重 desc";
}

std::string SelectRankedAmounts()
{
    return "select (资金占用额) from ia_ProPortionRpt_temp";
}

std::string UpdateLargestShare()
{
    return "update  ia_ProPortionRpt_temp  set 所占比重=100-"
           " (select sum(所占比重) from ia_ProPortionRpt_temp"
           " where cinvcode <> (select top 1 cinvcode from ia_ProPortionRpt_temp order by 所占比重 desc))"
           " where cinvcode = (select top 1 cinvcode from  ia_ProPortionRpt_temp order by 所占比重 desc)";
}

std::string SelectResult(const std::string& table, const std::string& rank)
{
    return "select * into  " + table + "  from ia_ProPortionRpt_temp where " + rank;
}

}  // namespace kavelin
