// The inventory turnover on the demo companies, beside a calculation from the ledger lines one by one.
#include "demo/profiles/Profile.h"
#include "frame/Decimal.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace kavelin::test {

namespace {

using Day = std::chrono::sys_days;
using Exact = Int128;  // whole numbers of a smallest unit

constexpr int kMoneyDecimals = 2;
constexpr int kRateDecimals = 6;  // of a rate by amount

constexpr Exact PowerOfTen(int exponent)
{
    return exponent == 0 ? 1 : 10 * PowerOfTen(exponent - 1);
}

// Halves go away from zero; the divisor is above it.
Exact Quotient(Exact dividend, Exact divisor)
{
    const Exact rounded = ((dividend < 0 ? -dividend : dividend) * 2 + divisor) / (divisor * 2);
    return dividend < 0 ? -rounded : rounded;
}

// A cell in units of its last decimal; a missing one is 0.
Exact Number(const std::string& cell, int decimals)
{
    return cell == "NULL" ? 0
                          : std::llround(std::stold(cell) * static_cast<long double>(PowerOfTen(decimals)));
}

std::string Shown(Exact number)
{
    return std::to_string(static_cast<std::int64_t>(number));
}

Day DayOf(const std::string& text)
{
    return Day(std::chrono::year(std::stoi(text.substr(0, 4))) / std::stoi(text.substr(5, 2)) /
               std::stoi(text.substr(8, 2)));
}

struct Item {
    std::string itemClass, name, addCode, standard, unit;
    bool bought = false, sold = false, consumed = false;
};

struct Line {
    Day date;
    int month = 0;
    std::string vouType, busType, department, warehouse, item;
    bool receipt = false;
    Exact inQuantity = 0, outQuantity = 0;  // in units of the account's decimals
    Exact inMoney = 0, outMoney = 0, debitDifference = 0, creditDifference = 0;  // in units of 1/10,000
    std::vector<std::string> freeItems;

    Exact Quantity() const { return inQuantity - outQuantity; }
    // Of the line as a whole, at two decimals.
    Exact Money() const { return Cents(inMoney - outMoney + debitDifference - creditDifference); }
    Exact IssuedMoney(bool industrial) const
    {
        if (!industrial)
            return Cents(outMoney - debitDifference);
        return Cents(receipt ? outMoney : outMoney + creditDifference);
    }
    bool BroughtForward() const
    {
        return month == 0 && (vouType == "34" || busType == "直运采购" || busType == "直运销售");
    }

  private:
    static Exact Cents(Exact money) { return Quotient(money, 100); }
};

struct Groups {
    bool department = false, warehouse = false, itemClass = true, item = true;
};

// A run of the report and what it is to count.
struct Case {
    std::vector<std::string> settings;
    std::function<bool(const Line&)> takes = [](const Line&) { return true; };
    std::function<bool(const Line&)> issues = [](const Line&) { return true; };  // beside it
    std::function<void(Groups&)> group = [](Groups&) {};
    std::string from = "2008-01-01";
    std::string to = {};  // the last posting
    bool byAmount = true;
    bool empty = false;  // the demo has no such lines
};

class TurnoverOf : public testing::TestWithParam<std::string> {
  protected:
    TurnoverOf()
    {
        AccountReport report(objProfile, "turnover", {});
        for (const auto& row : report.Table("select cName, isnull(cValue, cDefault) from AccInformation"))
            dicParameters[row[0]] = row[1];
        for (const auto& row : report.Table("select cDepCode, cDepName from Department"))
            dicDepartments[row[0]] = row[1];
        for (const auto& row : report.Table("select cWhCode, cWhName from Warehouse"))
            dicWarehouses[row[0]] = row[1];
        for (
            const auto& row : report.Table(
                "select cInvCode, cInvCCode, cInvName, cInvAddCode, cInvStd, cComUnitName, cast(bPurchase as int),"
                " cast(bSale as int), cast(bComsume as int) from Inventory"
                " left join ComputationUnit on ComputationUnit.cComUnitCode = Inventory.cComUnitCode"))
            dicItems[row[0]] = {row[1], row[2],        row[3],        row[4],
                                row[5], row[6] == "1", row[7] == "1", row[8] == "1"};
        intDecimals = std::stoi(dicParameters["iStrsQuanDecDgt"]);
        ReadLedger(report);
    }

