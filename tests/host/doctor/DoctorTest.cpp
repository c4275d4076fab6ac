#include "host/doctor/Doctor.h"

#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

#include <utility>

namespace kavelin::host {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kBooks = "Provider=SQLOLEDB;Data Source=tcp:db,1433;Initial Catalog=Books;User ID=sa";
constexpr const char* kText = "库存 café €5 𠮷";

// An account with all that the doctor asks for.
std::shared_ptr<FakeAccount> HealthyAccount()
{
    auto made = std::make_shared<FakeAccount>();
    FakeAccount& account = *made;
    account.Gives("ProductVersion", {{"version", "edition"}, {{Value("10.50"), Value("Standard Edition")}}});
    account.Gives("sysdatabases",
                  {{"name", "cmptlevel", "collation", "tempdbCollation"},
                   {{Value("Books"), Value(100), Value("Chinese_PRC_CI_AS"), Value("Chinese_PRC_CI_AS")}}});
    account.Gives("as kept", {{"kept"}, {{Value(1)}}});
    account.Gives("min(iYear)",
                  {{"months", "firstYear", "lastYear"}, {{Value(12), Value(2008), Value(2008)}}});
    account.Gives("from Warehouse", {{"cWhCode"}, {}});
    account.Gives("AA_Enum", {{"texts"}, {{Value(300)}}});
    account.Gives("select cText", {{"cText"}, {{Value(kText)}}});
    const Value none = Value::Null();
    account.Gives("AccInformation", {{"cSysID", "cName", "cValue", "cDefault"},
                                     {{Value("IA"), Value("cValueStyle"), Value("按仓库核算"), none},
                                      {Value("IA"), Value("dIAStartDate"), Value("2008-01-01"), none},
                                      {Value("IA"), Value("dIAFirstDate"), Value("2008-01-01"), none},
                                      {Value("IA"), Value("bSaleType"), Value("销售出库单"), none},
                                      {Value("IA"), Value("cEnDispAccountStyle"), Value("发出商品"), none},
                                      {Value("IA"), Value("cEstimate"), Value("单到回冲"), none},
                                      {Value("IA"), Value("cDispLevel"), Value("12"), none}}});
    return made;
}

class DoctorTest : public testing::Test {
  protected:
    DoctorTest()
    {
        objLogin.connectionString = kBooks;
        objLogin.password = "secret";
    }

    std::vector<DoctorStep> Examine()
    {
        DoctorTools tools{ConnectionSource({}, nullptr, [this, first = true]() mutable {
            return std::exchange(first, false) ? objAccount : objAgain;
        })};
        tools.drivers.forServer = [this] {
            return odbc::ChooseDriver(blnDriver
                                          ? std::vector{odbc::DriverNamed("FreeTDS", "/lib/libtdsodbc.so")}
                                          : std::vector<odbc::DriverChoice>());
        };
        tools.probe = [this](const odbc::ServerAddress&) { return ProbeResult{enmReach, 1433, "10.0.0.7"}; };
        tools.needs = ReadAccountNeeds("Warehouse: abc\n    cWhCode: abc\n");
        return host::Examine(objLogin, tools);
    }

    static Lines Named(const std::vector<DoctorStep>& steps, StepOutcome outcome)
    {
        Lines names;
        for (const DoctorStep& step : steps)
            if (step.outcome == outcome)
                names.push_back(step.name);
        return names;
    }

