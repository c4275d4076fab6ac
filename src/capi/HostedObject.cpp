#include "capi/HostedObject.h"

#include "capi/BadCall.h"
#include "capi/ThreadState.h"
#include "capi/Values.h"
#include "frame/Errors.h"

#include <cstddef>
#include <string>
#include <utility>

namespace kavelin::capi {

namespace {

std::string NameOf(std::string_view member)
{
    return member.empty() ? "its default member" : std::string(member);
}

[[noreturn]] void ThrowNoMember(std::string_view member)
{
    throw Error("The host's object has no " +
                (member.empty() ? "default member." : "member " + std::string(member) + "."));
}

// Runs a member. What it tells of a failure is thrown once `give` has taken what it gave.
template <class Run, class Give>
void RunMember(std::string_view member, Run run, Give give)
{
    LastError& error = CurrentThread().error;
    const std::uint64_t before = error.Count();
    const kavelin_status status = run();
    const bool told = error.Count() != before;
    try {
        give();
    } catch (const BadCall& e) {
        if (status == KAVELIN_OK)
            throw Error("What the host gave at " + NameOf(member) + " is no value: " + e.what());
    }
    if (status == KAVELIN_NO_MEMBER && !told)
        ThrowNoMember(member);
    if (status != KAVELIN_OK)
        error.Throw(status, told, NameOf(member));
}

// Arguments as the host finds them, and what it puts in their place and gives. What nobody takes is given
// back.
struct GivenValues {
    explicit GivenValues(const std::vector<LentValue>& lent)
    {
        for (const LentValue& value : lent)
            values.push_back(value.Get());
    }
    ~GivenValues()
    {
        for (kavelin_value& value : values)
            Clear(value);
        Clear(result);
    }
    GivenValues(const GivenValues&) = delete;
    GivenValues& operator=(const GivenValues&) = delete;

    std::vector<kavelin_value> values;
    kavelin_value result = kavelin_empty();
};

}  // namespace

HostedObject::~HostedObject()
{
    if (objMembers->release)
        objMembers->release(objSelf);
}

Variant HostedObject::Get(std::string_view member)
{
    if (!objMembers->get)
        ThrowNoMember(member);
    const std::string name(member);
    kavelin_value result = kavelin_empty();
    Variant answer;
    RunMember(
        member, [&] { return objMembers->get(objSelf, name.c_str(), &result); },
        [&] { answer = TakeVariant(result); });
    return answer;
}

void HostedObject::Put(std::string_view member, const Variant& value)
{
    if (!objMembers->put)
        ThrowNoMember(member);
    const std::string name(member);
    const LentValue lent(value);
    RunMember(
        member, [&] { return objMembers->put(objSelf, name.c_str(), &lent.Get()); }, [] {});
}

Variant HostedObject::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    std::vector<Variant> dropped = arguments;
    return CallByReference(member, dropped);
}

Variant HostedObject::CallByReference(std::string_view member, std::vector<Variant>& arguments)
{
    if (!objMembers->call)
        ThrowNoMember(member);
    const std::string name(member);
    const std::vector<LentValue> lent(arguments.begin(), arguments.end());
    GivenValues given(lent);
    Variant answer;
    RunMember(
        member,
        [&] {
            return objMembers->call(objSelf, name.c_str(), given.values.data(), given.values.size(),
                                    &given.result);
        },
        [&] {
            // One may be given in the place of another and as the result, so all are taken before any is
            // exchanged.
            answer = TakeVariant(given.result);
            std::vector<Variant> exchanged = arguments;
            for (std::size_t i = 0; i < lent.size(); ++i)
                if (!lent[i].IsUnchanged(given.values[i]))
                    exchanged[i] = TakeVariant(given.values[i]);
            arguments = std::move(exchanged);
        });
    return answer;
}

}  // namespace kavelin::capi
