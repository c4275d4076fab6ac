// What the journal shows of a small account. The rows wanted are worked out by hand; what makes each of them stands
// beside it.
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kMasters[] = {
    "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd, bIsDelete) values"
    " (N'001', 2008, 7, '2008-07-01', '2008-07-31', 0)",
    "insert into AccInformation (cSysID, cName, cValue) values"
    " (N'IA', N'dIAFirstDate', N'2008-01-01'), (N'IA', N'dIAStartDate', N'2008-01-01'),"
    " (N'SA', N'bZYXS', N'False'), (N'SA', N'bFQSK', N'False'),"
    " (N'AA', N'bCommitSell', N'False'), (N'EX', N'dEXFirstDate', N''), (N'IA', N'bSaleType', N'销售出库单'),"
    " (N'IA', N'cEnDispAccountStyle', N'发出商品'), (N'IA', N'cExSaleAccType', N'销售发票'),"
    " (N'IA', N'cValueStyle', N'按仓库核算')",
    // 01 and 02 value at planned and at retail prices, 03 at an average. A is valued by a plan itself.
    "insert into Warehouse (cWhCode, cWhName, cDepCode, bInCost, cWhValueStyle) values"
    " (N'01', N'原料库', N'D1', 1, N'计划价法'), (N'02', N'卖场', N'D2', 1, N'售价法'),"
    " (N'03', N'成品库', N'D3', 1, N'移动平均法')",
    "insert into Department (cDepCode, cDepName) values (N'D1', N'一部'), (N'D2', N'二部'), (N'D3', N'三部')",
    "insert into ComputationUnit (cComUnitCode, cComUnitName, cGroupCode, iNumber, bMainUnit, iChangRate) values"
    " (N'kg', N'千克', N'G', 0, 1, 1), (N't', N'吨', N'G', 1, 0, 1000), (N'bag', N'袋', N'G', 2, 0, 25)",
    "insert into Inventory (cInvCode, cInvCCode, cInvName, cComUnitCode, cSTComUnitCode, cGroupCode, cValueType,"
    " bCheckFree1, bCheckFree2, bCheckFree3, bCheckFree4, bCheckFree5, bCheckFree6, bCheckFree7, bCheckFree8,"
    " bCheckFree9, bCheckFree10, bCheckBatch, bPurchase, bSale, bComsume, bService, bInvType) values"
    " (N'A', N'01', N'甲', N'kg', N'bag', N'G', N'计划价法', 0,0,0,0,0,0,0,0,0,0, 0, 1,1,1,0,0),"
    " (N'B', N'01', N'乙', N'kg', N'bag', N'G', N'移动平均法', 1,0,0,0,0,0,0,0,0,0, 0, 1,1,1,0,0),"
    " (N'C', N'02', N'丙', N'kg', NULL, N'G', NULL, 1,1,0,0,0,0,0,0,0,0, 0, 1,1,1,0,0)",
    // A keeps no free item, B its first, C its first two.
    "insert into Demo_PlannedPrice (cInvCode, cFree1, cFree2, cFree3, cFree4, cFree5, cFree6, cFree7, cFree8, cFree9,"
    " cFree10, fInvRCost) values"
    " (N'A', N'', N'', N'', N'', N'', N'', N'', N'', N'', N'', 5),"
    " (N'B', N'红', N'', N'', N'', N'', N'', N'', N'', N'', N'', 7),"
    " (N'B', N'蓝', N'', N'', N'', N'', N'', N'', N'', N'', N'', 8),"
    " (N'C', N'红', N'大', N'', N'', N'', N'', N'', N'', N'', N'', 11),"
    " (N'C', N'红', N'小', N'', N'', N'', N'', N'', N'', N'', N'', 12)",
    "insert into gl_AccVouch (cOutNo_ID, cSign, iNo_ID) values (N'PU1', N'记', 5), (N'IA2', N'转', 5),"
    " (N'IA3', N'记', 6), (N'IA4', NULL, 7)",
    "insert into AA_Enum (EnumType, EnumCode, LocaleID, EnumName) values"
    " (N'IA.BusType', N'普通采购', N'en-US', N'Ordinary purchase'),"
    " (N'IA.BusType', N'普通采购', N'zh-CN', N'普通采购'),"
    " (N'IA.costsource', N'手工', N'zh-CN', N'手工')",
};

