// The apartment of a thread: what the library keeps there, and its end.
//
// The library's state is per thread and outlives every call, and the host's objects in it belong to the
// thread's apartment. They must not be touched once that is gone: their code may be unloaded, their proxies
// disconnected. So the state is given up at the last moment at which they can still be released, before the
// last CoUninitialize of the thread; a thread that ends without it leaves its references behind.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <unordered_map>

namespace kavelin {

class LateBound;

namespace com {

class ComObject;
class ForeignObject;

class Apartment {
  public:
    // The calling thread's; the first call gives the thread its platform. Throws Error if COM isn't
    // initialised on the thread.
    static std::shared_ptr<Apartment> Current();

    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() = default;

    bool IsOver() const { return blnOver; }

    using Place = std::list<ForeignObject*>::iterator;
    Place Enter(ForeignObject& object) { return lstForeign.insert(lstForeign.end(), &object); }
    void Leave(Place place) { lstForeign.erase(place); }

    // The objects by which the library's own are known outside, so that each has one identity. Null if it has
    // none yet.
    ComObject* OutsideOf(const LateBound& object) const;
    void SetOutside(const LateBound& object, ComObject* outside);  // null: it has gone

    // Forgets the thread's state and releases the host's objects.
    void End();
    // Forgets them without a call.
    void Abandon() { blnOver = true; }

  private:
    Apartment() = default;

    std::list<ForeignObject*> lstForeign;
    std::unordered_map<const LateBound*, ComObject*> dicOutside;
    bool blnOver = false;
};

}  // namespace com
}  // namespace kavelin
