// The two kinds of picture that the reports are drawn as.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

struct ChartBar {
    std::string label;
    double value = 0;
    std::string shown;  // the value as it stands beside the bar
    std::string_view colour = "#2b6ca3";
};

// Columns of text, as on a terminal, for which a subtitle has room; what is longer is cut.
constexpr int kSubtitleCells = 126;

struct ChartTexts {
    std::string title;
    std::string subtitle;
    std::string value;       // what the bars measure
    std::string items = {};  // what stands along them
};

// One bar a row, in the order given, to the right of zero or to its left.
std::string BarChart(const ChartTexts& texts, const std::vector<ChartBar>& bars);

// A line across the bars, at a value.
struct ChartLimit {
    double value = 0;
    std::string label;
};

struct LegendEntry {
    std::string text;
    std::string_view colour;
};

// Shares of a whole, between 0 and 1, as upright bars in the order given, and the curve of their sum. The
// limits come from the highest down; one that no share can lie on is left out.
std::string ParetoChart(const ChartTexts& texts, const std::vector<ChartBar>& shares,
                        const std::vector<ChartLimit>& limits, const std::vector<LegendEntry>& legend);

}  // namespace kavelin::host
