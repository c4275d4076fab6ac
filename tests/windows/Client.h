// The component as a client reaches it.
#pragma once

#include "com/Pointer.h"
#include "com/Variants.h"
#include "com/Windows.h"

#include <string>
#include <vector>

namespace kavelin::test {

// A new object of "Kavelin.<name>". Throws Error where the component isn't registered.
com::Pointer<IDispatch> Create(const std::string& name);

// An exported function of the component, which is loaded.
template <class Function>
Function ComponentEntry(const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"Kavelin.dll"), name)));
}

// Zero names are unknown to the object: -1.
DISPID IdOf(IDispatch& object, const wchar_t* name);

struct Answer {
    HRESULT code = S_OK;
    Variant result = {};
    VARTYPE type = VT_EMPTY;  // of the result
    UINT argument = 99;       // that is told to be wrong
    HRESULT error = S_OK;     // of the exception
    std::string description = {};
    std::string source = {};
};

// A variant that refers to `variable`.
VARIANT ReferenceTo(VARIANT& variable);
VARIANT Missing();

// `arguments` in the order of the call; the last `names` of them are given by these identifiers.
Answer Invoke(IDispatch& object, const wchar_t* member, WORD flags, std::vector<VARIANT> arguments,
              std::vector<DISPID> names = {});
Answer Call(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments = {});
Answer Put(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments,
           WORD flags = DISPATCH_PROPERTYPUT);
Answer Get(IDispatch& object, const wchar_t* member, const std::vector<Variant>& arguments = {});

// The object as a value of a call.
Variant ObjectArgument(IDispatch* object);

}  // namespace kavelin::test
