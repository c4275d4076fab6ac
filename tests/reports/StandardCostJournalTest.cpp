// The standard-cost journal on the demo companies, beside what the ledger and its standard costs tell.
#include "demo/profiles/Profile.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::test {

namespace {

// Rows of the ledger that have a standard cost; quantities and amounts by side.
std::string LedgerSums(const std::string& condition)
{
    return "select count(*), cast(sum(isnull(a.iAInQuantity,0)) as decimal(38,2)),"
           " cast(sum(isnull(a.iAOutQuantity,0)) as decimal(38,2)),"
           " isnull(sum(case when a.bRdFlag = 1 then isnull(a.iAInPrice,0) + isnull(a.iDebitDifCost,0)"
           " - isnull(a.iCreditDifCost,0) else 0 end),0),"
           " isnull(sum(case when a.bRdFlag = 0 then isnull(a.iAOutPrice,0) + isnull(a.iCreditDifCost,0)"
           " - isnull(a.iDebitDifCost,0) else 0 end),0)"
           " from IA_Subsidiary a inner join Demo_SubsidiaryStd s on s.AutoID = a.AutoID"
           " left join Inventory i on i.cInvCode = a.cInvCode"
           " where a.cVouType not in ('33', '34', '35') and a.dKeepDate >= '2008-01-01'" +
           condition;
}

// The actual price of a row is what its standards and differences sum up to.
const std::string kJournalSums =
    "select count(*), cast(sum(isnull(iinquantity,0)) as decimal(38,2)),"
    " cast(sum(isnull(ioutquantity,0)) as decimal(38,2)), isnull(sum(isnull(iinprice,0)),0),"
    " isnull(sum(isnull(ioutprice,0)),0) from {}";

class StandardCostJournalOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& objProfile = *demo::FindProfile(GetParam());

    void ExpectLedger(const std::vector<std::string>& settings, const std::string& condition)
    {
        AccountReport report(objProfile, "standard-cost-journal", settings);
        const std::string wanted = report.Rows(LedgerSums(condition));
        EXPECT_EQ(report.Rows(kJournalSums), wanted) << (settings.empty() ? "" : settings.front());
        EXPECT_EQ(wanted.starts_with("0 "), !objProfile.standardCosts);
        EXPECT_TRUE(report.Messages().empty());
    }
};

}  // namespace

TEST_P(StandardCostJournalOf, ShowsTheLedgerRowsThatHaveAStandardCost)
{
    ExpectLedger({}, "");
    ExpectLedger({"dKeepDate=2008-03-01..2008-04-30"},
                 " and a.dKeepDate >= '2008-03-01' and a.dKeepDate <= '2008-04-30'");
    ExpectLedger({"cVouType=01"}, " and a.cVouType = '01' and a.bFlag <> 1");
    ExpectLedger({"cVouType=01", "cVouType=011", "cVouType=09"}, " and a.cVouType in ('01', '09')");
    ExpectLedger({"cBusType=普通采购"}, " and a.cBusType = N'普通采购'");
    ExpectLedger({"cInvCCode=01"}, " and i.cInvCCode like '01%'");
}

TEST_P(StandardCostJournalOf, ShowsTheNumbersOfBothVouchers)
{
    AccountReport report(objProfile, "standard-cost-journal", {});
    EXPECT_EQ(report.Rows("select count(*) from {} where isnull(ipzcode,'') <> ''"),
              report.Rows("select count(*) from {} t inner join gl_AccVouch g on g.cOutNo_ID = t.cpzid"));
    EXPECT_EQ(report.Rows("select count(*) from {} where isnull(iDifPZid,'') <> ''"),
              report.Rows("select count(*) from {} t inner join gl_AccVouch g on g.cOutNo_ID = t.cDifPZid"));
    EXPECT_EQ(report.Rows("select count(*) from {} where ipzcode not like N'_ [0-9]%'"), "0\n");
}

INSTANTIATE_TEST_SUITE_P(Profiles, StandardCostJournalOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
