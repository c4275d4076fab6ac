#include "snapshot/TableFigures.h"

#include "snapshot/CopyAccounts.h"

namespace kavelin::snapshot {
namespace {

using embedded::SqlType;
using embedded::TypeKind;

TEST(FigureColumnFor, SumsWhatIsANumberOnBothSides)
{
    const struct {
        const char* source;
        SqlType type;
        SumKind sum;
    } cases[] = {
        {"int", {TypeKind::Int}, SumKind::Exact},
        {"bit", {TypeKind::Bit}, SumKind::Exact},
        {"smallmoney", {TypeKind::Money}, SumKind::Exact},
        {"numeric(20,6)", {TypeKind::Money}, SumKind::Exact},
        {"float", {TypeKind::Float}, SumKind::Approximate},
        {"decimal(20,6)", {TypeKind::Float}, SumKind::Approximate},
        {"real", {TypeKind::Money}, SumKind::Approximate},
        {"nvarchar(20)", {TypeKind::Int}, SumKind::None},
        {"datetime", {TypeKind::Datetime}, SumKind::None},
    };
    for (const auto& each : cases)
        EXPECT_EQ(FigureColumnFor("c", each.source, each.type).sum, each.sum) << each.source;
    EXPECT_EQ(FigureColumnFor("c", "money", {TypeKind::Money}).scale, 4);
}

class TableFiguresTest : public testing::Test {
  protected:
    TableFiguresTest()
    {
        account.Run("create table A (n int, m money, f float, t nvarchar(9))");
        account.Run(
            "insert into A values (1, 2.5, 0.1, N''), (NULL, -2.5001, 0.2, NULL), (3, NULL, NULL, N'x')");
    }

    TableFigures Of(const std::string& table) { return ReadFigures(account.Account(), table, columns, ""); }

    // What differs after this change of a table equal to A, as "what: a, b".
    std::string After(const std::string& change)
    {
        account.Run("select * into B from A");
        account.Run(change);
        std::string text;
        for (const Difference& each : Differences("A", columns, Of("A"), Of("B")))
            text += each.what + ": " + each.source + ", " + each.target + "\n";
        account.Run("drop table B");
        return text;
    }

    test::TestFolder folder;
    OpenAccount account{folder / "a.kavelin", OpenAccount::Made::Bare};
    const std::vector<FigureColumn> columns = {
        {"n", SumKind::Exact, 0}, {"m", SumKind::Exact, 4}, {"f", SumKind::Approximate}, {"t"}};
};

TEST_F(TableFiguresTest, CountValuesAndSumThem)
{
    const TableFigures figures = Of("A");
    EXPECT_EQ(figures.rows, 3);
    EXPECT_EQ(figures.columns[0].values, 2);
    EXPECT_EQ(figures.columns[0].exactSum, Decimal(4, 0));
    EXPECT_EQ(figures.columns[1].exactSum, Decimal(-1, 4));
    EXPECT_DOUBLE_EQ(figures.columns[2].approximateSum, 0.3);
    EXPECT_EQ(figures.columns[3].values, 2);
}

TEST_F(TableFiguresTest, OfAnEmptyTableAreZero)
{
    const TableFigures figures = ReadFigures(account.Account(), "A", columns, "n = 99");
    EXPECT_EQ(figures.rows, 0);
    EXPECT_EQ(figures.columns[1].exactSum, Decimal(0, 0));
    EXPECT_EQ(figures.columns[2].sumOfMagnitudes, 0);
}

TEST_F(TableFiguresTest, AreEqualForEqualTables)
{
    EXPECT_EQ(After("update B set n = n"), "");
}

TEST_F(TableFiguresTest, TellWhatDiffers)
{
    EXPECT_EQ(After("insert into B values (NULL, NULL, NULL, NULL)"), "rows: 3, 4\n");
    EXPECT_EQ(After("update B set m = 2.5001 where n = 1"), "sum of m: -0.0001, 0.0000\n");
    EXPECT_EQ(After("update B set n = n + 1 where n = 3"), "sum of n: 4, 5\n");
    EXPECT_EQ(After("update B set t = N'' where t is null"), "values of t: 2, 3\n");
    EXPECT_EQ(After("update B set f = 0.1000000001 where n = 1"),
              "sum of f: 0.30000000000000004, 0.3000000001\n");
}

TEST_F(TableFiguresTest, TellFloatsThatOnlyCancelOut)
{
    EXPECT_NE(After("update B set f = f + 1 where n = 1 update B set f = f - 1 where n is null"), "");
}

TEST_F(TableFiguresTest, LetFloatsDifferByTheOrderOfAdding)
{
    TableFigures a = Of("A"), b = a;
    b.columns[2].approximateSum += 1e-15;
    EXPECT_TRUE(Differences("A", columns, a, b).empty());
}

}  // namespace
}  // namespace kavelin::snapshot
