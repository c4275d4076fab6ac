-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 4 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..analysis')) Drop Table tempdb..[analysis]
-- 5 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'iExchRateDecDgt'
-- 6 #1
CREATE TABLE tempdb..analysis (autoid int, iPzid int,
cpzid nvarchar(60),
iMonth tinyint,
dVouDate nvarchar(60), cVouCode nvarchar(60),
cWhCode nvarchar(10), cWhName nvarchar(120),
cAccDep nvarchar(60), cAccDepName nvarchar(255),
cInvCCode nvarchar(60), cInvCode nvarchar(60),
cInvCName nvarchar(255), cInvName nvarchar(255), cInvAddCode nvarchar(255), cInvStd nvarchar(255),
cVouType nvarchar(30), cVouTypeName nvarchar(300),
cBusType nvarchar(200),
cRdName nvarchar(255),
cCCCode nvarchar(30), cVCCode nvarchar(30),
cCCName nvarchar(255), cVCName nvarchar(255),
cCusCode nvarchar(98), cCusName nvarchar(98), cVenCode nvarchar(98), cVenName nvarchar(98),
cDepCode nvarchar(60), cDepName nvarchar(255),
dKeepDate datetime,
cItem_class nvarchar(60), cItemCode nvarchar(60),
cItemCName nvarchar(255), cName nvarchar(255),
cproordercode nvarchar(30),
BasePrice decimal(38, 6), Price decimal(38, 6),
Ratio decimal(38, 4), DiffRatio decimal(38, 4),
ReferenceCost decimal(38, 6), ExPrice decimal(38, 6), InPrice decimal(38, 6),
AvgPrice decimal(38, 6), Balanceunit decimal(38, 6),
cBatchia nvarchar(60),
iAInPrice decimal(38, 6), iAOutPrice decimal(38, 6),
iAInQuantity decimal(30,10), iAOutQuantity decimal(30,10),
iNum DECIMAL(38,8),
iMoney decimal(38, 6),
cWhValueStyle nvarchar (12),
cValueType nvarchar (20),
bCheckBatch bit NOT NULL DEFAULT (0),
cdefine1 nvarchar(120),cdefine2 nvarchar(120),cdefine3 nvarchar(120),cdefine4 nvarchar(120),cdefine5 nvarchar(120),cdefine6 nvarchar(120),cdefine7 nvarchar(120),cdefine8 nvarchar(120),cdefine9 nvarchar(120),cdefine10 nvarchar(120),cdefine11 nvarchar(120),cdefine12 nvarchar(120),cdefine13 nvarchar(120),cdefine14 nvarchar(120),cdefine15 nvarchar(120),cdefine16 nvarchar(120),cdefine22 nvarchar(120),cdefine23 nvarchar(120),cdefine24 nvarchar(120),cdefine25 nvarchar(120),cdefine26 nvarchar(120),cdefine27 nvarchar(120),cdefine28 nvarchar(120),cdefine29 nvarchar(120),cdefine30 nvarchar(120),cdefine31 nvarchar(120),cdefine32 nvarchar(120),cdefine33 nvarchar(120),cdefine34 nvarchar(120),cdefine35 nvarchar(120),cdefine36 nvarchar(120),cdefine37 nvarchar(120),
cinvdefine1 nvarchar(120),cinvdefine2 nvarchar(120),cinvdefine3 nvarchar(120),cinvdefine4 nvarchar(120),cinvdefine5 nvarchar(120),cinvdefine6 nvarchar(120),cinvdefine7 nvarchar(120),cinvdefine8 nvarchar(120),cinvdefine9 nvarchar(120),cinvdefine10 nvarchar(120),cinvdefine11 nvarchar(120),cinvdefine12 nvarchar(120),cinvdefine13 nvarchar(120),cinvdefine14 nvarchar(120),cinvdefine15 nvarchar(120),cinvdefine16 nvarchar(120),
cfree1 nvarchar(20),cfree2 nvarchar(20),cfree3 nvarchar(20),cfree4 nvarchar(20),cfree5 nvarchar(20),cfree6 nvarchar(20),cfree7 nvarchar(20),cfree8 nvarchar(20),cfree9 nvarchar(20),cfree10 nvarchar(20))
-- 7 #1
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine4 datetime
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine5 int
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine6 datetime
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine7 float
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine26 float
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine27 float
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine15 int
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine16 float
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine34 int
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine35 int
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine36 datetime
ALTER TABLE tempdb..analysis ALTER  COLUMN cDefine37 datetime
-- 8 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'dIAStartDate'
-- 9 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'Tempdb..iA_AnlysisABCD0000000000000000000000000000')) Drop Table Tempdb..iA_AnlysisABCD0000000000000000000000000000
-- 10 #1
select * into Tempdb..iA_AnlysisABCD0000000000000000000000000000 from  tempdb..analysis where 1 = 2
-- 11 #1
 insert into Tempdb..iA_AnlysisABCD0000000000000000000000000000 (autoid,iPzid,cpzid,iMonth,dVouDate,cVouCode,cWhCode,cWhName,cAccDep,cAccDepName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cVouType,cVouTypeName,cBusType,cRdName,cCCCode,cCCName,cCusCode,cCusName,cVCCode,cVCName,cVenCode,cVenName,cDepCode,cDepName,dKeepDate,cItem_class,cItemCName,cItemCode,cName,cproordercode,Price,BasePrice,Ratio,DiffRatio,ReferenceCost,AvgPrice,Balanceunit,ExPrice,InPrice,cBatchia,iAInPrice,iAOutPrice,iAInQuantity,iAOutQuantity,cWhValueStyle,cValueType,bCheckBatch,cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,cInvDefine16,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10)
 select autoid,iPzid,cpzid,iMonth,dVouDate,cVouCode,cWhCode,cWhName,cAccDep,cAccDepName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cvouType,cVouchName,cBusType,cRdName,cCCCode,cCCName,cCusCode,cCusName,cVCCode,cVCName,cVenCode,cVenName,cDepCode,cDepName,dKeepDate,cItem_class,cItemCName,cItemCode,cName,cproordercode,Case when iInCost is null then iOutCost else  iInCost end,0,0,0,0,0,0,iOutCost,iInCost,cBatchia,iAInPrice,iAOutPrice,iAInQuantity,iAOutQuantity,cWhValueStyle,cValueType,bCheckBatch,cDefine1 as cdefine1,cDefine2 as cdefine2,cDefine3 as cdefine3,cDefine4 as cdefine4,cDefine5 as cdefine5,cDefine6 as cdefine6,cDefine7 as cdefine7,cDefine8 as cdefine8,cDefine9 as cdefine9,cDefine10 as cdefine10,cDefine11 as cdefine11,cDefine12 as cdefine12,cDefine13 as cdefine13,cDefine14 as cdefine14,cDefine15 as cdefine15,cDefine16 as cdefine16,cDefine22 as cdefine22,cDefine23 as cdefine23,cDefine24 as cdefine24,cDefine25 as cdefine25,cDefine26 as cdefine26,cDefine27 as cdefine27,cDefine28 as cdefine28,cDefine29 as cdefine29,cDefine30 as cdefine30,cDefine31 as cdefine31,cDefine32 as cdefine32,cDefine33 as cdefine33,cDefine34 as cdefine34,cDefine35 as cdefine35,cDefine36 as cdefine36,cDefine37 as cdefine37,cInvDefine1 as cinvdefine1,cInvDefine2 as cinvdefine2,cInvDefine3 as cinvdefine3,cInvDefine4 as cinvdefine4,cInvDefine5 as cinvdefine5,cInvDefine6 as cinvdefine6,cInvDefine7 as cinvdefine7,cInvDefine8 as cinvdefine8,cInvDefine9 as cinvdefine9,cInvDefine10 as cinvdefine10,cInvDefine11 as cinvdefine11,cInvDefine12 as cinvdefine12,cInvDefine13 as cinvdefine13,cInvDefine14 as cinvdefine14,cInvDefine15 as cinvdefine15,cInvDefine16 as cinvdefine16,cFree1 as cfree1,cFree2 as cfree2,cFree3 as cfree3,cFree4 as cfree4,cFree5 as cfree5,cFree6 as cfree6,cFree7 as cfree7,cFree8 as cfree8,cFree9 as cfree9,cFree10 as cfree10
 from IA_V_Subsidiary
 where  1 = 1 and cVouType<>'33' and  left(cBusType,2)<> N'直运'  and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or cWhCode is null)  and iYear =  2008 and  iMonth = 04
