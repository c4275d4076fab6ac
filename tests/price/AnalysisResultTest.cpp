// What the price analysis leaves in its result table, worked out by hand.
#include "price/AnalysisAccount.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

class TheAnalysis : public testing::Test {
  protected:
    void Analyse(const std::vector<FakeField>& fields)
    {
        EXPECT_TRUE(objAccount.Analyse(fields));
        EXPECT_EQ(objAccount.Events().Text().find("ShowMessage"), std::string::npos);
    }
    std::string Rows(const std::string& columns) { return objAccount.Rows(columns); }

    AnalysisAccount objAccount;
};

// Item A in warehouse 01: a quarter with an opening of 10 at 5.
class TheAnalysisOfAQuarter : public TheAnalysis {
  protected:
    TheAnalysisOfAQuarter()
    {
        objAccount.Add(LedgerLine{.code = "O", .month = 0, .type = "'34'", .busType = "null", .inCost = "5"});
        objAccount.Add(LedgerLine{.code = "R1", .month = 1, .inCost = "6"});
        objAccount.Add(LedgerLine{.code = "I1", .month = 2, .type = "'32'", .outCost = "5.5"});
        objAccount.Add(LedgerLine{.code = "R2", .inCost = "7"});
        objAccount.Add(LedgerLine{.code = "I2", .type = "'32'", .outCost = "6.5"});
        objAccount.Add(LedgerLine{.code = "R3", .inCost = "6.8", .date = "'2008-03-01'"});
        objAccount.Add(LedgerLine{.code = "N", .type = "'20'"});  // an adjustment, without a unit cost

        objAccount.Add(SummaryRow{.month = 0, .left = "10, 50"});
        objAccount.Add(SummaryRow{.month = 1, .in = "10, 60", .left = "20, 110"});
        objAccount.Add(SummaryRow{.month = 2, .out = "8, 44", .left = "12, 66"});
        objAccount.Add(SummaryRow{.month = 3, .in = "24, 167.2", .out = "5, 32.5", .left = "31, 200.7"});
    }
};

}  // namespace

TEST_F(TheAnalysisOfAQuarter, HasTheReferencePricesOfEachKeyOnItsRows)
{
    Analyse({});
    // Last issue 6.5 (I2), last receipt 6.8 (R3). Average of receipts: (60 + 0 + 167.2) / (10 + 0 + 24) =
    // 227.2 / 34 = 6.682353. Balance of February: 66 / 12 = 5.5.
    const std::string prices = ",6.000000,6.500000,6.800000,6.682353,5.500000\n";
    EXPECT_EQ(Rows("cVouCode, Price, ReferenceCost, ExPrice, InPrice, AvgPrice, Balanceunit"),
              "I2,6.500000" + prices + "N," + prices + "R2,7.000000" + prices + "R3,6.800000" + prices);
}

TEST_F(TheAnalysisOfAQuarter, ComparesWithTheBasePriceOfEachKind)
{
    const struct {
        const char *kind, *row;
    } cases[] = {
        {"1", "6.000000,116.67,16.67\n"},  // 7 / 6 = 1.166666
        {"2", "6.500000,107.69,7.69\n"},   // 7 / 6.5 = 1.076923
        {"3", "6.800000,102.94,2.94\n"},   // 7 / 6.8 = 1.029411
        {"4", "6.682353,104.75,4.75\n"},   // 7 / 6.682353 = 1.047535
        {"5", "5.500000,127.27,27.27\n"},  // 7 / 5.5 = 1.272727
    };
    for (const auto& c : cases) {
        Analyse({{"Base Price", c.kind}});
        const std::string rows = Rows("cVouCode, BasePrice, Ratio, DiffRatio");
        EXPECT_NE(rows.find(std::string("R2,") + c.row), std::string::npos) << c.kind << "\n" << rows;
        EXPECT_NE(rows.find(",0.00,-100.00\n"), std::string::npos) << "N has a base price only: " << rows;
    }
}

