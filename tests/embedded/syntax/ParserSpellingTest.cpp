// The statements as the reports spell them: odd blanks, line ends, any letter case. Beside each stands what
// the engine understands, in its own spelling.
#include "embedded/syntax/SyntaxTestSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

using testing::Respelled;

struct Case {
    std::string_view mark, text, spelling;
};

void ExpectSpellings(const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        try {
            EXPECT_EQ(Respelled(c.text), c.spelling) << c.mark << ": " << c.text;
        } catch (const SqlError& error) {
            ADD_FAILURE() << c.mark << ": " << c.text << "\n"
                          << error.what() << " at byte " << error.Where().offset;
        }
    }
}

TEST(ParserSpelling, OfTextAndBatches)
{
    ExpectSpellings({
        {"L1", "select a\r\n   from  T\r\n where  a=1\r\n", "select a from T where a = 1"},
        {"L2", "ALTER TABLE T ALTER  COLUMN cDefine4 datetime\r\nALTER TABLE T ALTER  COLUMN cDefine7 float",
         "alter table T alter column cDefine4 datetime alter table T alter column cDefine7 float"},
        {"L2",
         "select * from T\r\nselect * from U\r\ninsert into V select * from W\r\nupdate V set a=1\r\n"
         "delete V\r\ndrop table V\r\nif exists(select 1) drop table W\r\ncreate table V (a int)",
         "select * from T select * from U insert into V select * from W update V set a = 1 delete from V "
         "drop table V if exists (select 1) drop table W create table V (a int)"},
        {"L2", ";; select 1 ; select 2;\r\n;", "select 1 select 2"},
        {"L2", "", ""},
        {"L3", "if exists(select * from T)\r\n  drop table T", "if exists (select * from T) drop table T"},
        {"L4", "SELECT iSNull(A,B) FROM InVentory WHERE NOT (a IS NULL)",
         "select iSNull(A, B) from InVentory where not (a is null)"},
        {"L5", "select '…', N'直运', 'a''b' , n'x'", "select '…', N'直运', 'a''b', N'x'"},
        {"L7", "select 07 - 1,0.5,-100,-1*IaInquantity", "select 07 - 1, 0.5, -100, -1 * IaInquantity"},
        {"L10", "select 1 from T where IA_EnSubsidiary .AutoID = p. iIASubID",
         "select 1 from T where IA_EnSubsidiary.AutoID = p.iIASubID"},
        {"L11",
         "select (case when a is null then 0 end)as R_M_StanCost,cast(0 as float)AS N'x'from T"
         " where(b is null )And c=1or d=0",
         "select (case when a is null then 0 end) as R_M_StanCost, cast(0 as float) as N'x' from T"
         " where (b is null) and c = 1 or d = 0"},
        {"L12", "select Type,Money Num,flag as name from area id",
         "select Type, Money Num, flag as name from area id"},
        {"L1", "-- an account script\r\nselect 1\r\n/* and\r\n more */\r\nselect 2", "select 1 select 2"},
    });
}

TEST(ParserSpelling, OfNames)
{
    ExpectSpellings({
        {"N2", "select * from TEMPDB . . [x]", "select * from TEMPDB..[x]"},
        {"N6", "select vossystem..ua_period.iYear from vossystem..ua_period",
         "select vossystem..ua_period.iYear from vossystem..ua_period"},
        {"N8", "select a As x from T as t", "select a as x from T t"},
        {"N9", "select 0 flag from (select 1 a) area", "select 0 flag from (select 1 a) area"},
        {"N10", "select case when 1=1 then 2 End As N'cFree1', 3 as 'x'",
         "select case when 1 = 1 then 2 end as N'cFree1', 3 as N'x'"},
        {"N12", "select 2 flag,cast(imonth as nvarchar(4)) +N' x ' from T",
         "select 2 flag, cast(imonth as nvarchar(4)) + N' x ' from T"},
        {"N16", "select DBO.UDF_GetLocaleID( )", "select DBO.UDF_GetLocaleID()"},
    });
}

