// The family of cost-item columns: names, sources and what a result shows of it.
#include "goods/CostItemColumns.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kavelin::test {

namespace {

// "M_StanCost M_RealCost ..." of the columns that a result shows.
std::string Chosen(const std::string& costItem, bool withDifferences)
{
    std::string names;
    for (const CostColumn& column : ChosenCostColumns(costItem, withDifferences))
        names += (names.empty() ? "" : " ") + AmountName("", column).substr(1);
    return names;
}

std::string AmountsOf(std::string_view item)
{
    std::string names;
    for (const CostColumn& column : CostColumns()) {
        const std::string name = AmountName("", column).substr(1);
        if (name.starts_with(std::string(item) + "_"))
            names += (names.empty() ? "" : " ") + name;
    }
    return names;
}

const CostColumn& Find(const std::string& name)
{
    return *std::ranges::find_if(
        CostColumns(), [&](const CostColumn& column) { return AmountName("", column) == "_" + name; });
}

}  // namespace

TEST(CostColumns, AreTheMeasuresOfTheItems)
{
    EXPECT_EQ(AmountsOf("Total"), "Total_StanCost Total_Dif Total_RealCost");
    EXPECT_EQ(AmountsOf("M"), "M_StanCost M_PrcDif M_QuaDif M_RealCost");
    EXPECT_EQ(AmountsOf("Labor"), "Labor_StanCost Labor_PrcDif Labor_QuaDif Labor_SemiDif Labor_RealCost");
    EXPECT_EQ(AmountsOf("ManuFix"),
              "ManuFix_StanCost ManuFix_PrcDif ManuFix_QuaDif ManuFix_SemiDif ManuFix_RealCost");
    EXPECT_EQ(AmountsOf("ManuVar"),
              "ManuVar_StanCost ManuVar_PrcDif ManuVar_QuaDif ManuVar_SemiDif ManuVar_RealCost");
    EXPECT_EQ(AmountsOf("Omp"), "Omp_StanCost Omp_Dif Omp_SemiDif Omp_RealCost");
    EXPECT_EQ(CostTotals().size(), 3u);
    EXPECT_EQ(CostItems().size(), 23u);
    EXPECT_EQ(CostColumns().size(), 26u);
}

TEST(CostColumns, HaveEachASecondOnePerUnit)
{
    std::set<std::string> names;
    for (const CostColumn& column : CostColumns()) {
        const std::string unit = PerUnitName("R", column);
        EXPECT_EQ(unit, column.item == CostItem::Total && column.kind == CostKind::Standard
                            ? "R_Total_UnitCost"
                            : AmountName("R", column).insert(AmountName("R", column).rfind('_') + 1, "Unit"));
        names.insert(unit);
        names.insert(AmountName("R", column));
    }
    EXPECT_EQ(names.size(), 52u);
    EXPECT_EQ(QuantityName("Q"), "Q_Qty");
}

TEST(CostColumns, TakeTheRealCostOfALineFromAllSourcesOfTheItem)
{
    EXPECT_EQ(LineAmount(Find("M_StanCost")), "s.fInvStdPrice");
    EXPECT_EQ(LineAmount(Find("M_RealCost")),
              "(isnull(s.fInvStdPrice,0)+isnull(p.fInvPriceDif,0)+isnull(p.fInvQuanDif,0))");
    EXPECT_EQ(LineAmount(Find("Labor_RealCost")),
              "(isnull(s.fLaborStdPrice,0)+isnull(p.fLbrPriceDif,0)+isnull(p.fLbrQuanDif,0)"
              "+isnull(p.fLbrSemiDif,0))");
    EXPECT_EQ(LineAmount(Find("ManuFix_RealCost")),
              "(isnull(s.fManuFixPrice,0)+isnull(p.fmanufixpricedif,0)+isnull(p.fManuFixQuanDif,0)"
              "+isnull(p.fSemiManuFixDif,0))");
    EXPECT_EQ(LineAmount(Find("ManuVar_RealCost")),
              "(isnull(s.fManuVarPrice,0)+isnull(p.fManuVarPriceDif,0)+isnull(p.fManuVarQuanDif,0)"
              "+isnull(p.fSemiManuVarDif,0))");
    EXPECT_EQ(LineAmount(Find("Omp_RealCost")),
              "(isnull(s.fOmPrice,0)+isnull(p.fOmCostDif,0)+isnull(p.fSemiOmDif,0))");
}