TEST_F(TheAnalysisOfAQuarter, AveragesReceiptsIssuesOrBalancesOverTheRange)
{
    const struct {
        const char *kind, *from, *to, *average;
    } cases[] = {
        {"1", "2008.01", "2008.03", "6.682353"},  // 227.2 / 34
        {"2", "2008.01", "2008.03", "5.884615"},  // (44 + 32.5) / (8 + 5)
        {"3", "2008.01", "2008.03", "5.979365"},  // (110 + 66 + 200.7) / (20 + 12 + 31)
        {"1", "2008.03", "2008.03", "6.966667"},  // 167.2 / 24
        {"2", "2008.02", "2008.02", "5.500000"},  // 44 / 8
        {"3", "2008.00", "2008.00", "5.000000"},  // the opening
        {"1", "2008.02", "2008.02", "0.000000"},  // nothing received
        {"1", "2007.01", "2007.12", "0.000000"},
    };
    for (const auto& c : cases) {
        Analyse({{"avgPrices", c.kind}, {"avgPrice", c.from, c.to, true}});
        const std::string rows = Rows("cVouCode, AvgPrice");
        EXPECT_NE(rows.find(std::string("R2,") + c.average + "\n"), std::string::npos)
            << c.kind << " " << c.from << "\n"
            << rows;
    }
}

TEST_F(TheAnalysisOfAQuarter, AveragesAllMonthsWithoutARange)
{
    Analyse({{"avgPrice", "", "", true}, {"avgPrices", "3"}});
    // (50 + 110 + 66 + 200.7) / (10 + 20 + 12 + 31) = 426.7 / 73
    EXPECT_NE(Rows("cVouCode, AvgPrice").find("R2,5.845205\n"), std::string::npos);
}

TEST_F(TheAnalysisOfAQuarter, LimitsMonthsByThemselvesAlsoAcrossYears)
{
    objAccount.Add(SummaryRow{.month = 3, .in = "1, 100", .year = 2007});
    Analyse({{"avgPrice", "2007.03", "2008.03", true}});
    // Both Marches and none of the eleven months between them: (100 + 167.2) / (1 + 24).
    EXPECT_NE(Rows("cVouCode, AvgPrice").find("R2,10.688000\n"), std::string::npos);
}

TEST_F(TheAnalysisOfAQuarter, LeavesRowsOfDirectBusinessOutOfTheAverage)
{
    objAccount.Add(SummaryRow{.month = 3, .in = "100, 10000", .direct = 1});
    Analyse({});
    EXPECT_NE(Rows("cVouCode, AvgPrice").find("R2,6.682353\n"), std::string::npos);
}

// The totals of a quarter stand beside its months, and only direct business is left out.
TEST_F(TheAnalysisOfAQuarter, CountsTheTotalsOfAQuarterInARangeThatHoldsTheirMonth)
{
    objAccount.Add(
        SummaryRow{.month = 3, .in = "34, 227.2", .out = "13, 76.5", .left = "null, null", .period = 1});
    const struct {
        const char *from, *average;
    } cases[] = {
        {"2008.01", "6.682353"},  // the whole quarter, twice: 454.4 / 68
        {"2008.03", "6.800000"},  // March and its quarter: (167.2 + 227.2) / (24 + 34)
    };
    for (const auto& c : cases) {
        Analyse({{"avgPrice", c.from, "2008.03", true}});
        EXPECT_NE(Rows("cVouCode, AvgPrice").find(std::string("R2,") + c.average + "\n"), std::string::npos);
        EXPECT_NE(Rows("cVouCode, Balanceunit").find("R2,5.500000\n"), std::string::npos);
    }
}

TEST_F(TheAnalysisOfAQuarter, SearchesTheLastCostsInTheWholeLedger)
{
    objAccount.Add(LedgerLine{.code = "R4", .month = 4, .inCost = "8", .date = "'2008-04-02'"});
    Analyse({});
    EXPECT_NE(Rows("cVouCode, InPrice").find("R2,8.000000\n"), std::string::npos);
}

