#include "analysis/AbcStatements.h"

#include "frame/Statement.h"
#include "frame/Value.h"

namespace kavelin {

namespace {

std::string OfTheMonth(const AbcRun& run)
{
    return run.strPeriod + run.strWhere;
}

}  // namespace

std::string SelectTotalQuantity(const AbcRun& run)
{
    return "select sum(isnull(IA_summary.iNum,0)) as nums from IA_summary left join  " + run.strQualifier +
           " inventory on  IA_summary.cinvcode=inventory.cinvcode"
           " where isnull(IA_summary.iNum,0)>0 and  IA_summary.imonth=" +
           OfTheMonth(run);
}

std::string SelectTotalMoney(const AbcRun& run)
{
    return "select sum(isnull(IA_summary.iMoney,0)) as nums, sum(isnull(IA_summary.iDif,0)) as moneys"
           " from IA_summary left join " +
           run.strQualifier +
           " inventory on  IA_summary.cinvcode=inventory.cinvcode"
           " where (isnull(IA_summary.iMoney,0)+isnull(IA_summary.iDif,0))>0 and IA_summary.imonth=" +
           OfTheMonth(run);
}

std::string SelectItems(const AbcRun& run)
{
    return JoinLines({
        " SELECT distinct IA_Summary.cinvcode, Inventory.cInvCCode",
        " into " + run.strInvTable,
        " FROM IA_Summary LEFT JOIN " + run.strQualifier +
            " Inventory ON IA_Summary.cInvCode = Inventory.cInvCode ",
        " where not IA_Summary.AutoID is null and Inventory.bService=0 And Inventory.bInvType=0"
        " And IA_summary.imonth=" +
            OfTheMonth(run),
    });
}

std::string SelectAbcTable(const AbcRun& run)
{
    return JoinLines({
        " select IA_summary.cInvCode,",
        "sum(IA_summary.iNum) as Num,",
        "sum(isnull(IA_summary.iMoney,0)+isnull(IA_summary.iDif,0)) as Money,",
        "cast(0 as decimal(32,4)) as NumPer,cast(0 as decimal(32,4)) as MoneyPer,",
        "cast(N'' as nvarchar(10)) as TypeN,cast(N'' as nvarchar(10)) as TypeM,cast(N'' as nvarchar(10)) as Type",
        " into " + run.strABCTable,
        " from IA_summary left join " + run.strQualifier +
            " inventory on IA_summary.cinvcode=inventory.cinvcode",
        " left join ComputationUnit on inventory.cComunitCode=ComputationUnit.cComunitCode",
        " where IA_summary.imonth=" + OfTheMonth(run),
        " group by IA_summary.cInvCode ",
    });
}

std::string UpdateShares(const AbcRun& run, double quantity, double money)
{
    const std::string ofQuantity =
        "NumPer=case when isnull(Num,0)>0 then Num/cast(" + ToText(quantity) + " as float) else 0 end";
    const std::string ofMoney =
        "MoneyPer=case when isnull(Money,0)>0 then Money/cast(" + ToText(money) + " as float) else 0 end";
    const std::string update = "update " + run.strABCTable;
    if (quantity > 0 && money > 0)
        return update + " set " + ofQuantity + ", " + ofMoney;
    if (money > 0)
        return update + " set NumPer=0, " + ofMoney;
    if (quantity > 0)
        return update + " set MoneyPer=0, " + ofQuantity;
    return update + " set NumPer=0, MoneyPer=0 ";
}

std::string UpdateLargestOf(const AbcRun& run, const std::string& shareColumn)
{
    const std::string largest =
        "(select top 1 cinvcode from " + run.strABCTable + " order by " + shareColumn + " desc,cinvcode)";
    return JoinLines({
        "update " + run.strABCTable + " set " + shareColumn + "=1-(select isnull(sum(" + shareColumn + "),0)",
        " from " + run.strABCTable + " where cinvcode <> " + largest + ")",
        " where cinvcode = " + largest,
    });
}

std::string UpdateGrades(const AbcRun& run, const AbcThresholds& thresholds)
{
    const auto& m = thresholds.strMoneyRate;
    const auto& n = thresholds.strNumRate;
    return JoinLines({
        "update " + run.strABCTable,
        " set TypeN=(case when NumPer<" + n[0] + " then N'' when NumPer<" + n[1] + " then N'A' when NumPer<" +
            n[2] + " then N'B' else N'C' end),",
        " TypeM=(case when MoneyPer<" + m[3] + " then N'' when MoneyPer<" + m[2] +
            " then N'C' when MoneyPer<" + m[1] + " then N'B' else N'A' end)",
    });
}

std::string UpdateClasses(const AbcRun& run)
{
    return "update " + run.strABCTable +
           " set Type=(case when TypeN=N'B' OR TypeM=N'B' then N'B'"
           " else (case when TypeN=N'C' OR TypeM=N'C' then N'C' else N'A' end ) end )";
}

std::string DropAbcResult(const std::string& table)
{
    return "if exists(select id from tempdb..sysobjects where id=object_id(N'" + table + "')) Drop Table " +
           table;
}

std::string SelectAbcResult(const AbcRun& run, const AbcClasses& shown, const std::string& table)
{
    std::string classes;
    if (shown.a)
        classes += " or type=N'A' ";
    if (shown.b)
        classes += " or type=N'B' ";
    if (shown.c)
        classes += " or type=N'C' ";
    return JoinLines({
        "select Inventory.cInvCode as [存货_编码],Inventory.cInvName as [存货_名称],",
        "Inventory.cInvAddCode as [存货_代码],Inventory.cInvStd as [存货_规格],",
        "ComputationUnit.CComUnitName as [存货_单位],",
        "Num as [分析_数量],NumPer as [分析_数量比例],Money as [分析_金额],MoneyPer as [分析_金额比例],",
        "Type as [分析_ABC类别],NULL as [分析_备注],CONVERT(int, 1) as [分析_ABC分类数量]",
        " into " + table,
        " from " + run.strABCTable + " inAbc",
        " Left join " + run.strQualifier + " Inventory on InVentory.cInvcode=inAbc.cInvcode ",
        " Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode",
        " where 1=2  " + classes,
    });
}

}  // namespace kavelin
