// Reports as pictures.
#include "host/chart/ReportChart.h"

#include "frame/Errors.h"
#include "host/chart/Charts.h"
#include "host/output/FixedRows.h"

#include <gtest/gtest.h>

namespace kavelin::host {

namespace {

const Report& ReportNamed(std::string_view name)
{
    for (const Report& report : AllReports())
        if (report.name == name)
            return report;
    throw Error("no such report");
}

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// Where the bar of a label begins and how long it is, in pixels.
std::string BarOf(const std::string& svg, const std::string& label)
{
    const std::size_t hint = svg.find("<title>" + label);
    if (hint == std::string::npos)
        return "no bar";
    const std::size_t start = svg.rfind("<rect", hint);
    const auto attribute = [&](const std::string& name) {
        const std::size_t at = svg.find(" " + name + "=\"", start) + name.size() + 3;
        return svg.substr(at, svg.find('"', at) - at);
    };
    return attribute("x") + " " + attribute("width");
}

Value Null()
{
    return Value::Null();
}

FixedRows Shares(std::vector<std::vector<Value>> rows)
{
    return FixedRows({{"cNo", "int"},
                      {"cinvcode", "nvarchar(60)"},
                      {"cInvName", "nvarchar(255)"},
                      {"所占比重", "decimal(38,2)"}},
                     std::move(rows));
}

FixedRows Deviations(std::vector<std::vector<Value>> rows)
{
    return FixedRows({{"cInvCode", "nvarchar(60)"},
                      {"cInvName", "nvarchar(255)"},
                      {"cVouCode", "nvarchar(60)"},
                      {"cBatchia", "nvarchar(60)"},
                      {"Price", "decimal(38,6)"},
                      {"DiffRatio", "decimal(38,2)"}},
                     std::move(rows));
}

}  // namespace

TEST(ReportChart, IsThereOfTheFourAnalyses)
{
    std::string drawn;
    for (const Report& report : AllReports())
        if (HasChart(report))
            drawn += std::string(report.name) + " ";
    EXPECT_EQ(drawn, "price-analysis turnover abc capital-share ");
    FixedRows rows = Shares({});
    EXPECT_THROW(DrawChart(ReportNamed("journal"), rows, {}), Error);
}

TEST(DrawChart, SaysThatThereAreNoRows)
{
    FixedRows rows = Shares({});
    const std::string svg =
        DrawChart(ReportNamed("capital-share"), rows, {.language = "en-US", .subtitle = "Demo"});
    EXPECT_NE(svg.find(">Demo  ·  no rows to draw</text>"), std::string::npos) << svg;
}

TEST(ReportChart, DrawsABarOfTheLengthOfItsValue)
{
    FixedRows rows = Shares({{1, "A", "钢板", Dec("60.00")},
                             {2, "B", "铜线", Dec("30.00")},
                             {3, "C", Value::Null(), Dec("10.00")}});
    const std::string svg =
        DrawChart(ReportNamed("capital-share"), rows, {.language = "zh-CN", .subtitle = "示例公司"});
    EXPECT_EQ(BarOf(svg, "A 钢板: 60.00%"), "324.0 502.0");
    EXPECT_EQ(BarOf(svg, "B 铜线: 30.00%"), "324.0 251.0");
    EXPECT_EQ(BarOf(svg, "C: 10.00%"), "324.0 83.7");
    EXPECT_NE(svg.find(">存货资金占用</text>"), std::string::npos);
    EXPECT_NE(svg.find(">示例公司</text>"), std::string::npos);
}

TEST(ReportChart, SpeaksEnglish)
{
    FixedRows rows = Shares({{1, "A", "Plate", Dec("60.00")}});
    const std::string svg =
        DrawChart(ReportNamed("capital-share"), rows, {.language = "en-US", .subtitle = ""});
    EXPECT_NE(svg.find(">Capital tied up in stock</text>"), std::string::npos);
    EXPECT_NE(svg.find(">Share of the total (%)</text>"), std::string::npos);
}

TEST(ReportChart, DrawsTheLargestAndTellsHowManyThereAre)
{
    std::vector<std::vector<Value>> rows;
    for (int i = 1; i <= 40; ++i)
        rows.push_back({i, "item" + std::to_string(i), Value::Null(), Value(i)});
    FixedRows set = Shares(rows);
    const std::string svg =
        DrawChart(ReportNamed("capital-share"), set, {.language = "en-US", .subtitle = "Demo"});
    EXPECT_EQ(BarOf(svg, "item15: "), "no bar");
    EXPECT_NE(BarOf(svg, "item16: "), "no bar");
    EXPECT_LT(svg.find("<title>item40"), svg.find("<title>item39"));
    EXPECT_NE(svg.find(">Demo  ·  25 of 40 rows</text>"), std::string::npos);
}

TEST(ReportChart, DrawsDeviationsToBothSidesOfZero)
{
    FixedRows rows = Deviations({{"A", "", "R1", "P", Dec("1.50"), Dec("50.00")},
                                 {"B", "", "R2", "", Dec("0.00001"), Dec("-100.00")},
                                 {"C", "", "", "P", Dec("1.00"), Dec("0.00")}});
    const std::string svg =
        DrawChart(ReportNamed("price-analysis"), rows, {.language = "en-US", .subtitle = ""});
    EXPECT_EQ(BarOf(svg, "B R2: -100.00%"), "434.0 261.3");
    EXPECT_EQ(BarOf(svg, "A R1: 50.00%"), "695.3 130.7");
    EXPECT_EQ(BarOf(svg, "C P: 0.00%"), "695.3 0.5") << "a row of the summary has no document";
    EXPECT_LT(svg.find("<title>B R2"), svg.find("<title>A R1"));
    EXPECT_EQ(svg.find("without a price"), std::string::npos);
}

// Those of an adjustment, or of a balance without a quantity: all -100 %, and more than a picture holds.
TEST(ReportChart, TellsRowsWithoutAPriceAndDrawsTheOthers)
{
    FixedRows rows = Deviations({{"A", "", "R1", "", Dec("1.50"), Dec("50.00")},
                                 {"B", "", "R2", "", Null(), Dec("-100.00")},
                                 {"C", "", "", "", Dec("0.000000"), Dec("-100.00")}});
    const std::string svg =
        DrawChart(ReportNamed("price-analysis"), rows, {.language = "en-US", .subtitle = "Month 2008.07"});
    EXPECT_NE(BarOf(svg, "A R1: 50.00%"), "no bar");
    EXPECT_EQ(BarOf(svg, "B R2"), "no bar");
    EXPECT_EQ(BarOf(svg, "C"), "no bar");
    EXPECT_NE(svg.find(">Month 2008.07  ·  2 without a price</text>"), std::string::npos) << svg;
}

TEST(ReportChart, NamesATurnoverByWhatItIsGroupedBy)
{
    FixedRows rows({{"部门_编码", "nvarchar(20)"},
                    {"部门_名称", "nvarchar(60)"},
                    {"仓库_编码", "nvarchar(10)"},
                    {"仓库_名称", "nvarchar(60)"},
                    {"存货_分类", "nvarchar(24)"},
                    {"存货_编码", "nvarchar(60)"},
                    {"存货_名称", "nvarchar(255)"},
                    {"分析_周转率", "decimal(38,6)"}},
                   {{Null(), Null(), "01", "原料库", "01", "A", "钢板", Dec("2.500000")},
                    {Null(), Null(), "02", "成品库", "02", Null(), Null(), Dec("1.000000")},
                    {"0301", Null(), "09", Null(), "03", "B", "铜线", Dec("0.500000")},
                    {Null(), Null(), Null(), Null(), Null(), Null(), Null(), Dec("0.250000")}});
    const std::string svg = DrawChart(ReportNamed("turnover"), rows, {.language = "zh-CN", .subtitle = ""});
    EXPECT_NE(BarOf(svg, "原料库 A 钢板: 2.50"), "no bar");
    EXPECT_NE(BarOf(svg, "成品库 02: 1.00"), "no bar");
    EXPECT_NE(BarOf(svg, "0301 09 B 铜线: 0.50"), "no bar") << "codes without a name";
    EXPECT_NE(BarOf(svg, "—: 0.25"), "no bar") << "nothing is grouped";
}

TEST(ReportChart, TakesTheLimitsThatTheUserSet)
{
    class Settings : public SettingsStore {
      public:
        std::string Read(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& byDefault) override
        {
            EXPECT_EQ(application + ", " + section, "存货核算, ABCOption872");
            return key == "M2" ? strA : byDefault;
        }
        void Write(const std::string&, const std::string&, const std::string&, const std::string&) override {}
        std::string strA = "62.5";
    };
    ChartContext context;
    Settings settings;
    context.TakeLimits(settings);
    EXPECT_EQ(context.limitA, 0.625);
    EXPECT_EQ(context.limitB, 0.1);
    settings.strA = "0";
    context.TakeLimits(settings);
    EXPECT_EQ(context.limitA, 0) << "is a limit too";
}

TEST(ReportChart, DrawsSharesOfMoneyWithTheLimitsOfTheClasses)
{
    FixedRows rows(
        {{"存货_编码", "nvarchar(60)"}, {"分析_金额比例", "decimal(32,4)"}, {"分析_ABC类别", "nvarchar(10)"}},
        {{"small", Dec("0.1000"), "C"}, {"large", Dec("0.7000"), "A"}, {"middle", Dec("0.2000"), "B"}});
    const std::string svg =
        DrawChart(ReportNamed("abc"), rows, {.language = "en-US", .subtitle = "", .limitA = 0.65});
    EXPECT_LT(svg.find("<title>large: 70.00%"), svg.find("<title>middle: 20.00%"));
    EXPECT_LT(svg.find("<title>middle: 20.00%"), svg.find("<title>small: 10.00%"));
    EXPECT_NE(svg.find(">A ≥ 65%</text>"), std::string::npos);
    EXPECT_NE(svg.find(">B ≥ 10%</text>"), std::string::npos);
    EXPECT_NE(svg.find(">3 items, the largest amounts first</text>"), std::string::npos);
    for (const char* entry : {">Class A<", ">Class B<", ">Class C<", ">Running total<"})
        EXPECT_NE(svg.find(entry), std::string::npos) << entry;
}

// 1/3 and 2/3 of the way across, at 70 % and 90 %, then the end at 100 %.
TEST(ParetoChart, AddsUpItsSharesInACurve)
{
    const std::string svg =
        ParetoChart({"t", "", ""}, {{"a", 0.7, ""}, {"b", 0.2, ""}, {"c", 0.1, ""}}, {}, {});
    EXPECT_NE(svg.find("points=\"76.0,464.0 327.3,203.6 578.7,129.2 830.0,92.0\""), std::string::npos) << svg;
}

// The labels of 4 % and 1.5 % would lie on each other: the lower one stands 15 pixels further down.
TEST(ParetoChart, KeepsTheLabelsOfItsLimitsApart)
{
    const std::string svg = ParetoChart({"t", "", ""}, {}, {{0.04, "A"}, {0.015, "B"}}, {});
    EXPECT_NE(svg.find("y=\"453.1\" font-size=\"12\" fill=\"#333333\" text-anchor=\"start\">A<"), svg.npos)
        << svg;
    EXPECT_NE(svg.find("y=\"468.1\" font-size=\"12\" fill=\"#333333\" text-anchor=\"start\">B<"), svg.npos)
        << svg;
}

TEST(ParetoChart, LeavesOutALimitThatNoShareCanLieOn)
{
    const std::string svg = ParetoChart({"t", "", ""}, {}, {{1, "top"}, {0, "bottom"}, {-0.05, "below"}}, {});
    EXPECT_EQ(Count(svg, "stroke-dasharray"), 2u);
    EXPECT_EQ(svg.find(">below<"), svg.npos);
}

// Twelve bars have 62 pixels each; a code that is cut there could be that of its neighbour.
TEST(ParetoChart, TurnsNamesThatDoNotFitBelowTheirBars)
{
    std::vector<ChartBar> shares(12, {"STL-02-001", 0.05, ""});
    std::string svg = ParetoChart({"t", "", ""}, shares, {}, {});
    EXPECT_EQ(Count(svg, " transform=\"rotate(-40 "), 12u);
    EXPECT_EQ(Count(svg, ">STL-02-001</text>"), 12u);
    shares.resize(11);
    svg = ParetoChart({"t", "", ""}, shares, {}, {});
    EXPECT_EQ(Count(svg, "rotate("), 0u);
    EXPECT_EQ(Count(svg, ">STL-02-001</text>"), 11u);
}

TEST(ParetoChart, NamesNoMoreBarsThanCanBeRead)
{
    const std::string svg = ParetoChart({"t", "", ""}, std::vector<ChartBar>(25, {"A", 0.04, ""}), {}, {});
    EXPECT_EQ(svg.find(">A</text>"), svg.npos);
}

TEST(BarChart, KeepsALongSubtitleAndTheCountBehindItInThePicture)
{
    std::vector<std::vector<Value>> items;
    for (int i = 1; i <= 30; ++i)
        items.push_back({i, "A", "B", Value(i)});
    FixedRows rows = Shares(items);
    std::string subject;
    for (int i = 0; i < 60; ++i)
        subject += "仓库 ";
    const std::string svg =
        DrawChart(ReportNamed("capital-share"), rows, {.language = "en-US", .subtitle = subject});
    EXPECT_EQ(svg.find(subject), svg.npos);
    EXPECT_NE(svg.find("…  ·  25 of 30 rows</text>"), svg.npos) << svg;
}

TEST(BarChart, OfNothingIsAnEmptyPicture)
{
    const std::string svg = BarChart({"Title", "", ""}, {});
    EXPECT_EQ(Count(svg, "<rect"), 1u);
    EXPECT_NE(svg.find(">Title</text>"), std::string::npos);
}

TEST(Svg, EscapesWhatATextHolds)
{
    FixedRows rows = Shares({{1, "<A&\"B\">\x01", "x", Dec("60.00")}});
    const std::string svg = DrawChart(ReportNamed("capital-share"), rows, {});
    EXPECT_NE(svg.find("&lt;A&amp;&quot;B&quot;&gt;\xEF\xBF\xBD x"), std::string::npos) << svg;
}

}  // namespace kavelin::host