    void Expect(const Case& tested)
    {
        std::string name;
        for (const std::string& setting : tested.settings)
            name += setting + " ";
        SCOPED_TRACE(name);
        AccountReport report(objProfile, "turnover", tested.settings);
        const auto shown = Normalized(report, tested.byAmount);
        const auto wanted = Calculated(tested);
        EXPECT_EQ(shown.size(), wanted.size());
        EXPECT_EQ(wanted.empty(), tested.empty);
        int differences = 0;
        for (const std::string& row : wanted)
            if (!shown.contains(row) && ++differences <= 3)
                ADD_FAILURE() << "missing: " << row;
        differences = 0;
        for (const std::string& row : shown)
            if (!wanted.contains(row) && ++differences <= 3)
                ADD_FAILURE() << "not wanted: " << row;
        EXPECT_TRUE(report.Messages().empty());
    }

    // The value that most lines have.
    std::string Usual(const std::string Line::*column) const
    {
        std::map<std::string, int> counts;
        for (const Line& line : arrLines)
            if (line.*column != "NULL")
                ++counts[line.*column];
        return std::max_element(counts.begin(), counts.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; })
            ->first;
    }

    const demo::Profile& objProfile = *demo::FindProfile(GetParam());
    std::map<std::string, std::string> dicParameters, dicDepartments, dicWarehouses;
    std::map<std::string, Item> dicItems;
    std::vector<Line> arrLines;

  private:
    void ReadLedger(AccountReport& report)
    {
        for (
            const auto& row : report.Table(
                "select dKeepDate, iMonth, cVouType, cBusType, cDepCode, cWhCode, cInvCode, bRdFlag, iAInQuantity,"
                " iAOutQuantity, iAInPrice, iAOutPrice, iDebitDifCost, iCreditDifCost, cFree1, cFree2, cFree3, cFree4,"
                " cFree5, cFree6, cFree7, cFree8, cFree9, cFree10 from IA_Subsidiary where iYear = 2008")) {
            Line line;
            line.date = DayOf(row[0]);
            line.month = std::stoi(row[1]);
            std::tie(line.vouType, line.busType, line.department, line.warehouse, line.item) =
                std::tie(row[2], row[3], row[4], row[5], row[6]);
            line.receipt = row[7] == "1";
            line.inQuantity = Number(row[8], intDecimals);
            line.outQuantity = Number(row[9], intDecimals);
            line.inMoney = Number(row[10], 4);
            line.outMoney = Number(row[11], 4);
            line.debitDifference = Number(row[12], 4);
            line.creditDifference = Number(row[13], 4);
            line.freeItems.assign(row.begin() + 14, row.end());
            arrLines.push_back(std::move(line));
        }
    }

    // A row of the report as a text: names first, then the measures in units of their last decimal.
    std::set<std::string> Normalized(AccountReport& report, bool byAmount) const
    {
        const int measure = byAmount ? kMoneyDecimals : intDecimals;
        const int decimals[] = {kMoneyDecimals,
                                kMoneyDecimals,
                                measure,
                                kMoneyDecimals,
                                intDecimals,
                                byAmount ? kRateDecimals : intDecimals,
                                2};
        std::set<std::string> rows;
        for (const auto& row : report.Table("select * from {}")) {
            std::string text;
            for (std::size_t column = 0; column < 12; ++column)
                text += row[column] + "|";
            for (std::size_t column = 12; column < row.size(); ++column)
                text += Shown(Number(row[column], decimals[column - 12])) + "|";
            EXPECT_EQ(row.size(), 19u);
            EXPECT_TRUE(rows.insert(text).second) << "twice: " << text;
        }
        return rows;
    }

