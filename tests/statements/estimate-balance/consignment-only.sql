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
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,QcQuantity,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,isnull(Ia_Subsidiary.cSrcVouType,Ia_Subsidiary.cVouType),
 IaInquantity,2
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where ((( ia_subsidiary.cVouType in (N'01',N'70') ) and Ia_Subsidiary.bFlag=1) or (Ia_Subsidiary.cVouType = '33' and ( ia_subsidiary.cSRcVoutype in (N'01',N'70') )))
 and Ia_Subsidiary.cBusType in (N'受托代销') and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth<7 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 11 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,QcQuantity,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,a.cVouType,
 Cast(-1*Pursettlevouchs.iSVQuantity As Decimal(34,8)),2
 from ia_subsidiary
 inner join (select distinct autoid,id,cvoutype from [Ia_ZgTmpTableMACHINE7]) a on a.autoid = ia_subsidiary.AutoID
 inner join (select psvsid,ID,csrcvoutype,iainprice,iDebitDifCost,iCreditDifCost from ia_subsidiary
 where ia_subsidiary.cVouType='20' and ( ia_subsidiary.cSRcVoutype in (N'01',N'70') ) and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth<7 and bFlag=2 and (cBusType=N'暂估报销' or cBusType in (N'受托代销'))) b
 on a.ID = b.ID and a.cvoutype = b.csrcvoutype
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 left join Pursettlevouchs on pursettlevouchs.id=b.psvsid
 where ia_subsidiary.iYear=2008 and  1= 1  and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 12 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,InQuantity,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cVouType,
 IaInquantity,2
 from ia_subsidiary
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 where (( ia_subsidiary.cVouType in (N'01',N'70') ) and Ia_Subsidiary.bFlag=1)
 and Ia_Subsidiary.cBusType in (N'受托代销') and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth=7 and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 13 #1
insert into [Ia_ZgTmpTableMACHINE7] (AutoID,ID,cVouType,OutQuantity,CalMethod)
select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,isnull(Ia_Subsidiary.cSrcVouType,Ia_Subsidiary.cVouType),
 Pursettlevouchs.iSVQuantity,2
 from ia_subsidiary
 inner join (select distinct autoid,id,cvoutype from [Ia_ZgTmpTableMACHINE7]) a on a.autoid = ia_subsidiary.AutoID
 inner join (select psvsid,ID,csrcvoutype,iainprice,iDebitDifCost,iCreditDifCost from ia_subsidiary
 where ia_subsidiary.cVouType='20' and ( ia_subsidiary.cSRcVoutype in (N'01',N'70') ) and Ia_Subsidiary.iYear=2008 and Ia_Subsidiary.iMonth=7 and bFlag<>1 and cBusType in (N'暂估报销',N'受托代销')) b
 on a.ID = b.ID and a.cvoutype = b.csrcvoutype
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
 left join Pursettlevouchs on pursettlevouchs.id=b.psvsid
 where ia_subsidiary.iYear=2008 and  1= 1  and (ia_subsidiary.iyear = 2008) and  ((Ia_subsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or Ia_subsidiary.cWhCode is null) 
-- 14 #1
update [Ia_ZgTmpTableMACHINE7] set
 QcMoney=case when rdrecord.cbustype=N'委外加工' then case when [Ia_ZgTmpTableMACHINE7].QcQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0) else [Ia_ZgTmpTableMACHINE7].QcQuantity*(Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0))/Rdrecords.iQuantity end
 when [Ia_ZgTmpTableMACHINE7].QcQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice when [Ia_ZgTmpTableMACHINE7].QcQuantity=-1*Rdrecords.iQuantity then -1*Rdrecords.iAPrice else [Ia_ZgTmpTableMACHINE7].QcQuantity*Rdrecords.FaCost end,
 InMoney=case when rdrecord.cbustype=N'委外加工' then case when [Ia_ZgTmpTableMACHINE7].InQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0) else [Ia_ZgTmpTableMACHINE7].InQuantity*(Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0))/Rdrecords.iQuantity end
 when [Ia_ZgTmpTableMACHINE7].InQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice else [Ia_ZgTmpTableMACHINE7].InQuantity*Rdrecords.FaCost end,
 OutMoney=case when rdrecord.cbustype=N'委外加工' then case when [Ia_ZgTmpTableMACHINE7].OutQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0) else [Ia_ZgTmpTableMACHINE7].OutQuantity*(Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0))/Rdrecords.iQuantity end
 when [Ia_ZgTmpTableMACHINE7].OutQuantity=Rdrecords.iQuantity then Rdrecords.iAPrice else [Ia_ZgTmpTableMACHINE7].OutQuantity*Rdrecords.FaCost end
 from [Ia_ZgTmpTableMACHINE7] inner join IA_subsidiary on IA_subsidiary.AutoID = [Ia_ZgTmpTableMACHINE7].AutoID
 Left Join Rdrecords01 Rdrecords On Rdrecords.AutoID = [Ia_ZgTmpTableMACHINE7].ID
 Left Join Rdrecord01 Rdrecord on rdrecord.id=rdrecords.id
 where isnull(IA_subsidiary.cSRcVoutype,IA_subsidiary.cVouType) = N'01' and [Ia_ZgTmpTableMACHINE7].CalMethod=2
