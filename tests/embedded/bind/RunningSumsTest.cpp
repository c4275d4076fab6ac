#include "embedded/bind/BindSupport.h"
#include "embedded/engine/TestAccount.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace kavelin::embedded {
namespace {

TEST(RunningSums, TheSelfJoinOfARunningBalanceBecomesAWindow)
{
    EXPECT_EQ(Bound("select a.ino, sum(b.nMoney) as total from tempdb..W a inner join tempdb..W b "
                    "on b.ino <= a.ino and b.cInvCode = a.cInvCode where a.bFlag = 1 group by a.ino"),
              "select\n"
              "  ino: int not null = key 1\n"
              "  total: money = sum(s3.w0):money\n"
              "from (select running(sum(s2.nMoney):money by s2.cInvCode up to s2.ino):decimal(38,4) as w0, "
              "s2.bFlag as c0, s2.ino as c1 from tempdb.W s2 "
              "where ((s2.ino is not null) and (s2.cInvCode is not null))) s3\n"
              "where (s3.c0 = true:bit)\n"
              "group by s3.c1");
}

TEST(RunningSums, ASubqueryOfARunningBalanceLooksUpItsWindow)
{
    EXPECT_EQ(Bound("update a set nMoney = (select sum(b.nMoney) from tempdb..W b where a.ino >= b.ino) "
                    "from tempdb..W a"),
              "update tempdb.W s1\n"
              "  nMoney = (select max(s3.w0):money from (select running(sum(s2.nMoney):money up to "
              "s2.ino):decimal(38,4) as w0, s2.ino as c0 from tempdb.W s2 where (s2.ino is not null)) s3 "
              "where (s3.c0 = s1.ino) group by all rows)\n"
              "from tempdb.W s1");
}

TEST(RunningSums, WhatIsOtherwiseStaysAsItStands)
{
    for (
        const std::string_view sql : {
            "select a.ino, sum(b.iNum) x from tempdb..W a inner join tempdb..W b on b.ino < a.ino group by a.ino",
            "select a.ino, sum(b.iNum) x from tempdb..W a left join tempdb..W b on b.ino <= a.ino group by a.ino",
            "select a.ino, sum(a.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino group by a.ino",
            "select b.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino group by b.ino",
            "select a.ino, avg(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino group by a.ino",
            "select a.ino, count(distinct b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino "
            "group by a.ino",
            "select a.ino, max(b.cCode) x from tempdb..W a, tempdb..W b where b.ino <= a.ino group by a.ino",
            "select a.cCode, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.cCode <= a.cCode "
            "group by a.cCode",
            "select a.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino or a.bFlag = 1 "
            "group by a.ino",
            "select a.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino and b.bFlag = 1 "
            "group by a.ino",
            "select a.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino "
            "and b.iNum <= a.iNum group by a.ino",
            "select a.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino "
            "and b.cInvCode = a.cCode group by a.ino",
            "select a.ino, sum(1 / b.iNum) x from tempdb..W a, tempdb..W b where b.ino <= a.ino "
            "and a.bFlag = 1 group by a.ino",
            "select a.ino, sum(b.iNum) x from tempdb..W a, tempdb..W b, #t where b.ino <= a.ino group by a.ino",
            "select a.iPzID, sum(b.iPzID) x from Stock a, tempdb..W w, Stock b where b.iPzID <= a.iPzID "
            "group by a.iPzID",
            "select a.ino, b.ino from tempdb..W a, tempdb..W b where b.ino <= a.ino",
            "select (select sum(b.iQuantity) from Stock b where b.iPzID <= a.iid) x from Item a",
            "select (select sum(b.iNum) from tempdb..W b where b.ino <= a.ino having count(*) > 1) x "
            "from tempdb..W a",
        }) {
        const std::string bound = Bound(sql);
        EXPECT_TRUE(bound.starts_with("select\n")) << sql << "\n" << bound;
        EXPECT_EQ(bound.find("running("), std::string::npos) << bound;
    }
}

// Rows with equal, missing and repeated places in the order, in parts that have NULLs and names that differ
// in case and trailing blanks only. Floats are quarters, so that no order of summing changes them.
void FillLedger(EmbeddedConnection& connection)
{
    connection.Execute(
        "create table T (id int, ino int, day datetime, part int, name nvarchar(9), flag int, "
        "q float, m money, d decimal(38,6), n int, total float null, lines int null)");
    std::mt19937 random(20080731);
    const auto under = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const auto orNull = [&](const std::string& value) { return under(10) == 0 ? "null" : value; };
    const char* names[] = {"'a'", "'A'", "'A '", "'b'", "'直运'"};
    std::string rows;
    for (int id = 0; id < 300; ++id)
        rows += std::string(rows.empty() ? "" : ", ") + "(" + std::to_string(id) + ", " +
                orNull(std::to_string(under(120))) + ", " +
                orNull("'2008-07-" + std::to_string(1 + under(31)) + "'") + ", " +
                orNull(std::to_string(under(3))) + ", " + orNull(names[under(5)]) + ", " +
                std::to_string(under(2)) + ", " + orNull(std::to_string(under(4000) - 2000) + ".25") + ", " +
                orNull(std::to_string(under(90000) - 40000) + ".4321") + ", " +
                orNull(std::to_string(under(900) - 400) + ".123456") + ", " +
                orNull(std::to_string(under(90) - 40)) + ")";
    connection.Execute("insert into T (id, ino, day, part, name, flag, q, m, d, n) values " + rows);
}

std::string With(std::string sql, const std::string& condition)
{
    const std::size_t at = sql.find("ON_ORDER");
    return sql.replace(at, 8, condition);
}

class RunningRows : public testing::Test {
  protected:
    RunningRows() : objConnection(objAccount.Connect()) { FillLedger(*objConnection); }

