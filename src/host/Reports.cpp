#include "host/Reports.h"

#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/LocalText.h"
#include "host/ValueGate.h"
#include "host/definition/StockView.h"

#include <vector>

namespace kavelin::host {

namespace {

// Whatever is none of a report's other actions opens the accounting voucher, in the ledger by cost item that
// of the differences; "Voucher" and there "DifPZ" are this host's words for it.
constexpr RowAction kJournalActions[] = {
    {"ActWtInfo", "the document"},
    {"Voucher", "the accounting voucher"},
};
constexpr RowAction kPriceActions[] = {
    {"Vouch", "the document"},
    {"Voucher", "the accounting voucher"},
};
constexpr RowAction kStandardCostActions[] = {
    {"Vouch", "the document"},
    {"Voucher", "the accounting voucher"},
    {"DifPZ", "the voucher of the cost differences"},
};

constexpr RowAction kAbcActions[] = {
    {"ActA", "the items of class A", ActionKind::DrawsAgain},
    {"ActB", "the items of class B", ActionKind::DrawsAgain},
    {"ActC", "the items of class C", ActionKind::DrawsAgain},
    {"ActOption", "the thresholds of the classes", ActionKind::ShowsOptions},
};

constexpr RowAction kCostLedgerActions[] = {
    {"OutDetailInfo", "the document"},
    {"OutDetailPZ", "the accounting voucher"},
    {"DifPZ", "the voucher of the cost differences"},
};

// Of the wide results what a reader looks for first.
constexpr TableColumns kJournalTable = {
    "单据日期,单据号,凭证号,业务类型,仓库,存货编码,存货名称,收入数量,收入单价,收入金额,发出数量,发出单价,发出金额",
    "单据日期,单据号,存货编码", "存货名称,凭证号,业务类型,仓库,发出单价,收入单价"};
constexpr TableColumns kStandardCostTable = {
    "dvoudate,cvoucode,ipzcode,cbustype,cwhname,cinvcode,iinquantity,istdinprice,iindif,iinprice,ioutquantity,"
    "istdoutprice,ioutdif,ioutprice",
    "dvoudate,cvoucode,cinvcode", "ipzcode,cbustype,cwhname"};
constexpr TableColumns kStockLinesTable = {
    "cInvCode,cInvName,cwhname,cvoutype,cbustype,crdname,QcQuantity,QcPrice,InQuantity,InPrice,OutQuantity,"
    "OutPrice",
    "cInvCode", "cInvName,crdname,cwhname,cbustype"};
constexpr TableColumns kEstimateTable = {
    "cVouCode,dVouDate,cVouTypeName,cBusType,cVenName,cInvCode,cInvName,QcQuantity,QcMoney,InQuantity,InMoney,"
    "Outquantity,OutMoney,QmQuantity,QmMoney",
    "cVouCode,dVouDate,cInvCode", "cInvName,cVenName,cBusType,cVouTypeName"};

constexpr TableColumns kTemplateTable = {
    "单据日期,发货单号,出库单号,业务类型,存货_编码,存货_名称,期初_数量,期初_金额,收入_数量,收入_金额,发出_数量,发出_金额,结存_数量,结存_金额",
    "单据日期,发货单号,出库单号,存货_编码", "存货_名称,业务类型"};
constexpr TableColumns kGoodsSummaryTable = {
    "cDLCode,cCode,dVouDate,cInvCode,cInvName,Q_Quantity,Q_Price,R_Quantity,R_Price,D_Quantity,D_Price,E_Quantity,"
    "E_Price",
    "cDLCode,cCode,dVouDate,cInvCode", "cInvName,dVouDate"};
// Of one cost item, or of their total where all are shown.
constexpr TableColumns kCostSummaryTable = {
    "cDLCode,cCode,cInvCode,cInvName,Q_Qty,Q_*_RealCost,R_Qty,R_*_RealCost,D_Qty,D_*_RealCost,E_Qty,E_*_RealCost",
    "cDLCode,cCode,cInvCode", "cInvName"};
// A ledger is what came, what went and what is left; what that is a unit, a reader can work out.
constexpr TableColumns kCostLedgerTable = {
    "dKeepDate,cVouchName,cVouCode,cPZNo,R_Qty,R_*_UnitRealCost,R_*_RealCost,D_Qty,D_*_UnitRealCost,D_*_RealCost,"
    "E_Qty,E_*_UnitRealCost,E_*_RealCost",
    "dKeepDate,cVouCode", "cVouCode,cPZNo,cVouchName,*_UnitRealCost"};

constexpr TableColumns kPriceTable = {
    "dVouDate,cVouCode,cVouTypeName,cBusType,cWhName,cInvCode,cInvName,cBatchia,Price,BasePrice,Ratio,DiffRatio,"
    "ReferenceCost,ExPrice,InPrice,AvgPrice,Balanceunit",
    "dVouDate,cVouCode,cInvCode",
    "cInvName,ReferenceCost,ExPrice,InPrice,AvgPrice,Balanceunit,cBatchia,cWhName,cBusType,cVouTypeName"};

// Of the dates all rows say the same.
constexpr TableColumns kTurnoverTable = {
    "部门_编码,部门_名称,仓库_编码,仓库_名称,存货_分类,存货_编码,存货_名称,存货_代码,存货_规格,存货_单位,分析_期初余额,分析_期末余额,"
    "分析_平均库存,分析_出库成本,分析_出库数量,分析_周转率,分析_周转天数",
    "存货_分类,存货_编码", "存货_名称,部门_名称,仓库_名称,存货_规格,存货_单位,存货_代码"};
constexpr TableColumns kAbcTable = {
    "存货_编码,存货_名称,存货_规格,存货_单位,分析_数量,分析_数量比例,分析_金额,分析_金额比例,分析_ABC类别",
    "存货_编码", "存货_名称,存货_规格,存货_单位"};

constexpr ColumnMark kTurnoverMarks[] = {{"分析_周转率", MarkKind::Share}};
constexpr ColumnMark kAbcMarks[] = {
    {"分析_ABC类别", MarkKind::Class},
    {"分析_金额比例", MarkKind::Share},
    {"分析_数量比例", MarkKind::Share},
};
constexpr ColumnMark kPriceMarks[] = {{"DiffRatio", MarkKind::Deviation}};
constexpr ColumnMark kCapitalMarks[] = {{"所占比重", MarkKind::Share}};

// A report: name, titles; class, filter identity, order, statements. An order names columns that each run's result
// has, enough of them that two hosts show the same rows in the same places.
// clang-format off
constexpr Report kReports[] = {
    {"journal", "流水账", "Inventory journal",
     "ClsWtInfo", "IA[__]流水账", "", 0, kJournalTable, kJournalActions},
    {"standard-cost-journal", "标准成本流水账", "Standard-cost journal",
     "clsStaCostacc", "C921AEDB-0DCD-4185-BCAA-00326BC8504F", "", 0,
     kStandardCostTable, kStandardCostActions},
    {"stock-summary", "收发存汇总表", "Receipt-issue-balance summary",
     "clsSfcSumInfo", "F3D99620-46E3-465E-97C7-ECD73735B108", "cInvCode, cwhcode, bacc, id", 0,
     kStockLinesTable, {}, {}, {}, &kStockDefinition},
    {"estimate-balance", "暂估材料余额表", "Estimate balance",
     "clsLastRep", "AE8206FE-FE76-4B18-9976-18400D11A2FA", "ID, cVouType", 0, kEstimateTable},
    {"goods-summary", "发出商品汇总表", "Goods-in-transit summary",
     "clsFCSumInfo", "IA[__]发出商品汇总表", "iSrcID, cSRcVoutype", 0, kGoodsSummaryTable},
    {"goods-template", "发出商品余额模板", "Goods-in-transit template",
     "", "",
     "存货大类_编码, 仓库_编码, 发货单号, 出库单号, 单据日期, 记账日期, 期初_数量, 期初_金额, 收入_数量, 收入_金额, "
     "发出_数量, 发出_金额",
     0, kTemplateTable, {}, {}, {}, nullptr, ReportEntry::Template},
    {"goods-cost-summary", "发出商品成本项目汇总表", "Goods-in-transit summary by cost item",
     "ClsFCInventory", "AD454C72-A5FF-4949-AF35-EA0CBAA02803", "iSrcID, cSRcVoutype", 0,
     kCostSummaryTable},
    {"goods-cost-ledger", "发出商品成本项目明细账", "Goods-in-transit ledger by cost item",
     "ClsOutDetailInfo", "3C19A4D5-F302-4216-91C4-1F65F7817AFC", "imonth, ino", 0,
     kCostLedgerTable, kCostLedgerActions, {}, {"flag", "1"}},
    {"price-analysis", "存货价格分析", "Inventory price analysis",
     "clsIaAnalysis", "IA[__]存货价格分析", "dVouDate, cVouType, autoid", 42, kPriceTable, kPriceActions,
     kPriceMarks},
    {"turnover", "存货周转率分析", "Inventory turnover analysis",
     "clsCinTurnRep", "IA[__]存货周转率分析", "部门_编码, 仓库_编码, 存货_分类, 存货_编码", 35,
     kTurnoverTable, {}, kTurnoverMarks},
    {"abc", "ABC成本分析", "ABC cost analysis",
     "ClsABC", "IA[__]ABC成本分析", "分析_ABC类别, 分析_金额比例 desc, 存货_编码", 25,
     kAbcTable, kAbcActions, kAbcMarks},
    {"capital-share", "存货资金占用分析", "Capital share",
     "clsProPortion", "2BEEF300-28F0-4716-9D8A-9F0424174763", "cNo", 16, {}, {}, kCapitalMarks},
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

const Report& FindReport(std::string_view name)
{
    std::vector<std::string_view> names;
    for (const Report& report : kReports) {
        if (EqualsNoCase(report.name, name))
            return report;
        names.push_back(report.name);
    }
    throw UsageError("There is no report \"" + std::string(name) + "\"." + DidYouMean(name, names));
}

}  // namespace kavelin::host
