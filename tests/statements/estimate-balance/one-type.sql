-- 1 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 2 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 4 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 5 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 6 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'iStrsQuanDecDgt'
-- 7 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgTmpTableMACHINE7]
-- 8 #1
select top 0 Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cVouType,
 cast(null as decimal(34,4)) as QcQuantity,cast(null as decimal(34,2)) as QcMoney,
 cast(null as decimal(34,4)) as InQuantity,cast(null as decimal(34,2)) as InMoney,
 cast(null as decimal(34,4)) as OutQuantity,cast(null as decimal(34,2)) as OutMoney,
 cast(null as decimal(34,4)) as QmQuantity,cast(null as decimal(34,2)) as QmMoney,
 cast(null as integer) as CalMethod
 into [Ia_ZgTmpTableMACHINE7]
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where 1=2
-- 9 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cEstimate'
-- 10 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,QcQuantity,QcMoney,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cSrcVouType,
 Cast(-1*IaInquantity As Decimal(34,8)),Cast(case when Ia_Subsidiary.cbustype= N'委外加工' then -1*(isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0)) else -1*iainprice-isnull(iDebitDifCost,0)+isnull(iCreditDifCost,0) end As Decimal(34,8)),0
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where Ia_Subsidiary.cVouType='24' and Ia_Subsidiary.bFlag=1 and (ia_subsidiary.cSRcVoutype = N'70')
 and Ia_Subsidiary.cBusType in (N'一般贸易进口') and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth=7 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 11 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,InQuantity,InMoney,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cVouType,
 Cast(IaInquantity As Decimal(34,8)),Cast(case when Ia_Subsidiary.cbustype= N'委外加工' then isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0) else iainprice+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) end As Decimal(34,8)),0
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where ((ia_subsidiary.cVouType = N'70') and Ia_Subsidiary.bFlag=1)
 and Ia_Subsidiary.cBusType in (N'一般贸易进口') and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth=7 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 12 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,QmQuantity,QmMoney,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,isnull(Ia_Subsidiary.cSrcVouType,Ia_Subsidiary.cVouType),
 Cast(IaInquantity As Decimal(34,8)),Cast(case when Ia_Subsidiary.cbustype= N'委外加工' then isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0) else iainprice+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) end As Decimal(34,8)),0
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where (((ia_subsidiary.cVouType = N'70') and Ia_Subsidiary.bFlag=1) or (Ia_Subsidiary.cVouType='30' and Ia_Subsidiary.bFlag=1 and (ia_subsidiary.cSRcVoutype = N'70')))
 and Ia_Subsidiary.cBusType in (N'一般贸易进口') and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth=7 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 13 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'
-- 14 #1
If Exists (select ID From sysobjects Where id = object_id('IA_tempAcc1MACHINE7') And Xtype = 'U' ) Drop Table [IA_tempAcc1MACHINE7]
-- 15 #1
If Exists (select ID From sysobjects Where id = object_id('IA_tempAcc2MACHINE7') And Xtype = 'U' ) Drop Table [IA_tempAcc2MACHINE7]
-- 16 #1
select IA_Subsidiary.ID,IA_Subsidiary.cSrcVouType,sum(isnull(iAInQuantity,0)) as iAInQuantity,
 sum(isnull(iAOutQuantity,0)) as iAOutQuantity,sum(isnull(imaterialfee,0)) as iAMaterialfee
 into [IA_tempAcc1MACHINE7] from IA_Subsidiary
 left join Inventory on Inventory.cInvCode=IA_Subsidiary.cInvCode
 left join Warehouse on Warehouse.cWhCode=IA_Subsidiary.cWhCode
 inner join Ia_Summary on Ia_Summary.cInvCode=IA_Subsidiary.cInvCode and isnull(Ia_Summary.iDirect,0)=0 and Ia_Summary.iMonth=7
 and Ia_Summary.iMonth=IA_Subsidiary.iMonth and Ia_Summary.iYear=IA_Subsidiary.iYear
 and (Ia_Summary.cFree1=IA_Subsidiary.cFree1 or isnull(Ia_Summary.cFree1,N'')=N'') and (Ia_Summary.cFree2=IA_Subsidiary.cFree2 or isnull(Ia_Summary.cFree2,N'')=N'') and (Ia_Summary.cFree3=IA_Subsidiary.cFree3 or isnull(Ia_Summary.cFree3,N'')=N'') and (Ia_Summary.cFree4=IA_Subsidiary.cFree4 or isnull(Ia_Summary.cFree4,N'')=N'') and (Ia_Summary.cFree5=IA_Subsidiary.cFree5 or isnull(Ia_Summary.cFree5,N'')=N'') and (Ia_Summary.cFree6=IA_Subsidiary.cFree6 or isnull(Ia_Summary.cFree6,N'')=N'') and (Ia_Summary.cFree7=IA_Subsidiary.cFree7 or isnull(Ia_Summary.cFree7,N'')=N'') and (Ia_Summary.cFree8=IA_Subsidiary.cFree8 or isnull(Ia_Summary.cFree8,N'')=N'') and (Ia_Summary.cFree9=IA_Subsidiary.cFree9 or isnull(Ia_Summary.cFree9,N'')=N'') and (Ia_Summary.cFree10=IA_Subsidiary.cFree10 or isnull(Ia_Summary.cFree10,N'')=N'') 
 and isnull(Ia_Summary.cbatchia,N'')=case when isnull(inventory.bCheckBatch,0)=1 and inventory.cValueType
 in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') then IA_Subsidiary.cbatchia else N'' end
 and isnull(Ia_Summary.iPeriod,0)=0
 where cVouType='30' and (ia_subsidiary.cSRcVoutype = N'70') and IA_Subsidiary.iYear=2008 and IA_Subsidiary.iMonth=7
 group by IA_Subsidiary.id,IA_Subsidiary.cSrcVouType,IA_Subsidiary.cVouType,IA_Subsidiary.cDepCode,IA_Subsidiary.cWhcode,IA_Subsidiary.cInvCode