TEST_F(TheAnalysisOfAQuarter, TakesTheOpeningForTheFirstMonthAndBefore)
{
    Analyse({{"iMonth", "2008.01"}});
    EXPECT_EQ(Rows("cVouCode, Balanceunit"), "R1,5.000000\n");
    Analyse({{"iMonth", "2008.02"}});
    EXPECT_EQ(Rows("cVouCode, Balanceunit"), "I1,5.500000\n");

    // An account that starts in July: March counts as its start.
    objAccount.Run("update AccInformation set cValue = '2008-07-01' where cName = 'dIAStartDate'");
    Analyse({});
    EXPECT_NE(Rows("cVouCode, Balanceunit").find("R2,5.000000\n"), std::string::npos);
}

TEST_F(TheAnalysisOfAQuarter, TakesTheOpeningOfALaterYearForItsJanuary)
{
    objAccount.Add(LedgerLine{.code = "Y", .month = 1, .inCost = "9", .date = "'2009-01-05'", .year = 2009});
    objAccount.Add(SummaryRow{.month = 0, .left = "4, 30", .year = 2009});
    Analyse({{"iMonth", "2009.01"}});
    EXPECT_EQ(Rows("cVouCode, Balanceunit"), "Y,7.500000\n");
}

TEST_F(TheAnalysisOfAQuarter, ShowsSummaryRowsWithThePriceOfTheirBalance)
{
    Analyse({{"ShowType", "2"}});
    // 200.7 / 31 = 6.474194, over 6.8 it is 0.952087.
    EXPECT_EQ(
        Rows("dVouDate, cVouCode, cVouType, cpzid, cInvName, Price, BasePrice, Ratio, DiffRatio, AvgPrice"),
        "20083,\"\",\"\",\"\",甲泵,6.474194,6.800000,95.21,-4.79,6.682353\n");
    Analyse({{"ShowType", "0"}});
    EXPECT_EQ(Rows("dVouDate, cVouCode"),
              "20083,\"\"\n2008-03-10,I2\n2008-03-10,N\n2008-03-10,R2\n2008-03-01,R3\n");
    const std::string texts = Rows("cVouCode, iPzid, dKeepDate, cDefine4, cDefine5, cDefine7, cInvDefine1");
    EXPECT_TRUE(texts.starts_with("\"\",0,1900-01-01,1900-01-01,0,0,\"\"\n")) << texts;
}

TEST_F(TheAnalysisOfAQuarter, HasNoSummaryRowsWhereVouchersAreAskedFor)
{
    Analyse({{"ShowType", "2"}, {"cVouType", "01"}});
    EXPECT_EQ(Rows("cVouCode"), "");
    Analyse({{"ShowType", "0"}, {"cVouType", "32"}});
    EXPECT_EQ(Rows("cVouCode"), "I2\n");
}

TEST_F(TheAnalysisOfAQuarter, ShowsOnlyRowsThatDeviateAsFarAsAskedFor)
{
    // From the last receipt at 6.8: I2 -4.41, N -100, R2 2.94, R3 0.
    const struct {
        const char *ratio, *rows;
    } cases[] = {
        {"", "I2\nN\nR2\nR3\n"}, {"0", "I2\nN\nR2\nR3\n"}, {"2.94", "I2\nN\nR2\n"},
        {"2.95", "I2\nN\n"},     {"100", "N\n"},
    };
    for (const auto& c : cases) {
        Analyse({{"DiffRatio", c.ratio}});
        EXPECT_EQ(Rows("cVouCode"), c.rows) << c.ratio;
    }
}

TEST_F(TheAnalysisOfAQuarter, TestsTheRoundedDeviation)
{
    // From the balance at 5.5: R3 deviates by 23.6363 and more behind it.
    const struct {
        const char *scale, *rows;
    } cases[] = {{"2", "N\nR2\nR3\n"}, {"4", "N\nR2\n"}};
    for (const auto& c : cases) {
        objAccount.Run(std::string("update AccInformation set cValue = '") + c.scale +
                       "' where cName = 'iExchRateDecDgt'");
        Analyse({{"Base Price", "5"}, {"DiffRatio", "23.64"}});
        EXPECT_EQ(Rows("cVouCode"), c.rows) << c.scale;
    }
}

