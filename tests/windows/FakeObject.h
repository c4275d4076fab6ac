// An object of a host, as any automation server might write it.
#pragma once

#include "com/Pointer.h"
#include "com/Variants.h"
#include "com/Windows.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::test {

struct FakeCall {
    WORD flags;
    DISPPARAMS* parameters;
    VARIANT* result;
    EXCEPINFO* details;

    UINT Count() const { return parameters->cArgs; }
    // In the order of the call.
    VARIANT& Argument(UINT place) const { return parameters->rgvarg[parameters->cArgs - 1 - place]; }
};

using FakeMember = std::function<HRESULT(const FakeCall& call)>;

// Outlives the objects that report to it.
struct FakeLife {
    int alive = 0;
    int calls = 0;            // of AddRef, Release, Invoke ... while `forbidden`
    bool forbidden = false;   // nobody may touch the objects any more
    std::string events = {};  // names of the members as they are called
};

class FakeObject : public IDispatch {
  public:
    explicit FakeObject(FakeLife& life) : objLife(life) { ++objLife.alive; }

    // Their dispatch identifiers are 1, 2 ...; "" is the default member.
    FakeObject& With(const std::string& name, FakeMember member)
    {
        arrNames.push_back(name);
        arrMembers.push_back(std::move(member));
        return *this;
    }
    FakeObject& WithValue(const std::string& name, const Variant& value);
    FakeObject& WithObject(const std::string& name, IDispatch* object);
    FakeObject& WithFailure(const std::string& name, HRESULT code, const wchar_t* description,
                            const wchar_t* source);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* details, UINT*) override;

    int Resolved() const { return lngResolved; }
    ULONG References() const { return lngReferences; }

  private:
    virtual ~FakeObject() { --objLife.alive; }
    void Touch() const { objLife.calls += objLife.forbidden ? 1 : 0; }

    FakeLife& objLife;
    std::vector<std::string> arrNames;
    std::vector<FakeMember> arrMembers;
    int lngResolved = 0;
    ULONG lngReferences = 1;
};

com::Pointer<FakeObject> MakeFake(FakeLife& life);

// The answer of an object that has the member only as a method or a property that is read.
FakeMember Gives(Variant value);

}  // namespace kavelin::test
