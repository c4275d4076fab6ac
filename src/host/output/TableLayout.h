// How wide each column of a table may be.
#pragma once

#include <vector>

namespace kavelin::host {

constexpr int kColumnGap = 2;    // blanks between two columns
constexpr int kLeastColumn = 6;  // a text that is cut keeps as much, and so does a heading

// What a column asks for, in columns of the screen.
struct ColumnNeed {
    int heading = 0;
    int content = 0;      // its widest cell
    bool number = false;  // numbers are never cut, only their heading is
};

// A width for each column so that all of them with their gaps fit into `width`; 0 for no bound. Headings
// of texts give way first, then the widest columns. Where even the least widths are too much, columns are left out and
// get 0, from the middle outwards, but never the first: what a row is about stands left, what it comes to
// stands right.
std::vector<int> FitColumns(const std::vector<ColumnNeed>& needs, int width);

}  // namespace kavelin::host
