// The per-user settings where the platform that the reports were written for keeps them.
#pragma once

#include "frame/host/SuiteObjects.h"

namespace kavelin::com {

// A setting is a text value of HKEY_CURRENT_USER\Software\VB and VBA Program Settings\application\section.
class RegistrySettings : public SettingsStore {
  public:
    std::string Read(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& byDefault) override;
    // Throws Error where the registry refuses.
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override;
};

}  // namespace kavelin::com
