// What the standard-cost journal leaves in its result table.
#include "frame/Frame.h"
#include "journal/clsStaCostacc.h"
#include "support/CostView.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kAccount[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, bInCost bit null)",
    "create table gl_AccVouch (cOutNo_ID nvarchar(30) not null, cSign nvarchar(4) null, iNo_ID int null)",

    "insert into AccInformation (cSysID, cName, cValue) values (N'ia', N'dIAFirstDate', N'2008-01-01')",
    "insert into Warehouse (cWhCode, bInCost) values (N'01', 1), (N'02', 1), (N'09', 0)",
    "insert into gl_AccVouch (cOutNo_ID, cSign, iNo_ID) values (N'IA1', N'记', 12), (N'CA1', N'转', 3)",

    // A receipt of finished goods with both vouchers, an issue without, an estimate, and rows that no run
    // shows: of before the start, of a warehouse without costing, of type 35.
    "insert into V_IA_CostacCount (dKeepDate, cVouCode, cVouType, bFlag, cBusType, cWhCode, cInvCCode, cPZID,"
    " cDifPZID, iinquantity, istdinprice, iinprice, iOutQuantity, ioutprice) values"
    " ('2008-02-01', N'R1', N'10', 0, N'成品入库', N'01', N'0101', N'IA1', N'CA1', 10, 100, 110, null, null),"
    " ('2008-02-02', N'I1', N'32', 0, N'普通销售', N'02', N'0101', null, null, null, null, null, 4, 44),"
    " ('2008-02-03', N'E1', N'01', 1, N'普通采购', N'01', N'02', N'IA2', null, 5, 50, 50, null, null),"
    " ('2007-12-31', N'X1', N'10', 0, N'成品入库', N'01', N'0101', null, null, 1, 10, 10, null, null),"
    " ('2008-02-04', N'X2', N'10', 0, N'成品入库', N'09', N'0101', null, null, 1, 10, 10, null, null),"
    " ('2008-02-05', N'X3', N'35', 0, N'差异调整', N'01', N'0101', null, null, 1, 10, 10, null, null)",
};

class TheCostResult : public testing::Test {
  protected:
    TheCostResult()
    {
        objHost.Run(CreateCostView());
        for (const char* statement : kAccount)
            objHost.Run(statement);
        objHost.Answers().sql = "CostResult";
    }

    std::string Run(const std::vector<FakeField>& fields)
    {
        objHost.SetFilter(fields);
        clsStaCostacc().GETSQL(*objHost.EarlyArgument());
        EXPECT_EQ(objHost.Events().Text().find("ShowMessage"), std::string::npos) << objHost.Events().Text();
        return objHost.Query(
            "select cvoucode, ipzcode, iDifPZid, iinquantity, istdinprice, iinprice, ioutquantity,"
            " ioutprice from CostResult order by dkeepdate");
    }

    AccountHost objHost;
};

constexpr const char* kNames =
    "cvoucode,ipzcode,iDifPZid,iinquantity,istdinprice,iinprice,ioutquantity,ioutprice\n";

}  // namespace

TEST_F(TheCostResult, HasPostedRowsWithTheNumbersOfTheirVouchers)
{
    EXPECT_EQ(Run({}), std::string(kNames) +
                           "R1,记 12,转 3,10.0000,100.0000,110.0000,,\n"
                           "I1,,,,,,4.0000,44.0000\n"
                           "E1,,,5.0000,50.0000,50.0000,,\n");
}

TEST_F(TheCostResult, HasWhatTheFilterAsksFor)
{
    const struct {
        FakeField field;
        const char* rows;
    } cases[] = {
        {{"cWhCode", "02"}, "I1,,,,,,4.0000,44.0000\n"},
        {{"cInvCCode", "02"}, "E1,,,5.0000,50.0000,50.0000,,\n"},
        {{"cVouType", "011"}, "E1,,,5.0000,50.0000,50.0000,,\n"},
        {{"cVouType", "01"}, ""},
        {{"cVouType", "32\t011"}, "I1,,,,,,4.0000,44.0000\nE1,,,5.0000,50.0000,50.0000,,\n"},
        {{"dKeepDate", "2008-02-02", "2008-02-02"}, "I1,,,,,,4.0000,44.0000\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Run({c.field}), std::string(kNames) + c.rows) << c.field.name;
}

TEST_F(TheCostResult, ReplacesATableOfItsName)
{
    objHost.Run("create table CostResult (x int)");
    EXPECT_EQ(Run({{"cWhCode", "02"}}), std::string(kNames) + "I1,,,,,,4.0000,44.0000\n");
}

}  // namespace kavelin::test
