#include "host/output/TableLayout.h"

#include <algorithm>
#include <cstddef>

namespace kavelin::host {

namespace {

int Natural(const ColumnNeed& need)
{
    return std::max({need.heading, need.content, 1});
}

int Least(const ColumnNeed& need)
{
    const int least = std::min(kLeastColumn, Natural(need));
    return need.number || need.whole ? std::max(need.content, least) : least;
}

// Wide enough for every cell, if not for the heading of a text.
int WithCutHeading(const ColumnNeed& need)
{
    return need.number ? Natural(need) : std::max(need.content, Least(need));
}

// Columns that are left out take no gap either.
int TotalWidth(const std::vector<int>& widths)
{
    int total = -kColumnGap;
    for (const int width : widths)
        if (width > 0)
            total += width + kColumnGap;
    return total;
}

// Takes the first name away. Gives whether there was one.
bool LeaveOutName(std::vector<int>& widths, const std::vector<ColumnNeed>& needs)
{
    for (std::size_t column = 0; column < widths.size(); ++column) {
        if (widths[column] > 0 && needs[column].rank == kName) {
            widths[column] = 0;
            return true;
        }
    }
    return false;
}

// Takes the middle one of the columns that are left away. Gives whether there was one beside the first.
bool LeaveOutMiddle(std::vector<int>& widths)
{
    std::vector<std::size_t> left;
    for (std::size_t column = 0; column < widths.size(); ++column)
        if (widths[column] > 0)
            left.push_back(column);
    if (left.size() < 2)
        return false;
    widths[left[left.size() / 2]] = 0;
    return true;
}

// Leaves out rank after rank, but no names, until the others fit with every cell whole.
void LeaveOutRanks(std::vector<int>& widths, const std::vector<ColumnNeed>& needs, int width)
{
    while (TotalWidth(widths) > width) {
        int rank = kName;
        for (std::size_t column = 0; column < widths.size(); ++column)
            if (widths[column] > 0)
                rank = std::max(rank, needs[column].rank);
        if (rank == kName)
            return;
        for (std::size_t column = 0; column < widths.size(); ++column)
            if (needs[column].rank == rank)
                widths[column] = 0;
    }
}

// Narrows the widest column again and again, none below its bound, until all fit or none may shrink.
void Shrink(std::vector<int>& widths, const std::vector<int>& bounds, int width)
{
    while (TotalWidth(widths) > width) {
        int* widest = nullptr;
        for (std::size_t column = 0; column < widths.size(); ++column)
            if (widths[column] > bounds[column] && (!widest || widths[column] > *widest))
                widest = &widths[column];
        if (!widest)
            return;
        --*widest;
    }
}

}  // namespace

std::vector<int> FitColumns(const std::vector<ColumnNeed>& needs, int width)
{
    std::vector<int> widths, withCutHeading, least;
    for (const ColumnNeed& need : needs) {
        widths.push_back(Natural(need));
        withCutHeading.push_back(WithCutHeading(need));
        least.push_back(Least(need));
    }
    if (width <= 0)
        return widths;

    LeaveOutRanks(withCutHeading, needs, width);
    for (std::size_t column = 0; column < widths.size(); ++column)
        if (withCutHeading[column] == 0)
            least[column] = 0;
    while (TotalWidth(least) > width && (LeaveOutName(least, needs) || LeaveOutMiddle(least)))
        continue;
    for (std::size_t column = 0; column < widths.size(); ++column)
        if (least[column] == 0)
            widths[column] = 0;
    Shrink(widths, withCutHeading, width);
    Shrink(widths, least, width);
    return widths;
}

}  // namespace kavelin::host
