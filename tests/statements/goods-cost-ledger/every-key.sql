-- 1 #1
select top 1 a.cInvCode,
case when b.bCheckFree1 = 1 then a.cFree1 else N'' end as cfree1,case when b.bCheckFree2 = 2 then a.cFree2 else N'' end as cfree2,case when b.bCheckFree3 = 3 then a.cFree3 else N'' end as cfree3,case when b.bCheckFree4 = 4 then a.cFree4 else N'' end as cfree4,case when b.bCheckFree5 = 5 then a.cFree5 else N'' end as cfree5,case when b.bCheckFree6 = 6 then a.cFree6 else N'' end as cfree6,case when b.bCheckFree7 = 7 then a.cFree7 else N'' end as cfree7,case when b.bCheckFree8 = 8 then a.cFree8 else N'' end as cfree8,case when b.bCheckFree9 = 9 then a.cFree9 else N'' end as cfree9,case when b.bCheckFree10 = 10 then a.cFree10 else N'' end as cfree10
from IA_Subsidiary a
inner join inventory b on a.cInvCode = b.cInvCode
where a.cInvCode ='A' and a.iYear =2008
group by a.cInvCode ,
case when b.bCheckFree1 = 1 then a.cFree1 else N'' end,case when b.bCheckFree2 = 2 then a.cFree2 else N'' end,case when b.bCheckFree3 = 3 then a.cFree3 else N'' end,case when b.bCheckFree4 = 4 then a.cFree4 else N'' end,case when b.bCheckFree5 = 5 then a.cFree5 else N'' end,case when b.bCheckFree6 = 6 then a.cFree6 else N'' end,case when b.bCheckFree7 = 7 then a.cFree7 else N'' end,case when b.bCheckFree8 = 8 then a.cFree8 else N'' end,case when b.bCheckFree9 = 9 then a.cFree9 else N'' end,case when b.bCheckFree10 = 10 then a.cFree10 else N'' end
-- 2 #1
if exists(select name from Tempdb..sysobjects where name = N'LSZMACHINE7')  drop table Tempdb..[LSZMACHINE7]
-- 3 #1
select top 0 identity(int,1,1) as ino,
IA_EnSubsidiary.ipzid as ipzid,IA_EnSubsidiary.iSrcID as iSrcID,IA_EnSubsidiary.cSRcVoutype as cSRcVoutype,
cast (AutoID as int) as flag,
cast (AutoID as int) as autoid,IA_EnSubsidiary.cPZdigest as dKeepDate,IA_EnSubsidiary.cAccounter as cAccounter,IA_EnSubsidiary.dVouDate as dVouDate,IA_EnSubsidiary.dtAudit as dtAudit,IA_EnSubsidiary.cPZID as cPZID,IA_EnSubsidiary.cPZID as cDifPZid,IA_EnSubsidiary.cVouCode as cVouCode,IA_EnSubsidiary.cPZdigest as cPZdigest,AA_Enum.EnumName as cVouchName,IA_EnSubsidiary.cVouType as cVouType,IA_EnSubsidiary.cBusType as cBusType,IA_EnSubsidiary.cRdCode as cRdCode,r.cRdName as cRdName,IA_EnSubsidiary.cWhCode as cWhCode,w.cWhName as cWhName,inventory.cInvCCode as cInvCCode,ic.cInvCName as cInvCName,IA_EnSubsidiary.cInvCode as cInvCode,inventory.cInvName as cInvName,inventory.cInvAddCode as cInvAddCode,inventory.cInvStd as cInvStd,inventory.cComUnitCode as cComUnitCode,IA_EnSubsidiary.cFree1 as cFree1,IA_EnSubsidiary.cFree2 as cFree2,IA_EnSubsidiary.cFree3 as cFree3,IA_EnSubsidiary.cFree4 as cFree4,IA_EnSubsidiary.cFree5 as cFree5,IA_EnSubsidiary.cFree6 as cFree6,IA_EnSubsidiary.cFree7 as cFree7,IA_EnSubsidiary.cFree8 as cFree8,IA_EnSubsidiary.cFree9 as cFree9,IA_EnSubsidiary.cFree10 as cFree10,inventory.cInvDefine1 as cInvDefine1,inventory.cInvDefine2 as cInvDefine2,inventory.cInvDefine3 as cInvDefine3,inventory.cInvDefine4 as cInvDefine4,inventory.cInvDefine5 as cInvDefine5,inventory.cInvDefine6 as cInvDefine6,inventory.cInvDefine7 as cInvDefine7,inventory.cInvDefine8 as cInvDefine8,inventory.cInvDefine9 as cInvDefine9,inventory.cInvDefine10 as cInvDefine10,inventory.cInvDefine11 as cInvDefine11,inventory.cInvDefine12 as cInvDefine12,inventory.cInvDefine13 as cInvDefine13,inventory.cInvDefine14 as cInvDefine14,inventory.cInvDefine15 as cInvDefine15,inventory.cInvDefine16 as cInvDefine16,cc.cCCCode as cCCCode,cc.cCCName as cCCName,IA_EnSubsidiary.cCusCode as cCusCode,c.cCusName as cCusName,IA_EnSubsidiary.cAccDep as cAccDep,d.cDepName as cDepName,IA_EnSubsidiary.cItem_class as cItem_class,IA_EnSubsidiary.cItemCName as cItemCName,IA_EnSubsidiary.cItemCode as cItemCode,IA_EnSubsidiary.cName as cName,IA_EnSubsidiary.cDefine1 as cDefine1,IA_EnSubsidiary.cDefine2 as cDefine2,IA_EnSubsidiary.cDefine3 as cDefine3,IA_EnSubsidiary.cDefine4 as cDefine4,IA_EnSubsidiary.cDefine5 as cDefine5,IA_EnSubsidiary.cDefine6 as cDefine6,IA_EnSubsidiary.cDefine7 as cDefine7,IA_EnSubsidiary.cDefine8 as cDefine8,IA_EnSubsidiary.cDefine9 as cDefine9,IA_EnSubsidiary.cDefine10 as cDefine10,IA_EnSubsidiary.cDefine11 as cDefine11,IA_EnSubsidiary.cDefine12 as cDefine12,IA_EnSubsidiary.cDefine13 as cDefine13,IA_EnSubsidiary.cDefine14 as cDefine14,IA_EnSubsidiary.cDefine15 as cDefine15,IA_EnSubsidiary.cDefine16 as cDefine16,IA_EnSubsidiary.cDefine22 as cDefine22,IA_EnSubsidiary.cDefine23 as cDefine23,IA_EnSubsidiary.cDefine24 as cDefine24,IA_EnSubsidiary.cDefine25 as cDefine25,IA_EnSubsidiary.cDefine26 as cDefine26,IA_EnSubsidiary.cDefine27 as cDefine27,IA_EnSubsidiary.cDefine28 as cDefine28,IA_EnSubsidiary.cDefine29 as cDefine29,IA_EnSubsidiary.cDefine30 as cDefine30,IA_EnSubsidiary.cDefine31 as cDefine31,IA_EnSubsidiary.cDefine32 as cDefine32,IA_EnSubsidiary.cDefine33 as cDefine33,IA_EnSubsidiary.cDefine34 as cDefine34,IA_EnSubsidiary.cDefine35 as cDefine35,IA_EnSubsidiary.cDefine36 as cDefine36,IA_EnSubsidiary.cDefine37 as cDefine37,IA_EnSubsidiary.cHandler as cHandler,IA_EnSubsidiary.cMemo as cMemo,
IA_EnSubsidiary.cBusCode as cBusCode,
IA_EnSubsidiary.iAInQuantity as R_Qty,
IA_EnSubsidiary.iAInQuantity as D_Qty,
IA_EnSubsidiary.iAInQuantity as E_Qty,
IA_EnSubsidiary.iInCost as R_Total_UnitCost,
IA_EnSubsidiary.iInCost as D_Total_UnitCost,
IA_EnSubsidiary.iInCost as E_Total_UnitCost,
IA_EnSubsidiary.iAInPrice as R_Total_StanCost,
IA_EnSubsidiary.iAInPrice as D_Total_StanCost,
IA_EnSubsidiary.iAInPrice as E_Total_StanCost,
IA_EnSubsidiary.iInCost as R_Total_UnitDif,
IA_EnSubsidiary.iInCost as D_Total_UnitDif,
IA_EnSubsidiary.iInCost as E_Total_UnitDif,
IA_EnSubsidiary.iAInPrice as R_Total_Dif,
IA_EnSubsidiary.iAInPrice as D_Total_Dif,
IA_EnSubsidiary.iAInPrice as E_Total_Dif,
IA_EnSubsidiary.iInCost as R_Total_UnitRealCost,
IA_EnSubsidiary.iInCost as D_Total_UnitRealCost,
IA_EnSubsidiary.iInCost as E_Total_UnitRealCost,
IA_EnSubsidiary.iAInPrice as R_Total_RealCost,
IA_EnSubsidiary.iAInPrice as D_Total_RealCost,
IA_EnSubsidiary.iAInPrice as E_Total_RealCost,
IA_EnSubsidiary.iInCost as R_M_UnitStanCost,
IA_EnSubsidiary.iInCost as D_M_UnitStanCost,
IA_EnSubsidiary.iInCost as E_M_UnitStanCost,
IA_EnSubsidiary.iAInPrice as R_M_StanCost,
IA_EnSubsidiary.iAInPrice as D_M_StanCost,
IA_EnSubsidiary.iAInPrice as E_M_StanCost,
IA_EnSubsidiary.iInCost as R_M_UnitPrcDif,
IA_EnSubsidiary.iInCost as D_M_UnitPrcDif,
IA_EnSubsidiary.iInCost as E_M_UnitPrcDif,
IA_EnSubsidiary.iAInPrice as R_M_PrcDif,
IA_EnSubsidiary.iAInPrice as D_M_PrcDif,
IA_EnSubsidiary.iAInPrice as E_M_PrcDif,
IA_EnSubsidiary.iInCost as R_M_UnitQuaDif,
IA_EnSubsidiary.iInCost as D_M_UnitQuaDif,
IA_EnSubsidiary.iInCost as E_M_UnitQuaDif,
IA_EnSubsidiary.iAInPrice as R_M_QuaDif,
IA_EnSubsidiary.iAInPrice as D_M_QuaDif,
IA_EnSubsidiary.iAInPrice as E_M_QuaDif,
IA_EnSubsidiary.iInCost as R_M_UnitRealCost,
IA_EnSubsidiary.iInCost as D_M_UnitRealCost,
IA_EnSubsidiary.iInCost as E_M_UnitRealCost,
IA_EnSubsidiary.iAInPrice as R_M_RealCost,
IA_EnSubsidiary.iAInPrice as D_M_RealCost,
IA_EnSubsidiary.iAInPrice as E_M_RealCost,
IA_EnSubsidiary.iInCost as R_Labor_UnitStanCost,
IA_EnSubsidiary.iInCost as D_Labor_UnitStanCost,
IA_EnSubsidiary.iInCost as E_Labor_UnitStanCost,
IA_EnSubsidiary.iAInPrice as R_Labor_StanCost,
IA_EnSubsidiary.iAInPrice as D_Labor_StanCost,
IA_EnSubsidiary.iAInPrice as E_Labor_StanCost,
IA_EnSubsidiary.iInCost as R_Labor_UnitPrcDif,
IA_EnSubsidiary.iInCost as D_Labor_UnitPrcDif,
IA_EnSubsidiary.iInCost as E_Labor_UnitPrcDif,
IA_EnSubsidiary.iAInPrice as R_Labor_PrcDif,
IA_EnSubsidiary.iAInPrice as D_Labor_PrcDif,
IA_EnSubsidiary.iAInPrice as E_Labor_PrcDif,
IA_EnSubsidiary.iInCost as R_Labor_UnitQuaDif,
IA_EnSubsidiary.iInCost as D_Labor_UnitQuaDif,
IA_EnSubsidiary.iInCost as E_Labor_UnitQuaDif,
IA_EnSubsidiary.iAInPrice as R_Labor_QuaDif,
IA_EnSubsidiary.iAInPrice as D_Labor_QuaDif,
IA_EnSubsidiary.iAInPrice as E_Labor_QuaDif,
IA_EnSubsidiary.iInCost as R_Labor_UnitSemiDif,
IA_EnSubsidiary.iInCost as D_Labor_UnitSemiDif,
IA_EnSubsidiary.iInCost as E_Labor_UnitSemiDif,
IA_EnSubsidiary.iAInPrice as R_Labor_SemiDif,
IA_EnSubsidiary.iAInPrice as D_Labor_SemiDif,
IA_EnSubsidiary.iAInPrice as E_Labor_SemiDif,
IA_EnSubsidiary.iInCost as R_Labor_UnitRealCost,
IA_EnSubsidiary.iInCost as D_Labor_UnitRealCost,
IA_EnSubsidiary.iInCost as E_Labor_UnitRealCost,
IA_EnSubsidiary.iAInPrice as R_Labor_RealCost,
IA_EnSubsidiary.iAInPrice as D_Labor_RealCost,
IA_EnSubsidiary.iAInPrice as E_Labor_RealCost,
IA_EnSubsidiary.iInCost as R_ManuFix_UnitStanCost,
IA_EnSubsidiary.iInCost as D_ManuFix_UnitStanCost,
IA_EnSubsidiary.iInCost as E_ManuFix_UnitStanCost,
IA_EnSubsidiary.iAInPrice as R_ManuFix_StanCost,
IA_EnSubsidiary.iAInPrice as D_ManuFix_StanCost,
IA_EnSubsidiary.iAInPrice as E_ManuFix_StanCost,
IA_EnSubsidiary.iInCost as R_ManuFix_UnitPrcDif,
IA_EnSubsidiary.iInCost as D_ManuFix_UnitPrcDif,
IA_EnSubsidiary.iInCost as E_ManuFix_UnitPrcDif,
IA_EnSubsidiary.iAInPrice as R_ManuFix_PrcDif,
IA_EnSubsidiary.iAInPrice as D_ManuFix_PrcDif,
IA_EnSubsidiary.iAInPrice as E_ManuFix_PrcDif,
IA_EnSubsidiary.iInCost as R_ManuFix_UnitQuaDif,
IA_EnSubsidiary.iInCost as D_ManuFix_UnitQuaDif,
IA_EnSubsidiary.iInCost as E_ManuFix_UnitQuaDif,
IA_EnSubsidiary.iAInPrice as R_ManuFix_QuaDif,
IA_EnSubsidiary.iAInPrice as D_ManuFix_QuaDif,
IA_EnSubsidiary.iAInPrice as E_ManuFix_QuaDif,
IA_EnSubsidiary.iInCost as R_ManuFix_UnitSemiDif,
IA_EnSubsidiary.iInCost as D_ManuFix_UnitSemiDif,
IA_EnSubsidiary.iInCost as E_ManuFix_UnitSemiDif,
IA_EnSubsidiary.iAInPrice as R_ManuFix_SemiDif,
IA_EnSubsidiary.iAInPrice as D_ManuFix_SemiDif,
IA_EnSubsidiary.iAInPrice as E_ManuFix_SemiDif,
IA_EnSubsidiary.iInCost as R_ManuFix_UnitRealCost,
IA_EnSubsidiary.iInCost as D_ManuFix_UnitRealCost,
IA_EnSubsidiary.iInCost as E_ManuFix_UnitRealCost,
IA_EnSubsidiary.iAInPrice as R_ManuFix_RealCost,
IA_EnSubsidiary.iAInPrice as D_ManuFix_RealCost,
IA_EnSubsidiary.iAInPrice as E_ManuFix_RealCost,
IA_EnSubsidiary.iInCost as R_ManuVar_UnitStanCost,
IA_EnSubsidiary.iInCost as D_ManuVar_UnitStanCost,
IA_EnSubsidiary.iInCost as E_ManuVar_UnitStanCost,
IA_EnSubsidiary.iAInPrice as R_ManuVar_StanCost,
IA_EnSubsidiary.iAInPrice as D_ManuVar_StanCost,
IA_EnSubsidiary.iAInPrice as E_ManuVar_StanCost,
IA_EnSubsidiary.iInCost as R_ManuVar_UnitPrcDif,
IA_EnSubsidiary.iInCost as D_ManuVar_UnitPrcDif,
IA_EnSubsidiary.iInCost as E_ManuVar_UnitPrcDif,
IA_EnSubsidiary.iAInPrice as R_ManuVar_PrcDif,
IA_EnSubsidiary.iAInPrice as D_ManuVar_PrcDif,
IA_EnSubsidiary.iAInPrice as E_ManuVar_PrcDif,
IA_EnSubsidiary.iInCost as R_ManuVar_UnitQuaDif,
IA_EnSubsidiary.iInCost as D_ManuVar_UnitQuaDif,
IA_EnSubsidiary.iInCost as E_ManuVar_UnitQuaDif,
IA_EnSubsidiary.iAInPrice as R_ManuVar_QuaDif,
IA_EnSubsidiary.iAInPrice as D_ManuVar_QuaDif,
IA_EnSubsidiary.iAInPrice as E_ManuVar_QuaDif,
IA_EnSubsidiary.iInCost as R_ManuVar_UnitSemiDif,
IA_EnSubsidiary.iInCost as D_ManuVar_UnitSemiDif,
IA_EnSubsidiary.iInCost as E_ManuVar_UnitSemiDif,
IA_EnSubsidiary.iAInPrice as R_ManuVar_SemiDif,
IA_EnSubsidiary.iAInPrice as D_ManuVar_SemiDif,
IA_EnSubsidiary.iAInPrice as E_ManuVar_SemiDif,
IA_EnSubsidiary.iInCost as R_ManuVar_UnitRealCost,
IA_EnSubsidiary.iInCost as D_ManuVar_UnitRealCost,
IA_EnSubsidiary.iInCost as E_ManuVar_UnitRealCost,
IA_EnSubsidiary.iAInPrice as R_ManuVar_RealCost,
IA_EnSubsidiary.iAInPrice as D_ManuVar_RealCost,
IA_EnSubsidiary.iAInPrice as E_ManuVar_RealCost,
IA_EnSubsidiary.iInCost as R_Omp_UnitStanCost,
IA_EnSubsidiary.iInCost as D_Omp_UnitStanCost,
IA_EnSubsidiary.iInCost as E_Omp_UnitStanCost,
IA_EnSubsidiary.iAInPrice as R_Omp_StanCost,
IA_EnSubsidiary.iAInPrice as D_Omp_StanCost,
IA_EnSubsidiary.iAInPrice as E_Omp_StanCost,
IA_EnSubsidiary.iInCost as R_Omp_UnitDif,
IA_EnSubsidiary.iInCost as D_Omp_UnitDif,
IA_EnSubsidiary.iInCost as E_Omp_UnitDif,
IA_EnSubsidiary.iAInPrice as R_Omp_Dif,
IA_EnSubsidiary.iAInPrice as D_Omp_Dif,
IA_EnSubsidiary.iAInPrice as E_Omp_Dif,
IA_EnSubsidiary.iInCost as R_Omp_UnitSemiDif,
IA_EnSubsidiary.iInCost as D_Omp_UnitSemiDif,
IA_EnSubsidiary.iInCost as E_Omp_UnitSemiDif,
IA_EnSubsidiary.iAInPrice as R_Omp_SemiDif,
IA_EnSubsidiary.iAInPrice as D_Omp_SemiDif,
IA_EnSubsidiary.iAInPrice as E_Omp_SemiDif,
IA_EnSubsidiary.iInCost as R_Omp_UnitRealCost,
IA_EnSubsidiary.iInCost as D_Omp_UnitRealCost,
IA_EnSubsidiary.iInCost as E_Omp_UnitRealCost,
IA_EnSubsidiary.iInCost as R_Omp_RealCost,
IA_EnSubsidiary.iInCost as D_Omp_RealCost,
IA_EnSubsidiary.iInCost as E_Omp_RealCost,
cast(null as nvarchar(110)) as cPZNo,
cast(null as nvarchar(110)) as cDifPZNo,
IA_EnSubsidiary.imonth,
IA_EnSubsidiary.iyear
 into Tempdb..[LSZMACHINE7]
