#include "automation/Border.h"

#include "automation/Connections.h"
#include "automation/Views.h"
#include "frame/host/ConnectionObject.h"

namespace kavelin::automation {

namespace {

HostObjectPtr ObjectIn(const Variant& value)
{
    const auto* object = std::get_if<HostObjectPtr>(&value);
    return object ? *object : nullptr;
}

// What stands in the place of `argument`, which went out as `sent`, now that the host left `given` there.
Variant TakenBack(const Variant& argument, const Variant& sent, const Variant& given)
{
    const HostObjectPtr object = ObjectIn(given);
    if (!object)
        return given;
    if (object == ObjectIn(sent))
        return argument;
    const HostObjectPtr before = ObjectIn(argument);
    if (const auto connection = std::dynamic_pointer_cast<ConnectionObject>(before))
        return HostObjectPtr(ConnectionLike(*connection, object));
    if (std::dynamic_pointer_cast<LoginContext>(before))
        return HostObjectPtr(As<LoginContext>(given, "Login"));
    return given;
}

}  // namespace

Variant Outgoing(const Variant& value)
{
    const auto* object = std::get_if<HostObjectPtr>(&value);
    return object ? Variant(Unwrapped(*object)) : value;
}

std::vector<Variant> Outgoing(const std::vector<Variant>& values)
{
    std::vector<Variant> out;
    for (const Variant& value : values)
        out.push_back(Outgoing(value));
    return out;
}

bool IsNothing(const Variant& answer)
{
    if (const auto* value = std::get_if<Value>(&answer))
        return value->IsEmpty() || value->IsNull();
    return !std::get<HostObjectPtr>(answer);
}

Variant CallAcross(LateBound& object, std::string_view member, std::vector<Variant>& arguments)
{
    const std::vector<Variant> sent = Outgoing(arguments);
    std::vector<Variant> given = sent;
    const auto takeBack = [&] {
        for (std::size_t i = 0; i < arguments.size(); ++i)
            arguments[i] = TakenBack(arguments[i], sent[i], given.at(i));
    };
    Variant answer;
    try {
        answer = object.CallByReference(member, given);
    } catch (...) {
        takeBack();
        throw;
    }
    takeBack();
    return answer;
}

}  // namespace kavelin::automation
