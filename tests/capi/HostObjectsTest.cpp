// Objects of the host in the hands of the library: what their members get, give and fail with.
#include "capi/CHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavelin::test {

namespace {

class HostObjects : public CApi {
  protected:
    // Reads a member through the library.
    std::string Read(kavelin_object object, const char* member)
    {
        Owned result;
        const kavelin_status status = kavelin_get(object, member, result.Place());
        return status == KAVELIN_OK ? result.Text() : Told(status);
    }
};

kavelin_status FailWith(const kavelin_error& error)
{
    return kavelin_fail_with(&error);
}

}  // namespace

TEST_F(HostObjects, GetTheNameOfTheMemberAsItIsCalled)
{
    Scripted object;
    object.get["RawFilter"] = GivesText("read");
    object.get[""] = GivesText("default");
    std::string written;
    object.put["Type"] = [&](const kavelin_value& value) {
        EXPECT_EQ(value.kind, KAVELIN_INTEGER);
        EXPECT_EQ(value.owned, 0);
        written = std::to_string(value.as.integer);
        return KAVELIN_OK;
    };
    const kavelin_object handle = Host(std::move(object));
    EXPECT_EQ(Read(handle, "RawFilter"), "read");
    EXPECT_EQ(Read(handle, ""), "default");
    const kavelin_value two = kavelin_of_integer(2);
    EXPECT_EQ(kavelin_put(handle, "Type", &two), KAVELIN_OK);
    EXPECT_EQ(written, "2");
}

TEST_F(HostObjects, WithoutAMemberFailWithItsName)
{
    const kavelin_object handle = Host({});
    const kavelin_value value = kavelin_empty();
    EXPECT_EQ(Read(handle, "Login"), "1 Kavelin: The host's object has no member Login.");
    EXPECT_EQ(Told(kavelin_put(handle, "Type", &value)), "1 Kavelin: The host's object has no member Type.");
    EXPECT_EQ(Told(kavelin_call(handle, "Item", nullptr, 0, nullptr)),
              "1 Kavelin: The host's object has no member Item.");
    EXPECT_EQ(Told(kavelin_call(handle, "", nullptr, 0, nullptr)),
              "1 Kavelin: The host's object has no default member.");
}

TEST_F(HostObjects, MayLackFunctions)
{
    static const kavelin_members none = {nullptr, nullptr, nullptr, nullptr};
    kavelin_object handle = 0;
    ASSERT_EQ(kavelin_host_object(&none, nullptr, &handle), KAVELIN_OK);
    const kavelin_value value = kavelin_empty();
    Owned result;
    EXPECT_EQ(Told(kavelin_get(handle, "Login", result.Place())),
              "1 Kavelin: The host's object has no member Login.");
    EXPECT_EQ(kavelin_put(handle, "Type", &value), KAVELIN_FAILED);
    EXPECT_EQ(kavelin_call(handle, "Item", nullptr, 0, nullptr), KAVELIN_FAILED);
    EXPECT_EQ(kavelin_release(handle), KAVELIN_OK);
}

TEST_F(HostObjects, FailWithTheirOwnText)
{
    Scripted object;
    object.get["Login"] = [](kavelin_value*) { return kavelin_fail("没有权限"); };
    EXPECT_EQ(Read(Host(std::move(object)), "Login"), "1 Kavelin: 没有权限");
}

TEST_F(HostObjects, ThatFailWithoutATextAreNamed)
{
    Scripted object;
    object.get["Login"] = [](kavelin_value*) { return KAVELIN_FAILED; };
    object.get["Year"] = [](kavelin_value*) { return static_cast<kavelin_status>(77); };
    object.get["Month"] = [](kavelin_value*) { return kavelin_fail(nullptr); };
    object.get["Date"] = [](kavelin_value*) { return kavelin_fail("\xFF"); };
    kavelin_fail("an older failure");
    const kavelin_object handle = Host(std::move(object));
    EXPECT_EQ(Read(handle, "Login"), "1 Kavelin: The host failed at Login.");
    EXPECT_EQ(Read(handle, "Year"), "1 Kavelin: The host failed at Year.");
    EXPECT_EQ(Read(handle, "Month"), "1 Kavelin: The host failed at Month.");
    EXPECT_EQ(Read(handle, "Date"), "1 Kavelin: The host failed at Date.");
}

