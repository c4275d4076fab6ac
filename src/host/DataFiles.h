// Files that are built into the program. `kavelin_embed` of cmake/Embed.cmake turns a folder into a
// generated source that defines `EmbeddedFiles()` in the namespace that it is told; the host's folder is
// src/host/data. Another room that embeds a folder declares its own `EmbeddedFiles()`.
#pragma once

#include <span>
#include <string_view>

namespace kavelin::host {

struct EmbeddedFile {
    std::string_view name;  // path within the folder: "filters/capital-share.json"
    std::string_view content;
};

// All files of the host, by name.
std::span<const EmbeddedFile> EmbeddedFiles();

// The content of a file of the host. Throws Error if there is none of that name.
std::string_view DataFile(std::string_view name);

// The same among `files`, which another room embeds.
std::string_view DataFile(std::span<const EmbeddedFile> files, std::string_view name);

// Whether the host has a file of that name.
bool HasDataFile(std::string_view name);

}  // namespace kavelin::host
