#include "demo/books/SmallBooks.h"

#include <gtest/gtest.h>

#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kavelin::demo {
namespace {

// Dispatches of item A, which costs 10.00 there, and their invoices.
struct Shipping : SmallBooks {
    explicit Shipping(const Profile& given = PlainProfile()) : SmallBooks(given)
    {
        Receive(place, 10000, 100000);
        SmallBooks::Open(1);
    }

    std::int32_t Dispatch(std::int64_t quantity)
    {
        StockEntry entry;
        entry.voucherType = "05";
        entry.document = Head(kDispatchType, place);
        entry.line = Line(entry.document, place, quantity);
        entry.place = &place;
        entry.day = Day(11);
        entry.receipt = false;
        entry.quantity = quantity;

        TransitEntry transit;
        transit.voucherType = transit.sourceType = "05";
        transit.document = entry.document;
        transit.line = transit.sourceLine = transit.dispatchLine = entry.line;
        transit.place = &place;
        transit.day = entry.day;
        transit.quantity = quantity;
        transit.costOf = books.Post(entry);
        books.PostTransit(transit);
        return entry.line;
    }

    std::int32_t Invoice(std::int32_t source, std::int64_t quantity)
    {
        TransitEntry transit;
        transit.voucherType = "26";
        transit.sourceType = "05";
        transit.sourceLine = source;
        transit.document = Head(kInvoiceType, place, 20);
        transit.line = Line(transit.document, place, quantity);
        transit.place = &place;
        transit.day = Day(20);
        transit.in = false;
        transit.quantity = quantity;
        books.PostTransit(transit);
        return transit.line;
    }

    void Adjust(std::int32_t source, bool in, std::int64_t amount)
    {
        TransitEntry transit;
        transit.voucherType = in ? "65" : "66";
        transit.sourceType = "05";
        transit.sourceLine = source;
        transit.place = &place;
        transit.day = Day(20);
        transit.in = in;
        transit.cost = amount;
        books.PostTransit(transit);
    }

    const MemoryTable& Transit() const { return sink.Table("IA_EnSubsidiary"); }
    std::int64_t In(std::size_t row) const { return Transit().Hundredths(row, "iAInPrice"); }
    std::int64_t Out(std::size_t row) const { return Transit().Hundredths(row, "iAOutPrice"); }

