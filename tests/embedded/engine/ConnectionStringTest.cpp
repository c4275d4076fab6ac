#include "embedded/engine/ConnectionString.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

namespace {

TEST(ConnectionString, TakesKeysInAnyCaseAndOrder)
{
    const struct {
        const char *text, *account, *locale;
    } cases[] = {
        {"Embedded Account=/data/demo.kavelin;Locale=en-US", "/data/demo.kavelin", "en-US"},
        {"locale=en-US;EMBEDDED ACCOUNT=/data/demo.kavelin;", "/data/demo.kavelin", "en-US"},
        {"Embedded Account = /data/a b.kavelin ;", "/data/a b.kavelin", "zh-CN"},
        {"Embedded Account=\"/data/a;b\"\"c.kavelin\" ;Locale='en-US'", "/data/a;b\"c.kavelin", "en-US"},
        {"Embedded Account='it''s';User ID=sa;Password=x;y", "", ""},
        {";;Embedded Account=账套.kavelin;User ID=sa;Password='x;y'", "账套.kavelin", "zh-CN"},
    };
    for (const auto& c : cases) {
        if (*c.account == '\0') {
            EXPECT_THROW(ReadConnectionString(c.text), ConnectionError) << c.text;
            continue;
        }
        const ConnectionSettings settings = ReadConnectionString(c.text);
        EXPECT_EQ(settings.account, c.account) << c.text;
        EXPECT_EQ(settings.locale, c.locale) << c.text;
    }
}

TEST(ConnectionString, RefusesWhatIsNoListWithoutShowingValues)
{
    for (const char* text : {"Embedded Account", "Server=x;Embedded Account=y", "Embedded Account='secret",
                             "Embedded Account='secret'x", "Pasword=secret"}) {
        try {
            ReadConnectionString(text);
            ADD_FAILURE() << text;
        } catch (const ConnectionError& error) {
            EXPECT_EQ(std::string(error.what()).find("secret"), std::string::npos) << error.what();
        }
    }
}

}  // namespace

}  // namespace kavelin::embedded
