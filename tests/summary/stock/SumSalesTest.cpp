// One sale goes through several documents, of which one is to be counted: proved for every setting of the
// account and for whichever of the documents is posted already.
#include "frame/Text.h"
#include "summary/stock/SummaryBooks.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

const FakeField kJuly = {"dVouDate", "2008-07-01", "2008-07-31", true};

// Numbers of the documents' lines: the tens tell the sale, the ones the kind.
constexpr int kOrdinary = 10, kExport = 20, kEntrusted = 30, kInstalment = 40, kDirectBuy = 50,
              kDirectSale = 60;
constexpr int kNone = 0, kDispatch = 1, kIssue = 2, kInvoice = 3, kExportInvoice = 4, kPurchase = 5;

class SalesOfTheStockSummary : public testing::Test {
  protected:
    SalesOfTheStockSummary()
    {
        AddSale(kOrdinary, "N'普通销售'", "null");
        AddSale(kEntrusted, "N'委托代销'", "N'发货单'");
        AddSale(kInstalment, "N'分期收款'", "N'发货单'");

        AddLine({.id = kExport + kDispatch, .kind = "EXCON", .type = "EX", .guid = "N'g'"});
        AddLine({.id = kExport + kIssue,
                 .type = "32",
                 .business = "N'出口'",
                 .source = "N'出口销货单'",
                 .dispatchLine = "21"});
        AddLine({.id = kExport + kExportInvoice,
                 .kind = "EXINV",
                 .type = "26",
                 .business = "N'出口'",
                 .guid = "N'g'"});

        AddLine({.id = kDirectBuy + kPurchase,
                 .kind = "PUR",
                 .type = "01",
                 .flag = "1",
                 .warehouse = "null",
                 .business = "N'直运采购'"});
        // Not of direct business, so that nothing counts it.
        AddLine({.id = kOrdinary + kPurchase, .kind = "PUR", .type = "01", .flag = "1"});
        AddLine({.id = kDirectSale + kInvoice,
                 .kind = "SALE",
                 .type = "26",
                 .warehouse = "null",
                 .business = "N'直运销售'"});
        AddLine({.id = kDirectSale + kExportInvoice,
                 .kind = "EXINV",
                 .type = "26",
                 .warehouse = "null",
                 .business = "N'直运销售'"});
    }

    void AddLine(DocumentLine line)
    {
        if (line.kind != "PUR")
            line.flag = "0";
        line.quantity = "1";
        books.Add(line);
    }

    void AddSale(int sale, const std::string& business, const std::string& source)
    {
        const std::string dispatch = std::to_string(sale + kDispatch);
        AddLine({.id = sale + kDispatch,
                 .kind = "DISP",
                 .type = "05",
                 .business = business,
                 .dispatchLine = dispatch});
        AddLine({.id = sale + kIssue,
                 .type = "32",
                 .business = business,
                 .source = source,
                 .dispatchLine = dispatch});
        AddLine({.id = sale + kInvoice,
                 .kind = "SALE",
                 .type = "26",
                 .business = business,
                 .dispatchLine = dispatch});
    }

    void Post(int line)
    {
        books.Run("update Line set cAccounter = case when ID = " + std::to_string(line) +
                  " then N'demo' else null end");
    }

    // The documents of one kind, of all sales.
    void PostAll(int kind)
    {
        std::string lines = "0";
        for (const int sale : {kOrdinary, kExport, kEntrusted, kInstalment})
            lines += ", " + std::to_string(sale + kind);
        books.Run("update Line set cAccounter = case when ID in (" + lines + ") then N'demo' else null end");
    }

    // The lines in the pool for documents of all warehouses, with or without direct business.
    std::string Counted(const std::string& saleType, const std::string& style, bool direct)
    {
        books.Set("bSaleType", saleType);
        books.Set("cEnDispAccountStyle", style);
        const std::string states = direct ? "未记账单据,直运单据" : "未记账单据";
        EXPECT_TRUE(books.RunReport({{"vouEstate", Value(states)}, kJuly, {"cwhcode", "01\t02"}}));
        return books.Documents();
    }

    SummaryBooks books;
};

}  // namespace