-- 15 #1
update [Ia_ZgTmpTableMACHINE7] set
 QcMoney=case when [Ia_ZgTmpTableMACHINE7].QcQuantity=PU_v_VMIUsedVouchs.iConfirmQuantity then PU_v_VMIUsedVouchs.iAPrice else [Ia_ZgTmpTableMACHINE7].QcQuantity*PU_v_VMIUsedVouchs.iaCost end,
 InMoney=case when [Ia_ZgTmpTableMACHINE7].InQuantity=PU_v_VMIUsedVouchs.iConfirmQuantity then PU_v_VMIUsedVouchs.iAPrice else [Ia_ZgTmpTableMACHINE7].InQuantity*PU_v_VMIUsedVouchs.iaCost end,
 OutMoney=case when [Ia_ZgTmpTableMACHINE7].OutQuantity=PU_v_VMIUsedVouchs.iConfirmQuantity then PU_v_VMIUsedVouchs.iAPrice else [Ia_ZgTmpTableMACHINE7].OutQuantity*PU_v_VMIUsedVouchs.iaCost end
 from [Ia_ZgTmpTableMACHINE7] inner join IA_subsidiary on IA_subsidiary.AutoID = [Ia_ZgTmpTableMACHINE7].AutoID
 Left Join PU_v_VMIUsedVouchs On PU_v_VMIUsedVouchs.AutoID = [Ia_ZgTmpTableMACHINE7].ID
 where isnull(IA_subsidiary.cSRcVoutype,IA_subsidiary.cVouType) = N'70' and [Ia_ZgTmpTableMACHINE7].CalMethod=2
-- 16 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
-- 17 #1
update [Ia_ZgTmpTableMACHINE7]
 set  QmQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(outQuantity,0),QmMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(outMoney,0)
 where calmethod<>0
-- 18 #1
update [Ia_ZgTmpTableMACHINE7]
 set outQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(QmQuantity,0),outMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(QmMoney,0)
 where calmethod=0
-- 19 #1
select min(AutoID) as AutoID,ID,cVouType,
 sum(QcQuantity) as QcQuantity,sum(InQuantity) as InQuantity,
 sum(outQuantity) as outQuantity,sum(QmQuantity) as QmQuantity,
 sum(QcMoney) as QcMoney,sum(InMoney) as InMoney,
 sum(outMoney) as outMoney,sum(QmMoney) as QmMoney
 into [Ia_ZgSumTmpTableMACHINE7]
 from [Ia_ZgTmpTableMACHINE7]
 group by ID,cVouType
