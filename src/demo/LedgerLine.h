// A line of the inventory ledger and its row in IA_Subsidiary.
#pragma once

#include "demo/RowSink.h"
#include "demo/Stock.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace kavelin::demo {

enum class Partner { None, Vendor, Customer };

// What a kind of document gives to its lines.
struct LineKind {
    std::string_view voucherType;
    std::string_view businessType;  // empty for NULL
    std::string_view rdCode;        // receipt-issue class, empty for NULL
    std::string_view prefix;        // of its numbers
    Partner partner;
    std::string_view department;
    std::string_view costSource;
    bool estimated = false;
};

// clang-format off
namespace kinds {
//                                      type  business     class  prefix partner            department cost
inline constexpr LineKind kOpening       {"34", "",        "",    "QC", Partner::None,     "05",   "手工"};
inline constexpr LineKind kOpenEstimate  {"33", "普通采购", "101", "ZG", Partner::Vendor,   "01",   "手工", true};
inline constexpr LineKind kPurchase      {"01", "普通采购", "101", "CG", Partner::Vendor,   "01",   "结算"};
inline constexpr LineKind kEstimated     {"01", "普通采购", "101", "CG", Partner::Vendor,   "01",   "手工", true};
inline constexpr LineKind kFinishedGoods {"10", "成品入库", "102", "CP", Partner::None,     "0201", "自动"};
inline constexpr LineKind kOtherReceipt  {"08", "其他入库", "103", "QR", Partner::None,     "0401", "手工"};
inline constexpr LineKind kSurplus       {"08", "盘盈入库", "104", "QR", Partner::None,     "0401", "手工"};
inline constexpr LineKind kBareReceipt   {"08", "",        "103", "QR", Partner::None,     "0401", "手工"};
inline constexpr LineKind kRequisition   {"11", "领料",     "201", "LL", Partner::None,     "0201", "自动"};
inline constexpr LineKind kSale          {"32", "普通销售", "202", "XS", Partner::Customer, "03",   "自动"};
inline constexpr LineKind kOtherIssue    {"09", "其他出库", "203", "QT", Partner::None,     "0402", "自动"};
inline constexpr LineKind kShortage      {"09", "盘亏出库", "204", "QT", Partner::None,     "0401", "自动"};
inline constexpr LineKind kBareIssue     {"09", "",        "203", "QT", Partner::None,     "0402", "自动"};
inline constexpr LineKind kDirectPurchase{"25", "直运采购", "",    "ZC", Partner::Vendor,   "01",   "结算"};
inline constexpr LineKind kDirectSale    {"26", "直运销售", "",    "ZX", Partner::Customer, "03",   "自动"};
}  // namespace kinds
// clang-format on

// The head of a document, which its lines share.
struct Document {
    std::int32_t number = 0;  // over all documents
    std::string code;
    std::string_view partner;  // vendor or customer, by the kind
    std::string_view handler;
    std::string_view project;  // empty for none
};

struct LedgerLine {
    std::int32_t number = 0;
    int month = 0;
    std::chrono::sys_days documentDay;
    std::chrono::sys_days postingDay;
    const LineKind* kind = nullptr;
    const Document* document = nullptr;
    const Item* item = nullptr;
    const Place* place = nullptr;  // null for direct business, which passes no warehouse
    Movement movement;
};

inline constexpr int kLedgerYear = 2008;

void BeginLedger(RowSink& sink);
void WriteLine(const LedgerLine& line, RowSink& sink);

// Amount by quantity, rounded to four decimals; 0 for no quantity.
double UnitCost(const Movement& movement);

}  // namespace kavelin::demo