from (select 1 as one) nothing left join IA_EnSubsidiary on 1=2
left join Rd_Style r on IA_EnSubsidiary.cRdCode=r.cRdCode
left join Warehouse w on IA_EnSubsidiary.cWhCode=w.cWhCode
left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode
left join InventoryClass ic on inventory.cInvCCode=ic.cInvCCode
left join Customer c on IA_EnSubsidiary.cCusCode=c.cCusCode
left join CustomerClass cc on c.cCCCode=cc.cCCCode
left join Department d on IA_EnSubsidiary.cAccDep=d.cDepCode
left join NE_FitemssEx_View n on IA_EnSubsidiary.cItemCode= n.citem_class
left join VouchType on VouchType.cVouchType=case when IA_EnSubsidiary.cvoutype=N'3201' then N'32' else IA_EnSubsidiary.cvoutype end
left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype' and AA_Enum.LocaleId=DBO.UDF_GetLocaleID()
where 1=2
-- 4 #1
insert into Tempdb..[LSZMACHINE7](flag,dKeepDate,E_Qty,E_M_StanCost,E_M_PrcDif,E_M_QuaDif,E_M_RealCost,E_Labor_StanCost,E_Labor_PrcDif,E_Labor_QuaDif,E_Labor_SemiDif,E_Labor_RealCost,E_ManuFix_StanCost,E_ManuFix_PrcDif,E_ManuFix_QuaDif,E_ManuFix_SemiDif,E_ManuFix_RealCost,E_ManuVar_StanCost,E_ManuVar_PrcDif,E_ManuVar_QuaDif,E_ManuVar_SemiDif,E_ManuVar_RealCost,E_Omp_StanCost,E_Omp_Dif,E_Omp_SemiDif,E_Omp_RealCost,imonth)
select 0 flag,N'期初余额',
SUM(case when IA_EnSubsidiary.bRdFlag=1 then IA_EnSubsidiary.iAInQuantity else -1*IA_EnSubsidiary.iAoutQuantity  end) as E_Qty,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then s.fInvStdPrice else -1*s.fInvStdPrice end) as E_M_StanCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fInvPriceDif else -1*p.fInvPriceDif end) as E_M_PrcDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fInvQuanDif else -1*p.fInvQuanDif end) as E_M_QuaDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fInvStdPrice,0)+isnull(p.fInvPriceDif,0)+isnull(p.fInvQuanDif,0)) else -1*(isnull(s.fInvStdPrice,0)+isnull(p.fInvPriceDif,0)+isnull(p.fInvQuanDif,0)) end) as E_M_RealCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then s.fLaborStdPrice else -1*s.fLaborStdPrice end) as E_Labor_StanCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrPriceDif else -1*p.fLbrPriceDif end) as E_Labor_PrcDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrQuanDif else -1*p.fLbrQuanDif end) as E_Labor_QuaDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrSemiDif else -1*p.fLbrSemiDif end) as E_Labor_SemiDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fLaborStdPrice,0)+isnull(p.fLbrPriceDif,0)+isnull(p.fLbrQuanDif,0)+isnull(p.fLbrSemiDif,0)) else -1*(isnull(s.fLaborStdPrice,0)+isnull(p.fLbrPriceDif,0)+isnull(p.fLbrQuanDif,0)+isnull(p.fLbrSemiDif,0)) end) as E_Labor_RealCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then s.fManuFixPrice else -1*s.fManuFixPrice end) as E_ManuFix_StanCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fmanufixpricedif else -1*p.fmanufixpricedif end) as E_ManuFix_PrcDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuFixQuanDif else -1*p.fManuFixQuanDif end) as E_ManuFix_QuaDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiManuFixDif else -1*p.fSemiManuFixDif end) as E_ManuFix_SemiDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fManuFixPrice,0)+isnull(p.fmanufixpricedif,0)+isnull(p.fManuFixQuanDif,0)+isnull(p.fSemiManuFixDif,0)) else -1*(isnull(s.fManuFixPrice,0)+isnull(p.fmanufixpricedif,0)+isnull(p.fManuFixQuanDif,0)+isnull(p.fSemiManuFixDif,0)) end) as E_ManuFix_RealCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then s.fManuVarPrice else -1*s.fManuVarPrice end) as E_ManuVar_StanCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuVarPriceDif else -1*p.fManuVarPriceDif end) as E_ManuVar_PrcDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuVarQuanDif else -1*p.fManuVarQuanDif end) as E_ManuVar_QuaDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiManuVarDif else -1*p.fSemiManuVarDif end) as E_ManuVar_SemiDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fManuVarPrice,0)+isnull(p.fManuVarPriceDif,0)+isnull(p.fManuVarQuanDif,0)+isnull(p.fSemiManuVarDif,0)) else -1*(isnull(s.fManuVarPrice,0)+isnull(p.fManuVarPriceDif,0)+isnull(p.fManuVarQuanDif,0)+isnull(p.fSemiManuVarDif,0)) end) as E_ManuVar_RealCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then s.fOmPrice else -1*s.fOmPrice end) as E_Omp_StanCost,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fOmCostDif else -1*p.fOmCostDif end) as E_Omp_Dif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiOmDif else -1*p.fSemiOmDif end) as E_Omp_SemiDif,
SUM(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fOmPrice,0)+isnull(p.fOmCostDif,0)+isnull(p.fSemiOmDif,0)) else -1*(isnull(s.fOmPrice,0)+isnull(p.fOmCostDif,0)+isnull(p.fSemiOmDif,0)) end) as E_Omp_RealCost,
0 imonth
from IA_EnSubsidiary
left join Warehouse w on IA_EnSubsidiary.cWhCode=w.cWhCode
left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode
left join InventoryClass ic on inventory.cInvCCode=ic.cInvCCode
left join Customer c on IA_EnSubsidiary.cCusCode=c.cCusCode
left join CustomerClass cc on c.cCCCode=cc.cCCCode
left join Department d on IA_EnSubsidiary.cAccDep=d.cDepCode
left join NE_FitemssEx_View n on IA_EnSubsidiary.cItemCode= n.citem_class
left join IA_EnSubsidiary_STSub s on IA_EnSubsidiary.AutoID = s.iIAEnSubID
left join pl_CO_EnSubsidiary p on IA_EnSubsidiary .AutoID = p.iIASubID
left join VouchType on VouchType.cVouchType=case when IA_EnSubsidiary.cvoutype=N'3201' then N'32' else IA_EnSubsidiary.cvoutype end
left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype' and AA_Enum.LocaleId=DBO.UDF_GetLocaleID()
 where IA_EnSubsidiary.iYear = N'2008' And IA_EnSubsidiary.cInvCode = N'A' And IA_EnSubsidiary.cWhCode = N'01' and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托')  and  ( ia_ensubsidiary.imonth  = 0  or IA_EnSubsidiary.imonth < '3')  and 1=1  and cfree1=N'红'
