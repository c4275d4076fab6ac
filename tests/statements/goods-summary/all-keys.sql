-- 1 #1
if exists(select name from Tempdb..sysobjects where name = N'FCSFCItemMACHINE7')  drop table Tempdb..[FCSFCItemMACHINE7]
-- 2 #1
select top 0 IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,
IA_EnSubsidiary.dKeepDate,
IA_EnSubsidiary.iAInQuantity as Q_Quantity,IA_EnSubsidiary.iAInQuantity as R_Quantity,
IA_EnSubsidiary.iAInQuantity as D_Quantity,IA_EnSubsidiary.iAInQuantity as E_Quantity,
cast(0 as float) as Q_No,cast(0 as float) as R_No,
cast(0 as float) as D_No,cast(0 as float) as E_No,
IA_EnSubsidiary.iAInPrice as Q_Price,IA_EnSubsidiary.iAInPrice as R_Price,
IA_EnSubsidiary.iAInPrice as D_Price,IA_EnSubsidiary.iAInPrice as E_Price,
cast(IA_EnSubsidiary.iMonth as int) as iMonth,cast(IA_EnSubsidiary.iYear as int) as iYear
 into Tempdb..[FCSFCItemMACHINE7]
 from IA_EnSubsidiary
 Where 1 = 2
-- 3 #1
insert into Tempdb..[FCSFCItemMACHINE7](isrcid,csrcvoutype,Q_No,Q_Quantity,Q_Price)
select IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,
sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then (case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0) else -1*isnull(IA_EnSubsidiary.iAOutQuantity,0) end)/ComputationUnit.iChangRate else 0 end),
sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0) else -1*isnull(IA_EnSubsidiary.iAOutQuantity,0) end),
sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInPrice,0) else -1*isnull(IA_EnSubsidiary.iAOutPrice,0) end)
 from IA_EnSubsidiary
 left join Rd_Style on IA_EnSubsidiary.cRdCode=Rd_Style.cRdCode
 left join Warehouse on IA_EnSubsidiary.cWhCode=Warehouse.cWhCode
 left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode
 left join InventoryClass on inventory.cInvCCode=InventoryClass.cInvCCode
 left join Customer on IA_EnSubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on IA_EnSubsidiary.cAccDep=Department.cDepCode
 left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode
Left join ComputationUnit on  Inventory.cGroupCode=ComputationUnit.cGroupcode and ComputationUnit.bmainunit=0 and ComputationUnit.inumber=1
 left join DispatchLists on DispatchLists.iDLsID = IA_EnSubsidiary.iSrcID and IA_EnSubsidiary.cSrcVouType in ('05','06','5','6')
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecords32 on rdrecords32.AutoID = IA_EnSubsidiary.iSrcID and  IA_EnSubsidiary.cSrcVouType in ('3201')
 left join rdrecord32 on rdrecords32.id=rdrecord32.id
Where iYear = 2008 and DispatchList.cDLCode >= N'D1' and DispatchList.cDLCode <= N'D2' and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托')  and  ( ia_ensubsidiary.imonth  = 0  or Ia_Ensubsidiary.dVouDate < '2008-07-01' or Ia_Ensubsidiary.dKeepDate < '2008-07-01')  and Inventory.cInvCCode Like N'01%' group by IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype
-- 4 #1
insert into Tempdb..[FCSFCItemMACHINE7](iSrcID,cSRcVoutype,R_No,R_Quantity,R_Price,D_No,D_Quantity,D_Price)
select IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype,
sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then (case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInQuantity,0) else 0 end)/ComputationUnit.iChangRate else null end),
sum(IA_EnSubsidiary.iAInQuantity),
sum(case when IA_EnSubsidiary.bRdFlag=1 then isnull(IA_EnSubsidiary.iAInPrice,0) else null end),
sum(case when Isnull(ComputationUnit.iChangRate,0)>0 then (case when IA_EnSubsidiary.bRdFlag=0 then isnull(IA_EnSubsidiary.iAOutQuantity,0) else 0 end)/ComputationUnit.iChangRate else null end),
sum(IA_EnSubsidiary.iAOutQuantity),
sum(case when IA_EnSubsidiary.bRdFlag=0 then isnull(IA_EnSubsidiary.iAOutPrice,0) else null end)
 from IA_EnSubsidiary
 left join Rd_Style on IA_EnSubsidiary.cRdCode=Rd_Style.cRdCode
 left join Warehouse on IA_EnSubsidiary.cWhCode=Warehouse.cWhCode
 left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode
 left join InventoryClass on inventory.cInvCCode=InventoryClass.cInvCCode
 left join Customer on IA_EnSubsidiary.cCusCode=Customer.cCusCode
 left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
 left join Department on IA_EnSubsidiary.cAccDep=Department.cDepCode
 left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode
