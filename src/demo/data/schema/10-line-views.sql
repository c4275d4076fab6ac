-- Document lines as the summary of receipts, issues and balances reads them: posted and unposted, its
-- statements ask for cAccounter. None has a column iid, which is the item's.

-- What the views below have in common; Kind is that of the document.
create view Demo_LineIA870 as
select l.LineID as ID, h.cVouType, h.cVouCode, h.dVouDate, h.cBusType, l.bRdFlag, l.cAccounter,
       h.cWhCode, h.cDepCode, h.cAccDep, h.cRdCode, h.cCusCode, h.cVenCode,
       l.cItem_class, l.cItemCode,
       l.cInvCode, l.cBatchIA, l.cFree1, l.cFree2, l.cFree3, l.cFree4, l.cFree5, l.cFree6, l.cFree7,
       l.cFree8, l.cFree9, l.cFree10,
       l.iQuantity, l.iPrice, l.iDif,
       h.cDefine1, h.cDefine2, h.cDefine3, h.cDefine4, h.cDefine5, h.cDefine6, h.cDefine7, h.cDefine8,
       h.cDefine9, h.cDefine10, h.cDefine11, h.cDefine12, h.cDefine13, h.cDefine14, h.cDefine15,
       h.cDefine16,
       l.cDefine22, l.cDefine23, l.cDefine24, l.cDefine25, l.cDefine26, l.cDefine27, l.cDefine28,
       l.cDefine29, l.cDefine30, l.cDefine31, l.cDefine32, l.cDefine33, l.cDefine34, l.cDefine35,
       l.cDefine36, l.cDefine37, h.Kind
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
GO

-- Stock documents of all types.
create view rpt_rdrecordsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'RD'
GO

-- Adjustments of amounts.
create view justinvouchsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'JUST'
GO

-- Sale invoices.
create view salebillvouchsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'SALE'
GO

-- Dispatch notes. The summary counts this view beside the issue notes and invoices, and takes the notes of
-- instalment and entrusted sales out where another document posts the sale, but not those of ordinary sales. So
-- these are here only in an account that posts them by the dispatch note, else they would count twice.
create view DispatchListsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'DISP'
   and (isnull(cBusType, N'') <> N'普通销售'
        or exists(select cName from AccInformation
                   where cSysID = N'IA' and cName = N'bSaleType' and cValue = N'发出商品'))
GO

-- Vendor-managed confirmations.
create view rpt_PU_v_VMIUsedVouchsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'VMI'
GO

-- Export invoices.
create view v_ex_invoicedetailIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'EXINV'
GO

-- Purchase invoices.
create view purbillvouchsIA870 as
select ID, cVouType, cVouCode, dVouDate, cBusType, bRdFlag, cAccounter,
       cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode,
       cItem_class, cItemCode,
       cInvCode, cBatchIA, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10,
       iQuantity, iPrice, iDif,
       cDefine1, cDefine2, cDefine3, cDefine4, cDefine5, cDefine6, cDefine7, cDefine8, cDefine9,
       cDefine10, cDefine11, cDefine12, cDefine13, cDefine14, cDefine15, cDefine16,
       cDefine22, cDefine23, cDefine24, cDefine25, cDefine26, cDefine27, cDefine28, cDefine29, cDefine30,
       cDefine31, cDefine32, cDefine33, cDefine34, cDefine35, cDefine36, cDefine37
  from Demo_LineIA870
 where Kind = N'PUR'
