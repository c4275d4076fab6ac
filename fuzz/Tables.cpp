#include "Tables.h"

namespace kavelin::fuzz {

const std::string_view kTables = R"sql(
create table Stock (AutoID int identity(1,1), cInvCode nvarchar(20) not null, cWhCode nvarchar(10),
    cFixed varchar(4), cMemo nvarchar(60), bRdFlag bit not null, iMonth tinyint, iYear smallint, iPzID int,
    iPrice money, iCost decimal(38, 6), iRate decimal(38, 2), iSmall decimal(9, 4), iQuantity float,
    dKeepDate datetime, bCheck bit not null default (0))
create table Item (cInvCode nvarchar(20) not null primary key, cInvName nvarchar(60), bInCost bit, iid int)
create table tempdb..W (ino int identity(1,1), cInvCode nvarchar(20), iNum decimal(38, 8), nMoney money,
    dDate datetime)
create table tempdb..Item (cInvCode nvarchar(20))
create table vossystem..UA_Period (iYear smallint, iID tinyint, dBegin datetime, dEnd datetime)
create table AccInformation (cSysID nvarchar(2), cName nvarchar(40), cValue nvarchar(60))
insert into Stock (cInvCode, cWhCode, cFixed, cMemo, bRdFlag, iMonth, iYear, iPzID, iPrice, iCost, iRate,
    iSmall, iQuantity, dKeepDate) values
    ('A1', '01', 'ab', N'直运', 1, 1, 2008, 1, 1.5, 2.25, 0.1, 1.0001, 3.5, '2008-01-31'),
    ('A2', '02', 'AB ', 'x''y', 0, 12, 2008, null, -100, 0, 99.99, -3, 0, '2008-07-31 12:30'),
    ('b1', null, null, '', 1, null, null, 7, null, null, null, null, null, null)
insert into Item values ('A1', N'螺丝', 1, 1), ('A2', 'Nut', 0, null), ('B2', null, null, 3)
insert into tempdb..W (cInvCode, iNum, nMoney, dDate) values ('A1', 10, 5, '2008-03-01'), ('a1 ', null, 0, null)
insert into tempdb..Item values ('A1')
insert into vossystem..UA_Period values (2008, 1, '2008-01-01', '2008-01-31'), (2008, 2, '2008-02-01', '2008-02-29')
insert into AccInformation values ('IA', 'dIAStartDate', '2008-01-01'), ('IA', 'bWarehouseCheck', 'x')
)sql";

}  // namespace kavelin::fuzz
