// The estimate balance on the demo companies, beside what receipts and settlements tell about open estimates.
#include "demo/profiles/Profile.h"
#include "frame/Text.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

using Table = std::vector<std::vector<std::string>>;

// Of a text with four places at most, in ten thousandths.
std::int64_t Number(const std::string& text)
{
    const std::size_t point = text.find('.');
    if (point == std::string::npos)
        return std::stoll(text) * 10000;
    return std::stoll(text.substr(0, point) + (text.substr(point + 1) + "0000").substr(0, 4));
}

// In cents.
std::int64_t Money(const std::string& text)
{
    return Number(text) / 100;
}

// Rounded to the nearest, halves away from zero.
std::int64_t Share(std::int64_t whole, std::int64_t part, std::int64_t total)
{
    const auto share =
        static_cast<long double>(whole) * static_cast<long double>(part) / static_cast<long double>(total);
    return static_cast<std::int64_t>(share + (share < 0 ? -0.5L : 0.5L));
}

struct Amount {
    std::int64_t quantity = 0;
    std::int64_t money = 0;  // without the material of subcontracted work

    void Add(std::int64_t moreQuantity, std::int64_t moreMoney)
    {
        quantity += moreQuantity;
        money += moreMoney;
    }
    bool IsNothing() const { return quantity == 0 && money == 0; }
};

struct Line {
    Amount opening, received, settled, closing;
};

// What receipts and settlements tell: a settlement takes its share of what is open of the receipt. Which rows
// the ledger has for reversals and differences has no part in it.
class Estimates {
  public:
    explicit Estimates(AccountReport& report)
        : objReceipts(report.Table(
              "select ID, iMonth, cast(iAInQuantity as decimal(18,4)),"
              " iAInPrice + isnull(iDebitDifCost,0) - isnull(iCreditDifCost,0),"
              " case when cBusType = N'委外加工' then isnull(iMaterialFee,0) else 0 end"
              " from IA_Subsidiary where cVouType = '33' or (bFlag = 1 and cVouType in ('01', '70'))")),
          objSettlements(report.Table("select a.ID, a.iMonth, cast(s.iSVQuantity as decimal(18,4))"
                                      " from IA_Subsidiary a inner join Pursettlevouchs s on s.ID = a.psvsid"
                                      " order by s.ID"))
    {
    }

    std::map<std::string, Line> Of(int month) const
    {
        struct Open {
            std::int64_t quantity, cost, material;
        };
        std::map<std::string, Open> open;
        std::map<std::string, Line> lines;
        for (const auto& row : objReceipts) {
            const int received = std::stoi(row[1]);
            if (received > month)
                continue;
            const Open line = {Number(row[2]), Money(row[3]), Money(row[4])};
            EXPECT_TRUE(open.emplace(row[0], line).second) << row[0] << " is received twice";
            Amount& amount = received < month ? lines[row[0]].opening : lines[row[0]].received;
            amount.Add(line.quantity, line.cost - line.material);
        }
        for (const auto& row : objSettlements) {
            const int settled = std::stoi(row[1]);
            if (settled > month)
                continue;
            Open& line = open.at(row[0]);
            const std::int64_t quantity = Number(row[2]);
            const std::int64_t cost = Share(line.cost, quantity, line.quantity);
            const std::int64_t material = Share(line.material, quantity, line.quantity);
            if (settled < month)
                lines[row[0]].opening.Add(-quantity, material - cost);
            else
                lines[row[0]].settled.Add(quantity, cost - material);
            line.quantity -= quantity;
            line.cost -= cost;
            line.material -= material;
        }
        std::erase_if(lines, [](const auto& line) {
            return line.second.opening.IsNothing() && line.second.received.IsNothing() &&
                   line.second.settled.IsNothing();
        });
        for (auto& [id, line] : lines)
            line.closing = {open.at(id).quantity, open.at(id).cost - open.at(id).material};
        return lines;
    }

  private:
    Table objReceipts;
    Table objSettlements;
};

class EstimateBalanceOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& objProfile = *demo::FindProfile(GetParam());

    AccountReport Report(int month, std::vector<std::string> settings = {})
    {
        settings.insert(settings.begin(),
                        {"ia_subsidiary.iyear=2008", "ia_subsidiary.iMonth=" + std::to_string(month) + "月"});
        return AccountReport(objProfile, "estimate-balance", settings);
    }

    bool IsReversedMonthly() const { return objProfile.estimate == demo::EstimateMethod::MonthReversal; }
};

const std::string kBalance =
    "select ID, isnull(QcQuantity,0), isnull(QcMoney,0), isnull(InQuantity,0), isnull(InMoney,0),"
    " isnull(OutQuantity,0), isnull(OutMoney,0), isnull(QmQuantity,0), isnull(QmMoney,0) from {}";

void ExpectAmount(const Amount& shown, const Amount& wanted, std::int64_t cents, const std::string& what)
{
    EXPECT_EQ(shown.quantity, wanted.quantity) << what;
    EXPECT_LE(std::abs(shown.money - wanted.money), cents)
        << what << ": " << shown.money << " instead of " << wanted.money;
}

}  // namespace

