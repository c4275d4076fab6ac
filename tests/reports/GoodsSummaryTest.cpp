// The goods-in-transit summary on the demo companies, each source line beside what its ledger lines add up to.
#include "demo/check/TransitStatements.h"
#include "demo/profiles/Profile.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kavelin::test {

namespace {

const std::string kAllTypes = "Ia_Ensubsidiary.cBustype=全部";  // the dialog would choose instalment sales

// What tells the opening from the period, on the ledger as `a`.
struct Period {
    std::string opening = "a.iMonth = 0";
    std::string movement = "a.iMonth <> 0";
};

Period Between(const std::string& column, const std::string& from, const std::string& to)
{
    return {"(a.iMonth = 0 or " + column + " < '" + from + "')",
            "(a.iMonth <> 0 and " + column + " >= '" + from + "' and " + column + " <= '" + to + "')"};
}

std::string SumWhere(const std::string& condition, const std::string& value)
{
    return "sum(case when " + condition + " then " + value + " else 0 end)";
}

// A quantity to four places: what sums of floats leave behind of goods that went out again is none.
std::string Rounded(const std::string& quantity)
{
    return "cast(" + quantity + " as decimal(38,4))";
}

// Each source line: opening, in, out and end, quantities and amounts, from booked lines of the year.
std::string LedgerLines(const Period& period, const std::string& condition)
{
    const std::string in = "isnull(a.iAInQuantity, 0)", out = "isnull(a.iAOutQuantity, 0)";
    const std::string inAmount = "isnull(a.iAInPrice, 0)", outAmount = "isnull(a.iAOutPrice, 0)";
    const std::string any = "(" + period.opening + " or " + period.movement + ")";
    const std::vector<std::string> measures = {
        Rounded(SumWhere(period.opening, in + " - " + out)),
        SumWhere(period.opening, inAmount + " - " + outAmount),
        Rounded(SumWhere(period.movement, in)),
        SumWhere(period.movement, inAmount),
        Rounded(SumWhere(period.movement, out)),
        SumWhere(period.movement, outAmount),
    };
    std::string columns, isThere;
    for (const std::string& measure : measures) {
        columns += measure + ", ";
        isThere += (isThere.empty() ? "" : " or ") + measure + " <> 0";
    }
    return "select a.iSrcID, a.cSrcVouType, " + columns + Rounded(SumWhere(any, in + " - " + out)) + ", " +
           SumWhere(any, inAmount + " - " + outAmount) +
           " from IA_EnSubsidiary a left join Inventory i on i.cInvCode = a.cInvCode"
           " left join Customer c on c.cCusCode = a.cCusCode"
           " where a.iYear = 2008 and a.cAccounter is not null and " +
           any + condition + " group by a.iSrcID, a.cSrcVouType having " + isThere +
           " order by a.cSrcVouType, a.iSrcID";
}

// The same of the report.
std::string ReportLines()
{
    std::string columns, isThere;
    for (const std::string prefix : {"Q", "R", "D", "E"}) {
        const std::string quantity = Rounded("isnull(" + prefix + "_Quantity, 0)");
        const std::string amount = "isnull(" + prefix + "_Price, 0)";
        columns += ", " + quantity + ", " + amount;
        isThere += (isThere.empty() ? "" : " or ") + quantity + " <> 0 or " + amount + " <> 0";
    }
    return "select iSrcID, cSRcVoutype" + columns + " from {} where " + isThere +
           " order by cSRcVoutype, iSrcID";
}

class GoodsSummaryOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& objProfile = *demo::FindProfile(GetParam());

    // The report of 2008 with `settings`, held against the ledger.
    AccountReport ExpectLedger(std::vector<std::string> settings, const Period& period = {},
                               const std::string& condition = "")
    {
        const std::string shown = settings.empty() ? "" : settings.front();
        settings.push_back("iYear=2008");
        settings.push_back(kAllTypes);
        AccountReport report(objProfile, "goods-summary", settings);
        EXPECT_TRUE(report.Messages().empty()) << shown;
        const std::string wanted = report.Rows(LedgerLines(period, condition));
        EXPECT_EQ(report.Rows(ReportLines()), wanted) << shown;
        return report;
    }
};

}  // namespace

