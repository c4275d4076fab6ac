#include "embedded/bind/BindSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

struct Case {
    std::string_view sql, expected;
};

TEST(BindDefinitions, S14CreatesTables)
{
    EXPECT_EQ(Bound("CREATE TABLE T (单据日期 datetime NULL, a nvarchar (30), b nvarchar, bRdFlag bit NOT "
                    "NULL, "
                    "bCheckBatch bit NOT NULL DEFAULT (0), n decimal(38, 6) default 1.5, d datetime default "
                    "'2008-01-01', "
                    "t nvarchar(9) default N'it''s', k int primary key, m money default null, ino int "
                    "identity(1,1))"),
              "create account.T\n"
              "  单据日期: datetime\n"
              "  a: nvarchar(30) trimmed caseless\n"
              "  b: nvarchar(1) trimmed caseless\n"
              "  bRdFlag: bit not null\n"
              "  bCheckBatch: bit not null default false\n"
              "  n: decimal(38,6) default 1.500000\n"
              "  d: datetime default TIMESTAMP '2008-01-01 00:00:00.000'\n"
              "  t: nvarchar(9) trimmed default 'it''s'\n"
              "  k: int not null\n"
              "  m: money\n"
              "  ino: int not null identity\n"
              "primary key k");
    EXPECT_EQ(Bound("create table #x (a int, b int not null, primary key (b, a))"),
              "create connection.#x\n  a: int not null\n  b: int not null\nprimary key b, a");
}

TEST(BindDefinitions, S15S16AlterTables)
{
    EXPECT_EQ(Bound("ALTER TABLE #t ALTER  COLUMN name datetime"),
              "alter column name of connection.#t\n  id: int\n  name: datetime");
    EXPECT_EQ(Bound("alter table #t alter column id nvarchar(20)"),
              "alter column id of connection.#t\n  id: nvarchar(20) trimmed caseless\n  name: nvarchar(20) "
              "trimmed caseless");
    EXPECT_EQ(Bound("alter table #t add iInCost decimal(38, 6) null , b bit not null default (1)"),
              "add iInCost, b to connection.#t\n"
              "  id: int\n"
              "  name: nvarchar(20) trimmed caseless\n"
              "  iInCost: decimal(38,6)\n"
              "  b: bit not null default true");
}

TEST(BindDefinitions, S27DropsTables)
{
    EXPECT_EQ(Bound("drop table #t, tempdb..[W], Stock"), "drop connection.#t, tempdb.W, account.Stock");
    EXPECT_EQ(Bound("drop view VStock"), "drop account.VStock");
}

TEST(BindDefinitions, ViewsTrustNoFactsAndAskForTheLanguageWhenTheyAreRead)
{
    EXPECT_EQ(Bound("create view V as select cInvCode, 'A' as a, DBO.UDF_GetLocaleID() as l from Stock"),
              "create view account.V\n"
              "  cInvCode: nvarchar(60) not null trimmed caseless as Stock.cInvCode\n"
              "  a: varchar(1) not null trimmed caseless\n"
              "  l: nvarchar(10) trimmed\n"
              "select\n"
              "  cInvCode: nvarchar(60) not null = s1.cInvCode\n"
              "  a: varchar(1) not null trimmed caseless = 'A':varchar(1)\n"
              "  l: nvarchar(10) trimmed = locale():nvarchar(10)\n"
              "from account.Stock s1");
}

TEST(BindDefinitions, ViewsKnowWhereTheirTextsComeFrom)
{
    const std::string view = Bound(
        "create view V as select s.cInvCode as plain, s.cInvCode + N'-' + w.code as joined, "
        "case when s.cMemo = N'x' then s.cInvCode else N'-' end as chosen, left(s.cInvCode, 2) as cut, "
        "cast(s.iPzID as nvarchar(10)) as number, cMemo + N'a' as lower, "
        "(select max(cCode) from tempdb..W) as below "
        "from Stock s left join (select cInvCode as code from tempdb..W union select N'-' from Item) w "
        "on w.code = s.cInvCode");
    EXPECT_EQ(view.substr(0, view.find("\nselect")),
              "create view account.V\n"
              "  plain: nvarchar(60) not null trimmed caseless as Stock.cInvCode\n"
              "  joined: nvarchar(121) trimmed caseless as Stock.cInvCode, W.cInvCode\n"
              "  chosen: nvarchar(60) trimmed caseless as Stock.cInvCode\n"
              "  cut: nvarchar(2) caseless as Stock.cInvCode\n"
              "  number: nvarchar(10) trimmed caseless\n"
              "  lower: nvarchar(201) trimmed as Stock.cMemo\n"
              "  below: varchar(4) trimmed caseless as W.cCode");
}

TEST(BindDefinitions, IndexesNameColumnsAsTheyWereDeclared)
{
    EXPECT_EQ(Bound("create index ix on Stock (CINVCODE, imonth)"),
              "create index ix on account.Stock (cInvCode, iMonth)");
    EXPECT_EQ(Bound("create unique index ix on tempdb..W (ino)"), "create unique index ix on tempdb.W (ino)");
}

TEST(BindDefinitions, E2E16AndTheOtherRefusals)
{
    const Case cases[] = {
        {"create table Stock (a int)", "2714"},
        {"create table VStock (a int)", "2714"},
        {"create table T (a int, A int)", "2705"},
        {"create table T (a thing)", "2715"},
        {"create table T (a int(5))", "2716"},
        {"create table T (a nvarchar(5000))", "131"},
        {"create table T (a decimal(39))", "2750"},
        {"create table T (a decimal(5,6))", "2751"},
        {"create table T (a int identity, b int identity)", "2744"},
        {"create table T (a float identity)", "2749"},
        {"create table T (a int null primary key)", "8111"},
        {"create table T (a int primary key, b int primary key)", "8110"},
        {"create table T (a int, primary key (b))", "1911"},
        {"create table T (a int default 'x')", "1752"},
        {"create table T (a int default b)", "128"},
        {"create view V as select 1", "4511"},
        {"create view V as select 1 as a, 2 as A", "4506"},
        {"create view #v as select 1 as a", "4103"},
        {"create view V as select iMonth from Stock order by iMonth", "1033"},
        {"create index i on Nothing (a)", "1088"},
        {"create index i on Stock (a)", "1911"},
        {"alter table Nothing add a int", "4902"},
        {"alter table Stock add iMonth int", "2705"},
        {"alter table Stock add a int not null", "4901"},
        {"alter table Stock alter column a int", "4924"},
        {"drop table Nothing", "3701"},
        {"drop table #t, #t", "3701"},
        {"drop table VStock", "3705"},
        {"drop view Stock", "3705"},
        {"select cast(1 as thing)", "243"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Bound(c.sql).substr(0, c.expected.size() + 1), std::string(c.expected) + ":") << c.sql;
    EXPECT_EQ(ErrorOf("drop table tempdb..[x-1]"),
              "3701 at [tempdb..[x-1]]: Cannot drop the table 'tempdb..x-1', because it does not exist or "
              "you do not "
              "have permission.");
}

}  // namespace
}  // namespace kavelin::embedded
