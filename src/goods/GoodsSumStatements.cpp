#include "goods/GoodsSumStatements.h"

#include "frame/Statement.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

// The documents at the end have no part in the sums: the filter may name them.
std::string JoinPasses(std::int32_t lngUnitNumber)
{
    return EndLines({" from IA_EnSubsidiary"}) + JoinGoodsLookups() +
           EndLines({
               " left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode",
               JoinGoodsUnit(lngUnitNumber),
               " left join DispatchLists on DispatchLists.iDLsID = IA_EnSubsidiary.iSrcID"
               " and IA_EnSubsidiary.cSrcVouType in ('05','06','5','6')",
               " left join DispatchList on DispatchLists.DLID=DispatchList.DLID",
               " left join rdrecords32 on rdrecords32.AutoID = IA_EnSubsidiary.iSrcID"
               " and  IA_EnSubsidiary.cSrcVouType in ('3201')",
               " left join rdrecord32 on rdrecords32.id=rdrecord32.id",
           });
}

constexpr std::string_view kGroupBySource = " group by IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype";

}  // namespace

std::string CreateGoodsSumTable(const std::string& strTable)
{
    return JoinLines({
        "select top 0 IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,",
        "IA_EnSubsidiary.dKeepDate,",
        "IA_EnSubsidiary.iAInQuantity as Q_Quantity,IA_EnSubsidiary.iAInQuantity as R_Quantity,",
        "IA_EnSubsidiary.iAInQuantity as D_Quantity,IA_EnSubsidiary.iAInQuantity as E_Quantity,",
        "cast(0 as float) as Q_No,cast(0 as float) as R_No,",
        "cast(0 as float) as D_No,cast(0 as float) as E_No,",
        "IA_EnSubsidiary.iAInPrice as Q_Price,IA_EnSubsidiary.iAInPrice as R_Price,",
        "IA_EnSubsidiary.iAInPrice as D_Price,IA_EnSubsidiary.iAInPrice as E_Price,",
        "cast(IA_EnSubsidiary.iMonth as int) as iMonth,cast(IA_EnSubsidiary.iYear as int) as iYear",
        " into " + strTable,
        " from IA_EnSubsidiary",
        " Where 1 = 2",
    });
}

// Without a rate the pieces of an opening are 0.
std::string InsertGoodsOpening(const std::string& strTable, const std::string& strWhere,
                               std::int32_t lngUnitNumber)
{
    const std::string where = strWhere.empty() ? "" : "Where " + strWhere;

    return JoinLines({
               "insert into " + strTable + "(isrcid,csrcvoutype,Q_No,Q_Quantity,Q_Price" + ")",
               "select IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,",
               "sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then"
               " (case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0)"
               " else -1*isnull(IA_EnSubsidiary.iAOutQuantity,0) end)/ComputationUnit.iChangRate"
               " else 0 end),",
               "sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0)"
               " else -1*isnull(IA_EnSubsidiary.iAOutQuantity,0) end),",
               "sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInPrice,0)"
               " else -1*isnull(IA_EnSubsidiary.iAOutPrice,0) end)",
               JoinPasses(lngUnitNumber) + where,
           }) +
           std::string(kGroupBySource);
}

// Without a rate there are no pieces of a movement. Quantities are summed whatever the direction of the line.
std::string InsertGoodsMovement(const std::string& strTable, const std::string& strWhere,
                                std::int32_t lngUnitNumber)
{
    const std::string where = strWhere.empty() ? "" : " and " + strWhere;

    return JoinLines({
               "insert into " + strTable + "(" + "iSrcID,cSRcVoutype," +
                   "R_No,R_Quantity,R_Price,D_No,D_Quantity,D_Price)",
               "select IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,",
               "sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then"
               " (case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0)"
               " else 0 end)/ComputationUnit.iChangRate else null end),",
               "sum(IA_EnSubsidiary.iAInQuantity),",
               "sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInPrice,0) else null end),",
               "sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then"
               " (case when IA_EnSubsidiary.bRdFlag=0 then isnull(IA_EnSubsidiary.iAOutQuantity,0)"
               " else 0 end)/ComputationUnit.iChangRate else null end),",
               "sum(IA_EnSubsidiary.iAOutQuantity),",
               "sum(case when IA_EnSubsidiary.bRdFlag=0 then isnull(IA_EnSubsidiary.iAOutPrice,0) else null end)",
               JoinPasses(lngUnitNumber) + "where 1 = 1 and IA_EnSubsidiary.imonth <> 0 " + where,
           }) +
           std::string(kGroupBySource);
}

std::string UpdateGoodsEnd(const std::string& strTable)
{
    return JoinLines({
        "update " + strTable + " set",
        " E_No=(ISNULL(Q_No,0)+ISNULL(R_No,0)-ISNULL(D_No,0)),",
        " E_Quantity=(isnull(Q_Quantity,0)+isnull(R_Quantity,0)-isnull(D_Quantity,0)),",
        " E_Price=(isnull(Q_Price,0)+isnull(R_Price,0)-isnull(D_Price,0))",
        " from " + strTable,
    });
}

