// An object of the library as automation sees it.
#pragma once

#include "com/Apartment.h"
#include "com/Pointer.h"
#include "com/Windows.h"
#include "component/TypeLibrary.h"
#include "frame/host/HostObject.h"

#include <ocidl.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::com {

// A public class has the dispatch identifiers and the argument names of its table. Any other object has
// members whose identifiers are given out as names are asked for; their arguments have no names.
class ComObject : public IDispatch, public ISupportErrorInfo, public IProvideClassInfo {
  public:
    // A new object of a public class, or over any late-bound object if `automationClass` is null.
    static Pointer<IDispatch> Make(std::shared_ptr<LateBound> target, const AutomationClass* automationClass);
    // The one by which `target` is known outside.
    static Pointer<IDispatch> Outside(const std::shared_ptr<LateBound>& target);
    // The library's object behind `object`; null if it is not the library's.
    static std::shared_ptr<LateBound> TargetOf(IUnknown& object);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID lcid,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID lcid, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* details, UINT* argument) override;

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;

  private:
    ComObject(std::shared_ptr<LateBound> target, const AutomationClass* automationClass);
    virtual ~ComObject();

    // Null for an identifier that no member has.
    const Member* MemberOf(DISPID id) const;
    HRESULT InvokeMember(const Member& member, WORD flags, const DISPPARAMS& given, VARIANT* result);
    HRESULT InvokeOpen(const std::string& member, WORD flags, const DISPPARAMS& given, VARIANT* result);
    HRESULT InvokeGuarded(DISPID id, WORD flags, const DISPPARAMS& given, VARIANT* result);

    std::shared_ptr<Apartment> objApartment;
    std::shared_ptr<LateBound> objTarget;
    const AutomationClass* objClass;
    IID objInterfaceId = {};            // of the class's interface
    std::string strSource;              // what errors are reported as coming from
    std::vector<std::string> arrNames;  // of an object without a class, in the order of their identifiers
    std::atomic<ULONG> lngReferences = 1;
};

}  // namespace kavelin::com
