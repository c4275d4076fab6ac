#include "host/output/CellMarks.h"

#include <algorithm>
#include <cmath>

namespace kavelin::host {

namespace {

constexpr int kParts = 8;  // of a block
constexpr std::string_view kBlocks[] = {"", "▏", "▎", "▍", "▌", "▋", "▊", "▉", "█"};

constexpr std::string_view kBlue = "\x1b[94m";
constexpr std::string_view kYellow = "\x1b[33m";
constexpr std::string_view kGrey = "\x1b[90m";
constexpr std::string_view kRed = "\x1b[31m";
constexpr std::string_view kGreen = "\x1b[32m";

}  // namespace

std::string_view CellColour(MarkKind kind, std::string_view text, double number)
{
    if (kind == MarkKind::Class)
        return text == "A" ? kBlue : text == "B" ? kYellow : text == "C" ? kGrey : "";
    return kind == MarkKind::Deviation && number != 0 ? BarColour(kind, number) : "";
}

std::string_view BarColour(MarkKind kind, double number)
{
    if (kind == MarkKind::Deviation)
        return number < 0 ? kGreen : kRed;
    return kBlue;
}

std::string Bar(double number, double largest)
{
    int parts = 0;
    if (number != 0 && largest != 0)
        parts = static_cast<int>(std::lround(std::abs(number / largest) * kBarWidth * kParts));
    if (number != 0)
        parts = std::clamp(parts, 1, kBarWidth * kParts);
    std::string bar;
    int width = 0;
    for (; parts > 0; parts -= kParts, ++width)
        bar += kBlocks[std::min(parts, kParts)];
    return bar + std::string(static_cast<std::size_t>(kBarWidth - width), ' ');
}

}  // namespace kavelin::host