std::string SelectGoodsSums(const std::string& strTable)
{
    return JoinLines({
        "select isrcid,csrcvoutype,",
        " sum(Q_No) as Q_No,sum(Q_Price) as Q_Price,sum(Q_Quantity) as Q_Quantity,",
        " sum(R_No) as R_No,sum(R_Price) as R_Price,sum(R_Quantity) as R_Quantity,",
        " sum(D_No) as D_No,sum(D_Price) as D_Price,sum(D_Quantity) as D_Quantity,",
        " sum(E_No) as E_No,sum(E_Price) as E_Price,sum(E_Quantity) as E_Quantity",
        " into #IA_EnFCSPHZB ",
        " from  " + strTable + " a",
        " where ( Q_Quantity<>0 or Q_Price<>0 ) "
        " or(  R_Quantity<>0 or R_Price<>0) "
        " or( D_Quantity<>0 or D_Price<>0) "
        " or( E_Quantity<>0 or E_Price<>0) ",
        " group by a.isrcid,a.csrcvoutype",
    });
}

std::string SelectGoodsResult(const std::string& strResult, const std::string& strYear,
                              std::int32_t lngUnitNumber)
{
    return JoinLines({
        "select case when ia_ensubsidiary.cvoutype = N'3201' then cast(null as nvarchar(30))"
        " else ia_ensubsidiary.cvoucode end as cDLCode,",
        "case when ia_ensubsidiary.cvoutype = N'3201' then ia_ensubsidiary.cvoucode"
        " else cast(null as nvarchar(30)) end as cCode,",
        "ia_ensubsidiary.cWhCode,warehouse.cwhname as cWhName,inventory.cInvCCode,InventoryClass.cInvCName,",
        "ia_ensubsidiary.cInvCode,inventory.cInvName,inventory.cInvAddCode,inventory.cInvStd,",
        "UnitBase.CComUnitName,ComputationUnit.cComUnitName as cComUnitName_1,ComputationUnit.iChangRate,",
        "Department.cDepCode,Department.cDepName,AA_Enum.EnumName as cVouchName,",
        "ia_ensubsidiary.dVouDate,ia_ensubsidiary.dKeepDate,ia_ensubsidiary.cAccounter,",
        "CustomerClass.cCCCode,CustomerClass.cCCName,ia_ensubsidiary.cCusCode,Customer.cCusName,",
        "StDep.cDepCode as cAccDep,StDep.cDepName as cDepName_1,",
        "ia_ensubsidiary.cBusType,ia_ensubsidiary.cPersonCode,Person.cPersonName,",
        "ia_ensubsidiary.cBatchia,ia_ensubsidiary.cRdCode,Rd_Style.cRdName,",
        "ia_ensubsidiary.cItem_class,ia_ensubsidiary.cItemCName,ia_ensubsidiary.cItemCode,"
        "ia_ensubsidiary.cName,ia_ensubsidiary.cMemo,",
        Numbered(1, 16, "ia_ensubsidiary.cDefine{},"),
        Numbered(22, 37, "ia_ensubsidiary.cDefine{},"),
        Numbered(1, 16, "inventory.cInvDefine{},"),
        Numbered(1, 10, "ia_ensubsidiary.cFree{},"),
        "a.Q_No,a.Q_Price,a.Q_Quantity,a.R_No,a.R_Price,a.R_Quantity,",
        "a.D_No,a.D_Price,a.D_Quantity,a.E_No,a.E_Price,a.E_Quantity,a.iSrcID,a.cSRcVoutype",
        "into " + strResult,
        "from #IA_EnFCSPHZB a",
        "left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid"
        " and a.csrcvoutype = ia_ensubsidiary.cvoutype "
        " and ia_ensubsidiary.iyear = " +
            strYear,
        "left join Rd_Style on ia_ensubsidiary.cRdCode=Rd_Style.cRdCode",
        "left join Warehouse on ia_ensubsidiary.cWhCode=Warehouse.cWhCode",
        "left join inventory on ia_ensubsidiary.cInvCode=inventory.cInvCode",
        "left join InventoryClass on inventory.cInvCCode=InventoryClass.cInvCCode",
        "left join Customer on ia_ensubsidiary.cCusCode=Customer.cCusCode",
        "left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode",
        "left join Department on ia_ensubsidiary.cAccDep=Department.cDepCode",
        "left join Department StDep on StDep.cDepCode=Warehouse.cDepCode",
        "left join Person on ia_ensubsidiary.cPersonCode=Person.cPersonCode",
        "left join VouchType on VouchType.cVouchType=case when IA_EnSubsidiary.cvoutype=N'3201' then N'32'"
        " else IA_EnSubsidiary.cvoutype end",
        "left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode",
        "left join ComputationUnit on (ComputationGroup.iGroupType = N'1'"
        " and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = " +
            std::to_string(lngUnitNumber) + ") ",
        "left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode",
        "left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype'"
        " and AA_Enum.LocaleId=DBO.UDF_GetLocaleID()",
        "Where (a.Q_Price <> 0 Or Q_Quantity <> 0) Or (R_Price <> 0 Or R_Quantity <> 0)"
        " Or (D_Price <> 0 Or D_Quantity <> 0) Or (E_Price <> 0 Or E_Quantity <> 0)",
    });
}

}  // namespace kavelin
