// kavelin demo and kavelin account check, as a user runs them.
#include "cli/Process.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kavelin::cli {
namespace {

TEST(DemoCommand, ListsTheProfilesOneALine)
{
    const Program program;
    const Outcome listed = program.Run({"demo", "--list-profiles"});
    EXPECT_EQ(listed.out, "industry\ntrade\nworks\ngoods-sent\ninvoices\nshop\n");
    EXPECT_EQ(listed.err, "");
    EXPECT_EQ(listed.exitCode, 0);
}

TEST(DemoCommand, RefusesAProfileThatItDoesNotKnow)
{
    const Program program;
    const Outcome refused = program.Run({"demo", "--profile", "shopp"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("There is no profile \"shopp\". Did you mean shop?"), std::string::npos)
        << refused.err;
}

TEST(DemoCommand, MakesAProfileOnceAndSaysWhatIsThere)
{
    const Program program;
    const Outcome made =
        program.Run({"demo", "--profile", "shop", "--lines", "3000", "--account", "s.kavelin"});
    ASSERT_EQ(made.exitCode, 0) << made.err;
    EXPECT_NE(made.err.find("Profile shop: a shop "), std::string::npos);
    EXPECT_NE(made.err.find("account check s.kavelin"), std::string::npos);

    const Outcome again = program.Run({"demo", "--account", "s.kavelin"});
    EXPECT_EQ(again.exitCode, 0) << again.err;
    EXPECT_EQ(again.out, made.out);

    const Outcome other = program.Run({"demo", "--profile", "trade", "--account", "s.kavelin"});
    EXPECT_EQ(other.exitCode, 2);
    EXPECT_NE(other.err.find("s.kavelin is there already: profile shop, 3,000 ledger lines."),
              std::string::npos)
        << other.err;
}

TEST(DemoCommand, LeavesAnotherAccountAlone)
{
    const Program program;
    ASSERT_EQ(program.Run({"account", "create", "books.kavelin"}).exitCode, 0);
    const Outcome refused = program.Run({"demo", "--account", "books.kavelin"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("holds another account than a demo"), std::string::npos) << refused.err;
}

TEST(DemoCommand, TellsToDeleteTheDemoOfAnOlderVersion)
{
    const Program program;
    RunOptions options;
    options.environment["XDG_DATA_HOME"] = program.Folder().string();
    ASSERT_EQ(program.Run({"demo", "--lines", "2000"}, options).exitCode, 0);
    ASSERT_EQ(program.Run({"query", "drop table Demo_Profile"}, options).exitCode, 0);
    const Outcome refused = program.Run({"demo"}, options);
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("kavelin/demo.kavelin is the demo of an older version. Delete it and "),
              std::string::npos)
        << refused.err;
}

TEST(DemoCommand, MakesTheDemoAnewThatWasKilledWhileItWasMade)
{
    const Program program;
    for (const int moment : {30, 100, 200, 400}) {
        RunOptions killed;
        killed.killAfter = std::chrono::milliseconds(moment);
        program.Run({"demo", "--lines", "20000", "--account", "d.kavelin"}, killed);
    }
    const Outcome made = program.Run({"demo", "--lines", "20000", "--account", "d.kavelin"});
    EXPECT_EQ(made.exitCode, 0) << made.err;
    EXPECT_EQ(program.Files(), (std::vector<std::string>{"d.kavelin", "d.system.kavelin"}));
}

TEST(DemoCommand, PutsEachProfileBesideTheDefaultOne)
{
    const Program program;
    RunOptions options;
    options.environment["XDG_DATA_HOME"] = program.Folder().string();
    const Outcome made = program.Run({"demo", "--lines", "2000", "--profile", "Works"}, options);
    EXPECT_EQ(made.exitCode, 0);
    EXPECT_NE(made.err.find("kavelin/demo-works.kavelin with 2,000 ledger lines."), std::string::npos)
        << made.err;
}

TEST(AccountCheck, TellsOfBooksThatReconcileAndOfSuchThatDoNot)
{
    const Program program;
    ASSERT_EQ(program.Run({"demo", "--lines", "3000", "--account", "d.kavelin"}).exitCode, 0);
    const Outcome passed = program.Run({"account", "check", "d.kavelin"});
    EXPECT_EQ(passed.exitCode, 0) << passed.out << passed.err;
    EXPECT_NE(passed.out.find(" months: opening + receipts - issues = closing\n"), std::string::npos)
        << passed.out;
    EXPECT_NE(passed.out.find("checks passed.\n"), std::string::npos);

    program.Run(
        {"query", "--account", "d.kavelin", "update IA_Summary set iMoney = iMoney + 1 where iMonth = 12"});
    const Outcome failed = program.Run({"account", "check", "--account", "d.kavelin", "--format", "json"});
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_NE(failed.err.find("1 of "), std::string::npos) << failed.err;
    const nlohmann::json checks = nlohmann::json::parse(failed.out);
    EXPECT_EQ(checks[0]["check"], "balance");
    EXPECT_EQ(checks[0]["passed"], false);
    EXPECT_EQ(checks[0]["differences"].size(), 10u);
    EXPECT_EQ(checks[0]["differences"][0]["amount"], "1");
    EXPECT_EQ(checks[0]["more"], true);
    EXPECT_EQ(checks[1]["passed"], true);
    EXPECT_GT(checks[0]["counted"][0]["count"], 50);
}

TEST(AccountCheck, TakesTwoFormsAndOneAccount)
{
    const Program program;
    EXPECT_EQ(program.Run({"account", "check", "a.kavelin", "--format", "csv"}).exitCode, 2);
    const Outcome twice = program.Run({"account", "check", "a.kavelin", "--account", "b.kavelin"});
    EXPECT_EQ(twice.exitCode, 2);
    EXPECT_NE(twice.err.find("Name the account once"), std::string::npos);
}

}  // namespace
}  // namespace kavelin::cli
