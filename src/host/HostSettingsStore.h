// Per-user settings in a JSON file: application -> section -> key -> text.
#pragma once

#include "frame/host/SuiteObjects.h"

#include <filesystem>
#include <string>

namespace kavelin::host {

// The file is read at every call, so that other programs' changes are seen; a missing file holds nothing.
// Names are without regard to case. Throws Error for a file that is no such JSON or cannot be written.
class HostSettingsStore : public SettingsStore {
  public:
    explicit HostSettingsStore(std::filesystem::path file) : strFile(std::move(file)) {}

    std::string Read(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& byDefault) override;

    // Writes a new file beside the old one and puts it in its place, so that a failure leaves the old one.
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override;

  private:
    std::filesystem::path strFile;
};

}  // namespace kavelin::host
