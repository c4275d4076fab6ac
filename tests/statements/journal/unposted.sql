-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 4 #1
if exists(Select * from sysobjects where name= N'WtResult') Drop Table WtResult
-- 5 #1
CREATE TABLE WtResult (
单据日期 datetime NULL, 单据号 nvarchar (30), 记账日期 datetime NULL, 记账人 nvarchar (30),
凭证号 nvarchar(40) NULL, 凭证摘要 nvarchar (255),
业务类型 nvarchar (200), 业务号 nvarchar (40),
仓库编码 nvarchar (20), 仓库 nvarchar (120), 部门 nvarchar (255), 收发类别 nvarchar(12),
客户分类 nvarchar(24), 客户编码 nvarchar(40), 客户 nvarchar (196),
供应商分类 nvarchar (24), 供应商编码 nvarchar (40), 供应商 nvarchar(120),
经手人 nvarchar(20), 合同号 nvarchar(80),
生产订单号 nvarchar(30), 生产订单行号 nvarchar(30) NULL, 工序行号 nvarchar(60), 工作中心 nvarchar(20),
销售订单号 nvarchar(30), 销售订单行号 nvarchar(30) NULL,
出口订单号 nvarchar(50), 出口订单行号 nvarchar(50),
委外订单号 nvarchar(30), 采购订单号 nvarchar(60), 进口订单号 nvarchar(60),
项目大类 nvarchar(10), 项目大类名称 nvarchar(120), 项目编码 nvarchar(60), 项目名称 nvarchar(255),
存货分类 nvarchar(24), 存货编码 nvarchar(120),
存货名称 nvarchar(255), 存货代码 nvarchar(255), 规格型号 nvarchar(255),
批号 nvarchar(120), 生产批号 nvarchar(80),
主计量单位 nvarchar(60), 辅计量单位 nvarchar(60), 换算率 float NULL,
收入数量 float NULL, 收入单价 float NULL, 收入金额 money NULL,
发出数量 float NULL, 发出单价 float NULL, 发出金额 money NULL,
计划价 float NULL, 计划金额 float NULL, 借方差异 money NULL, 贷方差异 money NULL,
cdefine1 nvarchar(120), cdefine2 nvarchar(120), cdefine3 nvarchar(120), cdefine4 nvarchar(120), cdefine5 nvarchar(120), cdefine6 nvarchar(120), cdefine7 nvarchar(120), cdefine8 nvarchar(120), cdefine9 nvarchar(120), cdefine10 nvarchar(120), cdefine11 nvarchar(120), cdefine12 nvarchar(120), cdefine13 nvarchar(120), cdefine14 nvarchar(120), cdefine15 nvarchar(120), cdefine16 nvarchar(120), cdefine22 nvarchar(120), cdefine23 nvarchar(120), cdefine24 nvarchar(120), cdefine25 nvarchar(120), cdefine26 nvarchar(120), cdefine27 nvarchar(120), cdefine28 nvarchar(120), cdefine29 nvarchar(120), cdefine30 nvarchar(120), cdefine31 nvarchar(120), cdefine32 nvarchar(120), cdefine33 nvarchar(120), cdefine34 nvarchar(120), cdefine35 nvarchar(120), cdefine36 nvarchar(120), cdefine37 nvarchar(120), 
cinvdefine1 nvarchar(120), cinvdefine2 nvarchar(120), cinvdefine3 nvarchar(120), cinvdefine4 nvarchar(120), cinvdefine5 nvarchar(120), cinvdefine6 nvarchar(120), cinvdefine7 nvarchar(120), cinvdefine8 nvarchar(120), cinvdefine9 nvarchar(120), cinvdefine10 nvarchar(120), cinvdefine11 nvarchar(120), cinvdefine12 nvarchar(120), cinvdefine13 nvarchar(120), cinvdefine14 nvarchar(120), cinvdefine15 nvarchar(120), cinvdefine16 nvarchar(120), 
cfree1 nvarchar(20), cfree2 nvarchar(20), cfree3 nvarchar(20), cfree4 nvarchar(20), cfree5 nvarchar(20), cfree6 nvarchar(20), cfree7 nvarchar(20), cfree8 nvarchar(20), cfree9 nvarchar(20), cfree10 nvarchar(20), 
备注 nvarchar(255),
AutoID nvarchar(50) NULL, ID nvarchar(50) NULL, bRdFlag bit NOT NULL, cVouType nvarchar(4) NOT NULL,
cPzID nvarchar(30) null, cDemandCode nvarchar(30) null, cDemandMemo nvarchar(300) null,
imaterialfee money NULL, iProcessFee money NULL, costsource nvarchar(300) null)
-- 6 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine4 datetime
-- 7 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine5 int
-- 8 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine6 datetime
-- 9 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine7 float
-- 10 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine26 float
-- 11 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine27 float
-- 12 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine15 int
-- 13 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine16 float
-- 14 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine34 int
-- 15 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine35 int
-- 16 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine36 datetime
-- 17 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine37 datetime
-- 18 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'
-- 19 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'bCommitSell'
-- 20 #1
Select * FROM AccInformation where cSysID= N'SA' and cName= N'bFQSK'
-- 21 #1
Select * FROM AccInformation where cSysID= N'SA' and cName= N'bZYXS'
-- 22 #1
Select * FROM AccInformation where cSysID= N'EX' and cName= N'dEXFirstDate'
-- 23 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bSaleType'
-- 24 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cExSaleAccType'
-- 25 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cEnDispAccountStyle'
-- 26 #1
Select * FROM AccInformation where cSysID= N'ia' and cName= N'dIAFirstDate'
-- 27 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt01 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 28 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt08 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 29 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt09 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 30 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt10 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 31 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt11 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 32 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_rdrecordsIA870wt32 NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 33 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From dispatchlistsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01' and NoSub.cBusType=N'分期收款' 
-- 34 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From dispatchlistsIA870wt NoSub 
 left join rdrecords32 rdrecords  ON NoSub.ID=rdrecords.IDLSID
 left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where IsNull(rdrecords.cBaccounter, N'') = N'' 
 AND not exists(select autoid from salebillvouchs where idlsid = nosub.idlsid and isnull(cbaccounter,N'')<>N'' ) 
 And NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01' and (NoSub.cBusType=N'普通销售')
