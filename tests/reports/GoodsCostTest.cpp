// The two reports on goods in transit by cost item on the demo companies, beside what the ledger tells.
#include "demo/profiles/Profile.h"
#include "host/FilterTemplate.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

namespace {

const std::string kYear = "IA_EnSubsidiary.iYear=2008";
const std::string kAllMonths = "IA_EnSubsidiary.iMonth=";  // the dialog would choose the current one

// What a line of the ledger `a` has cost: as it should, and by how much it differs.
constexpr const char* kStandard =
    "(isnull(s.fInvStdPrice,0) + isnull(s.fLaborStdPrice,0) + isnull(s.fManuFixPrice,0)"
    " + isnull(s.fManuVarPrice,0) + isnull(s.fOmPrice,0))";
constexpr const char* kDifference =
    "(isnull(p.fInvPriceDif,0) + isnull(p.fInvQuanDif,0) + isnull(p.fLbrPriceDif,0) + isnull(p.fLbrQuanDif,0)"
    " + isnull(p.fLbrSemiDif,0) + isnull(p.fManuFixPriceDif,0) + isnull(p.fManuFixQuanDif,0)"
    " + isnull(p.fSemiManuFixDif,0) + isnull(p.fManuVarPriceDif,0) + isnull(p.fManuVarQuanDif,0)"
    " + isnull(p.fSemiManuVarDif,0) + isnull(p.fOmCostDif,0) + isnull(p.fSemiOmDif,0))";

constexpr const char* kLedger =
    " from IA_EnSubsidiary a left join IA_EnSubsidiary_STSub s on s.iIAEnSubID = a.AutoID"
    " left join pl_co_EnSubsidiary p on p.iIASubID = a.AutoID left join Inventory i on i.cInvCode = a.cInvCode"
    " left join Customer c on c.cCusCode = a.cCusCode where a.iYear = 2008";

// An inventory, and the value of its free item 1 if it keeps one.
struct Goods {
    std::string code, free;

    std::vector<std::string> Settings(const std::string& table) const
    {
        std::vector<std::string> settings = {table + ".cInvCode=" + code};
        if (!free.empty())
            settings.push_back(table + ".cFree1=" + free);
        return settings;
    }
    std::string Condition() const
    {
        return " and cInvCode = '" + code + "'" + (free.empty() ? "" : " and cFree1 = N'" + free + "'");
    }
};

std::string Rounded(const std::string& quantity)
{
    return "cast(isnull(" + quantity + ",0) as decimal(38,4))";
}

std::string SumWhere(const std::string& condition, const std::string& value)
{
    return "sum(case when " + condition + " then " + value + " else 0 end)";
}

// Quantities and real costs of all lines that meet `condition`: opening, received, dispatched, end.
std::string LedgerSums(const std::string& opening, const std::string& movement, const std::string& condition)
{
    const std::string in = "isnull(a.iAInQuantity,0)", out = "isnull(a.iAOutQuantity,0)";
    const std::string cost = "(" + std::string(kStandard) + " + " + kDifference + ")";
    const std::string sign = "(case when a.bRdFlag = 1 then 1 else -1 end)";
    const std::string any = "(" + opening + " or " + movement + ")";
    return "select " + Rounded(SumWhere(opening, in + " - " + out)) + "," +
           SumWhere(opening, sign + " * " + cost) + "," + Rounded(SumWhere(movement, in)) + "," +
           SumWhere(movement + " and a.bRdFlag = 1", cost) + "," + Rounded(SumWhere(movement, out)) + "," +
           SumWhere(movement + " and a.bRdFlag = 0", cost) + "," + Rounded(SumWhere(any, in + " - " + out)) +
           "," + SumWhere(any, sign + " * " + cost) + kLedger + condition;
}

// The same of the summary.
std::string SummarySums()
{
    std::string columns;
    for (const std::string prefix : {"Q", "R", "D", "E"})
        columns += (columns.empty() ? "" : ",") + Rounded("sum(" + prefix + "_Qty)") + ",isnull(sum(" +
                   prefix + "_Total_RealCost),0)";
    return "select " + columns + " from {}";
}

class GoodsCostOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& objProfile = *demo::FindProfile(GetParam());

    AccountReport Run(const std::string& report, std::vector<std::string> settings = {})
    {
        settings.push_back(kYear);
        AccountReport run(objProfile, report, settings);
        EXPECT_TRUE(run.Messages().empty()) << report << " " << settings.front();
        return run;
    }

