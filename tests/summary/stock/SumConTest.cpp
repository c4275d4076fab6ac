// The conditions as an object: what it drops, what it hands to the engine, and its two texts on another
// ledger.
#include "frame/Errors.h"
#include "summary/clsSFCSumCon.h"
#include "summary/stock/SummaryRun.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

std::string DropOf(const std::string& table)
{
    RecordingHost host;
    Prepare(host, {}, {});
    host.OpenAccount();
    clsSFCSumCon().CreateNewTemplate(*host.Filter(), table);
    const std::string first = host.Sent().front().sql;
    return first.starts_with("if exists(Select id") ? first : "";
}

std::string SumSelect(const std::vector<std::string>& fields, std::string& groupBy)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().rows["Select Top 1 * From w"] = {fields, {}};
    return clsSFCSumCon::BuildSumSelect("Select Top 1 * From w", groupBy);
}

}  // namespace

TEST(CreateNewTemplate, DropsTheTableWithoutItsDatabaseAndBrackets)
{
    for (const char* table : {"pool", "tempdb..pool", "TEMPDB..pool", "TempDb..[pool]", "[pool]"})
        EXPECT_EQ(DropOf(table),
                  "if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb..pool'))"
                  " Drop Table tempdb..[pool]")
            << table;
    const struct {
        const char *table, *name;
    } kept[] = {{"[pool", "[pool"}, {"pool]", "pool]"}, {"tempdb.pool", "tempdb.pool"}, {"[[a]]", "[a]"}};
    for (const auto& c : kept)
        EXPECT_EQ(DropOf(c.table),
                  std::string("if exists(Select id from tempdb..sysobjects where id= object_id(") +
                      "N'tempdb.." + c.name + "')) Drop Table tempdb..[" + c.name + "]");
}

TEST(CreateNewTemplate, ShowsThatTheTableHasNoNameAndGoesOn)
{
    for (const char* table : {"", "tempdb..", "TEMPDB..[]", "[]"}) {
        RecordingHost host;
        Prepare(host, {}, {});
        host.Answers().texts["Orvo.IA.CHHSSQL.07860"] = "no name";
        host.OpenAccount();
        clsSFCSumCon().CreateNewTemplate(*host.Filter(), table);
        EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage no name, 48\n"), std::string::npos);
        EXPECT_EQ(StepsOf(host), "drop ?cDispLevel create -direct classes warehouses") << "the engine's drop";
    }
}

// A host may set the properties itself; what the filter does not name is read back from the object.
TEST(CreateNewTemplate, HandsAllPropertiesToTheEngine)
{
    RecordingHost host;
    Prepare(host, {.saleType = "false"}, {{"cInvCCode", "02"}});
    host.OpenAccount();
    clsSFCSumCon conditions;
    conditions.strInvCCode = "01";
    conditions.strInvCode(0) = "A";
    conditions.strInvCode(1) = "B";
    conditions.varDate(0) = Value("2008-07-01");
    conditions.varDate(1) = Value("2008-07-31");
    conditions.strWhCode = "N'01'";
    conditions.BlnAccounted = true;
    conditions.BlnUnAccounted = true;
    conditions.intRdGrade = 2;
    conditions.bytFree = 1;
    conditions.bytDirect = 1;
    conditions.itemCls = "97";
    conditions.itemCode = "P1";
    conditions.cAssComUnitNum = 3;
    conditions.CreateNewTemplate(*host.Filter(), "tempdb..pool");

    std::string all;
    for (const std::string& sql : StatementsOf(host))
        all += sql + "\n";
    for (const char* piece :
         {" Inventory.cInvCCode Like N'02%'", " Inventory.cInvCode>= N'A'", " Inventory.cInvCode<= N'B'",
          "dKeepDate>= N'2008-07-01'", "dKeepDate<= N'2008-07-31 '", "cwhcode in (N'01' )", "left(cRdCode,4)",
          " cItem_Class= N'97'", " cItemCode= N'P1'", "com.iNumber=3", "sfc.cfree10", "cbustype=N'直运采购'"})
        EXPECT_NE(all.find(piece), std::string::npos) << piece;
    EXPECT_EQ(all.find("Like N'01%'"), std::string::npos)
        << "the filter's value takes the place of the old one";
}

