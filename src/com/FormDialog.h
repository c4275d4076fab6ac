// A form of the library as a dialog of Windows.
#pragma once

#include "frame/host/Form.h"

namespace kavelin::com {

class FormDialog : public FormHost {
  public:
    // Labels and boxes below each other, the commands beneath them. Enter moves from box to box as the form
    // tells; Escape and the close button close the form. An error of a command closes it too and goes to the
    // caller. Throws Error where the session has no windows.
    void ShowModal(Form& form) override;

    void ShowMessage(const std::string& text, int icon, const std::string& title) override;
};

}  // namespace kavelin::com