Left join ComputationUnit on  Inventory.cGroupCode=ComputationUnit.cGroupcode and ComputationUnit.bmainunit=0 and ComputationUnit.inumber=1
 left join DispatchLists on DispatchLists.iDLsID = IA_EnSubsidiary.iSrcID and IA_EnSubsidiary.cSrcVouType in ('05','06','5','6')
 left join DispatchList on DispatchLists.DLID=DispatchList.DLID
 left join rdrecords32 on rdrecords32.AutoID = IA_EnSubsidiary.iSrcID and  IA_EnSubsidiary.cSrcVouType in ('3201')
 left join rdrecord32 on rdrecords32.id=rdrecord32.id
where 1 = 1 and IA_EnSubsidiary.imonth <> 0  and iYear = 2008 and DispatchList.cDLCode >= N'D1' and DispatchList.cDLCode <= N'D2' and (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托')  and 1 = 1  and Ia_Ensubsidiary.dVouDate Between N'2008-07-01' And N'2008-07-31'  And Ia_Ensubsidiary.dKeepDate Between N'2008-07-01' And '2008-07-31'  and Inventory.cInvCCode Like N'01%' group by IA_EnSubsidiary.iSrcID,IA_EnSubsidiary.cSRcVoutype
-- 5 #1
update Tempdb..[FCSFCItemMACHINE7] set
 E_No=(ISNULL(Q_No,0)+ISNULL(R_No,0)-ISNULL(D_No,0)),
 E_Quantity=(isnull(Q_Quantity,0)+isnull(R_Quantity,0)-isnull(D_Quantity,0)),
 E_Price=(isnull(Q_Price,0)+isnull(R_Price,0)-isnull(D_Price,0))
 from Tempdb..[FCSFCItemMACHINE7]
-- 6 #1
select isrcid,csrcvoutype,
 sum(Q_No) as Q_No,sum(Q_Price) as Q_Price,sum(Q_Quantity) as Q_Quantity,
 sum(R_No) as R_No,sum(R_Price) as R_Price,sum(R_Quantity) as R_Quantity,
 sum(D_No) as D_No,sum(D_Price) as D_Price,sum(D_Quantity) as D_Quantity,
 sum(E_No) as E_No,sum(E_Price) as E_Price,sum(E_Quantity) as E_Quantity
 into #IA_EnFCSPHZB 
 from  Tempdb..[FCSFCItemMACHINE7] a
 where ( Q_Quantity<>0 or Q_Price<>0 )  or(  R_Quantity<>0 or R_Price<>0)  or( D_Quantity<>0 or D_Price<>0)  or( E_Quantity<>0 or E_Price<>0) 
 group by a.isrcid,a.csrcvoutype
-- 7 #1
select case when ia_ensubsidiary.cvoutype = N'3201' then cast(null as nvarchar(30)) else ia_ensubsidiary.cvoucode end as cDLCode,
case when ia_ensubsidiary.cvoutype = N'3201' then ia_ensubsidiary.cvoucode else cast(null as nvarchar(30)) end as cCode,
ia_ensubsidiary.cWhCode,warehouse.cwhname as cWhName,inventory.cInvCCode,InventoryClass.cInvCName,
ia_ensubsidiary.cInvCode,inventory.cInvName,inventory.cInvAddCode,inventory.cInvStd,
UnitBase.CComUnitName,ComputationUnit.cComUnitName as cComUnitName_1,ComputationUnit.iChangRate,
Department.cDepCode,Department.cDepName,AA_Enum.EnumName as cVouchName,
ia_ensubsidiary.dVouDate,ia_ensubsidiary.dKeepDate,ia_ensubsidiary.cAccounter,
CustomerClass.cCCCode,CustomerClass.cCCName,ia_ensubsidiary.cCusCode,Customer.cCusName,
StDep.cDepCode as cAccDep,StDep.cDepName as cDepName_1,
ia_ensubsidiary.cBusType,ia_ensubsidiary.cPersonCode,Person.cPersonName,
ia_ensubsidiary.cBatchia,ia_ensubsidiary.cRdCode,Rd_Style.cRdName,
ia_ensubsidiary.cItem_class,ia_ensubsidiary.cItemCName,ia_ensubsidiary.cItemCode,ia_ensubsidiary.cName,ia_ensubsidiary.cMemo,
ia_ensubsidiary.cDefine1,ia_ensubsidiary.cDefine2,ia_ensubsidiary.cDefine3,ia_ensubsidiary.cDefine4,ia_ensubsidiary.cDefine5,ia_ensubsidiary.cDefine6,ia_ensubsidiary.cDefine7,ia_ensubsidiary.cDefine8,ia_ensubsidiary.cDefine9,ia_ensubsidiary.cDefine10,ia_ensubsidiary.cDefine11,ia_ensubsidiary.cDefine12,ia_ensubsidiary.cDefine13,ia_ensubsidiary.cDefine14,ia_ensubsidiary.cDefine15,ia_ensubsidiary.cDefine16,
ia_ensubsidiary.cDefine22,ia_ensubsidiary.cDefine23,ia_ensubsidiary.cDefine24,ia_ensubsidiary.cDefine25,ia_ensubsidiary.cDefine26,ia_ensubsidiary.cDefine27,ia_ensubsidiary.cDefine28,ia_ensubsidiary.cDefine29,ia_ensubsidiary.cDefine30,ia_ensubsidiary.cDefine31,ia_ensubsidiary.cDefine32,ia_ensubsidiary.cDefine33,ia_ensubsidiary.cDefine34,ia_ensubsidiary.cDefine35,ia_ensubsidiary.cDefine36,ia_ensubsidiary.cDefine37,
inventory.cInvDefine1,inventory.cInvDefine2,inventory.cInvDefine3,inventory.cInvDefine4,inventory.cInvDefine5,inventory.cInvDefine6,inventory.cInvDefine7,inventory.cInvDefine8,inventory.cInvDefine9,inventory.cInvDefine10,inventory.cInvDefine11,inventory.cInvDefine12,inventory.cInvDefine13,inventory.cInvDefine14,inventory.cInvDefine15,inventory.cInvDefine16,
ia_ensubsidiary.cFree1,ia_ensubsidiary.cFree2,ia_ensubsidiary.cFree3,ia_ensubsidiary.cFree4,ia_ensubsidiary.cFree5,ia_ensubsidiary.cFree6,ia_ensubsidiary.cFree7,ia_ensubsidiary.cFree8,ia_ensubsidiary.cFree9,ia_ensubsidiary.cFree10,
a.Q_No,a.Q_Price,a.Q_Quantity,a.R_No,a.R_Price,a.R_Quantity,
a.D_No,a.D_Price,a.D_Quantity,a.E_No,a.E_Price,a.E_Quantity,a.iSrcID,a.cSRcVoutype
into tempdb..goods
from #IA_EnFCSPHZB a
left join ia_ensubsidiary on a.isrcid=ia_ensubsidiary.inid and a.csrcvoutype = ia_ensubsidiary.cvoutype  and ia_ensubsidiary.iyear = 2008
left join Rd_Style on ia_ensubsidiary.cRdCode=Rd_Style.cRdCode
left join Warehouse on ia_ensubsidiary.cWhCode=Warehouse.cWhCode
left join inventory on ia_ensubsidiary.cInvCode=inventory.cInvCode
left join InventoryClass on inventory.cInvCCode=InventoryClass.cInvCCode
left join Customer on ia_ensubsidiary.cCusCode=Customer.cCusCode
left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode
left join Department on ia_ensubsidiary.cAccDep=Department.cDepCode
left join Department StDep on StDep.cDepCode=Warehouse.cDepCode
left join Person on ia_ensubsidiary.cPersonCode=Person.cPersonCode
left join VouchType on VouchType.cVouchType=case when IA_EnSubsidiary.cvoutype=N'3201' then N'32' else IA_EnSubsidiary.cvoutype end
left join ComputationGroup on inventory.cGroupCode=ComputationGroup.cGroupCode
left join ComputationUnit on (ComputationGroup.iGroupType = N'1' and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = 1) 
left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode
left join  AA_Enum on VouchType.cVouchName=AA_Enum.EnumCode and AA_Enum.EnumType ='IA.vchtype' and AA_Enum.LocaleId=DBO.UDF_GetLocaleID()
Where (a.Q_Price <> 0 Or Q_Quantity <> 0) Or (R_Price <> 0 Or R_Quantity <> 0) Or (D_Price <> 0 Or D_Quantity <> 0) Or (E_Price <> 0 Or E_Quantity <> 0)
