-- 1 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..pool')) Drop Table tempdb..[pool]
-- 2 #1
if exists(select * from  tempdb..sysobjects where name='tempdb..pool') drop table tempdb..pool
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'dIAStartDate'
-- 4 #1
Select cValue from AccInformation Where cName= N'cDispLevel'
-- 5 #1
select top 0 IA_Subsidiary.cInvCode,Inventory.cInvCCode,IA_Subsidiary.cfree1,IA_Subsidiary.cfree2,IA_Subsidiary.cfree3,IA_Subsidiary.cfree4,IA_Subsidiary.cfree5,IA_Subsidiary.cfree6,IA_Subsidiary.cfree7,IA_Subsidiary.cfree8,IA_Subsidiary.cfree9,IA_Subsidiary.cfree10,Inventory.cInvAddCode,Inventory.cInvName,Inventory.cInvStd,ComputationUnit.CComUnitName,Inventory.iInvWeight,cast(ISNULL(iAInQuantity,0) -ISNULL(iAOutQuantity,0) as float) as QcQuantity,cast(ISNULL(iAInPrice,0)-ISNULL(iAOutPrice,0) as decimal(20,2)) as QcPrice,cast(isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) as decimal(20,2)) as qcDif,cast(0 as float) as InQuantity,cast(0 as decimal(20,2)) as InPrice,cast(0 as decimal(20,2)) as InDif,cast(0 as float) as OutQuantity,cast(0 as decimal(20,2)) as OutPrice,cast(0 as decimal(20,2)) as OutDif,null as id,0 as bacc,cbustype,cwhcode,left(cRdCode,7) as cRdCode,cvoutype,cast(null as nvarchar(100)) as brdflagtext,cast(null as nvarchar(100)) as crdname,cast(null as nvarchar(100)) as cComunitCode,cast(null as float) as rate,cast(null as nvarchar(100)) as cGroupCode,null as iNumber,cast(null as nvarchar(100)) as cwhname,cast(null as nvarchar(20)) as cFComUnitName into tempdb..pool from IA_Subsidiary left join Inventory on IA_Subsidiary.cInvCode=Inventory.cInvCode left join ComputationUnit ON inventory.cComunitCode = ComputationUnit.ccomunitcode 
-- 6 #1
delete from tempdb..pool  where left(cbustype,2)=N'直运' 
-- 7 #1
update sfc set sfc.crdname = sty.crdname  from tempdb..pool sfc inner join rd_style sty on sfc.crdcode=sty.crdcode
-- 8 #1
update sfc set sfc.cwhname = ware.cwhname  from tempdb..pool sfc inner join warehouse ware on ware.cwhcode=sfc.cwhcode 