-- 5 #1
update Tempdb..[LSZMACHINE7] set 
E_M_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_M_StanCost/E_Qty end,
E_M_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_M_PrcDif/E_Qty end,
E_M_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_M_QuaDif/E_Qty end,
E_M_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_M_RealCost/E_Qty end,
E_Labor_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_Labor_StanCost/E_Qty end,
E_Labor_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_PrcDif/E_Qty end,
E_Labor_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_QuaDif/E_Qty end,
E_Labor_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_SemiDif/E_Qty end,
E_Labor_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_Labor_RealCost/E_Qty end,
E_ManuFix_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_StanCost/E_Qty end,
E_ManuFix_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_PrcDif/E_Qty end,
E_ManuFix_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_QuaDif/E_Qty end,
E_ManuFix_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_SemiDif/E_Qty end,
E_ManuFix_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_RealCost/E_Qty end,
E_ManuVar_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_StanCost/E_Qty end,
E_ManuVar_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_PrcDif/E_Qty end,
E_ManuVar_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_QuaDif/E_Qty end,
E_ManuVar_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_SemiDif/E_Qty end,
E_ManuVar_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_RealCost/E_Qty end,
E_Omp_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_Omp_StanCost/E_Qty end,
E_Omp_UnitDif=case when isnull(E_Qty,0) = 0 then null else E_Omp_Dif/E_Qty end,
E_Omp_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_Omp_SemiDif/E_Qty end,
E_Omp_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_Omp_RealCost/E_Qty end

-- 6 #1
update Tempdb..[LSZMACHINE7] set 
E_Total_StanCost=(isnull(E_M_StanCost,0)+isnull(E_Labor_StanCost,0)+isnull(E_ManuFix_StanCost,0)+isnull(E_ManuVar_StanCost,0)+isnull(E_Omp_StanCost,0)),
E_Total_Dif=(isnull(E_M_PrcDif,0)+isnull(E_M_QuaDif,0)+isnull(E_Labor_PrcDif,0)+isnull(E_Labor_QuaDif,0)+isnull(E_Labor_SemiDif,0)+isnull(E_ManuFix_PrcDif,0)+isnull(E_ManuFix_QuaDif,0)+isnull(E_ManuFix_SemiDif,0)+isnull(E_ManuVar_PrcDif,0)+isnull(E_ManuVar_QuaDif,0)+isnull(E_ManuVar_SemiDif,0)+isnull(E_Omp_Dif,0)+isnull(E_Omp_SemiDif,0)),
E_Total_RealCost=(isnull(E_M_RealCost,0)+isnull(E_Labor_RealCost,0)+isnull(E_ManuFix_RealCost,0)+isnull(E_ManuVar_RealCost,0)+isnull(E_Omp_RealCost,0))

-- 7 #1
update Tempdb..[LSZMACHINE7] set 
E_Total_UnitCost=case when isnull(E_Qty,0) = 0 then null else E_Total_StanCost/E_Qty end,
E_Total_UnitDif=case when isnull(E_Qty,0) = 0 then null else E_Total_Dif/E_Qty end,
E_Total_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_Total_RealCost/E_Qty end

