// What sets one kind of sale apart from the others: its documents, and which of them posts it.
#pragma once

#include "demo/books/Document.h"
#include "demo/company/RdStyles.h"
#include "demo/profiles/Profile.h"

#include <span>
#include <string_view>

namespace kavelin::demo {

inline constexpr std::string_view kSalesDepartment = "03";

// What the company sells: what it makes, or if it makes nothing all that it has bought.
inline Supply SoldGoods(const Profile& profile)
{
    return profile.edition == Edition::Industrial ? Supply::Made : Supply::Bought;
}

// The documents of a kind of sale, in their order. Those "back" are in red: they bring goods back, with
// negative quantities. Of an export the dispatch note is the consignment.
struct SaleTypes {
    DocumentType dispatch, dispatchBack;
    DocumentType issue, issueBack;
    DocumentType invoice, credit;
    DocumentType otherInvoice, otherCredit;
};

// `issueLedger` is the type of the ledger rows that an issue note is posted with.
constexpr SaleTypes DomesticSale(std::string_view business, std::string_view rdCode,
                                 std::string_view issueLedger)
{
    using enum DocumentKind;
    const auto type = [business](DocumentKind kind, std::string_view voucher, std::string_view ledger,
                                 std::string_view rd, std::string_view prefix, std::string_view source) {
        return DocumentType{kind, voucher, ledger, business, rd, prefix, "SO", source, "自动", false};
    };
    // clang-format off
    return {
        .dispatch     = type(Dispatch,    "05", "05",        rdCode,        "FH", ""),
        .dispatchBack = type(Dispatch,    "06", "06",        kRdSaleReturn, "TH", ""),
        .issue        = type(Stock,       "32", issueLedger, rdCode,        "XC", "发货单"),
        .issueBack    = type(Stock,       "32", issueLedger, kRdSaleReturn, "XT", "退货单"),
        .invoice      = type(SaleInvoice, "26", "26",        rdCode,        "XP", "发货单"),
        .credit       = type(SaleInvoice, "27", "27",        kRdSaleReturn, "HP", "退货单"),
        .otherInvoice = type(SaleInvoice, "28", "28",        rdCode,        "QP", "发货单"),
        .otherCredit  = type(SaleInvoice, "29", "29",        kRdSaleReturn, "QH", "退货单"),
    };
    // clang-format on
}

struct SaleKind {
    const SaleTypes* types;
    const SaleTypes* byOtherName;  // the same under another name of the business; null if there is none
    SaleDocument posting;
    bool inTransit;    // from the posting to the invoice the goods stand in the goods-in-transit ledger
    int share;         // of an industrial company's events, per cent; 0: the profile has no such business
    int invoiceAfter;  // about so many days pass before an invoice, and between two of the same sale
    std::span<const std::string_view> customers;  // their classes
};

}  // namespace kavelin::demo