    bool HasDifferences()
    {
        AccountReport any(objProfile, "goods-cost-summary", {kYear, "CostItem=1"});
        return any.Rows("select cValue from AccInformation where cSysID = 'CA' and cName = 'iCyFtMethod'") ==
               "1\n";
    }

    // The inventories of the ledger with the fewest and the most lines, and one that keeps a free item, of which
    // one value is taken.
    std::vector<Goods> SomeGoods()
    {
        AccountReport any(objProfile, "goods-cost-summary", {kYear, "CostItem=1"});
        const auto all = any.Table(
            "select a.cInvCode, case when i.bCheckFree1 = 1 then max(a.cFree1) else '' end"
            " from IA_EnSubsidiary a inner join Inventory i on i.cInvCode = a.cInvCode where a.iYear = 2008"
            " group by a.cInvCode, i.bCheckFree1 order by count(*), a.cInvCode");
        std::vector<Goods> chosen = {{all.front()[0], all.front()[1]}};
        for (const auto& row : all)
            if (chosen.size() == 1 && !row[1].empty())
                chosen.push_back({row[0], row[1]});
        chosen.push_back({all.back()[0], all.back()[1]});
        return chosen;
    }
};

}  // namespace

// Quantities, standard costs and differences of each source line.
TEST_P(GoodsCostOf, SummaryBalancesEverySourceLineOfTheYear)
{
    AccountReport report = Run("goods-cost-summary");
    const std::string in = "isnull(a.iAInQuantity,0)", out = "isnull(a.iAOutQuantity,0)";
    const std::string sign = "(case when a.bRdFlag = 1 then 1 else -1 end)";
    const std::string cost = "(" + std::string(kStandard) + " + " + kDifference + ")";
    const std::string quantity = Rounded("sum(" + in + " - " + out + ")");
    const std::string ledger = "select a.iSrcID, a.cSrcVouType, " + quantity + ", sum(" + sign + " * " +
                               kStandard + "), sum(" + sign + " * " + cost + ")" + kLedger +
                               " group by a.iSrcID, a.cSrcVouType having " + quantity + " <> 0 or sum(" +
                               sign + " * " + cost + ") <> 0 order by a.cSrcVouType, a.iSrcID";
    EXPECT_EQ(report.Rows("select iSrcID, cSRcVoutype, " + Rounded("E_Qty") +
                          ", E_Total_StanCost, E_Total_RealCost from {} where " + Rounded("E_Qty") +
                          " <> 0 or E_Total_RealCost <> 0 order by cSRcVoutype, iSrcID"),
              report.Rows(ledger));
    EXPECT_EQ(
        report.Rows("select count(*) from {} where isnull(Q_Total_RealCost,0) + isnull(R_Total_RealCost,0)"
                    " - isnull(D_Total_RealCost,0) <> E_Total_RealCost"),
        "0\n");
    EXPECT_EQ(
        report.Rows("select count(*) from {} where cInvCode is null or cInvName is null or EnumName is null"
                    " or cWhName is null or (cDLCode is null and cCode is null)"),
        "0\n");
}

TEST_P(GoodsCostOf, SummaryOpensWithWhatLiesBeforeThePeriod)
{
    for (const std::string column : {"dVouDate", "dKeepDate"}) {
        AccountReport report =
            Run("goods-cost-summary", {"Ia_Ensubsidiary." + column + "=2008-03-01..2008-07-31"});
        EXPECT_EQ(report.Rows(SummarySums()),
                  report.Rows(LedgerSums(
                      "(a.iMonth = 0 or a." + column + " < '2008-03-01')",
                      "(a.iMonth <> 0 and a." + column + " between '2008-03-01' and '2008-07-31')", "")))
            << column;
    }
}