// 11 to 13 ordinary, 22 and 24 export, 31 to 33 entrusted, 41 to 43 by instalments, 55 bought and 63 and 64
// sold directly; the ones: 1 dispatch, 2 issue, 3 invoice, 4 export invoice, 5 purchase.
TEST_F(SalesOfTheStockSummary, AreCountedByTheDocumentThatTheSettingsSay)
{
    const struct {
        const char *saleType, *style;
        const char* counted;
        const char* direct;
    } cases[] = {
        {"true", "发出商品", "13 24 31 41 ", "13 24 31 41 55 63 64 "},
        {"true", "销售出库单", "13 24 33 41 ", "13 24 33 41 55 63 64 "},
        {"true", "销售发票", "13 24 33 41 ", "13 24 33 41 55 63 64 "},
        {"false", "发出商品", "12 22 31 41 ", "12 22 31 41 55 63 64 "},
        {"false", "销售出库单", "12 22 32 41 ", "12 22 32 41 55 63 64 "},
        {"false", "销售发票", "12 22 32 41 ", "12 22 32 41 55 63 64 "},
        {"销售发票", "发出商品", "12 22 31 41 ", "12 22 31 41 55 "},
        {"销售发票", "销售出库单", "12 22 32 41 ", "12 22 32 41 55 "},
        {"销售发票", "销售发票", "12 22 32 41 ", "12 22 32 41 55 "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Counted(c.saleType, c.style, false), c.counted) << c.saleType << " " << c.style;
        EXPECT_EQ(Counted(c.saleType, c.style, true), c.direct) << c.saleType << " " << c.style;
    }
}

// Without a choice of warehouses direct business stands alone.
TEST_F(SalesOfTheStockSummary, AreDirectOnlyWhereNoWarehouseIsChosen)
{
    const struct {
        const char *saleType, *counted;
    } cases[] = {{"true", "55 63 64 "}, {"false", "55 63 64 "}, {"销售发票", "55 "}};
    for (const auto& c : cases) {
        books.Set("bSaleType", c.saleType);
        EXPECT_TRUE(books.RunReport({{"vouEstate", "未记账单据,直运单据"}, kJuly}));
        EXPECT_EQ(books.Documents(), c.counted) << c.saleType;
    }
}

// Once its costing document is posted, a sale is in the ledger and none of its other documents counts. That
// is the document of the settings; a document of other settings, posted before they changed, takes the sale
// out too.
TEST_F(SalesOfTheStockSummary, AreNotCountedOnceTheyArePosted)
{
    const struct {
        const char *saleType, *style;
        int posted;
        const char* counted;
    } cases[] = {
        {"true", "销售发票", kOrdinary + kInvoice, "24 33 41 "},
        {"true", "销售发票", kExport + kExportInvoice, "13 33 41 "},
        {"true", "销售发票", kEntrusted + kInvoice, "13 24 41 "},
        {"true", "销售发票", kInstalment + kDispatch, "13 24 33 "},
        {"true", "发出商品", kEntrusted + kDispatch, "13 24 41 "},
        {"false", "销售出库单", kOrdinary + kIssue, "22 32 41 "},
        {"false", "销售出库单", kExport + kIssue, "12 32 41 "},
        {"false", "销售出库单", kEntrusted + kIssue, "12 22 41 "},
        {"false", "发出商品", kEntrusted + kDispatch, "12 22 41 "},
        // Posted before the setting changed.
        {"true", "销售发票", kOrdinary + kIssue, "24 33 41 "},
        {"true", "销售发票", kExport + kIssue, "13 33 41 "},
        {"false", "销售出库单", kOrdinary + kInvoice, "22 32 41 "},
        {"false", "销售出库单", kExport + kExportInvoice, "12 32 41 "},
    };
    for (const auto& c : cases) {
        Post(c.posted);
        EXPECT_EQ(Counted(c.saleType, c.style, false), c.counted)
            << c.saleType << " " << c.style << " " << c.posted;
    }
}

