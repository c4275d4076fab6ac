// What the goods-in-transit summary gives on a small account. The arithmetic of the rows stands beside each case.
#include "goods/GoodsAccount.h"
#include "goods/clsFCSumInfo.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kHead =
    "iSrcID,Q_No,Q_Quantity,Q_Price,R_No,R_Quantity,R_Price,D_No,D_Quantity,D_Price,E_No,E_Quantity,E_Price\n";

class GoodsSummary : public testing::Test {
  protected:
    GoodsSummary() { host.Answers().sql = "tempdb..goods"; }

    // Runs the report on the year and `fields` and gives the measures of its rows.
    std::string Measures(std::vector<FakeField> fields = {}, const std::string& token = "iYear = 2008")
    {
        host.Run(
            "if exists (select * from tempdb..sysobjects where name = 'goods') drop table tempdb..goods");
        fields.push_back({"iYear", "2008"});
        host.SetFilter(fields);
        host.Filter()->whereByToken[0] = token;
        clsFCSumInfo().GETSQL(*host.EarlyArgument());
        for (const std::string& line : host.Events().Lines())
            EXPECT_FALSE(line.starts_with("ResourceObject.ShowMessage")) << line;
        return host.Query(
            "select iSrcID,Q_No,Q_Quantity,Q_Price,R_No,R_Quantity,R_Price,D_No,D_Quantity,D_Price,"
            "E_No,E_Quantity,E_Price from tempdb..goods order by iSrcID, cSRcVoutype");
    }

    GoodsAccount host;
};

const std::vector<FakeField> kJuly = {{"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"}};

}  // namespace

// 50 kg are 5 boxes. Out go 20 kg for 260.00: 50 - 20 = 30 kg, 3 boxes, 650.00 - 260.00 = 390.00.
TEST_F(GoodsSummary, ReceivesWhatIsDispatchedAndDispatchesWhatIsInvoiced)
{
    host.Add({.quantity = "50", .amount = "650"});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "20", .amount = "260"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,5,50,650.0000,2,20,260.0000,3,30,390.0000\n");
}

// A line of month 0 is an opening whatever its date, also one within the period: 40 kg. The movement leaves it
// out; what goes out in July is 10 kg. Opening 4 boxes - 1 = 3.
TEST_F(GoodsSummary, BringsALineOfMonthZeroIntoTheOpeningOnly)
{
    host.Add({.quantity = "40", .amount = "400", .month = "0"});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "10", .amount = "100"});
    EXPECT_EQ(Measures(kJuly), std::string(kHead) + "1,4,40,400.0000,0,,,1,10,100.0000,3,30,300.0000\n");
}

// A line without a month is none of the opening's and none of the period's.
TEST_F(GoodsSummary, LeavesALineWithoutAMonthOut)
{
    host.Add({.quantity = "40", .amount = "400", .month = "null"});
    EXPECT_EQ(Measures(), kHead);
    EXPECT_EQ(Measures(kJuly), kHead);
}

// In 60 kg on 10 June, out 15 kg on 20 June: opening 60 - 15 = 45 kg, 600 - 150 = 450.00. Out 5 kg in July.
TEST_F(GoodsSummary, CountsARealMonthBeforeThePeriodInTheOpeningAndNotInTheMovement)
{
    host.Add({.quantity = "60", .amount = "600", .month = "6", .date = "'2008-06-10'"});
    host.Add({.document = 2,
              .type = "'26'",
              .in = false,
              .quantity = "15",
              .amount = "150",
              .month = "6",
              .date = "'2008-06-20'"});
    host.Add({.document = 3, .type = "'26'", .in = false, .quantity = "5", .amount = "50"});
    EXPECT_EQ(Measures(kJuly), std::string(kHead) + "1,4.5,45,450.0000,0,,,0.5,5,50.0000,4,40,400.0000\n");
}

// The same line by its posting date, which lies in July: no opening.
TEST_F(GoodsSummary, JudgesByThePostingDateWhereThatIsAskedFor)
{
    host.Add({.quantity = "60",
              .amount = "600",
              .month = "7",
              .date = "'2008-06-10'",
              .keepDate = "'2008-07-02'"});
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.dKeepDate", "2008-07-01", "2008-07-31"}}),
              std::string(kHead) + "1,,,,6,60,600.0000,0,,,6,60,600.0000\n");
    EXPECT_EQ(Measures(kJuly), std::string(kHead) + "1,6,60,600.0000,,,,,,,6,60,600.0000\n");
}

