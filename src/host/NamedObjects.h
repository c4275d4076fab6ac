// Plain late-bound objects of the host: a bag of members, and named arguments.
#pragma once

#include "frame/Text.h"
#include "frame/host/HostObject.h"
#include "frame/host/ReportFilterObject.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::host {

// Members as they were put in; Put makes new ones.
class LateBag : public LateBound {
  public:
    LateBag() = default;
    LateBag(std::initializer_list<std::pair<const std::string, Variant>> members) : dicMembers(members) {}

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::map<std::string, Variant, LessNoCase> dicMembers;
};

// Also reachable by name: `Count`, `Item(key or position)`, `Add(value, key)`. Adding under a key that is
// there replaces its value and keeps its position.
class HostNamedValues : public NamedValues, public LateBound {
  public:
    std::int32_t Count() override;
    Variant Item(std::string_view key) override;
    Variant Item(std::int32_t position) override;
    void Add(const Variant& value, std::string_view key) override;

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;

  private:
    std::vector<std::pair<std::string, Variant>> lstEntries;
};

}  // namespace kavelin::host