TEST(CreateNewTemplate, KeepsADocumentStateOfAnEarlierRun)
{
    RecordingHost host;
    Prepare(host, {}, {{"vouEstate", "已记账单据"}, {"dVouDate", "2008-07-01"}});
    host.OpenAccount();
    clsSFCSumCon conditions;
    conditions.CreateNewTemplate(*host.Filter(), "pool");
    host.SetFilter({{"vouEstate", "未记账单据"}});
    const std::size_t before = StatementsOf(host).size();
    conditions.CreateNewTemplate(*host.Filter(), "pool");
    const auto sent = StatementsOf(host);
    EXPECT_NE(sent[before + 4].find(" or imonth=0) "), std::string::npos) << sent[before + 4];
}

TEST(CreateNewTemplate, LetsErrorsOfTheEngineThrough)
{
    RecordingHost host;
    Prepare(host, {.levels = "x"}, {});
    host.OpenAccount();
    EXPECT_THROW(clsSFCSumCon().CreateNewTemplate(*host.Filter(), "pool"), ConversionError);
}

// ---- the texts that nothing here calls

TEST(BuildPermissionWhere, NamesTheLedgerOfGoodsInTransit)
{
    RecordingHost host;
    host.OpenAccount();
    EXPECT_EQ(clsSFCSumCon::BuildPermissionWhere(),
              " and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))"
              "  or Ia_Ensubsidiary.cWhCode is null) ");
    for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
        host.SetParameter("IA", name, "true");
    host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'D'"}, {"Inventory", "'1'"}};
    ModPub().gobjLogin = host.Login();
    EXPECT_EQ(clsSFCSumCon::BuildPermissionWhere(),
              " and  ((Ia_Ensubsidiary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1)"
              " and Ia_Ensubsidiary.cWhCode IN ('01')) or Ia_Ensubsidiary.cWhCode is null)"
              " and (Ia_Ensubsidiary.cAccDep IN ('D') or Ia_Ensubsidiary.cAccDep is null)"
              " and  isnull( Inventory.iid, N'') IN ('1')");
}

TEST(BuildSumSelect, SumsByTheLastThreeCharactersOfAName)
{
    std::string groupBy;
    EXPECT_EQ(SumSelect({"仓库_编码", "存货_编码", "期初_件数入", "期初_数量入", "期初_金额入", "发出_件数出",
                         "发出_数量出", "发出_金额出"},
                        groupBy),
              "仓库_编码, 存货_编码"
              ", Sum(期初_件数入) As 期初_件数"
              ", Sum(期初_数量入) As 期初_数量"
              ",cast( Sum(期初_金额入) as decimal(20,2)) As 期初_金额"
              ", Sum(发出_件数出) As 发出_件数"
              ", Sum(发出_数量出) As 发出_数量"
              ",cast( Sum(发出_金额出) as decimal(20,6)) As 发出_金额"
              ",Sum(0+期初_件数入-发出_件数出) As 结存_件数"
              ", Sum(0+期初_数量入-发出_数量出) As 结存_数量"
              ", cast(Sum(0+期初_金额入-发出_金额出) as decimal(20,2)) As 结存_金额");
    EXPECT_EQ(groupBy, " Group By 仓库_编码, 存货_编码");
}

TEST(BuildSumSelect, HasNoGroupsAndNoHavingWithoutOtherColumns)
{
    std::string groupBy = "left over";
    const std::string select = SumSelect({"收入_金额入"}, groupBy);
    EXPECT_EQ(groupBy, "");
    EXPECT_EQ(select.find("Having"), std::string::npos);
    EXPECT_TRUE(
        select.ends_with(",Sum(0) As 结存_件数, Sum(0) As 结存_数量,"
                         " cast(Sum(0+收入_金额入) as decimal(20,2)) As 结存_金额"));
}

TEST(BuildSumSelect, LetsAFailingQueryThrough)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().failAtStatement = 1;
    std::string groupBy;
    EXPECT_THROW(clsSFCSumCon::BuildSumSelect("select 1", groupBy), DatabaseError);
}

}  // namespace kavelin::test