-- 12 #1
 insert into Tempdb..iA_AnlysisABCD0000000000000000000000000000 (autoid,iPzid,cpzid,iMonth,dVouDate,cVouCode,cWhCode,cWhName,cAccDep,cAccDepName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cVouType,cVouTypeName,cBusType,cRdName,cCCCode,cCCName,cCusCode,cCusName,cVCCode,cVCName,cVenCode,cVenName,cDepCode,cDepName,dKeepDate,cItem_class,cItemCName,cItemCode,cName,cproordercode,Price,BasePrice,Ratio,DiffRatio,ReferenceCost,AvgPrice,Balanceunit,ExPrice,InPrice,cBatchia,iAInPrice,iAOutPrice,iAInQuantity,iAOutQuantity,iNum,iMoney,cWhValueStyle,cValueType,bCheckBatch,cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,cInvDefine16,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10)
 select autoid,'','',iMonth,CONVERT(nvarchar(4),iyear)+CONVERT(nvarchar(4),iMonth),'',cWhCode,cWhName,'','',cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,'','','','','','','','','','','','',cDepCode,cDepName,'','','','','','',CASE WHEN iNum = 0 THEN 0 else ( iMoney / iNum ) END,0,0,0,0,0,0,0,0,cBatchia,iIMoney,iOMoney,iINum,iONum,iNum,iMoney,cWhValueStyle,cValueType,bCheckBatch,'' as cdefine1,'' as cdefine2,'' as cdefine3,'' as cdefine4,'' as cdefine5,'' as cdefine6,'' as cdefine7,'' as cdefine8,'' as cdefine9,'' as cdefine10,'' as cdefine11,'' as cdefine12,'' as cdefine13,'' as cdefine14,'' as cdefine15,'' as cdefine16,'' as cdefine22,'' as cdefine23,'' as cdefine24,'' as cdefine25,'' as cdefine26,'' as cdefine27,'' as cdefine28,'' as cdefine29,'' as cdefine30,'' as cdefine31,'' as cdefine32,'' as cdefine33,'' as cdefine34,'' as cdefine35,'' as cdefine36,'' as cdefine37,'' as cinvdefine1,'' as cinvdefine2,'' as cinvdefine3,'' as cinvdefine4,'' as cinvdefine5,'' as cinvdefine6,'' as cinvdefine7,'' as cinvdefine8,'' as cinvdefine9,'' as cinvdefine10,'' as cinvdefine11,'' as cinvdefine12,'' as cinvdefine13,'' as cinvdefine14,'' as cinvdefine15,'' as cinvdefine16,cFree1 as cfree1,cFree2 as cfree2,cFree3 as cfree3,cFree4 as cfree4,cFree5 as cfree5,cFree6 as cfree6,cFree7 as cfree7,cFree8 as cfree8,cFree9 as cfree9,cFree10 as cfree10
 from IA_V_Summary
 where  1 = 1   and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or cWhCode is null)  and iYear =  2008 and  iMonth = 04
