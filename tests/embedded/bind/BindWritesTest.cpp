#include "embedded/bind/BindSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

struct Case {
    std::string_view sql, expected;
};

TEST(BindSelectInto, I1I2MakesColumnsOfTheList)
{
    EXPECT_EQ(Bound("select top 0 null as id, cast(null as nvarchar(30)) as a, '' as b, 0 as c, 0.5 as d, "
                    "iCost * 2 as E, "
                    "CINVCODE, sum(iPrice) as f into tempdb..N from Stock group by cInvCode, iCost"),
              "make tempdb.N\n"
              "  id: int\n"
              "  a: nvarchar(30) trimmed caseless\n"
              "  b: varchar(1) not null trimmed caseless\n"
              "  c: int not null\n"
              "  d: decimal(1,1) not null\n"
              "  E: decimal(38,6)\n"
              "  CINVCODE: nvarchar(60) not null trimmed caseless\n"
              "  f: money\n"
              "select top 0\n"
              "  id: int = null:int\n"
              "  a: nvarchar(30) trimmed caseless = null:nvarchar(30)\n"
              "  b: varchar(1) not null trimmed caseless = '':varchar(1)\n"
              "  c: int not null = 0:int\n"
              "  d: decimal(1,1) not null = 0.5:decimal(1,1)\n"
              "  E: decimal(38,6) = (key 2 * 2:decimal(1,0)):decimal(38,6)\n"
              "  CINVCODE: nvarchar(60) not null trimmed caseless = key 1\n"
              "  f: money = sum(s1.iPrice):money\n"
              "from account.Stock s1\n"
              "group by s1.cInvCode, s1.iCost");
}

// The columns that a select into makes, one a line.
std::string Made(std::string_view sql)
{
    const std::string text = Bound(sql);
    const std::size_t begin = text.find('\n');
    const std::size_t end = text.find("\nselect");
    return begin == std::string::npos || end == std::string::npos ? text
                                                                  : text.substr(begin + 1, end - begin - 1);
}

TEST(BindSelectInto, I3KeepsNotNullOfColumnsAndConstants)
{
    EXPECT_EQ(Made("select s.bRdFlag, i.iid, isnull(s.iMonth, 0) as m, s.bRdFlag + 1 as n, cast(s.bRdFlag as "
                   "bit) as c, "
                   "cast(0 as float) as f into X from Stock s left join Item i on 1 = 1"),
              "  bRdFlag: bit not null\n"
              "  iid: int\n"
              "  m: tinyint not null\n"
              "  n: int\n"
              "  c: bit\n"
              "  f: float");
}

TEST(BindSelectInto, I4I5PassesIdentityOnFromASingleSourceOnly)
{
    EXPECT_EQ(Made("select ino, bBatch into X from tempdb..W where 1 = 2"),
              "  ino: int not null identity\n  bBatch: bit not null");
    EXPECT_EQ(Made("select ino into X from tempdb..W inner join #t on 1 = 1"), "  ino: int not null");
    EXPECT_EQ(Made("select cast(ino as int) as ino into X from tempdb..W"), "  ino: int");
    EXPECT_EQ(Made("select ino, ino as b into X from tempdb..W"), "  ino: int not null\n  b: int not null");
    EXPECT_EQ(Made("select max(ino) as ino into X from tempdb..W"), "  ino: int");
}

TEST(BindSelectInto, F10NumbersRows)
{
    EXPECT_EQ(Bound("select IDENTITY(int, 1, 1) as cNo,* into X from #t order by id desc"),
              "make account.X\n"
              "  cNo: int not null identity\n"
              "  id: int\n"
              "  name: nvarchar(20) trimmed caseless\n"
              "select\n"
              "  cNo: int not null = identity:int\n"
              "  id: int = s1.id\n"
              "  name: nvarchar(20) trimmed caseless = s1.name\n"
              "from connection.#t s1\n"
              "order by item 2 desc");
    EXPECT_EQ(Bound("select identity(int,1,1) as a, identity(int,1,1) as b into X from #t").substr(0, 5),
              "8109:");
    EXPECT_EQ(Bound("select identity(int,1,1) as a, ino into X from tempdb..W").substr(0, 5), "8108:");
    EXPECT_EQ(Bound("select distinct identity(int,1,1) as a, id into X from #t").substr(0, 5), "8108:");
}

