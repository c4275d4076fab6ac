// A host behind the C interface, for tests: objects whose members are functions of the test.
#pragma once

#include "kavelin.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace kavelin::test {

// A value that is cleared.
class Owned {
  public:
    Owned() : objValue(kavelin_empty()) {}
    ~Owned() { kavelin_clear(&objValue); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    kavelin_value* Place() { return &objValue; }
    const kavelin_value& operator*() const { return objValue; }
    const kavelin_value* operator->() const { return &objValue; }

    // Of a text or decimal.
    std::string Text() const
    {
        EXPECT_TRUE(objValue.kind == KAVELIN_TEXT || objValue.kind == KAVELIN_DECIMAL) << objValue.kind;
        return {objValue.as.text.bytes, objValue.as.text.length};
    }

  private:
    kavelin_value objValue;
};

// An object of the host. A member that isn't there fails with KAVELIN_NO_MEMBER.
struct Scripted {
    using Get = std::function<kavelin_status(kavelin_value* result)>;
    using Put = std::function<kavelin_status(const kavelin_value& value)>;
    using Call = std::function<kavelin_status(kavelin_value* arguments, size_t count, kavelin_value* result)>;

    std::map<std::string, Get> get = {};
    std::map<std::string, Put> put = {};
    std::map<std::string, Call> call = {};
    std::function<void()> released = {};
};

// Gives that value, which must live as long as the object.
Scripted::Get Gives(const kavelin_value& value);
Scripted::Get GivesText(const char* text);
Scripted::Put Takes();

// An object with these members, to be read only.
Scripted Record(const std::map<std::string, kavelin_value>& members);

// An object that takes every argument and gives the first one back.
Scripted Echo();

extern const kavelin_members kScriptedMembers;

// Calls of members on this thread. The one of the number `failing` fails.
struct MemberCalls {
    int count = 0;
    int failing = 0;
};
MemberCalls& Calls();

// A handle for the test to give back, or to leave to the end of the thread.
kavelin_object NewObject(Scripted object);

// A thread that uses the library from within a test. The end of each test gives everything back.
class CApi : public testing::Test {
  protected:
    ~CApi() override { EXPECT_EQ(kavelin_end_thread(), KAVELIN_OK) << Error().text; }

    static const kavelin_error& Error() { return *kavelin_last_error(); }

    // The same as NewObject.
    static kavelin_object Host(Scripted object) { return NewObject(std::move(object)); }
    static kavelin_object Create(const char* name);
};

// The status and what the library tells of it: "3 Kavelin: text".
std::string Told(kavelin_status status);

}  // namespace kavelin::test
