// What the written text of a tree doesn't show: places, kinds of nodes, what is left empty.
#include "embedded/syntax/SyntaxTestSupport.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

std::string_view At(std::string_view text, Place place)
{
    return text.substr(place.offset, place.length);
}

template <class Node>
const Node& As(const StatementPtr& statement)
{
    return std::get<Node>(statement->node);
}

TEST(ParserTree, NodesKnowTheirPlace)
{
    const std::string_view text =
        " select a + N'直'  * (c) as x from tempdb..[T] t where not a in (1, 2)\r\ndrop table #a";
    const auto statements = ParseBatch(text);
    ASSERT_EQ(statements.size(), 2u);
    EXPECT_EQ(At(text, statements[0]->place),
              "select a + N'直'  * (c) as x from tempdb..[T] t where not a in (1, 2)");
    EXPECT_EQ(At(text, statements[1]->place), "drop table #a");

    const Query& query = *As<SelectStatement>(statements[0]).query;
    EXPECT_EQ(query.place.offset, 1u);
    const Select& select = query.selects.at(0);
    const Expr& sum = *select.items.at(0).expression;
    EXPECT_EQ(At(text, sum.place), "a + N'直'  * (c)");
    const Expr& product = *std::get<Arithmetic>(sum.node).right;
    EXPECT_EQ(At(text, product.place), "N'直'  * (c)");
    const Expr& bracketed = *std::get<Arithmetic>(product.node).right;
    EXPECT_EQ(At(text, bracketed.place), "(c)");
    EXPECT_EQ(At(text, std::get<Brackets>(bracketed.node).inner->place), "c");
    EXPECT_EQ(At(text, select.items.at(0).alias->place), "x");

    EXPECT_EQ(At(text, select.from.at(0)->place), "tempdb..[T] t");
    const ObjectName& name = std::get<NamedTable>(select.from.at(0)->node).name;
    EXPECT_EQ(At(text, name.place), "tempdb..[T]");
    EXPECT_EQ(At(text, name.object.place), "[T]");
    EXPECT_EQ(At(text, select.where->place), "not a in (1, 2)");
    EXPECT_EQ(At(text, std::get<NotExpr>(select.where->node).operand->place), "a in (1, 2)");
}

TEST(ParserTree, AViewKnowsTheTextOfItsQuery)
{
    const std::string_view text = "create view V as  select a from T  where b = 1 \r\n";
    const auto statements = ParseBatch(text);
    EXPECT_EQ(At(text, As<CreateViewStatement>(statements.at(0)).query->place),
              "select a from T  where b = 1");
}

TEST(ParserTree, NamesAreKeptWithoutTheirBrackets)
{
    const auto statements = ParseBatch("drop table x, [a]]b], dbo.x, tempdb..[x], Tempdb.dbo.x");
    const auto& objects = As<DropStatement>(statements.at(0)).objects;
    ASSERT_EQ(objects.size(), 5u);
    EXPECT_FALSE(objects[0].database || objects[0].schema);
    EXPECT_FALSE(objects[0].object.bracketed);
    EXPECT_EQ(objects[1].object.text, "a]b");
    EXPECT_TRUE(objects[1].object.bracketed);
    EXPECT_EQ(objects[2].schema->text, "dbo");
    EXPECT_FALSE(objects[2].database);
    EXPECT_EQ(objects[3].database->text, "tempdb");
    EXPECT_FALSE(objects[3].schema);
    EXPECT_EQ(objects[4].database->text, "Tempdb");
    EXPECT_EQ(objects[4].schema->text, "dbo");
}

TEST(ParserTree, AColumnHasTheNameOfItsTableInFrontOfIt)
{
    const auto statements = ParseBatch("select c, t.c, dbo.t.c, v..t.[c], v.dbo.t.c");
    const auto& items = As<SelectStatement>(statements.at(0)).query->selects.at(0).items;
    const auto column = [&](std::size_t i) -> const ColumnRef& {
        return std::get<ColumnRef>(items[i].expression->node);
    };
    EXPECT_FALSE(column(0).table);
    EXPECT_EQ(column(1).table->object.text, "t");
    EXPECT_EQ(column(2).table->schema->text, "dbo");
    EXPECT_EQ(column(3).table->database->text, "v");
    EXPECT_FALSE(column(3).table->schema);
    EXPECT_TRUE(column(3).column.bracketed);
    EXPECT_EQ(column(4).table->schema->text, "dbo");
}

