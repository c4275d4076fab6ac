// The latest failure of a thread, as the host reads it.
#pragma once

#include "kavelin.h"

#include <cstdint>
#include <string>

namespace kavelin::capi {

class LastError {
  public:
    LastError();
    LastError(const LastError&) = delete;
    LastError& operator=(const LastError&) = delete;

    const kavelin_error& Get() const { return objView; }

    // How many there were; tells whether a call of the host's failed with something to say.
    std::uint64_t Count() const { return lngCount; }

    // Copies what there is; pointers may be null.
    void Set(const kavelin_error& error);

    // Keeps the exception that is being handled. `source` is the class whose member failed.
    kavelin_status SetCurrentException(const std::string& source) noexcept;

    // Throws what a failed member of the host has told: the latest error if `told`, else one that names the
    // member. For a status other than KAVELIN_OK.
    [[noreturn]] void Throw(kavelin_status status, bool told, const std::string& member) const;

  private:
    std::string strText;
    std::string strSource;
    std::string strSqlState;
    std::string strStatement;
    kavelin_error objView;
    std::uint64_t lngCount = 0;
};

}  // namespace kavelin::capi
