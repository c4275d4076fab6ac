// What the summary leaves in its pool on a small account. The rows wanted are worked out by hand beside each
// case.
#include "frame/Errors.h"
#include "summary/clsIASFCReport.h"
#include "summary/clsSFCSumCon.h"
#include "summary/stock/SummaryBooks.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr const char* kPosted = "已记账单据";
constexpr const char* kUnposted = "未记账单据";
const FakeField kJuly = {"dVouDate", "2008-07-01", "2008-07-31", true};

// Quantity, money and difference of opening balance, receipts and issues.
constexpr const char* kBalances =
    "qcquantity, qcprice, qcdif, inquantity, inprice, indif, outquantity, outprice, outdif";
constexpr const char* kQuantities = "cinvcode, qcquantity, inquantity, outquantity";

class StockSummary : public testing::Test {
  protected:
    // The report of posted lines of July, its rows in `columns`.
    std::string Posted(const std::string& columns, std::vector<FakeField> more = {})
    {
        return Rows(kPosted, columns, std::move(more));
    }
    std::string Unposted(const std::string& columns, std::vector<FakeField> more = {})
    {
        return Rows(kUnposted, columns, std::move(more));
    }

    SummaryBooks books;

  private:
    std::string Rows(const char* state, const std::string& columns, std::vector<FakeField> more)
    {
        more.push_back({"vouEstate", state});
        if (std::ranges::none_of(more, [](const FakeField& field) { return field.name == "dVouDate"; }))
            more.push_back(kJuly);
        EXPECT_TRUE(books.RunReport(more));
        return books.Pool(columns);
    }
};

}  // namespace

// ---- the ledger

// Opening 100 + 50 - 30 - 5 = 115 pieces; 1000 + 555.56 - 333.30 - 50 = 1172.26 (555.555 is rounded up);
// difference 5 - 2 = 3 of the receipt, 1 - 4 = -3 of the issue. July receives 20 and issues 12 - 2 = 10.
TEST_F(StockSummary, TellsOpeningReceiptsAndIssuesApart)
{
    books.Add(LedgerLine{.type = "34", .date = "2008-01-01", .month = 0, .quantity = "100", .money = "1000"});
    books.Add(LedgerLine{
        .date = "2008-02-10", .month = 2, .quantity = "50", .money = "555.555", .debit = "5", .credit = "2"});
    books.Add(LedgerLine{.type = "32",
                         .flag = "0",
                         .date = "2008-03-10",
                         .month = 3,
                         .quantity = "30",
                         .money = "333.30",
                         .debit = "1",
                         .credit = "4"});
    books.Add(LedgerLine{.date = "2008-06-30", .month = 6, .quantity = "-5", .money = "-50"});
    books.Add(
        LedgerLine{.date = "2008-07-01", .quantity = "20", .money = "210", .debit = "4", .credit = "1"});
    books.Add(LedgerLine{.type = "32",
                         .flag = "0",
                         .date = "2008-07-31",
                         .quantity = "12",
                         .money = "126",
                         .debit = "1",
                         .credit = "3"});
    books.Add(LedgerLine{.type = "32", .flag = "0", .quantity = "-2", .money = "-21"});
    books.Add(LedgerLine{.date = "2008-08-01", .month = 8, .quantity = "1000", .money = "1000"});

    EXPECT_EQ(Posted("cvoutype, " + std::string(kBalances)),
              "01,-5,-50.00,0.00,0,0.00,0.00,0,0.00,0.00\n"
              "01,0,0.00,0.00,20,210.00,3.00,0,0.00,0.00\n"
              "01,50,555.56,3.00,0,0.00,0.00,0,0.00,0.00\n"
              "32,-30,-333.30,-3.00,0,0.00,0.00,0,0.00,0.00\n"
              "32,0,0.00,0.00,0,0.00,0.00,-2,-21.00,0.00\n"
              "32,0,0.00,0.00,0,0.00,0.00,12,126.00,2.00\n"
              "34,100,1000.00,0.00,0,0.00,0.00,0,0.00,0.00\n");
    EXPECT_EQ(
        books.Query(
            "select sum(qcquantity) as q, sum(qcprice) as m, sum(inquantity) as i, sum(outquantity) as o"
            " from tempdb..pool"),
        "q,m,i,o\n115,1172.26,20,10\n");
}

