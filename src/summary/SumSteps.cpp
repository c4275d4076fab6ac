#include "summary/SumSteps.h"

#include "frame/FilterWalk.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

// ---- when

bool Always(const SumSettings&)
{
    return true;
}

std::string TextOf(const Recordset& setting)
{
    return FilterText(setting.Field(0));
}

bool InvoiceCosts(const SumSettings& settings)
{
    return ToLower(TextOf(*settings.objSaleType)) == "true";
}

bool StockIssueCosts(const SumSettings& settings)
{
    return !InvoiceCosts(settings);
}

bool DispatchCostsEntrusted(const SumSettings& settings)
{
    return TextOf(*settings.objEntrustedStyle) == "发出商品";
}

bool InvoiceCostsEntrusted(const SumSettings& settings)
{
    return !DispatchCostsEntrusted(settings) && InvoiceCosts(settings);
}

bool StockIssueCostsEntrusted(const SumSettings& settings)
{
    return !DispatchCostsEntrusted(settings) && StockIssueCosts(settings);
}

bool Direct(const SumSettings& settings)
{
    return settings.blnDirect;
}

bool WithoutDirect(const SumSettings& settings)
{
    return !settings.blnDirect;
}

// Where the invoice costs, its lines are in the pool already; any other value than the two adds none.
bool DirectAndStockIssueCosts(const SumSettings& settings)
{
    return settings.blnDirect && ToLower(TextOf(*settings.objSaleType)) == "false";
}

// ---- what

std::string Insert(const SumPool& pool, const std::string& where, const SumStep& step)
{
    return InsertUnposted(pool, step.subject, false, where + std::string(step.condition));
}

std::string InsertWithDifference(const SumPool& pool, const std::string& where, const SumStep& step)
{
    return InsertUnposted(pool, step.subject, true, where + std::string(step.condition));
}

std::string Delete(const SumPool& pool, const std::string&, const SumStep& step)
{
    return "delete from " + pool.strTable + std::string(step.subject);
}

std::string DeleteJoined(const SumPool& pool, const std::string&, const SumStep& step)
{
    return "delete " + pool.strTable + " from " + pool.strTable + std::string(step.subject);
}

// ---- the other document of the same sale

constexpr std::string_view kStockIssues =
    " ia inner join Rdrecords   rd on rd.AutoID = ia.ID and ia.cVouType = N'32'  and bacc=1";

// These four join by the line's number alone, whatever kind of line it is in the pool.
constexpr std::string_view kInvoicesOfPostedIssues =
    " ia inner join salebillvouchs sales on sales.autoid=ia.id"
    " inner join rdrecords rds on rds.idlsid=sales.idlsid"
    " inner join rdrecord rd on rd.id=rds.id"
    " where isnull(rd.csource,'') not in (N'出口销货单',N'出口退货单') and isnull(rds.cbaccounter,'')<>''";
constexpr std::string_view kExportInvoicesOfPostedIssues =
    " ia inner join ex_invoicedetail ex on ex.autoid=ia.id"
    " inner join ex_consignmentdetail detail on ex.guid_source=detail.guids"
    " inner join rdrecords rds on rds.idlsid=detail.autoid"
    " inner join rdrecord rd on rd.id=rds.id"
    " where isnull(rd.csource,'') in (N'出口销货单',N'出口退货单') and isnull(rds.cbaccounter,'')<>''";
constexpr std::string_view kIssuesOfPostedInvoices =
    " ia inner join rdrecords rds on rds.autoid=ia.id"
    " inner join rdrecord rd on rd.id=rds.id"
    " inner join salebillvouchs sales on sales.idlsid=rds.idlsid"
    " where isnull(rd.csource,'') not in (N'出口销货单',N'出口退货单') and isnull(sales.cbaccounter,'')<>''";
constexpr std::string_view kIssuesOfPostedExportInvoices =
    " ia inner join rdrecords rds on rds.autoid=ia.id"
    " inner join rdrecord rd on rd.id=rds.id"
    " inner join ex_consignmentdetail detail on detail.autoid = rds.idlsid"
    " inner join ex_invoicedetail on ex_invoicedetail.guid_source=detail.guids"
    " where isnull(rd.csource,'') in (N'出口销货单',N'出口退货单')"
    " and isnull(ex_invoicedetail.cbaccounter,'')<>''";

// Sales by instalments keep their dispatch notes, whichever document costs other sales.
constexpr std::string_view kInstalments =
    "  where left(cbustype,2)=N'分期' and cvoutype not in ('05','06','5','6')";

constexpr std::string_view kEntrustedButDispatch =
    "  where left(cbustype,2)=N'委托' and cvoutype in ('09','11','32','26','27','28','29')";
constexpr std::string_view kEntrustedButInvoice =
    "  where left(cbustype,2)=N'委托' and cvoutype in ('05','06','5','6','32')";
constexpr std::string_view kEntrustedButStockIssue =
    "  where left(cbustype,2)=N'委托' and cvoutype in ('05','06','5','6','26','27','28','29')";

// clang-format off
constexpr SumStep kUnpostedSteps[] = {
    {Always,                   InsertWithDifference, "rpt_rdrecordsIA870"},
    {Always,                   Insert,               "justinvouchsIA870"},
    {InvoiceCosts,             Insert,               "salebillvouchsIA870"},
    {InvoiceCosts,             Insert,               "v_ex_invoicedetailIA870"},
    {InvoiceCosts,             DeleteJoined,         kStockIssues},
    {InvoiceCosts,             DeleteJoined,         kInvoicesOfPostedIssues},
    {InvoiceCosts,             DeleteJoined,         kExportInvoicesOfPostedIssues},
    {StockIssueCosts,          DeleteJoined,         kIssuesOfPostedInvoices},
    {StockIssueCosts,          DeleteJoined,         kIssuesOfPostedExportInvoices},
    {Always,                   InsertWithDifference, "rpt_PU_v_VMIUsedVouchsIA870"},
    {Always,                   Insert,               "DispatchListsIA870"},
    {Always,                   Delete,               kInstalments},
    {DispatchCostsEntrusted,   Delete,               kEntrustedButDispatch},
    {InvoiceCostsEntrusted,    Delete,               kEntrustedButInvoice},
    {StockIssueCostsEntrusted, Delete,               kEntrustedButStockIssue},
    {Direct,                   Insert,               "purbillvouchsIA870",      " and cbustype=N'直运采购'"},
    {DirectAndStockIssueCosts, Insert,               "v_ex_invoicedetailIA870", " and cbustype=N'直运销售'"},
    {DirectAndStockIssueCosts, Insert,               "salebillvouchsIA870",     " and cbustype=N'直运销售'"},
};

constexpr SumStep kClosingSteps[] = {
    {WithoutDirect, Delete, "  where left(cbustype,2)=N'直运' "},
};
// clang-format on

}  // namespace

std::span<const SumStep> UnpostedSumSteps()
{
    return kUnpostedSteps;
}

std::span<const SumStep> ClosingSumSteps()
{
    return kClosingSteps;
}

std::string SelectSumSetting(std::string_view name)
{
    return "select cValue from accinformation where csysid=N'IA' and cname=N'" + std::string(name) + "'";
}

}  // namespace kavelin
