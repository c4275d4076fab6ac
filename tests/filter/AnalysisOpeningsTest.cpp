// What the opening of the estimate balance and of the analyses does to their fields, key by key.
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr const char* kCosted =
    " AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or WareHouse.cWhCode "
    "is null)  ORDER BY WareHouse.cWhCode";

const std::string kPlainWarehouses =
    std::string(
        "SELECT WareHouse.cWhCode as [<IA.FltField 仓库编码>] ,WareHouse.cWhName as [<IA.Field "
        "仓库名称>]  FROM WareHouse where isnull(warehouse.bincost,0)<>0 ") +
    kCosted;

const std::string kPlainDepartments =
    "SELECT Distinct Department.cDepCode as [<IA.Field 部门编码>],Department.cDepName as  [<IA.Field "
    "部门名称>]  FROM WareHouse \r\ninner join Department ON Department.cDepCode = "
    "WareHouse.cDepCode\r\nwhere isnull(warehouse.bincost,0)<>0  ORDER BY Department.cDepCode";

}  // namespace

TEST(InitFilterEstimate, PreparesItsFields)
{
    RecordingHost host;
    host.Answers().accountYears = {"2008", "2009"};
    host.Answers().yearMonths["2008"] = {1, 3};
    ExpectChanges(
        host,
        {
            {kEstimate,
             {.name = "ia_subsidiary.cWhCode", .controlKey = "box"},
             {"SetFieldFlag box, False", "ia_subsidiary.cWhCode.ListSource = " + kPlainWarehouses}},
            {kEstimate,
             {"ia_subsidiary.cDepCode"},
             {"SetFieldFlag ia_subsidiary.cDepCode, False",
              "ia_subsidiary.cDepCode.ListSource = " + kPlainDepartments}},
            {kEstimate,
             {"ia_subsidiary.cBusType"},
             {"ia_subsidiary.cBusType.ListSource = 普通采购,受托代销,一般贸易进口,进料加工"}},
            {kEstimate,
             {"ia_subsidiary.iMonth"},
             {"ia_subsidiary.iMonth.ListSource = 1月,2月,3月,", "ia_subsidiary.iMonth.varValue = 3月"}},
            {kEstimate, {"ia_subsidiary.iMonth", "1月"}, {"ia_subsidiary.iMonth.ListSource = 1月,2月,3月,"}},
            {kEstimate,
             {"ia_subsidiary.iyear"},
             {"ia_subsidiary.iyear.ListSource = 2008,2009", "ia_subsidiary.iyear.varValue = 2008"}},
            {kEstimate, {"ia_subsidiary.iyear", "2009"}, {"ia_subsidiary.iyear.ListSource = 2008,2009"}},
            {kEstimate, {"ia_subsidiary.cVouType"}, {"ia_subsidiary.cVouType.ListSource = 01,70"}},
            {kEstimate, {"bDispCheckFreeOnly"}, {"bDispCheckFreeOnly.varValue = 否"}},
            {kEstimate, {"bDispCheckFreeOnly", "是"}, {}},
            {kEstimate, {"bDisZero"}, {"bDisZero.varValue = 是"}},
            {kEstimate, {"bDisZero", "否"}, {}},
            {kEstimate, {"ia_subsidiary.iYear"}, {}},
            {kEstimate, {"IA_Subsidiary.cWhCode"}, {}},
        });
    host.SetParameter("AA", "cSysVersion", "工业");
    ExpectChanges(host, {{kEstimate,
                          {"ia_subsidiary.cBusType"},
                          {"ia_subsidiary.cBusType.ListSource = 普通采购,委外加工,一般贸易进口,进料加工"}}});
}

TEST(InitFilterTurnover, PreparesItsFieldsInAnyCase)
{
    RecordingHost host;
    host.Answers().accountYears = {"2008"};
    for (const std::string_view identity : {kTurnover, kCapitalShare})
        ExpectChanges(host,
                      {
                          {identity,
                           {"cWhCode"},
                           {"SetFieldFlag cWhCode, False", "cWhCode.ListSource = " + kPlainWarehouses}},
                          {identity,
                           {"CDEPCODE"},
                           {"SetFieldFlag CDEPCODE, False", "CDEPCODE.ListSource = " + kPlainDepartments}},
                          {identity, {"iYear"}, {"iYear.ListSource = 2008", "iYear.varValue = 2008"}},
                          {identity, {"iyear", "2007"}, {"iyear.ListSource = 2008"}},
                          {identity, {"bGroupDep"}, {"SetFieldFlag bGroupDep, False"}},
                          {identity, {"iMonth"}, {}},
                      });
}

TEST(InitFilterABC, PreparesItsFieldsInAnyCase)
{
    RecordingHost host;
    host.Answers().accountYears = {"2008"};
    host.Answers().yearMonths["2008"] = {8, 12};
    ExpectChanges(
        host,
        {
            {kAbc, {"cWhCode"}, {"SetFieldFlag cWhCode, False", "cWhCode.ListSource = " + kPlainWarehouses}},
            {kAbc,
             {"cdepcode"},
             {"SetFieldFlag cdepcode, False", "cdepcode.ListSource = " + kPlainDepartments}},
            {kAbc, {"iYear"}, {"iYear.ListSource = 2008", "iYear.varValue = 2008"}},
            {kAbc, {"iPeriod"}, {"iPeriod.ListSource = 8月,9月,10月,11月,12月,", "iPeriod.varValue = 12月"}},
            {kAbc, {"IncluA"}, {"IncluA.varValue = 是"}},
            {kAbc, {"inclub"}, {"inclub.varValue = 是"}},
            {kAbc, {"incluC"}, {"incluC.varValue = 是"}},
            {kAbc, {"incluc", "否"}, {}},
            {kAbc, {"includ"}, {}},
        });
}

TEST(InitFilterABC, OpensWhatTheAccountIsCostedByAndLocksTheRest)
{
    const struct {
        const char* basis;
        const char* department;
        const char* warehouse;
    } cases[] = {
        {"按部门核算", "False", "True"},
        {"按仓库核算", "True", "False"},
        {"按存货核算", "True", "True"},
        {"", "True", "True"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.Answers().valueStyle = c.basis;
        Dialog dialog(host, kAbc, {{"cDepCode", "D1"}, {"cWhCode", "W1"}});
        dialog.Open();
        EXPECT_EQ(dialog.Filter().From("cDepCode"), Value("")) << c.basis;
        EXPECT_EQ(dialog.Filter().From("cWhCode"), Value("")) << c.basis;
        EXPECT_EQ(OpeningOfAll(host, kAbc),
                  (Changes{"SetFieldValue cDepCode, ",
                           std::string("SetFieldLocked cDepCode, ") + c.department, "SetFieldValue cWhCode, ",
                           std::string("SetFieldLocked cWhCode, ") + c.warehouse, "ContextArgs.Add 1, ABC"}));
    }
}

TEST(InitFilterABC, AsksForTheCostingBasisOfTheYearThatTheDialogRestored)
{
    RecordingHost host;
    Dialog dialog(host, kAbc, {{"iYear", "2006"}});
    dialog.Open();
    EXPECT_NE(host.Events().Text().find("LedgerPub.GetAccountYearParams 2006\n"), std::string::npos);
}

}  // namespace kavelin::test
