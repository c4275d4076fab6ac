#include "frame/DataPermission.h"

#include "frame/Errors.h"
#include "frame/PermissionColumns.h"
#include "frame/Text.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

struct Kind {
    const char* label;
    const char* object;
    const char* parameter;
    const char* readAction;
};
constexpr Kind kWarehouse = {"仓库", "Warehouse", "bWarehouseCheck", ""};
constexpr Kind kDepartment = {"部门", "Department", "bDepartmentCheck", ""};
constexpr Kind kInventory = {"存货", "Inventory", "bInventoryCheck", ""};
constexpr Kind kOperator = {"操作员", "User", "bOperatorCheck", "R"};
constexpr Kind kKinds[] = {kWarehouse, kDepartment, kInventory, kOperator};

constexpr const char* kCostOnly =
    " ((F IN (Select cWhCode From Warehouse Where bInCost = 1))  or F is null) ";

std::string ReadOf(int number, const std::string& parameter)
{
    const std::string set = "@" + std::to_string(number);
    return "#1.OpenRecordset " + set +
           " location=3 type=0 lock=1 Select * FROM AccInformation where cSysID= N'IA' "
           "and cName= N'" +
           parameter + "'\n" + set + ".Field cvalue\n" + set + ".Close\n";
}

class DataPermission : public testing::Test {
  protected:
    DataPermission()
    {
        host.OpenAccount();
        ModPub().gobjLogin = host.Login();
    }

    void Switch(const Kind& kind, const Value& value) { host.SetParameter("IA", kind.parameter, value); }

    RecordingHost host;
};

}  // namespace

TEST_F(DataPermission, ClauseHasTheWordsOfItsKind)
{
    const struct {
        Kind kind;
        Value on;
        const char* list;
        bool noCostLimit;
        const char* clause;
    } cases[] = {
        // The list stands in the clause as the service gave it.
        {kWarehouse, "TRUE", "'01','02'", false,
         " ((F IN (Select cWhCode From Warehouse Where bInCost = 1) and F IN ('01','02')) or F is null)"},
        {kWarehouse, "TRUE", "'01','02'", true,
         " ((F IN (Select cWhCode From Warehouse Where bInCost = 1) and F IN ('01','02')) or F is null)"},
        {kDepartment, "TRUE", "'10'", false, "(F IN ('10') or F is null)"},
        {kInventory, "TRUE", "'A','B'", false, " isnull(F, N'') IN ('A','B')"},
        {kOperator, "TRUE", "'ann'", false, "F IN ('ann')"},
        // An empty list: a user with all rights.
        {kWarehouse, "TRUE", "", false, ""},
        {kWarehouse, "TRUE", "", true, ""},
        {kDepartment, "TRUE", "", false, ""},
        {kInventory, "TRUE", "", false, ""},
        {kOperator, "TRUE", "", false, ""},
        // "1=2": no rights at all. Only the operator's clause knows the word Null.
        {kWarehouse, "TRUE", "1=2", false,
         " ((F IN (Select cWhCode From Warehouse Where bInCost = 1) and F IN (Null)) or F is null)"},
        {kDepartment, "TRUE", "1=2", false, "(F IN (Null) or F is null)"},
        {kInventory, "TRUE", "1=2", false, " isnull(F, N'') IN (Null)"},
        {kOperator, "TRUE", "1=2", false, "(F is null)"},
        // The service may say Null itself.
        {kOperator, "TRUE", "Null", false, "(F is null)"},
        // Off: only warehouses are limited still, to those that take part in costing.
        {kWarehouse, "FALSE", "'01'", false, kCostOnly},
        {kWarehouse, "FALSE", "'01'", true, ""},
        {kDepartment, "FALSE", "'10'", false, ""},
        {kInventory, "FALSE", "'A'", false, ""},
        {kOperator, "FALSE", "'ann'", false, ""},
    };
    for (const auto& c : cases) {
        Switch(c.kind, c.on);
        host.Answers().lists = {{c.kind.object, c.list}};
        for (const bool forWrite : {false, true})
            EXPECT_EQ(GetDataPermissionClause("F", c.kind.label, forWrite, c.noCostLimit), c.clause)
                << c.kind.object << " " << c.list;
    }
}

