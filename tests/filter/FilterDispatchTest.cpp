// Which routines serve which dialog.
#include "filter/Checks.h"
#include "filter/FilterDispatch.h"
#include "filter/FilterIdentities.h"
#include "filter/Openings.h"
#include "filter/ReportViews.h"
#include "filter/ValueChanges.h"

#include <gtest/gtest.h>

#include <set>

namespace kavelin::test {

TEST(FilterDispatch, KnowsTwelveDialogsOnce)
{
    std::set<std::string_view> identities;
    for (const FilterRoutines& dialog : AllFilterRoutines())
        EXPECT_TRUE(identities.insert(dialog.identity).second) << dialog.identity;
    EXPECT_EQ(identities, (std::set<std::string_view>{
                              "IA[__]流水账",
                              "IA[__]存货价格分析",
                              "IA[__]存货周转率分析",
                              "IA[__]ABC成本分析",
                              "IA[__]发出商品汇总表",
                              "AE8206FE-FE76-4B18-9976-18400D11A2FA",
                              "F3D99620-46E3-465E-97C7-ECD73735B108",
                              "2BEEF300-28F0-4716-9D8A-9F0424174763",
                              "C921AEDB-0DCD-4185-BCAA-00326BC8504F",
                              "3C19A4D5-F302-4216-91C4-1F65F7817AFC",
                              "AD454C72-A5FF-4949-AF35-EA0CBAA02803",
                              "正常单据记账",
                          }));
}

TEST(FilterDispatch, LeadsEachDialogToItsRoutines)
{
    const FilterRoutines wanted[] = {
        {"IA[__]流水账", InitFilterJournal, CheckFilterJournal, OnChangeJournal},
        {"IA[__]存货价格分析", InitFilterJournal, CheckFilterPrice, nullptr},
        {"IA[__]存货周转率分析", InitFilterTurnover, CheckFilterTurnover, nullptr},
        {"IA[__]ABC成本分析", InitFilterABC, CheckFilterABC, OnChangeABC},
        {"IA[__]发出商品汇总表", InitFilterGoodsSummary, CheckFilterGoodsSummary, OnChangeGoodsSummary},
        {"AE8206FE-FE76-4B18-9976-18400D11A2FA", InitFilterEstimate, CheckFilterEstimate, OnChangeEstimate},
        {"F3D99620-46E3-465E-97C7-ECD73735B108", InitFilterStockSummary, CheckFilterStockSummary, nullptr,
         StockSummaryFirstView, StockSummaryViewChange, true},
        {"2BEEF300-28F0-4716-9D8A-9F0424174763", InitFilterTurnover, nullptr, nullptr},
        {"C921AEDB-0DCD-4185-BCAA-00326BC8504F", InitFilterStandardCost, nullptr, OnChangeStandardCost,
         StandardCostFirstView, StandardCostViewChange},
        {"3C19A4D5-F302-4216-91C4-1F65F7817AFC", InitFilterDetailLedger, CheckFilterDetailLedger,
         OnChangeDetailLedger},
        {"AD454C72-A5FF-4949-AF35-EA0CBAA02803", InitFilterCostItem, CheckFilterCostItem, OnChangeCostItem},
        {"正常单据记账", nullptr, nullptr, OnChangeVoucherPosting},
    };
    for (const FilterRoutines& row : wanted) {
        const FilterRoutines& given = RoutinesOf(row.identity);
        EXPECT_EQ(given.open, row.open) << row.identity;
        EXPECT_EQ(given.check, row.check) << row.identity;
        EXPECT_EQ(given.change, row.change) << row.identity;
        EXPECT_EQ(given.firstView, row.firstView) << row.identity;
        EXPECT_EQ(given.viewChange, row.viewChange) << row.identity;
        EXPECT_EQ(given.handsViewOver, row.handsViewOver) << row.identity;
    }
}

TEST(FilterDispatch, ComparesIdentitiesExactly)
{
    for (const char* identity :
         {"", "ia[__]流水账", "流水账", "IA[__]流水账 ", "ae8206fe-fe76-4b18-9976-18400d11a2fa",
          "{AE8206FE-FE76-4B18-9976-18400D11A2FA}", "clsAreaStockReport"}) {
        const FilterRoutines& routines = RoutinesOf(identity);
        EXPECT_TRUE(!routines.open && !routines.check && !routines.change && !routines.firstView &&
                    !routines.viewChange && !routines.handsViewOver)
            << identity;
    }
}

}  // namespace kavelin::test
