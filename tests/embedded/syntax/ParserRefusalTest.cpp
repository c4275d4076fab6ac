// What is no statement is refused, with the server's number and words, at the word that cannot stand there.
#include "embedded/syntax/SyntaxTestSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

using testing::Refusal;

struct Case {
    std::string_view text, refusal;
};

void ExpectRefusals(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(Refusal(c.text), c.refusal) << c.text;
}

// L6, U12: a value with a quote in it ends its literal early.
TEST(ParserRefusal, OfAPastedQuote)
{
    ExpectRefusals({
        {"select 1 from T where cWhCode= N'a'b'",
         "105 at <'>: Unclosed quotation mark after the character string ''."},
        {"select 1 from T where cWhCode= N'a'b' and c = N'd'",
         "105 at <'>: Unclosed quotation mark after the character string ''."},
        {"select 1 from T where cWhCode= N'a'b' and c = N'd'e'", "102 at <b>: Incorrect syntax near 'b'."},
        {"select 1 from T where a in (N'x'y',N'z')",
         "105 at <'>: Unclosed quotation mark after the character string ')'."},
        {"select N'a' 'b' from T", "102 at <'b'>: Incorrect syntax near 'b'."},
        {"select 1 from T where a = N'x'-- and b = 1",
         "102 at <-->: the embedded engine knows comments only on lines of their own"},
    });
}

