// A sale goes through dispatch note, stock issue and invoice, and in the receipt-issue-balance summary through one
// of them, whatever the account's settings say: on copies of the demo companies, whose settings are changed.
#include "demo/profiles/Profile.h"
#include "reports/AccountReport.h"
#include "reports/StockBook.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

struct SaleLine {
    std::string sale;  // the dispatch or consignment line behind it
    std::string kind;  // with the type of a stock document
    bool posted = false;
    bool stockSale = false;  // ordinary or export: neither entrusted nor by instalments
};

using SaleLines = std::map<std::string, SaleLine>;  // by number of the line

SaleLines ReadSaleLines(AccountReport& report)
{
    SaleLines lines;
    for (
        const auto& row : report.Table(
            "select l.LineID, isnull(l.iDLsID, c.LineID), h.Kind, case when isnull(l.cAccounter, N'') = N'' then 0 else 1"
            " end, left(isnull(h.cBusType, N''), 2)"
            " from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID"
            " left join Demo_DocumentLine c on c.cGuid = l.cGuidSource and h.Kind = N'EXINV'"
            " where (h.Kind in (N'DISP', N'SALE', N'EXINV') or h.Kind = N'RD' and h.cVouType = N'32')"
            " and isnull(l.iDLsID, c.LineID) is not null"))
        lines[row[0]] = {row[1], row[2], row[3] == "1", row[4] != "委托" && row[4] != "分期"};
    return lines;
}

// Kinds of the posted lines, by sale.
std::map<std::string, std::set<std::string>> PostedKinds(const SaleLines& lines)
{
    std::map<std::string, std::set<std::string>> kinds;
    for (const auto& [id, line] : lines)
        if (line.posted)
            kinds[line.sale].insert(line.kind);
    return kinds;
}

// Issues and invoices of ordinary and export sales give way to a posted one of the other kind. Dispatch notes, and
// the documents of entrusted sales, are compared with nothing: where an account goes over to other documents for
// them, those of the old kind have to be posted first.
bool AreCompared(const SaleLine& line, const std::string& posted)
{
    return line.stockSale && line.kind != "DISP" && posted != "DISP";
}

class StockSalesOf : public testing::TestWithParam<std::string> {
  protected:
    bool HasDirectBusiness() const { return GetParam() != "goods-sent" && GetParam() != "shop"; }

    // Of the documents in the report's pool.
    void ExpectCountedOnce(AccountReport& report, const SaleLines& lines, const std::string& what)
    {
        auto postedKinds = PostedKinds(lines);
        std::set<std::string> seen;
        std::map<std::string, std::set<std::string>> kinds;  // by sale
        for (const auto& row : report.Table("select id from {} where bacc = 1")) {
            EXPECT_TRUE(seen.insert(row[0]).second) << what << ": line " << row[0] << " is counted twice";
            const auto found = lines.find(row[0]);
            if (found == lines.end())
                continue;
            const SaleLine& line = found->second;
            EXPECT_FALSE(line.posted) << what << ": line " << row[0];
            kinds[line.sale].insert(line.kind);
            ++dicCounted[line.kind];
            for (const std::string& posted : postedKinds[line.sale])
                EXPECT_FALSE(AreCompared(line, posted) && posted != line.kind)
                    << what << ": line " << row[0] << " is counted beside a posted " << posted;
        }
        for (const auto& entry : kinds)
            EXPECT_EQ(entry.second.size(), 1u) << what << ": sale " << entry.first;
    }

    const demo::Profile& objProfile = *demo::FindProfile(GetParam());
    std::map<std::string, int> dicCounted;  // lines by kind, over all runs
};

void SetParameter(AccountReport& report, const std::string& name, const std::string& value)
{
    report.Execute("update AccInformation set cValue = N'" + value + "' where cName = N'" + name + "'");
}

// An account that posts ordinary sales by the dispatch note has no issue notes of them.
void DeleteIssueNotes(AccountReport& report)
{
    report.Execute(
        "delete from Demo_DocumentLine from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID"
        " where h.Kind = N'RD' and h.cVouType = N'32' and h.cBusType = N'普通销售'");
}

}  // namespace

TEST_P(StockSalesOf, AreCountedOnceUnderEverySetting)
{
    const std::string year = "dVouDate=2008-01-01..2008-12-31";
    const AccountCopy copy(objProfile);
    AccountReport report(copy.Path(), "stock-summary", {year});
    std::vector<std::string> withDirect = {year, "vouEstate=已记账单据,未记账单据,直运单据"};
    for (const auto& row : report.Table("select cWhCode from Warehouse order by cWhCode"))
        withDirect.push_back("cwhcode=" + row[0]);
    const struct {
        std::vector<std::string> settings;
        bool direct;
    } choices[] = {{{year, "vouEstate=已记账单据,未记账单据"}, false},
                   {{year, "vouEstate=已记账单据,未记账单据,直运单据"}, true},
                   {withDirect, true}};

    for (const char* saleType : {"true", "false", "销售发票", "发出商品"}) {
        SetParameter(report, "bSaleType", saleType);
        if (std::string(saleType) == "发出商品")
            DeleteIssueNotes(report);
        const SaleLines lines = ReadSaleLines(report);
        for (const char* style : {"发出商品", "销售发票"}) {
            SetParameter(report, "cEnDispAccountStyle", style);
            for (const auto& choice : choices) {
                const std::string what =
                    std::string(saleType) + ", " + style + ", direct business " +
                    (choice.direct ? choice.settings.size() > 2 ? "too" : "only" : "left out");
                report.RunAgain(choice.settings);
                EXPECT_TRUE(report.Messages().empty()) << what;
                ExpectCountedOnce(report, lines, what);
                EXPECT_EQ(report.Rows("select count(*) from {} where left(cbustype, 2) = N'直运'") != "0\n",
                          choice.direct && HasDirectBusiness())
                    << what;
            }
        }
    }
    EXPECT_GT(dicCounted["DISP"], 0);
    EXPECT_GT(dicCounted["SALE"], 0);
    EXPECT_EQ(dicCounted["RD"] > 0, GetParam() != "goods-sent");
}

INSTANTIATE_TEST_SUITE_P(Profiles, StockSalesOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
