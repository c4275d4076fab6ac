#include "database/odbc/OdbcText.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::odbc {
namespace {

const DriverChoice kFreeTds = DriverNamed("FreeTDS");
const DriverChoice kVendor = DriverNamed("ODBC Driver 18 for SQL Server");

std::string Translate(std::string_view text, const DriverChoice& driver, std::string_view user = {},
                      std::string_view password = {})
{
    return OdbcText(ConnectionText::Parse(text), user, password, driver);
}

TEST(OdbcText, TurnsTheProvidersFormIntoFreeTdss)
{
    const struct {
        std::string_view text, odbc;
    } cases[] = {
        {"Provider=P.1;Data Source=tcp:host,1444;Initial Catalog=Books;User ID=sa;Password=\"p;w\"",
         "Driver={FreeTDS};Server=host;Port=1444;TDS_Version=7.4;ClientCharset=UTF-8;TextSize=2147483647;"
         "Database=Books;UID=sa;PWD={p;w};"},
        {"Data Source=host",
         "Driver={FreeTDS};Server=host;Port=1433;TDS_Version=7.4;ClientCharset=UTF-8;"
         "TextSize=2147483647;"},
        {"Data Source=host;Port=1500",
         "Driver={FreeTDS};Server=host;Port=1500;TDS_Version=7.4;"
         "ClientCharset=UTF-8;TextSize=2147483647;"},
        {"Data Source=.\\BOOKS",
         "Driver={FreeTDS};Server=localhost\\BOOKS;TDS_Version=7.4;"
         "ClientCharset=UTF-8;TextSize=2147483647;"},
        {"Data Source=host\\BOOKS,1500",
         "Driver={FreeTDS};Server=host;Port=1500;TDS_Version=7.4;"
         "ClientCharset=UTF-8;TextSize=2147483647;"},
        {"Data Source=host;Use Encryption for Data=True;Application Name=Kavelin;Workstation ID=w;"
         "Current Language=us_english",
         "Driver={FreeTDS};Server=host;Port=1433;TDS_Version=7.4;ClientCharset=UTF-8;TextSize=2147483647;"
         "Encryption=require;APP=Kavelin;WSID=w;Language=us_english;"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Translate(c.text, kFreeTds), c.odbc);
}

TEST(OdbcText, TurnsTheProvidersFormIntoTheVendors)
{
    const struct {
        std::string_view text, odbc;
    } cases[] = {
        {"Provider=P.1;Data Source=tcp:host,1444;Initial Catalog=Books;User ID=sa;Password=p",
         "Driver={ODBC Driver 18 for SQL Server};Server=host,1444;Encrypt=no;Database=Books;UID=sa;PWD=p;"},
        {"Server=host\\BOOKS;Encrypt=true;TrustServerCertificate=True;Trusted_Connection=yes;UID=x;PWD=y",
         "Driver={ODBC Driver 18 for SQL Server};Server=host\\BOOKS;Encrypt=yes;TrustServerCertificate=yes;"
         "Trusted_Connection=Yes;"},
        {"Server=host;Encrypt=strict;Integrated Security=false;UID=x",
         "Driver={ODBC Driver 18 for SQL Server};Server=host;Encrypt=strict;UID=x;"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Translate(c.text, kVendor), c.odbc);
}

TEST(OdbcText, KeysOfTheProviderThatMeanNothingToOdbcAreLeftOut)
{
    EXPECT_EQ(
        Translate("Provider=P.1;Data Source=host;Persist Security Info=True;Packet Size=4096;"
                  "Use Procedure for Prepare=1;Auto Translate=True;Connect Timeout=7;Initial Catalog=Books",
                  kVendor),
        "Driver={ODBC Driver 18 for SQL Server};Server=host;Encrypt=no;Database=Books;");
}

TEST(OdbcText, UserAndPasswordOfOpenReplaceThoseOfTheText)
{
    EXPECT_EQ(Translate("Server=host;UID=a;PWD=b;Trusted_Connection=yes", kVendor, "c", "d"),
              "Driver={ODBC Driver 18 for SQL Server};Server=host;Encrypt=no;UID=c;PWD=d;");
    EXPECT_EQ(Translate("Server=host;UID=a;PWD=b", kVendor, "", "d"),
              "Driver={ODBC Driver 18 for SQL Server};Server=host;Encrypt=no;UID=a;PWD=d;");
    EXPECT_EQ(Translate("DSN=books;uid=a;Pwd={b;};Option=1", kFreeTds, "c", "d}"),
              "DSN=books;Option=1;UID=c;PWD={d}}};");
    EXPECT_EQ(Translate("DSN=books;uid=a;Pwd={b;};Option=1", kFreeTds, "", "d"),
              "DSN=books;uid=a;Option=1;PWD=d;");
}

TEST(OdbcText, OdbcStringsPassAsTheyStand)
{
    for (const std::string_view text :
         {"Driver={Some Driver};Server=tcp:host,1433;PWD={a;b}}c};Odd=' x", "DSN=books",
          "FileDSN=/etc/books.dsn;UID=u", "Driver=/usr/lib/x.so;Database=/tmp/x.db;Timeout=3"})
        EXPECT_EQ(Translate(text, kVendor), std::string(text) + ";");
}

TEST(OdbcText, ATextWithoutAServerIsRefused)
{
    EXPECT_THROW(Translate("Provider=P.1;Initial Catalog=Books", kFreeTds), ConnectionError);
}

TEST(OdbcText, ValuesStandInBracesWhereTheyMust)
{
    const struct {
        std::string_view value, written;
    } cases[] = {
        {"plain", "plain"}, {"", ""},          {"a b", "a b"},       {"a=b", "a=b"},
        {"a;b", "{a;b}"},   {"a}b", "{a}}b}"}, {"{a", "{{a}"},       {" a", "{ a}"},
        {"'a'", "{'a'}"},   {"}", "{}}}"},     {"密码;", "{密码;}"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(OdbcValue(c.value, DriverKind::Vendor), c.written);
}

TEST(OdbcText, BracesAreNotDoubledForFreeTds)
{
    EXPECT_EQ(OdbcValue("p}w;x", DriverKind::FreeTds), "{p}w;x}");
    EXPECT_EQ(OdbcValue("plain", DriverKind::FreeTds), "plain");
    EXPECT_EQ(Translate("Driver=FreeTDS;Server=host", kVendor, "u", "p}w"),
              "Driver=FreeTDS;Server=host;UID=u;PWD={p}w};");
    EXPECT_THROW(OdbcValue("p};w", DriverKind::FreeTds), ConnectionError);
}

}  // namespace
}  // namespace kavelin::odbc
