// A small account for the reports on goods in transit: the real tables and views, some master data, and ledger
// lines that a test adds.
#pragma once

#include "support/account/AccountHost.h"

#include <string>

namespace kavelin::test {

// A line of IA_EnSubsidiary. Fields of text stand in the statement as they are: with their quotes, or null.
struct GoodsLine {
    int source = 1;                   // line that put the goods in transit
    const char* sourceType = "'05'";  // its voucher type
    int document = 0;                 // line of this row's own document; 0 is the source itself
    const char* type = "'05'";        // voucher type of that
    bool in = true;                   // into transit, or out of it
    const char* quantity = "null";
    const char* amount = "null";
    const char* month = "7";
    const char* date = "'2008-07-10'";
    const char* keepDate = "'2008-07-11'";
    int year = 2008;
    const char* item = "'A'";
    const char* warehouse = "'01'";
    const char* businessType = "N'普通销售'";
    const char* accounter = "'demo'";
    const char* dispatchLine = "null";
    const char* invoiceLine = "null";
    const char* free1 = "null";
};

// Items: A is counted in kg and in boxes of 10, the unit of number 1 and its stock unit; B has no auxiliary unit;
// C's stock unit has a rate of 0, its unit of number 1 none. Warehouse 09 takes no part in costing, 02 belongs to
// no department.
class GoodsAccount : public AccountHost {
  public:
    GoodsAccount();

    void Add(const GoodsLine& line);

    // A document with one line.
    void AddDocument(const std::string& kind, const std::string& type, int line, const std::string& code,
                     int dispatchLine = 0);

    // The same without the line's number as its head's.
    static int HeadOf(int line) { return line + 1000; }
};

}  // namespace kavelin::test