TEST_F(HostObjects, FailWithEverythingThatTheyKnow)
{
    Scripted object;
    object.call["Execute"] = [](kavelin_value*, size_t, kavelin_value*) {
        return FailWith({KAVELIN_DATABASE, 208, "Invalid object name 'T'.", "ignored", "42S02",
                         "select * from T", 1, 15});
    };
    EXPECT_EQ(Told(kavelin_call(Host(std::move(object)), "Execute", nullptr, 0, nullptr)),
              "4 Kavelin: Invalid object name 'T'.");
    EXPECT_EQ(Error().native_number, 208);
    EXPECT_STREQ(Error().sqlstate, "42S02");
    EXPECT_STREQ(Error().statement, "select * from T");
    EXPECT_EQ(Error().line, 1);
    EXPECT_EQ(Error().column, 15);
}

TEST_F(HostObjects, KeepTheKindOfTheirFailure)
{
    for (const kavelin_status status : {KAVELIN_FAILED, KAVELIN_CONVERSION, KAVELIN_OVERFLOW,
                                        KAVELIN_DATABASE, KAVELIN_CONNECTION, KAVELIN_CANCELLED}) {
        Scripted object;
        object.get["Login"] = [status](kavelin_value*) {
            return FailWith({status, 0, "why", nullptr, nullptr, nullptr, 0, 0});
        };
        EXPECT_EQ(Read(Host(std::move(object)), "Login"), std::to_string(status) + " Kavelin: why");
    }
    EXPECT_EQ(FailWith({KAVELIN_OK, 0, "why", nullptr, nullptr, nullptr, 0, 0}), KAVELIN_FAILED);
}

TEST_F(HostObjects, PassOnWhatFailedWithinThem)
{
    Scripted object;
    object.get["Login"] = [](kavelin_value* result) { return kavelin_get(0, "Year", result); };
    EXPECT_EQ(Read(Host(std::move(object)), "Login"), "1 Kavelin: No object was handed in.");
}

TEST_F(HostObjects, ThatGiveNoValueAreToldSo)
{
    Scripted object;
    object.get["Year"] = GivesText("\xFF");
    object.get["Login"] = Gives(kavelin_of_object(12345));
    object.call["Item"] = [](kavelin_value* arguments, size_t, kavelin_value*) {
        arguments[0].kind = 55;
        return KAVELIN_OK;
    };
    const kavelin_object handle = Host(std::move(object));
    EXPECT_EQ(Read(handle, "Year"), "1 Kavelin: What the host gave at Year is no value: A text is no UTF-8.");
    EXPECT_EQ(
        Read(handle, "Login"),
        "1 Kavelin: What the host gave at Login is no value: The object was given back already, or never"
        " was one.");
    kavelin_value argument = kavelin_of_integer(1);
    EXPECT_EQ(Told(kavelin_call(handle, "Item", &argument, 1, nullptr)),
              "1 Kavelin: What the host gave at Item is no value: There is no kind of value 55.");
    EXPECT_EQ(argument.as.integer, 1);
}

TEST_F(HostObjects, ExchangeArguments)
{
    Scripted object;
    object.call["Ask"] = [](kavelin_value* arguments, size_t count, kavelin_value* result) {
        EXPECT_EQ(count, 3u);
        arguments[0] = kavelin_of_boolean(1);
        arguments[1] = arguments[2];  // lent, so the library copies it
        *result = kavelin_of_text("asked");
        return KAVELIN_OK;
    };
    const kavelin_object handle = Host(std::move(object));
    kavelin_value arguments[] = {kavelin_of_boolean(0), kavelin_of_text("before"), kavelin_of_text("方")};
    Owned result;
    ASSERT_EQ(kavelin_call(handle, "Ask", arguments, 3, result.Place()), KAVELIN_OK) << Error().text;
    EXPECT_EQ(result.Text(), "asked");
    EXPECT_EQ(arguments[0].as.boolean, 1);
    EXPECT_EQ(std::string(arguments[1].as.text.bytes), "方");
    EXPECT_EQ(arguments[1].owned, 1);
    EXPECT_EQ(arguments[2].owned, 0);  // as the caller had it
    for (kavelin_value& argument : arguments)
        kavelin_clear(&argument);
}

TEST_F(HostObjects, ExchangeArgumentsAlsoWhereTheyFail)
{
    Scripted object;
    object.call["Ask"] = [](kavelin_value* arguments, size_t, kavelin_value*) {
        arguments[0] = kavelin_of_integer(7);
        return kavelin_fail("no");
    };
    kavelin_value argument = kavelin_empty();
    EXPECT_EQ(Told(kavelin_call(Host(std::move(object)), "Ask", &argument, 1, nullptr)), "1 Kavelin: no");
    EXPECT_EQ(argument.as.integer, 7);
}

