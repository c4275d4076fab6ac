#include "automation/ScriptedObject.h"

#include "frame/Errors.h"

#include <utility>

namespace kavelin::test {

namespace {

std::string Shown(const Variant& value)
{
    if (const auto* plain = std::get_if<Value>(&value)) {
        if (plain->IsEmpty())
            return "empty";
        if (plain->IsNull())
            return "null";
        return plain->IsText() ? "'" + ToText(*plain) + "'" : ToText(*plain);
    }
    const auto& object = std::get<HostObjectPtr>(value);
    if (!object)
        return "nothing";
    const auto* scripted = dynamic_cast<const ScriptedObject*>(object.get());
    return scripted ? scripted->Name() : "an object that isn't the host's";
}

}  // namespace

ScriptedObject::Lines ScriptedObject::TakeLines()
{
    return std::exchange(*lstLines, {});
}

Variant ScriptedObject::Answer(std::string_view member) const
{
    if (const auto failure = failures.find(member); failure != failures.end())
        throw Error(failure->second);
    const auto found = answers.find(member);
    return found == answers.end() ? Variant() : found->second;
}

Variant ScriptedObject::Get(std::string_view member)
{
    lstLines->push_back("get " + std::string(member));
    return Answer(member);
}

void ScriptedObject::Put(std::string_view member, const Variant& value)
{
    lstLines->push_back("put " + std::string(member) + " = " + Shown(value));
    Answer(member);
}

Variant ScriptedObject::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    std::vector<Variant> copies = arguments;
    return CallByReference(member, copies);
}

Variant ScriptedObject::CallByReference(std::string_view member, std::vector<Variant>& arguments)
{
    std::string list;
    for (const Variant& argument : arguments)
        list += (list.empty() ? "" : ", ") + Shown(argument);
    lstLines->push_back("call " + std::string(member) + "(" + list + ")");
    if (const auto action = actions.find(member); action != actions.end())
        action->second(arguments);
    return Answer(member);
}

std::shared_ptr<ScriptedObject> Scripted(const std::string& name,
                                         std::map<std::string, Variant, LessNoCase> answers)
{
    auto object = std::make_shared<ScriptedObject>(name);
    object->answers = std::move(answers);
    return object;
}

}  // namespace kavelin::test