TEST(ParserSpelling, OfStatements)
{
    ExpectSpellings({
        {"S2", "select  dvoudate, cCode into T from  V_IA_CostacCount  where a=1",
         "select dvoudate, cCode into T from V_IA_CostacCount where a = 1"},
        {"S3", "select ia.a, iincost into T\r\n from tempdb..A ia",
         "select ia.a, iincost into T from tempdb..A ia"},
        {"S7", "select IDENTITY(int, 1, 1) as cNo,* into X from Y order by 所占比重 desc",
         "select identity(int, 1, 1) as cNo, * into X from Y order by 所占比重 desc"},
        {"S8", "select top 0 identity(int) as ino into T from U",
         "select top 0 identity(int, 1, 1) as ino into T from U"},
        {"S10", "insert into T (cinvcode,[b]) select a,b from U",
         "insert into T (cinvcode, [b]) select a, b from U"},
        {"S14",
         "CREATE TABLE T (单据日期 datetime NULL, c nvarchar (30), d decimal(38, 6) ,"
         " bRdFlag bit NOT NULL, bCheckBatch bit NOT NULL DEFAULT (0))",
         "create table T (单据日期 datetime null, c nvarchar(30), d decimal(38, 6),"
         " bRdFlag bit not null, bCheckBatch bit not null default (0))"},
        {"S14", "create table T (id int primary key identity default 1 not null)",
         "create table T (id int identity(1, 1) not null default 1 primary key)"},
        {"S16", "alter table T add iInCost decimal(38, 6) null , iOutCost decimal(38, 6) null",
         "alter table T add iInCost decimal(38, 6) null, iOutCost decimal(38, 6) null"},
        {"S17", "update T set Ratio = 0 , DiffRatio = 0 where 1=1",
         "update T set Ratio = 0, DiffRatio = 0 where 1 = 1"},
        {"S18",
         "Update T set 凭证号=gl_AccVouch.ino_id  from  T Wt\r\ninner join gl_AccVouch on "
         "gl_AccVouch.coutNo_ID=Wt.cPzID",
         "update T set 凭证号 = gl_AccVouch.ino_id from T Wt inner join gl_AccVouch on "
         "gl_AccVouch.coutNo_ID = Wt.cPzID"},
        {"S24", "Delete T Where (IsNull(凭证号,N'') <> N'5' And N'5' <> N'')",
         "delete from T where (IsNull(凭证号, N'') <> N'5' and N'5' <> N'')"},
        {"S26", "delete T from T ia inner join Rdrecords   rd on rd.AutoID = ia.ID  and bacc=1",
         "delete T from T ia inner join Rdrecords rd on rd.AutoID = ia.ID and bacc = 1"},
        {"S27", "drop table #QC, #Total,#Summary", "drop table #QC, #Total, #Summary"},
        {"S15", "ALTER TABLE T ALTER COLUMN c nvarchar(30) NOT NULL",
         "alter table T alter column c nvarchar(30) not null"},
    });
}

TEST(ParserSpelling, OfExistenceTests)
{
    ExpectSpellings({
        {"D1", "if exists(Select * from sysobjects where name= N'T') Drop Table T",
         "if exists (select * from sysobjects where name = N'T') drop table T"},
        {"D2",
         "if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..x')) Drop Table tempdb..[x]",
         "if exists (select id from tempdb..sysobjects where id = object_id(N'tempdb..x')) drop table tempdb..[x]"},
        {"D3", "if exists(select * from  tempdb..sysobjects where name='T') drop table T",
         "if exists (select * from tempdb..sysobjects where name = 'T') drop table T"},
        {"D4",
         "If Exists (select ID From sysobjects Where id = object_id('x') And Xtype = 'U' ) Drop Table [x]",
         "if exists (select ID from sysobjects where id = object_id('x') and Xtype = 'U') drop table [x]"},
        {"D5", "If Exists (select ID From sysobjects Where id = object_id('T')) Drop Table T",
         "if exists (select ID from sysobjects where id = object_id('T')) drop table T"},
        {"D6", "if exists(select name from Tempdb..sysobjects where name = N'F')  drop table Tempdb..[F]",
         "if exists (select name from Tempdb..sysobjects where name = N'F') drop table Tempdb..[F]"},
        {"D7", "if exists (SELECT name FROM sysobjects WHERE name = 'x' And xtype = 'U') Drop Table x",
         "if exists (select name from sysobjects where name = 'x' and xtype = 'U') drop table x"},
        {"D8", "if exists(select id from tempdb..sysobjects where id=object_id(N'T')) Drop Table T",
         "if exists (select id from tempdb..sysobjects where id = object_id(N'T')) drop table T"},
        {"D9", "drop table T", "drop table T"},
    });
}

TEST(ParserSpelling, OfClauses)
{
    ExpectSpellings({
        {"Q2", "SELECT distinct NoSub.dVouDate,Select_.x from Select_",
         "select distinct NoSub.dVouDate, Select_.x from Select_"},
        {"Q3", "select 1 from A LEFT JOIN B on B.a=A.a Inner join C On 1=2",
         "select 1 from A left join B on B.a = A.a inner join C on 1 = 2"},
        {"Q5", "select 1 from W a,W b", "select 1 from W a, W b"},
        {"Q7", "select 1 from T where (select top 1 cValue from U where x=1) Between dBegin And dEnd",
         "select 1 from T where (select top 1 cValue from U where x = 1) between dBegin and dEnd"},
        {"Q9", "select 1 from T where F IN (Null)And a In(Select b From U)and c NOT IN('1','2')",
         "select 1 from T where F in (null) and a in (select b from U) and c not in ('1', '2')"},
        {"Q10", "select 1 from T where not exists(select autoid from U where a = b)",
         "select 1 from T where not exists (select autoid from U where a = b)"},
        {"Q12", "select 1 from T where a Like N'01%' and b not like '直运%'",
         "select 1 from T where a like N'01%' and b not like '直运%'"},
        {"Q13", "select 1 from T where Not x Is Null And y is Not null",
         "select 1 from T where not x is null and y is not null"},
        {"Q16", "Select Case x when 0 then 0 Else(case when y=1 then 2 end)End",
         "select case x when 0 then 0 else (case when y = 1 then 2 end) end"},
        {"Q18", "select a from T group by a Having  cast( Sum(x) as decimal(38,2)) <> 0 or Sum(y)<>0",
         "select a from T group by a having cast(Sum(x) as decimal(38, 2)) <> 0 or Sum(y) <> 0"},
        {"Q20", "select a from T order by b asc, c DESC", "select a from T order by b, c desc"},
        {"Q21", "select c as [a] from V Union select '01','x'  Union\r\nselect 2 Order By [a]",
         "select c as [a] from V union select '01', 'x' union select 2 order by [a]"},
    });
}

}  // namespace
}  // namespace kavelin::embedded
