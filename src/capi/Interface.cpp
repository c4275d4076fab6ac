// The functions of kavelin.h.
#include "kavelin.h"

#include "automation/NamedObjects.h"
#include "capi/BadCall.h"
#include "capi/EmbeddingPlatform.h"
#include "capi/HostedObject.h"
#include "capi/LateConnection.h"
#include "capi/ThreadState.h"
#include "capi/Values.h"
#include "component/Component.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "frame/Text.h"
#include "host/HostConnection.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace kavelin;
using namespace kavelin::capi;

namespace {

constexpr std::string_view kConnectionClass = "Kavelin.Connection";

constexpr kavelin_error kEndedThread = {
    KAVELIN_WRONG_THREAD, 0, "The thread has ended.", "Kavelin", "", "", 0, 0};

// Runs the body of a function of the interface, so that no exception crosses the border. The body fills in
// `source` once it is known whose member runs.
template <class Body>
kavelin_status Guarded(Body body) noexcept
{
    std::string source;
    try {
        const ThreadState::Work work(CurrentThread());
        body(source);
        return KAVELIN_OK;
    } catch (...) {
        try {
            return CurrentThread().error.SetCurrentException(source);
        } catch (...) {
            return KAVELIN_WRONG_THREAD;  // its own state has ended, also that for the error
        }
    }
}

template <class T>
T& Required(T* pointer, const char* what)
{
    if (!pointer)
        throw BadArgument(std::string(what) + " is a null pointer.");
    return *pointer;
}

std::shared_ptr<LateBound> MembersOf(kavelin_object handle, std::string& source)
{
    const ThreadState::Held held = CurrentThread().Find(handle);
    source = held.source;
    auto members = std::dynamic_pointer_cast<LateBound>(held.object);
    if (!members)
        throw Error("The object has no members that are called by name.");
    return members;
}

void UseHost()
{
    if (!ModPub().gobjPlatform)
        UsePlatform(std::make_shared<EmbeddingPlatform>());
}

std::shared_ptr<LateBound> NewObject(std::string_view name)
{
    UseHost();
    if (EqualsNoCase(name, kConnectionClass))
        return std::make_shared<LateConnection>(CurrentPlatform().CreateConnection());
    return CreateObject(name);
}

// "Kavelin.ClsWtInfo", however the host has written it.
std::string SourceName(std::string_view name)
{
    for (const PublicClass& known : PublicClasses()) {
        const std::string spelled = "Kavelin." + std::string(known.name);
        if (EqualsNoCase(name, spelled))
            return spelled;
    }
    return std::string(kConnectionClass);
}

std::shared_ptr<LateBound> MakeByHost(kavelin_maker maker, void* context, const std::string& name)
{
    ThreadState& thread = CurrentThread();
    const std::uint64_t before = thread.error.Count();
    kavelin_object handle = 0;
    const kavelin_status status = maker(context, name.c_str(), &handle);
    if (status != KAVELIN_OK)
        thread.error.Throw(status, thread.error.Count() != before, name);
    if (handle == 0)
        throw Error("The host made no " + name + ".");
    std::string source;
    auto made = MembersOf(handle, source);
    thread.Release(handle);
    return made;
}

// Arguments that a member has exchanged, back in the place where the host looks for them.
void GiveBackExchanged(const std::vector<Variant>& before, const std::vector<Variant>& after,
                       kavelin_value* arguments)
{
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i])
            continue;
        const kavelin_value exchanged = OwnedValue(after[i]);
        Clear(arguments[i]);
        arguments[i] = exchanged;
    }
}

Variant CallMember(LateBound& object, const char* member, kavelin_value* arguments, std::size_t count)
{
    std::vector<Variant> before;
    for (std::size_t i = 0; i < count; ++i)
        before.push_back(ToVariant(arguments[i]));
    std::vector<Variant> after = before;
    try {
        Variant answer = object.CallByReference(member, after);
        GiveBackExchanged(before, after, arguments);
        return answer;
    } catch (...) {
        GiveBackExchanged(before, after, arguments);
        throw;
    }
}

}  // namespace

const char* kavelin_version(void)
{
    return KAVELIN_VERSION;
}

const kavelin_error* kavelin_last_error(void)
{
    try {
        return &CurrentThread().error.Get();
    } catch (...) {
        return &kEndedThread;
    }
}

kavelin_status kavelin_fail(const char* text)
{
    const kavelin_error error = {KAVELIN_FAILED, 0, text, nullptr, nullptr, nullptr, 0, 0};
    return kavelin_fail_with(&error);
}

