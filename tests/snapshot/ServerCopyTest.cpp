// Copies to a server and from it, through its driver.
#include "snapshot/AccountCopy.h"

#include "snapshot/CopyAccounts.h"
#include "support/tds/TdsAccount.h"

#include "frame/Errors.h"
#include "host/HostConnection.h"

#include <algorithm>

namespace kavelin::snapshot {
namespace {

class ServerCopyTest : public testing::Test {
  protected:
    ServerCopyTest() { FillWithOddValues(local.Account()); }

    std::shared_ptr<Connection> Connect()
    {
        return host::ConnectionSource().Open("server", server.ProviderText(), "");
    }

    std::vector<std::string> Batches(const std::string& start)
    {
        std::vector<std::string> found;
        for (const std::string& batch : server.Server().Batches())
            if (batch.starts_with(start))
                found.push_back(batch);
        return found;
    }

    test::TestFolder folder;
    OpenAccount local{folder / "local.kavelin"};
    test::tds::TdsAccount server;
    std::shared_ptr<Connection> cnnServer = Connect();
    std::unique_ptr<CopyTarget> objTarget = ServerTarget(cnnServer);
};

TEST_F(ServerCopyTest, MakesTheTablesAndBringsEveryValueThereAndBack)
{
    EXPECT_TRUE(Copy(local.Account(), *objTarget).differences.empty());
    ExpectSameTables(local.Account(), server.Inside());

    OpenAccount back(folder / "back.kavelin");
    const auto target = back.Target();
    EXPECT_TRUE(Copy(*cnnServer, *target).differences.empty());
    ExpectSameTables(local.Account(), back.Account());
}

TEST_F(ServerCopyTest, KeepsIdentityNumbersAndLetsTheServerGoOnBehindThem)
{
    local.Run("insert into IA_Summary (iYear, iMonth, cInvCode) values (2008, 1, N'A'), (2008, 2, N'A')");
    local.Run("delete from IA_Summary where iMonth = 1");
    CopyOptions options;
    options.choice.tables = {"IA_Summary"};
    EXPECT_TRUE(Copy(local.Account(), *objTarget, options).differences.empty());
    EXPECT_EQ(Batches("set identity_insert").size(), 2u);
    cnnServer->Execute("insert into IA_Summary (iYear, iMonth, cInvCode) values (2009, 1, N'B')");
    const auto rows =
        cnnServer->OpenRecordset("select AutoID from IA_Summary order by AutoID", CursorLocation::Client,
                                 CursorType::Static, LockType::ReadOnly);
    std::vector<std::int32_t> numbers;
    for (; !rows->Eof(); rows->MoveNext())
        numbers.push_back(ToInt32(rows->Field(0)));
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{1, 3, 4}));
}

TEST_F(ServerCopyTest, EmptiesATableWhoseInsertFailed)
{
    std::string rows;
    for (int person = 0; person < 1500; ++person)
        rows += (person == 0 ? "(N'P" : ", (N'P") + std::to_string(person) + "', NULL)";
    local.Run("insert into Person (cPersonCode, cPersonName) values " + rows);
    test::tds::Fault fault;
    fault.kind = test::tds::FaultKind::Refuse;
    fault.text = "(N'P999'";
    server.Server().Order(fault);
    EXPECT_NE(Refusal(local.Account(), *objTarget), "nothing was refused");
    const auto left = server.Inside().OpenRecordset("select count(*) from Person", CursorLocation::Client,
                                                    CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(left->Field(0), Value(0));

    server.Server().ClearFaults();
    const CopyResult rest = Copy(local.Account(), *objTarget);
    EXPECT_TRUE(rest.differences.empty());
    EXPECT_TRUE(rest.tables.front().wasThere);
    ExpectSameTables(local.Account(), server.Inside());
}

TEST_F(ServerCopyTest, GoesOnAfterALostConnection)
{
    test::tds::Fault fault;
    fault.kind = test::tds::FaultKind::Drop;
    fault.text = "insert into Inventory ";
    server.Server().Order(fault);
    EXPECT_NE(Refusal(local.Account(), *objTarget), "nothing was refused");
    server.Server().ClearFaults();

    const auto connection = Connect();
    const auto target = ServerTarget(connection);
    EXPECT_TRUE(Copy(local.Account(), *target).differences.empty());
    ExpectSameTables(local.Account(), server.Inside());
}

TEST_F(ServerCopyTest, TouchesNoTableThatHoldsRows)
{
    server.Inside().Execute(
        "create table Vendor (cVenCode nvarchar(20), cVenName nvarchar(98), cVCCode nvarchar(24))");
    server.Inside().Execute("insert into Vendor values (N'V', N'V', NULL)");
    EXPECT_TRUE(Refusal(local.Account(), *objTarget).starts_with("The target holds rows"));
    for (const std::string& batch : server.Server().Batches())
        EXPECT_FALSE(batch.starts_with("create") || batch.starts_with("insert") ||
                     batch.starts_with("delete"))
            << batch;
}

TEST_F(ServerCopyTest, KnowsTheServersAccountUnderAnotherName)
{
    Copy(local.Account(), *objTarget);
    const auto other = host::ConnectionSource().Open("server", server.OdbcText(), "");
    CopyOptions options;
    options.replace = true;
    EXPECT_EQ(Refusal(*other, *objTarget, options), "FROM and TO are the same account.");
    ExpectSameTables(local.Account(), server.Inside());
}

TEST_F(ServerCopyTest, NamesTheRowOfAValueThatTheServerWouldNotTake)
{
    local.Run("drop table Pursettlevouchs");
    local.Run("create table Pursettlevouchs (ID int, iSVPrice nvarchar(20))");
    local.Run("insert into Pursettlevouchs values (8, N'twelve')");
    const std::string refusal = Refusal(local.Account(), *objTarget);
    EXPECT_TRUE(refusal.starts_with("Table Pursettlevouchs, ID 8, column iSVPrice: ")) << refusal;
}

}  // namespace
}  // namespace kavelin::snapshot