    std::shared_ptr<FakeAccount> objAccount = HealthyAccount();
    std::shared_ptr<FakeAccount> objAgain = std::make_shared<FakeAccount>();  // what later connections open
    AccountLogin objLogin;
    bool blnDriver = true;
    Reach enmReach = Reach::Answers;
};

const Lines kSteps = {"connection", "driver",    "server",  "login",   "database",
                      "version",    "collation", "periods", "objects", "columns",
                      "select",     "language",  "create",  "tempdb",  "parameters"};

TEST_F(DoctorTest, LooksAtEveryStepInOrder)
{
    const auto steps = Examine();
    EXPECT_EQ(Named(steps, StepOutcome::Ok), kSteps);
    EXPECT_TRUE(IsHealthy(steps));
    EXPECT_EQ(objAccount->State(), ConnectionState::Closed);
}

TEST_F(DoctorTest, SkipsWhatNeedsTheConnectionThatAFailureDenies)
{
    const Lines behindLogin(kSteps.begin() + 5, kSteps.end());
    const auto with = [&](Lines first) {
        first.insert(first.end(), behindLogin.begin(), behindLogin.end());
        return first;
    };

    objLogin.connectionString = "Provider=SQLOLEDB;Initial Catalog=Books";
    auto steps = Examine();
    EXPECT_EQ(Named(steps, StepOutcome::Failed), Lines{"connection"});
    EXPECT_EQ(Named(steps, StepOutcome::Skipped), with({"driver", "server", "login", "database"}));
    EXPECT_FALSE(IsHealthy(steps));

    objLogin.connectionString = kBooks;
    blnDriver = false;
    steps = Examine();
    EXPECT_EQ(Named(steps, StepOutcome::Failed), Lines{"driver"});
    EXPECT_EQ(Named(steps, StepOutcome::Ok), (Lines{"connection", "server"}));

    blnDriver = true;
    enmReach = Reach::Refused;
    steps = Examine();
    EXPECT_EQ(Named(steps, StepOutcome::Failed), Lines{"server"});
    EXPECT_EQ(Named(steps, StepOutcome::Skipped), with({"login", "database"}));
}

TEST_F(DoctorTest, GoesOnBehindAFailureWithWhatCanStillBeChecked)
{
    objAccount->Fails("sysdatabases", ErrorOf(229, "The SELECT permission was denied."));
    objAccount->Fails("from Warehouse", ErrorOf(208, "Invalid object name 'Warehouse'."));
    objAccount->Fails("create table K", ErrorOf(262, "CREATE TABLE permission denied in database 'Books'."));
    const auto steps = Examine();
    EXPECT_EQ(Named(steps, StepOutcome::Failed), (Lines{"version", "objects", "create"}));
    EXPECT_EQ(Named(steps, StepOutcome::Skipped), (Lines{"collation", "columns", "select"}));
}

TEST_F(DoctorTest, FailsAtTheStepThatLosesTheConnectionAndSkipsTheRest)
{
    const struct {
        const char* statement;
        const char* failed;
        std::size_t okBefore;
    } cases[] = {
        {"ProductVersion", "version", 5},     {"sysdatabases", "version", 5},
        {"min(iYear)", "periods", 7},         {"from Warehouse", "objects", 8},
        {"AA_Enum", "language", 11},          {"create table K", "create", 12},
        {"insert into K", "create", 12},      {"create table t", "tempdb", 13},
        {"AccInformation", "parameters", 14},
    };
    for (const auto& c : cases) {
        objAccount = HealthyAccount();
        objAccount->IsLostAt(c.statement);
        const auto steps = Examine();
        ASSERT_EQ(steps.size(), kSteps.size()) << c.statement;
        EXPECT_EQ(Named(steps, StepOutcome::Failed), Lines{c.failed}) << c.statement;
        EXPECT_EQ(Named(steps, StepOutcome::Ok).size(), c.okBefore) << c.statement;
    }
}

TEST_F(DoctorTest, ClearsAwayOverANewConnectionWhatALostOneLeft)
{
    objAccount->IsLostAt("insert into tempdb..K");
    Examine();
    Lines dropped;
    for (const std::string& sql : objAgain->Sent())
        dropped.push_back(sql.substr(0, sql.rfind('_')));
    EXPECT_EQ(dropped, (Lines{"drop table KavelinDoctor", "drop table tempdb..KavelinDoctor"}));

    objAccount = HealthyAccount();
    objAgain = std::make_shared<FakeAccount>();
    objAccount->IsLostAt("from Warehouse");
    Examine();
    EXPECT_EQ(objAgain->Sent(), Lines{});
}

TEST_F(DoctorTest, ShowsThePasswordInNoStep)
{
    for (const bool healthy : {true, false}) {
        if (!healthy)
            objAccount->Fails("ProductVersion", ErrorOf(1, "It failed."));
        for (const DoctorStep& step : Examine()) {
            std::string all = step.found + step.advice;
            for (const std::string& detail : step.details)
                all += detail;
            EXPECT_EQ(all.find("secret"), std::string::npos) << all;
        }
    }
}

}  // namespace
}  // namespace kavelin::host