-- 13 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'
-- 14 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'Tempdb..IA_StypeABCD0000000000000000000000000000')) Drop Table Tempdb..IA_StypeABCD0000000000000000000000000000
-- 15 #1
select t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') as cfree1 ,isnull(t.cFree2,N'') as cfree2 ,isnull(t.cFree3,N'') as cfree3 ,isnull(t.cFree4,N'') as cfree4 ,isnull(t.cFree5,N'') as cfree5 ,isnull(t.cFree6,N'') as cfree6 ,isnull(t.cFree7,N'') as cfree7 ,isnull(t.cFree8,N'') as cfree8 ,isnull(t.cFree9,N'') as cfree9 ,isnull(t.cFree10,N'') as cfree10 
 into Tempdb..IA_StypeABCD0000000000000000000000000000 from Tempdb..iA_AnlysisABCD0000000000000000000000000000 t 
 group by t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
-- 16 #1
select * into #IA_v_Subsidiary  from  IA_v_Subsidiary 
-- 17 #1
update #IA_v_Subsidiary set cBatchia = null where  isnull(bCheckBatch,0)=0 and cBatchia is not null 
-- 18 #1
update #IA_v_Subsidiary set cBatchia = case when isnull(bCheckBatch,0)=1 and  cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(cbatchia, N'') else N'' end  
-- 19 #1
SELECT max(autoid) as autoid,t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') as cfree1 ,isnull(t.cFree2,N'') as cfree2 ,isnull(t.cFree3,N'') as cfree3 ,isnull(t.cFree4,N'') as cfree4 ,isnull(t.cFree5,N'') as cfree5 ,isnull(t.cFree6,N'') as cfree6 ,isnull(t.cFree7,N'') as cfree7 ,isnull(t.cFree8,N'') as cfree8 ,isnull(t.cFree9,N'') as cfree9 ,isnull(t.cFree10,N'') as cfree10 
 into #InPrices_Befor from #IA_v_Subsidiary t 
 where isnull(iInCost,0) <> 0 
 group by t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') ,isnull(t.cFree2,N'') ,isnull(t.cFree3,N'') ,isnull(t.cFree4,N'') ,isnull(t.cFree5,N'') ,isnull(t.cFree6,N'') ,isnull(t.cFree7,N'') ,isnull(t.cFree8,N'') ,isnull(t.cFree9,N'') ,isnull(t.cFree10,N'') 