TEST_F(StockSummary, CountsAnOpeningLineAsOpeningWhateverItsDate)
{
    books.Add(LedgerLine{.type = "34", .date = "2008-07-10", .month = 0, .quantity = "7", .money = "70"});
    books.Add(LedgerLine{.type = "34", .date = "2008-12-31", .month = 0, .quantity = "8", .money = "80"});
    EXPECT_EQ(Posted(kQuantities), "A,7,0,0\nA,8,0,0\n");
}

TEST_F(StockSummary, LeavesOpeningEstimatesOutOfAll)
{
    books.Add(LedgerLine{.type = "33", .date = "2008-01-01", .month = 0, .quantity = "7"});
    books.Add(LedgerLine{.type = "33", .date = "2008-03-01", .month = 3, .quantity = "8"});
    books.Add(LedgerLine{.type = "33", .quantity = "9"});
    EXPECT_EQ(Posted(kQuantities), "");
}

TEST_F(StockSummary, TakesAMissingAmountForZero)
{
    for (const char* flag : {"1", "0"}) {
        books.Add(LedgerLine{.type = "20",
                             .flag = flag,
                             .quantity = "null",
                             .money = "null",
                             .debit = "null",
                             .credit = "null"});
        books.Add(LedgerLine{.type = "20",
                             .flag = flag,
                             .date = "2008-02-01",
                             .month = 2,
                             .quantity = "null",
                             .money = "null",
                             .debit = "null",
                             .credit = "3"});
    }
    EXPECT_EQ(Posted(kBalances),
              "0,0.00,-3.00,0,0.00,0.00,0,0.00,0.00\n"
              "0,0.00,-3.00,0,0.00,0.00,0,0.00,0.00\n"
              "0,0.00,0.00,0,0.00,0.00,0,0.00,0.00\n"
              "0,0.00,0.00,0,0.00,0.00,0,0.00,0.00\n");
}

TEST_F(StockSummary, KeepsALineOfNoDirectionWithoutAnAmount)
{
    books.Add(LedgerLine{.flag = "2", .quantity = "5", .money = "50", .debit = "3"});
    EXPECT_EQ(Posted("brdflagtext, " + std::string(kBalances)), "收入,0,0.00,0.00,0,0.00,0.00,0,0.00,0.00\n");
}

TEST_F(StockSummary, BeginsNotBeforeTheModule)
{
    books.Set("dIAStartDate", "2008-03-01");
    books.Add(LedgerLine{.date = "2008-02-15", .month = 2, .quantity = "5"});
    books.Add(LedgerLine{.date = "2008-03-01", .month = 3, .quantity = "6"});
    for (const char* start : {"2008-01-01", "2008-03-01", ""})
        EXPECT_EQ(Posted(kQuantities, {{"dVouDate", start, "2008-07-31", true}}), "A,0,6,0\nA,5,0,0\n")
            << start;
    EXPECT_EQ(Posted(kQuantities, {{"dVouDate", "2008-03-02", "", true}}), "A,5,0,0\nA,6,0,0\n");
}

TEST_F(StockSummary, HasNoEndWithoutALastDay)
{
    books.Add(LedgerLine{.date = "2009-12-31", .month = 12, .quantity = "5"});
    EXPECT_EQ(Posted(kQuantities, {{"dVouDate", "2008-07-01", "", true}}), "A,0,5,0\n");
    EXPECT_EQ(Posted(kQuantities), "");
}

