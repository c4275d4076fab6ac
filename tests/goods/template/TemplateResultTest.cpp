// What the goods-in-transit template gives on a small account. The arithmetic of the rows stands beside each case.
#include "frame/Errors.h"
#include "goods/ClsFcSumCon.h"
#include "goods/GoodsAccount.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

const std::string kMeasures =
    "期初_件数,期初_数量,期初_金额,收入_件数,收入_数量,收入_金额,发出_件数,发出_数量,发出_金额,结存_件数,结存_数量,"
    "结存_金额";

class GoodsTemplate : public testing::Test {
  protected:
    GoodsTemplate()
    {
        ModPub().gcnnAccount = CurrentPlatform().CreateConnection();
        ModPub().gcnnAccount->SetConnectionString(host.Answers().vosDbName);
        ModPub().gcnnAccount->Open("", "", -1);
        ModPub().gobjLogin = host.Login();
    }

    void Run(const std::vector<FakeField>& fields, const std::string& token = "")
    {
        host.SetFilter(fields);
        host.Filter()->whereByToken[0] = token;
        ClsFcSumCon().CreateNewTemplate(*host.Filter(), "tempdb..[goods]");
        for (const std::string& line : host.Events().Lines())
            EXPECT_FALSE(line.starts_with("ResourceObject.ShowMessage")) << line;
        EXPECT_EQ(host.Query("select name from tempdb..sysobjects where name like 'FCSFCItem%'"), "name\n");
    }

    // Rows of the result without the heading.
    std::string Rows(const std::string& columns)
    {
        const std::string rows =
            host.Query("select " + columns + " from tempdb..[goods] order by " + columns);
        return rows.substr(rows.find('\n') + 1);
    }

    std::string Measures(const std::vector<FakeField>& fields = {}, const std::string& token = "")
    {
        Run(fields, token);
        return Rows("存货_编码,单据日期," + kMeasures);
    }

    GoodsAccount host;
};

const std::vector<FakeField> kJuly = {{"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"},
                                      {"iUnitNumber", "1"}};
const std::vector<FakeField> kBoxes = {{"iUnitNumber", "1"}};

}  // namespace

// A row a document, since its date is among the dimensions: 50 kg in for 650.00, 20 kg out for 260.00.
TEST_F(GoodsTemplate, AddsReceiptsAndSubtractsIssues)
{
    host.Add({.quantity = "50", .amount = "650", .date = "'2008-07-10'"});
    host.Add({.document = 2,
              .type = "'26'",
              .in = false,
              .quantity = "20",
              .amount = "260",
              .date = "'2008-07-20'"});
    EXPECT_EQ(Measures(kJuly),
              "A,2008-07-10,0,0,0.00,5,50,650.00,0,0,0.00,5,50,650.00\n"
              "A,2008-07-20,0,0,0.00,0,0,0.00,2,20,260.00,-2,-20,-260.00\n");
}

// Lines of one document fall together where all their dimensions agree: 50 + 30 kg.
TEST_F(GoodsTemplate, SumsLinesOfTheSameDimensions)
{
    host.Add({.source = 1, .quantity = "50", .amount = "500"});
    host.Add({.source = 2, .quantity = "30", .amount = "300.55"});
    EXPECT_EQ(Measures(kJuly), "A,2008-07-10,0,0,0.00,8,80,800.55,0,0,0.00,8,80,800.55\n");
    host.Add({.source = 3, .quantity = "1", .amount = "10", .free1 = "N'红'"});
    EXPECT_EQ(Measures(kJuly),
              "A,2008-07-10,0,0,0.00,0.1,1,10.00,0,0,0.00,0.1,1,10.00\n"
              "A,2008-07-10,0,0,0.00,8,80,800.55,0,0,0.00,8,80,800.55\n");
}

// A line brought forward is an opening whatever its date and however its month says so: 40 and 7 kg.
TEST_F(GoodsTemplate, TakesMonthZeroAndNoMonthForBroughtForward)
{
    host.Add({.source = 1, .quantity = "40", .amount = "400", .month = "0"});
    host.Add({.source = 2, .quantity = "7", .amount = "70", .month = "null"});
    EXPECT_EQ(Measures(kJuly), "A,2008-07-10,4.7,47,470.00,0,0,0.00,0,0,0.00,4.7,47,470.00\n");
}

