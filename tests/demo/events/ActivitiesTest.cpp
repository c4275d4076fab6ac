// What kinds of business a generated year holds, and the rules that hold for all of them.
#include "demo/MemorySink.h"
#include "demo/events/LedgerRows.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <span>
#include <string>

namespace kavelin::demo {

namespace {

// Voucher type and business type, blank between them; with 1 behind the voucher type for estimates.
std::set<std::string> KindsOf(const PlayedYear& year)
{
    std::set<std::string> kinds;
    for (const LedgerRow& row : year.rows)
        kinds.insert(row.type + (row.flag == 1 ? "1 " : " ") + row.business);
    return kinds;
}

void ExpectKinds(const std::set<std::string>& kinds, std::span<const std::string_view> expected,
                 std::string_view profile)
{
    for (const std::string_view kind : expected)
        EXPECT_TRUE(kinds.contains(std::string(kind))) << profile << " has no " << kind;
}

TEST(Activities, AllAppearInTheSmallestLedger)
{
    constexpr std::string_view kEverywhere[] = {"01 普通采购",
                                                "011 普通采购",
                                                "01 一般贸易进口",
                                                "011 一般贸易进口",
                                                "01 进料加工",
                                                "011 进料加工",
                                                "08 调拨入库",
                                                "09 调拨出库",
                                                "08 组装入库",
                                                "09 组装出库",
                                                "08 拆卸入库",
                                                "09 拆卸出库",
                                                "08 转换入库",
                                                "09 转换出库",
                                                "08 其他入库",
                                                "09 其他出库",
                                                "08 ",
                                                "09 ",
                                                "08 盘盈入库",
                                                "09 盘亏出库",
                                                "09 不合格品",
                                                "08 降级入库",
                                                "09 备件领用",
                                                "08 配件退库",
                                                "09 服务配件领用",
                                                "09 签回损失",
                                                "20 ",
                                                "21 ",
                                                "34 ",
                                                "331 普通采购"};
    constexpr std::string_view kIndustrial[] = {
        "11 领料",     "11 限额领料", "11 配比出库",  "11 生产倒冲",  "11 假退料",   "11 委外发料",
        "10 成品入库", "01 委外加工", "011 委外加工", "331 委外加工", "70 普通采购", "701 普通采购"};
    constexpr std::string_view kConsignment[] = {"011 受托代销", "331 受托代销", "20 暂估报销"};
    for (const std::string_view profile : {"industry", "works", "goods-sent", "invoices"}) {
        const std::set<std::string> kinds = KindsOf(YearOf(profile, 2000));
        ExpectKinds(kinds, kEverywhere, profile);
        ExpectKinds(kinds, kIndustrial, profile);
    }
    for (const std::string_view profile : {"trade", "shop"}) {
        const std::set<std::string> kinds = KindsOf(YearOf(profile, 2000));
        ExpectKinds(kinds, kEverywhere, profile);
        ExpectKinds(kinds, kConsignment, profile);
        EXPECT_FALSE(kinds.contains("10 成品入库")) << profile;
        EXPECT_FALSE(kinds.contains("11 领料")) << profile;
    }
}

TEST(Activities, PostADocumentInItsMonthAndNotBeforeItsDay)
{
    // Rows that go back to an earlier receipt carry its day.
    const std::set<std::string> later = {"24", "30", "33", "34"};
    for (const std::string_view profile : {"industry", "trade"})
        for (const LedgerRow& row : YearOf(profile).rows) {
            if (later.contains(row.type) || (row.type == "20" && row.flag == 2))
                continue;
            EXPECT_EQ(MonthOf(row.documentDay), row.month) << profile << ' ' << row.type << ' ' << row.line;
            EXPECT_EQ(MonthOf(row.postingDay), row.month) << profile << ' ' << row.type << ' ' << row.line;
            EXPECT_LE(row.documentDay, row.postingDay) << profile << ' ' << row.type << ' ' << row.line;
        }
}

TEST(Activities, PutOnlyOpeningsAndMemosOfEstimatesIntoMonth0)
{
    int openings = 0;
    for (const LedgerRow& row : YearOf("industry").rows) {
        EXPECT_EQ(row.month == 0, row.type == "33" || row.type == "34") << row.type;
        if (row.type == "33") {
            EXPECT_EQ(FormatDate(row.documentDay).substr(0, 7), "2007-12");
            EXPECT_EQ(row.flag, 1);
            EXPECT_TRUE(row.source == "01" || row.source == "70") << row.source;
            EXPECT_GT(row.line, 0);
        }
        openings += row.type == "34" ? 1 : 0;
    }
    EXPECT_GT(openings, 50);
}

TEST(Activities, IssueInTheNextMonthWhatWasGivenBackUnused)
{
    std::map<std::string, std::map<int, std::int64_t>> givenBack, issued;
    for (const LedgerRow& row : YearOf("industry").rows)
        if (row.business == "假退料") {
            if (row.quantity < 0)
                givenBack[row.item + ' ' + row.warehouse][row.month] -= row.quantity;
            else
                issued[row.item + ' ' + row.warehouse][row.month - 1] += row.quantity;
        }
    EXPECT_FALSE(givenBack.empty());
    EXPECT_EQ(givenBack, issued);
}

TEST(Activities, TransferGoodsToWarehousesWithHigherCodes)
{
    for (const std::string_view profile : {"industry", "shop"}) {
        const LedgerRow* out = nullptr;
        int transfers = 0;
        for (const LedgerRow& row : YearOf(profile).rows) {
            if (row.business == "调拨出库")
                out = &row;
            if (row.business != "调拨入库")
                continue;
            ASSERT_NE(out, nullptr);
            EXPECT_EQ(row.item, out->item);
            EXPECT_EQ(row.quantity, out->quantity);
            EXPECT_LT(out->warehouse, row.warehouse);
            out = nullptr;
            ++transfers;
        }
        EXPECT_GT(transfers, 20) << profile;
    }
}

TEST(Activities, AdjustAmountsAndNowAndThenNothing)
{
    int receipts = 0, issues = 0, nothing = 0;
    for (const LedgerRow& row : YearOf("industry").rows) {
        if ((row.type != "20" && row.type != "21") || row.flag == 2)
            continue;
        EXPECT_EQ(row.quantity, 0);
        ++(row.cost == 0 ? nothing : row.receipt ? receipts : issues);
    }
    EXPECT_GT(receipts, 10);
    EXPECT_GT(issues, 10);
    EXPECT_GT(nothing, 0);
}

TEST(Activities, SendGoodsBackAsNegativeReceipts)
{
    int sentBack = 0;
    for (const LedgerRow& row : YearOf("industry").rows) {
        if (row.type != "01")
            continue;
        EXPECT_EQ(row.quantity < 0, row.cost < 0) << row.line;
        EXPECT_FALSE(row.quantity < 0 && row.flag == 1) << row.line;
        sentBack += row.quantity < 0 ? 1 : 0;
    }
    EXPECT_GT(sentBack, 10);
}

// Of sales it is by design that some documents are never posted.
TEST(Activities, LeaveDocumentsUnpostedInTheLastMonthAndBeforeTheBooksBegin)
{
    const std::set<std::string> types = {"01", "08", "09", "10", "11", "20", "21", "70"};
    for (const std::string_view profile : {"industry", "trade", "works"}) {
        const MemorySink sink = Generate(*FindProfile(profile), 6000, 2008);
        const MemoryTable& heads = sink.Table("Demo_Document");
        std::map<std::string, std::string> days;
        for (std::size_t i = 0; i < heads.rows.size(); ++i)
            if (types.contains(heads.Text(i, "cVouType")) && heads.Text(i, "Kind") != "PUR")
                days[heads.Text(i, "DocID")] = heads.Text(i, "dVouDate");

        std::map<std::string, int> unposted;
        const MemoryTable& lines = sink.Table("Demo_DocumentLine");
        for (std::size_t i = 0; i < lines.rows.size(); ++i) {
            const auto head = days.find(lines.Text(i, "DocID"));
            if (head != days.end() && lines.At(i, "cAccounter").IsNull())
                ++unposted[head->second.substr(0, 7)];
        }
        EXPECT_GT(unposted["2008-12"], 50) << profile;
        EXPECT_EQ(unposted["2007-12"], profile == "works" ? 8 : 0) << profile;
        for (const auto& [month, count] : unposted)
            EXPECT_TRUE(month == "2007-12" || month == "2008-12") << profile << " in " << month;
    }
}

TEST(Activities, NeverPostGoodsThatTheirVendorsStillOwn)
{
    for (const LedgerRow& row : YearOf("industry").rows)
        EXPECT_NE(row.warehouse, "04") << row.type;
}

}  // namespace

}  // namespace kavelin::demo
