// The stock summary as its reader sees it, from a pool of a few rows.
#include "host/definition/StockView.h"

#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::host {

namespace {

constexpr const char* kPool =
    "create table tempdb..pool (cInvCode nvarchar(60) null, cInvCCode nvarchar(24) null, cInvAddCode nvarchar(60)"
    " null, cInvName nvarchar(255) null, cInvStd nvarchar(255) null, CComUnitName nvarchar(20) null, QcQuantity"
    " float null, QcPrice decimal(20,2) null, qcDif decimal(20,2) null, InQuantity float null, InPrice"
    " decimal(20,2) null, InDif decimal(20,2) null, OutQuantity float null, OutPrice decimal(20,2) null, OutDif"
    " decimal(20,2) null, cbustype nvarchar(60) null, cwhcode nvarchar(10) null, cwhname nvarchar(60) null, cRdCode"
    " nvarchar(20) null, crdname nvarchar(100) null, cvoutype nvarchar(10) null, rate float null, cfree1 nvarchar(20)"
    " null, cfree2 nvarchar(20) null, cfree3 nvarchar(20) null, cfree4 nvarchar(20) null, cfree5 nvarchar(20) null,"
    " cfree6 nvarchar(20) null, cfree7 nvarchar(20) null, cfree8 nvarchar(20) null, cfree9 nvarchar(20) null, cfree10"
    " nvarchar(20) null)";

class StockViewOnAPool : public testing::Test {
  protected:
    StockViewOnAPool() { host.Run(kPool); }

    struct Row {
        const char* item;
        const char* opening = "0, 0, 0";  // quantity, money, difference
        const char* receipts = "0, 0, 0";
        const char* issues = "0, 0, 0";
        const char* warehouse = "'01', N'库01'";
        const char* rd = "null, null";
        const char* rate = "null";
        const char* business = "N'普通采购'";
        const char* free2 = "null";
    };
    void Add(const Row& row)
    {
        host.Run(std::string("insert into tempdb..pool values ('") + row.item + "', '0" +
                 (row.item[0] == 'A' ? "1" : "2") + "', null, N'名" + row.item + "', null, N'千克', " +
                 row.opening + ", " + row.receipts + ", " + row.issues + ", " + row.business + ", " +
                 row.warehouse + ", " + row.rd + ", '01', " + row.rate + ", null, " + row.free2 +
                 ", null, null, null, null, null, null, null, null)");
    }

    FilterInput Input(const std::vector<std::string>& settings)
    {
        FilterInput input(TemplateOf("stock-summary"), ValuePolicy::Checked);
        for (const std::string& setting : settings)
            input.Set(setting);
        return input;
    }

    ViewSelects View(const std::vector<std::string>& settings, const std::string& groups = "")
    {
        return MakeStockView(Input(settings), groups)->Of(host.Outside(), "tempdb..pool");
    }

    // The columns of a table, by their headings.
    std::string Headings(const std::vector<std::string>& settings, const std::string& groups,
                         std::string_view language = kChinese)
    {
        std::string headings;
        for (const ViewColumn& column : View(settings, groups).columns)
            headings += (headings.empty() ? "" : ",") + column.heading.In(language);
        return headings;
    }

    // The codes of the items that stay.
    std::string Items(const std::vector<std::string>& settings)
    {
        const std::string rows = View(settings).rows;
        return host.Query("select cInvCode from (" + rows.substr(0, rows.rfind("\r\norder by")) +
                          ") g order by cInvCode");
    }

    test::AccountHost host;
};

}  // namespace