    struct Sums {
        Exact opening = 0, closing = 0, issued = 0;
        Exact halfDays = 0;  // stock times the half days for which it counts
    };

    std::set<std::string> Calculated(const Case& tested) const
    {
        const bool industrial = dicParameters.at("cSysVersion") == "工业";
        const std::string& style = dicParameters.at("cValueStyle");
        Groups groups{.department = style == "按部门核算", .warehouse = style == "按仓库核算"};
        tested.group(groups);
        const Day from = DayOf(tested.from);
        Day to = from;
        if (tested.to.empty())
            for (const Line& line : arrLines)
                to = std::max(to, line.date);
        else
            to = DayOf(tested.to);
        const Exact days = (to - from).count() + 1;

        std::map<std::string, Sums> sums;
        for (const Line& line : arrLines) {
            if (!tested.takes(line))
                continue;
            const std::string key = HeadOf(line, groups, from, to);
            const Exact stock = tested.byAmount ? line.Money() : line.Quantity();
            const bool counts = line.month != 0 && line.vouType != "33";
            if (line.BroughtForward() || (counts && line.date < from)) {
                sums[key].opening += line.Money();
                sums[key].halfDays += stock * days * 2;
            }
            if (line.BroughtForward() || (counts && line.date <= to))
                sums[key].closing += line.Money();
            if (line.date < from || line.date > to)
                continue;
            if (line.month != 0)
                sums[key].halfDays += stock * (Exact((to - line.date).count()) * 2 + 1);
            const bool reversed = line.vouType == "24" || line.vouType == "30";
            if (tested.issues(line) && (tested.byAmount || !reversed))
                sums[key].issued += tested.byAmount ? line.IssuedMoney(industrial) : line.outQuantity;
        }
        std::set<std::string> rows;
        for (const auto& [key, sum] : sums)
            rows.insert(key + Measures(sum, days, tested.byAmount));
        return rows;
    }

    std::string HeadOf(const Line& line, const Groups& groups, Day from, Day to) const
    {
        const auto date = [](Day day) {
            const std::chrono::year_month_day parts(day);
            char text[16];
            std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(parts.year()),
                          static_cast<unsigned>(parts.month()), static_cast<unsigned>(parts.day()));
            return std::string(text);
        };
        const auto pair = [](bool shown, const std::string& code,
                             const std::map<std::string, std::string>& names) {
            return shown ? code + "|" + (names.contains(code) ? names.at(code) : "NULL") + "|" : "NULL|NULL|";
        };
        const Item& item = dicItems.at(line.item);
        return date(from) + "|" + date(to) + "|" + pair(groups.department, line.department, dicDepartments) +
               pair(groups.warehouse, line.warehouse, dicWarehouses) +
               (groups.itemClass ? item.itemClass : "NULL") + "|" +
               (groups.item ? line.item + "|" + item.name + "|" + item.addCode + "|" + item.standard + "|" +
                                  item.unit + "|"
                            : "NULL|NULL|NULL|NULL|NULL|");
    }

    std::string Measures(const Sums& sum, Exact days, bool byAmount) const
    {
        const int rateDecimals = byAmount ? kRateDecimals : intDecimals;
        const Exact average = Quotient(sum.halfDays, days * 2);
        const Exact rate = average > 0 ? Quotient(sum.issued * PowerOfTen(rateDecimals), average) : 0;
        // By amount a rate that is 0 at two decimals has no days.
        const bool turns = byAmount ? Quotient(rate, PowerOfTen(kRateDecimals - 2)) > 0 : rate > 0;
        const Exact turnoverDays = turns ? Quotient(days * PowerOfTen(rateDecimals + 2), rate) : 0;
        const Exact issuedMoney = byAmount ? sum.issued : 0;
        const Exact issuedQuantity = byAmount ? 0 : sum.issued;
        std::string text;
        for (const Exact measure :
             {sum.opening, sum.closing, average, issuedMoney, issuedQuantity, rate, turnoverDays})
            text += Shown(measure) + "|";
        return text;
    }

    int intDecimals = 0;
};

}  // namespace

