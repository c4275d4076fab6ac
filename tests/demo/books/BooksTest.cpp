#include "demo/books/Books.h"

#include "demo/books/SmallBooks.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace kavelin::demo {
namespace {

TEST(Documents, AreNumberedWithinPrefixAndMonth)
{
    SmallBooks small;
    small.Open(3);
    const Place& place = small.At(kMonthly);
    EXPECT_EQ(CodeOf(small.Head(kReceiptType, place)), "CG-0803-0001");
    EXPECT_EQ(CodeOf(small.Head(kIssueType, place)), "LL-0803-0001");
    EXPECT_EQ(CodeOf(small.Head(kReceiptType, place)), "CG-0803-0002");
    small.Open(4);
    EXPECT_EQ(CodeOf(small.Head(kReceiptType, place)), "CG-0804-0001");
}

TEST(Documents, GivePostedLinesPosterDayAndCost)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    small.Receive(place, 100, 1200);
    small.Open(1);
    const Document document = small.Head(kIssueType, place);
    const std::int32_t posted = small.Line(document, place, 100);
    const std::int32_t left = small.Line(document, place, 100);

    StockEntry entry;
    entry.voucherType = "11";
    entry.document = document;
    entry.line = posted;
    entry.place = &place;
    entry.day = small.Day(12);
    entry.receipt = false;
    entry.quantity = 100;
    small.books.Post(entry);
    EXPECT_THROW(small.books.Post(entry), std::logic_error);  // a second time
    small.End(false);

    const MemoryTable& lines = small.sink.Table("Demo_DocumentLine");
    ASSERT_EQ(lines.rows.size(), 2u);
    EXPECT_EQ(lines.Text(0, "LineID"), std::to_string(posted));
    EXPECT_NE(lines.Text(0, "cAccounter"), "");
    EXPECT_EQ(lines.Text(0, "dKeepDate"), "2008-01-12");
    EXPECT_EQ(lines.Hundredths(0, "iPrice"), 1200);
    EXPECT_EQ(lines.Text(0, "iUnitCost"), "12");
    EXPECT_EQ(lines.Text(1, "LineID"), std::to_string(left));
    EXPECT_EQ(lines.Text(1, "cAccounter"), "");
    EXPECT_TRUE(lines.At(1, "dKeepDate").IsNull());
    EXPECT_TRUE(lines.At(1, "iPrice").IsNull());
}

TEST(Documents, CantBePostedBehindTheirMonth)
{
    SmallBooks small;
    small.Open(1);
    const Place& place = small.At(kMonthly);
    StockEntry entry;
    entry.voucherType = "01";
    entry.document = small.Head(kReceiptType, place);
    entry.line = small.Line(entry.document, place, 100, 1000);
    entry.place = &place;
    entry.quantity = 100;
    entry.cost = 1000;
    small.Open(2);
    EXPECT_THROW(small.books.Post(entry), std::logic_error);
}

TEST(Documents, PostAReceiptOfLastYearWithItsMemo)
{
    static constexpr DocumentType kOld{
        DocumentKind::Stock, "01", "33", "普通采购", "101", "CG", "PO", "", "手工", true};
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    StockEntry memo;
    memo.document.type = &kOld;
    memo.document.day = std::chrono::sys_days(std::chrono::year(2007) / 12 / 20);
    memo.document = small.books.NewDocument(memo.document);
    memo.voucherType = "33";
    memo.sourceType = "01";
    memo.line = small.Line(memo.document, place, 100, 1100);
    memo.place = &place;
    memo.day = small.Day(1);
    memo.flag = 1;
    memo.quantity = 100;
    memo.cost = 1100;
    memo.revaluesOnly = true;
    small.books.Post(memo);
    small.Open(1);
    small.End();

    EXPECT_EQ(small.sink.Table("Demo_DocumentLine").Text(0, "dKeepDate"), "2007-12-20");
    EXPECT_EQ(small.Ledger().Hundredths(0, "iAInPrice"), 1100);
    EXPECT_EQ(small.Ledger().Text(0, "iMonth"), "0");
    const MemoryTable& summary = small.sink.Table("IA_Summary");
    for (std::size_t i = 0; i < summary.rows.size(); ++i)
        EXPECT_EQ(summary.Hundredths(i, "iMoney"), 0);
}

TEST(Documents, TakeTheDepartmentOfTheWarehouseWhereStockIsValuedByIt)
{
    Profile profile = PlainProfile();
    profile.valueStyle = ValueStyle::ByDepartment;
    SmallBooks small(profile);
    small.Open(1);
    EXPECT_EQ(small.Head(kIssueType, small.At(kFifo)).department, "0301");
}

TEST(Documents, GiveConsignmentLinesAnIdentityThatInvoicesReferTo)
{
    static constexpr DocumentType kConsignment{
        DocumentKind::Consignment, "", "", "", "", "XH", "EX", "", "", false};
    static constexpr DocumentType kExport{
        DocumentKind::ExportInvoice, "EX26", "EX26", "出口发票", "", "CK", "EX", "", "", false};
    SmallBooks small;
    small.Open(1);
    const Place& place = small.At(kMonthly);
    const std::int32_t sent = small.Line(small.Head(kConsignment, place), place, 100);
    LineEntry entry;
    entry.place = &place;
    entry.quantity = 100;
    entry.consignmentLine = sent;
    small.books.AddLine(small.Head(kExport, place), entry);
    small.Line(small.Head(kDispatchType, place), place, 100);
    small.End();

    const MemoryTable& lines = small.sink.Table("Demo_DocumentLine");
    EXPECT_NE(lines.Text(0, "cGuid"), "");
    EXPECT_EQ(lines.Text(1, "cGuidSource"), lines.Text(0, "cGuid"));
    EXPECT_EQ(lines.Text(1, "iConsignmentAutoID"), std::to_string(sent));
    EXPECT_TRUE(lines.At(0, "iDLsID").IsNull());
    EXPECT_EQ(lines.Text(2, "iDLsID"), lines.Text(2, "LineID"));
}