    // The same statement with its order written so that the shape is met, and so that it is not.
    void ExpectSame(const std::string& sql)
    {
        const std::string window = With(sql, "b.ino <= a.ino");
        const std::string join = With(sql, "not b.ino > a.ino");
        EXPECT_NE(objConnection->Explain(window).find(" OVER ("), std::string::npos) << sql;
        EXPECT_EQ(objConnection->Explain(join).find(" OVER ("), std::string::npos) << sql;
        const std::string rows = ShowRows(*objConnection, window);
        EXPECT_FALSE(rows.empty()) << sql;
        EXPECT_EQ(rows, ShowRows(*objConnection, join)) << sql;
    }

    TestAccount objAccount;
    std::unique_ptr<EmbeddedConnection> objConnection;
};

TEST_F(RunningRows, AreThoseOfTheJoin)
{
    const std::string sums =
        "sum(b.q) q, sum(b.m) m, sum(b.d) d, sum(b.n) n, count(*) c, count(b.q) cq, "
        "min(b.m) l, max(b.day) g, sum(isnull(b.q, 0) - isnull(b.n, 0) / 3) e";
    const std::vector<std::string> statements = {
        "select a.ino, " + sums + " from T a inner join T b on ON_ORDER group by a.ino order by a.ino",
        "select a.id, a.name, " + sums + " from T a, T b where ON_ORDER group by a.id, a.name order by a.id",
        "select a.id, " + sums +
            " from T a inner join T b on ON_ORDER and a.part = b.part group by a.id order by a.id",
        "select a.id, " + sums +
            " from T a, T b where ON_ORDER and b.name = a.name and b.part = a.part "
            "group by a.id order by a.id",
        "select a.name, " + sums +
            " from T a, T b where ON_ORDER and a.name = b.name group by a.name order by a.name",
        "select isnull(a.part, 7) part, " + sums +
            " from T a, T b where ON_ORDER group by isnull(a.part, 7) order by isnull(a.part, 7)",
        "select a.id, sum(b.n) n from T a, T b where ON_ORDER and a.flag = 1 and (a.m > 0 or a.q is null) "
        "group by a.id having sum(b.n) > 10 order by sum(b.n) desc, a.id",
        "select " + sums + " from T a, T b where ON_ORDER",
        "select count(*) c, sum(b.n) n, max(b.d) d from T a, T b where ON_ORDER and a.id < 0",
        "select a.id, (select sum(b.q) from T b where ON_ORDER) q from T a order by a.id",
        "select a.id, (select count(*) from T b where ON_ORDER and a.part = b.part and b.name = a.name) c "
        "from T a order by a.id",
        "select a.id, (select isnull(min(b.m), 0) + sum(b.n) from T b where ON_ORDER and a.flag = 1) x "
        "from T a where a.id > 20 order by a.id",
    };
    for (const std::string& sql : statements)
        ExpectSame(sql);
}

TEST_F(RunningRows, ADayIsAnOrderToo)
{
    const std::string select = "select a.day, sum(b.m) m, count(*) c from T a, T b where ";
    EXPECT_EQ(ShowRows(*objConnection, select + "b.day <= a.day group by a.day order by a.day"),
              ShowRows(*objConnection, select + "not b.day > a.day group by a.day order by a.day"));
}

TEST_F(RunningRows, S23UpdatesSetThem)
{
    const std::string read = "select id, total, lines from T order by id";
    const std::string updates[] = {
        "update T set total = s.q, lines = s.c from T inner join (select a.ino, sum(isnull(b.q, 0) + "
        "isnull(b.n, 0) - isnull(b.total, 0)) as q, count(*) as c from T a, T b where ON_ORDER group by a.ino) "
        "s on s.ino = T.ino",
        "update x set total = s.q from T x inner join (select a.id, sum(b.q) as q from T a inner join T b on "
        "ON_ORDER and b.part = a.part group by a.id) s on s.id = x.id where x.flag = 1",
        "update a set total = (select sum(b.q) from T b where ON_ORDER), lines = 1 from T a where a.part = 1",
    };
    for (const std::string& update : updates) {
        std::string rows[2];
        for (const bool window : {false, true}) {
            objConnection->Execute("update T set total = null, lines = null");
            objConnection->Execute(With(update, window ? "b.ino <= a.ino" : "not b.ino > a.ino"));
            rows[window] = ShowRows(*objConnection, read);
        }
        EXPECT_EQ(rows[0], rows[1]) << update;
        EXPECT_NE(rows[1], ShowRows(*objConnection, "select id, null, null from T order by id")) << update;
    }
}

TEST_F(RunningRows, OfFloatsAgreeToTwelveDigits)
{
    objConnection->Execute("update T set q = q / 3");
    EXPECT_EQ(ShowRows(*objConnection,
                       "select count(*) from (select a.id, sum(b.q) q from T a, T b where "
                       "b.ino <= a.ino group by a.id) w inner join (select a.id, sum(b.q) q "
                       "from T a, T b where not b.ino > a.ino group by a.id) j on j.id = w.id "
                       "where abs(j.q - w.q) > abs(j.q) * 1e-12"),
              "0\n");
}

}  // namespace
}  // namespace kavelin::embedded