TEST_F(StockSummary, FailsQuietlyWhereThereIsNoFirstDayAtAll)
{
    books.Set("dIAStartDate", "");
    books.Add(LedgerLine{.quantity = "5"});
    EXPECT_FALSE(books.RunReport({{"vouEstate", kPosted}}));
    EXPECT_FALSE(books.RunReport({{"vouEstate", kPosted}, {"dVouDate", "", "2008-07-31", true}}));
    EXPECT_EQ(books.Pool(kQuantities), "") << "the pool is there, and empty";
    books.Add(DocumentLine{.id = 1, .quantity = "3"});
    EXPECT_TRUE(books.RunReport({{"vouEstate", kUnposted}}))
        << "documents have a whole condition without dates";
    EXPECT_EQ(books.Documents(), "1 ");
}

// ---- what a line shows

TEST_F(StockSummary, ShowsItemUnitWarehouseClassAndDirection)
{
    books.Add(LedgerLine{
        .item = "A", .quantity = "1", .rdClass = "N'1101'", .freeItem1 = "N'f1'", .freeItem2 = "N'f2'"});
    books.Add(LedgerLine{.item = "B",
                         .flag = "0",
                         .quantity = "2",
                         .warehouse = "null",
                         .business = "null",
                         .rdClass = "null"});
    books.Add(LedgerLine{.item = "C", .quantity = "3", .warehouse = "N'02'"});
    books.Add(LedgerLine{.item = "X", .quantity = "4"});
    EXPECT_EQ(
        Posted(
            "cinvcode, cinvccode, cfree1, cfree2, cinvaddcode, cinvname, cinvstd, ccomunitname, iinvweight"),
        "A,0101,f1,f2,A-1,钢板,2mm,千克,1.5\n"
        "B,0102,,,,铜线,\"\",个,\n"
        "C,02,,,C-1,螺丝,M6,,\n"
        "X,,,,,,,,\n");
    EXPECT_EQ(
        books.Pool(
            "id, bacc, cbustype, cwhcode, cwhname, crdcode, crdname, cvoutype, brdflagtext, ccomunitcode,"
            " cgroupcode, inumber, rate, cfcomunitname"),
        ",0,普通采购,01,原料库,1101,国内采购,01,收入,kg,g,1,,\n"
        ",0,,,,,,01,发出,pc,,,,\n"
        ",0,普通采购,02,成品库,11,采购入库,01,收入,,,,,\n"
        ",0,普通采购,01,原料库,11,采购入库,01,收入,,,,,\n");
}

TEST_F(StockSummary, CutsTheClassToTheGrade)
{
    for (const char* rdClass : {"N'1101001'", "N'1102'", "N'11'", "null"})
        books.Add(LedgerLine{.quantity = "1", .rdClass = rdClass});
    const auto classes = [&](const char* grade) {
        EXPECT_TRUE(books.RunReport({{"vouEstate", kPosted}, kJuly, {"rdGrade", grade}}));
        const std::string rows = books.Query(
            "select crdcode, crdname, count(*) as n from tempdb..pool group by crdcode, crdname order by 1");
        return rows.substr(rows.find('\n') + 1);
    };
    EXPECT_EQ(classes("0"), ",,1\n11,采购入库,1\n1101001,,1\n1102,进口采购,1\n");
    EXPECT_EQ(classes("1"), ",,1\n11,采购入库,3\n");
    EXPECT_EQ(classes("2"), ",,1\n11,采购入库,1\n1101,国内采购,1\n1102,进口采购,1\n");
}

