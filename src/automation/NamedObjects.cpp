#include "automation/NamedObjects.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <map>
#include <utility>

namespace kavelin::automation {

namespace {

using Provided = std::map<std::string, std::function<std::shared_ptr<LateBound>()>, LessNoCase>;

Provided& OfThisThread()
{
    thread_local Provided provided;
    return provided;
}

}  // namespace

void Provide(std::string_view name, std::function<std::shared_ptr<LateBound>()> make)
{
    OfThisThread().insert_or_assign(std::string(name), std::move(make));
}

void Withdraw(std::string_view name)
{
    OfThisThread().erase(std::string(name));
}

void WithdrawAll()
{
    OfThisThread().clear();
}

std::shared_ptr<LateBound> MakeObject(std::string_view name, const ObjectMaker& fallback)
{
    if (auto made = TryMakeObject(name, fallback))
        return made;
    throw Error("The host provides no " + std::string(name) + ".");
}

std::shared_ptr<LateBound> TryMakeObject(std::string_view name, const ObjectMaker& fallback)
{
    const auto found = OfThisThread().find(name);
    if (found != OfThisThread().end()) {
        const auto make = found->second;  // a copy: it may withdraw itself
        return make();
    }
    return fallback ? fallback(std::string(name)) : nullptr;
}

}  // namespace kavelin::automation