TEST_P(GoodsCostOf, SummaryTakesEveryKeyOfItsFilter)
{
    const struct {
        const char *setting, *condition;
    } cases[] = {
        {"Ia_Ensubsidiary.cBustype=委托代销", " and a.cBusType in (N'委托代销', N'委托')"},
        {"Ia_Ensubsidiary.cBustype=分期收款", " and a.cBusType = N'分期收款'"},
        {"Ia_Ensubsidiary.cBustype=全部", ""},
        {"Ia_Ensubsidiary.cWhCode=02", " and a.cWhCode = '02'"},
        {"Ia_Ensubsidiary.cAccDep=0301..0403", " and a.cAccDep between '0301' and '0403'"},
        {"Ia_Ensubsidiary.cCusCode=C001..C004", " and a.cCusCode between 'C001' and 'C004'"},
        {"Ia_Ensubsidiary.cPersonCode=P01..P05", " and a.cPersonCode between 'P01' and 'P05'"},
        {"Ia_Ensubsidiary.cRdCode=202..207", " and a.cRdCode between '202' and '207'"},
        {"Ia_Ensubsidiary.cBatchia=P0803", " and a.cBatchIA = 'P0803'"},
        {"Ia_Ensubsidiary.cItem_class=00", " and a.cItem_class = '00'"},
        {"Ia_Ensubsidiary.cItemCode=HT-0801..HT-0804", " and a.cItemCode between 'HT-0801' and 'HT-0804'"},
        {"Ia_Ensubsidiary.cFree1=红", " and a.cFree1 = N'红'"},
        {"Ia_Ensubsidiary.cFree10=红", " and a.cFree10 = N'红'"},
        {"Ia_Ensubsidiary.cInvCode=PMP-01-001", " and a.cInvCode = 'PMP-01-001'"},
        {"Inventory.cInvCCode=01", " and i.cInvCCode like '01%'"},
        {"Customer.cCCCode=01..02", " and c.cCCCode between '01' and '02'"},
        {"iUnitNumber=1", ""},
        {"cDLCode=FH-0801-0001..FH-0806-9999",
         " and a.cSrcVouType in ('05','06','5','6') and exists (select * from DispatchLists l inner join DispatchList"
         " h on h.DLID = l.DLID where l.iDLsID = a.iSrcID and h.cDLCode between 'FH-0801-0001' and 'FH-0806-9999')"},
        {"cCode=XC-0801-0001..XC-0806-9999",
         " and a.cSrcVouType = '3201' and exists (select * from rdrecords32 l inner join rdrecord32 h on h.ID = l.ID"
         " where l.AutoID = a.iSrcID and h.cCode between 'XC-0801-0001' and 'XC-0806-9999')"},
    };
    for (const auto& c : cases) {
        AccountReport report = Run("goods-cost-summary", {c.setting});
        const std::string wanted = report.Rows(LedgerSums("a.iMonth = 0", "a.iMonth <> 0", c.condition));
        if (wanted.find("NULL") == wanted.npos)
            EXPECT_EQ(report.Rows(SummarySums()), wanted) << c.setting;
        else
            EXPECT_EQ(report.Rows("select count(*) from {}"), "0\n") << c.setting;
    }
}

// Lines, quantities and opening of an inventory under each condition, as the ledger has them.
TEST_P(GoodsCostOf, LedgerTakesEveryKeyOfItsFilter)
{
    const struct {
        const char *setting, *condition;
        const char *opening = "a.iMonth = 0", *movement = "a.iMonth > 0";
    } cases[] = {
        {"CostItem=2", ""},
        {"IA_EnSubsidiary.iMonth=3月..7月", "", "a.iMonth < 3", "a.iMonth between 3 and 7"},
        {"IA_EnSubsidiary.iMonth=9月..", "", "a.iMonth < 9", "a.iMonth >= 9"},
        {"Ia_Ensubsidiary.cBustype=委托代销", " and a.cBusType in (N'委托代销', N'委托')"},
        {"Ia_Ensubsidiary.cBustype=分期收款", " and a.cBusType = N'分期收款'"},
        {"Ia_Ensubsidiary.cBustype=普通销售", " and a.cBusType = N'普通销售'"},
        {"Ia_Ensubsidiary.cBustype=全部", ""},
        {"Ia_Ensubsidiary.cWhCode=02", " and a.cWhCode = '02'"},
        {"Ia_Ensubsidiary.cAccDep=0301..0403", " and a.cAccDep between '0301' and '0403'"},
        {"Ia_Ensubsidiary.cCusCode=C001..C004", " and a.cCusCode between 'C001' and 'C004'"},
        {"Ia_Ensubsidiary.cPersonCode=P01..P05", " and a.cPersonCode between 'P01' and 'P05'"},
        {"Ia_Ensubsidiary.cRdCode=202..207", " and a.cRdCode between '202' and '207'"},
        {"Ia_Ensubsidiary.cBatchia=P0803", " and a.cBatchIA = 'P0803'"},
        {"Ia_Ensubsidiary.cItem_class=00", " and a.cItem_class = '00'"},
        {"Ia_Ensubsidiary.cItemCode=HT-0801..HT-0804", " and a.cItemCode between 'HT-0801' and 'HT-0804'"},
        {"IA_EnSubsidiary.cFree2=红", " and a.cFree2 = N'红'"},
        {"IA_EnSubsidiary.cFree10=红", " and a.cFree10 = N'红'"},
    };
    // The free items are one family, and without year and item there is no ledger.
    for (const host::FilterField& field : host::TemplateOf("goods-cost-ledger").fields) {
        const bool asked = std::ranges::any_of(
            cases, [&](const auto& c) { return std::string_view(c.setting).starts_with(field.key + "="); });
        EXPECT_TRUE(asked || field.key.starts_with("IA_EnSubsidiary.cFree") || field.mandatory) << field.key;
    }

    const Goods goods = SomeGoods().back();
    for (const auto& c : cases) {
        std::vector<std::string> settings = goods.Settings("IA_EnSubsidiary");
        if (!std::string_view(c.setting).starts_with("IA_EnSubsidiary.iMonth"))
            settings.push_back(kAllMonths);
        settings.push_back(c.setting);
        AccountReport report = Run("goods-cost-ledger", settings);
        const std::string of =
            " from IA_EnSubsidiary a where a.iYear = 2008" + goods.Condition() + c.condition;
        EXPECT_EQ(report.Rows("select count(*)," + Rounded("sum(R_Qty)") + "," + Rounded("sum(D_Qty)") +
                              " from {} where flag = 1"),
                  report.Rows("select count(*)," + Rounded("sum(a.iAInQuantity)") + "," +
                              Rounded("sum(a.iAOutQuantity)") + of + " and " + c.movement))
            << c.setting;
        EXPECT_EQ(
            report.Rows("select " + Rounded("E_Qty") + " from {} where flag = 0"),
            report.Rows("select " + Rounded("sum(isnull(a.iAInQuantity,0) - isnull(a.iAOutQuantity,0))") +
                        of + " and " + c.opening))
            << c.setting;
    }
}

