// How long an account is open, what is kept and when it goes to the file.
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/Instance.h"
#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace kavelin::embedded {

namespace {

std::string DuckNameOf(const EmbeddedAccount& account, const std::string& name)
{
    for (const ObjectInfo& object : account.Objects(Database::Account))
        if (object.name == name)
            return object.duckName;
    return "";
}

const ColumnInfo& ColumnOf(const std::vector<ObjectInfo>& objects, const std::string& table,
                           const std::string& name)
{
    for (const ObjectInfo& object : objects)
        if (object.name == table)
            for (const ColumnInfo& column : object.columns)
                if (column.name == name)
                    return column;
    throw std::runtime_error(table + " has no " + name);
}

TEST(AccountLife, EndsWithItsLastConnection)
{
    const TestAccount account;
    auto first = account.Connect();
    auto second = account.Connect();
    first->Execute("select 1 as a into tempdb..X");
    first->Close();
    EXPECT_EQ(ShowRows(*second, "select a from tempdb..X"), "1\n");
    second->Close();
    EXPECT_THROW(account.Connect()->Execute("select a from tempdb..X"), DatabaseError);
}

TEST(AccountLife, LastsAsLongAsAHandle)
{
    const TestAccount account;
    auto handle = OpenAccount(account.Path());
    account.Connect()->Execute("select 1 as a into tempdb..X");
    EXPECT_EQ(ShowRows(*account.Connect(), "select a from tempdb..X"), "1\n");
    handle.reset();
    EXPECT_THROW(account.Connect()->Execute("select a from tempdb..X"), DatabaseError);
}

TEST(AccountLife, IsOneForEveryWayToNameTheFile)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("select 1 as a into tempdb..X");
    const std::filesystem::path path = account.Path();
    const auto other = NewConnection();
    other->SetConnectionString("embedded account='" + (path.parent_path() / "." / path.filename()).string() +
                               "'");
    other->Open("sa", "secret", -1);
    EXPECT_EQ(ShowRows(*other, "select a from tempdb..X"), "1\n");
}

TEST(AccountLife, BeginsTablesInMemoryAndMovesThemWhenTheLastConnectionCloses)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    auto first = account.Connect();
    auto second = account.Connect();
    first->Execute("select 1 as a into T");
    EXPECT_EQ(DuckNameOf(*handle, "T"), "\"work\".\"main\".\"T\"");
    first->Close();
    EXPECT_EQ(DuckNameOf(*handle, "T"), "\"work\".\"main\".\"T\"");
    second->Close();
    EXPECT_EQ(DuckNameOf(*handle, "T"), "\"account\".\"main\".\"T\"");
    EXPECT_EQ(ShowRows(*account.Connect(), "select a from T"), "1\n");
}

TEST(AccountLife, MovesTablesWhenTheHostAsks)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    const auto connection = account.Connect();
    connection->Execute(
        "create table T (a int primary key, b nvarchar(5) not null default ('x'))\r\n"
        "insert into T (a) values (1)");
    handle->Flush();
    EXPECT_EQ(DuckNameOf(*handle, "T"), "\"account\".\"main\".\"T\"");
    connection->Execute("insert into T (a) values (2)");
    EXPECT_EQ(ShowRows(*connection, "select a, b from T order by a"), "1 | x\n2 | x\n");
    EXPECT_THROW(connection->Execute("insert into T (a) values (2)"), DatabaseError);
    EXPECT_EQ(ShowRows(*connection, "select count(*) from sysobjects where name = 'T'"), "1\n");
    handle->Flush();
    EXPECT_EQ(connection->Execute("drop table T"), -1);
    EXPECT_EQ(DuckNameOf(*handle, "T"), "");
}

TEST(AccountLife, MovesTablesBeforeAViewStandsOnThem)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    const auto connection = account.Connect();
    connection->Execute("select 1 as a into T");
    connection->Execute("create view V as select a from T");
    EXPECT_EQ(DuckNameOf(*handle, "T"), "\"account\".\"main\".\"T\"");
    EXPECT_EQ(DuckNameOf(*handle, "V"), "\"account\".\"main\".\"V\"");
}