TEST_F(DataPermission, SwitchIsOnInAnyCaseOfTrueAndOffForAllElse)
{
    host.Answers().lists = {{"Department", "'10'"}};
    for (const Value& value : {Value("TRUE"), Value("true"), Value("True"), Value(true)}) {
        Switch(kDepartment, value);
        EXPECT_NE(GetDataPermissionClause("F", "部门", false, false), "") << ToText(value);
    }
    for (const Value& value :
         {Value("1"), Value("yes"), Value(" TRUE"), Value(""), Value("FALSE"), Value(1)}) {
        Switch(kDepartment, value);
        EXPECT_EQ(GetDataPermissionClause("F", "部门", false, false), "") << ToText(value);
    }
}

TEST_F(DataPermission, OfAnyOtherLabelIsEmptyAndAsksNothing)
{
    for (const char* label : {"", "Warehouse", "仓", "客户"})
        EXPECT_EQ(GetDataPermissionClause("F", label, false, false), "");
    EXPECT_EQ(host.Events().Text(), "");
}

TEST_F(DataPermission, KeepsTheBlankThatACallerPutsBeforeItsColumn)
{
    Switch(kInventory, "TRUE");
    host.Answers().lists = {{"Inventory", "'A'"}};
    EXPECT_EQ(GetDataPermissionClause(" Inventory.iid", "存货", false, false),
              " isnull( Inventory.iid, N'') IN ('A')");
}

TEST_F(DataPermission, ReadsTheSwitchTwiceAndThenAsksTheLoginsService)
{
    for (const Kind& kind : {kWarehouse, kDepartment, kInventory}) {
        for (const bool forWrite : {false, true}) {
            RecordingHost fresh;
            fresh.OpenAccount();
            ModPub().gobjLogin = fresh.Login();
            fresh.SetParameter("IA", kind.parameter, "true");
            GetDataPermissionClause("F", kind.label, forWrite, false);
            EXPECT_EQ(fresh.Events().Text(), ReadOf(1, kind.parameter) + ReadOf(2, kind.parameter) +
                                                 "Login.AuthService\nAuthService.GetList '" + kind.object +
                                                 "', '', '" + (forWrite ? "W" : kind.readAction) + "'\n");
        }
    }
}

TEST_F(DataPermission, OfAnOperatorReadsTheSwitchOnceAndReadsWithTheActionR)
{
    Switch(kOperator, "TRUE");
    GetDataPermissionClause("F", "操作员", false, false);
    EXPECT_EQ(host.Events().Text(),
              ReadOf(1, "bOperatorCheck") + "Login.AuthService\nAuthService.GetList 'User', '', 'R'\n");
    host.Events().Clear();
    GetDataPermissionClause("F", "操作员", true, false);
    EXPECT_EQ(host.Events().Lines().back(), "AuthService.GetList 'User', '', 'W'");
}

TEST_F(DataPermission, MakesAServiceIfTheLoginHasNone)
{
    host.Answers().loginHasAuthService = false;
    EXPECT_EQ(GetUserAuth(false), "");
    EXPECT_EQ(host.Events().Text(),
              "Login.AuthService\n"
              "new AuthService\n"
              "Login.ConnectionText\n"
              "Login.UserId\n"
              "AuthService.Initialise 'connection text', 'demo'\n"
              "AuthService.GetList 'User', '', 'R'\n");
    EXPECT_EQ(ModPub().gobjAuth, nullptr);
}