-- 8 #1
insert into Tempdb..[LSZMACHINE7](flag,ipzid,iSrcID,cSRcVoutype,autoid,dKeepDate,cAccounter,dVouDate,dtAudit,cPZID,cDifPZid,cVouCode,cPZdigest,cVouchName,cVouType,cBusType,cRdCode,cRdName,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cComUnitCode,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10,cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,cInvDefine16,cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName,cItem_class,cItemCName,cItemCode,cName,cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,cHandler,cMemo,cBusCode,R_Qty,R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost,R_Labor_StanCost,R_Labor_PrcDif,R_Labor_QuaDif,R_Labor_SemiDif,R_Labor_RealCost,R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost,R_ManuVar_StanCost,R_ManuVar_PrcDif,R_ManuVar_QuaDif,R_ManuVar_SemiDif,R_ManuVar_RealCost,R_Omp_StanCost,R_Omp_Dif,R_Omp_SemiDif,R_Omp_RealCost,D_Qty,D_M_StanCost,D_M_PrcDif,D_M_QuaDif,D_M_RealCost,D_Labor_StanCost,D_Labor_PrcDif,D_Labor_QuaDif,D_Labor_SemiDif,D_Labor_RealCost,D_ManuFix_StanCost,D_ManuFix_PrcDif,D_ManuFix_QuaDif,D_ManuFix_SemiDif,D_ManuFix_RealCost,D_ManuVar_StanCost,D_ManuVar_PrcDif,D_ManuVar_QuaDif,D_ManuVar_SemiDif,D_ManuVar_RealCost,D_Omp_StanCost,D_Omp_Dif,D_Omp_SemiDif,D_Omp_RealCost,imonth,iyear)
 select 1 flag,IA_EnSubsidiary.ipzid,IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,cast (AutoID as int),convert(nvarchar(10),IA_EnSubsidiary.dKeepDate,121),IA_EnSubsidiary.cAccounter,IA_EnSubsidiary.dVouDate,IA_EnSubsidiary.dtAudit,IA_EnSubsidiary.cPZID,p.cDifPZID,IA_EnSubsidiary.cVouCode,IA_EnSubsidiary.cPZdigest,AA_Enum.EnumName,IA_EnSubsidiary.cVouType,IA_EnSubsidiary.cBusType,IA_EnSubsidiary.cRdCode,r.cRdName,IA_EnSubsidiary.cWhCode,w.cWhName,inventory.cInvCCode,ic.cInvCName,IA_EnSubsidiary.cInvCode,inventory.cInvName,inventory.cInvAddCode,inventory.cInvStd,inventory.cComUnitCode,IA_EnSubsidiary.cFree1,IA_EnSubsidiary.cFree2,IA_EnSubsidiary.cFree3,IA_EnSubsidiary.cFree4,IA_EnSubsidiary.cFree5,IA_EnSubsidiary.cFree6,IA_EnSubsidiary.cFree7,IA_EnSubsidiary.cFree8,IA_EnSubsidiary.cFree9,IA_EnSubsidiary.cFree10,inventory.cInvDefine1,inventory.cInvDefine2,inventory.cInvDefine3,inventory.cInvDefine4,inventory.cInvDefine5,inventory.cInvDefine6,inventory.cInvDefine7,inventory.cInvDefine8,inventory.cInvDefine9,inventory.cInvDefine10,inventory.cInvDefine11,inventory.cInvDefine12,inventory.cInvDefine13,inventory.cInvDefine14,inventory.cInvDefine15,inventory.cInvDefine16,cc.cCCCode,cc.cCCName,IA_EnSubsidiary.cCusCode,c.cCusName,IA_EnSubsidiary.cAccDep,d.cDepName,IA_EnSubsidiary.cItem_class,IA_EnSubsidiary.cItemCName,IA_EnSubsidiary.cItemCode,IA_EnSubsidiary.cName,IA_EnSubsidiary.cDefine1,IA_EnSubsidiary.cDefine2,IA_EnSubsidiary.cDefine3,IA_EnSubsidiary.cDefine4,IA_EnSubsidiary.cDefine5,IA_EnSubsidiary.cDefine6,IA_EnSubsidiary.cDefine7,IA_EnSubsidiary.cDefine8,IA_EnSubsidiary.cDefine9,IA_EnSubsidiary.cDefine10,IA_EnSubsidiary.cDefine11,IA_EnSubsidiary.cDefine12,IA_EnSubsidiary.cDefine13,IA_EnSubsidiary.cDefine14,IA_EnSubsidiary.cDefine15,IA_EnSubsidiary.cDefine16,IA_EnSubsidiary.cDefine22,IA_EnSubsidiary.cDefine23,IA_EnSubsidiary.cDefine24,IA_EnSubsidiary.cDefine25,IA_EnSubsidiary.cDefine26,IA_EnSubsidiary.cDefine27,IA_EnSubsidiary.cDefine28,IA_EnSubsidiary.cDefine29,IA_EnSubsidiary.cDefine30,IA_EnSubsidiary.cDefine31,IA_EnSubsidiary.cDefine32,IA_EnSubsidiary.cDefine33,IA_EnSubsidiary.cDefine34,IA_EnSubsidiary.cDefine35,IA_EnSubsidiary.cDefine36,IA_EnSubsidiary.cDefine37,IA_EnSubsidiary.cHandler,IA_EnSubsidiary.cMemo,IA_EnSubsidiary.cBusCode,
IA_EnSubsidiary.iAInQuantity as R_Qty,
(case when IA_EnSubsidiary.bRdFlag=1 then s.fInvStdPrice else null end)as R_M_StanCost,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fInvPriceDif else null end)as R_M_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fInvQuanDif else null end)as R_M_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fInvStdPrice,0)+isnull(p.fInvPriceDif,0)+isnull(p.fInvQuanDif,0)) else null end)as R_M_RealCost,
(case when IA_EnSubsidiary.bRdFlag=1 then s.fLaborStdPrice else null end)as R_Labor_StanCost,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrPriceDif else null end)as R_Labor_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrQuanDif else null end)as R_Labor_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fLbrSemiDif else null end)as R_Labor_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fLaborStdPrice,0)+isnull(p.fLbrPriceDif,0)+isnull(p.fLbrQuanDif,0)+isnull(p.fLbrSemiDif,0)) else null end)as R_Labor_RealCost,
(case when IA_EnSubsidiary.bRdFlag=1 then s.fManuFixPrice else null end)as R_ManuFix_StanCost,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fmanufixpricedif else null end)as R_ManuFix_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuFixQuanDif else null end)as R_ManuFix_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiManuFixDif else null end)as R_ManuFix_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fManuFixPrice,0)+isnull(p.fmanufixpricedif,0)+isnull(p.fManuFixQuanDif,0)+isnull(p.fSemiManuFixDif,0)) else null end)as R_ManuFix_RealCost,
(case when IA_EnSubsidiary.bRdFlag=1 then s.fManuVarPrice else null end)as R_ManuVar_StanCost,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuVarPriceDif else null end)as R_ManuVar_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fManuVarQuanDif else null end)as R_ManuVar_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiManuVarDif else null end)as R_ManuVar_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fManuVarPrice,0)+isnull(p.fManuVarPriceDif,0)+isnull(p.fManuVarQuanDif,0)+isnull(p.fSemiManuVarDif,0)) else null end)as R_ManuVar_RealCost,
(case when IA_EnSubsidiary.bRdFlag=1 then s.fOmPrice else null end)as R_Omp_StanCost,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fOmCostDif else null end)as R_Omp_Dif,
(case when IA_EnSubsidiary.bRdFlag=1 then p.fSemiOmDif else null end)as R_Omp_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=1 then (isnull(s.fOmPrice,0)+isnull(p.fOmCostDif,0)+isnull(p.fSemiOmDif,0)) else null end)as R_Omp_RealCost,
IA_EnSubsidiary.iAOutQuantity as D_Qty,
(case when IA_EnSubsidiary.bRdFlag=0 then s.fInvStdPrice else null end)as D_M_StanCost,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fInvPriceDif else null end)as D_M_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fInvQuanDif else null end)as D_M_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=0 then (isnull(s.fInvStdPrice,0)+isnull(p.fInvPriceDif,0)+isnull(p.fInvQuanDif,0)) else null end)as D_M_RealCost,
(case when IA_EnSubsidiary.bRdFlag=0 then s.fLaborStdPrice else null end)as D_Labor_StanCost,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fLbrPriceDif else null end)as D_Labor_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fLbrQuanDif else null end)as D_Labor_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fLbrSemiDif else null end)as D_Labor_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=0 then (isnull(s.fLaborStdPrice,0)+isnull(p.fLbrPriceDif,0)+isnull(p.fLbrQuanDif,0)+isnull(p.fLbrSemiDif,0)) else null end)as D_Labor_RealCost,
(case when IA_EnSubsidiary.bRdFlag=0 then s.fManuFixPrice else null end)as D_ManuFix_StanCost,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fmanufixpricedif else null end)as D_ManuFix_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fManuFixQuanDif else null end)as D_ManuFix_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fSemiManuFixDif else null end)as D_ManuFix_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=0 then (isnull(s.fManuFixPrice,0)+isnull(p.fmanufixpricedif,0)+isnull(p.fManuFixQuanDif,0)+isnull(p.fSemiManuFixDif,0)) else null end)as D_ManuFix_RealCost,
(case when IA_EnSubsidiary.bRdFlag=0 then s.fManuVarPrice else null end)as D_ManuVar_StanCost,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fManuVarPriceDif else null end)as D_ManuVar_PrcDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fManuVarQuanDif else null end)as D_ManuVar_QuaDif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fSemiManuVarDif else null end)as D_ManuVar_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=0 then (isnull(s.fManuVarPrice,0)+isnull(p.fManuVarPriceDif,0)+isnull(p.fManuVarQuanDif,0)+isnull(p.fSemiManuVarDif,0)) else null end)as D_ManuVar_RealCost,
(case when IA_EnSubsidiary.bRdFlag=0 then s.fOmPrice else null end)as D_Omp_StanCost,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fOmCostDif else null end)as D_Omp_Dif,
(case when IA_EnSubsidiary.bRdFlag=0 then p.fSemiOmDif else null end)as D_Omp_SemiDif,
(case when IA_EnSubsidiary.bRdFlag=0 then (isnull(s.fOmPrice,0)+isnull(p.fOmCostDif,0)+isnull(p.fSemiOmDif,0)) else null end)as D_Omp_RealCost,
IA_EnSubsidiary.imonth,
IA_EnSubsidiary.iyear
from IA_EnSubsidiary
left join Rd_Style r on IA_EnSubsidiary.cRdCode=r.cRdCode
left join Warehouse w on IA_EnSubsidiary.cWhCode=w.cWhCode
left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode
left join InventoryClass ic on inventory.cInvCCode=ic.cInvCCode
left join Customer c on IA_EnSubsidiary.cCusCode=c.cCusCode
left join CustomerClass cc on c.cCCCode=cc.cCCCode
left join Department d on IA_EnSubsidiary.cAccDep=d.cDepCode
left join NE_FitemssEx_View n on IA_EnSubsidiary.cItemCode= n.citem_class
left join IA_EnSubsidiary_STSub s on IA_EnSubsidiary.AutoID = s.iIAEnSubID
left join pl_CO_EnSubsidiary p on IA_EnSubsidiary .AutoID = p.iIASubID
left join VouchType on VouchType.cVouchType=case when IA_EnSubsidiary.cvoutype=N'3201' then N'32' else IA_EnSubsidiary.cvoutype end
left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype' and  aa_enum.LocaleId=N'zh-CN'
 where 1 = 1 and IA_EnSubsidiary.imonth <> 0  and IA_EnSubsidiary.iYear = N'2008' And IA_EnSubsidiary.cInvCode = N'A' And IA_EnSubsidiary.cWhCode = N'01' and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托')  and 1 = 1  And IA_EnSubsidiary.imonth Between N'3' And '7'  and 1=1  and cfree1=N'红'
 order by IA_EnSubsidiary.autoid 