// Neither the opening nor the movement: a line behind the period.
TEST_F(GoodsSummary, LeavesOutWhatLiesBehindThePeriod)
{
    host.Add({.quantity = "60", .amount = "600", .month = "8", .date = "'2008-08-01'"});
    EXPECT_EQ(Measures(kJuly), kHead);
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.dVouDate", "", "2008-07-31"}}), kHead);
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.dVouDate", "2008-08-01", ""}}),
              std::string(kHead) + "1,,,,6,60,600.0000,0,,,6,60,600.0000\n");
}

// B has no auxiliary unit, C one with a rate of 0: the opening has 0 pieces, the movement none. The end counts
// none as 0.
TEST_F(GoodsSummary, HasZeroPiecesInTheOpeningAndNoneInTheMovementWithoutARate)
{
    host.Add({.source = 1, .quantity = "7", .amount = "70", .month = "0", .item = "'B'"});
    host.Add({.source = 2, .quantity = "8", .amount = "80", .item = "'B'"});
    host.Add({.source = 3, .quantity = "7", .amount = "70", .month = "0", .item = "'C'"});
    host.Add({.source = 4, .quantity = "8", .amount = "80", .item = "'C'"});
    EXPECT_EQ(Measures(), std::string(kHead) +
                              "1,0,7,70.0000,,,,,,,0,7,70.0000\n"
                              "2,,,,,8,80.0000,,,,0,8,80.0000\n"
                              "3,0,7,70.0000,,,,,,,0,7,70.0000\n"
                              "4,,,,,8,80.0000,,,,0,8,80.0000\n");
}

// Unit 2 of A's group is the pallet of 40 kg: 100 / 40 = 2.5. C has no unit 1.
TEST_F(GoodsSummary, CountsPiecesInTheChosenUnit)
{
    host.Add({.source = 1, .quantity = "100", .amount = "1000", .month = "0"});
    host.Add({.source = 1, .document = 2, .type = "'26'", .in = false, .quantity = "20", .amount = "200"});
    host.Add({.source = 3, .quantity = "8", .amount = "80", .item = "'C'"});
    EXPECT_EQ(Measures({{"iUnitNumber", "2"}}), std::string(kHead) +
                                                    "1,2.5,100,1000.0000,0,,,0.5,20,200.0000,2,80,800.0000\n"
                                                    "3,,,,,8,80.0000,,,,0,8,80.0000\n");
    EXPECT_EQ(Measures({{"iUnitNumber", "1"}}), std::string(kHead) +
                                                    "1,10,100,1000.0000,0,,,2,20,200.0000,8,80,800.0000\n"
                                                    "3,,,,,8,80.0000,,,,0,8,80.0000\n");
}

