#include "capi/ThreadState.h"

#include "automation/NamedObjects.h"
#include "capi/BadCall.h"
#include "capi/LateConnection.h"
#include "frame/ModPub.h"
#include "frame/host/ConnectionObject.h"

#include <atomic>
#include <utility>

namespace kavelin::capi {

namespace {

// A handle is the number of its thread and a count within the thread. Neither is used twice, so that an old
// handle never leads to a new object, and no thread needs to look into the table of another.
constexpr int kCountBits = 40;

std::atomic<std::uint64_t> intThreads = 0;  // that there have been

thread_local bool blnEnded = false;  // outlives the state, since it has no destructor

const void* WholeObject(const HostObjectPtr& object)
{
    return dynamic_cast<const void*>(object.get());
}

HostObjectPtr WithMembers(const HostObjectPtr& object)
{
    const auto connection = std::dynamic_pointer_cast<ConnectionObject>(object);
    if (!connection || std::dynamic_pointer_cast<LateBound>(object))
        return object;
    return std::make_shared<LateConnection>(connection->Connection());
}

}  // namespace

ThreadState::ThreadState() : lngThread(++intThreads)
{
    // Made before this object, so that they are still there when it ends.
    ModPub();
    automation::WithdrawAll();
}

ThreadState::~ThreadState()
{
    GiveBackAll();
    blnEnded = true;
}

kavelin_object ThreadState::Share(const HostObjectPtr& object, const std::string& source)
{
    const auto known = dicKnown.find(WholeObject(object));
    if (known != dicKnown.end()) {
        ++dicHandles.at(known->second).owners;
        return known->second;
    }
    const HostObjectPtr held = WithMembers(object);
    const kavelin_object handle = (lngThread << kCountBits) | ++lngLast;
    dicHandles.emplace(handle, Held{held, source, 1});
    dicKnown.emplace(WholeObject(held), handle);
    return handle;
}

ThreadState::Handles::const_iterator ThreadState::Locate(kavelin_object handle) const
{
    const std::uint64_t thread = handle >> kCountBits;
    if (handle == 0)
        throw BadCall(KAVELIN_BAD_OBJECT, "No object was handed in.");
    if (thread != 0 && thread != lngThread && thread <= intThreads)
        throw BadCall(KAVELIN_WRONG_THREAD, "The object belongs to another thread.");
    const auto found = dicHandles.find(handle);
    if (found == dicHandles.end())
        throw BadCall(KAVELIN_BAD_OBJECT, "The object was given back already, or never was one.");
    return found;
}

ThreadState::Held ThreadState::Find(kavelin_object handle) const
{
    return Locate(handle)->second;
}

void ThreadState::Retain(kavelin_object handle)
{
    Locate(handle);
    ++dicHandles.at(handle).owners;
}

void ThreadState::Release(kavelin_object handle)
{
    Locate(handle);
    Held& held = dicHandles.at(handle);
    if (--held.owners > 0)
        return;
    const HostObjectPtr last = std::move(held.object);  // ends when the tables are in order again
    dicKnown.erase(WholeObject(last));
    dicHandles.erase(handle);
}

void ThreadState::End()
{
    if (lngDepth > 1)  // more than this very call
        throw BadCall(KAVELIN_BUSY, "The thread cannot end while a member of an object runs.");
    GiveBackAll();
}

void ThreadState::GiveBackAll()
{
    UsePlatform(nullptr);
    automation::WithdrawAll();
    provided.clear();
    messages = {};
    // An object of the host's may give back others as it ends.
    while (!dicHandles.empty()) {
        const Handles ending = std::exchange(dicHandles, {});
        dicKnown.clear();
    }
}

ThreadState& CurrentThread()
{
    if (blnEnded)
        throw BadCall(KAVELIN_WRONG_THREAD, "The thread has ended.");
    thread_local ThreadState state;
    return state;
}

void ReleaseQuiet(kavelin_object handle) noexcept
{
    try {
        CurrentThread().Release(handle);
    } catch (const BadCall&) {
        // Of another thread, or gone with everything else of this one.
    }
}

}  // namespace kavelin::capi
