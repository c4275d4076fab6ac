-- The ledger with its names, one row per ledger row. dVouDate is the text YYYY-MM-DD, which reports copy and
-- order by.
create view IA_V_Subsidiary as
select a.AutoID, a.iPZID, a.cPZID, a.iYear, a.iMonth,
       convert(nvarchar(10), a.dVouDate, 121) as dVouDate, a.dKeepDate,
       a.cVouCode, a.cVouType, t.cVouchName, a.bFlag, a.cBusType, a.cRdCode, r.cRdName,
       a.cWhCode, w.cWhName, w.cWhValueStyle, a.cDepCode, d.cDepName, a.cAccDep, e.cDepName as cAccDepName,
       c.cCCCode, cc.cCCName, a.cCusCode, c.cCusName,
       v.cVCCode, vc.cVCName, a.cVenCode, v.cVenName,
       a.cItem_class, a.cItemCName, a.cItemCode, a.cName, a.cProOrderCode,
       i.cInvCCode, ic.cInvCName, a.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd, i.iid, i.cValueType,
       isnull(i.bCheckBatch, 0) as bCheckBatch,
       a.cBatchIA, a.cFree1, a.cFree2, a.cFree3, a.cFree4, a.cFree5, a.cFree6, a.cFree7, a.cFree8,
       a.cFree9, a.cFree10,
       a.iAInQuantity, a.iInCost, a.iAInPrice, a.iAOutQuantity, a.iOutCost, a.iAOutPrice,
       a.cDefine1, a.cDefine2, a.cDefine3, a.cDefine4, a.cDefine5, a.cDefine6, a.cDefine7, a.cDefine8,
       a.cDefine9, a.cDefine10, a.cDefine11, a.cDefine12, a.cDefine13, a.cDefine14, a.cDefine15,
       a.cDefine16,
       a.cDefine22, a.cDefine23, a.cDefine24, a.cDefine25, a.cDefine26, a.cDefine27, a.cDefine28,
       a.cDefine29, a.cDefine30, a.cDefine31, a.cDefine32, a.cDefine33, a.cDefine34, a.cDefine35,
       a.cDefine36, a.cDefine37,
       i.cInvDefine1, i.cInvDefine2, i.cInvDefine3, i.cInvDefine4, i.cInvDefine5, i.cInvDefine6,
       i.cInvDefine7, i.cInvDefine8, i.cInvDefine9, i.cInvDefine10, i.cInvDefine11, i.cInvDefine12,
       i.cInvDefine13, i.cInvDefine14, i.cInvDefine15, i.cInvDefine16
  from IA_Subsidiary a
       left join Inventory i on i.cInvCode = a.cInvCode
       left join InventoryClass ic on ic.cInvCCode = i.cInvCCode
       left join Warehouse w on w.cWhCode = a.cWhCode
       left join Department d on d.cDepCode = a.cDepCode
       left join Department e on e.cDepCode = a.cAccDep
       left join Rd_Style r on r.cRdCode = a.cRdCode
       left join Customer c on c.cCusCode = a.cCusCode
       left join CustomerClass cc on cc.cCCCode = c.cCCCode
       left join Vendor v on v.cVenCode = a.cVenCode
       left join VendorClass vc on vc.cVCCode = v.cVCCode
       left join VouchType t on t.cVouchType = a.cVouType
GO

-- The monthly summary with its names, without the rows of direct business and of periods.
create view IA_V_Summary as
select a.AutoID, a.iYear, a.iMonth,
       a.cWhCode, w.cWhName, w.cWhValueStyle, a.cDepCode, d.cDepName, a.cDepCode as cAccDep,
       i.cInvCCode, ic.cInvCName, a.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd, i.iid, i.cValueType,
       isnull(i.bCheckBatch, 0) as bCheckBatch,
       a.cBatchIA, a.cFree1, a.cFree2, a.cFree3, a.cFree4, a.cFree5, a.cFree6, a.cFree7, a.cFree8,
       a.cFree9, a.cFree10,
       a.iINum, a.iIMoney, a.iONum, a.iOMoney, a.iNum, a.iMoney
  from IA_Summary a
       left join Inventory i on i.cInvCode = a.cInvCode
       left join InventoryClass ic on ic.cInvCCode = i.cInvCCode
       left join Warehouse w on w.cWhCode = a.cWhCode
       left join Department d on d.cDepCode = a.cDepCode
 where isnull(a.iDirect, 0) = 0 and isnull(a.iPeriod, 0) = 0