TEST(ParserRefusal, OfTextsThatNoServerAccepts)
{
    ExpectRefusals({
        // U3
        {"select a from T s where 1=1 and  ( s.iYear >=  2008 and  s.iMonth >= 01",
         "102 at <01>: Incorrect syntax near '01'."},
        {"select a from T s where ( s.iYear >=  2008 and  s.iMonth >= 01 group by a",
         "156 at <group>: Incorrect syntax near the keyword 'group'."},
        // U4
        {"update W  set BasePrice = ", "102 at <=>: Incorrect syntax near '='."},
        {"update W  set BasePrice = \r\n from W", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        // U5
        {"select a from T where IA_EnSubsidiary.imonth <> 0 IA_EnSubsidiary.iYear = 2008",
         "102 at <IA_EnSubsidiary>: Incorrect syntax near 'IA_EnSubsidiary'."},
        // U6
        {"select a from T where ", "102 at <where>: Incorrect syntax near 'where'."},
        {"select a from T where  group by a", "156 at <group>: Incorrect syntax near the keyword 'group'."},
        // U7
        {"select a from T where b=1 and  and cVouType<> N'33'",
         "156 at <and>: Incorrect syntax near the keyword 'and'."},
        // U11
        {"select a from T where ia_ensubsidiary.iyear = ", "102 at <=>: Incorrect syntax near '='."},
        {"select a from T where ia_ensubsidiary.iyear =  and b = 1",
         "156 at <and>: Incorrect syntax near the keyword 'and'."},
        // U14
        {"drop table tempdb..IA_PC-1", "102 at <->: Incorrect syntax near '-'."},
        {"select a from IA_PC 7x", "102 at <7>: Incorrect syntax near '7'."},
    });
}

TEST(ParserRefusal, OfWhatTheEngineDoesNotKnow)
{
    ExpectRefusals({
        {"select a from T right join U on 1=1", "102 at <right>: the embedded engine doesn't know RIGHT"},
        {"select a from T full join U on 1=1", "102 at <full>: the embedded engine doesn't know FULL"},
        {"select a from T Cross Join U", "102 at <Cross>: the embedded engine doesn't know CROSS"},
        {"select a from T cross apply f", "102 at <cross>: the embedded engine doesn't know CROSS"},
        {"select a from T outer apply f", "102 at <outer>: the embedded engine doesn't know OUTER"},
        {"select a from T left outer join U on 1=1",
         "102 at <outer>: the embedded engine doesn't know OUTER"},
        {"select a from StockLine pivot (sum(q) for w in ([01])) p",
         "102 at <pivot>: the embedded engine doesn't know PIVOT"},
        {"with x as (select 1) select * from x", "102 at <with>: the embedded engine doesn't know WITH"},
        {"select a from T with (nolock)", "102 at <with>: the embedded engine doesn't know WITH"},
        {"select sum(a) over (order by b) from T", "102 at <over>: the embedded engine doesn't know OVER"},
        {"select a from T where sum(a) over (order by b) > 1",
         "102 at <over>: the embedded engine doesn't know OVER"},
        {"select a collate x from T", "102 at <collate>: the embedded engine doesn't know COLLATE"},
        {"select a from T where a collate x = 'b'",
         "102 at <collate>: the embedded engine doesn't know COLLATE"},
        {"select a from T for xml auto", "102 at <for>: the embedded engine doesn't know FOR"},
        {"select a from T option (recompile)", "102 at <option>: the embedded engine doesn't know OPTION"},
        {"select a from T where a like 'b' escape 'c'",
         "102 at <escape>: the embedded engine doesn't know ESCAPE"},
        {"select a from T where a > any (select 1)", "102 at <any>: the embedded engine doesn't know ANY"},
        {"select a from T except select b from U",
         "102 at <except>: the embedded engine doesn't know EXCEPT"},
        {"select top 10 percent a from T", "102 at <percent>: the embedded engine doesn't know PERCENT"},
        {"select coalesce(a, b) from T", "102 at <coalesce>: the embedded engine doesn't know COALESCE"},
        {"select nullif(a, b) from T", "102 at <nullif>: the embedded engine doesn't know NULLIF"},
        {"select right(a, 2) from T", "102 at <right>: the embedded engine doesn't know RIGHT"},
        {"select current_timestamp",
         "102 at <current_timestamp>: the embedded engine doesn't know CURRENT_TIMESTAMP"},
        {"select a % b from T", "102 at <%>: the embedded engine doesn't know %"},
        {"select a | b from T", "102 at <|>: the embedded engine doesn't know |"},
        {"select @a", "102 at <@>: the embedded engine doesn't know @"},
        {"select * from ##x", "102 at <##x>: the embedded engine doesn't know ##"},
        {"declare @a int", "102 at <@>: the embedded engine doesn't know @"},
        {"declare c cursor for select 1", "102 at <declare>: the embedded engine doesn't know DECLARE"},
        {"exec p", "102 at <exec>: the embedded engine doesn't know EXEC"},
        {"begin tran", "102 at <begin>: the embedded engine doesn't know BEGIN"},
        {"truncate table T", "102 at <truncate>: the embedded engine doesn't know TRUNCATE"},
        {"merge into T using U on 1=1", "102 at <merge>: the embedded engine doesn't know MERGE"},
        {"use x", "102 at <use>: the embedded engine doesn't know USE"},
        {"create procedure p as select 1", "102 at <procedure>: the embedded engine doesn't know PROCEDURE"},
        {"create clustered index i on T (a)",
         "102 at <clustered>: the embedded engine doesn't know CLUSTERED"},
        {"create table T (a int check (a > 1))", "102 at <check>: the embedded engine doesn't know CHECK"},
        {"select a from server.d.dbo.T",
         "102 at <server>: the embedded engine doesn't know names with a server"},
    });
}

TEST(ParserRefusal, OfAStatementWithoutItsBegin)
{
    ExpectRefusals({
        {"T", "102 at <T>: Incorrect syntax near 'T'."},
        {"go", "102 at <go>: Incorrect syntax near 'go'."},
        {"(select 1)", "102 at <(>: Incorrect syntax near '('."},
        {"'select 1'", "102 at <'select 1'>: Incorrect syntax near 'select 1'."},
        {"from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select 1 select", "102 at <select>: Incorrect syntax near 'select'."},
        {"select 1)", "102 at <)>: Incorrect syntax near ')'."},
        {"set nocount on", "156 at <set>: Incorrect syntax near the keyword 'set'."},
        {"if exists (select 1)", "102 at <)>: Incorrect syntax near ')'."},
        {"if exists (select 1) drop table T else drop table U",
         "156 at <else>: Incorrect syntax near the keyword 'else'."},
        {"if 1 = 1 drop table T", "102 at <1>: Incorrect syntax near '1'."},
    });
}

TEST(ParserRefusal, OfQueries)
{
    ExpectRefusals({
        {"select", "102 at <select>: Incorrect syntax near 'select'."},
        {"select from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select a, from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select a,, b from T", "102 at <,>: Incorrect syntax near ','."},
        {"select a = 1 from T", "102 at <=>: Incorrect syntax near '='."},
        {"select (a = 1) from T", "102 at <=>: Incorrect syntax near '='."},
        {"select a is null from T", "156 at <is>: Incorrect syntax near the keyword 'is'."},
        {"select not a from T", "156 at <not>: Incorrect syntax near the keyword 'not'."},
        {"select exists (select 1)", "156 at <exists>: Incorrect syntax near the keyword 'exists'."},
        {"select a as from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select a as user from T", "156 at <user>: Incorrect syntax near the keyword 'user'."},
        {"select a as N'' from T", "1038 at <N''>: An object or column name is missing or empty."},
        {"select top from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select top -1 a from T", "102 at <->: Incorrect syntax near '-'."},
        {"select top 1.5 a from T", "102 at <1.5>: Incorrect syntax near '1.5'."},
        {"select top 99999999999999999999 a from T",
         "102 at <99999999999999999999>: Incorrect syntax near '99999999999999999999'."},
        {"select top 1 distinct a from T",
         "156 at <distinct>: Incorrect syntax near the keyword 'distinct'."},
        {"select a from", "102 at <from>: Incorrect syntax near 'from'."},
        {"select a from T,", "102 at <,>: Incorrect syntax near ','."},
        {"select a from T inner U on 1=1", "102 at <U>: Incorrect syntax near 'U'."},
        {"select a from T inner join U", "102 at <U>: Incorrect syntax near 'U'."},
        {"select a from T inner join U where 1=1",
         "156 at <where>: Incorrect syntax near the keyword 'where'."},
        {"select a from (select 1 a)", "102 at <)>: Incorrect syntax near ')'."},
        {"select a from (T inner join U on 1=1)", "102 at <T>: Incorrect syntax near 'T'."},
        {"select a from f(1)", "102 at <(>: Incorrect syntax near '('."},
        {"select a from T order by", "102 at <by>: Incorrect syntax near 'by'."},
        {"select a from T order a", "102 at <a>: Incorrect syntax near 'a'."},
        {"select a from T union order by a", "156 at <order>: Incorrect syntax near the keyword 'order'."},
        {"select a from T order by a union select b from U",
         "156 at <union>: Incorrect syntax near the keyword 'union'."},
        {"select a from T where a in (select 1 into U)",
         "156 at <into>: Incorrect syntax near the keyword 'into'."},
        {"select 1 union select 2 into T", "156 at <into>: Incorrect syntax near the keyword 'into'."},
        {"select 1 + identity(int, 1, 1) into T from U",
         "156 at <identity>: Incorrect syntax near the keyword 'identity'."},
        {"select a.b.c.d.e from T",
         "102 at <e>: the embedded engine doesn't know names of more than four parts"},
        {"select a..b from T", "102 at <a>: Incorrect syntax near '.'."},
        {"select a... from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select * from a...", "102 at <.>: Incorrect syntax near '.'."},
        {"select a. from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"select *.a from T", "102 at <.>: Incorrect syntax near '.'."},
        {"select T.* + 1 from T", "102 at <+>: Incorrect syntax near '+'."},
        {"select 1 + T.* from T", "102 at <.>: Incorrect syntax near '.'."},
        {"select * from T.*", "102 at <.>: Incorrect syntax near '.'."},
        {"select 1.5.2", "102 at <.2>: Incorrect syntax near '.2'."},
        {"select a from (select b from T order by b) d",
         "1033 at <b>: The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, "
         "and common table expressions, unless TOP or FOR XML is also specified."},
    });
}

TEST(ParserRefusal, OfExpressions)
{
    ExpectRefusals({
        {"select 1 +", "102 at <+>: Incorrect syntax near '+'."},
        {"select (1", "102 at <1>: Incorrect syntax near '1'."},
        {"select ()", "102 at <)>: Incorrect syntax near ')'."},
        {"select 1 where a",
         "4145 at <a>: An expression of non-boolean type specified in a context where a "
         "condition is expected, near 'a'."},
        {"select 1 where a and b = 1",
         "4145 at <and>: An expression of non-boolean type specified in a context "
         "where a condition is expected, near 'and'."},
        {"select 1 where (a and b = 1)",
         "4145 at <and>: An expression of non-boolean type specified in a context where a condition is "
         "expected, near 'and'."},
        {"select 1 where (a) or b = 1",
         "4145 at <or>: An expression of non-boolean type specified in a context "
         "where a condition is expected, near 'or'."},
        {"select 1 where (a = 1) = 2", "102 at <=>: Incorrect syntax near '='."},
        {"select 1 where (a = 1) + 2 = 3", "102 at <+>: Incorrect syntax near '+'."},
        {"select 1 where 2 + (a = 1) = 3", "102 at <=>: Incorrect syntax near '='."},
        {"select 1 where a = 1 = 2", "102 at <=>: Incorrect syntax near '='."},
        {"select 1 where a = b is null", "156 at <is>: Incorrect syntax near the keyword 'is'."},
        {"select 1 where a = not b", "156 at <not>: Incorrect syntax near the keyword 'not'."},
        {"select 1 where a < > b", "102 at <>>: Incorrect syntax near '>'."},
        {"select 1 where a not = 1", "102 at <=>: Incorrect syntax near '='."},
        {"select 1 where a is 1", "102 at <1>: Incorrect syntax near '1'."},
        {"select 1 where a is not not null", "156 at <not>: Incorrect syntax near the keyword 'not'."},
        {"select 1 where a in ()", "102 at <)>: Incorrect syntax near ')'."},
        {"select 1 where a in 1", "102 at <1>: Incorrect syntax near '1'."},
        {"select 1 where a in (1, )", "102 at <)>: Incorrect syntax near ')'."},
        {"select 1 where a between 1 or 2", "156 at <or>: Incorrect syntax near the keyword 'or'."},
        {"select 1 where a between 1", "102 at <1>: Incorrect syntax near '1'."},
        {"select 1 where exists a", "102 at <a>: Incorrect syntax near 'a'."},
        {"select case end", "156 at <end>: Incorrect syntax near the keyword 'end'."},
        {"select case a end", "156 at <end>: Incorrect syntax near the keyword 'end'."},
        {"select case when a then 1 end",
         "4145 at <then>: An expression of non-boolean type specified in a context where a condition is "
         "expected, near 'then'."},
        {"select case a when 1 end", "156 at <end>: Incorrect syntax near the keyword 'end'."},
        {"select case when 1=1 then 1 else 2", "102 at <2>: Incorrect syntax near '2'."},
        {"select cast(a int)", "102 at <int>: Incorrect syntax near 'int'."},
        {"select cast(a as 1)", "102 at <1>: Incorrect syntax near '1'."},
        {"select cast(a as nvarchar())", "102 at <)>: Incorrect syntax near ')'."},
        {"select cast(a as nvarchar(99999999999))",
         "102 at <99999999999>: Incorrect syntax near '99999999999'."},
        {"select convert(a)", "102 at <)>: Incorrect syntax near ')'."},
        {"select convert(int, a, b)", "102 at <b>: Incorrect syntax near 'b'."},
        {"select f(a,)", "102 at <)>: Incorrect syntax near ')'."},
        {"select sum(*)", "102 at <*>: Incorrect syntax near '*'."},
        {"select isnull(distinct a, 0)", "156 at <distinct>: Incorrect syntax near the keyword 'distinct'."},
        {"select left", "102 at <left>: Incorrect syntax near 'left'."},
    });
}

TEST(ParserRefusal, OfStatementsThatChange)
{
    ExpectRefusals({
        {"insert T select 1", "102 at <T>: Incorrect syntax near 'T'."},
        {"insert into T", "102 at <T>: Incorrect syntax near 'T'."},
        {"insert into T () select 1", "102 at <)>: Incorrect syntax near ')'."},
        {"insert into T (a b) select 1", "102 at <b>: Incorrect syntax near 'b'."},
        {"insert into T (select 1)", "156 at <select>: Incorrect syntax near the keyword 'select'."},
        {"insert into T select 1 into U", "156 at <into>: Incorrect syntax near the keyword 'into'."},
        {"insert into T values", "102 at <values>: Incorrect syntax near 'values'."},
        {"insert into T values (1), ", "102 at <,>: Incorrect syntax near ','."},
        {"insert into T default values", "156 at <default>: Incorrect syntax near the keyword 'default'."},
        {"update T", "102 at <T>: Incorrect syntax near 'T'."},
        {"update T set", "102 at <set>: Incorrect syntax near 'set'."},
        {"update T set a 1", "102 at <1>: Incorrect syntax near '1'."},
        {"update T set a = 1,", "102 at <,>: Incorrect syntax near ','."},
        {"update T set a = 1 where b = 1 from T", "156 at <from>: Incorrect syntax near the keyword 'from'."},
        {"update T set a = (b = 1)", "102 at <=>: Incorrect syntax near '='."},
        {"delete", "102 at <delete>: Incorrect syntax near 'delete'."},
        {"delete from", "102 at <from>: Incorrect syntax near 'from'."},
        {"delete top 1 from T", "156 at <top>: Incorrect syntax near the keyword 'top'."},
        {"drop T", "102 at <T>: Incorrect syntax near 'T'."},
        {"drop table", "102 at <table>: Incorrect syntax near 'table'."},
        {"drop table a b", "102 at <b>: Incorrect syntax near 'b'."},
        {"create T", "102 at <T>: Incorrect syntax near 'T'."},
        {"create table T", "102 at <T>: Incorrect syntax near 'T'."},
        {"create table T ()", "102 at <)>: Incorrect syntax near ')'."},
        {"create table T (a)", "102 at <)>: Incorrect syntax near ')'."},
        {"create table T (a int null not null)", "156 at <not>: Incorrect syntax near the keyword 'not'."},
        {"create table T (a int not)", "102 at <)>: Incorrect syntax near ')'."},
        {"create table T (a int, primary key (a), primary key (a))",
         "156 at <primary>: Incorrect syntax near the keyword 'primary'."},
        {"create table T (a int identity(1))", "102 at <)>: Incorrect syntax near ')'."},
        {"create unique table T (a int)", "156 at <table>: Incorrect syntax near the keyword 'table'."},
        {"create view V select 1", "156 at <select>: Incorrect syntax near the keyword 'select'."},
        {"create view V as select a from T order by a",
         "1033 at <a>: The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, "
         "and common table expressions, unless TOP or FOR XML is also specified."},
        {"select 1 create view V as select 1 as a",
         "111 at <create>: 'CREATE VIEW' must be the first statement in a query batch."},
        {"if exists(select 1) create view V as select 1 as a",
         "111 at <create>: 'CREATE VIEW' must be the first statement in a query batch."},
        {"create view V as select 1 as a drop view V",
         "156 at <drop>: Incorrect syntax near the keyword 'drop'."},
        {"drop table T create function dbo.f() returns int as begin return 1 end",
         "111 at <create>: 'CREATE FUNCTION' must be the first statement in a query batch."},
        {"create function dbo.f() returns int as begin return 1 end select 1",
         "156 at <select>: Incorrect syntax near the keyword 'select'."},
        {"create function dbo.f(a) returns int as begin return 1 end",
         "102 at <a>: Incorrect syntax near 'a'."},
        {"create function dbo.f() returns int as begin return a end",
         "102 at <a>: Incorrect syntax near 'a'."},
        {"create function dbo.f() returns int as return 1",
         "102 at <return>: the embedded engine doesn't know RETURN"},
        {"create index on T (a)", "156 at <on>: Incorrect syntax near the keyword 'on'."},
        {"create index i on T", "102 at <T>: Incorrect syntax near 'T'."},
        {"alter table T", "102 at <T>: Incorrect syntax near 'T'."},
        {"alter table T drop column a", "156 at <drop>: Incorrect syntax near the keyword 'drop'."},
        {"alter table T alter column a", "102 at <a>: Incorrect syntax near 'a'."},
        {"alter table T add", "102 at <add>: Incorrect syntax near 'add'."},
    });
}

TEST(ParserRefusal, ShowsOnlyTheBeginOfALongWord)
{
    const std::string text = "select 1 '" + std::string(500, 'x') + "'";
    EXPECT_TRUE(Refusal(text).ends_with("near '" + std::string(128, 'x') + "'.")) << Refusal(text);
}

}  // namespace
}  // namespace kavelin::embedded