TEST(CostColumns, TotalWhatTheFiveItemsHaveOfAKind)
{
    EXPECT_EQ(TotalAmount("Q", Find("Total_StanCost")),
              "isnull(Q_M_StanCost,0)+isnull(Q_Labor_StanCost,0)+isnull(Q_ManuFix_StanCost,0)"
              "+isnull(Q_ManuVar_StanCost,0)+isnull(Q_Omp_StanCost,0)");
    EXPECT_EQ(TotalAmount("Q", Find("Total_Dif")),
              "isnull(Q_M_PrcDif,0)+isnull(Q_M_QuaDif,0)+isnull(Q_Labor_PrcDif,0)+isnull(Q_Labor_QuaDif,0)"
              "+isnull(Q_Labor_SemiDif,0)+isnull(Q_ManuFix_PrcDif,0)+isnull(Q_ManuFix_QuaDif,0)"
              "+isnull(Q_ManuFix_SemiDif,0)+isnull(Q_ManuVar_PrcDif,0)+isnull(Q_ManuVar_QuaDif,0)"
              "+isnull(Q_ManuVar_SemiDif,0)+isnull(Q_Omp_Dif,0)+isnull(Q_Omp_SemiDif,0)");
    EXPECT_EQ(TotalAmount("E", Find("Total_RealCost")),
              "isnull(E_M_RealCost,0)+isnull(E_Labor_RealCost,0)+isnull(E_ManuFix_RealCost,0)"
              "+isnull(E_ManuVar_RealCost,0)+isnull(E_Omp_RealCost,0)");
}

// It looks like a slip, and it is wanted: every other amount has the type of an amount.
TEST(CostColumns, GiveOnlyTheRealCostOfOutsourcedProcessingTheTypeOfAUnitCost)
{
    for (const CostColumn& column : CostColumns())
        EXPECT_EQ(column.type, AmountName("", column) == "_Omp_RealCost" ? "IA_EnSubsidiary.iInCost"
                                                                         : "IA_EnSubsidiary.iAInPrice")
            << AmountName("", column);
}

TEST(ChosenCostColumns, FollowTheCostItemAndTheDifferencesOfTheAccount)
{
    const struct {
        const char *costItem, *with, *without;
    } cases[] = {
        {"1", "Total_StanCost Total_Dif Total_RealCost", "Total_StanCost Total_RealCost"},
        {"2", "M_StanCost M_PrcDif M_QuaDif M_RealCost", "M_StanCost M_RealCost"},
        {"3", "Labor_StanCost Labor_PrcDif Labor_QuaDif Labor_SemiDif Labor_RealCost",
         "Labor_StanCost Labor_RealCost"},
        {"4", "ManuFix_StanCost ManuFix_PrcDif ManuFix_QuaDif ManuFix_SemiDif ManuFix_RealCost",
         "ManuFix_StanCost ManuFix_RealCost"},
        {"5", "ManuVar_StanCost ManuVar_PrcDif ManuVar_QuaDif ManuVar_SemiDif ManuVar_RealCost",
         "ManuVar_StanCost ManuVar_RealCost"},
        {"6", "Omp_StanCost Omp_Dif Omp_SemiDif Omp_RealCost", "Omp_StanCost Omp_RealCost"},
        {"7", "", ""},
        {"-1", "", ""},
        {"1.5", "", ""},
        {" 2 ", "M_StanCost M_PrcDif M_QuaDif M_RealCost", "M_StanCost M_RealCost"},
        {"2.0", "M_StanCost M_PrcDif M_QuaDif M_RealCost", "M_StanCost M_RealCost"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Chosen(c.costItem, true), c.with) << c.costItem;
        EXPECT_EQ(Chosen(c.costItem, false), c.without) << c.costItem;
    }
}

TEST(ChosenCostColumns, AreAllForTheCostItem0)
{
    EXPECT_EQ(ChosenCostColumns("0", true).size(), 26u);
    EXPECT_EQ(
        Chosen("0", false),
        "Total_StanCost Total_RealCost M_StanCost M_RealCost Labor_StanCost Labor_RealCost"
        " ManuFix_StanCost ManuFix_RealCost ManuVar_StanCost ManuVar_RealCost Omp_StanCost Omp_RealCost");
}

TEST(ChosenCostColumns, RefuseATextThatIsNoNumber)
{
    EXPECT_THROW(ChosenCostColumns("材料", true), ConversionError);
}

}  // namespace kavelin::test
