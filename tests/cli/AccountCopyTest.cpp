// account copy, as a user runs it.
#include "cli/Demo.h"
#include "cli/Process.h"

#include "support/tds/TdsAccount.h"

#include <gtest/gtest.h>

namespace kavelin::cli {
namespace {

class AccountCopyCommand : public testing::Test {
  protected:
    Outcome Copy(std::vector<std::string> arguments, RunOptions options = {})
    {
        arguments.insert(arguments.begin(), {"account", "copy"});
        return program.Run(arguments, std::move(options));
    }

    // The rows of a query without their head.
    std::string Rows(const std::string& account, const std::string& sql)
    {
        const Outcome outcome = program.Run({"query", "--account", account, "--format", "csv", sql});
        return outcome.out.substr(outcome.out.find('\n') + 1);
    }

    Program program;
};

TEST_F(AccountCopyCommand, MakesTheTargetAndGivesTheSameReport)
{
    const Outcome copied = Copy({DemoAccount(), "o'brien.kavelin"});
    EXPECT_EQ(copied.exitCode, 0) << copied.err;
    EXPECT_NE(copied.err.find("Rows and sums of all tables are those of the source."), std::string::npos)
        << copied.err;
    const Outcome there =
        program.Run({"run", "capital-share", "--account", DemoAccount(), "--format", "csv"});
    const Outcome here =
        program.Run({"run", "capital-share", "--account", "o'brien.kavelin", "--format", "csv"});
    EXPECT_GT(there.out.size(), 100u);
    EXPECT_EQ(here.out, there.out);

    const Outcome again = Copy({DemoAccount(), "o'brien.kavelin"});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_NE(again.err.find("34 tables had been copied before and are unchanged."), std::string::npos)
        << again.err;
}

TEST_F(AccountCopyCommand, OnlyCountsInADryRun)
{
    const Outcome counted = Copy({DemoAccount(), "./new.kavelin", "--dry-run", "--tables", "IA_Subsidiary"});
    EXPECT_EQ(counted.exitCode, 0) << counted.err;
    EXPECT_EQ(counted.out, "        3,000  IA_Subsidiary\n        3,000  in 1 table\n");
    EXPECT_EQ(program.Files(), std::vector<std::string>{});
}

TEST_F(AccountCopyCommand, RefusesWhatMakesNoSense)
{
    const struct {
        std::vector<std::string> arguments;
        std::string complaint;
    } cases[] = {
        {{DemoAccount()}, "account copy needs two accounts, FROM and TO."},
        {{DemoAccount(), DemoAccount()}, "FROM and TO are the same account."},
        {{DemoAccount(), "./b.kavelin", "--years", "2009-2008"},
         "--years takes accounting years as 2008-2009"},
        {{DemoAccount(), "./b.kavelin", "--years", "all"}, "--years takes accounting years as 2008-2009"},
        {{DemoAccount(), "./b.kavelin", "--tables", "Inventry"}, "Did you mean Inventory?"},
        {{DemoAccount(), "nowhere"}, "There is no account \"nowhere\" in kavelin.toml"},
        {{DemoAccount(), "Provider=x;Data Source=h;Password=p"}, "holds no password here"},
    };
    for (const auto& each : cases) {
        const Outcome outcome = Copy(each.arguments);
        EXPECT_EQ(outcome.exitCode, 2) << each.complaint;
        EXPECT_NE(outcome.err.find(each.complaint), std::string::npos) << outcome.err;
    }
}

TEST_F(AccountCopyCommand, WritesOverNoOtherAccount)
{
    program.Run({"account", "create", "b.kavelin"});
    program.Run({"query", "--account", "b.kavelin", "insert into Person (cPersonCode) values (N'P')"});
    const Outcome refused = Copy({DemoAccount(), "b.kavelin"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("The target holds rows that no copy put there: Person (1 row)."),
              std::string::npos)
        << refused.err;
    EXPECT_EQ(Rows("b.kavelin", "select count(*) as n from Inventory"), "0\r\n");

    EXPECT_EQ(Copy({DemoAccount(), "b.kavelin", "--replace"}).exitCode, 0);
    EXPECT_EQ(Rows("b.kavelin", "select count(*) as n from Person where cPersonCode = N'P'"), "0\r\n");
}

TEST_F(AccountCopyCommand, GoesOnAfterItWasKilled)
{
    RunOptions killed;
    killed.killAfter = std::chrono::milliseconds(700);
    Copy({DemoAccount(), "./b.kavelin"}, killed);
    const Outcome rest = Copy({DemoAccount(), "./b.kavelin"});
    EXPECT_EQ(rest.exitCode, 0) << rest.err;
    EXPECT_EQ(Rows("b.kavelin", "select count(*) as n from IA_Subsidiary"), "3000\r\n");
}

TEST_F(AccountCopyCommand, MakesTheTargetAnewThatWasOnlyBegun)
{
    program.Write("b.kavelin.part", "begun");
    program.Write("b.kavelin.part.wal", "begun");
    program.Write("b.system.kavelin", "begun");
    const Outcome copied = Copy({DemoAccount(), "./b.kavelin", "--tables", "Inventory"});
    EXPECT_EQ(copied.exitCode, 0) << copied.err;
    EXPECT_EQ(program.Files(), (std::vector<std::string>{"b.kavelin", "b.system.kavelin"}));
    EXPECT_EQ(Rows("b.kavelin", "select count(*) as n from Inventory"),
              Rows(DemoAccount(), "select count(*) as n from Inventory"));
}

TEST_F(AccountCopyCommand, MakesNothingForACopyThatCannotBegin)
{
    EXPECT_EQ(Copy({DemoAccount(), "./b.kavelin", "--tables", "Inventry"}).exitCode, 2);
    EXPECT_EQ(program.Files(), std::vector<std::string>{});

    program.Write("b.system.kavelin", "another's");
    const Outcome refused = Copy({DemoAccount(), "./b.kavelin"});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_NE(refused.err.find("b.system.kavelin' is there already."), std::string::npos) << refused.err;
    EXPECT_EQ(program.Files(), std::vector<std::string>{"b.system.kavelin"});
    EXPECT_EQ(program.Read("b.system.kavelin"), "another's");
}

TEST_F(AccountCopyCommand, GoesToAServerAndBack)
{
    test::tds::TdsAccount server;
    const auto& login = server.Server().Options().logins.front();
    const std::string text =
        "Provider=SQLOLEDB;Data Source=tcp:127.0.0.1," + std::to_string(server.Server().Port()) +
        ";Initial Catalog=" + server.Server().Options().database + ";User ID=" + login.user;
    RunOptions options;
    options.environment["KAVELIN_PASSWORD"] = login.password;
    const Outcome there = Copy({DemoAccount(), text, "--tables", "Inventory,IA_Summary,UA_Period"}, options);
    EXPECT_EQ(there.exitCode, 0) << there.err;
    EXPECT_EQ(there.err.find(login.password), std::string::npos);
    const Outcome back = Copy({text, "./b.kavelin"}, options);
    EXPECT_EQ(back.exitCode, 0) << back.err;
    for (const char* sql :
         {"select * from Inventory order by cInvCode", "select * from IA_Summary order by AutoID",
          "select * from VosSystem..UA_Period order by iYear, iID"})
        EXPECT_EQ(Rows("b.kavelin", sql), Rows(DemoAccount(), sql)) << sql;

    const Outcome same = Copy({text, text + ";Application Name=x"}, options);
    EXPECT_EQ(same.exitCode, 2);
    EXPECT_NE(same.err.find("FROM and TO are the same account."), std::string::npos) << same.err;
}

}  // namespace
}  // namespace kavelin::cli