TEST_F(DataPermission, OfARuleAsksForTheObjectDjmb)
{
    host.Answers().lists = {{"djmb", "'1'"}};
    EXPECT_EQ(GetAuthClause("User", "42", "R"), "'1'");
    EXPECT_EQ(host.Events().Lines().back(), "AuthService.GetList 'djmb', '42', 'R'");
}

TEST_F(DataPermission, OfTheRule103IsEmptyWithoutACall)
{
    host.Answers().lists = {{"djmb", "'1'"}, {"User", "'1'"}};
    EXPECT_EQ(GetAuthClause("User", "103", "R"), "");
    EXPECT_EQ(host.Events().Text(), "Login.AuthService\n");
    EXPECT_EQ(ModPub().gobjAuth, nullptr);
}

// Whatever fails on the way to the list, permissions are then lifted, and no message is shown.
TEST_F(DataPermission, IsLiftedByAnyFaultOnTheWayToTheList)
{
    Switch(kDepartment, "TRUE");
    host.Answers().lists = {{"Department", "'10'"}};
    host.Answers().loginHasAuthService = false;
    GetDepartmentAuth(false);
    const std::size_t steps = host.Events().Lines().size();
    for (std::size_t step = 1; step <= steps; ++step) {
        host.Events().Clear();
        host.Events().FailAt(step);
        EXPECT_EQ(GetDepartmentAuth(false), "") << host.Events().Text();
        EXPECT_EQ(host.Events().Lines().size(), step);
        EXPECT_EQ(ModPub().gobjAuth, nullptr);
    }
}

TEST_F(DataPermission, LetsAFailedReadOfTheSwitchThrough)
{
    for (const Kind& kind : kKinds) {
        host.Events().FailAt(1);
        EXPECT_THROW(GetDataPermissionClause("F", kind.label, false, false), PlannedFailure) << kind.label;
    }
}

TEST_F(DataPermission, IsAskedForOperatorsAlways)
{
    EXPECT_TRUE(IsAuthSwitchedOn("User"));
    EXPECT_TRUE(IsAuthSwitchedOn("user"));
    EXPECT_TRUE(IsAuthSwitchedOn("djmb"));
    EXPECT_EQ(host.Events().Text(), "");
}

TEST_F(DataPermission, OfOtherObjectsFollowsTheSwitchWhateverTheCase)
{
    for (const Kind& kind : {kWarehouse, kDepartment, kInventory}) {
        EXPECT_FALSE(IsAuthSwitchedOn(kind.object)) << "no row";
        Switch(kind, "True");
        EXPECT_TRUE(IsAuthSwitchedOn(ToUpper(kind.object)));
        EXPECT_TRUE(IsAuthSwitchedOn(ToLower(kind.object)));
        Switch(kind, "False");
        EXPECT_FALSE(IsAuthSwitchedOn(kind.object));
    }
    host.Events().FailAt(1);
    EXPECT_THROW(IsAuthSwitchedOn("Warehouse"), PlannedFailure);
}

TEST_F(DataPermission, OfAListIsNotAskedForWhileTheSwitchIsOff)
{
    host.Answers().lists = {
        {"Warehouse", "'01'"}, {"Department", "'01'"}, {"Inventory", "'01'"}, {"User", "'ann'"}};
    EXPECT_EQ(GetWarehouseAuth(false), "");
    EXPECT_EQ(GetDepartmentAuth(false), "");
    EXPECT_EQ(GetInventoryAuth(false), "");
    EXPECT_EQ(GetUserAuth(false), "'ann'");
}

TEST_F(DataPermission, PiecesOfAReportAreJoinedByAndInTheOrderOfItsColumns)
{
    constexpr PermissionColumn kColumns[] = {
        {"w", "仓库"}, {"w2", "仓库", true}, {"d", "部门"}, {" i", "存货"}};
    Switch(kInventory, "TRUE");
    host.Answers().lists = {{"Inventory", "'A'"}};
    EXPECT_EQ(BuildPermissionClauses(kColumns),
              " and  ((w IN (Select cWhCode From Warehouse Where bInCost = 1))  or w is null) "
              " and  isnull( i, N'') IN ('A')");
    EXPECT_EQ(BuildPermissionClauses({}), "");
}

