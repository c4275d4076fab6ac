-- Planned prices by item and free items.
create table Demo_PlannedPrice (
    cInvCode  nvarchar(60) not null,
    -- the free items that the item keeps; an empty text for the others
    cFree1 nvarchar(20) not null default (N''), cFree2 nvarchar(20) not null default (N''),
    cFree3 nvarchar(20) not null default (N''), cFree4 nvarchar(20) not null default (N''),
    cFree5 nvarchar(20) not null default (N''), cFree6 nvarchar(20) not null default (N''),
    cFree7 nvarchar(20) not null default (N''), cFree8 nvarchar(20) not null default (N''),
    cFree9 nvarchar(20) not null default (N''), cFree10 nvarchar(20) not null default (N''),
    -- planned price, or retail price
    fInvRCost float        not null,
    primary key (cInvCode, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10)
)

-- Standard cost of a line of the inventory ledger; none in an account that is not on standard cost.
create table Demo_SubsidiaryStd (
    -- IA_Subsidiary.AutoID
    AutoID         int   not null,
    -- material, labour, manufacturing fixed and variable, outsourced processing
    fInvStdPrice   money null,
    fLaborStdPrice money null,
    fManuFixPrice  money null,
    fManuVarPrice  money null,
    fOmPrice       money null,
    primary key (AutoID)
)
