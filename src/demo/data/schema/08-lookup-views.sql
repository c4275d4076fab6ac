-- Shown texts in the language of the database.
create view v_aa_enum as
select EnumType, EnumCode, EnumName
  from AA_Enum
 where LocaleID = dbo.UDF_GetLocaleID()
GO

-- Project classes that goods in transit name, each once. It is joined with project codes, hence the width.
create view NE_FitemssEx_View as
select distinct cast(cItem_class as nvarchar(60)) as cItem_class
  from IA_EnSubsidiary
 where cItem_class is not null
GO

-- Planned prices by item and the free items that it keeps.
create view InvCheckFreeIA870 as
select cInvCode, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10, fInvRCost
  from Demo_PlannedPrice