-- 9 #1
update a set 
E_Qty=c.isum,
E_M_StanCost=c.isum2,
E_M_PrcDif=c.isum4,
E_M_QuaDif=c.isum6,
E_M_RealCost=c.isum8,
E_Labor_StanCost=c.isum10,
E_Labor_PrcDif=c.isum12,
E_Labor_QuaDif=c.isum14,
E_Labor_SemiDif=c.isum16,
E_Labor_RealCost=c.isum18,
E_ManuFix_StanCost=c.isum20,
E_ManuFix_PrcDif=c.isum22,
E_ManuFix_QuaDif=c.isum24,
E_ManuFix_SemiDif=c.isum26,
E_ManuFix_RealCost=c.isum28,
E_ManuVar_StanCost=c.isum30,
E_ManuVar_PrcDif=c.isum32,
E_ManuVar_QuaDif=c.isum34,
E_ManuVar_SemiDif=c.isum36,
E_ManuVar_RealCost=c.isum38,
E_Omp_StanCost=c.isum40,
E_Omp_Dif=c.isum42,
E_Omp_SemiDif=c.isum44,
E_Omp_RealCost=c.isum46
from Tempdb..[LSZMACHINE7] a
inner join (select a.ino,
sum(isnull(b.E_Qty,0)+isnull(b.R_Qty,0)-isnull(b.D_Qty,0)) as isum,
sum(isnull(b.E_M_StanCost,0)+isnull(b.R_M_StanCost,0)-isnull(b.D_M_StanCost,0)) as isum2,
sum(isnull(b.E_M_PrcDif,0)+isnull(b.R_M_PrcDif,0)-isnull(b.D_M_PrcDif,0)) as isum4,
sum(isnull(b.E_M_QuaDif,0)+isnull(b.R_M_QuaDif,0)-isnull(b.D_M_QuaDif,0)) as isum6,
sum(isnull(b.E_M_RealCost,0)+isnull(b.R_M_RealCost,0)-isnull(b.D_M_RealCost,0)) as isum8,
sum(isnull(b.E_Labor_StanCost,0)+isnull(b.R_Labor_StanCost,0)-isnull(b.D_Labor_StanCost,0)) as isum10,
sum(isnull(b.E_Labor_PrcDif,0)+isnull(b.R_Labor_PrcDif,0)-isnull(b.D_Labor_PrcDif,0)) as isum12,
sum(isnull(b.E_Labor_QuaDif,0)+isnull(b.R_Labor_QuaDif,0)-isnull(b.D_Labor_QuaDif,0)) as isum14,
sum(isnull(b.E_Labor_SemiDif,0)+isnull(b.R_Labor_SemiDif,0)-isnull(b.D_Labor_SemiDif,0)) as isum16,
sum(isnull(b.E_Labor_RealCost,0)+isnull(b.R_Labor_RealCost,0)-isnull(b.D_Labor_RealCost,0)) as isum18,
sum(isnull(b.E_ManuFix_StanCost,0)+isnull(b.R_ManuFix_StanCost,0)-isnull(b.D_ManuFix_StanCost,0)) as isum20,
sum(isnull(b.E_ManuFix_PrcDif,0)+isnull(b.R_ManuFix_PrcDif,0)-isnull(b.D_ManuFix_PrcDif,0)) as isum22,
sum(isnull(b.E_ManuFix_QuaDif,0)+isnull(b.R_ManuFix_QuaDif,0)-isnull(b.D_ManuFix_QuaDif,0)) as isum24,
sum(isnull(b.E_ManuFix_SemiDif,0)+isnull(b.R_ManuFix_SemiDif,0)-isnull(b.D_ManuFix_SemiDif,0)) as isum26,
sum(isnull(b.E_ManuFix_RealCost,0)+isnull(b.R_ManuFix_RealCost,0)-isnull(b.D_ManuFix_RealCost,0)) as isum28,
sum(isnull(b.E_ManuVar_StanCost,0)+isnull(b.R_ManuVar_StanCost,0)-isnull(b.D_ManuVar_StanCost,0)) as isum30,
sum(isnull(b.E_ManuVar_PrcDif,0)+isnull(b.R_ManuVar_PrcDif,0)-isnull(b.D_ManuVar_PrcDif,0)) as isum32,
sum(isnull(b.E_ManuVar_QuaDif,0)+isnull(b.R_ManuVar_QuaDif,0)-isnull(b.D_ManuVar_QuaDif,0)) as isum34,
sum(isnull(b.E_ManuVar_SemiDif,0)+isnull(b.R_ManuVar_SemiDif,0)-isnull(b.D_ManuVar_SemiDif,0)) as isum36,
sum(isnull(b.E_ManuVar_RealCost,0)+isnull(b.R_ManuVar_RealCost,0)-isnull(b.D_ManuVar_RealCost,0)) as isum38,
sum(isnull(b.E_Omp_StanCost,0)+isnull(b.R_Omp_StanCost,0)-isnull(b.D_Omp_StanCost,0)) as isum40,
sum(isnull(b.E_Omp_Dif,0)+isnull(b.R_Omp_Dif,0)-isnull(b.D_Omp_Dif,0)) as isum42,
sum(isnull(b.E_Omp_SemiDif,0)+isnull(b.R_Omp_SemiDif,0)-isnull(b.D_Omp_SemiDif,0)) as isum44,
sum(isnull(b.E_Omp_RealCost,0)+isnull(b.R_Omp_RealCost,0)-isnull(b.D_Omp_RealCost,0)) as isum46
from Tempdb..[LSZMACHINE7] a,Tempdb..[LSZMACHINE7] b
where b.ino <=a.ino
group by a.ino) c on a.ino=c.ino
-- 10 #1
update Tempdb..[LSZMACHINE7] set 
R_M_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_M_StanCost/R_Qty end,
R_M_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_M_PrcDif/R_Qty end,
R_M_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_M_QuaDif/R_Qty end,
R_M_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_M_RealCost/R_Qty end,
R_Labor_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_Labor_StanCost/R_Qty end,
R_Labor_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_PrcDif/R_Qty end,
R_Labor_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_QuaDif/R_Qty end,
R_Labor_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_SemiDif/R_Qty end,
R_Labor_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_Labor_RealCost/R_Qty end,
R_ManuFix_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_StanCost/R_Qty end,
R_ManuFix_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_PrcDif/R_Qty end,
R_ManuFix_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_QuaDif/R_Qty end,
R_ManuFix_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_SemiDif/R_Qty end,
R_ManuFix_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_RealCost/R_Qty end,
R_ManuVar_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_StanCost/R_Qty end,
R_ManuVar_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_PrcDif/R_Qty end,
R_ManuVar_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_QuaDif/R_Qty end,
R_ManuVar_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_SemiDif/R_Qty end,
R_ManuVar_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_RealCost/R_Qty end,
R_Omp_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_Omp_StanCost/R_Qty end,
R_Omp_UnitDif=case when isnull(R_Qty,0) = 0 then null else R_Omp_Dif/R_Qty end,
R_Omp_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_Omp_SemiDif/R_Qty end,
R_Omp_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_Omp_RealCost/R_Qty end,
D_M_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_M_StanCost/D_Qty end,
D_M_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_M_PrcDif/D_Qty end,
D_M_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_M_QuaDif/D_Qty end,
D_M_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_M_RealCost/D_Qty end,
D_Labor_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_Labor_StanCost/D_Qty end,
D_Labor_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_PrcDif/D_Qty end,
D_Labor_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_QuaDif/D_Qty end,
D_Labor_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_SemiDif/D_Qty end,
D_Labor_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_Labor_RealCost/D_Qty end,
D_ManuFix_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_StanCost/D_Qty end,
D_ManuFix_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_PrcDif/D_Qty end,
D_ManuFix_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_QuaDif/D_Qty end,
D_ManuFix_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_SemiDif/D_Qty end,
D_ManuFix_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_RealCost/D_Qty end,
D_ManuVar_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_StanCost/D_Qty end,
D_ManuVar_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_PrcDif/D_Qty end,
D_ManuVar_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_QuaDif/D_Qty end,
D_ManuVar_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_SemiDif/D_Qty end,
D_ManuVar_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_RealCost/D_Qty end,
D_Omp_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_Omp_StanCost/D_Qty end,
D_Omp_UnitDif=case when isnull(D_Qty,0) = 0 then null else D_Omp_Dif/D_Qty end,
D_Omp_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_Omp_SemiDif/D_Qty end,
D_Omp_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_Omp_RealCost/D_Qty end,
E_M_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_M_StanCost/E_Qty end,
E_M_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_M_PrcDif/E_Qty end,
E_M_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_M_QuaDif/E_Qty end,
E_M_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_M_RealCost/E_Qty end,
E_Labor_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_Labor_StanCost/E_Qty end,
E_Labor_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_PrcDif/E_Qty end,
E_Labor_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_QuaDif/E_Qty end,
E_Labor_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_Labor_SemiDif/E_Qty end,
E_Labor_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_Labor_RealCost/E_Qty end,
E_ManuFix_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_StanCost/E_Qty end,
E_ManuFix_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_PrcDif/E_Qty end,
E_ManuFix_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_QuaDif/E_Qty end,
E_ManuFix_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_SemiDif/E_Qty end,
E_ManuFix_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_ManuFix_RealCost/E_Qty end,
E_ManuVar_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_StanCost/E_Qty end,
E_ManuVar_UnitPrcDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_PrcDif/E_Qty end,
E_ManuVar_UnitQuaDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_QuaDif/E_Qty end,
E_ManuVar_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_SemiDif/E_Qty end,
E_ManuVar_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_ManuVar_RealCost/E_Qty end,
E_Omp_UnitStanCost=case when isnull(E_Qty,0) = 0 then null else E_Omp_StanCost/E_Qty end,
E_Omp_UnitDif=case when isnull(E_Qty,0) = 0 then null else E_Omp_Dif/E_Qty end,
E_Omp_UnitSemiDif=case when isnull(E_Qty,0) = 0 then null else E_Omp_SemiDif/E_Qty end,
E_Omp_UnitRealCost=case when isnull(E_Qty,0) = 0 then null else E_Omp_RealCost/E_Qty end

