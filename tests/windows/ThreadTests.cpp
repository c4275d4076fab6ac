// What the library keeps for a thread, and when it lets go.
#include "Check.h"
#include "Client.h"
#include "FakeObject.h"

#include "com/Failure.h"

#include <functional>

using namespace kavelin;
using namespace kavelin::test;
using com::Pointer;

namespace {

DWORD WINAPI RunFunction(void* function)
{
    try {
        (*static_cast<std::function<void()>*>(function))();
    } catch (const std::exception& error) {
        CHECK_EQUAL(std::string(error.what()), "");
    }
    return 0;
}

// Runs `function` on a thread of its own, and returns when that has ended.
void OnAThread(std::function<void()> function)
{
    const HANDLE thread = CreateThread(nullptr, 0, RunFunction, &function, 0, nullptr);
    CHECK_EQUAL(WaitForSingleObject(thread, 20'000), WAIT_OBJECT_0);
    CloseHandle(thread);
}

// The portal of the thread's state.
void Keep(FakeObject& fake)
{
    const auto business = Create("ClsBusiness");
    CHECK_EQUAL(Call(*business.Get(), L"Init", {ObjectArgument(&fake)}).code, S_OK);
}

// A connection that takes everything, and the report's argument.
struct Host {
    explicit Host(FakeLife& life) : connection(MakeFake(life)), e(MakeFake(life)), maker(MakeFake(life))
    {
        const FakeMember takes = [](const FakeCall&) { return S_OK; };
        for (const char* member : {"CursorLocation", "ConnectionString", "ConnectionTimeout",
                                   "CommandTimeout", "Open", "Execute", "Close"})
            connection->With(member, takes);
        connection->WithValue("State", Value(1));

        const auto login = MakeFake(life);
        login->WithValue("VosDbName", Value("the account"));
        const auto dataSource = MakeFake(life);
        dataSource->With("Type", takes).WithValue("sql", Value("tempdb..result"));
        const auto args = MakeFake(life);
        args->WithValue("Item", Value("name"));
        e->WithObject("Login", login.Get())
            .WithObject("DataSource", dataSource.Get())
            .WithObject("Args", args.Get());
        maker->WithObject("", connection.Get());
    }

    void Provide() const
    {
        const auto objects = Create("HostObjects");
        CHECK_EQUAL(
            Call(*objects.Get(), L"Provide", {Value("ADODB.Connection"), ObjectArgument(maker.Get())}).code,
            S_OK);
    }

    Pointer<FakeObject> connection;
    Pointer<FakeObject> e;
    Pointer<FakeObject> maker;
};

Answer RunAreaTable(const Host& host)
{
    const auto report = Create("clsAreaStockReport");
    return Call(*report.Get(), L"GETSQL", {ObjectArgument(host.e.Get())});
}

int Count(const std::string& text, const std::string& piece)
{
    int count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
        ++count;
    return count;
}

}  // namespace

KAVELIN_TEST(TheStateIsLetGoBeforeTheApartmentEnds)
{
    FakeLife life;
    OnAThread([&] {
        CoInitialize(nullptr);
        const auto fake = MakeFake(life);
        Keep(*fake.Get());
        CHECK(fake->References() > 1);
        // An inner pair is no end.
        CoInitialize(nullptr);
        CoUninitialize();
        CHECK(fake->References() > 1);
        CoUninitialize();
        CHECK_EQUAL(fake->References(), 1UL);

        // The thread may begin again.
        CoInitialize(nullptr);
        Keep(*fake.Get());
        CHECK(fake->References() > 1);
        CoUninitialize();
        CHECK_EQUAL(fake->References(), 1UL);
    });
    CHECK_EQUAL(life.alive, 0);
}

KAVELIN_TEST(ObjectsThatOutliveTheApartmentCallNobody)
{
    FakeLife life;
    OnAThread([&] {
        CoInitialize(nullptr);
        auto report = Create("clsProPortion");
        {
            const auto fake = MakeFake(life);
            CHECK_EQUAL(Put(*report.Get(), L"ObjLogin", {ObjectArgument(fake.Get())}).code, S_OK);
        }
        CHECK_EQUAL(life.alive, 1);
        CoUninitialize();
        CHECK_EQUAL(life.alive, 0);
        report = {};
    });
}

KAVELIN_TEST(AThreadThatEndsInItsApartmentCallsNobody)
{
    FakeLife life;
    OnAThread([&] {
        CoInitialize(nullptr);
        Keep(*MakeFake(life).Get());
        life.forbidden = true;
    });
    CHECK_EQUAL(life.calls, 0);
    CHECK_EQUAL(life.alive, 1);
}

KAVELIN_TEST(EachThreadHasItsOwnObjectsAndState)
{
    FakeLife mine;
    FakeLife other;
    {
        const Host host(mine);
        host.Provide();
        CHECK_EQUAL(RunAreaTable(host).description, "");
        CHECK_EQUAL(Count(mine.events, "Execute "), 1);
        OnAThread([&] {
            CoInitialize(nullptr);
            {
                const Host second(other);
                // What the first thread provided isn't known here: the connection is the system's own.
                RunAreaTable(second);
                CHECK_EQUAL(Count(other.events, "Execute "), 0);
                second.Provide();
                CHECK_EQUAL(RunAreaTable(second).description, "");
                CHECK_EQUAL(Count(other.events, "Execute "), 1);
            }
            CoUninitialize();
        });
        CHECK_EQUAL(other.alive, 0);
        CHECK_EQUAL(Count(mine.events, "Execute "), 1);
        CHECK_EQUAL(RunAreaTable(host).description, "");
        CHECK_EQUAL(Count(mine.events, "Execute "), 2);
        const auto objects = Create("HostObjects");
        CHECK_EQUAL(Call(*objects.Get(), L"Withdraw", {Value("adodb.connection")}).code, S_OK);
        RunAreaTable(host);
        CHECK_EQUAL(Count(mine.events, "Execute "), 2);
    }
}

KAVELIN_TEST(AThreadWithoutComMakesNoObject)
{
    OnAThread([] {
        const auto getClass =
            ComponentEntry<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject");
        CLSID classId = {};
        CLSIDFromProgID(L"Kavelin.ClsBusiness", &classId);
        Pointer<IClassFactory> factory;
        CHECK_EQUAL(getClass(classId, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive())), S_OK);
        Pointer<IDispatch> made;
        CHECK(FAILED(
            factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(made.Receive()))));
    });
}

// Wine keeps the factory that served such a thread, so what counts the component's objects runs before.
KAVELIN_TEST(ThreadsWithoutAnApartmentOfTheirOwnAreServedFromOne)
{
    OnAThread([] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            const auto object = Create("clsSFCSumCon");
            CHECK_EQUAL(Put(*object.Get(), L"strInvName", {Value(1), Value("存货")}).code, S_OK);
            CHECK(std::get<Value>(Get(*object.Get(), L"strInvName", {Value(1)}).result) == Value("存货"));
            CHECK_EQUAL(Get(*object.Get(), L"strInvName", {Value(2)}).source, "Kavelin.clsSFCSumCon");
        }
        CoUninitialize();
    });
}

// What it leaves in the thread's state stays to the end of the process, unless another test follows.
KAVELIN_TEST(TheProcessMayEndWithItsStateInPlace)
{
    static FakeLife life;
    Keep(*MakeFake(life).Get());
    CHECK_EQUAL(life.alive, 1);
}
