// The ABC analysis on the demo companies, beside a calculation from the rows of the month's summary.
#include "demo/profiles/Profile.h"
#include "host/HostSettingsStore.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

struct Item {
    std::string itemClass, name, addCode, standard, unit;
};

struct SummaryRow {
    int month = 0;
    std::string item, warehouse, department, batch;
    double quantity = 0, money = 0;
    std::vector<std::string> freeItems;
};

// Percentages at which grades begin.
struct Limits {
    double moneyA = 70, moneyB = 10, quantityB = 20, quantityC = 50;
};

using Share = std::int64_t;  // in ten-thousandths
constexpr Share kWhole = 10'000;

struct Graded {
    double quantity = 0, money = 0;
    Share ofQuantity = 0, ofMoney = 0;
    char abcClass = ' ';
};
using GradedItems = std::map<std::string, Graded>;

// What an item's share is rounded to. One of the largest takes what is left over.
void ShareOut(GradedItems& items, double Graded::*value, Share Graded::*share, double total)
{
    Share others = kWhole;
    for (auto& [code, item] : items) {
        item.*share = total > 0 && item.*value > 0 ? std::llround(item.*value / total * kWhole) : 0;
        others -= item.*share;
    }
    const auto largest = std::max_element(items.begin(), items.end(), [&](const auto& a, const auto& b) {
        return a.second.*share < b.second.*share;
    });
    if (largest != items.end())
        largest->second.*share += others;
}

char ClassOf(const Graded& item, const Limits& limits)
{
    const double money = static_cast<double>(item.ofMoney) / 100;
    const double quantity = static_cast<double>(item.ofQuantity) / 100;
    const char byMoney = money < 0 ? ' ' : money < limits.moneyB ? 'C' : money < limits.moneyA ? 'B' : 'A';
    const char byQuantity = quantity < 0                  ? ' '
                            : quantity < limits.quantityB ? 'A'
                            : quantity < limits.quantityC ? 'B'
                                                          : 'C';
    for (const char first : {'B', 'C'})
        if (byMoney == first || byQuantity == first)
            return first;
    return 'A';
}

double NumberIn(const std::string& cell)
{
    return cell == "NULL" ? 0 : std::stod(cell);
}

// At four decimals, as both sides are sums of doubles.
std::string Shown(double number)
{
    return std::to_string(std::llround(number * 10'000));
}

class AbcOf : public testing::TestWithParam<std::string> {
  protected:
    AbcOf()
    {
        AccountReport report(objProfile, "abc", {});
        for (const auto& row : report.Table("select cName, isnull(cValue, cDefault) from AccInformation"))
            dicParameters[row[0]] = row[1];
        for (const auto& row : report.Table("select cWhCode, cast(bInCost as int) from Warehouse"))
            dicCosted[row[0]] = row[1] == "1";
        for (const auto& row : report.Table(
                 "select cInvCode, cInvCCode, cInvName, cInvAddCode, cInvStd, cComUnitName from Inventory"
                 " left join ComputationUnit on ComputationUnit.cComUnitCode = Inventory.cComUnitCode"))
            dicItems[row[0]] = {row[1], row[2], row[3], row[4], row[5]};
        for (
            const auto& row : report.Table(
                "select iMonth, cInvCode, cWhCode, cDepCode, cBatchIA, iNum, iMoney, iDif, cFree1, cFree2, cFree3,"
                " cFree4, cFree5, cFree6, cFree7, cFree8, cFree9, cFree10 from IA_Summary where iYear = 2008"))
            arrRows.push_back({std::stoi(row[0]),
                               row[1],
                               row[2],
                               row[3],
                               row[4],
                               NumberIn(row[5]),
                               NumberIn(row[6]) + NumberIn(row[7]),
                               {row.begin() + 8, row.end()}});
    }

    using Takes = std::function<bool(const SummaryRow&)>;

    void Expect(
        int month, const std::vector<std::string>& more = {}, const std::string& classes = "ABC",
        const Takes& takes = [](const SummaryRow&) { return true; }, const Limits& limits = {})
    {
        std::vector<std::string> settings = {"iperiod=" + std::to_string(month) + "月"};
        settings.insert(settings.end(), more.begin(), more.end());
        SCOPED_TRACE(settings.back());

        AccountReport report(objProfile, "abc", settings);
        std::map<std::string, std::string> shown;
        for (const auto& row : report.Table("select * from {}")) {
            std::string text;
            for (const std::size_t column : {1u, 2u, 3u, 4u, 9u, 10u, 11u})
                text += row[column] + "|";
            for (const std::size_t column : {5u, 6u, 7u, 8u})
                text += Shown(NumberIn(row[column])) + "|";
            EXPECT_TRUE(shown.emplace(row[0], text).second) << "twice: " << row[0];
        }
        EXPECT_EQ(shown, Wanted(month, classes, takes, limits));
        EXPECT_TRUE(report.Messages().empty());
        strClassesShown = report.Rows("select distinct 分析_ABC类别 from {} order by 分析_ABC类别");
    }

    std::string ValueStyle() const { return dicParameters.at("cValueStyle"); }

    // The value that most rows have.
    std::string Usual(const std::string SummaryRow::*column) const
    {
        std::map<std::string, int> counts;
        for (const SummaryRow& row : arrRows)
            ++counts[row.*column];
        return std::max_element(counts.begin(), counts.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; })
            ->first;
    }

    const demo::Profile& objProfile = *demo::FindProfile(GetParam());
    std::map<std::string, Item> dicItems;
    std::string strClassesShown;  // by the latest run

  private:
    // Without permissions, rows of warehouses whose stock has no cost are left out where cost is by warehouse.
    bool IsPermitted(const SummaryRow& row) const
    {
        const bool everyWarehouse =
            ValueStyle() != "按仓库核算" || dicParameters.at("bWarehouseCheck") == "TRUE";
        return everyWarehouse || row.warehouse == "NULL" || dicCosted.at(row.warehouse);
    }

    std::map<std::string, std::string> Wanted(int month, const std::string& classes, const Takes& takes,
                                              const Limits& limits) const
    {
        GradedItems items;
        double quantity = 0, money = 0;
        for (const SummaryRow& row : arrRows) {
            if (row.month != month || !takes(row) || !IsPermitted(row))
                continue;
            items[row.item].quantity += row.quantity;
            items[row.item].money += row.money;
            quantity += std::max(row.quantity, 0.0);
            money += std::max(row.money, 0.0);
        }
        ShareOut(items, &Graded::quantity, &Graded::ofQuantity, quantity);
        ShareOut(items, &Graded::money, &Graded::ofMoney, money);

        std::map<std::string, std::string> wanted;
        for (auto& [code, graded] : items) {
            graded.abcClass = ClassOf(graded, limits);
            if (classes.find(graded.abcClass) == classes.npos)
                continue;
            const Item& item = dicItems.at(code);
            wanted[code] = item.name + "|" + item.addCode + "|" + item.standard + "|" + item.unit + "|" +
                           graded.abcClass + "|NULL|1|" + Shown(graded.quantity) + "|" +
                           std::to_string(graded.ofQuantity) + "|" + Shown(graded.money) + "|" +
                           std::to_string(graded.ofMoney) + "|";
        }
        return wanted;
    }

    std::map<std::string, std::string> dicParameters;
    std::map<std::string, bool> dicCosted;
    std::vector<SummaryRow> arrRows;
};

}  // namespace