// Each cost item alone shows what all of them show together, and differences only where the account keeps them.
TEST_P(GoodsCostOf, ReportsShowTheCostItemThatIsAskedFor)
{
    const char* names[] = {"", "Total", "M", "Labor", "ManuFix", "ManuVar", "Omp"};
    const bool withDifferences = HasDifferences();
    const std::vector<std::string> ofGoods = SomeGoods().back().Settings("IA_EnSubsidiary");
    for (const std::string report : {"goods-cost-summary", "goods-cost-ledger"}) {
        const std::vector<std::string> always =
            report == "goods-cost-ledger" ? ofGoods : std::vector<std::string>();
        AccountReport all = Run(report, always);
        for (int item = 1; item <= 6; ++item) {
            const std::string name = names[item], other = names[item == 6 ? 1 : item + 1];
            std::vector<std::string> settings = always;
            settings.push_back("CostItem=" + std::to_string(item));
            AccountReport one = Run(report, settings);
            const std::string sums = "select sum(E_" + name + "_StanCost), sum(R_" + name +
                                     "_RealCost), sum(D_" + name + "_RealCost) from {}";
            EXPECT_EQ(one.Rows(sums), all.Rows(sums)) << report << " " << item;
            EXPECT_ANY_THROW(one.Rows("select E_" + other + "_StanCost from {}")) << report << " " << item;
            const std::string difference = item == 1 || item == 6 ? "_Dif" : "_QuaDif";
            const std::string ofDifferences = "select count(E_" + name + difference + ") from {}";
            if (withDifferences)
                EXPECT_NO_THROW(one.Rows(ofDifferences)) << report << " " << item;
            else
                EXPECT_ANY_THROW(one.Rows(ofDifferences)) << report << " " << item;
        }
    }
}

