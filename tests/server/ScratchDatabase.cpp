#include "server/ScratchDatabase.h"

#include "database/odbc/ConnectionText.h"
#include "frame/Errors.h"
#include "frame/Guards.h"
#include "frame/Text.h"

#include <fmt/format.h>

#include <random>
#include <ranges>

namespace kavelin::test::server {

namespace {

constexpr std::string_view kSystem = "VosSystem";

std::string InDatabase(const std::string& connectionString, const std::string& database)
{
    const bool odbc = kavelin::odbc::ConnectionText::Parse(connectionString).IsOdbc();
    return connectionString + (odbc ? ";Database=" : ";Initial Catalog=") + database;
}

std::string Random(int digits)
{
    std::random_device random;
    return fmt::format("{:08x}", random()).substr(0, static_cast<std::size_t>(digits));
}

// Runs the statement; a failure becomes a line.
void Try(Connection& connection, const std::string& sql, std::vector<std::string>& left)
{
    try {
        connection.Execute(sql);
    } catch (const DatabaseError& error) {
        left.push_back(sql + ": " + error.what());
    }
}

}  // namespace

ScratchDatabase::ScratchDatabase(const ServerAccess& access, const host::ConnectionSource& connections)
    : objAccess(access),
      objConnections(connections),
      strName(access.database.empty() ? "KavelinTest_" + Random(8) : access.database),
      strAccountId("K" + Random(6))
{
    if (access.database.empty()) {
        Open("master")->Execute("create database " + strName);
        blnMadeDatabase = true;
        blnTidy = false;
    }
    const auto connection = Open(strName);
    snapshot::AccountObjects there = snapshot::ReadObjects(*connection);
    if (!blnMadeDatabase && (!there.tables.empty() || !there.views.empty()))
        throw Error("The database " + strName + " is not empty. Nothing was written.");
    blnTidy = false;
    if (!there.systemProblem.empty()) {
        connection->Execute("create database " + std::string(kSystem));
        blnMadeSystem = true;
    }
    blnHadPeriods = there.systemTables.contains("UA_Period");
}

ScratchDatabase::~ScratchDatabase()
{
    IgnoreErrors([&] { TidyUp(); });
}

std::shared_ptr<Connection> ScratchDatabase::Open(const std::string& database) const
{
    host::AccountLogin login;
    login.connectionString = InDatabase(objAccess.connectionString, database);
    login.password = objAccess.password;
    return objConnections.Open("scratch", login.ConnectionText(), "");
}

host::AccountLogin ScratchDatabase::Login() const
{
    host::AccountLogin login;
    login.connectionString = InDatabase(objAccess.connectionString, strName);
    login.password = objAccess.password;
    login.accountId = strAccountId;
    return login;
}

std::vector<std::string> ScratchDatabase::TidyUp()
{
    std::vector<std::string> left;
    if (std::exchange(blnTidy, true))
        return left;
    {
        const auto connection = Open(strName);
        DropSystemRows(*connection, left);
        if (!blnMadeDatabase)
            DropObjects(*connection, left);
        connection->Close();
    }
    if (!blnMadeDatabase && !blnMadeSystem)
        return left;
    const auto master = Open("master");
    if (blnMadeSystem)
        Try(*master, "drop database " + std::string(kSystem), left);
    if (blnMadeDatabase)
        Try(*master, "drop database " + strName, left);
    return left;
}

// Everything in it, since it was empty: also what reports left.
void ScratchDatabase::DropObjects(Connection& connection, std::vector<std::string>& left) const
{
    const snapshot::AccountObjects there = snapshot::ReadObjects(connection);
    for (const std::string& view : there.views)
        Try(connection, "drop view " + view, left);
    for (const std::string& table : there.tables)
        Try(connection, "drop table " + table, left);
    for (const std::string& function : there.functions)
        Try(connection, "drop function dbo." + function, left);
}

void ScratchDatabase::DropSystemRows(Connection& connection, std::vector<std::string>& left) const
{
    if (!snapshot::ReadObjects(connection).systemTables.contains("UA_Period"))
        return;
    if (blnHadPeriods)
        Try(connection, "delete from VosSystem..UA_Period where cAcc_ID = N'" + strAccountId + "'", left);
    else
        Try(connection, "drop table VosSystem..UA_Period", left);
}

}  // namespace kavelin::test::server
