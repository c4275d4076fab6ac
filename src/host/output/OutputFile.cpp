#include "host/output/OutputFile.h"

#include "frame/Errors.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>
#include <set>
#include <system_error>

namespace kavelin::host {

namespace fs = std::filesystem;

namespace {

// Parts under way; see AbandonAll. Never destroyed, since a thread may still ask while the program ends.
struct Parts {
    std::mutex objMutex;
    std::set<fs::path> strPaths;
};

Parts& UnfinishedParts()
{
    static Parts& parts = *new Parts;
    return parts;
}

// Why a stream failed earlier; it keeps no reason itself.
int ReasonOf(const fs::path& path)
{
    std::error_code error;
    const fs::space_info room = fs::space(path.has_parent_path() ? path.parent_path() : ".", error);
    return !error && room.available == 0 ? ENOSPC : EIO;
}

[[noreturn]] void ThrowCannotWrite(const fs::path& path, int error)
{
    throw Error(
        fmt::format("{} cannot be written: {}.", path.string(), std::generic_category().message(error)));
}

// Creates a new file beside `path`. Its rights are those of any file of the user, not mkstemp's private ones.
fs::path CreatePart(const fs::path& path)
{
    for (int number = 0;; ++number) {
        fs::path part =
            path.parent_path() / fmt::format(".{}.{}-{}.part", path.filename().string(), getpid(), number);
        const int file = open(part.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0) {
            close(file);
            return part;
        }
        if (errno != EEXIST)
            ThrowCannotWrite(path, errno);
    }
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : strPath(path)
{
    std::error_code ignored;
    if (fs::is_symlink(strPath, ignored))
        if (const fs::path target = fs::weakly_canonical(strPath, ignored); !target.empty())
            strPath = target;
    if (path.empty() || fs::is_directory(strPath, ignored) || !strPath.has_filename())
        throw Error(fmt::format("\"{}\" cannot be written: it is no file.", path));

    if (fs::exists(strPath, ignored) && !fs::is_regular_file(strPath, ignored)) {
        objStream.open(strPath, std::ios::binary);
    } else {
        Parts& parts = UnfinishedParts();
        const std::lock_guard lock(parts.objMutex);
        strPart = CreatePart(strPath);
        parts.strPaths.insert(strPart);
        objStream.open(strPart, std::ios::binary);
    }
    if (!objStream)
        ThrowCannotWrite(strPath, errno);
}

OutputFile::~OutputFile()
{
    if (strPart.empty())
        return;
    objStream.close();
    std::error_code ignored;
    Parts& parts = UnfinishedParts();
    const std::lock_guard lock(parts.objMutex);
    fs::remove(strPart, ignored);
    parts.strPaths.erase(strPart);
}

void OutputFile::Finish()
{
    errno = 0;
    objStream.close();
    if (!objStream)
        ThrowCannotWrite(strPath, errno != 0 ? errno : ReasonOf(strPath));
    if (strPart.empty())
        return;

    Parts& parts = UnfinishedParts();
    const std::lock_guard lock(parts.objMutex);
    std::error_code error;
    fs::rename(strPart, strPath, error);
    if (error)
        ThrowCannotWrite(strPath, error.value());
    parts.strPaths.erase(strPart);
    strPart.clear();
}

void OutputFile::AbandonAll() noexcept
{
    Parts& parts = UnfinishedParts();
    const std::lock_guard lock(parts.objMutex);
    for (const fs::path& part : parts.strPaths) {
        std::error_code ignored;
        fs::remove(part, ignored);
    }
}

}  // namespace kavelin::host
