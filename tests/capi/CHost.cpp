#include "capi/CHost.h"

#include <functional>
#include <memory>

namespace kavelin::test {

namespace {

Scripted& Of(void* self)
{
    return *static_cast<Scripted*>(self);
}

// Finds and calls a member, unless it is the one that is to fail.
template <class Members, class... Arguments>
kavelin_status CallFound(const Members& members, const char* member, Arguments... arguments)
{
    if (++Calls().count == Calls().failing)
        return kavelin_fail("planned failure");
    const auto found = members.find(member);
    return found == members.end() ? KAVELIN_NO_MEMBER : found->second(arguments...);
}

kavelin_status GetMember(void* self, const char* member, kavelin_value* result)
{
    return CallFound(Of(self).get, member, result);
}

kavelin_status PutMember(void* self, const char* member, const kavelin_value* value)
{
    return CallFound(Of(self).put, member, std::cref(*value));
}

kavelin_status CallMember(void* self, const char* member, kavelin_value* arguments, size_t count,
                          kavelin_value* result)
{
    return CallFound(Of(self).call, member, arguments, count, result);
}

void ReleaseObject(void* self)
{
    const std::unique_ptr<Scripted> ended(&Of(self));
    if (ended->released)
        ended->released();
}

}  // namespace

const kavelin_members kScriptedMembers = {GetMember, PutMember, CallMember, ReleaseObject};

MemberCalls& Calls()
{
    thread_local MemberCalls calls;
    return calls;
}

Scripted::Get Gives(const kavelin_value& value)
{
    return [value](kavelin_value* result) {
        *result = value;
        return KAVELIN_OK;
    };
}

Scripted::Get GivesText(const char* text)
{
    return Gives(kavelin_of_text(text));
}

Scripted::Put Takes()
{
    return [](const kavelin_value&) { return KAVELIN_OK; };
}

Scripted Record(const std::map<std::string, kavelin_value>& members)
{
    Scripted object;
    for (const auto& [name, value] : members)
        object.get[name] = Gives(value);
    return object;
}

Scripted Echo()
{
    Scripted object;
    object.call["Echo"] = [](kavelin_value* arguments, size_t, kavelin_value* result) {
        *result = arguments[0];
        return KAVELIN_OK;
    };
    return object;
}

kavelin_object NewObject(Scripted object)
{
    kavelin_object handle = 0;
    auto self = std::make_unique<Scripted>(std::move(object));
    EXPECT_EQ(kavelin_host_object(&kScriptedMembers, self.release(), &handle), KAVELIN_OK);
    return handle;
}

kavelin_object CApi::Create(const char* name)
{
    kavelin_object handle = 0;
    EXPECT_EQ(kavelin_create(name, &handle), KAVELIN_OK) << Error().text;
    return handle;
}

std::string Told(kavelin_status status)
{
    const kavelin_error& error = *kavelin_last_error();
    if (status == KAVELIN_OK)
        return "0";
    EXPECT_EQ(error.status, status);
    return std::to_string(status) + " " + error.source + ": " + error.text;
}

}  // namespace kavelin::test