// An adjustment has an amount and no quantity: 500 + 12.34 - 2.34.
TEST_F(GoodsSummary, AddsAdjustmentsOfAmountsAlone)
{
    host.Add({.quantity = "50", .amount = "500", .month = "0"});
    host.Add({.document = 2, .type = "'66'", .amount = "12.34"});
    host.Add({.document = 3, .type = "'65'", .in = false, .amount = "2.34"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,5,50,500.0000,0,,12.3400,0,,2.3400,5,50,510.0000\n");
}

// A return stands below zero until its credit note takes it out.
TEST_F(GoodsSummary, KeepsTheSignOfRedLines)
{
    host.Add({.sourceType = "'06'", .type = "'06'", .quantity = "-30", .amount = "-300"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,-3,-30,-300.0000,0,,,-3,-30,-300.0000\n");
    host.Add({.sourceType = "'06'",
              .document = 2,
              .type = "'27'",
              .in = false,
              .quantity = "-30",
              .amount = "-300"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,-3,-30,-300.0000,-3,-30,-300.0000,0,0,0.0000\n");
}

// The quantities in are summed whatever the direction says, pieces and amounts are not: an issue that carries a
// quantity in, 4 kg, adds it to what was received.
TEST_F(GoodsSummary, SumsTheQuantityColumnsWithoutATestOfTheDirection)
{
    host.Add({.quantity = "50", .amount = "500"});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "20", .amount = "200"});
    host.Run("update IA_EnSubsidiary set iAInQuantity = 4, iAInPrice = 40 where inid = 2");
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,5,54,500.0000,2,20,200.0000,3,34,300.0000\n");
}

// In and out again before the period: nothing of the opening, the movement and the end is left.
TEST_F(GoodsSummary, ShowsNoLineThatIsZeroThroughout)
{
    host.Add({.quantity = "50", .amount = "500", .month = "6", .date = "'2008-06-01'"});
    host.Add({.document = 2,
              .type = "'26'",
              .in = false,
              .quantity = "50",
              .amount = "500",
              .month = "6",
              .date = "'2008-06-02'"});
    host.Add({.source = 3, .quantity = "0", .amount = "0"});
    EXPECT_EQ(Measures(kJuly), kHead);
}

// The same line whole in the period shows what went through it.
TEST_F(GoodsSummary, ShowsALineThatMovedAndEndsAtZero)
{
    host.Add({.quantity = "50", .amount = "500"});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "50", .amount = "500"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,5,50,500.0000,5,50,500.0000,0,0,0.0000\n");
}

// One number under two voucher types is two source lines.
TEST_F(GoodsSummary, TakesNumberAndVoucherTypeTogetherForTheSourceLine)
{
    host.Add({.quantity = "10", .amount = "100"});
    host.Add({.sourceType = "'3201'", .type = "'3201'", .quantity = "20", .amount = "200"});
    EXPECT_EQ(Measures(), std::string(kHead) +
                              "1,,,,1,10,100.0000,0,,,1,10,100.0000\n"
                              "1,,,,2,20,200.0000,0,,,2,20,200.0000\n");
}

// Nothing tests whether a line is booked: this ledger holds booked lines only.
TEST_F(GoodsSummary, DoesNotAskWhoPostedALine)
{
    host.Add({.quantity = "10", .amount = "100", .accounter = "null"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,1,10,100.0000,0,,,1,10,100.0000\n");
}

TEST_F(GoodsSummary, LimitsClassBusinessTypeAndYear)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .businessType = "N'委托'"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .businessType = "N'委托代销'"});
    host.Add({.source = 3, .quantity = "3", .amount = "30", .item = "'B'", .businessType = "N'分期收款'"});
    host.Add({.source = 4, .quantity = "40", .amount = "400", .year = 2007});
    const std::string one = "1,,,,1,10,100.0000,0,,,1,10,100.0000\n";
    const std::string two = "2,,,,2,20,200.0000,0,,,2,20,200.0000\n";
    const std::string three = "3,,,,,3,30.0000,,,,0,3,30.0000\n";
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.cBustype", "委托代销"}}), kHead + one + two);
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.cBustype", "分期收款"}}), kHead + three);
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.cBustype", "普通销售"}}), kHead);
    EXPECT_EQ(Measures({{"Ia_Ensubsidiary.cBustype", "全部"}}), kHead + one + two + three);
    EXPECT_EQ(Measures({{"Inventory.cInvCCode", "01"}}), kHead + one + two);
    EXPECT_EQ(Measures({{"Inventory.cInvCCode", ""}}), kHead + one + two + three);
}

// The documents are joined by the source line, so that the filter can name their numbers.
TEST_F(GoodsSummary, FindsSourceLinesByTheNumbersOfTheirDocuments)
{
    host.AddDocument("DISP", "05", 1, "FH01", 1);
    host.AddDocument("RD", "32", 2, "CK02", 1);
    host.Add({.source = 1, .quantity = "10", .amount = "100"});
    host.Add({.source = 1, .document = 5, .type = "'26'", .in = false, .quantity = "4", .amount = "40"});
    host.Add({.source = 2, .sourceType = "'3201'", .type = "'3201'", .quantity = "20", .amount = "200"});
    EXPECT_EQ(Measures({}, "iYear = 2008 and DispatchList.cDLCode = N'FH01'"),
              std::string(kHead) + "1,,,,1,10,100.0000,0.4,4,40.0000,0.6,6,60.0000\n");
    EXPECT_EQ(Measures({}, "iYear = 2008 and rdrecord32.cCode = N'CK02'"),
              std::string(kHead) + "2,,,,2,20,200.0000,0,,,2,20,200.0000\n");
}

// The line's own attributes, under the result's names. The unit shown is the group's of number 0, though the
// pieces are counted in boxes.
TEST_F(GoodsSummary, ShowsTheAttributesOfTheSourceLine)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .free1 = "N'红'"});
    host.Add({.source = 2,
              .sourceType = "'3201'",
              .type = "'3201'",
              .quantity = "20",
              .amount = "200",
              .item = "'B'",
              .warehouse = "'02'"});
    Measures();
    EXPECT_EQ(
        host.Query("select cDLCode,cCode,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,"
                   "CComUnitName,cComUnitName_1,iChangRate,cDepCode,cDepName,cVouchName,dVouDate,"
                   "dKeepDate from tempdb..goods order by iSrcID"),
        "cDLCode,cCode,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,CComUnitName,"
        "cComUnitName_1,iChangRate,cDepCode,cDepName,cVouchName,dVouDate,dKeepDate\n"
        "D1,,01,成品库,0101,水泵,A,甲泵,A-1,千克,千克,1,03,销售部,发货单,2008-07-10,2008-07-11\n"
        ",D2,02,外库,02,阀,B,乙阀,,件,,,03,销售部,销售出库单,2008-07-10,2008-07-11\n");
    EXPECT_EQ(
        host.Query("select cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName_1,cBusType,cPersonName,"
                   "cRdCode,cRdName,cFree1,cInvDefine1,cSRcVoutype from tempdb..goods order by iSrcID"),
        "cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName_1,cBusType,cPersonName,cRdCode,cRdName,cFree1,"
        "cInvDefine1,cSRcVoutype\n"
        "01,内销,K1,客户甲公司,04,仓储部,普通销售,张三,202,销售出库,红,红,05\n"
        "01,内销,K1,客户甲公司,,,普通销售,张三,202,销售出库,,,3201\n");
}

