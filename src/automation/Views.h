// Objects of a host as the interfaces of frame/host, however the host makes them.
//
// A host in C++ hands in objects of these interfaces. A host behind automation or behind the C interface has
// objects that are called by name only; a view gives each the interface that the library asks for:
//
//   std::shared_ptr<LoginContext> login = As<LoginContext>(e.Get("Login"), "Login");
//   login->Year();                       // Get("Year") of the host's object, as text
//
// A view keeps nothing of what it reads: each call asks the object, once, in the order in which the library
// calls. What a view hands to the host is the host's own object, not a view (HostView.h, Unwrapped).
//
// Of the LateBound that an adapter makes for such an object the views expect:
//   Get reads a property, or calls a method that takes no arguments;
//   Call calls a method, or reads a property with an index;
//   CallByReference leaves an argument in its place, the same pointer, unless the object replaced it;
//   a member named "" is the default one, "[DISPID=1]" the one of that dispatch identifier;
//   nothing is a null object, and a failure of the object an Error with its description.
#pragma once

#include "frame/host/DrillDownArgs.h"
#include "frame/host/Form.h"
#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"
#include "frame/host/ReportCallArgs.h"
#include "frame/host/ReportFilterObject.h"
#include "frame/host/SuiteObjects.h"

#include <memory>
#include <string_view>

namespace kavelin::automation {

// A view over `object` as a T. There is one for each interface that stands below.
template <class T>
std::shared_ptr<T> ViewOf(std::shared_ptr<LateBound> object);

template <>
std::shared_ptr<ReportCallArgs> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<DataSource> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<DrillDownArgs> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<RelateData> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<LoginContext> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<AuthService> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<ReportFilterObject> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<FilterList> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<FilterItem> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<NamedValues> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<ResourceObject> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<LedgerLogin> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<LedgerPub> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<LedgerParams> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<MachineInfo> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<ClientNumber> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<SettingsStore> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<XmlDocument> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<XmlNode> ViewOf(std::shared_ptr<LateBound> object);
template <>
std::shared_ptr<FormHost> ViewOf(std::shared_ptr<LateBound> object);
// For objects of the suite, which are given what the library holds: views that go into it arrive as the host's
// own objects.
template <>
std::shared_ptr<LateBound> ViewOf(std::shared_ptr<LateBound> object);

// Behind a view, its object; null for an object that isn't late-bound.
std::shared_ptr<LateBound> LateBoundOf(const HostObjectPtr& object);

// `object` as a T: itself if it is one, else a view over it if it is late-bound. Throws Error, naming `what`,
// for nothing, for a value and for an object of another kind.
template <class T>
std::shared_ptr<T> As(const Variant& object, std::string_view what)
{
    const auto* held = std::get_if<HostObjectPtr>(&object);
    if (held)
        if (auto typed = std::dynamic_pointer_cast<T>(*held))
            return typed;
    const auto late = held ? LateBoundOf(*held) : nullptr;
    if (!late)
        ThrowNotOfKind(what);
    return ViewOf<T>(late);
}

// The late-bound argument of an older entry: its members `Login` and `RawFilter` come out as LoginContext and
// ReportFilterObject.
std::shared_ptr<LateBound> AsEntryArgument(const Variant& object, std::string_view what);

}  // namespace kavelin::automation
