// An object of the host, behind automation.
#pragma once

#include "com/Apartment.h"
#include "com/Windows.h"
#include "frame/host/HostObject.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct IDispatchEx;

namespace kavelin::com {

// Names are resolved once; "" is the default member, "[DISPID=7]" the member of that dispatch identifier.
// Everything throws ForeignError for what the object reports, and Error once the thread's apartment has gone.
class ForeignObject : public LateBound {
  public:
    explicit ForeignObject(IDispatch* object);
    ~ForeignObject() override;
    ForeignObject(const ForeignObject&) = delete;
    ForeignObject& operator=(const ForeignObject&) = delete;

    // The object itself; null once it was dropped.
    IDispatch* Object() const { return objForeign; }

    Variant Get(std::string_view member) override;
    // An object is put by reference where the member takes it so, else as a value.
    void Put(std::string_view member, const Variant& value) override;
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override;
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override;

    // Releases the object.
    void Drop();

  private:
    // Throws Error once the object was dropped.
    void RequireLiving() const;
    DISPID IdOf(std::string_view member);
    HRESULT Resolve(std::wstring name, DISPID& id) const;
    HRESULT Invoke(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result, EXCEPINFO& details) const;
    Variant Read(std::string_view member, VARIANT* arguments, std::size_t count);

    std::shared_ptr<Apartment> objApartment;
    Apartment::Place objPlace;
    IDispatch* objForeign;
    IDispatchEx* objExtended = nullptr;  // objects of script engines answer to this one only
    std::map<std::string, DISPID, std::less<>> dicIds;
};

}  // namespace kavelin::com
