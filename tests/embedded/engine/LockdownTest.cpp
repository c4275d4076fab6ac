#include "embedded/engine/Lockdown.h"

#include "embedded/engine/Instance.h"
#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace kavelin::embedded {

namespace {

// "102: Incorrect syntax near 'x'.", or "done".
std::string Answer(EmbeddedConnection& connection, const std::string& sql)
{
    try {
        connection.Execute(sql);
        return "done";
    } catch (const DatabaseError& error) {
        return std::to_string(error.Get().lngNumber) + ": " + error.what();
    }
}

// What DuckDB itself says, beneath all of T-SQL.
std::string DuckAnswer(Session& session, const std::string& sql)
{
    try {
        session.Run(sql);
        return "done";
    } catch (const DuckError& error) {
        return error.what();
    }
}

std::set<std::string> FilesIn(const std::filesystem::path& folder)
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

TEST(Lockdown, NothingOfDuckDbIsReachedByTSql)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int, c nvarchar(20))");
    const std::string outside = account.Folder().File("outside.csv");
    std::ofstream(outside) << "a,b\n1,2\n";
    const auto before = FilesIn(std::filesystem::path(account.Path()).parent_path());

    const std::string file = "'" + outside + "'";
    const std::vector<std::string> texts = {
        "copy T to " + file,
        "copy T from " + file,
        "copy (select 1) to " + file,
        "COPY T TO 'x.parquet' (FORMAT parquet)",
        "select * from read_csv(" + file + ")",
        "select * from read_csv_auto(" + file + ")",
        "select * from read_text(" + file + ") x",
        "select * from read_blob(" + file + ") x",
        "select * from read_parquet(" + file + ")",
        "select * from read_json(" + file + ")",
        "select * from glob('*')",
        "select * from " + file,
        "select * from N" + file + " x",
        "select * from \"" + outside + "\"",
        "select * from [" + outside + "]",
        "select * from [" + outside + "] x",
        "select read_text(" + file + ")",
        "select * from T where a in (select a from read_csv(" + file + "))",
        "select getenv('HOME')",
        "select getvariable('kavelin_locale')",
        "select current_setting('memory_limit')",
        "select * from duckdb_settings()",
        "select * from duckdb_tables()",
        "select * from information_schema.tables",
        "select * from sqlite_master",
        "select * from pragma_table_info('T')",
        "select * from query('select 1')",
        "select * from account.main.T",
        "select * from work.main.T",
        "select rowid from T",
        "attach 'x.db' as x",
        "attach ':memory:' as x",
        "detach account",
        "install httpfs",
        "load httpfs",
        "load 'x.so'",
        "force install httpfs",
        "update extensions",
        "pragma database_list",
        "pragma memory_limit='1GB'",
        "pragma show_tables",
        "set memory_limit = '1GB'",
        "set enable_external_access = true",
        "set global lock_configuration = false",
        "set variable kavelin_locale = 'en-US'",
        "reset memory_limit",
        "export database 'x'",
        "import database 'x'",
        "create secret s (type s3)",
        "create macro m(a) as a",
        "create sequence s",
        "create type t as enum ('a')",
        "create schema s",
        "create or replace table T (a int)",
        "create temp table X (a int)",
        "create table X as select * from " + file,
        "create view V as select * from read_csv(" + file + ")",
        "drop schema main",
        "drop sequence kavelin_account",
        "comment on table T is 'x'",
        "checkpoint",
        "force checkpoint",
        "vacuum",
        "analyze",
        "call pragma_version()",
        "prepare p as select 1",
        "deallocate p",
        "explain select 1",
        "describe T",
        "show tables",
        "summarize T",
        "from T",
        "values (1)",
        "table T",
        "pivot T on a",
        "with x as (select 1) select * from x",
        "select * exclude (a) from T",
        "select columns('a') from T",
        "select a::varchar from T",
        "select {'a': 1}",
        "select $1",
        "select ?",
        "select 1 -- x",
        "select * from T using sample 1",
        "select * from T limit 1",
        "use tempdb",
        "begin transaction",
        "commit",
        "rollback",
        "insert into T select * from read_csv(" + file + ")",
        "insert into kavelin_account values (1)",
        "delete from sysobjects",
        "update sysobjects set name = 'x'",
        "drop view sysobjects",
        "drop view tempdb..sysobjects",
        "drop view vossystem..sysobjects",
        "drop table account.main.T",
    };
    for (const std::string& text : texts) {
        const std::string answer = Answer(*connection, text);
        EXPECT_NE(answer, "done") << text;
        EXPECT_FALSE(answer.starts_with("0: ")) << text << "\n" << answer;
    }
    EXPECT_EQ(FilesIn(std::filesystem::path(account.Path()).parent_path()), before);
    EXPECT_EQ(ShowRows(*connection, "select name from sysobjects order by name"), "T\n");
}

