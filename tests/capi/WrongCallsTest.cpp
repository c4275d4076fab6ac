// Calls that are wrong by themselves: null pointers, handles that are none.
#include "capi/CHost.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::test {

namespace {

using WrongCalls = CApi;

constexpr kavelin_object kNeverGiven[] = {0, 1, 0xFFFFFFFF, 0xFFFFFFFFFFFFFFFF};

kavelin_status MakeNothing(void*, const char*, kavelin_object*)
{
    return KAVELIN_OK;
}

}  // namespace

TEST_F(WrongCalls, WithNullPointersAreRefused)
{
    const kavelin_object report = Create("Kavelin.clsProPortion");
    kavelin_object object = 0;
    kavelin_value value = kavelin_empty();
    void* self = nullptr;
    const struct {
        kavelin_status status;
        const char* what;
    } cases[] = {
        {kavelin_create(nullptr, &object), "the name of a class"},
        {kavelin_create("Kavelin.clsProPortion", nullptr), "the place for it"},
        {kavelin_get(report, nullptr, &value), "a member to read"},
        {kavelin_get(report, "ReportTitle", nullptr), "the place for its value"},
        {kavelin_put(report, nullptr, &value), "a member to write"},
        {kavelin_put(report, "ReportTitle", nullptr), "its value"},
        {kavelin_call(report, nullptr, nullptr, 0, &value), "a member to call"},
        {kavelin_call(report, "GETSQL", nullptr, 1, &value), "its arguments"},
        {kavelin_copy(nullptr, &value), "a value to copy"},
        {kavelin_copy(&value, nullptr), "the place for the copy"},
        {kavelin_to_text(nullptr, &value), "a value to show"},
        {kavelin_to_text(&value, nullptr), "the place for its text"},
        {kavelin_host_object(nullptr, nullptr, &object), "members"},
        {kavelin_host_object(&kScriptedMembers, nullptr, nullptr), "the place for the host's object"},
        {kavelin_self(report, nullptr, nullptr), "the place for the self"},
        {kavelin_self(report, &kScriptedMembers, &self), "an object that is none of the host's"},
        {kavelin_provide(nullptr, MakeNothing, nullptr), "a name to provide"},
        {kavelin_provide("Lumenet.ResLog", nullptr, nullptr), "a maker"},
        {kavelin_withdraw(nullptr), "a name to withdraw"},
        {kavelin_fail_with(nullptr), "an error"},
    };
    for (const auto& wrong : cases)
        EXPECT_EQ(wrong.status, KAVELIN_BAD_ARGUMENT) << wrong.what;
    EXPECT_EQ(object, 0u);
    EXPECT_EQ(Told(kavelin_create(nullptr, &object)), "20 Kavelin: The name is a null pointer.");
}

TEST_F(WrongCalls, OnHandlesThatAreNoneAreRefused)
{
    kavelin_value value = kavelin_empty();
    void* self = nullptr;
    for (const kavelin_object none : kNeverGiven) {
        EXPECT_EQ(kavelin_get(none, "ReportTitle", &value), KAVELIN_BAD_OBJECT);
        EXPECT_EQ(kavelin_put(none, "ReportTitle", &value), KAVELIN_BAD_OBJECT);
        EXPECT_EQ(kavelin_call(none, "GETSQL", nullptr, 0, nullptr), KAVELIN_BAD_OBJECT);
        EXPECT_EQ(kavelin_retain(none), KAVELIN_BAD_OBJECT);
        EXPECT_EQ(kavelin_self(none, &kScriptedMembers, &self), KAVELIN_BAD_OBJECT);
    }
    EXPECT_EQ(kavelin_release(kNeverGiven[1]), KAVELIN_BAD_OBJECT);
    EXPECT_EQ(kavelin_release(0), KAVELIN_OK);
    value = kavelin_of_object(kNeverGiven[2]);
    EXPECT_EQ(kavelin_put(Create("Kavelin.clsProPortion"), "ObjLogin", &value), KAVELIN_BAD_OBJECT);
}

TEST_F(WrongCalls, OnAnObjectThatWasGivenBackAreRefused)
{
    const kavelin_object object = Create("Kavelin.clsProPortion");
    ASSERT_EQ(kavelin_release(object), KAVELIN_OK);
    const kavelin_object next = Create("Kavelin.clsProPortion");
    EXPECT_NE(next, object);
    EXPECT_EQ(Told(kavelin_release(object)),
              "21 Kavelin: The object was given back already, or never was one.");
}

TEST_F(WrongCalls, WithNamesThatAreNoUtf8AreRefused)
{
    kavelin_object object = 0;
    kavelin_value value = kavelin_empty();
    EXPECT_EQ(Told(kavelin_create("\xFF", &object)), "20 Kavelin: The name is no UTF-8.");
    EXPECT_EQ(Told(kavelin_get(Create("Kavelin.clsProPortion"), "\xFF", &value)),
              "20 Kavelin: The member is no UTF-8.");
}

TEST_F(WrongCalls, ToMembersThatAreNotThereFailWithTheNameOfTheClass)
{
    const kavelin_object report = Create("kavelin.CLSPROPORTION");
    kavelin_value value = kavelin_empty();
    EXPECT_EQ(Told(kavelin_get(report, "Price", &value)),
              "1 Kavelin.clsProPortion: The object has no member Price.");
    EXPECT_EQ(Told(kavelin_call(report, "MoveDataDetail", &value, 1, nullptr)),
              "1 Kavelin.clsProPortion: MoveDataDetail takes 0 arguments, not 1.");
}

TEST_F(WrongCalls, ForAClassThatThereIsNotFail)
{
    kavelin_object object = 0;
    EXPECT_EQ(Told(kavelin_create("Kavelin.clsNothing", &object)),
              "1 Kavelin: There is no public class Kavelin.clsNothing.");
    EXPECT_EQ(object, 0u);
}

}  // namespace kavelin::test