// A: 10 + 5 - 3 = 12 pieces, 100 + 50 - 30 = 120, differences 1 + 2 - 1 = 2.
TEST_F(StockViewOnAPool, AddsABalanceAtTheEnd)
{
    Add({.item = "A", .opening = "10, 100, 1"});
    Add({.item = "A", .receipts = "5, 50, 2"});
    Add({.item = "A", .issues = "3, 30, 1"});
    Add({.item = "B", .opening = "1, 2, null", .receipts = "null, null, null"});
    const ViewSelects view = View({});
    EXPECT_EQ(
        host.Query(view.rows),
        "cInvCode,cInvName,cInvAddCode,cInvStd,CComUnitName,QcQuantity,QcPrice,QcDif,InQuantity,InPrice,InDif,"
        "OutQuantity,OutPrice,OutDif,QmQuantity,QmPrice,QmDif\n"
        "A,名A,\"\",\"\",千克,10,100.00,1.00,5,50.00,2.00,3,30.00,1.00,12,120.00,2.00\n"
        "B,名B,\"\",\"\",千克,1,2.00,0.00,0,0.00,0.00,0,0.00,0.00,1,2.00,0.00\n");
    EXPECT_EQ(
        host.Query(view.totals),
        "QcQuantity,QcPrice,QcDif,InQuantity,InPrice,InDif,OutQuantity,OutPrice,OutDif,QmQuantity,QmPrice,QmDif\n"
        "11,102.00,1.00,5,50.00,2.00,3,30.00,1.00,13,122.00,2.00\n");
}

TEST_F(StockViewOnAPool, GroupsByDimensionsInTheOrderAskedFor)
{
    Add({.item = "B", .opening = "1, 2, 0", .warehouse = "'02', N'库02'"});
    Add({.item = "A", .opening = "3, 4, 0", .warehouse = "'02', N'库02'"});
    Add({.item = "A", .opening = "5, 6, 0", .rd = "'101', N'采购入库'"});
    const std::string amounts =
        ",期初数量,期初金额,期初差异,收入数量,收入金额,收入差异,发出数量,发出金额,发出差异,"
        "结存数量,结存金额,结存差异";
    EXPECT_EQ(Headings({}, "warehouse,item"), "仓库,仓库名,存货,存货名称,存货代码,规格型号,单位" + amounts);
    EXPECT_EQ(Headings({}, " RD , business"), "类别,类别名,业务类型" + amounts);
    EXPECT_EQ(Headings({}, "class,document,class"), "分类,单据" + amounts);
    const auto codes = [&](const std::string& groups) {
        std::string text = host.Query(View({}, groups).rows);
        std::string lines;
        for (std::size_t at = text.find('\n') + 1, end; (end = text.find('\n', at)) != text.npos;
             at = end + 1)
            lines += text.substr(at, text.find(",0,0.00,0.00,0,", at) - at) + "\n";
        return lines;
    };
    EXPECT_EQ(codes("warehouse,class"),
              "01,库01,01,5,6.00,0.00\n02,库02,01,3,4.00,0.00\n02,库02,02,1,2.00,0.00\n");
    EXPECT_EQ(codes("class,warehouse"),
              "01,01,库01,5,6.00,0.00\n01,02,库02,3,4.00,0.00\n02,02,库02,1,2.00,0.00\n");
    EXPECT_EQ(codes("rd"), "\"\",\"\",4,6.00,0.00\n101,采购入库,5,6.00,0.00\n");
    EXPECT_EQ(codes("document"), "01,9,12.00,0.00\n");
}

TEST_F(StockViewOnAPool, IsRefusedForWhatIsNoDimension)
{
    for (const char* groups : {"colour", "batch", "item,", ",item", "warehouse;item"})
        EXPECT_THROW(MakeStockView(Input({}), groups), UsageError) << groups;
}

TEST_F(StockViewOnAPool, HasHeadingsInEnglishToo)
{
    EXPECT_EQ(
        Headings({}, "warehouse", kEnglish),
        "Whse,Warehouse,Open qty,Open amt,Open diff,In qty,In amt,In diff,Out qty,Out amt,Out diff,Close qty,"
        "Close amt,Close diff");
}

// A line without a warehouse, or with an empty one, is of no warehouse.
TEST_F(StockViewOnAPool, TakesNullAndTheEmptyTextForOneGroup)
{
    Add({.item = "A", .opening = "1, 2, 0", .warehouse = "null, null"});
    Add({.item = "B", .opening = "3, 4, 0", .warehouse = "'', ''"});
    EXPECT_EQ(
        host.Query(View({}, "warehouse").rows),
        "cwhcode,cwhname,QcQuantity,QcPrice,QcDif,InQuantity,InPrice,InDif,OutQuantity,OutPrice,OutDif,QmQuantity,"
        "QmPrice,QmDif\n\"\",\"\",4,6.00,0.00,0,0.00,0.00,0,0.00,0.00,4,6.00,0.00\n");
}

