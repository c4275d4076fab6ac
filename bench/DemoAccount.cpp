#include "DemoAccount.h"

#include "demo/DemoCompany.h"

#include <fmt/core.h>

namespace kavelin::bench {

std::filesystem::path DemoAccount(std::int64_t lines)
{
    const demo::Profile& profile = demo::Profiles().front();
    const std::filesystem::path path =
        std::filesystem::path(KAVELIN_BENCH_DATA) / fmt::format("{}-{}.kavelin", profile.name, lines);
    if (!std::filesystem::exists(path)) {
        std::filesystem::create_directories(path.parent_path());
        fmt::print("making a demo account of {} ledger lines\n", lines);
        demo::MakeDemoAccount(path, profile, lines);
    }
    return path;
}

}  // namespace kavelin::bench
