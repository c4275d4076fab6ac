// Shown texts of the host, from src/host/data/texts/*.json:
//   {"texts": {key: text}, "enums": {type: {code: text}}}
#pragma once

#include "frame/host/SuiteObjects.h"
#include "host/HostPlatform.h"

#include <memory>
#include <string>

namespace kavelin::host {

// Keys, types and codes are without regard to case. What has no text is shown as it is asked for: the key
// or the code.
class HostResources : public ResourceObject {
  public:
    HostResources(std::string language, MessageSink onMessage);

    void SetLogin(std::shared_ptr<LoginContext> login) override;  // and from then on its language
    std::string GetResString(const std::string& key) override;
    std::string GetEnumName(const std::string& type, const std::string& code) override;
    std::string GetEnumCode(const std::string& type, const std::string& text) override;
    void ShowMessage(const std::string& text, int icon) override;
    void Unload() override {}  // texts are kept for the whole program

  private:
    std::string strLanguage;
    MessageSink objOnMessage;
};

}  // namespace kavelin::host
