-- 1 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..FCSFCItemMACHINE7')) Drop Table tempdb..[FCSFCItemMACHINE7]
-- 2 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..goods')) Drop Table tempdb..[goods]
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 4 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 5 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 6 #1
select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end)/ComputationUnit.iChangRate else 0 end AS N'期初_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end) AS N'期初_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else -1*Isnull(Ia_Ensubsidiary.iAOutPrice,0) end) AS N'期初_金额入'
,cast(0 as float) AS N'收入_件数入'
,cast(0 as float) AS N'收入_数量入'
,cast(0 as float) AS N'收入_金额入'
,cast(0 as float) AS N'发出_件数出'
,cast(0 as float) AS N'发出_数量出'
,cast(0 as float) AS N'发出_金额出'
 into Tempdb..[FCSFCItemMACHINE7] From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on Ia_Ensubsidiary.OutID=salebillvouchs.autoid
 left join salebillvouch on salebillvouchs.sBVID=salebillvouch.sBVID
 left join DispatchLists on salebillvouchs.idlsid=DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  iyear =2008 And (Isnull(imonth,0)=0  Or Ia_Ensubsidiary.dVouDate < '2008-07-01' Or Ia_Ensubsidiary.dKeepDate < '2008-07-01') And Ia_Ensubsidiary.cWhCode = N'01' And  Ia_Ensubsidiary.cvoutype In (N'26', N'27', N'28', N'29') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 7 #1
Insert Into Tempdb..[FCSFCItemMACHINE7] select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end)/ComputationUnit.iChangRate else 0 end AS N'期初_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end) AS N'期初_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else -1*Isnull(Ia_Ensubsidiary.iAOutPrice,0) end) AS N'期初_金额入'
,cast(0 as float) AS N'收入_件数入'
,cast(0 as float) AS N'收入_数量入'
,cast(0 as float) AS N'收入_金额入'
,cast(0 as float) AS N'发出_件数出'
,cast(0 as float) AS N'发出_数量出'
,cast(0 as float) AS N'发出_金额出'
 From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on 1=2
 left join salebillvouch on 1=2
 left join DispatchLists on Ia_Ensubsidiary.idlsid = DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  iyear =2008 And (Isnull(imonth,0)=0  Or Ia_Ensubsidiary.dVouDate < '2008-07-01' Or Ia_Ensubsidiary.dKeepDate < '2008-07-01') And Ia_Ensubsidiary.cWhCode = N'01' And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6',N'3201') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 8 #1
Insert Into Tempdb..[FCSFCItemMACHINE7] select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end)/ComputationUnit.iChangRate else 0 end AS N'期初_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end) AS N'期初_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else -1*Isnull(Ia_Ensubsidiary.iAOutPrice,0) end) AS N'期初_金额入'
,cast(0 as float) AS N'收入_件数入'
,cast(0 as float) AS N'收入_数量入'
,cast(0 as float) AS N'收入_金额入'
,cast(0 as float) AS N'发出_件数出'
,cast(0 as float) AS N'发出_数量出'
,cast(0 as float) AS N'发出_金额出'
 From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on 1=2
 left join salebillvouch on 1=2
 left join DispatchLists on Ia_Ensubsidiary.iSrcID = DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  iyear =2008 And (Isnull(imonth,0)=0  Or Ia_Ensubsidiary.dVouDate < '2008-07-01' Or Ia_Ensubsidiary.dKeepDate < '2008-07-01') And Ia_Ensubsidiary.cWhCode = N'01' And Ia_Ensubsidiary.cvoutype In (N'65', N'66') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 9 #1