// The columns of a ledger row that the cases below give; the others are constants.
std::string Row(const std::string& values)
{
    return "insert into IA_Subsidiary (cVouCode, cVouType, bFlag, bRdFlag, cInvCode, cWhCode, iAInQuantity,"
           " iInCost, iAInPrice, iAOutQuantity, iOutCost, iAOutPrice, iYear, iMonth, dVouDate, dKeepDate,"
           " cAccounter) select " +
           values + ", 2008, 7, '2008-07-01', '2008-07-02', N'李'";
}

class JournalResult : public testing::Test {
  protected:
    JournalResult()
    {
        for (const char* statement : kMasters)
            objAccount.Run(statement);
    }

    void Insert(const std::string& values) { objAccount.Run(Row(values)); }

    // The columns of the posted journal, by document number.
    std::string Rows(const std::string& columns, std::vector<std::string> settings = {},
                     const std::string& language = "zh-CN")
    {
        AccountReport report(objAccount.Path(), "journal", settings, language);
        return report.Rows("select " + columns + " from {} order by 单据号, AutoID");
    }

    SmallAccount objAccount;
};

constexpr const char* kReceipt = ", 2, 3, 6, null, null, null";  // 2 pieces at 3
constexpr const char* kIssue = ", null, null, null, 4, 3, 12";   // 4 pieces at 3

}  // namespace

