// An object of the host's, whose members are C functions.
#pragma once

#include "frame/host/HostObject.h"

#include "kavelin.h"

#include <string_view>
#include <vector>

namespace kavelin::capi {

// Errors of a member are thrown as what the host told with kavelin_fail, of the kind that its status names.
class HostedObject : public LateBound {
  public:
    // `members` must live as long. `self` is given back when this object ends.
    HostedObject(const kavelin_members& members, void* self) : objMembers(&members), objSelf(self) {}
    ~HostedObject() override;
    HostedObject(const HostedObject&) = delete;
    HostedObject& operator=(const HostedObject&) = delete;

    const kavelin_members* Members() const { return objMembers; }
    void* Self() const { return objSelf; }

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override;

  private:
    const kavelin_members* objMembers;
    void* objSelf;
};

}  // namespace kavelin::capi
