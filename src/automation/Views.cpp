#include "automation/Views.h"

#include "automation/Border.h"
#include "automation/Connections.h"
#include "automation/HostView.h"
#include "frame/Text.h"
#include "frame/host/ConnectionObject.h"

namespace kavelin::automation {

namespace {

class ObjectView : public LateView<LateBound> {
  public:
    using LateView::LateView;
};

class EntryArgumentView : public LateView<LateBound> {
  public:
    using LateView::LateView;

    Variant Get(std::string_view member) override
    {
        if (EqualsNoCase(member, "Login"))
            return HostObjectPtr(As<LoginContext>(Object()->Get(member), Named(member)));
        if (EqualsNoCase(member, "RawFilter"))
            return HostObjectPtr(As<ReportFilterObject>(Object()->Get(member), Named(member)));
        return LateView::Get(member);
    }
};

}  // namespace

HostObjectPtr Unwrapped(HostObjectPtr object)
{
    if (const auto view = std::dynamic_pointer_cast<HostView>(object))
        return view->Object();
    if (const auto held = std::dynamic_pointer_cast<ConnectionObject>(object))
        if (const HostObjectPtr connection = AdoObjectOf(*held->Connection()))
            return connection;
    return object;
}

std::shared_ptr<LateBound> LateBoundOf(const HostObjectPtr& object)
{
    return std::dynamic_pointer_cast<LateBound>(Unwrapped(object));
}

template <>
std::shared_ptr<LateBound> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<ObjectView>(std::move(object), "object");
}

std::shared_ptr<LateBound> AsEntryArgument(const Variant& object, std::string_view what)
{
    return std::make_shared<EntryArgumentView>(LateBoundOf(As<LateBound>(object, what)), "e");
}

}  // namespace kavelin::automation
