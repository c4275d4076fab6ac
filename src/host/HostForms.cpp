#include "host/HostForms.h"

namespace kavelin::host {

void HostForms::ShowModal(Form& form)
{
    if (objOnForm)
        objOnForm(form);
    form.Unload();
}

// The reference host shows messages in lines of their own, which have no place for a title.
void HostForms::ShowMessage(const std::string& text, int icon, const std::string& /*title*/)
{
    objTexts->ShowMessage(objTexts->GetResString(text), icon);
}

}  // namespace kavelin::host