// Quantities stay in main units.
TEST_F(StockSummary, GivesRateAndNameOfTheSecondUnit)
{
    books.Add(LedgerLine{.item = "A", .quantity = "24"});
    books.Add(LedgerLine{.item = "B", .quantity = "24"});
    const std::string columns = "cinvcode, inquantity, rate, cfcomunitname";
    EXPECT_EQ(Posted(columns, {{"cAssComUnitNum", "2"}}), "A,24,12,箱\nB,24,,\n");
    EXPECT_EQ(Posted(columns, {{"cAssComUnitNum", "1"}}), "A,24,1,千克\nB,24,,\n");
    EXPECT_EQ(Posted(columns, {{"cAssComUnitNum", "3"}}), "A,24,,\nB,24,,\n");
    EXPECT_EQ(Posted(columns, {{"cAssComUnitNum", "0"}}), "A,24,,\nB,24,,\n");
}

TEST_F(StockSummary, ClearsFreeItemsThatAnItemDoesNotKeep)
{
    for (const char* item : {"A", "C", "X"})
        books.Add(LedgerLine{.item = item, .quantity = "1", .freeItem1 = "N'f1'", .freeItem2 = "N'f2'"});
    const std::string columns = "cinvcode, cfree1, cfree2";
    EXPECT_EQ(Posted(columns), "A,f1,f2\nC,f1,f2\nX,f1,f2\n");
    EXPECT_EQ(Posted(columns, {{"byteFree", "是"}}), "A,,\nC,f1,\nX,f1,f2\n")
        << "X is no item of the account";
}

// ---- what the filter lets through

TEST_F(StockSummary, HoldsOnlyWhatTheFilterLetsThrough)
{
    books.Add(LedgerLine{.item = "A", .quantity = "1"});
    books.Add(LedgerLine{.item = "B", .quantity = "2", .warehouse = "N'02'"});
    books.Add(
        LedgerLine{.item = "C", .type = "08", .quantity = "3", .warehouse = "null", .business = "null"});
    books.Add(LedgerLine{.item = "C", .quantity = "4", .warehouse = "N'09'"});
    books.Run("update IA_Subsidiary set cItem_class = '97', cItemCode = 'P1' where cInvCode = 'B'");

    const std::string a = "A,0,1,0\n", b = "B,0,2,0\n", c = "C,0,3,0\n";
    const struct {
        std::vector<FakeField> fields;
        std::string rows;
    } cases[] = {
        {{}, a + b + c},  // never a warehouse that takes no part in costing
        {{{"cInvCCode", "01"}}, a + b},
        {{{"cInvCCode", "0102"}}, b},
        {{{"cinvcode", "B", "", true}}, b + c},
        {{{"cinvcode", "", "B", true}}, a + b},
        {{{"cwhcode", "02"}}, b + c},  // a line without a warehouse passes
        {{{"cwhcode", "01\t02"}}, a + b + c},
        {{{"cwhcode", "01,02"}}, c},
        {{{"cItem_Class", "97"}}, b},
        {{{"cItemCode", "P1"}}, b},
        {{{"cItemCode", "P2"}}, ""},
        {{{"cInvDefine1", "red"}}, a},
        {{{"cBusType", "普通采购"}}, a + b},
        {{{"cVouType", "02", "", true}}, c},
        {{{"cInvCCode", "01"}, {"cwhcode", "01"}, {"cBusType", "普通采购"}}, a},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Posted(kQuantities, one.fields), one.rows) << one.fields.size();
}

// What balances and business the user wants to see is the reader's to apply.
TEST_F(StockSummary, DoesNotDependOnConditionsOnBalancesAndBusiness)
{
    books.Add(LedgerLine{.quantity = "5"});
    books.Add(LedgerLine{.item = "B", .flag = "0", .quantity = "5"});
    const std::string plain = Posted(kQuantities);
    for (const FakeField& field : std::vector<FakeField>{{"EndNum", "大于零"},
                                                         {"EndNum", "等于零"},
                                                         {"EndPrice", "小于零"},
                                                         {"incompareout", "入库大于出库"},
                                                         {"busEstate", "未发生"}})
        EXPECT_EQ(Posted(kQuantities, {field}), plain) << field.name;
}

