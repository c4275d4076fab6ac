#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kavelin::embedded {
namespace {

std::string Repeat(int count, const std::string& piece, const std::string& between)
{
    std::string text;
    for (int k = 0; k < count; ++k)
        text += (k == 0 ? "" : between) + piece;
    return text;
}

std::string Numbers(int count, const std::string& before, const std::string& behind)
{
    std::string text;
    for (int k = 1; k <= count; ++k)
        text += (k == 1 ? "" : ", ") + before + std::to_string(k) + behind;
    return text;
}

class FrontEndBounds : public testing::Test {
  protected:
    FrontEndBounds() : objConnection(objAccount.Connect())
    {
        objConnection->Execute("create table T (a int, s nvarchar(max))\r\ninsert into T values (7, N'x')");
    }

    // The rows, or the error's number, which must come within ten seconds.
    std::string Answer(const std::string& sql)
    {
        using Clock = std::chrono::steady_clock;
        const auto start = Clock::now();
        std::string answer;
        try {
            answer = ShowRows(*objConnection, sql);
        } catch (const DatabaseError& error) {
            answer = "error " + std::to_string(error.Get().lngNumber);
        }
        EXPECT_LT(Clock::now() - start, std::chrono::seconds(10)) << sql.substr(0, 80);
        return answer;
    }

    TestAccount objAccount;
    std::unique_ptr<EmbeddedConnection> objConnection;
};

TEST_F(FrontEndBounds, ListsOf50000ValuesAreTaken)
{
    EXPECT_EQ(Answer("select count(*) from T where a in (" + Numbers(50'000, "", "") + ")"), "1\n");
    EXPECT_EQ(Answer("select count(*) from T where s in (" + Numbers(50'000, "N'c", "'") + ")"), "0\n");
    EXPECT_EQ(Answer("select count(*) from T where s not in (" + Numbers(50'000, "N'c", "'") + ")"), "1\n");
}

TEST_F(FrontEndBounds, LongChainsAreTakenOrRefusedAtOnce)
{
    EXPECT_EQ(Answer("select count(*) from T where " + Repeat(900, "a = 7", " and ")), "1\n");
    EXPECT_EQ(Answer("select count(*) from T where " + Repeat(5'000, "a = 7", " and ")), "error 191");
    EXPECT_EQ(Answer("select count(*) from T where " + Repeat(5'000, "a = 7", " or ")), "error 191");
    EXPECT_EQ(Answer("select " + Repeat(5'000, "a", " + ") + " from T"), "error 191");
}

TEST_F(FrontEndBounds, SelectsOf10000ColumnsAreTaken)
{
    EXPECT_TRUE(Answer("select " + Numbers(10'000, "a + ", "") + " from T").starts_with("8 | 9 | "));
}

TEST_F(FrontEndBounds, LiteralsOf10MegabytesAreTaken)
{
    const std::string text(10'000'000, 'a');
    EXPECT_EQ(Answer("select count(*) from T where s = N'" + text + "'"), "0\n");
    EXPECT_EQ(Answer("select count(*) from T where N'" + text + "' = N'" + text + " '"), "1\n");
}

TEST_F(FrontEndBounds, ViewsStandOnEachOtherAsDeepAsDuckDbGoes)
{
    objConnection->Execute("create view V0 as select a, s from T");
    int depth = 0;
    std::string answer;
    do {
        const std::string name = std::to_string(++depth);
        answer = Answer("create view V" + name + " as select x.a, x.s + y.s as s from V" +
                        std::to_string(depth - 1) + " x, (select top 1 s from T) y");
    } while (answer.empty() && depth < 60);
    EXPECT_EQ(answer, "");
    EXPECT_EQ(Answer("select count(*) from V60 where s = N'X'"), "0\n");
}

TEST_F(FrontEndBounds, NestedQueriesAreTakenOrRefusedAtOnce)
{
    std::string derived = "select a from T";
    for (int k = 0; k < 1'000; ++k)
        derived = "select a from (" + derived + ") d";
    EXPECT_EQ(Answer(derived), "error 191");
    EXPECT_EQ(Answer("select count(*) from T where a in " +
                     Repeat(1'000, "(select a from T where a in ", "") + "(7)" + std::string(1'000, ')')),
              "error 191");
    EXPECT_EQ(Answer("select " + std::string(100'000, '(') + "1" + std::string(100'000, ')')), "error 191");
}

}  // namespace
}  // namespace kavelin::embedded
