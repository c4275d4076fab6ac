#include "host/chart/ReportChart.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/LocalText.h"
#include "host/chart/Charts.h"
#include "host/output/DisplayWidth.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace kavelin::host {

namespace {

constexpr std::size_t kMostBars = 25;

constexpr std::string_view kColourA = "#2b6ca3";
constexpr std::string_view kColourB = "#e0a030";
constexpr std::string_view kColourC = "#9aa5b1";
constexpr std::string_view kAbove = "#c0392b";
constexpr std::string_view kBelow = "#2e8b57";

enum class ChartOrder { Largest, FurthestFromZero };

// A report's bars: which column is measured, and which name its rows.
struct BarDefinition {
    std::string_view report;
    std::string_view value;
    std::vector<std::string_view> labels;  // "A|B": the first that holds something
    std::string_view unit;
    ChartOrder order;
    LocalText title;
    LocalText measure;
    std::string_view compared = {};  // without it there is nothing to draw of a row
};

const std::vector<BarDefinition>& BarDefinitions()
{
    static const std::vector<BarDefinition> definitions = {
        {"capital-share",
         "所占比重",
         {"cinvcode", "cInvName"},
         "%",
         ChartOrder::Largest,
         {"存货资金占用", "Capital tied up in stock"},
         {"所占比重（%）", "Share of the total (%)"}},
        {"turnover",
         "分析_周转率",
         {"部门_名称|部门_编码", "仓库_名称|仓库_编码", "存货_编码|存货_分类", "存货_名称"},
         "",
         ChartOrder::Largest,
         {"存货周转率", "Inventory turnover"},
         {"周转率（次）", "Turnover rate (times)"}},
        {"price-analysis",
         "DiffRatio",
         {"cInvCode", "cInvName", "cVouCode|cBatchia"},
         "%",
         ChartOrder::FurthestFromZero,
         {"存货价格差异", "Deviation of prices from the base price"},
         {"差异率（%）", "Deviation (%)"},
         "Price"},
    };
    return definitions;
}

const BarDefinition* FindBars(const Report& report)
{
    for (const BarDefinition& definition : BarDefinitions())
        if (definition.report == report.name)
            return &definition;
    return nullptr;
}

bool IsAbc(const Report& report)
{
    return report.name == "abc";
}

double NumberIn(const Recordset& rows, std::string_view column)
{
    const Value value = rows.Field(column);
    return value.IsNull() ? 0 : ToDouble(value);
}

// The first of the columns "A|B" that holds something.
std::string FirstText(const Recordset& rows, std::string_view columns)
{
    for (const std::string& column : Split(columns, "|"))
        if (const Value value = rows.Field(column); !value.IsNull() && !ToText(value).empty())
            return ToText(value);
    return "";
}

std::string LabelIn(const Recordset& rows, const std::vector<std::string_view>& columns)
{
    std::string label;
    for (const std::string_view column : columns)
        if (const std::string text = FirstText(rows, column); !text.empty())
            label += (label.empty() ? "" : " ") + text;
    return label.empty() ? "—" : label;
}

// The rows that are drawn, and how many there were of those that can be and of those that can't.
struct Drawn {
    std::vector<ChartBar> bars;
    std::size_t count = 0;
    std::size_t withoutPrice = 0;
};

// Keeps no more rows than are drawn, whatever their number.
Drawn ReadBars(const BarDefinition& definition, Recordset& rows)
{
    const auto before = [&](const ChartBar& a, const ChartBar& b) {
        return definition.order == ChartOrder::Largest ? a.value > b.value
                                                       : std::abs(a.value) > std::abs(b.value);
    };
    Drawn drawn;
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!definition.compared.empty() && NumberIn(rows, definition.compared) == 0) {
            ++drawn.withoutPrice;
            continue;
        }
        ++drawn.count;
        ChartBar bar;
        bar.value = NumberIn(rows, definition.value);
        if (drawn.bars.size() == kMostBars && !before(bar, drawn.bars.back()))
            continue;
        bar.label = LabelIn(rows, definition.labels);
        bar.shown = fmt::format("{:.2f}{}", bar.value, definition.unit);
        if (definition.order == ChartOrder::FurthestFromZero)
            bar.colour = bar.value < 0 ? kBelow : kAbove;
        drawn.bars.insert(std::upper_bound(drawn.bars.begin(), drawn.bars.end(), bar, before),
                          std::move(bar));
        if (drawn.bars.size() > kMostBars)
            drawn.bars.pop_back();
    }
    return drawn;
}

