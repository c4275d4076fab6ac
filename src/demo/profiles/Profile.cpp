#include "demo/profiles/Profile.h"

#include "frame/Text.h"

#include <algorithm>
#include <iterator>

namespace kavelin::demo {

namespace {

// Of the first profile; what is different in the others stands below.
constexpr Setting kParameters[] = {
    {"AA", "cSysVersion", "工业", "工业"},
    {"AA", "iStrsQuanDecDgt", "2", "2"},
    {"AA", "iExchRateDecDgt", "4", "4"},
    {"AA", "bCommitSell", "False", "False"},
    {"aa", "ArchiveDate", std::nullopt, std::nullopt},
    {"CA", "iCyFtMethod", "1", "0"},
    {"EX", "dEXFirstDate", "", ""},
    {"SA", "bFQSK", "True", "False"},
    {"SA", "bZYXS", "True", "False"},
    {"IA", "bSaleType", "销售出库单", "销售出库单"},
    {"IA", "cEnDispAccountStyle", "发出商品", "销售出库单"},
    {"IA", "cExSaleAccType", "销售发票", "销售出库单"},
    {"IA", "cValueStyle", "按仓库核算", "按仓库核算"},
    {"IA", "cEstimate", "单到回冲", "月初回冲"},
    {"IA", "cDispLevel", "12", "12"},
    {"IA", "dIAStartDate", "2008-01-01", std::nullopt},
    {"IA", "dIAFirstDate", "2008-01-01", std::nullopt},
    {"OM", "dOMFirstDate", "2008-01-01", std::nullopt},
    {"IA", "bWarehouseCheck", "FALSE", "FALSE"},
    {"IA", "bDepartmentCheck", "FALSE", "FALSE"},
    {"IA", "bInventoryCheck", "FALSE", "FALSE"},
    {"IA", "bOperatorCheck", "FALSE", "FALSE"},
};

struct Difference {
    std::string_view name, value;
};

constexpr Difference kTrade[] = {
    {"cSysVersion", "商业"},
    {"iCyFtMethod", "0"},
    {"dEXFirstDate", "2008-01-01"},
    {"bSaleType", "true"},
    {"cEnDispAccountStyle", "销售发票"},
    {"cEstimate", "月初回冲"},
};

constexpr Difference kWorks[] = {
    {"dEXFirstDate", "2008-01-01"},   {"bSaleType", "false"},        {"cEnDispAccountStyle", "销售出库单"},
    {"cExSaleAccType", "销售出库单"}, {"cValueStyle", "按部门核算"}, {"cEstimate", "单到补差"},
    {"dIAFirstDate", "2007-12-01"},
};

constexpr Difference kGoodsSent[] = {
    {"iCyFtMethod", "0"},          {"bZYXS", "False"},
    {"bSaleType", "发出商品"},     {"cExSaleAccType", "发出商品"},
    {"cValueStyle", "按存货核算"}, {"cEstimate", "月初回冲"},
};

constexpr Difference kInvoices[] = {
    {"iStrsQuanDecDgt", "4"},     {"bCommitSell", "True"},     {"dEXFirstDate", "2008-01-01"},
    {"bSaleType", "销售发票"},    {"cEstimate", "单到补差"},   {"bWarehouseCheck", "TRUE"},
    {"bDepartmentCheck", "TRUE"}, {"bInventoryCheck", "TRUE"}, {"bOperatorCheck", "TRUE"},
};

constexpr Difference kShop[] = {
    {"cSysVersion", "商业"},
    {"iExchRateDecDgt", "0"},
    {"ArchiveDate", "2008-03-31"},
    {"iCyFtMethod", "0"},
    {"bFQSK", "False"},
    {"bZYXS", "False"},
    {"dOMFirstDate", ""},
    {"cEnDispAccountStyle", "销售出库单"},
    {"cExSaleAccType", "销售出库单"},
    {"cValueStyle", "按存货核算"},
};

constexpr UserRight kRightsOfAnna[] = {
    {"anna", "Warehouse", "01"},          {"anna", "Warehouse", "02"},
    {"anna", "Department", "0401"},       {"anna", "Department", "0402"},
    {"anna", kInventoryClassRight, "01"}, {"anna", kInventoryClassRight, "04"},
};

struct Traits {
    std::string_view name, title;
    std::span<const Difference> differences = {};
    // What no parameter tells.
    std::string_view language = "zh-CN";
    bool consignmentIn = false;
    bool vendorManaged = true;
    bool standardCosts = true;
    std::span<const UserRight> rights = {};
};

constexpr Traits kTraits[] = {
    {.name = "industry",
     .title = "a factory that posts sales by issue notes and reverses estimates when the invoice comes"},
    {.name = "trade",
     .title = "a trading house that posts sales by invoices, exports, and sells the goods of others",
     .differences = kTrade,
     .consignmentIn = true,
     .standardCosts = false},
    {.name = "works",
     .title = "a factory valued by department, on standard costs, with documents older than its books",
     .differences = kWorks},
    {.name = "goods-sent",
     .title = "a factory valued by item that posts sales as goods sent and reverses estimates monthly",
     .differences = kGoodsSent,
     .language = "en-US"},
    {.name = "invoices",
     .title = "a factory that posts sales by invoices and restricts what the user anna sees",
     .differences = kInvoices,
     .rights = kRightsOfAnna},
    {.name = "shop",
     .title = "a shop valued by item, with an archived year, that sells the goods of others",
     .differences = kShop,
     .language = "en-US",
     .consignmentIn = true,
     .vendorManaged = false,
     .standardCosts = false},
};

std::string_view ValueOf(const Profile& profile, std::string_view name)
{
    return std::ranges::find(profile.settings, name, &Setting::name)->value.value_or("");
}

// "true" and "false" are the older words for the invoice and the issue note.
SaleDocument SaleDocumentOf(std::string_view text)
{
    if (text == "发出商品")
        return SaleDocument::Dispatch;
    return text == "销售发票" || text == "true" ? SaleDocument::Invoice : SaleDocument::Issue;
}

ValueStyle ValueStyleOf(std::string_view text)
{
    if (text == "按存货核算")
        return ValueStyle::ByInventory;
    return text == "按部门核算" ? ValueStyle::ByDepartment : ValueStyle::ByWarehouse;
}

EstimateMethod EstimateMethodOf(std::string_view text)
{
    if (text == "月初回冲")
        return EstimateMethod::MonthReversal;
    return text == "单到回冲" ? EstimateMethod::ArrivalReversal : EstimateMethod::ArrivalDifference;
}

Profile MakeProfile(const Traits& traits)
{
    Profile profile;
    profile.name = traits.name;
    profile.title = traits.title;
    profile.language = traits.language;
    profile.consignmentIn = traits.consignmentIn;
    profile.vendorManaged = traits.vendorManaged;
    profile.standardCosts = traits.standardCosts;
    profile.rights.assign(traits.rights.begin(), traits.rights.end());
    profile.settings.assign(std::begin(kParameters), std::end(kParameters));
    for (const Difference& difference : traits.differences)
        std::ranges::find(profile.settings, difference.name, &Setting::name)->value = difference.value;

    const auto value = [&](std::string_view name) { return ValueOf(profile, name); };
    profile.edition = value("cSysVersion") == "工业" ? Edition::Industrial : Edition::Commercial;
    profile.valueStyle = ValueStyleOf(value("cValueStyle"));
    profile.estimate = EstimateMethodOf(value("cEstimate"));
    profile.ordinary = SaleDocumentOf(value("bSaleType"));
    profile.entrusted = SaleDocumentOf(value("cEnDispAccountStyle"));
    profile.exported = SaleDocumentOf(value("cExSaleAccType"));
    profile.exports = !value("dEXFirstDate").empty();
    profile.instalments = value("bFQSK") == "True";
    profile.direct = value("bZYXS") == "True";
    profile.subcontracting = profile.edition == Edition::Industrial && !value("dOMFirstDate").empty();
    profile.earlyDocuments = value("dIAFirstDate") < value("dIAStartDate");
    return profile;
}

std::vector<Profile> MakeProfiles()
{
    std::vector<Profile> profiles;
    for (const Traits& traits : kTraits)
        profiles.push_back(MakeProfile(traits));
    return profiles;
}

}  // namespace

std::span<const Profile> Profiles()
{
    static const std::vector<Profile> profiles = MakeProfiles();
    return profiles;
}

const Profile* FindProfile(std::string_view name)
{
    const std::span<const Profile> profiles = Profiles();
    const auto found = std::ranges::find_if(
        profiles, [&](const Profile& profile) { return EqualsNoCase(profile.name, name); });
    return found == profiles.end() ? nullptr : &*found;
}

}  // namespace kavelin::demo