-- 20 #1
delete from [Ia_ZgSumTmpTableMACHINE7] where QcQuantity=0 and InQuantity=0 and outQuantity=0 and QmQuantity=0
-- 21 #1
If Exists (select ID From sysobjects Where id = object_id('tempdb..estimate')) Drop Table tempdb..estimate
-- 22 #1
select
 Ia_Subsidiary.ID,Ia_Subsidiary.cVouCode,Ia_Subsidiary.cWhCode,cWhName,Inventory.cInvCCode,cInvCName,ia_subsidiary.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd,Inventory.cComUnitCode,
 Ia_Subsidiary.cVouType,aa_enum.enumname as cVouTypeName,cast(Ia_Subsidiary.cBusType as nvarchar(200)) as cBusType,Ia_Subsidiary.cRdCode,cRdName,Vendor.cVCCode,cVCName,Ia_Subsidiary.cVenCode,cVenName,Ia_Subsidiary.caccdep as cdepcode,cDepName,
 Ia_Subsidiary.dKeepDate,Ia_Subsidiary.dVouDate,Ia_Subsidiary.dtAudit,Ia_Subsidiary.cItem_class,Ia_Subsidiary.cItemCName,Ia_Subsidiary.cItemCode,Ia_Subsidiary.cName,Ia_Subsidiary.cPurOrderCode,Ia_Subsidiary.centrustordercode,Ia_Subsidiary.cBatchIA,
 Ia_Subsidiary.cDefine1, Ia_Subsidiary.cDefine2, Ia_Subsidiary.cDefine3, Ia_Subsidiary.cDefine4, Ia_Subsidiary.cDefine5, Ia_Subsidiary.cDefine6, Ia_Subsidiary.cDefine7, Ia_Subsidiary.cDefine8, Ia_Subsidiary.cDefine9, Ia_Subsidiary.cDefine10, Ia_Subsidiary.cDefine11, Ia_Subsidiary.cDefine12, Ia_Subsidiary.cDefine13, Ia_Subsidiary.cDefine14, Ia_Subsidiary.cDefine15, Ia_Subsidiary.cDefine16, Ia_Subsidiary.cDefine22, Ia_Subsidiary.cDefine23, Ia_Subsidiary.cDefine24, Ia_Subsidiary.cDefine25, Ia_Subsidiary.cDefine26, Ia_Subsidiary.cDefine27, Ia_Subsidiary.cDefine28, Ia_Subsidiary.cDefine29, Ia_Subsidiary.cDefine30, Ia_Subsidiary.cDefine31, Ia_Subsidiary.cDefine32, Ia_Subsidiary.cDefine33, Ia_Subsidiary.cDefine34, Ia_Subsidiary.cDefine35, Ia_Subsidiary.cDefine36, Ia_Subsidiary.cDefine37,
 Inventory.cInvDefine1, Inventory.cInvDefine2, Inventory.cInvDefine3, Inventory.cInvDefine4, Inventory.cInvDefine5, Inventory.cInvDefine6, Inventory.cInvDefine7, Inventory.cInvDefine8, Inventory.cInvDefine9, Inventory.cInvDefine10, Inventory.cInvDefine11, Inventory.cInvDefine12, Inventory.cInvDefine13, Inventory.cInvDefine14, Inventory.cInvDefine15, Inventory.cInvDefine16,
 Ia_Subsidiary.cFree1, Ia_Subsidiary.cFree2, Ia_Subsidiary.cFree3, Ia_Subsidiary.cFree4, Ia_Subsidiary.cFree5, Ia_Subsidiary.cFree6, Ia_Subsidiary.cFree7, Ia_Subsidiary.cFree8, Ia_Subsidiary.cFree9, Ia_Subsidiary.cFree10,
 Ia_Subsidiary.cMemo,QcQuantity,QcMoney,InQuantity,InMoney,Outquantity,OutMoney,QmQuantity,QmMoney
 into tempdb..estimate
From [Ia_ZgSumTmpTableMACHINE7] Ia_Sub inner join Ia_Subsidiary on Ia_Sub.AutoID=Ia_Subsidiary.AutoID
 left join VouchType on IA_Subsidiary.cVouType=VouchType.cVouchType
 left join aa_enum on enumtype=N'ia.VchType' and VouchType.cVouchName=aa_enum.enumcode and aa_enum.LocaleID=N'zh-CN'
 left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode
 left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode
 left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode
 left join Department on Department.cDepCode=Ia_Subsidiary.caccdep
 left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode
 left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode
 left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode
-- 23 #1
delete from tempdb..estimate where isnull(QcQuantity,0)=0 and isnull(QcMoney,0)=0 and isnull(InQuantity,0)=0 and isnull(InMoney,0)=0 and isnull(Outquantity,0)=0 and isnull(OutMoney,0)=0
-- 24 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgTmpTableMACHINE7]
-- 25 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
