-- One row per parameter of a module. Dates stand as YYYY-MM-DD.
create table AccInformation (
    cSysID   nvarchar(10)  not null, -- module code
    cName    nvarchar(60)  not null, -- parameter
    cValue   nvarchar(255) null,     -- value
    cDefault nvarchar(255) null,     -- default value
    primary key (cSysID, cName)
)

-- Names that the customer gave to the user fields of the inventory.
create table UserDef (
    cClass    nvarchar(20) not null, -- 存货
    cItem     nvarchar(30) not null, -- 自定义项1 to 自定义项16
    cItemName nvarchar(60) null,     -- the customer's name; NULL or empty is no name
    primary key (cClass, cItem)
)

-- Shown texts by type, code and language.
create table AA_Enum (
    EnumType nvarchar(60)  not null, -- type
    EnumCode nvarchar(60)  not null, -- code, mostly the Chinese text itself
    LocaleID nvarchar(10)  not null, -- zh-CN, en-US
    EnumName nvarchar(200) not null, -- text in that language
    primary key (EnumType, EnumCode, LocaleID)
)

-- Voucher types.
create table VouchType (
    cVouchType nvarchar(4)  not null, -- voucher type code
    cVouchName nvarchar(60) not null, -- code of the text in AA_Enum, types IA.BillforVch and IA.VchType
    primary key (cVouchType)
)
