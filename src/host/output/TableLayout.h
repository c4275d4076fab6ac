// How wide each column of a table may be.
#pragma once

#include <vector>

namespace kavelin::host {

constexpr int kColumnGap = 2;    // blanks between two columns
constexpr int kLeastColumn = 6;  // a text that is cut keeps as much, and so does a heading

// What a column asks for, in columns of the screen.
constexpr int kName = 1;  // of something that a column before it identifies

struct ColumnNeed {
    int heading = 0;
    int content = 0;      // its widest cell
    bool number = false;  // numbers are never cut, only their heading is
    bool whole = false;   // no cell is cut either
    // Of what is shown only where there is room: kName gives way where the others would not fit, anything above
    // where a cell would have to be cut, the highest rank first.
    int rank = 0;
};

// A width for each column so that all of them with their gaps fit into `width`; 0 for no bound. A column that is
// left out gets 0. Those with a rank above kName go first, all of one rank together; then headings of texts give
// way, then the widest columns. Where even the least widths are too much, names are left out from the left, then
// columns from the middle outwards, but never the first: what a row is about stands left, what it comes to stands
// right.
std::vector<int> FitColumns(const std::vector<ColumnNeed>& needs, int width);

}  // namespace kavelin::host
