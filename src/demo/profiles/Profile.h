// What kind of company the demo is: the parameters of its account, and what follows from them for the
// generator.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

enum class Edition { Industrial, Commercial };

// Parameter cValueStyle: what stock is valued by beside the item.
enum class ValueStyle { ByInventory, ByDepartment, ByWarehouse };

// Parameter cEstimate: how the ledger treats an estimated receipt when its invoice comes.
enum class EstimateMethod {
    MonthReversal,  // 月初回冲: taken out on the first of the next month, brought back settled or estimated
    ArrivalReversal,   // 单到回冲: taken out and brought back settled when the invoice comes
    ArrivalDifference  // 单到补差: only the difference is booked
};

// The document by which a sale is posted. Into transit by the first; the invoice then takes it out again.
enum class SaleDocument { Dispatch, Issue, Invoice };

struct Setting {
    std::string_view system, name;
    std::optional<std::string_view> value;   // nothing is NULL
    std::optional<std::string_view> preset;  // what counts where `value` is NULL or empty; nothing is NULL
};

// A right of a user: a code that he may see. A user without a row of a kind sees all of that kind.
struct UserRight {
    std::string_view user;
    std::string_view kind;  // "Warehouse", "Department", "User" or kInventoryClassRight
    std::string_view code;
};

// A right to all items of a class, and of the classes below it. In the account it is one right for each item.
inline constexpr std::string_view kInventoryClassRight = "InventoryClass";

struct Profile {
    std::string_view name;   // as --profile takes it
    std::string_view title;  // one line that tells what kind of company it is
    std::string_view language = "zh-CN";

    Edition edition = Edition::Industrial;
    ValueStyle valueStyle = ValueStyle::ByWarehouse;
    EstimateMethod estimate = EstimateMethod::ArrivalReversal;
    SaleDocument ordinary = SaleDocument::Issue;      // bSaleType
    SaleDocument entrusted = SaleDocument::Dispatch;  // cEnDispAccountStyle
    SaleDocument exported = SaleDocument::Invoice;    // cExSaleAccType
    bool exports = false;                             // an export module; dEXFirstDate is set
    bool instalments = true;                          // bFQSK
    bool direct = true;                               // bZYXS
    bool subcontracting = true;                       // dOMFirstDate is set; industrial only
    bool consignmentIn = false;  // goods of others that are sold for them; commercial only
    bool vendorManaged = true;
    bool standardCosts = false;     // standard costs with differences beside the actual ones
    bool earlyDocuments = false;    // some unposted documents are older than the start of the books
    std::vector<Setting> settings;  // all rows of AccInformation, also those that the fields above tell
    std::vector<UserRight> rights;
};

// All named profiles, the default first.
std::span<const Profile> Profiles();

// Nothing for an unknown name. Names are compared without regard to case.
const Profile* FindProfile(std::string_view name);

}  // namespace kavelin::demo
