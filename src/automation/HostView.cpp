#include "automation/HostView.h"

#include "automation/Border.h"
#include "automation/Views.h"

namespace kavelin::automation {

std::string HostView::Named(std::string_view member) const
{
    return strName + "." + std::string(member);
}

Value HostView::ReadValue(std::string_view member) const
{
    return ValueOf(objHost->Get(member), Named(member));
}

std::string HostView::ReadText(std::string_view member) const
{
    return ToText(ReadValue(member));
}

std::int32_t HostView::ReadNumber(std::string_view member) const
{
    return ToInt32(ReadValue(member));
}

bool HostView::ReadBoolean(std::string_view member) const
{
    return ToBoolean(ReadValue(member));
}

void HostView::Write(std::string_view member, const Variant& value) const
{
    objHost->Put(member, Outgoing(value));
}

Variant HostView::Call(std::string_view member, const std::vector<Variant>& arguments) const
{
    return objHost->Call(member, Outgoing(arguments));
}

Value HostView::CallForValue(std::string_view member, const std::vector<Variant>& arguments) const
{
    return ValueOf(Call(member, arguments), Named(member));
}

std::string HostView::CallForText(std::string_view member, const std::vector<Variant>& arguments) const
{
    return ToText(CallForValue(member, arguments));
}

}  // namespace kavelin::automation
