// What the goods-in-transit template does to the objects of its host: order, statements, faults.
#include "frame/Errors.h"
#include "goods/ClsFcSumCon.h"
#include "goods/TemplateClasses.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::string kWorkTable = "Tempdb..[FCSFCItemMACHINE7]";

const std::vector<FakeField> kAllKeys = {
    {"Inventory.cInvCCode", "01"},
    {"Ia_Ensubsidiary.cBustype", "委托代销"},
    {"iUnitNumber", "1"},
    {"Ia_Ensubsidiary.dVouDate", "2008-07-01", "2008-07-31"},
    {"Ia_Ensubsidiary.dKeepDate", "2008-07-01", "2008-07-31"},
    {"iYear", "2008"},
    {"Ia_Ensubsidiary.cWhCode", "01"},
};

std::vector<FakeField> With(std::vector<FakeField> fields, const FakeField& field)
{
    fields.push_back(field);
    return fields;
}

// A host with an open account and a work table whose fields are those that matter for the sums.
struct Host : RecordingHost {
    explicit Host(const std::vector<FakeField>& fields = {}, const std::string& token = "")
    {
        OpenAccount();
        ModPub().gobjLogin = Login();
        SetWorkFields({"仓库_编码", "存货_编码", "期初_件数入", "期初_数量入", "期初_金额入", "收入_件数入",
                       "收入_数量入", "收入_金额入", "发出_件数出", "发出_数量出", "发出_金额出"});
        SetFilter(fields);
        Filter()->whereByToken[0] = token;
        Events().Clear();
    }

    void SetWorkFields(const std::vector<std::string>& names)
    {
        Script().rows["Select Top 1 * From " + kWorkTable] = {names, {}};
    }

    void Run(const std::string& table = "tempdb..[goods]")
    {
        ClsFcSumCon().CreateNewTemplate(*Filter(), table);
    }

    // Statements and record sets, but for those that read parameters.
    std::vector<std::string> Work()
    {
        std::vector<std::string> work;
        for (const SentStatement& statement : Sent())
            if (!statement.sql.starts_with("Select * FROM AccInformation"))
                work.push_back(statement.sql);
        return work;
    }

    std::vector<std::string> Shown()
    {
        std::vector<std::string> shown;
        for (const std::string& line : Events().Lines())
            if (line.starts_with("ResourceObject.ShowMessage "))
                shown.push_back(line.substr(std::string("ResourceObject.ShowMessage ").size()));
        return shown;
    }
};

std::string Drop(const std::string& table)
{
    return "if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb.." + table +
           "')) Drop Table tempdb..[" + table + "]";
}

}  // namespace

