// The price analysis on the demo companies, beside prices worked out from each ledger line.
#include "demo/profiles/Profile.h"
#include "frame/Errors.h"
#include "host/HostConnection.h"
#include "reports/AccountReport.h"
#include "reports/PriceBook.h"
#include "reports/ReferencePrices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::test {

namespace {

namespace fs = std::filesystem;

struct Question {
    int month;
    int basePrice;
    AverageOf average;
    int firstMonth, lastMonth;  // of the average

    std::vector<std::string> Settings(const std::string& showType) const
    {
        const auto period = [](int number) {
            return "2008." + std::string(number < 10 ? "0" : "") + std::to_string(number);
        };
        return {
            "iMonth=" + period(month),
            "ShowType=" + showType,
            "Base Price=" + std::to_string(basePrice),
            "avgPrices=" + std::to_string(static_cast<int>(average)),
            "avgPrice=" + period(firstMonth) + ".." + period(lastMonth),
        };
    }

    PricesAsked Prices() const { return {average, firstMonth, lastMonth, month - 1}; }
};

// Ranges of whole quarters and others, since the summary holds totals of quarters too.
constexpr Question kQuestions[] = {
    {1, 5, AverageOf::Balances, 1, 12}, {2, 4, AverageOf::Receipts, 1, 3}, {7, 3, AverageOf::Issues, 1, 6},
    {7, 4, AverageOf::Balances, 4, 6},  {8, 5, AverageOf::Issues, 7, 9},   {9, 2, AverageOf::Receipts, 3, 7},
    {12, 1, AverageOf::Issues, 9, 12},
};

// Values of the key ShowType.
const std::string kLines = "1", kSummary = "2", kBoth = "3";

struct Row {
    int number = 0;
    bool summary = false;
    std::string month;  // of a summary row; a line has its date there
    Place place;
    PriceOrNull price, basePrice, balancePrice;
    Micro referenceCost = 0;
    RowPrices prices;
    double ratio = 0, deviation = 0;
};

PriceOrNull PriceOf(const std::string& text)
{
    return text == "NULL" ? std::nullopt : PriceOrNull(std::llround(std::stod(text) * 1e6));
}

std::vector<Row> RowsOf(AccountReport& report)
{
    std::vector<Row> rows;
    for (const auto& cells :
         report.Table("select " + PlaceColumns() +
                      ", autoid, cVouType, dVouDate, Price, BasePrice, Balanceunit, ReferenceCost, ExPrice,"
                      " InPrice, AvgPrice, Ratio, DiffRatio from {}")) {
        Row& row = rows.emplace_back();
        row.place = {cells[0], cells[1], cells[2], cells[3], cells[4]};
        row.number = std::stoi(cells[5]);
        row.summary = cells[6].empty();
        row.month = cells[7];
        row.price = PriceOf(cells[8]);
        row.basePrice = PriceOf(cells[9]);
        row.balancePrice = PriceOf(cells[10]);
        row.prices = {PriceOf(cells[13]).value(), PriceOf(cells[12]).value(), PriceOf(cells[14]).value()};
        row.referenceCost = PriceOf(cells[11]).value();
        row.ratio = std::stod(cells[15]);
        row.deviation = std::stod(cells[16]);
    }
    return rows;
}

// The last digit may be rounded either way.
bool Same(PriceOrNull a, PriceOrNull b)
{
    return a.has_value() == b.has_value() && (!a || std::llabs(*a - *b) <= 1);
}

bool Same(const RowPrices& a, const RowPrices& b)
{
    return a.lastReceipt == b.lastReceipt && a.lastIssue == b.lastIssue && Same(a.average, b.average);
}

// For messages; "or" between figures of which one has to come out.
std::string Text(PriceOrNull price)
{
    return price ? std::to_string(*price) : "NULL";
}

std::string Text(const RowPrices& prices)
{
    return "receipt " + Text(prices.lastReceipt) + " issue " + Text(prices.lastIssue) + " average " +
           Text(prices.average);
}

std::string Text(const auto& choices)
{
    std::string text;
    for (const auto& choice : choices)
        text += (text.empty() ? "" : " or ") + Text(choice);
    return text;
}

// The dialog offers no month of an archived year, but the shop has no other: in a copy the archive is gone.
std::string OpenAccountOf(const demo::Profile& profile)
{
    const fs::path path = AccountOf(profile);
    if (profile.name != "shop")
        return path.string();
    const fs::path copy = path.parent_path() / "open-shop.kavelin";
    if (!fs::exists(copy)) {
        fs::copy_file(path, copy);
        fs::copy_file(path.parent_path() / "shop.system.kavelin",
                      path.parent_path() / "open-shop.system.kavelin");
        const auto connection =
            LoggedConnections().Open("setup", host::EmbeddedConnectionString(copy.string(), "zh-CN"), "");
        connection->Execute("update AccInformation set cValue = null where cName = 'ArchiveDate'");
        connection->Close();
    }
    return copy.string();
}

class PriceAnalysisOf : public testing::TestWithParam<std::string> {
  protected:
    const std::string strAccount = OpenAccountOf(*demo::FindProfile(GetParam()));