    const Place& place = At(kMonthly);
};

TEST(Transit, TakesTheCostOfTheIssueThatSentTheGoods)
{
    Shipping shipping;
    const std::int32_t line = shipping.Dispatch(500);
    shipping.Receive(shipping.place, 10000, 120000);  // makes the month's average 11.00
    shipping.End();

    EXPECT_EQ(shipping.In(0), 5500);
    EXPECT_EQ(shipping.Transit().Text(0, "iInCost"), "11");
    EXPECT_EQ(shipping.Transit().Text(0, "iSrcID"), std::to_string(line));
    EXPECT_EQ(shipping.Transit().Text(0, "iDLsID"), std::to_string(line));
    EXPECT_TRUE(shipping.Transit().At(0, "OutID").IsNull());
}

TEST(Transit, LetsInvoicesTakeTheirPartAndTheLastTheRest)
{
    Shipping shipping;
    shipping.Receive(shipping.place, 100, 10010000 / 100 - 100000);  // 101 units for 1001.00
    const std::int32_t line = shipping.Dispatch(300);
    EXPECT_EQ(shipping.books.QuantityInTransit("05", line), 300);
    const std::int32_t invoice = shipping.Invoice(line, 100);
    EXPECT_EQ(shipping.books.QuantityInTransit("05", line), 200);
    shipping.Invoice(line, 100);
    shipping.Open(2);
    shipping.Invoice(line, 100);
    EXPECT_EQ(shipping.books.QuantityInTransit("05", line), 0);
    shipping.End();

    EXPECT_EQ(shipping.In(0), 2973);  // 3 of 101 for 1001.00
    EXPECT_EQ(shipping.Out(1), 991);
    EXPECT_EQ(shipping.Out(2), 991);
    EXPECT_EQ(shipping.Out(3), 991);
    EXPECT_EQ(shipping.Transit().Text(1, "OutID"), std::to_string(invoice));
    EXPECT_EQ(shipping.Transit().Text(1, "inid"), std::to_string(invoice));
    EXPECT_EQ(shipping.Transit().Text(3, "iMonth"), "2");
}

TEST(Transit, PostsTheLinesOfInvoicesAndDispatchesOnce)
{
    Shipping shipping;
    shipping.Invoice(shipping.Dispatch(300), 300);
    shipping.End();
    const MemoryTable& lines = shipping.sink.Table("Demo_DocumentLine");
    ASSERT_EQ(lines.rows.size(), 2u);
    EXPECT_EQ(lines.Text(0, "dKeepDate"), "2008-01-11");
    EXPECT_EQ(lines.Hundredths(0, "iPrice"), 3000);
    EXPECT_EQ(lines.Text(1, "dKeepDate"), "2008-01-20");
    EXPECT_EQ(lines.Hundredths(1, "iPrice"), 3000);
}

TEST(Transit, NeverGivesMoreThanASourceLineHas)
{
    Shipping shipping;
    const std::int32_t line = shipping.Dispatch(300);
    EXPECT_THROW(shipping.Invoice(line, 400), std::logic_error);
    EXPECT_THROW(shipping.Invoice(line, -100), std::logic_error);
    EXPECT_THROW(shipping.Invoice(line + 1000, 100), std::logic_error);
}

TEST(Transit, HoldsReturnsWithTurnedSign)
{
    Shipping shipping;
    const std::int32_t line = shipping.Dispatch(-300);
    EXPECT_EQ(shipping.books.QuantityInTransit("05", line), -300);
    EXPECT_THROW(shipping.Invoice(line, 100), std::logic_error);
    shipping.Invoice(line, -100);
    shipping.Invoice(line, -200);
    shipping.End();
    EXPECT_EQ(shipping.In(0), -3000);
    EXPECT_EQ(shipping.Out(1), -1000);
    EXPECT_EQ(shipping.Out(2), -2000);
}

TEST(Transit, AdjustsTheAmountOfWhatIsThereAndNoMore)
{
    Shipping shipping;
    const std::int32_t line = shipping.Dispatch(300);
    shipping.Adjust(line, true, 300);
    shipping.Invoice(line, 100);         // a third of 33.00
    shipping.Adjust(line, false, 5000);  // only 22.00 are left
    shipping.Invoice(line, 200);
    EXPECT_THROW(shipping.Adjust(line, true, 100), std::logic_error);  // nothing is there
    shipping.End();
    EXPECT_EQ(shipping.In(1), 300);
    EXPECT_TRUE(shipping.Transit().At(1, "iAInQuantity").IsNull());
    EXPECT_EQ(shipping.Out(2), 1100);
    EXPECT_EQ(shipping.Out(3), 2200);
    EXPECT_EQ(shipping.Out(4), 0);
    EXPECT_NE(shipping.Transit().Text(1, "inid"), shipping.Transit().Text(3, "inid"));
}

TEST(Transit, BringsGoodsForwardInMonthZeroAndPostsTheirLineInTheirOwnYear)
{
    SmallBooks small;
    const Place& place = small.At(kMonthly);
    TransitEntry entry;
    entry.document.type = &kDispatchType;
    entry.document.day = std::chrono::sys_days(std::chrono::year(2007) / 12 / 20);
    entry.document = small.books.NewDocument(entry.document);
    entry.voucherType = entry.sourceType = "05";
    entry.line = entry.sourceLine = small.Line(entry.document, place, 200);
    entry.place = &place;
    entry.day = entry.document.day;
    entry.quantity = 200;
    entry.cost = 2100;
    entry.broughtForward = true;
    small.books.PostTransit(entry);
    small.Open(1);
    EXPECT_EQ(small.books.QuantityInTransit("05", entry.line), 200);
    small.End();

    const MemoryTable& transit = small.sink.Table("IA_EnSubsidiary");
    EXPECT_EQ(transit.Text(0, "iMonth"), "0");
    EXPECT_EQ(transit.Text(0, "iYear"), "2008");
    EXPECT_EQ(transit.Hundredths(0, "iAInPrice"), 2100);
    EXPECT_EQ(small.sink.Table("Demo_DocumentLine").Text(0, "dKeepDate"), "2007-12-20");
}

constexpr std::string_view kStandards[] = {"fInvStdPrice", "fLaborStdPrice", "fManuFixPrice", "fManuVarPrice",
                                           "fOmPrice"};
constexpr std::string_view kDifferences[] = {
    "fInvPriceDif",     "fInvQuanDif",     "fLbrPriceDif",    "fLbrQuanDif",      "fLbrSemiDif",
    "fManuFixPriceDif", "fManuFixQuanDif", "fSemiManuFixDif", "fManuVarPriceDif", "fManuVarQuanDif",
    "fSemiManuVarDif",  "fOmCostDif",      "fSemiOmDif"};

std::int64_t SumOf(const MemoryTable& table, const std::string& key, std::string_view number,
                   std::span<const std::string_view> columns)
{
    std::int64_t sum = 0;
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        if (table.Text(row, key) == number)
            for (const std::string_view column : columns)
                sum += table.Hundredths(row, column);
    return sum;
}

TEST(StandardCosts, AreWithTheirDifferencesWhatTheRowsSay)
{
    Profile profile = PlainProfile();
    profile.standardCosts = true;
    Shipping shipping(profile);
    shipping.company.items[0].supply = Supply::Made;
    shipping.Receive(shipping.place, 3700, 41234);
    for (int i = 0; i < 30; ++i) {
        const std::int32_t line = shipping.Dispatch(170);
        shipping.Adjust(line, true, 33);
        shipping.Invoice(line, 70);
        shipping.Invoice(line, 100);
    }
    shipping.End();

    const MemoryTable& stock = shipping.sink.Table("Demo_SubsidiaryStd");
    std::size_t rows = 0;
    for (std::size_t row = 0; row < stock.rows.size(); ++row, ++rows) {
        const std::string number = stock.Text(row, "AutoID");
        EXPECT_EQ(SumOf(stock, "AutoID", number, kStandards) +
                      SumOf(shipping.sink.Table("pl_co_SubSidiary"), "ia_autoid", number, kDifferences),
                  shipping.Cost(static_cast<std::size_t>(std::stoi(number))));
    }
    EXPECT_GE(rows, 20u);
    EXPECT_LT(rows, 31u);  // never of openings, and not of all

    // In transit, what goes in of every cost item goes out again.
    const MemoryTable& standards = shipping.sink.Table("IA_EnSubsidiary_STSub");
    const MemoryTable& differences = shipping.sink.Table("pl_co_EnSubsidiary");
    std::map<std::string, std::int64_t> left;
    for (std::size_t row = 0; row < standards.rows.size(); ++row) {
        const std::string number = standards.Text(row, "iIAEnSubID");
        const auto at = static_cast<std::size_t>(std::stoi(number)) - 1;
        const std::int64_t standard = SumOf(standards, "iIAEnSubID", number, kStandards);
        const std::int64_t difference = SumOf(differences, "iIASubID", number, kDifferences);
        const bool in = shipping.Transit().Text(at, "bRdFlag") == "1";
        EXPECT_EQ(standard + difference, in ? shipping.In(at) : shipping.Out(at)) << number;
        for (const std::string_view column : kStandards)
            left[std::string(column)] += (in ? 1 : -1) * standards.Hundredths(row, column);
        for (const std::string_view column : kDifferences)
            left[std::string(column)] +=
                (in ? 1 : -1) * SumOf(differences, "iIASubID", number, std::span(&column, 1));
    }
    EXPECT_EQ(left.size(), 18u);
    for (const auto& [column, rest] : left)
        EXPECT_EQ(rest, 0) << column;
}

TEST(StandardCosts, AreNotWrittenWithoutThemInTheProfile)
{
    Shipping shipping;
    shipping.End();
    EXPECT_EQ(shipping.sink.tables.count("Demo_SubsidiaryStd"), 0u);
    EXPECT_EQ(shipping.sink.tables.count("pl_co_EnSubsidiary"), 0u);
}

}  // namespace
}  // namespace kavelin::demo
