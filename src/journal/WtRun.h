// What the statements of one run of the journal are made from.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin {

// Parameters of the account, read at the start of every run. The last three name the document that posts a
// sale: "发出商品" (goods sent), "销售出库单" (issue note) or "销售发票" (invoice).
struct WtFlags {
    bool bCommitSell = false;
    bool bFQSK = false;        // instalment sales
    bool bZYXS = false;        // direct business
    std::string dEXFirstDate;  // empty without an export module
    std::string bSaleType;
    std::string cExSaleAccType;
    std::string cEnDispAccountStyle;
};

WtFlags ReadWtFlags();

struct WtRun {
    std::string strTable;
    std::string strSelect;  // the select list
    std::string strJoin;    // ends its line
    std::string strWhere;   // in front of it stands nothing, not even "where"
};

}  // namespace kavelin
