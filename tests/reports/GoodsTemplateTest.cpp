// The goods-in-transit template, run by the host on demo companies.
#include "host/HostErrors.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

class GoodsTemplateOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& Profile() const { return *demo::FindProfile(GetParam()); }
};

// Opening, receipts, issues and closing, in quantity and money, of all rows.
constexpr const char* kSums =
    "select cast(sum(期初_数量) as decimal(20,4)), cast(sum(期初_金额) as decimal(20,2)),"
    " cast(sum(收入_数量) as decimal(20,4)), cast(sum(收入_金额) as decimal(20,2)),"
    " cast(sum(发出_数量) as decimal(20,4)), cast(sum(发出_金额) as decimal(20,2)),"
    " cast(sum(结存_数量) as decimal(20,4)), cast(sum(结存_金额) as decimal(20,2)) from {}";

// The same of the ledger: what was brought forward or moved before the first day, and what moved from there to
// the last.
std::string LedgerSums(const std::string& first, const std::string& last)
{
    const std::string before = "isnull(iMonth,0) = 0 or dVouDate < '" + first + "'";
    const std::string within =
        "isnull(iMonth,0) <> 0 and dVouDate >= '" + first + "' and dVouDate <= '" + last + "'";
    const auto sum = [](const std::string& rows, const std::string& in, const std::string& out,
                        const char* scale) {
        return "cast(sum(case when " + rows + " then case when bRdFlag = 1 then " + in + " else " + out +
               " end else 0 end) as decimal(20," + scale + "))";
    };
    const std::string q = "isnull(iAInQuantity,0)", m = "isnull(iAInPrice,0)";
    const std::string oq = "isnull(iAOutQuantity,0)", om = "isnull(iAOutPrice,0)";
    return "select " + sum(before, q, "-" + oq, "4") + ", " + sum(before, m, "-" + om, "2") + ", " +
           sum(within, q, "0", "4") + ", " + sum(within, m, "0", "2") + ", " + sum(within, "0", oq, "4") +
           ", " + sum(within, "0", om, "2") + ", " +
           sum("(" + before + ") or (" + within + ")", q, "-" + oq, "4") + ", " +
           sum("(" + before + ") or (" + within + ")", m, "-" + om, "2") +
           " from IA_EnSubsidiary where iYear = 2008 and cAccounter is not null and cVouType in ('26','27','28','29',"
           "'05','5','06','6','3201','65','66')";
}

}  // namespace

TEST_P(GoodsTemplateOf, HoldsTheLedgerOfAPeriodReadTogetherOrApart)
{
    for (const char* merge : {"IsMerge=0", "IsMerge=1"}) {
        AccountReport report(Profile(), "goods-template",
                             {"iYear=2008", "Ia_Ensubsidiary.cBustype=全部",
                              "Ia_Ensubsidiary.dVouDate=2008-03-01..2008-03-31", merge});
        EXPECT_EQ(report.Rows(kSums), report.Rows(LedgerSums("2008-03-01", "2008-03-31"))) << merge;
        EXPECT_NE(report.Rows("select count(*) from {}"), "0\n") << merge;
    }
}

// Nothing beside the year asked for, the template holds the year, whatever the kind of sale.
TEST_P(GoodsTemplateOf, HoldsAllBusinessTypesUnlessOneIsChosen)
{
    AccountReport report(Profile(), "goods-template", {"iYear=2008"});
    EXPECT_EQ(report.Rows(kSums), report.Rows(LedgerSums("1900-01-01", "9999-12-31")));
    EXPECT_THROW(AccountReport(Profile(), "goods-template", {"iYear=2008", "Ia_Ensubsidiary.cBustype="}),
                 host::UsageError);
}

TEST_P(GoodsTemplateOf, ByClassesOfItemsShowsNoItems)
{
    AccountReport report(Profile(), "goods-template",
                         {"iYear=2008", "Ia_Ensubsidiary.cBustype=全部", "InvCGrade=1",
                          "Ia_Ensubsidiary.dVouDate=2008-03-01..2008-03-31"});
    EXPECT_EQ(report.Rows(kSums), report.Rows(LedgerSums("2008-03-01", "2008-03-31")));
    EXPECT_THROW(report.Rows("select 存货_编码 from {}"), std::exception);
}

INSTANTIATE_TEST_SUITE_P(Profiles, GoodsTemplateOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& test) { return PlainName(test.param); });

}  // namespace kavelin::test