    AccountReport Run(const Question& question, const std::string& showType,
                      const std::vector<std::string>& more = {})
    {
        std::vector<std::string> settings = question.Settings(showType);
        settings.insert(settings.end(), more.begin(), more.end());
        AccountReport report(strAccount, "price-analysis", settings);
        EXPECT_TRUE(report.Messages().empty());
        return report;
    }

    static int RatioDigits(AccountReport& report)
    {
        const std::string digits =
            report.Table("select cValue from AccInformation where cName = 'iExchRateDecDgt'")[0][0];
        return digits == "0" ? 2 : std::stoi(digits);
    }

    static const PriceBook& BookOf(std::optional<PriceBook>& book, AccountReport& report)
    {
        return book ? *book : book.emplace(report);
    }

    // Reads the rows of a run and proves them: which there are, and each figure of each.
    std::vector<Row> ExpectRows(AccountReport& report, const PriceBook& book, const Question& question,
                                bool lines, bool summary)
    {
        const std::vector<Row> rows = RowsOf(report);
        std::vector<Place> places;
        for (const Row& row : rows)
            places.push_back(row.place);
        const ReferencePrices prices(book, places, question.Prices());
        const int digits = RatioDigits(report);
        for (const Row& row : rows)
            ExpectPrices(book, prices, question, row, digits);
        ExpectLines(book, question, rows, lines);
        ExpectSummary(book, question, rows, summary);
        return rows;
    }

    // Each line of the month once, with its own unit price.
    static void ExpectLines(const PriceBook& book, const Question& question, const std::vector<Row>& rows,
                            bool asked)
    {
        std::map<int, const BookLine*> wanted;
        for (const BookLine& line : book.Lines())
            if (asked && line.month == question.month && PriceBook::Counts(line) && !line.busType.empty())
                wanted[line.number] = &line;
        for (const Row& row : rows) {
            if (row.summary)
                continue;
            const auto entry = wanted.find(row.number);
            ASSERT_NE(entry, wanted.end()) << row.number;
            const BookLine& line = *entry->second;
            const std::optional<double> price = line.inCost ? line.inCost : line.outCost;
            EXPECT_EQ(row.price, price ? PriceOrNull(MicroOf(*price)) : std::nullopt);
            EXPECT_EQ(TextOf(row.place), TextOf(line.place));
            wanted.erase(entry);
        }
        EXPECT_TRUE(wanted.empty()) << wanted.size() << " lines of month " << question.month;
    }

    // Each key of the summary once, with the unit price of its balance as the lines make it up.
    static void ExpectSummary(const PriceBook& book, const Question& question, const std::vector<Row>& rows,
                              bool asked)
    {
        std::set<Place> wanted;
        if (asked)
            for (const auto& [place, lines] : book.Summary())
                if (!lines.front().direct)
                    wanted.insert(place);
        for (const Row& row : rows) {
            if (!row.summary)
                continue;
            EXPECT_EQ(row.month, "2008" + std::to_string(question.month));
            EXPECT_EQ(wanted.erase(row.place), 1U) << TextOf(row.place);
            const auto year = book.Years().find(row.place);
            Micro price = 0;  // also of a key without a line
            if (year != book.Years().end()) {
                const Totals& month = year->second[static_cast<std::size_t>(question.month)];
                if (std::fabs(month.quantity) > 1e-4)
                    price = MicroOf(month.amount / month.quantity);
            }
            EXPECT_TRUE(Same(row.price, price)) << TextOf(row.place);
        }
        EXPECT_TRUE(wanted.empty()) << wanted.size() << " keys of month " << question.month;
    }

