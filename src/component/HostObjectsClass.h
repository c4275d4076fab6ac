// The class by which a host that cannot register the objects of its suite hands in makers for them.
#pragma once

#include "component/Component.h"

namespace kavelin {

// `HostObjects`, with Provide(name, maker) and Withdraw(name). `maker` is an object whose default member
// makes a new object of that name; it serves the thread on which it was handed in, until it is withdrawn.
const PublicClass& HostObjectsClass();

}  // namespace kavelin
