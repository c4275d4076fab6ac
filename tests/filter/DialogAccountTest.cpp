// The statements of the dialogs on an embedded account, and the rows that they give.
#include "filter/AccountMonths.h"
#include "filter/CheckRules.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "frame/Errors.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

class DialogAccount : public testing::Test {
  protected:
    DialogAccount()
    {
        objHost.Answers().accountYears = {"2007", "2008"};
        for (
            const char* sql : {
                "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null, "
                "cValue nvarchar(255) null, cDefault nvarchar(255) null)",
                "create table VosSystem..UA_Period (cAcc_ID nvarchar(10) not null, iYear smallint not null, "
                "iID tinyint not null, dBegin datetime not null, dEnd datetime not null, bIsDelete bit not "
                "null default (0))",
                "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null, cDepCode "
                "nvarchar(20) null, bInCost bit null)",
                "create table Department (cDepCode nvarchar(20) not null, cDepName nvarchar(120) null)",
                "create table VouchType (cVouchType nvarchar(4) not null, cVouchName nvarchar(60) not null)",
                "create table AA_Enum (EnumType nvarchar(40) not null, EnumCode nvarchar(60) not null, "
                "LocaleID nvarchar(10) not null, EnumName nvarchar(60) null)",
                "create table Inventory (cInvCode nvarchar(20) not null, cInvCCode nvarchar(20) null, cInvStd "
                "nvarchar(60) null)",
                "create table ComputationUnit (cComUnitCode nvarchar(20) not null)",
                // Rows beside the start date hold no dates.
                "insert into AccInformation (cSysID, cName, cValue) values (N'AA', N'cSysVersion', N'工业')",
                "insert into AccInformation (cSysID, cName, cValue) values (N'AA', N'iStrsQuanDecDgt', N'2')",
                "insert into AccInformation (cSysID, cName, cValue) values (N'SA', N'dIAStartDate', N'no date')",
                // Warehouse 04 takes no part in costing; 05 has no department.
                "insert into Warehouse values (N'02', N'finished goods', N'D2', 1)",
                "insert into Warehouse values (N'01', N'material', N'D1', 1)",
                "insert into Warehouse values (N'03', N'parts', N'D1', 1)",
                "insert into Warehouse values (N'04', N'foreign goods', N'D3', 0)",
                "insert into Warehouse values (N'05', N'shop', null, 1)",
                "insert into Warehouse values (N'06', N'unknown', N'D3', null)",
                "insert into Department values (N'D1', N'stores')",
                "insert into Department values (N'D2', N'plant')",
                "insert into Department values (N'D3', N'office')",
                "insert into Inventory values (N'A', N'01', N'M6')",
                "insert into Inventory values (N'B', N'02', null)",
                "insert into ComputationUnit values (N'KG')",
            })
            objHost.Run(sql);
        for (const char* type : {"05", "10", "20", "25", "35", "EX26"}) {
            const std::string code = type;
            objHost.Run("insert into VouchType values (N'" + code + "', N'name of " + code + "')");
            for (const char* language : {"zh-CN", "en-US"})
                objHost.Run("insert into AA_Enum values (N'IA.BillforVch', N'name of " + code + "', N'" +
                            language + "', N'" + code + " in " + language + "')");
        }
        for (const int year : {2006, 2007, 2008, 9999})
            for (const int month : {1, 2, 11, 12})
                AddPeriod("001", year, month, false);
        AddPeriod("001", 2008, 6, true);
        AddPeriod("002", 2008, 7, false);
    }

    void AddPeriod(const std::string& account, int year, int month, bool deleted)
    {
        const std::string first = std::to_string(year) + "-" + std::to_string(month) + "-1";
        const std::string last = std::to_string(year) + "-" + std::to_string(month) + "-28";
        objHost.Run("insert into VosSystem..UA_Period values (N'" + account + "', " + std::to_string(year) +
                    ", " + std::to_string(month) + ", '" + first + "', '" + last + "', " +
                    (deleted ? "1" : "0") + ")");
    }

    void SetParameter(const std::string& system, const std::string& name, const std::string& value)
    {
        objHost.Run("delete from AccInformation where cSysID = N'" + system + "' and cName = N'" + name +
                    "'");
        objHost.Run("insert into AccInformation (cSysID, cName, cValue) values (N'" + system + "', N'" +
                    name + "', " + value + ")");
    }

    // The open months, in order, on an account with that start and archive date.
    std::string MonthsFrom(const std::string& startDate, const std::string& archiveDate)
    {
        SetParameter("IA", "dIAStartDate", startDate);
        SetParameter("aa", "ArchiveDate", archiveDate);
        Dialog dialog(objHost, kCostItem, {});
        dialog.Open();
        InitAccMonth();
        std::string months;
        for (const auto& [key, month] : ModPub().gdicAccMonth)
            months += (months.empty() ? "" : " ") + month;
        return months;
    }

