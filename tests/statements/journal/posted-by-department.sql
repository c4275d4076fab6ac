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
Insert Into WtResult SELECT dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,WH.cWhCode,WH.cWhName,Dep.cDepName,RD.cRdName
,Customer.cCCCode,Customer.cCusCode,Customer.cCusName,Vendor.cVCCode,Vendor.cVenCode,Vendor.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,Inventory.cInvCCode,Inventory.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,iAInQuantity,case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iInCost end,iAInPrice
,iAOutQuantity,case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iOutCost end,iAOutPrice
,case when NoSub.cDepCode =WH.cDepCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cDepCode =WH.cDepCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法') then (case when bflag = 0 then InvCheckFreeIA870.fInvRCost * iAOutQuantity else InvCheckFreeIA870.fInvRCost * iAInQuantity end) else cast(null as float) end
,iDebitDifCost,iCreditDifCost
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,AA_Enum.EnumName as costsource
 From IA_SubSidiary NoSub Inner join Inventory on Inventory.cInvCode=NoSub.cInvCode left join vendor on vendor.cVenCode=NoSub.cVenCode left join Customer on Customer.cCusCode=NoSub.cCusCode 
left join Warehouse WH on NoSub.cWhCode=WH.cWhCode left join Department Dep on NoSub.cAccDep=Dep.cDepCode left join Rd_Style RD on NoSub.cRdCode=RD.cRdCode 
 left join AA_Enum on AA_Enum.EnumType ='IA.costsource' and aa_enum.EnumCode =NoSub.costsource and AA_Enum.LocaleId=DBO.UDF_GetLocaleID() 
 left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 left join ComputationUnit unit1 on Inventory.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on Inventory.cSTComUnitCode=unit2.cComunitcode 
 where  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.cDepCode= N'03' And NoSub.dKeepDate>='2008-01-01' And NoSub.iMonth<>0  and Left(isnull(NoSub.cBusType,N''),2)<>N'直运'
 And Not (NoSub.cVouType = N'20' And isnull(NoSub.IAInPrice,0) = 0 And IsNULL(NoSub.iDebitDifCost,0) = 0 And IsNULL(NoSub.iCreditDifCost,0) = 0)
 order by isnull(bakID,AutoID)
-- 28 #1
Insert Into WtResult SELECT dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest
,NoSub.cBusType,NoSub.cBusCode,WH.cWhCode,WH.cWhName,Dep.cDepName,RD.cRdName
,Customer.cCCCode,Customer.cCusCode,Customer.cCusName,Vendor.cVCCode,Vendor.cVenCode,Vendor.cVenName
,NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis,NoSub.cWorkCenterName
,NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo,NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode
,NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName
,Inventory.cInvCCode,Inventory.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd
,NoSub.cBatchIA,NoSub.cProCode
,unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate
,iAInQuantity,case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iInCost end,iAInPrice
,iAOutQuantity,case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iOutCost end,iAOutPrice
,case when NoSub.cDepCode =WH.cDepCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法') then InvCheckFreeIA870.fInvRCost else cast(null as float) end
,case when NoSub.cDepCode =WH.cDepCode and (WH.cwhvaluestyle=N'计划价法' or WH.cwhvaluestyle=N'售价法') then (case when bflag = 0 then InvCheckFreeIA870.fInvRCost * iAOutQuantity else InvCheckFreeIA870.fInvRCost * iAInQuantity end) else cast(null as float) end
,iDebitDifCost,iCreditDifCost
,NoSub.cDefine1 as cdefine1,NoSub.cDefine2 as cdefine2,NoSub.cDefine3 as cdefine3,NoSub.cDefine4 as cdefine4,NoSub.cDefine5 as cdefine5,NoSub.cDefine6 as cdefine6,NoSub.cDefine7 as cdefine7,NoSub.cDefine8 as cdefine8,NoSub.cDefine9 as cdefine9,NoSub.cDefine10 as cdefine10,NoSub.cDefine11 as cdefine11,NoSub.cDefine12 as cdefine12,NoSub.cDefine13 as cdefine13,NoSub.cDefine14 as cdefine14,NoSub.cDefine15 as cdefine15,NoSub.cDefine16 as cdefine16
,NoSub.cDefine22 as cdefine22,NoSub.cDefine23 as cdefine23,NoSub.cDefine24 as cdefine24,NoSub.cDefine25 as cdefine25,NoSub.cDefine26 as cdefine26,NoSub.cDefine27 as cdefine27,NoSub.cDefine28 as cdefine28,NoSub.cDefine29 as cdefine29,NoSub.cDefine30 as cdefine30,NoSub.cDefine31 as cdefine31,NoSub.cDefine32 as cdefine32,NoSub.cDefine33 as cdefine33,NoSub.cDefine34 as cdefine34,NoSub.cDefine35 as cdefine35,NoSub.cDefine36 as cdefine36,NoSub.cDefine37 as cdefine37
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,NoSub.cFree1,NoSub.cFree2,NoSub.cFree3,NoSub.cFree4,NoSub.cFree5,NoSub.cFree6,NoSub.cFree7,NoSub.cFree8,NoSub.cFree9,NoSub.cFree10
,NoSub.cMemo,NoSub.AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType
,NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee
,AA_Enum.EnumName as costsource
 From IA_SubSidiary NoSub Inner join Inventory on Inventory.cInvCode=NoSub.cInvCode left join vendor on vendor.cVenCode=NoSub.cVenCode left join Customer on Customer.cCusCode=NoSub.cCusCode 