Insert Into Tempdb..[FCSFCItemMACHINE7] Select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,cast(0 as float) AS N'期初_件数入'
,cast(0 as float) AS N'期初_数量入'
,cast(0 as float) AS N'期初_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'收入_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end) AS N'收入_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else 0 end) AS N'收入_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'发出_件数出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end) AS N'发出_数量出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutPrice,0) else 0 end) AS N'发出_金额出'
 From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on Ia_Ensubsidiary.OutID=salebillvouchs.autoid
 left join salebillvouch on salebillvouchs.sBVID=salebillvouch.sBVID
 left join DispatchLists on salebillvouchs.idlsid=DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  Ia_Ensubsidiary.dVouDate Between N'2008-07-01' And N'2008-07-31'  And  Ia_Ensubsidiary.dKeepDate Between N'2008-07-01' And '2008-07-31'  And  iyear =2008 And Isnull(imonth,0)<>0 And Ia_Ensubsidiary.cWhCode = N'01' And  Ia_Ensubsidiary.cvoutype In (N'26', N'27', N'28', N'29') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 10 #1
Insert Into Tempdb..[FCSFCItemMACHINE7] Select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,cast(0 as float) AS N'期初_件数入'
,cast(0 as float) AS N'期初_数量入'
,cast(0 as float) AS N'期初_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'收入_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end) AS N'收入_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else 0 end) AS N'收入_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'发出_件数出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end) AS N'发出_数量出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutPrice,0) else 0 end) AS N'发出_金额出'
 From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on 1=2
 left join salebillvouch on 1=2
 left join DispatchLists on Ia_Ensubsidiary.idlsid = DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  Ia_Ensubsidiary.dVouDate Between N'2008-07-01' And N'2008-07-31'  And  Ia_Ensubsidiary.dKeepDate Between N'2008-07-01' And '2008-07-31'  And  iyear =2008 And Isnull(imonth,0)<>0 And Ia_Ensubsidiary.cWhCode = N'01' And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6',N'3201') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 11 #1
Insert Into Tempdb..[FCSFCItemMACHINE7] Select Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'
,Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'
,Inventory.cInvName AS N'存货_名称'
,InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'
,Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'
,Inventory.iInvWeight AS N'存货_重量'
,ComputationUnit.cComUnitName AS N'存货_辅计量单位'
,ComputationUnit.iChangRate AS N'存货_辅计量换算率'
,Inventory.cInvDefine1,Inventory.cInvDefine2,Inventory.cInvDefine3,Inventory.cInvDefine4,Inventory.cInvDefine5,Inventory.cInvDefine6,Inventory.cInvDefine7,Inventory.cInvDefine8,Inventory.cInvDefine9,Inventory.cInvDefine10,Inventory.cInvDefine11,Inventory.cInvDefine12,Inventory.cInvDefine13,Inventory.cInvDefine14,Inventory.cInvDefine15,Inventory.cInvDefine16
,v_aa_enum_cbustype.enumname AS N'业务类型'
,Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'
,DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'
,CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'
,Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'
,Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'
,StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'
,Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'
,Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName
,Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName
,isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'
,Ia_Ensubsidiary.cFree1,Ia_Ensubsidiary.cFree2,Ia_Ensubsidiary.cFree3,Ia_Ensubsidiary.cFree4,Ia_Ensubsidiary.cFree5,Ia_Ensubsidiary.cFree6,Ia_Ensubsidiary.cFree7,Ia_Ensubsidiary.cFree8,Ia_Ensubsidiary.cFree9,Ia_Ensubsidiary.cFree10
,Ia_Ensubsidiary.cDefine1,Ia_Ensubsidiary.cDefine2,Ia_Ensubsidiary.cDefine3,Ia_Ensubsidiary.cDefine4,Ia_Ensubsidiary.cDefine5,Ia_Ensubsidiary.cDefine6,Ia_Ensubsidiary.cDefine7,Ia_Ensubsidiary.cDefine8,Ia_Ensubsidiary.cDefine9,Ia_Ensubsidiary.cDefine10,Ia_Ensubsidiary.cDefine11,Ia_Ensubsidiary.cDefine12,Ia_Ensubsidiary.cDefine13,Ia_Ensubsidiary.cDefine14,Ia_Ensubsidiary.cDefine15,Ia_Ensubsidiary.cDefine16
,Ia_Ensubsidiary.cDefine22,Ia_Ensubsidiary.cDefine23,Ia_Ensubsidiary.cDefine24,Ia_Ensubsidiary.cDefine25,Ia_Ensubsidiary.cDefine26,Ia_Ensubsidiary.cDefine27,Ia_Ensubsidiary.cDefine28,Ia_Ensubsidiary.cDefine29,Ia_Ensubsidiary.cDefine30,Ia_Ensubsidiary.cDefine31,Ia_Ensubsidiary.cDefine32,Ia_Ensubsidiary.cDefine33,Ia_Ensubsidiary.cDefine34,Ia_Ensubsidiary.cDefine35,Ia_Ensubsidiary.cDefine36,Ia_Ensubsidiary.cDefine37
,cast(0 as float) AS N'期初_件数入'
,cast(0 as float) AS N'期初_数量入'
,cast(0 as float) AS N'期初_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'收入_件数入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end) AS N'收入_数量入'
,(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else 0 end) AS N'收入_金额入'
,case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end)/ComputationUnit.iChangRate else 0 end AS N'发出_件数出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end) AS N'发出_数量出'
,(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutPrice,0) else 0 end) AS N'发出_金额出'
 From Ia_Ensubsidiary
 left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode
 left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode
 left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode
 left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep
 left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
 left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode
 left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode
 left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
 left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
 left join salebillvouchs on 1=2
 left join salebillvouch on 1=2
 left join DispatchLists on Ia_Ensubsidiary.iSrcID = DispatchLists.idlsid
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecordS32 on rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'
 left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID
 left join v_aa_enum v_aa_enum_cbustype on v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销' Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'
