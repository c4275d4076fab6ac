// A small account with a ledger and documents, for result tests of the summary. Lines are told by what they
// hold; what is left out is an ordinary line of item A in warehouse 01.
#pragma once

#include "support/account/AccountHost.h"

#include <string>
#include <vector>

namespace kavelin::test {

// SQL literals are written as such: "null", "5", "N'A'".
struct LedgerLine {
    std::string item = "A";
    std::string type = "01";
    std::string flag = "1";  // 1 receipt, 0 issue
    std::string date = "2008-07-15";
    int month = 7;  // 0: an opening balance
    std::string quantity = "0";
    std::string money = "0";
    std::string debit = "0";
    std::string credit = "0";
    std::string warehouse = "N'01'";
    std::string business = "N'普通采购'";
    std::string rdClass = "N'11'";
    std::string freeItem1 = "null";
    std::string freeItem2 = "null";
};

struct DocumentLine {
    int id = 0;
    std::string kind =
        "RD";  // RD stock, JUST adjustment, SALE, DISP, VMI, EXINV export invoice, PUR, EXCON consignment
    std::string item = "A";
    std::string type = "01";
    std::string flag = "1";
    std::string date = "2008-07-15";
    std::string quantity = "0";
    std::string money = "0";
    std::string difference = "0";
    std::string warehouse = "N'01'";
    std::string business = "N'普通采购'";
    std::string rdClass = "N'11'";
    std::string poster = "null";
    std::string source = "null";        // of a stock document: what it was made from
    std::string dispatchLine = "null";  // or consignment line, behind it
    std::string guid = "null";  // of a consignment line, or of the one that an export invoice comes from
};

// Warehouses 01, 02 and, without costing, 09. Items A (class 0101, unit kg in group g: number 2 is a box of
// 12), B (class 0102, unit piece without a group) and C (class 02, keeps free item 1). Receipt-issue classes
// 11, 1101, 1102 and 21. The module starts on 2008-01-01, levels of two, two and three characters, sales
// costed by the issue.
class SummaryBooks : public AccountHost {
  public:
    SummaryBooks();

    void Set(const std::string& parameter, const std::string& value);
    void Add(const LedgerLine& line);
    void Add(const DocumentLine& line);

    // Runs the report into tempdb..pool; whether it left the connection closed, which is a success.
    bool RunReport(const std::vector<FakeField>& fields);

    // Rows of the pool, by item, voucher type and quantities.
    std::string Pool(const std::string& columns, const std::string& where = "1=1");

    // The numbers of the documents' lines in the pool, in order.
    std::string Documents();
};

}  // namespace kavelin::test
