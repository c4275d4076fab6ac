#include "component/late/LateMirror.h"

#include "component/late/MirroredInterfaces.h"
#include "frame/Errors.h"
#include "support/RecordingArguments.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

// An object of the recording host that is called by name already.
class LateForwarder : public LateMirror {
  public:
    LateForwarder(std::shared_ptr<LateBound> recording, std::string name)
        : LateMirror(recording, std::move(name), {}), objLate(std::move(recording))
    {
    }

    Variant Get(std::string_view member) override { return Mirrored(objLate->Get(member)); }
    void Put(std::string_view member, const Variant& value) override
    {
        objLate->Put(member, Recorded(value));
    }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        std::vector<Variant> copies = arguments;
        return CallByReference(member, copies);
    }
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override
    {
        std::vector<Variant> recorded;
        for (const Variant& argument : arguments)
            recorded.push_back(Recorded(argument));
        const std::vector<Variant> before = recorded;
        const auto takeBack = [&] {
            for (std::size_t i = 0; i < arguments.size(); ++i)
                if (recorded[i] != before[i])
                    arguments[i] = Mirrored(recorded[i]);
        };
        try {
            const Variant answer = objLate->CallByReference(member, recorded);
            takeBack();
            return Mirrored(answer);
        } catch (...) {
            takeBack();
            throw;
        }
    }

  private:
    std::shared_ptr<LateBound> objLate;
};

}  // namespace

std::string LateMirror::ShownName() const
{
    const auto* named = dynamic_cast<const NamedObject*>(objRecording.get());
    return named ? named->ShownName() : strName;
}

template <class Kind>
const Kind& LateMirror::Find(std::string_view member, Kind MirroredMember::*kind) const
{
    const auto found = dicMembers.find(member);
    if (found == dicMembers.end() || !(found->second.*kind))
        throw Error(strName + " has no member " + std::string(member) + " of that kind.");
    return found->second.*kind;
}

Variant LateMirror::Get(std::string_view member)
{
    return Find(member, &MirroredMember::get)();
}

void LateMirror::Put(std::string_view member, const Variant& value)
{
    Find(member, &MirroredMember::put)(value);
}

Variant LateMirror::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    std::vector<Variant> copies = arguments;
    return CallByReference(member, copies);
}

Variant LateMirror::CallByReference(std::string_view member, std::vector<Variant>& arguments)
{
    return Find(member, &MirroredMember::call)(arguments);
}

HostObjectPtr Mirrored(const HostObjectPtr& recording)
{
    if (!recording || std::dynamic_pointer_cast<LateMirror>(recording))
        return recording;
    if (auto mirror = MirrorOfInterface(recording))
        return mirror;
    if (auto late = std::dynamic_pointer_cast<LateBound>(recording))
        return std::make_shared<LateForwarder>(late, "object");
    return recording;
}

Variant Mirrored(const Variant& value)
{
    const auto* object = std::get_if<HostObjectPtr>(&value);
    return object ? Variant(Mirrored(*object)) : value;
}

Variant Recorded(const Variant& value)
{
    const auto* object = std::get_if<HostObjectPtr>(&value);
    if (!object || !*object || std::dynamic_pointer_cast<PlainObject>(*object))
        return value;
    const auto mirror = std::dynamic_pointer_cast<LateMirror>(*object);
    EXPECT_TRUE(mirror) << "an object went out that isn't the host's own";
    return mirror ? Variant(mirror->Recording()) : value;
}

}  // namespace kavelin::test