TEST_F(DataPermission, ColumnsOfEachReportAreItsOwn)
{
    Switch(kDepartment, "TRUE");
    Switch(kInventory, "TRUE");
    host.Answers().lists = {{"Department", "'D'"}, {"Inventory", "'I'"}};
    const auto costOnly = [](const std::string& field) {
        return " and  ((" + field + " IN (Select cWhCode From Warehouse Where bInCost = 1))  or " + field +
               " is null) ";
    };
    const auto department = [](const std::string& field) {
        return " and (" + field + " IN ('D') or " + field + " is null)";
    };
    const auto inventory = [](const std::string& field) {
        return " and  isnull(" + field + ", N'') IN ('I')";
    };
    const struct {
        const char* report;
        std::string clauses;
    } cases[] = {
        {"ClsWtInfo", costOnly("NoSub.cWhCode") + department("NoSub.cAccDep") + inventory(" INVENTORY.iid")},
        {"clsStaCostacc", costOnly("cWhCode") + department("cAccDep")},
        {"clsIaAnalysis", costOnly("cWhCode") + department("cAccDep") + inventory("iid")},
        {"clsProPortion", costOnly("IA_Subsidiary.cWhCode") + inventory(" Inventory.iid")},
        {"clsLastRep", costOnly("Ia_subsidiary.cWhCode") + department("Ia_subsidiary.caccdep") +
                           inventory(" Inventory.iid")},
        {"clsCinTurnRep", department("Ia_subsidiary.cDepCode") + inventory(" Inventory.iid")},
        {"ClsFcSumCon", costOnly("Ia_Ensubsidiary.cWhCode") + department("Ia_Ensubsidiary.cAccDep") +
                            inventory(" Inventory.iid")},
        {"clsSFCSumCon", costOnly("Ia_Ensubsidiary.cWhCode") + department("Ia_Ensubsidiary.cAccDep") +
                             inventory(" Inventory.iid")},
        {"clsIASFCReport", costOnly("cWhCode") + department("cdepcode") + inventory(" inventory.iid ")},
        {"clsIASFCReport unposted", costOnly("cWhCode") + department("cdepcode") + inventory(" iid ")},
        {"clsFilterControl", costOnly("WareHouse.cWhCode") + department("WareHouse.cDepCode")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BuildPermissionClauses(PermissionColumnsOf(c.report)), c.clauses) << c.report;
    EXPECT_THROW(PermissionColumnsOf("clsNobody"), Error);
}

TEST_F(DataPermission, OfTheAbcAnalysisFollowsHowTheAccountValues)
{
    Switch(kDepartment, "TRUE");
    host.Answers().lists = {{"Department", "'D'"}};
    const auto columns = PermissionColumnsOf("ClsABC");
    EXPECT_EQ(BuildPermissionClauses(columns, "按仓库核算"),
              " and  ((Ia_Summary.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))"
              "  or Ia_Summary.cWhCode is null) ");
    EXPECT_EQ(BuildPermissionClauses(columns, "按部门核算"),
              " and (Ia_Summary.cDepCode IN ('D') or Ia_Summary.cDepCode is null)");
    EXPECT_EQ(BuildPermissionClauses(columns, "按存货核算"), "");
}

// The dialog offers what a user may write to.
TEST_F(DataPermission, OfTheDialogAsksForTheRightToWrite)
{
    Switch(kWarehouse, "TRUE");
    BuildPermissionClauses(PermissionColumnsOf("clsFilterControl"));
    EXPECT_NE(host.Events().Text().find("AuthService.GetList 'Warehouse', '', 'W'\n"), std::string::npos);
}

}  // namespace kavelin::test
