// A catalogue made up for the binder's tests, and statements bound against it as text.
#pragma once

#include "embedded/Catalog.h"

#include <string>
#include <string_view>

namespace kavelin::embedded {

// Tables, views and their columns:
//   Stock        AutoID int identity, cInvCode nvarchar(60) not null (trimmed, caseless),
//                cWhCode nvarchar(10), iMonth tinyint, iYear smallint, iPzID int, bRdFlag bit not null,
//                iQuantity float, iPrice money, iCost decimal(38,6), iRate decimal(38,2), dKeepDate datetime,
//                dVouDate datetime not null, cMemo nvarchar(200)
//   Item         cInvCode nvarchar(60) not null, cInvName nvarchar(255), bInCost bit, iid int not null
//   VStock       a view: cInvCode, iQuantity
//   tempdb..W    ino int identity, cInvCode nvarchar(60), cCode varchar(4), iNum decimal(38,8),
//                nMoney money, dDate datetime, bBatch bit not null default false, bFlag bit not null
//   tempdb..Item cInvCode nvarchar(60)
//   vossystem..UA_Period   iYear smallint, iID tinyint, dBegin datetime, dEnd datetime
//   #t           id int, name nvarchar(20) (trimmed, caseless)
//   sysobjects, tempdb..sysobjects   views: name, id, xtype
const Catalog& TestCatalog();

// The statement bound, as BoundText writes it; "<number>: <message>" if it is refused. Of several
// statements the last, for none of them is run.
std::string Bound(std::string_view sql);

// As Bound, with the text in the statement that the error points at: "207 at [cX]: ...". What is bound
// without an error gives "".
std::string ErrorOf(std::string_view sql);

// Type, nullability and tree of an expression over Stock: "money = (s1.iPrice + 1:money):money".
std::string BoundValue(std::string_view expression);

// The type alone: "money".
std::string TypeOfValue(std::string_view expression);

// A condition over Stock.
std::string BoundWhere(std::string_view condition);

}  // namespace kavelin::embedded
