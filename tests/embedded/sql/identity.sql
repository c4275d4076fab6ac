-- Statements in the one spelling in which the engine writes a tree back: each line, parsed and written, is
-- itself again. The marks are those of the T-SQL surface. One batch a line.

-- L: text of statements
select a from T select b from U
alter table T alter column cDefine4 datetime alter table T alter column cDefine5 datetime
select iSNull(a, b) from InVentory where InVentory.cInvcode = 'A01'
select 'it''s', N'it''s', '', N'', ' x ', '''', N'直运', '2008-07-31 '
select 07 - 1, 0.5, -100, -1 * IaInquantity, .5, 5., 1e3, 1.5E-3, +2 from T
select 资金占用额, 结存_件数, #iInprice, _a$b@c, Ünïcødé from T
select IA_Subsidiary.[iAInQuantity], [仓库编码], [a]]b], [ x ], [select] from [FCSFCItemPC-1 7]
select Type, Money, Num, flag, name, id, area, detail, ex, sales, com, s, t, date, year, month, max, type from T
select cast, count, sum, apply, offset, go, text, value, int, float from T

-- N: names
select * from tempdb..x
select * from Tempdb..[x]
select * from TEMPDB.dbo.x
select * from dbo.x
select iYear from vossystem..ua_period where vossystem..ua_period.iYear > 2007
select vossystem.dbo.ua_period.iYear, dbo.ua_period.iId from vossystem.dbo.ua_period
select * from #IA_v_Subsidiary
select t.c, t.[c], [t].c, [t].[c], c from t
select NoSub.ID as AutoID, enumname as cVouTypeName, 0 flag from IA_SubSidiary NoSub
select area.autoid from (select distinct autoid from ia_accountarea) area
select case when bFree = 1 then cFree1 else N'' end as N'cFree1', 0 as N'期初_件数入' from T
select cast(0 as float) as N'it''s' from T
select cCode as [单据编码] from T order by [单据编码]
select sum(资金占用额) from T
select 2 flag, cast(imonth as nvarchar(4)) + N' x ' from T
select (资金占用额) from T
select rdrecord.id from rdrecord32 rdrecord
select ia_subsidiary.AutoID from IA_tempAcc2 ia_subsidiary left join IA_Subsidiary b on b.AutoID = ia_subsidiary.AutoID
select WH.cWhCode, Warehouse.cWhName from Warehouse WH inner join Warehouse on Warehouse.cWhCode = WH.cWhCode
select enumname from aa_enum where localeid = DBO.UDF_GetLocaleID()

-- S: kinds of statements
select dBegin, dEnd from VosSystem..UA_Period where iYear = 2008
select dvoudate, cVouCode into T from V_IA_CostacCount where cVouType = N'32'
select ia.iincost into T from tempdb..A ia inner join Inventory inv on inv.cInvCode = ia.cInvCode
select top 0 a.cInvCode, b.iMoney into T from ia_subsidiary a left join b on b.id = a.id where 1 = 2
select * into Tempdb..iA_Anlysis from T where 1 = 2
select * into T from ia_ProPortionRpt_temp where 1 = 1 and cNo <= 5
select * into #IA_v_Subsidiary from IA_v_Subsidiary
select identity(int, 1, 1) as cNo, * into X from Y order by 所占比重 desc
select top 0 identity(int, 1, 1) as ino, T.* into U from T
select identity(int, -5, -1) as ino into U from T
insert into T select distinct NoSub.dVouDate, NoSub.cVouCode from IA_Subsidiary NoSub
insert into T (cinvcode, [iMoney]) select cinvcode, sum(iMoney) from U group by cinvcode
insert into T select a, b from U order by isnull(bakID, AutoID)
insert into T (iMonth, q) select iMonth, sum(q) from T group by iMonth order by iMonth
insert into tempdb..T (a) select a from tempdb..T where flag = 1 union select a from U
insert into T (a, b) values (1, N'x'), (-2, null), (3 + 4, convert(datetime, '2008-01-01'))
insert into T values ('a', 0.5)
create table T (单据日期 datetime null, cCode nvarchar(30), bRdFlag bit not null, bCheckBatch bit not null default (0))
create table tempdb..T (iPrice decimal(38, 6), iNum float, m money, t tinyint, v varchar(max))
create table T (AutoID int identity(1, 1) not null primary key, cName nvarchar(60) null default N'', n int default -1)
create table T (a int not null, b nvarchar(20) not null, [c d] money null default null, primary key (a, [b]))
alter table T alter column cDefine7 float
alter table T alter column cDefine7 nvarchar(30) not null
alter table T alter column cDefine7 nvarchar(30) null
alter table T add iInCost decimal(38, 6) null, iOutCost decimal(38, 6) null
alter table T add bNew bit not null default (0)
update T set Ratio = 0, DiffRatio = 0 where Ratio is null
update T set 凭证号 = gl_AccVouch.ino_id from T Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID = Wt.cPzID
update sfc set sfc.crdname = sty.crdname from T sfc inner join rd_style sty on sfc.crdcode = sty.crdcode
update t set iInCost = isnull(s.iInCost, 0) from X t left join Y s on s.cInvCode = t.cInvCode and s.iYear = 2008
update T set E_No = (1 + a) from T
update [W] set cRdCode = Rdrecords.cRdCode from [W] left join Rdrecords01 Rdrecords on Rdrecords.AutoID = [W].ID
update X set 所占比重 = 100 - (select sum(所占比重) from X where cinvcode <> (select top 1 cinvcode from X order by 所占比重 desc)) where cinvcode = (select top 1 cinvcode from X order by 所占比重 desc)
update a set a.q = (select sum(b.q) from W b where b.ino <= a.ino) from W a
update tempdb..T set tempdb..T.a = 1, T.[b] = null
delete from T where (IsNull(凭证号, N'') <> N'5' and N'5' <> N'')
delete from T where left(cbustype, 2) = N'分期' and cvoutype not in ('05', '06', '5', '6')
delete T from T ia inner join Rdrecords rd on rd.AutoID = ia.ID and ia.cVouType = N'32' and bacc = 1
delete from T
drop table tempdb..[x]
drop table #QC, #Total, #Summary
drop view V_a, dbo.V_b
create view V_a as select a.cCode, isnull(b.cName, N'') as cName from A a left join B b on b.cCode = a.cCode
create view V_b as select top 1 a from T order by b desc
create view V_c as select a from T union all select a from U
create function dbo.UDF_GetLocaleID() returns nvarchar(10) as begin return N'zh-CN' end
create index I_a on T (a)
create unique index [I b] on dbo.T (a, [b])

-- Q: clauses
select top 1 cinvcode from X order by NumPer desc
select top 0 * from W
select distinct top 5 autoid from X
select a from T inner join U on U.id = T.id left join salebillvouchs on 1 = 2 where T.a > U.b
select a from T left join U on (T.a > U.a or (T.a = U.a and T.b > U.b))
select a from T left join aa_enum on enumtype = N'ia.VchType' and VouchType.cVouchName = aa_enum.enumcode
select a.ino, sum(b.q) from W a, W b where b.ino <= a.ino group by a.ino
select a from T, U inner join V on V.id = U.id, (select 1 as one) W
select a from T where (select top 1 cValue from accinformation where cName = 'dIAStartDate') between dBegin and dEnd
select case cast((select sum(资金占用额) from X) as float) when 0 then 0 else sum(资金占用额) end from X group by cInvCode
select a from T where cWhCode in (select cWhCode from Warehouse where bInCost = 1)
select a from T where F in (null, 1) and not F not in (select F from U)
select a from T where F in (null)
select a from T where not exists (select autoid from salebillvouchs where idlsid = nosub.idlsid) and exists (select * from U)
select a from T where imonth between N'1' and '12' and imonth not between 3 and 2 + 4
select a from T where cInvCCode like N'01%' or cbustype not like '直运%' or c like N'[a-c][^x]_%'
select a from T where not IA_Summary.AutoID is null and b is not null
select a from T where 1 = 1 and not (NoSub.cVouType = N'20' and b <> 0) or not not N'' <> N''
select case when brdflag = 1 then iAInPrice when brdflag = 0 then 0 - iAOutPrice end from T
select case x when 0 then 0 when 1 then null else case when y > 1 and z < 2 then 'a' else N'b' end end as c from T
select case Ia_Ensubsidiary.bRdFlag when 0 then (case when a is null then 0 else a end) else 1 end from Ia_Ensubsidiary
select a.cInvCode from T group by a.cInvCode, case when b.bCheckFree1 = 1 then a.cFree1 else N'' end
select a from T group by a having cast(sum(x) as decimal(38, 2)) <> 0 or sum(isnull(-1 * x, 0)) <> 0
select 0 flag, N'x', sum(a), max(b), min(c), avg(d) from T where a = 1
select count(*), count(a), count(distinct a) from T
select a from T order by iyear, iid desc, isnull(bakID, AutoID), T.b desc, 2
select cVouchType as [a], n from V union select '01', 'x' union select '02', 'y' order by [a]
select 1 union all select 2 union select 3
select '01', '采购'
select 1 as a where 1 = 1
select T.*, [U].*, tempdb..V.*, * from T, U, tempdb..V
select ipzcode, ipzcode as iDifPZid from T

-- D: existence tests
if exists (select * from sysobjects where name = N'T') drop table T
if exists (select id from tempdb..sysobjects where id = object_id(N'tempdb..x')) drop table tempdb..[x]
if exists (select * from tempdb..sysobjects where name = 'T') drop table T
if exists (select ID from sysobjects where id = object_id('x') and Xtype = 'U') drop table [x]
if exists (select name from Tempdb..sysobjects where name = N'FCSFCItemPC-1 7') drop table Tempdb..[FCSFCItemPC-1 7]
if not exists (select * from sysobjects where name = 'T') create table T (a int)
if exists (select 1) if not exists (select 2) delete from T
if exists (select 1) update T set a = 1 drop table U

-- F, T: functions, types and operators
select isnull(cAccounter, N''), isnull(isnull(a, b), 0) from T
select cast(null as nvarchar(30)), cast(-1 * IaInquantity as Decimal(34, 8)), cast('x' as nvarchar(max)) from T
select convert(decimal(38, 2), sum(资金占用额)), convert(int, 1), convert(nvarchar(4), iyear) from T
select convert(nvarchar(10), IA_EnSubsidiary.dKeepDate, 121) from IA_EnSubsidiary
select left(cBusType, 2), LEFT(cRdCode, 4), Year(AccInformation.cValue), month(dDate), abs(DiffRatio) from T
select object_id(N'tempdb..x'), DBO.UDF_GetLocaleID(), [dbo].[UDF_GetLocaleID]()
select gl_AccVouch.csign + ' ' + cast(gl_AccVouch.ino_id as nvarchar(10)) from gl_AccVouch
select cast(cast('2008-07-31' as datetime) - dkeepdate as int) + 0.5 from T
select sum(iIMoney) / cast(sum(iINum) as float) * 100, 10 / turnRateQu, (Price / BasePrice - 1) * 100 from T
select a - -b, - -a, -(-a), + -a, -a * -b, a * (b + c) / (d - e), ((a)), a - b - c, a - (b - c) from T
select a from T where a = 1 and b <> 2 and c < 3 and d > 4 and e <= 5 and f >= 6
select a from T where ((a = 1)) and (((a + 1)) * 2) > (3) and (a + 1) between (1) and (2)
select a from T where (a) is null and (a) in ((1), (2)) and (a + b) like (N'x' + '%') and (select 1) = (select 2)
select (select max(a) from U where U.id = T.id) - (select 1) as d, isnull((select top 1 b from U order by c), 0) from T
