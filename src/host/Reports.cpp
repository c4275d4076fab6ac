#include "host/Reports.h"

#include "component/Component.h"
#include "frame/Text.h"
#include "host/DataFiles.h"
#include "host/HostErrors.h"
#include "host/LocalText.h"
#include "host/ValueGate.h"

#include <vector>

namespace kavelin::host {

namespace {

// Whatever is none of a report's other actions opens the accounting voucher; "Voucher" is this host's word
// for it.
constexpr RowAction kJournalActions[] = {
    {"ActWtInfo", "the document"},
    {"Voucher", "the accounting voucher"},
};
constexpr RowAction kStandardCostActions[] = {
    {"Vouch", "the document"},
    {"Voucher", "the accounting voucher"},
    {"DifPZ", "the voucher of the cost differences"},
};

// Of the wide results what a reader of a journal looks for first.
constexpr std::string_view kJournalColumns =
    "单据日期,单据号,凭证号,业务类型,仓库,存货编码,存货名称,收入数量,收入单价,收入金额,发出数量,发出单价,发出金额";
constexpr std::string_view kStandardCostColumns =
    "dvoudate,cvoucode,ipzcode,cbustype,cwhname,cinvcode,iinquantity,istdinprice,iindif,iinprice,ioutquantity,"
    "istdoutprice,ioutdif,ioutprice";

// Two lines a report: name, titles; class, filter identity, order, statements.
// clang-format off
constexpr Report kReports[] = {
    {"journal", "流水账", "Inventory journal",
     "ClsWtInfo", "IA[__]流水账", "", 0, kJournalColumns, kJournalActions},
    {"standard-cost-journal", "标准成本流水账", "Standard-cost journal",
     "clsStaCostacc", "C921AEDB-0DCD-4185-BCAA-00326BC8504F", "", 0,
     kStandardCostColumns, kStandardCostActions},
    {"stock-summary", "收发存汇总表", "Receipt-issue-balance summary",
     "clsSfcSumInfo", "F3D99620-46E3-465E-97C7-ECD73735B108", "", 0},
    {"estimate-balance", "暂估材料余额表", "Estimate balance",
     "clsLastRep", "AE8206FE-FE76-4B18-9976-18400D11A2FA", "", 0},
    {"goods-summary", "发出商品汇总表", "Goods-in-transit summary",
     "clsFCSumInfo", "IA[__]发出商品汇总表", "", 0},
    {"goods-cost-summary", "发出商品成本项目汇总表", "Goods-in-transit summary by cost item",
     "ClsFCInventory", "AD454C72-A5FF-4949-AF35-EA0CBAA02803", "", 0},
    {"goods-cost-ledger", "发出商品成本项目明细账", "Goods-in-transit ledger by cost item",
     "ClsOutDetailInfo", "3C19A4D5-F302-4216-91C4-1F65F7817AFC", "", 0},
    {"price-analysis", "存货价格分析", "Inventory price analysis",
     "clsIaAnalysis", "IA[__]存货价格分析", "", 0},
    {"turnover", "存货周转率分析", "Inventory turnover analysis",
     "clsCinTurnRep", "IA[__]存货周转率分析", "", 0},
    {"abc", "ABC成本分析", "ABC cost analysis",
     "ClsABC", "IA[__]ABC成本分析", "", 0},
    {"capital-share", "存货资金占用分析", "Capital share",
     "clsProPortion", "2BEEF300-28F0-4716-9D8A-9F0424174763", "cNo", 15},
    {"area-table", "区域存货收发表", "Area-limited data table",
     "clsAreaStockReport", "", "", 1},
};
// clang-format on

}  // namespace

std::string_view Report::Title(std::string_view language) const
{
    return language == kEnglish ? titleEnglish : titleChinese;
}

std::span<const Report> AllReports()
{
    return kReports;
}

bool IsBuilt(const Report& report)
{
    return CanCreate("Kavelin." + std::string(report.className)) &&
           HasDataFile("filters/" + std::string(report.name) + ".json");
}

const Report& FindReport(std::string_view name)
{
    std::vector<std::string_view> built;
    for (const Report& report : kReports) {
        if (EqualsNoCase(report.name, name)) {
            if (!IsBuilt(report))
                throw UsageError("The report " + std::string(report.name) + " is not part of this build.");
            return report;
        }
        if (IsBuilt(report))
            built.push_back(report.name);
    }
    throw UsageError("There is no report \"" + std::string(name) + "\"." + DidYouMean(name, built));
}

}  // namespace kavelin::host
