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
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
-- 11 #1
update [Ia_ZgTmpTableMACHINE7]
 set  QmQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(outQuantity,0),QmMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(outMoney,0)
 where calmethod<>0
-- 12 #1
update [Ia_ZgTmpTableMACHINE7]
 set outQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(QmQuantity,0),outMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(QmMoney,0)
 where calmethod=0
-- 13 #1
select min(AutoID) as AutoID,ID,cVouType,
 sum(QcQuantity) as QcQuantity,sum(InQuantity) as InQuantity,
 sum(outQuantity) as outQuantity,sum(QmQuantity) as QmQuantity,
 sum(QcMoney) as QcMoney,sum(InMoney) as InMoney,
 sum(outMoney) as outMoney,sum(QmMoney) as QmMoney
 into [Ia_ZgSumTmpTableMACHINE7]
 from [Ia_ZgTmpTableMACHINE7]
 group by ID,cVouType
-- 14 #1
delete from [Ia_ZgSumTmpTableMACHINE7] where QcQuantity=0 and InQuantity=0 and outQuantity=0 and QmQuantity=0
-- 15 #1
If Exists (select ID From sysobjects Where id = object_id('tempdb..estimate')) Drop Table tempdb..estimate
-- 16 #1
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
-- 17 #1
delete from tempdb..estimate where isnull(QcQuantity,0)=0 and isnull(QcMoney,0)=0 and isnull(InQuantity,0)=0 and isnull(InMoney,0)=0 and isnull(Outquantity,0)=0 and isnull(OutMoney,0)=0
-- 18 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgTmpTableMACHINE7]
-- 19 #1
If Exists (select ID From sysobjects Where id = object_id('Ia_ZgSumTmpTableMACHINE7') And Xtype = 'U' ) Drop Table [Ia_ZgSumTmpTableMACHINE7]