// In 60 kg on 10 June, out 15 kg on 20 June: opening 60 and -15, no movement. Out 5 kg in July.
TEST_F(GoodsTemplate, CountsARealMonthBeforeThePeriodInTheOpeningAndNotInTheMovement)
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
    EXPECT_EQ(Measures(kJuly),
              "A,2008-06-10,6,60,600.00,0,0,0.00,0,0,0.00,6,60,600.00\n"
              "A,2008-06-20,-1.5,-15,-150.00,0,0,0.00,0,0,0.00,-1.5,-15,-150.00\n"
              "A,2008-07-10,0,0,0.00,0,0,0.00,0.5,5,50.00,-0.5,-5,-50.00\n");
}

TEST_F(GoodsTemplate, HasNoLimitOfDatesWithoutADate)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .month = "1", .date = "'2008-01-01'"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .month = "12", .date = "'2008-12-31'"});
    EXPECT_EQ(Measures(kBoxes),
              "A,2008-01-01,0,0,0.00,1,10,100.00,0,0,0.00,1,10,100.00\n"
              "A,2008-12-31,0,0,0.00,2,20,200.00,0,0,0.00,2,20,200.00\n");
}

// B has no unit at all, C's unit 2 a rate of 0.
TEST_F(GoodsTemplate, HasZeroPiecesWithoutARate)
{
    host.Add({.source = 1, .quantity = "7", .amount = "70", .item = "'B'"});
    host.Add({.source = 2, .quantity = "8", .amount = "80", .month = "0", .item = "'C'"});
    EXPECT_EQ(Measures({{"iUnitNumber", "2"}}),
              "B,2008-07-10,0,0,0.00,0,7,70.00,0,0,0.00,0,7,70.00\n"
              "C,2008-07-10,0,8,80.00,0,0,0.00,0,0,0.00,0,8,80.00\n");
}

TEST_F(GoodsTemplate, KeepsTheSignOfRedLines)
{
    host.Add({.sourceType = "'06'", .type = "'06'", .quantity = "-30", .amount = "-300"});
    EXPECT_EQ(Measures(kBoxes), "A,2008-07-10,0,0,0.00,-3,-30,-300.00,0,0,0.00,-3,-30,-300.00\n");
}

// A movement counts by its direction only, here also its quantity: 4 kg in on an issue count nowhere.
TEST_F(GoodsTemplate, LooksAtTheDirectionInEveryColumn)
{
    host.Add({.type = "'26'", .in = false, .quantity = "20", .amount = "200"});
    host.Run("update IA_EnSubsidiary set iAInQuantity = 4, iAInPrice = 40");
    EXPECT_EQ(Measures(kBoxes), "A,2008-07-10,0,0,0.00,0,0,0.00,2,20,200.00,-2,-20,-200.00\n");
}

TEST_F(GoodsTemplate, CountsBookedLinesOnly)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .accounter = "null"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .month = "0", .accounter = "null"});
    EXPECT_EQ(Measures(kBoxes), "");
}

// A quantity below 8 places and an amount below 2 are none; pieces alone keep nothing.
TEST_F(GoodsTemplate, DropsGroupsWithoutQuantityAndAmount)
{
    host.Add({.source = 1, .quantity = "0", .amount = "0"});
    host.Add({.source = 2, .quantity = "0.000000001", .amount = "0.0040", .item = "'B'"});
    host.Add({.source = 3, .quantity = "null", .amount = "0.0060", .item = "'C'"});
    EXPECT_EQ(Measures(kBoxes), "C,2008-07-10,0,0,0.00,0,0,0.01,0,0,0.00,0,0,0.01\n");
}

// In and out on one day in the opening: 50 - 50, nothing is left and nothing shown.
TEST_F(GoodsTemplate, DropsAnOpeningThatCancelsOut)
{
    host.Add({.quantity = "50", .amount = "500", .month = "0"});
    host.Add({.document = 2, .type = "'26'", .in = false, .quantity = "50", .amount = "500", .month = "0"});
    EXPECT_EQ(Measures(kBoxes), "");
}

