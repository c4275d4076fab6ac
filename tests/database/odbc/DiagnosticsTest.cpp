#include "database/odbc/Diagnostics.h"

#include <gtest/gtest.h>

namespace kavelin::odbc {
namespace {

TEST(WithoutPrefixes, LeavesTheServersText)
{
    const struct {
        std::string_view message, text;
    } cases[] = {
        {"[FreeTDS][SQL Server]Invalid object name 'x'.", "Invalid object name 'x'."},
        {"[unixODBC][Vendor][ODBC Driver 18 for SQL Server][SQL Server]Login failed.", "Login failed."},
        {"[unixODBC][Driver Manager]Data source name not found", "Data source name not found"},
        {"[SQLite]near \"x\": syntax error (1)", "near \"x\": syntax error (1)"},
        {"[FreeTDS][SQL Server][dbo].[x] is no table.", "[dbo].[x] is no table."},
        {"plain", "plain"},
        {"[unfinished", "[unfinished"},
        {"[FreeTDS]", ""},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WithoutPrefixes(c.message), c.text) << c.message;
}

TEST(Summary, JoinsTheErrorsAndLeavesWarningsOut)
{
    const auto details = Summary({
        {"01000", 5701, "[FreeTDS][SQL Server]Changed database context to 'Books'.", 1},
        {"23000", 547, "[FreeTDS][SQL Server]The statement conflicts with a constraint.\n", 3},
        {"42000", 3621, "[FreeTDS][SQL Server]Another error.", 4},
        {"42000", 3621, "[FreeTDS][SQL Server]Another error.", 4},
    });
    EXPECT_EQ(details.strMessage, "The statement conflicts with a constraint.\nAnother error.");
    EXPECT_EQ(details.strSqlState, "23000");
    EXPECT_EQ(details.lngNumber, 547);
    EXPECT_EQ(details.lngLine, 3);
}

TEST(Summary, TakesTheServersNumberBeforeTheClientLibrarys)
{
    const auto details = Summary({
        {"08001", 0, "[FreeTDS][SQL Server]Unable to connect to data source", 0},
        {"08001", 20002, "[FreeTDS][SQL Server]The server connection failed", 0},
        {"42000", 18456, "[FreeTDS][SQL Server]Login failed for user 'sa'.", 0},
    });
    EXPECT_EQ(details.lngNumber, 18456);
    EXPECT_EQ(details.strSqlState, "42000");
    EXPECT_EQ(details.strMessage,
              "Login failed for user 'sa'.\nUnable to connect to data source\nThe server connection failed");
}

TEST(Summary, LeavesOutTheLineOfAClientLibrarysError)
{
    const auto details =
        Summary({{"08S01", 20017, "[FreeTDS][SQL Server]Unexpected EOF from the server", 65535}});
    EXPECT_EQ(details.lngNumber, 20017);
    EXPECT_EQ(details.lngLine, 0);
}

TEST(Summary, TakesAMissingDatabaseBeforeTheLoginThatFailedForIt)
{
    const auto details = Summary({
        {"42000", 18456, "[FreeTDS][SQL Server]Login failed for user 'sa'.", 0},
        {"42000", 4060, "[FreeTDS][SQL Server]Cannot open database \"x\".", 0},
    });
    EXPECT_EQ(details.lngNumber, 4060);
    EXPECT_EQ(details.strMessage, "Cannot open database \"x\".\nLogin failed for user 'sa'.");
}

TEST(Summary, AWarningIsBetterThanNothing)
{
    EXPECT_EQ(Summary({{"01000", 1, "[X]Only this.", 0}}).strMessage, "Only this.");
    EXPECT_FALSE(Summary({}).strMessage.empty());
}

TEST(TellsOfLostConnection, ByTheStatesClass)
{
    EXPECT_TRUE(TellsOfLostConnection({{"08S01", 0, "", 0}}));
    EXPECT_TRUE(TellsOfLostConnection({{"42000", 0, "", 0}, {"08007", 0, "", 0}}));
    EXPECT_FALSE(TellsOfLostConnection({{"42S02", 208, "", 0}}));
}

TEST(WithoutSecret, HidesThePasswordHoweverItIsWritten)
{
    EXPECT_EQ(WithoutSecret("PWD=secret;x secret", "secret"), "PWD=***;x ***");
    EXPECT_EQ(WithoutSecret("PWD={se}}cret};", "se}cret"), "PWD={***};");
    EXPECT_EQ(WithoutSecret("mysecrets", "secret"), "my***s");
    EXPECT_EQ(WithoutSecret("Login failed for user 'sa'; PWD=a;", "a"),
              "Login failed for user 'sa'; PWD=***;");
    EXPECT_EQ(WithoutSecret("nothing to hide", ""), "nothing to hide");
}

}  // namespace
}  // namespace kavelin::odbc