// Line by line the balance is the one before, and what came, and less what went. A month's row is the sum of its
// lines, the running one that of all months so far.
TEST_P(GoodsCostOf, LedgerRunsItsBalanceAndAddsUpItsMonths)
{
    for (const Goods& goods : SomeGoods()) {
        std::vector<std::string> settings = goods.Settings("IA_EnSubsidiary");
        settings.push_back(kAllMonths);
        AccountReport report = Run("goods-cost-ledger", settings);
        const auto rows = report.Table(
            "select " + Rounded("R_Qty") + "," + Rounded("D_Qty") + "," + Rounded("E_Qty") +
            ",isnull(R_Total_RealCost,0),isnull(D_Total_RealCost,0),isnull(E_Total_RealCost,0) from {}"
            " where flag < 2 order by ino");
        EXPECT_EQ(std::to_string(rows.size() - 1) + "\n",
                  report.Rows("select count(*) from IA_EnSubsidiary where iYear = 2008 and iMonth > 0" +
                              goods.Condition()))
            << goods.code;
        for (std::size_t row = 1; row < rows.size(); ++row) {
            const auto number = [&](std::size_t at, std::size_t field) { return std::stod(rows[at][field]); };
            ASSERT_NEAR(number(row, 2), number(row - 1, 2) + number(row, 0) - number(row, 1), 0.001)
                << goods.code;
            ASSERT_NEAR(number(row, 5), number(row - 1, 5) + number(row, 3) - number(row, 4), 0.001)
                << goods.code;
        }

        const std::string sums = Rounded("sum(b.R_Qty)") + "," + Rounded("sum(b.D_Qty)") +
                                 ",isnull(sum(b.R_Total_RealCost),0),isnull(sum(b.D_M_StanCost),0)";
        const auto totals = [&](const std::string& flag) {
            return report.Rows("select imonth," + Rounded("R_Qty") + "," + Rounded("D_Qty") +
                               ",isnull(R_Total_RealCost,0),isnull(D_M_StanCost,0) from {} where flag = " +
                               flag + " order by imonth");
        };
        EXPECT_EQ(totals("2"), report.Rows("select b.imonth," + sums +
                                           " from {} b where b.flag = 1 group by b.imonth order by b.imonth"))
            << goods.code;
        EXPECT_EQ(
            totals("3"),
            report.Rows("select a.imonth," + sums +
                        " from {} a inner join {} b on b.flag = 1 and b.imonth <= a.imonth where a.flag = 3"
                        " group by a.imonth order by a.imonth"))
            << goods.code;
    }
}

// The last balance of the ledger is the end of the summary over the same goods and the same months.
TEST_P(GoodsCostOf, LedgerEndsWithTheEndBalanceOfTheSummary)
{
    const struct {
        const char *months, *dates;
    } periods[] = {{"1月..12月", "2008-01-01..2008-12-31"}, {"3月..7月", "2008-03-01..2008-07-31"}};
    for (const Goods& goods : SomeGoods())
        for (const auto& period : periods) {
            std::vector<std::string> ofLedger = goods.Settings("IA_EnSubsidiary");
            ofLedger.push_back(std::string("IA_EnSubsidiary.iMonth=") + period.months);
            std::vector<std::string> ofSummary = goods.Settings("Ia_Ensubsidiary");
            ofSummary.push_back(std::string("Ia_Ensubsidiary.dKeepDate=") + period.dates);
            AccountReport ledger = Run("goods-cost-ledger", ofLedger);
            AccountReport summary = Run("goods-cost-summary", ofSummary);
            EXPECT_EQ(
                ledger.Rows("select top 1 " + Rounded("E_Qty") +
                            ",isnull(E_Total_StanCost,0),isnull(E_Total_RealCost,0) from {} where flag < 2"
                            " order by ino desc"),
                summary.Rows("select " + Rounded("sum(E_Qty)") +
                             ",isnull(sum(E_Total_StanCost),0),isnull(sum(E_Total_RealCost),0) from {}"))
                << goods.code << " " << period.months;
        }
}

// Of an item that keeps a free item the ledger shows one combination, unless the user names one: the first that the
// ledger of the stock has.
TEST(GoodsCostLedger, ShowsOneCombinationOfFreeItemsWhereNoneIsNamed)
{
    const demo::Profile& trade = *demo::FindProfile("trade");
    AccountReport any(trade, "goods-cost-summary", {kYear, "CostItem=1"});
    const auto inventory = any.Table(
        "select top 1 a.cInvCode, count(distinct a.cFree1) from IA_EnSubsidiary a inner join Inventory i"
        " on i.cInvCode = a.cInvCode where i.bCheckFree1 = 1 group by a.cInvCode order by 2 desc, 1");
    ASSERT_FALSE(inventory.empty());
    ASSERT_GT(std::stoi(inventory[0][1]), 1);
    AccountReport report(trade, "goods-cost-ledger",
                         {kYear, kAllMonths, "IA_EnSubsidiary.cInvCode=" + inventory[0][0]});
    EXPECT_LE(std::stoi(report.Rows("select count(distinct cFree1) from {} where flag = 1")), 1);
}

INSTANTIATE_TEST_SUITE_P(Profiles, GoodsCostOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
