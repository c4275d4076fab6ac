#include "embedded/engine/Layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavelin::embedded {
namespace {

std::string Columns(int count)
{
    std::string text;
    for (int k = 1; k <= count; ++k)
        text += (k == 1 ? "" : ", ") + std::string("\"s1\".\"cColumn") + std::to_string(k) + "\"";
    return text;
}

TEST(LayOut, LeavesAShortStatementOnItsLine)
{
    EXPECT_EQ(LayOut("SELECT 1 AS \"c0\" FROM t WHERE a = 'x  from  y'"),
              "SELECT 1 AS \"c0\" FROM t WHERE a = 'x  from  y'");
    EXPECT_EQ(LayOut(""), "");
}

TEST(LayOut, GivesEveryClauseALineAndEveryItemWhereTheyDoNotFit)
{
    EXPECT_EQ(
        LayOut("SELECT " + Columns(5) +
               ", left(\"s1\".\"c\", 2) AS \"x\" FROM \"account\".\"main\".\"T\" AS "
               "\"s1\" LEFT JOIN \"account\".\"main\".\"W\" AS \"s2\" ON \"s1\".\"k\" = \"s2\".\"k\" WHERE "
               "\"s1\".\"a\" BETWEEN 1 AND 2 ORDER BY \"s1\".\"a\" LIMIT 5"),
        "SELECT\n"
        "  \"s1\".\"cColumn1\",\n"
        "  \"s1\".\"cColumn2\",\n"
        "  \"s1\".\"cColumn3\",\n"
        "  \"s1\".\"cColumn4\",\n"
        "  \"s1\".\"cColumn5\",\n"
        "  left(\"s1\".\"c\", 2) AS \"x\"\n"
        "FROM \"account\".\"main\".\"T\" AS \"s1\"\n"
        "LEFT JOIN \"account\".\"main\".\"W\" AS \"s2\" ON \"s1\".\"k\" = \"s2\".\"k\"\n"
        "WHERE \"s1\".\"a\" BETWEEN 1 AND 2\n"
        "ORDER BY \"s1\".\"a\"\n"
        "LIMIT 5");
}

TEST(LayOut, OpensBracketsAndCasesThatDoNotFit)
{
    const std::string choice = "CASE WHEN \"s1\".\"a\" > 1 THEN left(\"s1\".\"b\", 2) ELSE " +
                               ("'" + std::string(60, 'x') + "'") + " END";
    EXPECT_EQ(LayOut("UPDATE t AS g SET \"a\" = v.a FROM (SELECT " + Columns(3) + ", " + choice +
                     " AS \"c\" FROM t WHERE a = 1) AS v WHERE g.rowid = v.r"),
              "UPDATE t AS g\n"
              "SET \"a\" = v.a\n"
              "FROM (\n"
              "  SELECT\n"
              "    \"s1\".\"cColumn1\",\n"
              "    \"s1\".\"cColumn2\",\n"
              "    \"s1\".\"cColumn3\",\n"
              "    CASE\n"
              "      WHEN \"s1\".\"a\" > 1 THEN left(\"s1\".\"b\", 2)\n"
              "      ELSE '" +
                  std::string(60, 'x') +
                  "'\n"
                  "    END AS \"c\"\n"
                  "  FROM t\n"
                  "  WHERE a = 1\n"
                  ") AS v\n"
                  "WHERE g.rowid = v.r");
}

TEST(LayOut, BreaksNoLiteralAndLosesNothing)
{
    const std::string literal = "'" + std::string(300, 'x') + " , ( from ''" + "'";
    const std::vector<std::string> statements = {
        "SELECT " + literal + " AS a FROM t",
        "SELECT (((" + Columns(40) + ")))",
        "SELECT CASE WHEN a = " + literal + " THEN 1 ELSE 2 END",
        "SELECT ((a",
        "SELECT a)) FROM 'open",
    };
    for (const std::string& statement : statements) {
        std::string laid = LayOut(statement);
        std::erase(laid, '\n');
        std::erase(laid, ' ');
        std::string expected = statement;
        std::erase(expected, ' ');
        EXPECT_EQ(laid, expected);
    }
}

}  // namespace
}  // namespace kavelin::embedded