TEST(ParserTree, ASignIsAnOperator)  // L7
{
    const auto statements = ParseBatch("select -100, 07");
    const auto& items = As<SelectStatement>(statements.at(0)).query->selects.at(0).items;
    const Signed& negative = std::get<Signed>(items[0].expression->node);
    EXPECT_EQ(negative.sign, Sign::Minus);
    EXPECT_EQ(std::get<NumberLiteral>(negative.operand->node).text, "100");
    EXPECT_EQ(std::get<NumberLiteral>(items[1].expression->node).text, "07");
}

TEST(ParserTree, AliasesKnowTheirForm)  // N8, N9, N10
{
    const auto statements = ParseBatch("select a, a x, a as x, a as 'x', a as [x]");
    const auto& items = As<SelectStatement>(statements.at(0)).query->selects.at(0).items;
    const AliasForm forms[] = {AliasForm::None, AliasForm::Bare, AliasForm::As, AliasForm::Text,
                               AliasForm::As};
    for (std::size_t i = 0; i < std::size(forms); ++i) {
        EXPECT_EQ(items.at(i).form, forms[i]) << i;
        EXPECT_EQ(items[i].alias.has_value(), i > 0) << i;
    }
}

TEST(ParserTree, BracketsAroundAQueryAreThoseOfTheSubquery)
{
    const auto statements = ParseBatch("select (select 1), ((select 2))");
    const auto& items = As<SelectStatement>(statements.at(0)).query->selects.at(0).items;
    EXPECT_TRUE(std::holds_alternative<ScalarSubquery>(items[0].expression->node));
    const auto& outer = std::get<Brackets>(items[1].expression->node);
    EXPECT_TRUE(std::holds_alternative<ScalarSubquery>(outer.inner->node));
}

TEST(ParserTree, JoinsGoFromTheLeft)
{
    const auto statements = ParseBatch("select 1 from A inner join B on 1=1 left join C on 2=2, D");
    const auto& from = As<SelectStatement>(statements.at(0)).query->selects.at(0).from;
    ASSERT_EQ(from.size(), 2u);
    const auto& outer = std::get<JoinedTable>(from[0]->node);
    EXPECT_EQ(outer.kind, JoinKind::Left);
    EXPECT_EQ(std::get<NamedTable>(outer.right->node).name.object.text, "C");
    const auto& inner = std::get<JoinedTable>(outer.left->node);
    EXPECT_EQ(inner.kind, JoinKind::Inner);
    EXPECT_EQ(std::get<NamedTable>(inner.left->node).name.object.text, "A");
}

TEST(ParserTree, ColumnsKnowWhatWasWrittenAndWhatWasNot)  // S14, S15
{
    const auto statements = ParseBatch(
        "create table T (a int, b nvarchar (30) NULL, c decimal(38, 6) NOT NULL DEFAULT (0), d varchar(max), "
        "e int identity(-3, +2) primary key)");
    const auto& columns = As<CreateTableStatement>(statements.at(0)).columns;
    ASSERT_EQ(columns.size(), 5u);
    EXPECT_FALSE(columns[0].nullable.has_value());
    EXPECT_FALSE(columns[0].type.first.has_value());
    EXPECT_EQ(columns[1].nullable, true);
    EXPECT_EQ(columns[1].type.first, 30);
    EXPECT_FALSE(columns[1].type.second.has_value());
    EXPECT_EQ(columns[2].nullable, false);
    EXPECT_EQ(columns[2].type.second, 6);
    ASSERT_NE(columns[2].defaultValue, nullptr);
    EXPECT_EQ(columns[3].type.first, -1);
    EXPECT_EQ(columns[3].defaultValue, nullptr);
    EXPECT_TRUE(columns[4].identity && columns[4].primaryKey);
    EXPECT_EQ(columns[4].seed, -3);
    EXPECT_EQ(columns[4].increment, 2);
    EXPECT_FALSE(columns[4].nullable.has_value());
}

TEST(ParserTree, WhatIsNotWrittenIsEmpty)
{
    const auto statements = ParseBatch("select 1 delete T update T set a = case when 1=1 then 2 end");
    const Select& select = As<SelectStatement>(statements.at(0)).query->selects.at(0);
    EXPECT_FALSE(select.top || select.into || select.where || select.having || select.distinct);
    EXPECT_TRUE(select.from.empty() && select.groupBy.empty());
    EXPECT_FALSE(As<DeleteStatement>(statements.at(1)).where);
    const Assignment& assignment = As<UpdateStatement>(statements.at(2)).assignments.at(0);
    EXPECT_FALSE(assignment.table);
    const auto& made = std::get<CaseExpr>(assignment.value->node);
    EXPECT_FALSE(made.operand || made.otherwise);
}

}  // namespace
}  // namespace kavelin::embedded
