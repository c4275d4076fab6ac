#include "server/ReportCases.h"

#include "frame/Text.h"
#include "frame/Value.h"

#include <fmt/format.h>

namespace kavelin::test::server {

namespace {

// A report and its values, "|" between them.
constexpr std::string_view kCases[] = {
    "journal",
    "journal|vouEstate=已记账单据|iMonth={year}.03..{year}.05",
    "journal|vouEstate=未记账单据",
    "journal|cWhCode={warehouse}|Inventory.cInvCCode={class}",
    "journal|Inventory.cInvCode={item}..{item}|dKeepDate={year}-02-01..",
    "standard-cost-journal",
    "standard-cost-journal|cWhCode={warehouse}",
    "stock-summary|dVouDate={year}-01-01..{year}-12-31",
    "stock-summary|dVouDate={year}-04-01..{year}-06-30|rdGrade=1",
    "stock-summary|dVouDate={year}-01-01..{year}-12-31|vouEstate=已记账单据|cInvCCode={class}",
    "stock-summary|dVouDate={year}-01-01..{year}-12-31|EndNum=大于零|busEstate=发生业务",
    "estimate-balance",
    "estimate-balance|ia_subsidiary.iMonth=6|bDisZero=是",
    "estimate-balance|Inventory.cInvCCode={class}",
    "goods-summary",
    "goods-summary|Ia_Ensubsidiary.cBustype=全部|IsMerge=是",
    "goods-summary|Customer.cCCCode={customers}..{customers}",
    "goods-template|iYear={year}",
    "goods-template|iYear={year}|InvCGrade=1|IsMerge=1",
    "goods-cost-summary",
    "goods-cost-summary|CostItem=1|Ia_Ensubsidiary.cWhCode={warehouse}",
    "goods-cost-ledger|IA_EnSubsidiary.cInvCode={transit}",
    "goods-cost-ledger|IA_EnSubsidiary.cInvCode={transit}|CostItem=2|IA_EnSubsidiary.iMonth=1..6",
    "price-analysis",
    "price-analysis|ShowType=2|Base Price=3",
    "price-analysis|iMonth={year}.06|cInvCCode={class}..{class}",
    "turnover",
    "turnover|bgroupcwh=是|dismethod=按数量",
    "turnover|bgroupdep=是|iperiod={year}-01-01..{year}-06-30",
    "abc",
    "capital-share",
    "capital-share|cNo=10|cwhcode={warehouse}",
    "area-table",
};

std::string Filled(std::string text, const AccountCodes& codes)
{
    text = ReplaceAll(text, "{year}", codes.year);
    text = ReplaceAll(text, "{item}", codes.item);
    text = ReplaceAll(text, "{transit}", codes.transitItem);
    text = ReplaceAll(text, "{class}", codes.itemClass);
    text = ReplaceAll(text, "{warehouse}", codes.warehouse);
    return ReplaceAll(text, "{customers}", codes.customerClass);
}

std::string First(Connection& account, const std::string& sql)
{
    const auto rows =
        account.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    return rows->Eof() ? "" : ToText(rows->Field(0));
}

}  // namespace

AccountCodes CodesOf(Connection& account)
{
    const auto busiest = [](const char* table) {
        return fmt::format("select top 1 cInvCode from {} group by cInvCode order by count(*) desc, cInvCode",
                           table);
    };
    return {First(account, "select max(iYear) from IA_Subsidiary"),
            First(account, busiest("IA_Subsidiary")),
            First(account, busiest("IA_EnSubsidiary")),
            First(account, "select top 1 cInvCCode from InventoryClass order by cInvCCode"),
            First(account, "select top 1 cWhCode from Warehouse order by cWhCode"),
            First(account, "select top 1 cCCCode from CustomerClass order by cCCCode")};
}

std::vector<std::string> UsersOf(Connection& account)
{
    std::vector<std::string> users = {"demo"};
    if (const std::string user = First(account, "select top 1 cUser from Demo_UserRight order by cUser");
        !user.empty())
        users.push_back(user);
    return users;
}

std::string ReportCase::Told() const
{
    std::string told = report;
    for (const std::string& setting : settings)
        told += " " + setting;
    return told;
}

std::vector<ReportCase> ReportCases(const AccountCodes& codes)
{
    std::vector<ReportCase> cases;
    for (const std::string_view text : kCases) {
        std::vector<std::string> words = Split(text, "|");
        ReportCase& each = cases.emplace_back();
        each.report = words.front();
        for (std::size_t i = 1; i < words.size(); ++i)
            each.settings.push_back(Filled(words[i], codes));
    }
    return cases;
}

}  // namespace kavelin::test::server
