#include "snapshot/TablePages.h"

#include "snapshot/CopyAccounts.h"

#include <set>

namespace kavelin::snapshot {
namespace {

class TablePagesTest : public testing::Test {
  protected:
    // The pages, each as the values of its first column between blanks.
    std::vector<std::string> Pages(const PagedTable& table, std::int64_t rows)
    {
        TablePages pages(account.Account(), table, rows);
        std::vector<std::string> texts;
        while (const auto page = pages.Next()) {
            std::multiset<std::string> values;
            for (; !page->Eof(); page->MoveNext())
                values.insert(page->Field(0).IsNull() ? "NULL" : ToText(page->Field(0)));
            std::string& text = texts.emplace_back();
            for (const std::string& value : values)
                text += (text.empty() ? "" : " ") + value;
        }
        return texts;
    }

    using Texts = std::vector<std::string>;

    test::TestFolder folder;
    OpenAccount account{folder / "a.kavelin", OpenAccount::Made::Bare};
};

TEST_F(TablePagesTest, GiveEveryRowOnceThoughNumbersHaveGaps)
{
    account.Run("create table T (n int)");
    account.Run("insert into T values (5), (1), (-2147483648), (2000000000), (3), (2)");
    EXPECT_EQ(Pages({"T", {"n"}, "n", ""}, 2), (Texts{"", "-2147483648 1", "2 3", "2000000000 5"}));
}

TEST_F(TablePagesTest, GiveRowsOfOneKeyInOnePage)
{
    account.Run("create table T (n int, k int)");
    account.Run("insert into T values (1, 1), (2, 1), (3, 1), (4, 2), (5, 3)");
    EXPECT_EQ(Pages({"T", {"n"}, "k", ""}, 2), (Texts{"", "1 2 3", "4 5"}));
}

TEST_F(TablePagesTest, BeginWithTheRowsThatHaveNoKey)
{
    account.Run("create table T (n int, k nvarchar(9))");
    account.Run("insert into T values (1, NULL), (2, N'a'), (3, NULL)");
    EXPECT_EQ(Pages({"T", {"n"}, "k", ""}, 10), (Texts{"1 3", "2"}));
}

TEST_F(TablePagesTest, FollowTextsAsTheDatabaseComparesThem)
{
    account.Run("create table T (n int, k nvarchar(9))");
    account.Run("insert into T values (1, N'it''s'), (2, N'IT''S '), (3, N'汉'), (4, N''), (5, N'%')");
    const Texts pages = Pages({"T", {"n"}, "k", ""}, 1);
    std::multiset<std::string> rows(pages.begin(), pages.end());
    // The first two are one key to T-SQL.
    EXPECT_EQ(rows, (std::multiset<std::string>{"", "1 2", "3", "4", "5"}));
}

TEST_F(TablePagesTest, KeepToTheCondition)
{
    account.Run("create table T (n int, k int)");
    account.Run("insert into T values (1, 1), (2, 0), (3, 1), (4, 0)");
    EXPECT_EQ(Pages({"T", {"n"}, "n", "k = 1 or k = 2"}, 1), (Texts{"", "1", "3"}));
}

TEST_F(TablePagesTest, EndAtOnceForAnEmptyTable)
{
    account.Run("create table T (n int)");
    EXPECT_EQ(Pages({"T", {"n"}, "n", ""}, 2), (Texts{""}));
}

TEST(SelectPage, NamesTheColumnsAndTheRange)
{
    const PagedTable table{"T", {"a", "b"}, "a", "y = 1 or y = 2"};
    EXPECT_EQ(SelectPageEnd(table, Value(7), 100),
              "select max(page.pageKey)\r\n"
              "  from (select top 100 a as pageKey\r\n"
              "          from T where (y = 1 or y = 2) and a > 7\r\n"
              "         order by a) page");
    EXPECT_EQ(SelectPage(table, Value(7), Value(9)),
              "select a, b\r\n  from T where (y = 1 or y = 2) and a > 7 and a <= 9");
}

}  // namespace
}  // namespace kavelin::snapshot