    // Reference prices, base price, ratio and deviation of a row. Only by department there is a choice.
    static void ExpectPrices(const PriceBook& book, const ReferencePrices& prices, const Question& question,
                             const Row& row, int digits)
    {
        const std::string what = TextOf(row.place) + (row.summary ? " summary " : " line ") +
                                 std::to_string(row.number) + " in month " + std::to_string(question.month);
        EXPECT_EQ(row.referenceCost, book.ReferenceCost(row.place.item)) << what;

        const std::vector<RowPrices> found = prices.Of(row.place);
        const auto isRow = [&](const RowPrices& choice) { return Same(row.prices, choice); };
        EXPECT_TRUE(std::ranges::any_of(found, isRow))
            << what << ": " << Text(row.prices) << ", not " << Text(found);
        const std::set<PriceOrNull> balances = prices.BalancesOf(row.place);
        const auto isBalance = [&](PriceOrNull choice) { return Same(row.balancePrice, choice); };
        EXPECT_TRUE(std::ranges::any_of(balances, isBalance))
            << what << ": " << Text(row.balancePrice) << ", not " << Text(balances);
        if (!book.ByDepartment()) {
            EXPECT_TRUE(std::ranges::all_of(found, isRow)) << what << ": " << Text(found);
            EXPECT_EQ(balances.size(), 1U) << what << ": " << Text(balances);
        }

        const PriceOrNull bases[] = {row.referenceCost, row.prices.lastIssue, row.prices.lastReceipt,
                                     row.prices.average, row.balancePrice};
        EXPECT_EQ(row.basePrice, bases[question.basePrice - 1]) << what;
        ExpectRatio(row, digits, what);
    }

    static Totals QuarterUntil(const Year& year, std::size_t last)
    {
        Totals quarter;
        for (std::size_t month = last - 2; month <= last; ++month) {
            quarter.inQuantity += year[month].inQuantity;
            quarter.inAmount += year[month].inAmount;
            quarter.outQuantity += year[month].outQuantity;
            quarter.outAmount += year[month].outAmount;
        }
        return quarter;
    }

    static void ExpectSame(const Totals& told, const Totals& wanted, const std::string& what)
    {
        EXPECT_NEAR(told.inQuantity, wanted.inQuantity, 1e-6) << what;
        EXPECT_NEAR(told.inAmount, wanted.inAmount, 1e-6) << what;
        EXPECT_NEAR(told.outQuantity, wanted.outQuantity, 1e-6) << what;
        EXPECT_NEAR(told.outAmount, wanted.outAmount, 1e-6) << what;
        EXPECT_NEAR(told.quantity, wanted.quantity, 1e-6) << what;
        EXPECT_NEAR(told.amount, wanted.amount, 1e-6) << what;
    }

    static void ExpectRatio(const Row& row, int digits, const std::string& what)
    {
        const Micro price = row.price.value_or(0), base = row.basePrice.value_or(0);
        double ratio = 0, deviation = 0;
        if (price != 0 && base != 0) {
            // The quotient is cut behind its sixth digit; in per cent that is the fourth.
            const Micro quotient = price * 1000000 / base;
            ratio = Rounded(quotient, digits);
            deviation = Rounded(quotient - 1000000, digits);
        } else if (price != 0) {
            ratio = 100;
        } else if (base != 0) {
            deviation = -100;
        }
        EXPECT_NEAR(row.ratio, ratio, 1e-9) << what;
        EXPECT_NEAR(row.deviation, deviation, 1e-9) << what;
    }