TEST(BindSelectInto, I6RefusesTablesThatExistAndNamesThatDoNotDiffer)
{
    const Case cases[] = {
        {"select 1 as a into Stock",
         "2714 at [Stock]: There is already an object named 'Stock' in the database."},
        {"select 1 as a into tempdb..w",
         "2714 at [tempdb..w]: There is already an object named 'w' in the database."},
        {"select 1 as a into other..w", "208 at [other..w]: Invalid object name 'other..w'."},
        {"select iMonth, IMONTH into X from Stock",
         "2705 at [X]: Column names in each table must be unique. Column name 'IMONTH' in table 'X' is "
         "specified more "
         "than once."},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ErrorOf(c.sql), c.expected) << c.sql;
    EXPECT_EQ(Bound("select iMonth + 1 into X from Stock").substr(0, 5), "1038:");
    EXPECT_EQ(Bound("select 1 as a union select 2 into X").substr(0, 4), "156:");
}

TEST(BindInsert, S9S10ConvertsToTheColumns)
{
    EXPECT_EQ(Bound("insert into tempdb..W (cInvCode, cCode, iNum, nMoney, dDate, bBatch, bFlag) "
                    "select cInvCode, iPzID, iQuantity, '', '2008-07-01', iMonth, 1 from Stock order by "
                    "AutoID"),
              "insert tempdb.W (cInvCode, cCode, iNum, nMoney, dDate, bBatch, bFlag) numbering ino\n"
              "select\n"
              "  cInvCode: nvarchar(60) not null trimmed caseless = s1.cInvCode\n"
              "  iPzID: varchar(4) trimmed caseless = assign(s1.iPzID as varchar(4) to cCode)\n"
              "  iQuantity: decimal(38,8) = assign(s1.iQuantity as decimal(38,8) to iNum)\n"
              "  -: money not null = 0:money\n"
              "  -: datetime not null = '2008-07-01 00:00:00.000':datetime\n"
              "  iMonth: bit not null = assign(s1.iMonth as bit to bBatch)\n"
              "  -: bit not null = true:bit\n"
              "from account.Stock s1\n"
              "order by s1.AutoID");
    EXPECT_EQ(Bound("insert into #t select * from #t"),
              "insert connection.#t (id, name)\n"
              "select\n"
              "  id: int = s1.id\n"
              "  name: nvarchar(20) trimmed caseless = s1.name\n"
              "from connection.#t s1");
}

TEST(BindInsert, S11OrdersByValuesBeforeTheyAreConverted)
{
    EXPECT_EQ(Bound("insert into #t select '7', iPzID from Stock order by iPzID desc, AutoID"),
              "insert connection.#t (id, name)\n"
              "select\n"
              "  -: int not null = 7:int\n"
              "  iPzID: nvarchar(20) trimmed caseless = assign(s2.c2 as nvarchar(20) to name)\n"
              "from (select '7':varchar(1) as c1, s1.iPzID as c2, s1.AutoID as c3 from account.Stock s1) s2\n"
              "order by s2.c2 desc, s2.c3");
    EXPECT_EQ(Bound("insert into #t (id) select top 2 iQuantity from Stock order by iQuantity"),
              "insert connection.#t (id)\n"
              "select\n"
              "  iQuantity: int = assign(s2.c1 as int to id)\n"
              "from (select top 2 s1.iQuantity as c1 from account.Stock s1 order by item 1) s2\n"
              "order by s2.c1");
    EXPECT_EQ(Bound("insert into #t select iMonth, cMemo from Stock order by iMonth"),
              "insert connection.#t (id, name)\n"
              "select\n"
              "  iMonth: int = assign(s1.iMonth as int to id)\n"
              "  cMemo: nvarchar(20) = assign(s1.cMemo as nvarchar(20) to name)\n"
              "from account.Stock s1\n"
              "order by item 1\n"
              "weakens connection.#t\n"
              "  id: int\n"
              "  name: nvarchar(20)");
}

