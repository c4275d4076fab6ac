-- 1 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp1' And xtype = 'U') Drop Table ia_ProPortionRpt_temp1
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 4 #2
select  IA_Subsidiary.cinvcode, Inventory.cInvAddCode ,Inventory.cInvName ,Inventory.cInvStd , 
 ComputationUnit.CComUnitName , Inventory.cInvCCode, 
 case when brdflag = 1 then (isnull(iaInPrice,0) + IsNull(iDebitdifCost, 0) - IsNull(iCreditdifCost, 0)) else 0 end - case when brdflag =0 then (isnull(IAOutPrice,0) + iSNull(iCreditdifcost,0) - ISNULL(iDebitdifcost,0))else 0 end as 资金占用额 , 
 IA_Subsidiary.dkeepDate , IA_Subsidiary.cWhCode 
 into ia_ProPortionRpt_temp1 From IA_Subsidiary 
 left join Inventory on Inventory.cInvCode = IA_Subsidiary.cInvCode 
 Left Join ComputationUnit ON Inventory.cComunitCode = ComputationUnit.ccomunitcode 
 where iyear=2008 and cVouType<>'33' and (cbustype not like '直运%' or cBusType is null )And  1=1    and  ((IA_Subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or IA_Subsidiary.cWhCode is null) 
-- 5 #2
select sum(资金占用额) from ia_ProPortionRpt_temp1
-- 6 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp2' And xtype = 'U') Drop Table ia_ProPortionRpt_temp2
-- 7 #2
select  cinvcode, cInvAddCode ,cInvName ,cInvStd , 
 CComUnitName , cInvCCode, 
 CONVERT(decimal(38,2), sum(资金占用额) ) as  资金占用额 , 
 Case cast((select sum(资金占用额) from ia_ProPortionRpt_temp1 ) as float) when 0 then 0   else convert(decimal(38,2),((sum(资金占用额)/cast((select sum(资金占用额) from ia_ProPortionRpt_temp1 ) as float)*100) )) end as 所占比重   
 into ia_ProPortionRpt_temp2 From ia_ProPortionRpt_temp1 
 group by cinvcode,cInvAddCode ,cInvName ,cInvStd,CComUnitName , cInvCCode
-- 8 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp' And xtype = 'U') Drop Table ia_ProPortionRpt_temp
-- 9 #2
select IDENTITY(int, 1, 1) as cNo,* into ia_ProPortionRpt_temp from ia_ProPortionRpt_temp2 order by 所占比重 desc
-- 10 #2
select (资金占用额) from ia_ProPortionRpt_temp
-- 11 #2
select * into  tempdb..share  from ia_ProPortionRpt_temp where  1=1 
-- 12 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp1' And xtype = 'U') Drop Table ia_ProPortionRpt_temp1
-- 13 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp2' And xtype = 'U') Drop Table ia_ProPortionRpt_temp2
-- 14 #2
if exists (SELECT name FROM sysobjects WHERE name = 'ia_ProPortionRpt_temp' And xtype = 'U') Drop Table ia_ProPortionRpt_temp