    // Ten-thousandths of one per cent in so many digits, halves away from 0.
    static double Rounded(Micro tenThousandths, int digits)
    {
        Micro unit = 1;
        for (int digit = digits; digit < 4; ++digit)
            unit *= 10;
        const Micro half = tenThousandths < 0 ? -unit / 2 : unit / 2;
        return static_cast<double>((tenThousandths + half) / unit * unit) / 1e4;
    }
};

// How many rows there are whose figure may be one of several.
struct Choices {
    std::size_t lastCosts = 0, averages = 0, balances = 0;
};

void CountChoices(const PriceBook& book, const Question& question, const std::vector<Row>& rows,
                  Choices& choices)
{
    std::vector<Place> places;
    for (const Row& row : rows)
        places.push_back(row.place);
    const ReferencePrices prices(book, places, question.Prices());
    for (const Row& row : rows) {
        std::set<Micro> averages;
        std::set<std::pair<Micro, Micro>> lastCosts;
        for (const RowPrices& found : prices.Of(row.place)) {
            averages.insert(found.average);
            lastCosts.emplace(found.lastReceipt, found.lastIssue);
        }
        choices.lastCosts += lastCosts.size() > 1 ? 1 : 0;
        choices.averages += averages.size() > 1 ? 1 : 0;
        choices.balances += prices.BalancesOf(row.place).size() > 1 ? 1 : 0;
    }
}

}  // namespace

// So what follows from the summary's rows follows from the ledger.
TEST_P(PriceAnalysisOf, ReadsASummaryThatSaysWhatTheLinesSay)
{
    AccountReport report = Run(kQuestions[0], kLines);
    const PriceBook book(report);
    std::size_t told = 0;
    for (const auto& [place, lines] : book.Summary()) {
        const auto entry = book.Years().find(place);
        const Year year = entry == book.Years().end() ? Year{} : entry->second;
        std::size_t months = 0;
        for (const SummaryLine& line : lines) {
            if (line.direct)
                continue;
            const auto month = static_cast<std::size_t>(line.month);
            Totals wanted = year[month];
            if (line.period)
                wanted = QuarterUntil(year, month);
            else
                ++months;
            ExpectSame(line.totals, wanted, TextOf(place) + " " + std::to_string(line.month));
        }
        told += months > 0 && entry != book.Years().end() ? 1 : 0;
        EXPECT_TRUE(months == 0 || months == year.size()) << TextOf(place);
    }
    EXPECT_EQ(told, book.Years().size());
}

TEST_P(PriceAnalysisOf, ShowsEachLedgerLineOfTheMonthWithThePricesOfItsKey)
{
    std::size_t shown = 0;
    std::optional<PriceBook> read;
    Choices choices;
    for (const Question& question : kQuestions) {
        AccountReport report = Run(question, kLines);
        const PriceBook& book = BookOf(read, report);
        const std::vector<Row> rows = ExpectRows(report, book, question, true, false);
        CountChoices(book, question, rows, choices);
        shown += rows.size();
    }
    EXPECT_GT(shown, 1000U);
    // By department keys of several warehouses meet; their averages are one, their newest lines are not.
    EXPECT_EQ(choices.averages, 0U);
    EXPECT_EQ(choices.balances, 0U);
    EXPECT_EQ(choices.lastCosts > 0, read->ByDepartment()) << choices.lastCosts;
}

TEST_P(PriceAnalysisOf, ShowsEachKeyOfTheSummaryWithThePriceOfItsBalance)
{
    std::optional<PriceBook> read;
    Choices choices;
    for (const Question& question : kQuestions) {
        AccountReport report = Run(question, kSummary);
        const PriceBook& book = BookOf(read, report);
        CountChoices(book, question, ExpectRows(report, book, question, false, true), choices);
    }
    // All keys of a department's item meet the same rows of the summary, and the newest lines of each batch.
    EXPECT_EQ(choices.averages, 0U);
    EXPECT_EQ(choices.balances, 0U);
    EXPECT_EQ(choices.lastCosts > 0, read->ByDepartment());
}

TEST_P(PriceAnalysisOf, ShowsLinesAndSummaryTogetherWithTheSamePrices)
{
    std::optional<PriceBook> read;
    Choices choices;
    for (const Question& question : kQuestions) {
        AccountReport report = Run(question, kBoth);
        const PriceBook& book = BookOf(read, report);
        CountChoices(book, question, ExpectRows(report, book, question, true, true), choices);
    }
    // By department keys of both kinds meet where an item keeps batches.
    EXPECT_EQ(choices.averages > 0, read->ByDepartment());
    EXPECT_EQ(choices.balances > 0, read->ByDepartment());
}

