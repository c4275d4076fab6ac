#include "com/Failure.h"

#include "com/Pointer.h"
#include "com/Utf16.h"

#include <cstdio>
#include <exception>
#include <new>

namespace kavelin::com {

namespace {

constexpr HRESULT kErrorInCommand = static_cast<HRESULT>(0x80040E14);
constexpr HRESULT kCancelled = static_cast<HRESULT>(0x80040E4E);
constexpr HRESULT kTypeMismatch = static_cast<HRESULT>(0x800A000D);
constexpr HRESULT kOverflow = static_cast<HRESULT>(0x800A0006);

std::string Taken(BSTR& text)
{
    const std::string taken = text ? Narrow({text, SysStringLen(text)}) : "";
    SysFreeString(text);
    text = nullptr;
    return taken;
}

Failure FailureOf(const std::exception& error, HRESULT code, std::string_view source)
{
    return {code, Wide(error.what()), Wide(source)};
}

}  // namespace

std::string MessageOf(HRESULT code)
{
    wchar_t* text = nullptr;
    constexpr DWORD kFlags =
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    DWORD length = FormatMessageW(kFlags, nullptr, static_cast<DWORD>(code), 0,
                                  reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    while (length && (text[length - 1] == L'\r' || text[length - 1] == L'\n' || text[length - 1] == L' '))
        --length;
    std::string message = length ? Narrow({text, length}) : "";
    LocalFree(text);
    if (message.empty()) {
        char number[24];
        std::snprintf(number, sizeof number, "error 0x%08lX", static_cast<unsigned long>(code));
        message = number;
    }
    return message;
}

void ThrowForeign(std::string_view member, HRESULT code, EXCEPINFO& details)
{
    if (code == DISP_E_EXCEPTION && details.pfnDeferredFillIn)
        details.pfnDeferredFillIn(&details);
    const std::string source = Taken(details.bstrSource);
    std::string message = Taken(details.bstrDescription);
    Taken(details.bstrHelpFile);
    if (code == DISP_E_EXCEPTION)
        code = details.scode ? details.scode : details.wCode ? 0x800A0000L | details.wCode : E_FAIL;
    if (message.empty())
        message = std::string(member) + ": " + MessageOf(code);
    throw ForeignError(message, code, source);
}

Failure CurrentFailure(std::string_view source) noexcept
{
    try {
        try {
            throw;
        } catch (const ForeignError& error) {
            return {error.Code(), Wide(error.what()), Wide(error.Source().empty() ? source : error.Source())};
        } catch (const ConnectionError& error) {
            return FailureOf(error, E_FAIL, source);
        } catch (const CancelledError& error) {
            return FailureOf(error, kCancelled, source);
        } catch (const DatabaseError& error) {
            return FailureOf(error, kErrorInCommand, source);
        } catch (const ConversionError& error) {
            return FailureOf(error, kTypeMismatch, source);
        } catch (const OverflowError& error) {
            return FailureOf(error, kOverflow, source);
        } catch (const std::bad_alloc& error) {
            return FailureOf(error, E_OUTOFMEMORY, source);
        } catch (const std::exception& error) {
            return FailureOf(error, E_FAIL, source);
        } catch (...) {
            return {E_FAIL, {}, Wide(source)};
        }
    } catch (...) {
        // Not even the text could be copied.
        return {E_OUTOFMEMORY, {}, {}};
    }
}

void Report(const Failure& failure, REFIID interfaceId, EXCEPINFO* details) noexcept
{
    Pointer<ICreateErrorInfo> created;
    if (SUCCEEDED(CreateErrorInfo(created.Receive()))) {
        created->SetGUID(interfaceId);
        created->SetDescription(const_cast<wchar_t*>(failure.description.c_str()));
        created->SetSource(const_cast<wchar_t*>(failure.source.c_str()));
        Pointer<IErrorInfo> info;
        if (SUCCEEDED(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(info.Receive()))))
            SetErrorInfo(0, info.Get());
    }
    if (!details)
        return;
    *details = EXCEPINFO{};
    details->scode = failure.code;
    details->bstrDescription = SysAllocString(failure.description.c_str());
    details->bstrSource = SysAllocString(failure.source.c_str());
}

}  // namespace kavelin::com