// One row a source line, as many as the account check counts, and no amount without goods, as it demands.
TEST_P(GoodsSummaryOf, BalancesEverySourceLineOfTheYear)
{
    AccountReport report = ExpectLedger({});
    EXPECT_EQ(report.Rows("select count(*) from {}"), report.Rows(demo::CountTransitSources()));
    EXPECT_EQ(report.Rows(demo::AmountsWithoutGoods()), "");
    EXPECT_EQ(
        report.Rows("select count(*) from {} where cast(E_Quantity as decimal(20,4)) = 0 and E_Price <> 0"),
        "0\n");
    EXPECT_EQ(
        report.Rows("select count(*) from {} where isnull(Q_Price,0) + isnull(R_Price,0) - isnull(D_Price,0)"
                    " <> E_Price or abs(isnull(Q_Quantity,0) + isnull(R_Quantity,0) - isnull(D_Quantity,0)"
                    " - E_Quantity) > 0.00001 or abs(isnull(Q_No,0) + isnull(R_No,0) - isnull(D_No,0) - E_No)"
                    " > 0.00001"),
        "0\n");
}

TEST_P(GoodsSummaryOf, OpensWithWhatLiesBeforeThePeriod)
{
    for (const auto& [from, to] :
         {std::pair("2008-01-01", "2008-01-31"), std::pair("2008-07-01", "2008-09-30"),
          std::pair("2008-12-01", "2008-12-31")}) {
        const std::string range = std::string(from) + ".." + to;
        ExpectLedger({"Ia_Ensubsidiary.dVouDate=" + range}, Between("a.dVouDate", from, to));
        ExpectLedger({"Ia_Ensubsidiary.dKeepDate=" + range}, Between("a.dKeepDate", from, to));
    }
    ExpectLedger({"Ia_Ensubsidiary.dVouDate=2008-07-01.."},
                 Between("a.dVouDate", "2008-07-01", "9999-12-31"));
    ExpectLedger({"Ia_Ensubsidiary.dKeepDate=..2008-07-31"},
                 {"a.iMonth = 0", "(a.iMonth <> 0 and a.dKeepDate <= '2008-07-31')"});
}

// The end of a period is the opening of the next one.
TEST_P(GoodsSummaryOf, OpensWithTheEndOfThePeriodBefore)
{
    const auto sums = [&](const std::string& range, const std::string& prefix) {
        AccountReport report(objProfile, "goods-summary",
                             {"iYear=2008", kAllTypes, "Ia_Ensubsidiary.dVouDate=" + range});
        return report.Rows("select cast(sum(" + prefix + "_Quantity) as decimal(38,4)), sum(" + prefix +
                           "_Price) from {}");
    };
    EXPECT_EQ(sums("2008-01-01..2008-06-30", "E"), sums("2008-07-01..2008-12-31", "Q"));
}

TEST_P(GoodsSummaryOf, ShowsTheLinesOfItsConditions)
{
    const struct {
        const char *setting, *condition;
    } cases[] = {
        {"Inventory.cInvCCode=01", " and i.cInvCCode like '01%'"},
        {"Inventory.cInvCCode=04", " and i.cInvCCode like '04%'"},
        {"Ia_Ensubsidiary.cWhCode=02", " and a.cWhCode = '02'"},
        {"Ia_Ensubsidiary.cDepCode=01..03", " and a.cDepCode >= '01' and a.cDepCode <= '03'"},
        {"Ia_Ensubsidiary.cCusCode=C001..C004", " and a.cCusCode >= 'C001' and a.cCusCode <= 'C004'"},
        {"Ia_Ensubsidiary.cPersonCode=P01..P05", " and a.cPersonCode >= 'P01' and a.cPersonCode <= 'P05'"},
        {"Ia_Ensubsidiary.cRdCode=202..206", " and a.cRdCode >= '202' and a.cRdCode <= '206'"},
        {"Ia_Ensubsidiary.cInvCode=PMP-01-001..VLV-04-001",
         " and a.cInvCode >= 'PMP-01-001' and a.cInvCode <= 'VLV-04-001'"},
        {"Inventory.cInvStd=IS80-65-160..Z41H-16C DN80",
         " and i.cInvStd >= 'IS80-65-160' and i.cInvStd <= 'Z41H-16C DN80'"},
        {"Inventory.cComUnitCode=SET", " and i.cComUnitCode = 'SET'"},
        {"Ia_Ensubsidiary.cBatchia=P0801", " and a.cBatchIA = 'P0801'"},
        {"Ia_Ensubsidiary.cItem_class=97", " and a.cItem_class = '97'"},
        {"Ia_Ensubsidiary.cItemCode=HT-0801..HT-0804",
         " and a.cItemCode >= 'HT-0801' and a.cItemCode <= 'HT-0804'"},
        {"Ia_Ensubsidiary.cFree1=红", " and a.cFree1 = N'红'"},
        {"Customer.cCCCode=01..02", " and c.cCCCode >= '01' and c.cCCCode <= '02'"},
        {"DispatchList.cDLCode=FH-0801-0001..FH-0806-9999",
         " and a.cSrcVouType in ('05','06','5','6') and exists (select * from DispatchLists s"
         " inner join DispatchList h on h.DLID = s.DLID where s.iDLsID = a.iSrcID"
         " and h.cDLCode >= 'FH-0801-0001' and h.cDLCode <= 'FH-0806-9999')"},
        {"rdrecord32.cCode=XC-0801-0001..XC-0806-9999",
         " and a.cSrcVouType = '3201' and exists (select * from rdrecords32 s inner join rdrecord32 h"
         " on h.ID = s.ID where s.AutoID = a.iSrcID and h.cCode >= 'XC-0801-0001' and h.cCode <= 'XC-0806-9999')"},
        {"IsMerge=是", ""},
    };
    for (const auto& c : cases)
        ExpectLedger({c.setting}, {}, c.condition);
}

