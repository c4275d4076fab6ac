// A recording host of which the library sees late-bound objects only, made by name or handed in.
#pragma once

#include "component/late/LateMirror.h"
#include "support/RecordingHost.h"

namespace kavelin::test {

class MirroredHost : public RecordingHost {
  public:
    // Becomes the platform of the calling thread.
    MirroredHost();

    // What GETSQL and GetSqlForOld are called with.
    Variant CallArgument() { return Mirrored(Variant(HostObjectPtr(EarlyArgument()))); }
    Variant OldCallArgument() { return Mirrored(Variant(HostObjectPtr(LateArgument()))); }
};

}  // namespace kavelin::test