TEST_F(TheAnalysisOfAQuarter, IsInTheUsersLanguage)
{
    objAccount.Answers().langId = "en-US";
    Analyse({});
    EXPECT_EQ(Rows("cVouCode, cBusType, cVouTypeName"),
              "I2,Purchase,销售出库单\nN,Purchase,\nR2,Purchase,Receipt\nR3,Purchase,Receipt\n")
        << "a text without a translation stays";
}

TEST_F(TheAnalysisOfAQuarter, ReplacesATableOfItsNameAndLeavesNoOther)
{
    objAccount.Run("create table tempdb..analysis (x int)");
    Analyse({});
    EXPECT_EQ(objAccount.Query("select count(*) as n from tempdb..sysobjects where xtype = 'U'"), "n\n1\n");
    EXPECT_EQ(objAccount.Query("select top 0 * from tempdb..analysis").substr(0, 18), "autoid,iPzid,cpzid");
}

TEST_F(TheAnalysisOfAQuarter, FailsForWhatItsStatementsCannotSay)
{
    const struct {
        const char* why;
        FakeField field;
    } cases[] = {
        {"the bracket stays open", {"avgPrice", "2008.01", "", true}},
        {"no sixth base price", {"Base Price", "6"}},
        {"no base price", {"Base Price", ""}},
        {"no fourth average", {"avgPrices", "4"}},
        {"the view has no table inventory", {"cinvdefine1", "x"}},
        {"the view has no other ledger", {"Ia_Ensubsidiary.cDepCode", "D1"}},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(objAccount.Analyse({c.field})) << c.why;
        EXPECT_EQ(objAccount.Events().Text().find("ShowMessage"), std::string::npos) << c.why;
        EXPECT_EQ(Rows("cVouCode"), "") << c.why;
    }
}

TEST_F(TheAnalysisOfAQuarter, IsEmptyWhereTheConditionTextIsNoDocument)
{
    Analyse({{"ShowType", "1<"}});
    EXPECT_EQ(Rows("cVouCode"), "");
}

// ---- an account that begins in the middle of a year

TEST_F(TheAnalysis, OfAnAccountSinceJulyStartsFromItsOpening)
{
    objAccount.Run("update AccInformation set cValue = '2008-07-01' where cName = 'dIAStartDate'");
    objAccount.Add(LedgerLine{.code = "J", .month = 7, .inCost = "6", .date = "'2008-07-10'"});
    objAccount.Add(LedgerLine{.code = "A", .month = 8, .inCost = "7", .date = "'2008-08-10'"});
    objAccount.Add(SummaryRow{.month = 0, .left = "10, 50"});
    objAccount.Add(SummaryRow{.month = 7, .in = "10, 60", .left = "20, 110"});
    objAccount.Add(SummaryRow{.month = 8, .in = "5, 35", .left = "25, 145"});
    const struct {
        const char *month, *from, *to, *row;
    } cases[] = {
        {"2008.07", "2008.07", "2008.08", "J,6.333333,5.000000\n"},  // (60 + 35) / 15, the opening
        {"2008.08", "2008.08", "2008.08", "A,7.000000,5.500000\n"},  // 35 / 5, July's 110 / 20
        {"2008.08", "2008.01", "2008.06", "A,0.000000,5.500000\n"},  // there were no such months
    };
    for (const auto& c : cases) {
        Analyse({{"iMonth", c.month}, {"avgPrice", c.from, c.to, true}});
        EXPECT_EQ(Rows("cVouCode, AvgPrice, Balanceunit"), c.row) << c.from;
    }
}

// ---- which lines are shown

TEST_F(TheAnalysis, LeavesOutOpeningEstimatesDirectShipmentsAndLinesWithoutABusinessType)
{
    objAccount.Add(LedgerLine{.code = "E", .type = "'33'", .inCost = "1"});
    objAccount.Add(LedgerLine{.code = "P", .busType = "N'直运采购'", .inCost = "2"});
    objAccount.Add(LedgerLine{.code = "S", .type = "'26'", .busType = "N'直运销售'", .outCost = "2"});
    objAccount.Add(LedgerLine{.code = "X", .busType = "null", .inCost = "3"});
    objAccount.Add(LedgerLine{.code = "W", .warehouse = "'09'", .inCost = "4"});
    objAccount.Add(LedgerLine{.code = "R", .inCost = "5"});
    Analyse({});
    EXPECT_EQ(Rows("cVouCode"), "R\n") << "and none of a warehouse that takes no part in costing";
}