// Whatever the settings: a document that was counted leaves the documents when it is posted, and no other one
// of its sale takes its place beside the ledger.
TEST_F(SalesOfTheStockSummary, LoseTheDocumentThatIsPostedAndGainNone)
{
    for (const char* saleType : {"true", "false", "销售发票", "发出商品"}) {
        // An account that costs ordinary sales by the dispatch note has no issue notes of them to be costed.
        if (std::string(saleType) == "发出商品")
            books.Run("delete from Line where ID = " + std::to_string(kOrdinary + kIssue));
        for (const char* style : {"发出商品", "销售发票"}) {
            for (const bool direct : {false, true}) {
                Post(kNone);
                const std::vector<std::string> counted = Split(Trim(Counted(saleType, style, direct)), " ");
                EXPECT_GE(counted.size(), direct ? 5U : 4U) << saleType << " " << style;
                for (const std::string& posted : counted) {
                    std::string left;
                    for (const std::string& line : counted)
                        left += line == posted ? "" : line + " ";
                    Post(std::stoi(posted));
                    EXPECT_EQ(Counted(saleType, style, direct), left)
                        << saleType << " " << style << " " << direct << " " << posted;
                }
            }
        }
    }
}

// Ordinary and export sales are in the ledger once their issue or their invoice is, whichever of them costs now.
TEST_F(SalesOfTheStockSummary, AreInTheLedgerByEitherDocument)
{
    for (const char* saleType : {"true", "false", "销售发票"}) {
        for (const char* style : {"发出商品", "销售发票"}) {
            for (const bool direct : {false, true}) {
                for (const int posted :
                     {kOrdinary + kIssue, kOrdinary + kInvoice, kExport + kIssue, kExport + kExportInvoice}) {
                    Post(posted);
                    std::istringstream lines(Counted(saleType, style, direct));
                    for (int line = 0; lines >> line;)
                        EXPECT_NE(line / 10, posted / 10)
                            << saleType << " " << style << " " << direct << " " << posted;
                }
            }
        }
    }
}

TEST_F(SalesOfTheStockSummary, AreNeverCountedTwice)
{
    for (const char* saleType : {"true", "false", "销售发票", "发出商品"}) {
        // An account that costs ordinary sales by the dispatch note has no issue notes of them to be costed.
        if (std::string(saleType) == "发出商品")
            books.Run("delete from Line where ID = " + std::to_string(kOrdinary + kIssue));
        for (const char* style : {"发出商品", "销售发票"}) {
            for (const bool direct : {false, true}) {
                for (const int posted : {kNone, kDispatch, kIssue, kInvoice, kExportInvoice}) {
                    PostAll(posted);
                    std::istringstream lines(Counted(saleType, style, direct));
                    std::map<int, int> counts;  // by sale
                    for (int line = 0; lines >> line;)
                        ++counts[line / 10 * 10];
                    for (const int sale : {kOrdinary, kExport, kEntrusted, kInstalment, kDirectBuy})
                        EXPECT_LE(counts[sale], 1)
                            << saleType << " " << style << " " << direct << " " << posted << " " << sale;
                    EXPECT_TRUE(direct || counts[kDirectBuy] + counts[kDirectSale] == 0) << saleType;
                }
            }
        }
    }
}

// Export returns are exports too; any other source, none among them, is domestic.
TEST_F(SalesOfTheStockSummary, AreTellingExportFromDomesticByTheSourceOfTheIssue)
{
    Post(kExport + kExportInvoice);
    for (const char* source : {"N'出口销货单'", "N'出口退货单'"}) {
        books.Run("update Line set cSource = " + std::string(source) + " where ID = 22");
        EXPECT_EQ(Counted("false", "销售出库单", false), "12 32 41 ") << source;
    }
    for (const char* source : {"null", "N''", "N'库存'"}) {
        books.Run("update Line set cSource = " + std::string(source) + " where ID = 22");
        EXPECT_EQ(Counted("false", "销售出库单", false), "12 22 32 41 ") << source;
    }
}

// They join by the number alone: numbers are unique over all kinds of documents.
TEST_F(SalesOfTheStockSummary, TakeAlongAnyLineOfTheirNumber)
{
    AddLine({.id = kOrdinary + kIssue, .kind = "VMI", .type = "70"});
    AddLine({.id = kOrdinary + kIssue, .kind = "JUST", .type = "20"});
    Post(kOrdinary + kInvoice);
    EXPECT_EQ(Counted("false", "销售出库单", false), "12 22 32 41 ")
        << "an adjustment of before the deletes goes, a confirmation of after them stays";
}

