// What the C interface keeps for each thread: handles, what the host has handed in, the latest error.
#pragma once

#include "capi/LastError.h"
#include "frame/Text.h"
#include "frame/host/HostObject.h"

#include "kavelin.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>

namespace kavelin::capi {

class ThreadState {
  public:
    struct Held {
        HostObjectPtr object;
        std::string source;  // the name under which it was created; empty for all others
        std::size_t owners;
    };

    struct MessageTaker {
        kavelin_message taker = nullptr;
        void* context = nullptr;
    };

    ThreadState();
    ~ThreadState();
    ThreadState(const ThreadState&) = delete;
    ThreadState& operator=(const ThreadState&) = delete;

    // A handle for the object with one owner more; the same for the same object. A connection gets members by
    // name.
    kavelin_object Share(const HostObjectPtr& object, const std::string& source = {});

    // These three throw BadCall for a handle that is none, and for one of another thread.
    Held Find(kavelin_object handle) const;
    void Retain(kavelin_object handle);
    void Release(kavelin_object handle);  // the object may end before it returns

    // Gives back everything. Throws BadCall while a member of an object runs.
    void End();

    LastError error;
    MessageTaker messages;
    std::set<std::string, LessNoCase> provided;  // names of objects that the host makes

    // While it lives the thread is at work in the library.
    class Work {
      public:
        explicit Work(ThreadState& thread) : objThread(thread) { ++objThread.lngDepth; }
        ~Work() { --objThread.lngDepth; }
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

      private:
        ThreadState& objThread;
    };

  private:
    using Handles = std::unordered_map<kavelin_object, Held>;
    Handles::const_iterator Locate(kavelin_object handle) const;
    void GiveBackAll();

    std::uint64_t lngThread;    // the upper bits of this thread's handles
    std::uint64_t lngLast = 0;  // the lower bits of the latest one
    Handles dicHandles;
    std::unordered_map<const void*, kavelin_object> dicKnown;  // by the address of the whole object
    int lngDepth = 0;
};

// The calling thread's. Throws BadCall once the thread's own objects have ended.
ThreadState& CurrentThread();

// For destructors: a handle that is refused stays.
void ReleaseQuiet(kavelin_object handle) noexcept;

}  // namespace kavelin::capi