TEST_F(TheAnalysis, FindsBothStoredFormsOfConsignmentSales)
{
    objAccount.Answers().codes = {{"委托代销", "委托代销"}};
    objAccount.Add(LedgerLine{.code = "1", .busType = "N'委托代销'", .outCost = "1"});
    objAccount.Add(LedgerLine{.code = "2", .busType = "N'委托'", .outCost = "1"});
    objAccount.Add(LedgerLine{.code = "3", .busType = "N'普通销售'", .outCost = "1"});
    Analyse({{"cBusType", "委托代销"}});
    EXPECT_EQ(Rows("cVouCode"), "1\n2\n");
}

// ---- prices that are not there

TEST_F(TheAnalysis, Has0ForACostThatTheLedgerDoesNotHave)
{
    objAccount.Add(LedgerLine{.code = "I", .item = "'C'", .type = "'32'", .outCost = "4"});
    objAccount.Add(LedgerLine{.code = "N", .item = "'C'", .type = "'20'"});
    Analyse({});
    // Neither a receipt nor a summary row: with price only 100 and 0, with neither 0 and 0.
    EXPECT_EQ(Rows("cVouCode, ReferenceCost, ExPrice, InPrice, AvgPrice, BasePrice, Ratio, DiffRatio"),
              "I,0.000000,4.000000,0.000000,0.000000,0.000000,100.00,0.00\n"
              "N,0.000000,4.000000,0.000000,0.000000,0.000000,0.00,0.00\n");
}

TEST_F(TheAnalysis, HasNullForABalanceThatWasNotBroughtForward)
{
    objAccount.Add(LedgerLine{.code = "A", .inCost = "7"});
    objAccount.Add(LedgerLine{.code = "C", .item = "'C'", .inCost = "7"});
    objAccount.Add(SummaryRow{.month = 2, .left = "0, 12"});
    Analyse({{"Base Price", "5"}});
    // A has a balance of quantity 0, C none. Both count as a base price of 0.
    EXPECT_EQ(Rows("cVouCode, Balanceunit, BasePrice, Ratio, DiffRatio"),
              "A,,,100.00,0.00\nC,,,100.00,0.00\n");
}

// ---- costing keys

TEST_F(TheAnalysis, KeepsBatchesApartWhereTheirMethodDoes)
{
    // Item B keeps batches. Warehouse 01 values by a method that does, 02 at plan prices.
    for (const char* warehouse : {"'01'", "'02'"}) {
        objAccount.Add(
            LedgerLine{.code = "P", .item = "'B'", .warehouse = warehouse, .inCost = "2", .batch = "'P'"});
        objAccount.Add(
            LedgerLine{.code = "Q", .item = "'B'", .warehouse = warehouse, .inCost = "3", .batch = "'Q'"});
    }
    objAccount.Add(SummaryRow{.month = 2, .item = "'B'", .batch = "'P'", .in = "10, 18", .left = "10, 19"});
    objAccount.Add(SummaryRow{.month = 2, .item = "'B'", .batch = "'Q'", .in = "10, 28", .left = "10, 29"});
    objAccount.Add(
        SummaryRow{.month = 2, .item = "'B'", .warehouse = "'02'", .in = "10, 23", .left = "10, 24"});
    Analyse({});
    EXPECT_EQ(Rows("cVouCode, cWhCode, cBatchia, InPrice, AvgPrice, Balanceunit"),
              "P,01,P,2.000000,1.800000,1.900000\n"
              "P,02,P,3.000000,2.300000,2.400000\n"
              "Q,01,Q,3.000000,2.800000,2.900000\n"
              "Q,02,Q,3.000000,2.300000,2.400000\n");

    // By inventory the item's method decides, wherever it lies.
    objAccount.SetStyle("按存货核算");
    Analyse({});
    // P: 18 of the one batch and 23 of the row without one don't meet: a batch is a batch of its own.
    EXPECT_EQ(Rows("cVouCode, cWhCode, InPrice, AvgPrice, Balanceunit"),
              "P,01,2.000000,1.800000,1.900000\n"
              "P,02,2.000000,1.800000,1.900000\n"
              "Q,01,3.000000,2.800000,2.900000\n"
              "Q,02,3.000000,2.800000,2.900000\n");
}