TEST_F(StockSummary, ShowsOnlyWhatTheUserMaySee)
{
    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        books.Run(std::string("insert into AccInformation values ('IA', '") + name + "', 'TRUE', null)");
    books.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'D1'"}, {"Inventory", "'1'"}};
    books.Add(LedgerLine{.item = "A", .quantity = "1"});
    books.Add(LedgerLine{.item = "A", .quantity = "2", .warehouse = "N'02'"});
    books.Add(LedgerLine{.item = "A", .quantity = "3", .warehouse = "null"});
    books.Add(LedgerLine{.item = "A", .quantity = "4"});
    books.Add(LedgerLine{.item = "B", .quantity = "5"});
    books.Run("update IA_Subsidiary set cDepCode = 'D2' where iAInQuantity = 4");
    books.Add(DocumentLine{.id = 1, .quantity = "6"});
    books.Add(DocumentLine{.id = 2, .item = "B", .quantity = "7"});
    books.Add(DocumentLine{.id = 3, .quantity = "8", .warehouse = "N'02'"});
    EXPECT_TRUE(books.RunReport({{"vouEstate", "已记账单据,未记账单据"}, kJuly}));
    EXPECT_EQ(books.Pool(kQuantities), "A,0,1,0\nA,0,3,0\nA,0,6,0\n");
}

TEST_F(StockSummary, FailsQuietlyForAQuoteInACode)
{
    books.Add(LedgerLine{.quantity = "1"});
    for (const FakeField& field :
         std::vector<FakeField>{{"cInvCCode", "0'1"}, {"cwhcode", "0'1"}, {"cBusType", "a'"}})
        EXPECT_FALSE(books.RunReport({{"vouEstate", kPosted}, kJuly, field})) << field.name;
    EXPECT_EQ(books.Pool(kQuantities), "") << "as far as it got";
}

TEST_F(StockSummary, FailsQuietlyForAKeyThatIsNoColumn)
{
    EXPECT_FALSE(books.RunReport({{"vouEstate", kPosted}, kJuly, {"cNothing", "1"}}));
    EXPECT_TRUE(books.RunReport({kJuly, {"cNothing", "1"}})) << "without a pass nothing reads it";
}

// ---- documents

TEST_F(StockSummary, CountsUnpostedDocumentsAsReceiptsAndIssues)
{
    books.Add(DocumentLine{.id = 1, .quantity = "10", .money = "100.005", .difference = "3"});
    books.Add(
        DocumentLine{.id = 2, .type = "32", .flag = "0", .quantity = "4", .money = "44", .difference = "2"});
    books.Add(DocumentLine{.id = 3, .type = "32", .flag = "0", .quantity = "-1", .money = "-11"});
    books.Add(DocumentLine{.id = 4, .type = "08", .quantity = "null", .money = "null", .difference = "null"});
    books.Add(DocumentLine{.id = 5, .kind = "JUST", .type = "20", .money = "7", .difference = "9"});
    books.Add(DocumentLine{
        .id = 6, .kind = "VMI", .type = "70", .quantity = "3", .money = "30", .difference = "5"});
    books.Add(DocumentLine{.id = 7, .quantity = "1000", .poster = "N'demo'"});
    books.Add(DocumentLine{.id = 8, .flag = "2", .quantity = "6", .poster = "N''"});
    EXPECT_EQ(Unposted("id, bacc, cvoutype, brdflagtext, " + std::string(kBalances)),
              "8,1,01,收入,0,0.00,0.00,0,0.00,0.00,0,0.00,0.00\n"
              "1,1,01,收入,0,0.00,0.00,10,100.01,3.00,0,0.00,0.00\n"
              "4,1,08,收入,0,0.00,0.00,0,0.00,0.00,0,0.00,0.00\n"
              "5,1,20,收入,0,0.00,0.00,0,7.00,0.00,0,0.00,0.00\n"
              "3,1,32,发出,0,0.00,0.00,0,0.00,0.00,-1,-11.00,0.00\n"
              "2,1,32,发出,0,0.00,0.00,0,0.00,0.00,4,44.00,2.00\n"
              "6,1,70,收入,0,0.00,0.00,3,30.00,5.00,0,0.00,0.00\n");
}