TEST_F(StockViewOnAPool, ShowsOfFreeItemsThoseThatSomeLineHas)
{
    Add({.item = "A", .opening = "1, 2, 0", .free2 = "N'红'"});
    Add({.item = "A", .opening = "1, 2, 0", .free2 = "''"});
    const ViewSelects view = View({}, "free");
    EXPECT_EQ(view.columns.front().name, "cfree2");
    EXPECT_EQ(view.columns.at(1).name, "QcQuantity");
    EXPECT_EQ(host.Query("select count(*) as n from (" +
                         view.rows.substr(0, view.rows.rfind("\r\norder by")) + ") g"),
              "n\n2\n");
}

// 0.1 + 0.2 - 0.3 is no balance.
TEST_F(StockViewOnAPool, KeepsGroupsByTheirClosingBalances)
{
    Add({.item = "A", .opening = "0.1, 5, 0", .receipts = "0.2, 0, 0", .issues = "0.3, 5, 0"});
    Add({.item = "B", .opening = "2, -1, 0"});
    Add({.item = "C", .issues = "1, 0, 0"});
    EXPECT_EQ(Items({"EndNum=大于零"}), "cInvCode\nB\n");
    EXPECT_EQ(Items({"EndNum=小于零"}), "cInvCode\nC\n");
    EXPECT_EQ(Items({"EndNum=等于零"}), "cInvCode\nA\n");
    EXPECT_EQ(Items({"EndNum=大于零", "EndNum=小于零"}), "cInvCode\nB\nC\n");
    EXPECT_EQ(Items({"EndNum=大于零", "EndNum=小于零", "EndNum=等于零"}), "cInvCode\nA\nB\nC\n");
    EXPECT_EQ(Items({"EndPrice=小于零"}), "cInvCode\nB\n");
    EXPECT_EQ(Items({"EndNum=小于零", "EndPrice=等于零"}), "cInvCode\nC\n");
}

TEST_F(StockViewOnAPool, ComparesReceiptsWithIssues)
{
    Add({.item = "A", .receipts = "2, 0, 0", .issues = "1, 0, 0"});
    Add({.item = "B", .receipts = "1, 0, 0", .issues = "1, 0, 0"});
    Add({.item = "C", .issues = "1, 0, 0"});
    EXPECT_EQ(Items({"incompareout=入库大于出库"}), "cInvCode\nA\n");
    EXPECT_EQ(Items({"incompareout=入库等于出库"}), "cInvCode\nB\n");
    EXPECT_EQ(Items({"incompareout=入库小于出库"}), "cInvCode\nC\n");
    EXPECT_EQ(Items({"incompareout=入库小于出库", "incompareout=入库等于出库"}), "cInvCode\nB\nC\n");
}

// A's receipt was taken back by a red one: it is business all the same.
TEST_F(StockViewOnAPool, KeepsGroupsByWhatHappenedToThem)
{
    Add({.item = "A", .receipts = "2, 4, 0"});
    Add({.item = "A", .receipts = "-2, -4, 0"});
    Add({.item = "B", .issues = "1, 1, 0"});
    Add({.item = "C", .opening = "1, 1, 0"});
    Add({.item = "D", .receipts = "0, 3, 0", .issues = "1, 0, 0"});
    EXPECT_EQ(Items({"busEstate=所有业务"}), "cInvCode\nA\nB\nC\nD\n");
    EXPECT_EQ(Items({"busEstate=发生业务"}), "cInvCode\nA\nB\nD\n");
    EXPECT_EQ(Items({"busEstate=出库未入库"}), "cInvCode\nB\n");
    EXPECT_EQ(Items({"busEstate=入库未出库"}), "cInvCode\nA\n");
    EXPECT_EQ(Items({"busEstate=未发生"}), "cInvCode\nC\n");
}