TEST(BindInsert, DistinctRowsAreToldApartBeforeTheyAreConverted)
{
    EXPECT_EQ(Bound("insert into #t (id) select distinct iQuantity from Stock"),
              "insert connection.#t (id)\n"
              "select\n"
              "  iQuantity: int = assign(s2.c1 as int to id)\n"
              "from (select distinct s1.iQuantity as c1 from account.Stock s1) s2");
    EXPECT_EQ(Bound("insert into #t select distinct iPzID, null from Stock"),
              "insert connection.#t (id, name)\n"
              "select distinct\n"
              "  iPzID: int = s1.iPzID\n"
              "  -: nvarchar(20) trimmed caseless = null:nvarchar(20)\n"
              "from account.Stock s1");
}

TEST(BindInsert, A16ColumnsLeftOutHaveTheirDefaultOrFailWithTheRow)
{
    EXPECT_EQ(Bound("insert into tempdb..W (cInvCode) values ('A'), ('b ')"),
              "insert tempdb.W (cInvCode, bFlag) numbering ino\n"
              "values 'A':varchar(1), assign(null:bit as bit to bFlag)\n"
              "values 'b ':varchar(2), assign(null:bit as bit to bFlag)\n"
              "weakens tempdb.W\n"
              "  ino: int not null identity\n"
              "  cInvCode: nvarchar(60)\n"
              "  cCode: varchar(4)\n"
              "  iNum: decimal(38,8)\n"
              "  nMoney: money\n"
              "  dDate: datetime\n"
              "  bBatch: bit not null default false\n"
              "  bFlag: bit not null");
}

TEST(BindInsert, T28ANullThatMayReachANotNullColumnIsTested)
{
    EXPECT_EQ(Bound("insert into tempdb..W (bFlag, bBatch) select bInCost, isnull(bInCost, 0) from Item"),
              "insert tempdb.W (bFlag, bBatch) numbering ino\n"
              "select\n"
              "  bInCost: bit not null = assign(s1.bInCost as bit to bFlag)\n"
              "  -: bit not null = isnull(s1.bInCost, false:bit):bit\n"
              "from account.Item s1");
}

