-- Items of the inventory.
create table Inventory (
    -- code, class, name, second code, model
    cInvCode       nvarchar(60)  not null,
    cInvCCode      nvarchar(24)  null,
    cInvName       nvarchar(255) null,
    cInvAddCode    nvarchar(255) null,
    cInvStd        nvarchar(255) null,
    -- identifier in the permission lists
    iid            nvarchar(60)  null,
    -- user fields
    cInvDefine1 nvarchar(120) null, cInvDefine2 nvarchar(120) null, cInvDefine3 nvarchar(120) null,
    cInvDefine4 nvarchar(120) null, cInvDefine5 nvarchar(120) null, cInvDefine6 nvarchar(120) null,
    cInvDefine7 nvarchar(120) null, cInvDefine8 nvarchar(120) null, cInvDefine9 nvarchar(120) null,
    cInvDefine10 nvarchar(120) null, cInvDefine11 nvarchar(120) null, cInvDefine12 nvarchar(120) null,
    cInvDefine13 nvarchar(120) null, cInvDefine14 nvarchar(120) null, cInvDefine15 nvarchar(120) null,
    cInvDefine16 nvarchar(120) null,
    -- unit weight, main unit, stock unit, unit group
    iInvWeight     float         null,
    cComUnitCode   nvarchar(20)  null,
    cSTComUnitCode nvarchar(20)  null,
    cGroupCode     nvarchar(20)  null,
    -- 计划价法, 售价法, 全月平均法, 移动平均法, 先进先出法 or 后进先出法
    cValueType     nvarchar(20)  null,
    -- 1 where the item keeps that free item
    bCheckFree1    bit           not null default (0),
    bCheckFree2    bit           not null default (0),
    bCheckFree3    bit           not null default (0),
    bCheckFree4    bit           not null default (0),
    bCheckFree5    bit           not null default (0),
    bCheckFree6    bit           not null default (0),
    bCheckFree7    bit           not null default (0),
    bCheckFree8    bit           not null default (0),
    bCheckFree9    bit           not null default (0),
    bCheckFree10   bit           not null default (0),
    -- 1 where batches are kept
    bCheckBatch    bit           not null default (0),
    -- 1 where it is bought, sold, issued to production, is a service
    bPurchase      bit           not null default (0),
    bSale          bit           not null default (0),
    bComsume       bit           not null default (0),
    bService       bit           not null default (0),
    -- 0 for a stock item
    bInvType       bit           not null default (0),
    -- reference cost
    iInvSPrice     float         null,
    primary key (cInvCode)
)

create index IX_Inventory_Class on Inventory (cInvCCode)

-- Classes of items; a class holds those whose code begins with its own.
create table InventoryClass (
    cInvCCode nvarchar(24)  not null,
    cInvCName nvarchar(120) null,
    primary key (cInvCCode)
)

-- Warehouses.
create table Warehouse (
    -- code, name, owning department
    cWhCode       nvarchar(10) not null,
    cWhName       nvarchar(60) null,
    cDepCode      nvarchar(20) null,
    -- 1 where the warehouse takes part in costing
    bInCost       bit          null,
    -- valuation method, as in Inventory.cValueType
    cWhValueStyle nvarchar(12) null,
    primary key (cWhCode)
)

-- Departments.
create table Department (
    cDepCode nvarchar(20)  not null,
    cDepName nvarchar(120) null,
    primary key (cDepCode)
)

-- Receipt-issue classes; the levels of a code have the lengths that parameter cDispLevel tells.
create table Rd_Style (
    cRdCode nvarchar(12) not null,
    cRdName nvarchar(12) null,
    primary key (cRdCode)
)

-- Vendors.
create table Vendor (
    cVenCode nvarchar(20) not null,
    -- unique: unposted documents are joined by it
    cVenName nvarchar(98) not null,
    cVCCode  nvarchar(24) null,
    primary key (cVenCode)
)

create index IX_Vendor_Name on Vendor (cVenName)

-- Classes of vendors.
create table VendorClass (
    cVCCode nvarchar(24)  not null,
    cVCName nvarchar(120) null,
    primary key (cVCCode)
)

-- Customers.
create table Customer (
    -- code, name, short name, class
    cCusCode    nvarchar(20) not null,
    cCusName    nvarchar(98) null,
    cCusAbbName nvarchar(60) null,
    cCCCode     nvarchar(24) null,
    primary key (cCusCode)
)

-- Classes of customers.
create table CustomerClass (
    cCCCode nvarchar(24)  not null,
    cCCName nvarchar(120) null,
    primary key (cCCCode)
)

-- Persons.
create table Person (
    cPersonCode nvarchar(20) not null,
    cPersonName nvarchar(60) null,
    primary key (cPersonCode)
)

-- Groups of units of measure.
create table ComputationGroup (
    cGroupCode nvarchar(20) not null,
    -- 1 fixed rate, 2 floating rate
    iGroupType tinyint      not null,
    primary key (cGroupCode)
)

-- Units of measure; a number stands once in a group.
create table ComputationUnit (
    -- unit, its group and its number there
    cComUnitCode nvarchar(20) not null,
    cComUnitName nvarchar(20) null,
    cGroupCode   nvarchar(20) null,
    iNumber      int          null,
    -- 1 for the main unit of the group
    bMainUnit    bit          not null default (0),
    -- quantity in main units of one such unit
    iChangRate   float        null,
    primary key (cComUnitCode)
)

create index IX_ComputationUnit_Group on ComputationUnit (cGroupCode, iNumber)

-- Values that users choose from, for free items and user fields with a list.
create table Demo_FieldValue (
    -- the field: 20, 21, 28 to 35 are free items 1 to 10; 17 to 19, 52 to 58 user fields 1 to 10 of items;
    -- 1 to 3, 8 to 10, 36 to 39 user fields 1 to 3, 8 to 14 of documents; 22 to 25, 42 to 47 user fields 22 to 25,
    -- 28 to 33 of their lines
    cID    int           not null,
    cValue nvarchar(120) not null,
    primary key (cID, cValue)
)
