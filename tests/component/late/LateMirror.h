// The objects of a recording host as a host has them whose objects are called by name only. Each call goes on
// to the recording object, which writes its line.
#pragma once

#include "support/RecordingObjects.h"

#include "frame/Text.h"
#include "frame/host/HostObject.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

struct MirroredMember {
    std::function<Variant()> get = {};
    std::function<void(const Variant&)> put = {};
    std::function<Variant(std::vector<Variant>&)> call = {};
};
using MirroredMembers = std::map<std::string, MirroredMember, LessNoCase>;

// A name that stands in no table is an error, so that a member called by a wrong name fails.
class LateMirror : public LateBound, public NamedObject {
  public:
    LateMirror(HostObjectPtr recording, std::string name, MirroredMembers members)
        : objRecording(std::move(recording)), strName(std::move(name)), dicMembers(std::move(members))
    {
    }

    const HostObjectPtr& Recording() const { return objRecording; }
    std::string ShownName() const override;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override;

  private:
    template <class Kind>
    const Kind& Find(std::string_view member, Kind MirroredMember::*kind) const;

    HostObjectPtr objRecording;
    std::string strName;
    MirroredMembers dicMembers;
};

// The mirror of a recording object, nothing for nothing. Values and objects without members stay as they are.
HostObjectPtr Mirrored(const HostObjectPtr& recording);
Variant Mirrored(const Variant& value);

// The recording object behind a mirror; anything else as it is. Fails the running test for an object that is
// no mirror: what goes out to a host must be the host's own.
Variant Recorded(const Variant& value);

// Rows that are not open yet.
std::shared_ptr<LateBound> MirroredRecordset();

}  // namespace kavelin::test
