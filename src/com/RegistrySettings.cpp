#include "com/RegistrySettings.h"

#include "com/Failure.h"
#include "com/Utf16.h"
#include "com/Windows.h"

namespace kavelin::com {

namespace {

std::wstring KeyOf(const std::string& application, const std::string& section)
{
    return L"Software\\VB and VBA Program Settings\\" + Wide(application) + L"\\" + Wide(section);
}

}  // namespace

std::string RegistrySettings::Read(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& byDefault)
{
    const std::wstring path = KeyOf(application, section);
    const std::wstring name = Wide(key);
    std::wstring text;
    DWORD bytes = 0;
    LSTATUS code = ERROR_MORE_DATA;
    // Another program may write a longer text between the two questions.
    while (code == ERROR_MORE_DATA) {
        code = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr,
                            &bytes);
        if (code != ERROR_SUCCESS)
            return byDefault;
        text.resize(bytes / sizeof(wchar_t) + 1);
        bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        code = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr,
                            text.data(), &bytes);
    }
    if (code != ERROR_SUCCESS)
        return byDefault;
    text.resize(bytes / sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0')
        text.pop_back();
    return Narrow(text);
}

void RegistrySettings::Write(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value)
{
    const std::wstring text = Wide(value);
    const LSTATUS code =
        RegSetKeyValueW(HKEY_CURRENT_USER, KeyOf(application, section).c_str(), Wide(key).c_str(), REG_SZ,
                        text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    if (code != ERROR_SUCCESS)
        throw Error("The setting " + key + " can't be written: " + MessageOf(HRESULT_FROM_WIN32(code)));
}

}  // namespace kavelin::com