-- 17 #1
select IA_Subsidiary.AutoID,IA_Subsidiary.id,IA_Subsidiary.cSrcVouType,sum(-1*IA_Subsidiary.[iAInQuantity]-isnull(IA_tempAccSummary.[iAInQuantity],0)) as iAInQuantity,
 sum(cast(-1*[iAInPrice]-isnull(IA_tempAccSummary.[iAInQuantity],0)*isnull(IA_Subsidiary.iInCost,0) as decimal(34,2))
 +isnull(cast([iDebitDifCost]*(-1*IA_Subsidiary.[iAInQuantity]-isnull(IA_tempAccSummary.[iAInQuantity],0))/IA_Subsidiary.[iAInQuantity] as decimal(34,2)),0)
 -isnull(cast([iCreditDifCost]*(-1*IA_Subsidiary.[iAInQuantity]-isnull(IA_tempAccSummary.[iAInQuantity],0))/IA_Subsidiary.[iAInQuantity] as decimal(34,2)),0)) as iainprice,
 sum(cast(-1*isnull(imaterialfee,0)-isnull(IA_tempAccSummary.[iAMaterialfee],0) as decimal(34,2))) as iMaterialfee
 into [IA_tempAcc2MACHINE7] from IA_Subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 inner join Ia_Summary on Ia_Summary.cInvCode=IA_Subsidiary.cInvCode and isnull(Ia_Summary.iDirect,0)=0 and Ia_Summary.iMonth=7
 and Ia_Summary.iMonth=IA_Subsidiary.iMonth and Ia_Summary.iYear=IA_Subsidiary.iYear
 and (Ia_Summary.cFree1=IA_Subsidiary.cFree1 or isnull(Ia_Summary.cFree1,N'')=N'') and (Ia_Summary.cFree2=IA_Subsidiary.cFree2 or isnull(Ia_Summary.cFree2,N'')=N'') and (Ia_Summary.cFree3=IA_Subsidiary.cFree3 or isnull(Ia_Summary.cFree3,N'')=N'') and (Ia_Summary.cFree4=IA_Subsidiary.cFree4 or isnull(Ia_Summary.cFree4,N'')=N'') and (Ia_Summary.cFree5=IA_Subsidiary.cFree5 or isnull(Ia_Summary.cFree5,N'')=N'') and (Ia_Summary.cFree6=IA_Subsidiary.cFree6 or isnull(Ia_Summary.cFree6,N'')=N'') and (Ia_Summary.cFree7=IA_Subsidiary.cFree7 or isnull(Ia_Summary.cFree7,N'')=N'') and (Ia_Summary.cFree8=IA_Subsidiary.cFree8 or isnull(Ia_Summary.cFree8,N'')=N'') and (Ia_Summary.cFree9=IA_Subsidiary.cFree9 or isnull(Ia_Summary.cFree9,N'')=N'') and (Ia_Summary.cFree10=IA_Subsidiary.cFree10 or isnull(Ia_Summary.cFree10,N'')=N'') 
 and isnull(Ia_Summary.cbatchia,N'')=case when isnull(inventory.bCheckBatch,0)=1 and inventory.cValueType
 in (N'全月平均法',N'移动平均法',N'先进先出法',N'后进先出法') then IA_Subsidiary.cbatchia else N'' end
 and isnull(Ia_Summary.iPeriod,0)=0
 left join [IA_tempAcc1MACHINE7] IA_tempAccSummary
 on IA_tempAccSummary.id=IA_Subsidiary.id and IA_tempAccSummary.cSrcVoutype=IA_Subsidiary.cSrcVoutype
 where cVouType='24' and (ia_subsidiary.cSRcVoutype = N'70') and IA_Subsidiary.iYear=2008 and IA_Subsidiary.iMonth=7
 and IA_Subsidiary.cBusType in (N'一般贸易进口') and -1*IA_Subsidiary.[iAInQuantity]-isnull(IA_tempAccSummary.[iAInQuantity],0)<>0 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
 group by IA_Subsidiary.AutoID,IA_Subsidiary.id,IA_Subsidiary.cSrcVouType
 having sum(isnull(-1*IA_subsidiary.iAInQuantity,0)) <> 0
