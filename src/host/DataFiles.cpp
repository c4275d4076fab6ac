#include "host/DataFiles.h"

#include "frame/Errors.h"

#include <algorithm>

namespace kavelin::host {

std::string_view DataFile(std::string_view name)
{
    return DataFile(EmbeddedFiles(), name);
}

std::string_view DataFile(std::span<const EmbeddedFile> files, std::string_view name)
{
    const auto found = std::ranges::find(files, name, &EmbeddedFile::name);
    if (found == files.end())
        throw Error("The program has no data file " + std::string(name) + ".");
    return found->content;
}

bool HasDataFile(std::string_view name)
{
    return std::ranges::find(EmbeddedFiles(), name, &EmbeddedFile::name) != EmbeddedFiles().end();
}

}  // namespace kavelin::host
