#include "support/RecordingObjects.h"

#include "support/RecordingConnection.h"

#include "frame/Errors.h"
#include "frame/host/ConnectionObject.h"

namespace kavelin::test {

namespace {

std::string ShownValue(const Value& value)
{
    if (value.IsEmpty())
        return "empty";
    if (value.IsNull())
        return "null";
    return value.IsText() ? "'" + ToText(value) + "'" : ToText(value);
}

}  // namespace

std::string Shown(const Variant& value)
{
    if (const auto* plain = std::get_if<Value>(&value))
        return ShownValue(*plain);
    const HostObject* object = std::get<HostObjectPtr>(value).get();
    if (!object)
        return "nothing";
    if (const auto* held = dynamic_cast<const ConnectionObject*>(object)) {
        const auto* connection = dynamic_cast<const RecordingConnection*>(held->Connection().get());
        return connection ? "connection #" + std::to_string(connection->Number()) : "another connection";
    }
    const auto* named = dynamic_cast<const NamedObject*>(object);
    return named ? named->ShownName() : "another object";
}

Variant RecordingObject::Get(std::string_view member)
{
    throw Error(strName + "." + std::string(member) + " can't be read.");
}

void RecordingObject::Put(std::string_view member, const Variant& value)
{
    objEvents->Add(strName + "." + std::string(member) + " = " + Shown(value));
}

Variant RecordingObject::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    std::vector<Variant> copies = arguments;
    return CallByReference(member, copies);
}

Variant RecordingObject::CallByReference(std::string_view member, std::vector<Variant>& arguments)
{
    const std::string called = strName + "." + std::string(member);
    std::string list;
    for (const Variant& argument : arguments)
        list += (list.empty() ? "" : ", ") + Shown(argument);
    objEvents->Add(called + "(" + list + ")");
    const auto action = dicActions.find(called);
    if (action != dicActions.end())
        action->second(arguments);
    return Value();
}

}  // namespace kavelin::test
