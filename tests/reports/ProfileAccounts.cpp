#include "reports/ProfileAccounts.h"

#include "demo/DemoCompany.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace kavelin::test {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kLines = 6000;

}  // namespace

fs::path ReadyAccounts()
{
    const char* folder = std::getenv("KAVELIN_PROFILE_ACCOUNTS");
    return folder ? fs::path(folder) : fs::path();
}

fs::path ProfileAccountIn(const fs::path& folder, const demo::Profile& profile)
{
    return folder / (std::string(profile.name) + ".kavelin");
}

void MakeProfileAccount(const fs::path& folder, const demo::Profile& profile)
{
    demo::MakeDemoAccount(ProfileAccountIn(folder, profile), profile, kLines);
}

void CopyProfileAccount(const fs::path& from, const fs::path& to, const demo::Profile& profile)
{
    for (const fs::directory_entry& file : fs::directory_iterator(from))
        if (file.is_regular_file() &&
            file.path().filename().string().starts_with(std::string(profile.name) + "."))
            fs::copy_file(file.path(), to / file.path().filename());
}

}  // namespace kavelin::test
