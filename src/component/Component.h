// The public classes by the names under which a host creates them: `Kavelin.<class name>`.
//
// An object made here is late-bound: its members are called by name. A C++ host may as well use the class
// itself from its room.
#pragma once

#include "frame/host/HostObject.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace kavelin {

enum class MemberKind { Property, Method };

// What an argument, a property or a result holds, as a client of the class declares it.
enum class Kind { Nothing, Text, Boolean, Byte, Int16, Int32, Any, Object };

struct Parameter {
    std::string_view name;
    Kind kind;
    bool byReference = false;
    bool optional = false;  // left out it is empty: "", 0, False
};

struct Member {
    std::string_view name;
    MemberKind kind;
    Kind type = Kind::Nothing;                   // of the property; of the method's result
    std::span<const Parameter> parameters = {};  // of a method; indexes of a property

    std::size_t Arguments() const { return parameters.size(); }
};

struct PublicClass {
    std::string_view name;            // without "Kavelin."
    std::span<const Member> members;  // in the order of the public interface
    std::shared_ptr<LateBound> (*create)();
};

// All public classes.
std::span<const PublicClass> PublicClasses();

// A new object of the class, named without regard to case. Throws Error if there is no such class.
std::shared_ptr<LateBound> CreateObject(std::string_view progId);

// The goods-in-transit template, which no public class leads to: a late-bound object with the method
// CreateNewTemplate(filter, table), which works on gcnnAccount.
std::shared_ptr<LateBound> CreateGoodsTemplate();

}  // namespace kavelin
