// Documents of sales, their links, and how they stand in the ledgers.
#include "demo/events/SaleRows.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace kavelin::demo {

namespace {

constexpr std::int64_t kLines = 6000;

// Of ordinary, entrusted and instalment sales and exports.
bool IsSale(const WrittenLine& line)
{
    static const std::set<std::string> businesses = {"普通销售", "委托代销", "委托", "分期收款", "出口发票"};
    return businesses.contains(line.business) && line.kind != "JUST";
}

bool IsReturn(const WrittenLine& line)
{
    static const std::set<std::string> types = {"06", "27", "29", "EX27"};
    return types.contains(line.type) || line.source == "退货单" || line.source == "出口退货单";
}

using Pair = std::pair<std::string, std::int64_t>;  // voucher type and line

TEST(Sales, HoldAllTheirDocumentsInTheSmallestLedger)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, 2000);
        const Profile& profile = *year.profile;
        std::set<std::string> found;
        for (const auto& [id, line] : year.lines)
            found.insert(line.kind + ' ' + line.type + ' ' + line.business);

        std::set<std::string> expected;
        const auto expectSale = [&](const std::string& business, bool issues) {
            for (const char* document :
                 {"DISP 05 ", "DISP 06 ", "SALE 26 ", "SALE 27 ", "SALE 28 ", "SALE 29 "})
                expected.insert(document + business);
            if (issues)
                expected.insert("RD 32 " + business);
        };
        expectSale("普通销售", profile.ordinary != SaleDocument::Dispatch);
        expectSale("委托代销", profile.entrusted != SaleDocument::Dispatch);
        if (profile.instalments)
            expectSale("分期收款", false);
        if (profile.exports)
            expected.insert({"EXCON  普通销售", "EXINV EX26 出口发票", "EXINV EX27 出口发票"});
        if (profile.direct)
            expected.insert({"PUR 01 直运采购", "PUR 02 直运采购", "SALE 26 直运销售", "SALE 27 直运销售"});
        if (profile.direct && profile.exports)
            expected.insert("EXINV EX26 直运销售");
        if (profile.instalments)
            expected.insert({"JUST 65 分期收款", "JUST 66 分期收款"});
        for (const std::string& kind : expected)
            EXPECT_TRUE(found.contains(kind)) << name << " has no " << kind;
    }
}

TEST(Sales, GoOnFromJanuaryToDecember)
{
    for (const std::string_view name : ProfileNames()) {
        std::map<std::string, std::set<int>> months;
        for (const auto& [id, line] : SaleYearOf(name, kLines).lines)
            if (IsSale(line))
                months[line.kind].insert(line.month);
        for (const auto& [kind, found] : months)
            for (int month = 1; month <= 12; ++month)
                EXPECT_TRUE(found.contains(month)) << name << ' ' << kind << ' ' << month;
    }
}

TEST(Sales, LinkTheirLinesToLinesOfTheRightKind)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        for (const auto& [id, line] : year.lines) {
            if (!IsSale(line))
                continue;
            const std::string where = std::string(name) + ' ' + line.kind + ' ' + std::to_string(id);
            if (line.kind == "DISP") {
                EXPECT_EQ(line.dispatchLine, id) << where;
            } else if (line.kind == "EXCON") {
                EXPECT_EQ(line.dispatchLine, 0) << where;
                EXPECT_FALSE(line.guid.empty()) << where;
            } else if (line.kind == "EXINV") {
                const WrittenLine* from = year.Line(line.consignmentLine);
                ASSERT_NE(from, nullptr) << where;
                EXPECT_EQ(from->kind, "EXCON") << where;
                EXPECT_EQ(from->guid, line.guidSource) << where;
            } else {
                const WrittenLine* from = year.Line(line.dispatchLine);
                ASSERT_NE(from, nullptr) << where;
                EXPECT_EQ(from->kind, line.source.starts_with("出口") ? "EXCON" : "DISP") << where;
                EXPECT_EQ(IsReturn(*from) || from->kind == "EXCON", IsReturn(line) || from->kind == "EXCON")
                    << where;
                EXPECT_EQ(from->quantity < 0, line.quantity < 0) << where;
            }
            if (line.invoiceLine != 0) {
                const WrittenLine* invoice = year.Line(line.invoiceLine);
                ASSERT_NE(invoice, nullptr) << where;
                EXPECT_EQ(line.kind, "RD") << where;
                EXPECT_EQ(invoice->kind, "SALE") << where;
                EXPECT_EQ(invoice->dispatchLine, line.dispatchLine) << where;
            }
        }
    }
}

TEST(Sales, NameTheInvoiceOnAnIssueNoteOnlyWhereTheInvoiceCameFirst)
{
    int first = 0, later = 0;
    for (const auto& [id, line] : SaleYearOf("industry", kLines).lines)
        if (line.kind == "RD" && line.business == "普通销售") {
            (line.invoiceLine != 0 ? first : later) += 1;
            EXPECT_LT(line.invoiceLine, id);
        }
    EXPECT_GT(first, 5);
    EXPECT_GT(later, 5 * first);
}

