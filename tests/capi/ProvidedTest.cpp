// Objects that the host makes by name, and what the library does without them.
#include "capi/CHost.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace kavelin::test {

namespace {

using Make = std::function<kavelin_status(const char* name, kavelin_object* object)>;

kavelin_status CallMake(void* context, const char* name, kavelin_object* object)
{
    return (*static_cast<Make*>(context))(name, object);
}

class Provided : public CApi {
  protected:
    // Asks for the object by making a connection of the library's, which is made over it.
    std::string MakeConnection()
    {
        kavelin_object connection = 0;
        const kavelin_status status = kavelin_create("Kavelin.Connection", &connection);
        return status == KAVELIN_OK ? "made" : Told(status);
    }
};

}  // namespace

TEST_F(Provided, ConnectionsReplaceTheLibrarysOwn)
{
    std::string events;
    Make make = [&](const char* name, kavelin_object* object) {
        Scripted connection;
        const auto note = [&events](const char* what) {
            return [&events, what](const kavelin_value& value) {
                Owned text;
                EXPECT_EQ(kavelin_to_text(&value, text.Place()), KAVELIN_OK);
                events += std::string(what) + "=" + text.Text() + ";";
                return KAVELIN_OK;
            };
        };
        connection.put = {{"CursorLocation", note("CursorLocation")},
                          {"ConnectionString", note("ConnectionString")},
                          {"ConnectionTimeout", note("ConnectionTimeout")},
                          {"CommandTimeout", note("CommandTimeout")}};
        connection.call["Open"] = [&events](kavelin_value*, size_t count, kavelin_value*) {
            events += "Open(" + std::to_string(count) + ")";
            return KAVELIN_OK;
        };
        events += std::string(name) + ":";
        *object = Host(std::move(connection));
        return KAVELIN_OK;
    };
    ASSERT_EQ(kavelin_provide("adodb.CONNECTION", CallMake, &make), KAVELIN_OK);
    const kavelin_object connection = Create("Kavelin.Connection");
    kavelin_value text = kavelin_of_text("Provider=suite");
    EXPECT_EQ(kavelin_call(connection, "Open", &text, 1, nullptr), KAVELIN_OK) << Error().text;
    EXPECT_EQ(events,
              "adodb.CONNECTION:CursorLocation=3;ConnectionString=Provider=suite;ConnectionTimeout=0;"
              "CommandTimeout=0;Open(4)");

    ASSERT_EQ(kavelin_withdraw("ADODB.Connection"), KAVELIN_OK);
    events.clear();
    EXPECT_EQ(MakeConnection(), "made");
    EXPECT_EQ(events, "");
}

TEST_F(Provided, MakersFailWithTheirOwnText)
{
    Make make = [](const char*, kavelin_object*) { return kavelin_fail("no more connections"); };
    ASSERT_EQ(kavelin_provide("ADODB.Connection", CallMake, &make), KAVELIN_OK);
    EXPECT_EQ(MakeConnection(), "1 Kavelin: no more connections");
    make = [](const char*, kavelin_object*) { return KAVELIN_FAILED; };
    EXPECT_EQ(MakeConnection(), "1 Kavelin: The host failed at ADODB.Connection.");
    make = [](const char*, kavelin_object*) { return KAVELIN_OK; };
    EXPECT_EQ(MakeConnection(), "1 Kavelin: The host made no ADODB.Connection.");
    make = [](const char*, kavelin_object* object) {
        *object = 4711;
        return KAVELIN_OK;
    };
    EXPECT_EQ(MakeConnection(), "21 Kavelin: The object was given back already, or never was one.");
}

TEST_F(Provided, MakersMayBeReplacedAndTakeThemselvesBack)
{
    Make first = [](const char*, kavelin_object*) { return kavelin_fail("first"); };
    Make second = [](const char* name, kavelin_object*) {
        EXPECT_EQ(kavelin_withdraw(name), KAVELIN_OK);
        return kavelin_fail("second");
    };
    ASSERT_EQ(kavelin_provide("ADODB.Connection", CallMake, &first), KAVELIN_OK);
    ASSERT_EQ(kavelin_provide("ADODB.Connection", CallMake, &second), KAVELIN_OK);
    EXPECT_EQ(MakeConnection(), "1 Kavelin: second");
    EXPECT_EQ(MakeConnection(), "made");
    EXPECT_EQ(kavelin_withdraw("ADODB.Connection"), KAVELIN_OK);
}

TEST_F(Provided, AreForgottenWithTheThread)
{
    Make make = [](const char*, kavelin_object*) { return kavelin_fail("still here"); };
    ASSERT_EQ(kavelin_provide("ADODB.Connection", CallMake, &make), KAVELIN_OK);
    ASSERT_EQ(kavelin_end_thread(), KAVELIN_OK);
    EXPECT_EQ(MakeConnection(), "made");
}

}  // namespace kavelin::test