TEST_F(HostObjects, ClearAnOwnedArgumentThatTheyExchange)
{
    Scripted object;
    object.call["Ask"] = [](kavelin_value* arguments, size_t, kavelin_value*) {
        arguments[0] = kavelin_null();
        return KAVELIN_OK;
    };
    bool released = false;
    kavelin_value argument = kavelin_of_object(Host({.released = [&] { released = true; }}));
    argument.owned = 1;
    EXPECT_EQ(kavelin_call(Host(std::move(object)), "Ask", &argument, 1, nullptr), KAVELIN_OK);
    EXPECT_EQ(argument.kind, KAVELIN_NULL);
    EXPECT_TRUE(released);
}

TEST_F(HostObjects, HandOverOwnedResults)
{
    int ended = 0;
    Scripted object;
    object.get["Login"] = [&](kavelin_value* result) {
        *result = kavelin_of_object(Host({.released = [&] { ++ended; }}));
        result->owned = 1;
        return KAVELIN_OK;
    };
    object.get["Year"] = [](kavelin_value* result) {
        const kavelin_value year = kavelin_of_text("2008");
        return kavelin_copy(&year, result);
    };
    object.get["Broken"] = [](kavelin_value* result) {
        const kavelin_value text = kavelin_of_text("given back");
        kavelin_copy(&text, result);
        return kavelin_fail("broken");
    };
    const kavelin_object handle = Host(std::move(object));
    {
        Owned login;
        EXPECT_EQ(kavelin_get(handle, "Login", login.Place()), KAVELIN_OK);
        EXPECT_EQ(ended, 0);
    }
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(Read(handle, "Year"), "2008");
    EXPECT_EQ(Read(handle, "Broken"), "1 Kavelin: broken");
}

TEST_F(HostObjects, EndWithTheirLastOwner)
{
    int ended = 0;
    const kavelin_object object = Host({.released = [&] { ++ended; }});
    const kavelin_object report = Create("Kavelin.clsProPortion");
    const kavelin_value value = kavelin_of_object(object);
    EXPECT_EQ(kavelin_retain(object), KAVELIN_OK);
    EXPECT_EQ(kavelin_put(report, "ObjLogin", &value), KAVELIN_OK);
    EXPECT_EQ(kavelin_release(object), KAVELIN_OK);
    EXPECT_EQ(kavelin_release(object), KAVELIN_OK);
    EXPECT_EQ(ended, 0);  // the report's property holds it still
    EXPECT_EQ(kavelin_release(report), KAVELIN_OK);
    EXPECT_EQ(ended, 1);
}

TEST_F(HostObjects, ComeBackUnderTheirOwnHandle)
{
    const kavelin_object object = Host({});
    const kavelin_object report = Create("Kavelin.clsProPortion");
    const kavelin_value value = kavelin_of_object(object);
    ASSERT_EQ(kavelin_put(report, "ObjLogin", &value), KAVELIN_OK);
    Owned read;
    ASSERT_EQ(kavelin_get(report, "objlogin", read.Place()), KAVELIN_OK);
    EXPECT_EQ(read->as.object, object);
    void* self = nullptr;
    EXPECT_EQ(kavelin_self(read->as.object, &kScriptedMembers, &self), KAVELIN_OK);
    EXPECT_NE(self, nullptr);
}

// The handle ends at once, the object when its member has returned.
TEST_F(HostObjects, MayBeGivenBackWhileTheyAreCalled)
{
    std::vector<std::string> events;
    kavelin_object handle = 0;
    Scripted object;
    object.call["Close"] = [&](kavelin_value*, size_t, kavelin_value*) {
        EXPECT_EQ(kavelin_release(handle), KAVELIN_OK);
        events.push_back("returns");
        return KAVELIN_OK;
    };
    object.released = [&] { events.push_back("released"); };
    handle = Host(std::move(object));
    EXPECT_EQ(kavelin_call(handle, "Close", nullptr, 0, nullptr), KAVELIN_OK);
    EXPECT_EQ(events, (std::vector<std::string>{"returns", "released"}));
    EXPECT_EQ(kavelin_release(handle), KAVELIN_BAD_OBJECT);
}

TEST_F(HostObjects, MayGiveBackOthersAsTheyEnd)
{
    int ended = 0;
    const kavelin_object inner = Host({.released = [&] { ++ended; }});
    const kavelin_object outer = Host({.released = [&] {
        ++ended;
        EXPECT_EQ(kavelin_release(inner), KAVELIN_OK);
    }});
    EXPECT_EQ(kavelin_release(outer), KAVELIN_OK);
    EXPECT_EQ(ended, 2);
}

}  // namespace kavelin::test
