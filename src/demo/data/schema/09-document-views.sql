-- Stock documents of all types: heads and lines.
create view rdrecord as
select DocID as ID, cSource
  from Demo_Document
 where Kind = N'RD'
GO

create view rdrecords as
select l.LineID as AutoID, l.DocID as ID, l.iDLsID, l.cAccounter as cBAccounter
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'RD'
GO

-- Receipts from purchasing and outsourcing.
create view rdrecord01 as
select DocID as ID, cBusType
  from Demo_Document
 where Kind = N'RD' and cVouType = N'01'
GO

create view rdrecords01 as
select l.LineID as AutoID, l.DocID as ID, l.iQuantity, l.iPrice as iAPrice, l.iMaterialFee,
       l.iUnitCost as FaCost
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'RD' and h.cVouType = N'01'
GO

-- Sales issues. A domestic line carries its dispatch line in iDLsID, a line of an export document (cSource
-- 出口销货单 or 出口退货单) its consignment line.
create view rdrecord32 as
select DocID as ID, cVouCode as cCode, cSource
  from Demo_Document
 where Kind = N'RD' and cVouType = N'32'
GO

create view rdrecords32 as
select l.LineID as AutoID, l.DocID as ID, l.iDLsID, l.iSBsID, l.cAccounter as cBAccounter
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'RD' and h.cVouType = N'32'
GO

-- Dispatch notes.
create view DispatchList as
select DocID as DLID, cVouCode as cDLCode
  from Demo_Document
 where Kind = N'DISP'
GO

create view DispatchLists as
select l.DocID as DLID, l.LineID as iDLsID
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'DISP'
GO

-- Sale invoices.
create view salebillvouch as
select DocID as sBVID
  from Demo_Document
 where Kind = N'SALE'
GO

create view salebillvouchs as
select l.LineID as AutoID, l.DocID as sBVID, l.iDLsID, l.cAccounter as cBAccounter
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'SALE'
GO

-- Lines of export consignments.
create view ex_consignmentdetail as
select l.LineID as AutoID, l.cGuid as GuidS
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'EXCON'
GO

-- Lines of export invoices; guid_source names the consignment line.
create view ex_invoicedetail as
select l.LineID as AutoID, l.cGuidSource as guid_source, l.cAccounter as cBAccounter
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'EXINV'
GO

-- Lines of vendor-managed confirmations.
create view PU_v_VMIUsedVouchs as
select l.LineID as AutoID, l.iQuantity as iConfirmQuantity, l.iPrice as iAPrice, l.iUnitCost as iaCost
  from Demo_DocumentLine l
       inner join Demo_Document h on h.DocID = l.DocID
 where h.Kind = N'VMI'
