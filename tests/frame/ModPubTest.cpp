#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(ModPub, MakesTheResourceObjectAndTheMachineInfoAtFirstUseAndKeepsThem)
{
    RecordingHost host;
    EXPECT_EQ(Resources().GetResString("Orvo.1"), "<Orvo.1>");
    EXPECT_EQ(Machine().MachineName(), "MACHINE");
    Resources().GetEnumName("IA.Month", "7");
    Machine().MachineName();
    EXPECT_EQ(host.Events().Text(),
              "new ResourceObject\n"
              "ResourceObject.GetResString Orvo.1\n"
              "new MachineInfo\n"
              "MachineInfo.MachineName\n"
              "ResourceObject.GetEnumName IA.Month, 7\n"
              "MachineInfo.MachineName\n");
}

TEST(ModPub, IsForgottenWithANewPlatform)
{
    RecordingHost host;
    host.OpenAccount();
    ModPub().gstrLanguage = "en-US";
    UsePlatform(nullptr);
    EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing");
    EXPECT_EQ(ModPub().gstrLanguage, "");
    EXPECT_THROW(CurrentPlatform(), Error);
}

}  // namespace kavelin::test