std::string Subtitle(const ChartContext& context, const Drawn& drawn)
{
    constexpr std::string_view kBetween = "  ·  ";
    std::string counts;
    const auto add = [&](const LocalText& part) {
        counts += std::string(kBetween) + part.In(context.language);
    };
    if (drawn.count == 0)
        add({"没有可画的行", "no rows to draw"});
    else if (const std::size_t shown = drawn.bars.size(); shown != drawn.count)
        add({fmt::format("{} 行中的前 {} 行", drawn.count, shown),
             fmt::format("{} of {} rows", shown, drawn.count)});
    if (drawn.withoutPrice != 0)
        add({fmt::format("{} 行没有单价", drawn.withoutPrice),
             fmt::format("{} without a price", drawn.withoutPrice)});
    if (context.subtitle.empty() && !counts.empty())
        return counts.substr(kBetween.size());
    return CutToWidth(context.subtitle, kSubtitleCells - DisplayWidth(counts)) + counts;
}

std::string_view ClassColour(std::string_view abcClass)
{
    return abcClass == "A" ? kColourA : abcClass == "B" ? kColourB : kColourC;
}

std::string DrawAbc(Recordset& rows, const ChartContext& context)
{
    std::vector<ChartBar> shares;
    for (; !rows.Eof(); rows.MoveNext()) {
        ChartBar share;
        share.label = LabelIn(rows, {"存货_编码"});
        share.value = NumberIn(rows, "分析_金额比例");
        share.shown = fmt::format("{:.2f}%", share.value * 100);
        share.colour = ClassColour(ToText(rows.Field("分析_ABC类别")));
        shares.push_back(std::move(share));
    }
    std::stable_sort(shares.begin(), shares.end(),
                     [](const ChartBar& a, const ChartBar& b) { return a.value > b.value; });

    const LocalText title = {"ABC 成本分析", "ABC cost analysis"};
    const LocalText money = {"占总金额", "Share of money"};
    const LocalText curve = {"累计", "Running total"};
    const std::string_view language = context.language;
    const auto className = [&](std::string_view name) {
        return LocalText{std::string(name) + " 类", "Class " + std::string(name)}.In(language);
    };
    const auto limit = [](std::string_view name, double value) {
        return ChartLimit{value, fmt::format("{} ≥ {:g}%", name, value * 100)};
    };
    const LocalText items = {fmt::format("{} 种存货，按金额从大到小", shares.size()),
                             fmt::format("{} items, the largest amounts first", shares.size())};
    return ParetoChart({title.In(language), context.subtitle, money.In(language), items.In(language)}, shares,
                       {limit("A", context.limitA), limit("B", context.limitB)},
                       {{className("A"), kColourA},
                        {className("B"), kColourB},
                        {className("C"), kColourC},
                        {curve.In(language), kAbove}});
}

// A share that the user set in per cent; `byDefault` where he set none.
double LimitIn(SettingsStore& settings, const std::string& key, double byDefault)
{
    const std::string percent = settings.Read("存货核算", "ABCOption872", key, "");
    return percent.empty() ? byDefault : LeadingNumber(percent) / 100;
}

}  // namespace

void ChartContext::TakeLimits(SettingsStore& settings)
{
    limitA = LimitIn(settings, "M2", limitA);
    limitB = LimitIn(settings, "M3", limitB);
}

bool HasChart(const Report& report)
{
    return IsAbc(report) || FindBars(report);
}

std::string DrawChart(const Report& report, Recordset& rows, const ChartContext& context)
{
    if (IsAbc(report))
        return DrawAbc(rows, context);
    const BarDefinition* definition = FindBars(report);
    if (!definition)
        throw Error("There is no picture of " + std::string(report.name) + ".");
    const Drawn drawn = ReadBars(*definition, rows);
    return BarChart({definition->title.In(context.language), Subtitle(context, drawn),
                     definition->measure.In(context.language)},
                    drawn.bars);
}

}  // namespace kavelin::host
