// The amounts of the stock summary's groups: opening, receipts, issues and closing, each in quantity, money and
// difference.
#pragma once

#include "host/definition/ReportDefinition.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// A class of receipts or issues that the pool holds.
struct StockClass {
    std::string code;  // empty: lines without a class
    std::string name;
    bool received = false;  // the pool has receipts of it
    bool issued = false;
};

// What a line of the pool adds, as expressions.
struct StockAmounts {
    std::string quantity, money, difference;
};

StockAmounts StockSide(const std::string& prefix);  // "Qc" opening, "In" receipts, "Out" issues
StockAmounts StockClosing();

// Sums of a group. Of quantities, which are floats, what is left behind the sixth decimal is noise.
std::string StockQuantity(const std::string& expression);
std::string StockMoney(const std::string& expression);

// Numbers of a group's lines that received or issued anything.
std::string StockLinesReceived();
std::string StockLinesIssued();

struct StockMeasure {
    ViewColumn column;
    std::string expression;
};

// `pieces`: quantities also in the second unit. Receipts and issues stand as one amount each, unless they are
// to be shown by class: then `classes` are the columns.
std::vector<StockMeasure> StockMeasures(bool pieces, bool byClass, const std::vector<StockClass>& classes);

}  // namespace kavelin::host