TEST_F(GoodsTemplate, LimitsClassBusinessTypeYearAndWhatTheFilterWords)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .businessType = "N'委托'"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .businessType = "N'委托代销'"});
    host.Add({.source = 3, .quantity = "3", .amount = "30", .item = "'B'"});
    host.Add({.source = 4, .quantity = "5", .amount = "50", .item = "'C'", .warehouse = "'02'"});
    host.Add({.source = 5, .quantity = "40", .amount = "400", .year = 2007});
    const auto rows = [&](const std::vector<FakeField>& fields, const std::string& token = "") {
        Run(fields, token);
        return Rows("存货_编码,结存_数量");
    };
    EXPECT_EQ(rows({{"Ia_Ensubsidiary.cBustype", "委托代销"}}), "A,30\n");
    EXPECT_EQ(rows({{"Ia_Ensubsidiary.cBustype", "普通销售"}, {"iYear", "2008"}}), "B,3\nC,5\n");
    EXPECT_EQ(rows({{"Ia_Ensubsidiary.cBustype", "全部"}, {"iYear", "2008"}}), "A,30\nB,3\nC,5\n");
    EXPECT_EQ(rows({{"Inventory.cInvCCode", "02"}}), "B,3\nC,5\n");
    EXPECT_EQ(rows({{"Inventory.cInvCCode", ""}, {"iYear", "2007"}}), "A,40\n");
    EXPECT_EQ(rows({}, "Ia_Ensubsidiary.cWhCode = N'02'"), "C,5\n");
}

// Both names of consignment are shown by the long one, so that they are one group.
TEST_F(GoodsTemplate, ShowsTheShortNameOfConsignmentByTheLongOne)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100", .businessType = "N'委托'"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .businessType = "N'委托代销'"});
    Run({});
    EXPECT_EQ(Rows("业务类型,结存_数量"), "委托代销,30\n");
}

// Each kind of voucher finds the dispatch note or the sale issue of its source in its own way. Dispatch 1, issue
// 2 made from it, invoice 3 of it; the adjustment names dispatch 1 or issue 2 as its source.
TEST_F(GoodsTemplate, FindsTheDocumentsBehindEachKindOfVoucher)
{
    host.AddDocument("DISP", "05", 1, "FH01", 1);
    host.AddDocument("RD", "32", 2, "CK02", 1);
    host.AddDocument("SALE", "26", 3, "FP03", 1);
    host.Add({.source = 1, .quantity = "1", .amount = "10", .dispatchLine = "1"});
    host.Add({.source = 2,
              .sourceType = "'3201'",
              .type = "'3201'",
              .quantity = "2",
              .amount = "20",
              .dispatchLine = "1"});
    host.Add({.source = 1,
              .document = 3,
              .type = "'26'",
              .in = false,
              .quantity = "3",
              .amount = "30",
              .invoiceLine = "3"});
    host.Add({.source = 2,
              .sourceType = "'3201'",
              .document = 4,
              .type = "'26'",
              .in = false,
              .quantity = "4",
              .amount = "40",
              .invoiceLine = "3"});
    host.Add({.source = 1, .document = 5, .type = "'65'", .amount = "50"});
    host.Add({.source = 2, .sourceType = "'3201'", .document = 6, .type = "'66'", .amount = "60"});
    Run({});
    EXPECT_EQ(Rows("发货单号,出库单号,收入_金额,发出_金额"),
              ",CK02,60.00,0.00\n"
              "FH01,,60.00,30.00\n"
              "FH01,CK02,20.00,40.00\n");
    // Split, the dispatch notes reach their own line, as their source, the same way.
    Run({{"IsMerge", "1"}});
    EXPECT_EQ(Rows("发货单号,出库单号,收入_金额,发出_金额"),
              ",CK02,60.00,0.00\n"
              "FH01,,60.00,30.00\n"
              "FH01,CK02,20.00,40.00\n");
}

// The columns of a line's attributes, in a template per inventory.
TEST_F(GoodsTemplate, ShowsTheAttributesOfALine)
{
    host.Add({.quantity = "10", .amount = "100", .free1 = "N'红'"});
    Run(kBoxes);
    EXPECT_EQ(
        Rows(
            "仓库_编码,仓库_名称,存货_编码,存货_代码,存货_名称,存货大类_编码,存货大类_名称,存货_规格,存货_单位,"
            "存货_重量,存货_辅计量单位,存货_辅计量换算率,cInvDefine1"),
        "01,成品库,A,A-1,甲泵,0101,水泵,DN50,千克,2.5,箱,10,红\n");
    EXPECT_EQ(Rows("业务类型,单据日期,记账日期,客户分类编码,客户分类名称,客户编码,客户简称,部门编码,部门名称,"
                   "所属部门编码,所属部门名称,业务员编码,业务员名称,批号,cFree1"),
              "普通销售,2008-07-10,2008-07-11,01,内销,K1,甲,03,销售部,04,仓储部,P1,张三,\"\",红\n");
}