-- 18 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,QmQuantity,Qmmoney,CalMethod)
select ia_subsidiary.AutoID,ia_subsidiary.ID,ia_subsidiary.cSrcVouType,
 cast(ia_subsidiary.IaInquantity as decimal(34,8)),(iainprice-iMaterialfee),0
 from [IA_tempAcc2MACHINE7] ia_subsidiary
-- 19 #1
If Exists (select ID From sysobjects Where id = object_id('IA_tempAcc1MACHINE7') And Xtype = 'U' ) Drop Table [IA_tempAcc1MACHINE7]
-- 20 #1
If Exists (select ID From sysobjects Where id = object_id('IA_tempAcc2MACHINE7') And Xtype = 'U' ) Drop Table [IA_tempAcc2MACHINE7]
-- 21 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
-- 22 #1
update [Ia_ZgTmpTableMACHINE7]
 set  QmQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(outQuantity,0),QmMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(outMoney,0)
 where calmethod<>0
-- 23 #1
update [Ia_ZgTmpTableMACHINE7]
 set outQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(QmQuantity,0),outMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(QmMoney,0)
 where calmethod=0
-- 24 #1
select min(AutoID) as AutoID,ID,cVouType,
 sum(QcQuantity) as QcQuantity,sum(InQuantity) as InQuantity,
 sum(outQuantity) as outQuantity,sum(QmQuantity) as QmQuantity,
 sum(QcMoney) as QcMoney,sum(InMoney) as InMoney,
 sum(outMoney) as outMoney,sum(QmMoney) as QmMoney
 into [Ia_ZgSumTmpTableMACHINE7]
 from [Ia_ZgTmpTableMACHINE7]
 group by ID,cVouType
