// What the area table holds on a small account. The rows wanted stand in tests/results/area-table.
#include "component/Component.h"
#include "frame/Errors.h"
#include "support/account/AccountHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

const std::string kLedgerColumns =
    " (autoid int not null, cinvcode nvarchar(60) not null, cwhcode nvarchar(10) null, cfree1 nvarchar(20) null,"
    " cfree2 nvarchar(20) null, cfree3 nvarchar(20) null, cfree4 nvarchar(20) null, cfree5 nvarchar(20) null,"
    " cfree6 nvarchar(20) null, cfree7 nvarchar(20) null, cfree8 nvarchar(20) null, cfree9 nvarchar(20) null,"
    " cfree10 nvarchar(20) null, cbatchia nvarchar(60) null, brdflag tinyint not null, iquantity float null,"
    " iprice money null, iunitcost float null)";

class AreaTable : public testing::Test {
  protected:
    AreaTable()
    {
        host.Run(
            "create table inventory (cinvcode nvarchar(60) not null, cinvname nvarchar(255) null,"
            " cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null)");
        host.Run("create table warehouse (cwhcode nvarchar(10) not null, cwhname nvarchar(60) null)");
        host.Run("insert into inventory values ('A', N'钢板', 'A-1', '2mm')");
        host.Run("insert into inventory values ('B', N'铜线', null, null)");
        host.Run("insert into warehouse values ('01', N'主仓')");

        host.Run("create table ia_data_subsidiary" + kLedgerColumns);
        host.Run("create table ia_accountarea (autoid int not null)");
        Add("ia_data_subsidiary", "1, 'A', '01', null, null, null, 1, 7, 70, 10");
        host.Run("insert into ia_accountarea values (1)");

        host.Run("create table tempdb..IA_Rows" + kLedgerColumns);
        host.Run("create table tempdb..IA_Area (autoid int not null)");
        host.Answers().sql = "tempdb..area";
    }

    // `values`: autoid, cinvcode, cwhcode, cfree1, cfree10, cbatchia, brdflag, iquantity, iprice, iunitcost.
    void Add(const std::string& table, const std::string& values)
    {
        host.Run("insert into " + table +
                 " (autoid, cinvcode, cwhcode, cfree1, cfree10, cbatchia, brdflag, iquantity,"
                 " iprice, iunitcost) values (" +
                 values + ")");
    }

    void RunReport()
    {
        CreateObject("Kavelin.clsAreaStockReport")->Call("GETSQL", {HostObjectPtr(host.EarlyArgument())});
    }

    AccountHost host;
};

}  // namespace

// Row 1 is a receipt and stands twice in the area, row 2 an issue; row 3 has an unknown item, row 4 an unknown
// warehouse and no figures; row 5 lies outside the area.
TEST_F(AreaTable, HasReceiptsAndIssuesOfTheRowsOfTheArea)
{
    Add("tempdb..IA_Rows", "1, 'A', '01', 'red', null, 'LOT1', 1, 5, 50, 10");
    Add("tempdb..IA_Rows", "2, 'A', '01', 'red', null, 'LOT1', 0, 2, 20, 10");
    Add("tempdb..IA_Rows", "3, 'X', '01', null, null, null, 1, 1, 1, 1");
    Add("tempdb..IA_Rows", "4, 'B', '99', null, 'last', null, 1, null, null, null");
    Add("tempdb..IA_Rows", "5, 'A', '01', null, null, null, 1, 9, 90, 10");
    for (const char* row : {"1", "1", "2", "3", "4"})
        host.Run(std::string("insert into tempdb..IA_Area values (") + row + ")");
    host.Answers().args = {{"IADataTable", "IA_Rows"}, {"IAAreeTable", "IA_Area"}};
    RunReport();
    host.ExpectRows("select * from tempdb..area order by cinvcode, iinquantity", "area-table/temp-tables");
}

TEST_F(AreaTable, IsMadeFromTheAccountsTablesIfOneNameIsMissing)
{
    for (const auto& args :
         {std::map<std::string, Value>{}, {{"IADataTable", "IA_Rows"}}, {{"IAAreeTable", "IA_Area"}}}) {
        host.Answers().args = args;
        RunReport();
        host.ExpectRows("select * from tempdb..area", "area-table/account-tables");
        host.Run("drop table tempdb..area");
    }
}

TEST_F(AreaTable, FailsForAResultTableThatExistsAndLeavesTheConnectionOpen)
{
    RunReport();
    try {
        RunReport();
        ADD_FAILURE() << "the table was there already";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 2714) << error.what();
    }
    EXPECT_EQ(StateOf(ModPub().gcnnAccount), "open");
}

TEST_F(AreaTable, FailsForATableNameThatIsNoName)
{
    host.Answers().args = {{"IADataTable", "IA_Rows'"}, {"IAAreeTable", "IA_Area"}};
    EXPECT_THROW(RunReport(), DatabaseError);
}

}  // namespace kavelin::test