TEST_F(StockSummary, HasNoOpeningBalancesOfDocumentsAlone)
{
    books.Add(LedgerLine{.type = "34", .date = "2008-01-01", .month = 0, .quantity = "100"});
    books.Add(DocumentLine{.id = 1, .quantity = "10"});
    EXPECT_EQ(Unposted(kQuantities), "A,0,10,0\n");
}

// Between the module's start and the period a document is no movement of it.
TEST_F(StockSummary, CountsDocumentsOfBeforeTheModulesStartInEveryPeriod)
{
    books.Add(DocumentLine{.id = 1, .date = "2007-12-31", .quantity = "1"});
    books.Add(DocumentLine{.id = 2, .date = "2008-01-01", .quantity = "1"});
    books.Add(DocumentLine{.id = 3, .date = "2008-07-01", .quantity = "1"});
    books.Add(DocumentLine{.id = 4, .date = "2008-07-31", .quantity = "1"});
    books.Add(DocumentLine{.id = 5, .date = "2008-08-01", .quantity = "1"});
    Unposted("id");
    EXPECT_EQ(books.Documents(), "1 3 4 ");
    Unposted("id", {{"dVouDate", "2008-08-01", "2008-08-31", true}});
    EXPECT_EQ(books.Documents(), "1 5 ");
    Unposted("id", {{"dVouDate", "2007-12-01", "2007-12-31", true}});
    EXPECT_EQ(books.Documents(), "1 ") << "up to the last day";
    Unposted("id", {{"dVouDate", "2007-12-01", "2007-12-30", true}});
    EXPECT_EQ(books.Documents(), "");
}

TEST_F(StockSummary, AppliesTheFilterToDocumentsToo)
{
    books.Add(DocumentLine{.id = 1, .item = "A", .quantity = "1"});
    books.Add(DocumentLine{.id = 2, .item = "C", .quantity = "1"});
    books.Add(DocumentLine{.id = 3, .item = "A", .quantity = "1", .warehouse = "N'02'"});
    Unposted("id", {{"cInvCCode", "01"}, {"cwhcode", "01"}, {"cInvDefine1", "red"}});
    EXPECT_EQ(books.Documents(), "1 ");
}

// ---- the table

TEST_F(StockSummary, MakesAnEmptyPoolWithoutDocumentStates)
{
    books.Add(LedgerLine{.quantity = "5"});
    books.Add(DocumentLine{.id = 1, .quantity = "5"});
    EXPECT_TRUE(books.RunReport({kJuly, {"cAssComUnitNum", "2"}, {"byteFree", "是"}}));
    EXPECT_EQ(
        books.Query("select * from tempdb..pool"),
        "cInvCode,cInvCCode,cfree1,cfree2,cfree3,cfree4,cfree5,cfree6,cfree7,cfree8,cfree9,cfree10,"
        "cInvAddCode,cInvName,cInvStd,CComUnitName,iInvWeight,QcQuantity,QcPrice,qcDif,InQuantity,InPrice,InDif,"
        "OutQuantity,OutPrice,OutDif,id,bacc,cbustype,cwhcode,cRdCode,cvoutype,brdflagtext,crdname,cComunitCode,"
        "rate,cGroupCode,iNumber,cwhname,cFComUnitName\n");
}