TEST_F(GoodsTemplate, HasTheColumnsInTheirOrder)
{
    Run({{"InvCGrade", "1"}});
    EXPECT_EQ(
        host.Query("select * from tempdb..[goods]"),
        "仓库_编码,仓库_名称,存货大类_编码,存货大类_名称,业务类型,单据日期,记账日期,发货单号,出库单号,"
        "客户分类编码,客户分类名称,客户编码,客户简称,部门编码,部门名称,所属部门编码,所属部门名称,业务员编码,"
        "业务员名称,cItem_class,cItemcName,cItemCode,cName,批号,"
        "cFree1,cFree2,cFree3,cFree4,cFree5,cFree6,cFree7,cFree8,cFree9,cFree10,"
        "cDefine1,cDefine2,cDefine3,cDefine4,cDefine5,cDefine6,cDefine7,cDefine8,cDefine9,cDefine10,cDefine11,"
        "cDefine12,cDefine13,cDefine14,cDefine15,cDefine16,"
        "cDefine22,cDefine23,cDefine24,cDefine25,cDefine26,cDefine27,cDefine28,cDefine29,cDefine30,cDefine31,"
        "cDefine32,cDefine33,cDefine34,cDefine35,cDefine36,cDefine37," +
            kMeasures + "\n");
}

// The class shown is the inventory's own, whatever the grade: A of 0101 and B of 02.
TEST_F(GoodsTemplate, GroupsByTheInventorysOwnClassWithAnyGrade)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100"});
    host.Add({.source = 2, .quantity = "3", .amount = "30", .item = "'B'"});
    host.Add({.source = 3, .quantity = "4", .amount = "40", .item = "'C'"});
    for (const char* grade : {"1", "2"}) {
        Run({{"InvCGrade", grade}});
        EXPECT_EQ(Rows("存货大类_编码,结存_数量"), "0101,10\n02,7\n") << grade;
    }
}

// The class list asks for a column of the ledger in a statement that reads another table: the server refuses it,
// and the caller of a template by class gets its error. This is wanted.
TEST_F(GoodsTemplate, FailsByClassWithTheServersError)
{
    host.Run(
        "create table temp_rdstyleMACHINE (cRdCode nvarchar(12) null, bRdFlag smallint, cRdName nvarchar(12))");
    host.SetFilter({{"RdGrade", "1"}});
    try {
        ClsFcSumCon().CreateNewTemplate(*host.Filter(), "tempdb..[goods]");
        ADD_FAILURE() << "the class list has no such table";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 4104) << error.what();
    }
    EXPECT_EQ(host.Query("select name from tempdb..sysobjects where name = 'goods'"), "name\n");
}

// Warehouse 09 takes no part in costing and shows to nobody; with permissions on, the user sees warehouse 01,
// department 03 and items 1 and 3 only.
TEST_F(GoodsTemplate, ShowsOnlyWhatTheUserMaySee)
{
    host.Add({.source = 1, .quantity = "10", .amount = "100"});
    host.Add({.source = 2, .quantity = "20", .amount = "200", .warehouse = "'09'"});
    host.Add({.source = 3, .quantity = "3", .amount = "30", .item = "'B'"});
    host.Add({.source = 4, .quantity = "4", .amount = "40", .item = "'C'", .warehouse = "'02'"});
    Run({});
    EXPECT_EQ(Rows("存货_编码,结存_数量"), "A,10\nB,3\nC,4\n");

    host.Run(
        "insert into AccInformation (cSysID, cName, cValue) values ('IA', 'bWarehouseCheck', 'TRUE'),"
        " ('IA', 'bInventoryCheck', 'TRUE'), ('IA', 'bDepartmentCheck', 'True')");
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'1','3'"}};
    Run({});
    EXPECT_EQ(Rows("存货_编码,结存_数量"), "A,10\n");
}

// A table of that name, and the work table of a run that failed, go first.
TEST_F(GoodsTemplate, ReplacesTheTablesOfARunBefore)
{
    host.Run("create table tempdb..goods (x int)");
    host.Run("create table tempdb..FCSFCItemMACHINE7 (x int)");
    host.Add({.quantity = "10", .amount = "100"});
    Run({});
    EXPECT_EQ(Rows("存货_编码,结存_数量"), "A,10\n");
}

}  // namespace kavelin::test