-- 20 #1
select t.autoid,t.iInCost,t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') as cfree1 ,isnull(t.cFree2,N'') as cfree2 ,isnull(t.cFree3,N'') as cfree3 ,isnull(t.cFree4,N'') as cfree4 ,isnull(t.cFree5,N'') as cfree5 ,isnull(t.cFree6,N'') as cfree6 ,isnull(t.cFree7,N'') as cfree7 ,isnull(t.cFree8,N'') as cfree8 ,isnull(t.cFree9,N'') as cfree9 ,isnull(t.cFree10,N'') as cfree10 
 into #iInprice from #InPrices_Befor b 
 left join #IA_v_Subsidiary t on t.autoid = b.autoid 
-- 21 #1
SELECT max(autoid) as autoid,t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') as cfree1 ,isnull(t.cFree2,N'') as cfree2 ,isnull(t.cFree3,N'') as cfree3 ,isnull(t.cFree4,N'') as cfree4 ,isnull(t.cFree5,N'') as cfree5 ,isnull(t.cFree6,N'') as cfree6 ,isnull(t.cFree7,N'') as cfree7 ,isnull(t.cFree8,N'') as cfree8 ,isnull(t.cFree9,N'') as cfree9 ,isnull(t.cFree10,N'') as cfree10 
 into #ioutprice_Befor from #IA_v_Subsidiary t 
 where isnull(iOutCost,0) <> 0 
 group by t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') ,isnull(t.cFree2,N'') ,isnull(t.cFree3,N'') ,isnull(t.cFree4,N'') ,isnull(t.cFree5,N'') ,isnull(t.cFree6,N'') ,isnull(t.cFree7,N'') ,isnull(t.cFree8,N'') ,isnull(t.cFree9,N'') ,isnull(t.cFree10,N'') 
-- 22 #1
select t.autoid,t.iOutCost,t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,isnull(t.cFree1,N'') as cfree1 ,isnull(t.cFree2,N'') as cfree2 ,isnull(t.cFree3,N'') as cfree3 ,isnull(t.cFree4,N'') as cfree4 ,isnull(t.cFree5,N'') as cfree5 ,isnull(t.cFree6,N'') as cfree6 ,isnull(t.cFree7,N'') as cfree7 ,isnull(t.cFree8,N'') as cfree8 ,isnull(t.cFree9,N'') as cfree9 ,isnull(t.cFree10,N'') as cfree10 
 into #ioutprice from #ioutprice_Befor b 
 left join #IA_v_Subsidiary t on t.autoid = b.autoid 
