#include "host/NamedObjects.h"

#include "frame/Errors.h"
#include "frame/Value.h"

#include <algorithm>

namespace kavelin::host {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view member)
{
    throw Error("The object has no member " + std::string(member) + ".");
}

}  // namespace

Variant LateBag::Get(std::string_view member)
{
    const auto found = dicMembers.find(member);
    if (found == dicMembers.end())
        ThrowNoMember(member);
    return found->second;
}

void LateBag::Put(std::string_view member, const Variant& value)
{
    dicMembers.insert_or_assign(std::string(member), value);
}

Variant LateBag::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    if (!arguments.empty())
        ThrowNoMember(member);
    return Get(member);
}

std::int32_t HostNamedValues::Count()
{
    return static_cast<std::int32_t>(lstEntries.size());
}

Variant HostNamedValues::Item(std::string_view key)
{
    const auto found =
        std::ranges::find_if(lstEntries, [&](const auto& entry) { return EqualsNoCase(entry.first, key); });
    return found == lstEntries.end() ? Variant() : found->second;
}

Variant HostNamedValues::Item(std::int32_t position)
{
    if (position < 1 || position > Count())
        throw Error("There is no argument " + std::to_string(position) + " among " + std::to_string(Count()) +
                    ".");
    return lstEntries[static_cast<std::size_t>(position - 1)].second;
}

void HostNamedValues::Add(const Variant& value, std::string_view key)
{
    const auto found =
        std::ranges::find_if(lstEntries, [&](const auto& entry) { return EqualsNoCase(entry.first, key); });
    if (found == lstEntries.end())
        lstEntries.emplace_back(key, value);
    else
        found->second = value;
}

Variant HostNamedValues::Get(std::string_view member)
{
    return Call(member, {});
}

void HostNamedValues::Put(std::string_view member, const Variant&)
{
    ThrowNoMember(member);
}

Variant HostNamedValues::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    if (EqualsNoCase(member, "Count") && arguments.empty())
        return Value(Count());
    if (EqualsNoCase(member, "Item") && arguments.size() == 1) {
        const Value& which = ValueOf(arguments[0], "Item");
        return which.IsText() ? Item(std::string_view(*which.As<std::string>())) : Item(ToInt32(which));
    }
    if (EqualsNoCase(member, "Add") && arguments.size() == 2) {
        Add(arguments[0], ToText(ValueOf(arguments[1], "Add")));
        return {};
    }
    ThrowNoMember(member);
}

}  // namespace kavelin::host
