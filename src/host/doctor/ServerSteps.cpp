#include "host/doctor/ServerSteps.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/doctor/ErrorKinds.h"

#include <fmt/format.h>

namespace kavelin::host {

namespace {

constexpr const char* kVersion = "version";
constexpr const char* kCollation = "collation";
constexpr const char* kPeriods = "periods";
constexpr const char* kLanguage = "language";

constexpr int kLeastVersion = 9;  // SQL Server 2005
constexpr int kLeastLevel = 90;   // its compatibility level

std::unique_ptr<Recordset> Read(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

std::string TextOf(const Recordset& rows, std::string_view field)
{
    const Value value = rows.Field(field);
    return value.IsNull() ? "" : ToText(value);
}

std::string Literal(const std::string& text)
{
    return "N'" + ReplaceAll(text, "'", "''") + "'";
}

const std::string kSelectVersion =
    "select convert(nvarchar(128), serverproperty('ProductVersion')) as version,"
    " convert(nvarchar(128), serverproperty('Edition')) as edition";

const std::string kSelectDatabase =
    "select d.name, d.cmptlevel,"
    " convert(nvarchar(128), databasepropertyex(d.name, 'Collation')) as collation,"
    " convert(nvarchar(128), databasepropertyex(N'tempdb', 'Collation')) as tempdbCollation"
    " from master..sysdatabases d where d.name = db_name()";

// Statements write Chinese texts without N too; a collation of another code page makes them question marks.
const std::string kSelectChinese = "select case when '直运' = N'直运' then 1 else 0 end as kept";

DoctorStep VersionStep(const std::string& version, const std::string& edition, const std::string& database,
                       int level)
{
    if (LeadingNumber(version) < kLeastVersion)
        return Failed(kVersion, fmt::format("The server has the version {}.", version),
                      "The statements need SQL Server 2005 (version 9) or newer.");
    if (level < kLeastLevel)
        return Failed(kVersion,
                      fmt::format("The database {} has the compatibility level {}.", database, level),
                      fmt::format("Have it set to {} or more: exec sp_dbcmptlevel '{}', {}.", kLeastLevel,
                                  database, kLeastLevel));
    return Passed(kVersion, fmt::format("SQL Server {}, {}; database {} at level {}.", version, edition,
                                        database, level));
}

bool HasPart(const std::string& collation, std::string_view part)
{
    for (const std::string& one : Split(collation, "_"))
        if (EqualsNoCase(one, part))
            return true;
    return false;
}

struct Collations {
    std::string ofDatabase, ofTempdb;
    bool keepsChinese;
};

DoctorStep CollationStep(const std::string& database, const Collations& collations)
{
    const std::string& collation = collations.ofDatabase;
    const std::string& tempdb = collations.ofTempdb;
    if (!HasPart(collation, "CI"))
        return Failed(
            kCollation,
            fmt::format("The database {} has the collation {}, which tells capital letters from small "
                        "ones; the reports spell names and codes in either.",
                        database, collation),
            "Have the account put into a database of a collation that doesn't, such as "
            "Chinese_PRC_CI_AS.");
    if (!collations.keepsChinese)
        return Failed(
            kCollation,
            fmt::format("The database {} has the collation {}, whose code page has no Chinese characters; "
                        "conditions of the reports that name them find nothing.",
                        database, collation),
            "Have the account put into a database of a Chinese collation, such as Chinese_PRC_CI_AS.");
    if (!EqualsNoCase(collation, tempdb))
        return Failed(
            kCollation,
            fmt::format("The database {} has the collation {}, tempdb has {}; the server refuses to "
                        "compare texts of the one with texts of the other.",
                        database, collation, tempdb),
            "Have the account put on a server whose own collation is that of the account.");
    return Passed(kCollation, fmt::format("{}, also in tempdb.", collation));
}

// The language that the database answers by itself; empty where it has no such function, which is another
// step's to tell.
std::string OwnLanguage(Connection& account)
{
    try {
        const auto rows = Read(account, "select dbo.UDF_GetLocaleID()");
        return rows->Eof() || rows->Field(0).IsNull() ? "" : ToText(rows->Field(0));
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return "";
    }
}

}  // namespace

std::vector<DoctorStep> ExamineServerFacts(Connection& account)
{
    try {
        const auto server = Read(account, kSelectVersion);
        const auto database = Read(account, kSelectDatabase);
        if (server->Eof() || database->Eof())
            return {
                Failed(
                    kVersion, "The server tells nothing about itself and the database.",
                    "See whether it is an SQL Server, and whether the connection string names its database."),
                Skipped(kCollation, "Nothing tells it.")};
        const auto chinese = Read(account, kSelectChinese);
        const std::string name = TextOf(*database, "name");
        return {VersionStep(TextOf(*server, "version"), TextOf(*server, "edition"), name,
                            ToInt32(database->Field("cmptlevel"))),
                CollationStep(name, {TextOf(*database, "collation"), TextOf(*database, "tempdbCollation"),
                                     !chinese->Eof() && ToInt32(chinese->Field("kept")) == 1})};
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return {Failed(kVersion, fmt::format("It doesn't answer as an SQL Server: {}", error.what()),
                       "The reports run on SQL Server 2005 or newer, and on embedded accounts."),
                Skipped(kCollation, "Nothing tells it.")};
    }
}

DoctorStep ExaminePeriods(Connection& account, const std::string& accountId)
{
    try {
        const auto months = Read(account,
                                 "select count(*) as months, min(iYear) as firstYear, max(iYear) as lastYear"
                                 " from VosSystem..UA_Period where cAcc_ID = " +
                                     Literal(accountId) + " and iYear <> 9999");
        if (const std::int32_t count = ToInt32(months->Field("months")); count > 0)
            return Passed(kPeriods, fmt::format("{} fiscal months of account {}, {} to {}.", count, accountId,
                                                TextOf(*months, "firstYear"), TextOf(*months, "lastYear")));
        DoctorStep step =
            Failed(kPeriods, fmt::format("VosSystem..UA_Period has no month of account {}.", accountId),
                   "Give the account's number by id in kavelin.toml; those that the server has stand "
                   "below.");
        for (const auto ids =
                 Read(account, "select distinct top 20 cAcc_ID from VosSystem..UA_Period order by cAcc_ID");
             !ids->Eof(); ids->MoveNext())
            step.details.push_back(TextOf(*ids, "cAcc_ID"));
        if (step.details.empty())
            step.advice =
                "Have the server's account administration write the fiscal months; the table is empty.";
        return step;
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return Failed(
            kPeriods, error.what(),
            "Have the login made a user of the database VosSystem of the same server, with the right to "
            "read UA_Period.");
    }
}

DoctorStep ExamineLanguage(Connection& account, const std::string& language)
{
    try {
        const auto texts =
            Read(account, "select count(*) as texts from AA_Enum where LocaleID = " + Literal(language));
        if (ToInt32(texts->Field("texts")) == 0)
            return Failed(
                kLanguage, fmt::format("AA_Enum has no texts in {}.", language),
                "Choose another language by --language, or have the texts of this one put into AA_Enum.");
        DoctorStep step =
            Passed(kLanguage, fmt::format("{} texts in {}.", ToText(texts->Field("texts")), language));
        const std::string own = OwnLanguage(account);
        if (!own.empty() && !EqualsNoCase(own, language))
            step.details.push_back(
                fmt::format("dbo.UDF_GetLocaleID() answers {}: some names come in that "
                            "language, whatever the login's",
                            own));
        return step;
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return Skipped(kLanguage, fmt::format("AA_Enum can't be read: {}", error.what()));
    }
}

}  // namespace kavelin::host
