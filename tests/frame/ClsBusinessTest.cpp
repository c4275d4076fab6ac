#include "frame/ClsBusiness.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

TEST(ClsBusiness, KeepsThePortalInGobjBusinessAndAsksNothingOfIt)
{
    RecordingHost host;
    const std::shared_ptr<LateBound> portal = host.LateArgument();
    EXPECT_EQ(ModPub().gobjBusiness, nullptr);
    ClsBusiness().Init(portal);
    EXPECT_EQ(ModPub().gobjBusiness, portal);
    EXPECT_EQ(host.Events().Text(), "");
}

}  // namespace kavelin::test