TEST_P(PriceAnalysisOf, ShowsWhatDeviates)
{
    const Question& question = kQuestions[2];
    const std::string count = "select count(*) from {}";
    AccountReport lines = Run(question, kLines);
    AccountReport far = Run(question, kLines, {"DiffRatio=5"});
    EXPECT_EQ(far.Rows(count), lines.Rows("select count(*) from {} where DiffRatio >= 5 or DiffRatio <= -5"));
    EXPECT_EQ(Run(question, kSummary, {"cVouType=01"}).Rows(count), "0\n") << "a summary row has no voucher";
}

TEST_P(PriceAnalysisOf, ShowsTheLinesOfItsConditions)
{
    const struct {
        std::vector<std::string> settings;
        const char* condition;
    } cases[] = {
        {{"cWhCode=01", "cWhCode=02", "cInvCode=B..P"},
         "a.cWhCode in ('01', '02') and a.cInvCode >= 'B' and a.cInvCode <= 'P'"},
        {{"cInvCCode=01..0199", "dVouDate=2008-07-05..2008-07-25"},
         "i.cInvCCode >= '01' and i.cInvCCode <= '0199'"
         " and a.dVouDate >= '2008-07-05' and a.dVouDate <= '2008-07-25'"},
        {{"cDepCode=01..0402", "cAccDep=0401..0402", "dKeepDate=2008-07-05..2008-07-12"},
         "a.cDepCode >= '01' and a.cDepCode <= '0402' and a.cAccDep >= '0401' and a.cAccDep <= '0402'"
         " and a.dKeepDate >= '2008-07-05' and a.dKeepDate <= '2008-07-12'"},
        {{"cBatchia=P0801"}, "a.cBatchIA = 'P0801'"},
        {{"cVouType=01", "cVouType=011", "cVouType=08", "cRdCode=101", "cRdCode=103"},
         "a.cVouType in ('01', '08') and a.cRdCode in ('101', '103')"},
        {{"cVouType=01", "cBusType=普通采购"},
         "a.cVouType = '01' and a.bFlag <> 1 and a.cBusType = N'普通采购'"},
        {{"cVouType=011", "cVenCode=V001..V009", "cVCCode=01..02"},
         "a.cVouType = '01' and a.bFlag = 1 and a.cVenCode >= 'V001' and a.cVenCode <= 'V009'"
         " and a.cVenCode in (select cVenCode from Vendor where cVCCode in ('01', '02'))"},
        {{"cCusCode=C001..C009", "cCCCode=01..02"},
         "a.cCusCode >= 'C001' and a.cCusCode <= 'C009'"
         " and a.cCusCode in (select cCusCode from Customer where cCCCode in ('01', '02'))"},
        {{"cproordercode=MO-08-000001..MO-08-999999"}, "a.cProOrderCode like 'MO-08-%'"},
        {{"cfree1=红"}, "a.cFree1 = N'红'"},
        {{"cdefine1=A..Z"}, "a.cDefine1 >= 'A' and a.cDefine1 <= 'Z'"},
    };
    int shown = 0;
    for (const auto& c : cases) {
        AccountReport report = Run(kQuestions[2], kLines, c.settings);
        const std::string wanted = report.Rows(
            "select count(*), isnull(sum(case when a.iInCost is null then a.iOutCost else a.iInCost"
            " end), 0) from IA_Subsidiary a left join Inventory i on i.cInvCode = a.cInvCode"
            " where a.iYear = 2008 and a.iMonth = 7 and a.cVouType <> '33' and a.cBusType is not null"
            " and a.cBusType not like N'直运%' and " +
            std::string(c.condition));
        const auto counts = [](const std::string& text) { return text.substr(0, text.find(' ')); };
        const std::string rows = report.Rows("select count(*), isnull(sum(Price), 0) from {}");
        EXPECT_EQ(counts(rows), counts(wanted)) << c.condition;
        shown += std::stoi(rows);
        EXPECT_NEAR(std::stod(rows.substr(rows.find('|') + 1)),
                    std::stod(wanted.substr(wanted.find('|') + 1)), 1e-3)
            << c.condition;
    }
    EXPECT_GT(shown, 300);
}

TEST(PriceAnalysis, IsNotOfferedForAMonthOfAnArchivedYear)
{
    const demo::Profile& shop = *demo::FindProfile("shop");
    EXPECT_THROW(AccountReport(shop, "price-analysis", kQuestions[2].Settings(kLines)), Error);
}

INSTANTIATE_TEST_SUITE_P(Profiles, PriceAnalysisOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
