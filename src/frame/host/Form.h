// A modal form of the library, apart from any toolkit: what it shows and what its commands do. The host gives it
// a face.
#pragma once

#include "frame/host/HostObject.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

struct FormField {
    std::string name;
    std::string label;
    std::string text;  // what stands in the box; the host changes it as the user types
    bool forInput;     // reached by moving from field to field
};

struct FormCommand {
    std::string name;
    std::string caption;
};

class Form {
  public:
    virtual ~Form() = default;

    virtual std::string Title() const = 0;
    virtual std::span<FormField> Fields() = 0;
    virtual std::span<const FormCommand> Commands() const = 0;

    // The field to which Enter leads from `field`; "" where it stays.
    virtual std::string FieldAfter(std::string_view field) const = 0;

    // Does what the command does. Whether the form closes.
    virtual bool Click(std::string_view command) = 0;

    // The host calls it once the form has closed.
    virtual void Unload() = 0;
};

class FormHost : public virtual HostObject {
  public:
    // Returns when the form has closed.
    virtual void ShowModal(Form& form) = 0;

    // `icon` as of ResourceObject::ShowMessage.
    virtual void ShowMessage(const std::string& text, int icon, const std::string& title) = 0;
};

}  // namespace kavelin