// Each kind of statement begins with one of these words, and behind some of them with these.
TEST(Lockdown, NoOtherKindsOfStatementAreTakenThanTheseTen)
{
    const TestAccount account;
    const auto connection = account.Connect();
    for (const char* text : {
             "select 1 as a into T",
             "insert into T values (2)",
             "update T set a = 3",
             "delete from T",
             "if exists (select * from T) delete from T",
             "alter table T add b int",
             "create table U (a int)",
             "create index I on U (a)",
             "create view V as select a from U",
             "drop view V",
             "drop table T, U",
         })
        EXPECT_EQ(Answer(*connection, text), "done") << text;

    const std::vector<std::string> words = {
        "abort",
        "add",
        "alter database",
        "alter schema",
        "alter sequence",
        "alter type",
        "alter view",
        "analyze",
        "attach",
        "backup",
        "begin",
        "bulk",
        "call",
        "checkpoint",
        "close",
        "comment",
        "commit",
        "copy",
        "create database",
        "create function",
        "create macro",
        "create or replace",
        "create procedure",
        "create schema",
        "create secret",
        "create sequence",
        "create temp",
        "create trigger",
        "create type",
        "create user",
        "dbcc",
        "deallocate",
        "declare",
        "deny",
        "describe",
        "detach",
        "disable",
        "drop database",
        "drop function",
        "drop index",
        "drop macro",
        "drop procedure",
        "drop schema",
        "drop secret",
        "drop sequence",
        "drop type",
        "dump",
        "enable",
        "end",
        "exec",
        "execute",
        "explain",
        "export",
        "fetch",
        "force",
        "from",
        "go",
        "goto",
        "grant",
        "import",
        "install",
        "kill",
        "load",
        "merge",
        "open",
        "pivot",
        "pragma",
        "prepare",
        "print",
        "raiserror",
        "read",
        "reconfigure",
        "release",
        "reset",
        "restore",
        "return",
        "revert",
        "revoke",
        "rollback",
        "save",
        "savepoint",
        "set",
        "show",
        "shutdown",
        "start",
        "summarize",
        "table",
        "truncate",
        "unpivot",
        "use",
        "vacuum",
        "values",
        "waitfor",
        "while",
        "with",
        "xp_cmdshell",
    };
    for (const std::string& word : words)
        for (const char* rest : {"", " T", " table T", " T as x", " 'x'", " x = 1", " (1)", " from T"})
            EXPECT_TRUE(Answer(*connection, word + rest).starts_with("1")) << word << rest;
}

TEST(Lockdown, HoldsBelowTSqlToo)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("create table T (a int)");
    const std::string outside = account.Folder().File("outside.csv");
    std::ofstream(outside) << "a,b\n1,2\n";
    const std::string file = "'" + outside + "'";

    Session session(Instance::Of(account.Path())->Duck());
    const std::vector<std::string> statements = {
        "SELECT * FROM read_csv(" + file + ")",
        "SELECT * FROM read_text(" + file + ")",
        "SELECT * FROM " + file,
        "SELECT * FROM glob('*')",
        "COPY \"work\".\"main\".\"T\" TO " + file,
        "COPY \"work\".\"main\".\"T\" FROM " + file,
        "EXPORT DATABASE '" + account.Folder().File("export") + "'",
        "ATTACH '" + account.Folder().File("other.db") + "' AS other",
        "INSTALL httpfs",
        "LOAD httpfs",
        "LOAD 'x.duckdb_extension'",
        "SET enable_external_access = true",
        "SET GLOBAL lock_configuration = false",
        "SET GLOBAL memory_limit = '64GB'",
        "SET threads = 64",
        "SET default_null_order = 'nulls_last'",
        "SET GLOBAL autoload_known_extensions = true",
        "RESET GLOBAL temp_directory",
        "PRAGMA memory_limit='64GB'",
    };
    for (const std::string& sql : statements)
        EXPECT_NE(DuckAnswer(session, sql), "done") << sql;
    EXPECT_FALSE(std::filesystem::exists(account.Folder().File("other.db")));
    // What a connection needs for itself is still to be had.
    EXPECT_EQ(DuckAnswer(session, "SET VARIABLE kavelin_locale = 'en-US'"), "done");
}

