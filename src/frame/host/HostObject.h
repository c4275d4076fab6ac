// What all objects of the host have in common, and the late-bound object.
#pragma once

#include "frame/Value.h"

#include <memory>
#include <string_view>
#include <variant>
#include <vector>

namespace kavelin {

// Base of everything that the host owns and the library keeps by reference.
class HostObject {
  public:
    virtual ~HostObject() = default;
};
using HostObjectPtr = std::shared_ptr<HostObject>;

// What a late-bound member gives or takes: a value or an object (null for none).
using Variant = std::variant<Value, HostObjectPtr>;

// An object whose members are found by name at run time, without regard to case. A name that the object
// doesn't have throws Error.
class LateBound : public virtual HostObject {
  public:
    virtual Variant Get(std::string_view member) = 0;
    virtual void Put(std::string_view member, const Variant& value) = 0;
    virtual Variant Call(std::string_view member, const std::vector<Variant>& arguments) = 0;

    // Call of a member that may put something else in the place of an argument: the caller finds it in
    // `arguments`, also after an error. By default no member does.
    virtual Variant CallByReference(std::string_view member, std::vector<Variant>& arguments)
    {
        return Call(member, arguments);
    }
};

// The object in a late-bound answer as `T`. Throws Error, naming `what`, if it holds none of that kind.
template <class T>
std::shared_ptr<T> ObjectOf(const Variant& answer, std::string_view what);

// The value in a late-bound answer. Throws Error, naming `what`, if it holds an object.
const Value& ValueOf(const Variant& answer, std::string_view what);

[[noreturn]] void ThrowNotOfKind(std::string_view what);

template <class T>
std::shared_ptr<T> ObjectOf(const Variant& answer, std::string_view what)
{
    const auto* object = std::get_if<HostObjectPtr>(&answer);
    auto typed = object ? std::dynamic_pointer_cast<T>(*object) : nullptr;
    if (!typed)
        ThrowNotOfKind(what);
    return typed;
}

}  // namespace kavelin
