-- Unposted document lines with their names, as the journal shows them beside the ledger. A line is here while
-- its cAccounter is empty: posting fills it and writes the ledger row, so that no line is in both.

-- What the views below have in common: all lines, with the kind of document and the columns that only some
-- views show.
create view Demo_LineIA870wt as
select l.LineID as ID, l.DocID as iPZID, h.cVouType, h.cVouCode, h.dVouDate, h.cBusType, h.cBusCode,
       l.bRdFlag,
       l.cAccounter, l.dKeepDate, l.cPZID, cast(NULL as nvarchar(255)) as cPZdigest,
       h.cWhCode, w.cWhName, h.cDepCode, d.cDepName, h.cAccDep, h.cRdCode, r.cRdName,
       h.cCusCode, c.cCusName, c.cCusAbbName, c.cCCCode, h.cVenCode, v.cVenName, v.cVCCode,
       h.cHandler, h.strContractCode, h.cMemo,
       l.cProOrderCode, l.iProOrderIDs, l.cWorkProCodeDis, l.cWorkCenterName, l.cProCode,
       l.cSaleOrderCode, l.iSaleOrderIDs, l.exoCode, l.iExRowNo, l.cEntrustOrderCode, l.cPurOrderCode,
       l.cImOrderCode,
       l.cItem_class, l.cItemCName, l.cItemCode, l.cName, l.cDemandCode, l.cDemandMemo,
       i.cInvCCode, i.cInvCode, i.cInvName, i.cInvAddCode, i.cInvStd, i.iid, i.cComUnitCode,
       i.cSTComUnitCode,
       i.cInvDefine1, i.cInvDefine2, i.cInvDefine3, i.cInvDefine4, i.cInvDefine5, i.cInvDefine6,
       i.cInvDefine7, i.cInvDefine8, i.cInvDefine9, i.cInvDefine10, i.cInvDefine11, i.cInvDefine12,
       i.cInvDefine13, i.cInvDefine14, i.cInvDefine15, i.cInvDefine16,
       l.cBatchIA, l.cFree1, l.cFree2, l.cFree3, l.cFree4, l.cFree5, l.cFree6, l.cFree7, l.cFree8,
       l.cFree9, l.cFree10,
       l.iQuantity, l.iUnitCost, l.iPrice, l.iMaterialFee, l.iProcessFee,
       h.cDefine1, h.cDefine2, h.cDefine3, h.cDefine4, h.cDefine5, h.cDefine6, h.cDefine7, h.cDefine8,
       h.cDefine9, h.cDefine10, h.cDefine11, h.cDefine12, h.cDefine13, h.cDefine14, h.cDefine15,
       h.cDefine16,
       l.cDefine22, l.cDefine23, l.cDefine24, l.cDefine25, l.cDefine26, l.cDefine27, l.cDefine28,
       l.cDefine29, l.cDefine30, l.cDefine31, l.cDefine32, l.cDefine33, l.cDefine34, l.cDefine35,
       l.cDefine36, l.cDefine37,
       h.Kind, l.iDLsID, l.iTB, h.cSTCode, l.iConsignmentAutoID
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
       inner join Inventory i on i.cInvCode = l.cInvCode
       left join Warehouse w on w.cWhCode = h.cWhCode
       left join Department d on d.cDepCode = h.cDepCode
       left join Rd_Style r on r.cRdCode = h.cRdCode
       left join Customer c on c.cCusCode = h.cCusCode
       left join Vendor v on v.cVenCode = h.cVenCode
 where isnull(l.cAccounter, N'') = N''
GO

-- Stock documents of all types.
create view rpt_rdrecordsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870wt
 where Kind = N'RD'
GO

-- Stock documents of one type: purchase receipts, other receipts, other issues, finished goods, material
-- issues, sales issues.
create view rpt_rdrecordsIA870wt01 as
select * from rpt_rdrecordsIA870wt where cVouType = N'01'
GO

create view rpt_rdrecordsIA870wt08 as
select * from rpt_rdrecordsIA870wt where cVouType = N'08'
GO

create view rpt_rdrecordsIA870wt09 as
select * from rpt_rdrecordsIA870wt where cVouType = N'09'
GO

create view rpt_rdrecordsIA870wt10 as
select * from rpt_rdrecordsIA870wt where cVouType = N'10'
GO

create view rpt_rdrecordsIA870wt11 as
select * from rpt_rdrecordsIA870wt where cVouType = N'11'
GO

create view rpt_rdrecordsIA870wt32 as
select * from rpt_rdrecordsIA870wt where cVouType = N'32'
GO

-- Dispatch notes.
create view dispatchlistsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37,
       ID as iDLsID
  from Demo_LineIA870wt
 where Kind = N'DISP'
GO

-- Sale invoices. cDLCode is the number of the dispatch line, whatever its name says. Direct sales (cBusType
-- 直运销售) have no warehouse.
create view SaleBillVouchsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37,
       iDLsID as cDLCode, cSTCode, iTB
  from Demo_LineIA870wt
 where Kind = N'SALE'
GO

-- Export invoices, with the consignment line. Direct sales have no warehouse.
create view v_ex_invoicedetailIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37,
       iConsignmentAutoID
  from Demo_LineIA870wt
 where Kind = N'EXINV'
GO

-- Purchase invoices. Direct purchases (cBusType 直运采购) have no warehouse.
create view PurBillVouchsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870wt
 where Kind = N'PUR'
GO

-- Adjustments of amounts.
create view JustinVouchsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870wt
 where Kind = N'JUST'
GO

-- Vendor-managed confirmations.
create view rpt_PU_v_VMIUsedVouchsIA870wt as
select ID, iPZID, cVouType, cVouCode, dVouDate, cBusType, cBusCode, bRdFlag,
       cAccounter, dKeepDate, cPZID, cPZdigest,
       cWhCode, cWhName, cDepCode, cDepName, cAccDep, cRdCode, cRdName,
       cCusCode, cCusName, cCusAbbName, cCCCode, cVenCode, cVenName, cVCCode,
       cHandler, strContractCode, cMemo,
       cProOrderCode, iProOrderIDs, cWorkProCodeDis, cWorkCenterName, cProCode,
       cSaleOrderCode, iSaleOrderIDs, exoCode, iExRowNo, cEntrustOrderCode, cPurOrderCode, cImOrderCode,
       cItem_class, cItemCName, cItemCode, cName, cDemandCode, cDemandMemo,
       cInvCCode, cInvCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode, cSTComUnitCode,
       cInvDefine1, cInvDefine2, cInvDefine3, cInvDefine4, cInvDefine5, cInvDefine6, cInvDefine7,
       cInvDefine8, cInvDefine9, cInvDefine10, cInvDefine11, cInvDefine12, cInvDefine13, cInvDefine14,
       cInvDefine15, cInvDefine16,
       cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870wt
 where Kind = N'VMI'
