// Members of a C++ object, called by name.
#pragma once

#include "automation/Views.h"
#include "frame/host/HostObject.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin {

// What a late-bound name leads to. A property has `get` and `put`, a method `call`, or `callByReference` if it
// puts something else in the place of an argument.
struct Dispatch {
    std::string_view name = {};
    std::function<Variant()> get = {};
    std::function<void(const Variant&)> put = {};
    std::function<Variant(const std::vector<Variant>&)> call = {};
    std::function<Variant(std::vector<Variant>&)> callByReference = {};
    std::size_t arguments = 0;
    std::size_t optional = 0;  // of the arguments, that many at the end may be left out
};

// A late-bound object over the members of `object`, which it keeps alive.
std::shared_ptr<LateBound> MakeLateBound(std::shared_ptr<void> object, std::vector<Dispatch> members);

Dispatch TextProperty(std::string_view name, std::string& field);
Dispatch ObjectProperty(std::string_view name, HostObjectPtr& field);
Dispatch TextProperty(std::string_view name, std::function<std::string()> get,
                      std::function<void(const std::string&)> put);

// A property with an index: called with the index it is read, with the index and a value it is written.
Dispatch IndexedProperty(std::string_view name, std::function<Value(std::uint8_t index)> get,
                         std::function<void(std::uint8_t index, const Value& value)> put);

Dispatch Method(std::string_view name, std::size_t arguments,
                std::function<Variant(const std::vector<Variant>&)> call);

Dispatch MethodByReference(std::string_view name, std::size_t arguments,
                           std::function<Variant(std::vector<Variant>&)> call);

// A method with one argument of the interface `T`, without a result. The host may pass an object of it or a
// late-bound one.
template <class T, class Call>
Dispatch MethodOn(std::string_view name, Call call)
{
    return Method(name, 1, [name, call](const std::vector<Variant>& arguments) -> Variant {
        call(*automation::As<T>(arguments[0], name));
        return Value();
    });
}

// The same for an entry whose argument is late-bound.
template <class Call>
Dispatch LateMethod(std::string_view name, Call call)
{
    return Method(name, 1, [name, call](const std::vector<Variant>& arguments) -> Variant {
        call(*automation::AsEntryArgument(arguments[0], name));
        return Value();
    });
}

}  // namespace kavelin
