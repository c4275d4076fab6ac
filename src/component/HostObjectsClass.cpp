#include "component/HostObjectsClass.h"

#include "automation/NamedObjects.h"
#include "component/Dispatch.h"

#include <string>
#include <utility>
#include <vector>

namespace kavelin {

namespace {

constexpr Parameter kProvide[] = {{"name", Kind::Text}, {"maker", Kind::Object}};
constexpr Parameter kWithdraw[] = {{"name", Kind::Text}};
constexpr Member kMembers[] = {
    {"Provide", MemberKind::Method, Kind::Nothing, kProvide},
    {"Withdraw", MemberKind::Method, Kind::Nothing, kWithdraw},
};

Variant Provide(const std::vector<Variant>& arguments)
{
    const std::string name = ToText(ValueOf(arguments[0], "name"));
    const auto maker = ObjectOf<LateBound>(arguments[1], "maker");
    automation::Provide(name, [name, maker] { return ObjectOf<LateBound>(maker->Call("", {}), name); });
    return Value();
}

Variant Withdraw(const std::vector<Variant>& arguments)
{
    automation::Withdraw(ToText(ValueOf(arguments[0], "name")));
    return Value();
}

std::shared_ptr<LateBound> CreateHostObjects()
{
    return MakeLateBound(nullptr, {Method("Provide", 2, Provide), Method("Withdraw", 1, Withdraw)});
}

constexpr PublicClass kHostObjects = {"HostObjects", kMembers, CreateHostObjects};

}  // namespace

const PublicClass& HostObjectsClass()
{
    return kHostObjects;
}

}  // namespace kavelin
