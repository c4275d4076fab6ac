-- 1 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'iStrsQuanDecDgt'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'
-- 3 #2
Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'001' and iYear=2008 and iID=1
-- 4 #2
Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'001' and iYear=2008 and iID=12
-- 5 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 6 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 7 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 8 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 9 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'iStrsQuanDecDgt'
-- 10 #1
drop table tempdb..IA_InvTurnRate7
-- 11 #1
 select Inventory.cInvCode,
cast(0 as decimal(38,2)) as Qcye,cast(0 as decimal(38,2)) as Qmye,cast(0 as decimal(38,4)) as PjkcQu,cast(0 as decimal(38,2)) as PjkcPr,
sum(cast(isnull(iAOutQuantity,0) as decimal(38,4))) as jzsl,
sum(cast(case when brdflag=1 then isnull(iAOutPrice,0) else isnull(iAOutPrice,0) + isnull(iCreditDifCost,0) end as decimal(38,2))) as jzje
 into tempdb..IA_InvTurnRate7
 from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode 
 where 1=1 And Ia_subsidiary.iyear =2008 and dKeepDate >= '2008-03-01' and dKeepDate <= '2008-03-10' Group By  Inventory.cInvCode
-- 12 #1
insert into tempdb..IA_InvTurnRate7
 select Inventory.cInvCode,sum(cast(isnull(iAInPrice,0) - isnull(iAOutPrice,0) + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0) as decimal(38,2))),cast(0 as decimal(38,2)),cast(0 as decimal(38,4)),cast(0 as decimal(38,2)),cast(0 as decimal(38,4)),cast(0 as decimal(38,2))
 from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode 
where ((dKeepDate<'2008-03-01' And imonth <> 0 And CvouType <> N'33') OR (iMonth=0 AND (cVouType=N'34' or cbustype in (N'直运采购',N'直运销售')))) And Ia_subsidiary.iyear =2008 Group By  Inventory.cInvCode
-- 13 #1
insert into tempdb..IA_InvTurnRate7
 select Inventory.cInvCode,cast(0 as decimal(38,2)),sum(cast(isnull(iAInPrice,0) - isnull(iAOutPrice,0) + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0) as decimal(38,2))),cast(0 as decimal(38,4)),cast(0 as decimal(38,2)),cast(0 as decimal(38,4)),cast(0 as decimal(38,2))
 from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode 
where ((dKeepDate<='2008-03-10' And imonth <> 0 And CvouType <> N'33') OR (iMonth=0 AND (cVouType=N'34' or cbustype in (N'直运采购',N'直运销售')))) And Ia_subsidiary.iyear =2008 Group By  Inventory.cInvCode
-- 14 #1
drop table tempdb..IA_InvTurnPjkcDetail7
-- 15 #1
 select Inventory.cInvCode,
sum(cast(isnull(iAInQuantity,0) - isnull(iAOutQuantity,0) as decimal(38,4))) as iQuantity,
sum(cast(isnull(iAInPrice,0) - isnull(iAOutPrice,0) + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0) as decimal(38,2))) as iPrice,
cast(10 as decimal(38,2)) as jc,
cast(NULL as datetime) as ddate,
cast(0 as decimal(38,4)) as Qhj,cast(0 as decimal(38,2)) as Phj
 into tempdb..IA_InvTurnPjkcDetail7
 from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode 
where ((dKeepDate<'2008-03-01' And imonth <> 0 And CvouType <> N'33') OR (iMonth=0 AND (cVouType=N'34' or cbustype in (N'直运采购',N'直运销售')))) And Ia_subsidiary.iyear =2008 Group By  Inventory.cInvCode
-- 16 #1
insert into tempdb..IA_InvTurnPjkcDetail7
 select Inventory.cInvCode,