-- 11 #1
update Tempdb..[LSZMACHINE7] set 
R_Total_StanCost=(isnull(R_M_StanCost,0)+isnull(R_Labor_StanCost,0)+isnull(R_ManuFix_StanCost,0)+isnull(R_ManuVar_StanCost,0)+isnull(R_Omp_StanCost,0)),
R_Total_Dif=(isnull(R_M_PrcDif,0)+isnull(R_M_QuaDif,0)+isnull(R_Labor_PrcDif,0)+isnull(R_Labor_QuaDif,0)+isnull(R_Labor_SemiDif,0)+isnull(R_ManuFix_PrcDif,0)+isnull(R_ManuFix_QuaDif,0)+isnull(R_ManuFix_SemiDif,0)+isnull(R_ManuVar_PrcDif,0)+isnull(R_ManuVar_QuaDif,0)+isnull(R_ManuVar_SemiDif,0)+isnull(R_Omp_Dif,0)+isnull(R_Omp_SemiDif,0)),
R_Total_RealCost=(isnull(R_M_RealCost,0)+isnull(R_Labor_RealCost,0)+isnull(R_ManuFix_RealCost,0)+isnull(R_ManuVar_RealCost,0)+isnull(R_Omp_RealCost,0)),
D_Total_StanCost=(isnull(D_M_StanCost,0)+isnull(D_Labor_StanCost,0)+isnull(D_ManuFix_StanCost,0)+isnull(D_ManuVar_StanCost,0)+isnull(D_Omp_StanCost,0)),
D_Total_Dif=(isnull(D_M_PrcDif,0)+isnull(D_M_QuaDif,0)+isnull(D_Labor_PrcDif,0)+isnull(D_Labor_QuaDif,0)+isnull(D_Labor_SemiDif,0)+isnull(D_ManuFix_PrcDif,0)+isnull(D_ManuFix_QuaDif,0)+isnull(D_ManuFix_SemiDif,0)+isnull(D_ManuVar_PrcDif,0)+isnull(D_ManuVar_QuaDif,0)+isnull(D_ManuVar_SemiDif,0)+isnull(D_Omp_Dif,0)+isnull(D_Omp_SemiDif,0)),
D_Total_RealCost=(isnull(D_M_RealCost,0)+isnull(D_Labor_RealCost,0)+isnull(D_ManuFix_RealCost,0)+isnull(D_ManuVar_RealCost,0)+isnull(D_Omp_RealCost,0)),
E_Total_StanCost=(isnull(E_M_StanCost,0)+isnull(E_Labor_StanCost,0)+isnull(E_ManuFix_StanCost,0)+isnull(E_ManuVar_StanCost,0)+isnull(E_Omp_StanCost,0)),
E_Total_Dif=(isnull(E_M_PrcDif,0)+isnull(E_M_QuaDif,0)+isnull(E_Labor_PrcDif,0)+isnull(E_Labor_QuaDif,0)+isnull(E_Labor_SemiDif,0)+isnull(E_ManuFix_PrcDif,0)+isnull(E_ManuFix_QuaDif,0)+isnull(E_ManuFix_SemiDif,0)+isnull(E_ManuVar_PrcDif,0)+isnull(E_ManuVar_QuaDif,0)+isnull(E_ManuVar_SemiDif,0)+isnull(E_Omp_Dif,0)+isnull(E_Omp_SemiDif,0)),
E_Total_RealCost=(isnull(E_M_RealCost,0)+isnull(E_Labor_RealCost,0)+isnull(E_ManuFix_RealCost,0)+isnull(E_ManuVar_RealCost,0)+isnull(E_Omp_RealCost,0))
 where imonth<>0 
-- 12 #1
update Tempdb..[LSZMACHINE7] set 
R_Total_UnitCost=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_StanCost/R_Qty end,0),
R_Total_UnitDif=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_Dif/R_Qty end,0),
R_Total_UnitRealCost=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_RealCost/R_Qty end,0),
D_Total_UnitCost=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_StanCost/D_Qty end,0),
D_Total_UnitDif=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_Dif/D_Qty end,0),
D_Total_UnitRealCost=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_RealCost/D_Qty end,0),
E_Total_UnitCost=ISNULL(case when isnull(E_Qty,0) = 0 then null else E_Total_StanCost/E_Qty end,0),
E_Total_UnitDif=ISNULL(case when isnull(E_Qty,0) = 0 then null else E_Total_Dif/E_Qty end,0),
E_Total_UnitRealCost=ISNULL(case when isnull(E_Qty,0) = 0 then null else E_Total_RealCost/E_Qty end,0)
 where imonth<>0 
-- 13 #1
insert into Tempdb..[LSZMACHINE7](flag,dKeepDate,R_Qty,R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost,R_Labor_StanCost,R_Labor_PrcDif,R_Labor_QuaDif,R_Labor_SemiDif,R_Labor_RealCost,R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost,R_ManuVar_StanCost,R_ManuVar_PrcDif,R_ManuVar_QuaDif,R_ManuVar_SemiDif,R_ManuVar_RealCost,R_Omp_StanCost,R_Omp_Dif,R_Omp_SemiDif,R_Omp_RealCost,D_Qty,D_M_StanCost,D_M_PrcDif,D_M_QuaDif,D_M_RealCost,D_Labor_StanCost,D_Labor_PrcDif,D_Labor_QuaDif,D_Labor_SemiDif,D_Labor_RealCost,D_ManuFix_StanCost,D_ManuFix_PrcDif,D_ManuFix_QuaDif,D_ManuFix_SemiDif,D_ManuFix_RealCost,D_ManuVar_StanCost,D_ManuVar_PrcDif,D_ManuVar_QuaDif,D_ManuVar_SemiDif,D_ManuVar_RealCost,D_Omp_StanCost,D_Omp_Dif,D_Omp_SemiDif,D_Omp_RealCost,imonth)
select 2 flag,cast(imonth as nvarchar(4)) +N' 月合计 ' ,
SUM(R_Qty)as R_Qty,SUM(R_M_StanCost)as R_M_StanCost,SUM(R_M_PrcDif)as R_M_PrcDif,SUM(R_M_QuaDif)as R_M_QuaDif,SUM(R_M_RealCost)as R_M_RealCost,SUM(R_Labor_StanCost)as R_Labor_StanCost,SUM(R_Labor_PrcDif)as R_Labor_PrcDif,SUM(R_Labor_QuaDif)as R_Labor_QuaDif,SUM(R_Labor_SemiDif)as R_Labor_SemiDif,SUM(R_Labor_RealCost)as R_Labor_RealCost,SUM(R_ManuFix_StanCost)as R_ManuFix_StanCost,SUM(R_ManuFix_PrcDif)as R_ManuFix_PrcDif,SUM(R_ManuFix_QuaDif)as R_ManuFix_QuaDif,SUM(R_ManuFix_SemiDif)as R_ManuFix_SemiDif,SUM(R_ManuFix_RealCost)as R_ManuFix_RealCost,SUM(R_ManuVar_StanCost)as R_ManuVar_StanCost,SUM(R_ManuVar_PrcDif)as R_ManuVar_PrcDif,SUM(R_ManuVar_QuaDif)as R_ManuVar_QuaDif,SUM(R_ManuVar_SemiDif)as R_ManuVar_SemiDif,SUM(R_ManuVar_RealCost)as R_ManuVar_RealCost,SUM(R_Omp_StanCost)as R_Omp_StanCost,SUM(R_Omp_Dif)as R_Omp_Dif,SUM(R_Omp_SemiDif)as R_Omp_SemiDif,SUM(R_Omp_RealCost)as R_Omp_RealCost,
SUM(D_Qty)as D_Qty,SUM(D_M_StanCost)as D_M_StanCost,SUM(D_M_PrcDif)as D_M_PrcDif,SUM(D_M_QuaDif)as D_M_QuaDif,SUM(D_M_RealCost)as D_M_RealCost,SUM(D_Labor_StanCost)as D_Labor_StanCost,SUM(D_Labor_PrcDif)as D_Labor_PrcDif,SUM(D_Labor_QuaDif)as D_Labor_QuaDif,SUM(D_Labor_SemiDif)as D_Labor_SemiDif,SUM(D_Labor_RealCost)as D_Labor_RealCost,SUM(D_ManuFix_StanCost)as D_ManuFix_StanCost,SUM(D_ManuFix_PrcDif)as D_ManuFix_PrcDif,SUM(D_ManuFix_QuaDif)as D_ManuFix_QuaDif,SUM(D_ManuFix_SemiDif)as D_ManuFix_SemiDif,SUM(D_ManuFix_RealCost)as D_ManuFix_RealCost,SUM(D_ManuVar_StanCost)as D_ManuVar_StanCost,SUM(D_ManuVar_PrcDif)as D_ManuVar_PrcDif,SUM(D_ManuVar_QuaDif)as D_ManuVar_QuaDif,SUM(D_ManuVar_SemiDif)as D_ManuVar_SemiDif,SUM(D_ManuVar_RealCost)as D_ManuVar_RealCost,SUM(D_Omp_StanCost)as D_Omp_StanCost,SUM(D_Omp_Dif)as D_Omp_Dif,SUM(D_Omp_SemiDif)as D_Omp_SemiDif,SUM(D_Omp_RealCost)as D_Omp_RealCost,
imonth
from Tempdb..[LSZMACHINE7]
 where imonth>0 
