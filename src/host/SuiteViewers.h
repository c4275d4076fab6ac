// The suite's objects by name, as the reference host gives them: their calls are those of the suite, but what
// they are asked to open they hand over as rows.
#pragma once

#include "frame/Connection.h"
#include "frame/host/HostObject.h"
#include "host/ShownMessage.h"

#include <functional>
#include <memory>
#include <string>

namespace kavelin::host {

// Takes what was opened: a title in the user's language, and its rows.
using ViewerSink = std::function<void(const std::string& title, Recordset& rows)>;

struct ViewerSettings {
    ViewerSink onShow;      // may be empty: nothing is shown
    MessageSink onMessage;  // likewise
    std::string language;
    // Opens the account for the portal, whose commands bring no connection along; without it they fail.
    std::function<std::shared_ptr<Connection>()> openAccount = {};
};

// A new object; null if this host has none of that name. Reports pass the errors of these objects over, so
// the objects show them as messages before they throw.
std::shared_ptr<LateBound> CreateSuiteObject(const std::string& name, const ViewerSettings& settings);

}  // namespace kavelin::host