TEST(ClsFcSumCon, SendsTheStatementsOfItsScenarios)
{
    const struct {
        const char* name;
        std::vector<FakeField> fields;
        std::string token;
        bool permissions;
    } cases[] = {
        {"no-filter", {}, "", false},
        {"all-keys", kAllKeys, "Ia_Ensubsidiary.cWhCode = N'01'", false},
        {"merged", {{"IsMerge", "1"}, {"iYear", "2008"}}, "", false},
        {"by-class", {{"InvCGrade", "1"}, {"RdGrade", "1"}}, "", false},
        {"permissions", {}, "", true},
    };
    for (const auto& c : cases) {
        Host host(c.fields, c.token);
        if (std::string(c.name) == "by-class")
            host.SetWorkFields({"仓库_编码", "存货大类_编码", "期初_件数入", "期初_数量入", "期初_金额入"});
        if (c.permissions) {
            for (const char* kind : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
                host.SetParameter("IA", kind, "TRUE");
            host.Answers().lists = {{"Warehouse", "'01'"}, {"Department", "'03'"}, {"Inventory", "'1'"}};
        }
        host.Run();
        ExpectStatements(host.Sent(), std::string("goods-template/") + c.name);
        EXPECT_TRUE(host.Shown().empty()) << c.name;
    }
}

TEST(ClsFcSumCon, DropsFillsTwiceSumsAndDrops)
{
    Host host;
    host.Run("TempDB..[goods]");
    const std::vector<std::string> work = host.Work();
    ASSERT_EQ(work.size(), 11u);
    EXPECT_EQ(work[0], Drop("FCSFCItemMACHINE7"));
    EXPECT_EQ(work[1], Drop("goods"));
    EXPECT_TRUE(work[2].starts_with("select Ia_Ensubsidiary.cWhCode AS N'仓库_编码'")) << work[2];
    EXPECT_NE(work[2].find(" into " + kWorkTable + " From Ia_Ensubsidiary"), std::string::npos) << work[2];
    for (const std::size_t opening : {3u, 4u})
        EXPECT_TRUE(work[opening].starts_with("Insert Into " + kWorkTable + " select ")) << work[opening];
    for (const std::size_t movement : {5u, 6u, 7u})
        EXPECT_TRUE(work[movement].starts_with("Insert Into " + kWorkTable + " Select ")) << work[movement];
    EXPECT_EQ(work[8], "Select Top 1 * From " + kWorkTable);
    EXPECT_TRUE(work[9].starts_with("select 仓库_编码, 存货_编码, Sum(期初_件数入)")) << work[9];
    EXPECT_NE(work[9].find(" Into TempDB..[goods] From " + kWorkTable + " Group By "), std::string::npos);
    EXPECT_EQ(work[10], Drop("FCSFCItemMACHINE7"));
}

// "1" is the form that reads dispatch notes and sale issues apart; nothing else is, not even the yes of a dialog.
TEST(ClsFcSumCon, SplitsDispatchNotesFromIssuesByTheMergeValueOneOnly)
{
    const auto inserts = [](const std::string& merge) {
        const std::vector<FakeField> fields = {{"IsMerge", merge}};
        Host host(fields);
        host.Run();
        return host.Work().size();
    };
    EXPECT_EQ(inserts("1"), 13u);
    for (const char* other : {"", "0", "是", "True", "01"})
        EXPECT_EQ(inserts(other), 11u) << other;
}

// The filter's last item tells the unit; the first statement knows it already.
TEST(ClsFcSumCon, KnowsTheUnitBeforeItBuildsAJoin)
{
    Host host(With(kAllKeys, {"iUnitNumber", "4"}));
    host.Run();
    for (std::size_t statement = 2; statement <= 7; ++statement)
        EXPECT_NE(host.Work()[statement].find("ComputationUnit.iNumber = 4)"), std::string::npos);
}

TEST(ClsFcSumCon, CountsBookedLinesOnly)
{
    Host host;
    host.Run();
    for (std::size_t statement = 2; statement <= 7; ++statement)
        EXPECT_NE(host.Work()[statement].find(" And Not Ia_Ensubsidiary.cAccounter Is Null"),
                  std::string::npos);
}

// The builder of the class columns reads the classes, composes their columns and gives nothing: a template by
// class has opening and closing only. This is wanted.
TEST(ClsFcSumCon, HasNoMovementColumnsInATemplateByClass)
{
    const std::vector<FakeField> fields = {{"RdGrade", "2"}};
    Host host(fields);
    const std::string classes = SelectClasses("MACHINE");
    host.Script().rows[classes] = {{"cRdCode", "bRdFlag", "cRdName"},
                                   {{"101", 1, "采购入库"}, {"202", 0, "销售出库"}}};
    host.Run();
    const std::vector<std::string> work = host.Work();
    ASSERT_EQ(work.size(), 13u);
    EXPECT_EQ(work[2], classes);
    EXPECT_EQ(work[6], classes);
    for (const std::size_t statement : {3u, 4u, 5u, 7u, 8u, 9u}) {
        EXPECT_NE(work[statement].find("期初_金额入"), std::string::npos) << work[statement];
        for (const char* none : {"收入_", "发出_", "采购入库", "销售出库", "cRdCode"})
            EXPECT_EQ(work[statement].find(none), std::string::npos) << none;
    }
}

TEST(ClsFcSumCon, StripsDatabaseAndBracketsOfTheTableThatItDrops)
{
    const struct {
        const char *name, *bare;
    } cases[] = {
        {"tempdb..goods", "goods"}, {"TEMPDB..[goods]", "goods"}, {"[goods]", "goods"},
        {"goods", "goods"},         {"tempdb..[goods", "[goods"}, {"Tempdb.goods", "Tempdb.goods"},
    };
    for (const auto& c : cases) {
        Host host;
        host.Run(c.name);
        EXPECT_EQ(host.Work()[1], Drop(c.bare)) << c.name;
    }
}

// A failed drop is shown and the run goes on, also that of a name that is empty.
TEST(ClsFcSumCon, ShowsTheErrorOfADropAndGoesOn)
{
    for (const char* empty : {"", "tempdb..", "[]"}) {
        Host host;
        host.Answers().texts = {{"Orvo.IA.CHHSSQL.07860", "no name"}};
        host.Run(empty);
        EXPECT_EQ(host.Shown(), std::vector<std::string>{"no name, 48"}) << empty;
        EXPECT_EQ(host.Work().size(), 10u) << empty;
    }
}

// Errors of all other statements go to the caller; the work table then stays.
TEST(ClsFcSumCon, LetsTheFailureOfEveryOtherStatementThrough)
{
    const std::vector<FakeField> fields = {{"RdGrade", "1"}, {"IsMerge", "1"}};
    Host whole(fields);
    whole.Run();
    const std::vector<SentStatement> all = whole.Sent();

    for (std::size_t k = 1; k <= all.size(); ++k) {
        Host host(fields);
        host.Script().failAtStatement = k;
        const std::string& failed = all[k - 1].sql;
        if (failed.starts_with("if exists")) {
            EXPECT_NO_THROW(host.Run()) << failed;
            EXPECT_EQ(host.Sent().size(), all.size()) << failed;
            EXPECT_EQ(host.Shown(),
                      std::vector<std::string>{"planned failure of statement " + std::to_string(k) + ", 48"});
            continue;
        }
        EXPECT_THROW(host.Run(), DatabaseError) << failed;
        EXPECT_EQ(host.Sent().size(), k) << failed;
        EXPECT_TRUE(host.Shown().empty()) << failed;
    }
}

TEST(ClsFcSumCon, LetsFaultsOfTheHostsObjectsThrough)
{
    Host whole(kAllKeys);
    whole.Run();
    const std::vector<std::string> events = whole.Events().Lines();
    for (std::size_t step = 1; step <= events.size(); ++step) {
        const std::string& event = events[step - 1];
        Host host(kAllKeys);
        host.Events().FailAt(step);
        if (event.find("Execute if exists") != event.npos) {
            EXPECT_NO_THROW(host.Run()) << event;
        } else {
            EXPECT_THROW(host.Run(), PlannedFailure) << event;
        }
    }
}

TEST(ClsFcSumCon, GivesBackItsRecordSets)
{
    const std::vector<FakeField> fields = {{"RdGrade", "1"}};
    Host host(fields);
    host.Run();
    std::size_t opened = 0, closed = 0;
    for (const std::string& line : host.Events().Lines()) {
        opened += line.find(".OpenRecordset ") != line.npos;
        closed += line.starts_with("@") && line.ends_with(".Close");
    }
    EXPECT_EQ(opened, closed);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=open gcnnSystem=nothing gobjLogin=set");
}

}  // namespace kavelin::test
