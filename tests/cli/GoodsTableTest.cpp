// The reports on goods in transit as tables on a screen, the ledger by cost item before all.
#include "cli/Demo.h"
#include "cli/Process.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace kavelin::cli {
namespace {

constexpr const char* kRule = "─";

class GoodsTable : public testing::Test {
  protected:
    // The lines that the program puts out for the first months of an item, on a screen so wide.
    std::vector<std::string> Lines(int width, const std::string& language,
                                   const std::vector<std::string>& more = {})
    {
        std::vector<std::string> arguments = {"goods-cost-ledger",
                                              "--set",
                                              "IA_EnSubsidiary.iYear=2008",
                                              "--set",
                                              "IA_EnSubsidiary.iMonth=1..6",
                                              "--set",
                                              "IA_EnSubsidiary.cInvCode=PMP-01-001",
                                              "--set",
                                              "CostItem=1",
                                              "--language",
                                              language};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return LinesOf(width, arguments);
    }

    // The same of any report.
    std::vector<std::string> LinesOf(int width, std::vector<std::string> arguments)
    {
        RunOptions options;
        options.environment["COLUMNS"] = std::to_string(width);
        arguments.insert(arguments.begin(), "run");
        arguments.insert(arguments.end(), {"--account", DemoAccount(), "--limit", "1000"});
        const Outcome outcome = objProgram.Run(arguments, options);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
        std::vector<std::string> lines;
        std::istringstream out(outcome.out);
        for (std::string line; std::getline(out, line);)
            lines.push_back(line);
        return lines;
    }

    // Each line that holds `text` has a rule above it (-1) or below it (+1), or is the last row.
    static void ExpectSetApart(const std::vector<std::string>& lines, const std::string& text, int direction)
    {
        std::size_t found = 0;
        for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
            if (lines[i].find(text) == std::string::npos)
                continue;
            ++found;
            const std::string& beside = lines[i + static_cast<std::size_t>(direction)];
            EXPECT_TRUE(beside.starts_with(kRule) || beside.ends_with(" rows.")) << lines[i];
        }
        EXPECT_GT(found, 1u) << text;
    }

    Program objProgram;
};

TEST_F(GoodsTable, SetsOpeningAndTotalsApartFromTheLines)
{
    const struct {
        const char *language, *opening, *month, *running;
    } cases[] = {
        {"zh-CN", "期初余额", " 月合计", " 累计"},
        {"en-US", "Opening balance", " (month total)", " Total to date"},
    };
    for (const auto& c : cases) {
        const std::vector<std::string> lines = Lines(160, c.language);
        ASSERT_GT(lines.size(), 8u);
        EXPECT_TRUE(lines[2].starts_with(c.opening)) << lines[2];
        EXPECT_TRUE(lines[3].starts_with(kRule)) << lines[3];
        ExpectSetApart(lines, c.month, -1);
        ExpectSetApart(lines, c.running, +1);
    }
}

// A day that is cut tells nothing, and a ledger without what went is none. What is per unit goes first.
TEST_F(GoodsTable, KeepsDaysCaptionsQuantitiesAndAmountsOnANarrowScreen)
{
    for (const std::string language : {"zh-CN", "en-US"})
        for (const int width : {110, 120, 140, 170}) {
            const std::vector<std::string> lines = Lines(width, language);
            ASSERT_GT(lines.size(), 8u);
            for (const char* column : {"dKeepDate", "cVouCode", "R_Qty", "R_Total_Real", "D_Qty",
                                       "D_Total_Real", "E_Qty", "E_Total_Real"})
                EXPECT_NE(lines[0].find(column), std::string::npos) << width << column;
            for (std::size_t row = 1; row < lines.size(); ++row) {
                EXPECT_EQ(lines[row].find("…"), std::string::npos) << width << ": " << lines[row];
                EXPECT_TRUE(!lines[row].starts_with("2008-") || lines[row].substr(10, 2) == "  ")
                    << width << ": " << lines[row];
            }
        }
}

// On 120 columns names are cut or left out, and not the numbers by which a document is found.
TEST_F(GoodsTable, KeepsDocumentAndItemNumbersOfTheSummariesWhole)
{
    const std::vector<std::string> reports[] = {
        {"goods-summary", "--set", "iYear=2008", "--set", "Ia_Ensubsidiary.cBustype=全部"},
        {"goods-cost-summary", "--set", "IA_EnSubsidiary.iYear=2008", "--set", "CostItem=1"},
        {"goods-template", "--set", "iYear=2008"},
    };
    for (const std::vector<std::string>& report : reports) {
        const std::vector<std::string> lines = LinesOf(120, report);
        ASSERT_GT(lines.size(), 8u);
        for (std::size_t row = 2; row < lines.size(); ++row)
            for (const char* cut : {"FH-…", "FH-0…", "XC-0…", "PMP-…", "PMP-0…", "200…", "2008-…"})
                EXPECT_EQ(lines[row].find(cut), std::string::npos) << report[0] << ": " << lines[row];
        EXPECT_NE(lines[5].find("FH-0"), std::string::npos) << lines[5];
        EXPECT_EQ(lines[5].find("FH-0"), lines[6].find("FH-0")) << report[0];
    }
}

TEST_F(GoodsTable, LeavesNoneOfTheColumnsOutThatTheUserNames)
{
    const std::string heading =
        Lines(100, "en-US", {"--columns", "dKeepDate,cVouchName,R_Total_UnitRealCost,E_Total_UnitRealCost"})
            .at(0);
    for (const char* column : {"dKeepDate", "cVouchName", "R_Total_Unit", "E_Total_Unit"})
        EXPECT_NE(heading.find(column), std::string::npos) << heading;
}

}  // namespace
}  // namespace kavelin::cli