// Of entrusted sales and of sales by instalments only some types of documents stay, of their ledger lines too,
// as soon as documents are read. Adjustments stand for documents of any type here: no other rule asks for them.
TEST_F(SalesOfTheStockSummary, KeepTheTypesOfTheirBusiness)
{
    const char* types[] = {"01", "05", "06", "09", "11", "26", "27", "28", "29", "32", "3201", "5", "6"};
    books.Run("delete from Line");
    int id = 0;
    for (const char* business : {"N'委托代销'", "N'委托'", "N'委外加工'", "N'分期收款'", "N'普通销售'"}) {
        for (const char* type : types) {
            AddLine({.id = ++id, .kind = "JUST", .type = type, .business = business});
            books.Add(LedgerLine{.type = type, .flag = "0", .quantity = "2", .business = business});
            books.Add(LedgerLine{
                .type = type, .date = "2008-06-01", .month = 6, .quantity = "3", .business = business});
        }
    }
    // Quantities are 1 of a document, 2 of the period's issue and 3 of the opening balance.
    const auto kept = [&](const std::string& business, const std::string& quantity) {
        const std::string rows =
            books.Query("select cvoutype from tempdb..pool where cbustype = N'" + business +
                        "' and outquantity + qcquantity = " + quantity + " order by cvoutype");
        return ReplaceAll(rows.substr(rows.find('\n') + 1), "\n", " ");
    };
    const std::string all = "01 05 06 09 11 26 27 28 29 32 3201 5 6 ";
    const struct {
        const char *saleType, *style;
        const char* entrusted;
    } cases[] = {
        {"true", "发出商品", "01 05 06 3201 5 6 "},         {"false", "发出商品", "01 05 06 3201 5 6 "},
        {"true", "销售发票", "01 09 11 26 27 28 29 3201 "}, {"false", "销售出库单", "01 09 11 32 3201 "},
        {"销售发票", "销售发票", "01 09 11 32 3201 "},
    };
    for (const auto& c : cases) {
        books.Set("bSaleType", c.saleType);
        books.Set("cEnDispAccountStyle", c.style);
        EXPECT_TRUE(books.RunReport({{"vouEstate", "已记账单据,未记账单据"}, kJuly}));
        for (const char* quantity : {"1", "2", "3"}) {
            const std::string what = std::string(c.saleType) + " " + c.style + " " + quantity;
            EXPECT_EQ(kept("委托代销", quantity), c.entrusted) << what;
            EXPECT_EQ(kept("委托", quantity), c.entrusted) << what;
            EXPECT_EQ(kept("分期收款", quantity), "05 06 5 6 ") << what;
            EXPECT_EQ(kept("委外加工", quantity), all) << what;
            EXPECT_EQ(kept("普通销售", quantity), all) << what;
        }
    }
    EXPECT_TRUE(books.RunReport({{"vouEstate", "已记账单据"}, kJuly}));
    EXPECT_EQ(kept("委托", "2"), all) << "of the ledger alone nothing goes";
    EXPECT_EQ(kept("分期收款", "3"), all);
}

TEST_F(SalesOfTheStockSummary, LeaveNoDirectLineOfAnySourceUnlessItIsAskedFor)
{
    int id = 100;
    for (const char* kind : {"RD", "JUST", "SALE", "DISP", "VMI", "EXINV", "PUR"})
        AddLine({.id = ++id, .kind = kind, .type = "08", .warehouse = "null", .business = "N'直运采购'"});
    books.Add(LedgerLine{.quantity = "1", .warehouse = "null", .business = "N'直运采购'"});
    books.Add(LedgerLine{.month = 0, .quantity = "1", .warehouse = "null", .business = "N'直运'"});
    for (const char* saleType : {"true", "false", "销售发票"}) {
        books.Set("bSaleType", saleType);
        EXPECT_TRUE(books.RunReport({{"vouEstate", "已记账单据,未记账单据"}, kJuly}));
        EXPECT_EQ(books.Pool("id", "left(cbustype, 2) = N'直运'"), "") << saleType;
    }
    EXPECT_TRUE(books.RunReport({{"vouEstate", ""}, kJuly}));
    EXPECT_NE(books.Pool("id", "left(cbustype, 2) = N'直运'"), "");
}

}  // namespace kavelin::test