TEST(BindInsert, E11AndE13RefuseWhatDoesNotFit)
{
    const Case cases[] = {
        {"insert into #t select 1 from Stock", "213"},
        {"insert into #t (id, name) select 1", "120"},
        {"insert into #t (id) select 1, 2", "121"},
        {"insert into #t values (1)", "213"},
        {"insert into #t (id, name) values (1)", "109"},
        {"insert into #t (id) values (1, 2)", "110"},
        {"insert into #t values (1, 'a'), (2)", "10709"},
        {"insert into #t (x) values (1)", "207"},
        {"insert into #t (id, ID) values (1, 2)", "264"},
        {"insert into tempdb..W (ino) values (1)", "544"},
        {"insert into VStock values ('a', 1)", "4406"},
        {"insert into Nothing select 1", "208"},
        {"insert into #t (id) select dKeepDate from Stock", "257"},
        {"insert into #t (id) select dKeepDate - dVouDate from Stock", "257"},
        {"insert into #t (name) select iPrice from Stock", "257"},
        {"insert into #t (id) values (x)", "128"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Bound(c.sql).substr(0, c.expected.size() + 1), std::string(c.expected) + ":") << c.sql;
    EXPECT_EQ(Bound("insert into #t (id) select dKeepDate from Stock"),
              "257: Implicit conversion from data type datetime to int is not allowed. Use the CONVERT "
              "function to run "
              "this query.");
}

TEST(BindUpdate, S17WithoutFromTheTargetIsTheSource)
{
    EXPECT_EQ(Bound("update Stock set iCost = 0 , iPrice = iPrice - (select sum(iPrice) from Stock) where "
                    "Stock.iMonth = 1"),
              "update account.Stock s1\n"
              "  iCost = 0.000000:decimal(38,6)\n"
              "  iPrice = (s1.iPrice - (select sum(s2.iPrice):money from account.Stock s2 group by all "
              "rows)):money\n"
              "from account.Stock s1\n"
              "where (s1.iMonth = 1:tinyint)");
}

// The first line of a bound update or delete: which source it changes.
std::string TargetOf(std::string_view sql)
{
    const std::string text = Bound(sql);
    return text.substr(0, text.find('\n'));
}

TEST(BindUpdate, S18ToS21FindTheTarget)
{
    const Case cases[] = {
        {"update Stock set iMonth=1 from Stock W inner join Item on 1=1", "update account.Stock s1"},
        {"update Stock set iMonth=1 from Item inner join Stock W on 1=1", "update account.Stock s2"},
        {"update sfc set sfc.iMonth = 1 from Item i inner join Stock sfc on 1=1", "update account.Stock s2"},
        {"update [W] set bFlag=1 from Item inner join tempdb..W on 1=1", "208: Invalid object name 'W'."},
        {"update tempdb..[W] set bFlag=1 from Item inner join Tempdb..W a on 1=1", "update tempdb.W s2"},
        {"update Stock set iMonth=1 from Stock", "update account.Stock s1"},
        {"update Stock set iMonth=1 from Stock a inner join Stock on 1=1", "update account.Stock s2"},
        {"update Item set iMonth=1 from Stock Item", "update account.Stock s1"},
        {"update Stock set Stock.iMonth=1 from Stock a", "update account.Stock s1"},
        {"delete Stock from Stock ia inner join Item rd on 1=1", "delete account.Stock s1"},
        {"delete from Stock where iMonth = 1", "delete account.Stock s1"},
        {"delete Stock where iMonth = 1", "delete account.Stock s1"},
        {"update Stock set iMonth=1 from Stock a inner join Stock b on 1=1",
         "8154: The table 'Stock' is ambiguous."},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TargetOf(c.sql), c.expected) << c.sql;
}

TEST(BindUpdate, S19SetTakesColumnsOfTheTargetOnly)
{
    const Case cases[] = {
        {"update a set b.iid = 1 from Stock a inner join Item b on 1=1", "4104"},
        {"update a set iid = 1 from Stock a inner join Item b on 1=1", "207"},
        {"update Stock set iMonth = 1, IMONTH = 2", "264"},
        {"update Stock set AutoID = 1", "8102"},
        {"update VStock set iQuantity = 1", "4406"},
        {"update Stock set iMonth = 1 from Item", "8154"},
        {"update Stock set iPzID = dKeepDate", "257"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Bound(c.sql).substr(0, c.expected.size() + 1), std::string(c.expected) + ":") << c.sql;
}

TEST(BindUpdate, S18ConvertsAndWeakens)
{
    EXPECT_EQ(Bound("Update #t set name=Stock.iPzID, id=iMonth from #t Wt left join Stock on "
                    "Stock.AutoID=Wt.id"),
              "update connection.#t s1\n"
              "  name = assign(s2.iPzID as nvarchar(20) to name)\n"
              "  id = assign(s2.iMonth as int to id)\n"
              "from connection.#t s1 left join account.Stock s2 on (s2.AutoID = s1.id)");
    EXPECT_EQ(Bound("update #t set name = 'abc'"),
              "update connection.#t s1\n"
              "  name = 'abc':varchar(3)\n"
              "from connection.#t s1\n"
              "weakens connection.#t\n"
              "  id: int\n"
              "  name: nvarchar(20) trimmed");
}

}  // namespace
}  // namespace kavelin::embedded
