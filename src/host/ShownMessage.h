// What the library shows to the user.
#pragma once

#include <functional>
#include <string>

namespace kavelin::host {

struct ShownMessage {
    std::string text;
    int icon;  // kInformation or kWarning; 0 for none

    bool operator==(const ShownMessage&) const = default;
};
using MessageSink = std::function<void(const ShownMessage&)>;

}  // namespace kavelin::host
