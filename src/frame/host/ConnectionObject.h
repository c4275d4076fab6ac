// A connection on its way through a late-bound call.
#pragma once

#include "frame/Connection.h"
#include "frame/host/HostObject.h"

#include <memory>
#include <utility>

namespace kavelin {

class ConnectionObject : public virtual HostObject {
  public:
    explicit ConnectionObject(std::shared_ptr<kavelin::Connection> connection)
        : cnnHeld(std::move(connection))
    {
    }

    const std::shared_ptr<kavelin::Connection>& Connection() const { return cnnHeld; }

  private:
    std::shared_ptr<kavelin::Connection> cnnHeld;
};

}  // namespace kavelin
