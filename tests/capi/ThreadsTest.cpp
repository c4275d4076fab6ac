// Each thread has a library of its own.
#include "capi/CHost.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace kavelin::test {

namespace {

using Threads = CApi;

// Runs the body on a thread of its own, to its end.
template <class Body>
void OnAnotherThread(Body body)
{
    std::thread(body).join();
}

kavelin_status NoConnection(void* context, const char* name, kavelin_object*)
{
    ++*static_cast<int*>(context);
    return kavelin_fail((std::string("no ") + name).c_str());
}

std::string OpenConnection()
{
    kavelin_object connection = 0;
    const kavelin_status status = kavelin_create("Kavelin.Connection", &connection);
    return status == KAVELIN_OK ? "made" : Told(status);
}

}  // namespace

TEST_F(Threads, RefuseTheObjectsOfOthers)
{
    const kavelin_object report = Create("Kavelin.clsProPortion");
    const kavelin_object own = Host({});
    OnAnotherThread([&] {
        Owned result;
        const kavelin_value value = kavelin_of_object(own);
        void* self = nullptr;
        EXPECT_EQ(Told(kavelin_get(report, "ReportTitle", result.Place())),
                  "22 Kavelin: The object belongs to another thread.");
        EXPECT_EQ(kavelin_put(Create("Kavelin.clsProPortion"), "ObjLogin", &value), KAVELIN_WRONG_THREAD);
        EXPECT_EQ(kavelin_call(report, "MoveDataDetail", nullptr, 0, nullptr), KAVELIN_WRONG_THREAD);
        EXPECT_EQ(kavelin_retain(report), KAVELIN_WRONG_THREAD);
        EXPECT_EQ(kavelin_release(report), KAVELIN_WRONG_THREAD);
        EXPECT_EQ(kavelin_self(own, &kScriptedMembers, &self), KAVELIN_WRONG_THREAD);
        EXPECT_EQ(kavelin_end_thread(), KAVELIN_OK);
    });
    EXPECT_EQ(kavelin_release(report), KAVELIN_OK);
}

TEST_F(Threads, KeepTheirErrorsApart)
{
    kavelin_fail("here");
    OnAnotherThread([] {
        EXPECT_STREQ(kavelin_last_error()->text, "");
        EXPECT_EQ(kavelin_last_error()->status, KAVELIN_OK);
        kavelin_fail("there");
        kavelin_end_thread();
    });
    EXPECT_STREQ(Error().text, "here");
}

TEST_F(Threads, KeepWhatTheHostProvidesApart)
{
    int asked = 0;
    ASSERT_EQ(kavelin_provide("ADODB.Connection", NoConnection, &asked), KAVELIN_OK);
    EXPECT_EQ(OpenConnection(), "1 Kavelin: no ADODB.Connection");
    OnAnotherThread([] {
        EXPECT_EQ(OpenConnection(), "made");
        kavelin_end_thread();
    });
    EXPECT_EQ(asked, 1);
}

TEST_F(Threads, GiveBackAllObjectsAtTheirEnd)
{
    int ended = 0;
    OnAnotherThread([&] {
        const kavelin_object report = Create("Kavelin.clsProPortion");
        const kavelin_value value = kavelin_of_object(Host({.released = [&] { ++ended; }}));
        kavelin_put(report, "ObjLogin", &value);
        EXPECT_EQ(kavelin_end_thread(), KAVELIN_OK);
        EXPECT_EQ(ended, 1);
        EXPECT_EQ(kavelin_release(report), KAVELIN_BAD_OBJECT);
        EXPECT_EQ(kavelin_release(Create("Kavelin.clsProPortion")), KAVELIN_OK);  // and begin anew
    });
}

TEST_F(Threads, ThatForgetToSayTheirEndGiveBackAllTheSame)
{
    int ended = 0;
    OnAnotherThread([&] {
        kavelin_object inner = Host({.released = [&] { ++ended; }});
        Host({.released = [&ended, inner] {
            ++ended;
            kavelin_release(inner);
        }});
    });
    EXPECT_EQ(ended, 2);
}

TEST_F(Threads, DoNotEndWithinAMember)
{
    Scripted object;
    object.get["Login"] = [](kavelin_value*) { return kavelin_end_thread(); };
    Owned result;
    EXPECT_EQ(Told(kavelin_get(Host(std::move(object)), "Login", result.Place())),
              "1 Kavelin: The thread cannot end while a member of an object runs.");
}

}  // namespace kavelin::test
