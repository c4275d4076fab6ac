// Column lists and sums of the goods-in-transit template, alone.
#include "goods/TemplateClasses.h"
#include "goods/TemplateColumns.h"
#include "goods/TemplateJoins.h"
#include "goods/TemplateStatements.h"
#include "support/ScriptedRecordset.h"

#include <gtest/gtest.h>

#include <set>

namespace kavelin::test {

namespace {

ClassColumns Compose(const std::vector<std::vector<Value>>& rows)
{
    ScriptedRecordset classes({{"cRdCode", "bRdFlag", "cRdName"}, rows}, CursorType::ForwardOnly);
    return ComposeClassColumns(classes);
}

bool Has(const std::string& text, const std::string& piece)
{
    return text.find(piece) != text.npos;
}

}  // namespace

TEST(BuildDimensionColumns, LeavesTheInventoryOutOfTheFormByClass)
{
    const std::string byInventory = BuildDimensionColumns(0);
    for (const std::int32_t grade : {1, 2, -1}) {
        const std::string byClass = BuildDimensionColumns(grade);
        EXPECT_EQ(byClass, BuildDimensionColumns(1));
        for (const char* only : {"存货_编码", "存货_代码", "存货_名称", "存货_规格", "存货_单位", "存货_重量",
                                 "存货_辅计量单位", "存货_辅计量换算率", "cInvDefine1", "cInvDefine16"}) {
            EXPECT_TRUE(Has(byInventory, only)) << only;
            EXPECT_FALSE(Has(byClass, only)) << only;
        }
        for (const char* both : {"仓库_编码", "存货大类_编码", "业务类型", "批号", "cFree10", "cDefine37"}) {
            EXPECT_TRUE(Has(byInventory, both)) << both;
            EXPECT_TRUE(Has(byClass, both)) << both;
        }
    }
}

TEST(BuildDimensionColumns, LeavesOutTheUserFieldsSeventeenToTwentyOne)
{
    for (int number = 17; number <= 21; ++number)
        EXPECT_FALSE(Has(BuildDimensionColumns(0), "cDefine" + std::to_string(number)));
}

// The opening columns end in 入 also for issues, which lower the opening by their sign.
TEST(BuildOpeningColumns, SubtractsIssuesInColumnsThatAdd)
{
    EXPECT_EQ(
        BuildOpeningColumns(TemplatePass::Opening),
        ",case when Isnull(ComputationUnit.iChangRate,0)>0 then (case Ia_Ensubsidiary.bRdFlag when 1 then"
        " Isnull(Ia_Ensubsidiary.iAInQuantity,0) else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end)"
        "/ComputationUnit.iChangRate else 0 end AS N'期初_件数入'\r\n"
        ",(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInQuantity,0)"
        " else -1*Isnull(Ia_Ensubsidiary.iAOutQuantity,0) end) AS N'期初_数量入'\r\n"
        ",(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0)"
        " else -1*Isnull(Ia_Ensubsidiary.iAOutPrice,0) end) AS N'期初_金额入'\r\n");
    EXPECT_EQ(BuildOpeningColumns(TemplatePass::Movement),
              ",cast(0 as float) AS N'期初_件数入'\r\n,cast(0 as float) AS N'期初_数量入'\r\n"
              ",cast(0 as float) AS N'期初_金额入'\r\n");
}

TEST(BuildPlainMovementColumns, HasZerosInTheOpening)
{
    EXPECT_EQ(BuildPlainMovementColumns(TemplatePass::Opening),
              ",cast(0 as float) AS N'收入_件数入'\r\n,cast(0 as float) AS N'收入_数量入'\r\n"
              ",cast(0 as float) AS N'收入_金额入'\r\n,cast(0 as float) AS N'发出_件数出'\r\n"
              ",cast(0 as float) AS N'发出_数量出'\r\n,cast(0 as float) AS N'发出_金额出'\r\n");
    const std::string movement = BuildPlainMovementColumns(TemplatePass::Movement);
    EXPECT_TRUE(
        Has(movement,
            ",(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary.iAInPrice,0) else 0 end)"
            " AS N'收入_金额入'"));
    EXPECT_TRUE(Has(movement,
                    ",(case Ia_Ensubsidiary.bRdFlag when 0 then Isnull(Ia_Ensubsidiary.iAOutQuantity,0)"
                    " else 0 end) AS N'发出_数量出'"));
}

TEST(ComposeClassColumns, NamesThreeColumnsOfEachClassByItsDirection)
{
    const ClassColumns columns = Compose({{"101", 1, "采购入库"}, {"202", 0, "销售出库"}});
    EXPECT_EQ(columns.strZeros,
              ",cast(0 as float) AS N'采购入库_件数入',cast(0 as float) AS N'采购入库_数量入'"
              ",cast(0 as float) AS N'采购入库_金额入',cast(0 as float) AS N'销售出库_件数出'"
              ",cast(0 as float) AS N'销售出库_数量出',cast(0 as float) AS N'销售出库_金额出'");
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case left(cRdCode,) when N'101' then Isnull(Ia_Ensubsidiary.iAInQuantity,0) else 0 end"
                    " AS N'采购入库_数量入'"));
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case left(cRdCode,) when N'202' then Isnull(Ia_Ensubsidiary.iAOutPrice,0) else 0 end"
                    " AS N'销售出库_金额出'"));
}

