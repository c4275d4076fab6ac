// What goes to an object of the suite, and what it leaves in the place of its arguments.
#include "automation/HostView.h"
#include "automation/ScriptedObject.h"
#include "automation/Views.h"
#include "database/ado/AdoConnection.h"
#include "frame/Errors.h"
#include "frame/host/ConnectionObject.h"

#include <gtest/gtest.h>

namespace kavelin::test {

using namespace automation;

namespace {

using Lines = ScriptedObject::Lines;

Variant Held(HostObjectPtr object)
{
    return object;
}

std::shared_ptr<ConnectionObject> ConnectionOver(const std::shared_ptr<LateBound>& object)
{
    return std::make_shared<ConnectionObject>(std::make_shared<ado::AdoConnection>(object, nullptr));
}

std::shared_ptr<LateBound> ObjectOfConnection(const Variant& argument)
{
    const auto held = ObjectOf<ConnectionObject>(argument, "connection");
    return std::dynamic_pointer_cast<ado::AdoConnection>(held->Connection())->Object();
}

struct Viewer {
    std::shared_ptr<ScriptedObject> object = Scripted("viewer");
    std::shared_ptr<LateBound> view = ViewOf<LateBound>(object);
    std::shared_ptr<ScriptedObject> connection = Scripted("connection");
    std::vector<Variant> arguments = {Held(ConnectionOver(connection)), Value("edition"),
                                      Held(As<LoginContext>(Held(Scripted("login")), "Login")),
                                      HostObjectPtr()};
};

}  // namespace

TEST(ASuiteObject, IsHandedTheHostsOwnObjects)
{
    Viewer viewer;
    viewer.view->Call("Init", viewer.arguments);
    viewer.view->Put("oLogin", viewer.arguments[2]);
    viewer.view->Put("zzSys", Held(ViewOf<LateBound>(Scripted("Tessel.clsPub"))));
    EXPECT_EQ(viewer.object->TakeLines(), (Lines{"call Init(connection, 'edition', login, nothing)",
                                                 "put oLogin = login", "put zzSys = Tessel.clsPub"}));
}

TEST(ASuiteObject, LeavesTheArgumentsThatItDoesNotReplace)
{
    Viewer viewer;
    const std::vector<Variant> before = viewer.arguments;
    viewer.view->CallByReference("Init", viewer.arguments);
    EXPECT_EQ(viewer.arguments, before);
}

TEST(ASuiteObject, MayReplaceArgumentsByObjectsOfTheirKind)
{
    Viewer viewer;
    const auto connection = Scripted("other connection");
    const auto login = Scripted("other login");
    viewer.object->actions["Init"] = [&](std::vector<Variant>& arguments) {
        arguments = {Held(connection), Value("other"), Held(login), Value(5)};
    };
    viewer.view->CallByReference("Init", viewer.arguments);
    EXPECT_EQ(ObjectOfConnection(viewer.arguments[0]), connection);
    EXPECT_EQ(viewer.arguments[1], Variant(Value("other")));
    EXPECT_EQ(LateBoundOf(ObjectOf<LoginContext>(viewer.arguments[2], "login")), login);
    EXPECT_EQ(viewer.arguments[3], Variant(Value(5)));
}

TEST(ASuiteObject, MayTakeAnArgumentAway)
{
    Viewer viewer;
    viewer.object->actions["Init"] = [](std::vector<Variant>& arguments) { arguments[0] = HostObjectPtr(); };
    viewer.view->CallByReference("Init", viewer.arguments);
    EXPECT_EQ(viewer.arguments[0], Variant(HostObjectPtr()));
}

TEST(ASuiteObject, GivesReplacedArgumentsBackAlsoWhenItFails)
{
    Viewer viewer;
    const auto connection = Scripted("other connection");
    viewer.object->actions["Init"] = [&](std::vector<Variant>& arguments) {
        arguments[0] = Held(connection);
    };
    viewer.object->failures = {{"Init", "no viewer"}};
    EXPECT_THROW(viewer.view->CallByReference("Init", viewer.arguments), Error);
    EXPECT_EQ(ObjectOfConnection(viewer.arguments[0]), connection);
}

}  // namespace kavelin::test
