// Every profile's books reconcile.
#include "demo/DemoCompany.h"
#include "demo/NewAccount.h"
#include "demo/QueryRows.h"
#include "demo/check/AccountCheck.h"

#include <gtest/gtest.h>

#include <string>

namespace kavelin::demo {
namespace {

constexpr std::int64_t kLines = 20'000;

class ProfilesReconcileTest : public testing::TestWithParam<std::string> {};

TEST_P(ProfilesReconcileTest, InEveryCheck)
{
    const TestFolder folder;
    const std::filesystem::path account = folder / "demo.kavelin";
    MakeDemoAccount(account, *FindProfile(GetParam()), kLines);
    const auto connection = ConnectTo(account);
    for (const CheckResult& result : CheckAccount(*connection)) {
        std::string first;
        if (!result.Passed())
            for (std::size_t i = 0; i < result.columns.size(); ++i)
                first += " " + result.columns[i] + "=" + result.differences.front()[i];
        EXPECT_TRUE(result.Passed()) << result.claim << ":" << first;
        if (result.name == "summary") {
            EXPECT_EQ(result.counted.front().count, kLines);
        }
    }
}

std::vector<std::string> ProfileNames()
{
    std::vector<std::string> names;
    for (const Profile& profile : Profiles())
        names.emplace_back(profile.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Profiles, ProfilesReconcileTest, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) {
                             std::string name = tested.param;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace kavelin::demo