TEST_P(GoodsSummaryOf, ShowsOneBusinessTypeOrAll)
{
    const struct {
        std::vector<std::string> settings;
        const char* condition;
    } cases[] = {
        {{"Ia_Ensubsidiary.cBustype=委托代销"}, " and a.cBusType in (N'委托代销', N'委托')"},
        {{"Ia_Ensubsidiary.cBustype=分期收款"}, " and a.cBusType = N'分期收款'"},
        {{}, " and a.cBusType = N'分期收款'"},  // what the dialog chooses
    };
    for (const auto& c : cases) {
        std::vector<std::string> settings = c.settings;
        settings.push_back("iYear=2008");
        AccountReport report(objProfile, "goods-summary", settings);
        EXPECT_EQ(report.Rows(ReportLines()), report.Rows(LedgerLines({}, c.condition)));
    }
}

// The dialog offers ordinary sales only where they are posted as goods sent.
TEST(GoodsSummaryOfGoodsSent, ShowsOrdinarySales)
{
    AccountReport report(*demo::FindProfile("goods-sent"), "goods-summary",
                         {"iYear=2008", "Ia_Ensubsidiary.cBustype=普通销售"});
    const std::string rows = report.Rows(ReportLines());
    EXPECT_EQ(rows, report.Rows(LedgerLines({}, " and a.cBusType = N'普通销售'")));
    EXPECT_FALSE(rows.empty());
}

TEST_P(GoodsSummaryOf, CountsPiecesInTheStockUnitOrInTheChosenOne)
{
    const struct {
        std::vector<std::string> settings;
        const char* unit;
    } cases[] = {
        {{}, "u.cComUnitCode = i.cSTComUnitCode"},
        {{"iUnitNumber=1"}, "u.cGroupCode = i.cGroupCode and u.bMainUnit = 0 and u.iNumber = 1"},
        {{"iUnitNumber=2"}, "u.cGroupCode = i.cGroupCode and u.bMainUnit = 0 and u.iNumber = 2"},
    };
    for (const auto& c : cases) {
        AccountReport report = ExpectLedger(c.settings);
        EXPECT_EQ(report.Rows("select count(*) from {} t left join Inventory i on i.cInvCode = t.cInvCode"
                              " left join ComputationUnit u on " +
                              std::string(c.unit) +
                              " where abs(E_No - case when isnull(u.iChangRate, 0) > 0"
                              " then E_Quantity / u.iChangRate else 0 end) > 0.00001"),
                  "0\n")
            << c.unit;
    }
}

// Every row has the attributes of the line that put the goods in transit.
TEST_P(GoodsSummaryOf, ShowsTheAttributesOfTheSourceLine)
{
    AccountReport report = ExpectLedger({});
    EXPECT_EQ(
        report.Rows("select count(*) from {} where cInvCode is null or cInvName is null or cWhName is null"
                    " or cVouchName is null or CComUnitName is null or cCusName is null or cDepName is null"
                    " or (cDLCode is null and cCode is null)"),
        "0\n");
    EXPECT_EQ(report.Rows("select count(*) from {} where (cSRcVoutype = '3201' and cDLCode is not null)"
                          " or (cSRcVoutype <> '3201' and cCode is not null)"),
              "0\n");
    EXPECT_EQ(report.Rows("select count(*) from {} t inner join IA_EnSubsidiary a on a.inid = t.iSrcID"
                          " and a.cVouType = t.cSRcVoutype and a.iYear = 2008 and a.cInvCode = t.cInvCode"),
              report.Rows("select count(*) from {}"));
}

INSTANTIATE_TEST_SUITE_P(Profiles, GoodsSummaryOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
