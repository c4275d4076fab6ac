#include "host/FormRun.h"

#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "host/HostRowArgs.h"

#include <exception>
#include <memory>
#include <utility>

namespace kavelin::host {

void ShowFormOf(const Report& report, const std::string& action, PlatformSettings settings)
{
    // The report passes every error of a command over, those of its form among them.
    bool shown = false;
    std::exception_ptr failure;
    settings.onForm = [&, fill = std::move(settings.onForm)](Form& form) {
        shown = true;
        try {
            fill(form);
        } catch (...) {
            failure = std::current_exception();
        }
    };
    UsePlatform(std::make_shared<HostPlatform>(std::move(settings)));
    const auto argument = std::make_shared<HostRowArgs>(nullptr, action, nullptr);
    CreateObject("Kavelin." + std::string(report.className))
        ->Call("Execute", {HostObjectPtr(std::static_pointer_cast<LateBound>(argument))});
    UsePlatform(nullptr);
    if (failure)
        std::rethrow_exception(failure);
    if (!shown)
        throw Error("The command " + action + " shows no form.");
}

}  // namespace kavelin::host
