// The dialogs by the identities of their filters, compared exactly. Those with a title are "IA[__]" and the
// report's title.
#pragma once

#include <string_view>

namespace kavelin {

constexpr std::string_view kJournal = "IA[__]流水账";
constexpr std::string_view kPriceAnalysis = "IA[__]存货价格分析";
constexpr std::string_view kTurnover = "IA[__]存货周转率分析";
constexpr std::string_view kAbc = "IA[__]ABC成本分析";
constexpr std::string_view kGoodsSummary = "IA[__]发出商品汇总表";
constexpr std::string_view kEstimate = "AE8206FE-FE76-4B18-9976-18400D11A2FA";
constexpr std::string_view kStockSummary = "F3D99620-46E3-465E-97C7-ECD73735B108";
constexpr std::string_view kCapitalShare = "2BEEF300-28F0-4716-9D8A-9F0424174763";
constexpr std::string_view kStandardCost = "C921AEDB-0DCD-4185-BCAA-00326BC8504F";
constexpr std::string_view kDetailLedger = "3C19A4D5-F302-4216-91C4-1F65F7817AFC";
constexpr std::string_view kCostItem = "AD454C72-A5FF-4949-AF35-EA0CBAA02803";
constexpr std::string_view kVoucherPosting = "正常单据记账";  // no report of this library

}  // namespace kavelin
