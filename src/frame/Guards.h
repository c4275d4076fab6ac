// What happens to an error where a report's rule says that it does not reach the host.
#pragma once

#include "frame/Errors.h"

#include <exception>
#include <memory>
#include <string>

namespace kavelin {

// Shows the description to the user.
void ShowError(const std::string& strDescription);

// Runs `action`; an error is shown to the user. Whether there was none.
template <class Action>
bool ShowErrors(Action&& action)
{
    try {
        action();
        return true;
    } catch (const std::exception& error) {
        ShowError(error.what());
        return false;
    }
}

// Runs `action`; an error is passed over. Whether there was none.
template <class Action>
bool IgnoreErrors(Action&& action)
{
    try {
        action();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// What `object` leads to. Throws Error where there is nothing, so that a step on nothing fails like any
// other.
template <class T>
T& Existing(const std::shared_ptr<T>& object)
{
    if (!object)
        throw Error("There is no object to work on.");
    return *object;
}

}  // namespace kavelin
