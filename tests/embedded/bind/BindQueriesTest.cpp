#include "embedded/bind/BindSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

struct Case {
    std::string_view sql, expected;
};

TEST(BindNames, N1ToN6FindObjectsInTheirDatabases)
{
    const Case cases[] = {
        {"select 1 x from STOCK", "account.Stock"},
        {"select 1 x from [Stock]", "account.Stock"},
        {"select 1 x from dbo.Stock", "account.Stock"},
        {"select 1 x from Tempdb..[W]", "tempdb.W"},
        {"select 1 x from tempdb.dbo.w", "tempdb.W"},
        {"select 1 x from VosSystem..UA_Period", "vossystem.UA_Period"},
        {"select 1 x from #T", "connection.#t"},
        {"select 1 x from tempdb..#t", "connection.#t"},
        {"select 1 x from tempdb..sysobjects", "tempdb.sysobjects"},
        {"select 1 x from sysobjects", "account.sysobjects"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Bound(c.sql), "select\n  x: int not null = 1:int\nfrom " + std::string(c.expected) + " s1")
            << c.sql;
}

TEST(BindNames, N6AColumnIsNamedByDatabaseAndTable)
{
    EXPECT_EQ(Bound("select vossystem..ua_period.iYear from VosSystem..UA_Period"),
              "select\n  iYear: smallint = s1.iYear\nfrom vossystem.UA_Period s1");
}

TEST(BindNames, N8ToN13NameTheResult)
{
    EXPECT_EQ(Bound("select 0 flag, iPzID as [单据编码], iPzID N, (CINVCODE), cInvCode + 'a', iPzID AS "
                    "N'期初' from Stock S"),
              "select\n"
              "  flag: int not null = 0:int\n"
              "  单据编码: int = s1.iPzID\n"
              "  N: int = s1.iPzID\n"
              "  CINVCODE: nvarchar(60) not null trimmed caseless = s1.cInvCode\n"
              "  -: nvarchar(61) trimmed = (s1.cInvCode || 'a':varchar(1)):nvarchar(61)\n"
              "  期初: int = s1.iPzID\n"
              "from account.Stock s1");
}

TEST(BindNames, N14AnAliasHidesTheTableOfThatName)
{
    EXPECT_EQ(Bound("select Item.iMonth from Stock Item"),
              "select\n  iMonth: tinyint = s1.iMonth\nfrom account.Stock s1");
    EXPECT_EQ(ErrorOf("select Stock.iMonth from Stock Item"),
              "4104 at [Stock.iMonth]: The multi-part identifier \"Stock.iMonth\" could not be bound.");
}

TEST(BindNames, N15OneTableStandsTwice)
{
    EXPECT_EQ(Bound("select Item.iid, u.iid as u from Item left join Item u on u.cInvCode = Item.cInvCode"),
              "select\n"
              "  iid: int not null = s1.iid\n"
              "  u: int = s2.iid\n"
              "from account.Item s1 left join account.Item s2 on (s2.cInvCode = s1.cInvCode)");
}

TEST(BindNames, E1AndE5RefuseWhatCannotBeFound)
{
    const Case cases[] = {
        {"select 1 from Nothing", "208 at [Nothing]: Invalid object name 'Nothing'."},
        {"select 1 from tempdb..[x y]", "208 at [tempdb..[x y]]: Invalid object name 'tempdb..x y'."},
        {"select 1 from other..Stock", "208 at [other..Stock]: Invalid object name 'other..Stock'."},
        {"select 1 from usr.Stock", "208 at [usr.Stock]: Invalid object name 'usr.Stock'."},
        {"select 1 from UA_Period", "208 at [UA_Period]: Invalid object name 'UA_Period'."},
        {"select cX from Stock", "207 at [cX]: Invalid column name 'cX'."},
        {"select Stock.cX from Stock", "207 at [Stock.cX]: Invalid column name 'cX'."},
        {"select cInvCode from Stock, Item", "209 at [cInvCode]: Ambiguous column name 'cInvCode'."},
        {"select 1 from Stock where Inventory.cInvDefine1 = N'x'",
         "4104 at [Inventory.cInvDefine1]: The multi-part identifier \"Inventory.cInvDefine1\" could not be "
         "bound."},
        {"select distinct iMonth from Stock s order by Stock.iMonth",
         "4104 at [Stock.iMonth]: The multi-part identifier \"Stock.iMonth\" could not be bound."},
        {"select t.* from Stock",
         "107 at [t.*]: The column prefix 't' does not match with a table name or alias name used in the "
         "query."},
        {"select *", "263 at [*]: Must specify table to select from."},
        {"select cX", "207 at [cX]: Invalid column name 'cX'."},
        {"select 1 from Stock, Stock",
         "1013 at [Stock]: The objects \"Stock\" and \"Stock\" in the FROM clause have the same exposed "
         "names. Use "
         "correlation names to distinguish them."},
        {"select 1 from Stock a, Item a",
         "1011 at [Item a]: The correlation name 'a' is specified multiple times in a FROM clause."},
        {"select 1 from Stock Item, Item",
         "1012 at [Item]: The correlation name 'Item' has the same exposed name as table 'Item'."},
        {"select len(cMemo) from Stock",
         "195 at [len(cMemo)]: 'len' is not a recognized built-in function name."},
        {"select dbo.f(1)",
         "4121 at [dbo.f(1)]: Cannot find either column \"dbo\" or the user-defined function or "
         "aggregate \"dbo.f\", or the name is ambiguous."},
        {"select isnull(1)", "174 at [isnull(1)]: The isnull function requires 2 argument(s)."},
        {"select identity(int,1,1) as n from Stock",
         "177 at [identity(int,1,1)]: The IDENTITY function can only be used when the SELECT statement has "
         "an INTO "
         "clause."},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ErrorOf(c.sql), c.expected) << c.sql;
}

TEST(BindNames, TablesOfOneNameInTwoDatabasesStandSideBySide)
{
    EXPECT_EQ(Bound("select tempdb..Item.cInvCode, iid from Item inner join tempdb..Item on 1 = 1"),
              "select\n"
              "  cInvCode: nvarchar(60) = s2.cInvCode\n"
              "  iid: int not null = s1.iid\n"
              "from account.Item s1 inner join tempdb.Item s2 on (1:int = 1:int)");
}

TEST(BindQueries, Q4OnNamesTablesOfItsOwnJoin)
{
    EXPECT_EQ(Bound("select 1 x from Stock s left join Item i on 1=2 left join #t on s.iMonth = 1 and i.iid "
                    "= 2"),
              "select\n  x: int not null = 1:int\n"
              "from account.Stock s1 left join account.Item s2 on (1:int = 2:int) left join connection.#t s3 "
              "on "
              "((s1.iMonth = 1:tinyint) and (s2.iid = 2:int))");
    EXPECT_EQ(ErrorOf("select 1 x from Stock s, Item i inner join #t on s.iMonth = 1"),
              "4104 at [s.iMonth]: The multi-part identifier \"s.iMonth\" could not be bound.");
    EXPECT_EQ(ErrorOf("select 1 x from Stock s inner join Item i on j.id = 1 inner join #t j on 1 = 1"),
              "4104 at [j.id]: The multi-part identifier \"j.id\" could not be bound.");
}

TEST(BindQueries, Q6ADerivedTableHasTheColumnsOfItsList)
{
    EXPECT_EQ(Bound("select area.n, cInvCode from (select distinct iMonth + 1 as n, cInvCode from Stock) "
                    "area"),
              "select\n"
              "  n: int = s2.n\n"
              "  cInvCode: nvarchar(60) not null trimmed caseless = s2.cInvCode\n"
              "from (select distinct (convert(s1.iMonth as int) + 1:int):int as n, s1.cInvCode as cInvCode "
              "from "
              "account.Stock s1) s2");
    EXPECT_EQ(Bound("select 1 from (select 1 from Stock) a"),
              "8155: No column name was specified for column 1 of 'a'.");
    EXPECT_EQ(Bound("select 1 from (select iMonth, IMONTH from Stock) a"),
              "8156: The column 'IMONTH' was specified multiple times for 'a'.");
    EXPECT_EQ(Bound("select 1 from (select iMonth from Stock order by iMonth) a").substr(0, 5), "1033:");
    EXPECT_EQ(Bound("select 1 from Stock s, (select s.iMonth as m) a"),
              "4104: The multi-part identifier \"s.iMonth\" could not be bound.");
}

TEST(BindQueries, Q7AScalarSubqueryGivesOneColumn)
{
    EXPECT_EQ(BoundValue("(select top 1 iid from Item order by cInvName desc)"),
              "int = (select top 1 s2.iid as iid from account.Item s2 order by s2.cInvName desc)");
    EXPECT_EQ(BoundValue("(select iid, iid from Item)").substr(0, 4), "116:");
    EXPECT_EQ(BoundValue("sum((select 1))").substr(0, 4), "130:");
}

TEST(BindQueries, Q8AScalarSubqueryStandsBesideAggregates)
{
    EXPECT_EQ(Bound("select cWhCode, Case cast((select sum(iPrice) from Stock) as float) when 0 then 0 else "
                    "sum(iPrice) "
                    "end as r from Stock group by cWhCode"),
              "select\n"
              "  cWhCode: nvarchar(10) = key 1\n"
              "  r: money = case when (cast((select sum(s2.iPrice):money from account.Stock s2 group by all "
              "rows) as "
              "float) = 0:float) then 0:money else sum(s1.iPrice):money end:money\n"
              "from account.Stock s1\n"
              "group by s1.cWhCode");
}

TEST(BindQueries, Q17GroupsByRepeatedExpressions)
{
    EXPECT_EQ(Bound("select a.cInvCode, case when b.bInCost = 1 then a.cWhCode else N'' end as w, "
                    "sum(iPrice) as p "
                    "from Stock a inner join Item b on b.cInvCode = a.cInvCode "
                    "group by a.cInvCode, case when b.bInCost = 1 then a.cWhCode else N'' end "
                    "having sum(isnull(-1*iPrice,0)) <> 0 order by a.cInvCode, isnull(a.cInvCode, '') desc"),
              "select\n"
              "  cInvCode: nvarchar(60) not null trimmed caseless = key 1\n"
              "  w: nvarchar(10) = key 2\n"
              "  p: money = sum(s1.iPrice):money\n"
              "from account.Stock s1 inner join account.Item s2 on (s2.cInvCode = s1.cInvCode)\n"
              "group by s1.cInvCode, case when (s2.bInCost = true:bit) then s1.cWhCode else '':nvarchar(1) "
              "end:nvarchar(10)\n"
              "having (sum(isnull((-1:money * s1.iPrice):money, 0:money):money):money <> 0:money)\n"
              "order by item 1, isnull(key 1, '':varchar(1)):nvarchar(60) desc");
}

TEST(BindQueries, E14RefusesWhatIsNeitherGroupedNorAggregated)
{
    const Case cases[] = {
        {"select iMonth, sum(iPrice) from Stock",
         "8120 at [iMonth]: Column 'Stock.iMonth' is invalid in the select list because it is not contained "
         "in either "
         "an aggregate function or the GROUP BY clause."},
        {"select iYear + 1 from Stock s group by s.iMonth",
         "8120 at [iYear]: Column 's.iYear' is invalid in the select list because it is not contained in "
         "either an "
         "aggregate function or the GROUP BY clause."},
        {"select 1 from Stock having iMonth = 1",
         "8121 at [iMonth]: Column 'Stock.iMonth' is invalid in the HAVING clause because it is not "
         "contained in "
         "either an aggregate function or the GROUP BY clause."},
        {"select iMonth from Stock group by iMonth order by iYear",
         "8127 at [iYear]: Column \"Stock.iYear\" is invalid in the ORDER BY clause because it is not "
         "contained in "
         "either an aggregate function or the GROUP BY clause."},
        {"select (select top 1 iid from Item where iid = Stock.iPzID), count(*) from Stock group by iMonth",
         "8120 at [Stock.iPzID]: Column 'Stock.iPzID' is invalid in the select list because it is not "
         "contained in "
         "either an aggregate function or the GROUP BY clause."},
        {"select iMonth from Stock order by sum(iPrice)",
         "8120 at [iMonth]: Column 'Stock.iMonth' is invalid in the select list because it is not contained "
         "in either "
         "an aggregate function or the GROUP BY clause."},
        {"select 1 from Stock group by 1",
         "164 at [1]: Each GROUP BY expression must contain at least one column that is not an outer "
         "reference."},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ErrorOf(c.sql), c.expected) << c.sql;
}

TEST(BindQueries, AggregatesStandOnlyWhereRowsAreGrouped)
{
    const Case cases[] = {
        {"select 1 from Stock where sum(iPrice) > 0", "147"},
        {"select 1 from Stock inner join Item on sum(iPrice) > 0", "1015"},
        {"select 1 from Stock group by sum(iPrice)", "144"},
        {"select sum(sum(iPrice)) from Stock", "130"},
        {"update Stock set iPrice = sum(iPrice)", "157"},
        {"select sum(cMemo) from Stock", "8117"},
        {"select sum(bRdFlag) from Stock", "8117"},
        {"select (select sum(Stock.iPrice) from Item) from Stock", "8124"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Bound(c.sql).substr(0, c.expected.size() + 1), std::string(c.expected) + ":") << c.sql;
}

TEST(BindQueries, Q19AggregatesWithoutGroupsTakeAllRows)
{
    EXPECT_EQ(Bound("select 0 flag, SUM(iPrice) from Stock where iMonth = 1"),
              "select\n"
              "  flag: int not null = 0:int\n"
              "  -: money = sum(s1.iPrice):money\n"
              "from account.Stock s1\n"
              "where (s1.iMonth = 1:tinyint)\n"
              "group by all rows");
}

TEST(BindQueries, Q20OrdersByAliasesPositionsAndOtherColumns)
{
    EXPECT_EQ(Bound("select iMonth as m, iYear from Stock order by m desc, 2, iYear, isnull(iPzID, AutoID), "
                    "Stock.iMonth"),
              "select\n"
              "  m: tinyint = s1.iMonth\n"
              "  iYear: smallint = s1.iYear\n"
              "from account.Stock s1\n"
              "order by item 1 desc, item 2, item 2, isnull(s1.iPzID, s1.AutoID):int, item 1");
    // An alias comes before a column of the sources.
    EXPECT_EQ(Bound("select iMonth as iYear from Stock order by iYear"),
              "select\n  iYear: tinyint = s1.iMonth\nfrom account.Stock s1\norder by item 1");
    EXPECT_EQ(Bound("select iMonth from Stock order by 2").substr(0, 4), "108:");
    EXPECT_EQ(Bound("select iMonth as a, iYear as a from Stock order by a"),
              "209: Ambiguous column name 'a'.");
    EXPECT_EQ(Bound("select iMonth from Stock order by 'a'").substr(0, 4), "408:");
}

TEST(BindQueries, T36DistinctAndUnionAreOrderedByTheirColumnsOnly)
{
    EXPECT_EQ(Bound("select distinct iMonth from Stock order by iYear").substr(0, 4), "145:");
    EXPECT_EQ(Bound("select distinct isnull(iMonth, 0) as m from Stock order by isnull(iMonth, 0)"),
              "select distinct\n"
              "  m: tinyint not null = isnull(s1.iMonth, 0:tinyint):tinyint\n"
              "from account.Stock s1\n"
              "order by item 1");
    EXPECT_EQ(Bound("select iMonth from Stock union select iMonth from Stock order by iYear"),
              "207: Invalid column name 'iYear'.");
    EXPECT_EQ(
        Bound("select iMonth from Stock union select iMonth from Stock order by iMonth + 1").substr(0, 4),
        "104:");
}

TEST(BindQueries, Q21AUnionHasTheNamesOfTheFirstAndTheHighestTypes)
{
    EXPECT_EQ(Bound("select '01' as [a], 1 as n Union select '0102', 2.5 Union all select N'x', null Order "
                    "By [a]"),
              "select\n"
              "  a: varchar(2) not null trimmed caseless = '01':varchar(2)\n"
              "  n: decimal(11,1) not null = 1.0:decimal(11,1)\n"
              "union\n"
              "select\n"
              "  -: varchar(4) not null trimmed caseless = '0102':varchar(4)\n"
              "  -: decimal(11,1) not null = 2.5:decimal(11,1)\n"
              "union all\n"
              "select\n"
              "  -: nvarchar(1) not null trimmed = 'x':nvarchar(1)\n"
              "  -: decimal(11,1) = null:decimal(11,1)\n"
              "order by item 1");
    EXPECT_EQ(Bound("select 1 union select 1, 2").substr(0, 4), "205:");
    EXPECT_EQ(Bound("select null as a union select N'x' union select null"),
              "select\n  a: nvarchar(1) trimmed caseless = null:nvarchar(1)\n"
              "union\nselect\n  -: nvarchar(1) not null trimmed = 'x':nvarchar(1)\n"
              "union\nselect\n  -: nvarchar(1) trimmed caseless = null:nvarchar(1)");
}

TEST(BindQueries, Q23StarsGiveAllColumnsInOrder)
{
    EXPECT_EQ(Bound("select b.*, a.id as x from #t a left join #t b on 1 = 1"),
              "select\n"
              "  id: int = s2.id\n"
              "  name: nvarchar(20) trimmed caseless = s2.name\n"
              "  x: int = s1.id\n"
              "from connection.#t s1 left join connection.#t s2 on (1:int = 1:int)");
}

TEST(BindQueries, T35NamesAreFoundInTheInnerQueryFirst)
{
    EXPECT_EQ(BoundValue("(select top 1 cInvCode from Item where cInvCode = Stock.cInvCode and iMonth = 1)"),
              "nvarchar(60) = (select top 1 s2.cInvCode as cInvCode from account.Item s2 where ((s2.cInvCode "
              "= "
              "s1.cInvCode) and (s1.iMonth = 1:tinyint)))");
}

TEST(BindQueries, F9ObjectIdsAreAskedForByText)
{
    EXPECT_EQ(Bound("if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..x')) Drop "
                    "Table tempdb..[x]"),
              "select\n"
              "  id: int = s1.id\n"
              "from tempdb.sysobjects s1\n"
              "where (s1.id = object_id('tempdb..x':nvarchar(9)):int)");
}

TEST(BindQueries, T6DatePartsConvertTheirTexts)
{
    EXPECT_EQ(BoundValue("Year(cMemo)"), "int = year(convert(s1.cMemo as datetime)):int");
    EXPECT_EQ(BoundValue("month('2008-07-31')"), "int = month('2008-07-31 00:00:00.000':datetime):int");
}

TEST(BindQueries, TooDeepAndTooWideStatementsAreRefused)
{
    const auto sum = [](int terms) {
        std::string text = "select 1";
        for (int i = 1; i < terms; ++i)
            text += "+1";
        return Bound(text);
    };
    EXPECT_EQ(sum(5000).substr(0, 4), "191:");
    EXPECT_EQ(sum(900).substr(0, 6), "select");

    // Each simple case binds its operand once a branch: nested, they multiply.
    std::string cases = "iMonth";
    for (int i = 0; i < 9; ++i)
        cases =
            "case " + cases + " when 1 then 1 when 2 then 2 when 3 then 3 when 4 then 4 when 5 then 5 end";
    EXPECT_EQ(Bound("select " + cases + " from Stock").substr(0, 5), "8623:");
}

}  // namespace
}  // namespace kavelin::embedded
