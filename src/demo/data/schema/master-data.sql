-- Items of the inventory.
create table Inventory (
    cInvCode       nvarchar(60)  not null,             -- inventory code
    cInvCCode      nvarchar(24)  null,                 -- inventory class
    cInvName       nvarchar(255) null,                 -- name
    cInvAddCode    nvarchar(255) null,                 -- second code
    cInvStd        nvarchar(255) null,                 -- model
    cInvDefine1    nvarchar(120) null,
    cInvDefine2    nvarchar(120) null,
    cInvDefine3    nvarchar(120) null,
    cInvDefine4    nvarchar(120) null,
    cInvDefine5    nvarchar(120) null,
    cInvDefine6    nvarchar(120) null,
    cInvDefine7    nvarchar(120) null,
    cInvDefine8    nvarchar(120) null,
    cInvDefine9    nvarchar(120) null,
    cInvDefine10   nvarchar(120) null,
    cInvDefine11   nvarchar(120) null,
    cInvDefine12   nvarchar(120) null,
    cInvDefine13   nvarchar(120) null,
    cInvDefine14   nvarchar(120) null,
    cInvDefine15   nvarchar(120) null,
    cInvDefine16   nvarchar(120) null,
    iInvWeight     float         null,                 -- unit weight
    cComUnitCode   nvarchar(20)  null,                 -- main unit
    cSTComUnitCode nvarchar(20)  null,                 -- stock unit
    cGroupCode     nvarchar(20)  null,                 -- unit group
    cValueType     nvarchar(20)  null,                 -- 计划价法, 售价法, 全月平均法, 移动平均法, 先进先出法 or 后进先出法
    bCheckFree1    bit           not null default (0), -- free item is kept
    bCheckFree2    bit           not null default (0),
    bCheckFree3    bit           not null default (0),
    bCheckFree4    bit           not null default (0),
    bCheckFree5    bit           not null default (0),
    bCheckFree6    bit           not null default (0),
    bCheckFree7    bit           not null default (0),
    bCheckFree8    bit           not null default (0),
    bCheckFree9    bit           not null default (0),
    bCheckFree10   bit           not null default (0),
    bCheckBatch    bit           not null default (0), -- batches are kept
    iid            nvarchar(60)  null,                 -- identifier in the permission lists
    bPurchase      bit           not null default (0), -- is bought
    bSale          bit           not null default (0), -- is sold
    bComsume       bit           not null default (0), -- is issued to production
    bService       bit           not null default (0), -- is a service
    bInvType       bit           not null default (0), -- 0 for a stock item
    iInvSPrice     float         null,                 -- reference cost
    primary key (cInvCode)
)

-- Classes of items; a class holds those whose code begins with its own.
create table InventoryClass (
    cInvCCode nvarchar(24)  not null, -- class
    cInvCName nvarchar(120) null,     -- name
    primary key (cInvCCode)
)

-- Warehouses.
create table Warehouse (
    cWhCode       nvarchar(10) not null, -- warehouse
    cWhName       nvarchar(60) null,     -- name
    cDepCode      nvarchar(20) null,     -- owning department
    bInCost       bit          null,     -- takes part in costing
    cWhValueStyle nvarchar(12) null,     -- valuation method, as in Inventory.cValueType
    primary key (cWhCode)
)

-- Departments.
create table Department (
    cDepCode nvarchar(20)  not null, -- department
    cDepName nvarchar(120) null,     -- name
    primary key (cDepCode)
)

-- Receipt-issue classes.
create table Rd_Style (
    cRdCode nvarchar(12) not null, -- receipt-issue class; level lengths as in parameter cDispLevel
    cRdName nvarchar(12) null,     -- name
    primary key (cRdCode)
)

-- Vendors.
create table Vendor (
    cVenCode nvarchar(20) not null, -- vendor
    cVenName nvarchar(98) not null, -- name, unique: unposted documents are joined by it
    cVCCode  nvarchar(24) null,     -- vendor class
    primary key (cVenCode)
)

-- Classes of vendors.
create table VendorClass (
    cVCCode nvarchar(24)  not null, -- vendor class
    cVCName nvarchar(120) null,     -- name
    primary key (cVCCode)
)

-- Customers.
create table Customer (
    cCusCode    nvarchar(20) not null, -- customer
    cCusName    nvarchar(98) null,     -- name
    cCusAbbName nvarchar(60) null,     -- short name
    cCCCode     nvarchar(24) null,     -- customer class
    primary key (cCusCode)
)

-- Classes of customers.
create table CustomerClass (
    cCCCode nvarchar(24)  not null, -- customer class
    cCCName nvarchar(120) null,     -- name
    primary key (cCCCode)
)

-- Persons.
create table Person (
    cPersonCode nvarchar(20) not null, -- person
    cPersonName nvarchar(60) null,     -- name
    primary key (cPersonCode)
)

-- Groups of units of measure.
create table ComputationGroup (
    cGroupCode nvarchar(20) not null, -- unit group
    iGroupType tinyint      not null, -- 1 fixed rate, 2 floating rate
    primary key (cGroupCode)
)

-- Units of measure.
create table ComputationUnit (
    cComUnitCode nvarchar(20) not null,             -- unit
    cComUnitName nvarchar(20) null,                 -- name
    cGroupCode   nvarchar(20) null,                 -- unit group
    iNumber      int          null,                 -- number within the group
    bMainUnit    bit          not null default (0), -- main unit of its group
    iChangRate   float        null,                 -- quantity in main units of one such unit
    primary key (cComUnitCode)
)
