// A small account for the price analysis: the real ledger, summary and views, two warehouses of which the second
// values at plan prices, and rows that a test adds.
#pragma once

#include "support/account/AccountHost.h"

#include <string>
#include <vector>

namespace kavelin::test {

// A line of IA_Subsidiary, numbered in the order of adding from 1. Fields stand in the statement as they are:
// texts with their quotes, or null.
struct LedgerLine {
    const char* code;
    const char* item = "'A'";
    const char* warehouse = "'01'";
    const char* department = "'D1'";
    int month = 3;
    const char* type = "'01'";
    const char* busType = "N'普通采购'";
    const char* inCost = "null";
    const char* outCost = "null";
    const char* batch = "null";
    const char* free1 = "null";
    const char* date = "'2008-03-10'";
    int year = 2008;
};

// A row of IA_Summary.
struct SummaryRow {
    int month = 3;
    const char* item = "'A'";
    const char* warehouse = "'01'";
    const char* department = "null";
    const char* batch = "null";
    const char* in = "0, 0";    // quantity and amount received
    const char* out = "0, 0";   // issued
    const char* left = "0, 0";  // at the end of the month
    const char* free1 = "null";
    int year = 2008;
    int direct = 0;
    int period = 0;
};

// Items with their reference costs: A (6.00) keeps no batches, B (2.50) keeps them at 全月平均法, C (0) has none of
// both. The account begins with January 2008 and values by warehouse.
class AnalysisAccount : public AccountHost {
  public:
    AnalysisAccount();

    void Add(const LedgerLine& line);
    void Add(const SummaryRow& row);
    void SetStyle(const std::string& valueStyle);

    // Runs the report of March 2008 with these fields beside what it needs: lines, base price 3, averages of
    // receipts over January to March. A field of the same name takes the place of one of them. Whether it came
    // to its end.
    bool Analyse(const std::vector<FakeField>& fields);

    // A query on its result, which is tempdb..analysis; without the line of names.
    std::string Rows(const std::string& columns);
};

}  // namespace kavelin::test