TEST_F(StockViewOnAPool, ShowsPiecesOfTheUnitThatTheFilterChose)
{
    Add({.item = "A", .opening = "24, 0, 0", .rate = "12"});
    Add({.item = "A", .issues = "6, 0, 0", .rate = "12"});
    Add({.item = "B", .opening = "24, 0, 0"});
    Add({.item = "C", .opening = "24, 0, 0", .rate = "0"});
    const std::string rows = View({"cAssComUnitNum=2"}).rows;
    EXPECT_EQ(host.Query("select cInvCode, QcPieces, OutPieces, QmPieces from (" +
                         rows.substr(0, rows.rfind("\r\norder by")) + ") g order by cInvCode"),
              "cInvCode,QcPieces,OutPieces,QmPieces\nA,2,0.5,1.5\nB,0,0,0\nC,0,0,0\n");
    EXPECT_EQ(View({}).rows.find("Pieces"), std::string::npos);
}

// Only those that moved on the side.
TEST_F(StockViewOnAPool, TurnsClassesIntoColumns)
{
    Add({.item = "A", .receipts = "2, 20, 1", .rd = "'101', N'采购[1]入库'"});
    Add({.item = "A", .issues = "1, 10, 0", .rd = "'201', N'销售''出库'"});
    Add({.item = "A", .issues = "3, 30, 0"});
    Add({.item = "B", .receipts = "5, 50, 0", .rd = "'101', N'采购[1]入库'"});
    Add({.item = "B", .opening = "1, 1, 0", .rd = "'999', N'期初'"});
    const ViewSelects view = View({"rdGrade=1"}, "class");
    const std::string columns =
        "QcQuantity,QcPrice,QcDif,101 采购[1]入库 InQuantity,101 采购[1]入库 InPrice,"
        "101 采购[1]入库 InDif,- OutQuantity,- OutPrice,- OutDif,201 销售'出库 OutQuantity,"
        "201 销售'出库 OutPrice,201 销售'出库 OutDif,QmQuantity,QmPrice,QmDif\n";
    EXPECT_EQ(host.Query(view.rows),
              "cInvCCode," + columns +
                  "01,0,0.00,0.00,2,20.00,1.00,3,30.00,0.00,1,10.00,0.00,-2,-20.00,1.00\n"
                  "02,1,1.00,0.00,5,50.00,0.00,0,0.00,0.00,0,0.00,0.00,6,51.00,0.00\n");
    EXPECT_EQ(host.Query(view.totals),
              columns + "1,1.00,0.00,7,70.00,1.00,3,30.00,0.00,1,10.00,0.00,4,31.00,1.00\n");
    EXPECT_EQ(view.columns.at(4).heading.chinese, "收数量 101 采购[1]入库");
    EXPECT_EQ(view.columns.at(4).heading.english, "In qty 101 采购[1]入库");
    EXPECT_EQ(view.columns.size(), 16u);
}

TEST_F(StockViewOnAPool, ShowsPiecesOfClassesToo)
{
    Add({.item = "A", .receipts = "24, 20, 0", .rd = "'101', N'采购'", .rate = "12"});
    const std::string rows = View({"rdGrade=1", "cAssComUnitNum=2"}, "class").rows;
    EXPECT_EQ(host.Query("select [101 采购 InPieces] as p from (" +
                         rows.substr(0, rows.rfind("\r\norder by")) + ") g"),
              "p\n2\n");
}

TEST_F(StockViewOnAPool, TotalsTheGroupsThatItsConditionsLeave)
{
    for (int item = 0; item < 500; ++item) {
        const std::string code = "A" + std::to_string(item);
        const std::string opening = std::to_string(item % 2) + ", " + std::to_string(item) + ".01, 0";
        Add({.item = code.c_str(), .opening = opening.c_str()});
    }
    const std::string totals = host.Query(View({"EndNum=大于零"}).totals);
    // 250 odd numbers, which sum to 62500, with a cent each.
    EXPECT_NE(totals.find("\n250,62502.50,"), std::string::npos) << totals;
}

TEST_F(StockViewOnAPool, OfAnEmptyPoolHasNoRows)
{
    for (const char* setting : {"rdGrade=0", "rdGrade=1"}) {
        const ViewSelects view = View({setting}, "class,free");
        EXPECT_EQ(host.Query("select count(*) as n from (" +
                             view.rows.substr(0, view.rows.rfind("\r\norder by")) + ") g"),
                  "n\n0\n");
        EXPECT_EQ(view.columns.at(1).name, "QcQuantity") << "free items are not in use";
    }
}

}  // namespace kavelin::host
