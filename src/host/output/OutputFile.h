// A file that appears whole or not at all.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace kavelin::host {

// Writes beside `path` and moves the finished file there; until then a file of that name stays as it is.
// A path that exists and is no plain file (a pipe, /dev/stdout) is written to directly; a link is followed.
class OutputFile {
  public:
    // Throws Error if the folder or the file cannot be written.
    explicit OutputFile(const std::string& path);

    // Without Finish before, what was written is thrown away.
    ~OutputFile();

    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    std::ostream& Stream() { return objStream; }

    // Puts the file in its place. Throws Error if not everything could be written.
    void Finish();

    // Throws away the file that is being written in this process, if any, for an end without unwinding.
    // From any thread.
    static void AbandonAll() noexcept;

  private:
    std::filesystem::path strPath;
    std::filesystem::path strPart;  // empty: written in place
    std::ofstream objStream;
};

}  // namespace kavelin::host
