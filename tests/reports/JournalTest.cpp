// The journal on the demo companies, beside what other queries tell about their ledgers and documents.
#include "demo/profiles/Profile.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace kavelin::test {

namespace {

const std::string kPosted = "vouEstate=已记账单据";
const std::string kUnposted = "vouEstate=未记账单据";
const std::string kAllMonths = "iMonth=";  // takes the current month away

// The ledger's side of a journal: openings and memos are no movements, and a receipt adjustment that adjusts
// nothing is not shown. Without permissions only warehouses that take part in costing count.
std::string LedgerSums(const std::string& condition)
{
    return "select count(*), cast(sum(isnull(a.iAInQuantity,0)) as decimal(38,2)), sum(isnull(a.iAInPrice,0)),"
           " cast(sum(isnull(a.iAOutQuantity,0)) as decimal(38,2)), sum(isnull(a.iAOutPrice,0)),"
           " sum(isnull(a.iDebitDifCost,0)), sum(isnull(a.iCreditDifCost,0))"
           " from IA_Subsidiary a left join Inventory i on i.cInvCode = a.cInvCode"
           " where a.iMonth <> 0 and a.cVouType <> '33' and a.cVouType <> '34'"
           " and (a.cVouType <> '20' or isnull(a.iAInPrice,0) <> 0 or isnull(a.iDebitDifCost,0) <> 0"
           " or isnull(a.iCreditDifCost,0) <> 0)" +
           condition;
}

const std::string kJournalSums =
    "select count(*), cast(sum(isnull(收入数量,0)) as decimal(38,2)), sum(isnull(收入金额,0)),"
    " cast(sum(isnull(发出数量,0)) as decimal(38,2)), sum(isnull(发出金额,0)),"
    " sum(isnull(借方差异,0)), sum(isnull(贷方差异,0)) from {}";

class JournalOf : public testing::TestWithParam<std::string> {
  protected:
    const demo::Profile& objProfile = *demo::FindProfile(GetParam());

    std::string Setting(std::string_view name) const
    {
        for (const demo::Setting& setting : objProfile.settings)
            if (EqualsNoCase(setting.name, name))
                return std::string(setting.value.value_or(""));
        return "";
    }

    // Of all months, unless the settings name some.
    void ExpectLedger(std::vector<std::string> settings, const std::string& condition)
    {
        settings.insert(settings.begin(), {kPosted, kAllMonths});
        AccountReport report(objProfile, "journal", settings);
        const std::string wanted = report.Rows(LedgerSums(condition));
        EXPECT_EQ(report.Rows(kJournalSums), wanted) << settings.back();
        EXPECT_FALSE(wanted.starts_with("0 ")) << settings.back() << " shows nothing";
        EXPECT_TRUE(report.Messages().empty());
    }
};

// A line that is not posted, as the documents tell it.
struct OpenLine {
    std::string kind, type, business, issuePosted;
};

}  // namespace

TEST_P(JournalOf, ShowsTheLedgerRowsOfItsConditions)
{
    ExpectLedger({}, "");
    ExpectLedger({"dKeepDate=2008-03-01..2008-04-30"},
                 " and a.dKeepDate >= '2008-03-01' and a.dKeepDate <= '2008-04-30'");
    ExpectLedger({"dVouDate=2008-06-15.."}, " and a.dVouDate >= '2008-06-15'");
    ExpectLedger({"cWhCode=01", "cWhCode=02"}, " and a.cWhCode in ('01', '02')");
    ExpectLedger({"Inventory.cInvCCode=01"}, " and i.cInvCCode like '01%'");
    ExpectLedger({"Inventory.cInvCode=B..P"}, " and a.cInvCode >= 'B' and a.cInvCode <= 'P'");
    ExpectLedger({"NoSub.cRdCode=101"}, " and a.cRdCode = '101'");
    ExpectLedger({"NoSub.cBusType=普通采购"}, " and a.cBusType = N'普通采购'");
    ExpectLedger({"Vendor.cVCCode=01"},
                 " and a.cVenCode in (select cVenCode from Vendor where cVCCode like '01%')");
    ExpectLedger({"Customer.cCusCode=C001..C004"}, " and a.cCusCode >= 'C001' and a.cCusCode <= 'C004'");
}

// The current month of every demo company is December 2008, the last that has ledger lines.
TEST_P(JournalOf, ShowsTheCurrentMonthUnlessItIsToldOtherwise)
{
    const auto rows = [&](const std::vector<std::string>& settings) {
        return AccountReport(objProfile, "journal", settings).Rows(kJournalSums);
    };
    AccountReport december(objProfile, "journal", {});
    EXPECT_EQ(december.Rows(kJournalSums),
              december.Rows(LedgerSums(" and a.dKeepDate >= '2008-12-01' and a.dKeepDate <= '2008-12-31'")));
    // Documents that are not posted have no posting date.
    EXPECT_EQ(rows({kUnposted}), rows({kUnposted, kAllMonths, "dVouDate=2008-12-01..2008-12-31"}));
    EXPECT_EQ(rows({kUnposted, kPosted, "cWhCode=01"}),
              rows({kUnposted, kPosted, kAllMonths, "cWhCode=01", "dVouDate=2008-12-01..2008-12-31"}));
}