TEST_P(TurnoverOf, AgreesWithTheLedgerForEachRangeOfDatesByAmountAndByQuantity)
{
    Expect({});
    Expect({.settings = {"dismethod=按数量"}, .byAmount = false});
    const struct {
        const char *setting, *from, *to;
    } ranges[] = {
        {"iperiod=2008-03-01..2008-06-30", "2008-03-01", "2008-06-30"},
        {"iperiod=2008-03-14..2008-03-14", "2008-03-14", "2008-03-14"},
        {"iperiod=2008-10-05..", "2008-10-05", ""},
        {"iperiod=..2008-02-15", "2008-01-01", "2008-02-15"},
        {"iperiod=2007-12-20..2008-01-31", "2008-01-01", "2008-01-31"},
    };
    for (const auto& range : ranges)
        for (const bool byAmount : {true, false})
            Expect({.settings = {range.setting, byAmount ? "dismethod=按金额" : "dismethod=按数量"},
                    .from = range.from,
                    .to = range.to,
                    .byAmount = byAmount});
}

TEST_P(TurnoverOf, AgreesWithTheLedgerForEachGrouping)
{
    for (int chosen = 0; chosen < 16; ++chosen) {
        const Groups groups{(chosen & 1) != 0, (chosen & 2) != 0, (chosen & 4) != 0, (chosen & 8) != 0};
        const auto flag = [](const char* key, bool value) {
            return std::string(key) + (value ? "=是" : "=否");
        };
        Expect({.settings = {"iperiod=2008-04-10..2008-09-20", flag("bgroupdep", groups.department),
                             flag("bgroupcwh", groups.warehouse), flag("bgroupinvcc", groups.itemClass),
                             flag("bgroupcin", groups.item)},
                .group = [&](Groups& shown) { shown = groups; },
                .from = "2008-04-10",
                .to = "2008-09-20"});
    }
}

TEST_P(TurnoverOf, AgreesWithTheLedgerForEachKeyOfItsFilter)
{
    const auto with = [](const std::string& setting, std::function<bool(const Line&)> takes) {
        return Case{.settings = {setting}, .takes = std::move(takes)};
    };
    Expect({.settings = {"iyear=2008"}});
    Expect(with("invproperty=采购", [&](const Line& line) { return dicItems.at(line.item).bought; }));
    Expect(with("invproperty=销售", [&](const Line& line) { return dicItems.at(line.item).sold; }));
    Expect(with("invproperty=生产领料", [&](const Line& line) { return dicItems.at(line.item).consumed; }));

    const std::string warehouse = Usual(&Line::warehouse);
    Expect(with("cwhcode=" + warehouse, [&](const Line& line) { return line.warehouse == warehouse; }));
    const std::string department = Usual(&Line::department);
    Expect(with("cdepcode=" + department, [&](const Line& line) { return line.department == department; }));
    const std::string item = Usual(&Line::item);
    Expect(with("cinvcode=" + item, [&](const Line& line) { return line.item == item; }));
    Expect(with("cinvcode=" + item + "..", [&](const Line& line) { return line.item >= item; }));
    Expect(with("cinvccode=01",
                [&](const Line& line) { return dicItems.at(line.item).itemClass.starts_with("01"); }));
    Expect(with("cinvccode=..01", [&](const Line& line) { return dicItems.at(line.item).itemClass < "02"; }));

    const std::string business = Usual(&Line::busType);
    for (const bool byAmount : {true, false})
        Expect({.settings = {"ia_subsidiary.cbustype=" + business,
                             byAmount ? "dismethod=按金额" : "dismethod=按数量"},
                .issues = [&](const Line& line) { return line.busType == business; },
                .byAmount = byAmount});

    for (std::size_t number = 1; number <= 10; ++number)
        Expect({.settings = {"cfree" + std::to_string(number) + "=红"},
                .takes = [=](const Line& line) { return line.freeItems[number - 1] == "红"; },
                .empty = number != 1});
}

INSTANTIATE_TEST_SUITE_P(Profiles, TurnoverOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
