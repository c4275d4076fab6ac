#include "server/ResultRows.h"

#include <gtest/gtest.h>

namespace kavelin::test::server {
namespace {

using Texts = std::vector<std::string>;
using Row = std::vector<Value>;

ResultRows Rows(std::vector<Row> rows)
{
    return {{"code", "quantity", "amount"}, std::move(rows)};
}

TEST(ResultRows, AreEqualInAnyOrderAndNumberType)
{
    const ResultRows server = Rows({Row{"B", 2, Value::Null()}, Row{"A", Decimal(15, 1), 0.1}});
    const ResultRows embedded = Rows({Row{"A", 1.5, 0.1 + 1e-12}, Row{"B", Decimal(20, 1), Value::Null()}});
    EXPECT_EQ(DifferencesOf(server, embedded), Texts{});
}

TEST(ResultRows, NameRowAndColumnOfADifference)
{
    EXPECT_EQ(DifferencesOf(Rows({Row{"A", 1, 2}, Row{"B", 3, Decimal(41, 1)}}),
                            Rows({Row{"A", 1, 2}, Row{"B", 3, Decimal(42, 1)}})),
              Texts{"row 2, column amount: server 4.1, embedded 4.2"});
}

TEST(ResultRows, TellNullFromTheEmptyTextAndBlanksAtTheEnd)
{
    EXPECT_EQ(DifferencesOf(Rows({Row{"", 1, 1}}), Rows({Row{Value::Null(), 1, 1}})),
              Texts{"row 1, column code: server '', embedded NULL"});
    EXPECT_EQ(DifferencesOf(Rows({Row{"a ", 1, 1}}), Rows({Row{"a", 1, 1}})),
              Texts{"row 1, column code: server 'a ', embedded 'a'"});
}

TEST(ResultRows, TellRowsThatOneSideLacks)
{
    EXPECT_EQ(DifferencesOf(Rows({Row{"A", 1, 2}}), Rows({})),
              (Texts{"rows: server 1, embedded 0", "row 1: only on the server: 'A', 1, 2"}));
    EXPECT_EQ(DifferencesOf(Rows({}), Rows({Row{"A", 1, 2}, Row{"A", 1, 2}})),
              (Texts{"rows: server 0, embedded 2", "row 1: only in the embedded account: 'A', 1, 2",
                     "row 2: only in the embedded account: 'A', 1, 2"}));
}

TEST(ResultRows, CountARowAsOftenAsItStandsThere)
{
    EXPECT_EQ(
        DifferencesOf(Rows({Row{"A", 1, 2}, Row{"A", 1, 2}}), Rows({Row{"A", 1, 2}, Row{"B", 7, 9}})),
        (Texts{"row 2: only on the server: 'A', 1, 2", "row 2: only in the embedded account: 'B', 7, 9"}));
}

TEST(ResultRows, TellOtherColumnsFirst)
{
    EXPECT_EQ(DifferencesOf({{"a"}, {}}, {{"b"}, {}}), Texts{"columns: server a; embedded b"});
}

}  // namespace
}  // namespace kavelin::test::server
