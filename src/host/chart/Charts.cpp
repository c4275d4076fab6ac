#include "host/chart/Charts.h"

#include "host/chart/Svg.h"
#include "host/output/DisplayWidth.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavelin::host {

namespace {

constexpr int kWidth = 960;
constexpr int kMargin = 24;
constexpr int kHead = 84;  // title and subtitle
constexpr std::string_view kGrid = "#dddddd";
constexpr std::string_view kFaint = "#777777";
constexpr std::string_view kCurve = "#c0392b";

void DrawHead(Svg& svg, const ChartTexts& texts)
{
    svg.Text(kMargin, 34, texts.title, {.size = 20, .bold = true});
    svg.Text(kMargin, 58, CutToWidth(texts.subtitle, kSubtitleCells), {.colour = kFaint});
}

// The step between lines of the grid: 1, 2 or 5 times a power of ten, for about six lines.
double GridStep(double range)
{
    const double raw = range / 6;
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (raw <= factor * power)
            return factor * power;
    return 10 * power;
}

std::string Percent(double share)
{
    return fmt::format("{:g}%", std::round(share * 1000) / 10);
}

// How the names of upright bars stand below them.
enum class BarNames { None, Across, Turned };

BarNames NamesBelow(const std::vector<ChartBar>& bars, double slot)
{
    constexpr std::size_t kMost = 24;
    constexpr double kCell = 6.5;
    if (bars.size() > kMost)
        return BarNames::None;
    for (const ChartBar& bar : bars)
        if (DisplayWidth(bar.label) * kCell > slot)
            return BarNames::Turned;
    return BarNames::Across;
}

}  // namespace

std::string BarChart(const ChartTexts& texts, const std::vector<ChartBar>& bars)
{
    constexpr int kLabelCells = 44;
    constexpr int kLabels = 300;
    constexpr int kShown = 110;  // room for the values beside the bars
    constexpr int kRow = 24;
    const int height = kHead + kRow * static_cast<int>(bars.size()) + 44;
    Svg svg(kWidth, height, texts.title);
    DrawHead(svg, texts);

    double low = 0;
    double high = 0;
    for (const ChartBar& bar : bars) {
        low = std::min(low, bar.value);
        high = std::max(high, bar.value);
    }
    if (low == high)
        high = 1;
    const double left = kMargin + kLabels + (low < 0 ? kShown : 0);
    const double right = kWidth - kMargin - kShown;
    const auto at = [&](double value) { return left + (value - low) / (high - low) * (right - left); };

    const double bottom = kHead + kRow * static_cast<double>(bars.size());
    const double step = GridStep(high - low);
    for (double line = std::ceil(low / step) * step; line <= high + step / 1000; line += step) {
        svg.Line(at(line), kHead - 6, at(line), bottom, kGrid);
        svg.Text(at(line), bottom + 18, fmt::format("{:.12g}", std::round(line / step) * step),
                 {.size = 11, .colour = kFaint, .anchor = TextAnchor::Middle});
    }
    svg.Text(right, bottom + 36, texts.value, {.size = 11, .colour = kFaint, .anchor = TextAnchor::End});

    double y = kHead;
    for (const ChartBar& bar : bars) {
        const double from = std::min(at(0), at(bar.value));
        const double length = std::abs(at(bar.value) - at(0));
        svg.Rectangle(from, y + 3, std::max(length, 0.5), kRow - 8, bar.colour, bar.label + ": " + bar.shown);
        svg.Text(kMargin + kLabels - 10, y + 15, CutToWidth(bar.label, kLabelCells),
                 {.size = 12, .anchor = TextAnchor::End});
        if (bar.value < 0)
            svg.Text(from - 6, y + 15, bar.shown, {.size = 12, .anchor = TextAnchor::End, .halo = true});
        else
            svg.Text(from + length + 6, y + 15, bar.shown, {.size = 12, .halo = true});
        y += kRow;
    }
    svg.Line(at(0), kHead - 6, at(0), bottom, kFaint);
    return svg.Document();
}

std::string ParetoChart(const ChartTexts& texts, const std::vector<ChartBar>& shares,
                        const std::vector<ChartLimit>& limits, const std::vector<LegendEntry>& legend)
{
    constexpr double kLeft = 76;
    constexpr double kRight = kWidth - 130;
    constexpr double kTop = kHead + 8;
    constexpr double kBottom = 464;
    constexpr int kTurnedCells = 18;
    const double slot = (kRight - kLeft) / static_cast<double>(std::max<std::size_t>(shares.size(), 1));
    const BarNames names = NamesBelow(shares, slot);
    const int height = names == BarNames::Turned ? 628 : 560;
    Svg svg(kWidth, height, texts.title);
    DrawHead(svg, texts);
    const auto at = [&](double share) { return kBottom - share * (kBottom - kTop); };

    for (int tenth = 0; tenth <= 10; tenth += 2) {
        svg.Line(kLeft, at(tenth / 10.0), kRight, at(tenth / 10.0), kGrid);
        svg.Text(kLeft - 8, at(tenth / 10.0) + 4, Percent(tenth / 10.0),
                 {.size = 11, .colour = kFaint, .anchor = TextAnchor::End});
    }
    svg.Text(kLeft - 8, kTop - 14, texts.value, {.size = 11, .colour = kFaint});

    const double gap = slot > 6 ? 2 : 0;
    std::vector<std::pair<double, double>> curve = {{kLeft, kBottom}};
    double sum = 0;
    double x = kLeft;
    for (const ChartBar& share : shares) {
        const double length = std::max(0.0, share.value) * (kBottom - kTop);
        svg.Rectangle(x, kBottom - length, std::max(slot - gap, 0.5), length, share.colour,
                      share.label + ": " + share.shown);
        if (names == BarNames::Across)
            svg.Text(x + slot / 2, kBottom + 16, share.label,
                     {.size = 10, .colour = kFaint, .anchor = TextAnchor::Middle});
        else if (names == BarNames::Turned)
            svg.Text(x + slot / 2 + 4, kBottom + 14, CutToWidth(share.label, kTurnedCells),
                     {.size = 10, .colour = kFaint, .anchor = TextAnchor::End, .turn = -40});
        sum += std::max(0.0, share.value);
        x += slot;
        curve.emplace_back(x, at(std::min(sum, 1.0)));
    }
    double below = 0;  // the label before
    for (const ChartLimit& limit : limits) {
        if (limit.value < 0 || limit.value > 1)
            continue;
        const double label = std::max(at(limit.value) + 4, below);
        svg.Line(kLeft, at(limit.value), kRight, at(limit.value), kFaint, true);
        svg.Text(kRight + 6, label, limit.label, {.size = 12});
        below = label + 15;
    }
    svg.Curve(curve, kCurve);
    svg.Text(kRight, height - 62, texts.items, {.size = 11, .colour = kFaint, .anchor = TextAnchor::End});
    svg.Line(kLeft, kBottom, kRight, kBottom, kFaint);

    double left = kLeft;
    for (const LegendEntry& entry : legend) {
        svg.Rectangle(left, height - 44, 14, 14, entry.colour);
        svg.Text(left + 20, height - 32, entry.text, {.size = 12});
        left += 44 + 7.0 * DisplayWidth(entry.text);
    }
    return svg.Document();
}

}  // namespace kavelin::host