group by iMonth
order by iMonth
-- 14 #1
select iMonth  from Tempdb..[LSZMACHINE7] where iMonth<>0 and flag='2' order by iMonth 
-- 15 #1
insert into Tempdb..[LSZMACHINE7](flag,dKeepDate,R_Qty,R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost,R_Labor_StanCost,R_Labor_PrcDif,R_Labor_QuaDif,R_Labor_SemiDif,R_Labor_RealCost,R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost,R_ManuVar_StanCost,R_ManuVar_PrcDif,R_ManuVar_QuaDif,R_ManuVar_SemiDif,R_ManuVar_RealCost,R_Omp_StanCost,R_Omp_Dif,R_Omp_SemiDif,R_Omp_RealCost,D_Qty,D_M_StanCost,D_M_PrcDif,D_M_QuaDif,D_M_RealCost,D_Labor_StanCost,D_Labor_PrcDif,D_Labor_QuaDif,D_Labor_SemiDif,D_Labor_RealCost,D_ManuFix_StanCost,D_ManuFix_PrcDif,D_ManuFix_QuaDif,D_ManuFix_SemiDif,D_ManuFix_RealCost,D_ManuVar_StanCost,D_ManuVar_PrcDif,D_ManuVar_QuaDif,D_ManuVar_SemiDif,D_ManuVar_RealCost,D_Omp_StanCost,D_Omp_Dif,D_Omp_SemiDif,D_Omp_RealCost,imonth)
select 3 flag,N' 累计 ',
SUM(R_Qty)as R_Qty,SUM(R_M_StanCost)as R_M_StanCost,SUM(R_M_PrcDif)as R_M_PrcDif,SUM(R_M_QuaDif)as R_M_QuaDif,SUM(R_M_RealCost)as R_M_RealCost,SUM(R_Labor_StanCost)as R_Labor_StanCost,SUM(R_Labor_PrcDif)as R_Labor_PrcDif,SUM(R_Labor_QuaDif)as R_Labor_QuaDif,SUM(R_Labor_SemiDif)as R_Labor_SemiDif,SUM(R_Labor_RealCost)as R_Labor_RealCost,SUM(R_ManuFix_StanCost)as R_ManuFix_StanCost,SUM(R_ManuFix_PrcDif)as R_ManuFix_PrcDif,SUM(R_ManuFix_QuaDif)as R_ManuFix_QuaDif,SUM(R_ManuFix_SemiDif)as R_ManuFix_SemiDif,SUM(R_ManuFix_RealCost)as R_ManuFix_RealCost,SUM(R_ManuVar_StanCost)as R_ManuVar_StanCost,SUM(R_ManuVar_PrcDif)as R_ManuVar_PrcDif,SUM(R_ManuVar_QuaDif)as R_ManuVar_QuaDif,SUM(R_ManuVar_SemiDif)as R_ManuVar_SemiDif,SUM(R_ManuVar_RealCost)as R_ManuVar_RealCost,SUM(R_Omp_StanCost)as R_Omp_StanCost,SUM(R_Omp_Dif)as R_Omp_Dif,SUM(R_Omp_SemiDif)as R_Omp_SemiDif,SUM(R_Omp_RealCost)as R_Omp_RealCost,
SUM(D_Qty)as D_Qty,SUM(D_M_StanCost)as D_M_StanCost,SUM(D_M_PrcDif)as D_M_PrcDif,SUM(D_M_QuaDif)as D_M_QuaDif,SUM(D_M_RealCost)as D_M_RealCost,SUM(D_Labor_StanCost)as D_Labor_StanCost,SUM(D_Labor_PrcDif)as D_Labor_PrcDif,SUM(D_Labor_QuaDif)as D_Labor_QuaDif,SUM(D_Labor_SemiDif)as D_Labor_SemiDif,SUM(D_Labor_RealCost)as D_Labor_RealCost,SUM(D_ManuFix_StanCost)as D_ManuFix_StanCost,SUM(D_ManuFix_PrcDif)as D_ManuFix_PrcDif,SUM(D_ManuFix_QuaDif)as D_ManuFix_QuaDif,SUM(D_ManuFix_SemiDif)as D_ManuFix_SemiDif,SUM(D_ManuFix_RealCost)as D_ManuFix_RealCost,SUM(D_ManuVar_StanCost)as D_ManuVar_StanCost,SUM(D_ManuVar_PrcDif)as D_ManuVar_PrcDif,SUM(D_ManuVar_QuaDif)as D_ManuVar_QuaDif,SUM(D_ManuVar_SemiDif)as D_ManuVar_SemiDif,SUM(D_ManuVar_RealCost)as D_ManuVar_RealCost,SUM(D_Omp_StanCost)as D_Omp_StanCost,SUM(D_Omp_Dif)as D_Omp_Dif,SUM(D_Omp_SemiDif)as D_Omp_SemiDif,SUM(D_Omp_RealCost)as D_Omp_RealCost,
3 as imonth
from Tempdb..[LSZMACHINE7]
where imonth<>0 AND flag='2' and iMonth <=3
-- 16 #1
insert into Tempdb..[LSZMACHINE7](flag,dKeepDate,R_Qty,R_M_StanCost,R_M_PrcDif,R_M_QuaDif,R_M_RealCost,R_Labor_StanCost,R_Labor_PrcDif,R_Labor_QuaDif,R_Labor_SemiDif,R_Labor_RealCost,R_ManuFix_StanCost,R_ManuFix_PrcDif,R_ManuFix_QuaDif,R_ManuFix_SemiDif,R_ManuFix_RealCost,R_ManuVar_StanCost,R_ManuVar_PrcDif,R_ManuVar_QuaDif,R_ManuVar_SemiDif,R_ManuVar_RealCost,R_Omp_StanCost,R_Omp_Dif,R_Omp_SemiDif,R_Omp_RealCost,D_Qty,D_M_StanCost,D_M_PrcDif,D_M_QuaDif,D_M_RealCost,D_Labor_StanCost,D_Labor_PrcDif,D_Labor_QuaDif,D_Labor_SemiDif,D_Labor_RealCost,D_ManuFix_StanCost,D_ManuFix_PrcDif,D_ManuFix_QuaDif,D_ManuFix_SemiDif,D_ManuFix_RealCost,D_ManuVar_StanCost,D_ManuVar_PrcDif,D_ManuVar_QuaDif,D_ManuVar_SemiDif,D_ManuVar_RealCost,D_Omp_StanCost,D_Omp_Dif,D_Omp_SemiDif,D_Omp_RealCost,imonth)
select 3 flag,N' 累计 ',
SUM(R_Qty)as R_Qty,SUM(R_M_StanCost)as R_M_StanCost,SUM(R_M_PrcDif)as R_M_PrcDif,SUM(R_M_QuaDif)as R_M_QuaDif,SUM(R_M_RealCost)as R_M_RealCost,SUM(R_Labor_StanCost)as R_Labor_StanCost,SUM(R_Labor_PrcDif)as R_Labor_PrcDif,SUM(R_Labor_QuaDif)as R_Labor_QuaDif,SUM(R_Labor_SemiDif)as R_Labor_SemiDif,SUM(R_Labor_RealCost)as R_Labor_RealCost,SUM(R_ManuFix_StanCost)as R_ManuFix_StanCost,SUM(R_ManuFix_PrcDif)as R_ManuFix_PrcDif,SUM(R_ManuFix_QuaDif)as R_ManuFix_QuaDif,SUM(R_ManuFix_SemiDif)as R_ManuFix_SemiDif,SUM(R_ManuFix_RealCost)as R_ManuFix_RealCost,SUM(R_ManuVar_StanCost)as R_ManuVar_StanCost,SUM(R_ManuVar_PrcDif)as R_ManuVar_PrcDif,SUM(R_ManuVar_QuaDif)as R_ManuVar_QuaDif,SUM(R_ManuVar_SemiDif)as R_ManuVar_SemiDif,SUM(R_ManuVar_RealCost)as R_ManuVar_RealCost,SUM(R_Omp_StanCost)as R_Omp_StanCost,SUM(R_Omp_Dif)as R_Omp_Dif,SUM(R_Omp_SemiDif)as R_Omp_SemiDif,SUM(R_Omp_RealCost)as R_Omp_RealCost,
SUM(D_Qty)as D_Qty,SUM(D_M_StanCost)as D_M_StanCost,SUM(D_M_PrcDif)as D_M_PrcDif,SUM(D_M_QuaDif)as D_M_QuaDif,SUM(D_M_RealCost)as D_M_RealCost,SUM(D_Labor_StanCost)as D_Labor_StanCost,SUM(D_Labor_PrcDif)as D_Labor_PrcDif,SUM(D_Labor_QuaDif)as D_Labor_QuaDif,SUM(D_Labor_SemiDif)as D_Labor_SemiDif,SUM(D_Labor_RealCost)as D_Labor_RealCost,SUM(D_ManuFix_StanCost)as D_ManuFix_StanCost,SUM(D_ManuFix_PrcDif)as D_ManuFix_PrcDif,SUM(D_ManuFix_QuaDif)as D_ManuFix_QuaDif,SUM(D_ManuFix_SemiDif)as D_ManuFix_SemiDif,SUM(D_ManuFix_RealCost)as D_ManuFix_RealCost,SUM(D_ManuVar_StanCost)as D_ManuVar_StanCost,SUM(D_ManuVar_PrcDif)as D_ManuVar_PrcDif,SUM(D_ManuVar_QuaDif)as D_ManuVar_QuaDif,SUM(D_ManuVar_SemiDif)as D_ManuVar_SemiDif,SUM(D_ManuVar_RealCost)as D_ManuVar_RealCost,SUM(D_Omp_StanCost)as D_Omp_StanCost,SUM(D_Omp_Dif)as D_Omp_Dif,SUM(D_Omp_SemiDif)as D_Omp_SemiDif,SUM(D_Omp_RealCost)as D_Omp_RealCost,
5 as imonth
from Tempdb..[LSZMACHINE7]
where imonth<>0 AND flag='2' and iMonth <=5
-- 17 #1
update Tempdb..[LSZMACHINE7] set 
R_M_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_M_StanCost/R_Qty end,
R_M_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_M_PrcDif/R_Qty end,
R_M_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_M_QuaDif/R_Qty end,
R_M_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_M_RealCost/R_Qty end,
R_Labor_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_Labor_StanCost/R_Qty end,
R_Labor_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_PrcDif/R_Qty end,
R_Labor_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_QuaDif/R_Qty end,
R_Labor_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_Labor_SemiDif/R_Qty end,
R_Labor_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_Labor_RealCost/R_Qty end,
R_ManuFix_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_StanCost/R_Qty end,
R_ManuFix_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_PrcDif/R_Qty end,
R_ManuFix_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_QuaDif/R_Qty end,
R_ManuFix_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_SemiDif/R_Qty end,
R_ManuFix_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_ManuFix_RealCost/R_Qty end,
R_ManuVar_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_StanCost/R_Qty end,
R_ManuVar_UnitPrcDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_PrcDif/R_Qty end,
R_ManuVar_UnitQuaDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_QuaDif/R_Qty end,
R_ManuVar_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_SemiDif/R_Qty end,
R_ManuVar_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_ManuVar_RealCost/R_Qty end,
R_Omp_UnitStanCost=case when isnull(R_Qty,0) = 0 then null else R_Omp_StanCost/R_Qty end,
R_Omp_UnitDif=case when isnull(R_Qty,0) = 0 then null else R_Omp_Dif/R_Qty end,
R_Omp_UnitSemiDif=case when isnull(R_Qty,0) = 0 then null else R_Omp_SemiDif/R_Qty end,
R_Omp_UnitRealCost=case when isnull(R_Qty,0) = 0 then null else R_Omp_RealCost/R_Qty end,
D_M_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_M_StanCost/D_Qty end,
D_M_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_M_PrcDif/D_Qty end,
D_M_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_M_QuaDif/D_Qty end,
D_M_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_M_RealCost/D_Qty end,
D_Labor_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_Labor_StanCost/D_Qty end,
D_Labor_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_PrcDif/D_Qty end,
D_Labor_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_QuaDif/D_Qty end,
D_Labor_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_Labor_SemiDif/D_Qty end,
D_Labor_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_Labor_RealCost/D_Qty end,
D_ManuFix_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_StanCost/D_Qty end,
D_ManuFix_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_PrcDif/D_Qty end,
D_ManuFix_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_QuaDif/D_Qty end,
D_ManuFix_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_SemiDif/D_Qty end,
D_ManuFix_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_ManuFix_RealCost/D_Qty end,
D_ManuVar_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_StanCost/D_Qty end,
D_ManuVar_UnitPrcDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_PrcDif/D_Qty end,
D_ManuVar_UnitQuaDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_QuaDif/D_Qty end,
D_ManuVar_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_SemiDif/D_Qty end,
D_ManuVar_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_ManuVar_RealCost/D_Qty end,
D_Omp_UnitStanCost=case when isnull(D_Qty,0) = 0 then null else D_Omp_StanCost/D_Qty end,
D_Omp_UnitDif=case when isnull(D_Qty,0) = 0 then null else D_Omp_Dif/D_Qty end,
D_Omp_UnitSemiDif=case when isnull(D_Qty,0) = 0 then null else D_Omp_SemiDif/D_Qty end,
D_Omp_UnitRealCost=case when isnull(D_Qty,0) = 0 then null else D_Omp_RealCost/D_Qty end
 where imonth<>0 