// Of each receipt line, in quantity and money. Where the ledger ends before December does, estimates of that
// month's reversal are not brought back: what is open of them is valued at a rounded unit cost.
TEST_P(EstimateBalanceOf, TellsOfEachReceiptLineWhatReceiptsAndSettlementsTell)
{
    for (int month = 1; month <= 12; ++month) {
        AccountReport report = Report(month);
        EXPECT_TRUE(report.Messages().empty());
        const std::map<std::string, Line> wanted = Estimates(report).Of(month);
        EXPECT_GT(wanted.size(), 10u);
        const std::int64_t cents = month == 12 && IsReversedMonthly() ? 1 : 0;

        std::set<std::string> shown;
        Amount remaining;
        for (const auto& row : report.Table(kBalance)) {
            const std::string what = "line " + row[0] + " in month " + std::to_string(month);
            EXPECT_TRUE(shown.insert(row[0]).second) << what << " is shown twice";
            const auto line = wanted.find(row[0]);
            if (line == wanted.end()) {
                ADD_FAILURE() << what << " is no estimate";
                continue;
            }
            const auto amount = [&](std::size_t at) { return Amount{Number(row[at]), Money(row[at + 1])}; };
            ExpectAmount(amount(1), line->second.opening, 0, what + " opening");
            ExpectAmount(amount(3), line->second.received, 0, what + " received");
            ExpectAmount(amount(5), line->second.settled, cents, what + " settled");
            ExpectAmount(amount(7), line->second.closing, cents, what + " closing");
            remaining.Add(Number(row[1]) + Number(row[3]) - Number(row[5]) - Number(row[7]),
                          Money(row[2]) + Money(row[4]) - Money(row[6]) - Money(row[8]));
        }
        EXPECT_TRUE(remaining.IsNothing()) << "opening plus new less settled is not the closing in " << month;
        for (const auto& line : wanted)
            EXPECT_TRUE(shown.contains(line.first)) << line.first << " is missing in " << month;
    }
}

// A filter shows of a report without it the lines that meet it.
TEST_P(EstimateBalanceOf, ShowsTheLinesThatMeetItsFilter)
{
    const std::string own = objProfile.edition == demo::Edition::Industrial ? "委外加工" : "受托代销";
    const struct {
        std::vector<std::string> settings;
        std::string condition;
    } cases[] = {
        {{"ia_subsidiary.cWhCode=01"}, " where cWhCode = '01'"},
        {{"ia_subsidiary.cWhCode=01", "ia_subsidiary.cWhCode=02"}, " where cWhCode in ('01', '02')"},
        {{"ia_subsidiary.cDepCode=01"}, " where ID in (select ID from IA_Subsidiary where cDepCode = '01')"},
        {{"Inventory.cInvCCode=01"}, " where cInvCCode like '01%'"},
        {{"ia_subsidiary.cInvCode=B..P"}, " where cInvCode >= 'B' and cInvCode <= 'P'"},
        {{"Vendor.cVCCode=01"}, " where cVCCode like '01%'"},
        {{"ia_subsidiary.cVenCode=V002..V004"}, " where cVenCode >= 'V002' and cVenCode <= 'V004'"},
        {{"ia_subsidiary.cRdCode=101"}, " where cRdCode = '101'"},
        {{"ia_subsidiary.cRdCode=101..103"}, " where cRdCode >= '101' and cRdCode <= '103'"},
        {{"ia_subsidiary.cItem_class=00"}, " where cItem_class = '00'"},
        {{"ia_subsidiary.cItemCode=HT-0801..HT-0804"},
         " where cItemCode >= 'HT-0801' and cItemCode <= 'HT-0804'"},
        {{"ia_subsidiary.cBatchIA=P0803"}, " where cBatchIA = 'P0803'"},
        {{"ia_subsidiary.cFree1=红"}, " where cFree1 = N'红'"},
        {{"ia_subsidiary.cBusType=普通采购"}, " where cBusType = N'普通采购'"},
        {{"ia_subsidiary.cBusType=一般贸易进口", "ia_subsidiary.cBusType=进料加工"},
         " where cBusType in (N'一般贸易进口', N'进料加工')"},
        {{"ia_subsidiary.cBusType=" + own}, " where cBusType = N'" + own + "'"},
        {{"ia_subsidiary.cVouType=01"},
         " where ID in (select ID from IA_Subsidiary where cVouType = '01' or cSrcVouType = '01')"},
        {{"ia_subsidiary.cVouType=70"},
         " where ID in (select ID from IA_Subsidiary where cVouType = '70' or cSrcVouType = '70')"},
        {{"ia_subsidiary.cVouType=01", "ia_subsidiary.cVouType=70"}, ""},
        {{"bDisZero=否"}, " where QmMoney <> 0"},
        {{"bDisZero=是", "bDispCheckFreeOnly=是"}, ""},
    };
    constexpr int kMonth = 6;
    AccountReport all = Report(kMonth);
    int shown = 0;
    for (const auto& c : cases) {
        AccountReport report = Report(kMonth, c.settings);
        EXPECT_TRUE(report.Messages().empty());
        const std::string lines = report.Rows("select ID from {} order by ID");
        EXPECT_EQ(lines, all.Rows("select ID from {}" + c.condition + " order by ID")) << c.settings.front();
        shown += !lines.empty();
    }
    EXPECT_GT(shown, 12);
}

INSTANTIATE_TEST_SUITE_P(Profiles, EstimateBalanceOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