// The result has all its columns, in their order.
TEST_F(GoodsSummary, HasTheColumnsInTheirOrder)
{
    Measures();
    EXPECT_EQ(
        host.Query("select * from tempdb..goods"),
        "cDLCode,cCode,cWhCode,cWhName,cInvCCode,cInvCName,cInvCode,cInvName,cInvAddCode,cInvStd,"
        "CComUnitName,cComUnitName_1,iChangRate,cDepCode,cDepName,cVouchName,dVouDate,dKeepDate,cAccounter,"
        "cCCCode,cCCName,cCusCode,cCusName,cAccDep,cDepName_1,cBusType,cPersonCode,cPersonName,cBatchia,"
        "cRdCode,cRdName,cItem_class,cItemCName,cItemCode,cName,cMemo,"
        "cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,"
        "cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,"
        "cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,"
        "cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37,"
        "cInvDefine1,cInvDefine2,cInvDefine3,cInvDefine4,cInvDefine5,cInvDefine6,cInvDefine7,cInvDefine8,"
        "cInvDefine9,cInvDefine10,cInvDefine11,cInvDefine12,cInvDefine13,cInvDefine14,cInvDefine15,"
        "cInvDefine16,cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10,"
        "Q_No,Q_Price,Q_Quantity,R_No,R_Price,R_Quantity,D_No,D_Price,D_Quantity,E_No,E_Price,E_Quantity,"
        "iSrcID,cSRcVoutype\n");
}

// The source line stands in 2007 only: its row has measures and no attributes.
TEST_F(GoodsSummary, KeepsARowWhoseSourceLineIsNotOfTheYear)
{
    host.Add({.quantity = "50", .amount = "500", .year = 2007});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "20", .amount = "200"});
    EXPECT_EQ(Measures(), std::string(kHead) + "1,,,,0,,,2,20,200.0000,-2,-20,-200.0000\n");
    EXPECT_EQ(
        host.Query("select cDLCode,cCode,cInvCode,cInvName,cVouchName,iSrcID,cSRcVoutype from tempdb..goods"),
        "cDLCode,cCode,cInvCode,cInvName,cVouchName,iSrcID,cSRcVoutype\n,,,,,1,05\n");
}

// A run behind a failed one, whose table is still there.
TEST_F(GoodsSummary, DropsTheWorkTableOfARunBefore)
{
    host.Add({.quantity = "10", .amount = "100"});
    const std::string once = Measures();
    EXPECT_EQ(Measures(), once);
    EXPECT_EQ(host.Query("select count(*) as n from tempdb..sysobjects where name = N'FCSFCItem" +
                         Machine().MachineName() + "7'"),
              "n\n1\n");
}

// Without a year the last statement has nothing to compare it with; the host therefore asks for one.
TEST_F(GoodsSummary, NeedsAYear)
{
    host.Add({.quantity = "10", .amount = "100"});
    host.SetFilter({});
    clsFCSumInfo().GETSQL(*host.EarlyArgument());
    EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage"), std::string::npos);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=set");
    EXPECT_EQ(host.Query("select name from tempdb..sysobjects where name = 'goods'"), "name\n");
}

}  // namespace kavelin::test