TEST_P(JournalOf, ShowsTheMonthsThatTheDialogOffers)
{
    const auto rows = [&](const std::vector<std::string>& settings) {
        return AccountReport(objProfile, "journal", settings).Rows(kJournalSums);
    };
    if (Setting("ArchiveDate").starts_with("2008")) {  // its months are closed
        EXPECT_THROW(rows({"iMonth=2008.03"}), host::UsageError);
        return;
    }
    EXPECT_EQ(rows({"iMonth=2008.03..2008.04"}), rows({"dKeepDate=2008-03-01..2008-04-30"}));
    EXPECT_EQ(rows({"iMonth=2008-11..", "cWhCode=01"}), rows({"dKeepDate=2008-11-01..", "cWhCode=01"}));
    EXPECT_EQ(rows({kUnposted, "iMonth=2008-11"}),
              rows({kUnposted, kAllMonths, "dVouDate=2008-11-01..2008-11-30"}));
}

TEST_P(JournalOf, ShowsTheHalvesOfAVoucherType)
{
    ExpectLedger({"cVouType=01"}, " and a.cVouType = '01' and a.bFlag <> 1");
    ExpectLedger({"cVouType=011"}, " and a.cVouType = '01' and a.bFlag = 1");
    ExpectLedger({"cVouType=01", "cVouType=011"}, " and a.cVouType = '01'");
    ExpectLedger({"cVouType=08", "cVouType=09"}, " and a.cVouType in ('08', '09')");
    if (GetParam() != "works" && GetParam() != "invoices") {  // whose estimates are not reversed
        ExpectLedger({"cVouType=30"}, " and a.cVouType = '30' and a.bFlag <> 1");
        ExpectLedger({"cVouType=301", "cVouType=20"},
                     " and ((a.cVouType = '30' and a.bFlag = 1) or a.cVouType = '20')");
    }
}

TEST_P(JournalOf, ShowsTheRowsOfOneAccountingVoucher)
{
    AccountReport report(objProfile, "journal", {kPosted, kAllMonths, "PzNoID=7"});
    EXPECT_EQ(
        report.Rows("select count(*) from {}"),
        report.Rows("select count(*) from IA_Subsidiary a inner join gl_AccVouch g on g.cOutNo_ID = a.cPZID"
                    " where g.iNo_ID = 7 and a.iMonth <> 0 and a.cVouType <> '33' and a.cVouType <> '34'"
                    " and (a.cVouType <> '20' or isnull(a.iAInPrice,0) <> 0 or isnull(a.iDebitDifCost,0) <> 0"
                    " or isnull(a.iCreditDifCost,0) <> 0)"));
    EXPECT_EQ(report.Rows("select count(*) from {} where 凭证号 not in (N'记7', N'转7')"), "0\n");
}

// Each line of a document that the account posts and has not posted yet is shown, once. The documents decide, by
// rules of their own: which document posts a sale, and whether another one of the same sale is posted.
TEST_P(JournalOf, ShowsEachUnpostedDocumentOnce)
{
    AccountReport report(objProfile, "journal", {kUnposted, kAllMonths});
    EXPECT_TRUE(report.Messages().empty());
    std::map<std::string, int> shown;
    for (const auto& row : report.Table("select AutoID from {}"))
        ++shown[row[0]];

    std::set<std::string> posted;  // lines behind a posted issue note: dispatches, consignments
    for (const auto& row : report.Table("select iDLsID from rdrecords32 where isnull(cBAccounter,'') <> ''"))
        posted.insert(row[0]);
    const std::string sale = Setting("bSaleType"), entrusted = Setting("cEnDispAccountStyle"),
                      exported = Setting("cExSaleAccType");
    const bool issues =
        sale == "发出商品" || sale == "销售出库单" || entrusted == "销售出库单" || exported == "销售出库单";

    std::set<std::string> wanted;
    for (
        const auto& row : report.Table(
            "select l.LineID, h.Kind, h.cVouType, isnull(h.cBusType,''), isnull(l.iDLsID,0),"
            " isnull(l.iConsignmentAutoID,0) from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID"
            " where isnull(l.cAccounter,'') = '' and h.dVouDate >= '" +
            Setting("dIAFirstDate") + "'")) {
        const std::string &kind = row[1], &type = row[2], &business = row[3];
        const bool direct = business.starts_with("直运");
        const bool consignment = business == "委托代销" || business == "委托";
        bool shows = false;
        if (kind == "RD")
            shows = type != "32" || issues;
        if (kind == "DISP")
            shows = business == "分期收款" ||
                    (!posted.contains(row[0]) && ((business == "委托代销" && entrusted == "发出商品") ||
                                                  (business == "普通销售" && sale == "发出商品")));
        if (kind == "SALE")
            shows = direct || (!posted.contains(row[4]) && ((business == "普通销售" && sale == "销售发票") ||
                                                            (consignment && entrusted == "销售发票")));
        if (kind == "EXINV")
            shows = direct || (exported == "销售发票" && !posted.contains(row[5]));
        if (kind == "PUR" || kind == "JUST" || kind == "VMI")
            shows = true;
        if (shows)
            wanted.insert(row[0]);
    }
    EXPECT_GT(wanted.size(), 50u);
    for (const std::string& line : wanted)
        EXPECT_EQ(shown[line], 1) << "line " << line;
    for (const auto& [line, count] : shown)
        EXPECT_TRUE(count == 0 || wanted.contains(line))
            << "line " << line << " is shown " << count << " times";
}

TEST_P(JournalOf, ShowsPostedAndUnpostedTogether)
{
    const auto count = [&](std::vector<std::string> settings) {
        settings.push_back(kAllMonths);
        return std::stol(AccountReport(objProfile, "journal", settings).Rows("select count(*) from {}"));
    };
    EXPECT_EQ(count({kPosted, kUnposted}), count({kPosted}) + count({kUnposted}));
    EXPECT_EQ(count({"vouEstate="}), 0);
}

INSTANTIATE_TEST_SUITE_P(Profiles, JournalOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
