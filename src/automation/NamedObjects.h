// Objects outside the library, made by name.
#pragma once

#include "frame/host/HostObject.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin::automation {

// The object of that name; null if it knows none. A failure to make one that it knows throws Error.
using ObjectMaker = std::function<std::shared_ptr<LateBound>(const std::string& name)>;

// From now on objects of that name, without regard to case, are made by `make` on this thread, before anything
// else is asked for them.
void Provide(std::string_view name, std::function<std::shared_ptr<LateBound>()> make);
// Nothing happens for a name that isn't provided.
void Withdraw(std::string_view name);
void WithdrawAll();

// What the thread's host provides under that name, else what `fallback` makes. Throws Error if there is none.
std::shared_ptr<LateBound> MakeObject(std::string_view name, const ObjectMaker& fallback);
// The same, but null if there is none.
std::shared_ptr<LateBound> TryMakeObject(std::string_view name, const ObjectMaker& fallback);

}  // namespace kavelin::automation
