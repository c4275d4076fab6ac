#include "host/chart/Svg.h"

#include "host/output/DisplayWidth.h"

#include <fmt/format.h>

namespace kavelin::host {

namespace {

// What stands in XML for any text: its marks escaped, nothing that a document must not hold.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char character : Printable(text)) {
        switch (character) {
            case '&': escaped += "&amp;"; break;
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            case '"': escaped += "&quot;"; break;
            default: escaped += character;
        }
    }
    return escaped;
}

std::string_view AnchorName(TextAnchor anchor)
{
    switch (anchor) {
        case TextAnchor::Middle: return "middle";
        case TextAnchor::End: return "end";
        default: return "start";
    }
}

}  // namespace

Svg::Svg(int width, int height, std::string_view title) : intWidth(width), intHeight(height), strTitle(title)
{
}

void Svg::Rectangle(double x, double y, double width, double height, std::string_view colour,
                    std::string_view hint)
{
    strBody += fmt::format(R"(  <rect x="{:.1f}" y="{:.1f}" width="{:.1f}" height="{:.1f}" fill="{}")", x, y,
                           width, height, colour);
    strBody += hint.empty() ? "/>\n" : "><title>" + Escaped(hint) + "</title></rect>\n";
}

void Svg::Line(double x1, double y1, double x2, double y2, std::string_view colour, bool dashed)
{
    strBody += fmt::format(R"(  <line x1="{:.1f}" y1="{:.1f}" x2="{:.1f}" y2="{:.1f}" stroke="{}"{}/>)", x1,
                           y1, x2, y2, colour, dashed ? R"( stroke-dasharray="5 4")" : "");
    strBody += '\n';
}

void Svg::Curve(const std::vector<std::pair<double, double>>& points, std::string_view colour)
{
    std::string list;
    for (const auto& [x, y] : points)
        list += fmt::format("{}{:.1f},{:.1f}", list.empty() ? "" : " ", x, y);
    strBody +=
        fmt::format(R"(  <polyline points="{}" fill="none" stroke="{}" stroke-width="2"/>)", list, colour);
    strBody += '\n';
}

void Svg::Text(double x, double y, std::string_view text, const TextStyle& style)
{
    const std::string turn =
        style.turn == 0 ? "" : fmt::format(R"-( transform="rotate({} {:.1f} {:.1f})")-", style.turn, x, y);
    strBody += fmt::format(
        R"(  <text x="{:.1f}" y="{:.1f}" font-size="{}" fill="{}" text-anchor="{}"{}{}{}>{}</text>)", x, y,
        style.size, style.colour, AnchorName(style.anchor), style.bold ? R"( font-weight="bold")" : "",
        style.halo ? R"( stroke="#ffffff" stroke-width="3" paint-order="stroke")" : "", turn, Escaped(text));
    strBody += '\n';
}

std::string Svg::Document() const
{
    return fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="{0}" height="{1}" viewBox="0 0 {0} {1}" role="img"
     font-family="'Noto Sans', 'Noto Sans CJK SC', 'Microsoft YaHei', 'WenQuanYi Micro Hei', sans-serif">
  <title>{2}</title>
  <rect width="{0}" height="{1}" fill="#ffffff"/>
{3}</svg>
)",
                       intWidth, intHeight, Escaped(strTitle), strBody);
}

}  // namespace kavelin::host
