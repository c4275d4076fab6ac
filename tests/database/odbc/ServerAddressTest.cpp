#include "database/odbc/ServerAddress.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::odbc {
namespace {

TEST(ParseServer, TakesEveryFormOfAServersName)
{
    const struct {
        std::string_view text;
        ServerAddress address;
    } cases[] = {
        {"host", {"host", 0, ""}},
        {"tcp:host,1433", {"host", 1433, ""}},
        {"TCP:host", {"host", 0, ""}},
        {" tcp: host , 1444 ", {"host", 1444, ""}},
        {"host,1433", {"host", 1433, ""}},
        {"host\\BOOKS", {"host", 0, "BOOKS"}},
        {"host\\BOOKS,1500", {"host", 1500, "BOOKS"}},
        {"(local)", {"localhost", 0, ""}},
        {"(LOCAL)\\BOOKS", {"localhost", 0, "BOOKS"}},
        {".", {"localhost", 0, ""}},
        {".\\BOOKS", {"localhost", 0, "BOOKS"}},
        {"10.0.0.7,1433", {"10.0.0.7", 1433, ""}},
        {"[::1]", {"::1", 0, ""}},
        {"[fe80::1],1433", {"fe80::1", 1433, ""}},
        {"tcp:[fe80::1],1433", {"fe80::1", 1433, ""}},
        {"fe80::1,1433", {"fe80::1", 1433, ""}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ParseServer(c.text), c.address) << c.text;
}

TEST(ParseServer, RefusesWhatNamesNoServer)
{
    for (const std::string_view text : {"", " ", "tcp:", ",1433", "\\BOOKS", "host,", "host,port", "host,0",
                                        "host,65536", "np:host", "lpc:host", "host:1433", "tcp:host:1433"})
        EXPECT_THROW(ParseServer(text), ConnectionError) << text;
}

}  // namespace
}  // namespace kavelin::odbc