TEST_P(AbcOf, AgreesWithTheSummaryOfEachMonth)
{
    for (int month = 1; month <= 12; ++month)
        Expect(month);
}

TEST_P(AbcOf, AgreesWithTheSummaryForEachKeyOfItsFilter)
{
    Expect(6, {"iyear=2008"});
    Expect(6, {"inclua=否"}, "BC");
    Expect(6, {"inclub=否"}, "AC");
    Expect(6, {"incluc=否"}, "AB");
    Expect(6, {"inclua=否", "inclub=否", "incluc=否"}, "");

    const std::string item = Usual(&SummaryRow::item);
    Expect(6, {"cinvcode=" + item}, "ABC", [&](const SummaryRow& row) { return row.item == item; });
    Expect(6, {"cinvcode=.." + item}, "ABC", [&](const SummaryRow& row) { return row.item <= item; });
    Expect(6, {"cinvccode=01"}, "ABC",
           [&](const SummaryRow& row) { return dicItems.at(row.item).itemClass.starts_with("01"); });
    const std::string batch = Usual(&SummaryRow::batch);
    if (batch != "NULL" && !batch.empty())
        Expect(6, {"cbatchia=" + batch}, "ABC", [&](const SummaryRow& row) { return row.batch == batch; });

    // The dialog opens the one by which the account reckons its costs.
    if (ValueStyle() == "按仓库核算") {
        const std::string warehouse = Usual(&SummaryRow::warehouse);
        Expect(6, {"cwhcode=" + warehouse}, "ABC",
               [&](const SummaryRow& row) { return row.warehouse == warehouse; });
    } else if (ValueStyle() == "按部门核算") {
        const std::string department = Usual(&SummaryRow::department);
        Expect(6, {"cdepcode=" + department}, "ABC",
               [&](const SummaryRow& row) { return row.department == department; });
    }
    for (std::size_t number = 1; number <= 10; ++number)
        Expect(6, {"cfree" + std::to_string(number) + "=红"}, "ABC",
               [=](const SummaryRow& row) { return row.freeItems[number - 1] == "红"; });
}

TEST_P(AbcOf, GradesByTheThresholdsOfTheUser)
{
    const host::AccountLogin login = LoginTo(AccountOf(objProfile), "zh-CN");
    host::HostSettingsStore store(login.settingsFile);
    const auto set = [&](const char* key, const char* value) {
        store.Write("存货核算", "ABCOption872", key, value);
    };
    const std::pair<const char*, const char*> changed[] = {
        {"M2", "4"}, {"M3", "1.5"}, {"N2", "2.5"}, {"N3", "4"}};
    for (const auto& [key, value] : changed)
        set(key, value);
    Expect(6, {}, "ABC", [](const SummaryRow&) { return true; },
           {.moneyA = 4, .moneyB = 1.5, .quantityB = 2.5, .quantityC = 4});
    EXPECT_EQ(strClassesShown, "A\nB\nC\n");
    EXPECT_TRUE(std::filesystem::remove(login.settingsFile));
}

INSTANTIATE_TEST_SUITE_P(Profiles, AbcOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
