-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 3 #1
select sum(isnull(IA_summary.iNum,0)) as nums from IA_summary left join   inventory on  IA_summary.cinvcode=inventory.cinvcode where isnull(IA_summary.iNum,0)>0 and  IA_summary.imonth=7 And IA_summary.iyear =2008 and  isnull( Inventory.iid, N'') IN ('A')
-- 4 #1
select sum(isnull(IA_summary.iMoney,0)) as nums, sum(isnull(IA_summary.iDif,0)) as moneys from IA_summary left join  inventory on  IA_summary.cinvcode=inventory.cinvcode where (isnull(IA_summary.iMoney,0)+isnull(IA_summary.iDif,0))>0 and IA_summary.imonth=7 And IA_summary.iyear =2008 and  isnull( Inventory.iid, N'') IN ('A')
-- 5 #1
 SELECT distinct IA_Summary.cinvcode, Inventory.cInvCCode
 into tempdb..IA_InvABC00000000000000000000000000000000
 FROM IA_Summary LEFT JOIN  Inventory ON IA_Summary.cInvCode = Inventory.cInvCode 
 where not IA_Summary.AutoID is null and Inventory.bService=0 And Inventory.bInvType=0 And IA_summary.imonth=7 And IA_summary.iyear =2008 and  isnull( Inventory.iid, N'') IN ('A')
-- 6 #1
 select IA_summary.cInvCode,
sum(IA_summary.iNum) as Num,
sum(isnull(IA_summary.iMoney,0)+isnull(IA_summary.iDif,0)) as Money,
cast(0 as decimal(32,4)) as NumPer,cast(0 as decimal(32,4)) as MoneyPer,
cast(N'' as nvarchar(10)) as TypeN,cast(N'' as nvarchar(10)) as TypeM,cast(N'' as nvarchar(10)) as Type
 into tempdb..IA_InvABCRe00000000000000000000000000000000
 from IA_summary left join  inventory on IA_summary.cinvcode=inventory.cinvcode
 left join ComputationUnit on inventory.cComunitCode=ComputationUnit.cComunitCode
 where IA_summary.imonth=7 And IA_summary.iyear =2008 and  isnull( Inventory.iid, N'') IN ('A')
 group by IA_summary.cInvCode 
-- 7 #1
update tempdb..IA_InvABCRe00000000000000000000000000000000 set NumPer=case when isnull(Num,0)>0 then Num/cast(10 as float) else 0 end, MoneyPer=case when isnull(Money,0)>0 then Money/cast(100 as float) else 0 end
-- 8 #1
update tempdb..IA_InvABCRe00000000000000000000000000000000 set NumPer=1-(select isnull(sum(NumPer),0)
 from tempdb..IA_InvABCRe00000000000000000000000000000000 where cinvcode <> (select top 1 cinvcode from tempdb..IA_InvABCRe00000000000000000000000000000000 order by NumPer desc,cinvcode))
 where cinvcode = (select top 1 cinvcode from tempdb..IA_InvABCRe00000000000000000000000000000000 order by NumPer desc,cinvcode)
-- 9 #1
update tempdb..IA_InvABCRe00000000000000000000000000000000 set MoneyPer=1-(select isnull(sum(MoneyPer),0)
 from tempdb..IA_InvABCRe00000000000000000000000000000000 where cinvcode <> (select top 1 cinvcode from tempdb..IA_InvABCRe00000000000000000000000000000000 order by MoneyPer desc,cinvcode))
 where cinvcode = (select top 1 cinvcode from tempdb..IA_InvABCRe00000000000000000000000000000000 order by MoneyPer desc,cinvcode)
-- 10 #1
update tempdb..IA_InvABCRe00000000000000000000000000000000
 set TypeN=(case when NumPer<0 then N'' when NumPer<0.2 then N'A' when NumPer<0.5 then N'B' else N'C' end),
 TypeM=(case when MoneyPer<0 then N'' when MoneyPer<0.1 then N'C' when MoneyPer<0.7 then N'B' else N'A' end)
-- 11 #1
update tempdb..IA_InvABCRe00000000000000000000000000000000 set Type=(case when TypeN=N'B' OR TypeM=N'B' then N'B' else (case when TypeN=N'C' OR TypeM=N'C' then N'C' else N'A' end ) end )
-- 12 #1
if exists(select id from tempdb..sysobjects where id=object_id(N'tempdb..abc')) Drop Table tempdb..abc
-- 13 #1
select Inventory.cInvCode as [存货_编码],Inventory.cInvName as [存货_名称],
Inventory.cInvAddCode as [存货_代码],Inventory.cInvStd as [存货_规格],
ComputationUnit.CComUnitName as [存货_单位],
Num as [分析_数量],NumPer as [分析_数量比例],Money as [分析_金额],MoneyPer as [分析_金额比例],
Type as [分析_ABC类别],NULL as [分析_备注],CONVERT(int, 1) as [分析_ABC分类数量]
 into tempdb..abc
 from tempdb..IA_InvABCRe00000000000000000000000000000000 inAbc
 Left join  Inventory on InVentory.cInvcode=inAbc.cInvcode 
 Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode
 where 1=2   or type=N'A'  or type=N'B'  or type=N'C' 
-- 14 #1
drop table tempdb..IA_InvABC00000000000000000000000000000000
-- 15 #1
drop table tempdb..IA_InvABCRe00000000000000000000000000000000
