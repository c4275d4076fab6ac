// Mirrors of objects by their interface: one table of members each.
#pragma once

#include "component/late/LateMirror.h"

#include <memory>

namespace kavelin::test {

// Null for an object of no interface of frame/host.
std::shared_ptr<LateMirror> MirrorOfInterface(const HostObjectPtr& recording);

// Likewise, of connections only, and of the host of forms only.
std::shared_ptr<LateMirror> MirrorOfConnection(const HostObjectPtr& recording);
std::shared_ptr<LateMirror> MirrorOfForms(const HostObjectPtr& recording);

}  // namespace kavelin::test