TEST_F(TheAnalysis, PaysNoAttentionToBatchesOfAnItemThatKeepsNone)
{
    objAccount.Add(LedgerLine{.code = "1", .inCost = "5", .batch = "'P'"});
    objAccount.Add(LedgerLine{.code = "2", .inCost = "6", .batch = "'Q'"});
    objAccount.Add(LedgerLine{.code = "3", .inCost = "7"});
    objAccount.Add(SummaryRow{.month = 2, .in = "10, 42", .left = "10, 45"});
    Analyse({});
    const std::string prices = ",7.000000,4.200000,4.500000\n";
    EXPECT_EQ(Rows("cVouCode, InPrice, AvgPrice, Balanceunit"), "1" + prices + "2" + prices + "3" + prices);
}

TEST_F(TheAnalysis, ValuesByWarehouseDepartmentOrItemAlone)
{
    // Later lines hold the higher costs.
    objAccount.Add(LedgerLine{.code = "1", .warehouse = "'01'", .department = "'D1'", .inCost = "5"});
    objAccount.Add(LedgerLine{.code = "2", .warehouse = "'01'", .department = "'D2'", .inCost = "6"});
    objAccount.Add(LedgerLine{.code = "3", .warehouse = "'02'", .department = "'D1'", .inCost = "7"});

    Analyse({});
    EXPECT_EQ(Rows("cVouCode, InPrice"), "1,6.000000\n2,6.000000\n3,7.000000\n");

    objAccount.SetStyle("按存货核算");
    Analyse({});
    EXPECT_EQ(Rows("cVouCode, InPrice"), "1,7.000000\n2,7.000000\n3,7.000000\n");

    objAccount.SetStyle("按部门核算");
    objAccount.Add(
        SummaryRow{.month = 2, .warehouse = "null", .department = "'D1'", .in = "10, 40", .left = "8, 36"});
    objAccount.Add(
        SummaryRow{.month = 2, .warehouse = "null", .department = "'D2'", .in = "10, 50", .left = "8, 44"});
    Analyse({});
    EXPECT_EQ(Rows("cVouCode, AvgPrice, Balanceunit"),
              "1,4.000000,4.500000\n2,5.000000,5.500000\n3,4.000000,4.500000\n");
    // D1 has a last cost in each of two warehouses: either may stand on its rows.
    const std::string costs = Rows("cVouCode, InPrice");
    EXPECT_NE(costs.find("2,6.000000\n"), std::string::npos) << costs;
    EXPECT_TRUE(costs.starts_with("1,5.000000\n") || costs.starts_with("1,7.000000\n")) << costs;
}

TEST_F(TheAnalysis, KeepsFreeItemsApartAndTakesNullForEmpty)
{
    objAccount.Add(LedgerLine{.code = "1", .inCost = "5", .free1 = "N'红'"});
    objAccount.Add(LedgerLine{.code = "2", .inCost = "6", .free1 = "''"});
    objAccount.Add(LedgerLine{.code = "3", .inCost = "7"});
    objAccount.Add(LedgerLine{.code = "4", .inCost = "8", .free1 = "N'红'"});
    objAccount.Add(SummaryRow{.month = 2, .in = "10, 40", .left = "10, 45", .free1 = "N'红'"});
    objAccount.Add(SummaryRow{.month = 2, .in = "10, 60", .left = "10, 65"});
    Analyse({});
    EXPECT_EQ(Rows("cVouCode, InPrice, AvgPrice, Balanceunit"),
              "1,8.000000,4.000000,4.500000\n"
              "2,7.000000,6.000000,6.500000\n"
              "3,7.000000,6.000000,6.500000\n"
              "4,8.000000,4.000000,4.500000\n");
}

}  // namespace kavelin::test