TEST(Lockdown, LeavesTheAttachedFilesInUse)
{
    const TestAccount account;
    {
        const auto connection = account.Connect();
        connection->Execute(
            "create table T (a int, c nvarchar(10))\r\n"
            "create table vossystem..S (a int)\r\n"
            "insert into T values (1, 'x')\r\n"
            "insert into vossystem..S values (2)");
        connection->Execute("create view V as select a from T");
        connection->Close();
    }
    const auto connection = account.Connect();
    connection->Execute("alter table T add b int");
    EXPECT_EQ(ShowRows(*connection, "select V.a, T.b from V inner join T on T.a = V.a"), "1 | NULL\n");
    EXPECT_EQ(ShowRows(*connection, "select a from vossystem..S"), "2\n");
}

// --- limits --------------------------------------------------------------------------------------

std::unique_ptr<EmbeddedConnection> ConnectWith(const TestAccount& account, const std::string& limits)
{
    auto connection = NewConnection();
    connection->SetConnectionString("Embedded Account=" + account.Path() + ';' + limits);
    connection->Open("", "", 0);
    return connection;
}

// Some 64 MB of rows.
void MakeManyRows(EmbeddedConnection& connection)
{
    connection.Execute(
        "create table D (d int)\r\n"
        "insert into D values (0), (1), (2), (3), (4), (5), (6), (7), (8), (9)\r\n"
        "select cast(newest.d as nvarchar(10)) + N'" +
        std::string(200, 'x') +
        "' as c, a.d as n into Many from D newest, D a, D b, D c, D e, D f where f.d < 3");
}

TEST(Limits, OfTheConnectionStringHold)
{
    const TestAccount account;
    const auto connection = ConnectWith(account, "Memory=40;Spill=7;Threads=1");
    Session session(Instance::Of(account.Path())->Duck());
    const auto setting = [&](const std::string& name) {
        Result rows = session.Run("SELECT CAST(current_setting('" + name + "') AS VARCHAR)");
        return *rows.Get(0, 0).As<std::string>();
    };
    EXPECT_EQ(setting("memory_limit"), "40.0 MiB");
    EXPECT_EQ(setting("max_temp_directory_size"), "7.0 MiB");
    EXPECT_EQ(setting("threads"), "1");
}

TEST(Limits, AreRefusedWhereTheyAreNoNumbers)
{
    const TestAccount account;
    for (const char* limits : {"Memory=x", "Memory=0", "Memory=1GB", "Memory=", "Spill=-1", "Threads=0",
                               "Threads=9999999999999999999"})
        EXPECT_THROW(ConnectWith(account, limits), ConnectionError) << limits;
}

TEST(Limits, WithoutRoomBesideTheAccountAStatementFailsAndLeavesNothing)
{
    const TestAccount account;
    const auto connection = ConnectWith(account, "Memory=30;Spill=0;Threads=1");
    connection->Execute("create table T (a int)\r\ninsert into T values (1)");
    try {
        MakeManyRows(*connection);
        ADD_FAILURE() << "the rows fitted";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Get().lngNumber, 701) << error.what();
    }
    EXPECT_EQ(ShowRows(*connection, "select name from sysobjects order by name"), "D\nT\n");
    EXPECT_EQ(ShowRows(*connection, "select * from T"), "1\n");
}

TEST(Limits, RowsThatDoNotFitGoBesideTheAccount)
{
    const TestAccount account;
    const auto connection = ConnectWith(account, "Memory=40;Spill=2000;Threads=1");
    MakeManyRows(*connection);
    EXPECT_EQ(ShowRows(*connection, "select count(*) from Many"), "300000\n");
    EXPECT_TRUE(std::filesystem::exists(SpillFolderOf(account.Path())));
}

TEST(Limits, WhatAKilledProcessLeftBesideTheAccountGoes)
{
    const TestAccount account;
    const std::filesystem::path folder = SpillFolderOf(account.Path());
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "duckdb_temp_storage_DEFAULT-0.tmp") << "x";
    account.Connect();
    EXPECT_FALSE(std::filesystem::exists(folder));

    std::filesystem::create_directories(folder);
    std::ofstream(folder / "mine.txt") << "x";
    account.Connect();
    EXPECT_TRUE(std::filesystem::exists(folder / "mine.txt"));
}

}  // namespace

}  // namespace kavelin::embedded
