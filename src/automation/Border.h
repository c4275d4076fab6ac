// What crosses the border between the library and its host: the host gets its own objects, the library views.
#pragma once

#include "automation/HostView.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <string_view>
#include <vector>

namespace kavelin::automation {

// On the way to the host: objects unwrapped, values as they are.
Variant Outgoing(const Variant& value);
std::vector<Variant> Outgoing(const std::vector<Variant>& values);

// Whether the host answered with nothing: no object, an empty value or a null.
bool IsNothing(const Variant& answer);

// Calls a member of a host's object. What it puts in the place of an argument comes back in `arguments`, also
// after an error: the argument itself where the host left it, a view of the argument's kind over an object
// that took its place.
Variant CallAcross(LateBound& object, std::string_view member, std::vector<Variant>& arguments);

// A view that is called late-bound itself: as `Base`, which is LateBound or an interface derived from it.
template <class Base>
class LateView : public Base, public HostView {
  public:
    using HostView::HostView;

    Variant Get(std::string_view member) override { return Object()->Get(member); }
    void Put(std::string_view member, const Variant& value) override { Write(member, value); }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        return HostView::Call(member, arguments);
    }
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override
    {
        return CallAcross(*Object(), member, arguments);
    }
};

}  // namespace kavelin::automation
