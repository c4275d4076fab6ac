// Makes objects of one public class.
#pragma once

#include "com/Windows.h"
#include "component/TypeLibrary.h"

#include <unknwn.h>

#include <atomic>

namespace kavelin::com {

class ClassFactory : public IClassFactory {
  public:
    explicit ClassFactory(const AutomationClass& automationClass);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // Refuses to be part of another object.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

  private:
    virtual ~ClassFactory();

    const AutomationClass& objClass;
    std::atomic<ULONG> lngReferences = 1;
};

}  // namespace kavelin::com