-- 18 #1
update Tempdb..[LSZMACHINE7] set 
R_Total_StanCost=(isnull(R_M_StanCost,0)+isnull(R_Labor_StanCost,0)+isnull(R_ManuFix_StanCost,0)+isnull(R_ManuVar_StanCost,0)+isnull(R_Omp_StanCost,0)),
R_Total_Dif=(isnull(R_M_PrcDif,0)+isnull(R_M_QuaDif,0)+isnull(R_Labor_PrcDif,0)+isnull(R_Labor_QuaDif,0)+isnull(R_Labor_SemiDif,0)+isnull(R_ManuFix_PrcDif,0)+isnull(R_ManuFix_QuaDif,0)+isnull(R_ManuFix_SemiDif,0)+isnull(R_ManuVar_PrcDif,0)+isnull(R_ManuVar_QuaDif,0)+isnull(R_ManuVar_SemiDif,0)+isnull(R_Omp_Dif,0)+isnull(R_Omp_SemiDif,0)),
R_Total_RealCost=(isnull(R_M_RealCost,0)+isnull(R_Labor_RealCost,0)+isnull(R_ManuFix_RealCost,0)+isnull(R_ManuVar_RealCost,0)+isnull(R_Omp_RealCost,0)),
D_Total_StanCost=(isnull(D_M_StanCost,0)+isnull(D_Labor_StanCost,0)+isnull(D_ManuFix_StanCost,0)+isnull(D_ManuVar_StanCost,0)+isnull(D_Omp_StanCost,0)),
D_Total_Dif=(isnull(D_M_PrcDif,0)+isnull(D_M_QuaDif,0)+isnull(D_Labor_PrcDif,0)+isnull(D_Labor_QuaDif,0)+isnull(D_Labor_SemiDif,0)+isnull(D_ManuFix_PrcDif,0)+isnull(D_ManuFix_QuaDif,0)+isnull(D_ManuFix_SemiDif,0)+isnull(D_ManuVar_PrcDif,0)+isnull(D_ManuVar_QuaDif,0)+isnull(D_ManuVar_SemiDif,0)+isnull(D_Omp_Dif,0)+isnull(D_Omp_SemiDif,0)),
D_Total_RealCost=(isnull(D_M_RealCost,0)+isnull(D_Labor_RealCost,0)+isnull(D_ManuFix_RealCost,0)+isnull(D_ManuVar_RealCost,0)+isnull(D_Omp_RealCost,0))
 where imonth<>0 
-- 19 #1
update Tempdb..[LSZMACHINE7] set 
R_Total_UnitCost=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_StanCost/R_Qty end,0),
R_Total_UnitDif=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_Dif/R_Qty end,0),
R_Total_UnitRealCost=ISNULL(case when isnull(R_Qty,0) = 0 then null else R_Total_RealCost/R_Qty end,0),
D_Total_UnitCost=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_StanCost/D_Qty end,0),
D_Total_UnitDif=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_Dif/D_Qty end,0),
D_Total_UnitRealCost=ISNULL(case when isnull(D_Qty,0) = 0 then null else D_Total_RealCost/D_Qty end,0)
 where imonth<>0 
-- 20 #1
update a set cPZNo =b.csign + cast(b.ino_id as nvarchar(100))  from Tempdb..[LSZMACHINE7] a  inner join gl_accvouch b on a.cpzid = b.coutno_id 
-- 21 #1
update a set cDifPZNo =b.csign + cast(b.ino_id as nvarchar(100))  from Tempdb..[LSZMACHINE7] a  inner join gl_accvouch b on a.cDifPZid = b.coutno_id 
-- 22 #1
Select * FROM AccInformation where cSysID= N'CA' and cName= N'iCyFtMethod'
-- 23 #1
select a.ino, a.flag,a.ipzid,a.iSrcID,a.cSRcVoutype,a.autoid,a.dKeepDate,a.cAccounter,a.dVouDate,a.dtAudit,a.cPZID,a.cDifPZid,a.cVouCode,a.cPZdigest,a.cVouchName,a.cVouType,a.cBusType,a.cRdCode,a.cRdName,a.cWhCode,a.cWhName,a.cInvCCode,a.cInvCName,a.cInvCode,a.cInvName,a.cInvAddCode,a.cInvStd,a.cComUnitCode,a.cFree1,a.cFree2,a.cFree3,a.cFree4,a.cFree5,a.cFree6,a.cFree7,a.cFree8,a.cFree9,a.cFree10,a.cInvDefine1,a.cInvDefine2,a.cInvDefine3,a.cInvDefine4,a.cInvDefine5,a.cInvDefine6,a.cInvDefine7,a.cInvDefine8,a.cInvDefine9,a.cInvDefine10,a.cInvDefine11,a.cInvDefine12,a.cInvDefine13,a.cInvDefine14,a.cInvDefine15,a.cInvDefine16,a.cCCCode,a.cCCName,a.cCusCode,a.cCusName,a.cAccDep,a.cDepName,a.cItem_class,a.cItemCName,a.cItemCode,a.cName,a.cDefine1,a.cDefine2,a.cDefine3,a.cDefine4,a.cDefine5,a.cDefine6,a.cDefine7,a.cDefine8,a.cDefine9,a.cDefine10,a.cDefine11,a.cDefine12,a.cDefine13,a.cDefine14,a.cDefine15,a.cDefine16,a.cDefine22,a.cDefine23,a.cDefine24,a.cDefine25,a.cDefine26,a.cDefine27,a.cDefine28,a.cDefine29,a.cDefine30,a.cDefine31,a.cDefine32,a.cDefine33,a.cDefine34,a.cDefine35,a.cDefine36,a.cDefine37,a.cHandler,a.cMemo,
a.cPZNo,a.cDifPZNo,ia_ensubsidiary.cvoucode as cBusCode,a.imonth,a.iyear,
R_Qty,D_Qty,E_Qty,R_Labor_UnitStanCost,R_Labor_StanCost,R_Labor_UnitPrcDif,R_Labor_PrcDif,R_Labor_UnitQuaDif,R_Labor_QuaDif,R_Labor_UnitSemiDif,R_Labor_SemiDif,R_Labor_UnitRealCost,R_Labor_RealCost,D_Labor_UnitStanCost,D_Labor_StanCost,D_Labor_UnitPrcDif,D_Labor_PrcDif,D_Labor_UnitQuaDif,D_Labor_QuaDif,D_Labor_UnitSemiDif,D_Labor_SemiDif,D_Labor_UnitRealCost,D_Labor_RealCost,E_Labor_UnitStanCost,E_Labor_StanCost,E_Labor_UnitPrcDif,E_Labor_PrcDif,E_Labor_UnitQuaDif,E_Labor_QuaDif,E_Labor_UnitSemiDif,E_Labor_SemiDif,E_Labor_UnitRealCost,E_Labor_RealCost
 into tempdb..result
from Tempdb..[LSZMACHINE7] a 
left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid and a.csrcvoutype = ia_ensubsidiary.cvoutype
 and ia_ensubsidiary.iyear = 2008
left join (select distinct a.imonth from Tempdb..[LSZMACHINE7] a 
left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid and a.csrcvoutype = ia_ensubsidiary.cvoutype
 and ia_ensubsidiary.iyear = 2008
 where a.iMonth<>0   and 1=1  And a.imonth Between N'3' And '7' ) b on b.iMonth =a.imonth
where a.imonth=0 or (a.imonth<>0   and 1=1  And a.imonth Between N'3' And '7'  )
or (a.flag=2 and b.iMonth =a.iMonth) or (a.flag=3 and b.iMonth =a.iMonth)
order by a.imonth,a.ino
