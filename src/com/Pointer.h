// A counted reference to an object of COM.
#pragma once

#include "com/Windows.h"

#include <utility>

namespace kavelin::com {

template <class T>
class Pointer {
  public:
    Pointer() = default;
    // Shares `object`, which keeps the reference that its giver has.
    explicit Pointer(T* object) : objHeld(object)
    {
        if (objHeld)
            objHeld->AddRef();
    }
    Pointer(const Pointer& other) : Pointer(other.objHeld) {}
    Pointer(Pointer&& other) noexcept : objHeld(std::exchange(other.objHeld, nullptr)) {}
    Pointer& operator=(Pointer other) noexcept
    {
        std::swap(objHeld, other.objHeld);
        return *this;
    }
    ~Pointer()
    {
        if (objHeld)
            objHeld->Release();
    }

    T* Get() const { return objHeld; }
    T* operator->() const { return objHeld; }
    explicit operator bool() const { return objHeld; }

    // Where a function puts the reference that it gives. Holds nothing before.
    T** Receive() { return &objHeld; }
    // Gives the reference away.
    T* Detach() { return std::exchange(objHeld, nullptr); }

  private:
    T* objHeld = nullptr;
};

}  // namespace kavelin::com
