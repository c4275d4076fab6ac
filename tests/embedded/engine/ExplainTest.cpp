#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavelin::embedded {
namespace {

TEST(Explain, ShowsTreeTypesAndDuckDbsStatements)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int not null, code nvarchar(10))");
    EXPECT_EQ(connection->Explain("select code, sum(a) as n from T where a > 7 / 2 group by code"),
              "1, line 1: select code, sum(a) as n from T where a > 7 / 2 group by code\n"
              "  bound:\n"
              "    select\n"
              "      code = key 1                                                            "
              "nvarchar(10) trimmed caseless\n"
              "      n = sum(s1.a):int                                                       int\n"
              "    from \"work\".\"main\".\"T\" s1\n"
              "    where (s1.a > (7:int / 2:int):int)\n"
              "    group by s1.code\n"
              "  DuckDB:\n"
              "    SELECT \"s1\".\"code\" AS \"code\", CAST(sum(\"s1\".\"a\") AS INTEGER) AS \"n\"\n"
              "    FROM \"work\".\"main\".\"T\" AS \"s1\"\n"
              "    WHERE (\"s1\".\"a\" > (7 // 2))\n"
              "    GROUP BY \"s1\".\"code\";\n");
}

TEST(Explain, FollowsWhatABatchMakesAndDrops)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int)\r\nselect * into #t from T");
    const std::string text = connection->Explain(
        "select a as b into W from T\r\n"
        "update W set b = 1 where b = 2\r\n"
        "if exists(select * from sysobjects where name = 'W') drop table W\r\n"
        "if exists(select * from sysobjects where name = 'No') drop table No\r\n"
        "select a as c into W from T\r\n"
        "insert into #t select c from W\r\n"
        "drop table #t");
    EXPECT_NE(text.find("\n6, line 6: insert into #t select c from W\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\n  if a row comes:\n    bound:\n      drop \"work\".\"main\".\"W\"\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("    cannot be bound now: 3701 Cannot drop the table 'No'"), std::string::npos)
        << text;
    EXPECT_EQ(ShowRows(*connection, "select count(*) from sysobjects where name = 'W'"), "0\n");
    EXPECT_EQ(ShowRows(*connection, "select count(*) from #t"), "0\n");
    EXPECT_THROW(connection->Explain("select a as c into W from T\r\nselect b from W"), DatabaseError);
}

TEST(Explain, HasNoLineThatRunsOffThePage)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int, m money, s nvarchar(20))");
    std::string items;
    for (int k = 0; k < 100; ++k)
        items += ", case when s like N'%x%' then isnull(m, 0) * 3 / (a + " + std::to_string(k) +
                 ") else cast(s as float) end as c" + std::to_string(k);
    std::istringstream text(connection->Explain("select a" + items + " into W from T"));
    for (std::string line; std::getline(text, line);)
        EXPECT_LE(line.size(), 180U) << line;
}

}  // namespace
}  // namespace kavelin::embedded