TEST(Sales, AreNegativeOnDocumentsOfReturnsAndThereAlone)
{
    for (const std::string_view name : ProfileNames())
        for (const auto& [id, line] : SaleYearOf(name, kLines).lines)
            if (IsSale(line) && line.kind != "EXCON") {
                EXPECT_NE(line.quantity, 0) << name << ' ' << line.kind << ' ' << id;
                EXPECT_EQ(line.quantity < 0, IsReturn(line)) << name << ' ' << line.kind << ' ' << id;
            }
}

TEST(Sales, GiveEveryInvoiceASaleType)
{
    for (const std::string_view name : ProfileNames())
        for (const auto& [id, line] : SaleYearOf(name, kLines).lines)
            if (line.kind == "SALE") {
                EXPECT_FALSE(line.saleType.empty()) << name << ' ' << id;
            }
}

TEST(Sales, NeitherInvoiceNorIssueMoreThanWasDispatched)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::map<std::int64_t, std::int64_t> invoiced, issued;
        for (const auto& [id, line] : year.lines)
            if (IsSale(line)) {
                if (line.kind == "SALE" || line.kind == "EXINV")
                    invoiced[line.kind == "EXINV" ? line.consignmentLine : line.dispatchLine] +=
                        line.quantity;
                if (line.kind == "RD")
                    issued[line.dispatchLine] += line.quantity;
            }
        for (const auto& [from, quantity] : invoiced)
            EXPECT_LE(std::abs(quantity), std::abs(year.Line(from)->quantity)) << name << ' ' << from;
        for (const auto& [from, quantity] : issued)
            EXPECT_EQ(quantity, year.Line(from)->quantity) << name << ' ' << from;
    }
}

TEST(Sales, AreInvoicedWholeInPartsInPartOnlyOrNotAtAll)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::map<std::int64_t, std::pair<int, std::int64_t>> invoices;
        for (const auto& [id, line] : year.lines) {
            if (line.kind == "DISP" && line.month < 6 && line.quantity > 0)
                invoices.try_emplace(id);
            if (line.kind == "SALE" && invoices.contains(line.dispatchLine)) {
                ++invoices[line.dispatchLine].first;
                invoices[line.dispatchLine].second += line.quantity;
            }
        }
        std::map<std::string, int> ways;
        for (const auto& [dispatch, all] : invoices)
            ++ways[all.first == 0                                ? "never"
                   : all.second != year.Line(dispatch)->quantity ? "in part"
                   : all.first == 1                              ? "whole"
                                                                 : "in parts"];
        for (const char* way : {"never", "in part", "whole", "in parts"})
            EXPECT_GE(ways[way], 2) << name << ' ' << way;
        EXPECT_GT(ways["whole"], ways["in parts"]) << name;
    }
}

TEST(Sales, HaveOneStockRowForEachPostedLineAndNoneForTheOthers)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        std::map<std::int64_t, const PostedRow*> rows;
        for (const PostedRow& row : year.stock)
            if (const WrittenLine* line = year.Line(row.line); line != nullptr && IsSale(*line)) {
                EXPECT_TRUE(rows.emplace(row.line, &row).second) << name << " posts twice " << row.line;
            }
        int posted = 0, unposted = 0;
        for (const auto& [id, line] : year.lines) {
            if (!IsSale(line) || line.month == 0)
                continue;
            const bool posts = IsPostingDocument(*year.profile, line);
            EXPECT_EQ(rows.contains(id), posts && line.posted) << name << ' ' << line.kind << ' ' << id;
            if (!posts)
                continue;
            ++(line.posted ? posted : unposted);
            EXPECT_TRUE(line.posted || line.month == 12) << name << ' ' << line.kind << ' ' << id;
            if (line.posted) {
                const PostedRow& row = *rows[id];
                EXPECT_FALSE(row.receipt) << name << ' ' << id;
                EXPECT_EQ(row.quantity, line.quantity) << name << ' ' << id;
                EXPECT_EQ(row.type,
                          line.kind == "RD" && line.business.starts_with("委托") ? "3201" : line.type);
            }
        }
        EXPECT_GT(posted, 500) << name;
        EXPECT_GT(unposted, 20) << name;
    }
}

TEST(Sales, UseTheShortNameOfEntrustedBusinessOnlyWhereTheJournalFindsIt)
{
    for (const std::string_view name : ProfileNames()) {
        const SaleYear& year = SaleYearOf(name, kLines);
        int found = 0;
        for (const auto& [id, line] : year.lines)
            if (line.business == "委托" && line.kind == "DISP") {
                ++found;
                EXPECT_TRUE(year.profile->entrusted != SaleDocument::Dispatch || line.posted)
                    << name << ' ' << id;
            }
        EXPECT_GT(found, 2) << name;
    }
}

}  // namespace

}  // namespace kavelin::demo
