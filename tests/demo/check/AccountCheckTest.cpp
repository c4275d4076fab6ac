// A small account by hand whose books reconcile, and what each check says when one row of it is changed.
#include "demo/check/AccountCheck.h"

#include "demo/NewAccount.h"
#include "demo/QueryRows.h"
#include "demo/Scripts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::demo {
namespace {

constexpr const char* kAccount[] = {
    "insert into AccInformation (cSysID, cName, cValue) values (N'IA', N'cValueStyle', N'按仓库核算'),"
    " (N'IA', N'bSaleType', N'销售出库单'), (N'IA', N'dIAStartDate', N'2008-01-01')",
    "insert into InventoryClass (cInvCCode) values (N'01')",
    "insert into Inventory (cInvCode, cInvCCode, bCheckFree1, bCheckBatch) values (N'A', N'01', 0, 0),"
    " (N'K', N'01', 1, 1), (N'P', N'01', 0, 1), (N'N', N'01', 0, 0)",
    "insert into Department (cDepCode) values (N'0401')",
    "insert into Warehouse (cWhCode, cDepCode, bInCost, cWhValueStyle) values"
    " (N'01', N'0401', 1, N'全月平均法'), (N'02', N'0401', 1, N'计划价法')",
    "insert into VendorClass (cVCCode) values (N'01')",
    "insert into Vendor (cVenCode, cVenName, cVCCode) values (N'V1', N'甲', N'01')",
    "insert into CustomerClass (cCCCode) values (N'01')",
    "insert into Customer (cCusCode, cCCCode) values (N'C1', N'01')",
    "insert into Rd_Style (cRdCode) values (N'101'), (N'201')",
    "insert into gl_AccVouch (cOutNo_ID) values (N'IA1'), (N'CA1')",
    "insert into Pursettlevouchs (ID, iSVQuantity, iSVPrice) values (1, 5, 63)",

    // Posted: a receipt, a material issue, a dispatch with its invoice, a direct purchase, a receipt of the
    // year before. Unposted: an other receipt and an ordinary dispatch.
    "insert into Demo_Document (DocID, Kind, cVouType, cVouCode, dVouDate, cBusType) values"
    " (1, N'RD', N'01', N'R1', '2008-01-02', N'普通采购'), (2, N'RD', N'11', N'M1', '2008-01-03', N'领料'),"
    " (3, N'DISP', N'05', N'D1', '2008-01-04', N'委托代销'), (4, N'SALE', N'26', N'S1', '2008-01-05', N'委托代销'),"
    " (5, N'PUR', N'01', N'P1', '2008-01-06', N'直运采购'), (6, N'RD', N'08', N'O1', '2008-01-07', N'其他入库'),"
    " (7, N'DISP', N'05', N'D2', '2008-01-08', N'普通销售'), (8, N'RD', N'01', N'R0', '2007-12-30', N'普通采购')",
    "insert into Demo_DocumentLine (LineID, DocID, cInvCode, bRdFlag, iQuantity, cAccounter, dKeepDate) values"
    " (11, 1, N'A', 1, 5, N'w', '2008-01-02'), (21, 2, N'A', 0, 6, N'w', '2008-01-03'),"
    " (31, 3, N'A', 0, 2, N'w', '2008-01-04'), (41, 4, N'A', 0, 1, N'w', '2008-01-05'),"
    " (51, 5, N'A', 1, 1, N'w', '2008-01-06'), (61, 6, N'A', 1, 1, NULL, NULL),"
    " (71, 7, N'A', 0, 1, N'', NULL), (81, 8, N'A', 1, 9, N'w', '2007-12-30')",

    // A: 10 for 100 lie there, 5 come for 60 and 3 more when they are settled, 6 go for 64 and 2 for 21.33.
    // The memo of an open estimate (33) changes nothing.
    "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, cBusType, bRdFlag, bFlag,"
    " cInvCode, cFree1, cBatchIA, cWhCode, ID, iAInQuantity, iAInPrice, iAOutQuantity, iAOutPrice,"
    " iDebitDifCost, cPZID, cVenCode, cRdCode, psvsid) values"
    " (2008, 0, '2008-01-01', '2008-01-01', N'w', N'34', NULL, 1, 0,"
    "  N'A', NULL, NULL, N'01', NULL, 10, 100, NULL, NULL, NULL, NULL, NULL, NULL, NULL),"
    " (2008, 1, '2008-01-02', '2008-01-02', N'w', N'01', N'普通采购', 1, 1,"
    "  N'A', NULL, NULL, N'01', 11, 5, 60, NULL, NULL, NULL, N'IA1', N'V1', N'101', NULL),"
    " (2008, 1, '2008-01-03', '2008-01-03', N'w', N'11', N'领料', 0, 0,"
    "  N'A', NULL, NULL, N'01', 21, NULL, NULL, 6, 64, NULL, NULL, NULL, N'201', NULL),"
    " (2008, 1, '2008-01-04', '2008-01-04', N'w', N'05', N'委托代销', 0, 0,"
    "  N'A', NULL, NULL, N'01', 31, NULL, NULL, 2, 21.33, NULL, NULL, NULL, NULL, NULL),"
    " (2008, 1, '2008-01-02', '2008-01-09', N'w', N'20', N'暂估报销', 1, 2,"
    "  N'A', NULL, NULL, N'01', 11, NULL, 3, NULL, NULL, NULL, NULL, N'V1', N'101', 1),"
    " (2008, 0, '2007-12-30', '2008-01-01', N'w', N'33', N'普通采购', 1, 1,"
    "  N'A', NULL, NULL, N'01', 81, 9, 90, NULL, NULL, NULL, NULL, N'V1', NULL, NULL),"
    " (2008, 1, '2008-01-06', '2008-01-06', N'w', N'25', N'直运采购', 1, 0,"
    "  N'A', NULL, NULL, NULL, 51, 1, 7, NULL, NULL, NULL, NULL, N'V1', NULL, NULL),"
    // K keeps colours and batches, P is at planned prices, where batches are no part of the key.
    " (2008, 0, '2008-01-01', '2008-01-01', N'w', N'34', NULL, 1, 0,"
    "  N'K', N'红', N'B1', N'01', NULL, 1, 5, NULL, NULL, NULL, NULL, NULL, NULL, NULL),"
    " (2008, 0, '2008-01-01', '2008-01-01', N'w', N'34', NULL, 1, 0,"
    "  N'P', N'x', N'B1', N'02', NULL, 4, 40, NULL, NULL, 2, NULL, NULL, NULL, NULL)",
    "insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, cFree1, cBatchIA, iDirect, iPeriod,"
    " iINum, iIMoney, iONum, iOMoney, iNum, iMoney, iDif) values"
    " (2008, 0, N'A', N'01', N'', N'', 0, 0, 0, 0, 0, 0, 10, 100, 0),"
    " (2008, 1, N'A', N'01', N'', N'', 0, 0, 5, 63, 8, 85.33, 7, 77.67, 0),"
    " (2008, 0, N'K', N'01', N'红', N'B1', 0, 0, 0, 0, 0, 0, 1, 5, 0),"
    " (2008, 1, N'K', N'01', N'红', N'B1', 0, 0, 0, 0, 0, 0, 1, 5, 0),"
    " (2008, 0, N'P', N'02', N'', N'', 0, 0, 0, 0, 0, 0, 4, 40, 2),"
    " (2008, 1, N'P', N'02', N'', N'', 0, 0, 0, 0, 0, 0, 4, 40, 2),"
    " (2008, 0, N'N', N'01', N'', N'', 0, 0, 0, 0, 0, 0, 0, 0, 0),"
    " (2008, 1, N'N', N'01', N'', N'', 0, 0, 0, 0, 0, 0, 0, 0, 0),"
    " (2008, 1, N'A', NULL, N'', N'', 1, 0, 1, 7, 0, 0, 1, 7, 0),"
    " (2008, 1, N'A', N'01', N'', N'', 0, 1, 5, 63, 8, 85.33, NULL, NULL, NULL)",

    // Two are on the way, one of them is invoiced; a return of another line stands below zero.
    "insert into IA_EnSubsidiary (inid, cVouType, iSrcID, cSrcVouType, iYear, iMonth, dVouDate, cAccounter, bRdFlag,"
    " iAInQuantity, iAInPrice, iAOutQuantity, iAOutPrice, cInvCode, cCusCode) values"
    " (31, N'05', 31, N'05', 2008, 1, '2008-01-04', N'w', 1, 2, 21.33, NULL, NULL, N'A', N'C1'),"
    " (41, N'26', 31, N'05', 2008, 1, '2008-01-05', N'w', 0, NULL, NULL, 1, 10.67, N'A', N'C1'),"
    " (32, N'06', 32, N'06', 2008, 0, '2007-12-04', N'w', 1, -3, -30, NULL, NULL, N'A', N'C1'),"
    " (42, N'27', 32, N'06', 2008, 1, '2008-01-05', N'w', 0, NULL, NULL, -3, -30, N'A', N'C1')",

    "insert into Demo_SubsidiaryStd (AutoID, fInvStdPrice, fLaborStdPrice) values (2, 50, 5)",
    "insert into pl_co_SubSidiary (ia_autoid, cDifPZID, fInvPriceDif, fOmCostDif) values (2, N'CA1', 6, -1)",
};

class AccountCheckTest : public testing::Test {
  protected:
    AccountCheckTest()
        : objAccount(objFolder / "books.kavelin"), cnnAccount(ConnectTo(objFolder / "books.kavelin"))
    {
        RunScripts(*cnnAccount, "rows");
        for (const char* statement : kAccount)
            cnnAccount->Execute(statement);
    }

