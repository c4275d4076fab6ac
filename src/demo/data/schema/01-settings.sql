-- One row per parameter of a module.
create table AccInformation (
    -- module code and parameter
    cSysID   nvarchar(10)  not null,
    cName    nvarchar(60)  not null,
    -- value and the value it has where nobody set one; dates stand as YYYY-MM-DD
    cValue   nvarchar(255) null,
    cDefault nvarchar(255) null,
    primary key (cSysID, cName)
)

create index IX_AccInformation_Name on AccInformation (cName)

-- Names that the customer gave to the user fields of the inventory.
create table UserDef (
    -- 存货
    cClass    nvarchar(20) not null,
    -- 自定义项1 to 自定义项16
    cItem     nvarchar(30) not null,
    -- the customer's name; NULL or empty is no name
    cItemName nvarchar(60) null,
    primary key (cClass, cItem)
)

-- Shown texts by type, code and language.
create table AA_Enum (
    EnumType nvarchar(60)  not null,
    -- mostly the Chinese text itself
    EnumCode nvarchar(60)  not null,
    -- zh-CN or en-US
    LocaleID nvarchar(10)  not null,
    -- the text in that language
    EnumName nvarchar(200) not null,
    primary key (EnumType, EnumCode, LocaleID)
)

create index IX_AA_Enum_Code on AA_Enum (EnumCode, EnumType, LocaleID)

-- Voucher types.
create table VouchType (
    cVouchType nvarchar(4)  not null,
    -- code of the text in AA_Enum, types IA.BillforVch and IA.VchType
    cVouchName nvarchar(60) not null,
    primary key (cVouchType)
)
