// The makers that a host hands in by name.
#include "component/HostObjectsClass.h"

#include "automation/NamedObjects.h"
#include "component/Dispatch.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// An object whose default member makes what `make` gives.
HostObjectPtr Maker(std::function<Variant()> make)
{
    return MakeLateBound(nullptr, {Method("", 0, [make](const auto&) { return make(); })});
}

std::shared_ptr<LateBound> Plain()
{
    return MakeLateBound(nullptr, {});
}

}  // namespace

class HostObjects : public ::testing::Test {
  protected:
    void TearDown() override { automation::WithdrawAll(); }

    void Provide(const char* name, HostObjectPtr maker) const
    {
        objHostObjects->Call("Provide", {Value(name), std::move(maker)});
    }

    std::shared_ptr<LateBound> objHostObjects = HostObjectsClass().create();
};

TEST_F(HostObjects, MakeWhatTheMakersDefaultMemberGives)
{
    const HostObjectPtr made = Plain();
    Provide("Lumenet.ResLog", Maker([made] { return Variant(made); }));
    EXPECT_EQ(HostObjectPtr(automation::MakeObject("lumenet.RESLOG", nullptr)), made);
    EXPECT_THROW(automation::MakeObject("Lumenet", nullptr), Error);
}

TEST_F(HostObjects, GoOnAfterTheObjectThatTookThemHasGone)
{
    Provide("Other.Object", Maker([] { return Variant(HostObjectPtr(Plain())); }));
    objHostObjects.reset();
    EXPECT_NE(automation::TryMakeObject("Other.Object", nullptr), nullptr);
}

TEST_F(HostObjects, AreReplacedAndWithdrawn)
{
    const HostObjectPtr second = Plain();
    Provide("Other.Object", Maker([] { return Variant(HostObjectPtr(Plain())); }));
    Provide("other.object", Maker([second] { return Variant(second); }));
    EXPECT_EQ(HostObjectPtr(automation::MakeObject("Other.Object", nullptr)), second);
    objHostObjects->Call("Withdraw", {Value("OTHER.object")});
    EXPECT_EQ(automation::TryMakeObject("Other.Object", nullptr), nullptr);
    EXPECT_NO_THROW(objHostObjects->Call("Withdraw", {Value("Other.Object")}));
}

TEST_F(HostObjects, RefuseAMakerThatIsNoneOrMakesNothing)
{
    EXPECT_THROW(Provide("Other.Object", nullptr), Error);
    EXPECT_THROW(objHostObjects->Call("Provide", {Value("Other.Object"), Value("maker")}), Error);
    Provide("Other.Object", Maker([] { return Variant(Value("no object")); }));
    EXPECT_THROW(automation::MakeObject("Other.Object", nullptr), Error);
    Provide("Other.Object", Maker([]() -> Variant { throw Error("the maker failed"); }));
    try {
        automation::MakeObject("Other.Object", nullptr);
        ADD_FAILURE() << "it was made";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "the maker failed");
    }
}

}  // namespace kavelin::test