-- 23 #1
alter table Tempdb..IA_StypeABCD0000000000000000000000000000 add iInCost decimal(38, 6) null , iOutCost decimal(38, 6) null
-- 24 #1
update  t set iInCost = isnull(s.iInCost,0)  from  Tempdb..IA_StypeABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
  inner join #iInprice  s on t.cinvCode = s.cinvCode  and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end     and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
-- 25 #1
update  t set iOutCost = isnull(s.iOutCost,0)  from  Tempdb..IA_StypeABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
  inner join #ioutprice  s on t.cinvCode = s.cinvCode  and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end     and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
-- 26 #1
select t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode 
,sum(iIMoney) as iIMoney, sum(iOMoney) as iOMoney ,sum(iINum) as iINum ,sum(iONum) as iONum,Sum(iNum) as iNum,sum(iMoney) as iMoney,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
 into #Summary  from  Tempdb..IA_StypeABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
  inner join  IA_Summary  s  on  ISNULL(s.iDirect,0) <> 1 and  t.cinvCode = s.cinvCode  and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end     and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
 where 1 = 1  and  ( s.iYear >=  2008 and  s.iMonth >= 02 and s.iYear <=  2008 and  s.iMonth <= 02)
 group by t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
-- 27 #1
alter table Tempdb..IA_StypeABCD0000000000000000000000000000 add AvgPrice decimal(38, 6) null
-- 28 #1
 SELECT  avg(iOMoney/iONum)  as AvgPrice,cInvCode,cBatchia ,t.cWhCode,t.cDepCode ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
 into #Total  FROM  #Summary  t where iONum <> 0 
 group by t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
-- 29 #1
  update t set AvgPrice = s.AvgPrice   from  Tempdb..IA_StypeABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
  inner join  #Total  s  on t.cinvCode = s.cinvCode and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end     and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
