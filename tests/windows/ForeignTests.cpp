// Objects of the host as the library calls them.
#include "Check.h"
#include "FakeObject.h"

#include "com/Failure.h"
#include "com/ForeignObject.h"

using namespace kavelin;
using namespace kavelin::test;
using com::ForeignObject;

namespace {

// The failure of `action`.
template <class Action>
std::string FailureOf(Action action)
{
    try {
        action();
    } catch (const com::ForeignError& error) {
        return Shown(static_cast<long>(error.Code())) + " " + error.Source() + ": " + error.what();
    } catch (const Error& error) {
        return error.what();
    }
    return "none";
}

std::string Hex(HRESULT code)
{
    return Shown(static_cast<long>(code));
}

}  // namespace

KAVELIN_TEST(MembersAreFoundOnceWithoutRegardToCase)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    fake->WithValue("Year", Value("2008"));
    ForeignObject foreign(fake.Get());
    CHECK(std::get<Value>(foreign.Get("year")) == Value("2008"));
    CHECK(std::get<Value>(foreign.Get("year")) == Value("2008"));
    CHECK_EQUAL(fake->Resolved(), 1);
    CHECK_EQUAL(FailureOf([&] { foreign.Get("Month"); }),
                Hex(DISP_E_UNKNOWNNAME) + " : The object has no member Month.");
}

KAVELIN_TEST(ArgumentsArriveInTheirOrder)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    std::string given;
    fake->With("Open", [&](const FakeCall& call) {
        given = Shown(call.flags) + ":";
        for (UINT i = 0; i < call.Count(); ++i)
            given += " " + ToText(std::get<Value>(com::FromAutomation(call.Argument(i))));
        return S_OK;
    });
    ForeignObject foreign(fake.Get());
    const Variant result = foreign.Call("Open", {Value("a"), Value(2), Value(true)});
    CHECK_EQUAL(given, "3: a 2 True");
    CHECK(std::get<Value>(result).IsEmpty());
}

KAVELIN_TEST(TheDefaultMemberAndOneByItsIdentifierAreReached)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    fake->WithValue("First", Value(1)).WithValue("", Value(2));
    ForeignObject foreign(fake.Get());
    CHECK(std::get<Value>(foreign.Call("", {})) == Value(2));
    CHECK(std::get<Value>(foreign.Call("[DISPID=1]", {})) == Value(1));
    CHECK_EQUAL(fake->Resolved(), 0);
}

KAVELIN_TEST(ObjectsArePutByReferenceWhereTheMemberTakesThemSo)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    std::string puts;
    const auto record = [&](WORD taken) {
        return [&puts, taken](const FakeCall& call) {
            puts += Shown(call.flags) + " ";
            return call.flags == taken ? S_OK : DISP_E_MEMBERNOTFOUND;
        };
    };
    fake->With("ByReference", record(DISPATCH_PROPERTYPUTREF)).With("ByValue", record(DISPATCH_PROPERTYPUT));
    const HostObjectPtr object = std::make_shared<ForeignObject>(fake.Get());
    ForeignObject foreign(fake.Get());
    foreign.Put("ByReference", object);
    foreign.Put("ByValue", object);
    foreign.Put("ByValue", Value(1));
    CHECK_EQUAL(puts, "8 8 4 4 ");
    CHECK(FailureOf([&] { foreign.Put("ByReference", Value(1)); }).find("ByReference: ") !=
          std::string::npos);
}

KAVELIN_TEST(ArgumentsByReferenceComeBackAlsoAfterAnError)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    bool fails = false;
    fake->With("Change", [&](const FakeCall& call) {
        VARIANT& target = *call.Argument(1).pvarVal;
        VariantClear(&target);
        target.vt = VT_I4;
        target.lVal = 42;
        return fails ? E_ABORT : S_OK;
    });
    ForeignObject foreign(fake.Get());
    const HostObjectPtr object = std::make_shared<ForeignObject>(fake.Get());
    for (const bool failing : {false, true}) {
        fails = failing;
        std::vector<Variant> arguments = {object, Value("before"), Value("kept")};
        const std::string failure = FailureOf([&] { foreign.CallByReference("Change", arguments); });
        CHECK_EQUAL(failure == "none", !failing);
        CHECK(std::get<HostObjectPtr>(arguments[0]) == object);
        CHECK(std::get<Value>(arguments[1]) == Value(42));
        CHECK(std::get<Value>(arguments[2]) == Value("kept"));
    }
}

KAVELIN_TEST(ATextThatLiesWhereTheFirstOneLayComesBack)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    fake->With("Change", [](const FakeCall& call) {
        call.Argument(0).pvarVal->bstrVal[0] = L'B';
        return S_OK;
    });
    std::vector<Variant> arguments = {Value("before")};
    ForeignObject(fake.Get()).CallByReference("Change", arguments);
    CHECK(std::get<Value>(arguments[0]) == Value("Before"));
}

KAVELIN_TEST(AFailureKeepsItsTextCodeAndSource)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    fake->WithFailure("Full", 0x80040E37, L"没有这张表", L"Provider")
        .With("Bare", [](const FakeCall&) { return E_ACCESSDENIED; })
        .With("Numbered",
              [](const FakeCall& call) {
                  call.details->wCode = 9;
                  return DISP_E_EXCEPTION;
              })
        .With("Later", [](const FakeCall& call) {
            call.details->scode = E_FAIL;
            call.details->pfnDeferredFillIn = [](EXCEPINFO* details) {
                details->bstrDescription = SysAllocString(L"filled in");
                return S_OK;
            };
            return DISP_E_EXCEPTION;
        });
    ForeignObject foreign(fake.Get());
    CHECK_EQUAL(FailureOf([&] { foreign.Get("Full"); }), Hex(0x80040E37) + " Provider: 没有这张表");
    CHECK_EQUAL(FailureOf([&] { foreign.Get("Later"); }), Hex(E_FAIL) + " : filled in");
    CHECK_EQUAL(FailureOf([&] { foreign.Get("Bare"); }).rfind(Hex(E_ACCESSDENIED) + " : Bare: ", 0), 0U);
    CHECK_EQUAL(FailureOf([&] { foreign.Get("Numbered"); }).rfind(Hex(0x800A0009), 0), 0U);
}

KAVELIN_TEST(FailuresHaveTheCodesThatClientsKnow)
{
    const auto codeOf = [](auto error) {
        try {
            throw error;
        } catch (...) {
            return com::CurrentFailure("Kavelin.Class");
        }
    };
    DatabaseError::Details details;
    details.strMessage = "表不存在";
    const com::Failure statement = codeOf(DatabaseError(details));
    CHECK_EQUAL(Hex(statement.code), Hex(0x80040E14));
    CHECK(statement.description == L"表不存在");
    CHECK(statement.source == L"Kavelin.Class");
    CHECK_EQUAL(Hex(codeOf(ConnectionError(details)).code), Hex(E_FAIL));
    CHECK_EQUAL(Hex(codeOf(CancelledError(details)).code), Hex(0x80040E4E));
    CHECK_EQUAL(Hex(codeOf(ConversionError("x")).code), Hex(0x800A000D));
    CHECK_EQUAL(Hex(codeOf(OverflowError("x")).code), Hex(0x800A0006));
    CHECK_EQUAL(Hex(codeOf(Error("x")).code), Hex(E_FAIL));
    CHECK_EQUAL(Hex(codeOf(std::bad_alloc()).code), Hex(E_OUTOFMEMORY));
    CHECK_EQUAL(Hex(codeOf(7).code), Hex(E_FAIL));
}
