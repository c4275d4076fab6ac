#include "host/ServerAccount.h"

#include "database/odbc/ConnectionText.h"
#include "host/AccountLogin.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

TEST(ServerAccount, TellsServersFromEmbeddedAccounts)
{
    const struct {
        const char* text;
        bool onServer;
    } cases[] = {
        {"Provider=SQLOLEDB;Data Source=db", true}, {"data source = db", true},
        {"Driver={FreeTDS};Server=db", true},       {"DSN=books", true},
        {"Embedded Account=/x.kavelin", false},     {"Embedded Account=/x.kavelin;Server=db", false},
        {"Initial Catalog=Books", false},           {"", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(OnServer(c.text), c.onServer) << c.text;
}

TEST(ServerAccount, WantsAPasswordWhereTheStringNamesAUser)
{
    EXPECT_TRUE(WantsPassword("Provider=SQLOLEDB;Data Source=db;User ID=sa"));
    EXPECT_TRUE(WantsPassword("Driver=FreeTDS;Server=db;UID=sa"));
    EXPECT_FALSE(WantsPassword("Provider=SQLOLEDB;Data Source=db;User ID=sa;Integrated Security=SSPI"));
    EXPECT_FALSE(WantsPassword("Driver=FreeTDS;Server=db;UID=sa;Trusted_Connection=yes"));
    EXPECT_FALSE(WantsPassword("DSN=books"));
    EXPECT_FALSE(WantsPassword("Embedded Account=/x.kavelin;User ID=sa"));
}

TEST(ServerAccount, PutsAnyPasswordIntoTheStringSoThatItIsReadBack)
{
    for (const char* password :
         {"plain", "se;cret", "dou\"ble", "sin'gle", "{braced}", "}", " blanks ", "a=b", "密码"})
        for (const char* text : {"Provider=SQLOLEDB;Data Source=db;User ID=sa",
                                 "Driver={FreeTDS};Server=db;UID=sa", "DSN=books;UID=sa"}) {
            const std::string complete = WithPassword(text, password);
            EXPECT_EQ(odbc::PasswordOf(complete), password) << complete;
            EXPECT_TRUE(complete.starts_with(text)) << complete;
            EXPECT_EQ(odbc::ConnectionText::Parse(complete).Get(odbc::Meaning::User), "sa") << complete;
        }
    EXPECT_EQ(WithPassword("DSN=books", ""), "DSN=books");
}

TEST(ServerAccount, IsCompleteInTheLoginThatReportsGet)
{
    AccountLogin login;
    login.connectionString = "Provider=SQLOLEDB;Data Source=db;User ID=sa";
    login.password = "se;cret";
    EXPECT_EQ(login.ConnectionText(), "Provider=SQLOLEDB;Data Source=db;User ID=sa;Password=\"se;cret\"");
    EXPECT_EQ(login.connectionString.find("cret"), std::string::npos);

    login.connectionString = "Embedded Account=x.kavelin";
    EXPECT_EQ(login.ConnectionText(), "Embedded Account=x.kavelin;Locale=zh-CN");
}

TEST(ServerAccount, IsShownByItsServerOrDataSource)
{
    EXPECT_EQ(ServerShown("Provider=x;Data Source=tcp:db,1433;User ID=sa"), "tcp:db,1433");
    EXPECT_EQ(ServerShown("DSN=books;UID=sa"), "books");
    EXPECT_EQ(ServerShown("Driver=FreeTDS;UID=sa"), "its server");
}

}  // namespace
}  // namespace kavelin::host