-- 30 #1
 update t set ExPrice = isnull(s.iOutCost,0) , InPrice = isnull(s.iInCost,0) ,AvgPrice = isnull(s.AvgPrice,0)   from  Tempdb..iA_AnlysisABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
  inner join  Tempdb..IA_StypeABCD0000000000000000000000000000 s  on t.cinvCode = s.cinvCode   and IsNull(s.cbatchia, N'') = case when isnull(Inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle   in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(t.cbatchia, N'') else IsNull(s.cbatchia, N'') end    and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
-- 31 #1
select  t.cInvCode,t.cBatchia  ,t.cWhCode,t.cDepCode   ,max(s.iMoney)  AS iMoney ,max(s.iNum)  AS iNum ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
 into #QC  from  Tempdb..IA_StypeABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
 inner join  IA_V_Summary s  on t.cinvCode = s.cinvCode and IsNull(t.cbatchia, N'') = case when isnull(inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(s.cbatchia, N'') else IsNull(t.cbatchia, N'') end     and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'') 
 and s.iyear = 2008 and s.iMonth  = 04 - 1   GROUP BY t.cInvCode,t.cBatchia ,t.cWhCode,t.cDepCode ,t.cfree1 ,t.cfree2 ,t.cfree3 ,t.cfree4 ,t.cfree5 ,t.cfree6 ,t.cfree7 ,t.cfree8 ,t.cfree9 ,t.cfree10 
-- 32 #1
update t set Balanceunit = s.iMoney/s.iNum  from  Tempdb..iA_AnlysisABCD0000000000000000000000000000 t  left join Inventory ON Inventory.cInvCode = t.cInvCode   left join Warehouse  On Warehouse.cWhCode = t.cWhCode
   left join  #QC  s  on t.cinvCode = s.cinvCode   and IsNull(s.cbatchia, N'') = case when isnull(Inventory.bCheckBatch,0)=1 and warehouse.cWhValueStyle   in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法')  then IsNull(t.cbatchia, N'') else IsNull(s.cbatchia, N'') end    and t.cDepCode = s.cDepCode  and  ISNULL(t.cFree1,N'') = ISNULL(s.cfree1,N'')  and  ISNULL(t.cFree2,N'') = ISNULL(s.cfree2,N'')  and  ISNULL(t.cFree3,N'') = ISNULL(s.cfree3,N'')  and  ISNULL(t.cFree4,N'') = ISNULL(s.cfree4,N'')  and  ISNULL(t.cFree5,N'') = ISNULL(s.cfree5,N'')  and  ISNULL(t.cFree6,N'') = ISNULL(s.cfree6,N'')  and  ISNULL(t.cFree7,N'') = ISNULL(s.cfree7,N'')  and  ISNULL(t.cFree8,N'') = ISNULL(s.cfree8,N'')  and  ISNULL(t.cFree9,N'') = ISNULL(s.cfree9,N'')  and  ISNULL(t.cFree10,N'') = ISNULL(s.cfree10,N'')  and s.iNum <> 0 
-- 33 #1
drop table #IA_v_Subsidiary, #InPrices_Befor, #ioutprice_Befor, #iInprice, #ioutprice
-- 34 #1
drop table #QC, #Total, #Summary
-- 35 #1
update t  set ReferenceCost = isnull(iInvSPrice,0)  from  Tempdb..iA_AnlysisABCD0000000000000000000000000000 t inner join Inventory  i on t.cinvCode = i.cinvCode 
-- 36 #1
update Tempdb..iA_AnlysisABCD0000000000000000000000000000  set BasePrice = AvgPrice
-- 37 #1
update Tempdb..iA_AnlysisABCD0000000000000000000000000000 set Ratio = (case when isnull(BasePrice,0) = 0 then 1 else  Price/BasePrice end ) * 100 , DiffRatio = (Case when isnull(BasePrice,0) = 0 then 0 else (Price/BasePrice - 1) end) *100 
-- 38 #1
update Tempdb..iA_AnlysisABCD0000000000000000000000000000 set Ratio = 100 , DiffRatio = 0  where isnull(BasePrice,0) = 0 and isnull(Price,0) <> 0 
-- 39 #1
update Tempdb..iA_AnlysisABCD0000000000000000000000000000 set Ratio = 0 , DiffRatio = -100 where isnull(BasePrice,0) <> 0 and isnull(Price,0) = 0 
-- 40 #1
update Tempdb..iA_AnlysisABCD0000000000000000000000000000 set Ratio = 0 , DiffRatio = 0 where isnull(BasePrice,0) = 0 and isnull(Price,0) = 0 
-- 41 #1
 insert into tempdb..analysis (autoid,iPzid,cpzid,dVouDate,cVouCode,cWhCode,cWhName,cAccDep,cAccDepName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cVouType,cVouTypeName,cBusType,cRdName,cCCCode,cCCName,cCusCode,cCusName,cVCCode,cVCName,cVenCode,cVenName,cDepCode,cDepName,dKeepDate,cItem_class,cItemCName,cItemCode,cName,cproordercode,Price,BasePrice,Ratio,DiffRatio,ReferenceCost,AvgPrice,Balanceunit,ExPrice,InPrice,cBatchia,cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,cInvDefine16,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10)
 Select autoid,iPzid,cpzid,dVouDate,cVouCode,cWhCode,cWhName,cAccDep,cAccDepName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,cVouType,cVouTypeName,cBusType,cRdName,cCCCode,cCCName,cCusCode,cCusName,cVCCode,cVCName,cVenCode,cVenName,cDepCode,cDepName,dKeepDate,cItem_class,cItemCName,cItemCode,cName,cproordercode,Price,BasePrice,Ratio,DiffRatio,ReferenceCost,AvgPrice,Balanceunit,ExPrice,InPrice,cBatchia,cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,cInvDefine16,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10
  from Tempdb..iA_AnlysisABCD0000000000000000000000000000 where abs(DiffRatio) >= 10  order by dVouDate 
-- 42 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'Tempdb..iA_AnlysisABCD0000000000000000000000000000')) Drop Table Tempdb..iA_AnlysisABCD0000000000000000000000000000
-- 43 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'Tempdb..IA_StypeABCD0000000000000000000000000000')) Drop Table Tempdb..IA_StypeABCD0000000000000000000000000000
