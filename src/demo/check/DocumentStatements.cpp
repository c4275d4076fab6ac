#include "demo/check/DocumentStatements.h"

#include "frame/Statement.h"

#include <span>

namespace kavelin::demo {

namespace {

constexpr std::string_view kPosted = "isnull(l.cAccounter, N'') <> N''";

// Kinds of documents and the views that show their unposted lines.
struct View {
    std::string_view view, kind, voucherType;  // of any type where it is empty
};

constexpr View kJournalViews[] = {
    {"rpt_rdrecordsIA870wt01", "RD", "01"},     {"rpt_rdrecordsIA870wt08", "RD", "08"},
    {"rpt_rdrecordsIA870wt09", "RD", "09"},     {"rpt_rdrecordsIA870wt10", "RD", "10"},
    {"rpt_rdrecordsIA870wt11", "RD", "11"},     {"rpt_rdrecordsIA870wt32", "RD", "32"},
    {"dispatchlistsIA870wt", "DISP", ""},       {"SaleBillVouchsIA870wt", "SALE", ""},
    {"v_ex_invoicedetailIA870wt", "EXINV", ""}, {"PurBillVouchsIA870wt", "PUR", ""},
    {"JustinVouchsIA870wt", "JUST", ""},        {"rpt_PU_v_VMIUsedVouchsIA870wt", "VMI", ""},
};

constexpr View kSummaryViews[] = {
    {"rpt_rdrecordsIA870", "RD", ""},         {"justinvouchsIA870", "JUST", ""},
    {"salebillvouchsIA870", "SALE", ""},      {"DispatchListsIA870", "DISP", ""},
    {"v_ex_invoicedetailIA870", "EXINV", ""}, {"rpt_PU_v_VMIUsedVouchsIA870", "VMI", ""},
    {"purbillvouchsIA870", "PUR", ""},
};

// Lines by the view that has them and by the view that should; `leftOut` is a condition on a line `l` of a
// document `h` that no view has to show.
std::string WrongInViews(std::span<const View> views, std::string_view where, std::string_view leftOut)
{
    std::string shown;
    for (const View& view : views) {
        const std::string name = "N'" + std::string(view.view) + "'";
        const std::string type =
            view.voucherType.empty() ? "" : " and h.cVouType = N'" + std::string(view.voucherType) + "'";
        const std::string begin = shown.empty() ? "  from (" : "        ";
        shown += shown.empty() ? "" : EndLines({"        union all"});
        shown += EndLines({
            begin + "select v.ID, " + name + " as shownBy, 1 as shown, 0 as expected",
            "          from " + std::string(view.view) + " v" + std::string(where),
            "        union all",
            "        select l.LineID, " + name + ", 0, 1",
            "          from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID",
            "         where isnull(l.cAccounter, N'') = N'' and h.Kind = N'" + std::string(view.kind) + "'" +
                type + std::string(leftOut),
        });
    }
    return JoinLines({
        "select top 11 ID, shownBy, sum(shown) as shown, sum(expected) as expected",
        shown + "       ) x",
        " group by ID, shownBy",
        "having sum(shown) <> sum(expected)",
        " order by ID, shownBy",
    });
}

}  // namespace

std::string GatherPostings(const CheckFacts& facts)
{
    return JoinLines({
        "select LineID, sum(posted) as posted, sum(booked) as booked",
        "  into #CheckPosting",
        "  from (select l.LineID, case when " + std::string(kPosted) +
            " then 1 else 0 end as posted, 0 as booked",
        "          from Demo_DocumentLine l",
        "         where l.dKeepDate is null or l.dKeepDate >= '" + facts.strFirstDay + "'",
        "        union all",
        "        select l.LineID, 0, 1",
        "          from IA_Subsidiary a",
        "               inner join Demo_DocumentLine l on l.LineID = a.ID",
        "               inner join Demo_Document h on h.DocID = l.DocID",
        "         where (l.dKeepDate is null or l.dKeepDate >= '" + facts.strFirstDay + "')",
        "           and (a.cVouType = h.cVouType or a.cVouType = N'3201' and h.cVouType = N'32'",
        "                or a.cVouType = N'25' and h.Kind = N'PUR')",
        "        union all",
        "        select l.LineID, 0, 1",
        "          from IA_EnSubsidiary a",
        "               inner join Demo_DocumentLine l on l.LineID = a.inid",
        "               inner join Demo_Document h on h.DocID = l.DocID",
        "         where (l.dKeepDate is null or l.dKeepDate >= '" + facts.strFirstDay + "')",
        "           and a.cVouType = h.cVouType and a.cAccounter is not null",
        "           and (h.Kind = N'SALE' or h.Kind = N'JUST')) x",
        " group by LineID",
    });
}

std::string CountPostedLines()
{
    return "select count(*) from #CheckPosting where posted = 1";
}

std::string CountUnpostedLines()
{
    return "select count(*) from #CheckPosting where posted = 0";
}

std::string PostedLinesNotOnceInLedger()
{
    return JoinLines({
        "select top 11 h.Kind, h.cVouType, h.cVouCode, p.LineID, p.booked as ledgerRows",
        "  from #CheckPosting p",
        "       inner join Demo_DocumentLine l on l.LineID = p.LineID",
        "       inner join Demo_Document h on h.DocID = l.DocID",
        " where p.posted = 1 and p.booked <> 1",
        " order by p.LineID",
    });
}

std::string UnpostedLinesInLedger()
{
    return JoinLines({
        "select top 11 h.Kind, h.cVouType, h.cVouCode, p.LineID, p.booked as ledgerRows",
        "  from #CheckPosting p",
        "       inner join Demo_DocumentLine l on l.LineID = p.LineID",
        "       inner join Demo_Document h on h.DocID = l.DocID",
        " where p.posted = 0 and p.booked <> 0",
        " order by p.LineID",
    });
}

std::string QuantitiesThatDiffer(const CheckFacts& facts)
{
    return JoinLines({
        "select top 11 a.AutoID, a.cVouType, a.cVouCode, a.ID, l.iQuantity as ofDocument,",
        "       case when a.bRdFlag = 1 then a.iAInQuantity else a.iAOutQuantity end as ofLedger",
        "  from IA_Subsidiary a",
        "       inner join Demo_DocumentLine l on l.LineID = a.ID",
        "       inner join Demo_Document h on h.DocID = l.DocID",
        " where l.dKeepDate >= '" + facts.strFirstDay + "'",
        "   and (a.cVouType = h.cVouType or a.cVouType = N'3201' and h.cVouType = N'32'",
        "        or a.cVouType = N'25' and h.Kind = N'PUR')",
        "   and isnull(l.iQuantity, 0)",
        "       <> isnull(case when a.bRdFlag = 1 then a.iAInQuantity else a.iAOutQuantity end, 0)",
        " order by a.AutoID",
    });
}

std::string WrongInJournalViews()
{
    return WrongInViews(kJournalViews, "", "");
}

std::string WrongInSummaryViews(const CheckFacts& facts)
{
    // Where dispatch notes do not post ordinary sales, the view leaves them to the documents that do.
    return WrongInViews(
        kSummaryViews, " where isnull(v.cAccounter, N'') = N''",
        facts.blnGoodsSent ? "" : " and not (h.Kind = N'DISP' and isnull(h.cBusType, N'') = N'普通销售')");
}

}  // namespace kavelin::demo
