// The suite on the look-alike of a server.
#include "server/ServerSuite.h"

#include "demo/AccountFiles.h"
#include "demo/DemoCompany.h"
#include "frame/Errors.h"
#include "snapshot/AccountCopy.h"
#include "support/GoldenFile.h"
#include "support/TestFolder.h"
#include "support/tds/TdsAccount.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>

namespace kavelin::test::server {
namespace {

class ServerSuiteTest : public testing::Test {
  protected:
    ServerSuiteTest()
    {
        objOptions.access = {Text(), server.Server().Options().logins.front().password,
                             server.Server().Options().database};
        objOptions.lines = demo::MinimumLines();
        objOptions.folder = folder / "suite";
        objOptions.say = [this](const std::string& text) { strSaid += text + "\n"; };
        std::filesystem::create_directories(objOptions.folder);
    }

    // Without database and password.
    std::string Text()
    {
        return "Provider=SQLOLEDB;Data Source=tcp:127.0.0.1," + std::to_string(server.Server().Port()) +
               ";User ID=" + server.Server().Options().logins.front().user;
    }

    // Exit code of tests/server/run; its output lies in the file "out".
    int RunScript(const std::string& arguments)
    {
        const ServerAccess& access = objOptions.access;
        const std::string command = "KAVELIN_SERVER_SUITE='" KAVELIN_SERVER_SUITE "' KAVELIN_TEST_SERVER='" +
                                    access.connectionString + "' KAVELIN_TEST_DATABASE='" + access.database +
                                    "' KAVELIN_PASSWORD='" + access.password + "' KAVELIN_TEST_FOLDER='" +
                                    (folder / "run").string() + "' '" KAVELIN_SERVER_RUN "' " + arguments +
                                    " </dev/null >'" + (folder / "out").string() + "' 2>&1";
        return WEXITSTATUS(std::system(command.c_str()));
    }

    std::string Output() { return ReadFile(folder / "out"); }

    // What lies on the server, beside the system database's tables.
    std::size_t ObjectsLeft()
    {
        const snapshot::AccountObjects there = snapshot::ReadObjects(server.Inside());
        return there.tables.size() + there.views.size();
    }

    TestFolder folder;
    tds::TdsAccount server;
    SuiteOptions objOptions;
    std::string strSaid;
};

TEST_F(ServerSuiteTest, FindsNoDifferenceAndLeavesTheServerAsItWas)
{
    EXPECT_EQ(RunScript("--profiles industry --yes"), 0) << Output();
    EXPECT_NE(Output().find("statements on the server: no difference."), std::string::npos) << Output();
    EXPECT_EQ(ObjectsLeft(), 0u);
}

TEST_F(ServerSuiteTest, TouchesNothingUntilItIsTold)
{
    EXPECT_EQ(RunScript("--profiles industry"), 2);
    EXPECT_NE(Output().find("Go on? [y/N]"), std::string::npos) << Output();
    EXPECT_TRUE(server.Server().Batches().empty());
}

TEST_F(ServerSuiteTest, TakesNoPasswordInTheConnectionString)
{
    objOptions.access.connectionString += ";PWD=x";
    EXPECT_EQ(RunScript("--yes"), 2);
    EXPECT_TRUE(server.Server().Logins().empty());
}

TEST_F(ServerSuiteTest, TellsAReportThatFailsOnTheServer)
{
    tds::Fault fault;
    fault.kind = tds::FaultKind::Refuse;
    fault.text = "ia_ProPortionRpt_temp1";
    fault.again = true;
    fault.message.text = "The server is out of sorts.";
    server.Server().Order(fault);
    const SuiteResult result = RunSuite(demo::Profiles().front(), objOptions);
    EXPECT_GT(result.differences, 0u);
    EXPECT_NE(strSaid.find("DIFFERENT: capital-share as demo: "), std::string::npos) << strSaid;
    EXPECT_EQ(strSaid.find("DIFFERENT: journal"), std::string::npos) << strSaid;
}

TEST_F(ServerSuiteTest, FindsTheReportsOfAnEmbeddedCopyEqual)
{
    const auto open = [&](const std::filesystem::path& path) {
        host::AccountLogin login;
        login.settingsFile = folder / "settings.json";
        login.connectionString = host::EmbeddedConnectionString(path.string());
        return login;
    };
    demo::MakeDemoAccount(folder / "books.kavelin", demo::Profiles().front(), demo::MinimumLines());
    demo::CreateEmptyAccount(folder / "copy.kavelin");
    const host::AccountLogin books = open(folder / "books.kavelin"), copy = open(folder / "copy.kavelin");
    const auto source = host::ConnectionSource().Open("copy", books.ConnectionText(), "");
    {
        const auto target =
            snapshot::EmbeddedTarget(host::ConnectionSource().Open("copy", copy.ConnectionText(), ""),
                                     embedded::OpenAccount((folder / "copy.kavelin").string()));
        const auto there = snapshot::ReadObjects(target->Account());
        const auto plan = snapshot::PlanCopy(*source, &target->Account(), &there, {});
        EXPECT_TRUE(snapshot::CopyAccount(*source, *target, plan, {}).differences.empty());
    }
    host::ReportRun ofBooks(books, host::ConnectionSource()), ofCopy(copy, host::ConnectionSource());
    std::size_t rows = 0;
    for (const ReportCase& each : ReportCases(CodesOf(*source))) {
        const RunDifferences run = CompareRuns(ofCopy, ofBooks, each);
        EXPECT_EQ(run.differences, std::vector<std::string>{}) << each.Told();
        EXPECT_EQ(run.refusal, "") << each.Told();
        rows += run.rows;
    }
    EXPECT_GT(rows, 1000u);
}

TEST_F(ServerSuiteTest, UsesNoDatabaseThatHoldsSomething)
{
    server.Inside().Execute("create table Other (n int)");
    EXPECT_THROW(RunSuite(demo::Profiles().front(), objOptions), Error);
    EXPECT_EQ(ObjectsLeft(), 1u);
}

}  // namespace
}  // namespace kavelin::test::server