Where Inventory.cInvCCode Like N'01%' And (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And  Ia_Ensubsidiary.dVouDate Between N'2008-07-01' And N'2008-07-31'  And  Ia_Ensubsidiary.dKeepDate Between N'2008-07-01' And '2008-07-31'  And  iyear =2008 And Isnull(imonth,0)<>0 And Ia_Ensubsidiary.cWhCode = N'01' And Ia_Ensubsidiary.cvoutype In (N'65', N'66') And Not Ia_Ensubsidiary.cAccounter Is Null and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_Ensubsidiary.cWhCode is null) 
-- 12 #1
Select Top 1 * From Tempdb..[FCSFCItemMACHINE7]
-- 13 #1
select 仓库_编码, 存货_编码, Sum(期初_件数入) As 期初_件数, Sum(期初_数量入) As 期初_数量,cast( Sum(期初_金额入) as decimal(38,2)) As 期初_金额, Sum(收入_件数入) As 收入_件数, Sum(收入_数量入) As 收入_数量,cast( Sum(收入_金额入) as decimal(38,2)) As 收入_金额, Sum(发出_件数出) As 发出_件数, Sum(发出_数量出) As 发出_数量,cast( Sum(发出_金额出) as decimal(38,2)) As 发出_金额,Sum(0+期初_件数入+收入_件数入-发出_件数出) As 结存_件数, Sum(0+期初_数量入+收入_数量入-发出_数量出) As 结存_数量, cast(Sum(0+期初_金额入+收入_金额入-发出_金额出) as decimal(38,2)) As 结存_金额 Into tempdb..[goods] From Tempdb..[FCSFCItemMACHINE7] Group By 仓库_编码, 存货_编码 Having  cast( Sum(期初_数量入) as decimal(38,8)) <> 0 or cast( Sum(期初_金额入) as decimal(38,2)) <> 0 or cast( Sum(收入_数量入) as decimal(38,8)) <> 0 or cast( Sum(收入_金额入) as decimal(38,2)) <> 0 or cast( Sum(发出_数量出) as decimal(38,8)) <> 0 or cast( Sum(发出_金额出) as decimal(38,2)) <> 0
-- 14 #1
if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..FCSFCItemMACHINE7')) Drop Table tempdb..[FCSFCItemMACHINE7]
