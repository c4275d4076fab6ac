#include "com/Module.h"

#include <atomic>

namespace kavelin::com {

namespace {

std::atomic<long> lngUses = 0;

HMODULE ModuleBy(DWORD flags)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(flags | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t*>(&lngUses), &module);
    return module;
}

}  // namespace

HINSTANCE ModuleInstance()
{
    static const HMODULE module = ModuleBy(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT);
    return module;
}

std::wstring ModulePath()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(ModuleInstance(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

void KeepLoaded()
{
    static const HMODULE kept = ModuleBy(GET_MODULE_HANDLE_EX_FLAG_PIN);
    static_cast<void>(kept);
}

void AddUse()
{
    ++lngUses;
}

void RemoveUse()
{
    --lngUses;
}

bool IsInUse()
{
    return lngUses > 0;
}

}  // namespace kavelin::com