    // The rows that the field's lookup offers.
    std::string Offered(std::string_view identity, const std::vector<FakeField>& fields,
                        const std::string& key)
    {
        Dialog dialog(objHost, identity, fields);
        dialog.Open();
        return objHost.Query(dialog.Filter().ListSource(key));
    }

    AccountHost objHost;
};

}  // namespace

TEST_F(DialogAccount, OffersEachMonthFromThatOfTheStartDateOn)
{
    EXPECT_EQ(MonthsFrom("N'2007-02-15'", "null"), "2007.02 2007.11 2007.12 2008.01 2008.02 2008.11 2008.12")
        << "the day within the month doesn't count";
    EXPECT_EQ(MonthsFrom("N'2008-12-31'", "null"), "2008.12");
    EXPECT_EQ(MonthsFrom("N'2005-07-01'", "null").substr(0, 7), "2006.01");
    EXPECT_EQ(MonthsFrom("N'2009-01-01'", "null"), "");
}

TEST_F(DialogAccount, OffersOnlyYearsBehindTheFiscalYearOfTheArchiveDate)
{
    EXPECT_EQ(MonthsFrom("N'2006-01-01'", "N'2007-02-15'"), "2008.01 2008.02 2008.11 2008.12")
        << "the rest of the archive year stays out";
    EXPECT_EQ(MonthsFrom("N'2006-01-01'", "N'2008-11-01'"), "");
    EXPECT_EQ(MonthsFrom("N'2006-01-01'", "N'2007-06-15'"), "") << "a date in no period leaves no month";
}

TEST_F(DialogAccount, ListsNeitherDeletedMonthsNorTheSentinelYearNorOtherAccounts)
{
    const std::string months = MonthsFrom("N'2006-01-01'", "null");
    EXPECT_EQ(months.find("2008.06"), std::string::npos);
    EXPECT_EQ(months.find("2008.07"), std::string::npos);
    EXPECT_EQ(months.find("9999"), std::string::npos);
    EXPECT_EQ(ModPub().gdicAccMonth.size(), 12U);
}

TEST_F(DialogAccount, TakesAStartDateThatIsNoDateForNone)
{
    EXPECT_EQ(MonthsFrom("N'soon'", "null"), "");
    EXPECT_EQ(MonthsFrom("null", "null"), "");
}

TEST_F(DialogAccount, OpensTheJournalWithItsMonthsAndNotWithoutOne)
{
    MonthsFrom("N'2008-11-01'", "null");
    Dialog dialog(objHost, kJournal, {{.name = "iMonth", .rangeInput = true}});
    dialog.Open();
    EXPECT_EQ(dialog.Made(), (Changes{"SetFieldRangeList iMonth, 2008.11{#}2008.12{##}2008.11{#}2008.12",
                                      "iMonth.varValue = 2008.07", "iMonth.varValue2 = 2008.07"}));
    MonthsFrom("N'2009-01-01'", "null");
    EXPECT_THROW(dialog.Open(), Error);
}

TEST_F(DialogAccount, OffersWarehousesThatTakePartInCosting)
{
    const std::string all = "01,material\n02,finished goods\n03,parts\n05,shop\n";
    const std::string head = "<IA.FltField 仓库编码>,<IA.FltField 仓库名称>\n";
    const std::string plainHead = "<IA.FltField 仓库编码>,<IA.Field 仓库名称>\n";
    MonthsFrom("N'2008-01-01'", "null");
    EXPECT_EQ(Offered(kJournal, {{"cWhCode"}}, "cWhCode"), head + all);
    EXPECT_EQ(Offered(kPriceAnalysis, {{"cWhCode"}}, "cWhCode"), head + all);
    EXPECT_EQ(Offered(kStandardCost, {{"cWhCode"}}, "cWhCode"), head + all);
    EXPECT_EQ(Offered(kStockSummary, {{"cwhcode"}}, "cwhcode"), head + all);
    EXPECT_EQ(Offered(kEstimate, {{"ia_subsidiary.cWhCode"}}, "ia_subsidiary.cWhCode"), plainHead + all);
    for (const std::string_view identity : {kTurnover, kCapitalShare, kAbc})
        EXPECT_EQ(Offered(identity, {{"cWhCode"}}, "cWhCode"), plainHead + all) << identity;
}

TEST_F(DialogAccount, OffersTheDepartmentsOfThoseWarehousesOnce)
{
    const std::string all = "D1,stores\nD2,plant\n";
    const std::string head = "<IA.FltField 部门编码>,<IA.FltField 部门名称>\n";
    const std::string plainHead = "<IA.Field 部门编码>,<IA.Field 部门名称>\n";
    for (const std::string_view identity : {kJournal, kPriceAnalysis, kStandardCost})
        EXPECT_EQ(Offered(identity, {{"cDepCode"}}, "cDepCode"), head + all) << identity;
    for (const std::string_view identity : {kTurnover, kCapitalShare, kAbc})
        EXPECT_EQ(Offered(identity, {{"cDepCode"}}, "cDepCode"), plainHead + all) << identity;
    EXPECT_EQ(Offered(kEstimate, {{"ia_subsidiary.cDepCode"}}, "ia_subsidiary.cDepCode"), plainHead + all);
    EXPECT_EQ(Offered(kStandardCost, {{"cWhCode", "02"}, {"cDepCode"}}, "cDepCode"), head + "D2,plant\n");
}