TEST(Books, PostNoMoreRowsThanTheyMay)
{
    SmallBooks small(PlainProfile(), 2);
    const Place& place = small.At(kMonthly);
    EXPECT_TRUE(small.books.CanPost(2));
    EXPECT_FALSE(small.books.CanPost(3));
    small.Receive(place, 100, 1000);
    small.Receive(place, 100, 1000);
    EXPECT_FALSE(small.books.CanPost());
    EXPECT_THROW(small.Receive(place, 100, 1000), std::logic_error);
    EXPECT_EQ(small.books.Posted(), 2);
}

TEST(Books, NumberLedgerRowsInTheOrderOfPosting)
{
    SmallBooks small;
    small.Receive(small.At(kFifo), 100, 1000);
    small.Receive(small.At(kMonthly), 200, 2000);
    small.Open(1);
    small.Issue(small.At(kFifo), 100);
    small.Issue(small.At(kMonthly), 100);
    small.Open(3);
    small.Issue(small.At(kMonthly), 100);
    small.End();

    const MemoryTable& ledger = small.Ledger();
    ASSERT_EQ(ledger.rows.size(), 5u);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(ledger.Text(i, "AutoID"), std::to_string(i + 1));
    EXPECT_EQ(ledger.Text(0, "cWhCode"), kFifo);
    EXPECT_EQ(ledger.Text(0, "cVouCode"), "QC-05");
    EXPECT_EQ(ledger.Text(4, "iMonth"), "3");
}

TEST(Books, LinkMostDocumentsToOneVoucherAMonth)
{
    SmallBooks small;
    small.Open(1);
    const Place& place = small.At(kMonthly);
    for (int i = 0; i < 40; ++i) {
        StockEntry entry;
        entry.voucherType = "01";
        entry.document = small.Head(kReceiptType, place);
        entry.place = &place;
        entry.day = small.Day(10);
        entry.quantity = 100;
        entry.cost = 1000;
        for (int line = 0; line < 2; ++line) {
            entry.line = small.Line(entry.document, place, 100, 1000);
            small.books.Post(entry);
        }
    }
    small.End();

    const MemoryTable& ledger = small.Ledger();
    std::size_t linked = 0;
    for (std::size_t i = 0; i < ledger.rows.size(); i += 2) {
        EXPECT_EQ(ledger.Text(i, "cPZID"), ledger.Text(i + 1, "cPZID"));
        if (const std::string link = ledger.Text(i, "cPZID"); !link.empty()) {
            EXPECT_EQ(link.substr(0, 2), "PU");
            EXPECT_EQ(small.sink.Table("gl_AccVouch").Text(linked++, "cOutNo_ID"), link);
        }
    }
    EXPECT_EQ(small.sink.Table("gl_AccVouch").rows.size(), linked);
    EXPECT_GE(linked, 30u);
    EXPECT_LT(linked, 40u);
}

TEST(Books, ShowTheUserFieldsOfADocumentInItsLedgerRows)
{
    SmallBooks small;
    small.Open(1);
    const Place& place = small.At(kMonthly);
    for (int i = 0; i < 40; ++i) {
        StockEntry entry;
        entry.voucherType = "01";
        entry.document = small.Head(kReceiptType, place);
        entry.line = small.Line(entry.document, place, 100, 1000);
        entry.place = &place;
        entry.day = small.Day(10);
        entry.quantity = 100;
        entry.cost = 1000;
        small.books.Post(entry);
    }
    small.End();

    std::size_t filled = 0;
    for (std::size_t i = 0; i < 40; ++i) {
        for (const std::string_view column : {"cDefine1", "cDefine4", "cDefine7", "cDefine15"})
            EXPECT_EQ(small.Ledger().Text(i, column), small.sink.Table("Demo_Document").Text(i, column));
        for (const std::string_view column : {"cDefine22", "cDefine26", "cDefine34", "cDefine36"})
            EXPECT_EQ(small.Ledger().Text(i, column), small.sink.Table("Demo_DocumentLine").Text(i, column));
        filled += small.Ledger().Text(i, "cDefine1").empty() ? 0 : 1;
    }
    EXPECT_GE(filled, 2u);
    EXPECT_LE(filled, 16u);
}

TEST(Books, SettleByNumberedRows)
{
    SmallBooks small;
    EXPECT_EQ(small.books.AddSettlement(150, 1600, 0), 1);
    EXPECT_EQ(small.books.AddSettlement(100, 1000, 400), 2);
    const MemoryTable& settlements = small.sink.Table("Pursettlevouchs");
    EXPECT_EQ(settlements.Text(0, "iSVQuantity"), "1.5");
    EXPECT_EQ(settlements.Hundredths(0, "iSVPrice"), 1600);
    EXPECT_EQ(settlements.Hundredths(1, "MaterialFee"), 400);
}

}  // namespace
}  // namespace kavelin::demo
