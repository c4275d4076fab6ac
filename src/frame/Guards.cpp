#include "frame/Guards.h"

#include "frame/ModPub.h"

namespace kavelin {

void ShowError(const std::string& strDescription)
{
    Resources().ShowMessage(strDescription, kWarning);
}

}  // namespace kavelin