TEST_F(JournalResult, OneHalfOfAVoucherTypeOrBoth)
{
    const char* halves[] = {"N'1', '01', 0", "N'2', '01', 1", "N'3', '30', 0",
                            "N'4', '30', 1", "N'5', '70', 0", "N'6', '70', 1"};
    for (const char* half : halves)
        Insert(std::string(half) + ", 1, 'A', '03'" + kReceipt);
    Insert(std::string("N'7', '32', 0, 0, 'A', '03'") + kIssue);
    Insert(std::string("N'8', '3201', 0, 0, 'A', '03'") + kIssue);

    const struct {
        std::vector<std::string> types;
        const char* documents;
    } cases[] = {
        {{}, "1\n2\n3\n4\n5\n6\n7\n8\n"},
        {{"cVouType=01"}, "1\n"},
        {{"cVouType=011"}, "2\n"},
        {{"cVouType=01", "cVouType=011"}, "1\n2\n"},
        {{"cVouType=30", "cVouType=701"}, "3\n6\n"},
        {{"cVouType=70", "cVouType=701", "cVouType=301"}, "4\n5\n6\n"},
        {{"cVouType=32"}, "7\n8\n"},
        {{"cVouType=32", "cVouType=011"}, "2\n7\n8\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Rows("单据号", c.types), c.documents);
}

// The price is the inventory's for its kept free items. A receipt's planned amount has its issued quantity, since
// bflag 0 stands for an issue there; an estimate's (bflag 1) has the received one.
TEST_F(JournalResult, PlannedPricesInTheThreeStyles)
{
    Insert(std::string("N'1', '32', 0, 0, 'A', '01'") + kIssue);
    Insert(std::string("N'2', '01', 1, 1, 'A', '01'") + kReceipt);
    Insert(std::string("N'3', '01', 0, 1, 'A', '01'") + kReceipt);
    Insert(std::string("N'4', '32', 0, 0, 'A', '03'") + kIssue);
    Insert(std::string("N'5', '32', 0, 0, 'B', '02'") + kIssue);  // without a colour: no price
    objAccount.Run(
        "update IA_Subsidiary set cDepCode = N'D1' where cVouCode in (N'1', N'2', N'3')"
        " update IA_Subsidiary set cDepCode = N'D9' where cVouCode in (N'4', N'5')");

    const std::string byWarehouse =
        "1 | 5 | 20\n"
        "2 | 5 | 10\n"
        "3 | 5 | NULL\n"
        "4 | NULL | NULL\n"
        "5 | NULL | NULL\n";
    EXPECT_EQ(Rows("单据号, 计划价, 计划金额"), byWarehouse);

    objAccount.Run("update AccInformation set cValue = N'按部门核算' where cName = 'cValueStyle'");
    EXPECT_EQ(Rows("单据号, 计划价, 计划金额"), byWarehouse);  // D1 owns 01; D9 owns none
    objAccount.Run("update IA_Subsidiary set cDepCode = N'D9' where cVouCode = N'1'");
    EXPECT_EQ(Rows("单据号, 计划价, 计划金额").substr(0, 16), "1 | NULL | NULL\n");

    objAccount.Run("update AccInformation set cValue = N'按存货核算' where cName = 'cValueStyle'");
    EXPECT_EQ(Rows("单据号, 计划价, 计划金额"),
              "1 | 5 | 20\n"
              "2 | 5 | 10\n"
              "3 | 5 | NULL\n"
              "4 | 5 | 20\n"
              "5 | NULL | NULL\n");
}

TEST_F(JournalResult, PricesOfNoneOneAndTwoKeptFreeItems)
{
    for (int n = 1; n <= 6; ++n)
        Insert("N'" + std::to_string(n) + "', '32', 0, 0, '" +
               (n < 3   ? "A"
                : n < 5 ? "B"
                        : "C") +
               "', '01'" + kIssue);
    objAccount.Run(
        "update IA_Subsidiary set cFree1 = N'红' where cVouCode in (N'2', N'3', N'5', N'6')"
        " update IA_Subsidiary set cFree1 = N'蓝', cFree2 = N'大' where cVouCode = N'4'"
        " update IA_Subsidiary set cFree2 = N'小' where cVouCode = N'5'");
    EXPECT_EQ(Rows("单据号, cfree1, cfree2, 计划价"),
              "1 | NULL | NULL | 5\n"
              "2 | 红 | NULL | 5\n"  // A keeps none: its colour does not count
              "3 | 红 | NULL | 7\n"
              "4 | 蓝 | 大 | 8\n"  // B keeps the first only
              "5 | 红 | 小 | 12\n"
              "6 | 红 | NULL | NULL\n");  // C keeps both, and has no price for this pair
}

TEST_F(JournalResult, TheSecondUnitIsTheItemsOwnOrOneByItsNumber)
{
    Insert(std::string("N'1', '01', 0, 1, 'A', '03'") + kReceipt);
    Insert(std::string("N'2', '01', 0, 1, 'C', '03'") + kReceipt);  // has no second unit
    EXPECT_EQ(Rows("单据号, 主计量单位, 辅计量单位, 换算率"),
              "1 | 千克 | 袋 | 25\n"
              "2 | 千克 |  | NULL\n");
    EXPECT_EQ(Rows("单据号, 主计量单位, 辅计量单位, 换算率", {"edtCAssComUnitNum=1"}),
              "1 | 千克 | 吨 | 1000\n"
              "2 | 千克 | 吨 | 1000\n");
    EXPECT_EQ(Rows("单据号, 主计量单位, 辅计量单位, 换算率", {"edtCAssComUnitNum=3"}),
              "1 | 千克 |  | NULL\n"
              "2 | 千克 |  | NULL\n");
}

// The filter compares the bare number, and the shown number stands behind the sign. Without a sign nothing is shown.
TEST_F(JournalResult, ANumberOfAVoucherLeavesItsRowsOnly)
{
    const char* vouchers[] = {"N'PU1'", "N'IA2'", "N'IA3'", "N'IA4'", "N'none'", "null"};
    for (int n = 0; n < 6; ++n) {
        Insert("N'" + std::to_string(n + 1) + "', '01', 0, 1, 'A', '03'" + kReceipt);
        objAccount.Run("update IA_Subsidiary set cPZID = " + std::string(vouchers[n]) +
                       " where cVouCode = N'" + std::to_string(n + 1) + "'");
    }
    EXPECT_EQ(Rows("单据号, 凭证号"), "1 | 记5\n2 | 转5\n3 | 记6\n4 | NULL\n5 | NULL\n6 | NULL\n");
    EXPECT_EQ(Rows("单据号, 凭证号", {"PzNoID=5"}), "1 | 记5\n2 | 转5\n");
    EXPECT_EQ(Rows("单据号", {"PzNoID=7"}), "4\n");
    EXPECT_EQ(Rows("单据号", {"PzNoID=8"}), "");
}

TEST_F(JournalResult, BusinessTypesAreTranslatedWhereTheyHaveAText)
{
    Insert(std::string("N'1', '01', 0, 1, 'A', '03'") + kReceipt);
    Insert(std::string("N'2', '08', 0, 1, 'A', '03'") + kReceipt);
    Insert(std::string("N'3', '08', 0, 1, 'A', '03'") + kReceipt);
    objAccount.Run(
        "update IA_Subsidiary set cBusType = N'普通采购' where cVouCode = N'1'"
        " update IA_Subsidiary set cBusType = N'自定义' where cVouCode = N'2'");
    EXPECT_EQ(Rows("单据号, 业务类型"), "1 | 普通采购\n2 | 自定义\n3 | NULL\n");
    EXPECT_EQ(Rows("单据号, 业务类型", {}, "en-US"), "1 | Ordinary purchase\n2 | 自定义\n3 | NULL\n");
    EXPECT_EQ(Rows("单据号", {"NoSub.cBusType=普通采购"}), "1\n");
}

TEST_F(JournalResult, AnAdjustmentOfNothingIsLeftOut)
{
    Insert("N'1', '20', 0, 1, 'A', '01', null, null, 0, null, null, null");
    Insert("N'2', '20', 0, 1, 'A', '01', null, null, null, null, null, null");
    Insert("N'3', '20', 0, 1, 'A', '01', null, null, 1.5, null, null, null");
    Insert("N'4', '20', 0, 1, 'A', '01', null, null, 0, null, null, null");
    Insert("N'5', '21', 0, 0, 'A', '01', null, null, null, null, null, 0");
    objAccount.Run(
        "update IA_Subsidiary set iDebitDifCost = -2 where cVouCode = N'4'"
        " update IA_Subsidiary set iInCost = 9 where cVouCode = N'3'");
    // The unit cost of an adjustment is not shown either.
    EXPECT_EQ(Rows("单据号, 收入单价, 收入金额, 借方差异"),
              "3 | NULL | 1.5 | NULL\n"
              "4 | NULL | 0 | -2\n"
              "5 | NULL | NULL | NULL\n");
}

TEST_F(JournalResult, OpeningsMemosAndOlderPostingsAreLeftOut)
{
    for (const char* document : {"N'1', '34'", "N'2', '33'", "N'3', '01'", "N'4', '01'", "N'5', '01'"})
        Insert(std::string(document) + ", 0, 1, 'A', '03'" + kReceipt);
    objAccount.Run(
        "update IA_Subsidiary set iMonth = 0 where cVouCode = N'3'"
        " update IA_Subsidiary set dKeepDate = '2007-12-31' where cVouCode = N'4'");
    EXPECT_EQ(Rows("单据号, 收入数量, 收入单价, 收入金额, 发出数量, bRdFlag"),
              "5 | 2 | 3 | 6 | NULL | True\n");
}

// Fees belong to subcontracting; elsewhere they are taken away.
TEST_F(JournalResult, FeesAreShownForSubcontractingOnly)
{
    Insert(std::string("N'1', '01', 0, 1, 'A', '03'") + kReceipt);
    Insert(std::string("N'2', '01', 0, 1, 'A', '03'") + kReceipt);
    objAccount.Run(
        "update IA_Subsidiary set iMaterialFee = 4, iProcessFee = 2, costsource = N'手工'"
        " update IA_Subsidiary set cBusType = N'委外加工' where cVouCode = N'2'");
    EXPECT_EQ(Rows("单据号, imaterialfee, iProcessFee, costsource"),
              "1 | NULL | NULL | 手工\n2 | 4 | 2 | 手工\n");
}

TEST_F(JournalResult, RowsStandInTheOrderOfTheLedger)
{
    for (const char* document : {"N'3'", "N'1'", "N'2'"})
        Insert(std::string(document) + ", '01', 0, 1, 'A', '03'" + kReceipt);
    objAccount.Run(
        "update IA_Subsidiary set bakID = 0 where cVouCode = N'2'");  // takes the place of its own number
    AccountReport report(objAccount.Path(), "journal", {});
    EXPECT_EQ(report.Rows("select 单据号 from {}"), "2\n3\n1\n");
}

TEST_F(JournalResult, EmptyLedgersGiveEmptyTables)
{
    AccountReport report(objAccount.Path(), "journal", {"vouEstate=已记账单据", "vouEstate=未记账单据"});
    EXPECT_EQ(report.Rows("select count(*) from {}"), "0\n");
    EXPECT_TRUE(report.Messages().empty());
}

}  // namespace kavelin::test