-- 25 #1
delete from [Ia_ZgSumTmpTableMACHINE7] where QcQuantity=0 and InQuantity=0 and outQuantity=0 and QmQuantity=0
-- 26 #1
If Exists (select ID From sysobjects Where id = object_id('tempdb..estimate')) Drop Table tempdb..estimate
-- 27 #1
select
 Ia_Subsidiary.ID,Ia_Subsidiary.cVouCode,Ia_Subsidiary.cWhCode,cWhName,Inventory.cInvCCode,cInvCName,ia_subsidiary.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd,Inventory.cComUnitCode,
 Ia_Subsidiary.cVouType,aa_enum.enumname as cVouTypeName,cast(Ia_Subsidiary.cBusType as nvarchar(200)) as cBusType,Ia_Subsidiary.cRdCode,cRdName,Vendor.cVCCode,cVCName,Ia_Subsidiary.cVenCode,cVenName,Ia_Subsidiary.caccdep as cdepcode,cDepName,
 Ia_Subsidiary.dKeepDate,Ia_Subsidiary.dVouDate,Ia_Subsidiary.dtAudit,Ia_Subsidiary.cItem_class,Ia_Subsidiary.cItemCName,Ia_Subsidiary.cItemCode,Ia_Subsidiary.cName,Ia_Subsidiary.cPurOrderCode,Ia_Subsidiary.centrustordercode,Ia_Subsidiary.cBatchIA,
 Ia_Subsidiary.cDefine1, Ia_Subsidiary.cDefine2, Ia_Subsidiary.cDefine3, Ia_Subsidiary.cDefine4, Ia_Subsidiary.cDefine5, Ia_Subsidiary.cDefine6, Ia_Subsidiary.cDefine7, Ia_Subsidiary.cDefine8, Ia_Subsidiary.cDefine9, Ia_Subsidiary.cDefine10, Ia_Subsidiary.cDefine11, Ia_Subsidiary.cDefine12, Ia_Subsidiary.cDefine13, Ia_Subsidiary.cDefine14, Ia_Subsidiary.cDefine15, Ia_Subsidiary.cDefine16, Ia_Subsidiary.cDefine22, Ia_Subsidiary.cDefine23, Ia_Subsidiary.cDefine24, Ia_Subsidiary.cDefine25, Ia_Subsidiary.cDefine26, Ia_Subsidiary.cDefine27, Ia_Subsidiary.cDefine28, Ia_Subsidiary.cDefine29, Ia_Subsidiary.cDefine30, Ia_Subsidiary.cDefine31, Ia_Subsidiary.cDefine32, Ia_Subsidiary.cDefine33, Ia_Subsidiary.cDefine34, Ia_Subsidiary.cDefine35, Ia_Subsidiary.cDefine36, Ia_Subsidiary.cDefine37,
 Inventory.cInvDefine1, Inventory.cInvDefine2, Inventory.cInvDefine3, Inventory.cInvDefine4, Inventory.cInvDefine5, Inventory.cInvDefine6, Inventory.cInvDefine7, Inventory.cInvDefine8, Inventory.cInvDefine9, Inventory.cInvDefine10, Inventory.cInvDefine11, Inventory.cInvDefine12, Inventory.cInvDefine13, Inventory.cInvDefine14, Inventory.cInvDefine15, Inventory.cInvDefine16,
 Case When Inventory.bCheckFree1 =1 Then Ia_Subsidiary.cFree1 Else N'' End As N'cFree1', Case When Inventory.bCheckFree2 =1 Then Ia_Subsidiary.cFree2 Else N'' End As N'cFree2', Case When Inventory.bCheckFree3 =1 Then Ia_Subsidiary.cFree3 Else N'' End As N'cFree3', Case When Inventory.bCheckFree4 =1 Then Ia_Subsidiary.cFree4 Else N'' End As N'cFree4', Case When Inventory.bCheckFree5 =1 Then Ia_Subsidiary.cFree5 Else N'' End As N'cFree5', Case When Inventory.bCheckFree6 =1 Then Ia_Subsidiary.cFree6 Else N'' End As N'cFree6', Case When Inventory.bCheckFree7 =1 Then Ia_Subsidiary.cFree7 Else N'' End As N'cFree7', Case When Inventory.bCheckFree8 =1 Then Ia_Subsidiary.cFree8 Else N'' End As N'cFree8', Case When Inventory.bCheckFree9 =1 Then Ia_Subsidiary.cFree9 Else N'' End As N'cFree9', Case When Inventory.bCheckFree10 =1 Then Ia_Subsidiary.cFree10 Else N'' End As N'cFree10',
 Ia_Subsidiary.cMemo,QcQuantity,QcMoney,InQuantity,InMoney,Outquantity,OutMoney,QmQuantity,QmMoney
 into tempdb..estimate
From [Ia_ZgSumTmpTableMACHINE7] Ia_Sub inner join Ia_Subsidiary on Ia_Sub.AutoID=Ia_Subsidiary.AutoID
 left join VouchType on IA_Subsidiary.cVouType=VouchType.cVouchType
 left join aa_enum on enumtype=N'ia.VchType' and VouchType.cVouchName=aa_enum.enumcode and aa_enum.LocaleID=N'en-US'
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.caccdep
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode where Ia_Sub.QmMoney <> 0 
-- 28 #1
delete from tempdb..estimate where isnull(QcQuantity,0)=0 and isnull(QcMoney,0)=0 and isnull(InQuantity,0)=0 and isnull(InMoney,0)=0 and isnull(Outquantity,0)=0 and isnull(OutMoney,0)=0
-- 29 #1
Update tempdb..estimate set cBustype=AA.EnumName from tempdb..estimate Wt inner join aa_enum AA on 
 Wt.cBustype=AA.EnumCode where AA.EnumType='IA.BusType' and AA.LocaleID=N'en-US'
-- 30 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgTmpTableMACHINE7]
-- 31 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
