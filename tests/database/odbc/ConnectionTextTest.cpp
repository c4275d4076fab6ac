#include "database/odbc/ConnectionText.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::odbc {
namespace {

TEST(ConnectionText, KeysComeInAnyCaseAndOrderAndUnderAnyOfTheirNames)
{
    const struct {
        std::string_view text;
        Meaning meaning;
        std::string_view value;
    } cases[] = {
        {"Provider=P.1;Data Source=host;Initial Catalog=Books", Meaning::Server, "host"},
        {"initial catalog=Books;DATA SOURCE=host;provider=P.1", Meaning::Database, "Books"},
        {"Server=a;Database=b", Meaning::Server, "a"},
        {"Address=a;Database=b", Meaning::Server, "a"},
        {"addr=a", Meaning::Server, "a"},
        {"Network Address=a", Meaning::Server, "a"},
        {"Server=a;Database=b", Meaning::Database, "b"},
        {"User ID=u", Meaning::User, "u"},
        {"uid=u", Meaning::User, "u"},
        {"USER=u", Meaning::User, "u"},
        {"Password=p", Meaning::Password, "p"},
        {"pwd=p", Meaning::Password, "p"},
        {"Integrated Security=SSPI", Meaning::IntegratedSecurity, "SSPI"},
        {"Trusted_Connection=yes", Meaning::IntegratedSecurity, "yes"},
        {"Connect Timeout=5", Meaning::ConnectTimeout, "5"},
        {"Connection Timeout=5", Meaning::ConnectTimeout, "5"},
        {"Timeout=5", Meaning::ConnectTimeout, "5"},
        {"Encrypt=yes", Meaning::Encrypt, "yes"},
        {"Use Encryption for Data=True", Meaning::Encrypt, "True"},
        {"TrustServerCertificate=yes", Meaning::TrustServerCertificate, "yes"},
        {"Application Name=x", Meaning::ApplicationName, "x"},
        {"APP=x", Meaning::ApplicationName, "x"},
        {"Password=old;Password=new", Meaning::Password, "new"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ConnectionText::Parse(c.text).Get(c.meaning), c.value) << c.text;
}

TEST(ConnectionText, BlanksAreLeftOutAndQuotedValuesKeepTheirs)
{
    const struct {
        std::string_view text, password;
    } cases[] = {
        {" Server = a ; Password = p w ;", "p w"},
        {"Server=a;Password=\" p;w \"", " p;w "},
        {"Server=a;Password=' p;w '", " p;w "},
        {"Server=a;Password={ p;w }", " p;w "},
        {"Server=a;Password=\"say \"\"so\"\"\";Database=b", "say \"so\""},
        {"Server=a;Password='it''s';Database=b", "it's"},
        {"Server=a;Password={a}}b};Database=b", "a}b"},
        {"Server=a;Password= \"p\" ;Database=b", "p"},
        {"Server=a;Password=p=q==;Database=b", "p=q=="},
        {"Server=a;Password=p\"q'r{s};Database=b", "p\"q'r{s}"},
        {"Server=a;Password=;Database=b", ""},
        {"Server=a;Password=\"\"", ""},
        {"Server=a", ""},
        {";;Server=a;;PWD=密码;;", "密码"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ConnectionText::Parse(c.text).Get(Meaning::Password), c.password) << c.text;
        EXPECT_EQ(PasswordOf(c.text), c.password) << c.text;
    }
}

TEST(ConnectionText, WhatIsNoListOfKeysIsRefusedWithoutItsValues)
{
    const std::string_view texts[] = {
        "secret-word",
        "Server=a;secret-word",
        "Server=a;Password=\"secret-word",
        "Server=a;Password='secret-word''",
        "Server=a;Password={secret-word",
        "Server=a;Password=\"x\"secret-word",
        "=secret-word",
        "Server=a;Password=x;secret-word='y",
        "Server=a;Password=x;secret-word={y}z",
    };
    for (const std::string_view text : texts) {
        try {
            ConnectionText::Parse(text);
            FAIL() << text;
        } catch (const ConnectionError& error) {
            EXPECT_EQ(std::string(error.what()).find("secret-word"), std::string::npos) << error.what();
            EXPECT_EQ(error.Get().strSqlState, "08001");
        }
    }
}

TEST(ConnectionText, QuotesMeanNothingInOdbcsOwnForm)
{
    const struct {
        std::string_view text, password;
    } cases[] = {
        {"Driver={FreeTDS};Server=a;PWD='p", "'p"},
        {"DSN=books;PWD=\"p\"", "\"p\""},
        {"DSN=books;PWD={p;w}", "p;w"},
        {"FileDSN=books.dsn;PWD=\"p\"q", "\"p\"q"},
    };
    for (const auto& c : cases) {
        const ConnectionText text = ConnectionText::Parse(c.text);
        EXPECT_TRUE(text.IsOdbc()) << c.text;
        EXPECT_EQ(text.Get(Meaning::Password), c.password) << c.text;
    }
    EXPECT_FALSE(ConnectionText::Parse("Server=a;Password=\"x;Driver=FreeTDS;\"").IsOdbc());
}

TEST(ConnectionText, OnlyAServersTextIsForThisAdapter)
{
    for (const std::string_view text : {"Provider=P.1", "Data Source=host", "server=host", "Driver=FreeTDS",
                                        "DSN=books", "filedsn=books.dsn"})
        EXPECT_TRUE(NamesServer(text)) << text;
    for (const std::string_view text :
         {"Embedded Account=/data/books.kavelin;Locale=en-US",
          "Embedded Account=\"/data/Server=x;y.kavelin\"", "", "/data/books.kavelin", "books",
          "Server=\"unfinished", "Locale=zh-CN", "Embedded Account=a;Data Source=b"})
        EXPECT_FALSE(NamesServer(text)) << text;
}

TEST(ConnectionText, AnUnreadableTextHasNoPassword)
{
    EXPECT_EQ(PasswordOf("Password=\"unfinished"), "");
}

}  // namespace
}  // namespace kavelin::odbc
