// What is sent to a server on which databases may be made; the look-alike has none to make.
#include "server/ScratchDatabase.h"

#include "support/RecordingConnection.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test::server {
namespace {

class ScratchDatabaseTest : public testing::Test {
  protected:
    host::ConnectionSource Connections()
    {
        return host::ConnectionSource({}, nullptr, [this]() -> std::shared_ptr<Connection> {
            return std::make_shared<RecordingConnection>(objEvents, objScript);
        });
    }

    // What was executed, the random names left out.
    std::vector<std::string> Executed() const
    {
        std::vector<std::string> statements;
        for (const SentStatement& each : objScript->sent)
            if (!each.sql.starts_with("select"))
                statements.push_back(each.sql.substr(0, each.sql.find("KavelinTest_")));
        return statements;
    }

    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
    const ServerAccess objAccess{"Provider=SQLOLEDB;Data Source=h;User ID=u", "p", ""};
};

TEST_F(ScratchDatabaseTest, MakesADatabaseAndDropsIt)
{
    {
        ScratchDatabase scratch(objAccess, Connections());
        EXPECT_TRUE(scratch.Name().starts_with("KavelinTest_"));
        EXPECT_LE(scratch.AccountId().size(), 10u);
        EXPECT_NE(scratch.Login().connectionString.find(";Initial Catalog=" + scratch.Name()),
                  std::string::npos);
        EXPECT_EQ(scratch.TidyUp(), std::vector<std::string>{});
    }
    EXPECT_EQ(Executed(), (std::vector<std::string>{"create database ", "drop database "}));
}

TEST_F(ScratchDatabaseTest, MakesAndDropsTheSystemDatabaseWhereThereIsNone)
{
    objScript->failures["select name from VosSystem..sysobjects where xtype in ('U', 'V')"] =
        "no such database";
    ScratchDatabase(objAccess, Connections()).TidyUp();
    EXPECT_EQ(Executed(), (std::vector<std::string>{"create database ", "create database VosSystem",
                                                    "drop database VosSystem", "drop database "}));
}

TEST_F(ScratchDatabaseTest, TidiesUpByItselfAfterAFailure)
{
    EXPECT_THROW(
        {
            ScratchDatabase scratch(objAccess, Connections());
            throw Error("something else went wrong");
        },
        Error);
    EXPECT_EQ(Executed(), (std::vector<std::string>{"create database ", "drop database "}));
}

}  // namespace
}  // namespace kavelin::test::server
