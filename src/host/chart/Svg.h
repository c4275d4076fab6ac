// A picture as SVG, written shape by shape. Lengths are in pixels, y grows downwards.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::host {

enum class TextAnchor { Start, Middle, End };

struct TextStyle {
    int size = 13;
    std::string_view colour = "#333333";
    TextAnchor anchor = TextAnchor::Start;
    bool bold = false;
    bool halo = false;  // white around the letters, so that lines behind them don't disturb
    int turn = 0;       // degrees around the anchor, clockwise
};

class Svg {
  public:
    // `title` names the picture for readers who cannot see it.
    Svg(int width, int height, std::string_view title);

    // `hint` is shown where the pointer rests; empty for none.
    void Rectangle(double x, double y, double width, double height, std::string_view colour,
                   std::string_view hint = {});
    void Line(double x1, double y1, double x2, double y2, std::string_view colour, bool dashed = false);
    void Curve(const std::vector<std::pair<double, double>>& points, std::string_view colour);
    void Text(double x, double y, std::string_view text, const TextStyle& style = {});

    // The whole document.
    std::string Document() const;

  private:
    std::string strBody;
    int intWidth;
    int intHeight;
    std::string strTitle;
};

}  // namespace kavelin::host
