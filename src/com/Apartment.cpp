#include "com/Apartment.h"

#include "automation/NamedObjects.h"
#include "com/Failure.h"
#include "com/ForeignObject.h"
#include "com/Module.h"
#include "com/Windows.h"
#include "com/WindowsPlatform.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"

#include <atomic>

namespace kavelin::com {

namespace {

// A slot of the system's rather than a thread_local: it is read while the thread ends, when the order in
// which those go is not to be relied on.
DWORD Slot()
{
    static const DWORD slot = TlsAlloc();
    return slot;
}

std::shared_ptr<Apartment>* Held()
{
    return static_cast<std::shared_ptr<Apartment>*>(TlsGetValue(Slot()));
}

// Forgets the thread's apartment.
void Drop()
{
    delete Held();
    TlsSetValue(Slot(), nullptr);
}

// Hears of the end of the apartment. Belongs to a thread, and goes with it.
class Spy : public IInitializeSpy {
  public:
    virtual ~Spy() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (id != IID_IUnknown && id != IID_IInitializeSpy) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IInitializeSpy*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++lngReferences; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --lngReferences;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE PreInitialize(DWORD, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE PostInitialize(HRESULT given, DWORD, DWORD) override { return given; }
    HRESULT STDMETHODCALLTYPE PreUninitialize(DWORD references) override
    {
        if (references > 1 || !Held())
            return S_OK;
        return Guarded([] {
            const std::shared_ptr<Apartment> ending = *Held();
            ending->End();
            Drop();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE PostUninitialize(DWORD references) override
    {
        if (references == 0)
            CoRevokeInitializeSpy(objCookie);
        return S_OK;
    }

    ULARGE_INTEGER objCookie = {};

  private:
    std::atomic<ULONG> lngReferences = 1;
};

bool IsInitialised()
{
    APTTYPE type = {};
    APTTYPEQUALIFIER qualifier = {};
    return SUCCEEDED(CoGetApartmentType(&type, &qualifier));
}

void Watch()
{
    Spy* spy = new Spy;
    const HRESULT watched = CoRegisterInitializeSpy(spy, &spy->objCookie);
    spy->Release();  // the system has its own reference
    if (FAILED(watched))
        throw Error("The end of the thread can't be watched: " + MessageOf(watched));
}

}  // namespace

std::shared_ptr<Apartment> Apartment::Current()
{
    if (Held())
        return *Held();
    if (!IsInitialised())
        throw Error("COM is not initialised on this thread.");
    Watch();
    KeepLoaded();
    const std::shared_ptr<Apartment> made(new Apartment);
    TlsSetValue(Slot(), new std::shared_ptr<Apartment>(made));
    UsePlatform(std::make_shared<WindowsPlatform>());
    return made;
}

ComObject* Apartment::OutsideOf(const LateBound& object) const
{
    const auto found = dicOutside.find(&object);
    return found == dicOutside.end() ? nullptr : found->second;
}

void Apartment::SetOutside(const LateBound& object, ComObject* outside)
{
    if (outside)
        dicOutside[&object] = outside;
    else
        dicOutside.erase(&object);
}

void Apartment::End()
{
    UsePlatform(nullptr);
    automation::WithdrawAll();
    // Releasing one may take others with it.
    while (!lstForeign.empty())
        lstForeign.front()->Drop();
    blnOver = true;
}

namespace {

// Called by the loader before the destructors of what is thread_local.
void NTAPI OnDetach(void*, DWORD reason, void*)
{
    if ((reason != DLL_THREAD_DETACH && reason != DLL_PROCESS_DETACH) || !Held())
        return;
    (*Held())->Abandon();
    Drop();
}

}  // namespace

}  // namespace kavelin::com

// The loader calls what stands between .CRT$XLA and .CRT$XLZ, in the order of the names; the compiler's own
// entries, which run destructors, come behind B.
extern "C" {
extern const PIMAGE_TLS_CALLBACK kavelin_on_detach;
__attribute__((section(".CRT$XLB"), used)) const PIMAGE_TLS_CALLBACK kavelin_on_detach =
    kavelin::com::OnDetach;
}
