// Reports that pass a failure over without a word: the host must not show what they left as if it were whole.
#include "host/HostErrors.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// The message of a run on an account that lacks a table.
std::string FailureWithout(const std::string& table, const std::string& report,
                           const std::vector<std::string>& settings)
{
    const AccountCopy account(demo::Profiles().front());
    AccountReport(account.Path(), report, settings).Execute("drop table " + table);
    try {
        AccountReport(account.Path(), report, settings);
    } catch (const host::ReportError& error) {
        return error.what();
    }
    return "no failure";
}

}  // namespace

// Its names are filled in when all lines are there.
TEST(ASwallowedFailure, OfTheLastStatementsOfTheStockSummaryIsTold)
{
    EXPECT_EQ(FailureWithout("Rd_Style", "stock-summary", {"dVouDate=2008-03-01..2008-03-31"}),
              "The report failed: Invalid object name 'rd_style'.");
}

TEST(ASwallowedFailure, OfAStepOfTheGoodsSummaryIsShownByTheReportItself)
{
    const std::string failure = FailureWithout("Person", "goods-summary", {"iYear=2008"});
    EXPECT_NE(failure.find("Invalid object name 'Person'"), std::string::npos) << failure;
}

}  // namespace kavelin::test
