// Errors on their way through automation.
#pragma once

#include "com/Windows.h"
#include "frame/Errors.h"

#include <string>
#include <string_view>

namespace kavelin::com {

// A failure that an object of the host reports. Its code and source travel on to the caller of the library.
class ForeignError : public Error {
  public:
    ForeignError(const std::string& message, HRESULT code, std::string source)
        : Error(message), lngCode(code), strSource(std::move(source))
    {
    }

    HRESULT Code() const { return lngCode; }
    const std::string& Source() const { return strSource; }

  private:
    HRESULT lngCode;
    std::string strSource;
};

// What the system says of a code: "Member not found.", or "error 0x80020003".
std::string MessageOf(HRESULT code);

// The library's error for a call of `member` that gave `code`, which is a failure. `details` are cleared.
[[noreturn]] void ThrowForeign(std::string_view member, HRESULT code, EXCEPINFO& details);

struct Failure {
    HRESULT code = E_FAIL;
    std::wstring description;
    std::wstring source;
};

// The exception that is being handled; `source` is the name of the class that was called. Never throws.
//
//   what a host's object reported    its own code and source
//   connection                       E_FAIL, as the provider has it
//   statement                        0x80040E14 (an error in a command), 0x80040E4E for a stopped one
//   value of the wrong kind          0x800A000D (13, type mismatch)
//   number out of range              0x800A0006 (6, overflow)
//   anything else                    E_FAIL
Failure CurrentFailure(std::string_view source) noexcept;

// Puts the failure where callers look: `details` if they gave it, and the error object of the thread.
void Report(const Failure& failure, REFIID interfaceId, EXCEPINFO* details) noexcept;

// Runs `action` at the border: what it gives, or a code for what it throws.
template <class Action>
HRESULT Guarded(Action action) noexcept
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace kavelin::com
