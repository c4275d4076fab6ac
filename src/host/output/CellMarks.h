// Small pictures in the cells of a table on a terminal that has colours: a class in its colour, a bar of
// blocks behind a number where there is room for it.
//
//   A    0.7000 ████████
//   B    0.2000 ██▎
#pragma once

#include <string>
#include <string_view>

namespace kavelin::host {

enum class MarkKind {
    Class,      // "A", "B" or "C"
    Share,      // a number from 0 upwards, with a bar
    Deviation,  // a number to either side of zero, in a colour, with a bar
};

struct ColumnMark {
    std::string_view column;
    MarkKind kind;
};

constexpr int kBarWidth = 8;  // columns of a bar on the screen

// What switches the terminal to the colour of a cell, by its text or its number; empty for none.
std::string_view CellColour(MarkKind kind, std::string_view text, double number);

// The same of the bar of a number.
std::string_view BarColour(MarkKind kind, double number);

// The bar of a number where `largest` fills it, both without regard to their sign, with blanks up to its
// width.
// Whatever isn't 0 shows at least the narrowest block.
std::string Bar(double number, double largest);

}  // namespace kavelin::host