TEST_F(DialogAccount, OffersARestrictedUserWhatHeMayWrite)
{
    SetParameter("IA", "bWarehouseCheck", "N'TRUE'");
    SetParameter("IA", "bDepartmentCheck", "N'true'");
    objHost.Answers().lists = {{"Warehouse", "'01','04'"}, {"Department", "'D2'"}};
    const std::string warehouses = "<IA.FltField 仓库编码>,<IA.FltField 仓库名称>\n01,material\n";
    const std::string departments = "<IA.Field 部门编码>,<IA.Field 部门名称>\nD2,plant\n";
    EXPECT_EQ(Offered(kStockSummary, {{"cwhcode"}}, "cwhcode"), warehouses) << "04 takes no part in costing";
    EXPECT_NE(objHost.Events().Text().find("AuthService.GetList 'Warehouse', '', 'W'\n"), std::string::npos);
    EXPECT_EQ(Offered(kTurnover, {{"cDepCode"}}, "cDepCode"), departments);
    EXPECT_NE(objHost.Events().Text().find("AuthService.GetList 'Department', '', 'W'\n"), std::string::npos);
}

TEST_F(DialogAccount, OffersTheVoucherTypesOfTheEdition)
{
    const std::string head = "<IA.FltField 单据编码>,<IA.FltField 单据类型>\n";
    const std::string settled =
        "01,<IA.BillforVch 采购入库单(报销记账)>\n011,<IA.BillforVch 采购入库单(暂估记账)>\n";
    const std::string blue = "30,<IA.BillforVch 蓝字回冲单(报销)>\n301,<IA.BillforVch 蓝字回冲单(暂估)>\n";
    const std::string custody =
        "70,<IA.BillforVch 代管挂账确认单(报销记账)>\n701,<IA.BillforVch 代管挂账确认单(暂估记账)>\n";
    const auto type = [](const std::string& code) { return code + "," + code + " in zh-CN\n"; };

    EXPECT_EQ(Offered(kJournal, {{"cVouType"}}, "cVouType"), head + settled + type("05") + type("10") +
                                                                 type("20") + type("25") + blue + type("35") +
                                                                 custody + type("EX26"));
    EXPECT_EQ(Offered(kPriceAnalysis, {{"cVouType"}}, "cVouType"),
              head + settled + type("05") + type("10") + blue + custody + type("EX26"));
    EXPECT_EQ(
        Offered(kStandardCost, {{"cVouType"}}, "cVouType"),
        head + settled + type("05") + type("10") + type("20") + type("25") + blue + custody + type("EX26"));
    SetParameter("AA", "cSysVersion", "N'商业'");
    EXPECT_EQ(
        Offered(kJournal, {{"cVouType"}}, "cVouType"),
        head + settled + type("05") + type("20") + type("25") + blue + type("35") + custody + type("EX26"));
    EXPECT_EQ(Offered(kPriceAnalysis, {{"cVouType"}}, "cVouType"),
              head + settled + type("05") + blue + custody + type("EX26"));
    objHost.Answers().langId = "en-US";
    EXPECT_NE(Offered(kJournal, {{"cVouType"}}, "cVouType").find("05,05 in en-US\n"), std::string::npos);
}

TEST_F(DialogAccount, ChecksAgainstItsTables)
{
    Dialog(objHost, kCostItem, {}).Open();
    EXPECT_TRUE(IsInvInClass("A", "01"));
    EXPECT_FALSE(IsInvInClass("A", "02"));
    EXPECT_TRUE(IsInvInClass("none", "02"));
    EXPECT_FALSE(
        Dialog(objHost, kGoodsSummary, {{"Inventory.cInvStd", "M6"}, {"Inventory.cComUnitCode", "KG"}})
            .Click());
    EXPECT_TRUE(Dialog(objHost, kGoodsSummary, {{"Inventory.cInvStd", "M7"}}).Click());
    EXPECT_TRUE(Dialog(objHost, kGoodsSummary, {{"Inventory.cComUnitCode", "LB"}}).Click());
    EXPECT_TRUE(Dialog(objHost, kStockSummary, {{"cInvCCode", "02"}, {"cinvcode", "A"}}).Click());
    EXPECT_THROW(IsInvInClass("A'B", "01"), DatabaseError) << "a quote is pasted in as it is";
}

}  // namespace kavelin::test
