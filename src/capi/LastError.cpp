#include "capi/LastError.h"

#include "capi/BadCall.h"
#include "capi/Values.h"
#include "frame/Errors.h"

#include <exception>
#include <new>

namespace kavelin::capi {

namespace {

constexpr const char* kNoSource = "Kavelin";

kavelin_error Plain(kavelin_status status, const char* text, const char* source)
{
    return {status, 0, text, source, "", "", 0, 0};
}

kavelin_error OfDatabase(kavelin_status status, const DatabaseError& error, const char* source)
{
    const DatabaseError::Details& details = error.Get();
    return {status,
            details.lngNumber,
            error.what(),
            source,
            details.strSqlState.c_str(),
            details.strStatement.c_str(),
            details.lngLine,
            details.lngColumn};
}

std::string Kept(const char* text)
{
    return text && IsUtf8(text) ? text : "";
}

DatabaseError::Details DetailsOf(const kavelin_error& error)
{
    DatabaseError::Details details;
    details.strMessage = error.text;
    details.strSqlState = error.sqlstate;
    details.lngNumber = error.native_number;
    details.strStatement = error.statement;
    details.lngLine = error.line;
    details.lngColumn = error.column;
    return details;
}

}  // namespace

LastError::LastError() : strSource(kNoSource), objView(Plain(KAVELIN_OK, "", ""))
{
    objView.text = strText.c_str();
    objView.source = strSource.c_str();
    objView.sqlstate = strSqlState.c_str();
    objView.statement = strStatement.c_str();
}

void LastError::Set(const kavelin_error& error)
{
    std::string text = Kept(error.text);  // copied first: they may be our own
    std::string source = Kept(error.source);
    std::string sqlState = Kept(error.sqlstate);
    std::string statement = Kept(error.statement);
    strText.swap(text);
    strSource.swap(source);
    strSqlState.swap(sqlState);
    strStatement.swap(statement);
    objView = {error.status,        error.native_number,  strText.c_str(), strSource.c_str(),
               strSqlState.c_str(), strStatement.c_str(), error.line,      error.column};
    ++lngCount;
}

kavelin_status LastError::SetCurrentException(const std::string& source) noexcept
{
    const char* from = source.empty() ? kNoSource : source.c_str();
    try {
        try {
            throw;
        } catch (const BadCall& e) {
            Set(Plain(e.Status(), e.what(), kNoSource));
        } catch (const CancelledError& e) {
            Set(OfDatabase(KAVELIN_CANCELLED, e, from));
        } catch (const ConnectionError& e) {
            Set(OfDatabase(KAVELIN_CONNECTION, e, from));
        } catch (const DatabaseError& e) {
            Set(OfDatabase(KAVELIN_DATABASE, e, from));
        } catch (const ConversionError& e) {
            Set(Plain(KAVELIN_CONVERSION, e.what(), from));
        } catch (const OverflowError& e) {
            Set(Plain(KAVELIN_OVERFLOW, e.what(), from));
        } catch (const Error& e) {
            Set(Plain(KAVELIN_FAILED, e.what(), from));
        } catch (const std::bad_alloc&) {
            Set(Plain(KAVELIN_NO_MEMORY, "There is not enough memory.", from));
        } catch (const std::exception& e) {
            Set(Plain(KAVELIN_INTERNAL, e.what(), from));
        } catch (...) {
            Set(Plain(KAVELIN_INTERNAL, "Something was thrown that is no error.", from));
        }
        return objView.status;
    } catch (...) {
        return KAVELIN_NO_MEMORY;  // not even for the text of the error
    }
}

void LastError::Throw(kavelin_status status, bool told, const std::string& member) const
{
    kavelin_error error = objView;
    const std::string untold = "The host failed at " + member + ".";
    if (!told)
        error = Plain(status, untold.c_str(), "");
    if (std::string_view(error.text).empty())
        error.text = untold.c_str();
    switch (status) {
        case KAVELIN_CONVERSION: throw ConversionError(error.text);
        case KAVELIN_OVERFLOW: throw OverflowError(error.text);
        case KAVELIN_DATABASE: throw DatabaseError(DetailsOf(error));
        case KAVELIN_CONNECTION: throw ConnectionError(DetailsOf(error));
        case KAVELIN_CANCELLED: throw CancelledError(DetailsOf(error));
        default: throw Error(error.text);
    }
}

}  // namespace kavelin::capi