TEST(AccountLife, KeepsTypesIdentityAndFactsInTheFile)
{
    const TestAccount account;
    account.Connect()->Execute(
        "create table T (n int identity(1,1), c nvarchar(20) not null, d decimal(38,6) default (0), "
        "k nvarchar(9))\r\n"
        "insert into T (c, k) values ('A1', 'x ')\r\n"
        "create table vossystem..P (c nvarchar(3) not null)");

    const auto handle = OpenAccount(account.Path());
    const auto objects = handle->Objects(Database::Account);
    EXPECT_TRUE(ColumnOf(objects, "T", "n").identity);
    EXPECT_FALSE(ColumnOf(objects, "T", "c").nullable);
    EXPECT_EQ(ColumnOf(objects, "T", "c").type, (SqlType{TypeKind::Nvarchar, 20, 0, 0}));
    EXPECT_EQ(ColumnOf(objects, "T", "c").facts, (TextFacts{true, true}));
    EXPECT_EQ(ColumnOf(objects, "T", "d").type, (SqlType{TypeKind::Decimal, 0, 38, 6}));
    EXPECT_EQ(ColumnOf(objects, "T", "k").facts, (TextFacts{false, false}));
    EXPECT_FALSE(ColumnOf(handle->Objects(Database::System), "P", "c").nullable);
    EXPECT_EQ(ShowRows(*account.Connect(), "select count(*) from T where k = 'X' and d = 0"), "1\n");
}

TEST(AccountLife, ServesTwoThreadsAtOnce)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    std::atomic<int> failures = 0;
    const auto run = [&](const std::string& table) {
        try {
            const auto connection = account.Connect();
            for (int i = 0; i < 30; ++i) {
                connection->Execute("select '" + table + "' as c, " + std::to_string(i) + " as n into " +
                                    table);
                connection->Execute("insert into " + table + " select c, n + 1 from " + table);
                if (ShowRows(*connection, "select sum(n) from " + table) != std::to_string(2 * i + 1) + "\n")
                    ++failures;
                connection->Execute("if exists(select * from sysobjects where name = '" + table +
                                    "') drop table " + table);
            }
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
            ++failures;
        }
    };
    std::thread first(run, "T1"), second(run, "T2"), flusher([&] {
        for (int i = 0; i < 20; ++i)
            handle->Flush();
    });
    first.join();
    second.join();
    flusher.join();
    EXPECT_EQ(failures, 0);
    EXPECT_TRUE(handle->Objects(Database::Account).empty());
}

TEST(AccountLife, LetsOneStatementWaitForAnotherOnTheSameRows)
{
    const TestAccount account;
    const auto handle = OpenAccount(account.Path());
    account.Connect()->Execute("create table T (n int, c nvarchar(9))\r\ninsert into T values (0, 'A')");
    const auto run = [&](const std::string& text) {
        try {
            const auto connection = account.Connect();
            for (int i = 0; i < 25; ++i)
                connection->Execute("update T set n = n + 1 where n >= 0");
            // The first text that ends in a blank changes what the file tells of the column.
            connection->Execute("insert into T values (-1, '" + text + " ')");
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    };
    std::thread first(run, "b"), second(run, "c");
    first.join();
    second.join();
    EXPECT_EQ(ShowRows(*account.Connect(), "select max(n) from T"), "50\n");
    EXPECT_EQ(ShowRows(*account.Connect(), "select count(*) from T where c = 'B' or c = 'C'"), "2\n");
}

TEST(AccountLife, ManyOpeningsAtOnceFindOneAccount)
{
    const TestAccount account;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&, i] {
            for (int round = 0; round < 5; ++round) {
                const auto connection = account.Connect();
                connection->Execute("select 1 as a into #T" + std::to_string(i));
                connection->Close();
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(ShowRows(*account.Connect(), "select count(*) from sysobjects"), "0\n");
}

}  // namespace

}  // namespace kavelin::embedded