// Of the issues without a class the amount alone asks for the direction.
TEST(ComposeClassColumns, AsksForTheDirectionOnlyInTheAmountOfUnclassifiedIssues)
{
    const ClassColumns columns =
        Compose({{Value::Null(), 1, Value::Null()}, {Value::Null(), 0, Value::Null()}});
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case when cRdCode is null then Isnull(Ia_Ensubsidiary.iAInPrice,0) else 0 end"
                    " AS N'无分类入_金额入'"));
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case when cRdCode is null then Isnull(Ia_Ensubsidiary.iAOutQuantity,0) else 0 end"
                    " AS N'无分类出_数量出'"));
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case Ia_Ensubsidiary.bRdFlag when 0 then (case when cRdCode is null then"
                    " Isnull(Ia_Ensubsidiary.iAOutPrice,0) else 0 end) else 0 end AS N'无分类出_金额出'"));
    EXPECT_TRUE(Has(columns.strColumns,
                    ",case when cRdCode is null then case when Isnull(ComputationUnit.iChangRate,0)>0 then"
                    " Isnull(Ia_Ensubsidiary.iAInQuantity,0)/ComputationUnit.iChangRate else 0 end else 0 end"
                    " AS N'无分类入_件数入'"));
}

TEST(ComposeClassColumns, TakesOneAndMinusOneForReceiptsAndAllElseForIssues)
{
    const struct {
        Value flag;
        const char* suffix;
    } cases[] = {{1, "入'"}, {-1, "入'"}, {true, "入'"}, {0, "出'"}, {2, "出'"}, {Value::Null(), "出'"}};
    for (const auto& c : cases) {
        const std::string zeros = Compose({{"101", c.flag, "类"}}).strZeros;
        EXPECT_TRUE(zeros.ends_with(c.suffix)) << zeros;
    }
}

// Every kind of voucher is read once, whatever the merge value.
TEST(VoucherGroups, AreFourWithTheMergeValueOneAndThreeWithAnyOther)
{
    const auto conditions = [](std::string_view merge) {
        std::vector<std::string> taken;
        for (const VoucherGroup& group : VoucherGroups())
            if (Takes(group, merge))
                taken.emplace_back(group.condition);
        return taken;
    };
    EXPECT_EQ(conditions("1"), (std::vector<std::string>{
                                   " And  Ia_Ensubsidiary.cvoutype In (N'26', N'27', N'28', N'29')",
                                   " And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6')",
                                   " And Ia_Ensubsidiary.cvoutype In (N'3201')",
                                   " And Ia_Ensubsidiary.cvoutype In (N'65', N'66')",
                               }));
    for (const char* other : {"", "0", "是", "否", "True", " 1", "01"})
        EXPECT_EQ(conditions(other),
                  (std::vector<std::string>{
                      " And  Ia_Ensubsidiary.cvoutype In (N'26', N'27', N'28', N'29')",
                      " And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6',N'3201')",
                      " And Ia_Ensubsidiary.cvoutype In (N'65', N'66')",
                  }))
            << other;
}

