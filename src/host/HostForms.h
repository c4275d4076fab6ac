// Forms of the library in front of the host's user.
#pragma once

#include "frame/host/Form.h"
#include "frame/host/SuiteObjects.h"

#include <functional>
#include <memory>
#include <utility>

namespace kavelin::host {

// Lets a user fill in the form and click its commands until it closes.
using FormSink = std::function<void(Form&)>;

// Without a sink nobody fills in anything: a form closes as it opened.
class HostForms : public FormHost {
  public:
    HostForms(FormSink onForm, std::shared_ptr<ResourceObject> texts)
        : objOnForm(std::move(onForm)), objTexts(std::move(texts))
    {
    }

    void ShowModal(Form& form) override;

    // A form's texts are Chinese; those that the host has in the user's language are shown in it.
    void ShowMessage(const std::string& text, int icon, const std::string& title) override;

  private:
    FormSink objOnForm;
    std::shared_ptr<ResourceObject> objTexts;
};

}  // namespace kavelin::host
