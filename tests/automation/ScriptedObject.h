// A late-bound object that answers what a test tells it and writes down what it is asked.
#pragma once

#include "frame/Text.h"
#include "frame/host/HostObject.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

// Lines: "get Year", "put Login = Tom", "call Item('cNo', 2)"; an object stands as its name, nothing as "nothing".
class ScriptedObject : public LateBound {
  public:
    using Lines = std::vector<std::string>;

    explicit ScriptedObject(std::string name = "object",
                            std::shared_ptr<Lines> shared = std::make_shared<Lines>())
        : strName(std::move(name)), lstLines(std::move(shared))
    {
    }

    // The answer of a property or a method; empty for one that isn't here.
    std::map<std::string, Variant, LessNoCase> answers;
    // Members that fail, with their text.
    std::map<std::string, std::string, LessNoCase> failures;
    // What a member does to its arguments, before it answers or fails.
    std::map<std::string, std::function<void(std::vector<Variant>&)>, LessNoCase> actions;

    const std::string& Name() const { return strName; }
    Lines TakeLines();

    Variant Get(std::string_view member) override;
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override;

  private:
    Variant Answer(std::string_view member) const;

    std::string strName;
    std::shared_ptr<Lines> lstLines;
};

// One that gives these answers.
std::shared_ptr<ScriptedObject> Scripted(const std::string& name,
                                         std::map<std::string, Variant, LessNoCase> answers = {});

}  // namespace kavelin::test