-- 35 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From SaleBillVouchsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 left join rdrecords32 rdrecords  ON NoSub.ID=rdrecords.ISBSID
 LEFT JOIN dispatchlists ON NoSub.cDLCode=dispatchlists.IDLSID
 LEFT JOIN rdrecords32 Rs2 ON dispatchlists.IDLSID=Rs2.IDLSID
 where isnull(NoSub.cAccounter,'')='' and NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01' and left(NoSub.cBusType,2)<>N'直运'
 and isnull(rdrecords.cBAccounter,'')='' and isnull(Rs2.cBAccounter,'')='' 
 And NoSub.cSTCode is not null
 and NoSub.iTB <> 1
 and NoSub.iQuantity<>0
and NoSub.cBusType <> N'普通销售' and NoSub.cBusType <> N'分期收款'
-- 36 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From v_ex_invoicedetailIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 left join (select idlsid,max(cbaccounter) as cbaccounter,csource from rdrecord32 rdrecord inner join rdrecords32 rdrecords on rdrecord.id=rdrecords.id where (isnull(csource,N'')=N'出口销货单' or isnull(csource,N'')=N'出口退货单') and isnull(cbaccounter,N'')<>N'' group by idlsid,csource )  rdm on   rdm.idlsid = NoSub.iconsignmentautoid 
 where isnull(NoSub.cAccounter,N'')=N'' and NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01' and left(NoSub.cBusType,2)<>N'直运'
 and  isnull(rdm.cbaccounter,'')=''  and NoSub.cvoutype in (N'EX26',N'EX27') 
 and isnull(rdm.csource,N'')<>N'发货单' and isnull(rdm.csource,N'')<>N'退货单' 
-- 37 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From v_ex_invoicedetailIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where isnull(cAccounter,'')='' and NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.dVouDate>='2008-01-01' and left(NoSub.cBusType,2)=N'直运'
-- 38 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From PurBillVouchsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where isnull(cAccounter,'')='' and NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.dVouDate>='2008-01-01' and left(NoSub.cBusType,2)=N'直运' and NoSub.cVouType in (N'01',N'02')
-- 39 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From SaleBillVouchsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where isnull(cAccounter,'')='' and NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.dVouDate>='2008-01-01' and left(NoSub.cBusType,2)=N'直运'
-- 40 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From JustinVouchsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 41 #1
Insert Into WtResult SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName
,NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)
,(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end),(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cWhCode =Warehouse.cWhCode and (Warehouse.cwhvaluestyle=N'计划价法' or Warehouse.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost* NoSub.iquantity else cast(null as float) end
,cast(null as float),cast(null as float)
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,NoSub.cInvDefine1,NoSub.cInvDefine2,NoSub.cInvDefine3,NoSub.cInvDefine4,NoSub.cInvDefine5,NoSub.cInvDefine6,NoSub.cInvDefine7,NoSub.cInvDefine8,NoSub.cInvDefine9,NoSub.cInvDefine10,NoSub.cInvDefine11,NoSub.cInvDefine12,NoSub.cInvDefine13,NoSub.cInvDefine14,NoSub.cInvDefine15,NoSub.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,null as costsource
 From rpt_PU_v_VMIUsedVouchsIA870wt NoSub  left join Inventory on Inventory.cInvCode = NoSub.cInvCode left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 Left join ComputationUnit unit1 on NoSub.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on NoSub.cSTComUnitCode=unit2.cComunitcode 
 left join vendor on vendor.cvenname=NoSub.cvenname 
 where NoSub.cInvCCode like N'01%' And NoSub.cCCCode like N'01%' And Vendor.cVCCode like N'02%' AND  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dVouDate>= '2008-07-01' And NoSub.dVouDate<= '2008-07-31'And NoSub.cWhCode>= N'01' And NoSub.cWhCode<= N'02' And NoSub.cDepCode= N'03' And NoSub.dVouDate>='2008-01-01'
-- 42 #1
Update WtResult set 凭证号=gl_AccVouch.ino_id  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 43 #1
Delete WtResult Where (IsNull(凭证号,N'') <> N'' And N'' <> N'')
-- 44 #1
Update WtResult set 凭证号=gl_AccVouch.cSign + cast(gl_AccVouch.ino_id as nvarchar(30))  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 45 #1
Update WtResult set iProcessFee=Null,imaterialfee = Null Where IsNull(业务类型,N'') <> N'委外加工'
