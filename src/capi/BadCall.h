// A call over the border that is wrong by itself, whatever the library would have done.
#pragma once

#include "kavelin.h"

#include <stdexcept>
#include <string>

namespace kavelin::capi {

class BadCall : public std::runtime_error {
  public:
    BadCall(kavelin_status status, const std::string& text) : std::runtime_error(text), lngStatus(status) {}

    kavelin_status Status() const { return lngStatus; }

  private:
    kavelin_status lngStatus;
};

class BadArgument : public BadCall {
  public:
    explicit BadArgument(const std::string& text) : BadCall(KAVELIN_BAD_ARGUMENT, text) {}
};

}  // namespace kavelin::capi
