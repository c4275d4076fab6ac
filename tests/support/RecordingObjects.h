// Late-bound objects that write down what is asked of them, and the names under which objects stand in lines.
#pragma once

#include "support/EventLog.h"

#include "frame/host/HostObject.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::test {

// An object of a recording host that can stand in a line.
class NamedObject {
  public:
    virtual ~NamedObject() = default;
    virtual std::string ShownName() const = 0;
};

// As a line shows it: texts in quotes, "connection #1", "nothing", an object's name.
std::string Shown(const Variant& value);

// What a member does beyond writing its line, by "Corvane.clsUniVch.Init": it may change the arguments, or
// throw.
using CallActions = std::map<std::string, std::function<void(std::vector<Variant>& arguments)>>;

// An object of the suite. Writes, for one that was made as Tessel.clsPub:
//   Tessel.clsPub.InitPubs2('IA', nothing, 3)
//   Tessel.clsPub.oLogin = Login
class RecordingObject : public LateBound, public NamedObject {
  public:
    RecordingObject(std::shared_ptr<EventLog> events, std::string name, const CallActions& actions)
        : objEvents(std::move(events)), strName(std::move(name)), dicActions(actions)
    {
    }

    std::string ShownName() const override { return strName; }
    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override;

  private:
    std::shared_ptr<EventLog> objEvents;
    std::string strName;
    CallActions dicActions;
};

}  // namespace kavelin::test
