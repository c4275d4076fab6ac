#include "journal/WtPasses.h"

#include "frame/Statement.h"
#include "frame/Text.h"
#include "journal/WtText.h"

#include <algorithm>

namespace kavelin {

namespace {

// ---- conditions on the account

constexpr std::string_view kGoodsSent = "发出商品";
constexpr std::string_view kIssueNote = "销售出库单";
constexpr std::string_view kInvoice = "销售发票";

bool Always(const WtFlags&)
{
    return true;
}

bool PostsIssueNotes(const WtFlags& flags)
{
    return flags.bSaleType == kGoodsSent || flags.bSaleType == kIssueNote ||
           flags.cEnDispAccountStyle == kIssueNote || flags.cExSaleAccType == kIssueNote;
}

bool SellsByInstalments(const WtFlags& flags)
{
    return flags.bFQSK;
}

bool PostsGoodsSent(const WtFlags& flags)
{
    return flags.cEnDispAccountStyle == kGoodsSent || flags.bSaleType == kGoodsSent;
}

bool PostsInvoices(const WtFlags& flags)
{
    return flags.cEnDispAccountStyle == kInvoice || flags.bSaleType == kInvoice;
}

bool PostsExportInvoices(const WtFlags& flags)
{
    return flags.cExSaleAccType == kInvoice;
}

bool HasDirectBusiness(const WtFlags& flags)
{
    return flags.bZYXS;
}

// ---- statements

std::string InsertFrom(const WtUnpostedRun& run, std::string_view source)
{
    return "Insert Into " + run.strTable + run.strSelect + std::string(source);
}

// The list of voucher types, as a condition.
std::string InVouTypes(const WtUnpostedRun& run)
{
    return run.strVouTypes.empty() ? "" : " and NoSub.cVouType in (" + run.strVouTypes + ")";
}

std::string InsertDocuments(const WtUnpostedRun& run, std::string_view source)
{
    return InsertFrom(run, source) + run.strJoin + " where " + run.strWhere;
}

template <char Tens, char Ones>
std::string InsertStockDocuments(const WtUnpostedRun& run, std::string_view source)
{
    constexpr char kCode[] = {Tens, Ones};
    return SpecializeRdView(InsertDocuments(run, source), std::string_view(kCode, 2));
}

std::string InsertInstalments(const WtUnpostedRun& run, std::string_view source)
{
    return InsertDocuments(run, source) + " and NoSub.cBusType=N'分期收款' ";
}

// Dispatch notes, unless an issue note or an invoice of theirs is posted.
std::string InsertGoodsSent(const WtUnpostedRun& run, std::string_view source)
{
    std::string kinds;
    if (run.flags.cEnDispAccountStyle == kGoodsSent)
        kinds = "NoSub.cBusType=N'委托代销'";
    if (run.flags.bSaleType == kGoodsSent)
        kinds += std::string(kinds.empty() ? "" : " OR ") + "NoSub.cBusType=N'普通销售'";

    return JoinLines({
        InsertFrom(run, source),
        " left join rdrecords32 rdrecords  ON NoSub.ID=rdrecords.IDLSID",
        run.strJoin + " where IsNull(rdrecords.cBaccounter, N'') = N'' ",
        " AND not exists(select autoid from salebillvouchs where idlsid = nosub.idlsid"
        " and isnull(cbaccounter,N'')<>N'' ) ",
        " And " + run.strWhere + " and (" + kinds + ")",
    });
}

// Invoices, unless an issue note of theirs is posted, with which they are connected directly or by the
// dispatch.
std::string InsertInvoices(const WtUnpostedRun& run, std::string_view source)
{
    const std::string ordinary = run.flags.bSaleType == kInvoice ? "" : "and NoSub.cBusType <> N'普通销售' ";
    const std::string entrusted =
        run.flags.cEnDispAccountStyle == kInvoice ? "" : "and NoSub.cBusType not in (N'委托',N'委托代销')";

    return JoinLines({
        InsertFrom(run, source) + run.strJoin +
            " left join rdrecords32 rdrecords  ON NoSub.ID=rdrecords.ISBSID",
        " LEFT JOIN dispatchlists ON NoSub.cDLCode=dispatchlists.IDLSID",
        " LEFT JOIN rdrecords32 Rs2 ON dispatchlists.IDLSID=Rs2.IDLSID",
        " where isnull(NoSub.cAccounter,'')='' and " + run.strWhere + " and left(NoSub.cBusType,2)<>N'直运'",
        " and isnull(rdrecords.cBAccounter,'')='' and isnull(Rs2.cBAccounter,'')='' ",
        " And NoSub.cSTCode is not null",
        " and NoSub.iTB <> 1",
        " and NoSub.iQuantity<>0" + InVouTypes(run),
        ordinary + entrusted + "and NoSub.cBusType <> N'分期收款'",
    });
}

// Consignment lines of which an export issue note is posted.
constexpr const char* kPostedExportIssues =
    " left join (select idlsid,max(cbaccounter) as cbaccounter,csource from rdrecord32 rdrecord"
    " inner join rdrecords32 rdrecords on rdrecord.id=rdrecords.id"
    " where (isnull(csource,N'')=N'出口销货单' or isnull(csource,N'')=N'出口退货单')"
    " and isnull(cbaccounter,N'')<>N'' group by idlsid,csource )  rdm on "
    "  rdm.idlsid = NoSub.iconsignmentautoid ";

// Export invoices, unless an issue note made from their consignment is posted.
std::string InsertExportInvoices(const WtUnpostedRun& run, std::string_view source)
{
    return JoinLines({
        InsertFrom(run, source) + run.strJoin + kPostedExportIssues,
        " where isnull(NoSub.cAccounter,N'')=N'' and " + run.strWhere +
            " and left(NoSub.cBusType,2)<>N'直运'",
        " and  isnull(rdm.cbaccounter,'')=''  and NoSub.cvoutype in (N'EX26',N'EX27') ",
        " and isnull(rdm.csource,N'')<>N'发货单' and isnull(rdm.csource,N'')<>N'退货单' " + InVouTypes(run),
    });
}

std::string InsertDirect(const WtUnpostedRun& run, std::string_view source)
{
    return InsertFrom(run, source) + run.strJoin + " where isnull(cAccounter,'')='' and " +
           run.strDirectWhere + " and left(NoSub.cBusType,2)=N'直运'";
}

std::string InsertDirectInvoices(const WtUnpostedRun& run, std::string_view source)
{
    return InsertDirect(run, source) + InVouTypes(run);
}

std::string InsertDirectPurchases(const WtUnpostedRun& run, std::string_view source)
{
    return InsertDirect(run, source) + " and NoSub.cVouType in (N'01',N'02')";
}

std::string InsertAdjustments(const WtUnpostedRun& run, std::string_view source)
{
    return InsertDocuments(run, source) + InVouTypes(run);
}

// ---- the passes

constexpr std::string_view k01[] = {"'01'"};
constexpr std::string_view k08[] = {"'08'"};
constexpr std::string_view k09[] = {"'09'"};
constexpr std::string_view k10[] = {"'10'"};
constexpr std::string_view k11[] = {"'11'"};
constexpr std::string_view k32[] = {"'32'"};
constexpr std::string_view k05[] = {"'05'"};
constexpr std::string_view kInvoices[] = {"'27'", "'26'", "'28'", "'29'"};
constexpr std::string_view kExports[] = {"'ex"};
constexpr std::string_view k25[] = {"'25'"};
constexpr std::string_view kDirectInvoices[] = {"'27'", "'26'"};
constexpr std::string_view kAdjustments[] = {"'21'", "'20'"};
constexpr std::string_view k70[] = {"'70'"};

constexpr std::string_view kStock = " From rpt_rdrecordsIA870wt NoSub ";
constexpr std::string_view kDispatches = " From dispatchlistsIA870wt NoSub ";
constexpr std::string_view kSales = " From SaleBillVouchsIA870wt NoSub ";
constexpr std::string_view kExportSales = " From v_ex_invoicedetailIA870wt NoSub ";
constexpr std::string_view kPurchases = " From PurBillVouchsIA870wt NoSub ";
constexpr std::string_view kChanges = " From JustinVouchsIA870wt NoSub ";
constexpr std::string_view kVendorManaged = " From rpt_PU_v_VMIUsedVouchsIA870wt NoSub ";

// clang-format off
constexpr WtPass kPasses[] = {
    // types                 only if               source          statement
    { 1, k01,              Always,              kStock,         InsertStockDocuments<'0', '1'>},
    { 2, k08,              Always,              kStock,         InsertStockDocuments<'0', '8'>},
    { 3, k09,              Always,              kStock,         InsertStockDocuments<'0', '9'>},
    { 4, k10,              Always,              kStock,         InsertStockDocuments<'1', '0'>},
    { 5, k11,              Always,              kStock,         InsertStockDocuments<'1', '1'>},
    { 6, k32,              PostsIssueNotes,     kStock,         InsertStockDocuments<'3', '2'>},
    { 7, k05,              SellsByInstalments,  kDispatches,    InsertInstalments},
    { 8, k05,              PostsGoodsSent,      kDispatches,    InsertGoodsSent},
    { 9, kInvoices,        PostsInvoices,       kSales,         InsertInvoices},
    {10, kExports,         PostsExportInvoices, kExportSales,   InsertExportInvoices},
    {11, kExports,         Always,              kExportSales,   InsertDirectInvoices},
    {12, k25,              HasDirectBusiness,   kPurchases,     InsertDirectPurchases},
    {13, kDirectInvoices,  HasDirectBusiness,   kSales,         InsertDirectInvoices},
    {14, kAdjustments,     Always,              kChanges,       InsertAdjustments},
    {15, k70,              Always,              kVendorManaged, InsertDocuments},
};
// clang-format on

}  // namespace

std::span<const WtPass> WtPasses()
{
    return kPasses;
}

bool Allows(std::string_view strVouTypes, const WtPass& pass)
{
    const std::string list = ToLower(strVouTypes);
    return list.empty() || std::ranges::any_of(pass.codes, [&](std::string_view code) {
               return list.find(code) != list.npos;
           });
}

}  // namespace kavelin