    // The checks that fail, each with its first difference: "balance: 2008|A|01|||1|1|0\n".
    std::string Failures()
    {
        std::string text;
        for (const CheckResult& result : CheckAccount(*cnnAccount)) {
            if (result.Passed())
                continue;
            text += std::string(result.name) + ":";
            for (const std::string& field : result.differences.front())
                text += (text.ends_with(":") ? " " : "|") + field;
            text += "\n";
        }
        return text;
    }

    TestFolder objFolder;
    NewAccount objAccount;
    std::shared_ptr<Connection> cnnAccount;
};

TEST_F(AccountCheckTest, FindsNothingInBooksThatReconcile)
{
    EXPECT_EQ(Failures(), "");
}

TEST_F(AccountCheckTest, CountsWhatItChecked)
{
    std::string text;
    for (const CheckResult& result : CheckAccount(*cnnAccount))
        for (const Counted& counted : result.counted)
            text +=
                std::string(result.name) + " " + std::to_string(counted.count) + " " + counted.what + "\n";
    for (const char* line :
         {"balance 4 costing keys\nbalance 8 months\n", "summary 9 ledger rows\n",
          "direct 1 month of direct business\n", "transit-sign 2 source lines\n", "posted 5 posted lines\n",
          "unposted 2 unposted lines\n", "settlements 1 settlement\n", "standard-costs 1 standard cost\n"})
        EXPECT_NE(text.find(line), text.npos) << line << text;
}

TEST_F(AccountCheckTest, LeavesNoWorkTableAndRunsAgain)
{
    EXPECT_EQ(Failures(), "");
    EXPECT_EQ(Failures(), "");
}

struct Break {
    const char* what;
    const char* statement;
    const char* failures;
};

void PrintTo(const Break& broken, std::ostream* out)
{
    *out << broken.what;
}

class BrokenAccountTest : public AccountCheckTest, public testing::WithParamInterface<Break> {};

TEST_P(BrokenAccountTest, IsFoundByTheCheckOfItsRule)
{
    cnnAccount->Execute(GetParam().statement);
    EXPECT_EQ(Failures(), GetParam().failures);
}

// Keys of the summary: year, item, warehouse, colour, batch, month.
INSTANTIATE_TEST_SUITE_P(
    Rules, BrokenAccountTest,
    testing::Values(
        Break{
            "A quantity at the end of the month is one too many",
            "update IA_Summary set iNum = 8 where cInvCode = N'A' and iMonth = 1 and iDirect = 0 and iPeriod = 0",
            "balance: 2008|A|01|||1|1|0\n"},
        Break{"An amount at the end of the month is a cent too small",
              "update IA_Summary set iMoney = 77.66 where cInvCode = N'A' and iMonth = 1 and iDirect = 0"
              " and iPeriod = 0",
              "balance: 2008|A|01|||1|0|-0.01\n"},
        Break{"The next month does not begin where the opening ends",
              "update IA_Summary set iNum = 2 where cInvCode = N'K' and iMonth = 1",
              "balance: 2008|K|01|红|B1|1|1|0\n"},
        Break{"An opening line is a cent dearer than the summary says",
              "update IA_Subsidiary set iAInPrice = 100.01 where AutoID = 1",
              "summary: 2008|A|01|||0|0|0.01|0|0|0\n"},
        Break{"An issue is a cent dearer than the summary says",
              "update IA_Subsidiary set iAOutPrice = 64.01 where AutoID = 3",
              "summary: 2008|A|01|||1|0|0|0|0.01|0\n"},
        Break{"A difference of the plan is lost",
              "update IA_Subsidiary set iDebitDifCost = NULL where AutoID = 9",
              "summary: 2008|P|02|||0|0|0|0|0|-2\n"},
        Break{"A memo of an estimate is counted as stock",
              "update IA_Subsidiary set cVouType = N'34' where AutoID = 6",
              "summary: 2008|A|01|||0|9|90|0|0|0\n"},
        Break{"Goods move without a summary row", "delete from IA_Summary where cInvCode = N'K'",
              "summary: 2008|K|01|红|B1|0|1|5|0|0|0\nsummary-rows: 2008|K|01|红|B1|0|0\n"},
        Break{"A month stands in the summary twice",
              "insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode) values (2008, 1, N'N', N'01')",
              "summary-rows: 2008|N|01|||1|2\nsummary-months: 2008|N|01|||0|1|3\n"},
        Break{"A month without movement is left out",
              "delete from IA_Summary where cInvCode = N'N' and iMonth = 1",
              "summary-months: 2008|N|01|||0|0|1\n"},
        Break{"Direct business is summed up wrongly", "update IA_Summary set iIMoney = 8 where iDirect = 1",
              "direct: 2008|A|1|0|-1|0|0\n"},
        Break{"Direct business is counted as stock",
              "update IA_Subsidiary set cBusType = NULL where AutoID = 7",
              "summary: 2008|A||||1|1|7|0|0|0\nsummary-rows: 2008|A||||1|0\ndirect: 2008|A|1|-1|-7|0|0\n"},
        Break{"More is invoiced than was sent",
              "update IA_EnSubsidiary set iAOutQuantity = 3 where AutoID = 2",
              "transit-sign: 2008|05|31|-1|2\n"},
        Break{"More is credited than came back",
              "update IA_EnSubsidiary set iAOutQuantity = -4 where AutoID = 4",
              "transit-sign: 2008|06|32|-3|1\n"},
        Break{"An invoice takes what never went in",
              "update IA_EnSubsidiary set iSrcID = 999 where AutoID = 2", "transit-source: 2|26|41|05|999\n"},
        Break{"An amount is left in transit", "update IA_EnSubsidiary set iAOutQuantity = 2 where AutoID = 2",
              "transit-amount: 2008|05|31|10.66\n"},
        Break{"A posted line is in no ledger", "update IA_Subsidiary set ID = NULL where AutoID = 3",
              "posted: RD|11|M1|21|0\n"},
        Break{"A posted line is in the ledger twice",
              "update IA_Subsidiary set ID = 21, cVouType = N'11' where AutoID = 4",
              "posted: RD|11|M1|21|2\nquantities: 4|11||21|6|2\n"},
        Break{"An invoice is posted but its goods are still on the way",
              "update IA_EnSubsidiary set cAccounter = NULL where AutoID = 2", "posted: SALE|26|S1|41|0\n"},
        Break{"A line in the ledger counts as unposted",
              "update Demo_DocumentLine set cAccounter = NULL where LineID = 21",
              "unposted: RD|11|M1|21|1\n"},
        Break{"A document tells another quantity",
              "update Demo_DocumentLine set iQuantity = 7 where LineID = 21", "quantities: 3|11||21|7|6\n"},
        Break{"An unposted line is of an unknown item",
              "update Demo_DocumentLine set cInvCode = N'GONE' where LineID = 61",
              "journal-views: 61|rpt_rdrecordsIA870wt08|0|1\n"},
        Break{"A vendor is unknown", "update IA_Subsidiary set cVenCode = N'V9' where AutoID = 2",
              "master-data: IA_Subsidiary|cVenCode|V9|1\n"},
        Break{"A customer of goods in transit is unknown",
              "update IA_EnSubsidiary set cCusCode = N'C9' where iSrcID = 31",
              "master-data: IA_EnSubsidiary|cCusCode|C9|2\n"},
        Break{"A voucher is missing", "delete from gl_AccVouch where cOutNo_ID = N'IA1'",
              "vouchers: IA_Subsidiary|cPZID|IA1|1\n"},
        Break{"A difference voucher is missing", "delete from gl_AccVouch where cOutNo_ID = N'CA1'",
              "vouchers: pl_co_SubSidiary|cDifPZID|CA1|1\n"},
        Break{"A settlement is missing", "delete from Pursettlevouchs", "settlements: 5|20||1\n"},
        Break{"A standard cost is too high", "update Demo_SubsidiaryStd set fLaborStdPrice = 6",
              "standard-costs: IA_Subsidiary|2|56|5|60\n"},
        Break{"Two vendors have one name",
              "insert into Vendor (cVenCode, cVenName, cVCCode) values (N'V2', N'甲', N'01')",
              "single-rows: Vendor|甲|2\n"}));

TEST_F(AccountCheckTest, LooksIntoTheViewsOfBothReports)
{
    const auto replace = [&](const std::string& view, const std::string& where) {
        cnnAccount->Execute("drop view " + view);
        cnnAccount->Execute(
            "create view " + view +
            " as select l.LineID as ID, l.cAccounter from Demo_DocumentLine l inner join Demo_Document h"
            " on h.DocID = l.DocID where " +
            where);
    };
    replace("rpt_rdrecordsIA870", "h.Kind = N'RD' and l.LineID <> 61");
    EXPECT_EQ(Failures(), "summary-views: 61|rpt_rdrecordsIA870|0|1\n");
    replace("rpt_rdrecordsIA870", "h.Kind = N'RD'");
    // The journal's views are taken whole: a posted line must not be there.
    replace("dispatchlistsIA870wt", "h.Kind = N'DISP'");
    EXPECT_EQ(Failures(), "journal-views: 31|dispatchlistsIA870wt|1|0\n");
}

TEST_F(AccountCheckTest, ExpectsOrdinaryDispatchesInTheSummaryWhereTheyPostTheSale)
{
    cnnAccount->Execute("update AccInformation set cValue = N'发出商品' where cName = N'bSaleType'");
    EXPECT_EQ(Failures(), "");
}

TEST_F(AccountCheckTest, ShowsTheFirstTenDifferencesAndThatThereAreMore)
{
    for (int month = 2; month <= 12; ++month)
        cnnAccount->Execute("insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, iNum) values (2008, " +
                            std::to_string(month) + ", N'N', N'01', " + std::to_string(month) + ")");
    const std::vector<CheckResult> results = CheckAccount(*cnnAccount);
    const CheckResult& balance = results.front();
    EXPECT_EQ(balance.name, "balance");
    EXPECT_EQ(balance.differences.size(), kShownDifferences);
    EXPECT_TRUE(balance.more);
    EXPECT_EQ(balance.columns.front(), "iYear");
    EXPECT_EQ(balance.columns.back(), "amount");
}

TEST_F(AccountCheckTest, KnowsTheKeyOfAnAccountValuedByDepartmentOrItem)
{
    // By item the two warehouses are one key, and the summary names none.
    cnnAccount->Execute("update AccInformation set cValue = N'按存货核算' where cName = N'cValueStyle'");
    cnnAccount->Execute("update Inventory set cValueType = N'全月平均法'");
    cnnAccount->Execute("update Inventory set cValueType = N'计划价法' where cInvCode = N'P'");
    cnnAccount->Execute("update IA_Summary set cWhCode = NULL");
    cnnAccount->Execute("update IA_Subsidiary set cWhCode = N'02' where AutoID = 1");
    EXPECT_EQ(Failures(), "");

    cnnAccount->Execute("update AccInformation set cValue = N'按部门核算' where cName = N'cValueStyle'");
    cnnAccount->Execute("update IA_Summary set cDepCode = N'0401' where iDirect = 0");
    cnnAccount->Execute("update IA_Subsidiary set cDepCode = N'0401' where cWhCode is not null");
    EXPECT_EQ(Failures(), "");
    cnnAccount->Execute("update IA_Subsidiary set cDepCode = N'' where AutoID = 1");
    EXPECT_NE(Failures().find("summary: 2008|A||||0|10|100|0|0|0\n"), std::string::npos);
}

}  // namespace
}  // namespace kavelin::demo
