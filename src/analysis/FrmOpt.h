// The form in which a user sets the thresholds of the ABC analysis.
#pragma once

#include "frame/host/Form.h"

#include <memory>
#include <vector>

namespace kavelin {

class FrmOpt : public Form {
  public:
    // Reads the eight settings, or their defaults where nobody has set them. `host` shows the form's
    // messages.
    explicit FrmOpt(std::shared_ptr<FormHost> host);

    std::string Title() const override;
    std::span<FormField> Fields() override { return lstFields; }
    std::span<const FormCommand> Commands() const override { return lstCommands; }
    std::string FieldAfter(std::string_view field) const override;

    // "Command1" checks the values and writes all eight; a value that is refused is told in a message, and
    // the form stays. "Command2" writes nothing. Throws Error for any other name.
    bool Click(std::string_view command) override;

    void Unload() override;

  private:
    double NumberIn(std::string_view field) const;
    bool Accept();

    std::shared_ptr<FormHost> objHost;
    std::vector<FormField> lstFields;
    std::vector<FormCommand> lstCommands;
};

}  // namespace kavelin
