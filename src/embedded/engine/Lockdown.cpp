#include "embedded/engine/Lockdown.h"

#include "embedded/write/Quote.h"

#include <filesystem>
#include <system_error>

namespace kavelin::embedded {

namespace fs = std::filesystem;

namespace {

fs::path PathOf(const std::string& text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string Megabytes(std::int64_t count)
{
    return std::to_string(count) + "MiB";
}

// Half of what is free, so that a report that runs wild does not fill the disk.
std::int64_t DefaultSpill(const std::string& accountPath)
{
    std::error_code error;
    const fs::space_info room = fs::space(PathOf(accountPath).parent_path(), error);
    return error ? 0 : static_cast<std::int64_t>(room.available / 2 / (1 << 20));
}

}  // namespace

std::string SpillFolderOf(const std::string& accountPath)
{
    return accountPath + ".spill";
}

void Configure(Session& session, const std::string& accountPath, const Limits& limits)
{
    for (const char* setting : {
             "autoinstall_known_extensions = false",
             "autoload_known_extensions = false",
             "allow_community_extensions = false",
             // T-SQL puts NULL first, and last in descending order.
             "default_null_order = 'nulls_first_on_asc_last_on_desc'",
         })
        session.Run(std::string("SET GLOBAL ") + setting);
    if (limits.memory)
        session.Run("SET GLOBAL memory_limit = " + QuoteText(Megabytes(*limits.memory)));
    const std::int64_t spill = limits.spill ? *limits.spill : DefaultSpill(accountPath);
    session.Run("SET GLOBAL temp_directory = " +
                QuoteText(spill > 0 ? SpillFolderOf(accountPath) : std::string()));
    if (spill > 0)
        session.Run("SET GLOBAL max_temp_directory_size = " + QuoteText(Megabytes(spill)));
    if (limits.threads)
        session.Run("SET GLOBAL threads = " + std::to_string(*limits.threads));
}

void LockDown(Session& session)
{
    session.Run("SET GLOBAL enable_external_access = false");
    session.Run("SET GLOBAL lock_configuration = true");
}

void ClearSpill(const std::string& accountPath)
{
    const fs::path folder = PathOf(SpillFolderOf(accountPath));
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored))
        if (entry->path().filename().string().starts_with("duckdb_temp_"))
            fs::remove(entry->path(), ignored);
    fs::remove(folder, ignored);  // unless something else is in it
}

}  // namespace kavelin::embedded