sum(cast(isnull(iAInQuantity,0) - isnull(iAOutQuantity,0) as decimal(38,4))),
sum(cast(isnull(iAInPrice,0) - isnull(iAOutPrice,0) + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0) as decimal(38,2))),
cast(cast('2008-03-10' as datetime)-dkeepdate as int)+0.5,
dKeepDate,
cast(0 as decimal(38,4)),cast(0 as decimal(38,2))
 from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode 
 where imonth<>0  And Ia_subsidiary.iyear =2008 and dKeepDate >= '2008-03-01' and dKeepDate <= '2008-03-10' Group By Inventory.cInvCode,dkeepdate
-- 17 #1
drop table tempdb..IA_InvTurnPjkc7
-- 18 #1
 select Inventory.cInvCode,
sum(iQuantity*jc) as Qhj,
sum(iPrice*jc) as Phj,
cast(sum(iQuantity*jc)/cast(10 as Decimal(38,2)) as decimal(38,4)) as PjkcQu,
cast(sum(iPrice*jc)/cast(10 as Decimal(38,2)) as decimal(38,2)) as PjkcPr
 into tempdb..IA_InvTurnPjkc7
 from tempdb..IA_InvTurnPjkcDetail7 IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode  Group By  Inventory.cInvCode
-- 19 #1
insert into tempdb..IA_InvTurnRate7
 select Inventory.cInvCode,cast(0 as decimal(38,2)),cast(0 as decimal(38,2)),sum(PjkcQu),sum(PjkcPr),cast(0 as decimal(38,4)),cast(0 as decimal(38,2))
 from tempdb..IA_InvTurnPjkc7 IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode  Group By  Inventory.cInvCode
-- 20 #1
drop table tempdb..IA_InvTurnRateRe7
-- 21 #1
 select Inventory.cInvCode,
sum(Qcye) as Qcye,sum(Qmye) as Qmye,sum(PjkcQu) as PjkcQu,sum(PjkcPr) as PjkcPr,sum(jzsl) as jzsl,sum(jzje) as jzje,
cast(case when sum(PjkcPr) >0 then sum(jzje)/cast(sum(PjkcPr) as float) else 0 end as decimal(38,6)) as turnRatePr,
cast(case when sum(PjkcQu) >0 then sum(jzsl)/sum(PjkcQu) else 0 end as decimal(38,4)) as turnRateQu,
cast(0 as float) as zzSldays,cast(0 as float) as zzPrdays
 into tempdb..IA_InvTurnRateRe7
 from tempdb..IA_InvTurnRate7 IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode = Inventory.cInvCode  Group By  Inventory.cInvCode
-- 22 #1
update tempdb..IA_InvTurnRateRe7
 set zzSldays=case when cast(turnRateQu as decimal(38,4))>0 then cast(10/turnRateQu as decimal(38,2)) else 0 end,
zzPrdays=case when cast(turnRatePr as decimal(38,2))>0 then cast(10/turnRatePr as decimal(38,2)) else 0 end
-- 23 #1
drop table tempdb..turnover
-- 24 #1
select N'2008-03-01' as [起始日期],N'2008-03-10' as [结束日期],
NULL as [部门_编码],NULL as [部门_名称],
NULL as [仓库_编码],NULL as [仓库_名称],
NULL as [存货_分类],
Inventory.cInvCode as [存货_编码],Inventory.cInvName as [存货_名称],Inventory.cInvAddCode as [存货_代码],
Inventory.cInvStd as [存货_规格],ComputationUnit.CComUnitName as [存货_单位],
inturn.qcye as [分析_期初余额],inturn.qmye as [分析_期末余额],
cast(PjkcPr as decimal(32,2)) as [分析_平均库存],
cast(jzje as decimal(32,2)) as [分析_出库成本],
cast(0 as float) as [分析_出库数量],
turnRatePr as [分析_周转率],zzPrdays as [分析_周转天数]
 into tempdb..turnover
 from tempdb..IA_InvTurnRateRe7 inturn  Left join Inventory on InVentory.cInvcode=inturn.cInvcode  Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode
-- 25 #1
drop table tempdb..IA_InvTurnPjkcDetail7
-- 26 #1
drop table tempdb..IA_InvTurnPjkc7
-- 27 #1
drop table tempdb..IA_InvTurnRate7
-- 28 #1
drop table tempdb..IA_InvTurnRateRe7
