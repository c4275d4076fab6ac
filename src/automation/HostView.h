// An object of the host, called late-bound, in the hands of the library.
#pragma once

#include "automation/Views.h"
#include "frame/host/HostObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::automation {

// The base of all views. Members of the object are reached through the protected functions, which hand out the
// host's own objects and name the member where an answer is of the wrong kind.
class HostView : public virtual HostObject {
  public:
    // `name` is what errors call the object.
    HostView(std::shared_ptr<LateBound> object, std::string_view name)
        : objHost(std::move(object)), strName(name)
    {
    }

    const std::shared_ptr<LateBound>& Object() const { return objHost; }

  protected:
    Value ReadValue(std::string_view member) const;
    std::string ReadText(std::string_view member) const;
    std::int32_t ReadNumber(std::string_view member) const;
    bool ReadBoolean(std::string_view member) const;
    template <class T>
    std::shared_ptr<T> ReadObject(std::string_view member) const
    {
        return As<T>(objHost->Get(member), Named(member));
    }

    void Write(std::string_view member, const Variant& value) const;

    Variant Call(std::string_view member, const std::vector<Variant>& arguments) const;
    Value CallForValue(std::string_view member, const std::vector<Variant>& arguments) const;
    std::string CallForText(std::string_view member, const std::vector<Variant>& arguments) const;

    // "Login.Year".
    std::string Named(std::string_view member) const;

  private:
    std::shared_ptr<LateBound> objHost;
    std::string strName;
};

// A view's own object, for handing it on: the late-bound object behind a view, the ADO object behind a
// connection. Any other object is given back as it is.
HostObjectPtr Unwrapped(HostObjectPtr object);

}  // namespace kavelin::automation
