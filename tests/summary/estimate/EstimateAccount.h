// A small account with estimates in its ledger, and the report that is run on it.
#pragma once

#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavelin::test {

constexpr const char* kMonthReversal = "月初回冲";
constexpr const char* kArrivalReversal = "单到回冲";
constexpr const char* kArrivalDifference = "单到补差";

constexpr const char* kSubcontracted = "委外加工";
constexpr const char* kConsigned = "受托代销";
constexpr const char* kSettled = "暂估报销";

// Numbers are written as in SQL, "null" among them; an empty text is null.
struct LedgerLine {
    int id = 0;  // the document line
    int month = 0;
    const char* type = "01";
    const char* quantity = "null";
    const char* money = "null";
    int flag = 1;
    const char* source = "";  // type of the document that it goes back to
    const char* business = "普通采购";
    const char* fee = "null";
    const char* debit = "null";
    const char* credit = "null";
    const char* cost = "null";  // of a unit
    int settlement = 0;
    const char* item = "A";
    const char* warehouse = "01";
    const char* department = "1";
    const char* batch = "";
    const char* free1 = "";
    int year = 2008;
};

struct SummaryRow {
    int month = 0;
    const char* item = "A";
    const char* warehouse = "01";
    const char* department = "";
    const char* batch = "";
    const char* free1 = "";
    int direct = 0;
    int period = 0;
    int year = 2008;
};

class EstimateAccount : public testing::Test {
  protected:
    // Items A and B (which keeps batches and the first free item, and is valued by moving average),
    // warehouses 01 (moving average), 02 (planned price) and 09 (without costing), departments 1 and 2.
    // Quantities have two places.
    EstimateAccount();

    // A commercial account with this method of estimate.
    void Use(const std::string& method, const std::string& valueStyle = "按仓库核算");
    void SetParameter(const std::string& system, const std::string& name, const std::string& value);

    void Add(const LedgerLine& line);
    void Add(const SummaryRow& row);
    void AddSettlement(int number, const std::string& quantity, const std::string& price,
                       const std::string& fee = "null");
    // A line of a purchase receipt, and of a confirmation of vendor-managed stock.
    void AddReceipt(int line, const std::string& quantity, const std::string& price,
                    const std::string& unitCost, const std::string& business = kConsigned,
                    const std::string& fee = "null");
    void AddConfirmation(int line, const std::string& quantity, const std::string& price,
                         const std::string& unitCost);

    // Runs the report for a month of 2008. False if it ended without success.
    bool Report(int month, const std::vector<FakeField>& filter = {{"ia_subsidiary.cBusType", ""}});

    // Of a run that must succeed: for each line "ID: opening, receipts, issue, closing", each a quantity and
    // its money, "-" for a null.
    std::string Balance(int month, const std::vector<FakeField>& filter = {{"ia_subsidiary.cBusType", ""}});

    AccountHost objHost;
    std::string strVouTypes;  // the choice of voucher types, as the filter words it
};

}  // namespace kavelin::test