TEST_F(StockSummary, GivesItsColumnsTheirTypes)
{
    EXPECT_TRUE(books.RunReport({}));
    const auto connection = embedded::NewConnection();
    connection->SetConnectionString(books.Answers().vosDbName);
    connection->Open("", "", -1);
    const auto rows = connection->OpenRecordset("select * from tempdb..pool", CursorLocation::Client,
                                                CursorType::Static, LockType::ReadOnly);
    std::string types;
    for (int field = 0; field < rows->FieldCount(); ++field)
        types += rows->FieldType(field) + "\n";
    EXPECT_EQ(
        types,
        "nvarchar(60)\nnvarchar(24)\n"
        "nvarchar(20)\nnvarchar(20)\nnvarchar(20)\nnvarchar(20)\nnvarchar(20)\n"
        "nvarchar(20)\nnvarchar(20)\nnvarchar(20)\nnvarchar(20)\nnvarchar(20)\n"
        "nvarchar(255)\nnvarchar(255)\nnvarchar(255)\nnvarchar(20)\nfloat\n"
        "float\ndecimal(20,2)\ndecimal(20,2)\nfloat\ndecimal(20,2)\ndecimal(20,2)\n"
        "float\ndecimal(20,2)\ndecimal(20,2)\n"
        "int\nint\nnvarchar(60)\nnvarchar(10)\nnvarchar(7)\nnvarchar(4)\n"
        "nvarchar(100)\nnvarchar(100)\nnvarchar(100)\nfloat\nnvarchar(100)\nint\nnvarchar(100)\nnvarchar(20)\n");
}

TEST_F(StockSummary, TakesThePlaceOfATableOfItsName)
{
    books.Add(LedgerLine{.quantity = "5"});
    books.Run("select 1 as other into tempdb..pool");
    EXPECT_EQ(Posted(kQuantities), "A,0,5,0\n");
    EXPECT_EQ(Posted(kQuantities), "A,0,5,0\n") << "also of its own";
}

// The report drops tables of tempdb only.
TEST_F(StockSummary, FailsQuietlyForATableOfItsNameInTheAccount)
{
    books.Add(LedgerLine{.quantity = "5"});
    books.Run("create table pool (other int null)");
    books.Answers().sql = "pool";
    EXPECT_FALSE(books.RunReport({{"vouEstate", kPosted}, kJuly}));
    EXPECT_EQ(books.Query("select * from pool"), "other\n");
}

TEST_F(StockSummary, LeavesNoTableWhereTheFilterCanNotBeRead)
{
    books.Run("select 1 as other into tempdb..pool");
    EXPECT_TRUE(books.RunReport({{"rdGrade", "two"}}));
    EXPECT_THROW(books.Query("select * from tempdb..pool"), DatabaseError);
}

TEST_F(StockSummary, LeavesAPartWhereTheAccountLacksASetting)
{
    books.Add(DocumentLine{.id = 1, .quantity = "1"});
    books.Add(DocumentLine{.id = 2, .kind = "VMI", .quantity = "1"});
    books.Run("delete from AccInformation where cName = 'bSaleType'");
    EXPECT_FALSE(books.RunReport({{"vouEstate", kUnposted}, kJuly}));
    EXPECT_EQ(books.Documents(), "1 ") << "stock and adjustments are read before the setting is";
    books.Run("delete from AccInformation where cName = 'cDispLevel'");
    EXPECT_FALSE(books.RunReport({{"vouEstate", kUnposted}, kJuly}));
    EXPECT_THROW(books.Query("select * from tempdb..pool"), DatabaseError) << "before the pool is made";
}

// Called by itself, the engine drops by the whole name only.
TEST_F(StockSummary, FailsInTheEngineForATableOfItsQualifiedName)
{
    books.RunReport({});
    ModPub().gcnnAccount = CurrentPlatform().CreateConnection();
    ModPub().gcnnAccount->SetConnectionString(books.Answers().vosDbName);
    ModPub().gcnnAccount->Open("", "", -1);
    clsIASFCReport engine;
    engine.SetsTable("tempdb..pool");
    try {
        engine.GetSum({});
        ADD_FAILURE() << "the table was there already";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 2714) << error.what();
    }
}

}  // namespace kavelin::test