left join Warehouse WH on NoSub.cWhCode=WH.cWhCode left join Department Dep on NoSub.cAccDep=Dep.cDepCode left join Rd_Style RD on NoSub.cRdCode=RD.cRdCode 
 left join AA_Enum on AA_Enum.EnumType ='IA.costsource' and aa_enum.EnumCode =NoSub.costsource and AA_Enum.LocaleId=DBO.UDF_GetLocaleID() 
 left join Warehouse on Warehouse.cwhcode= NoSub.cwhcode left join InvCheckFreeIA870 on InvCheckFreeIA870.cinvcode=NoSub.cinvcode and ((Isnull(InvCheckFreeIA870.cFree1, N'') = isnull(NoSub.cfree1,N'') and inventory.bCheckFree1=1) or inventory.bCheckFree1 = 0) and ((Isnull(InvCheckFreeIA870.cFree2, N'') = isnull(NoSub.cfree2,N'') and inventory.bCheckFree2=1) or inventory.bCheckFree2 = 0) and ((Isnull(InvCheckFreeIA870.cFree3, N'') = isnull(NoSub.cfree3,N'') and inventory.bCheckFree3=1) or inventory.bCheckFree3 = 0) and ((Isnull(InvCheckFreeIA870.cFree4, N'') = isnull(NoSub.cfree4,N'') and inventory.bCheckFree4=1) or inventory.bCheckFree4 = 0) and ((Isnull(InvCheckFreeIA870.cFree5, N'') = isnull(NoSub.cfree5,N'') and inventory.bCheckFree5=1) or inventory.bCheckFree5 = 0) and ((Isnull(InvCheckFreeIA870.cFree6, N'') = isnull(NoSub.cfree6,N'') and inventory.bCheckFree6=1) or inventory.bCheckFree6 = 0) and ((Isnull(InvCheckFreeIA870.cFree7, N'') = isnull(NoSub.cfree7,N'') and inventory.bCheckFree7=1) or inventory.bCheckFree7 = 0) and ((Isnull(InvCheckFreeIA870.cFree8, N'') = isnull(NoSub.cfree8,N'') and inventory.bCheckFree8=1) or inventory.bCheckFree8 = 0) and ((Isnull(InvCheckFreeIA870.cFree9, N'') = isnull(NoSub.cfree9,N'') and inventory.bCheckFree9=1) or inventory.bCheckFree9 = 0) and ((Isnull(InvCheckFreeIA870.cFree10, N'') = isnull(NoSub.cfree10,N'') and inventory.bCheckFree10=1) or inventory.bCheckFree10 = 0) 
 left join ComputationUnit unit1 on Inventory.cComunitcode=unit1.cComunitcode  left join ComputationUnit unit2 on Inventory.cSTComUnitCode=unit2.cComunitcode 
 where  NoSub.cVouType not in (N'33',N'34') and  ((NoSub.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or NoSub.cWhCode is null)  And NoSub.dKeepDate>='2008-01-01' And Left(isnull(NoSub.cBusType,N''),2)=N'直运'  And NoSub.iMonth<>0 
 order by isnull(bakID,AutoID)
-- 29 #1
Update WtResult set 凭证号=gl_AccVouch.ino_id  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 30 #1
Delete WtResult Where (IsNull(凭证号,N'') <> N'' And N'' <> N'')
-- 31 #1
Update WtResult set 凭证号=gl_AccVouch.cSign + cast(gl_AccVouch.ino_id as nvarchar(30))  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 32 #1
Update WtResult set iProcessFee=Null,imaterialfee = Null Where IsNull(业务类型,N'') <> N'委外加工'