kavelin_status kavelin_fail_with(const kavelin_error* error)
{
    kavelin_status told = KAVELIN_FAILED;
    const kavelin_status status = Guarded([&](std::string&) {
        kavelin_error kept = Required(error, "The error");
        if (kept.status == KAVELIN_OK)
            kept.status = KAVELIN_FAILED;
        kept.source = "Kavelin";
        CurrentThread().error.Set(kept);
        told = kept.status;
    });
    return status == KAVELIN_OK ? told : status;
}

void kavelin_clear(kavelin_value* value)
{
    if (value)
        Clear(*value);
}

kavelin_status kavelin_copy(const kavelin_value* value, kavelin_value* copy)
{
    return Guarded([&](std::string&) {
        kavelin_value& place = Required(copy, "The copy");
        place = OwnedValue(ToVariant(Required(value, "The value")));
    });
}

kavelin_status kavelin_to_text(const kavelin_value* value, kavelin_value* text)
{
    return Guarded([&](std::string&) {
        kavelin_value& place = Required(text, "The text");
        const Variant content = ToVariant(Required(value, "The value"));
        if (!std::holds_alternative<Value>(content))
            throw ConversionError("An object is no text.");
        place = OwnedValue(Value(ToText(std::get<Value>(content))));
    });
}

kavelin_status kavelin_create(const char* name, kavelin_object* object)
{
    return Guarded([&](std::string&) {
        const std::string_view wanted = RequiredText(name, "The name");
        kavelin_object& handle = Required(object, "The place for the object");
        handle = CurrentThread().Share(NewObject(wanted), SourceName(wanted));
    });
}

kavelin_status kavelin_get(kavelin_object object, const char* member, kavelin_value* result)
{
    return Guarded([&](std::string& source) {
        RequiredText(member, "The member");
        kavelin_value& answer = Required(result, "The result");
        answer = OwnedValue(MembersOf(object, source)->Get(member));
    });
}

kavelin_status kavelin_put(kavelin_object object, const char* member, const kavelin_value* value)
{
    return Guarded([&](std::string& source) {
        RequiredText(member, "The member");
        const Variant content = ToVariant(Required(value, "The value"));
        MembersOf(object, source)->Put(member, content);
    });
}

kavelin_status kavelin_call(kavelin_object object, const char* member, kavelin_value* arguments, size_t count,
                            kavelin_value* result)
{
    return Guarded([&](std::string& source) {
        RequiredText(member, "The member");
        if (count > 0)
            Required(arguments, "The arguments");
        const Variant answer = CallMember(*MembersOf(object, source), member, arguments, count);
        if (result)
            *result = OwnedValue(answer);
    });
}

kavelin_status kavelin_retain(kavelin_object object)
{
    return Guarded([&](std::string&) { CurrentThread().Retain(object); });
}

kavelin_status kavelin_release(kavelin_object object)
{
    return Guarded([&](std::string&) {
        if (object != 0)
            CurrentThread().Release(object);
    });
}

kavelin_status kavelin_host_object(const kavelin_members* members, void* self, kavelin_object* object)
{
    return Guarded([&](std::string&) {
        Required(members, "The table of members");
        kavelin_object& handle = Required(object, "The place for the object");
        handle = CurrentThread().Share(std::make_shared<HostedObject>(*members, self));
    });
}

kavelin_status kavelin_self(kavelin_object object, const kavelin_members* members, void** self)
{
    return Guarded([&](std::string&) {
        void*& found = Required(self, "The place for the object's self");
        const auto hosted = std::dynamic_pointer_cast<HostedObject>(CurrentThread().Find(object).object);
        if (!hosted || hosted->Members() != members)
            throw BadArgument("The object was not made with these members.");
        found = hosted->Self();
    });
}

kavelin_status kavelin_provide(const char* name, kavelin_maker maker, void* context)
{
    return Guarded([&](std::string&) {
        const std::string provided(RequiredText(name, "The name"));
        if (!maker)
            throw BadArgument("The maker is a null pointer.");
        automation::Provide(provided, [=] { return MakeByHost(maker, context, provided); });
        CurrentThread().provided.insert(provided);
    });
}

kavelin_status kavelin_withdraw(const char* name)
{
    return Guarded([&](std::string&) {
        const std::string provided(RequiredText(name, "The name"));
        automation::Withdraw(provided);
        CurrentThread().provided.erase(provided);
    });
}

kavelin_status kavelin_on_message(kavelin_message taker, void* context)
{
    return Guarded([&](std::string&) { CurrentThread().messages = {taker, context}; });
}

kavelin_status kavelin_end_thread(void)
{
    return Guarded([&](std::string&) { CurrentThread().End(); });
}