TEST(JoinTemplate, ReachesTheSourceDocumentInFourWays)
{
    const auto joinsOf = [](std::size_t group) { return JoinTemplate(VoucherGroups()[group].joins, 3); };
    const auto count = [](const std::string& text, const std::string& piece) {
        std::size_t found = 0;
        for (std::size_t at = text.find(piece); at != text.npos; at = text.find(piece, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count(joinsOf(0), "1=2"), 0u);
    for (const std::size_t group : {1u, 2u, 3u, 4u})
        EXPECT_EQ(count(joinsOf(group), "1=2"), 2u) << group;
    EXPECT_FALSE(Has(joinsOf(1), "cSrcVouType='3201'"));
    for (const std::size_t group : {0u, 2u, 3u, 4u})
        EXPECT_TRUE(Has(joinsOf(group), "cSrcVouType='3201'")) << group;
    EXPECT_EQ(joinsOf(2), joinsOf(3));
    EXPECT_TRUE(Has(joinsOf(0), "ComputationUnit.iNumber = 3) \r\n"));
    EXPECT_TRUE(Has(joinsOf(4), "Ia_Ensubsidiary.iSrcID = DispatchLists.idlsid"));
}

TEST(BuildSums, ReadsTheMeaningOfAFieldFromItsLastThreeCharacters)
{
    const TemplateSums sums = BuildSums({"仓库_编码", "批号", "期初_件数入", "期初_数量入", "期初_金额入",
                                         "发出_件数出", "发出_数量出", "发出_金额出"});
    EXPECT_EQ(sums.strSelect,
              "仓库_编码, 批号, Sum(期初_件数入) As 期初_件数, Sum(期初_数量入) As 期初_数量"
              ",cast( Sum(期初_金额入) as decimal(38,2)) As 期初_金额, Sum(发出_件数出) As 发出_件数"
              ", Sum(发出_数量出) As 发出_数量,cast( Sum(发出_金额出) as decimal(38,2)) As 发出_金额"
              ",Sum(0+期初_件数入-发出_件数出) As 结存_件数, Sum(0+期初_数量入-发出_数量出) As 结存_数量"
              ", cast(Sum(0+期初_金额入-发出_金额出) as decimal(38,2)) As 结存_金额");
    EXPECT_EQ(sums.strGroupBy, " Group By 仓库_编码, 批号");
    EXPECT_EQ(
        sums.strHaving,
        " Having  cast( Sum(期初_数量入) as decimal(38,8)) <> 0 or cast( Sum(期初_金额入) as decimal(38,2)) <> 0"
        " or cast( Sum(发出_数量出) as decimal(38,8)) <> 0 or cast( Sum(发出_金额出) as decimal(38,2)) <> 0");
}

TEST(BuildSums, ClosesWithZerosWhereNoFieldIsAMeasure)
{
    const TemplateSums sums = BuildSums({"入", "数量", "件数_入"});
    EXPECT_EQ(
        sums.strSelect,
        "入, 数量, 件数_入,Sum(0) As 结存_件数, Sum(0) As 结存_数量, cast(Sum(0) as decimal(38,2)) As 结存_金额");
    EXPECT_EQ(sums.strGroupBy, " Group By 入, 数量, 件数_入");
    EXPECT_EQ(sums.strHaving, "");
}

TEST(BuildSums, DoesNotKeepAGroupForItsPiecesAlone)
{
    EXPECT_EQ(BuildSums({"a", "收入_件数入"}).strHaving, "");
}

}  // namespace kavelin::test
