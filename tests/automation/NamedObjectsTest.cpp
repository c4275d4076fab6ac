// Objects made by name, and the platform over them.
#include "automation/NamedObjects.h"

#include "automation/NamedPlatform.h"
#include "automation/ScriptedObject.h"
#include "automation/Views.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"

#include <gtest/gtest.h>

#include <thread>

namespace kavelin::test {

using namespace automation;

namespace {

class NamedObjects : public testing::Test {
  protected:
    ~NamedObjects() override
    {
        WithdrawAll();
        UsePlatform(nullptr);
    }
};

// Knows every name, and writes down which it was asked for.
ObjectMaker MakeAny(std::vector<std::string>& asked)
{
    return [&asked](const std::string& name) {
        asked.push_back(name);
        return Scripted(name);
    };
}

std::string NameOf(const std::shared_ptr<LateBound>& object)
{
    return std::dynamic_pointer_cast<ScriptedObject>(object)->Name();
}

std::string TextOfError(const std::function<void()>& call)
{
    try {
        call();
        return "no error";
    } catch (const Error& error) {
        return error.what();
    }
}

}  // namespace

TEST_F(NamedObjects, AreTheHostsBeforeThoseOfTheSystem)
{
    std::vector<std::string> asked;
    Provide("Lumenet.ResLog", [] { return Scripted("the host's"); });
    EXPECT_EQ(NameOf(MakeObject("lumenet.RESLOG", MakeAny(asked))), "the host's");
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(NameOf(MakeObject("Corvane.clsUniVch", MakeAny(asked))), "Corvane.clsUniVch");

    Provide("Lumenet.ResLog", [] { return Scripted("a later one"); });
    EXPECT_EQ(NameOf(MakeObject("Lumenet.ResLog", nullptr)), "a later one");
    Withdraw("LUMENET.reslog");
    Withdraw("never provided");
    EXPECT_EQ(NameOf(MakeObject("Lumenet.ResLog", MakeAny(asked))), "Lumenet.ResLog");
}

TEST_F(NamedObjects, AreOfOneThread)
{
    Provide("Lumenet.ResLog", [] { return Scripted("of this thread"); });
    std::string elsewhere;
    std::thread([&] { elsewhere = TextOfError([] { MakeObject("Lumenet.ResLog", nullptr); }); }).join();
    EXPECT_EQ(elsewhere, "The host provides no Lumenet.ResLog.");
    EXPECT_EQ(NameOf(MakeObject("Lumenet.ResLog", nullptr)), "of this thread");
}

TEST_F(NamedObjects, AreMissedByName)
{
    EXPECT_EQ(TextOfError([] { MakeObject("Lumenet.ResLog", nullptr); }),
              "The host provides no Lumenet.ResLog.");
    EXPECT_EQ(TextOfError([] { MakeObject("Suite.LedgerPub", [](auto&) { return nullptr; }); }),
              "The host provides no Suite.LedgerPub.");
    Provide("Suite.LedgerPub", []() -> std::shared_ptr<LateBound> { throw Error("no ledger today"); });
    EXPECT_EQ(TextOfError([] { MakeObject("Suite.LedgerPub", nullptr); }), "no ledger today");
    Provide("Suite.LedgerPub", [] { return nullptr; });
    EXPECT_EQ(TextOfError([] { MakeObject("Suite.LedgerPub", nullptr); }),
              "The host provides no Suite.LedgerPub.");
}

class PlatformWithoutGuids : public NamedPlatform {
  public:
    using NamedPlatform::NamedPlatform;
    Guid CreateGuid() override { throw Error("no GUID is wanted"); }
};

TEST_F(NamedObjects, MakeTheWholePlatform)
{
    std::vector<std::string> asked;
    const auto platform = std::make_shared<PlatformWithoutGuids>(MakeAny(asked));
    UsePlatform(platform);
    const auto connection = platform->CreateConnection();
    platform->CreateResourceObject();
    platform->CreateAuthService();
    platform->CreateLedgerLogin();
    platform->CreateLedgerPub();
    platform->CreateLedgerParams();
    platform->CreateMachineInfo();
    platform->CreateClientNumber();
    platform->CreateSettingsStore();
    platform->CreateXmlDocument();
    platform->CreateFormHost();
    EXPECT_EQ(NameOf(LateBoundOf(platform->CreateObject("Tessel.clsPub"))), "Tessel.clsPub");
    connection->OpenRecordset("select 1", CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(asked, (std::vector<std::string>{"ADODB.Connection", "Lumenet.ResLog", "Suite.AuthService",
                                               "Suite.LedgerLogin", "Suite.LedgerPub", "Suite.LedgerParams",
                                               "Suite.MachineInfo", "Suite.ClientNumber",
                                               "Suite.SettingsStore", "MSXML2.DOMDocument", "Suite.FormHost",
                                               "Tessel.clsPub", "ADODB.Recordset"}));
}

// A connection that the host's ledger gave has record sets of the same making as the library's own.
TEST_F(NamedObjects, MakeTheRecordsetsOfALedgersConnection)
{
    std::vector<std::string> asked;
    UsePlatform(std::make_shared<PlatformWithoutGuids>(MakeAny(asked)));
    const auto ledger = Scripted("ledger", {{"DbConnection", HostObjectPtr(Scripted("connection"))}});
    As<LedgerLogin>(HostObjectPtr(ledger), "ledger")
        ->DbConnection()
        ->OpenRecordset("select 1", CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(asked, (std::vector<std::string>{"ADODB.Recordset"}));
}

}  // namespace kavelin::test
